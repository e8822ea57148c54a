// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_rows.h"

namespace kiv::workbench::internal {

/// Finds the items that entries of a statement pay. An item moves on to its next date with
/// each payment, so entries are asked for in the order of their days.
class PaymentFinder {
public:
    explicit PaymentFinder(const StatementBooks &books);

    struct Found {
        ImportPayment payment;
        /// Whether the amount or the name alone speaks for it, or it is nearer to the next date.
        bool isDoubtful = false;
    };
    /// The item that the entry pays, if one fits. `other` is the account that a rule or former
    /// entries chose for it; `isSaid` means that nothing else may be chosen.
    [[nodiscard]] std::optional<Found> find(const interchange::StatementEntry &entry,
                                            std::optional<accounting::AccountNumber> other,
                                            bool isSaid);
    /// All items that are due about the entry's day and move money the same way, the nearest
    /// amount first.
    [[nodiscard]] std::vector<ImportPayment>
    candidates(const interchange::StatementEntry &entry) const;

private:
    struct Item {
        const PayableItem *item;
        QDate next;
        QStringList words; ///< of its name
    };

    [[nodiscard]] static bool canPay(const Item &item, const interchange::StatementEntry &entry);
    [[nodiscard]] static bool isNearerToNext(const Item &item,
                                             const interchange::StatementEntry &entry);
    /// The payment of what is due; the item moves on to its next date.
    [[nodiscard]] static ImportPayment paid(Item &item);

    std::vector<Item> m_items;
};

} // namespace kiv::workbench::internal
