// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "adviser/export.h"

#include "budgeting/budget_totals.h"
#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <cstdint>
#include <ostream>
#include <vector>

namespace kiv::adviser {

/// How sound a budget is.
enum class HealthGrade : std::uint8_t {
    Unknown = 0, ///< there is nothing to judge
    Excellent = 1,
    Good = 2,
    Fair = 3,
    Poor = 4,
    Critical = 5, ///< more goes out than comes in
};

/// One thing that was looked at, in words for the user, and whether it is as
/// it should be.
struct KIV_ADVISER_EXPORT HealthReason {
    /// Whether it is as it should be.
    bool isSound = true;
    /// The finding, as a sentence for the user.
    QString text;
    /// The same for programs: in English, with plain numbers.
    QString plainText = {};

    friend bool operator==(const HealthReason &, const HealthReason &) = default;
};

/// How sound a budget is, judged by the shares of the income that its parts
/// take. The shares are those of two rules of thumb of household budgeting:
/// 50/30/20 (at most half of the income for what must be paid, at most 30 %
/// for free spending, at least 20 % put aside) and the limit of 36 % for
/// paying debts.
///
/// Each share that is missed costs a grade, from Excellent down to Poor. When
/// more goes out than comes in, the grade is Critical. With neither income nor
/// spending it is Unknown. For example, an income of 2,000 with bills of 900,
/// debts of 200, goals of 400 and free spending of 300 misses the first share
/// (55 %) and is Good.
class KIV_ADVISER_EXPORT BudgetHealth {
public:
    /// Nothing to judge.
    BudgetHealth() = default;
    /// Throws what adding the totals throws.
    explicit BudgetHealth(const budgeting::BudgetTotals &totals);

    /// The verdict.
    [[nodiscard]] HealthGrade grade() const noexcept { return m_grade; }
    /// The grounds of the grade: those missed and those met. Never empty but
    /// for a default-constructed health.
    [[nodiscard]] const std::vector<HealthReason> &reasons() const noexcept { return m_reasons; }

    friend bool operator==(const BudgetHealth &, const BudgetHealth &) = default;

private:
    HealthGrade m_grade = HealthGrade::Unknown;
    std::vector<HealthReason> m_reasons;
};

/// The grade as one word for the user. Throws std::logic_error for a value
/// outside the known ones.
[[nodiscard]] KIV_ADVISER_EXPORT QString presentationText(HealthGrade grade);
/// The grade's English name. Throws std::logic_error for a value outside the
/// enumeration.
[[nodiscard]] KIV_ADVISER_EXPORT QString toQString(HealthGrade grade);

KIV_ADVISER_EXPORT std::ostream &operator<<(std::ostream &out, HealthGrade grade);
KIV_ADVISER_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetHealth &health);
using foundation::operator<<;

} // namespace kiv::adviser

Q_DECLARE_METATYPE(kiv::adviser::BudgetHealth)
