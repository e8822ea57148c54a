// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/set_aside_text.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/money_text.h"

#include "foundation/presentation.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using foundation::presentationText;
using numira::Money;

namespace {

QString nameOf(accounting::AccountNumber number, const accounting::GeneralLedger &ledger)
{
    return ledger.hasLedger(number) ? plainNameOf(ledger.ledger(number))
                                    : accounting::presentationText(number);
}

QString beforeText(const SetAsideLine &line, const SetAside &account)
{
    if (!account.reconciledOn)
        return {};
    return line.isRecorded
               ? QObject::tr("set aside on %1").arg(presentationText(*account.reconciledOn))
               : QObject::tr("not set aside on %1").arg(presentationText(*account.reconciledOn));
}

/// "#16, #17", the first few of them.
QString postingsText(const std::vector<accounting::TransactionNumber> &postings,
                     const PostingName &nameOf)
{
    constexpr std::size_t shownMax = 4;
    QStringList numbers;
    for (const accounting::TransactionNumber number : postings) {
        if (std::cmp_equal(numbers.size(), shownMax)) {
            numbers += QStringLiteral("…");
            break;
        }
        numbers += nameOf(number);
    }
    return numbers.join(QStringLiteral(", "));
}

QString shareText(const SetAsideLine &line, const SetAside &account,
                  navigation::CurrencyDisplayOptions displayAs)
{
    return QObject::tr("%1 %2 = %3 a month, %n months", nullptr, account.months)
        .arg(amountText(line.amount, displayAs), budgeting::presentationText(line.every),
             amountText(line.monthly.rounded(), displayAs));
}

QString strandedText(const StrandedAmount &one, const accounting::GeneralLedger &ledger,
                     navigation::CurrencyDisplayOptions displayAs)
{
    const auto told = [&](const QString &sentence) {
        return sentence.arg(amountText(one.amount, displayAs), one.item.source.name(),
                            nameOf(one.account.account.number, ledger));
    };
    using enum StrandedAmount::Why;
    switch (one.why) {
    case AccountClosed:
        return told(QObject::tr("%1 is set aside for '%2' at %3, which is closed."));
    case AccountGone:
        return told(QObject::tr(
            "%1 is set aside for '%2' at %3, where nothing can be set aside any more."));
    case NotSetAside:
        return told(QObject::tr(
            "%1 was set aside for '%2' at %3, but nothing is set aside for it any more."));
    case OtherAccount:
        return told(QObject::tr("%1 is set aside for '%2' at %3 until that is reconciled again, "
                                "but its account lies elsewhere."));
    case OtherSurvey:
        break;
    }
    return told(QObject::tr("%1 is set aside for '%2' at %3 and also at another account, so no "
                            "line shows it."));
}

QString freeText(const SetAsideSum &sum, navigation::CurrencyDisplayOptions displayAs)
{
    const numira::Money free = sum.free();
    if (free.isNegative())
        return QObject::tr("Nothing is free to spend: %1 more is set aside than there is.")
            .arg(amountText(-free, displayAs));
    return QObject::tr("%1 is free to spend: %2 at the bank, of which %3 is set aside.")
        .arg(amountText(free, displayAs), amountText(sum.balance, displayAs),
             amountText(sum.setAside, displayAs));
}

} // namespace

QString postingNumber(accounting::TransactionNumber number)
{
    return QLatin1Char('#') + accounting::presentationText(number);
}

QString lackingRateText(const LackingRate &lacking)
{
    return QObject::tr("There is no exchange rate between %1 and %2.")
        .arg(foundation::toQString(lacking.first), foundation::toQString(lacking.second));
}

QString freeText(const Envelopes &all, navigation::CurrencyDisplayOptions displayAs)
{
    QStringList sentences;
    for (const auto &[currency, sum] : sumsOf(all))
        sentences += freeText(sum, displayAs);
    return sentences.join(QLatin1Char(' '));
}

QString stillDueText(const Envelopes &all, navigation::CurrencyDisplayOptions displayAs)
{
    std::map<numira::Currency, Money> due;
    for (const budgeting::BudgetItemAmountDue &one : all.dueYet)
        due.try_emplace(one.amount.code(), one.amount.code()).first->second += one.amount;
    QStringList amounts;
    for (const auto &[currency, amount] : due)
        amounts += amountText(amount, displayAs);
    if (amounts.isEmpty())
        return {};
    return QObject::tr("Still due until %1, of what is paid monthly: %2.")
        .arg(presentationText(all.dueUntil), QLocale().createSeparatedList(amounts));
}

PartReasons reasonsOf(const SetAsideLine &line, const SetAside &account,
                      navigation::CurrencyDisplayOptions displayAs, const PostingName &nameOf)
{
    if (!line.parts)
        return {};
    const SetAsideParts &parts = *line.parts;
    const QString postings = postingsText(line.postings, nameOf);
    PartReasons reasons;
    reasons.before = beforeText(line, account);
    if (!line.isByAccount) {
        reasons.added = shareText(line, account, displayAs);
        if (!line.postings.empty())
            reasons.paid = QObject::tr("paid: %1").arg(postings);
        if (!parts.adjusted.isZero())
            reasons.adjusted = QObject::tr("%1 more was paid than was set aside")
                                   .arg(amountText(parts.adjusted, displayAs));
        return reasons;
    }
    if (!parts.added.isZero())
        reasons.added = QObject::tr("put into its account: %1").arg(postings);
    if (!parts.paid.isZero())
        reasons.paid = QObject::tr("taken out of its account: %1").arg(postings);
    if (!parts.adjusted.isZero())
        reasons.adjusted = QObject::tr("%1 to the balance of its account")
                               .arg(amountText(parts.adjusted, displayAs));
    return reasons;
}

QStringList warningsOf(const SetAside &account, const accounting::GeneralLedger &ledger,
                       navigation::CurrencyDisplayOptions displayAs)
{
    const QString name = nameOf(account.account.account.number, ledger);
    QStringList notices;
    if (account.free().isNegative())
        notices += QObject::tr("At %1, %2 more is set aside than there is.")
                       .arg(name, amountText(-account.free(), displayAs));
    for (const SetAsideLine &line : account.lines) {
        if (line.lackingRate)
            notices +=
                QObject::tr("The sum at %1 leaves '%2' out.").arg(name, line.item.source.name()) +
                QLatin1Char(' ') + lackingRateText(*line.lackingRate);
        if (line.isOutside)
            notices += QObject::tr("The money of '%1' is in an account of its own that is not "
                                   "under %2, so the balance does not count it.")
                           .arg(line.item.source.name(), name);
    }
    for (const auto &[child, lacking] : account.leftOut)
        notices +=
            QObject::tr("The balance of %1 leaves '%2' out.").arg(name, nameOf(child, ledger)) +
            QLatin1Char(' ') + lackingRateText(lacking);
    return notices;
}

QStringList noticesOf(const SetAside &account, const accounting::GeneralLedger &ledger,
                      navigation::CurrencyDisplayOptions displayAs)
{
    QStringList notices;
    if (!account.reconciledOn)
        notices += QObject::tr("%1 was never reconciled; its lines count from %2.")
                       .arg(nameOf(account.account.account.number, ledger),
                            presentationText(account.start));
    return notices + warningsOf(account, ledger, displayAs);
}

QStringList sharedNoticesOf(const Envelopes &all, const accounting::GeneralLedger &ledger,
                            navigation::CurrencyDisplayOptions displayAs)
{
    QStringList notices;
    for (const StrandedAmount &one : all.stranded)
        notices += strandedText(one, ledger, displayAs);
    if (!all.shared.empty()) {
        QStringList names;
        for (const budgeting::BudgetItemIdentifier &item : all.shared)
            names += item.source.name();
        notices += QObject::tr("Several accounts have a line for the same item, until a survey of "
                               "one of them sets it aside: %1")
                       .arg(QLocale().createSeparatedList(names));
    }
    return notices;
}

} // namespace kiv::workbench
