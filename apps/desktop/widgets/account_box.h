// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include <QtWidgets/QComboBox>

#include <memory>

namespace kiv::desktop {

/// A field for an account or an item: the names that contain what is typed are offered.
class AccountBox final : public QComboBox {
    Q_OBJECT

public:
    explicit AccountBox(QWidget *parent = nullptr);

    /// Offers these accounts by their plain names. What is typed stays.
    void offer(std::shared_ptr<const workbench::AccountIndex> accounts,
               const std::vector<accounting::AccountNumber> &offered);
    /// Shows the account; none clears the field.
    void setAccount(std::optional<accounting::AccountNumber> account);
    /// The account that is typed. Throws a Refusal, with similar names, if there is none;
    /// `ifEmpty` is its sentence for an empty field.
    [[nodiscard]] accounting::AccountNumber account(const QString &ifEmpty) const;
    /// The same without a refusal.
    [[nodiscard]] std::optional<accounting::AccountNumber> accountIfAny() const;
    [[nodiscard]] bool isEmpty() const { return currentText().trimmed().isEmpty(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// Another account was chosen or typed in whole by the user.
    void chosen();

private:
    [[nodiscard]] QSize withRoom(QSize size) const;

    std::shared_ptr<const workbench::AccountIndex> m_accounts;
};

} // namespace kiv::desktop
