// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "workbench/surveys/survey_sheet.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class DayEdit;
class MoneyEdit;

/// What the user says of a statement: account, day and balance, a bank's file with them, and
/// money on it that is not booked yet.
class SurveyStatement final : public QWidget {
    Q_OBJECT

public:
    /// `add` puts money that is not booked on the list, and may refuse the account;
    /// `missingFor` is what is offered then while the books do not agree.
    using Add = std::function<void(accounting::AccountNumber account, const numira::Money &change)>;
    using MissingFor = std::function<numira::Money(accounting::AccountNumber account)>;
    SurveyStatement(Desk &desk, QWidget *parent, Add add, MissingFor missingFor);

    /// Offers the open accounts at banks; the chosen one stays if it is there.
    void offerAccounts();
    void choose(accounting::AccountNumber account);
    /// Nothing without one.
    [[nodiscard]] std::optional<accounting::AccountNumber> account() const;
    /// Brings texts and currencies in line with the sheet; null without one. `hasBalance` tells
    /// whether the statement's balance was entered.
    void follow(const workbench::SurveySheet *sheet, bool hasBalance);
    /// Tells what is to be known of the sheet: where it comes from, and what a file has beyond
    /// the books. With `hasFile`, it can be imported.
    void tell(const QString &sentences, bool hasFile);
    void allowUnbooked(const std::optional<QString> &whyNot);
    /// Empties all fields but account and day.
    void clear();

    [[nodiscard]] Form &form() noexcept { return *m_form; }
    [[nodiscard]] QComboBox &accountField() noexcept { return *m_account; }
    [[nodiscard]] DayEdit &dayField() noexcept { return *m_day; }
    [[nodiscard]] MoneyEdit &balanceField() noexcept { return *m_balance; }
    [[nodiscard]] QWidget &fileButton() noexcept { return *m_file; }

signals:
    void accountChosen();
    void dayTyped();
    void balanceTyped();
    /// Go on to the ticks.
    void compareWanted();
    /// Esc was pressed among what is not booked.
    void givenUp();
    void fileWanted();
    void importWanted();

private:
    void makeUnbooked();
    void offerMissing();
    void addUnbooked();

    Desk &m_desk;
    Add m_add;
    MissingFor m_missingFor;
    Form *m_form;
    QComboBox *m_account;
    DayEdit *m_day;
    MoneyEdit *m_balance;
    QWidget *m_file = nullptr;
    QLabel *m_sign;
    QLabel *m_told;
    QPushButton *m_import;
    Form *m_unbooked;
    AccountBox *m_unbookedAccount = nullptr;
    MoneyEdit *m_unbookedAmount = nullptr;
    numira::Currency m_currency; ///< of the sheet
    bool m_isMissing = false;    ///< whether the books lack something
};

} // namespace kiv::desktop
