// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/envelope_rows.h"
#include "pages/due_deeds.h"
#include "pages/page.h"

#include "workbench/surveys/needed_care.h"

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace kiv::desktop {

class DueLines;
class Table;
class TableModel;

/// What a household wants to know at a glance: what is free to spend, what is due, what is
/// the lowest day to come, what else there is, and what needs care.
class HomePage final : public Page {
    Q_OBJECT

public:
    explicit HomePage(Desk &desk);

    [[nodiscard]] QWidget *firstFocus() override;
    /// The balance in which the focus is; else what is free, and the budget's health.
    [[nodiscard]] Explain explanation() override;

protected:
    void refresh() override;

private:
    void showFree();
    void showDue();
    void showAhead();
    void showBalances();
    void showCare();
    void putKeysInOrder();
    void addCare(const workbench::Care &care);
    QLabel *addHeading(QVBoxLayout &layout, const QString &text);
    [[nodiscard]] const workbench::DueLine *lineOf(const QString &key) const;

    QLabel *m_free;
    QLabel *m_stillDue;
    TableModel *m_freeRows;
    Table *m_freeTable;
    QLabel *m_summary;
    DueLines *m_lines;
    QPushButton *m_allDue;
    FieldMessage *m_message;
    QLabel *m_ahead;
    QPushButton *m_lookAhead;
    TableModel *m_balances;
    Table *m_balanceTable;
    QLabel *m_balancesHeading;
    QLabel *m_noBalances;
    QLabel *m_careHeading;
    QWidget *m_cares;
    DueDeeds m_deeds;
    ShownEnvelopes m_envelopes;
    ShownDue m_due;
    std::vector<workbench::Care> m_shownCare;
};

} // namespace kiv::desktop
