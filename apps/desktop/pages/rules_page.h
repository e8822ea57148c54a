// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/list_page.h"

#include "workbench/statements/import_memory.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class AccountBox;
class MoneyEdit;

/// The rules that say what the entries of banks' files are for; the first that fits counts. A
/// second form tries them.
class RulesPage final : public ListPage {
    Q_OBJECT

public:
    explicit RulesPage(Desk &desk);

    /// The place of a rule from 1; "new" begins one, "try" tries them.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;

protected:
    void forgetFile() override;
    void refresh() override;
    void follow() override;
    void followForm() override;
    void change() override;
    void remove() override;

private:
    void addRuleForm();
    void addTrialForm();
    /// The place of the rule that is chosen.
    [[nodiscard]] std::optional<std::size_t> place() const;
    /// Shows this rule in the form; nothing begins a new one.
    void begin(std::optional<std::size_t> place);
    void beginTrial();
    void save();
    void moveUp();
    void tryOut();
    /// The rule that is typed; nothing after a refusal at its field.
    [[nodiscard]] std::optional<workbench::ImportRule> typedRule();
    /// What `read` returns if something is typed in the field.
    template <typename Field, typename Read>
    [[nodiscard]] bool readIfTyped(Form &form, Field &field, bool isEmpty, Read &&read);
    [[nodiscard]] workbench::Deed deed(const QString &line, const QString &undone,
                                       const QString &text, std::size_t place) const;

    workbench::ImportMemory m_memory;
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    QPushButton *m_new;
    QPushButton *m_change;
    QPushButton *m_up;
    QPushButton *m_try;
    QPushButton *m_remove;
    Form *m_form;
    QLineEdit *m_text = nullptr;
    QCheckBox *m_isPattern = nullptr;
    MoneyEdit *m_least = nullptr;
    MoneyEdit *m_most = nullptr;
    AccountBox *m_of = nullptr;
    AccountBox *m_target = nullptr;
    Form *m_trial;
    QLineEdit *m_said = nullptr;
    MoneyEdit *m_amount = nullptr;
    AccountBox *m_file = nullptr;
    std::optional<std::size_t> m_changed; ///< the rule in the form; nothing for a new one
};

} // namespace kiv::desktop
