// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/transaction.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

namespace kiv::accounting {

Transaction::Transaction(QDate occurredOn) : m_parts{.occurredOn = occurredOn} {}

Transaction::Transaction(internal::TransactionParts parts) noexcept : m_parts(std::move(parts)) {}

Transaction::Transaction(QDate occurredOn, AccountCode debiting, AccountCode crediting,
                         const numira::Money &amount, std::optional<QString> description,
                         std::optional<TransactionNumber> number, TransactionStatuses statuses)
    : m_parts{.occurredOn = occurredOn,
              .debiting = std::move(debiting),
              .crediting = std::move(crediting),
              .amount = amount,
              .debitAmount = amount,
              .creditAmount = amount,
              .description = std::move(description),
              .number = number,
              .debitStatus = statuses,
              .creditStatus = statuses}
{
}

Transaction::Transaction(QDate occurredOn, AccountNumber debiting, AccountNumber crediting,
                         const numira::Money &amount, std::optional<QString> description,
                         std::optional<TransactionNumber> number, TransactionStatuses statuses)
    : Transaction(occurredOn, AccountCode(debiting, std::nullopt),
                  AccountCode(crediting, std::nullopt), amount, std::move(description), number,
                  statuses)
{
}

const numira::Money &Transaction::amountFor(AccountNumber account) const noexcept
{
    if (account == m_parts.debiting.number())
        return m_parts.debitAmount;
    if (account == m_parts.crediting.number())
        return m_parts.creditAmount;
    return m_parts.amount;
}

TransactionStatuses Transaction::status() const noexcept
{
    if (m_parts.seenFrom.isValid() && m_parts.seenFrom == m_parts.debiting.number())
        return m_parts.debitStatus;
    if (m_parts.seenFrom.isValid() && m_parts.seenFrom == m_parts.crediting.number())
        return m_parts.creditStatus;
    return std::min(m_parts.debitStatus, m_parts.creditStatus);
}

bool Transaction::involves(AccountNumber account) const noexcept
{
    return account == m_parts.debiting.number() || account == m_parts.crediting.number();
}

Transaction Transaction::withStatuses(TransactionStatuses debit, TransactionStatuses credit) const
{
    Transaction result = *this;
    result.m_parts.debitStatus = debit;
    result.m_parts.creditStatus = credit;
    return result;
}

Transaction Transaction::seenFrom(AccountNumber account) const
{
    Transaction result = *this;
    result.m_parts.seenFrom = account;
    return result;
}

Transaction Transaction::withSideAmounts(const numira::Money &debit,
                                         const numira::Money &credit) const
{
    Transaction result = *this;
    result.m_parts.debitAmount = debit;
    result.m_parts.creditAmount = credit;
    return result;
}

Transaction Transaction::withNumber(TransactionNumber number) const
{
    Transaction result = *this;
    result.m_parts.number = number;
    return result;
}

Transaction Transaction::asRefundOf(std::optional<TransactionNumber> original) const
{
    Transaction result = *this;
    result.m_parts.refundOf = original;
    return result;
}

bool operator==(const Transaction &a, const Transaction &b) noexcept
{
    return (a <=> b) == 0;
}

std::strong_ordering operator<=>(const Transaction &left, const Transaction &right) noexcept
{
    using Parts = internal::TransactionParts;
    const Parts &a = left.m_parts;
    const Parts &b = right.m_parts;
    const auto byMoney = [&a, &b](numira::Money Parts::*amount) {
        return numira::compareExactly(a.*amount, b.*amount);
    };
    const auto byText = [](const std::optional<QString> &one,
                           const std::optional<QString> &other) -> std::strong_ordering {
        if (one && other)
            return one->compare(*other) <=> 0;
        return one.has_value() <=> other.has_value();
    };
    if (const auto order = a.number <=> b.number; order != 0)
        return order;
    if (const auto order = a.occurredOn.toJulianDay() <=> b.occurredOn.toJulianDay(); order != 0)
        return order;
    if (const auto order = a.debiting <=> b.debiting; order != 0)
        return order;
    if (const auto order = a.crediting <=> b.crediting; order != 0)
        return order;
    for (const auto amount : {&Parts::amount, &Parts::debitAmount, &Parts::creditAmount}) {
        if (const auto order = byMoney(amount); order != 0)
            return order;
    }
    if (const auto order = a.debitStatus <=> b.debitStatus; order != 0)
        return order;
    if (const auto order = a.creditStatus <=> b.creditStatus; order != 0)
        return order;
    if (const auto order = a.refundOf <=> b.refundOf; order != 0)
        return order;
    return byText(a.description, b.description);
}

std::ostream &operator<<(std::ostream &out, const Transaction &transaction)
{
    if (const auto &number = transaction.number())
        out << '#' << *number << ' ';
    out << foundation::isoText(transaction.occurredOn()).toStdString() << ' '
        << transaction.amount() << ": debit " << transaction.debiting() << " ("
        << transaction.debitAmount() << ", " << transaction.debitStatus() << "), credit "
        << transaction.crediting() << " (" << transaction.creditAmount() << ", "
        << transaction.creditStatus() << ')';
    if (const auto &original = transaction.refundOf())
        out << ", refund of #" << *original;
    if (const auto &description = transaction.description())
        out << ", \"" << foundation::escapedUtf8(*description) << '"';
    return out;
}

} // namespace kiv::accounting
