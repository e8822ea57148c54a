// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"

#include "foundation/clonable.h"
#include "foundation/debug_stream.h"

#include <typeindex>

#include <memory>

namespace kiv::budgeting {

/// What every budget item is: a source, an amount that recurs, and the next
/// day on which it does. The five kinds derive from it.
///
/// The day of the month that the item was given is part of its value, so that
/// 31 January is followed by 28 February and then by 31 March.
///
/// Copying a base copies the base alone; clone() keeps the kind.
class KIV_BUDGETING_EXPORT BudgetedMoney {
public:
    BudgetedMoney() = default;
    /// Throws BudgetItemError when the date is invalid or the amount negative, and
    /// std::logic_error for an unknown frequency.
    BudgetedMoney(BudgetSource source, const numira::Money &amount, EventFrequency period,
                  QDate nextOccurOn);
    BudgetedMoney(const BudgetedMoney &) = default;
    BudgetedMoney(BudgetedMoney &&) noexcept = default;
    BudgetedMoney &operator=(const BudgetedMoney &) = default;
    BudgetedMoney &operator=(BudgetedMoney &&) noexcept = default;
    virtual ~BudgetedMoney();

    /// The name by which the user knows the item.
    [[nodiscard]] const BudgetSource &source() const noexcept { return m_source; }
    /// The amount of one occurrence; never negative.
    [[nodiscard]] const numira::Money &amount() const noexcept { return m_amount; }
    /// How often it recurs.
    [[nodiscard]] EventFrequency period() const noexcept { return m_period; }
    /// The next day on which it is expected; invalid in a default-constructed item.
    [[nodiscard]] QDate nextOccurOn() const noexcept { return m_nextOccurOn; }
    /// 1 to 31: the day of the month that the item was given.
    [[nodiscard]] int dayOfMonth() const noexcept { return m_dayOfMonth; }

    /// Moves the next date on by one period. Throws foundation::Error when it
    /// cannot (see nextOccurrence); then nothing has changed.
    void updateNextOccurOn();
    /// Gives the item another name. A map that has it under its name must change the key.
    void rename(BudgetSource source) noexcept { m_source = std::move(source); }
    /// For an item read from a file, whose next date may stand in a short
    /// month. Throws BudgetItemError outside 1 to 31.
    void setDayOfMonth(int day);

    /// A copy of the item's own class.
    [[nodiscard]] virtual std::unique_ptr<BudgetedMoney> clone() const;

    /// The same kind and the same content.
    friend KIV_BUDGETING_EXPORT bool operator==(const BudgetedMoney &a, const BudgetedMoney &b);
    /// By source, then amount (without asking for a rate), period, date and day
    /// of the month, then by what the kind adds.
    friend KIV_BUDGETING_EXPORT std::strong_ordering operator<=>(const BudgetedMoney &a,
                                                                 const BudgetedMoney &b);

protected:
    /// What the kind adds to the comparison; `other` has the same kind.
    [[nodiscard]] virtual std::strong_ordering compareKind(const BudgetedMoney &other) const;
    /// What the kind adds to the text form.
    virtual void streamKind(std::ostream &out) const;
    friend KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out,
                                                         const BudgetedMoney &item);

private:
    BudgetSource m_source;
    numira::Money m_amount;
    EventFrequency m_period = EventFrequency::None;
    QDate m_nextOccurOn;
    int m_dayOfMonth = 1;
};

static_assert(foundation::RequireClonable<BudgetedMoney>);

/// The item's kind, by its dynamic type; None for the base alone.
[[nodiscard]] KIV_BUDGETING_EXPORT BudgetItemTypes toBudgetItemTypes(const BudgetedMoney &item);
/// The kind whose class has this type index; None for any other type.
[[nodiscard]] KIV_BUDGETING_EXPORT BudgetItemTypes toBudgetItemTypes(std::type_index type);

using foundation::operator<<;

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::BudgetedMoney)
