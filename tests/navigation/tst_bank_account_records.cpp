// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/comparison.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using navigation::BankAccountCode;
using navigation::BudgetBankAccount;
using enum BankAccountTypes;

class BankAccountRecordsTest : public QObject {
    Q_OBJECT

private slots:
    void bankAccountCodesAreOrderedWithoutTheirCode()
    {
        const auto record = [](const char *name, std::uint32_t number, BankAccountTypes type,
                               const char *currency, const char *account = "Z") {
            return BankAccountCode(at(name, number, type), code(number, account),
                                   numira::toCurrency(currency));
        };
        QCOMPARE(comparisonFault(std::vector{
                     BankAccountCode(), record("A", 9, CreditCard, "USD"),
                     record("B", 1, Checking, "EUR"), record("B", 2, Checking, "JPY"),
                     record("B", 2, Checking, "USD"), record("B", 2, Savings, "JPY"),
                     record("B", 10, Checking, "JPY"), record("a", 1, Checking, "JPY")}),
                 u"");
        QCOMPARE(record("A", 1, Checking, "USD", "One"), record("A", 1, Checking, "USD", "Two"));
    }

    void numbersMustAgree()
    {
        QCOMPARE(answer([] { BankAccountCode(at("A", 1200, Checking), code(1201, "Purse"), {}); }),
                 u"The bank account number, 1200, does not match the account code number, 1201 "
                 u"Purse.");
    }

    void budgetBankAccountsAreOrderedByKindFirst()
    {
        const auto record = [](BudgetItemTypes type, const char *name, const BankAccount &account) {
            return BudgetBankAccount{type, source(name), account};
        };
        using enum BudgetItemTypes;
        const std::vector sorted{
            record(Debt, "B", at("A", 2, Loan)),     record(Debt, "a", at("A", 1, Loan)),
            record(Goal, "A", at("A", 1, Checking)), record(Goal, "a", at("A", 1, Checking)),
            record(Goal, "a", at("A", 1, Savings)),  record(Goal, "a", at("A", 2, Checking)),
            record(Goal, "a", at("B", 1, Checking))};
        QCOMPARE(comparisonFault(sorted), u"");

        const std::set<BudgetBankAccount> accounts(sorted.begin(), sorted.end());
        QCOMPARE(lookUpBankAccount(source("a"), accounts), at("A", 1, Loan));
        QCOMPARE(lookUpBankAccount(source("A"), accounts), at("A", 1, Checking));
        QCOMPARE(lookUpBankAccount(source("b"), accounts), std::nullopt);
    }
};

static const kiv::test::Suite<BankAccountRecordsTest> suite;
#include "tst_bank_account_records.moc"
