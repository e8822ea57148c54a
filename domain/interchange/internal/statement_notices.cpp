// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/statement_notices.h"

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

} // namespace kiv::interchange::notices
