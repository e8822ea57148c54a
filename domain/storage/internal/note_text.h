// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>

namespace kiv::storage::internal {

/// The value as compact JSON, in UTF-8.
[[nodiscard]] QByteArray noteText(const QJsonValue &value);

/// The value that the JSON text stands for. Throws ContentFault for a malformed text, and
/// for one that is nested too deep.
[[nodiscard]] QJsonValue noteFromText(QByteArrayView text);

} // namespace kiv::storage::internal
