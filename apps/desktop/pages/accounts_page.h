// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/account_form.h"
#include "pages/list_page.h"

namespace kiv::desktop {

class DayEdit;

/// All accounts in groups that a household knows. Enter opens an account's register, F2
/// changes the account.
class AccountsPage final : public ListPage {
    Q_OBJECT

public:
    explicit AccountsPage(Desk &desk);

    /// The number of the account that is chosen; "new" begins one.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    /// The balance of the account that is chosen.
    [[nodiscard]] Explain explanation() override;

protected:
    void refresh() override;
    void forgetFile() override;
    void follow() override;
    void enter() override;
    void change() override;
    void remove() override;

private:
    /// The field for the day of the balances.
    [[nodiscard]] QWidget *dayRow();
    /// Takes over the day that is typed. What is no day is told, and the balances stay.
    void readDay();
    void begin(std::optional<accounting::AccountNumber> changed);
    void save();
    /// Closes the account that is chosen, or opens a closed one again.
    void closeOrOpen();
    /// Imports a bank's file into the account that is chosen.
    void importFile();
    [[nodiscard]] const accounting::Account *account() const;
    /// Why the account is not changed here; nothing if it can be.
    [[nodiscard]] std::optional<QString> whyNot() const;
    /// Changes the account that is chosen. The two texts have a place for its name.
    void performOn(const QString &line, const QString &undone,
                   void (navigation::Navigator::*slot)(const accounting::AccountCode &));

    std::unique_ptr<workbench::AccountIndex> m_index;
    std::optional<QDate> m_on; ///< the day of the balances; all transactions without one
    DayEdit *m_day;
    FieldMessage *m_dayMessage;
    QLabel *m_totals;
    QPushButton *m_open;
    QPushButton *m_new;
    QPushButton *m_change;
    QPushButton *m_close;
    QPushButton *m_remove;
    QPushButton *m_import;
    Form *m_form;
    AccountForm *m_fields;
};

} // namespace kiv::desktop
