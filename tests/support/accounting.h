// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/general_ledger.h"
#include "accounting/number_handout.h"

/// Short ways to write dates, amounts, accounts and transactions in tests.
/// Everything is valid unless a test asks for something else.
namespace kiv::test {

/// The day that `iso` names, such as "2026-03-31".
inline QDate day(const char *iso)
{
    return QDate::fromString(QString::fromLatin1(iso), Qt::ISODate);
}

/// money("EUR", "1.00").
inline numira::Money money(const char *currency, const char *text)
{
    return numira::toMoney(numira::toCurrency(currency), text);
}

inline numira::Money usd(const char *text)
{
    return money("USD", text);
}

inline accounting::AccountNumber no(std::uint32_t number)
{
    return accounting::AccountNumber(number);
}

inline accounting::TransactionNumber txn(std::uint16_t number)
{
    return accounting::TransactionNumber(number);
}

inline accounting::AccountCode code(std::uint32_t number, const char *name,
                                    std::optional<accounting::AccountNumber> parent = std::nullopt)
{
    return {no(number), QString::fromUtf8(name), parent};
}

/// Opens an account on 2026-01-01, with the generator's next number unless one
/// is given, and answers with its number.
inline accounting::AccountNumber
addAccount(accounting::GeneralLedger &ledger, accounting::AccountNumberGenerator &generator,
           accounting::AccountTypes type, std::optional<accounting::AccountNumber> number,
           const char *name, std::optional<accounting::AccountNumber> parent = std::nullopt,
           const numira::Money &opening = usd("0"))
{
    const auto openUnder = [&](accounting::AccountNumber chosen) {
        ledger.add(accounting::Account(
                       type, accounting::AccountCode(chosen, QString::fromUtf8(name), parent),
                       opening, false),
                   generator, day("2026-01-01"));
        return chosen;
    };
    if (number)
        return openUnder(*number);
    accounting::NumberHandout handout(generator, ledger);
    openUnder(handout.number());
    handout.keep();
    return handout.number();
}

/// A transaction that is not posted yet.
inline accounting::Transaction transfer(accounting::AccountNumber debit,
                                        accounting::AccountNumber credit,
                                        const numira::Money &amount, QDate date = day("2026-01-15"))
{
    return {date, debit, credit, amount};
}

} // namespace kiv::test
