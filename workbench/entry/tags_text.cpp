// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/tags_text.h"

namespace kiv::workbench {
namespace {

constexpr QChar quoteMark = u'"';

bool needsMarks(const QString &name)
{
    return name.contains(u',') || name.contains(quoteMark) || name != name.trimmed() ||
           name.isEmpty();
}

} // namespace

QStringList namesOf(const QString &text)
{
    QStringList names;
    QString name;
    bool isMarked = false; // between marks now
    bool hadMarks = false;
    const auto take = [&] {
        name = hadMarks ? name : name.trimmed();
        if (hadMarks || !name.isEmpty())
            names += name;
        name.clear();
        hadMarks = false;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text.at(at);
        if (isMarked && letter == quoteMark && at + 1 < text.size() &&
            text.at(at + 1) == quoteMark) {
            name += quoteMark;
            ++at;
        } else if (letter == quoteMark && (isMarked || name.trimmed().isEmpty())) {
            if (!isMarked)
                name.clear();
            isMarked = !isMarked;
            hadMarks = true;
        } else if (letter == u',' && !isMarked) {
            take();
        } else if (isMarked || !hadMarks) {
            name += letter; // blanks behind the last mark do not count
        }
    }
    take();
    return names;
}

QString namesText(const QStringList &names)
{
    QStringList texts;
    for (QString text : names) {
        if (needsMarks(text))
            text = quoteMark + text.replace(quoteMark, QStringLiteral("\"\"")) + quoteMark;
        texts += text;
    }
    return texts.join(QStringLiteral(", "));
}

tagging::Tags tagsOf(const QString &text)
{
    tagging::Tags tags;
    for (const QString &name : namesOf(text))
        tags.insert(tagging::Tag(name));
    return tags;
}

QString tagsText(const tagging::Tags &tags)
{
    QStringList names;
    for (const tagging::Tag &tag : tags)
        names += tag.name();
    return namesText(names);
}

} // namespace kiv::workbench
