// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QRandomGenerator>

/// The text with a few bytes replaced, removed or repeated, and now and then
/// one of its `own` pieces replaced by an `odd` one.
inline QByteArray damaged(QByteArray text, const QByteArrayList &own, const QByteArrayList &odd,
                          QRandomGenerator &random)
{
    const auto below = [&](qsizetype limit) { return random.bounded(int(limit)); };
    for (int edits = random.bounded(1, 5); edits > 0 && text.size() > 8; --edits) {
        const int kind = below(4);
        if (kind == 0)
            text[below(text.size())] = char(below(256));
        else if (kind == 1)
            text.remove(below(text.size()), random.bounded(1, 8));
        else if (kind == 2)
            text.insert(below(text.size()), text.mid(below(text.size()), below(40)));
        else
            text.replace(own.at(below(own.size())), odd.at(below(odd.size())));
    }
    return text;
}

/// How many random runs a test makes: more when it runs for long.
inline int randomRuns(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("KIV_RANDOM_RUNS");
    return wanted > 0 ? wanted : usual;
}
