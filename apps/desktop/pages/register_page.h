// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/register_filter.h"
#include "pages/page.h"

#include "workbench/requests/entry_forms.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QPushButton;
class QTableView;
QT_END_NAMESPACE

namespace kiv::desktop {

class CategoryRow;
class EntryRow;
class FilterBar;

/// What happened, in one account or in all, and the row of fields in which more is entered.
class RegisterPage final : public Page {
    Q_OBJECT

public:
    explicit RegisterPage(Desk &desk);
    ~RegisterPage() override;

    /// "12" is an account, "12/345" a transaction in it, "all/345" one of all accounts.
    void goTo(const QString &detail) override;
    [[nodiscard]] QString detail() const override;
    /// The sides of the current transaction that were converted.
    [[nodiscard]] Explain explanation() override;
    [[nodiscard]] QWidget *firstFocus() override;

    /// The transactions that are selected, in the order of the rows.
    [[nodiscard]] std::vector<accounting::TransactionNumber> selected() const;

protected:
    void refresh() override;
    void forgetFile() override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void buildTable();
    void addActions();
    void addMarkActions();
    /// An action for the rows that are selected.
    void addRowAction(const char *id, const QString &text, const QKeySequence &keys,
                      const std::function<void()> &run);
    void allowActions();
    void fillAccounts();
    /// The day of the account's last reconciliation; invalid without one.
    [[nodiscard]] QDate reconciledOn(accounting::AccountNumber account) const;
    void sizeRows();
    [[nodiscard]] QString columnsKey() const;
    void showAccount(std::optional<accounting::AccountNumber> account);
    void searchFor(const QString &text);
    void showResult();
    void select(accounting::TransactionNumber number);
    void scrollToEnd();
    /// The transaction of the current row.
    [[nodiscard]] std::optional<accounting::Transaction> current() const;
    void showEntryRow(bool isShown);
    void beginEntry(workbench::EntryForm form);
    /// Begins something with the current transaction in the entry row.
    void beginFromCurrent(void (EntryRow::*begin)(const accounting::Transaction &));
    void edit();
    void enterAgain();
    void refund();
    void remove();
    void mark(workbench::Marking marking);
    void recategorize(accounting::AccountNumber category);
    [[nodiscard]] QString placeOf(accounting::TransactionNumber number) const;

    RegisterModel *m_rows;
    RegisterFilter *m_shown;
    QComboBox *m_account;
    QPushButton *m_import;
    FilterBar *m_filter;
    QTableView *m_table;
    FieldMessage *m_message;
    CategoryRow *m_category;
    EntryRow *m_entry;
    std::shared_ptr<const workbench::AccountIndex> m_accounts;
    QList<QAction *> m_rowActions;
    navigation::CurrencyDisplayOptions m_displayAs = navigation::CurrencyDisplayOptions::IsoCode;
    bool m_isFirst = true;
};

} // namespace kiv::desktop
