// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/needed_care.h"

#include "workbench/entry/account_index.h"
#include "workbench/requests/account_groups.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/surveys/set_aside_text.h"
#include "workbench/surveys/survey_sheet.h"

#include "foundation/presentation.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using accounting::AccountNumber;
using navigation::Navigator;
using storage::BudgetStorage;

namespace {

using About = Care::About;

void addBroken(Document &document, std::vector<Care> &all)
{
    // Of each account the first, so that one cause does not give a flood.
    std::set<AccountNumber> told;
    for (const JudgedReconciliation &one : document.reconciliations()) {
        if (!one.holds() && told.insert(one.account.account.number).second)
            all.push_back({About::Reconciliation, inPlainWords(document.sentence(one)),
                           one.account.account.number});
    }
}

/// The day of the first transaction; invalid without one.
QDate firstDay(const accounting::Account &account)
{
    QDate first;
    for (const accounting::Transaction &transaction : account.transactions()) {
        if (!first.isValid() || transaction.occurredOn() < first)
            first = transaction.occurredOn();
    }
    return first;
}

/// The sentence if the account was not reconciled for long; empty if it was.
QString longNotReconciled(const BudgetStorage::Data &data, const banking::BankName &bank,
                          AccountNumber number, QDate today)
{
    const accounting::LedgerAccount account = data.generalLedger.ledger(number);
    if (account.isClosed())
        return {};
    const auto survey = data.surveys.lookUpSurvey(bank, number);
    const std::optional<QDate> last = survey ? survey->reconciled().reconciledOn() : std::nullopt;
    const QDate since = last ? *last : firstDay(account);
    if (!since.isValid() || since.daysTo(today) <= reconciledDaysMax)
        return {};
    const QString name = plainNameOf(account);
    return last ? QObject::tr("%1 was last reconciled on %2.")
                      .arg(name, foundation::presentationText(*last))
                : QObject::tr("%1 was never reconciled.").arg(name);
}

void addLongNotReconciled(const BudgetStorage::Data &data, QDate today, std::vector<Care> &all)
{
    for (const auto &[name, bank] : data.banks) {
        for (const auto &[number, type] : bank.accounts()) {
            // An account under another has no statement of its own.
            if (type == banking::BankAccountTypes::GoalSubAccount ||
                !data.generalLedger.hasLedger(number))
                continue;
            const QString sentence = longNotReconciled(data, name, number, today);
            if (!sentence.isEmpty())
                all.push_back({About::LongNotReconciled, sentence, number});
        }
    }
}

/// The items and the other accounts of these currencies.
QStringList namesIn(const BudgetStorage::Data &data, const std::set<numira::Currency> &currencies)
{
    QStringList names;
    data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        if (currencies.contains(item.amount().code()))
            names += item.source().name();
    });
    for (const GroupedAccount &one : groupedAccounts(data)) {
        // The user made no account of equity.
        if (one.account.type() != accounting::AccountTypes::Equity &&
            currencies.contains(one.account.balance().code()) && !names.contains(one.name))
            names += one.name;
    }
    return names;
}

void addMissingRates(Requests &requests, const BudgetStorage::Data &data, std::vector<Care> &all)
{
    const numira::Currency preferred = requests.preferredCurrency();
    std::set<numira::Currency> used = budgeting::containedCurrencies(data.budget);
    used.merge(accounting::containedCurrencies(data.generalLedger));
    QStringList missing;
    std::set<numira::Currency> lacking;
    for (const numira::Currency &currency : used) {
        if (convertedIfKnown(numira::Money(currency, 1, 0), preferred))
            continue;
        missing += foundation::toQString(currency);
        lacking.insert(currency);
    }
    if (!missing.isEmpty())
        all.push_back(
            {About::Rates,
             QObject::tr("There is no exchange rate between %1 and %2; it is needed for: %3.")
                 .arg(QLocale().createSeparatedList(missing), foundation::toQString(preferred),
                      QLocale().createSeparatedList(namesIn(data, lacking))),
             std::nullopt});
}

void addHealth(Requests &requests, std::vector<Care> &all)
{
    const std::optional<adviser::BudgetHealth> health = healthOf(requests);
    if (!health)
        all.push_back(
            {About::Rates,
             QObject::tr("The budget's health is not judged, since an exchange rate is missing."),
             std::nullopt});
    if (!health || health->grade() == adviser::HealthGrade::Unknown)
        return;
    for (const adviser::HealthReason &reason : health->reasons()) {
        if (!reason.isSound)
            all.push_back({About::Health, reason.text, std::nullopt});
    }
}

} // namespace

std::optional<adviser::BudgetHealth> healthOf(Requests &requests)
{
    try {
        return std::get<adviser::BudgetHealth>(
            requests.ask(&Navigator::showDashboard, &Navigator::onPrepareShowDashboard));
    } catch (const foundation::Error &) {
        return std::nullopt;
    }
}

std::vector<Care> neededCare(Document &document, QDate today)
{
    std::vector<Care> all;
    if (const std::optional<Trouble> trouble = document.whyNotSaved())
        all.push_back({About::File,
                       QObject::tr("The last changes are not saved. %1").arg(trouble->sentence),
                       std::nullopt});
    const BudgetStorage::Data data = document.present();
    addBroken(document, all);
    for (const BooksDifference &one : booksDifferences(document))
        all.push_back({About::Difference,
                       one.sentence(data.generalLedger, document.requests().displayAs()),
                       one.account.account.number});
    addMissingRates(document.requests(), data, all);
    addLongNotReconciled(data, today, all);
    addHealth(document.requests(), all);
    return all;
}

std::vector<Care> setAsideCare(const Envelopes &all, const accounting::GeneralLedger &ledger,
                               navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Care> cares;
    for (const SetAside &one : all.accounts) {
        for (const QString &sentence : warningsOf(one, ledger, displayAs))
            cares.push_back({About::SetAside, sentence, one.account.account.number});
    }
    for (const QString &sentence : sharedNoticesOf(all, ledger, displayAs))
        cares.push_back({About::SetAside, sentence, std::nullopt});
    return cares;
}

} // namespace kiv::workbench
