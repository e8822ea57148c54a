// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/percentage.h"

#include "foundation/streams.h"

#include <cmath>
#include <ostream>
#include <utility>

namespace kiv::foundation {
namespace {

/// Rates from here on are shown as floating-point numbers.
constexpr double plainRateLimit = 1e15;

} // namespace

numira::Decimal Percentage::fraction() const
{
    return numira::Decimal::fromDouble(m_rate).roundedHalfEven(m_digits).scaled(1, 100);
}

QString presentationText(const Percentage &percentage)
{
    const double rate = percentage.rate();
    // Anything can stand in a settings file, and it must be showable.
    if (!(std::abs(rate) < plainRateLimit))
        return QString::number(rate) + QStringLiteral(" %");
    const numira::Decimal shown =
        numira::Decimal::fromDouble(rate).roundedHalfEven(percentage.digits());
    return QString::fromStdString(shown.toText()) + QStringLiteral(" %");
}

std::ostream &operator<<(std::ostream &out, const Percentage &percentage)
{
    return out << presentationText(percentage).toStdString();
}

QDebug operator<<(QDebug debug, const Percentage &percentage)
{
    return streamed(std::move(debug), percentage);
}

} // namespace kiv::foundation
