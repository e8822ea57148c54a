// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/transaction.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

namespace kiv::accounting {

Transaction::Transaction(QDate occurredOn) : m_occurredOn(occurredOn) {}

Transaction::Transaction(QDate occurredOn, AccountCode debiting, AccountCode crediting,
                         const numira::Money &amount, std::optional<QString> description,
                         std::optional<TransactionNumber> number, TransactionStatuses statuses)
    : m_occurredOn(occurredOn),
      m_debiting(std::move(debiting)),
      m_crediting(std::move(crediting)),
      m_amount(amount),
      m_debitAmount(amount),
      m_creditAmount(amount),
      m_description(std::move(description)),
      m_number(number),
      m_debitStatus(statuses),
      m_creditStatus(statuses)
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
    if (account == m_debiting.number())
        return m_debitAmount;
    if (account == m_crediting.number())
        return m_creditAmount;
    return m_amount;
}

TransactionStatuses Transaction::status() const noexcept
{
    if (m_seenFrom.isValid() && m_seenFrom == m_debiting.number())
        return m_debitStatus;
    if (m_seenFrom.isValid() && m_seenFrom == m_crediting.number())
        return m_creditStatus;
    return std::min(m_debitStatus, m_creditStatus);
}

bool Transaction::involves(AccountNumber account) const noexcept
{
    return account == m_debiting.number() || account == m_crediting.number();
}

Transaction Transaction::withStatuses(TransactionStatuses debit, TransactionStatuses credit) const
{
    Transaction result = *this;
    result.m_debitStatus = debit;
    result.m_creditStatus = credit;
    return result;
}

Transaction Transaction::seenFrom(AccountNumber account) const
{
    Transaction result = *this;
    result.m_seenFrom = account;
    return result;
}

Transaction Transaction::withSideAmounts(const numira::Money &debit,
                                         const numira::Money &credit) const
{
    Transaction result = *this;
    result.m_debitAmount = debit;
    result.m_creditAmount = credit;
    return result;
}

Transaction Transaction::withNumber(TransactionNumber number) const
{
    Transaction result = *this;
    result.m_number = number;
    return result;
}

Transaction Transaction::asRefundOf(std::optional<TransactionNumber> original) const
{
    Transaction result = *this;
    result.m_refundOf = original;
    return result;
}

bool operator==(const Transaction &a, const Transaction &b) noexcept
{
    return (a <=> b) == 0;
}

std::strong_ordering operator<=>(const Transaction &a, const Transaction &b) noexcept
{
    const auto byMoney = [&a, &b](numira::Money Transaction::*amount) {
        return numira::compareExactly(a.*amount, b.*amount);
    };
    const auto byText = [](const std::optional<QString> &left,
                           const std::optional<QString> &right) -> std::strong_ordering {
        if (left && right)
            return left->compare(*right) <=> 0;
        return left.has_value() <=> right.has_value();
    };
    if (const auto order = a.m_number <=> b.m_number; order != 0)
        return order;
    if (const auto order = a.m_occurredOn.toJulianDay() <=> b.m_occurredOn.toJulianDay();
        order != 0)
        return order;
    if (const auto order = a.m_debiting <=> b.m_debiting; order != 0)
        return order;
    if (const auto order = a.m_crediting <=> b.m_crediting; order != 0)
        return order;
    for (const auto amount :
         {&Transaction::m_amount, &Transaction::m_debitAmount, &Transaction::m_creditAmount}) {
        if (const auto order = byMoney(amount); order != 0)
            return order;
    }
    if (const auto order = a.m_debitStatus <=> b.m_debitStatus; order != 0)
        return order;
    if (const auto order = a.m_creditStatus <=> b.m_creditStatus; order != 0)
        return order;
    if (const auto order = a.m_refundOf <=> b.m_refundOf; order != 0)
        return order;
    return byText(a.m_description, b.m_description);
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

QDebug operator<<(QDebug debug, const Transaction &transaction)
{
    return foundation::streamed(std::move(debug), transaction);
}

} // namespace kiv::accounting
