// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/tags_text.h"

#include <QtCore/QStringList>

namespace kiv::workbench {
namespace {

constexpr QChar mark = u'"';

bool needsMarks(const QString &name)
{
    return name.contains(u',') || name.contains(mark) || name != name.trimmed() || name.isEmpty();
}

} // namespace

tagging::Tags tagsOf(const QString &text)
{
    tagging::Tags tags;
    QString name;
    bool isMarked = false; // between marks now
    bool hadMarks = false;
    const auto take = [&] {
        name = hadMarks ? name : name.trimmed();
        if (hadMarks || !name.isEmpty())
            tags.insert(tagging::Tag(name));
        name.clear();
        hadMarks = false;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text.at(at);
        if (isMarked && letter == mark && at + 1 < text.size() && text.at(at + 1) == mark) {
            name += mark;
            ++at;
        } else if (letter == mark && (isMarked || name.trimmed().isEmpty())) {
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
    return tags;
}

QString tagsText(const tagging::Tags &tags)
{
    QStringList texts;
    for (const tagging::Tag &tag : tags) {
        QString text = tag.name();
        if (needsMarks(text))
            text = mark + text.replace(mark, QStringLiteral("\"\"")) + mark;
        texts += text;
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace kiv::workbench
