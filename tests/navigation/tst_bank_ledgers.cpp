// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/comparison.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using banking::Bank;
using navigation::AllowSubAccounts;
using enum BankAccountTypes;
using Accounts = Bank::Accounts;

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
        checkRefusals(
            books,
            {{[&] {
                  banks.add({bank("Third"), {{no(5), Checking}, {no(77), Loan}}, false});
              },
              "bank Third: Adding the account '77' is not in the general ledger."},
             {[&] {
                  banks.add({bank("Third"), {{no(4), Loan}, {no(5), Checking}}, false});
              },
              "bank Third: Invalid mapping between the account ledger '5' and the bank account "
              "type "
              "'checking' during bank creation."},
             {[&] {
                  banks.add({bank("First"), {}, false});
              },
              "bank First: The bank 'First' already exists."},
             {addAccount("Third", "New", Checking), "bank Third: The bank does not exist."},
             {addAccount("Second", "Card", CreditCard),
              "bank Second: The account name 'Card' is already associated with the bank 'First'."},
             {addAccount("Second", "Food", Checking),
              "bank Second: The account name 'Food' is already associated with the bank ''."},
             {addAccount("Second", "%1", Unknown),
              "account 6 %1: The account '6 %1' needs a type."},
             {addAccount("Second", "New", BankAccountTypes(9)),
              "logic: An unknown bank account type was supplied."},
             {[&] { banks.addAssociation(bank("Third"), no(4), Loan); },
              "bank Third: The bank does not exist."},
             {[&] { banks.addAssociation(bank("Second"), no(77), Unknown); },
              "bank Second: The general ledger does not have the account number '77'."},
             {[&] { banks.addAssociation(bank("Second"), no(4), Unknown); },
              "bank Second: The bank account type cannot be unknown."},
             {[&] { banks.removeAssociation(bank("Third"), no(1)); },
              "bank Third: Cannot remove a bank account when the bank does not exist."},
             {[&] { banks.removeAssociation(bank("First"), no(5)); },
              "bank First: Cannot remove a bank account when no association exists."},
             {[&] { banks.removeAssociation(bank("Second"), no(1)); },
              "bank Second: The bank 'Second' does not have the account '1'."},
             {[&] {
                  banks.update({bank("Third"), {}, true});
              },
              "bank Third: Cannot update when a bank by that name does not exist."},
             {[&] {
                  banks.update({bank("First"), {{no(77), Loan}}, true});
              },
              "bank First: Cannot close a bank via an update."},
             {[&] {
                  banks.update({bank("First"), {{no(1), Savings}, {no(77), Loan}}, false});
              },
              "bank First: Updating the account '77' is not in the general ledger."},
             {[&] {
                  banks.update({bank("First"), {{no(1), Loan}}, false});
              },
              "bank First: Invalid mapping between the account ledger '1' and the bank account "
              "type "
              "'loan'."},
             {[&] {
                  banks.update({bank("First"), {{no(1), Savings}}, false});
              },
              "bank First: Cannot change the bank account type once set."},
             {[&] { banks.remove(bank("Third")); },
              "bank Third: Cannot remove when a bank by that name does not exist."},
             {[&] { banks.remove(bank("Shut")); },
              "bank Shut: Cannot remove when the bank is closed."},
             {[&] { banks.close(bank("Shut")); }, "bank Shut: The bank 'Shut' is already closed."},
             {[&] { banks.open(bank("First")); }, "bank First: The bank 'First' is already open."},
             {[&] { banks.recode(no(5), no(1)); },
              "account 5: Cannot recode a bank account when no association exists."},
             {[&] { banks.recode(no(3), no(4)); },
              "bank First: Cannot recode the account '3' to the account '4' as it is already "
              "associated."}});

        // What goes well with the first accounts fails with the last.
        banks.removeAssociation(bank("First"), no(1));
        books.ledger.post(transfer(no(5), no(3), usd("5")));
        checkRefusals(
            books,
            {{[&] { banks.close(bank("First")); },
              "account 3 Card: The account '3 Card' cannot be closed while its balance is $5.00."},
             {[&] { banks.remove(bank("First")); },
              "bank First: Cannot remove the bank as the account number '3' cannot be removed."}});
        books.ledger.close(no(2)); // and what was closed before stays closed
        checkRefusals(books, {{[&] { banks.close(bank("First")); },
                               "account 2 Savings: The account '2 Savings' is closed."}});
    }

    void constructionChecksTheAccounts()
    {
        Books books;
        books.banks.add(bank("Second"), no(77), Checking);
        QCOMPARE(answer([&] {
                     BankLedgers(foundation::observe(books.banks),
                                 foundation::observe(books.ledger));
                 }),
                 u"bank Second: The account ledger number is not present in the general ledger.");
    }

    void banksAndAccountsAreAddedAndUpdated()
    {
        Books books;
        const Bank third(bank("Third"), {{no(4), Loan}}, false);
        QCOMPARE(books.bankLedgers.add(third), third);
        books.bankLedgers.update({bank("Third"), {{no(1), Cash}, {no(4), Loan}}, false});
        QCOMPARE(books.banks.bank(bank("Third")).accounts(),
                 (Accounts{{no(1), Cash}, {no(4), Loan}}));

        const auto open = [&](const char *name, BankAccountTypes type, const char *opening,
                              const char *at = "Second") {
            return books.bankLedgers.addAccount(bank(at), QString::fromUtf8(name), type,
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
        // Their numbers are not given again.
        open("Box", Cash, "0", "First");
        QCOMPARE(books.ledger.accountCode(no(9)), code(9, "Box"));
    }

    void aBankClosesAndOpensWithItsAccounts()
    {
        Books books;
        books.bankLedgers.close(bank("First"));
        QVERIFY(books.banks.bank(bank("First")).isClosed());
        for (const std::uint32_t number : {1u, 2u, 3u})
            QVERIFY(books.ledger.ledger(no(number)).isClosed());
        books.ledger.open(code(2, ""));
        // An account that is open already ends it half-way.
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
        QCOMPARE(banks.lookUpBankName(no(3)), bank("First"));
        QVERIFY(banks.hasAssociation(bank("First"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Second"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Third"), no(3)));
        QCOMPARE(banks.lookUpBankAccount(no(3)), at("First", 3, CreditCard));
        QCOMPARE(banks.lookUpBankAccount(bank("Second"), no(3)), at("Second", 3, Loan));
        QCOMPARE(banks.lookUpBankAccount(no(4)), std::nullopt);
        QCOMPARE(banks.bankAccountTypes(bank("First"), AllowSubAccounts(true)),
                 (Accounts{{no(1), Checking}, {no(2), Savings}, {no(3), CreditCard}}));
        QCOMPARE(banks.bankAccountTypes(bank("First"), AllowSubAccounts(false)),
                 (Accounts{{no(1), Checking}, {no(3), CreditCard}}));
        QCOMPARE(banks.bankAccountTypes(bank("Third"), AllowSubAccounts(true)), Accounts{});
        QCOMPARE(banks.bankAccountTypes().at(bank("Second")), (Accounts{{no(3), Loan}}));
    }

    void comparesAndDumpsByContent()
    {
        Books a, b;
        a.ledger.close(no(4));
        QVERIFY(a.bankLedgers != b.bankLedgers);
        b.ledger.close(no(4));
        QVERIFY(a.bankLedgers == b.bankLedgers);
        a.bankLedgers.rename(bank("Second"), bank("Third"));
        QVERIFY(a.bankLedgers != b.bankLedgers);
        QCOMPARE(
            dump(a.bankLedgers),
            QStringLiteral("Banks (%1), General Ledger (%2)").arg(dump(a.banks), dump(a.ledger)));
    }
};

static const kiv::test::Suite<BankLedgersTest> suite;
#include "tst_bank_ledgers.moc"
