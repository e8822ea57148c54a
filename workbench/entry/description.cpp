// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/description.h"

#include "interchange/duplicates.h"

namespace kiv::workbench {

Description Description::of(const QString &text)
{
    Description parts;
    const QStringView told = withoutIds(text);
    for (QString rest = text; rest.size() > told.size();
         rest = interchange::withoutBankId(rest).toString())
        parts.bankIds.prepend(interchange::bankIdOf(rest));
    const qsizetype bar = told.indexOf(u'|');
    if (bar >= 0)
        parts.payee = told.first(bar).trimmed().toString();
    parts.reason = told.sliced(bar + 1).trimmed().toString();
    return parts;
}

QStringView Description::withoutIds(QStringView text)
{
    for (QStringView rest = interchange::withoutBankId(text); rest.size() < text.size();
         rest = interchange::withoutBankId(text))
        text = rest;
    return text;
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
    if (interchange::withoutBankId(all).size() < all.size()) {
        all[all.lastIndexOf(u'[')] = u'(';
        all.back() = u')';
    }
    for (const QString &id : bankIds)
        all = interchange::withBankId(all, id);
    return all.isEmpty() ? std::nullopt : std::optional(all);
}

} // namespace kiv::workbench
