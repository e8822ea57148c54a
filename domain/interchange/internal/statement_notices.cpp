// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/statement_notices.h"

#include "interchange/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::interchange::notices {

QString balanceDiffers(const Place &place, const QString &expected, const QString &found)
{
    return QObject::tr("Line %1: the entries add up to a balance of %2, but the file says %3; "
                       "entries may be missing.")
        .arg(QString::number(place.line), expected, found);
}

QString furtherBalancesDiffer(qsizetype count)
{
    return QObject::tr("%n further balance(s) differ from the entries, too.", nullptr,
                       static_cast<int>(count));
}

QString furtherPages(const Place &place)
{
    return QObject::tr("Line %1: the statement goes on in another file; import that, too.")
        .arg(place.line);
}

QString tagMended(const Place &place, const QString &tag)
{
    return QObject::tr("Line %1: <%2> is never closed; the file is read as if it were.")
        .arg(QString::number(place.line), faults::quoted(tag));
}

QString documentNotEnded()
{
    return QObject::tr("The end of the file is missing; it may be cut off.");
}

QString balanceLeftOut(const Place &place)
{
    return QObject::tr("Line %1: the balance cannot be read.").arg(place.line);
}

QString correctionLeftOut(const Place &place, const QString &amount)
{
    return QObject::tr("Line %1: the correction over %2 is skipped, because the entry that it "
                       "corrects is not in the file; correct it by hand.")
        .arg(QString::number(place.line), amount);
}

QString commentsLeftOut()
{
    return QObject::tr("Comments above the first entry are skipped.");
}

QString investmentsLeftOut()
{
    return QObject::tr("Investments are skipped.");
}

} // namespace kiv::interchange::notices
