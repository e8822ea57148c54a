// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/import_options.h"
#include "output/dialogue.h"

#include "workbench/statements/import_preview.h"

namespace kiv::app {

/// Corrections of a preview, as typed. Entries are named by their numbers in the preview.
struct EntryCorrections {
    std::vector<QString> fresh;   ///< entries that are new whatever is there
    std::vector<QString> same;    ///< "ENTRY=TRANSACTION", which is the same
    std::vector<QString> purpose; ///< "ENTRY=ACCOUNT", which it is for
    std::vector<QString> leftOut; ///< entries that are not taken

    void declare(Arguments &arguments);
};

/// Imports a bank's file: reads it, lays it beside the books, asks on a terminal what is open,
/// and does what its preview shows.
struct StatementImport {
    const ImportOptions &options;
    const EntryCorrections &corrections;
    bool isAgreed = false;     ///< whether nothing is asked
    bool postsKnown = false;   ///< whether everything is posted
    bool keepsColumns = false; ///< whether the account's tables are read like this from now on

    [[nodiscard]] Report run(Call &call, interchange::StatementFormat format,
                             const QByteArray &bytes) const;

private:
    void askDays(const QByteArray &bytes, interchange::CsvProfile &profile,
                 Dialogue &dialogue) const;
    [[nodiscard]] Report finished(Call &call,
                                  const std::shared_ptr<const workbench::ImportPreview> &preview,
                                  const interchange::CsvProfile &profile,
                                  interchange::StatementFormat format,
                                  const QByteArray &bytes) const;
};

} // namespace kiv::app
