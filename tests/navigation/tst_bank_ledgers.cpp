// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/comparison.h"
#include "support/navigation.h"

using namespace kiv;
using namespace kiv::test;
using banking::Bank;
using navigation::AllowSubAccounts;
using enum BankAccountTypes;

using Request = std::function<void(Books &)>;

namespace {

/// The accounts that the books' bank First has.
Bank::Accounts firstAccounts()
{
    return {{no(1), Checking}, {no(2), Savings}, {no(3), CreditCard}};
}

/// A change of First that replaces its accounts.
Request updateFirst(Bank::Accounts accounts, bool isClosed = false)
{
    return [=](Books &books) { books.bankLedgers.update({bank("First"), accounts, isClosed}); };
}

Request add(const char *name, Bank::Accounts accounts)
{
    return [=](Books &books) { books.bankLedgers.add({bank(name), accounts, false}); };
}

Request addAccount(const char *name, const char *account, BankAccountTypes type,
                   const char *opening = "0")
{
    return [=](Books &books) {
        books.bankLedgers.addAccount(bank(name), QString::fromUtf8(account), type, usd(opening),
                                     *books.generator);
    };
}

Request associate(const char *name, std::uint32_t number, BankAccountTypes type)
{
    return [=](Books &books) { books.bankLedgers.addAssociation(bank(name), no(number), type); };
}

Request dissociate(const char *name, std::uint32_t number)
{
    return [=](Books &books) { books.bankLedgers.removeAssociation(bank(name), no(number)); };
}

Request recode(std::uint32_t from, std::uint32_t to)
{
    return [=](Books &books) { books.bankLedgers.recode(no(from), no(to)); };
}

Request ask(void (BankLedgers::*member)(const BankName &), const char *name)
{
    return [=](Books &books) { (books.bankLedgers.*member)(bank(name)); };
}

/// Several after one another.
Request inOrder(std::vector<Request> requests)
{
    return [=](Books &books) {
        for (const Request &request : requests)
            request(books);
    };
}

Request secondHasTheLoan()
{
    return associate("Second", 4, Loan);
}

Request spendFromCard()
{
    return [](Books &books) { books.ledger.post(transfer(no(5), no(3), usd("5"))); };
}

} // namespace

class BankLedgersTest : public QObject {
    Q_OBJECT

private slots:
    void refuses_data()
    {
        // What comes first is done before the request that is refused.
        QTest::addColumn<Request>("before");
        QTest::addColumn<Request>("request");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Request before, Request request,
                            const char *expected) {
            QTest::newRow(name) << before << request << QString::fromUtf8(expected);
        };
        const Request nothing = inOrder({});

        row("add: account missing", nothing, add("Third", {{no(5), Checking}, {no(77), Checking}}),
            "bank Third: Adding the account '77' is not in the general ledger.");
        row("add: type does not fit", nothing, add("Third", {{no(4), Loan}, {no(5), Checking}}),
            "bank Third: Invalid mapping between the account ledger '5' and the bank account type "
            "'checking' during bank creation.");
        row("add: name in use", nothing, add("First", {}),
            "bank First: The bank 'First' already exists.");

        row("addAccount: no bank", nothing, addAccount("Third", "New", Checking),
            "bank Third: The bank does not exist.");
        row("addAccount: name at a bank", nothing, addAccount("Second", "Card", CreditCard),
            "bank Second: The account name 'Card' is already associated with the bank 'First'.");
        row("addAccount: name at no bank", nothing, addAccount("Second", "Food", Checking),
            "bank Second: The account name 'Food' is already associated with the bank ''.");
        row("addAccount: unknown type", nothing, addAccount("Second", "%1", Unknown),
            "account 6 %1: The account '6 %1' needs a type.");
        row("addAccount: invalid type", nothing, addAccount("Second", "New", BankAccountTypes(9)),
            "logic: An unknown bank account type was supplied.");

        row("associate: no bank", nothing, associate("Third", 4, Loan),
            "bank Third: The bank does not exist.");
        row("associate: no account", nothing, associate("Second", 77, Loan),
            "bank Second: The general ledger does not have the account number '77'.");
        row("associate: unknown type", nothing, associate("Second", 4, Unknown),
            "bank Second: The bank account type cannot be unknown.");

        row("dissociate: no bank", nothing, dissociate("Third", 1),
            "bank Third: Cannot remove a bank account when the bank does not exist.");
        row("dissociate: of no bank", nothing, dissociate("First", 4),
            "bank First: Cannot remove a bank account when no association exists.");
        row("dissociate: of another bank", nothing, dissociate("Second", 1),
            "bank Second: The bank 'Second' does not have the account '1'.");

        row(
            "update: no bank", nothing,
            [](Books &books) {
                books.bankLedgers.update({bank("Third"), {}, true});
            },
            "bank Third: Cannot update when a bank by that name does not exist.");
        row("update: closed", nothing, updateFirst({{no(77), Checking}}, true),
            "bank First: Cannot close a bank via an update.");
        row("update: account missing", nothing, updateFirst({{no(1), Savings}, {no(77), Loan}}),
            "bank First: Updating the account '77' is not in the general ledger.");
        row("update: type does not fit", nothing, updateFirst({{no(1), Loan}}),
            "bank First: Invalid mapping between the account ledger '1' and the bank account type "
            "'loan'.");
        row("update: type changed", nothing, updateFirst({{no(1), Savings}}),
            "bank First: Cannot change the bank account type once set.");

        row("remove: no bank", nothing, ask(&BankLedgers::remove, "Third"),
            "bank Third: Cannot remove when a bank by that name does not exist.");
        row("remove: closed", nothing, ask(&BankLedgers::remove, "Shut"),
            "bank Shut: Cannot remove when the bank is closed.");
        row("remove: last account in use", inOrder({dissociate("First", 1), spendFromCard()}),
            ask(&BankLedgers::remove, "First"),
            "bank First: Cannot remove the bank as the account number '3' cannot be removed.");

        row("close: no bank", nothing, ask(&BankLedgers::close, "Third"),
            "bank Third: The bank 'Third' does not exist.");
        row("close: last account with a balance", spendFromCard(),
            ask(&BankLedgers::close, "First"),
            "account 3 Card: The account '3 Card' cannot be closed while its balance is $5.00.");
        row("close: closed", nothing, ask(&BankLedgers::close, "Shut"),
            "bank Shut: The bank 'Shut' is already closed.");
        row("open: open", nothing, ask(&BankLedgers::open, "First"),
            "bank First: The bank 'First' is already open.");

        row("recode: of no bank", nothing, recode(4, 5),
            "account 4: Cannot recode a bank account when no association exists.");
        row("recode: onto another bank's", secondHasTheLoan(), recode(3, 4),
            "bank First: Cannot recode the account '3' to the account '4' as it is already "
            "associated.");
    }
    void refuses()
    {
        QFETCH(Request, before);
        QFETCH(Request, request);
        Books books;
        before(books);
        QTEST(refusal(books, [&] { request(books); }), "expected");
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

    void addKeepsTheBank()
    {
        Books books;
        const Bank third(bank("Third"), {{no(4), Loan}}, false);
        QCOMPARE(books.bankLedgers.add(third), third);
        QCOMPARE(books.banks.bank(bank("Third")), third);
    }

    void addAccountOpensTheAccount()
    {
        Books books;
        const auto opening = books.bankLedgers.addAccount(bank("Second"), QStringLiteral("Visa"),
                                                          CreditCard, usd("30"), *books.generator);
        QCOMPARE(opening, txn(1));
        QCOMPARE(books.ledger.accountCode(no(6)), code(6, "Visa"));
        QCOMPARE(books.ledger.ledger(no(6)).type(), AccountTypes::Liability);
        QCOMPARE(books.balance(no(6)), usd("30"));
        QCOMPARE(books.banks.bank(bank("Second")).accounts(),
                 (Bank::Accounts{{no(6), CreditCard}}));
        addAccount("Second", "Purse", Cash)(books);
        QVERIFY(books.ledger.hasLedger(no(8))); // 7 holds the opening balances
    }

    void associationsAreAddedReplacedAndDropped()
    {
        Books books;
        QCOMPARE(books.bankLedgers.addAssociation(bank("Second"), no(4), Loan),
                 at("Second", 4, Loan));
        QCOMPARE(books.bankLedgers.addAssociation(bank("Second"), no(4), LineOfCredit),
                 at("Second", 4, LineOfCredit));
        QCOMPARE(books.bankLedgers.lookUpBankAccount(no(4)), at("Second", 4, LineOfCredit));
        books.bankLedgers.removeAssociation(bank("Second"), no(4));
        QVERIFY(!books.bankLedgers.hasBankAssociation(no(4)));
        QVERIFY(books.ledger.hasLedger(no(4)));
    }

    void updateReplacesTheAccounts()
    {
        Books books;
        const Bank::Accounts accounts{{no(1), Checking}, {no(4), Loan}};
        updateFirst(accounts)(books);
        QCOMPARE(books.banks.bank(bank("First")).accounts(), accounts);
    }

    void aBankClosesAndOpensWithItsAccounts()
    {
        Books books;
        ask(&BankLedgers::close, "First")(books);
        QVERIFY(books.banks.bank(bank("First")).isClosed());
        for (const auto &[number, type] : firstAccounts())
            QVERIFY(books.ledger.ledger(number).isClosed());
        books.ledger.open(code(2, ""));
        // An account that is open already ends it half-way.
        QCOMPARE(answer([&] { ask(&BankLedgers::open, "First")(books); }),
                 u"account 2 Savings: The account '2 Savings' is open already.");
        QVERIFY(!books.banks.bank(bank("First")).isClosed());
        QVERIFY(!books.ledger.ledger(no(1)).isClosed());
        QVERIFY(books.ledger.ledger(no(3)).isClosed());
    }

    void aRefusedCloseLeavesAClosedAccountClosed()
    {
        Books books;
        books.ledger.close(no(2));
        QCOMPARE(refusal(books, [&] { ask(&BankLedgers::close, "First")(books); }),
                 u"account 2 Savings: The account '2 Savings' is closed.");
    }

    void aBankGoesWithItsAccounts()
    {
        Books books;
        addAccount("Second", "Visa", CreditCard, "30")(books);
        ask(&BankLedgers::remove, "Second")(books);
        QVERIFY(!books.banks.hasBank(bank("Second")));
        QVERIFY(!books.ledger.hasLedger(no(6)));
    }

    void recodeMovesTheAssociation()
    {
        Books books;
        secondHasTheLoan()(books);
        QCOMPARE(books.bankLedgers.recode(no(1), no(5)), at("First", 5, Checking));
        QCOMPARE(books.bankLedgers.recode(no(3), no(2)), at("First", 2, CreditCard));
        QCOMPARE(books.banks.bank(bank("First")).accounts(),
                 (Bank::Accounts{{no(5), Checking}, {no(2), CreditCard}}));
        // There is no way back from a new number that the ledger lacks.
        QCOMPARE(answer([&] { recode(4, 77)(books); }),
                 u"bank Second: The general ledger does not have the account number '77'.");
        QCOMPARE(books.banks.bank(bank("Second")).accounts(), Bank::Accounts{});
    }

    void lookUpsAnswerForTheFirstBank()
    {
        Books books;
        associate("Second", 3, Loan)(books);
        const BankLedgers &banks = books.bankLedgers;
        QCOMPARE(banks.lookUpBankName(no(3)), bank("First"));
        QVERIFY(banks.hasAssociation(bank("First"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Second"), no(3)));
        QVERIFY(!banks.hasAssociation(bank("Third"), no(3)));
        QCOMPARE(banks.lookUpBankAccount(no(3)), at("First", 3, CreditCard));
        QCOMPARE(banks.lookUpBankAccount(bank("Second"), no(3)), at("Second", 3, Loan));
        QCOMPARE(banks.lookUpBankAccount(no(4)), std::nullopt);
        QCOMPARE(banks.bankAccountTypes(bank("First"), AllowSubAccounts(true)), firstAccounts());
        QCOMPARE(banks.bankAccountTypes(bank("First"), AllowSubAccounts(false)),
                 (Bank::Accounts{{no(1), Checking}, {no(3), CreditCard}}));
        QCOMPARE(banks.bankAccountTypes(bank("Third"), AllowSubAccounts(true)), Bank::Accounts{});
        QCOMPARE(banks.bankAccountTypes().at(bank("First")), firstAccounts());
        QCOMPARE(banks.bankAccountTypes().size(), 3u);
    }

    void comparesAndDumpsByContent()
    {
        Books a, b;
        QVERIFY(a.bankLedgers == b.bankLedgers);
        a.ledger.close(no(4));
        QVERIFY(a.bankLedgers != b.bankLedgers);
        b.ledger.close(no(4));
        a.bankLedgers.rename(bank("Second"), bank("Third"));
        QVERIFY(a.bankLedgers != b.bankLedgers);
        QCOMPARE(
            dump(a.bankLedgers),
            QStringLiteral("Banks (%1), General Ledger (%2)").arg(dump(a.banks), dump(a.ledger)));
    }
};

QTEST_GUILESS_MAIN(BankLedgersTest)
#include "tst_bank_ledgers.moc"
