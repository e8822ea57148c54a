// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/posted_import.h"

#include "workbench/requests/transactions.h"

#include "interchange/duplicates.h"

namespace kiv::workbench {

using accounting::Transaction;
using navigation::Navigator;

namespace {

void postAll(Requests &requests, const std::vector<ImportedTransaction> &transactions)
{
    for (const auto &[transaction, place, isSkipped] : transactions) {
        if (isSkipped)
            continue;
        try {
            post(requests, transaction);
        } catch (const Refusal &refusal) {
            throw interchange::ImportError(place, refusal.message());
        }
    }
}

} // namespace

std::ptrdiff_t PostedImport::skipped() const
{
    return std::ranges::count_if(transactions, &ImportedTransaction::isSkipped);
}

PostedImport plannedImport(Requests &requests, const interchange::Draft &draft,
                           KnownTransactions known)
{
    const AccountIndex before = requests.accounts();
    interchange::AccountPlan plan = interchange::planAccounts(draft, before.accounts());
    interchange::Duplicates duplicates(requests.transactions());
    PostedImport import{std::move(plan.missing), {}, draft.notices};
    import.notices.removeDuplicates();
    for (const interchange::DraftTransaction &drafted : draft.transactions) {
        const Transaction transaction(
            drafted.date, plan.codes[drafted.debit], plan.codes[drafted.credit], drafted.amount,
            drafted.text.isEmpty() ? std::nullopt : std::optional(drafted.text));
        const bool isKnown = duplicates.take(transaction);
        import.transactions.push_back(
            {transaction.withStatuses(drafted.debitStatus, drafted.creditStatus), drafted.place,
             isKnown && known == KnownTransactions::Skip});
    }
    return import;
}

PostedImport postDraft(Requests &requests, const interchange::Draft &draft, KnownTransactions known)
{
    PostedImport import = plannedImport(requests, draft, known);
    for (const accounting::Account &account : import.opened)
        requests.change(accountOutcome, &Navigator::onAddedAct, account);
    postAll(requests, import.transactions);
    return import;
}

} // namespace kiv::workbench
