// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/navigation.h"

#include "navigation/internal/remove_item.h"

using namespace kiv;
using namespace kiv::test;
using budgeting::Bill;
using budgeting::Goal;
using budgeting::Nontrack;
using enum BankAccountTypes;

class RemoveItemTest : public QObject {
    Q_OBJECT

private slots:
    void anItemGoesWithItsAssociation_data() { addKindRows(); }
    void anItemGoesWithItsAssociation()
    {
        forKind([]<typename T>(std::type_identity<T>) {
            Books books;
            const State before = stateOf(books);
            const AccountNumber own = books.add<T>("Rent").number();
            books.bankLedgers.addAssociation(bank("Second"), own, GoalSubAccount);
            // The same name for another kind, and another account of this bank, stay.
            constexpr bool isBill = std::same_as<T, Bill>;
            using Other = std::conditional_t<isBill, Nontrack, Bill>;
            books.bankLedgers.addAssociation(bank("Second"), no(4), Loan);
            removeItem(id<T>("Rent"), books.items, books.bankLedgers,
                       surveys({survey(at("First", 1, Checking),
                                       {id<Other>("Rent"), id<T>("Rents"), id<T>("rent")})}));
            QVERIFY(!books.ledger.hasLedger(own));
            QCOMPARE(books.budget, before.budget);
            QCOMPARE(books.items.budgetAccountCodes(), before.codes);
            QCOMPARE(books.banks.bank(bank("Second")).accounts(),
                     (banking::Bank::Accounts{{no(4), Loan}}));
        });
    }

    void isRefused()
    {
        Books books;
        books.add<Bill>("Rent");
        const AccountNumber own = books.add<Goal>("Trip").number();
        books.spend(own);
        books.bankLedgers.addAssociation(bank("First"), own, GoalSubAccount);
        surveying::Distribution nothing{{id<Bill>("Rent"), {}}};
        surveying::CompletedSurvey second(at("Second", 4, Loan), numira::toCurrency("USD"));
        second.completed(day("2026-01-31"), usd("0"), nothing, usd("0"), {});
        const auto completed =
            surveys({survey(at("First", 1, Checking), {id<Goal>("Other")}), second});
        const auto removing = [&](const budgeting::BudgetItemIdentifier &item) {
            return [&, item] { removeItem(item, books.items, books.bankLedgers, completed); };
        };
        const QString none = presentationText(surveying::DistributedAmount());
        checkRefusals(
            books,
            {{removing(id<Bill>("Rent")), // even for a distribution of nothing
              "item Rent: There is " + none.toStdString() +
                  " distributed in the surveyed bank account Second 4 (loan). Empty the "
                  "distribution first before removing the budgeted item."},
             {removing(id<Goal>("Trip")), "item Trip: Cannot remove a goal that has a balance."},
             {removing(id<Nontrack>("Rent")),
              "item Rent: Cannot remove a nontrack that does not exist."},
             {removing({BudgetItemTypes::None, source("Rent")}),
              "logic: Invalid budget item ID type supplied for removal 0"},
             {removing({BudgetItemTypes(7), source("Rent")}),
              "logic: Invalid budget item ID type supplied for removal 7"}});
    }

    void anItemOfTwoBanksLeavesTheFirst()
    {
        Books books;
        const AccountNumber own = books.add<Goal>("Trip").number();
        books.bankLedgers.addAssociation(bank("Second"), own, GoalSubAccount);
        books.bankLedgers.addAssociation(bank("First"), own, GoalSubAccount);
        removeItem(id<Goal>("Trip"), books.items, books.bankLedgers, {});
        QCOMPARE(books.bankLedgers.lookUpBankName(own), bank("Second"));
    }
};

static const kiv::test::Suite<RemoveItemTest> suite;
#include "tst_remove_item.moc"
