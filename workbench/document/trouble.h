// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include <vector>

namespace kiv::workbench {

/// An error of the budget file: what happened, and what the user can choose.
struct Trouble {
    QString sentence;            ///< in the user's language
    std::vector<Remedy> choices; ///< the most useful first; may be empty

    friend bool operator==(const Trouble &, const Trouble &) = default;
};

/// Of an error that opening `file` threw.
[[nodiscard]] KIV_WORKBENCH_EXPORT Trouble troubleOfOpening(const QString &file,
                                                            const std::exception &error);
/// Of an error that saving threw.
[[nodiscard]] KIV_WORKBENCH_EXPORT Trouble troubleOfSaving(const std::exception &error);

} // namespace kiv::workbench
