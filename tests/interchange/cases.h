// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/written_values.h"

#include "budgeting/budget.h"
#include "foundation/presentation.h"
#include "support/budgeting.h"
#include "support/damage.h"

#include <QtCore/QRegularExpression>

/// Cases that are written down as text, many to a file. Most are rows of a section:
///
///     == what the rows are about
///     --option its value, for each row
///     what the case is about | what is read | all that comes of it
///
/// where \n ends a line, a backslash at the end goes on with the next one, and the first part
/// may be missing. A row's own options stand before what is read, "--option value\n", which
/// takes the place of the % in the option "frame". Larger cases stand as
///
///     === what the case is about
///     --option its value
///     what is read
///     --- other.journal
///     a further text, by its name
///     ---
///     all that comes of it
///
/// In what is read, \xE9, \n, \r and \t stand for bytes, \9{x} for nine times what is in the
/// braces, where # counts, and a backslash takes the end off its line. At its end, what comes
/// of it may have … for the rest of it.
///
/// A journal comes to its transactions: line, day unless it is 2026-01-01, "debited < credited",
/// amount, marks but --, text but x. A statement comes to its entries: line, day unless it is
/// 2026-01-05, amount, value day if it differs, text, @payee, #identifier, >category.
namespace kiv::test {

using namespace Qt::Literals::StringLiterals;

struct Case {
    QString folder; ///< such as "statements"
    QString file;   ///< without its ending, such as "ofx"
    QString title;
    QMap<QString, QString> options = {};
    QByteArray text = {};
    std::map<QString, QByteArray> others = {}; ///< further texts
    QString expected = {};

    [[nodiscard]] std::optional<interchange::DecimalMark> mark() const
    {
        const QString mark = options.value(u"decimal"_s);
        return mark.isEmpty() ? std::nullopt
                              : std::optional(interchange::DecimalMark(mark[0].unicode()));
    }
};

inline QByteArray unescaped(QString text)
{
    static const QRegularExpression repeated(u"\\\\(\\d+)\\{([^}]*)\\}"_s);
    for (auto at = repeated.match(text); at.hasMatch(); at = repeated.match(text)) {
        const QString one = at.captured(2);
        QString all;
        for (int count = 1; count <= at.captured(1).toInt(); ++count)
            all += one.contains(u'#') ? QString(one).replace(u'#', QString::number(count)) : one;
        text.replace(at.capturedStart(), at.capturedLength(), all);
    }
    QByteArray bytes = text.toUtf8();
    for (const auto &[written, meant] :
         {std::pair("\\\n", ""), {"\\n", "\n"}, {"\\r", "\r"}, {"\\t", "\t"}})
        bytes.replace(written, meant);
    for (qsizetype at = bytes.indexOf("\\x"); at >= 0; at = bytes.indexOf("\\x", at + 1))
        bytes.replace(at, 4, QByteArray::fromHex(bytes.mid(at + 2, 2)));
    return bytes;
}

/// The case of its section with what stands below its title.
inline Case completed(Case made, QString text)
{
    while (text.startsWith(u"--") && !text.startsWith(u"---")) {
        const QString line = text.section(u'\n', 0, 0);
        made.options[line.section(u' ', 0, 0).mid(2)] = line.section(u' ', 1);
        text.remove(0, line.size() + 1);
    }
    QStringList parts = (u'\n' + text).split(u"\n---"_s);
    made.expected = parts.back().section(u'\n', 1).trimmed();
    const QString read = parts.takeFirst().mid(1);
    made.text = unescaped(made.options.value(u"frame"_s, u"%"_s).replace(u'%', read) + u'\n');
    for (; parts.size() > 1; parts.removeFirst())
        made.others[parts[0].section(u'\n', 0, 0).trimmed()] =
            unescaped(parts[0].section(u'\n', 1) + u'\n');
    return made;
}

inline std::vector<Case> casesIn(const QString &folder, const QDir &found)
{
    std::vector<Case> cases;
    for (const QString &name : found.entryList({u"*.txt"_s})) {
        QFile file(found.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read.", qPrintable(name));
        for (QString text : QString::fromUtf8(file.readAll()).split(u"\n=="_s).mid(1)) {
            Case made{folder, name.chopped(4), text.section(u'\n', 0, 0)};
            text = text.section(u'\n', 1);
            if (made.title.startsWith(u'=')) {
                cases.push_back(completed(std::move(made), text));
                continue;
            }
            static const QRegularExpression goesOn(u"\\\\\n *"_s);
            QString options;
            for (QString row : text.remove(goesOn).split(u'\n', Qt::SkipEmptyParts)) {
                if (!row.contains(u" | "_s)) {
                    options += row + u'\n';
                    continue;
                }
                QStringList cells = row.replace(u"\\n"_s, u"\n"_s).split(u" | "_s);
                const QString last = cells.takeLast();
                made.title = cells.front();
                cases.push_back(completed(made, options + cells.back() + u"\n---\n"_s + last));
            }
        }
    }
    return cases;
}

/// Of a folder beside this file.
inline std::vector<Case> casesIn(const QString &folder)
{
    return casesIn(folder, QDir(QFINDTESTDATA(folder)));
}

/// "5.00 USD".
inline QString withCode(const numira::Money &money)
{
    return foundation::toQString(money) + u' ' + foundation::toQString(money.code());
}

/// What is read, or why it is refused: "refused 2: " with the line.
template <typename Read>
QString outcome(Read &&read)
{
    try {
        return read();
    } catch (const foundation::Error &error) {
        static const QRegularExpression place(u"^'(f|p|/f/j)?'(, line( \\d+))?: |^"_s);
        return u"refused"_s + QString(error.message()).replace(place, u"\\3: "_s);
    }
}

/// Whether the folder's sound and short texts are both read and refused often when they
/// are damaged at random.
template <typename Read>
bool damagedAreReadOrRefused(const QString &folder, const QByteArrayList &own,
                             const QByteArrayList &odd, Read &&read)
{
    QRandomGenerator random(7);
    std::array<int, 2> refused{};
    for (const Case &given : casesIn(folder)) {
        const bool isSound = !given.expected.startsWith(u"refused") && given.text.size() <= 5000;
        for (int run = isSound ? randomRuns(60) : 0; run > 0; --run)
            ++refused[outcome([&] {
                          read(given, damaged(given.text, own, odd, random));
                          return QString();
                      }).startsWith(u"refused")];
    }
    return refused[0] > 100 && refused[1] > 100;
}

/// Accounts, transactions and a budget, each on a line:
///
///     1 asset USD Checking
///     4/1 asset USD Cash, with account 1 above it
///     2026-01-05 4<1 5.00 USD !* text (debit, credit, and the sides' marks: - ! *)
///     2026-01-06 4<1 5.00 USD = 4.00 EUR -- text (the credit in another currency)
///     bill 1200 USD yearly 2026-04-01 Rent
///     debt 50 USD monthly 2026-04-01 300 Car (a debt or a goal with its total)
struct Books {
    explicit Books(QAnyStringView text)
    {
        for (const QString &line : text.toString().split(u'\n', Qt::SkipEmptyParts)) {
            const auto is = [&](const char *form) {
                m_part = QRegularExpression(QLatin1String(form)).match(line).capturedTexts();
                return !m_part.isEmpty();
            };
            if (is("^(\\d+)(?:/(\\d+))? ([a-z]+) (\\S{3}) (.*)$"))
                addAccount();
            else if (is("^(\\S{10}) (\\d+)<(\\d+) (\\S+) (\\S{3})(?: = (\\S+) (\\S{3}))? "
                        "([-!*])([-!*]) ?(.*)$"))
                addTransaction();
            else if (is("^([a-z-]+) (\\S+) (\\S{3}) ([a-z ]+) ([0-9-]{10}) (?:([0-9.]+) )?(.*)$"))
                addItem();
            else
                qFatal("'%s' is nothing that books hold.", qPrintable(line));
        }
    }

    std::set<accounting::Account> accounts;
    std::vector<accounting::Transaction> transactions;
    budgeting::Budget budget;

private:
    template <typename Kind>
    static Kind named(const QString &name)
    {
        int value = 0;
        while (value < 100 && toQString(Kind(value)) != name) // none has so many
            ++value;
        return Kind(value);
    }
    [[nodiscard]] numira::Money amount(int number, int currency) const
    {
        return money(m_part[currency].toLatin1(), m_part[number].toLatin1());
    }

    void addAccount()
    {
        const auto parent =
            m_part[2].isEmpty() ? std::nullopt : std::optional(no(m_part[2].toUInt()));
        accounts.insert({named<accounting::AccountTypes>(m_part[3]),
                         {no(m_part[1].toUInt()), m_part[5], parent},
                         money(m_part[4].toLatin1(), "0"),
                         false});
    }
    void addTransaction()
    {
        const auto status = [this](int mark) {
            return accounting::TransactionStatuses(QStringLiteral("-!*").indexOf(m_part[mark]));
        };
        transactions.push_back(
            accounting::Transaction(day(m_part[1].toLatin1()), no(m_part[2].toUInt()),
                                    no(m_part[3].toUInt()), amount(4, 5), m_part[10],
                                    txn(std::uint16_t(transactions.size() + 1)))
                .withStatuses(status(8), status(9))
                .withSideAmounts(amount(4, 5), m_part[6].isEmpty() ? amount(4, 5) : amount(6, 7)));
        debit(no(m_part[2].toUInt()), transactions.back().debitAmount());
        debit(no(m_part[3].toUInt()), -transactions.back().creditAmount());
    }
    /// As a ledger does.
    void debit(accounting::AccountNumber number, const numira::Money &amount)
    {
        const auto found = std::ranges::find(
            accounts, number, [](const accounting::Account &one) { return one.code().number(); });
        // Some texts have transactions alone, and some an account without a side of its own.
        if (found == accounts.end() || found->type() == accounting::AccountTypes::Unknown)
            return;
        const bool isDebitNormal = accounting::isDebitNormal(found->type());
        const accounting::Account after(
            found->type(), found->code(),
            isDebitNormal ? found->balance() + amount : found->balance() - amount, false);
        accounts.erase(found);
        accounts.insert(after);
    }
    void addItem()
    {
        budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            if (presentationText(budgeting::ItemTraits<Item>::type) == m_part[1])
                budget.items<Item>().add(item<Item>(
                    m_part[7].toUtf8(), amount(2, 3), named<budgeting::EventFrequency>(m_part[4]),
                    day(m_part[5].toLatin1()), amount(m_part[6].isEmpty() ? 2 : 6, 3)));
        });
    }

    QStringList m_part; ///< of the line
};

} // namespace kiv::test
