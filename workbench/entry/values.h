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
#include <utility>

/// Reads typed values. Each readValue throws an EntryError that says what was expected,
/// and then leaves the value unchanged.
namespace kiv::workbench {

/// A new name: not empty, and not only blanks.
struct NewName {
    QString text; ///< as typed
};

/// An amount as typed, possibly without a currency.
struct KIV_WORKBENCH_EXPORT Amount {
    QString text;                             ///< as typed
    numira::Decimal number;                   ///< the value
    unsigned digits = 0;                      ///< decimals, as typed
    std::optional<numira::Currency> currency; ///< if one was typed

    /// The amount, in `otherwise` if it has no currency. Throws an EntryError if it has
    /// more decimals than its currency.
    [[nodiscard]] numira::Money in(const numira::Currency &otherwise) const;
};

/// Any text.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, QString &value);
/// Refuses empty and blank texts.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, NewName &value);
/// ISO 8601, such as 2026-03-31, or the locale's form.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, QDate &value);
/// ISO 8601 only, for documents.
KIV_WORKBENCH_EXPORT void readPlain(const QString &text, QDate &value);
/// The alphabetic code, ignoring case; not "no currency".
KIV_WORKBENCH_EXPORT void readValue(const QString &text, numira::Currency &value);
/// "1234.50", "1234.50 USD" or "USD 1234.50", with a point and without grouping. The
/// locale's form is read, too, if it has only one meaning; see plainNumber().
KIV_WORKBENCH_EXPORT void readValue(const QString &text, Amount &value);
/// With a point and no grouping, for documents.
KIV_WORKBENCH_EXPORT void readPlain(const QString &text, Amount &value);
/// The English names, with blanks or hyphens between the words.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, budgeting::EventFrequency &value);
/// One of the five, in English.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, accounting::AccountTypes &value);
/// One of the eight, in English.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, banking::BankAccountTypes &value);
/// "bill", "debt", "goal", "nontrack" or "wage".
KIV_WORKBENCH_EXPORT void readValue(const QString &text, budgeting::BudgetItemTypes &value);
/// A whole number of this range, as it was typed. Throws an EntryError for anything else.
[[nodiscard]] KIV_WORKBENCH_EXPORT int readWhole(const QString &text, int lowest, int highest);
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

/// The two sides of a text such as "NAME=VALUE", parted at its last sign. Throws an EntryError
/// if one of them is empty.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::pair<QString, QString> assignment(const QString &text);

/// As the value itself.
template <typename T>
void readValue(const QString &text, std::optional<T> &value)
{
    T read{};
    readValue(text, read);
    value = std::move(read);
}

} // namespace kiv::workbench
