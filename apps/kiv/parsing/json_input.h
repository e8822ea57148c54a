// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include <QtCore/QJsonObject>

/// JSON that a person or a program hands in. What is wrong with it is a
/// UsageError that names the document and the place.
namespace kiv::app {

/// The bytes of a file, or of standard input for "-". Throws a Refusal when it
/// cannot be read or has more than 64 MiB.
[[nodiscard]] QByteArray readInput(const QString &path);

/// The document in a file or on standard input.
[[nodiscard]] QJsonDocument readJson(const QString &path);

/// The transactions of an array in the shape in which they are exported. The
/// accounts may also be named, and the amount may be written as "12.50 USD";
/// description and statuses may be missing.
[[nodiscard]] std::vector<accounting::Transaction>
readTransactions(const QString &path, const workbench::AccountIndex &index);

/// "12.50 USD", or {"amount": "12.50", "currency": "USD"}.
[[nodiscard]] numira::Money readMoney(const QJsonValue &value, const numira::Currency &otherwise);

} // namespace kiv::app
