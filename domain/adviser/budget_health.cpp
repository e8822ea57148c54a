// SPDX-License-Identifier: GPL-3.0-or-later
#include "adviser/budget_health.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <array>
#include <cmath>
#include <stdexcept>

namespace kiv::adviser {

namespace {

constexpr std::array gradeNames{
    QT_TRANSLATE_NOOP("QObject", "unknown"), QT_TRANSLATE_NOOP("QObject", "excellent"),
    QT_TRANSLATE_NOOP("QObject", "good"),    QT_TRANSLATE_NOOP("QObject", "fair"),
    QT_TRANSLATE_NOOP("QObject", "poor"),    QT_TRANSLATE_NOOP("QObject", "critical"),
};

constexpr int needsMax = 50;
constexpr int freeSpendingMax = 30;
constexpr int savingsMin = 20;
constexpr int debtsMax = 36;

/// The share of the income in percent with one digit behind the point, rounded
/// by `round` so that a missed limit never reads as if it were met.
template <typename Round>
QString shareText(const numira::Money &part, const numira::Money &income, Round round)
{
    const double share = part.amount().toDouble() / income.amount().toDouble();
    return QString::number(round(share * 1000.0) / 10.0);
}

/// `text` has the places %1 for the share and %2 for the limit.
HealthReason atMost(int percent, const QString &text, const numira::Money &part,
                    const numira::Money &income)
{
    const bool isSound = part.amount() <= income.amount().scaled(percent, 100);
    const auto round = [&](double tenths) {
        return isSound ? std::floor(tenths) : std::ceil(tenths);
    };
    return {isSound, text.arg(shareText(part, income, round), QString::number(percent))};
}

HealthReason atLeast(int percent, const QString &text, const numira::Money &part,
                     const numira::Money &income)
{
    const bool isSound = part.amount() >= income.amount().scaled(percent, 100);
    const auto round = [](double tenths) { return std::floor(tenths); };
    return {isSound, text.arg(shareText(part, income, round), QString::number(percent))};
}

std::vector<HealthReason> judgeShares(const budgeting::BudgetTotals &totals)
{
    const numira::Money &income = totals.wages();
    return {
        atMost(100, QObject::tr("%1 % of the income is planned; %2 % is all there is."),
               totals.outgoing(), income),
        atMost(needsMax,
               QObject::tr("Bills and debts take %1 % of the income; up to %2 % is sound."),
               totals.bills() + totals.debts(), income),
        atMost(debtsMax, QObject::tr("Debts take %1 % of the income; up to %2 % is sound."),
               totals.debts(), income),
        atMost(freeSpendingMax,
               QObject::tr("Free spending takes %1 % of the income; up to %2 % is sound."),
               totals.nontracks(), income),
        atLeast(savingsMin, QObject::tr("Goals get %1 % of the income; from %2 % on is sound."),
                totals.goals(), income),
    };
}

/// The first reason is whether the income covers everything.
HealthGrade gradeOf(const std::vector<HealthReason> &reasons)
{
    if (!reasons.front().isSound)
        return HealthGrade::Critical;
    const auto missed = std::count_if(reasons.begin(), reasons.end(),
                                      [](const HealthReason &reason) { return !reason.isSound; });
    const auto worst = static_cast<std::ptrdiff_t>(HealthGrade::Poor);
    return static_cast<HealthGrade>(std::min(worst, 1 + missed));
}

} // namespace

BudgetHealth::BudgetHealth(const budgeting::BudgetTotals &totals)
{
    if (totals.wages().isPositive()) {
        m_reasons = judgeShares(totals);
        m_grade = gradeOf(m_reasons);
    } else if (totals.outgoing().isPositive()) {
        m_reasons = {{false, QObject::tr("There is no income to pay for what goes out.")}};
        m_grade = HealthGrade::Critical;
    } else {
        m_reasons = {{true, QObject::tr("There is neither income nor spending to judge.")}};
    }
}

QString presentationText(HealthGrade grade)
{
    const auto value = static_cast<std::size_t>(grade);
    if (value >= gradeNames.size())
        throw std::logic_error("An unknown budget health grade was supplied.");
    return QObject::tr(gradeNames.at(value));
}

std::ostream &operator<<(std::ostream &out, HealthGrade grade)
{
    const auto value = static_cast<std::size_t>(grade);
    if (value < gradeNames.size())
        return out << gradeNames.at(value);
    return out << "unknown grade " << value;
}

std::ostream &operator<<(std::ostream &out, const BudgetHealth &health)
{
    out << health.grade() << " (";
    const char *separator = "";
    for (const auto &reason : health.reasons()) {
        out << separator << foundation::escapedUtf8(reason.text);
        separator = " ";
    }
    return out << ')';
}

QDebug operator<<(QDebug debug, HealthGrade grade)
{
    return foundation::streamed(debug, grade);
}

QDebug operator<<(QDebug debug, const BudgetHealth &health)
{
    return foundation::streamed(debug, health);
}

} // namespace kiv::adviser
