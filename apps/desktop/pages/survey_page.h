// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

#include "workbench/surveys/survey_form.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QPushButton;
class QStackedWidget;
class QTabBar;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class DayEdit;
class Form;
class MoneyEdit;
class Table;
class TableModel;

/// Compares the books with a bank's statement: the statement, the transactions that are
/// ticked on it, and what is set aside. A second tab lists the past reconciliations.
class SurveyPage final : public Page {
    Q_OBJECT

public:
    explicit SurveyPage(Desk &desk);

    /// The account by its number; or "past", with the place of a reconciliation, such as
    /// "past/3".
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QWidget *makeStatement();
    [[nodiscard]] QWidget *makeTicks();
    [[nodiscard]] QWidget *makePast();
    void offerAccounts();
    void allowAll();

    /// Asks for the proposal of the chosen account and day, and lays what was ticked and
    /// typed over it. Throws what cannot be read, and what is refused; the former one stays
    /// then.
    void propose();
    void followDay();
    void compare();
    void showForm();
    void sayFigures();
    void tick(const QString &key, bool goesDown);
    void tickAll();
    void addUnbooked();
    void followShare();
    void setAside();
    void complete();
    void forgetTyping();
    void followPast();

    std::optional<workbench::SurveyForm> m_survey;
    /// The amounts that were typed over those of the proposal.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> m_typedShares;

    QTabBar *m_tabs;
    QStackedWidget *m_parts;
    Form *m_statement = nullptr;
    QComboBox *m_account = nullptr;
    DayEdit *m_day = nullptr;
    MoneyEdit *m_balance = nullptr;
    QLabel *m_sign = nullptr;
    Form *m_unbooked = nullptr;
    AccountBox *m_unbookedAccount = nullptr;
    MoneyEdit *m_unbookedAmount = nullptr;
    TableModel *m_ticks;
    Table *m_tickTable = nullptr;
    QLabel *m_figures = nullptr;
    QPushButton *m_tickAll = nullptr;
    QPushButton *m_complete = nullptr;
    QLabel *m_notSetAside = nullptr;
    TableModel *m_shares;
    Table *m_shareTable = nullptr;
    Form *m_shareForm = nullptr;
    MoneyEdit *m_share = nullptr;
    TableModel *m_past;
    Table *m_pastTable = nullptr;
    QLabel *m_pastState = nullptr;
};

} // namespace kiv::desktop
