// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

namespace kiv::storage {

/// What a version of a budget file tells about itself, readable without its tables.
struct KIV_STORAGE_EXPORT VersionMark {
    /// 16 hexadecimal digits that no other version has; empty for none.
    QString id;
    /// The order of the versions of a file: each save gives the next number. 0 before
    /// it is saved, and for a file of the first edition, which has no mark.
    qint64 number = 0;
    /// The ids of the versions from which it came, the nearest first.
    QStringList ancestors;
    /// The line that names the change, such as "Paid Rent"; empty when nobody named it.
    QString change;
    /// In UTC, to the millisecond.
    QDateTime savedAt;
    /// How many transactions it has.
    qint64 transactions = 0;

    /// The highest number.
    static constexpr qint64 numberMax = 999'999'999'999'999;
    /// So many ancestors are kept, the nearest.
    static constexpr qsizetype ancestorsMax = 64;
    /// The longest line that names a change, in characters; a longer one is cut.
    static constexpr qsizetype changeMax = 200;

    /// The mark of a version that follows this one, with an id of its own; it has no
    /// number, change, time and transactions yet.
    [[nodiscard]] VersionMark next() const;
    /// Sets the line; its line breaks become blanks.
    void nameChange(const QString &line);
    /// Sets a line for several changes: that of the first and how many others there are.
    void nameChanges(const QString &first, int others);

    friend bool operator==(const VersionMark &, const VersionMark &) = default;
};

} // namespace kiv::storage
