// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_book.h"

#include <QtTest/QtTest>

using namespace kiv::test;
using Change = std::function<void(Book &)>;

Q_DECLARE_METATYPE(Change)

namespace {

/// What the change was refused with; empty when it was not.
QString refusal(const Change &change, Book &book)
{
    try {
        change(book);
    } catch (const kiv::foundation::Error &error) {
        return error.message();
    }
    return {};
}

Account newAccount(AccountTypes type, AccountNumber number,
                   std::optional<AccountNumber> parent = {},
                   const numira::Money &opening = usd("0"))
{
    return {type, AccountCode(number, u"New %1"_qs, parent), opening, false};
}

AccountCode code(std::uint32_t number, std::optional<AccountNumber> parent = {})
{
    return {no(number), u"Moved %2"_qs, parent};
}

/// A change of a ledger alone.
template <typename Operation>
Change onLedger(Operation operation)
{
    return [operation](Book &book) { operation(book.ledger); };
}

Change adding(const Account &account, QDate openedOn = day("2026-01-05"))
{
    return [=](Book &book) { book.ledger.add(account, book.generator, openedOn); };
}

Change converting(std::uint32_t number, const char *currency)
{
    return [=](Book &book) {
        book.ledger.convertTo(no(number), numira::toCurrency(currency), book.generator);
    };
}

Change recoding(std::uint32_t from, const AccountCode &to)
{
    return [=](Book &book) { book.ledger.recode(code(from), to); };
}

Change posting(const Transaction &transaction)
{
    return [=](Book &book) { book.ledger.post(transaction); };
}

Change reposting(std::uint16_t number, const Transaction &transaction)
{
    return [=](Book &book) { book.ledger.repost(txn(number), transaction); };
}

Change refunding(std::uint16_t number, const numira::Money &amount)
{
    return [=](Book &book) { book.ledger.refund(txn(number), amount, day("2026-02-01")); };
}

/// One row: what was done before, what is refused, and the sentence.
void row(const char *name, const Change &change, const char *sentence, const Change &before = {})
{
    QTest::newRow(name) << before << change << QString::fromUtf8(sentence);
}

constexpr const char *huge = "100000000000000000000000000";

} // namespace

class tst_LedgerRefusals : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        installRates();
        // Two more: one that makes little of every amount, and one in which the
        // sides of the checking account fit, but not their sum.
        ratesFromUsd()["GBP"] = numira::FloatingPoint("1e-9");
        ratesFromUsd()["CHF"] = numira::FloatingPoint("6.5e22");
    }

    void refusedChangesChangeNothing_data()
    {
        QTest::addColumn<Change>("before");
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("sentence");
        accountRows();
        recodeAndConvertRows();
        postRows();
        repostRows();
        statusAndRefundRows();
    }

    void refusedChangesChangeNothing()
    {
        QFETCH(Change, before);
        QFETCH(Change, change);
        QFETCH(QString, sentence);
        Book alone;
        Book shared;
        Book untouched;
        if (before) {
            for (Book *book : {&alone, &shared, &untouched})
                before(*book);
        }
        const GeneralLedger copy = shared.ledger;
        QCOMPARE(refusal(change, alone), sentence);
        QCOMPARE(refusal(change, shared), sentence);
        QVERIFY(alone.ledger == untouched.ledger);
        QVERIFY(shared.ledger == untouched.ledger && copy == untouched.ledger);
        QCOMPARE(nextAccountNumber(alone), nextAccountNumber(untouched));
    }

    void unknownEnumerationValuesAreProgrammingErrors()
    {
        const auto type = static_cast<AccountTypes>(6);
        const auto status = static_cast<TransactionStatuses>(3);
        Book book;
        QVERIFY_EXCEPTION_THROWN(adding(newAccount(type, no(20)))(book), std::logic_error);
        const Transaction wrong =
            transfer(no(2), no(4), usd("1")).withStatuses(TransactionStatuses::None, status);
        QVERIFY_EXCEPTION_THROWN(book.ledger.post(wrong), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(
            static_cast<void>(book.ledger.lookUpChildren(no(1), static_cast<OpenStates>(0))),
            std::logic_error);
        QVERIFY_EXCEPTION_THROWN(static_cast<void>(toQString(type)), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(static_cast<void>(isDebitNormal(AccountTypes::Unknown)),
                                 std::logic_error);
        QVERIFY(book.ledger == Book().ledger);
    }

    void errorsNameTheirSubjectAndKeepTheirCause()
    {
        Book book;
        try {
            book.ledger.post(transfer(no(2), no(4), money("JPY", "5")));
            QFAIL("A posting without a rate was taken.");
        } catch (const TransactionError &error) {
            QCOMPARE(error.number(), txn(0));
            QVERIFY(QByteArray(error.what()).endsWith("Caused by: No yen today."));
        }
        try {
            book.ledger.close(no(2));
            QFAIL("An asset with a balance was closed.");
        } catch (const AccountError &error) {
            QVERIFY(error.code() == AccountCode(no(2), u"Checking"_qs, no(1)));
        }
    }

private:
    static void accountRows();
    static void recodeAndConvertRows();
    static void postRows();
    static void repostRows();
    static void statusAndRefundRows();
};

void tst_LedgerRefusals::accountRows()
{
    using enum AccountTypes;
    row("add: no number", adding(newAccount(Asset, no(0))),
        "The account 'New %1' needs a number above 0.");
    row("add: number in use", adding(newAccount(Asset, no(4))),
        "The account '4 New %1' cannot have a number that the account '4 Rent' has.");
    row("add: no type", adding(newAccount(Unknown, no(20))),
        "The account '20 New %1' needs a type.");
    row("add: unknown parent", adding(newAccount(Asset, no(20), no(77))),
        "The account '20 New %1' cannot stand under the account 77, which does not exist.");
    row("add: parent of another type", adding(newAccount(Expense, no(20), no(1))),
        "The account '20 New %1' of type Expense cannot stand under the account '1 Bank' of type "
        "Asset.");
    row("add: opened on no day, in a currency of its own",
        adding(newAccount(Asset, no(10), {}, money("EUR", "5")), QDate()),
        "A transaction needs a valid day.");
    row("add: openings are closed", adding(newAccount(Asset, no(20), {}, usd("5"))),
        "The account '3 Opening Balances USD [Equity]' is closed.",
        onLedger([](GeneralLedger &ledger) { ledger.close(no(3)); }));
    row("add: openings get too large", adding(newAccount(Asset, no(20), {}, usd(huge))),
        "The amounts of the account '3 Opening Balances USD [Equity]' would become too large.",
        adding(newAccount(Asset, no(21), {}, usd(huge))));
    row("add: closed with a balance",
        adding(Account(Asset, AccountCode(no(10), u"New"_qs, {}), money("EUR", "5"), true)),
        "The account '10 New' cannot be closed while its balance is €5.00.");

    const auto removing = [](std::uint32_t number) {
        return onLedger([number](GeneralLedger &ledger) { ledger.remove(no(number)); });
    };
    row("remove: unknown", removing(77), "There is no account with the number 77.");
    row("remove: has a child", removing(1),
        "The account '1 Bank' cannot be removed while accounts stand under it.");
    row("remove: has transactions", removing(5),
        "The account '5 Wage' cannot be removed while it has transactions.");
    row("remove: opening reconciled", removing(20),
        "The account '20 New %1' cannot be removed while the transaction 8, which opened it, is "
        "reconciled.",
        [](Book &book) {
            adding(newAccount(Asset, no(20), {}, usd("5")))(book);
            book.ledger.reconcile(txn(8), no(3));
        });
    const auto closing = [](std::uint32_t number) {
        return onLedger([number](GeneralLedger &ledger) { ledger.close(no(number)); });
    };
    row("close: unknown", closing(77), "There is no account with the number 77.");
    row("close: closed", closing(7), "The account '7 Old' is closed.");
    row("close: asset", closing(2),
        "The account '2 Checking' cannot be closed while its balance is $1,880.00.");
    row("close: liability", closing(6),
        "The account '6 Card' cannot be closed while its balance is $50.00.");
    row("open: unknown", onLedger([](GeneralLedger &ledger) { ledger.open(code(77)); }),
        "There is no account with the number 77.");
    row("open: open", onLedger([](GeneralLedger &ledger) { ledger.open(code(4)); }),
        "The account '4 Rent' is open already.");
}

void tst_LedgerRefusals::recodeAndConvertRows()
{
    row("recode: unknown", recoding(77, code(20)), "There is no account with the number 77.");
    row("recode: no number", recoding(4, code(0)),
        "The account 'Moved %2' needs a number above 0.");
    row("recode: number of another", recoding(4, code(5)),
        "The account '5 Moved %2' cannot have a number that the account '5 Wage' has.");
    row("recode: unknown parent", recoding(4, code(20, no(77))),
        "The account '20 Moved %2' cannot stand under the account 77, which does not exist.");
    row("recode: parent of another type", recoding(4, code(20, no(1))),
        "The account '20 Moved %2' of type Expense cannot stand under the account '1 Bank' of type "
        "Asset.");
    row("recode: under its old number", recoding(1, code(20, no(1))),
        "The account '20 Moved %2' cannot stand under the account '1 Bank', which is itself or "
        "stands below it.");
    row("recode: under its new number", recoding(1, code(20, no(20))),
        "The account '20 Moved %2' cannot stand under the account 20, which does not exist.");
    row("recode: under its grandchild", recoding(1, code(1, no(8))),
        "The account '1 Moved %2' cannot stand under the account '8 Envelope', which is itself or "
        "stands below it.");

    row("convert: unknown", converting(77, "EUR"), "There is no account with the number 77.");
    row("convert: converter refuses", converting(2, "JPY"),
        "The account '2 Checking' cannot be kept in JPY, as the amount of its transaction 1 cannot "
        "be converted.");
    row("convert: no rate", converting(4, "CAD"),
        "The account '4 Rent' cannot be kept in CAD, as the amount of its transaction 3 cannot be "
        "converted.");
    row("convert: comes to nothing", converting(4, "GBP"),
        "The account '4 Rent' cannot be kept in GBP, in which the $800.00 of its transaction 3 "
        "come to nothing.");
    row("convert: sum too large", converting(2, "CHF"),
        "The amounts of the account '2 Checking' would become too large.");
}

void tst_LedgerRefusals::postRows()
{
    row("post: no day", posting(transfer(no(2), no(4), usd("1"), QDate())),
        "A transaction needs a valid day.");
    row("post: zero", posting(transfer(no(2), no(4), usd("0"))),
        "The amount of a transaction must be above zero, but is $0.00.");
    row("post: negative", posting(transfer(no(2), no(4), usd("-0.01"))),
        "The amount of a transaction must be above zero, but is -$0.01.");
    row("post: one account", posting(transfer(no(2), no(2), usd("1"))),
        "A transaction cannot debit and credit the same account '2 Checking'.");
    row("post: debits an unknown account", posting(transfer(no(77), no(2), usd("1"))),
        "There is no account with the number 77.");
    row("post: credits an unknown account", posting(transfer(no(2), no(77), usd("1"))),
        "There is no account with the number 77.");
    row("post: debits a closed account", posting(transfer(no(7), no(2), usd("1"))),
        "The account '7 Old' is closed.");
    row("post: credits a closed account", posting(transfer(no(2), no(7), usd("1"))),
        "The account '7 Old' is closed.");
    row("post: no rate", posting(transfer(no(2), no(4), money("CAD", "1"))),
        "The amount CA$1.00 cannot be converted into USD.");
    row("post: comes to nothing", posting(transfer(no(2), no(9), usd("0.01"))),
        "The amount $0.01 comes to nothing in EUR.");
    row("post: too large", posting(transfer(no(5), no(4), usd(huge))),
        "The amounts of the account '5 Wage' would become too large.",
        posting(transfer(no(5), no(2), usd(huge))));
}

void tst_LedgerRefusals::repostRows()
{
    row("repost: unknown", reposting(77, transfer(no(2), no(4), usd("1"))),
        "There is no transaction with the number 77.");
    row("repost: a side reconciled", reposting(5, transfer(no(4), no(6), usd("50"))),
        "The transaction 5 is reconciled and cannot be changed before it is unreconciled.");
    row("repost: leaves a closed account", reposting(6, transfer(no(4), no(2), usd("10"))),
        "The account '7 Old' is closed.");
    row("repost: enters a closed account", reposting(2, transfer(no(2), no(7), usd("10"))),
        "The account '7 Old' is closed.");
    row("repost: an opening elsewhere", reposting(1, transfer(no(8), no(3), usd("100"))),
        "The transaction 1 opened the account '2 Checking' and cannot leave it.");
    row("repost: below its refunds", reposting(3, transfer(no(4), no(2), usd("99.99"))),
        "The transaction 3 cannot be lowered to $99.99, as $100.00 of it were refunded.");
    row("repost: refunded, other debit", reposting(3, transfer(no(8), no(2), usd("800"))),
        "The accounts of the transaction 3 cannot be changed, as it is a refund or was refunded.");
    row("repost: refunded, other currency",
        reposting(3, transfer(no(4), no(2), money("EUR", "800"))),
        "The amount of the transaction 3 must stay in USD, in which it was refunded.");
    row("repost: refund, other credit", reposting(4, transfer(no(2), no(8), usd("100"))),
        "The accounts of the transaction 4 cannot be changed, as it is a refund or was refunded.");
    row("repost: refund above the original", reposting(4, transfer(no(2), no(4), usd("800.01"))),
        "A refund of $800.01 exceeds the $800.00 that are left of the transaction 3.");
    row("repost: refund of nothing", reposting(4, transfer(no(2), no(4), money("EUR", "0"))),
        "The amount of a transaction must be above zero, but is €0.00.");
    const auto removing = [](std::uint16_t number) {
        return onLedger([number](GeneralLedger &ledger) { ledger.remove(txn(number)); });
    };
    row("remove transaction: unknown", removing(77), "There is no transaction with the number 77.");
    row("remove transaction: a side reconciled", removing(5),
        "The transaction 5 is reconciled and cannot be changed before it is unreconciled.");
    row("remove transaction: closed account", removing(6), "The account '7 Old' is closed.");
    row("remove transaction: refunded", removing(3),
        "The transaction 3 cannot be removed, as $100.00 of it were refunded.");
}

void tst_LedgerRefusals::statusAndRefundRows()
{
    row("reconcile: one of several unknown", onLedger([](GeneralLedger &ledger) {
            ledger.reconcile(std::set{txn(2), txn(77)});
        }),
        "There is no transaction with the number 77.");
    row("reconcile: another account's",
        onLedger([](GeneralLedger &ledger) { ledger.reconcile(txn(2), no(4)); }),
        "The account 4 has no part in the transaction 2.");
    row("unreconcile: unknown",
        onLedger([](GeneralLedger &ledger) { ledger.unreconcile(txn(77)); }),
        "There is no transaction with the number 77.");
    row("clear: unknown", onLedger([](GeneralLedger &ledger) { ledger.clear(txn(77)); }),
        "There is no transaction with the number 77.");
    row("clear: a side reconciled", onLedger([](GeneralLedger &ledger) { ledger.clear(txn(5)); }),
        "The transaction 5 is reconciled and cannot be changed before it is unreconciled.");
    row("clear: this side reconciled",
        onLedger([](GeneralLedger &ledger) { ledger.clear(txn(5), no(6)); }),
        "The transaction 5 is reconciled and cannot be changed before it is unreconciled.");
    row("clear: another account's",
        onLedger([](GeneralLedger &ledger) { ledger.clear(txn(5), no(2)); }),
        "The account 2 has no part in the transaction 5.");

    row("refund: unknown", refunding(77, usd("1")), "There is no transaction with the number 77.");
    row("refund: of a refund", refunding(4, usd("1")),
        "The transaction 4 is a refund of the transaction 3 and cannot be refunded itself.");
    row("refund: nothing", refunding(3, usd("0")),
        "The amount of a transaction must be above zero, but is $0.00.");
    row("refund: more than is left", refunding(3, usd("700.01")),
        "A refund of $700.01 exceeds the $700.00 that are left of the transaction 3.");
    row("refund: more in another currency", refunding(3, money("EUR", "350.01")),
        "A refund of $700.02 exceeds the $700.00 that are left of the transaction 3.");
    row("refund: no rate", refunding(3, money("CAD", "1")),
        "The amount CA$1.00 cannot be converted into USD.");
    row("refund: closed account", refunding(6, usd("1")), "The account '7 Old' is closed.");
}

QTEST_APPLESS_MAIN(tst_LedgerRefusals)
#include "tst_ledger_refusals.moc"
