// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/draft.h"

#include <stdexcept>

/// The parts of a journal as they are written, before they are balanced.
namespace kiv::interchange::internal {

/// A number of some commodity: a currency's code where it is one, else the name
/// that the journal has for it; empty where none is written.
struct Quantity {
    numira::Decimal number;
    QString commodity;
};

enum class PostingKind { Real, BalancedVirtual, Virtual };

struct Posting {
    Place place;
    QString account = {};
    PostingKind kind = PostingKind::Real;
    accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
    std::optional<Quantity> amount = {};
    /// What all of the amount cost, with the amount's sign.
    std::optional<Quantity> cost = {};
    std::optional<Quantity> assertion = {};
    bool isAssigned = false; ///< whether the amount is what leads to the assertion
    QStringList comments = {};

    /// The amount, once a posting without one has got it from the others.
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

/// A transaction that is added to each posting whose account fits the pattern.
struct AutomatedEntry {
    QString pattern;
    Entry entry;
};

} // namespace kiv::interchange::internal
