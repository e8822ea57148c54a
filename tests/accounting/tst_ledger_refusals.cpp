// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "sample_book.h"

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

/// Accounts 101 to 199, each under the one before: as deep as may be.
void openChain(Book &book)
{
    for (std::uint32_t number = 101; number <= 199; ++number)
        adding(newAccount(AccountTypes::Asset, no(number),
                          number == 101 ? std::nullopt : std::optional(no(number - 1))))(book);
}

/// One row: a pattern of the sentence, what is refused, and what was done before.
void row(const char *name, const char *sentence, const Change &change, const Change &before = {})
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
        for (Book *book : {&alone, &shared}) {
            const QString said = refusal(change, *book);
            QVERIFY2(QRegularExpression(sentence).match(said).hasMatch(), qPrintable(said));
        }
        QVERIFY(alone.ledger == untouched.ledger);
        QVERIFY(shared.ledger == untouched.ledger && copy == untouched.ledger);
        QCOMPARE(nextAccountNumber(alone), nextAccountNumber(untouched));
    }

    void unknownEnumerationValuesAreProgrammingErrors()
    {
        const auto type = static_cast<AccountTypes>(6);
        const auto status = static_cast<TransactionStatuses>(3);
        Book book;
        QVERIFY_THROWS_EXCEPTION(std::logic_error, adding(newAccount(type, no(20)))(book));
        const Transaction wrong =
            transfer(no(2), no(4), usd("1")).withStatuses(TransactionStatuses::None, status);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, book.ledger.post(wrong));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(book.ledger.lookUpChildren(
                                                       no(1), static_cast<OpenStates>(0))));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(toQString(type)));
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 static_cast<void>(isDebitNormal(AccountTypes::Unknown)));
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
    const auto euros = money("EUR", "5");
    row("add: no number", "'New %1' needs a number", adding(newAccount(Asset, no(0))));
    row("add: number in use", "'4 New %1' cannot .* '4 Rent' has",
        adding(newAccount(Asset, no(4))));
    row("add: no type", "'20 New %1' needs a type", adding(newAccount(Unknown, no(20))));
    row("add: unknown parent", "77, which does not exist",
        adding(newAccount(Asset, no(20), no(77))));
    row("add: parent of another type",
        "'20 New %1' of type Expense cannot stand under the account '1 Bank' of type Asset",
        adding(newAccount(Expense, no(20), no(1))));
    row("add: too deep", "'20 New %1' .* '199 New %1'.* 99 deep",
        adding(newAccount(Asset, no(20), no(199))), openChain);
    row("add: on no day, and the first in euros", "valid day",
        adding(newAccount(Asset, no(10), {}, euros), QDate()));
    row("add: openings are closed", "'3 Opening Balances USD \\[Equity\\]' is closed",
        adding(newAccount(Asset, no(20), {}, usd("5"))),
        [](Book &book) { book.ledger.close(no(3)); });
    row("add: openings get too large", "'3 Opening .*' would become too large",
        adding(newAccount(Asset, no(20), {}, usd(huge))),
        adding(newAccount(Asset, no(21), {}, usd(huge))));
    row("add: closed with a balance", "'10 N' cannot be closed .* €5.00",
        adding({Asset, {no(10), u"N"_qs, {}}, euros, true}));

    row("remove: unknown", "number 77", [](Book &b) { b.ledger.remove(no(77)); });
    row("remove: has a child", "'1 Bank'.*accounts stand", [](Book &b) { b.ledger.remove(no(1)); });
    row("remove: used", "'5 Wage'.*has transactions", [](Book &b) { b.ledger.remove(no(5)); });
    row(
        "remove: opening moves real money", "'20 New %1'.*has transactions",
        [](Book &b) { b.ledger.remove(no(20)); },
        [](Book &book) {
            adding(newAccount(Asset, no(20), {}, usd("5")))(book);
            book.ledger.repost(txn(8), transfer(no(20), no(2), usd("5")));
        });
    row(
        "remove: opening reconciled", "'20 New %1'.*transaction 8, which opened it, is reconciled",
        [](Book &b) { b.ledger.remove(no(20)); },
        [](Book &book) {
            adding(newAccount(Asset, no(20), {}, usd("5")))(book);
            book.ledger.reconcile(txn(8), no(3));
        });
    row("close: unknown", "number 77", [](Book &b) { b.ledger.close(no(77)); });
    row("close: closed", "'7 Old' is closed", [](Book &b) { b.ledger.close(no(7)); });
    row("close: asset", "'2 Checking'.* is \\$1,880.00", [](Book &b) { b.ledger.close(no(2)); });
    row("close: liability", "'6 Card'.* is \\$50.00", [](Book &b) { b.ledger.close(no(6)); });
    row("open: unknown", "number 77", [](Book &b) { b.ledger.open(code(77)); });
    row("open: open", "'4 Rent' is open already", [](Book &b) { b.ledger.open(code(4)); });
}

void tst_LedgerRefusals::recodeAndConvertRows()
{
    row("recode: unknown", "number 77", recoding(77, code(20)));
    row("recode: no number", "'Moved %2' needs a number", recoding(4, code(0)));
    row("recode: number of another", "'5 Moved %2' cannot .* '5 Wage' has", recoding(4, code(5)));
    row("recode: unknown parent", "77, which does not exist", recoding(4, code(20, no(77))));
    row("recode: parent of another type",
        "'20 Moved %2' of type Expense cannot stand under the account '1 Bank' of type Asset",
        recoding(4, code(20, no(1))));
    row("recode: under its old number", "'20 M.* '1 Bank', .* itself",
        recoding(1, code(20, no(1))));
    row("recode: under its new number", "20, which does not exist", recoding(1, code(20, no(20))));
    row("recode: under its grandchild", "'8 Envelope', which is itself",
        recoding(1, code(1, no(8))));

    // It has a child and a grandchild.
    row("recode: its children too deep", "'1 Moved %2' .* '197 New %1'.* 99 deep",
        recoding(1, code(1, no(197))), openChain);

    row("convert: unknown", "number 77", converting(77, "EUR"));
    row("convert: converter refuses", "'2 Checking' .*in JPY.*transaction 1 ",
        converting(2, "JPY"));
    row("convert: no rate", "'4 Rent' .*in CAD.*transaction 3 cannot be conv",
        converting(4, "CAD"));
    row("convert: comes to nothing", "'4 Rent'.*in GBP.*\\$800.00 .* 3 come", converting(4, "GBP"));
    row("convert: sum too large", "'2 Checking' would become too large", converting(2, "CHF"));
}

void tst_LedgerRefusals::postRows()
{
    row("post: no day", "valid day", posting(transfer(no(2), no(4), usd("1"), QDate())));
    row("post: zero", "above zero, but is \\$0.00", posting(transfer(no(2), no(4), usd("0"))));
    row("post: negative", "above zero, but is -\\$1.00",
        posting(transfer(no(2), no(4), usd("-1"))));
    row("post: one account", "same account '2 Checking'",
        posting(transfer(no(2), no(2), usd("1"))));
    row("post: unknown debit", "number 77", posting(transfer(no(77), no(2), usd("1"))));
    row("post: unknown credit", "number 77", posting(transfer(no(2), no(77), usd("1"))));
    row("post: closed debit", "'7 Old' is closed", posting(transfer(no(7), no(2), usd("1"))));
    row("post: closed credit", "'7 Old' is closed", posting(transfer(no(2), no(7), usd("1"))));
    row("post: no rate", "CA\\$1.00 .*into USD",
        posting(transfer(no(2), no(4), money("CAD", "1"))));
    row("post: comes to nothing", "\\$0.01 comes to nothing in EUR",
        posting(transfer(no(2), no(9), usd("0.01"))));
    row("post: too large", "'5 Wage' would become too large",
        posting(transfer(no(5), no(4), usd(huge))), posting(transfer(no(5), no(2), usd(huge))));
}

void tst_LedgerRefusals::repostRows()
{
    const char *fixed = "transaction 5 is reconciled and cannot be changed";
    const char *tied = "The accounts of the transaction [34] cannot be changed";
    row("repost: unknown", "number 77", reposting(77, transfer(no(2), no(4), usd("1"))));
    row("repost: reconciled", fixed, reposting(5, transfer(no(4), no(6), usd("50"))));
    row("repost: leaves a closed account", "'7 Old' is closed",
        reposting(6, transfer(no(4), no(2), usd("10"))));
    row("repost: enters a closed account", "'7 Old' is closed",
        reposting(2, transfer(no(2), no(7), usd("10"))));
    row("repost: an opening elsewhere", "transaction 1 opened the account '2 Checking'",
        reposting(1, transfer(no(8), no(3), usd("100"))));
    row("repost: below its refunds", "transaction 3 .* \\$99.99, as \\$100.00",
        reposting(3, transfer(no(4), no(2), usd("99.99"))));
    row("repost: refunded, debit", tied, reposting(3, transfer(no(8), no(2), usd("800"))));
    row("repost: refunded, currency", "transaction 3 must stay in USD",
        reposting(3, transfer(no(4), no(2), money("EUR", "800"))));
    row("repost: refund, credit", tied, reposting(4, transfer(no(2), no(8), usd("100"))));
    row("repost: refund above the original", "\\$800.01 exceeds the \\$800.00 .* transaction 3",
        reposting(4, transfer(no(2), no(4), usd("800.01"))));
    row("repost: refund of nothing", "above zero, but is €0.00",
        reposting(4, transfer(no(2), no(4), money("EUR", "0"))));
    row("remove: unknown one", "number 77", [](Book &b) { b.ledger.remove(txn(77)); });
    row("remove: reconciled", fixed, [](Book &b) { b.ledger.remove(txn(5)); });
    row("remove: closed account", "'7 Old' is closed", [](Book &b) { b.ledger.remove(txn(6)); });
    row(
        "remove: closed credit", "'5 Wage' is closed", [](Book &b) { b.ledger.remove(txn(2)); },
        [](Book &b) { b.ledger.close(no(5)); });
    row("remove: refunded", "3 cannot .* \\$100.00 of it",
        [](Book &b) { b.ledger.remove(txn(3)); });
}

void tst_LedgerRefusals::statusAndRefundRows()
{
    const char *fixed = "transaction 5 is reconciled and cannot be changed";
    row("reconcile: one unknown", "number 77", [](Book &b) {
        b.ledger.reconcile(std::set{txn(2), txn(77)});
    });
    row("reconcile: not involved", "account 4 has no part in the transaction 2",
        [](Book &b) { b.ledger.reconcile(txn(2), no(4)); });
    row("unreconcile: unknown", "number 77", [](Book &b) { b.ledger.unreconcile(txn(77)); });
    row("clear: unknown", "number 77", [](Book &b) { b.ledger.clear(txn(77)); });
    row("clear: one side reconciled", fixed, [](Book &b) { b.ledger.clear(txn(5)); });
    row("clear: this side reconciled", fixed, [](Book &b) { b.ledger.clear(txn(5), no(6)); });
    row("clear: not involved", "account 2 has no part in the transaction 5",
        [](Book &b) { b.ledger.clear(txn(5), no(2)); });

    row("refund: unknown", "number 77", refunding(77, usd("1")));
    row("refund: of a refund", "4 is a refund of the transaction 3", refunding(4, usd("1")));
    row("refund: nothing", "above zero, but is \\$0.00", refunding(3, usd("0")));
    row("refund: too much", "\\$700.01 exceeds the \\$700.00 .* 3", refunding(3, usd("700.01")));
    row("refund: too many euros", "\\$700.02 exceeds .*700.00",
        refunding(3, money("EUR", "350.01")));
    row("refund: no rate", "CA\\$1.00 .*into USD", refunding(3, money("CAD", "1")));
    row("refund: closed account", "'7 Old' is closed", refunding(6, usd("1")));
}

static const kiv::test::Suite<tst_LedgerRefusals> suite;
#include "tst_ledger_refusals.moc"
