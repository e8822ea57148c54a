// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/import_reading.h"
#include "workbench/surveys/survey_sheet.h"

namespace kiv::desktop {

/// The survey of an account as it was left, on the page or in the notes.
struct SurveyDraft {
    workbench::SurveySheet sheet;
    numira::Money expected;            ///< balance, as long as none is typed
    QString balance = {};              ///< as it was typed
    QStringList notices = {};          ///< about taking it up, and of a file
    workbench::ImportSource file = {}; ///< a bank's, with entries that the books lack
    QString lacking = {};              ///< a sentence about those entries
    bool isTouched = false;            ///< whether something was entered
};

/// The surveys that were begun, one an account at most. What was entered stays while the books
/// change and other accounts are looked at.
class SurveyDrafts {
public:
    explicit SurveyDrafts(workbench::Document &document) : m_document(document) {}

    /// The draft of the account; null without one.
    [[nodiscard]] SurveyDraft *of(accounting::AccountNumber account);
    void forget(accounting::AccountNumber account) { m_drafts.erase(account); }
    void forgetAll() { m_drafts.clear(); }

    /// Brings the draft in line with the books and the day, or makes one. Where nothing was
    /// entered, the one that was put off is taken up instead; returns whether it was. Throws
    /// what `day` throws, and what is refused; the draft stays then.
    bool renew(accounting::AccountNumber account, const std::function<QDate()> &day);
    /// Takes day, balance and ticks from a bank's file. Throws what is refused; the draft stays
    /// then.
    void layFile(accounting::AccountNumber account, const QString &path);

private:
    [[nodiscard]] SurveyDraft fresh(accounting::AccountNumber account,
                                    const workbench::SheetBooks &books, QDate day);
    [[nodiscard]] SurveyDraft takenUp(accounting::AccountNumber account,
                                      const workbench::SheetBooks &books,
                                      const workbench::PutOffSheet &sheet);
    /// Tells what the books lack of its file now.
    void compareFile(SurveyDraft &draft);

    workbench::Document &m_document;
    std::map<accounting::AccountNumber, SurveyDraft> m_drafts;
};

} // namespace kiv::desktop
