// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/outlook/payoff.h"

#include "workbench/entry/money_text.h"
#include "workbench/internal/faults_of_outlook.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/item_figures.h"
#include "workbench/requests/paying_account.h"
#include "workbench/surveys/set_aside_text.h"

#include "foundation/percentage.h"
#include "foundation/presentation.h"
#include "numira/error.h"

#include <cmath>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::LedgerAccount;
using budgeting::BudgetedMoney;
using budgeting::EventFrequency;
using foundation::presentationText;
using navigation::CurrencyDisplayOptions;
using numira::Money;
using storage::BudgetStorage;

namespace {

constexpr qint64 daysAYear = 365;
constexpr int hundredthsInAll = 10'000; ///< so many hundredths of a percent are the whole
/// No lender takes more a year than was lent.
constexpr double rateMax = 1;

std::optional<banking::BankAccountTypes> kindAtBank(const BudgetStorage::Data &data,
                                                    AccountNumber account)
{
    const auto bank = data.banks.find(account);
    return bank ? std::optional(data.banks.bank(*bank).accounts().at(account)) : std::nullopt;
}

/// What happened to a debt, by days.
struct DebtBooks {
    struct Day {
        double change = 0; ///< of what is owed, for the estimate of a rate alone
        std::optional<Money> interest;
    };
    std::map<QDate, Day> days;
    std::set<QDate> charged; ///< the days with interest
};

DebtBooks booksOf(const BudgetStorage::Data &data, const LedgerAccount &account)
{
    const AccountNumber number = account.code().number();
    DebtBooks books;
    for (const accounting::Transaction &one : account.transactions()) {
        DebtBooks::Day &day = books.days[one.occurredOn()];
        const Money &amount = one.amountFor(number);
        const bool isCharged = one.crediting().number() == number;
        day.change += (isCharged ? amount : -amount).amount().toDouble();
        const AccountNumber other = (isCharged ? one.debiting() : one.crediting()).number();
        if (!isCharged || data.generalLedger.ledger(other).type() != AccountTypes::Expense)
            continue;
        day.interest = day.interest.value_or(Money(amount.code())) + amount;
        books.charged.insert(one.occurredOn());
    }
    return books;
}

/// A payment after the other, until nothing is left.
class Paying {
public:
    Paying(const BudgetedMoney &item, const Money &left, const Money &each,
           const std::optional<SeenInterest> &interest)
        : m_item(item),
          m_next(item.nextOccurOn()),
          m_left(left),
          m_each(each),
          m_hundredths(interest ? interest->hundredths : 0),
          m_charged(interest ? interest->until : QDate())
    {
    }

    /// None if it has no end.
    std::vector<ScheduledPayment> made(QDate today)
    {
        constexpr int yearsMax = 100;
        constexpr int growthMax = 1000;
        std::vector<ScheduledPayment> payments;
        const QDate end = std::max(m_next, today).addYears(yearsMax);
        const Money most = m_left.scaled(growthMax, 1);
        while (m_left.isPositive()) {
            payments.push_back(pay(std::max(m_next, today)));
            if (payments.back().day > end || m_left > most || (m_left.isPositive() && !goOn()))
                return {};
        }
        return payments;
    }

private:
    ScheduledPayment pay(QDate day)
    {
        Money interest(m_left.code());
        if (m_hundredths > 0 && day > m_charged) {
            interest =
                m_left.scaled(m_charged.daysTo(day) * m_hundredths, daysAYear * hundredthsInAll)
                    .rounded();
            m_charged = day;
        }
        m_left += interest;
        const Money amount = std::min(m_left, m_each);
        m_left -= amount;
        return {day, interest, amount, m_left};
    }

    /// Whether there is a next date.
    bool goOn()
    {
        try {
            m_next = budgeting::nextOccurrence(m_item.period(), m_next, m_item.dayOfMonth());
            return true;
        } catch (const foundation::Error &) { // behind the last day of the calendar
            return false;
        }
    }

    const BudgetedMoney &m_item;
    QDate m_next;
    Money m_left;
    Money m_each;
    int m_hundredths;
    QDate m_charged; ///< up to here
};

Money inCurrencyOf(const Money &account, const Money &amount)
{
    const auto converted = convertedIfKnown(amount, account.code());
    if (!converted)
        throw Refusal(lackingRateText({amount.code(), account.code()}));
    return converted->rounded();
}

bool isGoal(const Payoff &payoff)
{
    return payoff.item.type == budgeting::BudgetItemTypes::Goal;
}

} // namespace

std::optional<SeenInterest> seenInterest(const BudgetStorage::Data &data,
                                         const budgeting::Debt &debt)
{
    const auto number = accountOf(data, identify(debt));
    if (!number || !data.generalLedger.hasLedger(*number) ||
        kindAtBank(data, *number) == banking::BankAccountTypes::CreditCard)
        return std::nullopt;
    const LedgerAccount account = data.generalLedger.ledger(*number);
    const DebtBooks books = booksOf(data, account);
    if (books.charged.empty() || debt.period() == EventFrequency::None)
        return std::nullopt;
    // A charge is for the time since the one before, which itself does not count then. A single
    // one is taken to be for one period of the debt.
    const QDate until = *books.charged.rbegin();
    QDate from = *books.charged.lower_bound(until.addDays(-daysAYear));
    if (from == until) {
        const auto before = [&debt](QDate day, QDate like) {
            return day.addDays(
                -like.daysTo(budgeting::nextOccurrence(debt.period(), like, debt.dayOfMonth())));
        };
        from = std::max(books.days.begin()->first, before(until, before(until, until)));
    }
    double owed = 0;   // at the moment
    double weight = 0; // what was owed on each day, together
    QDate reached = from;
    SeenInterest seen{0, Money(account.balance().code()), from, until};
    for (const auto &[day, change] : books.days) {
        if (day > until)
            break;
        if (day > from) {
            weight += owed * static_cast<double>(reached.daysTo(day));
            reached = day;
            seen.sum += change.interest.value_or(Money(seen.sum.code()));
        }
        owed += change.change;
    }
    weight += owed * static_cast<double>(reached.daysTo(until));
    if (!seen.sum.isPositive() || weight <= 0)
        return std::nullopt;
    const double rate = seen.sum.amount().toDouble() / weight * daysAYear * hundredthsInAll;
    if (rate > rateMax * hundredthsInAll) // what was bought on it is among the charges
        return std::nullopt;
    seen.hundredths = static_cast<int>(std::lround(rate));
    return seen.hundredths > 0 ? std::optional(seen) : std::nullopt;
}

QString rateText(const SeenInterest &interest)
{
    constexpr int digits = 2;
    return presentationText(foundation::Percentage(interest.hundredths / 100.0, digits));
}

Money Payoff::interestToCome() const
{
    Money sum(left.code());
    for (const ScheduledPayment &payment : payments)
        sum += payment.interest;
    return sum;
}

Payoff payoffOf(const BudgetStorage::Data &data, const BudgetedMoney &item, QDate today,
                const std::optional<Money> &more)
try {
    if (more && !more->isPositive())
        throw internal::moreNotPositive();
    const auto progress = progressOf(data, item);
    if (!progress || item.period() == EventFrequency::None || !item.amount().isPositive())
        throw internal::notPaidRegularly(item.source().name());
    Payoff payoff{identify(item), progress->part, {}, {}};
    if (const auto *debt = dynamic_cast<const budgeting::Debt *>(&item))
        payoff.interest = seenInterest(data, *debt);
    else
        payoff.left = inCurrencyOf(progress->part, progress->whole) - progress->part;
    Money each = inCurrencyOf(progress->part, item.amount());
    if (more)
        each += budgeting::accumulateOver(item.period(), inCurrencyOf(progress->part, *more),
                                          EventFrequency::Monthly)
                    .rounded();
    if (each.isPositive())
        payoff.payments = Paying(item, payoff.left, each, payoff.interest).made(today);
    return payoff;
} catch (const numira::OverflowError &) {
    throw internal::outlookTooLarge();
}

QStringList sentencesOf(const Payoff &payoff, CurrencyDisplayOptions displayAs)
{
    const QString name = payoff.item.source.name();
    const QString left = amountText(payoff.left, displayAs);
    const auto count = static_cast<int>(payoff.payments.size());
    if (!payoff.left.isPositive())
        return {isGoal(payoff) ? QObject::tr("The goal '%1' is reached.").arg(name)
                               : QObject::tr("The debt '%1' is paid off.").arg(name)};
    QStringList told;
    if (payoff.isEndless())
        told += isGoal(payoff)
                    ? QObject::tr("The goal '%1' lacks %2; as it is saved for now, it has no end.")
                          .arg(name, left)
                    : QObject::tr("Of the debt '%1' are %2 left; as it is paid now, it has no end.")
                          .arg(name, left);
    else
        told += isGoal(payoff)
                    ? QObject::tr("The goal '%1' lacks %2: reached on %3, after %n payments.",
                                  nullptr, count)
                          .arg(name, left, presentationText(payoff.end()))
                    : QObject::tr("Of the debt '%1' are %2 left: paid off on %3, after %n "
                                  "payments.",
                                  nullptr, count)
                          .arg(name, left, presentationText(payoff.end()));
    if (isGoal(payoff))
        return told;
    if (!payoff.interest) {
        told += QObject::tr("Interest is left out: the account of the debt shows none.");
        return told;
    }
    told += QObject::tr("With interest of about %1 a year: from %2 to %3 the account of the debt "
                        "was charged with %4.")
                .arg(rateText(*payoff.interest), presentationText(payoff.interest->from),
                     presentationText(payoff.interest->until),
                     amountText(payoff.interest->sum, displayAs));
    if (!payoff.isEndless())
        told += QObject::tr("Interest to come: %1.")
                    .arg(amountText(payoff.interestToCome(), displayAs));
    return told;
}

QString sparedText(const Payoff &present, const Payoff &faster, const Money &more,
                   CurrencyDisplayOptions displayAs)
{
    const QString amount = amountText(more, displayAs);
    if (faster.isEndless())
        return QObject::tr("With %1 more a month it still has no end.").arg(amount);
    const QString end = presentationText(faster.end());
    if (present.isEndless())
        return QObject::tr("With %1 more a month it ends on %2.").arg(amount, end);
    QString told = QObject::tr("With %1 more a month it ends on %2, %n days earlier.", nullptr,
                               static_cast<int>(faster.end().daysTo(present.end())))
                       .arg(amount, end);
    if (present.interest)
        told += u' ' +
                QObject::tr("That spares %1 of interest.")
                    .arg(amountText(present.interestToCome() - faster.interestToCome(), displayAs));
    return told;
}

} // namespace kiv::workbench
