// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/survey_drafts.h"

#include "workbench/entry/sum_text.h"
#include "workbench/surveys/sheet_statement.h"

#include "foundation/clock.h"

namespace kiv::desktop {

using accounting::AccountNumber;
using workbench::SheetBooks;
using workbench::SurveySheet;

SurveyDraft *SurveyDrafts::of(AccountNumber account)
{
    const auto found = m_drafts.find(account);
    return found == m_drafts.end() ? nullptr : &found->second;
}

bool SurveyDrafts::renew(AccountNumber account, const std::function<QDate()> &day)
{
    const SheetBooks books = SheetBooks::of(m_document);
    const SurveyDraft *known = of(account);
    const bool isTouched = known && known->isTouched;
    const auto putOff = books.notes.putOff.find(account);
    if (!isTouched && putOff != books.notes.putOff.end()) {
        m_drafts.insert_or_assign(account, takenUp(account, books, putOff->second));
        return true;
    }
    SurveyDraft anew = fresh(account, books, day());
    if (isTouched) {
        anew.balance = known->balance;
        anew.notices = known->notices;
        anew.file = known->file;
        anew.isTouched = true;
        anew.sheet.goOnFrom(known->sheet, books);
        compareFile(anew);
    }
    m_drafts.insert_or_assign(account, std::move(anew));
    return false;
}

void SurveyDrafts::layFile(AccountNumber account, const QString &path)
{
    const workbench::ImportSource source = workbench::sheetSource(path);
    workbench::Requests &requests = m_document.requests();
    const workbench::SheetStatement statement =
        readForSheet(m_document, requests.bankAccount(account, path), source);
    statement.requireDay(path);
    const SheetBooks books = SheetBooks::of(m_document);
    SurveyDraft anew = fresh(account, books, statement.day);
    if (const SurveyDraft *known = of(account)) {
        anew.balance = known->balance;
        anew.sheet.goOnFrom(known->sheet, books);
    }
    statement.layOn(anew.sheet);
    const numira::Currency currency = anew.expected.code();
    if (statement.balance && statement.balance->code() == currency)
        anew.balance = workbench::typedText(anew.sheet.form.balance, currency);
    anew.notices = statement.notices;
    anew.lacking = statement.unknownText(requests.displayAs());
    if (!anew.lacking.isEmpty())
        anew.file = source;
    anew.isTouched = true;
    m_drafts.insert_or_assign(account, std::move(anew));
}

SurveyDraft SurveyDrafts::fresh(AccountNumber account, const SheetBooks &books, QDate day)
{
    const QString number = accounting::presentationText(account);
    workbench::Requests &requests = m_document.requests();
    const QString bank = requests.bankAccount(account, number).bank.institution();
    SurveySheet sheet = SurveySheet::begin(requests, books, bank, number, day);
    const numira::Money expected = sheet.form.balance;
    return {std::move(sheet), expected};
}

SurveyDraft SurveyDrafts::takenUp(AccountNumber account, const SheetBooks &books,
                                  const workbench::PutOffSheet &sheet)
{
    const auto begun = [&] {
        try {
            SurveyDraft draft = fresh(account, books, sheet.day);
            draft.notices = {QObject::tr("Taken up where it was put off.")};
            return draft;
        } catch (const foundation::Error &error) {
            SurveyDraft draft = fresh(account, books, foundation::today());
            draft.notices = {
                QObject::tr("The survey that was put off is taken up with the day of today. %1")
                    .arg(workbench::userText(error))};
            return draft;
        }
    };
    SurveyDraft draft = begun();
    draft.notices += draft.sheet.take(sheet, books);
    draft.isTouched = true;
    if (sheet.balance)
        draft.balance = workbench::typedText(draft.sheet.form.balance, draft.expected.code());
    return draft;
}

void SurveyDrafts::compareFile(SurveyDraft &draft)
{
    if (draft.file.bytes.isEmpty())
        return;
    try {
        draft.lacking = readForSheet(m_document, draft.sheet.form.account, draft.file)
                            .unknownText(m_document.requests().displayAs());
    } catch (const foundation::Error &) {
        // The file no longer fits to the books; here it is only a hint.
    }
    if (draft.lacking.isEmpty())
        draft.file = {};
}

} // namespace kiv::desktop
