// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/account_box.h"
#include "widgets/day_edit.h"
#include "widgets/field_message.h"
#include "widgets/money_edit.h"

#include "workbench/errors.h"
#include "workbench/requests/entry_forms.h"
#include "workbench/requests/exchanges.h"

QT_BEGIN_NAMESPACE
class QGridLayout;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The labelled fields of the entry row, and how they read in each form.
class EntryFields final : public QWidget {
    Q_OBJECT

public:
    /// Refusals are shown in `message`.
    EntryFields(FieldMessage &message, QWidget *parent);

    [[nodiscard]] MoneyEdit &amount() const noexcept { return *m_amount; }
    [[nodiscard]] AccountBox &own() const noexcept { return *m_own; }
    [[nodiscard]] AccountBox &other() const noexcept { return *m_other; }
    [[nodiscard]] QLineEdit &payee() const noexcept { return *m_payee; }
    [[nodiscard]] QLineEdit &reason() const noexcept { return *m_reason; }
    [[nodiscard]] DayEdit &day() const noexcept { return *m_day; }

    /// Adds the button behind the last field.
    void addButton(QPushButton *button);
    /// Offers the accounts of this form, and labels the fields for it.
    void offer(std::shared_ptr<const workbench::AccountIndex> accounts, workbench::EntryForm form);
    /// Whether both amounts of an exchange can be typed. They can where the two accounts have
    /// different currencies.
    void allowExchange(bool isAllowed);
    /// Shows an entry.
    void load(const workbench::Entry &entry);
    /// Forgets all but the day. `shown` is the account that the user looks at.
    void clear(const accounting::Account *shown);
    /// Forgets what belongs to one line of a split.
    void clearLine();
    /// Only the amount and the day can be changed.
    void lockAllButAmount(bool isLocked);
    /// Amounts without a currency are in that of the account which the form says.
    void followCurrency();

    /// What the fields say, or nothing, with the refusal at its field.
    [[nodiscard]] std::optional<workbench::Entry> entry();
    /// The amount and the other account alone.
    [[nodiscard]] std::optional<workbench::SplitLine> line();
    /// Whether these are empty.
    [[nodiscard]] bool isLineEmpty() const;
    /// All but the lines of a split.
    [[nodiscard]] std::optional<workbench::SplitEntry> splitHead();
    /// The fields as an exchange; nothing if a refusal is shown.
    [[nodiscard]] std::optional<workbench::Exchange> exchange();
    [[nodiscard]] bool isExchange() const;
    [[nodiscard]] QWidget *fieldOf(workbench::EntryPart part) const;

    /// Reads something; a refusal is shown at the field. Returns whether it was read.
    template <typename Read>
    [[nodiscard]] bool read(QWidget *field, Read read)
    {
        return m_message.attempt(field, read);
    }

private:
    void addField(int row, int column, QLabel *&label, const QString &text, QWidget *field);
    void followForm();
    [[nodiscard]] const accounting::Account *accountIn(const AccountBox &box) const;
    [[nodiscard]] QString noOwn() const;
    [[nodiscard]] QString noOther() const;

    FieldMessage &m_message;
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    workbench::EntryForm m_form = workbench::EntryForm::Spent;
    bool m_isExchangeAllowed = false;
    MoneyEdit *m_amount;
    AccountBox *m_own;
    AccountBox *m_other;
    QLineEdit *m_payee;
    MoneyEdit *m_received; ///< in the place of the payee
    QLineEdit *m_reason;
    DayEdit *m_day;
    QGridLayout *m_grid;
    QLabel *m_amountLabel = nullptr;
    QLabel *m_ownLabel = nullptr;
    QLabel *m_otherLabel = nullptr;
    QLabel *m_payeeLabel = nullptr;
    QLabel *m_receivedLabel = nullptr;
    QLabel *m_reasonLabel = nullptr;
    QLabel *m_dayLabel = nullptr;
};

} // namespace kiv::desktop
