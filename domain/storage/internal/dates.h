// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDate>

namespace kiv::storage::internal {

/// The valid date as ISO 8601 writes it, "2026-03-31". Years outside 0 to 9999,
/// for which Qt gives no text, are written likewise, with a sign or as many
/// digits as they need.
[[nodiscard]] QByteArray toStoredDate(QDate date);

/// The date that toStoredDate wrote so; an invalid one for anything else.
[[nodiscard]] QDate fromStoredDate(QByteArrayView text);

} // namespace kiv::storage::internal
