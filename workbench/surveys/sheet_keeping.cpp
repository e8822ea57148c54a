// SPDX-License-Identifier: GPL-3.0-or-later
// How a sheet is put off, taken up again, and completed.
#include "workbench/internal/faults.h"
#include "workbench/surveys/survey_sheet.h"

#include "foundation/presentation.h"
#include "storage/storage_error.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;

PutOffSheet SurveySheet::put(bool hasBalance) const
{
    PutOffSheet sheet;
    sheet.day = form.date;
    if (hasBalance)
        sheet.balance = form.balance;
    for (const accounting::Transaction &one : form.transactions()) {
        if (form.reconciled.contains(one.number().value()))
            sheet.ticked.push_back({one.number().value(), one.occurredOn(), one.amount(),
                                    one.debiting().number(), one.crediting().number()});
    }
    sheet.items = form.items;
    sheet.extras = form.extras;
    sheet.typed = typed;
    return sheet;
}

QStringList SurveySheet::take(const PutOffSheet &sheet, const SheetBooks &books)
{
    QStringList notices;
    if (sheet.balance && sheet.balance->code() == form.balance.code())
        form.balance = *sheet.balance;
    const std::set<TransactionNumber> here = numbers();
    std::set<TransactionNumber> same;
    QStringList changed;
    for (const surveying::ReconciledTransaction &one : sheet.ticked) {
        if (here.contains(one.number) &&
            surveying::reconciledTransaction(books.data.generalLedger, one.number) == one)
            same.insert(one.number);
        else
            changed += QLatin1Char('#') + accounting::presentationText(one.number);
    }
    form.reconciled = std::move(same);
    QStringList gone;
    const auto keep = [&gone](const auto &amounts, auto &kept, const auto &isThere,
                              const auto &nameOf) {
        for (const auto &[key, money] : amounts) {
            if (isThere(key))
                kept.insert_or_assign(key, money);
            else
                gone += nameOf(key);
        }
    };
    const auto hasItem = [&books](const BudgetItemIdentifier &id) {
        return budgeting::findBudgetItem(id, books.data.budget) != nullptr;
    };
    const auto itemName = [](const BudgetItemIdentifier &id) { return id.source.name(); };
    keep(sheet.items, form.items, hasItem, itemName);
    keep(sheet.typed, typed, hasItem, itemName);
    keep(
        sheet.extras, form.extras,
        [&books](AccountNumber number) { return books.data.generalLedger.hasLedger(number); },
        [](AccountNumber number) { return accounting::presentationText(number); });
    if (!changed.isEmpty())
        notices += QObject::tr("Changed or reconciled since the survey was put off, and not "
                               "ticked any more: %1")
                       .arg(changed.join(QStringLiteral(", ")));
    if (!gone.isEmpty())
        notices += QObject::tr("Gone since the survey was put off, and left out: %1")
                       .arg(QLocale().createSeparatedList(gone));
    return notices;
}

void complete(Document &document, const SurveySheet &sheet, bool hasConsent)
{
    const SurveyForm form = sheet.finished(hasConsent);
    SurveyNotes notes = SurveyNotes::of(document.notes());
    const AccountNumber account = form.account.account.number;
    for (const accounting::Transaction &one : form.elsewhere) {
        if (form.reconciled.contains(one.number().value()))
            notes.counted[account].insert(one.number().value());
    }
    notes.putOff.erase(account);
    form.complete(document.requests());
    document.setNotes(notes.keptIn(document.notes()));
}

void putOff(Document &document, const SurveySheet &sheet, bool hasBalance)
{
    SurveyNotes notes = SurveyNotes::of(document.notes());
    notes.putOff.insert_or_assign(sheet.form.account.account.number, sheet.put(hasBalance));
    try {
        document.setNotes(notes.keptIn(document.notes()));
    } catch (const storage::StorageError &) {
        throw internal::sheetTooLarge();
    }
}

void forgetPutOff(Document &document, AccountNumber account)
{
    SurveyNotes notes = SurveyNotes::of(document.notes());
    notes.putOff.erase(account);
    document.setNotes(notes.keptIn(document.notes()));
}

std::vector<BooksDifference> booksDifferences(Document &document)
{
    return booksDifferences(document.present(), document.keptReconciliations(),
                            SurveyNotes::of(document.notes()).counted);
}

Deed putOffDeed(Requests &requests, const SurveySheet &sheet)
{
    const QString name = requests.accounts().plainName(sheet.form.account.account.number);
    return {QObject::tr("Put off the survey of %1 of %2.")
                .arg(name, foundation::presentationText(sheet.form.date)),
            QObject::tr("putting off the survey of “%1”").arg(name),
            {}};
}

} // namespace kiv::workbench
