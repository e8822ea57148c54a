// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

/// The sentences that tell the user how a table was read.
namespace kiv::interchange::notices {

[[nodiscard]] QString otherEncoding(const QString &named, const QString &found);
[[nodiscard]] QString orderOfDays(const QString &format);
[[nodiscard]] QString headingsAgain(qsizetype line);
[[nodiscard]] QString belowSkipped(qsizetype line);
/// Entries with another sign are not marked.
[[nodiscard]] QString markedIn();
/// No amount has a sign.
[[nodiscard]] QString allCameIn();
/// `states` are some words for it.
[[nodiscard]] QString undone(qsizetype count, const QStringList &states);
[[nodiscard]] QString feesSubtracted(const QString &column);
[[nodiscard]] QString feesIncluded(const QString &column);
[[nodiscard]] QString balancesUnchecked(const QString &column);

} // namespace kiv::interchange::notices
