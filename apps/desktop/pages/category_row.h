// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/account_box.h"
#include "widgets/field_message.h"

#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

/// Asks for the item or account under which several transactions are put.
class CategoryRow final : public QFrame {
    Q_OBJECT

public:
    explicit CategoryRow(QWidget *parent);

    /// Asks for so many transactions; offers these accounts.
    void ask(std::size_t count, std::shared_ptr<const workbench::AccountIndex> accounts);
    /// Where a refusal is said.
    [[nodiscard]] FieldMessage &message() noexcept { return *m_message; }
    [[nodiscard]] QWidget *field() const noexcept { return m_box; }

signals:
    void chosen(kiv::accounting::AccountNumber category);
    /// The user gave up.
    void leaving();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void submit();

    QLabel *m_label;
    AccountBox *m_box;
    QPushButton *m_submit;
    FieldMessage *m_message;
};

} // namespace kiv::desktop
