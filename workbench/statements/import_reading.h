// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_memory.h"
#include "workbench/statements/import_preview.h"

#include "interchange/statement_reader.h"

namespace kiv::workbench {

/// A bank's file that is to be imported, and what the user said about it.
struct ImportSource {
    QString file;                          ///< its name, for messages
    QByteArray bytes;                      ///< all that it holds
    interchange::StatementFormat format{}; ///< its form
    interchange::StatementOptions options; ///< how to read it; the currency is found
    bool hasProfile = false;               ///< whether the user said how its table is written
    QString statement = {};                ///< the bank's number of the account, among several
    std::optional<accounting::AccountNumber> into = {}; ///< the budget's account, if it is said
};

/// A statement that was read, and the account that it is of.
struct ImportReading {
    interchange::Statement statement; ///< with notices about its account
    /// The account; nothing if it is to be chosen among the possible ones.
    std::optional<accounting::AccountNumber> account = {};
    std::vector<accounting::AccountNumber> possible = {}; ///< kept by banks, in its currency
    /// Whether the bank's number of the account is another than in former files, or is that
    /// of another account: somebody should agree first.
    bool isOfOtherAccount = false;
};

/// Reads the file. Without `into`, the account is the one whose former files had the same
/// number of the bank, or the only one that can be it. A table is read as the account's former
/// ones were, if that was kept and still fits. Throws an ImportError for what cannot be read,
/// also when one of several statements must be chosen.
[[nodiscard]] KIV_WORKBENCH_EXPORT ImportReading readForImport(Requests &requests,
                                                               const ImportMemory &memory,
                                                               const ImportSource &source);

/// The accounts whose statements are in the file, as the bank numbers them. Throws an
/// ImportError for what cannot be read.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList statementNumbers(Requests &requests,
                                                                const ImportSource &source);

/// What the statement would do to its account, which must be chosen. Throws as the preview
/// does.
[[nodiscard]] KIV_WORKBENCH_EXPORT ImportPreview previewOf(Requests &requests,
                                                           ImportReading reading,
                                                           ImportPreview::Choices choices);

} // namespace kiv::workbench
