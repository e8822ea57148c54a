// SPDX-License-Identifier: GPL-3.0-or-later
// What is done with the transactions that are chosen in the register.
#include "pages/register_page.h"

#include "pages/category_row.h"
#include "pages/entry_row.h"

#include <QtWidgets/QTableView>

#include <algorithm>

namespace kiv::desktop {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using workbench::EntryForm;
using workbench::Marking;

void RegisterPage::showEntryRow(bool isShown)
{
    const bool hadFocus = m_entry->isAncestorOf(focusWidget());
    m_entry->setVisible(isShown);
    desk().actions().action(QStringLiteral("entryRow"))->setChecked(isShown);
    desk().settings().setEntryShown(isShown);
    if (!isShown && hadFocus)
        m_table->setFocus(Qt::OtherFocusReason);
}

void RegisterPage::beginEntry(EntryForm form)
{
    desk().goTo({id(), {}});
    showEntryRow(true);
    m_entry->begin(form);
}

void RegisterPage::beginFromCurrent(void (EntryRow::*begin)(const Transaction &))
{
    const std::optional<Transaction> transaction = current();
    if (!transaction)
        return;
    showEntryRow(true);
    (m_entry->*begin)(*transaction);
}

void RegisterPage::edit()
{
    if (!desk().whyNoChange())
        beginFromCurrent(&EntryRow::beginChange);
}

void RegisterPage::enterAgain()
{
    beginFromCurrent(&EntryRow::beginAgain);
}

void RegisterPage::refund()
{
    beginFromCurrent(&EntryRow::beginRefund);
}

void RegisterPage::remove()
{
    const std::vector<TransactionNumber> numbers = selected();
    if (numbers.empty())
        return;
    std::vector<Transaction> transactions;
    for (const TransactionNumber number : numbers)
        transactions.push_back(m_rows->transaction(m_rows->rowOf(number)));
    const int row = m_table->currentIndex().row();
    workbench::Deed deed = workbench::removeDeed(requests(), transactions);
    deed.place = placeOf(numbers.back());
    const bool isDone = desk().perform(*m_message, m_table, deed, [&] {
        for (const TransactionNumber number : numbers)
            requests().change(workbench::transactionOutcome,
                              &navigation::Navigator::onRemovedTransaction, number);
    });
    // The next one takes its place, so that several can be removed one after the other.
    if (isDone && m_shown->rowCount() > 0)
        m_table->setCurrentIndex(m_shown->index(std::clamp(row, 0, m_shown->rowCount() - 1), 0));
}

void RegisterPage::mark(Marking marking)
{
    const std::vector<TransactionNumber> numbers = selected();
    if (numbers.empty())
        return;
    workbench::Deed deed = workbench::markDeed(numbers.size(), marking);
    deed.place = placeOf(numbers.back());
    desk().perform(*m_message, m_table, deed,
                   [&] { workbench::mark(requests(), numbers, marking); });
}

void RegisterPage::recategorize(AccountNumber category)
{
    const std::vector<TransactionNumber> numbers = selected();
    workbench::Deed deed =
        workbench::recategorizeDeed(numbers.size(), m_accounts->plainName(category));
    if (numbers.empty())
        return;
    deed.place = placeOf(numbers.back());
    const bool isDone = desk().perform(m_category->message(), m_category->field(), deed, [&] {
        workbench::recategorize(requests(), numbers, category);
    });
    if (isDone) {
        m_category->hide();
        m_table->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace kiv::desktop
