// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/item_explained.h"
#include "pages/item_form.h"
#include "pages/list_page.h"

QT_BEGIN_NAMESPACE
class QTabBar;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The budget items, a tab for each kind, with what they come to; and a tab for what is set
/// aside for them at the bank accounts.
class ItemsPage final : public ListPage {
    Q_OBJECT

public:
    explicit ItemsPage(Desk &desk);

    /// A kind, such as "bill"; "bill/Rent" chooses an item, "bill/" begins one. "aside" is
    /// what is set aside, "aside/7" at an account, and "aside/7/bill/Rent" one line of it.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QStringList parts() const override;
    /// The share of a month of the item that is chosen, and what is set aside for it.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;
    void follow() override;
    void followForm() override;
    void enter() override;
    void change() override;
    void remove() override;

private:
    /// Whether it is the tab of what is set aside.
    [[nodiscard]] bool isAside() const;
    [[nodiscard]] budgeting::BudgetItemTypes kind() const;
    [[nodiscard]] budgeting::BudgetItemIdentifier chosenItem() const;
    void showTab();
    void showAside();
    void chooseAside(const QString &key);
    void beginNew();
    void save();
    void end();

    QTabBar *m_kinds;
    ItemExplained *m_explained;
    QLabel *m_total;
    QPushButton *m_new;
    QPushButton *m_change;
    QPushButton *m_remove;
    Form *m_form;
    ItemForm *m_item;
    ShownEnvelopes m_envelopes;
};

} // namespace kiv::desktop
