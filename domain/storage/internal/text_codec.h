// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace kiv::storage::internal {

/// The text in UTF-8, with a lone surrogate as the three bytes that its number
/// would have as a character. So every text, whatever is in it, is read back
/// as it was; QString's own conversion replaces such characters.
[[nodiscard]] QByteArray toStoredText(QStringView text);

/// The text with this stored form; nothing for bytes that are no stored form.
/// QString's own conversion drops a leading byte-order mark and repairs malformed
/// bytes.
[[nodiscard]] std::optional<QString> fromStoredText(QByteArrayView bytes);
/// Appends the text; false for bytes that no text is stored as, when anything may be
/// appended.
[[nodiscard]] bool appendStoredText(QString &text, QByteArrayView bytes);

} // namespace kiv::storage::internal
