// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/envelope_rows.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class ItemSchedule;
class Table;

/// What lies behind the figures of an item: how far it has come, how what is set aside
/// comes about, and the payments to come. A goal that is reached and a debt that is paid off can be
/// ended here.
class ItemExplained final : public QWidget {
    Q_OBJECT

public:
    explicit ItemExplained(QWidget *parent);

    /// Explains this item; is hidden if there is nothing to explain.
    void explain(workbench::Document &document, const ShownEnvelopes &envelopes,
                 const budgeting::BudgetItemIdentifier &item);
    /// Allows the end, or says why not.
    void allowChanges(const std::optional<QString> &whyNot);

signals:
    /// The item is to recur no longer.
    void endWanted();

private:
    QLabel *m_outlook;
    QPushButton *m_end;
    TableModel *m_model;
    Table *m_table;
    ItemSchedule *m_schedule;
};

} // namespace kiv::desktop
