// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/entry_forms.h"

#include "workbench/entry/description.h"
#include "workbench/entry/money_text.h"

namespace kiv::workbench {

using accounting::Transaction;

QString payeeAndReason(const Transaction &transaction)
{
    const Description parts = Description::of(transaction.description());
    if (!parts.payee.isEmpty() && !parts.reason.isEmpty())
        return QObject::tr("%1: %2").arg(parts.payee, parts.reason);
    return parts.payee + parts.reason;
}

QString nameOf(const Transaction &transaction, navigation::CurrencyDisplayOptions displayAs)
{
    const QString text = payeeAndReason(transaction);
    return text.isEmpty() ? amountText(transaction.amount(), displayAs) : text;
}

namespace {

/// What was spent on, or earned from, `others`.
Deed flowDeed(EntryForm form, const QString &amount, const QString &others)
{
    if (form == EntryForm::Earned) {
        return {QObject::tr("Earned %1 from %2.").arg(amount, others),
                QObject::tr("earning %1 from %2").arg(amount, others),
                {}};
    }
    return {QObject::tr("Spent %1 on %2.").arg(amount, others),
            QObject::tr("spending %1 on %2").arg(amount, others),
            {}};
}

} // namespace

Deed enterDeed(Requests &requests, const Entry &entry)
{
    const AccountIndex index = requests.accounts();
    const accounting::Account *own = index.find(entry.own);
    const accounting::Account *other = index.find(entry.other);
    if (!own || !other)
        return {};
    const bool isMoved = entry.form == EntryForm::Moved;
    const numira::Currency currency = (isMoved ? other : own)->balance().code();
    const QString amount = amountText(entry.amount.in(currency), requests.displayAs());
    const QString ownName = index.plainName(entry.own);
    const QString otherName = index.plainName(entry.other);
    if (!isMoved)
        return flowDeed(entry.form, amount, otherName);
    return {QObject::tr("Moved %1 from %2 to %3.").arg(amount, ownName, otherName),
            QObject::tr("moving %1 from %2 to %3").arg(amount, ownName, otherName),
            {}};
}

Deed splitDeed(Requests &requests, const SplitEntry &entry)
{
    const AccountIndex index = requests.accounts();
    QStringList others;
    for (const SplitLine &line : entry.lines)
        others += index.plainName(line.other);
    others.removeDuplicates();
    return flowDeed(entry.form, amountText(splitTotal(entry, index), requests.displayAs()),
                    others.join(QStringLiteral(", ")));
}

Deed changeDeed(Requests &requests, const Transaction &transaction)
{
    const QString name = nameOf(transaction, requests.displayAs());
    return {QObject::tr("Changed “%1”.").arg(name), QObject::tr("changing “%1”").arg(name), {}};
}

Deed refundDeed(Requests &requests, const Amount &amount, const Transaction &transaction)
{
    const auto displayAs = requests.displayAs();
    const QString name = nameOf(transaction, displayAs);
    const QString text = amountText(amount.in(transaction.amount().code()), displayAs);
    return {QObject::tr("Refunded %1 of “%2”.").arg(text, name),
            QObject::tr("refunding %1 of “%2”").arg(text, name),
            {}};
}

Deed removeDeed(Requests &requests, const std::vector<Transaction> &transactions)
{
    if (transactions.size() == 1) {
        const QString name = nameOf(transactions.front(), requests.displayAs());
        return {QObject::tr("Removed “%1”.").arg(name), QObject::tr("removing “%1”").arg(name), {}};
    }
    const auto count = static_cast<int>(transactions.size());
    return {QObject::tr("Removed %n transaction(s).", nullptr, count),
            QObject::tr("removing %n transaction(s)", nullptr, count),
            {}};
}

Deed markDeed(std::size_t count, Marking marking)
{
    const auto number = static_cast<int>(count);
    switch (marking) {
    case Marking::Clear:
        return {QObject::tr("Marked %n transaction(s) as cleared.", nullptr, number),
                QObject::tr("marking %n transaction(s) as cleared", nullptr, number),
                {}};
    case Marking::TakeClearedBack:
        return {QObject::tr("Marked %n transaction(s) as not cleared.", nullptr, number),
                QObject::tr("marking %n transaction(s) as not cleared", nullptr, number),
                {}};
    case Marking::Reconcile:
        return {QObject::tr("Marked %n transaction(s) as reconciled.", nullptr, number),
                QObject::tr("marking %n transaction(s) as reconciled", nullptr, number),
                {}};
    case Marking::TakeReconciledBack:
        break;
    }
    return {QObject::tr("Marked %n transaction(s) as not reconciled.", nullptr, number),
            QObject::tr("marking %n transaction(s) as not reconciled", nullptr, number),
            {}};
}

Deed recategorizeDeed(std::size_t count, const QString &category)
{
    const auto number = static_cast<int>(count);
    return {QObject::tr("Put %n transaction(s) under %1.", nullptr, number).arg(category),
            QObject::tr("putting %n transaction(s) under %1", nullptr, number).arg(category),
            {}};
}

} // namespace kiv::workbench
