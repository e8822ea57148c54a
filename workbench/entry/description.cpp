// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/description.h"

#include "interchange/duplicates.h"

namespace kiv::workbench {

Description Description::of(const QString &text)
{
    Description parts;
    QString rest = text;
    for (QString id = interchange::bankIdOf(rest); !id.isEmpty();
         id = interchange::bankIdOf(rest)) {
        parts.bankIds.prepend(id);
        rest = interchange::withoutBankId(rest);
    }
    const qsizetype bar = rest.indexOf(u'|');
    if (bar >= 0)
        parts.payee = rest.first(bar).trimmed();
    parts.reason = rest.sliced(bar + 1).trimmed();
    return parts;
}

Description Description::of(const std::optional<QString> &text)
{
    return text ? of(*text) : Description();
}

QString Description::shown() const
{
    return payee.isEmpty() || reason.isEmpty() ? payee + reason
                                               : payee + QStringLiteral(" | ") + reason;
}

std::optional<QString> Description::text() const
{
    const QString who = QString(payee).replace(u'|', u'/').trimmed();
    QString all = reason.trimmed();
    // Without a bar it would be read as a reason, and with another one as a payee.
    if (!who.isEmpty() || all.contains(u'|'))
        all = QStringLiteral("%1 | %2").arg(who, all).trimmed();
    for (const QString &id : bankIds)
        all = interchange::withBankId(all, id);
    return all.isEmpty() ? std::nullopt : std::optional(all);
}

} // namespace kiv::workbench
