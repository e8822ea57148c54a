// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_match.h"

#include <unordered_map>

namespace kiv::workbench::internal {

/// A posting to the account of a statement, as one line of it.
struct LedgerLine {
    const accounting::Transaction *transaction = nullptr;
    QDate day;
    numira::Decimal amount; ///< positive when money came in
    accounting::TransactionStatuses own = accounting::TransactionStatuses::None;
    accounting::TransactionStatuses other = accounting::TransactionStatuses::None;
    /// The identifier with which a statement of this account told it; empty if none did.
    QString toldAs = {};
    bool isFree = true; ///< for an entry to be matched with

    [[nodiscard]] accounting::TransactionNumber number() const { return *transaction->number(); }
};

/// Lines of one day with the same text, which were entered as parts of one payment.
struct LineGroup {
    std::vector<std::size_t> lines;
    QDate day;
    numira::Decimal sum;
};

/// The postings to the account of a statement, found by identifier, by amount and day, and
/// by the sum of a split. The books must outlive it.
class LedgerLines {
public:
    explicit LedgerLines(const StatementBooks &books);

    [[nodiscard]] const LedgerLine &at(std::size_t place) const { return m_lines.at(place); }
    [[nodiscard]] std::size_t size() const noexcept { return m_lines.size(); }
    void take(std::size_t place) { m_lines.at(place).isFree = false; }
    void giveBack(std::size_t place);

    /// The places of lines with this identifier.
    [[nodiscard]] std::vector<std::size_t> toldAs(const QString &bankId) const;
    /// The places of lines of this amount on this day that no statement of the account told, in
    /// their order.
    [[nodiscard]] const std::vector<std::size_t> &untold(QDate day,
                                                         const numira::Decimal &amount) const;
    /// The first free ones of these, and of those that a statement told. There are not more than
    /// a person could tell apart.
    [[nodiscard]] std::vector<std::size_t> freeUntold(QDate day, const numira::Decimal &amount);
    [[nodiscard]] std::vector<std::size_t> freeTold(QDate day, const numira::Decimal &amount);
    /// Whether any line or split is of this amount.
    [[nodiscard]] bool hasAmount(const numira::Decimal &amount) const
    {
        return m_amounts.contains(amount);
    }
    /// The split of this sum on this day whose lines are all free and not told yet.
    [[nodiscard]] const LineGroup *split(QDate day, const numira::Decimal &sum);
    /// The words of the line's text and of its other account, see tellingWords().
    [[nodiscard]] const QStringList &words(std::size_t place);

    /// Whether a description can be changed: no side is reconciled, and both accounts are open.
    [[nodiscard]] bool canBeNamed(const LedgerLine &line) const;
    /// Whether the other side is an account whose statement told the line, but not this one's.
    [[nodiscard]] bool isToldByOther(const LedgerLine &line) const;

private:
    /// Places on one day and of one amount. What stands before `first` is taken.
    struct Bucket {
        std::vector<std::size_t> places = {};
        std::size_t first = 0;
    };
    using Buckets = std::map<std::pair<qint64, numira::Decimal>, Bucket>;

    void addGroups();
    [[nodiscard]] bool isOpen(const LineGroup &group) const;
    [[nodiscard]] std::vector<std::size_t> freeIn(Buckets &buckets, QDate day,
                                                  const numira::Decimal &amount) const;

    std::set<accounting::AccountNumber> m_closed;
    accounting::AccountNumber m_account;
    const StatementBooks &m_books;
    std::vector<LedgerLine> m_lines;
    std::unordered_multimap<QString, std::size_t> m_byId;
    Buckets m_untold;
    Buckets m_told;
    std::set<numira::Decimal> m_amounts;
    std::vector<LineGroup> m_groups;
    Buckets m_groupsByDay; ///< places of groups
    std::unordered_map<std::size_t, QStringList> m_words;
};

/// The words of a text that can show that two texts mean the same: without case and accents,
/// of three letters at least.
[[nodiscard]] QStringList tellingWords(const QString &text);

} // namespace kiv::workbench::internal
