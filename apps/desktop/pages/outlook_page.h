// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/outlook_rows.h"
#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

class ChartView;
class DayEdit;
class Form;
class MoneyEdit;
class NamesEdit;
class Table;

/// What is to come: the lowest day with its cause, in a sentence, a chart and tables. Its fields
/// ask what if, and change nothing in the budget.
class OutlookPage final : public Page {
    Q_OBJECT

public:
    explicit OutlookPage(Desk &desk);

    /// The curve that is shown, in the words of ShownOutlook.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    /// Of the lowest day of the curve that is chosen, unless it is supposed.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;

private:
    void build();
    /// What is asked. Nothing if a field is refused.
    struct Asked {
        workbench::OutlookQuestion question;
        std::optional<numira::Money> floor;
    };
    [[nodiscard]] std::optional<Asked> read();
    /// Looks ahead as the fields say. False if a field is refused.
    bool ask();
    /// Looks ahead, goes on counting the amount, and empties its fields for another one.
    void askMore();
    /// Tells above the fields which amounts are counted beside theirs.
    void tellCounted();
    /// Empties the fields, and looks ahead.
    void startAgain();
    void clearFields();
    /// Leaves the item of the payment out.
    void leaveOut(const QString &payment);
    void show(const Asked &asked);
    /// Shows the chart and the payments of the curve that is chosen.
    void follow();

    Asked m_asked;
    std::vector<workbench::OutlookQuestion::Once> m_counted; ///< beside what the fields have
    ShownOutlook m_shown;
    QLabel *m_told;
    ChartView *m_chart;
    Form *m_form;
    QLineEdit *m_days;
    MoneyEdit *m_floor;
    NamesEdit *m_without;
    MoneyEdit *m_amount;
    DayEdit *m_day;
    TableModel *m_curves;
    Table *m_curveTable;
    TableModel *m_payments;
    Table *m_paymentTable;
    QLabel *m_notices;
};

} // namespace kiv::desktop
