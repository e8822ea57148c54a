// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"
#include "workbench/explain/explanation.h"
#include "workbench/outlook/looking_ahead.h"
#include "workbench/requests/due_list.h"

namespace kiv::workbench {

/// Explains the figures of the open budget as it is when the explainer is made. Each figure
/// comes from the function that computes it elsewhere. Every function throws what an amount that
/// overflows throws; nothing is changed.
class KIV_WORKBENCH_EXPORT Explainer {
public:
    /// Explains as of this day. The document must outlive it.
    Explainer(Document &document, QDate today);

    /// The balance of an account, at the end of the day if there is one: its opening, former
    /// entries in one line, and the last ones. The account must be there.
    [[nodiscard]] Explanation balance(accounting::AccountNumber account,
                                      std::optional<QDate> day = {}) const;
    /// An item's share of a month. Throws a Refusal for an item that does not recur. The item must
    /// be there.
    [[nodiscard]] Explanation share(const budgeting::BudgetItemIdentifier &item) const;
    /// What an amount is in another currency at the present rate. Throws a Refusal without one.
    [[nodiscard]] Explanation conversion(const numira::Money &amount,
                                         const numira::Currency &currency) const;
    /// The sides of a transaction that were converted when it was posted. Throws a Refusal if
    /// there is no such transaction, and if none of its sides was.
    [[nodiscard]] std::vector<Explanation>
    conversions(accounting::TransactionNumber transaction) const;
    /// What is set aside for the item at the account. Throws a Refusal if nothing is set aside
    /// there for it, and if a rate is missing to tell how much.
    [[nodiscard]] Explanation setAside(accounting::AccountNumber account,
                                       const budgeting::BudgetItemIdentifier &item) const;
    /// What is free to spend, for each currency. Throws a Refusal if no account has money set
    /// aside.
    [[nodiscard]] std::vector<Explanation> freeMoney() const;
    /// By how much the books may miss this balance of a statement; without one, the balance that
    /// a survey expects. Throws a Refusal for an account that no bank keeps, for what is owed,
    /// where nothing is refused, and for a balance in another currency.
    [[nodiscard]] Explanation tolerance(accounting::AccountNumber account,
                                        std::optional<numira::Money> statement = {}) const;
    /// The percentages by which the budget's health is judged. Throws a Refusal without an income.
    [[nodiscard]] std::vector<Explanation> health() const;
    /// The percentage with this name: "planned", "needs", "debts", "spending" or "goals". Throws
    /// an EntryError for another name, and as health().
    [[nodiscard]] Explanation health(const QString &name) const;
    /// What is expected at the end of a day, of the account or of all money together. Throws an
    /// EntryError for a day before today or too far off, and a Refusal for an account that is not
    /// watched and for all together without an exchange rate.
    [[nodiscard]] Explanation outlook(QDate day,
                                      std::optional<accounting::AccountNumber> account = {}) const;

    /// What is left in the account when the line of the list at this place is paid, and those above
    /// it. The line must tell that.
    [[nodiscard]] Explanation leftAfter(const DueList &list, std::size_t place) const;

private:
    [[nodiscard]] QString entryText(const accounting::Transaction &transaction,
                                    accounting::AccountNumber seenFrom) const;
    void addRates(Explanation &explanation, const numira::Currency &from,
                  const numira::Currency &to) const;

    Document &m_document;
    QDate m_today;
    storage::BudgetStorage::Data m_data;
    AccountIndex m_index;
    numira::Currency m_preferred;
    navigation::CurrencyDisplayOptions m_displayAs;
};

} // namespace kiv::workbench
