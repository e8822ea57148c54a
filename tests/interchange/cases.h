// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtTest/QtTest>

#include "interchange/written_values.h"

#include "foundation/presentation.h"
#include "support/damage.h"

/// Cases that are written down as text, many to a file:
///
///     === what the case is about
///     --option its value
///     what is read
///     --- other.journal
///     a further text, by its name
///     ---
///     all that comes of it
///
/// In what is read, \xE9, \n, \r and \t stand for bytes, \9{x} for nine times what is in
/// the braces, and a backslash takes the end off its line. What stands above the first
/// case is for people. A case without "---" has on each line what is read, " = ", and
/// what comes of it.
namespace kiv::test {

using namespace Qt::Literals::StringLiterals;

struct Case {
    QString file; ///< without its ending, such as "ofx"
    QString title = {};
    std::map<QString, QString> options = {};
    QByteArray text = {};
    std::map<QString, QByteArray> others = {}; ///< further texts
    QStringList expected = {};

    [[nodiscard]] QString option(const char *name, const QString &otherwise = {}) const
    {
        const auto found = options.find(QLatin1String(name));
        return found == options.end() ? otherwise : found->second;
    }
    [[nodiscard]] bool isRefused() const { return expected[0].startsWith(u"refused: "); }
    [[nodiscard]] std::optional<interchange::DecimalMark> mark() const
    {
        const QString mark = option("decimal");
        return mark.isEmpty() ? std::nullopt
                              : std::optional(interchange::DecimalMark(mark[0].unicode()));
    }
};

inline QByteArray unescaped(QString text)
{
    static const QRegularExpression repeated(u"\\\\(\\d+)\\{([^}]*)\\}"_s);
    for (auto at = repeated.match(text); at.hasMatch(); at = repeated.match(text))
        text.replace(at.capturedStart(), at.capturedLength(),
                     at.captured(2).repeated(at.captured(1).toInt()));
    QByteArray bytes = text.toUtf8();
    for (const auto &[written, meant] :
         {std::pair("\\\n", ""), {"\\n", "\n"}, {"\\r", "\r"}, {"\\t", "\t"}})
        bytes.replace(written, meant);
    for (qsizetype at = bytes.indexOf("\\x"); at >= 0; at = bytes.indexOf("\\x", at + 1))
        bytes.replace(at, 4, QByteArray::fromHex(bytes.mid(at + 2, 2)));
    return bytes;
}

inline Case caseOf(const QString &file, QString text)
{
    Case made{file, text.section(u'\n', 0, 0)};
    text = text.section(u'\n', 1);
    for (; text.startsWith(u"--") && !text.startsWith(u"---"); text = text.section(u'\n', 1)) {
        const QString line = text.section(u'\n', 0, 0);
        made.options[line.section(u' ', 0, 0).mid(2)] = line.section(u' ', 1);
    }
    QStringList parts = (u'\n' + text).split(u"\n---"_s);
    made.expected = parts.back().section(u'\n', 1).trimmed().split(u'\n');
    made.text = unescaped(parts.takeFirst().mid(1) + u'\n');
    for (; parts.size() > 1; parts.removeFirst())
        made.others[parts[0].section(u'\n', 0, 0).trimmed()] =
            unescaped(parts[0].section(u'\n', 1) + u'\n');
    return made;
}

inline std::vector<Case> casesIn(const QString &folder)
{
    std::vector<Case> cases;
    const QDir found(QFINDTESTDATA(folder));
    for (const QString &name : found.entryList({u"*.txt"_s})) {
        QFile file(found.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read.", qPrintable(name));
        const QStringList texts = QString::fromUtf8(file.readAll()).split(u"\n=== "_s);
        for (const QString &text : texts.mid(1))
            cases.push_back(caseOf(name.chopped(4), text));
    }
    return cases;
}

/// A row for each case.
inline void addCases(const QString &folder)
{
    QTest::addColumn<Case>("given");
    for (const Case &given : casesIn(folder))
        QTest::addRow("%s: %s", qPrintable(given.file), qPrintable(given.title)) << given;
}

/// "5.00 USD".
inline QString withCode(const numira::Money &money)
{
    return foundation::toQString(money) + u' ' + foundation::toQString(money.code());
}

/// What is read, as lines, or why it is refused.
template <typename Error = interchange::ImportError, typename Read>
QString outcome(Read &&read)
{
    try {
        return read();
    } catch (const Error &error) {
        return u"refused: "_s + error.message();
    }
}

/// The first line that differs is told.
inline void compare(const Case &given, QAnyStringView text)
{
    const QString found = text.toString();
    QCOMPARE(found.trimmed().split(u'\n'), given.expected);
}

/// How often the folder's sound and short texts are refused, [1], and not, [0], when they
/// are damaged at random.
template <typename Read>
std::array<int, 2> refusedOfDamaged(const QString &folder, int runs, const QByteArrayList &own,
                                    const QByteArrayList &odd, Read &&read)
{
    QRandomGenerator random(7);
    std::array<int, 2> refused{};
    for (const Case &given : casesIn(folder))
        for (int run = given.isRefused() || given.text.size() > 5000 ? 0 : randomRuns(runs);
             run > 0; --run)
            ++refused[outcome([&] {
                          return read(given, damaged(given.text, own, odd, random));
                      }).startsWith(u"refused: ")];
    return refused;
}

/// What comes of each line's first half stands in its second one.
template <typename Read>
void compareLines(const Case &given, Read &&read)
{
    const QStringList lines = QString::fromUtf8(given.text.trimmed()).split(u'\n');
    for (const QString &line : lines) {
        const QString text = line.section(u" = "_s, 0, -2);
        const QString found = outcome([&] { return read(text); }).remove(u"'': "_s);
        QCOMPARE(text + u" = "_s + (found.isEmpty() ? u"nothing"_s : found), line);
    }
}

} // namespace kiv::test
