// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/register_model.h"

#include "workbench/search/transaction_filter.h"

#include <QtCore/QSortFilterProxyModel>

#include <bitset>

namespace kiv::desktop {

/// The rows of the register that a search fits.
class RegisterFilter final : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit RegisterFilter(RegisterModel &rows, QObject *parent = nullptr);
    ~RegisterFilter() override;

    /// Searches from now on. If an account is shown, only its side's marks count. Throws
    /// what TransactionFilter throws, and goes on as before then.
    void search(const QString &text, const workbench::AccountIndex &accounts, QDate today);
    /// Whether anything is left out.
    [[nodiscard]] bool isSearching() const noexcept { return m_filter.has_value(); }
    /// "119 of 65,535, together −1,204.00": how many rows fit, and what they change.
    [[nodiscard]] QString resultText(navigation::CurrencyDisplayOptions displayAs) const;

    /// The place of a row in the register.
    [[nodiscard]] int sourceRow(int row) const;
    /// The row of a transaction; -1 if it is not shown.
    [[nodiscard]] int rowOf(accounting::TransactionNumber number) const;

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow,
                                        const QModelIndex &sourceParent) const override;

private:
    [[nodiscard]] std::vector<numira::Money> sums() const;
    void forget(const std::vector<accounting::TransactionNumber> &numbers);

    RegisterModel &m_rows;
    std::optional<workbench::TransactionFilter> m_filter;
    /// Whether a transaction fits, once it has been looked at: the balances of many rows
    /// change at once, and that does not matter here.
    mutable std::bitset<65'536> m_isKnown;
    mutable std::bitset<65'536> m_fits;
};

} // namespace kiv::desktop
