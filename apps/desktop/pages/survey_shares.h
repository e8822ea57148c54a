// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "workbench/surveys/survey_sheet.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class MoneyEdit;
class Table;
class TableModel;

/// What a survey sets aside for items: a line an item, why it is so, and the amount to type
/// over it.
class SurveyShares final : public QWidget {
    Q_OBJECT

public:
    SurveyShares(Desk &desk, QWidget *parent);

    /// Shows the sheet, which must stay until the next call; null without one.
    void follow(const workbench::SurveySheet *sheet);
    [[nodiscard]] QWidget *firstFocus() noexcept;

signals:
    /// An amount was typed for the item; nothing takes it back.
    void typed(const budgeting::BudgetItemIdentifier &item,
               const std::optional<numira::Money> &amount);
    void asProposedChosen(bool isAsProposed);

private:
    void followLine();
    void setAside();
    [[nodiscard]] std::optional<workbench::SheetLine> line() const;

    Desk &m_desk;
    const workbench::SurveySheet *m_sheet = nullptr;
    QLabel *m_none;
    TableModel *m_rows;
    Table *m_table;
    QLabel *m_reason;
    QLabel *m_notices;
    QCheckBox *m_asProposed;
    Form *m_form;
    MoneyEdit *m_amount;
};

} // namespace kiv::desktop
