// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;

/// All accounts in groups that a household knows. Enter opens an account's register.
class AccountsPage final : public Page {
    Q_OBJECT

public:
    explicit AccountsPage(Desk &desk);

    /// The number of the account that is chosen.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;

private:
    void openRegister(const QString &number);

    TableModel *m_model;
    Table *m_table;
    QPushButton *m_open;
    QLabel *m_none;
};

} // namespace kiv::desktop
