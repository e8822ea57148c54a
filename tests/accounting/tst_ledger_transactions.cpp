// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "sample_book.h"

using namespace kiv::test;
using enum AccountTypes;
using enum TransactionStatuses;

namespace {

/// The statuses of both sides, as "debit/credit".
QString statuses(const GeneralLedger &ledger, std::uint16_t number)
{
    const Transaction transaction = found(ledger, number);
    return toQString(transaction.debitStatus()) + u'/' + toQString(transaction.creditStatus());
}

} // namespace

class tst_LedgerTransactions : public QObject {
    Q_OBJECT

private slots:
    void init() { installRates(); }

    void postingsMoveBothBalancesAndAreSeenFromBothSides()
    {
        Book book;
        const auto number = book.ledger.post(
            {day("2026-03-01"), no(4), no(6), usd("7.005"), u"Späti"_qs, txn(500), Cleared});
        QCOMPARE(number, txn(8));
        QVERIFY(balance(book.ledger, 4) == usd("757.005"));
        QVERIFY(balance(book.ledger, 6) == usd("57.005"));
        for (const std::uint32_t side : {4U, 6U}) {
            const auto transactions = book.ledger.ledger(no(side)).transactions();
            const Transaction seen = transactions.find(number).value();
            QVERIFY(seen == found(book.ledger, 8) && seen.status() == Cleared);
            QCOMPARE(seen.description(), std::optional(u"Späti"_qs));
            QCOMPARE(seen.debiting().name(), u"Rent"_qs);
        }
        QVERIFY(!book.ledger.ledger(no(2)).transactions().contains(number));
        std::vector<int> ofRent;
        for (const Transaction &transaction : book.ledger.ledger(no(4)).transactions())
            ofRent.push_back(transaction.number()->integer());
        QCOMPARE(ofRent, (std::vector{3, 4, 5, 8}));
    }

    void undoneAdditionsLeaveNoTrace()
    {
        Book book;
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(book.ledger.post(transfer(no(9), no(6), usd("1"))), txn(8));
            book.ledger.remove(txn(8));
            QVERIFY(book.ledger == Book().ledger);
        }
        book.ledger.remove(txn(2));
        QCOMPARE(book.ledger.post(transfer(no(4), no(6), usd("1"))), txn(8)); // not the gap
    }

    void eachSideKeepsTheRateOfItsPosting()
    {
        Book book;
        ratesFromUsd()["EUR"] = numira::FloatingPoint("0.25");
        ratesFromUsd()["GBP"] = numira::FloatingPoint("0.5");
        const GeneralLedger before = book.ledger;
        // 12.05 of the third currency: 24.10 dollars and 6.025 euros, half to even.
        book.ledger.post(transfer(no(9), no(2), money("GBP", "12.05")));
        const Transaction posted = found(book.ledger, 8);
        QVERIFY(posted.amount() == money("GBP", "12.05"));
        QVERIFY(posted.creditAmount() == usd("24.10") && posted.amountFor(no(2)) == usd("24.10"));
        QVERIFY(posted.debitAmount() == money("EUR", "6.02"));
        QVERIFY(balance(book.ledger, 9) == money("EUR", "11.02")); // 5.00 at the old rate
        QVERIFY(balance(book.ledger, 2) == usd("1855.90"));
        // Nothing but a new amount or a new currency asks for a rate again.
        ratesFromUsd().clear();
        book.ledger.repost(txn(8), Transaction(day("2026-04-01"), no(2), no(9),
                                               money("GBP", "12.05"), u"Other way"_qs));
        QVERIFY(found(book.ledger, 8).debitAmount() == usd("24.10"));
        QVERIFY(balance(book.ledger, 9) == money("EUR", "-1.02"));
        const Transaction changed = transfer(no(2), no(9), money("GBP", "12.04"));
        QVERIFY_THROWS_EXCEPTION(TransactionError, book.ledger.repost(txn(8), changed));
        book.ledger.repost(txn(8), transfer(no(2), no(5), money("GBP", "12.05")));
        QCOMPARE(found(book.ledger, 8).creditAmount(), usd("24.10"));
        book.ledger.remove(txn(8));
        QVERIFY(book.ledger == before);
    }

    void repostsKeepWhatBelongsToTheTransaction()
    {
        Book book;
        book.ledger.clear(txn(1));
        // The own opening moves its other side, which so loses its status.
        book.ledger.repost(txn(1), transfer(no(2), no(5), usd("60"), day("2025-12-31"))
                                       .withStatuses(Reconciled, Reconciled));
        QCOMPARE(statuses(book.ledger, 1), u"cleared/none"_qs);
        QCOMPARE(book.ledger.openingTransaction(no(2)).value().occurredOn(), day("2025-12-31"));
        QVERIFY(balance(book.ledger, 2) == usd("1840") && balance(book.ledger, 3) == usd("0"));
        QVERIFY(!book.ledger.ledger(no(3)).transactions().contains(txn(1)));
        QVERIFY(book.ledger.ledger(no(5)).transactions().contains(txn(1)));

        // Swapping the sides makes both new.
        book.ledger.clear(txn(2));
        book.ledger.repost(txn(2), transfer(no(5), no(2), usd("2500")));
        QCOMPARE(statuses(book.ledger, 2), u"none/none"_qs);
        QVERIFY(balance(book.ledger, 5) == usd("-2440"));

        // Refunds stay refunds, in the currency of what they refund.
        for (const char *euros : {"400", "200"})
            book.ledger.repost(txn(4), transfer(no(2), no(4), money("EUR", euros)));
        QVERIFY(found(book.ledger, 4).amount() == usd("400"));
        book.ledger.repost(txn(3), transfer(no(4), no(2), usd("400"), day("2026-05-01")));
        QCOMPARE(found(book.ledger, 4).refundOf(), std::optional(txn(3)));
        QVERIFY(book.ledger.refundable(txn(3)) == usd("0"));
        // Without refunds, a transaction may be entered in another currency.
        book.ledger.repost(txn(7), transfer(no(9), no(2), money("EUR", "1")));
        QVERIFY(found(book.ledger, 7).creditAmount() == usd("2"));
        QVERIFY(rebuilt(book.ledger) == book.ledger);
    }

    void refundsAddUpToTheOriginal()
    {
        Book book;
        QVERIFY(book.ledger.refundable(txn(3)) == usd("700"));
        QVERIFY(book.ledger.refundable(txn(4)) == usd("0"));
        const auto number = book.ledger.refund(txn(3), money("EUR", "350"), day("2026-02-02"));
        const Transaction refund = found(book.ledger, number.integer());
        QVERIFY(refund.debiting().number() == no(2) && refund.crediting().number() == no(4));
        QVERIFY(refund.amount() == usd("700") && refund.occurredOn() == day("2026-02-02"));
        QCOMPARE(refund.description(), std::optional(u"January"_qs));
        QVERIFY(book.ledger.refundable(txn(3)) == usd("0"));
        book.ledger.remove(txn(4));
        QVERIFY(book.ledger.refundable(txn(3)) == usd("100"));
        book.ledger.remove(number);
        book.ledger.remove(txn(3));
        QVERIFY(!book.ledger.lookUpTransaction(txn(3)) && balance(book.ledger, 4) == usd("50"));
    }

    /// On this rests whatever compares a ledger with what it was before.
    void ledgersDifferInWhateverIsChanged()
    {
        using Change = std::function<void(Book &)>;
        const auto posting = [](const Transaction &transaction) {
            return [transaction](Book &book) { book.ledger.post(transaction); };
        };
        const auto recoding = [](const char *name, std::optional<AccountNumber> parent) {
            return [name, parent](Book &book) {
                book.ledger.recode(book.ledger.accountCode(no(8)),
                                   {no(8), QString::fromLatin1(name), parent});
            };
        };
        const Transaction rent(day("2026-03-01"), no(4), no(6), usd("5"), u"March"_qs);
        const std::vector<Change> changes{
            [](Book &) {},
            [](Book &b) { b.ledger.clear(txn(2), no(2)); },
            [](Book &b) { b.ledger.clear(txn(2), no(5)); },
            [](Book &b) { b.ledger.clear(txn(7)); },
            [](Book &b) { b.ledger.close(no(8)); },
            [](Book &b) { b.ledger.open(b.ledger.accountCode(no(7))); },
            [](Book &b) { b.ledger.remove(txn(4)); },
            [](Book &b) { b.ledger.remove(txn(7)); },
            [](Book &b) { b.ledger.remove(no(8)); },
            [](Book &b) { b.ledger.refund(txn(3), usd("5"), day("2026-03-01")); },
            [](Book &b) { addAccount(b.ledger, b.generator, Asset, {}, "New"); },
            [](Book &b) { addAccount(b.ledger, b.generator, Expense, {}, "New"); },
            recoding("Purse", no(2)),
            recoding("Envelope", no(1)),
            recoding("Envelope", {}),
            posting(rent),
            posting({day("2026-03-02"), no(4), no(6), usd("5"), u"March"_qs}),
            posting({day("2026-03-01"), no(2), no(6), usd("5"), u"March"_qs}),
            posting({day("2026-03-01"), no(4), no(2), usd("5"), u"March"_qs}),
            posting({day("2026-03-01"), no(4), no(6), usd("6"), u"March"_qs}),
            posting({day("2026-03-01"), no(4), no(6), usd("5"), u"April"_qs}),
            posting({day("2026-03-01"), no(4), no(6), usd("5")}),
            posting({day("2026-03-01"), no(4), no(9), usd("5"), u"March"_qs}),
            [&](Book &b) {
                ratesFromUsd()["EUR"] = 1;
                posting({day("2026-03-01"), no(4), no(9), usd("5"), u"March"_qs})(b);
            },
            [&](Book &b) {
                ratesFromUsd()["GBP"] = 1; // the same on both sides, but entered in another one
                posting({day("2026-03-01"), no(4), no(6), money("GBP", "5"), u"March"_qs})(b);
            }};
        std::vector<GeneralLedger> ledgers;
        for (const Change &change : changes) {
            installRates();
            Book book;
            Book again; // equal without sharing anything
            change(book);
            change(again);
            QVERIFY(book.ledger == again.ledger);
            for (const GeneralLedger &other : ledgers)
                QVERIFY(!(book.ledger == other) && !(other == book.ledger));
            ledgers.push_back(book.ledger);
        }
        // The same for one account and its transactions.
        const LedgerAccount before = ledgers[0].ledger(no(6));
        for (std::size_t i = 0; i < ledgers.size(); ++i) {
            const LedgerAccount after = ledgers[i].ledger(no(6));
            const bool isSame = i < 15 || i == 18 || i == 22 || i == 23;
            QCOMPARE(after == before, isSame);
            QCOMPARE(after.transactions() == before.transactions(), isSame);
        }
    }

    void statusesGoBySide()
    {
        Book book;
        GeneralLedger &ledger = book.ledger;
        ledger.clear(txn(5), no(4));
        QCOMPARE(statuses(ledger, 5), u"cleared/reconciled"_qs);
        QCOMPARE(found(ledger, 5).status(), Cleared);
        QCOMPARE(ledger.ledger(no(6)).transactions().find(txn(5))->status(), Reconciled);
        QCOMPARE((*ledger.ledger(no(6)).transactions().begin()).status(), Reconciled);
        QCOMPARE(ledger.ledger(no(4)).transactions().find(txn(5))->status(), Cleared);
        ledger.unreconcile(txn(5));
        QCOMPARE(statuses(ledger, 5), u"cleared/none"_qs);
        ledger.clear(txn(5), no(6));
        QCOMPARE(statuses(ledger, 5), u"cleared/cleared"_qs);
        ledger.reconcile(std::set{txn(5), txn(2)});
        ledger.reconcile(txn(5), no(4));
        QCOMPARE(statuses(ledger, 5), u"reconciled/reconciled"_qs);
        QCOMPARE(statuses(ledger, 2), u"reconciled/reconciled"_qs);
        ledger.reconcile(txn(6)); // a closed account is no hindrance
        ledger.unreconcile(txn(6));
        QCOMPARE(statuses(ledger, 6), u"none/none"_qs);
    }

    void aFullLedgerRefusesAndReusesTheLowestFreeNumber()
    {
        Book book;
        GeneralLedger &ledger = book.ledger;
        for (int number = 8; number <= 65'535; ++number)
            ledger.post(transfer(no(4), no(6), usd("0.01")));
        QVERIFY(balance(ledger, 6) == usd("705.28"));
        const GeneralLedger full = ledger;
        const auto refused = [&](const auto &change) {
            try {
                change();
                return false;
            } catch (const TransactionError &error) {
                return error.message() ==
                       u"The ledger is full: it holds at most 65,535 transactions."_qs;
            }
        };
        QVERIFY(refused([&] { ledger.post(transfer(no(4), no(6), usd("1"))); }));
        QVERIFY(refused([&] { ledger.refund(txn(3), usd("1")); }));
        QVERIFY(refused([&] {
            addAccount(ledger, book.generator, Asset, {}, "In euros", {}, money("EUR", "1"));
        }));
        QVERIFY(ledger == full && ledger.transactionCount() == 65'535);
        QCOMPARE(nextAccountNumber(book), no(10));

        for (const auto free : {txn(40'000), txn(900), txn(64), txn(9)})
            ledger.remove(free);
        for (const auto free : {txn(9), txn(64), txn(900), txn(40'000)})
            QCOMPARE(ledger.post(transfer(no(4), no(6), usd("0.01"))), free);
        QVERIFY(refused([&] { ledger.post(transfer(no(4), no(6), usd("1"))); }));
        QVERIFY(ledger == full && rebuilt(ledger) == full);
        ledger.remove(txn(65'535));
        ledger.remove(txn(65'534));
        QCOMPARE(ledger.post(transfer(no(4), no(6), usd("0.01"))), txn(65'534));

        // What is left is the same, however it was kept when there was more.
        for (std::uint16_t number = 65'534; number > 7; --number)
            ledger.remove(txn(number));
        QVERIFY(ledger == Book().ledger && Book().ledger == ledger && rebuilt(ledger) == ledger);
        ratesFromUsd()["GBP"] = 1;
        ledger.post(transfer(no(4), no(6), money("GBP", "1")));
        QVERIFY(containedCurrencies(ledger).contains(numira::toCurrency("GBP")));
        ledger.remove(txn(8));
        QVERIFY(containedCurrencies(ledger) == containedCurrencies(Book().ledger));
    }
};

static const kiv::test::Suite<tst_LedgerTransactions> suite;
#include "tst_ledger_transactions.moc"
