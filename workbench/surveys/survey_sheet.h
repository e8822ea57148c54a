// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"
#include "workbench/surveys/set_aside.h"
#include "workbench/surveys/survey_form.h"
#include "workbench/surveys/survey_notes.h"

namespace kiv::workbench {

/// The budget that a sheet is about, as it is now.
struct KIV_WORKBENCH_EXPORT SheetBooks {
    storage::BudgetStorage::Data data;          ///< the budget
    surveying::Reconciliations reconciliations; ///< all that were made
    SurveyNotes notes;                          ///< what is remembered of surveys

    /// Those of the open budget.
    [[nodiscard]] static SheetBooks of(Document &document);
};

/// How far the books agree with the statement. Amounts are in the account's terms: of a card,
/// money owed is positive.
struct KIV_WORKBENCH_EXPORT SheetFigures {
    numira::Money calculated; ///< last statement, ticks, and what is not booked yet
    numira::Money statement;  ///< the balance of this one
    numira::Money difference; ///< statement − calculated: positive if the books are below
    /// By how much the books were below the bank before; zero if they were not.
    numira::Money before;
    /// The difference in percent of the statement, to two digits and without a sign; nothing if
    /// that is zero.
    std::optional<numira::Decimal> percent;
    /// Whether a survey accepts it. Of what is owed it accepts any.
    bool isAccepted = true;

    /// By how much the books are below the bank once this statement is reconciled.
    [[nodiscard]] numira::Money after() const { return before + difference; }
    /// "0.99 %", as the user writes it; empty without a percentage.
    [[nodiscard]] QString percentText() const;
    /// Whether the user must say that the difference may stay: it is new, and not only what
    /// an earlier one needs to go.
    [[nodiscard]] bool wantsConsent() const { return !difference.isZero() && !after().isZero(); }
};

/// An item for which the sheet sets money aside.
struct KIV_WORKBENCH_EXPORT SheetLine {
    SetAsideLine line;                     ///< how it comes about, up to the day of the sheet
    std::optional<numira::Money> proposed; ///< by the Navigator
    std::optional<numira::Money> typed;    ///< by hand
    numira::Money now;                     ///< what the sheet sets aside
    bool isHandedOver = false;             ///< whether the survey records it; see SetAsideLine
};

/// A survey in the making: what the statement says, which transactions are ticked on it, how
/// far the books agree with it, and what is set aside. It is a value: nothing is kept before
/// complete() or putOff().
struct KIV_WORKBENCH_EXPORT SurveySheet {
    /// What is handed over, but for what is set aside: that is `lines()`. Fill in `balance`,
    /// `reconciled`, `items` and `extras`; the balance is the expected one at first.
    SurveyForm form;
    std::optional<BooksDifference> before; ///< between the books and the last statements
    foundation::Percentage window;         ///< within which a survey accepts a difference
    /// What is set aside by hand, instead of what the lines come to.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> typed;
    bool isAsProposed = false; ///< whether the Navigator's proposals are taken
    /// Exactly this is handed over, instead of any line.
    std::optional<surveying::Distribution> exact;
    /// What is recorded as set aside for nothing, instead of rest().
    std::optional<numira::Money> nonDistributed;
    /// Monthly payments that are due yet in the month of the statement.
    std::vector<budgeting::BudgetItemAmountDue> dueYet;
    SetAside envelopes; ///< as the books are, without what is not booked yet

    /// A sheet for the account, with the transactions ticked that were seen at the bank, as
    /// those of its file, or that another account's survey reconciled. Throws a Refusal if the
    /// bank or its account does not exist and for a day before the last survey, and what the
    /// slot throws, as for a day to come.
    [[nodiscard]] static SurveySheet begin(Requests &requests, const SheetBooks &books,
                                           const QString &bank, const QString &account, QDate day);

    /// Ticks exactly these. Throws an EntryError that names those that are not on the sheet;
    /// the ticks stay then.
    void tick(const std::set<accounting::TransactionNumber> &numbers);
    /// Reads "1-5,9", "all", "all but 3" or "none". Throws an EntryError for anything else and
    /// for numbers that are not on the sheet; a span takes what it finds there, at least one.
    [[nodiscard]] std::set<accounting::TransactionNumber> readTicks(const QString &text) const;
    /// Adds unbooked money by the name of an item or account: "Rent=-20.00". Throws an
    /// EntryError for an account that counts to the statement's balance, as that of a goal.
    void addUnbooked(Requests &requests, const QString &text);
    /// The same by the number of the account, which may be an item's.
    void addUnbooked(accounting::AccountNumber number, const numira::Money &change);
    /// What addUnbooked() is to be given for this account so that the books agree: all that is
    /// missing, beside what is named for it already. Throws what a missing exchange rate throws.
    [[nodiscard]] numira::Money missingFor(accounting::AccountNumber number) const;
    /// Sets money aside for an item by hand: "Holiday=300.00".
    void setAside(Requests &requests, const QString &text);

    /// Throws what a missing exchange rate throws.
    [[nodiscard]] SheetFigures figures() const;
    /// The items, by kind and name; none of what is owed.
    [[nodiscard]] std::vector<SheetLine> lines() const;
    /// What the survey records.
    [[nodiscard]] surveying::Distribution distribution() const;
    /// What is set aside for nothing: the statement's balance without the lines. Lines whose
    /// currency has no exchange rate are not counted.
    [[nodiscard]] numira::Money rest() const;
    /// What the user should know: earlier differences, what is set aside beyond the balance,
    /// what cannot be counted.
    [[nodiscard]] QStringList notices(const accounting::GeneralLedger &ledger,
                                      navigation::CurrencyDisplayOptions displayAs) const;

    /// What the survey is completed with. Throws a Refusal if the figures want consent that
    /// was not given.
    [[nodiscard]] SurveyForm finished(bool hasConsent) const;

    /// The sheet to put off; without a balance if none was entered.
    [[nodiscard]] PutOffSheet put(bool hasBalance) const;
    /// Lays what was put off over the sheet, which should be of its day. Returns sentences
    /// about what is no longer as it was: transactions that were removed or changed are not
    /// ticked, and items and accounts that are gone are left out.
    QStringList take(const PutOffSheet &sheet, const SheetBooks &books);
    /// Lays over the sheet what was entered on a former one of the account, since the books or
    /// the day are others now. Entries that were not on that one stay as begin() ticked them,
    /// and so does the balance. Items and accounts that are gone are left out.
    void goOnFrom(const SurveySheet &former, const SheetBooks &books);

private:
    [[nodiscard]] std::set<accounting::TransactionNumber> numbers() const;
    [[nodiscard]] std::optional<numira::Money> counted(const numira::Money &money) const;
    surveying::Distribution m_recorded; ///< by the last survey
    std::map<accounting::AccountNumber, budgeting::BudgetItemIdentifier> m_itemOf;
};

/// Completes the survey, as part of a deed. The account's sheet that was put off is forgotten.
/// Throws as SurveySheet::finished(), and a Refusal with the Navigator's reason.
KIV_WORKBENCH_EXPORT void complete(Document &document, const SurveySheet &sheet, bool hasConsent);

/// Sets nothing aside any more for which the account's last survey recorded it, as part of a
/// deed: by SurveyForm::drop(). Of an account that its bank keeps no more, which no survey can
/// name, the record itself goes. Throws a Refusal if there is no record.
KIV_WORKBENCH_EXPORT void dropSetAside(Document &document, const banking::BankAccount &account);

/// Puts the sheet off, as part of a deed, in place of a former one of the account. Throws a
/// Refusal if it has too many ticks to be kept.
KIV_WORKBENCH_EXPORT void putOff(Document &document, const SurveySheet &sheet, bool hasBalance);
/// Forgets the account's sheet that was put off.
KIV_WORKBENCH_EXPORT void forgetPutOff(Document &document, accounting::AccountNumber account);

/// How far the books of the open budget's bank accounts are from what their banks last said, by
/// bank and number.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<BooksDifference>
booksDifferences(Document &document);

/// The name of putting it off, without a place.
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed putOffDeed(Requests &requests, const SurveySheet &sheet);

} // namespace kiv::workbench
