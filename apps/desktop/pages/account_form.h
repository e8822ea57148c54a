// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "workbench/entry/account_index.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class DayEdit;
class MoneyEdit;

/// The fields in which an account is added, or gets another name and place.
class AccountForm final : public QObject {
    Q_OBJECT

public:
    /// Adds its fields to `form`, which outlives it.
    AccountForm(Desk &desk, Form &form);

    /// Is for a new account, or for changing this one.
    void begin(std::optional<accounting::AccountNumber> changed);
    /// The account that is being changed; nothing for a new one.
    [[nodiscard]] std::optional<accounting::AccountNumber> changed() const noexcept
    {
        return m_changed;
    }
    /// Where what is typed first stands.
    [[nodiscard]] QWidget &firstField() const;
    /// Adds or changes the account. Returns its number; nothing after a refusal.
    std::optional<accounting::AccountNumber> save();

private:
    void addFields();
    void offerKinds();
    void show(const accounting::Account &account);
    /// The number that is typed; nothing for the next free one.
    [[nodiscard]] std::optional<accounting::AccountNumber> number() const;
    [[nodiscard]] std::optional<accounting::AccountNumber> parent() const;
    std::optional<accounting::AccountNumber> add(const accounting::AccountCode &code);
    std::optional<accounting::AccountNumber> change(const accounting::AccountCode &code);
    /// The field that is most likely at fault when the code is refused.
    [[nodiscard]] QWidget &suspect(const accounting::AccountCode &code) const;

    Desk &m_desk;
    Form &m_form;
    QLineEdit *m_name;
    QComboBox *m_kind;
    QLineEdit *m_number;
    AccountBox *m_parent;
    MoneyEdit *m_opening;
    DayEdit *m_day;
    std::optional<accounting::AccountNumber> m_changed;
    accounting::AccountCode m_before; ///< of the account that is being changed
};

} // namespace kiv::desktop
