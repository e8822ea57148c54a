// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "budgeting/identifiers.h"
#include "foundation/debug_stream.h"

#include "numira/money.h"

#include <map>

namespace kiv::surveying {

/// The money that is set aside at a bank for a budget item, next to what the
/// item will want and when.
///
/// Adding and subtracting keep the currency of what is set aside; an entry that
/// holds nothing yet takes the currency of the first amount. Both throw what a
/// missing exchange rate and an overflow throw, and then nothing has changed.
class KIV_SURVEYING_EXPORT DistributedAmount {
public:
    DistributedAmount() = default;
    /// What is set aside, of what is expected by the item's next date.
    DistributedAmount(const numira::Money &distributed, QDate nextOccurOn,
                      const numira::Money &expected);

    /// What is set aside; negative when more was spent than had been.
    [[nodiscard]] const numira::Money &distributed() const noexcept { return m_distributed; }
    /// The item's next date; invalid when it is not known.
    [[nodiscard]] QDate nextOccurOn() const noexcept { return m_nextOccurOn; }
    /// What the item is expected to want by the day of the survey.
    [[nodiscard]] const numira::Money &expected() const noexcept { return m_expected; }

    /// Sets more aside.
    DistributedAmount &operator+=(const numira::Money &money);
    /// Sets less aside.
    DistributedAmount &operator-=(const numira::Money &money);
    /// Sets what is set aside and leaves the rest.
    DistributedAmount &operator=(const numira::Money &distributed) noexcept;

    friend bool operator==(const DistributedAmount &, const DistributedAmount &) = default;

private:
    numira::Money m_distributed;
    QDate m_nextOccurOn;
    numira::Money m_expected;
};

/// What is set aside for each budget item.
using Distribution = std::map<budgeting::BudgetItemIdentifier, DistributedAmount>;

/// The text of the money that is set aside.
[[nodiscard]] KIV_SURVEYING_EXPORT QString presentationText(const DistributedAmount &amount);
/// "5.00 USD of 60.00 USD by 2026-03-31".
KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out, const DistributedAmount &amount);
using foundation::operator<<;

} // namespace kiv::surveying

namespace kiv::foundation {
// Found as foundation::presentationText too, like those of amounts and dates.
using surveying::presentationText;
} // namespace kiv::foundation

Q_DECLARE_METATYPE(kiv::surveying::DistributedAmount)
