// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/statement_reader.h"

#include "interchange/camt_reader.h"
#include "interchange/csv_reader.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/mt940_reader.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"
#include "interchange/text_decoding.h"

#include "foundation/presentation.h"

#include <QtCore/QFileInfo>

#include <cstring>
#include <map>

namespace kiv::interchange {

namespace {

using enum StatementFormat;

/// The form that the first bytes prove. Tables and most comments prove none.
std::optional<StatementFormat> provenFormat(const QByteArray &bytes)
{
    QByteArray head = bytes.left(4096);
    head.replace('\0', ""); // of UTF-16
    for (const char *mark : {"\xef\xbb\xbf", "\xff\xfe", "\xfe\xff"}) {
        if (head.startsWith(mark))
            head = head.mid(static_cast<qsizetype>(std::strlen(mark)));
    }
    head = head.trimmed();
    if (head.contains("<OFX>"))
        return Ofx;
    if (head.startsWith('<') && (head.contains("BkToCstmr") || head.contains(":camt.05")))
        return Camt;
    for (const char *header : {"!Type:", "!Account", "!Option:", "!Clear:"}) {
        if (head.startsWith(header))
            return Qif;
    }
    head.prepend('\n');
    const qsizetype begin = head.indexOf("\n:20:");
    if (head.startsWith("\n{1:F") || (begin >= 0 && head.indexOf("\n:25:", begin) > 0))
        return Mt940;
    return std::nullopt;
}

std::optional<StatementFormat> formatOfExtension(const QString &extension)
{
    static const std::map<QString, StatementFormat> formats{
        {QStringLiteral("csv"), Csv},   {QStringLiteral("tsv"), Csv},
        {QStringLiteral("ofx"), Ofx},   {QStringLiteral("qfx"), Ofx},
        {QStringLiteral("qif"), Qif},   {QStringLiteral("sta"), Mt940},
        {QStringLiteral("940"), Mt940}, {QStringLiteral("mt940"), Mt940},
        {QStringLiteral("942"), Mt940}, {QStringLiteral("mt942"), Mt940},
        {QStringLiteral("swi"), Mt940}, {QStringLiteral("camt"), Camt},
        {QStringLiteral("xml"), Camt},  {QStringLiteral("052"), Camt},
        {QStringLiteral("053"), Camt},  {QStringLiteral("054"), Camt},
        {QStringLiteral("c52"), Camt},  {QStringLiteral("c53"), Camt}};
    const auto found = formats.find(extension);
    return found == formats.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

std::optional<StatementFormat> guessStatementFormat(const QString &file, const QByteArray &bytes)
{
    const auto proven = provenFormat(bytes);
    return proven ? proven : formatOfExtension(QFileInfo(file).suffix().toLower());
}

std::vector<Statement> readStatements(StatementFormat format, const QByteArray &bytes,
                                      const QString &file, const StatementOptions &options)
{
    const CsvProfile &profile = options.profile;
    const BankFileOptions bank{profile.encoding.isEmpty() ? std::nullopt
                                                          : std::optional(profile.encoding),
                               options.currency};
    switch (format) {
    case StatementFormat::Csv:
        return {readCsv(bytes, file, {profile, options.currency})};
    case StatementFormat::Ofx:
        return readOfx(bytes, file, bank);
    case StatementFormat::Qif:
        return readQif(bytes, file,
                       {bank.encoding, profile.decimalMark, profile.dateFormat, options.currency});
    case StatementFormat::Mt940:
        return readMt940(bytes, file, bank);
    case StatementFormat::Camt:
        return readCamt(bytes, file, bank);
    }
    return {};
}

Statement chosenStatement(std::vector<Statement> statements, const QString &account,
                          const QString &file)
{
    if (statements.empty())
        throw faults::noStatement({file, 0});
    if (account.isEmpty() && statements.size() == 1)
        return std::move(statements.front());
    // An account in several currencies is named with them.
    std::map<QString, int> timesNamed;
    for (const Statement &statement : statements)
        ++timesNamed[statement.account];
    QStringList names;
    for (Statement &statement : statements) {
        names += timesNamed[statement.account] == 1
                     ? statement.account
                     : statement.account + u' ' + foundation::toQString(statement.currency);
        if (!account.isEmpty() && names.back() == account)
            return std::move(statement);
    }
    throw account.isEmpty() ? faults::severalStatements({file, 0}, names)
                            : faults::noSuchStatement({file, 0}, account, names);
}

} // namespace kiv::interchange
