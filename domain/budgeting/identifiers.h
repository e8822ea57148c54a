// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QDate>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <compare>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <set>
#include <typeindex>

namespace kiv::budgeting {

/// The five kinds of budget item. Whatever asks for the kinds one after the
/// other goes in this order, and the first match wins.
enum class BudgetItemTypes : std::uint8_t {
    None = 0, ///< none, or unknown
    Bill = 1,
    Debt = 2,
    Goal = 3,
    Nontrack = 4,
    Wage = 5,
};

/// The name by which the user knows a budget item. Two sources are the same
/// exactly when their names are equal; case matters. Ordered by name, by code
/// units.
class KIV_BUDGETING_EXPORT BudgetSource {
public:
    BudgetSource() = default;
    /// Any text; maps of items refuse an empty one.
    explicit BudgetSource(QString name) : m_name(std::move(name)) {}
    /// The name as the user wrote it.
    [[nodiscard]] const QString &name() const noexcept { return m_name; }
    /// Whether there is no name.
    [[nodiscard]] bool isEmpty() const noexcept { return m_name.isEmpty(); }

    friend bool operator==(const BudgetSource &, const BudgetSource &) noexcept = default;
    /// By name, by code units.
    friend std::strong_ordering operator<=>(const BudgetSource &a, const BudgetSource &b) noexcept
    {
        return QString::compare(a.m_name, b.m_name) <=> 0;
    }

private:
    QString m_name;
};

/// One budget item of the whole budget: kinds first, then names.
struct KIV_BUDGETING_EXPORT BudgetItemIdentifier {
    /// The item's kind.
    BudgetItemTypes type = BudgetItemTypes::None;
    /// The item's name among those of its kind.
    BudgetSource source;

    friend bool operator==(const BudgetItemIdentifier &, const BudgetItemIdentifier &) = default;
    friend std::strong_ordering operator<=>(const BudgetItemIdentifier &,
                                            const BudgetItemIdentifier &) = default;
};

/// A budget item that has fallen due on a day.
struct KIV_BUDGETING_EXPORT BudgetItemDueIdentifier {
    /// The item's kind.
    BudgetItemTypes type = BudgetItemTypes::None;
    /// The item's name among those of its kind.
    BudgetSource source;
    /// The day on which it is due.
    QDate dueOn;

    /// The item, whenever it is due.
    [[nodiscard]] BudgetItemIdentifier item() const { return {type, source}; }
    friend bool operator==(const BudgetItemDueIdentifier &,
                           const BudgetItemDueIdentifier &) = default;
};

/// The same kind. Throws std::logic_error for a value above the known ones.
[[nodiscard]] KIV_BUDGETING_EXPORT BudgetItemTypes known(BudgetItemTypes type);

/// The word for the user: "bill", "debt", "goal", "non-tracked", "wage",
/// "unknown" for None. Throws std::logic_error for a value above the known
/// ones.
[[nodiscard]] KIV_BUDGETING_EXPORT QString presentationText(BudgetItemTypes type);
/// The name as the user wrote it.
[[nodiscard]] KIV_BUDGETING_EXPORT QString presentationText(const BudgetSource &source);
/// "Rent (bill)"; the number in place of the word for a kind above the known
/// ones. The stream forms are the same in English.
[[nodiscard]] KIV_BUDGETING_EXPORT QString presentationText(const BudgetItemIdentifier &id);

KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, BudgetItemTypes type);
KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetSource &source);
KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetItemIdentifier &id);
KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetItemDueIdentifier &id);
using foundation::operator<<;

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::BudgetItemTypes)
Q_DECLARE_METATYPE(kiv::budgeting::BudgetSource)
Q_DECLARE_METATYPE(std::set<kiv::budgeting::BudgetSource>)
Q_DECLARE_METATYPE(std::optional<kiv::budgeting::BudgetSource>)
Q_DECLARE_METATYPE(kiv::budgeting::BudgetItemIdentifier)
Q_DECLARE_METATYPE(kiv::budgeting::BudgetItemDueIdentifier)
