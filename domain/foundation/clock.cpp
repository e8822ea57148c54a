// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/clock.h"

namespace kiv::foundation {

QDate today()
{
    return QDate::currentDate();
}

} // namespace kiv::foundation
