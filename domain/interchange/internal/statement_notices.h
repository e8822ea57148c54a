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
/// An end tag is missing.
[[nodiscard]] QString tagMended(const Place &place, const QString &tag);
[[nodiscard]] QString documentNotEnded();
[[nodiscard]] QString balanceLeftOut(const Place &place);
/// The entry that is to be replaced or deleted is not in the file.
[[nodiscard]] QString correctionLeftOut(const Place &place, const QString &amount);
[[nodiscard]] QString investmentsLeftOut();
/// Lines above the first header of a QIF file.
[[nodiscard]] QString commentsLeftOut();

} // namespace kiv::interchange::notices
