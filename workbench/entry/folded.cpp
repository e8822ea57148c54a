// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/folded.h"

#include <array>

namespace kiv::workbench {

namespace {

QString foldedSlowly(QStringView text)
{
    QString plain;
    for (const QChar letter :
         text.toString().normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (letter == u'ß')
            plain += u"ss";
        else if (!letter.isMark())
            plain += letter;
    }
    return plain;
}

/// Letters of Latin alphabets that become one letter; 0 for the others.
using Letters = std::array<char16_t, 0x250>;

Letters simpleLetters()
{
    Letters letters{};
    for (std::size_t code = 1; code < letters.size(); ++code) {
        const QChar letter(static_cast<char16_t>(code));
        const QString plain = foldedSlowly({&letter, 1});
        if (plain.size() == 1)
            letters[code] = plain[0].unicode();
    }
    return letters;
}

} // namespace

QString folded(QStringView text)
{
    // A search folds each description of a full book.
    static const Letters letters = simpleLetters();
    QString plain(text.size(), Qt::Uninitialized);
    QChar *to = plain.data();
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        const char16_t simple = code < letters.size() ? letters[code] : u'\0';
        if (simple == 0)
            return foldedSlowly(text);
        *to++ = simple;
    }
    return plain;
}

} // namespace kiv::workbench
