// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include <QtCore/QJsonObject>

/// Reads JSON input. Errors name the document and the place.
namespace kiv::app {

/// Reads a file, or standard input for "-". Throws a Refusal if it cannot be read or is
/// larger than 64 MiB.
[[nodiscard]] QByteArray readInput(const QString &path);

/// Reads a JSON document from a file, or from standard input for "-".
[[nodiscard]] QJsonDocument readJson(const QString &path);

/// Reads an array of transactions in the form of the export. Accounts can also be names,
/// and an amount can be "12.50 USD". Description and statuses can be missing.
[[nodiscard]] std::vector<accounting::Transaction>
readTransactions(const QString &path, const workbench::AccountIndex &index);

/// "12.50 USD", or {"amount": "12.50", "currency": "USD"}.
[[nodiscard]] numira::Money readMoney(const QJsonValue &value, const numira::Currency &otherwise);

} // namespace kiv::app
