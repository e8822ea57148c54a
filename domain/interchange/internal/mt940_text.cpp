// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/mt940_text.h"

#include "interchange/internal/digits.h"

#include <algorithm>
#include <optional>
#include <set>
#include <vector>

namespace kiv::interchange::internal {

namespace {

/// Parts of this length were cut and go on in the next one.
constexpr qsizetype partMax = 27;
/// So are lines, whose first has its tag before it.
constexpr qsizetype wrappedLineMax = 65;
constexpr qsizetype tagSize = 4;

struct Part {
    int number;
    QStringView text;
};

/// The number at the beginning; -1 without one.
int numberOf(QStringView text)
{
    if (text.size() < 2 || !isDigit(text[0]) || !isDigit(text[1]))
        return -1;
    return text[0].digitValue() * 10 + text[1].digitValue();
}

/// The parts with numbers from first to last as one text.
QString joined(const std::vector<Part> &parts, int first, int last)
{
    QString text;
    for (const Part &part : parts) {
        if (part.number < first || part.number > last || part.text.trimmed().isEmpty())
            continue;
        text += part.text;
        if (part.text.size() < partMax)
            text += u' ';
    }
    return text.trimmed();
}

/// What stands behind the key, up to the next one.
QString valueOf(const QString &purpose, const QString &key)
{
    static const QStringList keys{
        QStringLiteral("EREF+"), QStringLiteral("KREF+"), QStringLiteral("MREF+"),
        QStringLiteral("CRED+"), QStringLiteral("DEBT+"), QStringLiteral("SVWZ+"),
        QStringLiteral("ABWA+"), QStringLiteral("ABWE+"), QStringLiteral("OAMT+"),
        QStringLiteral("COAM+"), QStringLiteral("PURP+"), QStringLiteral("IBAN+"),
        QStringLiteral("BIC+")};
    const qsizetype at = purpose.indexOf(key);
    if (at < 0)
        return {};
    const qsizetype begin = at + key.size();
    qsizetype end = purpose.size();
    for (const QString &next : keys) {
        if (const qsizetype found = purpose.indexOf(next, begin); found >= 0)
            end = std::min(end, found);
    }
    return purpose.sliced(begin, end - begin).trimmed();
}

/// What the payer wrote, and for whom another one paid. The other keys hold references.
QString withoutReferences(const QString &purpose)
{
    if (!purpose.contains(u"SVWZ+"))
        return purpose;
    QStringList texts;
    for (const char *key : {"SVWZ+", "ABWA+", "ABWE+"})
        texts += valueOf(purpose, QLatin1String(key));
    texts.removeAll(QString());
    return texts.join(u' ');
}

/// Parts such as "166?00GUTSCHRIFT?20EREF+…": a code of at most four digits, then parts that
/// all begin with the same mark. Nothing for other texts.
std::optional<Mt940Text> numbered(const QString &text)
{
    const qsizetype code = std::ranges::find_if_not(text, isDigit) - text.begin();
    const QChar mark = code < text.size() ? text[code] : QChar();
    if (code > 4 || !QStringLiteral("?<>^~").contains(mark) ||
        numberOf(QStringView(text).sliced(code + 1)) < 0)
        return std::nullopt;
    std::vector<Part> parts;
    qsizetype begin = code + 1;
    while (begin < text.size()) {
        qsizetype end = text.indexOf(mark, begin);
        while (end >= 0 && numberOf(QStringView(text).sliced(end + 1)) < 0)
            end = text.indexOf(mark, end + 1);
        if (end < 0)
            end = text.size();
        parts.push_back({numberOf(QStringView(text).sliced(begin)),
                         QStringView(text).sliced(begin + 2, end - begin - 2)});
        begin = end + 1;
    }
    Mt940Text read{joined(parts, 32, 33), {}};
    // Polish banks without a name there have it in the last lines of the purpose.
    const bool isNameAbove = read.payee.isEmpty() && QStringLiteral("<^~").contains(mark);
    if (isNameAbove)
        read.payee = joined(parts, 27, 29);
    const QString purpose = joined(parts, 20, isNameAbove ? 26 : 29) + u' ' + joined(parts, 60, 63);
    read.text = withoutReferences(purpose.trimmed());
    if (read.payee.isEmpty() || read.text.isEmpty())
        read.text = joined(parts, 0, 0) + u' ' + read.text;
    return read;
}

/// Parts such as "/EREF/…/NAME/…/REMI/…". Nothing for other texts.
std::optional<Mt940Text> named(const QString &text)
{
    if (!text.startsWith(u'/') ||
        !(text.contains(u"/NAME/") || text.contains(u"/REMI/") || text.contains(u"/CNTP/")))
        return std::nullopt;
    static const std::set<QStringView> names{u"ACCW", u"ADDR", u"BENM", u"BIC",  u"BUSP", u"CNTP",
                                             u"CREF", u"CSID", u"EREF", u"IBAN", u"ID",   u"ISDT",
                                             u"MARF", u"NAME", u"ORDP", u"PREF", u"PURP", u"REMI",
                                             u"RTRN", u"SVCL", u"TRCD", u"TRTP", u"ULTC", u"ULTD"};
    std::vector<std::pair<QStringView, QStringList>> parts;
    for (const QStringView piece : QStringView(text).sliced(1).split(u'/')) {
        if (names.contains(piece))
            parts.emplace_back(piece, QStringList());
        else if (!parts.empty())
            parts.back().second += piece.toString();
    }
    const auto part = [&parts](QStringView name) {
        const auto found =
            std::ranges::find(parts, name, [](const auto &one) { return one.first; });
        return found == parts.end() ? QStringList() : found->second;
    };
    // Account, bank, name and town.
    const QStringList other = part(u"CNTP");
    QStringList purpose = part(u"REMI");
    while (!purpose.isEmpty() &&
           (purpose[0].isEmpty() || purpose[0] == u"USTD" || purpose[0] == u"STRD"))
        purpose.removeFirst();
    Mt940Text read{part(u"NAME").join(u'/'), purpose.join(u'/')};
    if (read.payee.isEmpty() && other.size() > 2)
        read.payee = other[2];
    if (read.text.isEmpty())
        read.text = part(u"TRTP").join(u'/');
    return read;
}

/// Lines as they are, or "REK: account/NAAM: name" behind them.
Mt940Text plain(const QStringList &lines)
{
    QString text;
    bool isFirst = true;
    for (const QString &line : lines) {
        text += line;
        if (line.size() + (isFirst ? tagSize : 0) < wrappedLineMax)
            text += u' ';
        isFirst = false;
    }
    const qsizetype account = text.indexOf(u"REK: ");
    const qsizetype name = text.indexOf(u"/NAAM: ", account);
    if (account < 0 || name < 0)
        return {{}, text};
    return {text.sliced(name + 7), text.first(account)};
}

Mt940Text simplified(Mt940Text read)
{
    for (QString *text : {&read.payee, &read.text}) {
        *text = text->simplified();
        while (text->endsWith(u'/'))
            text->chop(1);
    }
    return read;
}

} // namespace

Mt940Text readMt940Text(const QStringList &lines)
{
    const QString all = lines.join(QString());
    if (const auto read = numbered(all))
        return simplified(*read);
    if (const auto read = named(all))
        return simplified(*read);
    return simplified(plain(lines));
}

Mt940Text readMt940Notes(const QStringList &lines)
{
    std::vector<Part> parts;
    for (const QString &line : lines) {
        const int number = numberOf(line);
        parts.push_back({number, number < 0 ? line : QStringView(line).sliced(2)});
    }
    const QString purpose = joined(parts, -1, 14);
    return simplified({joined(parts, 15, 16), purpose.isEmpty() ? joined(parts, 17, 17) : purpose});
}

} // namespace kiv::interchange::internal
