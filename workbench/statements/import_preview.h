// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_rows.h"

#include <memory>

namespace kiv::workbench {

namespace internal {
class PreviewParts;
}

/// What the import of a statement would do, to be looked at and corrected before it does just
/// that. It compares with the budget as it was when it was made.
class KIV_WORKBENCH_EXPORT ImportPreview {
public:
    /// What it knows beside the statement and the books.
    using Choices = ImportChoices;

    /// Throws ImportError for an entry in another currency than the account's, and a Refusal
    /// for a profile's rule that fits and whose account does not exist.
    ImportPreview(interchange::Statement statement, StatementBooks books, Choices choices);
    ~ImportPreview();
    ImportPreview(ImportPreview &&) noexcept;
    ImportPreview &operator=(ImportPreview &&) noexcept;

    /// The rows, in the order of the file.
    [[nodiscard]] const std::vector<ImportRow> &rows() const noexcept;
    /// The account of the statement.
    [[nodiscard]] const accounting::AccountCode &account() const noexcept;
    /// How many rows there are of each kind.
    [[nodiscard]] ImportCounts counts() const;
    /// Sentences about the whole: of the file, and what is left out.
    [[nodiscard]] const QStringList &notices() const noexcept;
    /// What the row could be instead, the nearest first: what is there, and items that are
    /// due. The present meaning is not among them.
    [[nodiscard]] std::vector<ImportMeaning> alternatives(std::size_t row) const;
    /// A sentence about such a meaning, as it would be the row's reason.
    [[nodiscard]] QString reasonOf(std::size_t row, const ImportMeaning &meaning) const;
    /// The accounts that can be the other side: open, and not the statement's own.
    [[nodiscard]] std::vector<accounting::AccountNumber> possibleOthers() const;

    // ---- by hand. Each throws std::out_of_range for a row that is none. ----------------

    /// The row is that from now on. A row that had the same meaning becomes new.
    void mean(std::size_t row, const ImportMeaning &meaning);
    /// The row is new: nothing there is the same.
    void part(std::size_t row);
    /// The row is new, against this account.
    void setOther(std::size_t row, accounting::AccountNumber account);
    /// Whether the row is taken.
    void setTicked(std::size_t row, bool isTicked);
    /// Whether entries of the row's payee go to the row's account from now on. The preview
    /// takes it over for the other rows of the payee that nobody chose by hand.
    void setRemembered(std::size_t row, bool isRemembered);

    // ---- what is done -------------------------------------------------------------------

    /// What the import did.
    struct Done {
        ImportCounts counts;                                   ///< as they were
        std::vector<accounting::Account> opened;               ///< each after its parent
        std::vector<accounting::TransactionNumber> posted;     ///< new ones, in their order
        std::vector<accounting::TransactionNumber> recognised; ///< marked as seen at the bank
        /// Whether the budget is another than before.
        [[nodiscard]] bool hasChanges() const
        {
            return !opened.empty() || !posted.empty() || !recognised.empty();
        }
    };
    /// Does what the rows say. Throws a Refusal if a ticked row has no other side, and an
    /// ImportError with the place of an entry that the Navigator refuses; what came before it
    /// stays then, so revert the document.
    Done post(Requests &requests) const;
    /// What is remembered after it: what the user agreed to, and the bank's number of the
    /// account.
    [[nodiscard]] ImportMemory memory() const;

private:
    std::unique_ptr<internal::PreviewParts> m_parts;
};

} // namespace kiv::workbench
