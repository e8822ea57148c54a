// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_format.h"

#include "workbench/errors.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace kiv::workbench {

namespace {

using enum ImportFormat;

constexpr std::pair<ImportFormat, const char *> words[] = {
    {Journal, "journal"}, {Csv, "csv"}, {Ofx, "ofx"}, {Qif, "qif"}};

/// Extensions besides these words.
constexpr std::pair<ImportFormat, const char *> extensions[] = {
    {Journal, "j"},   {Journal, "hledger"}, {Journal, "ledger"},
    {Journal, "dat"}, {Csv, "tsv"},         {Ofx, "qfx"}};

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
        std::ranges::find(words, format, [](const auto &row) { return row.first; });
    return QLatin1String(found->second);
}

ImportFormat importFormatOf(const QString &word)
{
    if (const auto format = named(words, word))
        return *format;
    QStringList choices;
    for (const auto &[format, name] : words)
        choices += QLatin1String(name);
    throw notAChoice(word, choices);
}

std::optional<ImportFormat> guessImportFormat(const QString &file, const QByteArray &bytes)
{
    const QString extension = QFileInfo(file).suffix().toLower();
    if (const auto format = named(words, extension))
        return format;
    if (const auto format = named(extensions, extension))
        return format;
    const QByteArray head = bytes.left(4096);
    if (head.contains("<OFX>"))
        return Ofx;
    if (head.trimmed().startsWith("!Type:") || head.trimmed().startsWith("!Account"))
        return Qif;
    return std::nullopt;
}

} // namespace kiv::workbench
