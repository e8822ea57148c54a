// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/presentation.h"

#include "foundation/local_dates.h"

#include <QtCore/QObject>

namespace kiv::foundation {

QString presentationText(QDate date)
{
    return date.isValid() ? localText(date) : QObject::tr("no date");
}

QString presentationText(const numira::Money &money)
{
    return QString::fromStdString(numira::toLocalText(money));
}

QString presentationText(const numira::Currency &currency)
{
    return toQString(currency);
}

QString toQString(const numira::Money &money)
{
    return QString::fromStdString(numira::toText(money));
}

QString toQString(const numira::Currency &currency)
{
    return QString::fromStdString(numira::toStdString(currency));
}

} // namespace kiv::foundation
