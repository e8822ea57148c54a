// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/entry_fields.h"
#include "pages/split_lines.h"
#include "widgets/delay.h"

#include "workbench/entry/former_entries.h"

#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QStringListModel;
class QTabBar;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The row of fields below the register: what was spent, earned or moved. It enters a new
/// transaction, or several as the lines of a split, changes one, or refunds one. Enter in any
/// field does it, Esc gives up.
class EntryRow final : public QFrame {
    Q_OBJECT

public:
    EntryRow(Desk &desk, QWidget *parent);

    /// The budget has changed. What is typed stays.
    void refresh(std::shared_ptr<const workbench::AccountIndex> accounts,
                 std::optional<accounting::AccountNumber> shownAccount);
    /// Says why nothing can be entered, or lets it be.
    void allow(const std::optional<QString> &whyNot);

    /// Forgets what was typed or begun, and the account of the entry before.
    void forgetFile();
    /// Begins a new transaction, and gets the focus.
    void begin(workbench::EntryForm form);
    /// Loads the transaction, to change it.
    void beginChange(const accounting::Transaction &transaction);
    /// Loads its values for a new transaction today.
    void beginAgain(const accounting::Transaction &transaction);
    /// Asks for the amount that is given back, at most what is left of the transaction.
    void beginRefund(const accounting::Transaction &transaction);

signals:
    /// The transaction was posted or changed.
    void entered(kiv::accounting::TransactionNumber number);
    /// The user is done with the row.
    void leaving();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// What Enter does.
    enum class Task : std::uint8_t { Enter, Change, Refund };

    void build();
    void addPayees();
    void setForm(workbench::EntryForm form);
    void followForm();
    void setTask(Task task, std::optional<accounting::TransactionNumber> number);
    void load(const workbench::Entry &entry);
    void clearFields();
    void giveUp();
    void startAnew();
    void submit();
    void enter();
    void change(accounting::TransactionNumber number);
    void enterOne();
    void enterSplit();
    void exchange();
    void refund();
    void addLine();
    void takeLine(const workbench::SplitLine &line);
    void followLines();
    /// Makes the change, whose number `work` returns.
    void perform(QWidget *asker, workbench::Deed deed,
                 const std::function<accounting::TransactionNumber()> &work);
    void settle(accounting::TransactionNumber number);
    [[nodiscard]] workbench::EntryForm form() const;
    [[nodiscard]] QString place(accounting::TransactionNumber number) const;
    void offerAccounts();
    void followOther();
    void followPayee();
    [[nodiscard]] const workbench::FormerEntries &former();
    void readFormer();

    Desk &m_desk;
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    std::optional<accounting::AccountNumber> m_shownAccount;
    workbench::FormerEntries m_former;
    bool m_isFormerStale = true;
    Delay m_idle;
    Task m_task = Task::Enter;
    std::optional<accounting::TransactionNumber> m_number; ///< that is changed or refunded
    QTabBar *m_forms;
    QLabel *m_taskLabel;
    QPushButton *m_submit;
    FieldMessage *m_message;
    QLabel *m_whyNot;
    EntryFields *m_fields;
    SplitLines *m_split;
    QPushButton *m_addLine;
    QStringListModel *m_payees;
};

} // namespace kiv::desktop
