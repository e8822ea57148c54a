// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/qt_ptr.h"

namespace kiv::foundation::internal {

QMetaObject::Connection createDestroyableConnection(QObject *object, std::function<void()> cleared)
{
    if (object == nullptr)
        return {};
    return QObject::connect(object, &QObject::destroyed, std::move(cleared));
}

} // namespace kiv::foundation::internal
