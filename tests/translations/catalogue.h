// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>

#include <vector>

namespace kiv::test {

/// A message of a catalogue, with its translation: one text, or one for each
/// plural form.
struct Message {
    QString context;
    QString source;
    QString comment;
    QString type; ///< empty when the translation is finished
    bool hasPlurals = false;
    QStringList texts;

    [[nodiscard]] QString key() const { return context + u'|' + source + u'|' + comment; }
};

inline std::vector<Message> readCatalogue(const QString &path)
{
    std::vector<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            const bool hasPlurals = xml.attributes().value(QLatin1String("numerus")) == u"yes";
            messages.push_back({context, {}, {}, {}, hasPlurals, {}});
        } else if (name == u"source") {
            messages.back().source = xml.readElementText();
        } else if (name == u"comment") {
            messages.back().comment = xml.readElementText();
        } else if (name == u"translation") {
            messages.back().type = xml.attributes().value(QLatin1String("type")).toString();
            if (!messages.back().hasPlurals)
                messages.back().texts += xml.readElementText();
        } else if (name == u"numerusform") {
            messages.back().texts += xml.readElementText();
        }
    }
    return xml.hasError() ? std::vector<Message>() : messages;
}

inline QStringList found(const QString &pattern, const QString &text)
{
    QStringList parts;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        parts += matches.next().captured();
    parts.sort();
    return parts;
}

/// What a translation must take over from its source as it is, and in which it
/// differs. In a plural, the form for one may say the number in words.
inline QStringList faults(const Message &message)
{
    struct Kept {
        const char *what;
        QString pattern;
    };
    static const std::vector<Kept> kept{
        {"placeholders", QStringLiteral("%L?\\d|%L?n|\\{[^}]*\\}")},
        {"per cent signs", QStringLiteral("%")},
        {"mnemonics", QStringLiteral("&")},
        {"options", QStringLiteral("(?<![\\w-])--[a-z][a-z-]*")},
        {"blanks and breaks around it", QStringLiteral("\\A\\s+|\\s+\\z")},
        {"ends of lines", QStringLiteral("\\n")},
        {"its last mark", QStringLiteral("[.?!:…]\\s*\\z")},
    };
    QStringList faults;
    if (!message.type.isEmpty())
        faults += message.type;
    if (message.texts.isEmpty())
        faults += QStringLiteral("nothing");
    for (qsizetype form = 0; form < message.texts.size(); ++form) {
        const bool isForOne = message.hasPlurals && form == 0 && message.texts.size() > 1;
        QString source = message.source;
        if (isForOne && !message.texts[form].contains(QStringLiteral("%n")))
            source.replace(QStringLiteral("%n"), QStringLiteral("1"));
        if (message.texts[form].trimmed().isEmpty() && !source.trimmed().isEmpty())
            faults += QStringLiteral("nothing");
        for (const auto &[what, pattern] : kept) {
            if (found(pattern, source) != found(pattern, message.texts[form]))
                faults += QLatin1String(what);
        }
    }
    return faults;
}

} // namespace kiv::test
