// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/percentage.h"

#include "foundation/streams.h"
#include "numira/local_text.h"

#include <cmath>
#include <ostream>
#include <utility>

namespace kiv::foundation {
namespace {

/// Rates from here on are shown as floating-point numbers.
constexpr double plainRateLimit = 1e15;

/// Anything can stand in a settings file, and it must be showable.
bool isPlain(const Percentage &percentage)
{
    return std::abs(percentage.rate()) < plainRateLimit;
}

numira::Decimal shown(const Percentage &percentage)
{
    return numira::Decimal::fromDouble(percentage.rate()).roundedHalfEven(percentage.digits());
}

QString rateText(const Percentage &percentage)
{
    return isPlain(percentage) ? QString::fromStdString(shown(percentage).toText())
                               : QString::number(percentage.rate());
}

} // namespace

numira::Decimal Percentage::fraction() const
{
    return numira::Decimal::fromDouble(m_rate).roundedHalfEven(m_digits).scaled(1, 100);
}

QString presentationText(const Percentage &percentage)
{
    if (!isPlain(percentage))
        return rateText(percentage) + QStringLiteral(" %");
    return QString::fromStdString(numira::toLocalText(shown(percentage))) + QStringLiteral(" %");
}

std::ostream &operator<<(std::ostream &out, const Percentage &percentage)
{
    return out << rateText(percentage).toStdString() << " %";
}

} // namespace kiv::foundation
