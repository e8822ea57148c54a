// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/statement_reader.h"

#include "interchange/csv_reader.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"

#include <QtCore/QFileInfo>

namespace kiv::interchange {

std::optional<StatementFormat> guessStatementFormat(const QString &file, const QByteArray &bytes)
{
    using enum StatementFormat;
    const QString extension = QFileInfo(file).suffix().toLower();
    for (const auto &[name, format] :
         {std::pair("csv", Csv), {"tsv", Csv}, {"ofx", Ofx}, {"qfx", Ofx}, {"qif", Qif}}) {
        if (extension == QLatin1String(name))
            return format;
    }
    const QByteArray head = bytes.left(4096);
    if (head.contains("<OFX>"))
        return Ofx;
    if (head.trimmed().startsWith("!Type:") || head.trimmed().startsWith("!Account"))
        return Qif;
    return std::nullopt;
}

std::vector<Statement> readStatements(StatementFormat format, const QByteArray &bytes,
                                      const QString &file, const StatementOptions &options)
{
    const CsvProfile &profile = options.profile;
    switch (format) {
    case StatementFormat::Csv:
        return {readCsv(bytes, file, {profile, options.currency})};
    case StatementFormat::Ofx:
        return {readOfx(bytes, file, {})};
    case StatementFormat::Qif:
        return {
            readQif(bytes, file,
                    {profile.encoding, profile.decimalMark, profile.dateFormat, options.currency})};
    }
    return {};
}

Statement chosenStatement(std::vector<Statement> statements, const QString &account,
                          const QString &file)
{
    if (account.isEmpty() && statements.size() == 1)
        return std::move(statements.front());
    QStringList accounts;
    for (Statement &statement : statements) {
        if (!account.isEmpty() && statement.account == account)
            return std::move(statement);
        accounts += statement.account;
    }
    if (accounts.isEmpty())
        throw faults::noStatement({file, 0});
    throw account.isEmpty() ? faults::severalStatements({file, 0}, accounts)
                            : faults::noSuchStatement({file, 0}, account, accounts);
}

} // namespace kiv::interchange
