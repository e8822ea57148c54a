// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/errors.h"

#include <QtCore/QObject>

namespace kiv::interchange {

namespace {

QString sentence(const Place &place, const QString &reason)
{
    return place.line > 0 ? QObject::tr("'%1', line %2: %3")
                                .arg(place.file, QString::number(place.line), reason)
                          : QObject::tr("'%1': %2").arg(place.file, reason);
}

} // namespace

ImportError::ImportError(Place place, const QString &reason, const std::exception &cause)
    : foundation::Error(sentence(place, reason), cause), m_place(std::move(place))
{
}

ImportError::ImportError(const ImportError &) noexcept = default;
ImportError::~ImportError() = default;

} // namespace kiv::interchange
