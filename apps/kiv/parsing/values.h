// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
#include <string>

/// How the words of a command line become values. Each readValue throws a
/// UsageError that says what was expected, and leaves the value unchanged then.
namespace kiv::app {

/// A name that somebody gives to something: not empty, and not blanks alone.
struct NewName {
    QString text;
};

/// An amount as it was written: the currency may be left to the context.
struct Amount {
    QString text;
    numira::Decimal number;
    unsigned digits = 0; ///< behind the point, as written
    std::optional<numira::Currency> currency;

    /// The amount, in `otherwise` when it was written without a currency.
    /// Throws a UsageError when it has more digits behind the point than its
    /// currency's minor unit.
    [[nodiscard]] numira::Money in(const numira::Currency &otherwise) const;
};

void readValue(const std::string &text, QString &value);
void readValue(const std::string &text, NewName &value);
/// ISO 8601, as in 2026-03-31, or as the user's locale writes dates.
void readValue(const std::string &text, QDate &value);
/// ISO 8601 alone, for documents.
void readPlain(const std::string &text, QDate &value);
/// The alphabetic code, in any case; not "no currency".
void readValue(const std::string &text, numira::Currency &value);
/// "1234.50", "1234.50 USD" or "USD 1234.50": a point before the minor unit and
/// no grouping, since both differ between countries; or as the user's locale
/// writes numbers, where that can be read in one way alone (see plainNumber).
void readValue(const std::string &text, Amount &value);
/// With a point and no grouping, for documents.
void readPlain(const std::string &text, Amount &value);
/// The English names, with blanks or dashes between the words.
void readValue(const std::string &text, budgeting::EventFrequency &value);
void readValue(const std::string &text, accounting::AccountTypes &value);
void readValue(const std::string &text, banking::BankAccountTypes &value);
/// "bill", "debt", "goal", "nontrack" or "wage".
void readValue(const std::string &text, budgeting::BudgetItemTypes &value);
void readValue(const std::string &text, accounting::AccountNumber &value);
void readValue(const std::string &text, accounting::TransactionNumber &value);
void readValue(const std::string &text, std::chrono::days &value);
void readValue(const std::string &text, std::chrono::hours &value);
/// "2.75" or "2.75%", with the user's decimal mark or a point.
void readValue(const std::string &text, foundation::Percentage &value);

template <typename T>
void readValue(const std::string &text, std::optional<T> &value)
{
    T read{};
    readValue(text, read);
    value = std::move(read);
}

/// The word of a kind of budget item on the command line and in JSON.
[[nodiscard]] QString kindWord(budgeting::BudgetItemTypes kind);
/// That word in the user's language.
[[nodiscard]] QString kindText(budgeting::BudgetItemTypes kind);

} // namespace kiv::app
