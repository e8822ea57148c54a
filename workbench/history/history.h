// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/deed.h"
#include "workbench/history/shared_version.h"

#include "storage/kept_versions.h"

#include <deque>
#include <optional>
#include <span>

namespace kiv::workbench {

/// The steps of a session in their order, and which of them is the budget in memory. Each
/// came from the one before it; former versions of the file may stand before and behind
/// those of the session.
class KIV_WORKBENCH_EXPORT History {
public:
    /// A version of the budget.
    struct Entry {
        Deed deed;                            ///< that led to it; none for the first
        storage::VersionMark mark;            ///< has a number once it was in the file
        std::optional<SharedVersion> content; ///< nothing: it is in the file at `path`
        QString path = {};                    ///< of a former version
        std::size_t serial = 0;               ///< its place among all of the session

        /// The first of the changes that are one version in the file with it, and how many
        /// others there are.
        QString first = {};
        int others = 0;            ///< see first
        bool wasHandedOver = true; ///< to be written; else it is only in memory

        /// How the user calls it: by its number, or "step-7".
        [[nodiscard]] QString name() const;
        /// What led to it: the deed, or the line of the version.
        [[nodiscard]] Deed leadingDeed() const;
        /// Whether the user means it: its name, or the one before it had a number.
        [[nodiscard]] bool isCalled(const QString &word) const;
        /// As one that is kept in a file.
        [[nodiscard]] storage::KeptVersion kept() const;
    };

    /// So many steps are kept, the newest.
    static constexpr std::size_t stepsMax = 1'000;

    /// Forgets all, and begins with this version as the present one.
    void begin(storage::Version version);
    /// Forgets all, and begins with this one.
    void begin(Entry entry);
    /// Whether no session has begun.
    [[nodiscard]] bool isEmpty() const noexcept { return m_entries.empty(); }
    /// How many steps are kept.
    [[nodiscard]] std::size_t size() const noexcept { return m_entries.size(); }
    /// Which one is present.
    [[nodiscard]] std::size_t place() const noexcept { return m_place; }
    /// The step that is the budget in memory.
    [[nodiscard]] const Entry &present() const { return m_entries.at(m_place); }
    /// The step at this place, counted from 0. Throws std::out_of_range.
    [[nodiscard]] const Entry &at(std::size_t place) const { return m_entries.at(place); }

    /// Adds the budget as a step from the present one and makes it present; those behind
    /// are forgotten. If the present one was not handed over to be written, both are one
    /// version in the file. Nothing that is kept beside the budget follows from a budget
    /// that is not `isFollowing`. `notes` take the place of those before, if they are given.
    const Entry &add(const storage::BudgetStorage::Data &data, const Deed &deed, bool isFollowing,
                     const std::optional<storage::Notes> &notes = std::nullopt);
    /// Makes this one present.
    void goTo(std::size_t place) { m_place = place; }
    /// The present one has other content, after it was repaired.
    void replacePresent(const storage::BudgetStorage::Data &data);
    /// The present one was handed over to be written.
    void handOver() { m_entries.at(m_place).wasHandedOver = true; }
    /// The version is in the file under its number.
    void setWritten(const storage::VersionMark &mark);
    /// The content of the one at this place was read.
    void setContent(std::size_t place, storage::Version version);
    /// Versions of the file that come before the first one, the newest first.
    void prepend(std::span<const storage::KeptVersion> versions);
    /// Versions of the file that come behind the last one, the oldest first.
    void append(std::span<const storage::KeptVersion> versions);

private:
    [[nodiscard]] static Entry entryOf(const storage::KeptVersion &version);
    [[nodiscard]] SharedVersion following(const Entry &before,
                                          const storage::BudgetStorage::Data &data,
                                          bool isFollowing,
                                          const std::optional<storage::Notes> &notes) const;

    std::deque<Entry> m_entries;
    std::size_t m_place = 0;
    std::size_t m_serial = 0;
};

} // namespace kiv::workbench
