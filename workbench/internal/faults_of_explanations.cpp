// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/faults_of_explanations.h"

#include "workbench/surveys/set_aside_text.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::workbench::internal {

using foundation::presentationText;

Refusal noExchangeRate(const numira::Currency &from, const numira::Currency &to)
{
    return Refusal(lackingRateText({from, to}));
}

Refusal notConverted(const QString &transaction)
{
    return Refusal(
        QObject::tr("Nothing of transaction %1 was converted; it is all in one currency.")
            .arg(transaction));
}

Refusal doesNotRecur(const QString &item)
{
    return Refusal(QObject::tr("'%1' does not recur, so no month has a share of it.").arg(item));
}

Refusal notSetAside(const QString &item, const QString &account)
{
    return Refusal(QObject::tr("Nothing is set aside for '%1' at %2.").arg(item, account));
}

Refusal noEnvelopes()
{
    return Refusal(QObject::tr("No bank has an open account for which money is set aside."));
}

Refusal owedIsNotRefused(const QString &account)
{
    return Refusal(QObject::tr("%1 is owed; a survey refuses no difference there.").arg(account));
}

Refusal noIncome()
{
    return Refusal(QObject::tr("There is no income of which anything could take a part."));
}

EntryError notInOutlook(QDate day, QDate first, QDate last)
{
    return EntryError(
        QObject::tr("%1 is not a day to look ahead to; name one from %2 to %3.")
            .arg(presentationText(day), presentationText(first), presentationText(last)));
}

Refusal notWatched(const QString &account)
{
    return Refusal(QObject::tr("The outlook does not tell of %1: it is no open account of a bank, "
                               "or holds the money of a goal.")
                       .arg(account));
}

Refusal notAddedUp()
{
    return Refusal(QObject::tr("Without an open bank account, or without an exchange rate, the "
                               "money cannot be added up; name an account."));
}

} // namespace kiv::workbench::internal
