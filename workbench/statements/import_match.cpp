// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_match.h"

#include "workbench/entry/folded.h"

#include "interchange/duplicates.h"

#include <algorithm>
#include <unordered_map>

namespace kiv::workbench {

using interchange::StatementEntry;

namespace {

const QChar madeUp = u'~';

/// FNV-1a, a hash that is the same on every machine. It need not be safe: the day stands beside
/// it, and the amount is compared too.
quint32 hashOf(const QString &text)
{
    quint32 hash = 2166136261U;
    for (const QChar letter : text)
        hash = (hash ^ letter.unicode()) * 16777619U;
    return (hash ^ (hash >> 24U)) & 0xffffffU;
}

} // namespace

void giveIdentifiers(std::vector<StatementEntry> &entries)
{
    // As descriptions keep them, which have brackets around them.
    for (StatementEntry &entry : entries)
        entry.bankId = interchange::bankIdOf(interchange::withBankId({}, entry.bankId));
    interchange::forgetSharedIds(entries);
    std::unordered_map<QString, int> counts;
    for (StatementEntry &entry : entries) {
        if (!entry.bankId.isEmpty())
            continue;
        const QString said = folded((entry.payee + u' ' + entry.text).simplified()) + u'\n' +
                             QString::fromStdString(entry.amount.amount().toText());
        const QString id = madeUp + entry.date.toString(QStringLiteral("yyyyMMdd")) + u'-' +
                           QStringLiteral("%1").arg(hashOf(said), 6, 16, QChar(u'0'));
        const int count = ++counts[id];
        entry.bankId = count == 1 ? id : id + u'-' + QString::number(count);
    }
}

bool isMadeUp(const QString &bankId)
{
    return bankId.startsWith(madeUp);
}

int bankDaysBetween(QDate one, QDate other)
{
    if (other < one)
        std::swap(one, other);
    const qint64 weeks = one.daysTo(other) / 7;
    int days = static_cast<int>(weeks * 5);
    for (QDate day = one.addDays(weeks * 7); day < other;) {
        day = day.addDays(1);
        days += day.dayOfWeek() <= 5 ? 1 : 0;
    }
    return days;
}

} // namespace kiv::workbench
