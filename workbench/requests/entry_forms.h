// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/deed.h"
#include "workbench/requests/transactions.h"

/// The three forms in which a household enters a transaction: spent, earned, moved.
namespace kiv::workbench {

/// How a form reads. In each, one account is the household's own.
enum class EntryForm : std::uint8_t {
    Spent = 0,  ///< from the own account on another
    Earned = 1, ///< to the own account from another
    Moved = 2   ///< from the own account to another
};

/// A filled form.
struct Entry {
    /// Which form it is.
    EntryForm form = EntryForm::Spent;
    /// As typed.
    Amount amount;
    accounting::AccountNumber own;   ///< where the money was, or for earned came to
    accounting::AccountNumber other; ///< what it was for, where it came from or went
    /// Who was paid, or who paid; may be empty.
    QString payee;
    /// What it was for; may be empty.
    QString reason;
    /// On which it occurred.
    QDate day;
};

/// A line of a split.
struct SplitLine {
    accounting::AccountNumber other; ///< what this part was for, or where it came from
    /// As typed.
    Amount amount;
};

/// A filled form for money that was spent on several things, or earned from several, in one
/// go. Each line becomes a transaction of its own; they share what stands here and no more.
struct SplitEntry {
    /// Spent or Earned.
    EntryForm form = EntryForm::Spent;
    accounting::AccountNumber own; ///< where the money was, or came to
    std::vector<SplitLine> lines;  ///< at least two
    /// Who was paid, or who paid; may be empty.
    QString payee;
    /// What it was for; may be empty.
    QString reason;
    /// On which it occurred.
    QDate day;
};

/// The form in which the transaction reads best. What fits no form reads as moved.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryForm formOf(const accounting::Transaction &transaction,
                                                    const AccountIndex &index);
/// The transaction as a filled form.
[[nodiscard]] KIV_WORKBENCH_EXPORT Entry entryOf(const accounting::Transaction &transaction,
                                                 const AccountIndex &index);
/// The accounts that the form offers for `own` and for `other`: open ones that fit.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<accounting::AccountNumber>
ownAccounts(const AccountIndex &index);
/// See ownAccounts().
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<accounting::AccountNumber>
otherAccounts(EntryForm form, const AccountIndex &index);

/// A part of a filled form.
enum class EntryPart : std::uint8_t { Amount, Own, Other, Day };
/// The part to which a refusal of the form most likely belongs.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryPart doubtfulPart(const Entry &entry,
                                                          const AccountIndex &index);

/// The same for a split: the part, and the place of its line among the lines.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::pair<EntryPart, std::size_t>
doubtfulPart(const SplitEntry &entry, const AccountIndex &index);

/// What the lines come to, in the currency of the own account. Throws an EntryError for an
/// amount with too many decimals and for a sum that is too large, and a ConversionError for a
/// currency without an exchange rate.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money splitTotal(const SplitEntry &entry,
                                                            const AccountIndex &index);

/// Posts what the form says, and returns its number. Throws as spend(), earn() and
/// transfer() do.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber enter(Requests &requests, const Entry &entry);
/// Posts the lines of a split, and returns their numbers in the same order. Throws as
/// splitTotal(), spend() and earn() do, and an EntryError for a single line. The lines before
/// a refused one stay posted, so revert the document, as Document::perform() does.
KIV_WORKBENCH_EXPORT std::vector<accounting::TransactionNumber> enterSplit(Requests &requests,
                                                                           const SplitEntry &entry);
/// Changes the transaction into what the form says. Throws as changeTransaction() does.
KIV_WORKBENCH_EXPORT void changeInto(Requests &requests, accounting::TransactionNumber number,
                                     const Entry &entry);
/// What of the transaction was not refunded yet.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money
leftToRefund(const accounting::Transaction &transaction, const AccountIndex &index);
/// Gives each transaction another category: the account that is not the household's own
/// becomes `category`. Throws a Refusal that names the first for which that is not possible;
/// those before it are changed then.
KIV_WORKBENCH_EXPORT void recategorize(Requests &requests,
                                       const std::vector<accounting::TransactionNumber> &numbers,
                                       accounting::AccountNumber category);

/// What can be done to the mark of a transaction.
enum class Marking : std::uint8_t { Clear, TakeClearedBack, Reconcile, TakeReconciledBack };
/// Marks both sides of the transactions. Throws a Refusal for the first that cannot be
/// marked so; those before it are marked then.
KIV_WORKBENCH_EXPORT void mark(Requests &requests,
                               const std::vector<accounting::TransactionNumber> &numbers,
                               Marking marking);

// ---- as steps of undo ------------------------------------------------------------
// `place` is where it happened, see Deed.

/// "Spent 42.10 USD on Groceries."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed enterDeed(Requests &requests, const Entry &entry);
/// "Spent 52.30 USD on Groceries, Household."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed splitDeed(Requests &requests, const SplitEntry &entry);
/// "Changed “Market: weekly shopping”."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed changeDeed(Requests &requests,
                                                   const accounting::Transaction &transaction);
/// "Refunded 5.00 USD of “Market: weekly shopping”."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed refundDeed(Requests &requests, const Amount &amount,
                                                   const accounting::Transaction &transaction);
/// "Removed 3 transactions.", or the one that is removed by its name.
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed
removeDeed(Requests &requests, const std::vector<accounting::Transaction> &transactions);
/// "Marked 3 transactions as cleared."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed markDeed(std::size_t count, Marking marking);
/// "Put 3 transactions under Groceries."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed recategorizeDeed(std::size_t count,
                                                         const QString &category);

/// Payee and reason as they are read: "Market: weekly shopping"; empty without both.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString
payeeAndReason(const accounting::Transaction &transaction);
/// The same, or without both the amount.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString nameOf(const accounting::Transaction &transaction,
                                                  navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench
