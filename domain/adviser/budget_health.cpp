// SPDX-License-Identifier: GPL-3.0-or-later
#include "adviser/budget_health.h"

#include "foundation/enum_table.h"
#include "foundation/streams.h"
#include "numira/local_text.h"

#include <QtCore/QObject>

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

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

constexpr int needsMax = 50;
constexpr int freeSpendingMax = 30;
constexpr int savingsMin = 20;
constexpr int debtsMax = 36;

using boost::multiprecision::cpp_int;

/// The amount in units of its last digit, an integer of any size.
cpp_int unitsOf(const numira::Money &money)
{
    std::string digits = money.amount().toText(numira::Decimal::scaleDigits);
    std::erase(digits, '.');
    // Leading zeros would make it an octal number.
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return cpp_int(digits);
}

enum class Rounding : std::uint8_t { Up, Down };

/// The share of the income in percent, computed exactly, with one digit behind the
/// point. It is rounded so that a missed limit never reads as if it were met.
std::string shareOf(const cpp_int &part, const cpp_int &income, Rounding rounding)
{
    cpp_int tenths;
    cpp_int rest;
    divide_qr(cpp_int(part * 1000), income, tenths, rest);
    if (rounding == Rounding::Up && rest != 0)
        ++tenths;
    const cpp_int whole = tenths / 10;
    const cpp_int tenth = tenths % 10;
    return tenth == 0 ? whole.str() : whole.str() + '.' + tenth.str();
}

/// `sentence` has the places %1 for the share and %2 for the limit.
HealthReason reason(bool isSound, const char *sentence, const std::string &share, int percent)
{
    constexpr std::size_t lengthMax = 20; // of a share that people could read
    const QString limit = QString::number(percent);
    const std::string local =
        share.size() > lengthMax ? share : numira::toLocalText(numira::Decimal::fromText(share));
    return {isSound, QObject::tr(sentence).arg(QString::fromStdString(local), limit),
            QString::fromLatin1(sentence).arg(QString::fromStdString(share), limit)};
}

HealthReason atMost(int percent, const char *sentence, const numira::Money &part,
                    const numira::Money &income)
{
    const cpp_int share = unitsOf(part);
    const cpp_int all = unitsOf(income);
    const bool isSound = share * 100 <= all * percent;
    return reason(isSound, sentence, shareOf(share, all, isSound ? Rounding::Down : Rounding::Up),
                  percent);
}

HealthReason atLeast(int percent, const char *sentence, const numira::Money &part,
                     const numira::Money &income)
{
    const cpp_int share = unitsOf(part);
    const cpp_int all = unitsOf(income);
    return reason(share * 100 >= all * percent, sentence, shareOf(share, all, Rounding::Down),
                  percent);
}

HealthReason withoutShare(bool isSound, const char *sentence)
{
    return {isSound, QObject::tr(sentence), QString::fromLatin1(sentence)};
}

std::vector<HealthReason> judgeShares(const budgeting::BudgetTotals &totals)
{
    const numira::Money &income = totals.wages();
    return {
        atMost(100,
               QT_TRANSLATE_NOOP("QObject",
                                 "%1 % of the income is planned; at most %2 % is possible."),
               totals.outgoing(), income),
        atMost(needsMax,
               QT_TRANSLATE_NOOP("QObject",
                                 "Bills and debts take %1 % of the income; up to %2 % is sound."),
               totals.bills() + totals.debts(), income),
        atMost(debtsMax,
               QT_TRANSLATE_NOOP("QObject", "Debts take %1 % of the income; up to %2 % is sound."),
               totals.debts(), income),
        atMost(freeSpendingMax,
               QT_TRANSLATE_NOOP("QObject",
                                 "Free spending takes %1 % of the income; up to %2 % is sound."),
               totals.nontracks(), income),
        atLeast(
            savingsMin,
            QT_TRANSLATE_NOOP("QObject", "Goals get %1 % of the income; from %2 % on is sound."),
            totals.goals(), income),
    };
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
