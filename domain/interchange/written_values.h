// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>

#include <optional>

/// Numbers, days and currencies as other programs and banks write them.
namespace kiv::interchange {

/// A point or a comma.
enum class DecimalMark : char16_t {
    Point = u'.', ///< 1234.50
    Comma = u',', ///< 1234,50
};

/// The number that a text like "1,234.50", "-12", "12,50-" or "(3.20)" writes.
///
/// With a mark, the other one (or a blank, or an apostrophe) may group the
/// digits before it. Without one, the mark that comes last and but once is
/// taken for it; "1,234" and its like, which could be either, are refused.
/// Throws ImportError.
[[nodiscard]] KIV_INTERCHANGE_EXPORT numira::Decimal
readNumber(const QString &text, std::optional<DecimalMark> mark, const Place &place);

/// How days are written: YYYY or YY, MM and DD (or M and D, with or without a
/// leading zero) with anything between them, such as "DD.MM.YYYY".
class KIV_INTERCHANGE_EXPORT DateFormat {
public:
    /// "YYYY-MM-DD".
    DateFormat();
    /// Throws ImportError when the text has not each of the three once.
    DateFormat(QString text, const Place &place);

    /// As it was given.
    [[nodiscard]] const QString &text() const noexcept { return m_text; }
    /// The day; nothing when the text is written otherwise or no such day
    /// exists. Two digits mean the years 1970 to 2069.
    [[nodiscard]] std::optional<QDate> read(QStringView text) const;

private:
    QString m_text;
};

/// The currency that a sign or an ISO 4217 code names; the sign of `preferred`
/// means that one ("$" where Canadian dollars are used). Nothing when it is
/// none, or could be several.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<numira::Currency>
readCurrency(const QString &text, const numira::Currency &preferred);

/// The amount, when it has no more digits than its currency. Throws ImportError
/// otherwise, and for three digits behind a point where no mark is named and the
/// currency has fewer: a mark that was misread would show itself so.
[[nodiscard]] KIV_INTERCHANGE_EXPORT numira::Money statementAmount(const QString &text,
                                                                   const numira::Currency &currency,
                                                                   std::optional<DecimalMark> mark,
                                                                   const Place &place);

} // namespace kiv::interchange
