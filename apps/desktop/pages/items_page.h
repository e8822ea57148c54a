// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/item_form.h"
#include "pages/list_page.h"

QT_BEGIN_NAMESPACE
class QTabBar;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The budget items, a tab for each kind, with what they come to.
class ItemsPage final : public ListPage {
    Q_OBJECT

public:
    explicit ItemsPage(Desk &desk);

    /// A kind, such as "bill"; "bill/Rent" chooses an item, "bill/new" begins one.
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
    [[nodiscard]] budgeting::BudgetItemTypes kind() const;
    [[nodiscard]] budgeting::BudgetItemIdentifier chosenItem() const;
    void beginNew();
    void save();

    QTabBar *m_kinds;
    QLabel *m_total;
    QPushButton *m_new;
    QPushButton *m_change;
    QPushButton *m_remove;
    Form *m_form;
    ItemForm *m_item;
};

} // namespace kiv::desktop
