// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "cases.h"

#include "interchange/account_paths.h"
#include "interchange/camt_reader.h"
#include "interchange/csv_guess.h"
#include "interchange/csv_table.h"
#include "interchange/duplicates.h"
#include "interchange/html_report.h"
#include "interchange/journal_reader.h"
#include "interchange/ledger_writer.h"
#include "interchange/mt940_reader.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"
#include "interchange/statement_reader.h"

#include "budgeting/item_account.h"
#include "foundation/streams.h"

using namespace kiv::interchange;
using namespace kiv::accounting;
using kiv::foundation::escaped;
using kiv::foundation::toQString;

namespace {

numira::Currency currency(const QString &code)
{
    return numira::toCurrency(code.toStdString());
}

/// " 2026-01-06", and nothing for the day that most cases have.
QString unless(const char *usual, QDate date)
{
    const QString text = date.toString(Qt::ISODate);
    return text == QLatin1String(usual) ? QString() : u' ' + text;
}

std::optional<QString> encodingOf(const Case &given)
{
    const auto found = given.options.constFind(u"encoding"_s);
    return found == given.options.constEnd() ? std::nullopt : std::optional(*found);
}

JournalOptions optionsOf(const Case &given)
{
    JournalOptions options{.preferred = currency(given.options.value(u"preferred"_s, u"USD"_s))};
    options.decimalMark = given.mark();
    options.encoding = encodingOf(given);
    options.roots[u"kasse"_s] = kiv::accounting::AccountTypes::Asset;
    options.commodities[u"Mark"_s] = currency(u"EUR"_s);
    if (given.options.contains(u"currency"_s))
        options.currency = currency(given.options.value(u"currency"_s));
    if (!given.others.empty())
        options.include = [&given](const QString &path, const Place &) {
            return given.others.at(path);
        };
    return options;
}

QString linesOf(const Draft &draft, bool withAccounts)
{
    const auto path = [](const DraftAccount &account) {
        return kiv::accounting::toQString(account.type) + u':' + account.names.join(u':');
    };
    QStringList accounts;
    for (const DraftAccount &account : draft.accounts)
        accounts += path(account) + u' ' + toQString(account.currency) +
                    (account.number ? u" as "_s + presentationText(*account.number) : QString());
    QStringList lines;
    if (withAccounts)
        lines += u"accounts "_s + accounts.join(u", "_s);
    for (const DraftTransaction &t : draft.transactions) {
        const QString marks = QString(u"-!*"[int(t.debitStatus)]) + u"-!*"[int(t.creditStatus)];
        lines += (t.place.file == u"/f/j" ? QString() : t.place.file + u' ') +
                 QString::number(t.place.line) + u':' + unless("2026-01-01", t.date) + u' ' +
                 path(draft.accounts[t.debit]) + u" < "_s + path(draft.accounts[t.credit]) + u' ' +
                 withCode(t.amount) + (marks == u"--" ? QString() : u' ' + marks) +
                 (t.text == u'x' ? QString() : u" '"_s + t.text + u'\'');
    }
    return (lines + draft.notices).join(u'\n');
}

/// Opens and posts what the journal comes to. Each transaction of the file is one of it,
/// or told of.
void take(const QByteArray &journal, GeneralLedger &ledger)
{
    static const QRegularExpression aside(u"(?ms)^(comment|test)\\s*\\n.*?(^end \\1\\s*$|\\z)"_s);
    static const QRegularExpression head(u"(?m)^[0-9]"_s);
    static const QRegularExpression told(u"(?m)^([0-9]+) transaction"_s);
    kiv::accounting::SequentialAccountNumberGenerator generator;
    const Draft draft = readJournal(journal, u"j"_s, optionsOf({}));
    const AccountPlan plan = planAccounts(draft, ledger.accounts());
    for (const Account &account : plan.missing)
        ledger.add(account, generator, day("2026-01-01"));
    std::set<qsizetype> lines;
    for (const DraftTransaction &t : draft.transactions) {
        lines.insert(t.place.line);
        ledger.post(Transaction(t.date, plan.codes[t.debit], plan.codes[t.credit], t.amount,
                                t.text.isEmpty() ? std::nullopt : std::optional(t.text))
                        .withStatuses(t.debitStatus, t.creditStatus));
    }
    if (QString::fromUtf8(journal).remove(aside).count(head) !=
        std::ssize(lines) + told.match(draft.notices.join(u'\n')).captured(1).toInt())
        throw std::runtime_error("Not all of it is read: " + journal.toStdString());
}

/// What is written is read, known again, and written as it was.
void requireSameAgain(const std::set<Account> &accounts, const std::vector<Transaction> &wanted)
{
    const QByteArray journal = writeJournal(accounts, wanted);
    GeneralLedger read;
    take(journal, read);
    Duplicates known(read.transactions());
    if (writeJournal(read.accounts(), read.transactions()) != journal ||
        !std::ranges::all_of(wanted, [&known](const auto &one) { return known.take(one); }))
        throw std::runtime_error("It is not the same again: " + journal.toStdString());
}

/// Each line that is expected, with what its transaction is found to be.
QString duplicatesOf(const Case &given)
{
    Duplicates known(Books(given.text).transactions);
    QStringList lines = given.expected.split(u'\n');
    for (QString &line : lines)
        line = line.section(u" = "_s, 0, -2);
    const auto imported = Books(QString::fromUtf8(unescaped(lines.join(u'\n')))).transactions;
    for (std::size_t at = 0; at < imported.size(); ++at)
        lines[qsizetype(at)] += known.take(imported[at]) ? u" = known"_s : u" = new"_s;
    return lines.join(u'\n');
}

QString linesOf(Statement statement)
{
    forgetSharedIds(statement.entries);
    const auto part = [](const char *before, const QString &text) {
        return text.isEmpty() ? QString() : QLatin1String(before) + text;
    };
    const auto balance = [](const auto &money) { return money ? toQString(*money) : QString(); };
    const QString head = toQString(statement.currency) + part(" ", statement.account) +
                         (statement.pending > 0 ? u", without what is pending"_s : QString()) +
                         part(", from ", balance(statement.opening)) +
                         part(", to ", balance(statement.closing)) +
                         part(" on ", statement.closingOn.toString(Qt::ISODate));
    QStringList lines;
    if (head != u"EUR" || statement.entries.empty())
        lines += head;
    for (const StatementEntry &entry : statement.entries)
        lines += QString::number(entry.place.line) + u':' + unless("2026-01-05", entry.date) +
                 u' ' +
                 (entry.amount.code() == statement.currency ? toQString(entry.amount)
                                                            : withCode(entry.amount)) +
                 (entry.valueDate == entry.date
                      ? QString()
                      : part(" from ", entry.valueDate.toString(Qt::ISODate))) +
                 part(" ", escaped(entry.text)) + part(" @", escaped(entry.payee)) +
                 part(" #", entry.bankId) +
                 part(" >", entry.isTransfer ? u'[' + entry.category + u']' : entry.category);
    return (lines + statement.notices).join(u'\n');
}

/// How many entries the text has by its looks alone: by tags, by lines with a day
/// among three cells, or by what marks parts and days between the ends of entries with an
/// amount.
qsizetype entriesIn(const QString &form, QString text)
{
    static const QRegularExpression lineWithDay(
        uR"((?m)^(?=.*[,;|\t"].*[,;|\t"])(.*[,;|\t"])?[ \t]*(\d{4}-\d\d-\d\d(?![-\d])|\d\d?/\d\d?/\d\d|\d\d([. ])\d\d\3\d{4}).*$)"_s);
    static const QRegularExpression end(u"\n[ \\t]*(\\^|!(?![OoCc]))"_s);
    static const QRegularExpression amount(u"\n[ \\t]*[TU]\\s*[-+.,\\d]"_s);
    static const QRegularExpression date(u"\n[ \\t]*D *\\d+ *[-./] *\\d"_s);
    static const QRegularExpression share(u"\n[ \\t]*S"_s);
    if (form == u"ofx")
        return text.remove(QRegularExpression(u"(?s)<!--.*?-->"_s))
            .count(QRegularExpression(u"(?i)<STMTTRNP?>"_s));
    if (form == u"camt")
        return text.count(QRegularExpression(u"<(\\w+:)?Ntry>"_s));
    text.replace(u'\r', u'\n');
    if (form == u"mt940")
        return text.count(QRegularExpression(u"(?m)^:61:[0-9 ]"_s));
    if (form.startsWith(u"csv"))
        return text.contains(u'\n') ? text.count(lineWithDay) : 0;
    qsizetype entries = 0;
    text.remove(QRegularExpression(u"!Type:Invst[^!]*|(?<=\n)S.*\n *D.*\n(?=[$E])"_s));
    for (const QString &record : text.split(end).filter(amount))
        entries += std::max(record.section(share, 0, 0).count(date), record.count(share));
    return entries;
}

CsvProfile profileOf(const Case &given)
{
    return readProfile(given.options.value(u"profile"_s, u"{}"_s).toUtf8(), u"p"_s);
}

QString guessOf(const Case &given)
{
    static const QRegularExpression place(u"^'f', line (\\d+): "_s);
    CsvGuess guess = guessCsv(given.text, u"f"_s, {profileOf(given), currency(u"EUR"_s)});
    QStringList lines{guess.summary};
    if (!guess.missing.isEmpty())
        lines += guess.missing.replace(place, u"\\1: "_s);
    for (const DayReading &one : guess.dayReadings) {
        if (guess.dayReadings.size() > 1)
            lines += one.written + u" as "_s + one.format.text() + u": "_s +
                     one.day.toString(Qt::ISODate);
    }
    return lines.join(u'\n');
}

/// What a file like the case's comes to.
std::vector<Statement> statementsOf(const Case &given, const QByteArray &bytes)
{
    if (given.file == u"ofx") {
        const auto all = readOfx(bytes, u"f"_s, {encodingOf(given), {}});
        const auto account = given.options.constFind(u"statement"_s);
        return account == given.options.constEnd()
                   ? all
                   : std::vector{chosenStatement(all, *account, u"f"_s)};
    }
    if (given.file == u"mt940")
        return readMt940(bytes, u"f"_s, {encodingOf(given), {}});
    if (given.file == u"camt")
        return readCamt(bytes, u"f"_s, {encodingOf(given), {}});
    const numira::Currency own = currency(given.options.value(u"currency"_s, u"EUR"_s));
    if (given.file.startsWith(u"csv")) {
        const CsvOptions options{profileOf(given), own};
        Statement read = readCsv(bytes, u"f"_s, options);
        const QByteArray guessed = toJson(guessCsv(bytes, u"f"_s, options).profile);
        if (readCsv(bytes, u"f"_s, {readProfile(guessed, u"p"_s), own}).entries != read.entries)
            throw std::runtime_error("Read otherwise with " + guessed.toStdString());
        return {std::move(read)};
    }
    QifOptions options{encodingOf(given), given.mark(), {}, own};
    if (const QString format = given.options.value(u"date-format"_s); !format.isEmpty())
        options.dateFormat = DateFormat(format, {});
    return readQif(bytes, u"f"_s, options);
}

/// Each entry of the text is read or told to be left out; what is pending may have no day.
void requireWhole(const Case &given, const QByteArray &bytes)
{
    if (given.file == u"profile")
        return void(readProfile(bytes, u"p"_s));
    qsizetype read = 0;
    // Told by notices: what was reverted, and corrections with what they correct.
    qsizetype leftOut = bytes.count("REVERTED") + 2 * bytes.count("<CORRECTFITID>");
    for (const Statement &statement : statementsOf(given, bytes)) {
        read += std::ssize(statement.entries);
        leftOut += statement.pending;
    }
    const qsizetype shown = entriesIn(given.file, QString::fromLatin1(bytes));
    if ((read > shown && shown > 0) || read + leftOut < shown)
        throw std::runtime_error(std::to_string(read) + " of " + std::to_string(shown) +
                                 " entries were read of:\n" + bytes.toStdString());
}

/// The page's lines that hold a part, without their tags unless those are asked for; "; "
/// stands between the cells of a table. With "csv" the table of the groups instead.
QString pageOf(const Case &given)
{
    const Books books(given.text);
    const TransactionSource transactions = [&books](const auto &visit) {
        std::ranges::for_each(books.transactions, visit);
    };
    ItemAccounts itemAccounts;
    kiv::budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        using Traits = kiv::budgeting::ItemTraits<Item>;
        for (const auto &[source, item] : books.budget.items<Item>()) {
            for (const kiv::accounting::Account &account : books.accounts) {
                if (account.type() == Traits::accountType &&
                    account.code().name() == itemAccountName(source))
                    itemAccounts.insert({{Traits::type, source}, account.code().number()});
            }
        }
    });
    const auto length =
        static_cast<SpanLength>(QStringList{u"week"_s, u"two-weeks"_s, u"payday"_s, u"month"_s,
                                            u"quarter"_s, u"year"_s, u"whole"_s}
                                    .indexOf(given.options.value(u"span"_s, u"month"_s)));
    const Period period(day(given.options.value(u"from"_s).toLatin1()),
                        day(given.options.value(u"to"_s).toLatin1()), length,
                        paydaysOf(transactions, itemAccounts));
    std::map<kiv::accounting::AccountNumber, QStringList> names;
    for (const kiv::accounting::Account &account : books.accounts)
        names[account.code().number()] = {
            QString(account.code().name()).remove(u" [Budget Item]"_s)};
    const GroupsOf nameOf = [&names](const auto &, const auto &account) -> const QStringList & {
        return names.at(account.code().number());
    };
    const Groups groups =
        groupsOf(period, books.accounts, transactions, nameOf,
                 given.options.contains(u"all"_s) ? Grouped::Accounts : Grouped::Flows);
    if (given.options.contains(u"csv"_s))
        return QString::fromUtf8(toCsv(groups)).remove(u'\r').trimmed();
    const Figures figures =
        figuresOf(period, books.accounts, transactions, books.budget, itemAccounts);
    QString page = QString::fromUtf8(
        toHtml(&figures, groups, {given.options.value(u"title"_s, u"t"_s), u"By category"_s, {}}));
    static const QRegularExpression loaded(u"https?:|src=|@import|url\\("_s);
    static const QRegularExpression style(u"(?s)(?<=<style>).*(?=</style>)"_s);
    static const QRegularExpression cell(u"</t[hd]><t[hd][^>]*\"n( over)?( minus)?\">"_s);
    static const QRegularExpression tag(u"<[^>]*>"_s);
    if (page.contains(loaded))
        return u"It loads something."_s;
    page.remove(style);
    if (!given.options.contains(u"tags"_s))
        page.replace(cell, u";\\1\\2 "_s).replace(u"</span>"_s, u": "_s).remove(tag);
    return page.split(u'\n', Qt::SkipEmptyParts)
        .filter(QRegularExpression(given.options.value(u"only"_s)))
        .join(u'\n');
}

QString valueOf(const Case &given)
{
    const QString text = QString::fromUtf8(given.text).chopped(1);
    if (given.file == u"numbers")
        return QString::fromStdString(readNumber(text, given.mark(), {}).toText());
    if (given.file == u"amounts")
        return toQString(statementAmount(text.section(u' ', 1), currency(text.section(u' ', 0, 0)),
                                         given.mark(), {}));
    if (given.file == u"days")
        return DateFormat(given.options.value(u"date-format"_s), {})
            .read(text)
            .value_or(QDate())
            .toString(Qt::ISODate);
    if (given.file == u"currencies") {
        const auto found = readCurrency(text, currency(given.options.value(u"preferred"_s)));
        return found ? toQString(*found) : QString();
    }
    if (given.file == u"delimiters")
        return escaped(guessDelimiter(text));
    if (given.file == u"cells") {
        const QString line = csvLine(text.split(u'|'));
        return line.trimmed() + u" read as "_s +
               readCsvTable(line, {}, u',', 1)[0].cells.join(u'|');
    }
    if (given.file == u"ticks") {
        Chart chart;
        chart.series.resize(1);
        for (const QString &number : text.split(u' '))
            chart.series[0].values.push_back(usd(number.toLatin1()));
        QStringList ticks;
        for (const numira::Decimal &tick : axisTicks(chart))
            ticks += QString::fromStdString(tick.toText());
        return ticks.join(u' ');
    }
    const QString described = withBankId(text.section(u'|', 0, 0), text.section(u'|', 1));
    return described + u'|' + bankIdOf(described);
}

/// What the case's text comes to, by the folder that it stands in, or its file.
QString foundOf(const Case &given)
{
    if (given.folder == u"values")
        return valueOf(given);
    if (given.folder == u"journals")
        return linesOf(readJournal(given.text, u"/f/j"_s, optionsOf(given)),
                       !given.options.value(u"show"_s).isEmpty());
    if (given.file == u"profile") // also what was saved is read
        return QString::fromUtf8(
            toJson(readProfile(toJson(readProfile(given.text, u"p"_s)), u"s"_s)).simplified());
    if (given.file == u"csv_guess")
        return guessOf(given);
    if (given.folder == u"statements") {
        QStringList statements;
        for (Statement &statement : statementsOf(given, given.text))
            statements += linesOf(std::move(statement));
        return statements.join(u'\n');
    }
    if (given.file == u"plans") {
        GeneralLedger ledger;
        take(given.text, ledger);
        for (const auto &[name, journal] : given.others)
            take(journal, ledger);
        return QString::fromUtf8(writeJournal(ledger.accounts(), ledger.transactions()));
    }
    if (given.file == u"duplicates")
        return duplicatesOf(given);
    if (given.file == u"pages")
        return pageOf(given);
    const Books books(given.text);
    if (given.file == u"table")
        return QString::fromUtf8(writeCsv(books.accounts, books.transactions).replace('\r', ""));
    if (given.file == u"again")
        requireSameAgain(books.accounts, books.transactions);
    return QString::fromUtf8(writeJournal(books.accounts, books.transactions));
}

} // namespace

class TestInterchange : public QObject {
    Q_OBJECT

private slots:
    void cases_data()
    {
        QTest::addColumn<Case>("given");
        int number = 0;
        for (const char *folder : {"values", "statements", "journals", "ledgers", "reports"})
            for (const Case &given : casesIn(QLatin1String(folder)))
                QTest::addRow("%d, %s", ++number, qPrintable(given.file + u": "_s + given.title))
                    << given;
    }
    void cases()
    {
        QFETCH(Case, given);
        QString found = outcome([&] { return foundOf(given); }).trimmed();
        if (found.isEmpty())
            found = u"nothing"_s;
        if (given.expected.endsWith(u'…'))
            found = found.left(given.expected.size() - 1) + u'…';
        QCOMPARE(found.split(u'\n'), given.expected.split(u'\n')); // tells the first that differs
    }

    /// Whatever is read of a journal ends with books that balance, or with a refusal.
    void damagedFilesAreReadOrRefused()
    {
        QVERIFY(damagedAreReadOrRefused(
            u"journals"_s, {"Assets", "$", "2026", "@", "  ", "\n"},
            {"(", "\"", "= $1", "@@", "\xff", "include x\n", "1,000", ";:", "~ "},
            [](const Case &, const QByteArray &journal) {
                GeneralLedger ledger;
                take(journal, ledger);
                requireSameAgain(ledger.accounts(), ledger.transactions());
            }));
        QVERIFY(damagedAreReadOrRefused(u"statements"_s, {"\"", ",", "<", "\n", "D", "1"},
                                        {"\"\"", ";", "/>", "<!", "^", "\r", "\xe9"},
                                        &requireWhole));
    }

    void pathsOfDeepAccountsAreCut()
    {
        QString accounts = u"1 asset USD A"_s;
        for (int number = 2; number <= 200; ++number)
            accounts += u"\n%1/%2 asset USD A"_s.arg(number).arg(number - 1);
        std::set<QString> paths;
        for (const auto &[number, path] : accountPaths(Books(accounts).accounts))
            paths.insert(path.section(u':', 0, 99));
        QCOMPARE(paths.size(), 200U);
    }

    void chartsOfNothingAreEmpty()
    {
        QVERIFY(toSvg({ChartKind::Bars, {}, {}, {}, {{}}}, u"c"_s).isEmpty());
    }
};

static const kiv::test::Suite<TestInterchange> testInterchangeSuite;
#include "tst_interchange.moc"
