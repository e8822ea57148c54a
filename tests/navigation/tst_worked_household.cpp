// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "survey_text.h"

#include "navigation/internal/map_survey.h"

using namespace kiv;
using namespace kiv::test;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using budgeting::Bill;
using budgeting::EventFrequency;
using budgeting::Goal;
using budgeting::Wage;
using enum BankAccountTypes;

namespace {

const BankAccount checking = at("First", 1, Checking);
const BankAccount card = at("First", 3, CreditCard);

/// The household that docs/domain.md works out by hand.
/// Accounts: 1 Checking, 2 the equity account of its opening, 3 Card, 4
/// Groceries, 5 Fees, 6 Rent, 7 Tax, 8 Salary, 9 Trip (under 1).
BudgetBankLedgers household()
{
    accounting::GeneralLedger ledger;
    accounting::SequentialAccountNumberGenerator generator;
    addAccount(ledger, generator, AccountTypes::Asset, {}, "Checking", {}, usd("3000"));
    addAccount(ledger, generator, AccountTypes::Liability, {}, "Card");
    addAccount(ledger, generator, AccountTypes::Expense, {}, "Groceries");
    addAccount(ledger, generator, AccountTypes::Expense, {}, "Fees");
    banking::BankMap banks;
    banks.add({bank("First"), {{no(1), Checking}, {no(3), CreditCard}}, false});
    BudgetBankLedgers books(std::move(ledger), {}, {}, std::move(banks), generator.clone());

    books.add(item<Bill>("Rent", usd("900"), EventFrequency::Monthly, day("2026-03-28")));
    books.add(item<Bill>("Tax", usd("600"), EventFrequency::Yearly, day("2026-06-30")));
    books.add(item<Wage>("Salary", usd("2500"), EventFrequency::Monthly, day("2026-04-02")));
    books.add(
        item<Goal>("Trip", usd("100"), EventFrequency::Monthly, day("2026-04-10"), usd("1200")),
        checking);

    struct Posting {
        const char *date;
        std::uint32_t debit;
        std::uint32_t credit;
        const char *amount;
    };
    for (const Posting &one : std::initializer_list<Posting>{
             {"2026-01-02", 1, 8, "2500"}, // number 2; 1 is the opening of Checking
             {"2026-01-10", 9, 1, "100"},
             {"2026-01-28", 6, 1, "900"},
             {"2026-02-02", 1, 8, "2500"}, // 5
             {"2026-02-10", 9, 1, "100"},
             {"2026-02-15", 4, 3, "180"},
             {"2026-02-28", 6, 1, "900"},
             {"2026-03-02", 1, 8, "2500"},
             {"2026-03-05", 3, 1, "180"}, // 10
             {"2026-03-10", 9, 1, "100"},
             {"2026-03-12", 4, 3, "60"},
             {"2026-03-20", 4, 1, "75"}}) {
        books.post(transfer(no(one.debit), no(one.credit), usd(one.amount), day(one.date)));
    }
    return books;
}

surveying::MappingSurvey surveyOf(const BudgetBankLedgers &books, const BankAccount &account,
                                  const char *date)
{
    return generateMapSurvey(account, day(date), books.banks(), books.surveys(),
                             books.budgetLedgers(), day(date));
}

/// Checking's statement of 2026-03-25.
surveying::CompletedSurvey complete(BudgetBankLedgers &books, const char *balance)
{
    std::set<TransactionNumber> ticked;
    for (const int number : {1, 2, 3, 4, 5, 6, 8, 9, 10, 11})
        ticked.insert(txn(static_cast<std::uint16_t>(number)));
    const surveying::Distribution aside = surveyOf(books, checking, "2026-03-25").distributions();
    return books.completedSurvey(
        day("2026-03-25"), checking, usd(balance), ticked, {{{id<Wage>("Salary"), usd("40")}}, {}},
        {{}, {{no(5), usd("2.50")}}}, aside, usd("8107.50"), foundation::Percentage(2.75, 6));
}

} // namespace

class WorkedHouseholdTest : public QObject {
    Q_OBJECT

private slots:
    void isProposed()
    {
        const BudgetBankLedgers books = household();
        const auto own = surveyOf(books, checking, "2026-03-25");
        QCOMPARE(own.startOn(), day("2025-12-31"));
        QCOMPARE(told(own), u"8445.00; Rent -4 -8, Trip -3 -6 -11, Salary +2 +5 +9; Opening "
                            u"Balances USD [Equity] +1, Card -10, Groceries -13; Tax 150.00, "
                            u"Trip 300.00");
        QCOMPARE(own.distributions().at(id<Bill>("Tax")).expected(), usd("600"));
        QCOMPARE(own.distributions().at(id<Goal>("Trip")).expected(), usd("1200"));
        QCOMPARE(own.amountDue(), std::optional(usd("900")));

        const auto owed = surveyOf(books, card, "2026-03-25");
        QCOMPARE(owed.startOn(), day("2026-02-01"));
        QCOMPARE(told(owed), u"60.00; ; Checking -10, Groceries +7 +12; ");
        QCOMPARE(owed.amountDue(), std::optional<numira::Money>());
    }

    void isCompleted()
    {
        BudgetBankLedgers books = household();
        const auto completed = complete(books, "8557.50");
        QCOMPARE(completed.reconciled().balance(), usd("8557.50"));
        QCOMPARE(books.generalLedger().ledger(no(1)).balance(), usd("8182.50"));

        const auto posted = [&](std::uint16_t number) {
            const auto one = *books.generalLedger().lookUpTransaction(txn(number));
            return QStringLiteral("%1 %2 %3 %4")
                .arg(presentationText(one.debiting().number()),
                     presentationText(one.crediting().number()), dump(one.amount()),
                     one.description().value_or(QString()));
        };
        QCOMPARE(books.generalLedger().transactionCount(), 15U);
        QCOMPARE(posted(14), u"1 8 40.00 USD Additional surveyed income.");
        QCOMPARE(posted(15), u"5 1 2.50 USD Extra-budget surveyed expense.");

        QStringList open;
        for (const auto &one : books.generalLedger().transactions()) {
            const auto told = [](TransactionStatuses status) {
                return status == TransactionStatuses::Reconciled ? u"*"_qs : u"-"_qs;
            };
            if (one.status() != TransactionStatuses::Reconciled)
                open.append(presentationText(*one.number()) + told(one.debitStatus()) +
                            told(one.creditStatus()));
        }
        // The card's side of its payment waits for the card's own statement.
        QCOMPARE(open.join(u' '), u"7-- 10-* 12-- 13--");
    }

    void goesOnFromThere()
    {
        BudgetBankLedgers books = household();
        complete(books, "8557.50");
        const auto next = surveyOf(books, checking, "2026-04-25");
        QCOMPARE(next.startOn(), day("2026-03-25"));
        QCOMPARE(told(next), u"8482.50; ; Groceries -13; Tax 200.00, Trip 300.00");
        QCOMPARE(next.amountDue(), std::optional(usd("1000")));
    }
};

static const kiv::test::Suite<WorkedHouseholdTest> suite;
#include "tst_worked_household.moc"
