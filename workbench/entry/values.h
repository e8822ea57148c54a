// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/account_number.h"
#include "accounting/account_types.h"
#include "accounting/transaction_number.h"
#include "banking/bank_account_types.h"
#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"
#include "foundation/percentage.h"
#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <chrono>
#include <optional>

/// How what a person types becomes a value. Each readValue throws an EntryError
/// that says what was expected, and leaves the value unchanged then.
namespace kiv::workbench {

/// A name that somebody gives to something: not empty, and not blanks alone.
struct NewName {
    QString text; ///< as it was typed
};

/// An amount as it was written: the currency may be left to the context.
struct KIV_WORKBENCH_EXPORT Amount {
    QString text;                             ///< as it was typed
    numira::Decimal number;                   ///< what it says
    unsigned digits = 0;                      ///< behind the point, as written
    std::optional<numira::Currency> currency; ///< where one was written

    /// The amount, in `otherwise` when it was written without a currency.
    /// Throws an EntryError when it has more digits behind the point than its
    /// currency's minor unit.
    [[nodiscard]] numira::Money in(const numira::Currency &otherwise) const;
};

/// Any text.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, QString &value);
/// Refuses what is blank.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, NewName &value);
/// ISO 8601, as in 2026-03-31, or as the user's locale writes dates.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, QDate &value);
/// ISO 8601 alone, for documents.
KIV_WORKBENCH_EXPORT void readPlain(const QString &text, QDate &value);
/// The alphabetic code, in any case; not "no currency".
KIV_WORKBENCH_EXPORT void readValue(const QString &text, numira::Currency &value);
/// "1234.50", "1234.50 USD" or "USD 1234.50": a point before the minor unit and
/// no grouping, since both differ between countries; or as the user's locale
/// writes numbers, where that can be read in one way alone (see plainNumber).
KIV_WORKBENCH_EXPORT void readValue(const QString &text, Amount &value);
/// With a point and no grouping, for documents.
KIV_WORKBENCH_EXPORT void readPlain(const QString &text, Amount &value);
/// The English names, with blanks or dashes between the words.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, budgeting::EventFrequency &value);
/// One of the five, in English.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, accounting::AccountTypes &value);
/// One of the eight, in English.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, banking::BankAccountTypes &value);
/// "bill", "debt", "goal", "nontrack" or "wage".
KIV_WORKBENCH_EXPORT void readValue(const QString &text, budgeting::BudgetItemTypes &value);
/// A whole number above 0.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, accounting::AccountNumber &value);
/// A whole number from 1 to 65,535.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, accounting::TransactionNumber &value);
/// A whole number up to 36,600.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, std::chrono::days &value);
/// A whole number up to 100,000.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, std::chrono::hours &value);
/// "2.75" or "2.75%", with the user's decimal mark or a point.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, foundation::Percentage &value);

/// As the value itself.
template <typename T>
void readValue(const QString &text, std::optional<T> &value)
{
    T read{};
    readValue(text, read);
    value = std::move(read);
}

} // namespace kiv::workbench
