// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/due_list.h"

#include "workbench/requests/balances.h"
#include "workbench/requests/due_items.h"
#include "workbench/requests/paying_account.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <QtCore/QObject>

namespace kiv::workbench {

using accounting::AccountNumber;
using budgeting::BudgetItemAmountDue;
using budgeting::BudgetItemTypes;
using storage::BudgetStorage;

namespace {

/// The balances of accounts while the lines are paid one after the other.
class Running {
public:
    explicit Running(const accounting::GeneralLedger &ledger) : m_ledger(ledger) {}

    /// The balance after this payment; nothing if there is no exchange rate for it.
    std::optional<numira::Money> after(AccountNumber number, const BudgetItemAmountDue &due)
    {
        const accounting::LedgerAccount account = m_ledger.ledger(number);
        numira::Money &balance = m_balances.try_emplace(number, account.balance()).first->second;
        const bool isRaised =
            (due.id.type == BudgetItemTypes::Wage) == accounting::isDebitNormal(account.type());
        try {
            const numira::Money amount = due.amount.convertedTo(balance.code()).rounded();
            return isRaised ? balance += amount : balance -= amount;
        } catch (const numira::Error &) {
            return std::nullopt;
        } catch (const foundation::Error &) {
            return std::nullopt;
        }
    }

private:
    const accounting::GeneralLedger &m_ledger;
    std::map<AccountNumber, numira::Money> m_balances;
};

} // namespace

DueList dueList(const BudgetStorage::Data &data, const std::vector<BudgetItemAmountDue> &due,
                const SaidAccounts &said)
{
    DueList list;
    Running running(data.generalLedger);
    for (const BudgetItemAmountDue &one : due) {
        DueLine line{one, std::nullopt, std::nullopt, std::nullopt};
        if (const auto *item = budgeting::findBudgetItem(one.id.item(), data.budget))
            line.next = dayAfterNext(*item);
        const auto found = said.find(one.id.item());
        line.account = payingAccount(
            data, one.id.item(), found == said.end() ? std::nullopt : std::optional(found->second));
        if (line.account) {
            line.after = running.after(*line.account, one);
            if (!line.after)
                list.lackingRates.insert(one.amount.code());
        }
        auto &sums = one.id.type == BudgetItemTypes::Wage ? list.toReceive : list.toPay;
        sums.try_emplace(one.amount.code(), one.amount.code()).first->second += one.amount;
        list.lines.push_back(std::move(line));
    }
    return list;
}

QStringList dueTotalTexts(const DueList &list, QDate until,
                          navigation::CurrencyDisplayOptions displayAs)
{
    const QString day = foundation::presentationText(until);
    QStringList texts;
    if (!list.toPay.empty())
        texts += QObject::tr("To pay until %1: %2.").arg(day, sumsText(list.toPay, displayAs));
    if (!list.toReceive.empty())
        texts +=
            QObject::tr("To come in until %1: %2.").arg(day, sumsText(list.toReceive, displayAs));
    return texts;
}

} // namespace kiv::workbench
