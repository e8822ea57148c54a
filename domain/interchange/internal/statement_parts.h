// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/description_count.h"
#include "interchange/statement.h"

namespace kiv::interchange::internal {

/// A balance that a bank tells, and its day.
struct ToldBalance {
    Place place;
    numira::Money amount;
    QDate day = {}; ///< invalid where the bank tells none

    friend bool operator==(const ToldBalance &, const ToldBalance &) = default;
};

/// What a file tells of an account in one place: the statement of a day, or a page of it.
struct StatementPart {
    QString account;
    numira::Currency currency;
    std::vector<StatementEntry> entries = {};
    qsizetype pending = 0;
    QStringList notices = {};
    std::optional<ToldBalance> opening = std::nullopt;
    std::optional<ToldBalance> closing = std::nullopt;
    std::optional<Place> goesOn = std::nullopt; ///< where it says that another page follows
};

/// Counts the entries of a file and the length of their texts.
class EntryCount {
public:
    /// Throws ImportError when a text is too long, and when there are more entries or longer
    /// texts than a budget holds.
    void add(const StatementEntry &entry);
    /// Throws ImportError for more parts than entries may be: empty ones need memory, too.
    void addPart(const Place &place);

private:
    qsizetype m_entries = 0;
    qsizetype m_parts = 0;
    DescriptionCount m_descriptions;
};

/// One statement for each account and currency, in the order of their first parts. Notices
/// tell where a balance is not the one before plus the entries since. Throws ImportError for
/// amounts too large to be added.
[[nodiscard]] std::vector<Statement> joinedStatements(std::vector<StatementPart> parts);

/// The money that an account in another currency cannot take is refused.
void requireCurrency(const numira::Currency &found, const numira::Currency &wanted,
                     const Place &place);

/// Whether a bank's reference can tell an entry from all others: it has some digits, unlike
/// words such as "RENT".
[[nodiscard]] bool identifies(const QString &reference);

} // namespace kiv::interchange::internal
