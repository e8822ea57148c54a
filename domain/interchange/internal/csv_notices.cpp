// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_notices.h"

#include "interchange/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::interchange::notices {

using faults::quoted;

QString otherEncoding(const QString &named, const QString &found)
{
    return QObject::tr("The file is read as %1, since its letters are not %2.").arg(found, named);
}

QString orderOfDays(const QString &format)
{
    return QObject::tr("The dates are read as %1: only so are they in order.").arg(format);
}

QString headingsAgain(qsizetype line)
{
    return QObject::tr("The headings appear again on line %1; the file may contain entries twice.")
        .arg(line);
}

QString belowSkipped(qsizetype line)
{
    return QObject::tr("What is below the entries from line %1 on is skipped.").arg(line);
}

QString markedIn()
{
    return QObject::tr("No amount is negative: amounts marked CR came in, all others went out.");
}

QString allCameIn()
{
    return QObject::tr("No amount is negative, so all of them are read as money that came in.");
}

QString undone(qsizetype count, const QStringList &states)
{
    return QObject::tr("%n entries that did not take place are skipped (%1).", nullptr,
                       static_cast<int>(count))
        .arg(quoted(states.join(QStringLiteral(", "))));
}

QString feesSubtracted(const QString &column)
{
    return QObject::tr("The fees in column '%1' are subtracted from the amounts.")
        .arg(quoted(column));
}

QString feesIncluded(const QString &column)
{
    return QObject::tr("The balances show that the amounts include the fees in column '%1'.")
        .arg(quoted(column));
}

QString balancesUnchecked(const QString &column)
{
    return QObject::tr("The balances in column '%1' do not follow from the amounts, and are not "
                       "used.")
        .arg(quoted(column));
}

} // namespace kiv::interchange::notices
