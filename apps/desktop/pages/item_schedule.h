// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"
#include "widgets/field_message.h"

#include "workbench/document/document.h"
#include "workbench/outlook/payoff.h"

#include <QtWidgets/QWidget>

namespace kiv::desktop {

class MoneyEdit;
class Table;

/// The payments to come of a debt or a goal, until nothing is left, and what more a month spares.
/// It only asks; nothing is changed.
class ItemSchedule final : public QWidget {
    Q_OBJECT

public:
    explicit ItemSchedule(QWidget *parent);

    /// Shows the payments of this item; is hidden if there are none.
    void showItem(workbench::Document &document, const budgeting::BudgetItemIdentifier &item);
    /// Forgets what was typed for the item.
    void forgetItem() { m_item = {}; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Asks with what is typed. A refusal is told at the field.
    void ask();
    void showPayments(const workbench::Payoff &payoff);

    std::optional<storage::BudgetStorage::Data> m_data;
    budgeting::BudgetItemIdentifier m_item;
    workbench::Payoff m_present;
    navigation::CurrencyDisplayOptions m_displayAs{};
    MoneyEdit *m_more;
    QLabel *m_spared;
    FieldMessage *m_message;
    TableModel *m_model;
    Table *m_table;
};

} // namespace kiv::desktop
