// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <optional>

namespace kiv::workbench {

/// What the description of a transaction says: "Market | weekly shopping [id 2026-0815]" has a
/// payee, a reason and a bank's identifier. Each may be missing; a text without a bar is a
/// reason. A transfer that two statements told has two identifiers.
struct KIV_WORKBENCH_EXPORT Description {
    QString payee;       ///< who got the money, or gave it; has no bar
    QString reason;      ///< what it was for
    QStringList bankIds; ///< identifiers of banks, which nobody is shown

    /// Takes a description apart. No text is refused.
    [[nodiscard]] static Description of(const QString &text);
    /// The same for a transaction's description.
    [[nodiscard]] static Description of(const std::optional<QString> &text);
    /// The part of a description in front of the identifiers.
    [[nodiscard]] static QStringView withoutIds(QStringView text);
    /// The whole description; nothing if all parts are empty. Bars in the payee become
    /// slashes, brackets at the end that would be read as an identifier become round, and blanks at
    /// the ends are lost.
    [[nodiscard]] std::optional<QString> text() const;
    /// Payee and reason for people, with a bar between them.
    [[nodiscard]] QString shown() const;

    friend bool operator==(const Description &, const Description &) = default;
};

} // namespace kiv::workbench
