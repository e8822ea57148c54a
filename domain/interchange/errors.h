// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "foundation/error.h"

#include <QtCore/QString>

/// What other programs write, read and written: journals, bank statements,
/// tables and reports. Plain values, bytes in and bytes out; whoever uses them
/// brings the files and the ledger.
namespace kiv::interchange {

/// Where something stands in a file that is being read. Lines count from 1; 0
/// is the file as a whole.
struct Place {
    QString file;       ///< its name, as it was given
    qsizetype line = 0; ///< in that file

    friend bool operator==(const Place &, const Place &) = default;
};

/// Data that cannot be taken over.
class KIV_INTERCHANGE_EXPORT ImportError : public foundation::Error {
public:
    /// The message is "'FILE', line LINE: REASON".
    ImportError(Place place, const QString &reason, const std::exception &cause = std::exception());
    ImportError(const ImportError &) noexcept;
    ~ImportError() override;
    /// Where the data stands.
    [[nodiscard]] const Place &place() const noexcept { return m_place; }

private:
    Place m_place;
};

/// Refusals that callers of the readers have to word, too.
namespace faults {

/// The journal includes `path`, which whoever gives it its files refuses;
/// `reason` goes on from a colon.
[[nodiscard]] KIV_INTERCHANGE_EXPORT ImportError includeRefused(const Place &place,
                                                                const QString &path,
                                                                const QString &reason);

} // namespace faults

} // namespace kiv::interchange
