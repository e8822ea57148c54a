// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/bank_rows.h"
#include "pages/form.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class DayEdit;
class MoneyEdit;

/// The fields in which banks and their accounts are added and changed.
class BankForm final : public QObject {
    Q_OBJECT

public:
    /// Adds its fields to `form`, which outlives it.
    BankForm(Desk &desk, Form &form);

    /// What is asked for.
    enum class Task : std::uint8_t {
        AddBank,
        RenameBank,
        AddAccount,     ///< a new one to a bank
        AssignAccount,  ///< one that is in the ledger to a bank
        ChangeAccount,  ///< its name, or its kind
        MoveAccount,    ///< to another bank
        ReplaceAccount, ///< by an account of another bank
    };
    /// Asks for it. The target is the row that is chosen, if there is one.
    void begin(Task task, const std::optional<BankTarget> &target);
    /// Brings the fields in line with what can be changed.
    void follow();
    /// Where what is typed first stands.
    [[nodiscard]] QWidget &firstField() const;
    /// Does it. Returns the key of the row where it shows; nothing after a refusal.
    std::optional<QString> save();

private:
    void addFields();
    void showTask();
    void offerBanks();
    void offerKinds();
    void offerAccounts();
    /// Whether the account that is being changed belongs to a budget item.
    [[nodiscard]] bool isOfItem() const;
    [[nodiscard]] QString nameOfTarget() const;
    [[nodiscard]] std::optional<banking::BankName> bank();
    [[nodiscard]] banking::BankAccountTypes kind() const;
    [[nodiscard]] std::optional<QString> name();
    std::optional<QString> saveBank();
    std::optional<QString> addAccount();
    std::optional<QString> assignAccount();
    std::optional<QString> changeAccount();
    std::optional<QString> moveAccount();
    std::optional<QString> replaceAccount();

    Desk &m_desk;
    Form &m_form;
    QLineEdit *m_name;
    AccountBox *m_account;
    QComboBox *m_bank;
    QComboBox *m_kind;
    MoneyEdit *m_opening;
    DayEdit *m_day;
    QCheckBox *m_keepOpen;
    Task m_task = Task::AddBank;
    std::optional<BankTarget> m_target;
};

} // namespace kiv::desktop
