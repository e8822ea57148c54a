// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "foundation/error.h"

#include <QtCore/QString>

/// Reads and writes the formats of other programs: journals, bank statements, tables and
/// reports. Values and bytes go in and out; callers open files and own the ledger.
namespace kiv::interchange {

/// A place in a file that is being read. Lines count from 1; 0 is the whole file.
struct Place {
    QString file;       ///< its name, as it was given
    qsizetype line = 0; ///< in that file

    friend bool operator==(const Place &, const Place &) = default;
};

/// A file cannot be imported.
class KIV_INTERCHANGE_EXPORT ImportError : public foundation::Error {
public:
    /// The message is "'FILE', line LINE: REASON".
    ImportError(Place place, const QString &reason, const std::exception &cause = std::exception());
    ImportError(const ImportError &) noexcept;
    ~ImportError() override;
    /// The place of what cannot be imported.
    [[nodiscard]] const Place &place() const noexcept { return m_place; }

private:
    Place m_place;
};

/// Errors that callers of the readers throw, too.
namespace faults {

/// The caller refuses to open `path`, which the journal includes. `reason` is a clause that
/// follows a colon.
[[nodiscard]] KIV_INTERCHANGE_EXPORT ImportError includeRefused(const Place &place,
                                                                const QString &path,
                                                                const QString &reason);

} // namespace faults

} // namespace kiv::interchange
