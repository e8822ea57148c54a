// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_match.h"
#include "workbench/statements/import_memory.h"

#include <variant>

namespace kiv::workbench {

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

/// What the preview knows beside the statement and the books.
struct ImportChoices {
    ImportMemory memory;                                     ///< rules, and what was learned
    std::vector<interchange::AccountRule> rules = {};        ///< of a profile, after those
    std::optional<accounting::AccountNumber> otherwise = {}; ///< for entries nothing chose
    bool postsKnown = false; ///< whether everything is posted, also what is there
};

} // namespace kiv::workbench
