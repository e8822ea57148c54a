// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace kiv::interchange::internal {

/// In lower case and without the marks that banks often leave out: "wahrung" of "Währung".
/// Letters whose mark is a part of them lose it, too: "losen" of "løsen".
[[nodiscard]] QString plainText(QStringView text);

/// The month, from 1, of a name in a language that banks' tables often have, such as
/// "January", "Okt" or "févr"; -1 for another text, and for fewer than three letters.
[[nodiscard]] int monthNamed(QStringView name);

} // namespace kiv::interchange::internal
