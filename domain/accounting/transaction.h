// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_code.h"
#include "accounting/account_types.h"
#include "accounting/transaction_number.h"

#include "foundation/debug_stream.h"

#include "numira/money.h"

#include <QtCore/QDate>

namespace kiv::accounting {

namespace internal {

/// All that a transaction holds.
struct TransactionParts {
    QDate occurredOn = {};
    AccountCode debiting = {};
    AccountCode crediting = {};
    numira::Money amount = {};
    numira::Money debitAmount = {};
    numira::Money creditAmount = {};
    std::optional<QString> description = {};
    std::optional<TransactionNumber> number = {};
    std::optional<TransactionNumber> refundOf = {};
    TransactionStatuses debitStatus = TransactionStatuses::None;
    TransactionStatuses creditStatus = TransactionStatuses::None;
    AccountNumber seenFrom = {}; ///< invalid when it is seen from no side
};

} // namespace internal

/// Money that moves between two accounts on a day: the first account is
/// debited, the second credited.
///
/// Each side has a status of its own, and each side is kept in its account's
/// currency, at the rate of the day on which it was posted. A transaction that
/// was read through an account (Account::transactions) is seen from that
/// account's side, and status() is that side's.
///
/// A transaction checks nothing; the ledger does when it is posted.
class KIV_ACCOUNTING_EXPORT Transaction {
public:
    Transaction() = default;
    /// A day without a transaction, for comparing and looking up.
    explicit Transaction(QDate occurredOn);
    /// The transaction as the ledger keeps it, whole.
    explicit Transaction(internal::TransactionParts parts) noexcept;
    /// Both sides start with `statuses`.
    Transaction(QDate occurredOn, AccountCode debiting, AccountCode crediting,
                const numira::Money &amount, std::optional<QString> description = std::nullopt,
                std::optional<TransactionNumber> number = std::nullopt,
                TransactionStatuses statuses = TransactionStatuses::None);
    /// The same for accounts that are known by their numbers.
    Transaction(QDate occurredOn, AccountNumber debiting, AccountNumber crediting,
                const numira::Money &amount, std::optional<QString> description = std::nullopt,
                std::optional<TransactionNumber> number = std::nullopt,
                TransactionStatuses statuses = TransactionStatuses::None);

    /// The day; invalid in a default-constructed transaction.
    [[nodiscard]] QDate occurredOn() const noexcept { return m_parts.occurredOn; }
    /// The account that is debited.
    [[nodiscard]] const AccountCode &debiting() const noexcept { return m_parts.debiting; }
    /// The account that is credited.
    [[nodiscard]] const AccountCode &crediting() const noexcept { return m_parts.crediting; }
    /// The amount in the currency in which it was entered.
    [[nodiscard]] const numira::Money &amount() const noexcept { return m_parts.amount; }
    /// What it was for, in the user's words; nothing when nothing was said.
    [[nodiscard]] const std::optional<QString> &description() const noexcept
    {
        return m_parts.description;
    }
    /// The ledger's number; nothing before it is posted.
    [[nodiscard]] const std::optional<TransactionNumber> &number() const noexcept
    {
        return m_parts.number;
    }
    /// The transaction that this one refunds, if any.
    [[nodiscard]] const std::optional<TransactionNumber> &refundOf() const noexcept
    {
        return m_parts.refundOf;
    }

    /// The amount in the debited account's currency; amount() before posting.
    [[nodiscard]] const numira::Money &debitAmount() const noexcept { return m_parts.debitAmount; }
    /// The amount in the credited account's currency; amount() before posting.
    [[nodiscard]] const numira::Money &creditAmount() const noexcept
    {
        return m_parts.creditAmount;
    }
    /// The amount on the side of `account`; amount() when it is on neither.
    [[nodiscard]] const numira::Money &amountFor(AccountNumber account) const noexcept;

    /// How far the debited account's side is checked against a statement.
    [[nodiscard]] TransactionStatuses debitStatus() const noexcept { return m_parts.debitStatus; }
    /// How far the credited account's side is checked against a statement.
    [[nodiscard]] TransactionStatuses creditStatus() const noexcept { return m_parts.creditStatus; }
    /// The status of the side from which the transaction is seen; when it is
    /// seen from none, the lower of both.
    [[nodiscard]] TransactionStatuses status() const noexcept;
    /// Whether `account` is one of the two.
    [[nodiscard]] bool involves(AccountNumber account) const noexcept;

    /// The same transaction with other statuses.
    [[nodiscard]] Transaction withStatuses(TransactionStatuses debit,
                                           TransactionStatuses credit) const;
    /// The same transaction, seen from the side of `account`.
    [[nodiscard]] Transaction seenFrom(AccountNumber account) const;
    /// The same transaction with the amounts that its sides have in the
    /// currencies of their accounts, as a ledger or a file holds them.
    [[nodiscard]] Transaction withSideAmounts(const numira::Money &debit,
                                              const numira::Money &credit) const;
    /// The same transaction under this number.
    [[nodiscard]] Transaction withNumber(TransactionNumber number) const;
    /// The same transaction as a refund of `original`, or as none.
    [[nodiscard]] Transaction asRefundOf(std::optional<TransactionNumber> original) const;

    /// Everything but the side from which it is seen.
    friend KIV_ACCOUNTING_EXPORT bool operator==(const Transaction &a,
                                                 const Transaction &b) noexcept;
    /// By number (none first), then day, accounts, amount (without asking for a
    /// rate), sides and statuses, so that it agrees with equality.
    friend KIV_ACCOUNTING_EXPORT std::strong_ordering operator<=>(const Transaction &a,
                                                                  const Transaction &b) noexcept;

private:
    internal::TransactionParts m_parts;
};

KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, const Transaction &transaction);
using foundation::operator<<;

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::Transaction)
Q_DECLARE_METATYPE(std::set<kiv::accounting::Transaction>)
