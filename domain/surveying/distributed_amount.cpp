// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/distributed_amount.h"

#include "foundation/local_dates.h"
#include "foundation/presentation.h"
#include "foundation/streams.h"

namespace kiv::surveying {

DistributedAmount::DistributedAmount(const numira::Money &distributed, QDate nextOccurOn,
                                     const numira::Money &expected)
    : m_distributed(distributed), m_nextOccurOn(nextOccurOn), m_expected(expected)
{
}

DistributedAmount &DistributedAmount::operator+=(const numira::Money &money)
{
    m_distributed += money;
    return *this;
}

DistributedAmount &DistributedAmount::operator-=(const numira::Money &money)
{
    m_distributed -= money;
    return *this;
}

DistributedAmount &DistributedAmount::operator=(const numira::Money &distributed) noexcept
{
    m_distributed = distributed;
    return *this;
}

QString presentationText(const DistributedAmount &amount)
{
    return foundation::presentationText(amount.distributed());
}

std::ostream &operator<<(std::ostream &out, const DistributedAmount &amount)
{
    return out << amount.distributed() << " of " << amount.expected() << " by "
               << foundation::isoText(amount.nextOccurOn()).toStdString();
}

} // namespace kiv::surveying
