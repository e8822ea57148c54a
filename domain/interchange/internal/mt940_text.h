// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

namespace kiv::interchange::internal {

/// Who the other side of an entry is, and what the entry was for.
struct Mt940Text {
    QString payee = {};
    QString text = {};
};

/// Reads the lines of a field :86:. Banks write them as numbered parts ("166?00…?20…?32Name",
/// also with < > ^ or ~), as parts named between slashes ("/NAME/…/REMI/…"), or as plain text.
/// Within the parts, the purpose of a SEPA payment has keys such as SVWZ+.
[[nodiscard]] Mt940Text readMt940Text(const QStringList &lines);

/// Reads the lines of a field :NS:, each with its number: 01 to 14 for the purpose, 15 and 16
/// for the name.
[[nodiscard]] Mt940Text readMt940Notes(const QStringList &lines);

} // namespace kiv::interchange::internal
