// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/survey_sheet.h"

#include "workbench/entry/money_text.h"
#include "workbench/entry/values.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/paying_account.h"
#include "workbench/requests/settings.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"
#include "surveying/survey_rules.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;
using numira::Money;

namespace {

bool isCleared(const Transaction &transaction, const std::set<AccountNumber> &accounts)
{
    using accounting::TransactionStatuses;
    return (accounts.contains(transaction.debiting().number()) &&
            transaction.debitStatus() == TransactionStatuses::Cleared) ||
           (accounts.contains(transaction.crediting().number()) &&
            transaction.creditStatus() == TransactionStatuses::Cleared);
}

/// Nothing if the statement is zero.
std::optional<numira::Decimal> percentOfStatement(const Money &difference, const Money &statement)
{
    // In minor units, so that both factors are whole numbers.
    const unsigned digits = numira::minorUnitDigits(statement.code());
    const auto whole = statement.abs().amount().unitsOf(digits);
    const auto part = difference.abs().amount().unitsOf(digits);
    if (!whole || *whole == 0 || !part || difference.code() != statement.code())
        return std::nullopt;
    return numira::Decimal(*part).scaled(100, *whole).roundedHalfEven(2);
}

/// The line with unbooked money of its item counted as paid.
SetAsideLine withUnbooked(SetAsideLine line, const Money &change)
{
    if (!line.parts || line.isByAccount)
        return line; // a goal's account is counted as it is before the survey posts
    SetAsideParts &parts = *line.parts;
    const auto paid = convertedIfKnown(-change, parts.paid.code());
    if (!paid)
        return line;
    parts.adjusted = Money(parts.paid.code());
    parts.paid += paid->rounded();
    if (parts.now().isNegative())
        parts.adjusted = -parts.now();
    return line;
}

} // namespace

SheetBooks SheetBooks::of(Document &document)
{
    return {document.present(), document.keptReconciliations(), SurveyNotes::of(document.notes())};
}

SurveySheet SurveySheet::begin(Requests &requests, const SheetBooks &books, const QString &bank,
                               const QString &account, QDate day)
{
    SurveySheet sheet;
    SurveyForm &form = sheet.form;
    form = SurveyForm::propose(requests, bank, account, day);
    const std::optional<QDate> last = form.proposal.reconciled().reconciledOn();
    if (last && day < *last)
        throw internal::statementOlder(requests.accounts().plainName(form.account.account.number),
                                       day, *last);
    const CountedElsewhere &counted = books.notes.counted;
    form.elsewhere =
        reconciledElsewhere(form.account, day, books.data, books.reconciliations, counted);
    form.reconciled.clear();
    for (const Transaction &one : form.elsewhere) {
        form.reconciled.insert(one.number().value());
        form.balance += form.changeBy(one).rounded();
    }
    for (const Transaction &one : form.transactions()) {
        if (isCleared(one, form.accounts))
            form.reconciled.insert(one.number().value());
    }
    sheet.before = booksDifference(form.account, books.data, books.reconciliations, counted);
    sheet.window = presentSettings(requests).surveyWindow;
    form.settleGoals(requests);
    if (!form.isOwed()) {
        sheet.envelopes = setAsideAt(form.account, books.data, books.reconciliations, day);
        sheet.dueYet = surveying::monthlyPaymentsDue(day, books.data.budget, day);
    }
    if (const auto survey =
            books.data.surveys.lookUpSurvey(form.account.bank, form.account.account.number))
        sheet.m_recorded = survey->distribution();
    books.data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        const BudgetItemIdentifier id{budgeting::toBudgetItemTypes(item), item.source()};
        if (const auto number = accountOf(books.data, id))
            sheet.m_itemOf.emplace(*number, id);
    });
    return sheet;
}

// ---- what is entered ---------------------------------------------------------------

std::set<TransactionNumber> SurveySheet::numbers() const
{
    std::set<TransactionNumber> all;
    for (const Transaction &one : form.transactions())
        all.insert(one.number().value());
    return all;
}

void SurveySheet::tick(const std::set<TransactionNumber> &ticked)
{
    const std::set<TransactionNumber> all = numbers();
    QStringList strange;
    for (const TransactionNumber number : ticked) {
        if (!all.contains(number))
            strange += accounting::presentationText(number);
    }
    if (!strange.isEmpty())
        throw internal::notOnSheet(strange.join(QStringLiteral(", ")));
    form.reconciled = ticked;
}

std::set<TransactionNumber> SurveySheet::readTicks(const QString &text) const
{
    std::set<TransactionNumber> all = numbers();
    const QString word = text.simplified().toLower();
    const auto isWord = [&word](const char *english, const QString &local) {
        return word == QLatin1String(english) || word == local;
    };
    if (isWord("all", QObject::tr("all", "all transactions")))
        return all;
    if (isWord("none", QObject::tr("none", "no transactions")))
        return {};
    for (const QString &but : {QStringLiteral("all but "), QObject::tr("all but") + u' '}) {
        if (!word.startsWith(but))
            continue;
        std::set<TransactionNumber> rest;
        std::ranges::set_difference(all, readTicks(word.mid(but.size())),
                                    std::inserter(rest, rest.end()));
        return rest;
    }
    std::set<TransactionNumber> ticked;
    for (const QString &part : word.split(u',')) {
        const QStringList ends = part.trimmed().split(u'-');
        bool areNumbers = ends.size() <= 2;
        std::vector<uint> span;
        for (const QString &end : ends) {
            bool isNumber = false;
            span.push_back(end.trimmed().toUInt(&isNumber));
            areNumbers = areNumbers && isNumber;
        }
        if (!areNumbers || span.front() > span.back())
            throw internal::notTicks(text);
        bool isFound = false;
        for (const TransactionNumber number : all) {
            if (number.integer() >= span.front() && number.integer() <= span.back()) {
                ticked.insert(number);
                isFound = true;
            }
        }
        if (!isFound)
            throw internal::notOnSheet(part.trimmed());
    }
    return ticked;
}

void SurveySheet::addUnbooked(Requests &requests, const QString &text)
{
    const auto [name, value] = assignment(text);
    Amount amount;
    readValue(value, amount);
    const Money change = amount.in(form.balance.code());
    const AccountIndex index = requests.accounts();
    const AccountNumber number = index.find(name).code().number();
    addUnbooked(number, change);
}

void SurveySheet::addUnbooked(AccountNumber number, const Money &change)
{
    if (form.accounts.contains(number))
        throw internal::staysInAccount();
    if (const auto item = m_itemOf.find(number); item != m_itemOf.end())
        form.items.insert_or_assign(item->second, change);
    else
        form.extras.insert_or_assign(number, change);
}

Money SurveySheet::missingFor(AccountNumber number) const
{
    Money missing = figures().difference;
    const auto add = [&missing](const auto &named, const auto &key) {
        if (const auto found = named.find(key); found != named.end())
            missing += found->second;
    };
    if (const auto item = m_itemOf.find(number); item != m_itemOf.end())
        add(form.items, item->second);
    else
        add(form.extras, number);
    return missing.rounded();
}

void SurveySheet::setAside(Requests &requests, const QString &text)
{
    const auto [name, value] = assignment(text);
    Amount amount;
    readValue(value, amount);
    const BudgetItemIdentifier item = BudgetView(requests).findTyped(name);
    const Money money = amount.in(form.balance.code());
    if (exact)
        (*exact)[item] = money;
    else
        typed[item] = money;
}

QString SheetFigures::percentText() const
{
    if (!percent)
        return {};
    if (percent->sign() == 0 && !difference.isZero())
        return QObject::tr("under %1 %").arg(QLocale().toString(0.01, 'f', 2));
    return QObject::tr("%1 %").arg(QLocale().toString(percent->toDouble(), 'f', 2));
}

// ---- what it comes to --------------------------------------------------------------

SheetFigures SurveySheet::figures() const
{
    SheetFigures figures;
    figures.statement = form.balance;
    figures.difference = form.missing().rounded();
    figures.calculated = form.balance - figures.difference;
    figures.before = before ? before->amount : Money(form.balance.code());
    figures.percent = percentOfStatement(figures.difference, figures.statement);
    figures.isAccepted =
        form.isOwed() || surveying::agrees(figures.calculated, window, figures.statement);
    return figures;
}

std::optional<Money> SurveySheet::counted(const Money &money) const
{
    const auto converted = convertedIfKnown(money, form.balance.code());
    return converted && money.code() != form.balance.code() ? converted->rounded() : converted;
}

std::vector<SheetLine> SurveySheet::lines() const
{
    std::vector<SheetLine> all;
    for (const SetAsideLine &one : envelopes.lines) {
        SheetLine line;
        const auto unbooked = form.items.find(one.item);
        line.line = unbooked == form.items.end() ? one : withUnbooked(one, unbooked->second);
        const surveying::Distribution &proposals = form.distribution;
        if (const auto found = proposals.find(one.item); found != proposals.end())
            line.proposed = found->second.distributed();
        if (const auto found = typed.find(one.item); found != typed.end())
            line.typed = found->second;
        if (line.typed)
            line.now = *line.typed;
        else if (isAsProposed && line.proposed)
            line.now = *line.proposed;
        else if (line.line.parts)
            line.now = line.line.parts->now();
        else if (const auto found = m_recorded.find(one.item); found != m_recorded.end())
            line.now = found->second.distributed(); // it stays, since nothing more is known
        else
            line.now = Money(one.amount.code());
        line.isHandedOver = !line.now.isZero() || (isAsProposed && !line.typed);
        if (exact) {
            const auto given = exact->find(one.item);
            line.isHandedOver = given != exact->end();
            line.now = line.isHandedOver ? given->second.distributed() : Money(one.amount.code());
        }
        all.push_back(std::move(line));
    }
    return all;
}

surveying::Distribution SurveySheet::distribution() const
{
    if (exact)
        return *exact;
    surveying::Distribution given;
    // What has no line is refused with its name, or held by another account.
    for (const auto &[item, money] : typed) {
        if (!money.isZero())
            given[item] = money;
    }
    for (const SheetLine &one : lines()) {
        if (one.isHandedOver)
            given[one.line.item] =
                surveying::DistributedAmount(one.now, one.line.next, one.line.expected);
        else
            given.erase(one.line.item);
    }
    return given;
}

Money SurveySheet::rest() const
{
    Money rest = form.balance;
    for (const auto &[item, amount] : distribution())
        rest -= counted(amount.distributed()).value_or(Money(rest.code()));
    return rest;
}

QStringList SurveySheet::notices(const accounting::GeneralLedger &ledger,
                                 navigation::CurrencyDisplayOptions displayAs) const
{
    QStringList all;
    if (before)
        all += before->sentence(ledger, displayAs);
    if (form.isOwed())
        return all;
    if (rest().isNegative())
        all += QObject::tr("%1 more is set aside than there is; set less aside for some of it.")
                   .arg(amountText(-rest(), displayAs));
    for (const SheetLine &one : lines()) {
        if (one.line.lackingRate || !counted(one.now))
            all += QObject::tr("The rest does not count what is set aside for '%1': there is no "
                               "exchange rate.")
                       .arg(one.line.item.source.name());
    }
    return all;
}

SurveyForm SurveySheet::finished(bool hasConsent) const
{
    for (const auto &[number, item] : m_itemOf) {
        if (form.items.contains(item) && form.accounts.contains(number))
            throw internal::staysInAccount();
    }
    if (!hasConsent) {
        const SheetFigures now = figures();
        if (now.wantsConsent() && now.isAccepted)
            throw internal::differenceNotAccepted();
    }
    SurveyForm whole = form;
    whole.distribution = distribution();
    whole.nonDistributed = nonDistributed.value_or(rest());
    return whole;
}

} // namespace kiv::workbench
