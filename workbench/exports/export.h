// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/json/json_text.h"
#include "workbench/requests/requests.h"

/// The ledger for other programs.
namespace kiv::workbench {

/// How it is written, see docs/import-export.md.
enum class ExportFormat : std::uint8_t {
    Journal = 1, ///< for ledger and hledger
    Csv = 2,     ///< a table of the transactions
    Json = 3     ///< accounts, banks, items and transactions
};
/// "journal", "csv" or "json", which also ends the names of files.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString wordOf(ExportFormat format);

/// One of these words.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, ExportFormat &value);

/// What the JSON form holds besides the transactions, and these as its member
/// "transactions". Keys can be added under the same version, but their meanings do not
/// change.
struct ExportedBudget {
    QJsonObject rest;  ///< format, version, accounts, banks and items
    Rows transactions; ///< in the order of their numbers
};
/// The JSON form.
[[nodiscard]] KIV_WORKBENCH_EXPORT ExportedBudget exportedBudget(Requests &requests);

/// Writes it to the sink.
KIV_WORKBENCH_EXPORT void writeExport(Requests &requests, ExportFormat format, const Sink &sink);
/// Writes it into a file, over one that is there. Throws a Refusal with the reason if not all
/// of it can be written; a former file is as before then.
KIV_WORKBENCH_EXPORT void exportTo(Requests &requests, ExportFormat format, const QString &file);

/// Writes these bytes into a file; throws and keeps a former one likewise.
KIV_WORKBENCH_EXPORT void writeFile(const QString &file, const QByteArray &bytes);

} // namespace kiv::workbench
