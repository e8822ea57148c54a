// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>

#include <cstdint>
#include <iosfwd>

namespace kiv::accounting {

/// The kind of a ledger account. Debits raise assets and expenses, credits
/// raise the others; a balance is positive on its kind's own side.
enum class AccountTypes : std::uint8_t {
    Unknown = 0, ///< no kind; no ledger takes such an account
    Asset = 1,
    Equity = 2,
    Expense = 3,
    Liability = 4,
    Income = 5,
};

/// Whether debits raise the balance of an account of this kind. Throws
/// std::logic_error for a value that is no kind.
[[nodiscard]] KIV_ACCOUNTING_EXPORT bool isDebitNormal(AccountTypes type);

/// The English name in lower case: "asset". Throws std::logic_error for a value
/// above the known ones.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString toQString(AccountTypes type);
/// The name for the user.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString presentationText(AccountTypes type);
KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, AccountTypes type);

/// How far one side of a transaction has come.
enum class TransactionStatuses : std::uint8_t {
    None = 0,       ///< entered
    Cleared = 1,    ///< seen at the bank
    Reconciled = 2, ///< part of a reconciled statement, and so fixed
};

/// The English name in lower case. Throws std::logic_error for any other value.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString toQString(TransactionStatuses status);
KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, TransactionStatuses status);
using foundation::operator<<;

/// Which accounts a query takes.
enum class OpenStates : std::uint8_t { Open = 1, Closed = 2, Either = 3 };

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::AccountTypes)
