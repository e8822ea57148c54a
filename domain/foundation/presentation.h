// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

/// presentationText(x) gives the text by which a person knows a value; each
/// library adds the overloads for its own types next to them, where
/// argument-dependent look-up finds them. These are for types of other
/// libraries.
namespace kiv::foundation {

/// The date as localText writes it; "no date" in the user's language when it is
/// invalid.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString presentationText(QDate date);
/// See numira::toLocalText.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString presentationText(const numira::Money &money);
/// The alphabetic code.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString presentationText(const numira::Currency &currency);

/// Plain decimal text, as numira::toText.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString toQString(const numira::Money &money);
/// The alphabetic code.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString toQString(const numira::Currency &currency);

} // namespace kiv::foundation
