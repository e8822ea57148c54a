// SPDX-License-Identifier: GPL-3.0-or-later
#include "outlook/outlook.h"

#include "foundation/error.h"
#include "numira/error.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace kiv::outlook {

using accounting::AccountNumber;
using numira::Currency;
using numira::Money;

namespace {

/// A date of something that is expected.
struct Date {
    QDate day;
    QDate due;
    std::size_t place; ///< in `expected`, and behind those in `once`
};

std::optional<Money> inCurrency(const Money &amount, const Currency &currency)
{
    try {
        return amount.code() == currency ? amount : amount.convertedTo(currency).rounded();
    } catch (const numira::ConversionError &) {
        return std::nullopt;
    } catch (const foundation::Error &) { // of a converter that knows no rate
        return std::nullopt;
    }
}

/// The dates up to `last`, the earliest first.
std::vector<Date> datesUntil(QDate last, const Beginning &beginning)
{
    std::vector<Date> dates;
    const auto add = [&](QDate due, std::size_t place) {
        dates.push_back({std::max(due, beginning.first), due, place});
    };
    for (std::size_t place = 0; place < beginning.expected.size(); ++place) {
        const Expected &one = beginning.expected[place];
        if (one.every == budgeting::EventFrequency::None || !one.next.isValid())
            continue;
        try {
            for (QDate due = one.next; due <= last;
                 due = budgeting::nextOccurrence(one.every, due, one.dayOfMonth))
                add(due, place);
        } catch (const foundation::Error &) {
            // There are no days after the last one that a calendar has.
        }
    }
    for (std::size_t at = 0; at < beginning.once.size(); ++at) {
        if (beginning.once[at].day <= last)
            add(beginning.once[at].day, beginning.expected.size() + at);
    }
    std::ranges::sort(dates, {}, [&](const Date &date) {
        return std::tuple(date.day, date.place >= beginning.expected.size(), date.due, date.place);
    });
    return dates;
}

class Looking {
public:
    explicit Looking(const Beginning &beginning)
        : m_beginning(beginning), m_holdings(beginning.balances)
    {
        m_outlook.first = beginning.first;
        for (const AccountNumber account : beginning.watched) {
            const auto found = beginning.balances.find(account);
            if (found == beginning.balances.end())
                throw std::logic_error("A watched account has no balance.");
            Curve &curve = m_outlook.accounts[account];
            curve.start = found->second;
            curve.ends.reserve(static_cast<std::size_t>(beginning.days));
        }
    }

    Outlook made()
    {
        const QDate last = m_beginning.first.addDays(m_beginning.days - 1);
        const std::vector<Date> dates = datesUntil(last, m_beginning);
        auto next = dates.begin();
        for (QDate day = m_beginning.first; day <= last; day = day.addDays(1)) {
            for (; next != dates.end() && next->day == day; ++next)
                pay(*next);
            for (auto &[account, curve] : m_outlook.accounts)
                curve.ends.push_back(m_holdings.at(account));
        }
        return std::move(m_outlook);
    }

private:
    void pay(const Date &date)
    {
        const std::size_t regular = m_beginning.expected.size();
        if (date.place >= regular) {
            const Once &once = m_beginning.once[date.place - regular];
            post({date.day, date.due, {}, once.from, once.to, once.amount, once.entry},
                 once.arriving);
            return;
        }
        const Expected &one = m_beginning.expected[date.place];
        if (!hasEnded(one))
            post({date.day, date.due, one.item, one.from, one.to, one.amount.rounded(), {}});
    }

    [[nodiscard]] bool hasEnded(const Expected &one) const
    {
        if (!one.until)
            return false;
        const Money &holding = m_holdings.at(one.until->account);
        const auto enough = inCurrency(one.until->atLeast, holding.code());
        return enough && holding >= *enough;
    }

    void post(Payment payment, const std::optional<Money> &arriving = {})
    {
        std::vector<std::pair<AccountNumber, Money>> sides;
        for (const auto &[account, isOut] :
             {std::pair(payment.from, true), std::pair(payment.to, false)}) {
            const auto holding = m_holdings.find(account);
            if (holding == m_holdings.end())
                continue;
            const Currency currency = holding->second.code();
            const auto amount =
                inCurrency(isOut ? payment.amount : arriving.value_or(payment.amount), currency);
            if (!amount) {
                leaveOut({payment.item, {payment.amount.code(), currency}});
                return;
            }
            sides.emplace_back(account, isOut ? -*amount : *amount);
        }
        for (const auto &[account, amount] : sides) {
            m_holdings.at(account) += amount;
            if (const auto curve = m_outlook.accounts.find(account);
                curve != m_outlook.accounts.end())
                curve->second.changes.push_back({m_outlook.payments.size(), amount});
        }
        m_outlook.payments.push_back(std::move(payment));
    }

    void leaveOut(LeftOut one)
    {
        if (std::ranges::find(m_outlook.leftOut, one) == m_outlook.leftOut.end())
            m_outlook.leftOut.push_back(std::move(one));
    }

    const Beginning &m_beginning;
    std::map<AccountNumber, Money> m_holdings;
    Outlook m_outlook;
};

} // namespace

std::size_t Curve::lowest(std::optional<std::size_t> days) const
{
    const auto count =
        static_cast<std::ptrdiff_t>(std::min(days.value_or(ends.size()), ends.size()));
    return static_cast<std::size_t>(std::min_element(ends.begin(), ends.begin() + count) -
                                    ends.begin());
}

const Money &Curve::least(std::optional<std::size_t> days) const
{
    return days == 0U ? start : ends[lowest(days)];
}

std::optional<std::size_t> Curve::firstBelow(const Money &floor) const
{
    const auto found =
        std::ranges::find_if(ends, [&floor](const Money &end) { return end < floor; });
    return found == ends.end() ? std::nullopt
                               : std::optional(static_cast<std::size_t>(found - ends.begin()));
}

std::optional<Payment> Outlook::cause(const Curve &curve, std::size_t place) const
{
    const Change *most = nullptr;
    if (curve.ends[place] >= (place == 0 ? curve.start : curve.ends[place - 1]))
        return std::nullopt;
    for (const Change &change : curve.changes) {
        if (payments[change.payment].day == day(place) && change.amount.isNegative() &&
            (!most || change.amount < most->amount))
            most = &change;
    }
    return most ? std::optional(payments[most->payment]) : std::nullopt;
}

std::optional<Curve> Outlook::together(const std::set<AccountNumber> &among,
                                       const Currency &currency) const
{
    Curve all{Money(currency), {}, {}};
    const auto add = [&currency](Money &sum, const Money &part) {
        const auto converted = inCurrency(part, currency);
        if (converted)
            sum += *converted;
        return converted.has_value();
    };
    for (const AccountNumber account : among) {
        const Curve &curve = accounts.at(account);
        all.ends.resize(curve.ends.size(), Money(currency));
        if (!add(all.start, curve.start))
            return std::nullopt;
        for (std::size_t place = 0; place < curve.ends.size(); ++place) {
            if (!add(all.ends[place], curve.ends[place]))
                return std::nullopt;
        }
        // What moves between two of the accounts takes nothing out of all together.
        for (const Change &change : curve.changes) {
            const Payment &payment = payments[change.payment];
            if (among.contains(payment.from) && among.contains(payment.to))
                continue;
            all.changes.push_back({change.payment, inCurrency(change.amount, currency).value()});
        }
    }
    std::ranges::sort(all.changes, {}, &Change::payment);
    return all;
}

Outlook look(const Beginning &beginning)
{
    if (!beginning.first.isValid() || beginning.days < 1)
        throw std::logic_error("An outlook has a first day, and days.");
    return Looking(beginning).made();
}

} // namespace kiv::outlook
