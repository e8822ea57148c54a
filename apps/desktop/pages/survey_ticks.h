// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/surveys/survey_sheet.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;

/// The transactions that may be on a statement. Space ticks one and goes down.
class SurveyTicks final : public QWidget {
    Q_OBJECT

public:
    SurveyTicks(Desk &desk, QWidget *parent);

    /// Shows the sheet's transactions; null without one.
    void follow(const workbench::SurveySheet *sheet);
    void allow(const std::optional<QString> &whyNot);
    [[nodiscard]] QWidget &table() noexcept;

signals:
    /// The row was ticked, or its tick taken away; what is not booked goes off the list.
    void ticked(const QString &key);
    void tickAllWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Desk &m_desk;
    TableModel *m_rows;
    Table *m_table;
    QPushButton *m_all;
};

} // namespace kiv::desktop
