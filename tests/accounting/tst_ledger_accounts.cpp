// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "sample_book.h"

using namespace kiv::test;
using enum AccountTypes;
using enum TransactionStatuses;

namespace {

QString nameOf(const GeneralLedger &ledger, std::uint32_t number)
{
    return ledger.accountCode(no(number)).name();
}

} // namespace

class tst_LedgerAccounts : public QObject {
    Q_OBJECT

private slots:
    void init() { installRates(); }

    void openingBalancesStandOnTheTypesOwnSide_data()
    {
        QTest::addColumn<AccountTypes>("type");
        QTest::addColumn<bool>("isDebitNormal");
        for (const auto &[type, isDebited] :
             {std::pair(Asset, true), std::pair(Equity, false), std::pair(Expense, true),
              std::pair(Liability, false), std::pair(Income, false)})
            QTest::newRow(qPrintable(toQString(type))) << type << isDebited;
    }

    void openingBalancesStandOnTheTypesOwnSide()
    {
        QFETCH(AccountTypes, type);
        QFETCH(bool, isDebitNormal);
        for (const char *opening : {"12.345", "-12.345"}) {
            GeneralLedger ledger;
            SequentialAccountNumberGenerator generator;
            addAccount(ledger, generator, type, no(7), "New", {}, usd(opening));
            const bool isDebited = isDebitNormal == usd(opening).isPositive();
            const Transaction first = ledger.openingTransaction(no(7)).value();
            QCOMPARE((isDebited ? first.debiting() : first.crediting()).number(), no(7));
            QCOMPARE((isDebited ? first.crediting() : first.debiting()).number(), no(1));
            QVERIFY(first.amount() == usd("12.345") && first.occurredOn() == day("2026-01-01"));
            QVERIFY(balance(ledger, 7) == usd(opening));
            QCOMPARE(ledger.ledger(no(7)).openedBy(), std::optional(txn(1)));
            QCOMPARE(++generator, no(2));
        }
    }

    void openingsShareOneEquityAccountPerCurrency()
    {
        GeneralLedger ledger;
        SequentialAccountNumberGenerator generator(no(1));
        addAccount(ledger, generator, Asset, no(2), "By hand");
        QVERIFY(!ledger
                     .add(Account(Asset, AccountCode(no(3), u"Empty"_qs, {}), usd("0"), true),
                          generator)
                     .has_value());
        QVERIFY(ledger.ledger(no(3)).isClosed() && ledger.transactionCount() == 0);
        // The generator's next numbers, 2 and 3, are taken by hand.
        addAccount(ledger, generator, Asset, {}, "First", {}, usd("10"));         // 4, openings 5
        addAccount(ledger, generator, Asset, {}, "Second", {}, usd("20"));        // 6
        addAccount(ledger, generator, Asset, {}, "Third", {}, money("EUR", "3")); // 7, openings 8
        QCOMPARE(ledger.accountCodes().size(), std::size_t{7});
        QCOMPARE(nameOf(ledger, 5), u"Opening Balances USD [Equity]"_qs);
        QCOMPARE(nameOf(ledger, 8), u"Opening Balances EUR [Equity]"_qs);
        QVERIFY(balance(ledger, 5) == usd("30") && balance(ledger, 8) == money("EUR", "3"));
        QVERIFY(ledger.ledger(no(5)).holdsOpenings() && !ledger.ledger(no(4)).holdsOpenings());
        // It goes by the mark, whatever its name and number.
        ledger.recode(ledger.accountCode(no(5)), {no(50), u"Start"_qs, {}});
        addAccount(ledger, generator, Asset, {}, "Fourth", {}, usd("1"));
        QVERIFY(balance(ledger, 50) == usd("31"));
        // Of two, which a conversion makes possible, the open one is taken.
        ledger.convertTo(no(8), numira::toCurrency("USD"), generator);
        ledger.close(no(8));
        addAccount(ledger, generator, Asset, {}, "Fifth", {}, usd("1"));
        QVERIFY(balance(ledger, 50) == usd("32"));
    }

    void handoutsStepOverUsedNumbersAndGiveBack()
    {
        GeneralLedger ledger;
        SequentialAccountNumberGenerator generator;
        addAccount(ledger, generator, Asset, no(2), "By hand");
        {
            const NumberHandout refused(generator, ledger);
            QCOMPARE(refused.number(), no(1));
            // The one in between keeps its number, and steps over number 2.
            addAccount(ledger, generator, Asset, {}, "Meanwhile");
            QVERIFY(ledger.hasLedger(no(3)));
        }
        for (const std::uint32_t expected : {1U, 4U}) {
            NumberHandout taken(generator, ledger);
            QCOMPARE(taken.number(), no(expected));
            addAccount(ledger, generator, Asset, taken.number(), "Taken");
            taken.keep();
        }
        SequentialAccountNumberGenerator last(generator.seedFrom(ledger.accounts()));
        addAccount(ledger, last, Asset, no(0xFFFF'FFFF), "Highest by hand");
        SequentialAccountNumberGenerator loaded(last.seedFrom(ledger.accounts()));
        QCOMPARE(++*last.clone(), no(5));
        for (int attempt = 0; attempt < 2; ++attempt)
            QCOMPARE(NumberHandout(loaded, ledger).number(), no(5));
        SequentialAccountNumberGenerator almost(no(0xFFFF'FFFE));
        for (int attempt = 0; attempt < 2; ++attempt)
            QCOMPARE(NumberHandout(almost, GeneralLedger()).number(), no(0xFFFF'FFFF));
        SequentialAccountNumberGenerator highest(no(0xFFFF'FFFF));
        QCOMPARE(++highest, no(1));
        SequentialAccountNumberGenerator first;
        QCOMPARE(--first, no(0));
    }

    void removalTakesTheOwnOpeningAlong()
    {
        Book book;
        Book untouched;
        const auto number =
            addAccount(book.ledger, book.generator, Liability, {}, "Debt", {}, usd("-3"));
        QVERIFY(book.ledger.canRemove({number, {}}));
        book.ledger.open(AccountCode(no(7), {}));
        QVERIFY(!book.ledger.canRemove({no(7), {}}) && !book.ledger.canRemove({no(77), {}}));
        book.ledger.close(no(7));
        book.ledger.remove(number);
        QVERIFY(book.ledger == untouched.ledger);
        // Only the one that opened it: another's opening against it holds it.
        QVERIFY(!book.ledger.canRemove({no(3), {}}));
        QVERIFY(!book.ledger.canRemove({no(1), {}})); // has a child
        // A closed one can go too, and with it the transaction's mark.
        addAccount(book.ledger, book.generator, Expense, no(30), "Spent", {}, usd("5"));
        book.ledger.close(no(30));
        QVERIFY(book.ledger.canRemove({no(30), {}}));
        book.ledger.remove(no(30));
        QVERIFY(book.ledger == untouched.ledger);
        // An opening that was taken away leaves an unused account.
        book.ledger.remove(txn(2));
        addAccount(book.ledger, book.generator, Asset, no(31), "Asset", {}, usd("5"));
        book.ledger.remove(txn(8));
        QVERIFY(!book.ledger.openingTransaction(no(31)) && book.ledger.canRemove({no(31), {}}));
    }

    void closingNeedsAZeroBalanceOnlyOfAssetsAndLiabilities()
    {
        Book book;
        for (const std::uint32_t number : {3U, 4U, 5U, 1U}) {
            book.ledger.close(no(number));
            QVERIFY(book.ledger.ledger(no(number)).isClosed());
        }
        QCOMPARE(book.ledger.lookUpChildren(no(1), OpenStates::Open), std::set{no(2)});
        QVERIFY(book.ledger.lookUpChildren(no(1), OpenStates::Closed).empty());
        book.ledger.open(book.ledger.accountCode(no(1)));
        QVERIFY(!book.ledger.ledger(no(1)).isClosed());
        QCOMPARE(book.ledger.lookUpChildren(no(2), OpenStates::Either), std::set{no(8)});
    }

    void recodingCarriesEverythingAlong()
    {
        Book book;
        const GeneralLedger before = book.ledger;
        const LedgerAccount rentBefore = before.ledger(no(4));
        book.ledger.recode(AccountCode(no(2), {}), {no(20), u"Giro"_qs, {}});
        book.ledger.recode(AccountCode(no(4), {}), {no(2), u"Flat"_qs, {}});
        book.ledger.recode(AccountCode(no(7), {}), {no(7), u"Older"_qs, {}});

        QVERIFY(!book.ledger.hasLedger(no(4)));
        QCOMPARE(book.ledger.accountCode(no(8)).parent(), std::optional(no(20)));
        QCOMPARE(book.ledger.ledger(no(20)).openedBy(), std::optional(txn(1)));
        QVERIFY(balance(book.ledger, 20) == balance(before, 2));
        QVERIFY(balance(book.ledger, 2) == balance(before, 4));
        QVERIFY(book.ledger.ledger(no(7)).isClosed());
        const Transaction rent = found(book.ledger, 3);
        QVERIFY(rent.debiting() == AccountCode(no(2), u"Flat"_qs, {}));
        QVERIFY(rent.crediting() == AccountCode(no(20), u"Giro"_qs, {}));
        QCOMPARE(book.ledger.ledger(no(20)).transactions().size(), std::size_t{6});
        QCOMPARE(found(book.ledger, 4).refundOf(), std::optional(txn(3)));
        book.ledger.refund(txn(3), usd("700"));

        // What was read before still shows what it was.
        QVERIFY(before == Book().ledger && rentBefore == before.ledger(no(4)));
        QCOMPARE((*rentBefore.transactions().begin()).crediting().name(), u"Checking"_qs);
        // Back again, all is as it was.
        book.ledger.remove(txn(8));
        book.ledger.recode(AccountCode(no(2), {}), before.accountCode(no(4)));
        book.ledger.recode(AccountCode(no(20), {}), before.accountCode(no(2)));
        book.ledger.recode(AccountCode(no(7), {}), before.accountCode(no(7)));
        QVERIFY(book.ledger == before);
    }

    void conversionRestatesTheOwnSidesAlone()
    {
        Book book;
        ratesFromUsd()["EUR"] = numira::FloatingPoint("0.333");
        book.ledger.convertTo(no(4), numira::toCurrency("EUR"), book.generator);
        const Transaction rent = found(book.ledger, 3);
        const Transaction reconciled = found(book.ledger, 5);
        QVERIFY(rent.amount() == usd("800") && rent.creditAmount() == usd("800"));
        QVERIFY(rent.debitAmount() == money("EUR", "266.40"));
        QVERIFY(reconciled.debitAmount() == money("EUR", "16.65"));
        QVERIFY(reconciled.debitStatus() == None && reconciled.creditStatus() == Reconciled);
        QVERIFY(balance(book.ledger, 4) == money("EUR", "249.75")); // 266.40 - 33.30 + 16.65
        QVERIFY(balance(book.ledger, 2) == balance(Book().ledger, 2));

        // Back into the entered currency, or into the other side's: without a rate.
        book.ledger.convertTo(no(9), numira::toCurrency("USD"), book.generator);
        QVERIFY(found(book.ledger, 7).debitAmount() == usd("10"));
        QVERIFY(rebuilt(book.ledger) == book.ledger);

        // Nothing to convert needs no rate, and a closed account can be.
        book.ledger.convertTo(no(1), numira::toCurrency("JPY"), book.generator);
        book.ledger.convertTo(no(7), numira::toCurrency("EUR"), book.generator);
        QCOMPARE(balance(book.ledger, 1), money("JPY", "0"));
        book.ledger.add(
            Account(AccountTypes::Expense, AccountCode(no(90), u"Misc"_qs, {}), {}, false),
            book.generator);
        const std::set<numira::Currency> currencies = containedCurrencies(book.ledger);
        QVERIFY(currencies == std::set({numira::toCurrency("USD"), numira::toCurrency("EUR"),
                                        numira::toCurrency("JPY")}));
    }
};

static const kiv::test::Suite<tst_LedgerAccounts> suite;
#include "tst_ledger_accounts.moc"
