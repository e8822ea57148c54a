// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/import_options.h"

#include "workbench/statements/import_profiles.h"
#include "workbench/statements/journal_files.h"

#include <QtCore/QObject>

namespace kiv::app {

using interchange::CsvProfile;
using interchange::DecimalMark;

void ImportOptions::declare(Arguments &arguments)
{
    arguments.required("FILE", file, QObject::tr("File; - for standard input"))
        .optional("--format", format,
                  QObject::tr("Format: journal, csv, ofx, qif, mt940 or camt (default: guessed)"))
        .optional("--encoding", m_encoding,
                  QObject::tr("Encoding (default: the one named in the file, or UTF-8)"))
        .optional("--decimal", m_decimal, QObject::tr("Decimal mark: . or ,"))
        .optional("--date-format", m_dateFormat, QObject::tr("Date format, such as DD.MM.YYYY"))
        .optional("--currency", m_currency,
                  QObject::tr("Currency of amounts without one (journal)"))
        .several("--root", m_roots,
                 QObject::tr("Type of a top account, such as Aktiva=asset (journal, repeatable)"))
        .several("--commodity", m_commodities,
                 QObject::tr("Currency behind a name, such as Fr=CHF (journal, repeatable)"))
        .optional("--statement", statement,
                  QObject::tr("Account number, to choose one of several statements"))
        .optional("--into", into, QObject::tr("Account of the bank statement"))
        .optional("--against", against,
                  QObject::tr("Counter-account of entries that match no rule"))
        .optional("--profile", profile, QObject::tr("Saved profile to read the file with"))
        .optional("--save-profile", savedAs,
                  QObject::tr("Save these options as a profile with this name"))
        .optional("--date-column", m_date,
                  QObject::tr("Column of the date, by heading or number (csv)"))
        .optional("--amount-column", m_amount, QObject::tr("Column of the amount (csv)"))
        .optional("--in-column", m_in, QObject::tr("Column of incoming amounts (csv)"))
        .optional("--out-column", m_out, QObject::tr("Column of outgoing amounts (csv)"))
        .optional("--sign-column", m_sign, QObject::tr("Column of the sign (csv)"))
        .several("--negative", m_negative,
                 QObject::tr("Text in the sign column for outgoing amounts (csv, repeatable)"))
        .several("--text-column", m_texts,
                 QObject::tr("Column of the description (csv, repeatable)"))
        .optional("--id-column", m_id, QObject::tr("Column of the bank's identifier (csv)"))
        .optional("--currency-column", m_currencyColumn,
                  QObject::tr("Column of the currency (csv)"))
        .optional("--status-column", m_status,
                  QObject::tr("Column that marks pending entries (csv)"))
        .optional("--balance-column", m_balance,
                  QObject::tr("Column of the balance; - skips its check (csv)"))
        .optional("--delimiter", m_delimiter,
                  QObject::tr("Delimiter between cells (csv, default: guessed)"))
        .optional("--skip", m_skip, QObject::tr("Number of lines above the headings (csv)"))
        .optional("--skip-last", m_skipLast,
                  QObject::tr("Number of lines below the entries, such as totals (csv)"))
        .flag("--no-headings", m_hasNoHeadings, QObject::tr("The file has no headings (csv)"))
        .flag("--negate", m_isNegated, QObject::tr("Outgoing amounts are positive (csv)"));
}

ImportFormat ImportOptions::formatOf(const QByteArray &bytes) const
{
    const std::optional<ImportFormat> form = format.isEmpty()
                                                 ? workbench::guessImportFormat(file, bytes)
                                                 : workbench::importFormatOf(format);
    if (!form)
        throw unknownFormat(file);
    refuseUnused(*form);
    return *form;
}

/// Options without effect are refused: often the file is not what the user thinks.
void ImportOptions::refuseUnused(ImportFormat form) const
{
    using enum ImportFormat;
    struct Use {
        const char *option;
        bool isGiven;
        std::set<ImportFormat> by;
    };
    const std::set<ImportFormat> statements{Csv, Ofx, Qif, Mt940, Camt};
    for (const auto &[option, isGiven, by] :
         {Use{"--decimal", m_decimal.has_value(), {Journal, Csv, Qif}},
          Use{"--date-format", m_dateFormat.has_value(), {Csv, Qif}},
          Use{"--currency", m_currency.has_value(), {Journal}},
          Use{"--root", !m_roots.empty(), {Journal}},
          Use{"--commodity", !m_commodities.empty(), {Journal}},
          Use{"--statement", !statement.isEmpty(), statements},
          Use{"--into", into.has_value(), statements},
          Use{"--against", against.has_value(), statements},
          Use{"--profile", profile.has_value(), statements},
          Use{"--save-profile", savedAs.has_value(), statements},
          Use{"--date-column", m_date.has_value(), {Csv}},
          Use{"--amount-column", m_amount.has_value(), {Csv}},
          Use{"--in-column", m_in.has_value(), {Csv}},
          Use{"--out-column", m_out.has_value(), {Csv}},
          Use{"--sign-column", m_sign.has_value(), {Csv}},
          Use{"--negative", !m_negative.empty(), {Csv}},
          Use{"--text-column", !m_texts.empty(), {Csv}},
          Use{"--id-column", m_id.has_value(), {Csv}},
          Use{"--currency-column", m_currencyColumn.has_value(), {Csv}},
          Use{"--status-column", m_status.has_value(), {Csv}},
          Use{"--balance-column", m_balance.has_value(), {Csv}},
          Use{"--delimiter", m_delimiter.has_value(), {Csv}},
          Use{"--skip", m_skip.has_value(), {Csv}},
          Use{"--skip-last", m_skipLast.has_value(), {Csv}},
          Use{"--no-headings", m_hasNoHeadings, {Csv}},
          Use{"--negate", m_isNegated, {Csv}}}) {
        if (isGiven && !by.contains(form))
            throw contradiction(
                QLatin1String(option),
                QStringLiteral("--format %1").arg(workbench::importFormatWord(form)));
    }
}

std::optional<DecimalMark> ImportOptions::decimal() const
{
    if (!m_decimal)
        return std::nullopt;
    if (*m_decimal != u"." && *m_decimal != u",")
        throw notAChoice(*m_decimal, {QStringLiteral("."), QStringLiteral(",")});
    return static_cast<DecimalMark>(m_decimal->front().unicode());
}

CsvProfile ImportOptions::readProfile() const
{
    CsvProfile read;
    if (profile)
        read = workbench::readSavedProfile(*profile);
    for (const auto &[given, column] : {std::pair(m_date, &read.dateColumn),
                                        {m_amount, &read.amountColumn},
                                        {m_in, &read.inColumn},
                                        {m_out, &read.outColumn},
                                        {m_sign, &read.signColumn},
                                        {m_id, &read.idColumn},
                                        {m_currencyColumn, &read.currencyColumn},
                                        {m_status, &read.statusColumn},
                                        {m_balance, &read.balanceColumn},
                                        {m_encoding, &read.encoding}}) {
        if (given)
            *column = *given;
    }
    if (!m_texts.empty())
        read.textColumns = QStringList(m_texts.begin(), m_texts.end());
    if (!m_negative.empty())
        read.negativeSigns = QStringList(m_negative.begin(), m_negative.end());
    if (m_decimal)
        read.decimalMark = decimal();
    if (m_dateFormat)
        read.dateFormat = interchange::DateFormat(*m_dateFormat, {QStringLiteral("--date-format")});
    if (m_delimiter) {
        const QString text = *m_delimiter == u"\\t" ? QStringLiteral("\t") : *m_delimiter;
        if (text.size() != 1 || text == u"\"")
            throw notAChoice(text, {QStringLiteral(","), QStringLiteral(";"), QStringLiteral("\\t"),
                                    QStringLiteral("|")});
        read.delimiter = text.front();
    }
    const auto readCount = [](const std::optional<QString> &text, auto &count) {
        if (!text)
            return;
        bool isNumber = false;
        const int number = text->toInt(&isNumber);
        if (!isNumber || number < 0 || number > CsvProfile::skippedMax)
            throw workbench::notANumber(*text, 0, CsvProfile::skippedMax);
        count = number;
    };
    readCount(m_skip, read.skippedLines);
    readCount(m_skipLast, read.skippedLast);
    if (m_hasNoHeadings)
        read.hasHeadings = false;
    read.isNegated = read.isNegated || m_isNegated;
    return read;
}

std::function<void()> ImportOptions::storedProfile(const CsvProfile &saved) const
{
    return savedAs ? workbench::storedProfile(*savedAs, saved) : std::function<void()>();
}

interchange::JournalOptions ImportOptions::journal(const numira::Currency &preferred) const
{
    interchange::JournalOptions options;
    options.decimalMark = decimal();
    options.currency = m_currency;
    options.preferred = preferred;
    options.encoding = m_encoding;
    for (const QString &text : m_commodities) {
        const auto [name, code] = workbench::assignment(text);
        readValue(code, options.commodities[name]);
    }
    for (const QString &text : m_roots) {
        const auto [root, type] = workbench::assignment(text);
        readValue(type, options.roots[root.toLower()]);
    }
    options.include = workbench::JournalFiles(file == u"-" ? QString() : file);
    return options;
}

bool ImportOptions::hasReading() const
{
    return profile || m_encoding || m_decimal || m_dateFormat || m_delimiter || m_skip ||
           m_skipLast || m_hasNoHeadings || m_isNegated || m_date || m_amount || m_in || m_out ||
           m_sign || !m_negative.empty() || !m_texts.empty() || m_id || m_currencyColumn ||
           m_status || m_balance;
}

} // namespace kiv::app
