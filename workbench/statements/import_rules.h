// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/entry/values.h"

#include "interchange/statement.h"

#include <QtCore/QRegularExpression>

#include <optional>
#include <vector>

namespace kiv::workbench {

/// Says what the entries of bank statements are for that it fits.
struct ImportRule {
    QString text; ///< a part of payee and text, or a pattern; not empty
    /// Whether the text is a regular expression. One that takes too many steps fits nothing.
    bool isPattern = false;
    std::optional<numira::Decimal> least; ///< the least amount, without its sign
    std::optional<numira::Decimal> most;  ///< the highest amount, without its sign
    /// Only in statements of this account.
    std::optional<accounting::AccountNumber> of;
    accounting::AccountNumber target; ///< the other account; that of an item stands for it

    friend bool operator==(const ImportRule &, const ImportRule &) = default;
};

/// Throws an EntryError for a rule without text, a pattern that is none, and amounts that no
/// entry can have.
KIV_WORKBENCH_EXPORT void requireSound(const ImportRule &rule);

/// A rule as it is typed.
struct TypedRule {
    QString text;                                  ///< see ImportRule
    bool isPattern = false;                        ///< see ImportRule
    std::optional<Amount> least = {};              ///< the least amount
    std::optional<Amount> most = {};               ///< the highest amount
    std::optional<accounting::AccountNumber> of{}; ///< see ImportRule
    accounting::AccountNumber target;              ///< see ImportRule
};

/// The rule; its amounts are in the currency of the account that it is limited to, else in that
/// of its target. Throws an EntryError as requireSound() does, and for too many decimals.
[[nodiscard]] KIV_WORKBENCH_EXPORT ImportRule ruleOf(const TypedRule &typed,
                                                     const AccountIndex &accounts);

/// Payee and text of an entry, as rules see them.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString ruleText(const interchange::StatementEntry &entry);

/// Finds the rules that fit, each prepared once. Case and accents are ignored.
class KIV_WORKBENCH_EXPORT RuleBook {
public:
    /// Rules in their order; one with a broken pattern fits nothing.
    explicit RuleBook(std::vector<ImportRule> rules);

    /// The place of the first rule that fits an entry of this account's statement.
    [[nodiscard]] std::optional<std::size_t> first(const interchange::StatementEntry &entry,
                                                   accounting::AccountNumber account) const;
    /// The rules in their order.
    [[nodiscard]] const std::vector<ImportRule> &rules() const noexcept { return m_rules; }

private:
    std::vector<ImportRule> m_rules;
    std::vector<QString> m_parts;               ///< folded; of patterns empty
    std::vector<QRegularExpression> m_patterns; ///< of the others empty
};

/// What a trial of the rules tells: that the one at this place fits, or none.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString trialText(const RuleBook &rules,
                                                     std::optional<std::size_t> place,
                                                     const AccountIndex &accounts);

} // namespace kiv::workbench
