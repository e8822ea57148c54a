// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account.h"
#include "accounting/account_number_generator.h"
#include "accounting/errors.h"
#include "accounting/transaction_outline.h"

#include "foundation/clock.h"
#include "foundation/debug_stream.h"

namespace kiv::accounting {

/// All accounts of a budget and the transactions between them.
///
/// It keeps these true, and refuses with an AccountError or a TransactionError
/// whatever would break them; a refused change, and one that fails for any
/// other reason, leaves the ledger (and a generator handed in) as it was:
/// - every account has a number of its own, a known kind, and a parent that
///   exists, is of the same kind and makes no cycle; names may repeat;
/// - accounts are nested at most accountDepthMax deep, but for those of a file that
///   has deeper ones;
/// - every transaction has a number of its own (16 bits), a valid day, a
///   positive amount, and two different accounts;
/// - each side of a transaction is kept in its account's currency, converted
///   once, when it was posted, and rounded half to even to that currency's minor unit;
///   an amount in the account's own currency is kept as it is, and both sides are
///   equal when they are in one currency;
/// - a balance is the sum of the account's sides, positive on its kind's own
///   side; the sums of its debits and of its credits never get out of range;
/// - nothing is posted to a closed account, and a reconciled transaction is
///   neither changed nor removed;
/// - all refunds of a transaction together do not exceed it.
///
/// Accounts are found by number alone: AccountCode(number, std::nullopt) finds
/// an account with a name and a parent. Transactions answer with the codes that
/// their accounts have now.
///
/// A ledger is a value. Copies share what they have in common, transactions
/// above all, so copying costs the same whatever its size.
class KIV_ACCOUNTING_EXPORT GeneralLedger {
public:
    GeneralLedger();
    GeneralLedger(const GeneralLedger &);
    GeneralLedger(GeneralLedger &&) noexcept;
    GeneralLedger &operator=(const GeneralLedger &);
    GeneralLedger &operator=(GeneralLedger &&) noexcept;
    ~GeneralLedger();

    // ---- queries -----------------------------------------------------------

    /// Whether there is no account.
    [[nodiscard]] bool isEmpty() const noexcept;
    /// The codes of all accounts.
    [[nodiscard]] std::set<AccountCode> accountCodes() const;
    /// All accounts with their balances and transactions.
    [[nodiscard]] std::set<Account> accounts() const;
    /// Whether there is an account with this number.
    [[nodiscard]] bool hasLedger(AccountNumber number) const noexcept;
    /// The same by the number of the code alone.
    [[nodiscard]] bool hasLedger(const AccountCode &code) const noexcept;
    /// Whether an account, open or closed, has exactly this name.
    [[nodiscard]] bool hasLedgerNamed(const QString &name) const noexcept;
    /// Throws AccountError when there is no such account.
    [[nodiscard]] LedgerAccount ledger(AccountNumber number) const;
    /// The same by the number of the code alone.
    [[nodiscard]] LedgerAccount ledger(const AccountCode &code) const;
    /// The present code. Throws AccountError when there is no such account.
    [[nodiscard]] AccountCode accountCode(AccountNumber number) const;
    /// The transaction that opened the account; nothing without one, also for
    /// an unknown number.
    [[nodiscard]] std::optional<Transaction> openingTransaction(AccountNumber number) const;
    /// The accounts directly under this one.
    [[nodiscard]] std::set<AccountNumber> lookUpChildren(AccountNumber number,
                                                         OpenStates states) const;
    /// Whether remove(number) would remove the account: it exists, has no
    /// child and no transaction but its own opening one, and that is not
    /// reconciled. An opening transaction that was changed so that its other side
    /// holds no openings moves real money, and counts as any other. Closed
    /// accounts can be removed too.
    [[nodiscard]] bool canRemove(const AccountCode &code) const noexcept;
    /// The transaction, seen from neither side; nothing when there is none.
    [[nodiscard]] std::optional<Transaction> lookUpTransaction(TransactionNumber number) const;
    /// The transaction in outline; nothing when there is none.
    [[nodiscard]] std::optional<TransactionOutline> lookUpOutline(TransactionNumber number) const;
    /// All transactions in the order of their numbers, seen from neither side.
    [[nodiscard]] std::vector<Transaction> transactions() const;
    /// How many transactions there are.
    [[nodiscard]] std::size_t transactionCount() const noexcept;
    /// What may still be refunded of a transaction; zero for a refund itself.
    /// Throws TransactionError when there is no such transaction.
    [[nodiscard]] numira::Money refundable(TransactionNumber number) const;

    // ---- accounts ----------------------------------------------------------

    /// Opens an account. A balance other than zero is posted as its opening
    /// transaction, on `openedOn`, against the equity account for openings in
    /// that currency, which is opened too when there is none (with the next free
    /// number of `generator`); a negative one with the sides swapped. Answers
    /// with the number of that transaction, or nothing when none was posted. An
    /// account that is given as closed is closed once it is there.
    ///
    /// Refused: the invalid number, a number in use, an unknown kind, a parent
    /// that is unknown, of another kind or too deep already, an opening as by post (also when the
    /// equity account is closed), a closing as by close.
    std::optional<TransactionNumber> add(const Account &account, AccountNumberGenerator &generator,
                                         QDate openedOn = foundation::today());
    /// Removes an account with its own opening transaction. Refused: an
    /// unknown number, and an account for which canRemove is false.
    void remove(AccountNumber number);
    /// Refused: unknown, open already.
    void open(const AccountCode &code);
    /// Refused: unknown, closed already, an asset or liability whose balance is
    /// not zero.
    void close(AccountNumber number);
    /// Gives the account `from.number()` the number, name and parent of `to`.
    /// Transactions, children's parents, the opening mark, refunds and the
    /// closed flag go along; closed accounts too. Refused: unknown `from`, the
    /// invalid number, a number of another account, a parent that is unknown,
    /// of another kind, or below the account itself, and another parent under
    /// which it or an account below it would be too deep.
    void recode(const AccountCode &from, const AccountCode &to);
    /// Keeps the account in another currency from now on: its own side of every
    /// transaction is restated at the rate of the moment, or becomes the amount
    /// as entered or that of the other side if that is in this currency;
    /// statuses, the other sides and the amounts as entered stay. Works on closed
    /// accounts. `generator` is not used at present. Refused: an unknown account,
    /// a side that has to be converted and cannot be or
    /// comes to nothing, a balance out of range.
    void convertTo(AccountNumber number, const numira::Currency &currency,
                   AccountNumberGenerator &generator);

    // ---- transactions ------------------------------------------------------

    /// Posts a transaction and answers with its number: the one after the
    /// highest, or the lowest free one once 65,535 is in use. The transaction's
    /// own number and refund mark are ignored; its statuses are kept.
    ///
    /// Refused: an invalid day, accounts that are the same, unknown or closed,
    /// an amount that is not positive or comes to nothing in an account's
    /// currency, a full ledger, a balance out of range.
    TransactionNumber post(const Transaction &transaction);
    /// Replaces a transaction under its number. A side whose account stays
    /// keeps its status, a new one has none; the opening mark stays. While the
    /// amount stays, its converted amounts stay too: correcting a description
    /// needs no rate. A refund's amount is taken in the currency of what it
    /// refunds.
    ///
    /// Refused as by post, and: an unknown number, a side that is reconciled, an
    /// account that it leaves and is closed, an opening transaction that would
    /// leave the account that it opened, refunds that would exceed it, other
    /// accounts for a transaction with refunds or for a refund, another currency
    /// for a transaction with refunds.
    void repost(TransactionNumber number, const Transaction &transaction);
    /// Refused: an unknown number, a side that is reconciled, a closed account,
    /// refunds that depend on it.
    void remove(TransactionNumber number);

    /// Marks both sides, or all of several, or the side of one account;
    /// reconciling what is reconciled does nothing. Refused: an unknown number,
    /// an account that is on neither side.
    void reconcile(TransactionNumber number);
    /// Both sides of each; none of them when one is refused.
    void reconcile(const std::set<TransactionNumber> &numbers);
    /// The side of one account.
    void reconcile(TransactionNumber number, AccountNumber account);
    /// Both sides go back to no status where they were reconciled. Refused: an
    /// unknown number.
    void unreconcile(TransactionNumber number);
    /// Both sides, or the side of one account, are seen at the bank. Refused:
    /// an unknown number, an account that is on neither side, a side that is
    /// reconciled.
    void clear(TransactionNumber number);
    /// The side of one account.
    void clear(TransactionNumber number, AccountNumber account);

    /// Posts a transaction that gives back some of another: the accounts
    /// swapped, on `postedOn`, with the same description. An amount in another
    /// currency than the one in which that was entered is converted into it
    /// first. Refused: an unknown number, a refund, an amount that is not
    /// positive or more than is left, and as by post.
    TransactionNumber refund(TransactionNumber number, const numira::Money &amount,
                             QDate postedOn = foundation::today());

    /// The same accounts and transactions with all their marks.
    friend KIV_ACCOUNTING_EXPORT bool operator==(const GeneralLedger &a, const GeneralLedger &b);
    friend KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out,
                                                          const GeneralLedger &ledger);

    /// See the declaration outside.
    friend KIV_ACCOUNTING_EXPORT std::vector<TransactionNumber>
    changedTransactions(const GeneralLedger &before, const GeneralLedger &after);

    /// The currencies in which accounts are kept and amounts were entered; an
    /// account without one adds none.
    friend KIV_ACCOUNTING_EXPORT std::set<numira::Currency>
    containedCurrencies(const GeneralLedger &ledger);

private:
    friend class LedgerReplay;
    friend class StoredTransactions;

    /// The state for changing: not shared with any copy.
    internal::LedgerState &change();
    TransactionNumber postNew(const Transaction &transaction,
                              std::optional<TransactionNumber> refundOf);

    std::shared_ptr<internal::LedgerState> m_state;
};

/// The currencies in which accounts are kept and transactions were entered.
[[nodiscard]] KIV_ACCOUNTING_EXPORT std::set<numira::Currency>
containedCurrencies(const GeneralLedger &ledger);
/// The numbers of the transactions that only one ledger has, or that differ in anything
/// but the names of their accounts, in order. What the ledgers share is not looked at: a
/// copy that was changed a little is compared at the cost of that change.
[[nodiscard]] KIV_ACCOUNTING_EXPORT std::vector<TransactionNumber>
changedTransactions(const GeneralLedger &before, const GeneralLedger &after);
using foundation::operator<<;

} // namespace kiv::accounting
