// SPDX-License-Identifier: GPL-3.0-or-later
// What is set aside, what is free, and the tolerance of a survey.
#include "workbench/explain/explainer.h"

#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"
#include "workbench/internal/faults_of_explanations.h"
#include "workbench/requests/settings.h"
#include "workbench/surveys/set_aside_text.h"
#include "workbench/surveys/survey_form.h"

#include "foundation/presentation.h"
#include "surveying/survey_rules.h"

#include <algorithm>

namespace kiv::workbench {

using accounting::AccountNumber;
using foundation::presentationText;
using numira::Money;

namespace {

/// What the account holds, and why some of it is not counted.
void addAccount(Explanation &made, const SetAside &account, const AccountIndex &index,
                const QStringList &warnings)
{
    const QString name = index.plainName(account.account.account.number);
    made.lines.push_back(
        {LineRole::Adds, QObject::tr("Balance of %1").arg(name), account.balance, {}, account.day});
    for (const SetAsideLine &line : account.lines) {
        if (line.counted && !line.counted->isZero())
            made.lines.push_back({LineRole::Adds,
                                  QObject::tr("Set aside for %1").arg(line.item.source.name()),
                                  -*line.counted});
    }
    for (const QString &warning : warnings)
        made.lines.push_back({LineRole::Tells, warning});
}

} // namespace

Explanation Explainer::setAside(AccountNumber number,
                                const budgeting::BudgetItemIdentifier &item) const
{
    const Envelopes all = envelopes(m_data, m_document.keptReconciliations(), m_today);
    const std::vector<SetAsideHere> here = linesOf(all, item);
    const auto found = std::ranges::find_if(here, [number](const SetAsideHere &one) {
        return one.account->account.account.number == number;
    });
    const QString name = m_index.plainName(number);
    if (found == here.end())
        throw internal::notSetAside(item.source.name(), name);
    const SetAsideLine &line = *found->line;
    if (!line.parts)
        throw internal::noExchangeRate(line.lackingRate.value().first,
                                       line.lackingRate.value().second);
    Explanation made{
        QObject::tr("Set aside for %1 at %2").arg(item.source.name(), name), line.parts->now(), {}};
    const PartReasons reasons = reasonsOf(line, *found->account, m_displayAs);
    const auto add = [&made](const QString &what, const Money &amount, const QString &reason,
                             QDate day = {}) {
        if (!reason.isEmpty() || !amount.isZero())
            made.lines.push_back(
                {LineRole::Adds,
                 reason.isEmpty() ? what : QStringLiteral("%1: %2").arg(what, reason),
                 amount,
                 {},
                 day});
    };
    add(QObject::tr("Before"), line.parts->before, reasons.before,
        found->account->reconciledOn.value_or(QDate()));
    add(QObject::tr("Added"), line.parts->added, reasons.added);
    add(QObject::tr("Paid"), -line.parts->paid, reasons.paid);
    add(QObject::tr("Adjusted"), line.parts->adjusted, reasons.adjusted);
    if (made.lines.empty())
        made.lines.push_back({LineRole::Tells, QObject::tr("There are no transactions.")});
    return made;
}

std::vector<Explanation> Explainer::freeMoney() const
{
    const Envelopes all = envelopes(m_data, m_document.keptReconciliations(), m_today);
    if (all.accounts.empty())
        throw internal::noEnvelopes();
    std::vector<Explanation> made;
    for (const auto &[currency, sum] : sumsOf(all)) {
        Explanation one{
            QObject::tr("Free to spend in %1").arg(presentationText(currency)), sum.free(), {}};
        for (const SetAside &account : all.accounts) {
            if (account.balance.code() == currency)
                addAccount(one, account, m_index,
                           warningsOf(account, m_data.generalLedger, m_displayAs));
        }
        made.push_back(std::move(one));
    }
    return made;
}

Explanation Explainer::tolerance(AccountNumber number, std::optional<Money> statement) const
{
    const QString name = m_index.plainName(number);
    const SurveyForm form = SurveyForm::propose(
        m_document.requests(), m_document.requests().bankAccount(number, name).bank.institution(),
        accounting::presentationText(number), m_today);
    if (form.isOwed())
        throw internal::owedIsNotRefused(name);
    const numira::Currency currency = form.balance.code();
    if (statement && statement->code() != currency)
        throw internal::otherCurrency(name, foundation::toQString(currency),
                                      foundation::toQString(statement->code()));
    const Money balance = statement.value_or(form.balance);
    const foundation::Percentage window = presentSettings(m_document.requests()).surveyWindow;
    Explanation made{QObject::tr("How far the books of %1 may be from the statement").arg(name),
                     surveying::toleranceOf(balance, window),
                     {}};
    if (balance.isZero()) {
        made.lines.push_back({LineRole::Adds,
                              QObject::tr("less than one unit, since a part of zero is zero"),
                              Money(currency, 1, 0)});
        return made;
    }
    made.lines.push_back(
        {LineRole::Adds,
         statement ? QObject::tr("Balance of the statement") : QObject::tr("Expected balance"),
         balance.abs(),
         {},
         m_today});
    made.lines.push_back({LineRole::Times,
                          QObject::tr("the window of %1").arg(presentationText(window)),
                          {},
                          numira::FloatingPoint(window.fraction().toText())});
    return made;
}

} // namespace kiv::workbench
