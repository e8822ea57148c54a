// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "interchange/statement_reader.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace kiv::workbench {

/// The form of a file that is imported.
enum class ImportFormat {
    Journal, ///< plain-text accounting
    Csv,     ///< a bank's table
    Ofx,     ///< a bank's statement, also as QFX
    Qif,     ///< a bank's statement
    Mt940,   ///< a bank's statement, by the rules of SWIFT
    Camt,    ///< a bank's statement, in the XML of ISO 20022
};

/// "journal", "csv", "ofx", "qif", "mt940" or "camt".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString importFormatWord(ImportFormat format);

/// Reads such a word. Throws an EntryError for another one.
[[nodiscard]] KIV_WORKBENCH_EXPORT ImportFormat importFormatOf(const QString &word);

/// The form of a bank's file; nothing for a journal.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<interchange::StatementFormat>
statementFormat(ImportFormat format);

/// The format that the file's extension shows, or else its first bytes. Nothing when
/// neither does.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<ImportFormat>
guessImportFormat(const QString &file, const QByteArray &bytes);

} // namespace kiv::workbench
