// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/envelope_rows.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class DayEdit;
class Desk;
class Form;
class ItemSchedule;
class Table;

/// What lies behind the figures of an item: how far it has come, how what is set aside
/// comes about, and the payments to come. A goal that is reached and a debt that is paid off can be
/// ended here.
class ItemExplained final : public QWidget {
    Q_OBJECT

public:
    ItemExplained(Desk &desk, QWidget *parent);

    /// Explains this item; is hidden if there is nothing to explain.
    void explain(workbench::Document &document, const ShownEnvelopes &envelopes,
                 const budgeting::BudgetItemIdentifier &item);
    /// Forgets what was typed for the item; the next one may have its name in another file.
    void forgetItem();
    /// Allows the end, or says why not.
    void allowChanges(const std::optional<QString> &whyNot);

    /// What becomes of a goal's money.
    struct Spending {
        std::optional<accounting::AccountNumber> on; ///< none: it goes back
        QDate day;
    };
    /// What was typed for the end of a goal. What cannot be read is told at its field.
    [[nodiscard]] std::optional<Spending> spending();

signals:
    /// The item is to recur no longer.
    void endWanted();

private:
    void allowEnd(workbench::Document &document, const budgeting::BudgetItemIdentifier &item);

    QLabel *m_outlook;
    Form *m_end;
    AccountBox *m_spentOn;
    DayEdit *m_day;
    budgeting::BudgetItemIdentifier m_item; ///< whose end is offered
    TableModel *m_model;
    Table *m_table;
    ItemSchedule *m_schedule;
};

} // namespace kiv::desktop
