// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/sheet_arguments.h"

namespace kiv::app {

void SheetArguments::declare(Arguments &arguments)
{
    arguments.optional("BANK", bank, QObject::tr("Name of the bank"))
        .optional("ACCOUNT", account, QObject::tr("Account: number, name or path"))
        .optional("--bank-file", bankFile,
                  QObject::tr("The bank's file: its day, balance and entries are taken"))
        .flag("--as-proposed", isAsProposed,
              QObject::tr("Set aside what the survey proposes, as if nothing had been paid"))
        .dated(QObject::tr("Day of the statement (default: that of the bank's file, or today)"));
}

banking::BankAccount SheetArguments::bankAccount(Call &call) const
{
    if (!account)
        throw missing(placeholder(bank ? "ACCOUNT" : "BANK ACCOUNT"));
    const accounting::AccountNumber number =
        call.requests.accounts().find(*account).code().number();
    (void)call.requests.bank(*bank); // a name that is unknown is refused first
    return call.requests.bankAccount(number, *account);
}

SheetArguments::Begun SheetArguments::begin(Call &call, std::optional<QDate> day,
                                            QDate otherwise) const
{
    const banking::BankAccount kept = bankAccount(call);
    Begun begun{{}, SheetBooks::of(call.document), {}};
    QDate used = day.value_or(otherwise);
    if (bankFile) {
        begun.statement =
            workbench::readForSheet(call.document, kept, workbench::sheetSource(*bankFile));
        if (!day)
            begun.statement->requireDay(*bankFile);
        used = day.value_or(begun.statement->day);
    }
    begun.sheet = SurveySheet::begin(call.requests, begun.books, *bank, *account, used);
    begun.sheet.isAsProposed = isAsProposed;
    if (begun.statement)
        begun.statement->layOn(begun.sheet);
    return begun;
}

} // namespace kiv::app
