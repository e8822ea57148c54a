// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include "accounting/transaction.h"
#include "navigation/currency_display.h"

#include <QtCore/QAbstractTableModel>

#include <memory>

namespace kiv::desktop {

/// The transactions of one account by day, with the balance after each, or those of all
/// accounts.
///
/// A row keeps its number, its day and the balance; the rest is looked up when it is
/// painted. A new budget comes in by difference, so that selection and place survive.
class RegisterModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    /// What a column shows. Which there are depends on `showsTerms`.
    enum class Column : std::uint8_t {
        Number,
        Day,
        Text, ///< payee and reason
        Other,
        Debit,
        Credit,
        Mark,
        Amount,
        Balance
    };
    /// Besides Qt's roles.
    enum Role : int {
        SortRole = Qt::UserRole, ///< a value that sorts as people expect
        SectionRole              ///< a Section, as an integer
    };

    /// The parts of an account's life.
    enum class Section : std::uint8_t {
        Reconciled, ///< up to the day of the last reconciliation
        Present,
        Ahead ///< after today
    };
    /// The days that part them.
    struct Days {
        QDate today;
        QDate reconciled = {}; ///< of the account's last reconciliation; may be missing

        friend bool operator==(const Days &, const Days &) = default;
    };

    /// `showsTerms` adds numbers, and both accounts as debit and credit.
    explicit RegisterModel(bool showsTerms, QObject *parent = nullptr);
    ~RegisterModel() override;

    /// Shows the transactions of this account, which must be there, or of all.
    void show(std::shared_ptr<const workbench::AccountIndex> accounts,
              std::optional<accounting::AccountNumber> account,
              navigation::CurrencyDisplayOptions displayAs, const Days &days);
    /// The account that is shown; none for all.
    [[nodiscard]] const std::optional<accounting::AccountNumber> &account() const noexcept
    {
        return m_account;
    }

    /// The accounts that are shown; show() must have been called.
    [[nodiscard]] const workbench::AccountIndex &accounts() const noexcept { return *m_accounts; }

    [[nodiscard]] const std::vector<Column> &columns() const noexcept { return m_columns; }
    /// The place of a column; -1 if it is not there.
    [[nodiscard]] int place(Column column) const;
    [[nodiscard]] accounting::TransactionNumber number(int row) const;
    /// The row of a transaction; -1 if it is not shown.
    [[nodiscard]] int rowOf(accounting::TransactionNumber number) const;
    /// The transaction in a row.
    [[nodiscard]] accounting::Transaction transaction(int row) const;
    /// What the row changes: the account's balance, or without an account what the
    /// household has. What moves between two accounts of the household counts as positive.
    [[nodiscard]] numira::Money amount(int row) const;
    /// Whether the household's money grows, shrinks, or neither.
    [[nodiscard]] int direction(const accounting::Transaction &transaction) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

signals:
    /// These transactions come, go or change next.
    void changing(const std::vector<kiv::accounting::TransactionNumber> &numbers);

private:
    struct Row {
        numira::Decimal balance;           ///< of the account, after the row
        qint64 day = 0;                    ///< Julian
        accounting::AccountNumber account; ///< one of the two
        accounting::TransactionNumber number;
    };
    /// By day, then by number.
    struct Key {
        qint64 day;
        accounting::TransactionNumber number;
        friend auto operator<=>(const Key &, const Key &) = default;
    };
    struct Difference;

    [[nodiscard]] static Key keyOf(const Row &row) { return {row.day, row.number}; }
    [[nodiscard]] int lowerBound(const Key &key) const;
    [[nodiscard]] std::vector<Row> rowsOf(const workbench::AccountIndex &accounts) const;
    [[nodiscard]] numira::Decimal change(const accounting::Transaction &transaction,
                                         const workbench::AccountIndex &accounts) const;
    [[nodiscard]] Difference differenceTo(const workbench::AccountIndex &accounts) const;
    /// Whether rows cannot be carried over: another account, or another currency.
    [[nodiscard]] bool isOther(const workbench::AccountIndex &accounts,
                               std::optional<accounting::AccountNumber> account) const;
    void replace(std::shared_ptr<const workbench::AccountIndex> accounts,
                 std::optional<accounting::AccountNumber> account);
    void apply(const Difference &difference,
               std::shared_ptr<const workbench::AccountIndex> accounts);
    void removeRuns(const std::vector<Key> &gone);
    void insertRuns(const std::vector<Row> &come);
    void shiftBalances(const Difference &difference);

    [[nodiscard]] QString text(const accounting::Transaction &transaction, int row,
                               Column column) const;
    [[nodiscard]] QString spoken(const accounting::Transaction &transaction, int row,
                                 Column column) const;
    [[nodiscard]] QString spokenRow(const accounting::Transaction &transaction, int row) const;
    /// The colour of a cell's text; none where it is the usual one.
    [[nodiscard]] QVariant ink(int row, Column column) const;
    [[nodiscard]] QString otherText(const accounting::Transaction &transaction) const;
    [[nodiscard]] numira::Money signedAmount(const accounting::Transaction &transaction) const;
    [[nodiscard]] numira::Money balance(int row) const;
    [[nodiscard]] Section section(int row) const;
    [[nodiscard]] QVariant sortValue(const accounting::Transaction &transaction, int row,
                                     Column column) const;

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    std::optional<accounting::AccountNumber> m_account;
    navigation::CurrencyDisplayOptions m_displayAs = navigation::CurrencyDisplayOptions::IsoCode;
    Days m_days;
};

} // namespace kiv::desktop
