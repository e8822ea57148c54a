// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budgeted_money.h"

#include "budgeting/internal/faults.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

#include <typeinfo>

namespace kiv::budgeting {

BudgetedMoney::BudgetedMoney(BudgetSource source, const numira::Money &amount,
                             EventFrequency period, QDate nextOccurOn)
    : m_source(std::move(source)),
      m_amount(amount),
      m_period(known(period)),
      m_nextOccurOn(nextOccurOn),
      m_dayOfMonth(nextOccurOn.day())
{
    if (!m_nextOccurOn.isValid())
        throw internal::itemWithoutDate(m_source);
    if (m_amount.isNegative())
        throw internal::itemWithNegativeAmount(m_source, m_amount);
}

BudgetedMoney::~BudgetedMoney() = default;

void BudgetedMoney::updateNextOccurOn()
{
    m_nextOccurOn = nextOccurrence(m_period, m_nextOccurOn, m_dayOfMonth);
}

void BudgetedMoney::setDayOfMonth(int day)
{
    if (day < 1 || day > 31)
        throw internal::noDayOfMonth(m_source, day);
    m_dayOfMonth = day;
}

std::unique_ptr<BudgetedMoney> BudgetedMoney::clone() const
{
    return std::make_unique<BudgetedMoney>(*this);
}

bool operator==(const BudgetedMoney &a, const BudgetedMoney &b)
{
    return (a <=> b) == 0;
}

std::strong_ordering operator<=>(const BudgetedMoney &a, const BudgetedMoney &b)
{
    if (const auto bySource = a.m_source <=> b.m_source; bySource != 0)
        return bySource;
    if (const auto byAmount = numira::compareExactly(a.m_amount, b.m_amount); byAmount != 0)
        return byAmount;
    if (const auto byPeriod = a.m_period <=> b.m_period; byPeriod != 0)
        return byPeriod;
    if (const auto byDate = a.m_nextOccurOn.toJulianDay() <=> b.m_nextOccurOn.toJulianDay();
        byDate != 0)
        return byDate;
    if (const auto byDay = a.m_dayOfMonth <=> b.m_dayOfMonth; byDay != 0)
        return byDay;
    if (const auto byKind = toBudgetItemTypes(a) <=> toBudgetItemTypes(b); byKind != 0)
        return byKind;
    return a.compareKind(b);
}

std::strong_ordering BudgetedMoney::compareKind(const BudgetedMoney &) const
{
    return std::strong_ordering::equal;
}

void BudgetedMoney::streamKind(std::ostream &) const {}

std::ostream &operator<<(std::ostream &out, const BudgetedMoney &item)
{
    out << BudgetItemIdentifier{toBudgetItemTypes(item), item.source()} << ' ' << item.amount()
        << ' ' << item.period() << " on " << foundation::isoText(item.nextOccurOn()).toStdString()
        << " day " << item.dayOfMonth();
    item.streamKind(out);
    return out;
}

} // namespace kiv::budgeting
