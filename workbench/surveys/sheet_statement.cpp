// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/sheet_statement.h"

#include "workbench/entry/description.h"
#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"
#include "workbench/statements/import_format.h"
#include "workbench/statements/input_file.h"

#include "foundation/presentation.h"

namespace kiv::workbench {

using numira::Money;

void SheetStatement::requireDay(const QString &file) const
{
    if (!day.isValid())
        throw internal::fileTellsNoDay(file);
}

void SheetStatement::layOn(SurveySheet &sheet) const
{
    if (balance && balance->code() == sheet.form.balance.code())
        sheet.form.balance = *balance;
    for (const accounting::Transaction &one : sheet.form.transactions()) {
        const accounting::TransactionNumber number = one.number().value();
        if (seen.contains(number))
            sheet.form.reconciled.insert(number);
        else if (first.isValid() && one.occurredOn() >= first)
            sheet.form.reconciled.erase(number);
    }
}

QString SheetStatement::unknownText(navigation::CurrencyDisplayOptions displayAs) const
{
    constexpr std::size_t shownMax = 3;
    QStringList told;
    for (const interchange::StatementEntry &entry : unknown) {
        if (std::cmp_equal(told.size(), shownMax)) {
            told += QStringLiteral("…");
            break;
        }
        told +=
            QObject::tr("%1 of %2, %3")
                .arg(amountText(entry.amount, displayAs), foundation::presentationText(entry.date),
                     Description{entry.payee, entry.text, {}}.shown());
    }
    return told.isEmpty() ? QString()
                          : QObject::tr("%n entries of the file are not in the books: %1", nullptr,
                                        static_cast<int>(unknown.size()))
                                .arg(told.join(QStringLiteral("; ")));
}

ImportSource sheetSource(const QString &path)
{
    ImportSource source;
    source.file = path;
    source.bytes = readFile(path);
    const auto kind = guessImportFormat(path, source.bytes);
    const auto format = kind ? statementFormat(*kind) : std::nullopt;
    if (!format)
        throw internal::noStatement(path);
    source.format = *format;
    return source;
}

SheetStatement readForSheet(Document &document, const banking::BankAccount &account,
                            ImportSource source)
{
    source.into = account.account.number;
    const ImportMemory memory = ImportMemory::of(document.notes());
    ImportReading reading = readForImport(document.requests(), memory, source);
    if (reading.isOfOtherAccount)
        throw internal::fileOfOtherAccount(
            source.file, document.requests().accounts().plainName(account.account.number));
    SheetStatement statement;
    statement.day = reading.statement.closingOn;
    for (const interchange::StatementEntry &entry : reading.statement.entries) {
        if (!statement.first.isValid() || entry.date < statement.first)
            statement.first = entry.date;
        if (!reading.statement.closingOn.isValid() &&
            (!statement.day.isValid() || statement.day < entry.date))
            statement.day = entry.date;
    }
    statement.balance = reading.statement.closing;
    // A bank writes what is owed to it below zero.
    if (statement.balance && banking::isLiabilityAccount(account.account.type))
        statement.balance = -*statement.balance;
    const ImportPreview preview =
        previewOf(document.requests(), std::move(reading), ImportChoices{memory});
    statement.notices = preview.notices();
    for (const ImportRow &row : preview.rows()) {
        using enum ImportRow::State;
        const auto *match = row.meaning ? std::get_if<ImportMatch>(&*row.meaning) : nullptr;
        if (match && (row.state == Matched || row.state == Known))
            statement.seen.insert(match->numbers.begin(), match->numbers.end());
        else if (row.state == New || row.state == Payment)
            statement.unknown.push_back(row.entry);
    }
    return statement;
}

} // namespace kiv::workbench
