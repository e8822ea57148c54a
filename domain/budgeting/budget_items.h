// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budgeted_money.h"

namespace kiv::budgeting {

/// The part of an item class that only repeats its own name: cloning.
template <typename Item>
class ClonableItem : public BudgetedMoney {
public:
    using BudgetedMoney::BudgetedMoney;
    /// A copy of the item's own class.
    [[nodiscard]] std::unique_ptr<BudgetedMoney> clone() const override
    {
        return std::make_unique<Item>(static_cast<const Item &>(*this));
    }
};

/// Money that must be paid: rent, electricity.
class KIV_BUDGETING_EXPORT Bill final : public ClonableItem<Bill> {
public:
    using ClonableItem::ClonableItem;
    ~Bill() override;
    Bill(const Bill &) = default;
    Bill &operator=(const Bill &) = default;
    Bill() = default;
};

/// Money that is spent without keeping track of each purchase.
class KIV_BUDGETING_EXPORT Nontrack final : public ClonableItem<Nontrack> {
public:
    using ClonableItem::ClonableItem;
    ~Nontrack() override;
    Nontrack(const Nontrack &) = default;
    Nontrack &operator=(const Nontrack &) = default;
    Nontrack() = default;
};

/// Money that comes in.
class KIV_BUDGETING_EXPORT Wage final : public ClonableItem<Wage> {
public:
    using ClonableItem::ClonableItem;
    ~Wage() override;
    Wage(const Wage &) = default;
    Wage &operator=(const Wage &) = default;
    Wage() = default;
};

/// Money that was borrowed and is paid back: the amount is the instalment.
class KIV_BUDGETING_EXPORT Debt final : public ClonableItem<Debt> {
public:
    Debt() = default;
    /// A debt of `borrowed`, paid back by `amount` per period. Throws as BudgetedMoney's.
    Debt(BudgetSource source, const numira::Money &amount, EventFrequency period, QDate nextOccurOn,
         const numira::Money &borrowed);
    Debt(const Debt &) = default;
    Debt &operator=(const Debt &) = default;
    ~Debt() override;

    /// The opening balance of its account; may be negative.
    [[nodiscard]] const numira::Money &borrowed() const noexcept { return m_borrowed; }

protected:
    [[nodiscard]] std::strong_ordering compareKind(const BudgetedMoney &other) const override;
    void streamKind(std::ostream &out) const override;

private:
    numira::Money m_borrowed;
};

/// Money that is put aside until it reaches a target.
class KIV_BUDGETING_EXPORT Goal final : public ClonableItem<Goal> {
public:
    Goal() = default;
    /// A goal of `final`, reached by `amount` per period. Throws as BudgetedMoney's.
    Goal(BudgetSource source, const numira::Money &amount, EventFrequency period, QDate nextOccurOn,
         const numira::Money &final);
    Goal(const Goal &) = default;
    Goal &operator=(const Goal &) = default;
    ~Goal() override;

    /// The target amount.
    [[nodiscard]] const numira::Money & final() const noexcept { return m_final; }

protected:
    [[nodiscard]] std::strong_ordering compareKind(const BudgetedMoney &other) const override;
    void streamKind(std::ostream &out) const override;

private:
    numira::Money m_final;
};

} // namespace kiv::budgeting
