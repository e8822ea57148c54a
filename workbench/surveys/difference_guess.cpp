// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/difference_guess.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/entry_forms.h"

#include "foundation/presentation.h"

#include <numeric>
#include <unordered_map>

namespace kiv::workbench {

using accounting::Transaction;
using numira::Money;
using Why = DifferenceGuess::Why;

namespace {

constexpr std::size_t guessesMax = 3;
/// Two equal entries further apart are rather two payments than one entered twice.
constexpr qint64 twiceDaysMax = 10;

/// An entry with its effect on the balance in minor units.
struct Weighed {
    const Transaction *entry;
    std::int64_t units;
};

std::optional<std::int64_t> unitsOf(const Money &money, const numira::Currency &currency)
{
    if (money.code() != currency)
        return std::nullopt;
    return money.amount().unitsOf(numira::minorUnitDigits(currency));
}

/// Whether the two differ only in two digits side by side that changed places.
bool areDigitsSwapped(std::int64_t a, std::int64_t b)
{
    std::string one = std::to_string(a);
    const std::string other = std::to_string(b);
    const auto first = std::ranges::mismatch(one, other).in1;
    if (first == one.end() || first + 1 == one.end())
        return false;
    std::swap(*first, *(first + 1));
    return one == other;
}

class Guessing {
public:
    Guessing(const SurveyForm &form, const std::vector<Transaction> &entries,
             const numira::Currency &currency, std::int64_t missing)
        : m_missing(missing)
    {
        for (const Transaction &entry : entries) {
            const auto units = unitsOf(form.changeBy(entry), currency);
            if (!units || form.isWithin(entry))
                continue;
            (form.reconciled.contains(entry.number().value()) ? m_ticked : m_open)
                .push_back({&entry, *units});
        }
    }

    [[nodiscard]] std::vector<DifferenceGuess> made()
    {
        for (const Weighed &one : m_open) {
            if (one.units == m_missing)
                add(Why::OpenEntry, {one});
        }
        addTwoOpen();
        const auto weight = [](std::int64_t sum, const Weighed &one) { return sum + one.units; };
        if (m_open.size() > 2 &&
            std::accumulate(m_open.begin(), m_open.end(), std::int64_t{0}, weight) == m_missing)
            add(Why::AllOpenEntries, m_open);
        for (const Weighed &one : m_ticked) {
            if (one.units == -m_missing)
                addTooMuch(one);
            else if (-2 * one.units == m_missing)
                add(Why::WrongWay, {one});
            else if (m_missing % 9 == 0 && areDigitsSwapped(one.units, one.units + m_missing))
                add(Why::DigitsSwapped, {one});
        }
        std::ranges::stable_sort(m_made, {}, &DifferenceGuess::why);
        if (m_made.size() > guessesMax)
            m_made.resize(guessesMax);
        return std::move(m_made);
    }

private:
    void add(Why why, const std::vector<Weighed> &entries)
    {
        DifferenceGuess guess{why};
        for (const Weighed &one : entries)
            guess.entries.push_back(*one.entry);
        m_made.push_back(std::move(guess));
    }
    void addTwoOpen()
    {
        std::unordered_map<std::int64_t, Weighed> seen;
        for (const Weighed &one : m_open) {
            if (const auto found = seen.find(m_missing - one.units); found != seen.end()) {
                add(Why::TwoOpenEntries, {found->second, one});
                return;
            }
            seen.emplace(one.units, one);
        }
    }
    void addTooMuch(const Weighed &one)
    {
        const auto equal = std::ranges::find_if(m_ticked, [&](const Weighed &other) {
            return other.entry != one.entry && other.units == one.units &&
                   std::abs(other.entry->occurredOn().daysTo(one.entry->occurredOn())) <=
                       twiceDaysMax;
        });
        if (equal == m_ticked.end())
            add(Why::NotOnStatement, {one});
        else if (equal->entry < one.entry) // once for the two of them
            add(Why::EnteredTwice, {*equal, one});
    }

    std::int64_t m_missing;
    std::vector<Weighed> m_ticked;
    std::vector<Weighed> m_open;
    std::vector<DifferenceGuess> m_made;
};

} // namespace

std::vector<DifferenceGuess> guessesOf(const SurveyForm &form, const Money &missing)
{
    const auto units = unitsOf(missing, missing.code());
    if (!units || *units == 0)
        return {};
    const std::vector<Transaction> entries = form.transactions();
    return Guessing(form, entries, missing.code(), *units).made();
}

QString entryText(const Transaction &entry, const SurveyForm &form, const AccountIndex &index,
                  navigation::CurrencyDisplayOptions displayAs)
{
    const QString text = payeeAndReason(entry);
    const QString other = index.plainName(form.otherOf(entry));
    return QObject::tr("#%1 of %2, %3, %4")
        .arg(accounting::presentationText(entry.number().value()),
             foundation::presentationText(entry.occurredOn()),
             text.isEmpty() ? other : QStringLiteral("%1 (%2)").arg(text, other),
             amountText(form.changeBy(entry), displayAs));
}

QString guessText(const DifferenceGuess &guess, const SurveyForm &form, const AccountIndex &index,
                  navigation::CurrencyDisplayOptions displayAs)
{
    const auto entry = [&](std::size_t place) {
        return entryText(guess.entries[place], form, index, displayAs);
    };
    switch (guess.why) {
    case Why::OpenEntry:
        return QObject::tr("%1, is not ticked and has that amount.").arg(entry(0));
    case Why::TwoOpenEntries:
        return QObject::tr("%1, and %2, are not ticked and add up to it.").arg(entry(0), entry(1));
    case Why::AllOpenEntries:
        return QObject::tr("All that is not ticked adds up to it.");
    case Why::EnteredTwice:
        return QObject::tr("%1, and %2, are perhaps the same, entered twice.")
            .arg(entry(0), entry(1));
    case Why::NotOnStatement:
        return QObject::tr("%1, is ticked and has that amount; is it on the statement?")
            .arg(entry(0));
    case Why::WrongWay:
        return QObject::tr("%1, has half of that amount; did the money go the other way?")
            .arg(entry(0));
    case Why::DigitsSwapped:
        break;
    }
    return QObject::tr("%1, differs by two digits that may have changed places.").arg(entry(0));
}

} // namespace kiv::workbench
