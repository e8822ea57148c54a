// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "workbench/requests/item_changes.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

class DayEdit;
class FrequencyBox;
class MoneyEdit;
class NamesEdit;

/// The fields in which a budget item is added or changed. A kind has only those that it needs.
class ItemForm final : public QObject {
    Q_OBJECT

public:
    /// Adds its fields to `form`, which outlives it.
    ItemForm(Desk &desk, Form &form);

    /// Is empty, for a new item of this kind.
    void beginNew(budgeting::BudgetItemTypes kind);
    /// Shows the item that is to be changed.
    void beginChange(const budgeting::BudgetItemIdentifier &id);
    /// The item that is being changed; without a name for a new one.
    [[nodiscard]] const budgeting::BudgetItemIdentifier &item() const noexcept { return m_id; }
    /// Where what is typed first stands.
    [[nodiscard]] QWidget &firstField() const;
    /// Brings the fields in line with the bank that is chosen.
    void follow();
    /// Adds or changes the item. Returns its name; nothing after a refusal.
    std::optional<budgeting::BudgetSource> save();

private:
    void addFields();
    void begin(const budgeting::BudgetItemIdentifier &id);
    /// Shows the fields that the kind has.
    void showKind();
    void show(const budgeting::BudgetedMoney &item, const workbench::BudgetView &view);
    void offerBanks();
    [[nodiscard]] bool isNew() const { return m_id.source.isEmpty(); }
    /// What is typed as an amount, with the decimals of its currency.
    [[nodiscard]] std::optional<workbench::Amount> amountIn(MoneyEdit &field);
    /// The values that are to be given; nothing after a refusal.
    [[nodiscard]] std::optional<workbench::ItemValues> values();
    /// Gives the link to a bank, as far as it is another one.
    void addLink(workbench::ItemValues &values) const;
    bool add(const budgeting::BudgetItemIdentifier &id, const workbench::ItemValues &values);
    bool change(const budgeting::BudgetItemIdentifier &id, const workbench::ItemValues &values);

    Desk &m_desk;
    Form &m_form;
    QLineEdit *m_name;
    MoneyEdit *m_amount;
    FrequencyBox *m_every;
    DayEdit *m_next;
    MoneyEdit *m_extra;
    DayEdit *m_since;
    QComboBox *m_bank;
    QComboBox *m_kind;
    NamesEdit *m_tags;
    budgeting::BudgetItemIdentifier m_id;
    numira::Currency m_currency; ///< of what is typed without one
    /// What the fields showed at first: what stayed so is not given.
    struct Shown {
        QString amount;
        QString extra;
        QDate next;
        std::optional<banking::BankAccount> link;
    };
    Shown m_shown;
};

} // namespace kiv::desktop
