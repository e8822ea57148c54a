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
/// If `mark` is given, the other mark, a blank or an apostrophe may group digits. Otherwise
/// a mark that comes last and only once is the decimal mark; ambiguous numbers such as
/// "1,234" are refused. Throws ImportError.
[[nodiscard]] KIV_INTERCHANGE_EXPORT numira::Decimal
readNumber(const QString &text, std::optional<DecimalMark> mark, const Place &place);

/// A form of dates, such as "DD.MM.YYYY": YYYY or YY, MM and DD, with any text between
/// them. M and D allow a missing leading zero. MMM is the name of a month in a common
/// language, also shortened to three letters or more.
class KIV_INTERCHANGE_EXPORT DateFormat {
public:
    /// "YYYY-MM-DD".
    DateFormat();
    /// Throws ImportError unless the text has year, month and day once each.
    DateFormat(QString text, const Place &place);

    /// As it was given.
    [[nodiscard]] const QString &text() const noexcept { return m_text; }
    /// The date; nothing when the text has another form or no such date exists. Two-digit
    /// years mean 1970 to 2069.
    [[nodiscard]] std::optional<QDate> read(QStringView text) const;

    friend bool operator==(const DateFormat &, const DateFormat &) = default;

private:
    QString m_text;
};

/// The currency of a sign or an ISO 4217 code. A sign shared by several currencies means
/// `preferred` if it is one of them. Nothing for an unknown or ambiguous text.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<numira::Currency>
readCurrency(const QString &text, const numira::Currency &preferred);

/// The amount of a statement. Throws ImportError when it has more decimal places than its
/// currency. Without `mark`, three decimals of a currency with fewer are refused even if
/// they are zero: the mark may group thousands.
[[nodiscard]] KIV_INTERCHANGE_EXPORT numira::Money statementAmount(const QString &text,
                                                                   const numira::Currency &currency,
                                                                   std::optional<DecimalMark> mark,
                                                                   const Place &place);

} // namespace kiv::interchange
