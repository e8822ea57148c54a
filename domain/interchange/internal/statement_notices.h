// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

/// Sentences with which the readers of statements tell what they left out or mended, and what
/// the user should know of a file before trusting it.
namespace kiv::interchange::notices {

[[nodiscard]] QString balanceDiffers(const Place &place, const QString &expected,
                                     const QString &found);
[[nodiscard]] QString furtherBalancesDiffer(qsizetype count);
/// The statement goes on in another file.
[[nodiscard]] QString furtherPages(const Place &place);

} // namespace kiv::interchange::notices
