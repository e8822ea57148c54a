// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "interchange/csv_profile.h"

#include <functional>

/// The import profiles that the user saved under names, in the folder of settings.
namespace kiv::workbench {

/// Reads a saved profile. Throws an EntryError for what cannot be a name, a Refusal for a
/// name without a profile, and ImportError for a damaged one.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::CsvProfile readSavedProfile(const QString &name);

/// Writes the profile next to its place, and returns a function that puts it there; until
/// then a former profile stays. Both throw a Refusal when writing fails; what cannot be a
/// name is an EntryError.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::function<void()>
storedProfile(const QString &name, const interchange::CsvProfile &profile);

} // namespace kiv::workbench
