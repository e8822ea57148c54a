// SPDX-License-Identifier: GPL-3.0-or-later
#include "adviser/budget_health.h"

#include "adviser/income_shares.h"

#include "foundation/enum_table.h"
#include "foundation/streams.h"

#include <QtCore/QObject>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kiv::adviser {

namespace {

constexpr std::array gradeNames{
    QT_TRANSLATE_NOOP("QObject", "unknown"), QT_TRANSLATE_NOOP("QObject", "excellent"),
    QT_TRANSLATE_NOOP("QObject", "good"),    QT_TRANSLATE_NOOP("QObject", "fair"),
    QT_TRANSLATE_NOOP("QObject", "poor"),    QT_TRANSLATE_NOOP("QObject", "critical"),
};

const char *nameOf(HealthGrade grade)
{
    return gradeNames.at(static_cast<std::size_t>(grade));
}

HealthReason withoutShare(bool isSound, const char *sentence)
{
    return {isSound, QObject::tr(sentence), QString::fromLatin1(sentence)};
}

std::vector<HealthReason> judgeShares(const budgeting::BudgetTotals &totals)
{
    std::vector<HealthReason> reasons;
    for (const IncomeShare &share : incomeShares(totals))
        reasons.push_back({share.isSound, presentationText(share), toQString(share)});
    return reasons;
}

/// The first reason is whether the income covers everything.
HealthGrade gradeOf(const std::vector<HealthReason> &reasons)
{
    if (!reasons.front().isSound)
        return HealthGrade::Critical;
    const auto missed = std::count_if(reasons.begin(), reasons.end(),
                                      [](const HealthReason &judged) { return !judged.isSound; });
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
        m_reasons = {withoutShare(
            false, QT_TRANSLATE_NOOP("QObject", "There is no income to pay for what goes out."))};
        m_grade = HealthGrade::Critical;
    } else {
        m_reasons = {withoutShare(
            true, QT_TRANSLATE_NOOP("QObject", "There is no income and no spending yet."))};
    }
}

QString presentationText(HealthGrade grade)
{
    return QObject::tr(nameOf(grade));
}

QString toQString(HealthGrade grade)
{
    return QString::fromLatin1(nameOf(grade));
}

std::ostream &operator<<(std::ostream &out, HealthGrade grade)
{
    if (const auto *name = foundation::entryOf(gradeNames, grade))
        return out << *name;
    return out << "unknown grade " << static_cast<std::size_t>(grade);
}

std::ostream &operator<<(std::ostream &out, const BudgetHealth &health)
{
    out << health.grade() << " (";
    const char *separator = "";
    for (const auto &judged : health.reasons()) {
        out << separator << foundation::escapedUtf8(judged.plainText);
        separator = " ";
    }
    return out << ')';
}

} // namespace kiv::adviser
