// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/draft.h"

#include <stdexcept>

/// The parts of a journal as they are written, before they are balanced.
namespace kiv::interchange::internal {

/// A number of a commodity. A currency has its ISO code, another commodity its name in the
/// journal; empty where none is written.
struct Quantity {
    numira::Decimal number;
    QString commodity;
};

enum class PostingKind { Real, BalancedVirtual, Virtual };

/// What a balance assertion includes.
struct AssertionScope {
    bool isSole = false;       ///< "==": the account has no other commodity
    bool withChildren = false; ///< "=*": the accounts below count, too

    /// Whether it is a plain "=", which is all that ledger knows.
    [[nodiscard]] bool isPlain() const noexcept { return !isSole && !withChildren; }
};

struct Posting {
    Place place;
    QString account = {};
    PostingKind kind = PostingKind::Real;
    accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
    std::optional<Quantity> amount = {};
    /// The cost of the whole amount, with the amount's sign.
    std::optional<Quantity> cost = {};
    bool isLotCost = false; ///< whether the cost is that of its lot, because it has no price
    std::optional<Quantity> assertion = {};
    AssertionScope scope = {}; ///< of that assertion
    bool isAssigned = false;   ///< whether the amount was computed from the assertion
    QStringList comments = {};

    /// The amount. A posting without one must have been filled before.
    [[nodiscard]] const Quantity &known() const
    {
        if (!amount)
            throw std::logic_error("A posting's amount is asked for before it is known.");
        return *amount;
    }
    /// What it adds to the balance of its transaction.
    [[nodiscard]] const Quantity &weight() const { return cost ? *cost : known(); }
};

struct Entry {
    Place place;
    QDate date = {};
    accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
    QString description = {};
    QStringList comments = {};
    std::vector<Posting> postings = {};
};

/// Postings that are added for each posting whose account matches the pattern.
struct AutomatedEntry {
    QString pattern;
    Entry entry;
};

} // namespace kiv::interchange::internal
