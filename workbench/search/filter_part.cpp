// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/search/filter_part.h"

#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"
#include "workbench/search/spans.h"

#include <QtCore/QStringList>

#include <array>
#include <optional>

namespace kiv::workbench {

namespace {

constexpr char16_t quote = u'"';

/// A key, and what stands behind it.
struct Key {
    const char *word;
    FilterKind kind;
};
constexpr std::array keys{Key{"is", FilterKind::Mark}, Key{"not", FilterKind::Mark},
                          Key{"account", FilterKind::Account}, Key{"item", FilterKind::Item},
                          Key{"payee", FilterKind::Payee}};

/// Every mark, by its word.
const QStringList &marks()
{
    static const QStringList all{QStringLiteral("reconciled"), QStringLiteral("cleared"),
                                 QStringLiteral("open")};
    return all;
}

/// What stands between two blanks, or in quotes.
struct Token {
    QString key;
    QString value;
    bool isExcluded = false;
    bool isQuoted = false;

    [[nodiscard]] bool isPlain() const { return key.isEmpty() && !isQuoted; }
    /// The token as typed, for messages.
    [[nodiscard]] QString typed() const
    {
        return (isExcluded ? QStringLiteral("-") : QString()) + (key.isEmpty() ? key : key + u':') +
               value;
    }
};

std::vector<Token> tokensOf(const QString &text)
{
    std::vector<Token> tokens;
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        Token token;
        if (text[at] == u'-' && at + 1 < text.size() && !text[at + 1].isSpace()) {
            token.isExcluded = true;
            ++at;
        }
        qsizetype letters = at;
        while (letters < text.size() && text[letters].isLetter())
            ++letters;
        if (letters > at && letters < text.size() && text[letters] == u':') {
            token.key = text.sliced(at, letters - at);
            at = letters + 1;
        }
        token.isQuoted = at < text.size() && text[at] == quote;
        if (token.isQuoted)
            ++at;
        // A quote that is still open ends with the text.
        const qsizetype begin = at;
        while (at < text.size() && (token.isQuoted ? text[at] != quote : !text[at].isSpace()))
            ++at;
        token.value = text.sliced(begin, at - begin).remove(quote);
        if (token.isQuoted)
            ++at;
        if (!token.value.trimmed().isEmpty() || !token.key.isEmpty())
            tokens.push_back(std::move(token));
    }
    return tokens;
}

/// A part with a key; a word if the key means nothing.
FilterPart keyedPart(const Token &token)
{
    const QString word = token.key.toLower();
    QStringList known;
    for (const Key &key : keys) {
        known += QString::fromLatin1(key.word) + u':';
        if (word != QLatin1String(key.word))
            continue;
        FilterPart part{key.kind, token.value.trimmed(), token.isExcluded};
        if (part.value.isEmpty())
            throw internal::filterLacksValue(token.typed());
        if (part.kind == FilterKind::Mark) {
            part.value = part.value.toLower();
            if (!marks().contains(part.value))
                throw internal::notAMarkFilter(token.typed());
            part.isExcluded = token.isExcluded != (word == u"not");
        }
        return part;
    }
    for (const QString &key : known) {
        if (slipsBetween(word + u':', key) <= (word.size() > 3 ? 2 : 1))
            throw internal::notAFilter(token.typed(), {key});
    }
    return {FilterKind::Words, token.key + u':' + token.value, token.isExcluded};
}

/// Only the days themselves depend on today, not whether a text names some.
bool namesDays(const QString &text)
{
    return daySpan(text, QDate(2000, 1, 1)).has_value();
}

QString quoted(const QString &value)
{
    return quote + QString(value).remove(quote) + quote;
}

/// Whether the word alone, or with the next one, would be something else.
bool needsQuotes(const QString &word)
{
    if (beginsDays(word))
        return true;
    try {
        return filterParts(word) != std::vector{FilterPart{FilterKind::Words, word, false}};
    } catch (const EntryError &) {
        return true;
    }
}

} // namespace

QString FilterPart::text() const
{
    const QString sign = isExcluded ? QStringLiteral("-") : QString();
    switch (kind) {
    case FilterKind::Amount:
    case FilterKind::Days:
        return sign + value;
    case FilterKind::Mark:
        return (isExcluded ? QStringLiteral("not:") : QStringLiteral("is:")) + value;
    case FilterKind::Words:
        return sign + (needsQuotes(value) ? quoted(value) : value);
    case FilterKind::Account:
    case FilterKind::Item:
    case FilterKind::Payee:
        break;
    }
    const auto *key = std::ranges::find(keys, kind, &Key::kind);
    const bool isWord = std::ranges::none_of(
        value, [](QChar letter) { return letter.isSpace() || letter == quote; });
    return sign + QLatin1String(key->word) + u':' + (isWord ? value : quoted(value));
}

QString filterText(const std::vector<FilterPart> &parts)
{
    QStringList texts;
    for (const FilterPart &part : parts)
        texts += part.text();
    return texts.join(u' ');
}

std::vector<FilterPart> filterParts(const QString &text)
{
    const std::vector<Token> tokens = tokensOf(text);
    std::vector<FilterPart> parts;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        FilterPart part{FilterKind::Words, token.value, token.isExcluded};
        if (!token.key.isEmpty()) {
            part = keyedPart(token);
        } else if (token.isPlain()) {
            const Token *next = at + 1 < tokens.size() ? &tokens[at + 1] : nullptr;
            const QString both = next && next->isPlain() && !next->isExcluded
                                     ? part.value + u' ' + next->value
                                     : QString();
            if (namesDays(both)) {
                part = {FilterKind::Days, both, token.isExcluded};
                ++at;
            } else if (namesDays(part.value)) {
                part.kind = FilterKind::Days;
            } else if (amountSpan(part.value)) {
                part.kind = FilterKind::Amount;
            }
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

} // namespace kiv::workbench
