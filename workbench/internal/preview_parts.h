// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/internal/other_sides.h"
#include "workbench/internal/payments.h"
#include "workbench/internal/statement_matcher.h"

namespace kiv::workbench::internal {

/// What a preview consists of. Its parts refer to each other, so it does not move.
class PreviewParts {
public:
    PreviewParts(interchange::Statement statement, StatementBooks books, ImportChoices choices);
    PreviewParts(const PreviewParts &) = delete;
    PreviewParts &operator=(const PreviewParts &) = delete;

    void mean(std::size_t row, const ImportMeaning &meaning);
    void part(std::size_t row);
    void remember(std::size_t row);
    /// Chooses the other side of a new row anew.
    void chooseOther(std::size_t row);
    void setOther(ImportRow &row, const OtherSides::Choice &choice) const;
    [[nodiscard]] QString reasonOf(const ImportRow &row, const ImportMeaning &meaning) const;
    /// Whether the match needs a mark or an identifier.
    [[nodiscard]] bool changes(const ImportRow &row, const ImportMatch &match) const;
    /// The description of a matched line with the entry's identifier; nothing if it stays.
    [[nodiscard]] std::optional<QString> named(const ImportRow &row, const LedgerLine &line) const;
    /// Matched transactions that no statement of the account told, and whose descriptions
    /// cannot take an identifier, with those of their entries.
    [[nodiscard]] std::map<accounting::TransactionNumber, QString> unnamed() const;
    /// Whether the row was told before in the same file.
    [[nodiscard]] bool isOfFile(std::size_t row) const { return m_isFixed.at(row); }

    interchange::Statement m_statement; ///< its entries are those of the rows
    StatementBooks m_books;
    ImportChoices m_choices;
    std::vector<ImportRow> m_rows;
    StatementMatcher m_matcher;
    OtherSides m_others;
    PaymentFinder m_payments;
    QStringList m_notices;

private:
    void leaveOut();
    void findMatches();
    void findPayments();
    void doubtChanged(std::size_t at);
    void doubtOld();

    std::vector<bool> m_isFixed; ///< rows that nobody can change
};

} // namespace kiv::workbench::internal
