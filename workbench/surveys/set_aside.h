// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "budgeting/due.h"
#include "storage/budget_storage.h"
#include "surveying/reconciliation.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

/// What is set aside at the bank for the items of a budget, and why.
namespace kiv::workbench {

/// Two currencies without an exchange rate between them.
using LackingRate = std::pair<numira::Currency, numira::Currency>;

/// What is set aside for an item: *before* + *added* − *paid* + *adjusted* = *now*, each in
/// the currency of the line and rounded to its minor unit.
struct KIV_WORKBENCH_EXPORT SetAsideParts {
    numira::Money before; ///< what the last survey recorded
    /// The item's share of a month for each month since; of a goal, what was put into its
    /// account.
    numira::Money added;
    numira::Money paid; ///< since then, less what came back; of a goal, what was taken out
    /// What more was paid than was set aside, since no line falls below zero. Of a goal, what
    /// its account holds beside the other parts; it may be negative.
    numira::Money adjusted;

    /// What is set aside.
    [[nodiscard]] numira::Money now() const { return before + added - paid + adjusted; }

    friend bool operator==(const SetAsideParts &, const SetAsideParts &) = default;
};

/// An item for which money is set aside at a bank account.
struct KIV_WORKBENCH_EXPORT SetAsideLine {
    budgeting::BudgetItemIdentifier item; ///< for which it is
    numira::Money amount;                 ///< of one occurrence
    budgeting::EventFrequency every{};    ///< how often it recurs
    numira::Money monthly;                ///< the amount restated per month
    QDate next;                           ///< the item's next date
    numira::Money expected;               ///< what it will want by the day that was asked
    bool isRecorded = false;              ///< whether the last survey has the item
    bool isByAccount = false; ///< whether it is the balance of the item's account, as of a goal
    /// Whether that account lies elsewhere, so that the balance does not count its money.
    bool isOutside = false;
    std::vector<accounting::TransactionNumber> postings; ///< that were put in or paid, by number
    std::optional<SetAsideParts> parts;     ///< nothing if they cannot be added for want of a rate
    std::optional<numira::Money> counted;   ///< in the currency of the account; nothing likewise
    std::optional<LackingRate> lackingRate; ///< why the sum leaves the line out

    /// Whether a survey records it. A line of zero would only keep the item from being removed
    /// and from every other account.
    [[nodiscard]] bool isHandedOver() const { return parts && !parts->now().isZero(); }
};

/// A bank account: *balance* = *set aside* + *free*.
struct KIV_WORKBENCH_EXPORT SetAside {
    banking::BankAccount account;      ///< whose money it is
    QDate day;                         ///< that was asked
    std::optional<QDate> reconciledOn; ///< the day of the last survey
    QDate start;                       ///< from which the lines count
    int months = 0;                    ///< since then; never negative
    numira::Money balance;             ///< on that day, with the accounts directly under it
    std::vector<SetAsideLine> lines;   ///< by kind and name of the items
    numira::Money total;               ///< the sum of the lines
    numira::Money paid;                ///< of these lines together, those of goals not counted
    /// Accounts under this one that the balance leaves out for want of a rate.
    std::vector<std::pair<accounting::AccountNumber, LackingRate>> leftOut;

    /// What is set aside for nothing; negative if more is set aside than there is.
    [[nodiscard]] numira::Money free() const { return balance - total; }
};

/// What a survey recorded for an item that no line shows.
struct StrandedAmount {
    /// Why there is no line.
    enum class Why : std::uint8_t {
        AccountClosed = 1, ///< the account of the survey
        AccountGone,       ///< it is kept by no bank any more, or owes money
        NotSetAside,       ///< the item recurs monthly or more often now, or not at all
        OtherAccount,      ///< the item's own account lies under another one now
        OtherSurvey        ///< another survey has the item as well
    };
    budgeting::BudgetItemIdentifier item; ///< for which it is
    banking::BankAccount account;         ///< of the survey
    numira::Money amount;                 ///< as recorded
    Why why{};                            ///< it is not shown
};

/// What is set aside at all banks.
struct Envelopes {
    QDate day;                            ///< that was asked
    std::vector<SetAside> accounts;       ///< by bank and number
    std::vector<StrandedAmount> stranded; ///< by account and item
    /// Items that have lines at several accounts, since no survey has any of them.
    std::vector<budgeting::BudgetItemIdentifier> shared;
    QDate dueUntil;                                     ///< the last day of that month
    std::vector<budgeting::BudgetItemAmountDue> dueYet; ///< monthly payments until then
};

/// What several accounts come to together, in one currency.
struct KIV_WORKBENCH_EXPORT SetAsideSum {
    numira::Money balance;  ///< of the accounts
    numira::Money setAside; ///< of that

    /// What is set aside for nothing; negative if more is set aside than there is.
    [[nodiscard]] numira::Money free() const { return balance - setAside; }
};

/// The sums of all accounts, currencies apart.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::map<numira::Currency, SetAsideSum>
sumsOf(const Envelopes &all);

/// A line and the account at which it is; both belong to the envelopes that were asked.
struct SetAsideHere {
    const SetAside *account = nullptr;  ///< where it is
    const SetAsideLine *line = nullptr; ///< of the item
};

/// The lines of an item: several while no survey has it.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<SetAsideHere>
linesOf(const Envelopes &all, const budgeting::BudgetItemIdentifier &item);

/// What is set aside at a bank account on a day. The account must be there. Never throws for
/// want of an exchange rate: what cannot be converted is named and not added.
[[nodiscard]] KIV_WORKBENCH_EXPORT SetAside
setAsideAt(const banking::BankAccount &account, const storage::BudgetStorage::Data &data,
           const surveying::Reconciliations &reconciliations, QDate day);

/// Whether money is set aside at the account: a bank keeps it, it is an open asset, and it is
/// not under another account of that kind, which counts its money.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool holdsEnvelopes(const banking::BankAccount &account,
                                                       const storage::BudgetStorage::Data &data);

/// What is set aside at all accounts that hold envelopes, on a day.
[[nodiscard]] KIV_WORKBENCH_EXPORT Envelopes
envelopes(const storage::BudgetStorage::Data &data,
          const surveying::Reconciliations &reconciliations, QDate day);

} // namespace kiv::workbench
