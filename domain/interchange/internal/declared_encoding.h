// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace kiv::interchange::internal {

/// The encoding that a file's first bytes name: in an XML declaration, or as OFX 1 has it,
/// "CHARSET:1252" and "ENCODING:UTF-8". UTF-8 where they name none.
///
/// Headers are often wrong copies. A file that is valid UTF-8 is not read with one byte a
/// letter.
[[nodiscard]] QString declaredEncoding(const QByteArray &bytes, qsizetype headerEnd);

} // namespace kiv::interchange::internal
