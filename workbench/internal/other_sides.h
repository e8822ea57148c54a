// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_rows.h"

#include <unordered_map>

namespace kiv::workbench::internal {

/// Chooses the other side of entries that are new: by rules, by what former entries of the
/// payee had, by the category of the file, or by the account for all others.
class OtherSides {
public:
    /// Both must outlive it.
    OtherSides(const StatementBooks &books, const ImportChoices &choices);

    struct Choice {
        OtherSideBy by = OtherSideBy::Nobody;
        std::optional<accounting::AccountNumber> account = {};
        QString reason = {};
        bool isDoubtful = false;
        QStringList opens = {}; ///< see ImportRow
    };
    /// Throws a Refusal if a profile's rule fits whose account does not exist.
    [[nodiscard]] Choice choose(const interchange::StatementEntry &entry);

    /// Whether the file says that the entry moves money from the account to itself, as other
    /// programs write its first balance.
    [[nodiscard]] bool isOwn(const interchange::StatementEntry &entry) const;

    /// Accounts that can be posted: open, and not the statement's own.
    [[nodiscard]] const std::set<accounting::AccountNumber> &possible() const noexcept
    {
        return m_possible;
    }
    [[nodiscard]] const AccountIndex &index() const noexcept { return m_index; }

private:
    struct Former {
        accounting::AccountNumber account;
        int count = 0;
        std::size_t newest = 0; ///< by place in the books
    };
    /// Of one payee, for money that went out and that came in.
    struct Payee {
        std::vector<Former> out;
        std::vector<Former> in;
    };

    [[nodiscard]] std::optional<Choice> byRule(const interchange::StatementEntry &entry);
    [[nodiscard]] std::optional<Choice> byFormer(const interchange::StatementEntry &entry);
    [[nodiscard]] std::optional<Choice> byCategory(const interchange::StatementEntry &entry) const;
    /// All that the account is called, folded.
    [[nodiscard]] std::set<QString> namesOf(accounting::AccountNumber number) const;
    void learnFromBooks();
    void count(const QString &key, accounting::AccountNumber account, bool isOut,
               std::size_t place);
    [[nodiscard]] std::optional<Choice> usual(const Payee &payee, bool isOut) const;

    const StatementBooks &m_books;
    const ImportChoices &m_choices;
    AccountIndex m_index;
    RuleBook m_rules;
    std::vector<QString> m_profileTexts;                  ///< of the profile's rules, folded
    std::map<QString, accounting::AccountNumber> m_found; ///< of those rules that were needed
    std::set<accounting::AccountNumber> m_possible;
    std::map<QString, std::vector<accounting::AccountNumber>> m_byPath; ///< folded
    std::unordered_map<QString, accounting::AccountNumber> m_said;      ///< by payeeKey()
    std::unordered_map<QString, Payee> m_payees;                        ///< by payeeKey()
    bool m_hasLearned = false;
};

} // namespace kiv::workbench::internal
