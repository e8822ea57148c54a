// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/version_mark.h"

#include <QtCore/QObject>
#include <QtCore/QRandomGenerator>

namespace kiv::storage {

VersionMark VersionMark::next() const
{
    VersionMark mark;
    mark.id = QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16,
                                       QLatin1Char('0'));
    if (!id.isEmpty()) {
        mark.ancestors = ancestors.first(std::min(ancestors.size(), ancestorsMax - 1));
        mark.ancestors.prepend(id);
    }
    return mark;
}

void VersionMark::nameChange(const QString &line)
{
    change = line.simplified().left(changeMax);
}

void VersionMark::nameChanges(const QString &first, int others)
{
    nameChange(others == 0 ? first : QObject::tr("%1 and %n more", nullptr, others).arg(first));
}

} // namespace kiv::storage
