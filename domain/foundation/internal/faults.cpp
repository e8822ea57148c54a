// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/type_index_map.h"

#include <QtCore/QObject>

// They are declared where the template uses them, since callers compile it.
namespace kiv::foundation::internal {

Error mutableValueMissing(const QString &type, const QString &key)
{
    return Error(
        QObject::tr("Failed to find a mutable value under the type '%1' with the key '%2'.")
            .arg(type, key));
}

Error valueMissing(const QString &type, const QString &key)
{
    return Error(
        QObject::tr("Failed to find a non-mutable value under the type '%1' with the key '%2'.")
            .arg(type, key));
}

Error typeToRemoveMissing(const QString &type, const QString &key)
{
    return Error(QObject::tr("Failed to remove the value under the key '%1' as the index type "
                             "'%2' was not found.")
                     .arg(key, type));
}

Error keyToRemoveMissing(const QString &type, const QString &key)
{
    return Error(QObject::tr("Failed to remove the value under the key '%1' as the key was not "
                             "found under the index type '%2'.")
                     .arg(key, type));
}

} // namespace kiv::foundation::internal
