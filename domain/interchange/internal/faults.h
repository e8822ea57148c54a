// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QStringList>

namespace kiv::interchange {

/// The sentences with which the readers refuse data, one function for each. A sentence
/// says what to do next where that is not obvious.
namespace faults {

/// A text of the file, shortened and without control characters, to stand in a sentence.
[[nodiscard]] QString quoted(const QString &text);

// ---- any file ----------------------------------------------------------------

[[nodiscard]] ImportError unknownEncoding(const Place &place, const QString &encoding);
[[nodiscard]] ImportError wrongEncoding(const Place &place, const QString &encoding);
[[nodiscard]] ImportError lineTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError textTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError descriptionsTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError tooManyTransactions(const Place &place, qsizetype most);
[[nodiscard]] ImportError notADate(const Place &place, const QString &text, const QString &format);
/// A day of a file whose form the user can name.
[[nodiscard]] ImportError notInDateFormat(const Place &place, const QString &text,
                                          const QString &format);
[[nodiscard]] ImportError notANumber(const Place &place, const QString &text);
[[nodiscard]] ImportError ambiguousNumber(const Place &place, const QString &text);
[[nodiscard]] ImportError tooLarge(const Place &place, const std::exception &cause);
[[nodiscard]] ImportError tooManyDigits(const Place &place, const QString &text,
                                        const QString &currency, unsigned digitsMax);
[[nodiscard]] ImportError notACurrency(const Place &place, const QString &text);
[[nodiscard]] ImportError withoutCurrency(const Place &place, const QString &text);
[[nodiscard]] ImportError unsupported(const Place &place, const QString &what);
[[nodiscard]] ImportError missingAmount(const Place &place);
[[nodiscard]] ImportError nestedTooDeeply(const Place &place);

// ---- reports -----------------------------------------------------------------

[[nodiscard]] foundation::Error reportEndsFirst();
[[nodiscard]] foundation::Error reportTooLong(std::size_t spansMax);
[[nodiscard]] foundation::Error reportWithoutPaydays();

} // namespace faults

} // namespace kiv::interchange
