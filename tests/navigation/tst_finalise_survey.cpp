// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "survey_text.h"

#include "navigation/internal/finalise_survey.h"

using namespace kiv;
using namespace kiv::test;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using budgeting::Bill;
using budgeting::EventFrequency;
using budgeting::Goal;
using budgeting::Wage;
using surveying::CompletedSurvey;
using enum BankAccountTypes;

namespace {

/// What a household says of a statement: of Checking at First on 2026-03-31,
/// unless a test says otherwise.
struct Statement {
    BankAccount account = at("First", 1, Checking);
    numira::Money balance = usd("0");
    std::set<TransactionNumber> ticked;
    std::map<budgeting::BudgetItemIdentifier, numira::Money> itemIncreases;
    std::map<budgeting::BudgetItemIdentifier, numira::Money> itemDecreases;
    std::map<AccountNumber, numira::Money> increases;
    std::map<AccountNumber, numira::Money> decreases;
    surveying::Distribution distribution;
};

/// Second has the account 10 Purse, and 11 Jar under it.
struct StatedBooks : SurveyBooks {
    StatedBooks()
    {
        addAccount(ledger, *generator, AccountTypes::Asset, {}, "Purse");
        addAccount(ledger, *generator, AccountTypes::Asset, {}, "Jar", no(10));
        banks.add(bank("Second"), no(10), Cash);
        banks.add(bank("Second"), no(11), GoalSubAccount);
    }
    CompletedSurvey complete(const Statement &of)
    {
        return finaliseSurvey(day("2026-03-31"), of.account, of.balance, of.ticked,
                              {of.itemIncreases, of.itemDecreases}, {of.increases, of.decreases},
                              of.distribution, usd("1"), foundation::Percentage(2.75, 6), items,
                              bankLedgers, completed, ledger);
    }
};

State stateOf(const StatedBooks &books)
{
    State state = stateOf(static_cast<const Books &>(books));
    state.surveys = books.completed;
    return state;
}

/// "1 from 5: 7.00 USD, why" for each transaction after the first `count`.
QStringList postedAfter(const accounting::GeneralLedger &ledger, std::size_t count)
{
    QStringList all;
    for (const auto &transaction : ledger.transactions()) {
        if (count > 0) {
            --count;
            continue;
        }
        all.append(QStringLiteral("%1 from %2: %3, %4")
                       .arg(presentationText(transaction.debiting().number()),
                            presentationText(transaction.crediting().number()),
                            dump(transaction.amount()),
                            transaction.description().value_or(QString())));
    }
    return all;
}

using Prepare = std::function<void(StatedBooks &, Statement &)>;

} // namespace

Q_DECLARE_METATYPE(Prepare)

class FinaliseSurveyTest : public QObject {
    Q_OBJECT

private slots:
    void checksBeforeItChanges_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Prepare prepare, const char *expected) {
            QTest::newRow(name) << prepare << QString::fromUtf8(expected);
        };
        const auto missing = [&](const char *calculated, const char *balance, bool isAccepted) {
            const QByteArray name = QByteArray(calculated) + " for " + balance;
            const QString sign = QString::fromLatin1(*calculated == '-' ? "-$" : "$");
            QTest::newRow(name.constData())
                << Prepare([=](auto &books, auto &statement) {
                       statement.balance = usd(balance);
                       const bool isPaid = *calculated == '-';
                       statement.ticked = {isPaid ? books.post(5, 1, calculated + 1)
                                                  : books.post(1, 5, calculated)};
                   })
                << (isAccepted
                        ? QStringLiteral("accepted")
                        : QStringLiteral("survey First 1 (checking): The calculated budget item "
                                         "transaction total, '%1%2', must be within 2.75 % of the "
                                         "reconciled current balance, '$%3.00'.")
                              .arg(sign, QString::fromLatin1(calculated).remove(u'-'),
                                   QString::fromLatin1(balance)));
        };
        row(
            "ticked in another account",
            [](auto &books, auto &statement) { statement.ticked = {books.post(5, 10)}; },
            "survey First 1 (checking): The transaction 1 is not in the bank account ledger nor "
            "one "
            "of its children.");
        row(
            "ticked after the day",
            [](auto &books, auto &statement) {
                statement.ticked = {books.post(5, 2, "7", "2026-04-01")};
            },
            "survey First 1 (checking): The posting date for transaction 1 is 2026-04-01 which is "
            "after the survey date, 2026-03-31.");
        row(
            "no such account",
            [](auto &, auto &statement) { statement.account.account.number = {}; },
            "account : There is no account with the number 0.");
        for (const bool isTicked : {false, true}) {
            row(
                isTicked ? "ticked, of no type" : "of no type",
                [=](auto &books, auto &statement) {
                    statement.account.account.type = Unknown;
                    statement.itemIncreases = {{id<Bill>("Rent"), usd("1")}};
                    if (isTicked)
                        statement.ticked = {books.post(5, 1)};
                },
                "survey First 1 (unknown): The surveying bank account is neither an asset nor a "
                "liability!");
        }
        for (const char *calculated : {"0.99", "-0.99", "1.00", "-1.00"})
            missing(calculated, "0", calculated[1] != '1' && calculated[0] != '1');
        missing("102.76", "100", false);
        row(
            "any total of a liability",
            [](auto &books, auto &statement) {
                statement.account = at("First", 3, CreditCard);
                statement.ticked = {books.post(5, 3)};
                statement.balance = usd("5000");
            },
            "accepted");
        row(
            "distribution to a monthly bill",
            [](auto &, auto &statement) {
                statement.distribution = {{id<Bill>("Rent"), {}}, {id<Goal>("Trip"), {}}};
            },
            "survey First 1 (checking): The budget item Rent (bill) cannot be distributed.");
        row(
            "distribution to a bill to save for",
            [](auto &, auto &statement) {
                statement.distribution = {{id<Bill>("Tax"), {usd("3"), {}, usd("120")}}};
            },
            "accepted");
        row(
            "distribution to an unknown item",
            [](auto &, auto &statement) {
                statement.distribution = {{id<Bill>("Flat"), {}}};
            },
            "out of range");
        for (const char *inGoal : {"7.00", "7.01"}) {
            row(
                inGoal,
                [=](auto &books, auto &statement) {
                    books.post(9, 1);
                    statement.distribution = {{id<Goal>("Trip"), {usd(inGoal), {}, usd("100")}}};
                },
                QByteArray(inGoal) == "7.00" ? "accepted"
                                             : "survey First 1 (checking): Cannot manually "
                                               "distribute into the goal 'Trip'.");
        }
        row(
            "distribution to a goal without account",
            [](auto &books, auto &statement) {
                books.items.clearCodes();
                statement.distribution = {{id<Goal>("Trip"), {usd("3"), {}, usd("100")}}};
            },
            "accepted");
    }
    void checksBeforeItChanges()
    {
        QFETCH(Prepare, prepare);
        QFETCH(QString, expected);
        StatedBooks books;
        Statement statement;
        prepare(books, statement);
        if (expected == u"accepted")
            QCOMPARE(answer([&] { books.complete(statement); }), expected);
        else
            QCOMPARE(refusal(books, [&] { books.complete(statement); }), expected);
    }

    void theBalanceCountsWhatMovesIt()
    {
        StatedBooks books;
        books.completed.upsert(survey(at("First", 1, Checking))); // 100
        books.completed.upsert(survey(at("First", 1, Savings)));  // not of this type
        Statement statement;
        statement.ticked = {books.post(1, 5, "10"), books.post(5, 2, "3"),  // 107
                            books.post(2, 1, "50"), books.post(9, 2, "20"), // stay within
                            books.post(10, 9, "2")};                        // 105
        statement.itemIncreases = {{id<Wage>("Work"), usd("1000")}};
        statement.itemDecreases = {{id<Bill>("Rent"), usd("200")}};
        statement.increases = {{no(5), usd("30")}};
        statement.decreases = {{no(4), usd("4")}}; // 931
        statement.balance = usd("5000");
        QVERIFY(refusal(books, [&] { books.complete(statement); }).contains(u"total, '$931.00', "));
        statement.balance = usd("931");
        QCOMPARE(answer([&] { books.complete(statement); }), u"accepted");
    }

    // ---- posting ---------------------------------------------------------------

    void whatIsMissingIsPosted_data()
    {
        QTest::addColumn<BankAccount>("account");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("asset") << at("First", 1, Checking)
                               << QStringList{
                                      u"1 from 6: 10.02 USD, Additional surveyed income."_qs,
                                      u"7 from 1: 20.00 USD, Additional surveyed expense."_qs,
                                      u"1 from 4: 30.00 USD, Extra-budget surveyed income."_qs,
                                      u"5 from 1: 40.00 USD, Extra-budget surveyed "
                                      u"expense."_qs};
        QTest::newRow("liability")
            << at("First", 3, CreditCard)
            << QStringList{u"6 from 3: 10.02 USD, Additional surveyed charges."_qs,
                           u"3 from 7: 20.00 USD, Additional surveyed payments."_qs,
                           u"4 from 3: 30.00 USD, Extra-budget surveyed charges."_qs,
                           u"3 from 5: 40.00 USD, Extra-budget surveyed payments."_qs};
    }
    void whatIsMissingIsPosted()
    {
        QFETCH(BankAccount, account);
        StatedBooks books;
        Statement statement;
        statement.account = account;
        statement.balance = usd("-20");
        // What rounds to nothing is not posted, and needs no account either.
        statement.itemIncreases = {{id<Bill>("Rent"), usd("10.015")},
                                   {id<Bill>("Flat"), usd("0.005")}};
        statement.itemDecreases = {{id<Bill>("Tax"), usd("20")}, {id<Goal>("Trip"), usd("0")}};
        statement.increases = {{no(4), usd("30")}};
        statement.decreases = {{no(5), usd("40")}, {no(77), usd("0")}};
        books.complete(statement);
        QTEST(postedAfter(books.ledger, 0), "expected");
        for (const auto &transaction : books.ledger.transactions()) {
            QCOMPARE(transaction.status(), TransactionStatuses::Reconciled);
            QCOMPARE(transaction.occurredOn(), day("2026-03-31"));
        }
    }

    void whatWasPostedBeforeAFailureStays()
    {
        StatedBooks books;
        const std::set ticked{books.post(5, 1, "10")};
        State expected = stateOf(books);
        expected.ledger.post({day("2026-03-31"), no(1), no(8), usd("10"),
                              QStringLiteral("Additional surveyed income.")});
        books.budget.wages.rename(source("Work"), source("Job")); // its account does not follow
        expected.budget.wages.rename(source("Work"), source("Job"));
        Statement statement;
        statement.ticked = ticked;
        statement.itemIncreases = {{id<Wage>("Work"), usd("10")}, {id<Wage>("job"), usd("0.50")}};
        QCOMPARE(answer([&] { books.complete(statement); }),
                 u"survey First 1 (checking): The budget item 'job (wage)' has no account code "
                 u"associated with it.");
        QCOMPARE(stateOf(books), expected);
    }

    // ---- recording and reconciling ---------------------------------------------

    void theSurveyIsRecorded()
    {
        StatedBooks books;
        books.completed.upsert(survey(at("First", 1, Checking), {id<Goal>("Old")}));
        books.completed.upsert(survey(at("First", 1, Savings)));
        Statement statement;
        statement.balance = usd("100");
        statement.distribution = {{id<Bill>("Tax"), {usd("3"), day("2026-04-30"), usd("120")}}};
        const CompletedSurvey completed = books.complete(statement);
        CompletedSurvey expected(at("First", 1, Checking), numira::toCurrency("USD"));
        expected.completed(day("2026-03-31"), usd("100"), statement.distribution, usd("1"),
                           foundation::Percentage(2.75, 6));
        QCOMPARE(completed, expected);
        QCOMPARE(books.completed, surveys({expected, survey(at("First", 1, Savings))}));
    }

    void sidesAreReconciledWholeOrAlone_data()
    {
        QTest::addColumn<std::uint32_t>("debit");
        QTest::addColumn<std::uint32_t>("credit");
        QTest::addColumn<bool>("isWhole");
        const auto row = [](const char *name, std::uint32_t debit, std::uint32_t credit,
                            bool isWhole) { QTest::newRow(name) << debit << credit << isWhole; };
        row("to an account of no bank", 5, 1, true);
        row("to an account under it", 2, 1, true);
        row("to another bank's account", 10, 1, false);
        row("from another bank's account", 1, 10, false);
        row("to the card of the same bank", 3, 1, false);
        row("to an account under another bank's", 11, 1, true);
        row("under it, to another bank's account", 10, 2, false);
        row("under it, to an account of no bank", 5, 2, true);
        row("between two under it", 9, 2, true);
    }
    void sidesAreReconciledWholeOrAlone()
    {
        QFETCH(std::uint32_t, debit);
        QFETCH(std::uint32_t, credit);
        QFETCH(bool, isWhole);
        StatedBooks books;
        Statement statement;
        statement.ticked = {books.post(debit, credit, "0.50")};
        books.complete(statement);
        const auto transaction = *books.ledger.lookUpTransaction(*statement.ticked.begin());
        const auto statusOf = [&](std::uint32_t account) {
            return transaction.seenFrom(no(account)).status();
        };
        const bool isOwnDebited = debit == 1;
        QCOMPARE(statusOf(isOwnDebited ? debit : credit), TransactionStatuses::Reconciled);
        QCOMPARE(statusOf(isOwnDebited ? credit : debit),
                 isWhole ? TransactionStatuses::Reconciled : TransactionStatuses::None);
    }
};

static const kiv::test::Suite<FinaliseSurveyTest> suite;
#include "tst_finalise_survey.moc"
