// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/internal/ledger_lines.h"

namespace kiv::workbench::internal {

/// Finds what stands for the entries of a statement in the books. Each line of the books
/// stands for one entry at most.
class StatementMatcher {
public:
    /// Both must outlive it. The entries have identifiers, see giveIdentifiers().
    StatementMatcher(const StatementBooks &books,
                     const std::vector<interchange::StatementEntry> &entries);

    /// The matches, in the order of the entries.
    [[nodiscard]] std::vector<std::optional<ImportMatch>> match();
    /// What the entry could be matched with by hand, the nearest first: free lines of its
    /// amount, and those that are taken for it.
    [[nodiscard]] std::vector<ImportMatch> candidates(std::size_t entry);

    /// A free line that has the bank's identifier of the entry, but not its amount: somebody
    /// may have changed it.
    [[nodiscard]] std::optional<accounting::TransactionNumber> changedLine(std::size_t entry) const;

    [[nodiscard]] LedgerLines &lines() noexcept { return m_lines; }
    [[nodiscard]] const LedgerLines &lines() const noexcept { return m_lines; }
    /// The places of the lines of a match.
    [[nodiscard]] std::vector<std::size_t> placesOf(const ImportMatch &match) const;

private:
    using Places = std::vector<std::size_t>;

    /// The free lines with the entry's identifier that are not too far away.
    [[nodiscard]] Places toldAs(const interchange::StatementEntry &entry) const;
    void matchIdentifiers();
    void matchContent();
    void matchTold();
    /// Lines and splits at growing distances; only those that share a word with the entry, or
    /// all.
    void matchNear(bool sharesWord);
    /// Gives an entry that is left the line of another one that can have another line.
    void matchRest();
    [[nodiscard]] bool augment(std::size_t entry, std::set<std::size_t> &seen);
    void tellSeveral();

    [[nodiscard]] bool fits(std::size_t entry, std::size_t place) const;
    [[nodiscard]] bool sharesWord(std::size_t entry, std::size_t place);
    [[nodiscard]] std::vector<std::size_t> near(std::size_t entry) const;
    /// The entries without a match whose amount the books have, or the sum of a split.
    [[nodiscard]] std::vector<std::size_t> unmatched() const;
    void settle(std::size_t entry, Places places, MatchGrounds grounds);

    const std::vector<interchange::StatementEntry> &m_entries;
    LedgerLines m_lines;
    std::vector<std::optional<ImportMatch>> m_matches;
    std::vector<Places> m_places;                    ///< of the lines of each match
    std::vector<std::optional<QStringList>> m_words; ///< telling ones of each entry, once asked for
    std::map<accounting::TransactionNumber, std::size_t> m_byNumber;
    std::unordered_map<std::size_t, std::size_t> m_takenBy; ///< entries, by place of a line
};

} // namespace kiv::workbench::internal
