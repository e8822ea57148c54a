// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"
#include "session/file_session.h"
#include "wizards/household_step.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
class QStackedWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

class CurrencyBox;

/// How a household begins: where the file lies, its bank, and its usual items. Nothing is
/// made before the last step, and then all of it or nothing; what was typed stays. It can be
/// left at each step.
class FirstTimeWizard final : public QWidget {
    Q_OBJECT

public:
    FirstTimeWizard(Desk &desk, FileSession &session);

    /// The steps, in their order.
    enum class Step : std::uint8_t { Place, Bank, Household };
    static constexpr Step steps[] = {Step::Place, Step::Bank, Step::Household};
    /// Shows a step.
    void goTo(Step step);
    [[nodiscard]] Step step() const;
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    /// Esc was pressed, or "Not now".
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addPlaceStep();
    void addBankStep();
    void addHouseholdStep();
    void addWaysOut();
    QWidget *addStep(const QString &heading);
    void goOn();
    void finish();
    /// Reads the fields of a step; a refusal is shown there.
    [[nodiscard]] bool readPlace();
    [[nodiscard]] bool readBank();
    /// Whether the bank is refused, whatever the items are.
    [[nodiscard]] bool isBankRefused();

    Desk &m_desk;
    FileSession &m_session;
    QStackedWidget *m_steps;
    Form *m_place;
    QLineEdit *m_file;
    CurrencyBox *m_currency;
    Form *m_bank;
    QLineEdit *m_bankName;
    QLineEdit *m_accountName;
    QComboBox *m_kind;
    MoneyEdit *m_balance;
    HouseholdStep *m_household;
    QPushButton *m_finish;
    workbench::StarterAnswers m_answers;
};

} // namespace kiv::desktop
