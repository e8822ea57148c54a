// SPDX-License-Identifier: GPL-3.0-or-later
#include "cases.h"

#include "books.h"
#include "support/damage.h"

#include "interchange/account_paths.h"
#include "interchange/duplicates.h"
#include "interchange/journal_reader.h"
#include "interchange/ledger_writer.h"

#include "foundation/streams.h"

#include <rapidcheck.h>

using namespace kiv::interchange;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
using kiv::accounting::Account;
using kiv::accounting::Transaction;
using kiv::accounting::TransactionStatuses;
using kiv::foundation::toQString;

namespace {

JournalOptions optionsOf(const Case &given)
{
    const auto currency = [](const QString &code) {
        return numira::toCurrency(code.toStdString());
    };
    JournalOptions options;
    options.preferred = currency(given.option("preferred", u"USD"_s));
    if (const QString mark = given.option("decimal"); !mark.isEmpty())
        options.decimalMark = DecimalMark(mark[0].unicode());
    if (const QString code = given.option("currency"); !code.isEmpty())
        options.currency = currency(code);
    if (const QString name = given.option("commodity"); !name.isEmpty())
        options.commodities[name.section(u'=', 0, 0)] = currency(name.section(u'=', 1));
    if (const QString root = given.option("root"); !root.isEmpty())
        options.roots[root.section(u'=', 0, 0)] = typeOfRoot(root.section(u'=', 1));
    options.encoding = given.option("encoding", options.encoding);
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
                 toQString(t.amount) + u' ' + toQString(t.amount.code()) + u' ' +
                 mark(t.debitStatus) + mark(t.creditStatus) + u" '"_s + t.text + u'\'';
    return (lines + draft.notices).join(u'\n');
}

/// Posts what the drafts come to.
class Ledger {
public:
    void take(const Draft &draft)
    {
        const AccountPlan plan = planAccounts(draft, m_ledger.accounts());
        for (const Account &account : plan.missing)
            m_ledger.add(account, m_generator, day("2026-01-01"));
        for (const DraftTransaction &t : draft.transactions)
            m_ledger.post(Transaction(t.date, plan.codes[t.debit], plan.codes[t.credit], t.amount,
                                      t.text.isEmpty() ? std::nullopt : std::optional(t.text))
                              .withStatuses(t.debitStatus, t.creditStatus));
    }
    [[nodiscard]] std::size_t accounts() const { return m_ledger.accounts().size(); }
    [[nodiscard]] std::vector<Transaction> transactions() const { return m_ledger.transactions(); }
    [[nodiscard]] QByteArray written() const
    {
        return writeJournal(m_ledger.accounts(), m_ledger.transactions());
    }

private:
    kiv::accounting::GeneralLedger m_ledger;
    kiv::accounting::SequentialAccountNumberGenerator m_generator;
};

/// What is written is read, and written again as it is. Answers how many accounts it has.
std::size_t requireSameAgain(const QByteArray &journal)
{
    Ledger read;
    read.take(readJournal(journal, u"j"_s, optionsOf({})));
    Duplicates known(read.transactions());
    for (const Transaction &transaction : read.transactions())
        if (!known.take(transaction))
            throw std::runtime_error("A transaction is not known again.");
    if (read.written() != journal)
        throw std::runtime_error("It is written otherwise: " + journal.toStdString());
    return read.accounts();
}

} // namespace

class TestJournal : public QObject {
    Q_OBJECT

private slots:
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
        QRandomGenerator random(20260131);
        const QByteArrayList own{"Assets", "$", "2026", "@", "  ", "\n"};
        const QByteArrayList odd{"(",           "\"",    "= $1", "@@", "\xff",
                                 "include x\n", "1,000", ";:",   "~ "};
        for (const Case &given : casesIn(u"journals"_s))
            for (int run = given.text.size() > 5000 ? 0 : randomRuns(15); run > 0; --run)
                (void)outcome([&] {
                    Ledger ledger;
                    ledger.take(
                        readJournal(damaged(given.text, own, odd, random), u"j"_s, optionsOf({})));
                    (void)requireSameAgain(ledger.written());
                    return QString();
                });
    }

    void ledgers_data() { addCases(u"ledgers"_s); }
    void ledgers()
    {
        QFETCH(Case, given);
        if (given.file == u"plans") {
            Ledger ledger;
            ledger.take(readJournal(given.text, u"j"_s, optionsOf({})));
            for (const auto &[name, journal] : given.others)
                ledger.take(readJournal(journal, u"j"_s, optionsOf({})));
            return compare(given, ledger.written());
        }
        const Books books(given.text);
        if (given.file == u"journal")
            return compare(given, writeJournal(books.accounts, books.transactions));
        if (given.file == u"table")
            return compare(given, writeCsv(books.accounts, books.transactions).replace('\r', ""));
        std::optional<kiv::accounting::AccountNumber> account;
        if (const QString number = given.option("account"); !number.isEmpty())
            account = no(number.toUInt());
        Duplicates known(books.transactions, account);
        QStringList found;
        for (const Transaction &transaction : Books(given.others.at(u"imported"_s)).transactions)
            found += (known.take(transaction) ? u"known: "_s : u"new: "_s) +
                     transaction.description().value();
        compare(given, found.join(u'\n'));
    }

    void whatIsWrittenIsReadAgain()
    {
        QVERIFY(rc::check("journal of a journal", [] {
            using rc::gen::element;
            const auto name =
                element<QString>(u"Food"_s, u"A:B"_s, u"two  blanks"_s, u"; none"_s, u"(virtual)"_s,
                                 u"* star"_s, u"12.00 USD"_s, u"\"q\""_s, u"Zürich 食費"_s);
            QString text;
            QString typeAbove;
            std::map<int, QString> currencies;
            for (int number = 39; number > 0; number -= 7) {
                const QString type = *element<QString>(u"asset"_s, u"income"_s, u"equity"_s);
                const QString parent =
                    type == typeAbove ? u'/' + QString::number(number + 7) : QString();
                currencies[number] = *element<QString>(u"USD"_s, u"JPY"_s, u"KWD"_s);
                text += u"%1%2 %3 %4 %5\n"_s.arg(QString::number(number), parent, type,
                                                 currencies[number], *name);
                typeAbove = type;
            }
            for (int at = 10; at < 30; ++at) {
                const auto [debit, currency] = *rc::gen::elementOf(currencies);
                const auto [credit, other] = *rc::gen::elementOf(currencies);
                if (debit != credit && currency == other)
                    text += u"2026-01-%1 %2<%3 %4.%5 %6 %7- %8\n"_s.arg(
                        QString::number(at), QString::number(debit), QString::number(credit),
                        QString::number(*rc::gen::inRange(0, 100'000)), QString::number(at),
                        currency, *element<QString>(u"-"_s, u"!"_s, u"*"_s), *name);
            }
            const Books books(text);
            RC_ASSERT(requireSameAgain(writeJournal(books.accounts, books.transactions)) ==
                      books.accounts.size());
        }));
    }
};

QTEST_APPLESS_MAIN(TestJournal)
#include "tst_journal.moc"
