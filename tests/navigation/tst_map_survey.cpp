// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/internal/map_survey.h"

#include "navigation/internal/surveyed_changes.h"

#include "navigation/survey_text.h"

using accounting::Transaction;
using surveying::MappingSurvey;

namespace {

struct MappedBooks : SurveyBooks {
    QDate today = day("2026-03-31");

    [[nodiscard]] MappingSurvey surveyOf(const BankAccount &account,
                                         const char *date = "2026-03-31") const
    {
        return generateMapSurvey(account, day(date), banks, completed, items, today);
    }
    [[nodiscard]] MappingSurvey checking(const char *date = "2026-03-31") const
    {
        return surveyOf(at("First", 1, Checking), date);
    }
};

/// The account that is surveyed, those of a transaction, and what the survey tells.
using Posting = std::tuple<int, std::uint32_t, std::uint32_t, const char *>;

} // namespace

class MapSurveyTest : public QObject {
    Q_OBJECT

private slots:
    void changesCountFromTheLastReconciliation()
    {
        MappedBooks books;
        QCOMPARE(books.checking("2026-03-31").startOn(), day("2026-02-01"));
        QCOMPARE(books.checking("2026-01-01").startOn(), day("2025-12-01"));
        QCOMPARE(
            books.checking().reconciled(),
            banking::ReconciledBankAccount(at("First", 1, Checking), numira::toCurrency("USD")));
        books.ledger.add({AccountTypes::Asset, code(20, "Purse"), usd("5"), false},
                         *books.generator, day("2026-03-10"));
        books.banks.add(bank("First"), no(20), Cash);
        QCOMPARE(books.surveyOf(at("First", 20, Cash)).startOn(), day("2026-03-09"));
        books.completed.upsert(survey(at("First", 1, Checking)));
        QCOMPARE(books.checking().startOn(), day("2026-01-31"));
        QCOMPARE(books.checking().expectedBalance(), usd("100"));
    }

    void postingsAreSorted_data()
    {
        // A month passed: 10 were put aside for the tax. Nothing lies in the goal's account.
        addRows<Posting>(
            {{"paid", {1, 5, 1, "-7.00; ; Food -1; Tax 10.00, Trip 0.00"}},
             {"received", {1, 1, 5, "7.00; ; Food +1; Tax 10.00, Trip 0.00"}},
             {"paid for a monthly bill", {1, 6, 1, "-7.00; Rent -1; ; Tax 10.00, Trip 0.00"}},
             {"wage", {1, 1, 8, "7.00; Work +1; ; Tax 10.00, Trip 0.00"}},
             {"paid, saved for", {1, 7, 1, "-7.00; Tax -1; ; Tax 17.00, Trip 0.00"}},
             {"received back, saved for", {1, 1, 7, "7.00; Tax +1; ; Tax 3.00, Trip 0.00"}},
             {"to an account below", {1, 2, 1, "0.00; ; Savings -1 +1; Tax 10.00, Trip 0.00"}},
             {"from an account below", {1, 1, 2, "0.00; ; Savings -1 +1; Tax 10.00, Trip 0.00"}},
             {"into a goal below", {1, 9, 1, "0.00; Trip -1; ; Tax 10.00, Trip 7.00"}},
             {"paid from below", {1, 5, 2, "-7.00; ; Food -1; Tax 10.00, Trip 0.00"}},
             {"paid from a goal below, saved for",
              {1, 7, 9, "-7.00; Tax -1; ; Tax 17.00, Trip -7.00"}},
             {"between two below", {1, 9, 2, "0.00; Trip -1; Savings +1; Tax 10.00, Trip 7.00"}},
             {"charged to a card", {3, 5, 3, "7.00; ; Food +1; "}},
             {"bill charged to a card", {3, 7, 3, "7.00; Tax +1; ; "}},
             {"card paid off", {3, 3, 1, "-7.00; ; Checking -1; "}},
             {"charged below a card", {3, 5, 4, "7.00; ; Food +1; "}}});
    }
    void postingsAreSorted()
    {
        const auto [surveyed, debit, credit, expected] = rowOf<Posting>();
        MappedBooks books;
        books.putBelow(4, "Loan", 3);
        books.post(debit, credit);
        const State before = stateOf(books);
        const MappingSurvey survey =
            surveyed == 3 ? books.surveyOf(at("First", 3, CreditCard)) : books.checking();
        QCOMPARE(told(survey), QLatin1String(expected));
        QCOMPARE(survey.budgetItemChanges().size(), 4u);
        QCOMPARE(survey.amountDue().has_value(), surveyed == 1);
        QCOMPARE(stateOf(books), before);
    }

    void onlyWhatIsOpenOnTheDayCounts()
    {
        const auto told = [](auto &&change) {
            MappedBooks books;
            change(books);
            return test::told(books.checking());
        };
        const QString nothing = QStringLiteral("0.00; ; ; Tax 10.00, Trip 0.00");
        const QString paid = QStringLiteral("-7.00; ; Food -1; Tax 10.00, Trip 0.00");
        QCOMPARE(told([](auto &b) { b.post(5, 1, "7", "2026-03-31"); }), paid);
        QCOMPARE(told([](auto &b) { b.post(5, 1, "7", "2026-04-01"); }), nothing);
        QCOMPARE(told([](auto &b) { b.ledger.reconcile(b.post(5, 1), no(1)); }), nothing);
        QCOMPARE(told([](auto &b) { b.ledger.reconcile(b.post(5, 1), no(5)); }), paid);
        // What the last survey set aside goes on, but not what another account's did.
        QCOMPARE(told([](auto &b) {
                     b.completed.upsert(survey(at("First", 1, Checking), {id<Bill>("Tax")}));
                 }),
                 u"100.00; ; ; Tax 25.00, Trip 0.00");
        QCOMPARE(told([](auto &b) {
                     b.completed.upsert(survey(at("First", 1, Savings), {id<Bill>("Tax")}));
                 }),
                 u"100.00; ; ; Trip 0.00");
        QCOMPARE(told([](auto &b) { b.putBelow(9, "Trip [Budget Item]", 2); }),
                 u"0.00; ; ; Tax 10.00");
    }

    void whatTheLedgerNeverGives()
    {
        MappedBooks books;
        books.items.add(item<Goal>("Rome"), *books.generator); // 10
        const SurveyedAccounts accounts{at("First", 1, Checking), {no(2), no(9)}};
        const SurveyedAccounts card{at("First", 3, CreditCard), {}};
        const auto numbered = [](std::uint32_t debit, std::uint32_t credit) {
            return transfer(no(debit), no(credit), usd("7")).withNumber(txn(3));
        };
        const auto itemName = [](const auto &id) { return id.source.name(); };

        // Money that leaves one goal's account for another moves on both goals.
        SurveyedChanges changes(accounts, books.items, usd("0"));
        changes.add(numbered(10, 9), no(9));
        QCOMPARE(changes.distribution[id<Goal>("Rome")].distributed(), usd("7"));
        QCOMPARE(changes.distribution[id<Goal>("Trip")].distributed(), usd("-7"));
        changes.add(numbered(9, 10), no(9));
        QCOMPARE(changes.distribution[id<Goal>("Rome")].distributed(), usd("0"));
        QCOMPARE(changes.distribution[id<Goal>("Trip")].distributed(), usd("0"));

        // A transaction that is in neither account lowers the balance.
        SurveyedChanges strange(accounts, books.items, usd("0"));
        strange.add(numbered(6, 5), no(2));
        QCOMPARE(strange.expectedBalance(), usd("-7"));
        QCOMPARE(told(strange.budgetItemChanges, itemName), u"Rent -3");
        QCOMPARE(answer([&] { strange.add(numbered(5, 6), no(2)); }),
                 u"survey First 1 (checking): Failed to determine the bank account involved in the "
                 u"additional transaction 3.");
        SurveyedChanges strangeCard(card, books.items, usd("0"));
        strangeCard.add(numbered(5, 6), no(3));
        QCOMPARE(strangeCard.expectedBalance(), usd("-7"));
        QCOMPARE(told(strangeCard.budgetItemChanges, itemName), u"Rent -3");
    }

    void amountsCountInTheCurrencyOfTheirAccount()
    {
        installRates();
        MappedBooks books;
        books.items.update(item<Bill>("Tax", money("EUR", "120"), EventFrequency::Yearly),
                           *books.generator);
        books.ledger.post(transfer(no(7), no(1), money("EUR", "5"), day("2026-03-15")));
        numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::Yes);
        QCOMPARE(books.checking().expectedBalance(), usd("-10"));
        QCOMPARE(books.checking().distributions().at(id<Bill>("Tax")).distributed(),
                 money("EUR", "15"));
    }

    void anItemIsExpectedForEveryOccurrence_data()
    {
        addRows<std::pair<const char *, const char *>>(
            {{"a part of one", {"2026-09-30", "120"}},
             {"on the day", {"2026-03-30", "120"}},
             {"one", {"2027-03-30", "120"}},
             {"one and a half", {"2027-09-30", "180"}},
             {"one and a half missed", {"2024-09-30", "180"}}});
    }
    void anItemIsExpectedForEveryOccurrence()
    {
        const auto [next, expected] = rowOf<std::pair<const char *, const char *>>();
        MappedBooks books;
        books.items.update(item<Bill>("Tax", usd("120"), EventFrequency::Yearly, day(next)),
                           *books.generator);
        // Of a goal it is the target that is expected.
        books.items.update(
            item<Goal>("Trip", usd("9"), EventFrequency::Yearly, day(next), usd("120")),
            *books.generator);
        const surveying::Distribution proposed = books.checking("2026-03-30").distributions();
        for (const auto &item : {id<Bill>("Tax"), id<Goal>("Trip")}) {
            QCOMPARE(proposed.at(item).nextOccurOn(), day(next));
            QCOMPARE(proposed.at(item).expected(), usd(expected));
        }
    }

    void monthsAddUpSinceTheLastReconciliation()
    {
        MappedBooks books;
        books.completed.upsert(survey(at("First", 1, Checking), {id<Bill>("Tax")}));
        const auto aside = [&](const char *date) {
            books.today = day(date);
            return books.checking(date).distributions().at(id<Bill>("Tax")).distributed();
        };
        QCOMPARE(aside("2025-12-31"), usd("5"));
        QCOMPARE(aside("2026-01-31"), usd("5"));
        QCOMPARE(aside("2026-02-01"), usd("15"));
        QCOMPARE(aside("2026-04-30"), usd("35"));
    }

    void whatIsDueEachMonthIsSummedUp()
    {
        MappedBooks books;
        const auto due = [&](const char *date, const char *today) {
            books.today = day(today);
            return books.checking(date).amountDue();
        };
        const auto add = [&](auto item) { books.items.add(std::move(item), *books.generator); };
        add(item<Debt>("Car", usd("2"), EventFrequency::Monthly, day("2026-02-27")));
        add(item<Nontrack>("Fun", usd("4"), EventFrequency::Monthly, day("2026-03-01")));
        add(item<Nontrack>("Food2", usd("400"), EventFrequency::Weekly, day("2026-02-20")));
        // The bill Rent and the goal Trip are due since January, the wage does not count.
        QCOMPARE(due("2026-02-20", "2026-02-20"), usd("22"));
        QCOMPARE(due("2026-02-20", "2026-02-21"), usd("26")); // the days count from today
        QCOMPARE(due("2026-02-28", "2026-02-28"), usd("22"));
        QCOMPARE(due("2026-01-30", "2026-01-30"), usd("20"));
        QCOMPARE(due("2025-12-31", "2025-12-31"), usd("0"));
    }
};

static const kiv::test::Suite<MapSurveyTest> mapSurveySuite;
#include "tst_map_survey.moc"
