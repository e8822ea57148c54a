// SPDX-License-Identifier: GPL-3.0-or-later
#include "adviser/income_shares.h"

#include "numira/local_text.h"

#include <QtCore/QObject>

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kiv::adviser {

using boost::multiprecision::cpp_int;
using budgeting::BudgetItemTypes;

namespace {

constexpr int needsMax = 50;
constexpr int freeSpendingMax = 30;
constexpr int savingsMin = 20;
constexpr int debtsMax = 36;

/// The amount in units of its last digit, an integer of any size.
cpp_int unitsOf(const numira::Money &money)
{
    std::string digits = money.amount().toText(numira::Decimal::scaleDigits);
    std::erase(digits, '.');
    // Leading zeros would make it an octal number.
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return cpp_int(digits);
}

/// The share in percent, computed exactly, with one digit behind the point.
std::string percentOf(const cpp_int &part, const cpp_int &income, bool isRoundedUp)
{
    cpp_int tenths;
    cpp_int rest;
    divide_qr(cpp_int(part * 1000), income, tenths, rest);
    if (isRoundedUp && rest != 0)
        ++tenths;
    const cpp_int whole = tenths / 10;
    const cpp_int tenth = tenths % 10;
    return tenth == 0 ? whole.str() : whole.str() + '.' + tenth.str();
}

struct Words {
    const char *name;
    const char *sentence; ///< with the places %1 for the share and %2 for the limit
};

/// By the values of IncomePart, from 1.
constexpr std::array<Words, 5> words{{
    {"planned",
     QT_TRANSLATE_NOOP("QObject", "%1 % of the income is planned; at most %2 % is possible.")},
    {"needs",
     QT_TRANSLATE_NOOP("QObject", "Bills and debts take %1 % of the income; up to %2 % is sound.")},
    {"debts", QT_TRANSLATE_NOOP("QObject", "Debts take %1 % of the income; up to %2 % is sound.")},
    {"spending",
     QT_TRANSLATE_NOOP("QObject", "Free spending takes %1 % of the income; up to %2 % is sound.")},
    {"goals", QT_TRANSLATE_NOOP("QObject", "Goals get %1 % of the income; from %2 % on is sound.")},
}};

const Words &wordsOf(IncomePart part)
{
    return words.at(static_cast<std::size_t>(part) - 1);
}

IncomeShare shareOf(IncomePart part, const numira::Money &amount, const numira::Money &income,
                    int limit)
{
    const cpp_int taken = unitsOf(amount);
    const cpp_int all = unitsOf(income);
    const bool isLeast = part == IncomePart::Goals;
    const bool isSound = isLeast ? taken * 100 >= all * limit : taken * 100 <= all * limit;
    return {part, amount, income, limit, isSound, percentOf(taken, all, !isLeast && !isSound)};
}

} // namespace

QString toQString(IncomePart part)
{
    return QString::fromLatin1(wordsOf(part).name);
}

std::vector<BudgetItemTypes> kindsOf(IncomePart part)
{
    using enum BudgetItemTypes;
    switch (part) {
    case IncomePart::Planned:
        return {Bill, Debt, Goal, Nontrack};
    case IncomePart::Needs:
        return {Bill, Debt};
    case IncomePart::Debts:
        return {Debt};
    case IncomePart::Spending:
        return {Nontrack};
    case IncomePart::Goals:
        return {Goal};
    }
    throw std::logic_error("An unknown part of the income was supplied.");
}

std::vector<IncomeShare> incomeShares(const budgeting::BudgetTotals &totals)
{
    const numira::Money &income = totals.wages();
    if (!income.isPositive())
        throw std::logic_error("Without an income there are no shares of it.");
    return {shareOf(IncomePart::Planned, totals.outgoing(), income, 100),
            shareOf(IncomePart::Needs, totals.bills() + totals.debts(), income, needsMax),
            shareOf(IncomePart::Debts, totals.debts(), income, debtsMax),
            shareOf(IncomePart::Spending, totals.nontracks(), income, freeSpendingMax),
            shareOf(IncomePart::Goals, totals.goals(), income, savingsMin)};
}

QString presentationText(const IncomeShare &share)
{
    constexpr std::size_t lengthMax = 20; // of a share that people could read
    const std::string local = share.percent.size() > lengthMax
                                  ? share.percent
                                  : numira::toLocalText(numira::Decimal::fromText(share.percent));
    return QObject::tr(wordsOf(share.part).sentence)
        .arg(QString::fromStdString(local), QString::number(share.limit));
}

QString toQString(const IncomeShare &share)
{
    return QString::fromLatin1(wordsOf(share.part).sentence)
        .arg(QString::fromStdString(share.percent), QString::number(share.limit));
}

} // namespace kiv::adviser
