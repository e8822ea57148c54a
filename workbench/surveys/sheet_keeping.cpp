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

namespace {

/// Whether the books have it still.
bool has(const SheetBooks &books, const BudgetItemIdentifier &id)
{
    return budgeting::findBudgetItem(id, books.data.budget) != nullptr;
}
bool has(const SheetBooks &books, AccountNumber number)
{
    return books.data.generalLedger.hasLedger(number);
}
QString nameOf(const BudgetItemIdentifier &id)
{
    return id.source.name();
}
QString nameOf(AccountNumber number)
{
    return accounting::presentationText(number);
}

/// Takes over the amounts of what the books have still. Returns the names of the others.
template <typename Amounts>
QStringList keep(const Amounts &amounts, Amounts &kept, const SheetBooks &books)
{
    QStringList gone;
    for (const auto &[key, money] : amounts) {
        if (has(books, key))
            kept.insert_or_assign(key, money);
        else
            gone += nameOf(key);
    }
    return gone;
}

} // namespace

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
    sheet.isAsProposed = isAsProposed;
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
    isAsProposed = isAsProposed || sheet.isAsProposed;
    const QStringList gone = keep(sheet.items, form.items, books) +
                             keep(sheet.typed, typed, books) +
                             keep(sheet.extras, form.extras, books);
    if (!changed.isEmpty())
        notices += QObject::tr("Changed or reconciled since the survey was put off, and not "
                               "ticked any more: %1")
                       .arg(changed.join(QStringLiteral(", ")));
    if (!gone.isEmpty())
        notices += QObject::tr("Gone since the survey was put off, and left out: %1")
                       .arg(QLocale().createSeparatedList(gone));
    return notices;
}

void SurveySheet::goOnFrom(const SurveySheet &former, const SheetBooks &books)
{
    const std::set<TransactionNumber> known = former.numbers();
    for (const TransactionNumber number : numbers()) {
        if (!known.contains(number))
            continue;
        if (former.form.reconciled.contains(number))
            form.reconciled.insert(number);
        else
            form.reconciled.erase(number);
    }
    keep(former.form.items, form.items, books);
    keep(former.form.extras, form.extras, books);
    keep(former.typed, typed, books);
    isAsProposed = former.isAsProposed;
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

void dropSetAside(Document &document, const banking::BankAccount &account)
{
    storage::BudgetStorage::Data data = document.present();
    const AccountNumber number = account.account.number;
    if (data.banks.find(number) == account.bank) {
        SurveyForm::drop(document.requests(), account.bank.institution(),
                         accounting::presentationText(number))
            .complete(document.requests());
        return;
    }
    if (!data.surveys.lookUpSurvey(account.bank, number))
        throw internal::neverReconciled(accounting::presentationText(number));
    surveying::CompletedSurveys others;
    for (const auto &[other, survey] : data.surveys) {
        if (other.bank != account.bank || other.account.number != number)
            others.upsert(survey);
    }
    data.surveys = std::move(others);
    document.put(std::move(data));
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
