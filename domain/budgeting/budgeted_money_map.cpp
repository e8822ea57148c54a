// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budgeted_money_map.h"

#include "foundation/streams.h"

namespace kiv::budgeting {

QDebug operator<<(QDebug debug, const BillMap &map)
{
    return foundation::streamed(debug, map);
}

QDebug operator<<(QDebug debug, const DebtMap &map)
{
    return foundation::streamed(debug, map);
}

QDebug operator<<(QDebug debug, const GoalMap &map)
{
    return foundation::streamed(debug, map);
}

QDebug operator<<(QDebug debug, const NontrackMap &map)
{
    return foundation::streamed(debug, map);
}

QDebug operator<<(QDebug debug, const WageMap &map)
{
    return foundation::streamed(debug, map);
}

} // namespace kiv::budgeting
