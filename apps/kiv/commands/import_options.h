// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command_group.h"

#include "workbench/statements/import_format.h"

#include "interchange/journal_reader.h"

namespace kiv::app {

using workbench::ImportFormat;

/// The arguments of an import: what the file is, and how to read it.
struct ImportOptions {
    QString file;
    QString format;
    std::optional<QString> into;
    std::optional<QString> against;
    std::optional<QString> profile;
    std::optional<QString> savedAs;
    QString statement; ///< the bank's number, of several

    void declare(Arguments &arguments);

    /// The format from --format, the file name or the first bytes. Throws a UsageError
    /// if it is unknown, and for options without effect on this format.
    [[nodiscard]] ImportFormat formatOf(const QByteArray &bytes) const;
    /// The saved profile, or an empty one, with the values from the command line.
    [[nodiscard]] interchange::CsvProfile readProfile() const;
    /// Writes the profile to a temporary file if --save-profile is given. The returned
    /// function puts the file in place; call it after saving the budget.
    [[nodiscard]] std::function<void()> storedProfile(const interchange::CsvProfile &profile) const;
    [[nodiscard]] interchange::JournalOptions journal(const numira::Currency &preferred) const;
    /// Whether the user said how the file is read.
    [[nodiscard]] bool hasReading() const;

private:
    void refuseUnused(ImportFormat form) const;
    [[nodiscard]] std::optional<interchange::DecimalMark> decimal() const;

    std::vector<QString> m_roots;
    std::vector<QString> m_commodities;
    std::optional<numira::Currency> m_currency;
    std::optional<QString> m_encoding;
    std::optional<QString> m_decimal;
    std::optional<QString> m_dateFormat;
    std::optional<QString> m_delimiter;
    std::optional<QString> m_skip;
    std::optional<QString> m_skipLast;
    bool m_hasNoHeadings = false;
    bool m_isNegated = false;
    std::optional<QString> m_date;
    std::optional<QString> m_amount;
    std::optional<QString> m_in;
    std::optional<QString> m_out;
    std::optional<QString> m_sign;
    std::vector<QString> m_negative;
    std::vector<QString> m_texts;
    std::optional<QString> m_id;
    std::optional<QString> m_currencyColumn;
    std::optional<QString> m_status;
    std::optional<QString> m_balance;
};

} // namespace kiv::app
