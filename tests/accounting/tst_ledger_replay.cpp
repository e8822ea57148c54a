// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "sample_book.h"

#include <rapidcheck.h>

#include <sstream>

using namespace kiv::test;
using enum AccountTypes;
using enum TransactionStatuses;
using Step = std::function<void(LedgerReplay &)>;

Q_DECLARE_METATYPE(Step)

namespace {

const numira::Currency dollars = numira::toCurrency("USD");

/// A replay with an opening (#1), a payment (#2) and a transaction (#3) that
/// gives back some of it.
void begin(LedgerReplay &replay)
{
    replay.addAccount(Asset, {no(1), u"Bank"_qs, {}}, dollars, false);
    replay.addAccount(Expense, {no(2), u"Rent"_qs, {}}, dollars, false);
    replay.addAccount(Equity, {no(3), u"Openings"_qs, {}}, dollars, true);
    replay.addAccount(Asset, {no(4), u"Euros"_qs, {}}, numira::toCurrency("EUR"), false);
    replay.post(transfer(no(1), no(3), usd("100")).withNumber(txn(1)));
    replay.post(transfer(no(2), no(1), usd("10")).withNumber(txn(2)));
    replay.post(transfer(no(1), no(2), usd("4")).withNumber(txn(3)));
}

Step adding(AccountTypes type, std::uint32_t number, bool holdsOpenings)
{
    return [=](LedgerReplay &replay) {
        replay.addAccount(type, {no(number), u"New"_qs, {}}, dollars, holdsOpenings);
    };
}

/// One row: a part of the sentence, what is refused, and what was done before.
void row(const char *name, const char *sentence, const Step &step, const Step &before = {})
{
    QTest::newRow(name) << before << step << QString::fromUtf8(sentence);
}

Step posting(const Transaction &transaction)
{
    return [=](LedgerReplay &replay) { replay.post(transaction); };
}

Step refunding(std::uint16_t number, std::uint16_t original)
{
    return [=](LedgerReplay &replay) { replay.markRefund(txn(number), txn(original)); };
}

Step opening(std::uint32_t account, std::uint16_t number)
{
    return [=](LedgerReplay &replay) { replay.markOpening(no(account), txn(number)); };
}

/// One random change of a ledger. Most numbers name something that exists.
struct AnyChange {
    int kind;
    std::uint32_t account;
    std::uint32_t other;
    std::uint16_t transaction;
    int cents;
};

constexpr int kinds = 13;

AnyChange anyChange()
{
    // At full size from the start: a range that grows with the size would hardly
    // ever give the last kinds.
    const int kind = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, kinds));
    return {kind, *rc::gen::inRange(1U, 9U), *rc::gen::inRange(0U, 9U),
            *rc::gen::inRange<std::uint16_t>(1, 25), *rc::gen::inRange(-100, 1000)};
}

numira::Money cents(int count)
{
    return {dollars, numira::Decimal(count).scaled(1, 100)};
}

void addAny(Book &book, const AnyChange &change)
{
    const auto type = static_cast<AccountTypes>(change.transaction % 6);
    const std::optional<AccountNumber> parent =
        change.cents % 3 == 0 ? std::optional(no(change.other)) : std::nullopt;
    NumberHandout handout(book.generator, book.ledger);
    book.ledger.add({type, {handout.number(), u"Any"_qs, parent}, cents(change.cents), false},
                    book.generator, day("2026-01-01"));
    handout.keep();
}

/// Throws what the ledger throws.
void apply(Book &book, const AnyChange &change)
{
    GeneralLedger &ledger = book.ledger;
    const AccountNumber account = no(change.account);
    const TransactionNumber number = txn(change.transaction);
    const Transaction any = transfer(account, no(change.other), cents(change.cents));
    switch (change.kind) {
    case 0:
        return addAny(book, change);
    case 1:
        return ledger.remove(account);
    case 2:
        return ledger.close(account);
    case 3:
        return ledger.open({account, {}});
    case 4:
        return ledger.recode(
            {account, {}},
            {no(change.cents > 500 ? change.other : change.account), u"Moved"_qs,
             change.cents % 2 == 0 ? std::optional(no(change.other)) : std::nullopt});
    case 5:
        return ledger.repost(number, any);
    case 6:
        return ledger.remove(number);
    case 7:
        return ledger.clear(number);
    case 8:
        return ledger.reconcile(number, account);
    case 9:
        return ledger.unreconcile(number);
    case 10:
        ledger.refund(number, cents(change.cents), day("2026-03-01"));
        return;
    case 11:
        return ledger.convertTo(
            account, numira::toCurrency(std::array{"EUR", "USD", "JPY"}[change.transaction % 3]),
            book.generator);
    default:
        ledger.post(any);
    }
}

std::string dump(const GeneralLedger &ledger)
{
    std::ostringstream out;
    out << ledger;
    return out.str();
}

/// Everything that the ledger keeps beside the transactions follows from them.
void checkSums(const GeneralLedger &ledger)
{
    for (const Account &account : ledger.accounts()) {
        const AccountNumber number = account.code().number();
        numira::Money sum(account.balance().code());
        std::vector<Transaction> own;
        for (const Transaction &transaction : ledger.transactions()) {
            if (!transaction.involves(number))
                continue;
            own.push_back(transaction);
            const bool isDebited = transaction.debiting() == account.code();
            RC_ASSERT(isDebited || transaction.crediting() == account.code());
            if (isDebited == isDebitNormal(account.type()))
                sum += transaction.amountFor(number);
            else
                sum -= transaction.amountFor(number);
        }
        RC_ASSERT(account.balance() == sum);
        RC_ASSERT(std::ranges::equal(account.transactions().toSet(), own));
    }
    for (const Transaction &transaction : ledger.transactions()) {
        numira::Money refunded(transaction.amount().code());
        for (const Transaction &refund : ledger.transactions()) {
            if (refund.refundOf() == transaction.number())
                refunded += refund.amount();
        }
        RC_ASSERT(refunded <= transaction.amount());
        if (!transaction.refundOf())
            RC_ASSERT(ledger.refundable(*transaction.number()) == transaction.amount() - refunded);
    }
}

/// Debits less credits over all accounts; of use in one currency only.
numira::Money surplus(const GeneralLedger &ledger)
{
    numira::Money sum(dollars);
    for (const Account &account : ledger.accounts())
        sum += isDebitNormal(account.type()) ? account.balance() : -account.balance();
    return sum;
}

} // namespace

class tst_LedgerReplay : public QObject {
    Q_OBJECT

private slots:
    void init() { installRates(); }

    void refusedStepsChangeNothing_data()
    {
        QTest::addColumn<Step>("before");
        QTest::addColumn<Step>("step");
        QTest::addColumn<QString>("sentence");
        row("account: number taken", "the account '2 Rent' has", adding(Asset, 2, false));
        row("account: openings outside equity", "'5 New' of type Income", adding(Income, 5, true));
        row("close: balance", "'1 Bank' cannot be closed while its balance is $94.00",
            [](LedgerReplay &replay) { replay.close(no(1)); });

        const Transaction payment = transfer(no(2), no(1), usd("1"));
        const Transaction fourth = payment.withNumber(txn(4));
        const Transaction back = transfer(no(1), no(2), usd("6.01")).withNumber(txn(4));
        row("post: no number", "has no number", posting(payment));
        row("post: number 0", "has no number", posting(payment.withNumber(txn(0))));
        row("post: number twice", "number 3 stands for two", posting(payment.withNumber(txn(3))));
        row("post: negative", "but is -$1.00",
            posting(transfer(no(2), no(1), usd("-1")).withNumber(txn(4))));
        row("post: closed account", "'2 Rent' is closed", posting(fourth),
            [](LedgerReplay &replay) { replay.close(no(2)); });
        row("post: debit of nothing", "4 cannot have the amount $0.00 in the account '2 Rent'",
            posting(fourth.withSideAmounts(usd("0"), usd("1"))));
        row("post: credit elsewhere", "4 cannot have the amount €1.00 in the account '1 Bank'",
            posting(fourth.withSideAmounts(usd("1"), money("EUR", "1"))));
        row("post: debit that differs", "4 cannot have the amount $2.00 in the account '2 Rent'",
            posting(fourth.withSideAmounts(usd("2"), usd("1"))));
        row("post: sides that differ", "4 cannot have the amount $2.00 in the account '1 Bank'",
            posting(transfer(no(2), no(1), money("EUR", "1"))
                        .withSideAmounts(usd("1"), usd("2"))
                        .withNumber(txn(4))));

        row("refund: unknown original", "number 77", refunding(3, 77));
        const Transaction toThird = transfer(no(1), no(3), usd("1"));
        const Transaction fromThird = transfer(no(3), no(2), usd("1"));
        row("refund: credits another account", "4 cannot be a refund of the transaction 2",
            refunding(4, 2), posting(toThird.withNumber(txn(4))));
        row("refund: debits another account", "4 cannot be a refund of the transaction 2",
            refunding(4, 2), posting(fromThird.withNumber(txn(4))));
        row("refund: marked already", "3 cannot be a refund of the transaction 2", refunding(3, 2),
            refunding(3, 2));
        row("refund: of a refund", "4 cannot be a refund of the transaction 3", refunding(4, 3),
            [=](LedgerReplay &replay) {
                replay.post(fourth);
                replay.markRefund(txn(3), txn(2));
            });
        row("refund: was refunded itself", "3 cannot be a refund of the transaction 2",
            refunding(3, 2), [=](LedgerReplay &replay) {
                replay.post(fourth);
                replay.markRefund(txn(4), txn(3));
            });
        row("refund: other currency", "4 cannot be a refund of the transaction 2", refunding(4, 2),
            posting(transfer(no(1), no(2), money("EUR", "1"))
                        .withSideAmounts(usd("2"), usd("2"))
                        .withNumber(txn(4))));
        row("refund: an opening", "4 cannot be a refund of the transaction 2", refunding(4, 2),
            [=](LedgerReplay &replay) {
                replay.post(back);
                replay.markOpening(no(1), txn(4));
            });
        row("refund: more than is left", "$6.01 exceeds the $6.00", refunding(4, 2),
            [=](LedgerReplay &replay) {
                replay.markRefund(txn(3), txn(2));
                replay.post(back);
            });

        row("opening: unknown", "number 77", opening(1, 77));
        row("opening: not involved", "1 cannot have opened the account '4 Euros'", opening(4, 1));
        row("opening: second", "'1 Bank' was opened by the transaction 1 already", opening(1, 2),
            opening(1, 1));
        row("opening: both sides", "1 cannot have opened the account '3 Openings'", opening(3, 1),
            opening(1, 1));
        row("opening: a refund", "3 cannot have opened the account '1 Bank'", opening(1, 3),
            refunding(3, 2));
    }

    void refusedStepsChangeNothing()
    {
        QFETCH(Step, before);
        QFETCH(Step, step);
        QFETCH(QString, sentence);
        LedgerReplay replay;
        LedgerReplay untouched;
        for (LedgerReplay *each : {&replay, &untouched}) {
            begin(*each);
            if (before)
                before(*each);
        }
        QString refusal;
        try {
            step(replay);
        } catch (const kiv::foundation::Error &error) {
            refusal = error.message();
        }
        QVERIFY2(refusal.contains(sentence), qPrintable(refusal));
        QVERIFY(replay.finish() == untouched.finish());
        QVERIFY(replay.finish().isEmpty());
    }

    void anEqualLedgerComesOutWithoutRates()
    {
        Book book;
        ratesFromUsd().clear();
        QVERIFY(rebuilt(book.ledger) == book.ledger);
    }

    void equalitySeesEachMark()
    {
        const Transaction fourth = transfer(no(2), no(1), usd("1")).withNumber(txn(4));
        std::vector<GeneralLedger> ledgers;
        for (const Step &step :
             {Step([](LedgerReplay &) {}), opening(1, 1), refunding(3, 2), adding(Equity, 5, true),
              adding(Equity, 5, false), Step([](LedgerReplay &replay) { replay.close(no(2)); }),
              posting(fourth), posting(fourth.withStatuses(Cleared, None)),
              posting(fourth.withStatuses(None, Cleared))}) {
            LedgerReplay replay;
            begin(replay);
            step(replay);
            ledgers.push_back(replay.finish());
        }
        for (std::size_t i = 0; i < ledgers.size(); ++i) {
            for (std::size_t j = 0; j < ledgers.size(); ++j)
                QCOMPARE(ledgers[i] == ledgers[j], i == j);
        }
    }

    void whatNeedsALuckyOrderIsRefused()
    {
        // The balances would fit, but not on the way there by number, and the
        // ledger could never be built again.
        const numira::Money most = usd("90000000000000000000000000");
        GeneralLedger ledger;
        SequentialAccountNumberGenerator generator;
        for (const char *name : {"A", "B", "C"})
            addAccount(ledger, generator, Asset, {}, name);
        ledger.post(transfer(no(1), no(2), usd("1")));
        ledger.post(transfer(no(1), no(3), most));
        ledger.post(transfer(no(2), no(1), most));
        QVERIFY_THROWS_EXCEPTION(AccountError, ledger.repost(txn(1), transfer(no(1), no(2), most)));
        QVERIFY(rebuilt(ledger) == ledger);
    }

    void everySequenceOfChangesKeepsTheLedgerTrue_data()
    {
        QTest::addColumn<bool>("hasOneCurrency");
        QTest::newRow("one currency") << true;
        QTest::newRow("two currencies") << false;
    }

    void everySequenceOfChangesKeepsTheLedgerTrue()
    {
        QFETCH(bool, hasOneCurrency);
        std::vector<int> accepted(kinds);
        std::vector<int> refused(kinds);
        const auto property = [&] {
            Book book;
            if (hasOneCurrency) {
                book.ledger.remove(txn(7));
                book.ledger.remove(no(9));
            }
            std::vector<std::pair<GeneralLedger, std::string>> copies;
            const auto count = *rc::gen::inRange(1, 100);
            for (int step = 0; step < count; ++step) {
                const AnyChange change = anyChange();
                if (hasOneCurrency && change.kind == 11)
                    continue;
                const GeneralLedger before = book.ledger;
                const AccountNumber next = nextAccountNumber(book);
                ratesFromUsd()["EUR"] = numira::FloatingPoint(change.transaction) / 7;
                try {
                    apply(book, change);
                    ++accepted[static_cast<std::size_t>(change.kind)];
                } catch (const kiv::foundation::Error &) {
                    ++refused[static_cast<std::size_t>(change.kind)];
                    RC_ASSERT(book.ledger == before);
                    RC_ASSERT(nextAccountNumber(book) == next);
                }
                if (step % 8 == 0)
                    copies.emplace_back(book.ledger, dump(book.ledger));
            }
            checkSums(book.ledger);
            if (hasOneCurrency)
                RC_ASSERT(surplus(book.ledger) == usd("0"));
            const GeneralLedger again = rebuilt(book.ledger);
            RC_ASSERT(again == book.ledger);
            RC_ASSERT(dump(again) == dump(book.ledger));
            for (const auto &[copy, text] : copies)
                RC_ASSERT(dump(copy) == text);
        };
        QVERIFY(rc::check("balances, copies and replays agree", property));
        for (int kind = 0; kind < kinds; ++kind) {
            const auto at = static_cast<std::size_t>(kind);
            QVERIFY2((accepted[at] > 0 && refused[at] > 0) || (hasOneCurrency && kind == 11),
                     qPrintable(QString::number(kind)));
        }
    }
};

static const kiv::test::Suite<tst_LedgerReplay> suite;
#include "tst_ledger_replay.moc"
