// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/accounting.h"
#include "support/damage.h"

#include "interchange/duplicates.h"
#include "interchange/journal_reader.h"
#include "interchange/ledger_writer.h"

#include "foundation/presentation.h"

#include <QtTest/QtTest>

#include <rapidcheck.h>

using namespace kiv::interchange;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
using kiv::accounting::Account;
using kiv::accounting::AccountCode;
using kiv::accounting::AccountTypes;
using kiv::accounting::Transaction;
using kiv::accounting::TransactionStatuses;

namespace {

JournalOptions options()
{
    JournalOptions options;
    options.preferred = numira::toCurrency("USD");
    options.commodities = {{u"Mark"_s, numira::toCurrency("EUR")}};
    options.roots = {{u"kasse"_s, AccountTypes::Asset}};
    return options;
}

QString pathOf(const DraftAccount &account)
{
    return kiv::accounting::toQString(account.type) + u':' + account.names.join(u':');
}

/// "2026-01-01 expense:Food<asset:Cash 5.00 USD text !*", a line a transaction.
QString linesOf(const Draft &draft)
{
    QStringList lines;
    for (const DraftTransaction &t : draft.transactions) {
        const auto mark = [](TransactionStatuses status) {
            return u"-!*"_s[static_cast<int>(status)];
        };
        lines += u"%1 %2<%3 %4 %5 %6"_s.arg(
            t.date.toString(Qt::ISODate), pathOf(draft.accounts[t.debit]),
            pathOf(draft.accounts[t.credit]),
            kiv::foundation::presentationText(t.amount.code()) + u' ' +
                kiv::foundation::toQString(t.amount),
            t.text, QString(mark(t.debitStatus)) + mark(t.creditStatus));
    }
    return lines.join(u'\n');
}

/// The books that a ledger would hold after the accounts and transactions.
struct Books {
    kiv::accounting::GeneralLedger ledger;
    kiv::accounting::SequentialAccountNumberGenerator generator;

    void take(const Draft &draft)
    {
        const AccountPlan plan = planAccounts(draft, ledger.accounts());
        for (const Account &account : plan.missing)
            ledger.add(account, generator, day("2026-01-01"));
        for (const DraftTransaction &t : draft.transactions)
            ledger.post(Transaction(t.date, plan.codes[t.debit], plan.codes[t.credit], t.amount,
                                    t.text.isEmpty() ? std::nullopt : std::optional(t.text))
                            .withStatuses(t.debitStatus, t.creditStatus));
    }
    [[nodiscard]] std::vector<Transaction> transactions() const { return ledger.transactions(); }
};

const char *const sample = "; kiv\n"
                           "account Assets:Cash\n"
                           "P 2026-01-01 AAPL $30\n"
                           "2026-01-02 * (7) Shop  ; how: by card\n"
                           "    Expenses:Food      $5.00\n"
                           "    ! Assets:Cash\n"
                           "2026/1/3 Broker\n"
                           "    Assets:Shares  2 AAPL @ $30.00\n"
                           "    Assets:Cash   $-60.00 = $-65.00\n";

} // namespace

class TestJournal : public QObject {
    Q_OBJECT

private slots:
    void entriesBecomePairs_data()
    {
        QTest::addColumn<QByteArray>("journal");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, const char *journal, const char *lines) {
            QTest::newRow(name) << QByteArray(journal) << QString::fromUtf8(lines);
        };
        row("an elided amount and a note", sample,
            "2026-01-02 expense:Food<asset:Cash USD 5.00 (7) Shop; how: by card *!\n"
            "2026-01-03 asset:Shares<asset:Cash USD 60.00 Broker --");
        row("three postings are two pairs",
            "2026-01-01 Shop\n Expenses:Food  1 USD\n Expenses:Soap  2.50 USD ; soft\n"
            " Liabilities:Card  -3.50 USD",
            "2026-01-01 expense:Food<liability:Card USD 1.00 Shop --\n"
            "2026-01-01 expense:Soap<liability:Card USD 2.50 Shop; soft --");
        row("an account on both sides keeps the difference",
            "2026-01-01\n Assets:Cash  10 USD\n Assets:Cash  -4 USD\n Income:Job  -6 USD",
            "2026-01-01 asset:Cash<income:Job USD 6.00  --");
        row("one currency for another", "2026-01-01 x\n Assets:A  100 EUR @ 1.10 USD\n Assets:B",
            "2026-01-01 equity:Conversion:USD<asset:B USD 110.00 x --\n"
            "2026-01-01 asset:A<equity:Conversion:EUR EUR 100.00 x --");
        row("a price that does not come out even",
            "2026-01-01 x\n Assets:A  3.5 EUR @ 1.11 USD\n Assets:B  -3.89 USD",
            "2026-01-01 equity:Conversion:USD<asset:B USD 3.89 x --\n"
            "2026-01-01 asset:A<equity:Conversion:EUR EUR 3.50 x --");
        row("what was sold for a total, under other names",
            "2026-01-01 x\n Kasse:A  -5 Mark @@ $6\n Kasse:B",
            "2026-01-01 asset:B<equity:Conversion:USD USD 6.00 x --\n"
            "2026-01-01 equity:Conversion:EUR<asset:A EUR 5.00 x --");
        row("an exchange without a price", "2026-01-01 x\n Assets:A  5 AAPL\n Assets:B  $-90",
            "2026-01-01 asset:A<asset:B USD 90.00 x --");
        row("virtual postings",
            "2026-01-01 x\n Assets:A  $1\n Income:I\n [Assets:B]  $2\n [Assets:A]  $-2\n"
            " (Liabilities:L)  $-3",
            "2026-01-01 equity:Virtual<liability:L USD 3.00 x --\n"
            "2026-01-01 asset:B<income:I USD 1.00 x --\n"
            "2026-01-01 asset:B<asset:A USD 1.00 x --");
        row("an automated posting",
            "= /^income/\n (Liabilities:Tithe)  0.12\n= come:Job$\n (Assets:B)  *-0.5\n"
            " (Assets:C)  $1\n2026-01-01 Job\n Assets:A  $200\n Income:Job",
            "2026-01-01 asset:A<income:Job USD 200.00 Job --\n"
            "2026-01-01 equity:Virtual<liability:Tithe USD 24.00 Job --\n"
            "2026-01-01 asset:B<equity:Virtual USD 100.00 Job --\n"
            "2026-01-01 asset:C<equity:Virtual USD 1.00 Job --");
        row("a balance that is assigned, in another notation",
            "decimal-mark ,\nY 2026\n01/05 a\n Assets:A  1.000,50 €\n Income:I\n"
            "1/6 b\n Assets:A  = 900,50 €\n Expenses:E",
            "2026-01-05 asset:A<income:I EUR 1000.50 a --\n"
            "2026-01-06 expense:E<asset:A EUR 100.00 b --");
        row("commodity formats, applied tags and block comments",
            "commodity 1.000,00 EUR\ncomment\nanything\nend comment\napply tag trip: yes\n"
            "2026-01-01 x\n A  2.000,00 EUR\n Equity  -2000 EUR\nend tag\n"
            "account A  ; type: Liability",
            "");
        row("directives and remarks that change nothing, and a day of their year",
            "  ; by itself\ntest\nx\nend test\npayee Shop\n  ; x\ntag trip\nN $\n"
            "account Assets:A  ; of mine\n  note x\n  payee y\n  default\n"
            "commodity \"A 1\"\n  format 1.000,00 \"A 1\"\n  nomarket\n  default\n  ; x\n"
            "commodity JPY 1.000.000\ncommodity 1000 KRW\ncommodity 1,000 BHD\n"
            "apply tag t\nend apply tag\napply tag u: 1\nend\n"
            "commodity KWD 1.000,000\nD $1,000.00\nY2026\n"
            "01/05=1/6 x\n Assets:A  +1,500 KWD\n Assets:B\n (Assets:C)  5\n",
            "2026-01-05 asset:C<equity:Virtual USD 5.00 x --\n"
            "2026-01-05 asset:A<asset:B KWD 1.500 x --");
        row("a mark and a currency for all, a remark that stands twice",
            "decimal-mark .\n!D $1000.00\n2026-01-05 x\n Assets:A  1,234 ; c\n Assets:B  ; c",
            "2026-01-05 asset:A<asset:B USD 1234.00 x; c --");
        row("aliases and parents",
            "alias a=Assets\nalias a:b=Assets:Bank\naccount Expenses:Food\n  alias food\n"
            "2026-01-01 x\n a:b:c  $3\n a:d  $-1\n food  $-2\n"
            "end aliases\napply account Assets\napply account Cash\naccount E  ; number: x, "
            "currency: y,type:X\n"
            "2026-01-02 y\n E  $1\n F\nend\nend apply account\n"
            "2026-01-03 z\n Assets:A  $1\n Income:B",
            "2026-01-01 asset:Bank:c<asset:d USD 1.00 x --\n"
            "2026-01-01 asset:Bank:c<expense:Food USD 2.00 x --\n"
            "2026-01-02 expense:Cash:E<asset:Cash:F USD 1.00 y --\n"
            "2026-01-03 asset:A<income:B USD 1.00 z --");
        row("a remark too long to be kept",
            ("2026-01-01 x\n Assets:A  $1 ; " + QByteArray(2001, 'c') + "\n Assets:B").constData(),
            "2026-01-01 asset:A<asset:B USD 1.00 x --");
        row("an assertion that holds by day and not by line",
            "2026-01-02 b\n Assets:A  $1 = $3\n Income:I\n2026-01-01 a\n Assets:A  $2 = $2\n"
            " Income:I",
            "2026-01-02 asset:A<income:I USD 1.00 b --\n"
            "2026-01-01 asset:A<income:I USD 2.00 a --");
    }
    void entriesBecomePairs()
    {
        QFETCH(QByteArray, journal);
        QFETCH(QString, lines);
        if (lines.isEmpty()) { // the account is declared too late
            QVERIFY_THROWS_EXCEPTION(ImportError, (void)readJournal(journal, u"j"_s, options()));
            journal = "account A  ; type: L\n" + journal;
            lines = u"2026-01-01 liability:A<equity:Equity EUR 2000.00 x; trip: yes --"_s;
        }
        QCOMPARE(linesOf(readJournal(journal, u"j"_s, options())), lines);
    }

    void refusals_data()
    {
        QTest::addColumn<QByteArray>("journal");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const QByteArray &journal,
                            const QByteArray &message) {
            QTest::newRow(name) << journal << QString::fromUtf8(message);
        };
        const QByteArray unsupported = "' cannot be imported.";
        for (const QByteArray directive :
             {"bucket Assets:A", "commodity EUR\nalias E", "payee A\nalias B", "Y 26",
              "decimal-mark x", "end tag", "end x", "apply account", "apply fixed A"}) {
            const QByteArrayList lines = directive.split('\n');
            row(directive, "\n" + lines.join("\n  "),
                "'j', line " + QByteArray::number(lines.size() + 1) + ": '" + lines.back() +
                    "' is neither a transaction nor a directive that can be imported; a ; at the "
                    "beginning of the line leaves it out.");
        }
        const QByteArray alias = "alias a=Assets:A\n";
        for (const QByteArray other : {"/a/=b", "a", "=a"})
            row("alias " + other, "alias " + other,
                "'j', line 1: 'alias " + other.split('=')[0] + unsupported);
        row("an alias and a parent", alias + "apply account Personal",
            "'j', line 2: 'apply account Personal" + unsupported);
        row("a parent and an alias", "apply account Personal\n" + alias,
            "'j', line 2: 'alias a" + unsupported);
        row("too long a parent", "apply account " + QByteArray(200, 'A'),
            "'j', line 1: 'apply account " + QByteArray(46, 'A') + "…" + unsupported);
        for (const QByteArray query : {"= desc:Job", "= /A/ and /B/", "= 'Assets:A'"})
            row(query, query + "\n (Assets:B)  1\n", "'j', line 1: '" + query + unsupported);
        for (const QByteArray amount : {"($1 * 2)", "*$2", "== $1", "=* $1", "{$1}", "@ $-1"}) {
            const bool isBehind = QByteArray("{@").contains(amount[0]);
            row(amount,
                "2026-01-01 x\n Assets:A  " + QByteArray(isBehind ? "1 AAPL " : "") + amount +
                    "\n Assets:B\n",
                "'j', line 2: '" + amount + unsupported);
        }
        for (const QByteArray amount : {"", "1 @ $2", "1 = $1"})
            row("in a rule: " + amount, "= A\n (Assets:A)  " + amount,
                "'j', line 2: 'Assets:A" + unsupported);
        row("a kind of account that is none", "account A  ; type: Z\n",
            "'j', line 1: 'type: Z" + unsupported);
        row("a number in our own journal", "; kiv journal, version 1\naccount A\n ; number: x\n",
            "'j', line 2: 'number: x" + unsupported);
        row("a currency in our own journal",
            "; kiv journal, version 1\naccount A\n ; currency: x\n",
            "'j', line 2: 'x' is not the ISO 4217 code of a currency.");
        row("an include without a folder", "include other.journal\n",
            "'j', line 1: 'other.journal' is not included: there is no folder for it.");
        row("a day that does not exist", "2026-02-30 x\n",
            "'j', line 1: '2026-02-30' is not a day written as YYYY-MM-DD.");
        row("what is left", "2026-01-01 x\n Assets:A  $3\n Assets:B  $-2\n",
            "'j', line 1: The transaction does not balance: 1 USD are left.");
        row("two without an amount", "2026-01-01 x\n Assets:A\n Assets:B\n",
            "'j', line 3: More than one posting of the transaction has no amount.");
        row("no postings", "2026-01-01 x\n",
            "'j', line 1: The transaction has fewer than two postings.");
        row("an unknown root", "2026-01-01 x\n Aktiva:A  $1\n Assets:B\n",
            "'j', line 2: Accounts begin with Assets, Liabilities, Equity, Income or Expenses; "
            "tell "
            "what 'Aktiva' is with --root, like --root 'Aktiva=asset'.");
        row("what is no currency", "2026-01-01 x\n Assets:A  1 AAPL\n Assets:B\n",
            "'j', line 2: 'AAPL' is not a currency; give its cost behind @, or say which currency "
            "it "
            "is with --commodity, like --commodity 'AAPL=USD'.");
        row("no currency at all", "2026-01-01 x\n Assets:A  1\n Assets:B\n",
            "'j', line 2: '1' has no currency; name one with --currency.");
        row("a comma that could be either", "2026-01-01 x\n Assets:A  $1,234\n Assets:B\n",
            "'j', line 2: '1,234' can be read in two ways; name the decimal mark with --decimal.");
        row("a sample with more behind it", "commodity $1000.00 x\n",
            "'j', line 1: '$1000.00 x' is not an amount.");
        row("two currencies that both rise", "2026-01-01 x\n Assets:A  $1\n Assets:B  1 EUR\n",
            "'j', line 1: The transaction does not balance: 1 EUR, 1 USD are left.");
        row("shares in two places for one price",
            "2026-01-01 x\n Assets:A  1 ZORK\n Assets:B  2 ZORK\n Assets:C  $-3\n",
            "'j', line 2: 'ZORK' is not a currency; give its cost behind @, or say which currency "
            "it is with --commodity, like --commodity 'ZORK=USD'.");
        row("a virtual posting of nothing", "2026-01-01 x\n (Assets:A)\n",
            "'j', line 2: The entry has no amount.");
        row("an assertion without a currency", "2026-01-01 x\n Assets:A  $1 = 0\n Assets:B\n",
            "'j', line 2: '0' has no currency; name one with --currency.");
        row("a quote without an end", "2026-01-01 x\n Assets:A  1 \"x\n",
            "'j', line 2: '\"x' begins here and does not end.");
        row("an assertion", "2026-01-01 x\n Assets:A  $1 = $2\n Assets:B\n",
            "'j', line 2: The balance of 'Assets:A' should be 2 USD here, and is 1 USD.");
        row("a comment without an end", "\ncomment\nx\n",
            "'j', line 2: 'comment' begins here and does not end.");
        row("an indented line by itself", "\n  Assets:A  $1\n",
            "'j', line 2: The line is indented, but there is nothing that it belongs to.");
        row("a wrong encoding", "; a\n2026-01-01 caf\xe9\n",
            "'j', line 2: This is not valid UTF-8; name the file's encoding with --encoding.");
        row("a zero byte", "; a\n; b\0c", "");
        row("too large an amount",
            "2026-01-01 x\n Assets:A  $99999999999999999999999999999\n Assets:B\n",
            "'j', line 2: The amounts here cannot be kept exactly.");
        // What is cheap to write and dear to read.
        row("an account too deep",
            "2026-01-01 x\n Assets" + QByteArray(":aaaaaaaaa").repeated(100) + "  $1\n Income:I",
            "'j', line 2: 'Assets:aaaaaaaaa:aaaaaaaaa:aaaaaaaaa:aaaaaaaaa:aaaaaaaaa:aaa…' cannot "
            "be imported.");
        row("tags within tags", QByteArray("apply tag a\n").repeated(102),
            "'j', line 102: Tags are nested too deeply.");
        row("a bad pattern", "= /(/\n (Assets:A)  1\n",
            "'j', line 1: '(' is not a pattern of account names.");
        row("a long pattern", "= " + QByteArray(201, 'A') + "\n (Assets:A)  1\n",
            "'j', line 1: '" + QByteArray(60, 'A') + "…' is not a pattern of account names.");
        row("many patterns", QByteArray("= A\n (Assets:A)  1\n").repeated(101),
            "'j', line 201: 'A' is not a pattern of account names.");
        row("a pattern without an end",
            "= /(x+x+)+[0-9]/\n (Assets:A)  1\n2026-01-01\n Assets:" + QByteArray(90, 'x') +
                "  $1\n Assets:B\n",
            "'j', line 1: '(x+x+)+[0-9]' is not a pattern of account names.");
        row("what moves nothing, many times",
            "2026-01-01\n" + QByteArray(" A  $0\n").repeated(270'000),
            "'j', line 1: A budget holds no more than 65535 transactions.");
        row("a line too long", QByteArray(65'537, ';'),
            "'j', line 1: The line has more than 65536 characters.");
    }
    void refusals()
    {
        QFETCH(QByteArray, journal);
        QFETCH(QString, message);
        if (message.isEmpty()) {
            journal = QByteArray("; a\n; b\0c", 8);
            message =
                u"'j', line 2: This is not valid UTF-8; name the file's encoding with --encoding."_s;
        }
        try {
            (void)readJournal(journal, u"j"_s, options());
            QFAIL("It was not refused.");
        } catch (const ImportError &error) {
            QCOMPARE(error.message(), message);
        }
    }

    void aJournalOfTooManyTransactionsEnds()
    {
        QByteArray journal;
        for (int i = 0; i <= transactionsMax; ++i)
            journal += "2026-01-01\n Assets:A  $1\n Assets:B\n";
        try {
            (void)readJournal(journal, u"j"_s, options());
            QFAIL("It was not refused.");
        } catch (const ImportError &error) {
            QCOMPARE(error.place().line, transactionsMax * 3 + 1);
        }
    }

    void filesThatIncludeMoreAndMoreEnd()
    {
        int files = 0;
        JournalOptions spreading = options();
        spreading.include = [&files](const QString &path, const Place &) {
            ++files;
            return path.size() < 7 ? ("include x" + path.toUtf8() + '\n').repeated(10)
                                   : QByteArray();
        };
        QVERIFY_THROWS_EXCEPTION(ImportError, (void)readJournal("include x\n", u"j"_s, spreading));
        QCOMPARE(files, 1000);
    }

    /// What a file says of its lines ends with it; the user's word goes first.
    void filesThatIncludeOthersKeepTheirOwnWays()
    {
        JournalOptions own = options();
        own.currency = numira::toCurrency("EUR");
        own.include = [](const QString &path, const Place &place) {
            return path == u"/b"_s
                       ? QByteArray("decimal-mark ,\nY 2025\nD $1,00\napply tag t\n"
                                    "include c\n")
                       : "01-02 " + place.file.toUtf8() + "\n Assets:A  1,000\n Assets:B\n";
        };
        const QByteArray journal = "Y 2026\ninclude /b\n01-02 x\n Assets:A  1.000\n Assets:B\n";
        QCOMPARE(linesOf(readJournal(journal, u"/f/a"_s, own)),
                 u"2025-01-02 asset:A<asset:B USD 1.00 /b; t --\n"
                 "2026-01-02 asset:A<asset:B EUR 1.00 x --"_s);
        own.decimalMark = DecimalMark::Point;
        QCOMPARE(linesOf(readJournal("D $1.00\n" + journal, u"/f/a"_s, own)),
                 u"2025-01-02 asset:A<asset:B USD 1000.00 /b; t --\n"
                 "2026-01-02 asset:A<asset:B USD 1.00 x --"_s);
    }

    void accountsInTwoCurrenciesAndTakenNumbers()
    {
        Books books;
        books.take(
            readJournal("2026-01-01\n Assets:Bank:A  5 USD\n Income:I\n", u"j"_s, options()));
        books.take(
            readJournal("2026-01-01\n Assets:Bank:A  7 EUR\n Income:I\n", u"j"_s, options()));
        QStringList paths;
        for (const Account &account : books.ledger.accounts())
            paths += presentationText(account.code()) + u' ' +
                     kiv::foundation::toQString(account.balance());
        QCOMPARE(paths, (QStringList{u"1 Bank 0.00"_s, u"2 A 5.00"_s, u"3 I 5.00"_s,
                                     u"4 A (EUR) 7.00"_s, u"5 I (EUR) 7.00"_s}));
    }

    void whatIsWrittenIsReadAgain()
    {
        const bool holds = rc::check("journal of a journal", [] {
            Books books;
            const auto names = *rc::gen::container<std::vector<std::string>>(
                6, rc::gen::element<std::string>("Food", "A:B", "two  blanks", "; none",
                                                 "(virtual)", "* star", "12.00 USD", "\"q\"",
                                                 "Zürich 食費", "number: 9"));
            std::vector<AccountCode> codes;
            for (std::size_t i = 0; i < names.size(); ++i) {
                const auto type = static_cast<AccountTypes>(*rc::gen::inRange(1, 6));
                const auto currency = *rc::gen::element<std::string>("USD", "JPY", "KWD");
                // Under the last one if it may be, whose number is greater.
                std::optional<kiv::accounting::AccountNumber> parent;
                if (i > 0 && books.ledger.ledger(codes.back().number()).type() == type)
                    parent = codes.back().number();
                const AccountCode code(no(static_cast<std::uint32_t>(7 * (6 - i) - 3)),
                                       QString::fromStdString(names[i]), parent);
                books.ledger.add(Account(type, code, money(currency.c_str(), "0"), false),
                                 books.generator, day("2026-01-01"));
                codes.push_back(code);
            }
            for (int i = *rc::gen::inRange(0, 20); i > 0; --i) {
                const auto debit = *rc::gen::elementOf(codes);
                const auto credit = *rc::gen::elementOf(codes);
                const auto currency = books.ledger.ledger(debit.number()).balance().code();
                if (debit == credit ||
                    books.ledger.ledger(credit.number()).balance().code() != currency)
                    continue;
                const auto status = static_cast<TransactionStatuses>(*rc::gen::inRange(0, 3));
                const numira::Money amount(
                    currency, numira::Decimal(*rc::gen::inRange(1, 10'000'000)).scaled(1, 100));
                books.ledger.post(Transaction(day("2026-01-01").addDays(i), debit, credit, amount,
                                              QString::fromStdString(*rc::gen::elementOf(names)))
                                      .withStatuses(status, TransactionStatuses::None));
            }
            const QByteArray journal = writeJournal(books.ledger.accounts(), books.transactions());
            Books read;
            read.take(readJournal(journal, u"j"_s, options()));
            const auto before = books.ledger.accounts();
            RC_ASSERT(read.ledger.accounts().size() == before.size());
            for (const Account &account : before) {
                const auto again = read.ledger.ledger(account.code().number());
                RC_ASSERT(again.type() == account.type());
                RC_ASSERT(again.balance() == account.balance());
            }
            // The second journal says the same as the first.
            RC_ASSERT(writeJournal(read.ledger.accounts(), read.transactions()) == journal);
            // Whatever stands in the books is found to be there.
            Duplicates duplicates(read.transactions());
            for (const Transaction &transaction : books.transactions())
                RC_ASSERT(duplicates.take(transaction));
        });
        QVERIFY(holds);
    }

    /// Whatever is read ends with books that balance, or with a refusal.
    void damagedJournalsAreReadOrRefused()
    {
        QRandomGenerator random(20260131);
        const QByteArrayList own{"Assets", "$", "2026", "@", "  ", "\n"};
        const QByteArrayList odd{"(",           "\"",    "= $1", "@@", "\xff",
                                 "include x\n", "1,000", ";:",   "~ "};
        int refused = 0;
        for (int run = randomRuns(2000); run > 0; --run) {
            try {
                Books().take(readJournal(damaged(sample, own, odd, random), u"j"_s, options()));
            } catch (const ImportError &) {
                ++refused;
            }
        }
        QVERIFY(refused > 0);
    }
};

QTEST_APPLESS_MAIN(TestJournal)
#include "tst_journal.moc"
