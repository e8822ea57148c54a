// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/due_deeds.h"
#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class DayEdit;
class MoneyEdit;
class Table;
class TableModel;

/// What is due by day, overdue items first, and what can be done about it.
class DuePage final : public Page {
    Q_OBJECT

public:
    explicit DuePage(Desk &desk);

    /// The item that is chosen, such as "bill:Rent".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    /// What is left in the account when the line that is chosen is paid.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;

private:
    void build();
    void addForm();
    /// Brings the form in line with the lines that are chosen.
    void follow();
    void sayAccount();
    void pay();
    void payAmount();
    /// After a deed: the fields have nothing unsent.
    void forgetTyping();
    void skip();
    [[nodiscard]] std::vector<workbench::DueLine> chosen() const;
    /// The day that is typed. A refusal is shown at its field, and nothing returned.
    [[nodiscard]] std::optional<QDate> day();

    TableModel *m_model;
    Table *m_table;
    QLabel *m_summary;
    QWidget *m_form;
    QComboBox *m_account;
    DayEdit *m_day;
    MoneyEdit *m_amount;
    QCheckBox *m_isExtra;
    QPushButton *m_pay;
    QPushButton *m_skip;
    QPushButton *m_payAmount;
    FieldMessage *m_message;
    DueDeeds m_deeds;
    workbench::SaidAccounts m_said;
    ShownDue m_due;
    QString m_today; ///< as the field for the day showed it
};

} // namespace kiv::desktop
