// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/transaction.h"

#include <QtCore/QStringList>

#include <unordered_map>
#include <vector>

namespace kiv::workbench {

/// What was entered before, by payee: completes a payee while it is typed, and fills a form
/// with the payee's newest entry. Make it anew after a change, which takes linear time.
class KIV_WORKBENCH_EXPORT FormerEntries {
public:
    /// The newest transaction of a payee.
    struct Entry {
        QString payee;                        ///< as it was written last
        QString reason;                       ///< what it was for
        accounting::TransactionNumber number; ///< of the transaction
        QDate day;                            ///< on which it occurred
        accounting::AccountNumber debited;    ///< got the money
        accounting::AccountNumber credited;   ///< gave it
        numira::Money amount;                 ///< as entered
    };

    FormerEntries() = default;
    /// Reads the transactions, in any order. Those without a payee and refunds do not count.
    explicit FormerEntries(const std::vector<accounting::Transaction> &transactions);

    /// The payees that begin with the text, then those with a later word that does; case and
    /// accents are ignored. First those used often lately: a use counts half as much after
    /// three months. At most `most`.
    [[nodiscard]] QStringList payees(const QString &typed, qsizetype most = 8) const;
    /// The newest entry of the payee, ignoring case and accents; null if there is none.
    [[nodiscard]] const Entry *newest(const QString &payee) const;

private:
    struct Payee {
        QString key; ///< folded
        Entry newest;
        double weight = 0;
    };

    std::vector<Payee> m_payees; ///< first those used often lately
    std::unordered_map<QString, std::size_t> m_places;
};

} // namespace kiv::workbench
