// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_match.h"
#include "workbench/statements/import_memory.h"

#include "interchange/draft.h"

#include <memory>
#include <variant>

namespace kiv::workbench {

namespace internal {
class PreviewParts;
}

/// An item that is due, to be paid with an entry.
struct ImportPayment {
    budgeting::BudgetItemDueIdentifier id; ///< the item, with the day on which it is due
    numira::Money expected;                ///< the amount that is due

    friend bool operator==(const ImportPayment &, const ImportPayment &) = default;
};

/// What an entry can be: something that is there, or an item that is due.
using ImportMeaning = std::variant<ImportMatch, ImportPayment>;

/// What chose the other side of an entry.
enum class OtherSideBy : std::uint8_t {
    Nobody = 1, ///< it is still to be chosen
    Rule,       ///< a rule of the budget or of a profile
    Learned,    ///< former entries of the payee, or what the user said of it
    Category,   ///< the category that the file gives
    Opened,     ///< the same, where it is still to be opened
    Given,      ///< the account for all others
    User,       ///< by hand
};

/// One row of a preview: an entry, and what becomes of it.
struct ImportRow {
    /// What becomes of an entry.
    enum class State : std::uint8_t {
        New = 1, ///< it is posted against `other`
        Payment, ///< an item that is due is paid with it
        Matched, ///< it is there already, and is marked as seen at the bank
        Known,   ///< it is there already, and nothing changes
        LeftOut, ///< nothing: it moves no money, or the user left it out
    };

    interchange::StatementEntry entry;                   ///< as the bank wrote it
    State state = State::New;                            ///< what becomes of it
    QString reason;                                      ///< a sentence that says why
    bool isDoubtful = false;                             ///< whether somebody should look at it
    std::optional<ImportMeaning> meaning = {};           ///< of a match or payment
    OtherSideBy otherBy = OtherSideBy::Nobody;           ///< what chose the other side
    std::optional<accounting::AccountNumber> other = {}; ///< the other side of a new one
    QString otherReason = {};                            ///< why it is that one
    QStringList opens = {};    ///< the path of the account that is opened for it, without its root
    bool isTicked = true;      ///< whether it is taken
    bool isRemembered = false; ///< whether the payee's entries go there from now on
};

/// How many rows there are of a kind.
struct ImportCounts {
    qsizetype added = 0;    ///< new ones, with and without an item
    qsizetype matched = 0;  ///< there already, and marked now
    qsizetype known = 0;    ///< there already
    qsizetype leftOut = 0;  ///< not taken
    qsizetype doubtful = 0; ///< of all these, to be looked at
    qsizetype open = 0;     ///< of the new ones, without another side
};

/// What the import of a statement would do, to be looked at and corrected before it does just
/// that. It compares with the budget as it was when it was made.
class KIV_WORKBENCH_EXPORT ImportPreview {
public:
    /// What the preview knows beside the statement and the books.
    struct Choices {
        ImportMemory memory;                                     ///< rules, and what was learned
        std::vector<interchange::AccountRule> rules = {};        ///< of a profile, after those
        std::optional<accounting::AccountNumber> otherwise = {}; ///< for entries nothing chose
        bool postsKnown = false; ///< whether everything is posted, also what is there
    };

    /// Throws ImportError for an entry in another currency than the account's, and a Refusal
    /// for a profile's rule whose account does not exist.
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
