// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/bank_form.h"
#include "pages/list_page.h"

namespace kiv::desktop {

/// The banks, each with the accounts that it keeps.
class BanksPage final : public ListPage {
    Q_OBJECT

public:
    explicit BanksPage(Desk &desk);

    /// A row, such as "bank/First" or "account/12"; "new" begins a bank, "add" an account at the
    /// bank that is chosen, and "assign" gives it one that is in the ledger.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;

protected:
    void refresh() override;
    void follow() override;
    void followForm() override;
    void change() override;
    void remove() override;

private:
    void begin(BankForm::Task task);
    void save();
    /// Closes the bank or account that is chosen, or opens a closed one again.
    void closeOrOpen();
    /// Separates the account from its bank.
    void separate();
    [[nodiscard]] std::optional<BankTarget> target() const;
    [[nodiscard]] QString nameOf(const BankTarget &target) const;
    /// Changes the row that is chosen. The two texts have a place for its name.
    void performOn(const BankTarget &target, const QString &line, const QString &undone,
                   const std::function<void()> &work);

    QPushButton *m_new;
    QPushButton *m_add;
    QPushButton *m_assign;
    QPushButton *m_change;
    QPushButton *m_close;
    QPushButton *m_separate;
    QPushButton *m_move;
    QPushButton *m_replace;
    QPushButton *m_remove;
    Form *m_form;
    BankForm *m_fields;
    QString m_formRow; ///< the key of the row that the open form is about; may be empty
};

} // namespace kiv::desktop
