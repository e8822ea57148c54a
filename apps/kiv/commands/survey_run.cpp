// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/survey_run.h"

#include "messages/message_log.h"
#include "output/dialogue.h"
#include "output/json.h"
#include "output/survey_json.h"
#include "output/survey_report.h"
#include "program/program.h"

#include "workbench/entry/money_text.h"
#include "workbench/surveys/difference_guess.h"

#include "foundation/presentation.h"

namespace kiv::app {

using Why = workbench::DifferenceGuess::Why;
using workbench::DifferenceGuess;

namespace {

/// One run through the questions.
class Run {
public:
    Run(Call &call, SheetArguments::Begun &begun)
        : m_call(call),
          m_sheet(begun.sheet),
          m_index(call.requests.accounts()),
          m_displayAs(call.document.displayAs())
    {
    }

    /// Whether the balance is known.
    bool hasBalance = false;
    /// Whether the ticks are known.
    bool hasTicks = false;
    /// Whether a difference may stay.
    bool hasConsent = false;

    void askBalance()
    {
        if (hasBalance)
            return;
        m_dialogue.until(
            QObject::tr("Balance of the statement (empty: %1)").arg(text(m_sheet.form.balance)),
            [&](const QString &answer) {
                if (answer.isEmpty())
                    return;
                workbench::Amount amount;
                readValue(answer, amount);
                m_sheet.form.balance = amount.in(m_sheet.form.balance.code());
            });
        hasBalance = true;
    }

    void askTicks()
    {
        if (m_sheet.form.transactions().empty() || (hasTicks && agrees()))
            return;
        const auto ticked = static_cast<int>(m_sheet.form.reconciled.size());
        const QString question =
            ticked == 0
                ? QObject::tr("Which are on the statement? 1-5,9, 'all but 3', 'none', 'ask' "
                              "(empty: all)")
                : QObject::tr("Which are on the statement? 1-5,9, 'all', 'all but 3', 'ask' "
                              "(empty: the %n ticked)",
                              nullptr, ticked);
        bool asksEach = false;
        m_dialogue.until(question, [&](const QString &answer) {
            asksEach = answer.toLower() == u"ask" || answer.toLower() == QObject::tr("ask");
            if (!asksEach && (!answer.isEmpty() || ticked == 0))
                m_sheet.form.reconciled =
                    m_sheet.readTicks(answer.isEmpty() ? QStringLiteral("all") : answer);
        });
        if (asksEach)
            askEach();
    }

    /// Shows how far they agree, and asks what the difference is.
    void askDifference()
    {
        show();
        if (agrees())
            return;
        takeGuess();
        bool isDone = agrees();
        while (!isDone) {
            m_dialogue.until(
                QObject::tr("What is on the statement but not in the books, as NAME=AMOUNT, or "
                            "NAME for all that is missing? (empty to continue)"),
                [&](const QString &answer) {
                    isDone = answer.isEmpty();
                    if (!isDone)
                        addUnbooked(answer);
                });
            if (!isDone)
                show();
            isDone = isDone || agrees();
        }
        if (!m_sheet.figures().isAccepted && tickAnew())
            return askDifference();
        const workbench::SheetFigures figures = m_sheet.figures();
        hasConsent = figures.wantsConsent() && figures.isAccepted &&
                     m_dialogue.agrees(QObject::tr("May the difference of %1 stay? It is told "
                                                   "until it is gone.")
                                           .arg(text(figures.difference)),
                                       false);
    }

    /// Whether nothing stands against completing.
    [[nodiscard]] bool canComplete() const
    {
        const workbench::SheetFigures figures = m_sheet.figures();
        return figures.isAccepted && (hasConsent || !figures.wantsConsent());
    }

    void askSetAside()
    {
        if (m_sheet.form.isOwed())
            return;
        Report report;
        addSetAside(report, m_call.document, m_sheet);
        const auto ledger = m_call.document.present().generalLedger;
        for (const QString &notice : m_sheet.notices(ledger, m_displayAs))
            report.line(notice);
        write(report);
        m_dialogue.each(QObject::tr("Amount to set aside for an item, as ITEM=AMOUNT"),
                        [&](const QString &answer) { m_sheet.setAside(m_call.requests, answer); });
    }

    bool agree(const QString &question) { return m_dialogue.agrees(question, true); }

    void write(const Report &report) { report.writeText(m_call.program.terminal(), m_displayAs); }

private:
    [[nodiscard]] QString text(const numira::Money &money) const
    {
        return workbench::amountText(money, m_displayAs);
    }
    [[nodiscard]] bool agrees() const { return m_sheet.figures().difference.isZero(); }
    void show()
    {
        Report report;
        addFigures(report, m_call.document, m_sheet);
        write(report);
    }
    [[nodiscard]] QString named(const accounting::Transaction &entry) const
    {
        return entryText(entry, m_sheet.form, m_index, m_displayAs);
    }

    void askEach()
    {
        std::set<accounting::TransactionNumber> ticked;
        for (const accounting::Transaction &one : m_sheet.form.transactions()) {
            if (agree(QObject::tr("%1: is it on the statement?").arg(named(one))))
                ticked.insert(one.number().value());
        }
        m_sheet.form.reconciled = std::move(ticked);
    }

    /// Asks for other ticks while the difference is too large. Returns whether there are some.
    bool tickAnew()
    {
        bool isNew = false;
        m_dialogue.until(QObject::tr("Which are on the statement? 1-5,9, 'all', 'all but 3' "
                                     "(empty: leave it so)"),
                         [&](const QString &answer) {
                             isNew = !answer.isEmpty();
                             if (isNew)
                                 m_sheet.form.reconciled = m_sheet.readTicks(answer);
                         });
        return isNew;
    }

    /// Offers the likeliest reason, if ticks can mend it.
    void takeGuess()
    {
        const std::vector<DifferenceGuess> guesses =
            guessesOf(m_sheet.form, m_sheet.figures().difference);
        if (guesses.empty())
            return;
        const DifferenceGuess &first = guesses.front();
        std::set<accounting::TransactionNumber> ticked = m_sheet.form.reconciled;
        QString question;
        if (first.why == Why::OpenEntry || first.why == Why::TwoOpenEntries ||
            first.why == Why::AllOpenEntries) {
            for (const accounting::Transaction &one : first.entries)
                ticked.insert(one.number().value());
            question = tickQuestion(first);
        } else if (first.why == Why::NotOnStatement) {
            ticked.erase(first.entries[0].number().value());
            question = QObject::tr("Take the tick of %1 away?").arg(named(first.entries[0]));
        }
        if (!question.isEmpty() && agree(question)) {
            m_sheet.form.reconciled = std::move(ticked);
            show();
        }
    }

    [[nodiscard]] QString tickQuestion(const DifferenceGuess &guess) const
    {
        if (guess.why == Why::AllOpenEntries)
            return QObject::tr("Tick all %n that are not ticked yet?", nullptr,
                               static_cast<int>(guess.entries.size()));
        if (guess.why == Why::OpenEntry)
            return QObject::tr("Tick %1?").arg(named(guess.entries[0]));
        return QObject::tr("Tick %1, and %2?")
            .arg(named(guess.entries[0]), named(guess.entries[1]));
    }

    void addUnbooked(const QString &answer)
    {
        if (answer.contains(u'='))
            return m_sheet.addUnbooked(m_call.requests, answer);
        const accounting::AccountNumber number = m_index.find(answer).code().number();
        m_sheet.addUnbooked(number, m_sheet.missingFor(number));
    }

    Call &m_call;
    SurveySheet &m_sheet;
    AccountIndex m_index;
    navigation::CurrencyDisplayOptions m_displayAs;
    Dialogue m_dialogue;
};

/// Takes the sheet up that was put off, and shows what is new since. Returns whether it had a
/// balance.
bool takeUp(Run &run, SheetArguments::Begun &begun, const workbench::PutOffSheet &former)
{
    Report report;
    report.line(QObject::tr("The survey of %1 goes on, as it was put off.")
                    .arg(foundation::presentationText(former.day)));
    for (const QString &notice : begun.sheet.take(former, begun.books))
        report.line(notice);
    run.write(report);
    return former.balance.has_value();
}

void tellHead(Run &run, Call &call, const SheetArguments::Begun &begun)
{
    const SurveySheet &sheet = begun.sheet;
    const QJsonObject json = toJson(sheet, call.requests);
    Report report;
    report.list({{QObject::tr("Bank"), QStringLiteral("bank")},
                 {QObject::tr("Account"), QStringLiteral("account"),
                  accountText(std::make_shared<const AccountIndex>(call.requests.accounts()))},
                 {QObject::tr("Day of the statement"), QStringLiteral("date"), dayText},
                 {QObject::tr("Last reconciled on"), QStringLiteral("reconciledOn"), dayText},
                 {QObject::tr("Reconciled balance"), QStringLiteral("reconciledBalance")}},
                json);
    addTicks(report, call.document, sheet);
    if (sheet.before)
        report.line(sheet.before->sentence(call.document.present().generalLedger,
                                           call.document.displayAs()));
    if (begun.statement) {
        for (const QString &notice : begun.statement->notices)
            report.line(notice);
        if (const QString unknown = begun.statement->unknownText(call.document.displayAs());
            !unknown.isEmpty())
            report.line(unknown).line(
                QObject::tr("To enter them, leave the survey and use kiv import."));
    }
    run.write(report);
}

Report putOff(Call &call, const SurveySheet &sheet)
{
    workbench::putOff(call.document, sheet, true);
    const workbench::Deed deed = putOffDeed(call.requests, sheet);
    Report report(toJson(sheet, call.requests));
    report.setChange(deed.line);
    return report.line(deed.line).line(
        QObject::tr("To go on with it, use kiv survey run for this account."));
}

} // namespace

void RunSurvey::declare(Arguments &arguments)
{
    which.declare(arguments);
    arguments.flag("--anew", isAnew, QObject::tr("Begin anew, instead of with what was put off"));
}

Report RunSurvey::run(Call &call) const
{
    const accounting::AccountNumber number = which.bankAccount(call).account.number;
    const workbench::SurveyNotes notes = workbench::SurveyNotes::of(call.document.notes());
    const auto former = notes.putOff.find(number);
    const bool goesOn = !isAnew && former != notes.putOff.end() && !which.bankFile &&
                        call.options.date.value_or(former->second.day) == former->second.day;
    SheetArguments::Begun begun =
        which.begin(call, call.options.date, goesOn ? former->second.day : foundation::today());
    Run run(call, begun);
    if (goesOn)
        run.hasBalance = takeUp(run, begun, former->second);
    tellHead(run, call, begun);
    run.hasBalance = run.hasBalance || (begun.statement && begun.statement->balance);
    run.hasTicks = begun.statement.has_value();
    run.askBalance();
    run.askTicks();
    run.askDifference();
    if (run.canComplete()) {
        run.askSetAside();
        if (run.agree(QObject::tr("Complete the survey?")))
            return completed(call, begun.sheet, run.hasConsent);
    }
    if (run.agree(QObject::tr("Put the survey off, to go on with it later?")))
        return putOff(call, begun.sheet);
    throw surveyGivenUp();
}

Report completed(Call &call, const SurveySheet &sheet, bool hasConsent)
{
    const accounting::AccountNumber number = sheet.form.account.account.number;
    const AccountIndex index = call.requests.accounts();
    Report report(toJson(sheet, call.requests));
    const bool differs = hasConsent && sheet.figures().wantsConsent();
    complete(call.document, sheet, hasConsent);
    report.setChange(
        QObject::tr("Survey of %1, %2")
            .arg(index.plainName(number), foundation::presentationText(sheet.form.date)));
    report.line(QObject::tr("Reconciled %1 at %2 with a balance of %3.")
                    .arg(index.label(number), sheet.form.account.bank.institution(),
                         amountText(toJson(sheet.form.balance), call.requests.displayAs())));
    if (differs)
        report.line(
            QObject::tr("The books stay %1.")
                .arg(workbench::belowBankText(sheet.figures().after(), call.document.displayAs())));
    return report;
}

} // namespace kiv::app
