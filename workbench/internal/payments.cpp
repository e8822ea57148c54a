// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/payments.h"

#include "workbench/internal/ledger_lines.h"

#include <algorithm>

namespace kiv::workbench::internal {

using interchange::StatementEntry;

namespace {

/// How many days before its date an item is paid at most, and how late.
constexpr qint64 earlyMax = 10;
constexpr qint64 lateMax = 45;
/// The same where only the amount speaks for it.
constexpr qint64 nearEarly = 4;
constexpr qint64 nearLate = 10;

std::optional<QDate> dateAfter(const PayableItem &item, QDate date)
{
    try {
        return budgeting::nextOccurrence(item.period, date, item.dayOfMonth);
    } catch (const foundation::Error &) {
        return std::nullopt; // past the year 9999
    }
}

bool holdsAll(const QStringList &words, const QStringList &wanted)
{
    return !wanted.isEmpty() && std::ranges::all_of(wanted, [&words](const QString &word) {
        return words.contains(word);
    });
}

} // namespace

PaymentFinder::PaymentFinder(const StatementBooks &books)
{
    for (const PayableItem &item : books.items) {
        // What does not recur is due once and cannot be moved on; a debt is not paid from its
        // own account.
        if (item.account != books.account.number() &&
            item.period != budgeting::EventFrequency::None && item.amount.code() == books.currency)
            m_items.push_back({&item, item.next, tellingWords(item.id.source.name())});
    }
}

/// Before half of the period is over, the entry would belong to the date before.
bool PaymentFinder::canPay(const Item &item, const StatementEntry &entry)
{
    if (item.item->comesIn() != entry.amount.isPositive() || !item.next.isValid())
        return false;
    const std::optional<QDate> after = dateAfter(*item.item, item.next);
    const qint64 half = after ? item.next.daysTo(*after) / 2 : earlyMax;
    const qint64 late = item.next.daysTo(entry.date);
    return late >= -std::min(earlyMax, half) && late <= lateMax;
}

/// Whether the entry is so late that it may be for the date after.
bool PaymentFinder::isNearerToNext(const Item &item, const StatementEntry &entry)
{
    const std::optional<QDate> after = dateAfter(*item.item, item.next);
    return after && entry.date.daysTo(*after) < item.next.daysTo(entry.date);
}

ImportPayment PaymentFinder::paid(Item &item)
{
    ImportPayment payment{{item.item->id.type, item.item->id.source, item.next}, item.item->amount};
    item.next = dateAfter(*item.item, item.next).value_or(QDate());
    return payment;
}

std::optional<PaymentFinder::Found>
PaymentFinder::find(const StatementEntry &entry, std::optional<accounting::AccountNumber> other,
                    bool isSaid)
{
    const numira::Decimal amount = entry.amount.abs().amount();
    std::optional<QStringList> words;
    std::vector<Item *> byAmount;
    std::vector<Item *> byName;
    for (Item &item : m_items) {
        if (!canPay(item, entry) || (isSaid && item.item->account != other))
            continue;
        const bool isSameAmount = item.item->amount.amount() == amount;
        if (!words)
            words = tellingWords(ruleText(entry));
        if (other == item.item->account || holdsAll(*words, item.words)) {
            if (isSameAmount || other == item.item->account) {
                const bool isDoubtful = isNearerToNext(item, entry);
                return Found{paid(item), isDoubtful};
            }
            byName.push_back(&item);
        }
        const qint64 late = item.next.daysTo(entry.date);
        if (isSameAmount && late >= -nearEarly && late <= nearLate)
            byAmount.push_back(&item);
    }
    for (const auto &alone : {byAmount, byName}) {
        if (alone.size() == 1)
            return Found{paid(*alone.front()), true};
    }
    return std::nullopt;
}

std::vector<ImportPayment> PaymentFinder::candidates(const StatementEntry &entry) const
{
    const numira::Decimal amount = entry.amount.abs().amount();
    std::vector<std::pair<numira::Decimal, ImportPayment>> found;
    for (const Item &item : m_items) {
        // From the date that it had before any payment of this statement.
        const Item first{item.item, item.item->next, {}};
        if (canPay(first, entry) || canPay(item, entry))
            found.push_back({(item.item->amount.amount() - amount).abs(),
                             {{item.item->id.type, item.item->id.source,
                               item.next.isValid() ? item.next : item.item->next},
                              item.item->amount}});
    }
    std::ranges::stable_sort(found, {}, [](const auto &one) { return one.first; });
    std::vector<ImportPayment> payments;
    for (auto &[distance, payment] : found)
        payments.push_back(std::move(payment));
    return payments;
}

} // namespace kiv::workbench::internal
