// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "cases.h"

#include "books.h"

#include "interchange/account_paths.h"
#include "interchange/duplicates.h"
#include "interchange/journal_reader.h"
#include "interchange/ledger_writer.h"

#include "accounting/ledger_replay.h"

#include <rapidcheck.h>

using namespace kiv::interchange;
using namespace kiv::test;
using kiv::accounting::Account;
using kiv::accounting::AccountNumber;
using kiv::accounting::GeneralLedger;
using kiv::accounting::Transaction;
using kiv::accounting::TransactionStatuses;
using kiv::foundation::toQString;

namespace {

JournalOptions optionsOf(const Case &given)
{
    JournalOptions options;
    options.preferred = numira::toCurrency("USD");
    options.decimalMark = given.mark();
    options.encoding = given.option("encoding", options.encoding);
    for (const auto &[name, value] : given.options) {
        const QString part = value.section(u'=', 1);
        if (name == u"root")
            options.roots[value.section(u'=', 0, 0)] = typeOfRoot(part);
        else if (name == u"commodity")
            options.commodities[value.section(u'=', 0, 0)] = numira::toCurrency(part.toStdString());
        else if (name == u"currency")
            options.currency = numira::toCurrency(value.toStdString());
        else if (name == u"preferred")
            options.preferred = numira::toCurrency(value.toStdString());
    }
    if (!given.others.empty())
        options.include = [&given](const QString &path, const Place &) {
            return given.others.at(path);
        };
    return options;
}

/// The accounts, "2: 2026-01-01 expense:Food < asset:Cash 5.00 USD !* 'text'" of each
/// transaction, and the notices.
QString linesOf(const Draft &draft)
{
    const auto path = [](const DraftAccount &account) {
        return kiv::accounting::toQString(account.type) + u':' + account.names.join(u':');
    };
    const auto mark = [](TransactionStatuses status) { return u"-!*"_s[int(status)]; };
    QStringList lines;
    for (const DraftAccount &account : draft.accounts)
        lines += path(account) + u' ' + toQString(account.currency) +
                 (account.number ? u" as "_s + presentationText(*account.number) : QString());
    lines = {u"accounts "_s + lines.join(u", "_s)};
    for (const DraftTransaction &t : draft.transactions)
        lines += (t.place.file == u"/f/j" ? QString() : t.place.file + u' ') +
                 QString::number(t.place.line) + u": "_s + t.date.toString(Qt::ISODate) + u' ' +
                 path(draft.accounts[t.debit]) + u" < "_s + path(draft.accounts[t.credit]) + u' ' +
                 withCode(t.amount) + u' ' + mark(t.debitStatus) + mark(t.creditStatus) + u" '"_s +
                 t.text + u'\'';
    return (lines + draft.notices).join(u'\n');
}

/// Each transaction of the file is one of the draft, or told of.
void requireAllRead(const QByteArray &journal, const Draft &draft)
{
    static const QRegularExpression aside(u"(?ms)^(comment|test)\\s*\\n.*?^end \\1\\s*$"_s);
    static const QRegularExpression head(u"(?m)^[0-9]"_s);
    static const QRegularExpression told(u"(?m)^([0-9]+) transaction"_s);
    std::set<qsizetype> lines;
    for (const DraftTransaction &transaction : draft.transactions)
        lines.insert(transaction.place.line);
    if (QString::fromUtf8(journal).remove(aside).count(head) !=
        std::ssize(lines) + told.match(draft.notices.join(u'\n')).captured(1).toInt())
        throw std::runtime_error("Not all of it is read: " + journal.toStdString());
}

/// Opens and posts what the journal comes to.
void take(const QByteArray &journal, GeneralLedger &ledger)
{
    kiv::accounting::SequentialAccountNumberGenerator generator;
    const Draft draft = readJournal(journal, u"j"_s, optionsOf({}));
    requireAllRead(journal, draft);
    const AccountPlan plan = planAccounts(draft, ledger.accounts());
    for (const Account &account : plan.missing)
        ledger.add(account, generator, day("2026-01-01"));
    for (const DraftTransaction &t : draft.transactions)
        ledger.post(Transaction(t.date, plan.codes[t.debit], plan.codes[t.credit], t.amount,
                                t.text.isEmpty() ? std::nullopt : std::optional(t.text))
                        .withStatuses(t.debitStatus, t.creditStatus));
}

/// What is written is read, known again, and written as it was.
void requireSameAgain(const std::set<Account> &accounts, const std::vector<Transaction> &wanted)
{
    const QByteArray journal = writeJournal(accounts, wanted);
    GeneralLedger read;
    take(journal, read);
    if (writeJournal(read.accounts(), read.transactions()) != journal)
        throw std::runtime_error("It is written otherwise: " + journal.toStdString());
    Duplicates known(read.transactions());
    if (!std::ranges::all_of(wanted, [&](const auto &one) { return known.take(one); }))
        throw std::runtime_error("It is not known again: " + journal.toStdString());
}

} // namespace

class TestJournal : public QObject {
    Q_OBJECT

private slots:
    void pathsOfDeepAccountsAreCut()
    {
        constexpr std::uint32_t count = 200;
        kiv::accounting::LedgerReplay replay;
        for (std::uint32_t number = 1; number <= count; ++number)
            replay.addAccount(
                kiv::accounting::AccountTypes::Asset,
                {no(number), u"A"_s, number == 1 ? std::nullopt : std::optional(no(number - 1))},
                numira::toCurrency("USD"), false);
        std::set<QString> paths;
        for (const auto &[number, path] : accountPaths(replay.finish().accounts()))
            paths.insert(path.section(u':', 0, 99));
        QCOMPARE(paths.size(), count);
    }

    void journals_data() { addCases(u"journals"_s); }
    void journals()
    {
        QFETCH(Case, given);
        compare(given, outcome([&] {
                    return linesOf(readJournal(given.text, u"/f/j"_s, optionsOf(given)));
                }));
    }

    /// Whatever is read ends with books that balance, or with a refusal.
    void damagedJournalsAreReadOrRefused()
    {
        const auto [sound, refused] =
            refusedOfDamaged(u"journals"_s, 60, {"Assets", "$", "2026", "@", "  ", "\n"},
                             {"(", "\"", "= $1", "@@", "\xff", "include x\n", "1,000", ";:", "~ "},
                             [](const Case &, const QByteArray &journal) {
                                 GeneralLedger ledger;
                                 take(journal, ledger);
                                 requireSameAgain(ledger.accounts(), ledger.transactions());
                                 return QString();
                             });

        QVERIFY(sound > 100 && refused > 100);
    }

    /// Those above others count, and a child of its own for each posting.
    void moreAccountsThanMayBeAreRefused()
    {
        QByteArray journal("2026-01-01\n Income:I  $-30000\n");
        for (int account = 0; account < 30'000; ++account)
            journal += " Assets:" + QByteArray::number(account) + "  $1\n";
        const auto read = [&] { return linesOf(readJournal(journal, u"j"_s, optionsOf({}))); };
        QVERIFY(outcome(read).startsWith(u"refused: 'j', line 30000: A journal can have at most"));
    }

    void ledgers_data() { addCases(u"ledgers"_s); }
    void ledgers()
    {
        QFETCH(Case, given);
        if (given.file == u"plans") {
            GeneralLedger ledger;
            take(given.text, ledger);
            for (const auto &[name, journal] : given.others)
                take(journal, ledger);
            return compare(given, writeJournal(ledger.accounts(), ledger.transactions()));
        }
        const Books books(given.text);
        if (given.file == u"journal")
            return compare(given, writeJournal(books.accounts, books.transactions));
        if (given.file == u"table")
            return compare(given, writeCsv(books.accounts, books.transactions).replace('\r', ""));
        const uint number = given.option("account").toUInt();
        std::set<AccountNumber> kept;
        for (const QString &text : given.option("kept").split(u',', Qt::SkipEmptyParts))
            kept.insert(no(text.toUInt()));
        Duplicates known(books.transactions, number ? std::optional(no(number)) : std::nullopt,
                         kept);
        QStringList found;
        const Books imported(given.others.at(u"imported"_s));
        for (const Transaction &transaction : imported.transactions)
            found += (known.take(transaction) ? u"known: "_s : u"new: "_s) +
                     transaction.description().value();
        for (qsizetype at = 0; at < found.size(); ++at) {
            if (found[at].startsWith(u"new") &&
                known.takeTransfer(imported.transactions[std::size_t(at)]))
                found[at].replace(0, 3, u"transfer"_s);
        }
        compare(given, found.join(u'\n'));
    }

    /// Each "?" is any of the names.
    void whatIsWrittenIsReadAgain()
    {
        const QString books = u"40 asset USD ?\n33/40 asset JPY ?\n26/40 asset USD ?\n"
                              "19 income USD ?\n12/19 income JPY ?\n5 equity USD ?\n"
                              "2026-01-05 26<40 0.01 USD -! ?\n2026-01-04 40<19 12.345 USD *- ?\n"
                              "2026-01-06 33<12 9.99 JPY !* ?\n2026-01-06 5<26 7 USD -- ?\n"_s;
        QVERIFY(rc::check("journal of a journal", [&books] {
            QString text = books;
            while (text.contains(u'?'))
                text.replace(text.indexOf(u'?'), 1,
                             *rc::gen::element(u"Food"_s, u"A:B"_s, u"two  blanks"_s, u"; none"_s,
                                               u"(virtual)"_s, u"* star"_s, u"12.00 USD"_s,
                                               u"\"q\""_s, u"Zürich 食費"_s, u"number: 9"_s,
                                               withBankId({}, u"7"_s)));
            const Books made(text);
            requireSameAgain(made.accounts, made.transactions);
        }));
    }
};

static const kiv::test::Suite<TestJournal> suite;
#include "tst_journal.moc"
