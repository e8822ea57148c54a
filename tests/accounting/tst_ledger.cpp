// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "ledger_book.h"

#include <rapidcheck.h>

using enum AccountTypes;
using enum TransactionStatuses;

namespace {

/// Whether the pieces between "..." stand in the sentence in this order.
bool says(const QString &sentence, const QString &pattern)
{
    qsizetype at = 0;
    for (const QString &piece : pattern.split(u"..."_qs)) {
        at = sentence.indexOf(piece, at);
        if (at < 0)
            return false;
        at += piece.size();
    }
    return !sentence.isEmpty();
}

/// The same situation three times, of which one shares its content with a copy.
struct Situation {
    Book alone;
    Book shared;
    Book untouched;
    GeneralLedger copy;

    explicit Situation(const Row &row)
    {
        for (Book *book : {&alone, &shared, &untouched}) {
            installRates();
            request(*book, row.before);
        }
        copy = shared.ledger;
    }
};

/// Makes steps of a replay: "post #4 2 1 1", and "sides 1 2EUR" behind it, "refund #4 #2"
/// (4 is a refund of 2), "opening 1 #4", "close 2", "account 5 equity openings".
void step(LedgerReplay &replay, const QString &text)
{
    for (const QString &one : text.split(u"; "_qs, Qt::SkipEmptyParts)) {
        Words words(one);
        const QString verb = words.next();
        const std::uint32_t first = words.number();
        const TransactionNumber number = txn(static_cast<std::uint16_t>(first));
        if (verb == u"account"_qs) {
            const AccountTypes type = words.type();
            replay.addAccount(type, {no(first), u"New"_qs, {}}, numira::toCurrency("USD"),
                              words.has("openings"));
        } else if (verb == u"close"_qs) {
            replay.close(no(first));
        } else if (verb == u"refund"_qs) {
            replay.markRefund(number, words.transaction());
        } else if (verb == u"opening"_qs) {
            replay.markOpening(no(first), words.transaction());
        } else {
            Transaction entry = words.entry(words.account()).withNumber(number);
            if (words.next() == u"sides"_qs) {
                const numira::Money debit = words.amount();
                entry = entry.withSideAmounts(debit, words.amount());
            }
            replay.post(stored(entry));
        }
    }
}

/// A replay with an opening (#1), a payment (#2) and a transaction (#3) that
/// gives back some of it, and those steps.
LedgerReplay &begin(LedgerReplay &replay, const QString &steps)
{
    const numira::Currency dollars = numira::toCurrency("USD");
    replay.addAccount(Asset, {no(1), u"Bank"_qs, {}}, dollars, false);
    replay.addAccount(Expense, {no(2), u"Rent"_qs, {}}, dollars, false);
    replay.addAccount(Equity, {no(3), u"Openings"_qs, {}}, dollars, true);
    replay.addAccount(Asset, {no(4), u"Euros"_qs, {}}, numira::toCurrency("EUR"), false);
    step(replay, u"post #1 1 3 100; post #2 2 1 10; post #3 1 2 4"_qs);
    step(replay, steps);
    return replay;
}

/// Random requests: for each letter stands an account, another one or the same (B), the
/// number of a transaction (N), an amount (M), a type, a currency, or a parent (U).
constexpr std::array kinds{"add next T M U", "remove A",        "close A",     "open A",
                           "recode A B U",   "repost #N A B M", "remove #N",   "clear #N",
                           "reconcile #N A", "unreconcile #N",  "refund #N M", "post A B M",
                           "convert A C"};
constexpr std::size_t conversion = kinds.size() - 1;

/// Most numbers name something that exists.
QString anyRequest(std::size_t kind)
{
    QString text = QString::fromLatin1(kinds.at(kind));
    const auto any = [](int least, int beyond) {
        return QString::number(*rc::gen::inRange(least, beyond));
    };
    const QString account = any(1, 9);
    text.replace(u'A', account);
    text.replace(u'B', *rc::gen::inRange(0, 5) > 0 ? any(0, 9) : account);
    text.replace(u'N', any(1, 25));
    text.replace(u'M', QString::number(*rc::gen::inRange(-100, 1000) / 100.0, 'f', 2));
    text.replace(u'T', toQString(*rc::gen::element(Unknown, Asset, Equity, Liability, Income)));
    text.replace(u"U"_qs, *rc::gen::arbitrary<bool>() ? u"under "_qs + any(0, 9) : QString());
    text.replace(u"C"_qs, *rc::gen::element(u"EUR"_qs, u"USD"_qs, u"JPY"_qs));
    return text.trimmed();
}

/// Debits less credits over all accounts; of use in one currency only.
numira::Money surplus(const GeneralLedger &ledger)
{
    numira::Money sum;
    for (const Account &account : ledger.accounts())
        sum += isDebitNormal(account.type()) ? account.balance() : -account.balance();
    return sum;
}

} // namespace

class tst_Ledger : public QObject {
    Q_OBJECT

private slots:
    void refusedRequestsChangeNothing()
    {
        for (const Row &row : rows("== refused")) {
            Situation now(row);
            for (Book *book : {&now.alone, &now.shared}) {
                const QString said = refusal(*book, row.request);
                QVERIFY2(says(said, row.answer), qPrintable(row.text + u" is: "_qs + said));
                QVERIFY2(book->ledger == now.untouched.ledger, qPrintable(row.text));
                QCOMPARE(nextAccountNumber(*book), nextAccountNumber(now.untouched));
            }
            QVERIFY2(now.copy == now.untouched.ledger, qPrintable(row.text));
        }
    }

    /// On telling ledgers apart rests whatever compares one with what it was before.
    void requestsChangeWhatTheySay()
    {
        std::vector<std::pair<GeneralLedger, Facts>> all;
        for (const Row &row : rows("== done")) {
            Situation now(row);
            for (Book *book : {&now.alone, &now.shared}) {
                QCOMPARE(row.text + refusal(*book, row.request), row.text);
                const QString changed = difference(now.copy, book->ledger);
                QVERIFY2(changed == row.answer, qPrintable(row.text + u" is: "_qs + changed));
                QCOMPARE(fault(book->ledger), QString());
            }
            QVERIFY2(now.copy == now.untouched.ledger, qPrintable(row.text));
            ratesFromUsd.clear(); // what was posted once needs none
            QCOMPARE(rebuilt(now.alone.ledger), now.alone.ledger);
            for (const GeneralLedger &ledger : {now.copy, now.alone.ledger, now.shared.ledger})
                all.emplace_back(ledger, facts(ledger));
        }
        for (const auto &[a, ofA] : all) {
            for (const auto &[b, ofB] : all) {
                QCOMPARE(a == b, ofA == ofB);
                const auto cardA = a.ledger(no(6)).transactions();
                const auto cardB = b.ledger(no(6)).transactions();
                QCOMPARE(cardA == cardB, cardA.toSet() == cardB.toSet());
            }
        }
    }

    void unknownEnumerationValuesAreProgrammingErrors()
    {
        const auto type = static_cast<AccountTypes>(6);
        const Transaction wrong = transfer(no(2), no(4), usd("1"))
                                      .withStatuses(None, static_cast<TransactionStatuses>(3));
        Book book;
        for (const std::function<void()> &use : std::initializer_list<std::function<void()>>{
                 [&] { addAccount(book.ledger, book.generator, type, no(20), "New"); },
                 [&] { book.ledger.post(wrong); },
                 [&] { static_cast<void>(book.ledger.lookUpChildren(no(1), OpenStates(0))); },
                 [&] { static_cast<void>(toQString(type)); },
                 [&] { static_cast<void>(isDebitNormal(Unknown)); }})
            QVERIFY_THROWS_EXCEPTION(std::logic_error, use());
        QVERIFY(book.ledger == Book().ledger);
    }

    void errorsNameTheirSubjectAndKeepTheirCause()
    {
        const auto errorOf = []<typename Expected>(const char *asked,
                                                   std::type_identity<Expected>) {
            Book book;
            try {
                request(book, QString::fromLatin1(asked));
            } catch (const Expected &error) {
                return error;
            }
            qFatal("It was not refused.");
        };
        const auto ofPosting = errorOf("post 2 4 5JPY", std::type_identity<TransactionError>());
        QCOMPARE(ofPosting.number(), txn(0));
        QVERIFY(QByteArray(ofPosting.what()).endsWith("Caused by: No yen today."));
        const auto ofClosing = errorOf("close 2", std::type_identity<AccountError>());
        QVERIFY(ofClosing.code() == AccountCode(no(2), u"Checking"_qs, no(1)));
    }

    void aFullLedgerRefusesAndReusesTheLowestFreeNumber()
    {
        Book book;
        GeneralLedger &ledger = book.ledger;
        const QString posting = u"post 4 6 0.01"_qs;
        for (int number = 8; number <= 65'535; ++number)
            ledger.post(transfer(no(4), no(6), usd("0.01")));
        QVERIFY(ledger.ledger(no(6)).balance() == usd("705.28"));
        const GeneralLedger full = ledger;
        const auto isFull = [&](const QString &change) {
            return refusal(book, change) ==
                   u"The ledger is full: it holds at most 65,535 transactions."_qs;
        };
        QVERIFY(isFull(posting) && isFull(u"refund #3 1"_qs) && isFull(u"add next asset 1EUR"_qs));
        QVERIFY(ledger == full && ledger.transactionCount() == 65'535);
        QCOMPARE(nextAccountNumber(book), no(10));

        for (const auto free : {txn(40'000), txn(900), txn(64), txn(9)})
            ledger.remove(free);
        for (const auto free : {txn(9), txn(64), txn(900), txn(40'000)})
            QCOMPARE(ledger.post(transfer(no(4), no(6), usd("0.01"))), free);
        QVERIFY(isFull(posting) && ledger == full && rebuilt(ledger) == full);
        ledger.remove(txn(65'535));
        ledger.remove(txn(65'534));
        QCOMPARE(ledger.post(transfer(no(4), no(6), usd("0.01"))), txn(65'534));

        // What is left is the same, however it was kept when there was more.
        for (std::uint16_t number = 65'534; number > 7; --number)
            ledger.remove(txn(number));
        QVERIFY(ledger == Book().ledger && Book().ledger == ledger && rebuilt(ledger) == ledger);
        request(book, u"rate GBP 1; post 4 6 1GBP; remove #8"_qs);
        QCOMPARE(fault(ledger), QString());
    }

    void refusedStepsChangeNothing()
    {
        for (const Row &row : rows("== replay")) {
            LedgerReplay replay;
            LedgerReplay untouched;
            begin(untouched, row.before);
            const QString refusal =
                refusalOf([&] { step(begin(replay, row.before), row.request); });
            QVERIFY2(refusal.contains(row.answer) && !refusal.isEmpty(), qPrintable(row.text));
            QVERIFY2(replay.finish() == untouched.finish(), qPrintable(row.text));
            QVERIFY(replay.finish().isEmpty());
        }
    }

    void equalitySeesEachMark()
    {
        std::vector<GeneralLedger> ledgers;
        for (const char *steps :
             {"", "opening 1 #1", "refund #3 #2", "account 5 equity openings", "account 5 equity",
              "close 2", "post #4 2 1 1", "post #4 2 1 1 cleared"}) {
            LedgerReplay replay;
            ledgers.push_back(begin(replay, QString::fromLatin1(steps)).finish());
        }
        for (std::size_t i = 0; i < ledgers.size(); ++i) {
            for (std::size_t j = 0; j < ledgers.size(); ++j)
                QCOMPARE(ledgers[i] == ledgers[j], i == j);
        }
    }

    void everySequenceOfRequestsKeepsTheLedgerTrue_data()
    {
        addRows<bool>({{"one currency", true}, {"two currencies", false}});
    }

    void everySequenceOfRequestsKeepsTheLedgerTrue()
    {
        const bool hasOneCurrency = rowOf<bool>();
        std::vector<int> accepted(kinds.size());
        std::vector<int> refused(kinds.size());
        const auto property = [&] {
            Book book;
            if (hasOneCurrency)
                request(book, u"remove #7; remove 9"_qs);
            std::vector<std::pair<GeneralLedger, Facts>> copies;
            const auto count = *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(1, 200));
            for (int step = 0; step < count; ++step) {
                // At full size from the start: a range that grows with the size would
                // hardly ever give the last kinds.
                const auto kind = *rc::gen::resize(
                    rc::kNominalSize,
                    rc::gen::inRange(std::size_t{0}, hasOneCurrency ? conversion : kinds.size()));
                const GeneralLedger before = book.ledger;
                const AccountNumber next = nextAccountNumber(book);
                ratesFromUsd["EUR"] = numira::FloatingPoint(*rc::gen::inRange(1, 25)) / 7;
                if (refusal(book, anyRequest(kind)).isEmpty()) {
                    ++accepted[kind];
                } else {
                    ++refused[kind];
                    RC_ASSERT(book.ledger == before);
                    RC_ASSERT(nextAccountNumber(book) == next);
                }
                if (step % 8 == 0)
                    copies.emplace_back(book.ledger, facts(book.ledger));
            }
            RC_ASSERT(fault(book.ledger).toStdString() == "");
            if (hasOneCurrency)
                RC_ASSERT(surplus(book.ledger) == usd("0"));
            const GeneralLedger again = rebuilt(book.ledger);
            RC_ASSERT(again == book.ledger);
            RC_ASSERT(facts(again) == facts(book.ledger));
            for (const auto &[copy, told] : copies)
                RC_ASSERT(facts(copy) == told);
        };
        QVERIFY(rc::check("balances, copies and replays agree", property));
        for (std::size_t kind = 0; kind < (hasOneCurrency ? conversion : kinds.size()); ++kind)
            QVERIFY2(accepted[kind] > 0 && refused[kind] > 0, kinds.at(kind));
    }
};

static const kiv::test::Suite<tst_Ledger> ledgerSuite;
#include "tst_ledger.moc"
