// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/statement.h"

namespace kiv::interchange {

/// The forms in which banks give statements.
enum class StatementFormat : std::uint8_t {
    Csv = 1, ///< a table
    Ofx,     ///< also as QFX
    Qif,
    Mt940, ///< of SWIFT, also as STA
    Camt,  ///< of ISO 20022, in XML
};

/// What a file leaves open. What is not given is found in the file.
struct StatementOptions {
    /// How a bank writes its tables. Of it, the encoding, the form of days and the decimal
    /// mark count for the other forms, too.
    CsvProfile profile = {};
    numira::Currency currency = {}; ///< of the account, where the file does not tell it
};

/// The form of a statement that the file's first bytes show, or else its extension; nothing
/// when neither does.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<StatementFormat>
guessStatementFormat(const QString &file, const QByteArray &bytes);

/// Reads all statements of a file, one for each account. Throws ImportError with the line of
/// what it cannot read.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Statement>
readStatements(StatementFormat format, const QByteArray &bytes, const QString &file,
               const StatementOptions &options);

/// The statement of the account with this number; without a number that of the only one.
/// Throws ImportError, which names the accounts, when there is none or it must be chosen.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Statement chosenStatement(std::vector<Statement> statements,
                                                               const QString &account,
                                                               const QString &file);

} // namespace kiv::interchange
