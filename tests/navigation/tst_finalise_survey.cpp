// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "survey_text.h"

#include "navigation/internal/finalise_survey.h"

using namespace accounting;
using surveying::CompletedSurvey;

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

/// "1 from 5: 7.00 USD, why" for each transaction.
QStringList posted(const accounting::GeneralLedger &ledger)
{
    QStringList all;
    for (const auto &transaction : ledger.transactions()) {
        all.append(QStringLiteral("%1 from %2: %3, %4")
                       .arg(presentationText(transaction.debiting().number()),
                            presentationText(transaction.crediting().number()),
                            dump(transaction.amount()),
                            transaction.description().value_or(QString())));
    }
    return all;
}

/// What is stated, and the answer to it.
using Check = std::pair<std::function<void(StatedBooks &, Statement &)>, QString>;

/// The accounts of a transaction, and whether both its sides are reconciled.
using Sides = std::tuple<std::uint32_t, std::uint32_t, bool>;

} // namespace

class FinaliseSurveyTest : public QObject {
    Q_OBJECT

private slots:
    void checksBeforeItChanges_data()
    {
        QTest::addColumn<Check>("row");
        const auto row = [](const char *name, const QString &answer, const auto &prepare) {
            QTest::newRow(name) << Check(prepare, answer);
        };
        const QString accepted = u"accepted"_qs;
        const QString refused = u"survey First 1 (checking): "_qs;
        row("ticked in another account",
            refused + u"The transaction 1 is not in the bank account ledger nor one of its "
                      "children."_qs,
            [](auto &books, auto &statement) { statement.ticked = {books.post(5, 10)}; });
        row("ticked after the day",
            refused + u"The posting date for transaction 1 is 2026-04-01 which is after the "
                      "survey date, 2026-03-31."_qs,
            [](auto &books, auto &statement) {
                statement.ticked = {books.post(5, 2, "7", "2026-04-01")};
            });
        row("no such account", u"account : There is no account with the number 0."_qs,
            [](auto &, auto &statement) { statement.account.account.number = {}; });
        for (const bool isTicked : {false, true}) {
            row(isTicked ? "ticked, of no type" : "of no type",
                u"survey First 1 (unknown): The surveying bank account is neither an asset nor a "
                "liability!"_qs,
                [=](auto &books, auto &statement) {
                    statement.account.account.type = Unknown;
                    statement.itemIncreases = {{id<Bill>("Rent"), usd("1")}};
                    if (isTicked)
                        statement.ticked = {books.post(5, 1)};
                });
        }
        const auto total = [&](const QByteArray &amount, bool isPaid, const char *balance) {
            row((isPaid ? "-" : "") + amount + " for " + balance,
                amount == "0.99" ? accepted
                                 : refused + u"The calculated budget item transaction total, '%1', "
                                             "must be within 2.75 % of the reconciled current "
                                             "balance, '$%2.00'."_qs.arg(
                                                 QLatin1String((isPaid ? "-$" : "$") + amount),
                                                 QLatin1String(balance)),
                [=](auto &books, auto &statement) {
                    statement.balance = usd(balance);
                    statement.ticked = {isPaid ? books.post(5, 1, amount)
                                               : books.post(1, 5, amount)};
                });
        };
        for (const char *amount : {"0.99", "1.00"}) {
            total(amount, false, "0");
            total(amount, true, "0");
        }
        total("102.76", false, "100");
        row("any total of a liability", accepted, [](auto &books, auto &statement) {
            statement.account = at("First", 3, CreditCard);
            statement.ticked = {books.post(5, 3)};
            statement.balance = usd("5000");
        });
        row("distribution to a monthly bill",
            refused + u"The budget item Rent (bill) cannot be distributed."_qs,
            [](auto &, auto &statement) {
                statement.distribution = {{id<Bill>("Rent"), {}}, {id<Goal>("Trip"), {}}};
            });
        row("distribution to a bill to save for", accepted, [](auto &, auto &statement) {
            statement.distribution = {{id<Bill>("Tax"), {usd("3"), {}, usd("120")}}};
        });
        row("distribution to an unknown item", u"out of range"_qs, [](auto &, auto &statement) {
            statement.distribution = {{id<Bill>("Flat"), {}}};
        });
        for (const bool isMore : {false, true}) {
            row(isMore ? "more than is in the goal" : "what is in the goal",
                isMore ? refused + u"Cannot manually distribute into the goal 'Trip'."_qs
                       : accepted,
                [=](auto &books, auto &statement) {
                    books.post(9, 1);
                    statement.distribution = {
                        {id<Goal>("Trip"), {usd(isMore ? "7.01" : "7.00"), {}, usd("100")}}};
                });
        }
        row("distribution to a goal without account", accepted, [](auto &books, auto &statement) {
            books.items.clearCodes();
            statement.distribution = {{id<Goal>("Trip"), {usd("3"), {}, usd("100")}}};
        });
    }
    void checksBeforeItChanges()
    {
        const auto [prepare, expected] = rowOf<Check>();
        StatedBooks books;
        Statement statement;
        prepare(books, statement);
        const auto complete = [&] { books.complete(statement); };
        QCOMPARE(expected == u"accepted" ? answer(complete) : refusal(books, complete), expected);
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

    void whatIsMissingIsPosted_data()
    {
        addRows<std::pair<BankAccount, QStringList>>(
            {{"asset",
              {at("First", 1, Checking),
               {u"1 from 6: 10.02 USD, Additional surveyed income."_qs,
                u"7 from 1: 20.00 USD, Additional surveyed expense."_qs,
                u"1 from 4: 30.00 USD, Extra-budget surveyed income."_qs,
                u"5 from 1: 40.00 USD, Extra-budget surveyed expense."_qs}}},
             {"liability",
              {at("First", 3, CreditCard),
               {u"6 from 3: 10.02 USD, Additional surveyed charges."_qs,
                u"3 from 7: 20.00 USD, Additional surveyed payments."_qs,
                u"4 from 3: 30.00 USD, Extra-budget surveyed charges."_qs,
                u"3 from 5: 40.00 USD, Extra-budget surveyed payments."_qs}}}});
    }
    void whatIsMissingIsPosted()
    {
        const auto [account, expected] = rowOf<std::pair<BankAccount, QStringList>>();
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
        QCOMPARE(posted(books.ledger), expected);
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
        addRows<Sides>({{"to an account of no bank", {5, 1, true}},
                        {"to an account under it", {2, 1, true}},
                        {"to another bank's account", {10, 1, false}},
                        {"from another bank's account", {1, 10, false}},
                        {"to the card of the same bank", {3, 1, false}},
                        {"to an account under another bank's", {11, 1, true}},
                        {"under it, to another bank's account", {10, 2, false}},
                        {"under it, to an account of no bank", {5, 2, true}},
                        {"between two under it", {9, 2, true}}});
    }
    void sidesAreReconciledWholeOrAlone()
    {
        const auto [debit, credit, isWhole] = rowOf<Sides>();
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

static const kiv::test::Suite<FinaliseSurveyTest> finaliseSurveySuite;
#include "tst_finalise_survey.moc"
