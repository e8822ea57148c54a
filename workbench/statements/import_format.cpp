// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_format.h"

#include "workbench/errors.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace kiv::workbench {

using interchange::StatementFormat;

namespace {

using enum ImportFormat;

constexpr std::pair<ImportFormat, const char *> formatWords[] = {
    {Journal, "journal"}, {Csv, "csv"},     {Ofx, "ofx"},
    {Qif, "qif"},         {Mt940, "mt940"}, {Camt, "camt"}};

constexpr std::pair<ImportFormat, StatementFormat> statementForms[] = {
    {Csv, StatementFormat::Csv},
    {Ofx, StatementFormat::Ofx},
    {Qif, StatementFormat::Qif},
    {Mt940, StatementFormat::Mt940},
    {Camt, StatementFormat::Camt}};

/// The extensions of journals.
constexpr std::pair<ImportFormat, const char *> journals[] = {{Journal, "journal"},
                                                              {Journal, "j"},
                                                              {Journal, "hledger"},
                                                              {Journal, "ledger"},
                                                              {Journal, "dat"}};

std::optional<ImportFormat> named(const auto &table, const QString &word)
{
    for (const auto &[format, name] : table) {
        if (word == QLatin1String(name))
            return format;
    }
    return std::nullopt;
}

} // namespace

QString importFormatWord(ImportFormat format)
{
    const auto *const found =
        std::ranges::find(formatWords, format, [](const auto &row) { return row.first; });
    return QLatin1String(found->second);
}

ImportFormat importFormatOf(const QString &word)
{
    if (const auto format = named(formatWords, word))
        return *format;
    QStringList choices;
    for (const auto &[format, name] : formatWords)
        choices += QLatin1String(name);
    throw notAChoice(word, choices);
}

std::optional<StatementFormat> statementFormat(ImportFormat format)
{
    for (const auto &[one, statement] : statementForms) {
        if (one == format)
            return statement;
    }
    return std::nullopt;
}

std::optional<ImportFormat> guessImportFormat(const QString &file, const QByteArray &bytes)
{
    if (const auto format = named(journals, QFileInfo(file).suffix().toLower()))
        return format;
    const auto form = interchange::guessStatementFormat(file, bytes);
    for (const auto &[format, statement] : statementForms) {
        if (statement == form)
            return format;
    }
    return std::nullopt;
}

} // namespace kiv::workbench
