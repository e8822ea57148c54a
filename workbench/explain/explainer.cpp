// SPDX-License-Identifier: GPL-3.0-or-later
// Balances, shares of a month and conversions.
#include "workbench/explain/explainer.h"

#include "workbench/entry/money_text.h"
#include "workbench/internal/faults_of_explanations.h"
#include "workbench/requests/balances.h"
#include "workbench/requests/entry_forms.h"
#include "workbench/requests/exchange_rates.h"

#include "foundation/presentation.h"
#include "numira/error.h"
#include "numira/library.h"

#include <algorithm>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using budgeting::EventFrequency;
using foundation::presentationText;
using numira::Currency;
using numira::FloatingPoint;
using numira::Money;

namespace {

FloatingPoint numberOf(const Money &money)
{
    return FloatingPoint(money.amount().toText());
}

/// Nothing for want of a rate.
std::optional<FloatingPoint> rateIfKnown(const Currency &from, const Currency &to)
{
    try {
        return numira::conversionRate(from, to);
    } catch (const numira::Error &) {
        return std::nullopt;
    } catch (const foundation::Error &) { // of a converter that knows no rate
        return std::nullopt;
    }
}

/// The numbers of the account's transactions until the day, in the order of their days.
std::vector<TransactionNumber> byDay(const accounting::Account &account, std::optional<QDate> until)
{
    std::vector<std::pair<QDate, TransactionNumber>> entries;
    for (const Transaction &one : account.transactions()) {
        if (!until || one.occurredOn() <= *until)
            entries.emplace_back(one.occurredOn(), one.number().value());
    }
    std::ranges::sort(entries);
    std::vector<TransactionNumber> numbers;
    numbers.reserve(entries.size());
    for (const auto &[day, number] : entries)
        numbers.push_back(number);
    return numbers;
}

} // namespace

Explainer::Explainer(Document &document, QDate today)
    : m_document(document),
      m_today(today),
      m_data(document.present()),
      m_index(document.requests().accounts()),
      m_preferred(document.requests().preferredCurrency()),
      m_displayAs(document.displayAs())
{
}

QString Explainer::entryText(const Transaction &transaction, AccountNumber seenFrom) const
{
    const AccountNumber debited = transaction.debiting().number();
    const QString other =
        m_index.plainName(debited == seenFrom ? transaction.crediting().number() : debited);
    const QString text = payeeAndReason(transaction);
    return text.isEmpty() ? other : QStringLiteral("%1: %2").arg(other, text);
}

Explanation Explainer::balance(AccountNumber number, std::optional<QDate> day) const
{
    constexpr std::ptrdiff_t shownMax = 10;
    const accounting::LedgerAccount account = m_data.generalLedger.ledger(number);
    const QString name = m_index.plainName(number);
    Explanation made{
        day ? QObject::tr("Balance of %1 at the end of %2").arg(name, presentationText(*day))
            : QObject::tr("Balance of %1").arg(name),
        day ? balanceOn(account, *day) : account.balance(),
        {}};
    std::vector<TransactionNumber> entries = byDay(account, day);
    const auto line = [&](const Transaction &one, const QString &text) -> ExplainedLine {
        return {LineRole::Adds, text, changeOf(one, account), {}, one.occurredOn(), one.number()};
    };
    const auto entry = [&account](TransactionNumber of) {
        return account.transactions().find(of).value();
    };
    const auto opening =
        account.openedBy() ? std::ranges::find(entries, *account.openedBy()) : entries.end();
    if (opening != entries.end()) {
        made.lines.push_back(line(entry(*opening), QObject::tr("Opening balance")));
        entries.erase(opening);
    }
    const auto last = entries.end() - std::min(std::ssize(entries), shownMax);
    if (last != entries.begin()) {
        Money earlier(account.balance().code());
        for (auto one = entries.begin(); one != last; ++one)
            earlier += changeOf(entry(*one), account);
        made.lines.push_back(
            {LineRole::Adds,
             QObject::tr("%n earlier entries", nullptr, static_cast<int>(last - entries.begin())),
             earlier,
             {},
             entry(*std::prev(last)).occurredOn()});
    }
    for (auto one = last; one != entries.end(); ++one)
        made.lines.push_back(line(entry(*one), entryText(entry(*one), number)));
    if (made.lines.empty())
        made.lines.push_back({LineRole::Tells, QObject::tr("There are no transactions.")});
    return made;
}

Explanation Explainer::share(const budgeting::BudgetItemIdentifier &id) const
{
    const budgeting::BudgetedMoney &item = *budgeting::findBudgetItem(id, m_data.budget);
    const QString name = id.source.name();
    const EventFrequency every = item.period();
    if (every == EventFrequency::None)
        throw internal::doesNotRecur(name);
    Explanation made{
        QObject::tr("The share of a month of %1").arg(name),
        budgeting::accumulateOver(EventFrequency::Monthly, item.amount(), every).rounded(),
        {{LineRole::Adds,
          budgeting::presentationText(every),
          item.amount(),
          {},
          item.nextOccurOn()}}};
    if (every == EventFrequency::Monthly)
        return made;
    const Money one(item.amount().code(), 1, 0);
    const Money aYear = budgeting::accumulateOver(EventFrequency::Yearly, one, every);
    if (aYear > one)
        made.lines.push_back({LineRole::Times, QObject::tr("times a year"), {}, numberOf(aYear)});
    else if (aYear < one)
        // A third of a time a year has no end, but three years have one.
        made.lines.push_back(
            {LineRole::Over,
             QObject::tr("years from one to the next"),
             {},
             numberOf(budgeting::accumulateOver(every, one, EventFrequency::Yearly))});
    made.lines.push_back({LineRole::Over,
                          QObject::tr("months of a year"),
                          {},
                          numberOf(budgeting::accumulateOver(EventFrequency::Yearly, one,
                                                             EventFrequency::Monthly))});
    return made;
}

void Explainer::addRates(Explanation &explanation, const Currency &from, const Currency &to) const
{
    for (const UsedRate &rate : usedRates(presentRates(m_document.requests()), {from}, to))
        explanation.lines.push_back(
            {LineRole::Tells, presentationText(rate), {}, {}, rate.origin.day});
}

Explanation Explainer::conversion(const Money &amount, const Currency &currency) const
{
    const auto rate = rateIfKnown(amount.code(), currency);
    if (!rate)
        throw internal::noExchangeRate(amount.code(), currency);
    const QString from = presentationText(amount.code());
    const QString to = presentationText(currency);
    Explanation made{
        QObject::tr("%1 in %2").arg(amountText(amount, m_displayAs), to),
        amount.convertedTo(currency).rounded(),
        {{LineRole::Adds, QObject::tr("Amount in %1").arg(from), amount},
         {LineRole::Times, QObject::tr("what 1 %1 is in %2").arg(from, to), {}, *rate}}};
    addRates(made, amount.code(), currency);
    return made;
}

std::vector<Explanation> Explainer::conversions(TransactionNumber number) const
{
    const Transaction one = m_document.requests().transaction(number);
    const QString name = presentationText(number);
    std::vector<Explanation> all;
    for (const accounting::AccountCode &side : {one.debiting(), one.crediting()}) {
        const Money &kept = one.amountFor(side.number());
        const Money &entered = one.amount();
        if (kept.code() == entered.code())
            continue;
        all.push_back(
            {QObject::tr("Transaction %1 in %2").arg(name, m_index.plainName(side.number())),
             kept,
             {{LineRole::Adds,
               entryText(one, side.number()),
               entered,
               {},
               one.occurredOn(),
               number},
              {LineRole::Times,
               QObject::tr("what 1 %1 was in %2 when it was posted, by its two sides")
                   .arg(presentationText(entered.code()), presentationText(kept.code())),
               {},
               numberOf(kept) / numberOf(entered)}}});
    }
    if (all.empty())
        throw internal::notConverted(name);
    return all;
}

} // namespace kiv::workbench
