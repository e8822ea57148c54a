// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/reconciliation_derivation.h"

#include "accounting/recoded_accounts.h"

#include <algorithm>

namespace kiv::surveying {
namespace {

using accounting::AccountNumber;
using accounting::GeneralLedger;
using accounting::TransactionNumber;
using accounting::TransactionOutline;
using accounting::TransactionStatuses;
using banking::BankAccount;

/// Day and balance of the surveys that have a day.
using Statements = std::map<BankAccount, std::pair<QDate, numira::Money>>;

Statements statementsOf(const CompletedSurveys &surveys)
{
    Statements statements;
    for (const auto &[account, survey] : surveys) {
        const banking::ReconciledBankAccount &reconciled = survey.reconciled();
        if (reconciled.reconciledOn())
            statements.try_emplace(statements.end(), account, *reconciled.reconciledOn(),
                                   reconciled.balance());
    }
    return statements;
}

bool isReconciledOn(const TransactionOutline &outline, AccountNumber account)
{
    return (outline.debit == account && outline.debitStatus == TransactionStatuses::Reconciled) ||
           (outline.credit == account && outline.creditStatus == TransactionStatuses::Reconciled);
}

// ---- recoded accounts and renamed banks -----------------------------------------

/// The new numbers of recoded accounts.
class Recodes {
public:
    explicit Recodes(std::map<AccountNumber, AccountNumber> numbers) : m_numbers(std::move(numbers))
    {
    }

    [[nodiscard]] AccountNumber operator()(AccountNumber number) const
    {
        const auto found = m_numbers.find(number);
        return found == m_numbers.end() ? number : found->second;
    }

    void applyTo(Reconciliations &all) const
    {
        if (m_numbers.empty())
            return;
        for (Reconciliation &one : all) {
            one.account.account.number = (*this)(one.account.account.number);
            for (ReconciledTransaction &transaction : one.transactions) {
                transaction.debit = (*this)(transaction.debit);
                transaction.credit = (*this)(transaction.credit);
            }
        }
    }

private:
    std::map<AccountNumber, AccountNumber> m_numbers;
};

/// Where the surveys went that are gone from their bank account. Of several with the same
/// day and balance, an account keeps its number or its bank if possible.
std::map<BankAccount, BankAccount> movesBetween(const Statements &before, const Statements &after,
                                                const Recodes &recoded)
{
    std::map<BankAccount, BankAccount> moves;
    std::set<BankAccount> taken;
    const auto likeness = [&](const BankAccount &from, const BankAccount &to) {
        return (recoded(from.account.number) == to.account.number ? 2 : 0) +
               (from.bank == to.bank ? 1 : 0);
    };
    const auto isNew = [&](const Statements::value_type &statement) {
        const auto found = before.find(statement.first);
        return found == before.end() || found->second != statement.second;
    };
    for (int wanted = 3; wanted >= 0; --wanted) {
        for (const auto &[from, was] : before) {
            if (after.contains(from) || moves.contains(from))
                continue;
            for (const auto &statement : after) {
                const auto &[to, is] = statement;
                if (is == was && likeness(from, to) == wanted && isNew(statement) &&
                    taken.insert(to).second) {
                    moves.emplace(from, to);
                    break;
                }
            }
        }
    }
    return moves;
}

/// Takes the reconciliations along with their surveys, and the former statements too.
void follow(Reconciliations &all, const std::map<BankAccount, BankAccount> &moves,
            Statements &former)
{
    if (moves.empty())
        return;
    for (const auto &[from, to] : moves)
        former[to] = former.at(from);
    for (Reconciliation &one : all) {
        if (const auto move = moves.find(one.account); move != moves.end())
            one.account = move->second;
    }
}

// ---- what became reconciled -----------------------------------------------------

/// A transaction of which the side of an account became reconciled.
struct ReconciledSide {
    TransactionNumber number;
    AccountNumber account;
    QDate day;
};

/// In the order of the transactions.
std::vector<ReconciledSide> newlyReconciled(const GeneralLedger &before, const GeneralLedger &after,
                                            const std::vector<TransactionNumber> &changed,
                                            const Recodes &recoded)
{
    std::vector<ReconciledSide> sides;
    for (const TransactionNumber number : changed) {
        const auto is = after.lookUpOutline(number);
        if (!is)
            continue;
        auto was = before.lookUpOutline(number);
        if (was) {
            was->debit = recoded(was->debit);
            was->credit = recoded(was->credit);
        }
        for (const AccountNumber account : {is->debit, is->credit}) {
            if (isReconciledOn(*is, account) && !(was && isReconciledOn(*was, account)))
                sides.push_back({number, account, is->occurredOn});
        }
    }
    return sides;
}

/// Adds the transaction unless it is the last one already.
void add(std::vector<ReconciledTransaction> &transactions, const GeneralLedger &ledger,
         TransactionNumber number)
{
    if (transactions.empty() || transactions.back().number != number)
        transactions.push_back(*reconciledTransaction(ledger, number));
}

bool isHeld(const Reconciliations &kept, const BankAccount &account,
            const ReconciledTransaction &transaction)
{
    return std::ranges::any_of(kept, [&](const Reconciliation &one) {
        return one.account == account && std::ranges::count(one.transactions, transaction) > 0;
    });
}

} // namespace

Reconciliations firstReconciliations(const SurveyedBooks &books)
{
    const GeneralLedger &ledger = books.ledger;
    Reconciliations all;
    for (const auto &[account, statement] : statementsOf(books.surveys)) {
        const auto &[day, balance] = statement;
        const AccountNumber surveyed = account.account.number;
        std::set<AccountNumber> sides =
            ledger.lookUpChildren(surveyed, accounting::OpenStates::Either);
        if (ledger.hasLedger(surveyed))
            sides.insert(surveyed);
        std::vector<TransactionNumber> numbers;
        for (const AccountNumber side : sides) {
            const accounting::TransactionList transactions = ledger.ledger(side).transactions();
            for (auto each = transactions.begin(); each != transactions.end(); ++each) {
                const TransactionOutline outline = *ledger.lookUpOutline(each.number());
                if (isReconciledOn(outline, side) && outline.occurredOn <= day)
                    numbers.push_back(each.number());
            }
        }
        std::ranges::sort(numbers);
        Reconciliation &first = all.emplace_back(Reconciliation{account, day, balance, {}});
        for (const TransactionNumber number : numbers)
            add(first.transactions, ledger, number);
    }
    return all;
}

Reconciliations reconciliationsAfter(Reconciliations kept, const SurveyedBooks &before,
                                     const SurveyedBooks &after)
{
    const std::vector<TransactionNumber> changed =
        accounting::changedTransactions(before.ledger, after.ledger);
    const Recodes recoded(accounting::recodedAccounts(before.ledger, after.ledger, changed));
    const Statements statements = statementsOf(after.surveys);
    Statements former = statementsOf(before.surveys);
    follow(kept, movesBetween(former, statements, recoded), former);
    recoded.applyTo(kept);

    const std::vector<ReconciledSide> sides =
        newlyReconciled(before.ledger, after.ledger, changed, recoded);
    const auto isSurveyed = [&](const Statements::value_type &statement) {
        const auto was = former.find(statement.first);
        return was == former.end() || was->second != statement.second;
    };
    const auto madeOf = [&](const Statements::value_type &statement, const auto &isOwn) {
        const auto &[account, said] = statement;
        Reconciliation made{account, said.first, said.second, {}};
        for (const ReconciledSide &side : sides) {
            if (side.day <= made.day && isOwn(side, account.account.number))
                add(made.transactions, after.ledger, side.number);
        }
        return made;
    };
    std::set<TransactionNumber> surveyed;
    for (const auto &statement : statements) {
        if (!isSurveyed(statement))
            continue;
        kept.push_back(madeOf(statement, [&](const ReconciledSide &side, AccountNumber account) {
            return side.account == account ||
                   after.ledger.accountCode(side.account).parent() == account;
        }));
        for (const ReconciledTransaction &transaction : kept.back().transactions)
            surveyed.insert(transaction.number);
    }
    // What no survey reconciled was marked by hand, or a survey was repeated.
    for (const auto &statement : statements) {
        if (isSurveyed(statement))
            continue;
        Reconciliation made =
            madeOf(statement, [&](const ReconciledSide &side, AccountNumber account) {
                return side.account == account && !surveyed.contains(side.number);
            });
        std::erase_if(made.transactions, [&](const ReconciledTransaction &transaction) {
            return isHeld(kept, made.account, transaction);
        });
        if (!made.transactions.empty())
            kept.push_back(std::move(made));
    }
    return kept;
}

} // namespace kiv::surveying
