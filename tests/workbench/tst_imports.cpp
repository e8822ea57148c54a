// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "interchange/cases.h"
#include "storage/scratch_folder.h"
#include "support/message_log.h"
#include "support/surroundings.h"

#include "workbench/document/demonstration.h"
#include "workbench/entry/description.h"
#include "workbench/requests/budget_view.h"
#include "workbench/statements/import_reading.h"

using interchange::StatementEntry;
using navigation::Navigator;
using namespace workbench;
using State = ImportRow::State;

namespace {

/// "day amount payee @ text #identifier >category".
StatementEntry entryOf(const QString &line, qsizetype number)
{
    static const QRegularExpression form(
        u"^(\\S+) (\\S+) (?:(.*?) @ )?(.*?)(?: #(\\S+))?(?: >(\\[)?([^\\]]*)\\]?)?$"_s);
    const QStringList part = form.match(line).capturedTexts();
    StatementEntry entry{{u"f"_s, number},
                         day(part.value(1).toLatin1()),
                         usd(part.value(2).toLatin1()),
                         part.value(4),
                         part.value(5)};
    entry.payee = part.value(3);
    entry.isTransfer = !part.value(6).isEmpty();
    entry.category = part.value(7);
    return entry;
}

workbench::StatementBooks booksOf(const Case &given)
{
    const Books books(given.text);
    workbench::StatementBooks made{{no(1), u"Checking"_s, std::nullopt}, numira::toCurrency("USD")};
    made.accounts = books.accounts;
    made.posted = books.transactions;
    for (const QString &text : given.options.value(u"kept"_s).split(u',', Qt::SkipEmptyParts))
        made.kept.insert(no(text.toUInt()));
    books.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        const auto account = std::ranges::find_if(made.accounts, [&](const auto &one) {
            return one.code().name() == item.source().name();
        });
        made.items.push_back({workbench::identify(item), item.amount(), account->code().number(),
                              item.period(), item.nextOccurOn(), item.dayOfMonth()});
    });
    return made;
}

QString outcomeOf(const ImportRow &row)
{
    static const std::map<State, QString> words{{State::New, u"new "_s},
                                                {State::Payment, u"due "_s},
                                                {State::Matched, u"matched "_s},
                                                {State::Known, u"known "_s}};
    if (row.state == State::LeftOut)
        return u"left out"_s;
    QString text = words.at(row.state);
    if (row.state == State::New)
        return (text +
                (row.other ? accounting::presentationText(*row.other) : row.opens.join(u':')) +
                (row.isDoubtful ? u"? "_s : u" "_s) + row.reason)
            .trimmed();
    if (const auto *payment = std::get_if<ImportPayment>(&*row.meaning))
        return text + payment->id.source.name() + u' ' + payment->id.dueOn.toString(Qt::ISODate) +
               (row.isDoubtful ? u"?"_s : QString());
    const auto &match = std::get<ImportMatch>(*row.meaning);
    QStringList numbers;
    for (const accounting::TransactionNumber number : match.numbers)
        numbers += accounting::presentationText(number);
    static const char *const grounds[] = {"", "Identifier", "Content", "Told", "Text", "Amount"};
    return text + numbers.join(u'+') + (row.isDoubtful ? u"? "_s : u" "_s) +
           QLatin1String(grounds[int(match.grounds)]);
}

/// A bank's account of the property, whose statement tells the truth.
struct Told {
    accounting::AccountNumber account;
    bool hasIds;
    std::vector<StatementEntry> entries;
};

} // namespace

class TestImports : public QObject {
    Q_OBJECT

private slots:
    void cases_data()
    {
        QTest::addColumn<Case>("given");
        for (const Case &given : casesIn(u"imports"_s, QDir(QFINDTESTDATA("imports"))))
            QTest::addRow("%s", qPrintable(given.title)) << given;
    }
    void cases()
    {
        QFETCH(Case, given);
        storage::Notes notes;
        for (const char *key : {"rules", "learned"}) {
            const QByteArray json = given.options.value(QLatin1String(key), u"[]"_s).toUtf8();
            notes.set(u"import."_s + QLatin1String(key), QJsonDocument::fromJson(json).array());
        }
        ImportPreview::Choices choices{ImportMemory::of(notes)};
        if (const QString number = given.options.value(u"against"_s); !number.isEmpty())
            choices.otherwise = no(number.toUInt());
        interchange::Statement statement{{}, numira::toCurrency("USD"), {}};
        QStringList lines;
        for (const QString &line : given.expected.split(u'\n')) {
            lines += line.section(u" = "_s, 0, 0);
            statement.entries.push_back(entryOf(lines.back(), lines.size()));
        }
        const ImportPreview preview(statement, booksOf(given), choices);
        for (std::size_t row = 0; row < preview.rows().size(); ++row)
            lines[qsizetype(row)] += u" = "_s + outcomeOf(preview.rows()[row]);
        const QStringList wanted = given.expected.split(u'\n');
        for (qsizetype line = 0; line < lines.size(); ++line)
            QCOMPARE(lines[line], wanted.value(line));
    }

    void theNewestThatWasLearnedStays()
    {
        ImportMemory memory;
        for (int payee = 0; payee < 1'500; ++payee)
            memory.learn(QString::number(payee).rightJustified(120, u'x'), no(5));
        const auto kept = ImportMemory::of(memory.keptIn({})).learned;
        QCOMPARE(kept.size(), std::size_t{420}); // as many as a note holds
        QCOMPARE(kept.back(), memory.learned.back());
    }

    /// Whatever was typed before, and however the files overlap and follow each other, each
    /// entry of the bank stands in the books once.
    void anyOrderEndsInTheSameBooks()
    {
        const MessageLog log;
        QRandomGenerator random(23);
        for (int run = randomRuns(40); run > 0; --run)
            walk(random);
    }

    /// A quarter of the demonstration: every third entry is typed, the rest imported from the
    /// files of all accounts. The books are as if all had been typed.
    void typedAndImportedMakeTheSameBooks()
    {
        const MessageLog log;
        ScratchFolder folder;
        workbench::Document document(surroundings(folder.path(u"rates"_s)));
        document.createFilled(folder.path(u"home"_s), {},
                              [&] { workbench::makeDemonstration(document, day("2026-06-30")); });
        workbench::Requests &requests = document.requests();
        const auto balances = [&requests] {
            std::map<QString, QString> all;
            const workbench::AccountIndex index = requests.accounts();
            for (const accounting::Account &account : index.accounts())
                all[account.code().name()] = withCode(account.balance());
            return all;
        };
        const auto typed = balances();
        const std::vector<accounting::Transaction> wanted = requests.transactions();
        std::map<accounting::AccountNumber, std::vector<StatementEntry>> told;
        std::map<QString, accounting::Transaction> truth; ///< by identifier
        for (const auto &[number, bank] : workbench::accountsWithStatements(requests))
            told[number] = {};
        std::set<accounting::TransactionNumber> refunded;
        for (const accounting::Transaction &one : wanted)
            refunded.insert(one.refundOf().value_or(accounting::TransactionNumber()));
        std::set<accounting::TransactionNumber> forgotten;
        for (const accounting::Transaction &one : wanted) {
            for (auto &[number, entries] : told) {
                if (!one.involves(number) || one.occurredOn() < day("2026-04-01"))
                    continue;
                const bool isIn = one.debiting().number() == number;
                StatementEntry entry{
                    {u"f"_s, 1},
                    one.occurredOn(),
                    one.amountFor(number),
                    workbench::Description::of(one.description()).shown().toUpper(),
                    u"%1-%2"_s.arg(number.integer()).arg(one.number()->integer())};
                entry.amount = isIn ? entry.amount : -entry.amount;
                truth.emplace(entry.bankId, one);
                entries.push_back(std::move(entry));
                if (one.number()->integer() % 3 != 0 && !refunded.contains(*one.number()))
                    forgotten.insert(*one.number());
            }
        }
        for (const accounting::TransactionNumber number : forgotten) {
            requests.change(workbench::transactionOutcome, &Navigator::onMarkUnreconciled,
                            std::set{number});
            requests.change(workbench::transactionOutcome, &Navigator::onRemovedTransaction,
                            number);
        }
        QVERIFY(forgotten.size() > 40);
        QVERIFY(balances() != typed);
        for (const auto &[number, entries] : told) {
            ImportPreview preview = previewOf(document, number, entries);
            for (std::size_t row = 0; row < preview.rows().size(); ++row) {
                const accounting::Transaction &one = truth.at(preview.rows()[row].entry.bankId);
                if (preview.rows()[row].state == State::New)
                    preview.setOther(row, one.debiting().number() == number
                                              ? one.crediting().number()
                                              : one.debiting().number());
            }
            (void)preview.post(requests);
        }
        QCOMPARE(balances(), typed);
        QCOMPARE(requests.transactions().size(), wanted.size());
    }

private:
    static ImportPreview previewOf(workbench::Document &document, accounting::AccountNumber account,
                                   std::vector<StatementEntry> entries)
    {
        const workbench::AccountIndex index = document.requests().accounts();
        const numira::Currency currency = index.find(account)->balance().code();
        return workbench::previewOf(document.requests(),
                                    {{{}, currency, std::move(entries)}, account},
                                    {ImportMemory::of(document.notes())});
    }

    void walk(QRandomGenerator &random)
    {
        ScratchFolder folder;
        workbench::Document document(surroundings(folder.path(u"rates"_s)));
        document.createEmpty(folder.path(u"home"_s), u"Made"_s);
        workbench::Requests &requests = document.requests();
        const auto pick = [&random](int count) { return int(random.bounded(count)); };
        const auto open = [&](unsigned number, const char *name, accounting::AccountTypes type) {
            requests.change(
                workbench::accountOutcome, &Navigator::onAddedAct,
                accounting::Account(type, {no(number), QLatin1String(name), {}}, usd("0"), false));
        };
        open(1, "Checking", accounting::AccountTypes::Asset);
        open(2, "Savings", accounting::AccountTypes::Asset);
        open(3, "Food", accounting::AccountTypes::Expense);
        open(4, "Pay", accounting::AccountTypes::Income);
        requests.change(workbench::bankOutcome, &Navigator::onBankAdded,
                        banking::Bank(banking::BankName(u"First"_s),
                                      {{no(1), banking::BankAccountTypes::Checking},
                                       {no(2), banking::BankAccountTypes::Savings}},
                                      false));

        std::array<Told, 2> told{Told{no(1), pick(2) == 0, {}}, Told{no(2), pick(2) == 0, {}}};
        std::array<numira::Money, 2> balances{usd("0"), usd("0")};
        static const char *const amounts[] = {"3", "3", "5", "12.50"};
        static const char *const texts[] = {"COFFEE BAR", "Market 12", "Market 99", "Kiosk"};
        const auto amountOf = [](std::size_t whole) {
            return numira::Money(numira::toCurrency("USD"), numira::Decimal(std::int64_t(whole)));
        };
        const auto tell = [&](int side, QDate on, const numira::Money &amount,
                              const QString &text) {
            StatementEntry entry{{u"f"_s, 1}, on, amount, text};
            if (told[side].hasIds)
                entry.bankId = u"%1-%2"_s.arg(side).arg(told[side].entries.size());
            told[side].entries.push_back(entry);
            balances[side] += amount;
        };
        const auto type = [&](QDate on, unsigned to, unsigned from, const numira::Money &amount,
                              const QString &text) {
            requests.change(workbench::transactionOutcome, &Navigator::onAddedTransaction,
                            accounting::Transaction(on, no(to), no(from), amount, text));
        };
        for (QDate on = day("2026-01-05"); on < day("2026-02-20"); on = on.addDays(pick(3))) {
            const QDate typed = on.addDays(-pick(3));
            const bool isTyped = pick(3) == 0;
            numira::Money amount = usd(amounts[pick(4)]);
            const QString text = QLatin1String(texts[pick(4)]);
            if (const int kind = pick(6); kind == 0) {
                // By amount alone, a transfer is like any other payment within days.
                amount = usd("100") + amountOf(told[1].entries.size());
                tell(0, on, -amount, u"TO SAVINGS"_s);
                tell(1, on.addDays(pick(2)), amount, u"FROM CHECKING"_s);
                if (isTyped)
                    type(typed, 2, 1, amount, u"Put aside"_s);
            } else if (kind == 1) {
                tell(0, on, amount, u"PAY"_s);
            } else {
                // Amount or text tells apart what happens within days.
                const bool isAlike = pick(2) == 0;
                if (!isAlike)
                    amount = usd("20") + amountOf(told[0].entries.size());
                tell(0, on, -amount, text);
                if (isTyped && pick(4) == 0) {
                    type(typed, 3, 1, usd("0.25"), u"Both | "_s + text);
                    type(typed, 3, 1, amount - usd("0.25"), u"Both | "_s + text);
                } else if (isTyped) {
                    type(typed, 3, 1, amount, isAlike ? text : u"Something else"_s);
                }
            }
        }
        for (Told &one : told)
            std::ranges::stable_sort(one.entries, {}, &StatementEntry::date);

        // Files of whole days that overlap, in any order, then both accounts whole.
        for (int file = 0; file < 10; ++file) {
            const QDate from = day("2026-01-05").addDays(pick(40));
            take(document, told[pick(2)], from, from.addDays(pick(20)));
        }
        for (const Told &one : told)
            take(document, one, day("2026-01-01"), day("2026-03-01"));
        for (int side = 0; side < 2; ++side) {
            const workbench::AccountIndex index = requests.accounts();
            QCOMPARE(index.find(told[side].account)->balance(), balances[side]);
            QVERIFY(!take(document, told[side], day("2026-01-01"), day("2026-03-01")));
        }
    }

    /// Imports the entries of these days; answers whether anything changed.
    static bool take(workbench::Document &document, const Told &told, QDate from, QDate to)
    {
        std::vector<StatementEntry> entries;
        for (const StatementEntry &entry : told.entries) {
            if (from <= entry.date && entry.date <= to)
                entries.push_back(entry);
        }
        ImportPreview preview = previewOf(document, told.account, std::move(entries));
        for (std::size_t row = 0; row < preview.rows().size(); ++row) {
            const ImportRow &open = preview.rows()[row];
            if (open.state != State::New)
                continue;
            const QString &text = open.entry.text;
            preview.setOther(row, text == u"TO SAVINGS"      ? no(2)
                                  : text == u"FROM CHECKING" ? no(1)
                                  : text == u"PAY"           ? no(4)
                                                             : no(3));
        }
        return preview.post(document.requests()).hasChanges();
    }
};

static const Suite<TestImports> importsSuite;
#include "tst_imports.moc"
