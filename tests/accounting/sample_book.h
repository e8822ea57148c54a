// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/accounting.h"

#include "accounting/ledger_replay.h"
#include "accounting/number_handout.h"

#include "numira/error.h"
#include "numira/library.h"

namespace kiv::test {

using namespace kiv::accounting;

/// The rate from dollars into a currency, as tests set it. Yen have none, for a
/// reason of the converter's own; other currencies without an entry have none
/// in the money library's words.
inline std::map<std::string, numira::FloatingPoint> &ratesFromUsd()
{
    static std::map<std::string, numira::FloatingPoint> rates;
    return rates;
}

inline numira::FloatingPoint rateFromUsd(const numira::Currency &currency)
{
    if (currency == numira::toCurrency("JPY"))
        throw foundation::Error(QStringLiteral("No yen today."));
    const auto found = ratesFromUsd().find(numira::toStdString(currency));
    if (found == ratesFromUsd().end())
        throw numira::ConversionError("no rate");
    return found->second;
}

inline void installRates()
{
    ratesFromUsd() = {{"USD", 1}, {"EUR", numira::FloatingPoint("0.5")}};
    numira::setUpLibrary(
        [](const auto &from, const auto &to) { return rateFromUsd(to) / rateFromUsd(from); },
        "en_US", numira::ShouldAllowFallback::Yes);
}

/// A small ledger with one of each, made anew and without any sharing at each
/// call.
struct Book {
    GeneralLedger ledger;
    SequentialAccountNumberGenerator generator;

    Book()
    {
        using enum AccountTypes;
        addAccount(ledger, generator, Asset, {}, "Bank");                         // 1
        addAccount(ledger, generator, Asset, {}, "Checking", no(1), usd("100"));  // 2, 3
        addAccount(ledger, generator, Expense, {}, "Rent");                       // 4
        addAccount(ledger, generator, Income, {}, "Wage");                        // 5
        addAccount(ledger, generator, Liability, {}, "Card");                     // 6
        addAccount(ledger, generator, Expense, {}, "Old");                        // 7
        addAccount(ledger, generator, Asset, {}, "Envelope", no(2));              // 8
        addAccount(ledger, generator, Asset, {}, "Euros", {}, money("EUR", "0")); // 9
        ledger.post(transfer(no(2), no(5), usd("2500"), day("2026-01-02")));      // #2
        ledger.post({day("2026-01-03"), no(4), no(2), usd("800"), QStringLiteral("January")}); // #3
        ledger.refund(txn(3), usd("100"), day("2026-01-04"));                                  // #4
        ledger.reconcile(ledger.post(transfer(no(4), no(6), usd("50"))), no(6));               // #5
        ledger.post(transfer(no(7), no(2), usd("10")));                                        // #6
        ledger.post(transfer(no(9), no(2), usd("10")));                                        // #7
        ledger.close(no(7));
    }
};

/// The number that the next account would get.
inline AccountNumber nextAccountNumber(Book &book)
{
    return NumberHandout(book.generator, book.ledger).number();
}

inline numira::Money balance(const GeneralLedger &ledger, std::uint32_t number)
{
    return ledger.ledger(no(number)).balance();
}

inline Transaction found(const GeneralLedger &ledger, std::uint16_t number)
{
    return ledger.lookUpTransaction(txn(number)).value();
}

/// The ledger, built again from what it answers.
inline GeneralLedger rebuilt(const GeneralLedger &ledger)
{
    LedgerReplay replay;
    std::vector<LedgerAccount> accounts;
    for (const AccountCode &code : ledger.accountCodes())
        accounts.push_back(ledger.ledger(code));
    std::set<AccountNumber> added;
    while (added.size() < accounts.size()) {
        for (const LedgerAccount &account : accounts) {
            const auto parent = account.code().parent();
            if (!added.contains(account.code().number()) && (!parent || added.contains(*parent))) {
                replay.addAccount(account.type(), account.code(), account.balance().code(),
                                  account.holdsOpenings());
                added.insert(account.code().number());
            }
        }
    }
    const std::vector<Transaction> transactions = ledger.transactions();
    for (const Transaction &transaction : transactions)
        replay.post(transaction);
    for (const Transaction &transaction : transactions) {
        if (transaction.refundOf())
            replay.markRefund(*transaction.number(), *transaction.refundOf());
    }
    for (const LedgerAccount &account : accounts) {
        if (account.openedBy())
            replay.markOpening(account.code().number(), *account.openedBy());
        if (account.isClosed())
            replay.close(account.code().number());
    }
    return replay.finish();
}

} // namespace kiv::test
