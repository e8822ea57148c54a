// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/folded.h"

#include <QtCore/QStringView>

#include <algorithm>

namespace kiv::workbench {

QString folded(const QString &text)
{
    constexpr char16_t asciiEnd = 0x80;
    if (std::ranges::all_of(text, [](QChar letter) { return letter.unicode() < asciiEnd; }))
        return text.toLower();
    QString plain;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (letter == u'ß')
            plain += u"ss";
        else if (!letter.isMark())
            plain += letter;
    }
    return plain;
}

} // namespace kiv::workbench
