// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/reconciliation_watch.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/money_text.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <algorithm>

namespace kiv::workbench {

using accounting::GeneralLedger;
using surveying::Departure;
using surveying::ReconciledTransaction;
using surveying::ReconciliationFault;
using surveying::Reconciliations;

namespace {

JudgedReconciliation judgedBy(const Reconciliations &all, std::size_t place,
                              const std::optional<ReconciliationFault> &fault)
{
    const surveying::Reconciliation &one = all[place];
    return {one.account, one.day, one.balance, one.transactions.size(), fault};
}

QString codeText(accounting::AccountNumber number, const GeneralLedger &ledger)
{
    return ledger.hasLedger(number)
               ? inPlainWords(accounting::presentationText(ledger.accountCode(number)))
               : accounting::presentationText(number);
}

/// What differs, as it was and as it is.
std::pair<QString, QString> differences(const ReconciledTransaction &then,
                                        const ReconciledTransaction &now,
                                        const GeneralLedger &ledger,
                                        navigation::CurrencyDisplayOptions displayAs)
{
    QStringList was;
    QStringList is;
    const auto compare = [&](const auto &before, const auto &after, const auto &text) {
        if (before != after) {
            was += text(before);
            is += text(after);
        }
    };
    const auto account = [&](accounting::AccountNumber number) { return codeText(number, ledger); };
    compare(then.day, now.day, [](QDate day) { return foundation::presentationText(day); });
    compare(then.amount, now.amount,
            [&](const numira::Money &amount) { return amountText(amount, displayAs); });
    compare(then.debit, now.debit, account);
    compare(then.credit, now.credit, account);
    return {was.join(QStringLiteral(", ")), is.join(QStringLiteral(", "))};
}

} // namespace

QString JudgedReconciliation::reason(const GeneralLedger &ledger,
                                     navigation::CurrencyDisplayOptions displayAs) const
{
    if (!fault)
        return {};
    const QString number = accounting::presentationText(fault->then.number);
    const QString amount = amountText(fault->then.amount, displayAs);
    const QString survey = foundation::presentationText(day);
    switch (fault->departure) {
    case Departure::Gone:
        return QObject::tr("#%1, %2, was removed after the survey of %3")
            .arg(number, amount, survey);
    case Departure::Changed: {
        const auto [was, is] = differences(fault->then, *fault->now, ledger, displayAs);
        return QObject::tr("#%1 was changed from %2 to %3 after the survey of %4")
            .arg(number, was, is, survey);
    }
    case Departure::Unreconciled:
        break;
    }
    return QObject::tr("#%1, %2, is no longer marked as reconciled since the survey of %3")
        .arg(number, amount, survey);
}

QString JudgedReconciliation::sentence(const GeneralLedger &ledger,
                                       navigation::CurrencyDisplayOptions displayAs) const
{
    const QString name = codeText(account.account.number, ledger);
    if (!fault)
        return QObject::tr("%1 is as it was reconciled.").arg(name);
    if (holds())
        return QObject::tr("%1 is as it was reconciled, but %2.")
            .arg(name, reason(ledger, displayAs));
    return QObject::tr("%1 is not as it was reconciled: %2.").arg(name, reason(ledger, displayAs));
}

std::vector<JudgedReconciliation> judged(const Reconciliations &all, const GeneralLedger &ledger)
{
    std::vector<JudgedReconciliation> result;
    for (std::size_t place = 0; place < all.size(); ++place)
        result.push_back(judgedBy(all, place, std::nullopt));
    for (const ReconciliationFault &fault : surveying::reconciliationFaults(all, ledger)) {
        JudgedReconciliation &one = result[fault.reconciliation];
        if (!one.fault || (one.holds() && surveying::isBreach(fault.departure)))
            one.fault = fault;
    }
    return result;
}

std::vector<JudgedReconciliation> ReconciliationWatch::check(const Reconciliations &all,
                                                             const GeneralLedger &ledger)
{
    m_index = {};
    m_ledger = ledger;
    return news(all, surveying::reconciliationFaults(all, ledger), {});
}

std::vector<JudgedReconciliation> ReconciliationWatch::follow(const Reconciliations &all,
                                                              const GeneralLedger &ledger)
{
    const auto changed = accounting::changedTransactions(m_ledger, ledger);
    m_ledger = ledger;
    if (changed.empty())
        return {};
    m_index.follow(all);
    std::set<Place> broken;
    for (const Place &place : m_broken) {
        const auto number = all[place.first].transactions[place.second].number;
        if (!std::ranges::binary_search(changed, number))
            broken.insert(place);
    }
    return news(all, m_index.faults(all, ledger, changed), std::move(broken));
}

bool ReconciliationWatch::holds(std::size_t place) const
{
    const auto broken = m_broken.lower_bound({place, 0});
    return broken == m_broken.end() || broken->first != place;
}

std::vector<JudgedReconciliation>
ReconciliationWatch::news(const Reconciliations &all,
                          const std::vector<ReconciliationFault> &faults, std::set<Place> broken)
{
    std::set<banking::BankAccount> told;
    std::vector<JudgedReconciliation> result;
    for (const ReconciliationFault &fault : faults) {
        const Place place(fault.reconciliation, fault.transaction);
        if (!surveying::isBreach(fault.departure))
            continue;
        broken.insert(place);
        if (!m_broken.contains(place) && told.insert(all[fault.reconciliation].account).second)
            result.push_back(judgedBy(all, fault.reconciliation, fault));
    }
    m_broken = std::move(broken);
    return result;
}

} // namespace kiv::workbench
