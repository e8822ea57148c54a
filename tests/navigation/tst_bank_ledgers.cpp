// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/comparison.h"
#include "support/navigation.h"

using namespace navigation;
using Accounts = banking::Bank::Accounts;

/// What no request reaches; the rest of banks is in navigator_requests.txt.
class BankLedgersTest : public QObject {
    Q_OBJECT

private slots:
    void requestsAreRefused()
    {
        Books books;
        BankLedgers &banks = books.bankLedgers;
        banks.addAssociation(bank("Second"), no(4), Loan);
        const auto addAccount = [&](const char *name, const char *account, BankAccountTypes type) {
            return [&books, name, account, type] {
                books.bankLedgers.addAccount(bank(name), QString::fromUtf8(account), type, usd("0"),
                                             *books.generator);
            };
        };
        const std::string taken = "' is already associated with the bank '";
        checkRefusals(
            books,
            {{addAccount("Third", "New", Checking), "bank Third: The bank does not exist."},
             {addAccount("Second", "Card", CreditCard),
              "bank Second: The account name 'Card" + taken + "First'."},
             {addAccount("Second", "Food", Checking),
              "bank Second: The account name 'Food" + taken + "'."},
             {addAccount("Second", "%1", Unknown),
              "account 6 %1: The account '6 %1' needs a type."},
             {[&] { banks.addAssociation(bank("Second"), no(77), Unknown); },
              "bank Second: The general ledger does not have the account number '77'."},
             {[&] { banks.removeAssociation(bank("Third"), no(1)); },
              "bank Third: Cannot remove a bank account when the bank does not exist."},
             {[&] { banks.removeAssociation(bank("First"), no(5)); },
              "bank First: Cannot remove a bank account when no association exists."},
             {[&] { banks.removeAssociation(bank("Second"), no(1)); },
              "bank Second: The bank 'Second' does not have the account '1'."},
             {[&] { banks.recode(no(5), no(1)); },
              "account 5: Cannot recode a bank account when no association exists."},
             {[&] { banks.recode(no(3), no(4)); },
              "bank First: Cannot recode the account '3' to the account '4' as it is already "
              "associated."}});
    }

    void accountsAreAdded()
    {
        Books books;
        const auto open = [&](const char *name, BankAccountTypes type, const char *opening) {
            return books.bankLedgers.addAccount(bank("Second"), QString::fromUtf8(name), type,
                                                usd(opening), *books.generator);
        };
        QCOMPARE(open("Visa", CreditCard, "30"), txn(1));
        QCOMPARE(books.ledger.accountCode(no(6)), code(6, "Visa"));
        QCOMPARE(books.ledger.ledger(no(6)).type(), AccountTypes::Liability);
        QCOMPARE(books.balance(no(6)), usd("30"));
        QCOMPARE(open("Purse", Cash, "0"), std::nullopt); // 7 holds the opening balances
        QCOMPARE(books.banks.bank(bank("Second")).accounts(),
                 (Accounts{{no(6), CreditCard}, {no(8), Cash}}));
        books.bankLedgers.remove(bank("Second"));
        QVERIFY(!books.banks.hasBank(bank("Second")));
        QVERIFY(!books.ledger.hasLedger(no(6)) && !books.ledger.hasLedger(no(8)));
    }

    void anAccountThatIsOpenEndsTheOpeningHalfWay()
    {
        Books books;
        books.bankLedgers.close(bank("First"));
        books.ledger.open(code(2, ""));
        QCOMPARE(answer([&] { books.bankLedgers.open(bank("First")); }),
                 u"account 2 Savings: The account '2 Savings' is open already.");
        QVERIFY(!books.banks.bank(bank("First")).isClosed());
        QVERIFY(!books.ledger.ledger(no(1)).isClosed());
        QVERIFY(books.ledger.ledger(no(3)).isClosed());
    }

    void associationsMove()
    {
        Books books;
        BankLedgers &banks = books.bankLedgers;
        QCOMPARE(banks.addAssociation(bank("Second"), no(4), Loan), at("Second", 4, Loan));
        QCOMPARE(banks.addAssociation(bank("Second"), no(4), LineOfCredit),
                 at("Second", 4, LineOfCredit));
        QCOMPARE(banks.recode(no(1), no(5)), at("First", 5, Checking));
        QCOMPARE(banks.recode(no(3), no(2)), at("First", 2, CreditCard));
        QCOMPARE(books.banks.bank(bank("First")).accounts(),
                 (Accounts{{no(5), Checking}, {no(2), CreditCard}}));
        // There is no way back from a new number that the ledger lacks.
        QCOMPARE(answer([&] { banks.recode(no(4), no(77)); }),
                 u"bank Second: The general ledger does not have the account number '77'.");
        QCOMPARE(books.banks.bank(bank("Second")).accounts(), Accounts{});
    }

    void lookUpsAnswerForTheFirstBank()
    {
        Books books;
        BankLedgers &banks = books.bankLedgers;
        banks.addAssociation(bank("Second"), no(3), Loan);
        QVERIFY(banks.hasAssociation(bank("First"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Second"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Third"), no(3)));
        QCOMPARE(banks.lookUpBankAccount(no(3)), at("First", 3, CreditCard));
        QCOMPARE(banks.lookUpBankAccount(bank("Second"), no(3)), at("Second", 3, Loan));
        QCOMPARE(banks.lookUpBankAccount(no(4)), std::nullopt);
        QCOMPARE(banks.bankAccountTypes(bank("First"), AllowSubAccounts(false)),
                 (Accounts{{no(1), Checking}, {no(3), CreditCard}}));
        QCOMPARE(banks.bankAccountTypes().at(bank("Second")), (Accounts{{no(3), Loan}}));
    }

    void comparesByContent()
    {
        Books a, b;
        a.ledger.close(no(4));
        QVERIFY(a.bankLedgers != b.bankLedgers);
        b.ledger.close(no(4));
        QVERIFY(a.bankLedgers == b.bankLedgers);
        a.bankLedgers.rename(bank("Second"), bank("Third"));
        QVERIFY(a.bankLedgers != b.bankLedgers);
    }

    void bankAccountCodesAgreeAndAreOrderedWithoutTheirCode()
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

static const kiv::test::Suite<BankLedgersTest> bankLedgersSuite;
#include "tst_bank_ledgers.moc"
