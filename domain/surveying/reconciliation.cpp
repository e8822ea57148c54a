// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/reconciliation.h"

#include "foundation/local_dates.h"
#include "foundation/streams.h"

namespace kiv::surveying {

std::optional<ReconciledTransaction> reconciledTransaction(const accounting::GeneralLedger &ledger,
                                                           accounting::TransactionNumber number)
{
    const auto outline = ledger.lookUpOutline(number);
    if (!outline)
        return std::nullopt;
    return ReconciledTransaction{number, outline->occurredOn, outline->amount, outline->debit,
                                 outline->credit};
}

std::ostream &operator<<(std::ostream &out, const ReconciledTransaction &transaction)
{
    return out << '#' << transaction.number << ' '
               << foundation::isoText(transaction.day).toStdString() << ' ' << transaction.amount
               << ' ' << transaction.debit << '/' << transaction.credit;
}

std::ostream &operator<<(std::ostream &out, const Reconciliation &reconciliation)
{
    out << reconciliation.account << ' ' << foundation::isoText(reconciliation.day).toStdString()
        << ' ' << reconciliation.balance << ": ";
    return foundation::streamRange(out, reconciliation.transactions);
}

} // namespace kiv::surveying
