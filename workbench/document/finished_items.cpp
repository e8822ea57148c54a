// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/finished_items.h"

#include "workbench/entry/description.h"
#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/item_changes.h"
#include "workbench/requests/paying_account.h"
#include "workbench/requests/transactions.h"

namespace kiv::workbench {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::LedgerAccount;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::EventFrequency;

namespace {

/// The item's account. Throws a Refusal if there is no such item, or if it is finished.
LedgerAccount accountToEnd(Requests &requests, const BudgetView &view,
                           const BudgetItemIdentifier &id)
{
    const budgeting::BudgetedMoney &item = view.find(id.source.name(), id.type);
    const Requests::Data data = requests.present();
    const auto number = accountOf(data, id);
    if (!number || !data.generalLedger.hasLedger(*number))
        throw internal::itemLacksAccount(id.source.name());
    LedgerAccount account = data.generalLedger.ledger(*number);
    if (account.isClosed() && item.period() == EventFrequency::None)
        throw internal::isFinished(id.source.name());
    return account;
}

/// Ends the item, and closes its account if that is possible.
void end(Requests &requests, const BudgetView &view, const BudgetItemIdentifier &id,
         const LedgerAccount &account, Finished &done)
{
    endItem(requests, navigation::GuiElementIdentifier(1), view, id);
    done.isClosed = account.isClosed();
    if (done.isClosed)
        return;
    try {
        requests.change(accountOutcome, &navigation::Navigator::onClosed, account.code());
        done.isClosed = true;
    } catch (const Refusal &refusal) {
        done.whyOpen = refusal.message();
    }
}

} // namespace

Finished finishGoal(Document &document, const QString &goal, const std::optional<AccountNumber> &to,
                    QDate day)
{
    Requests &requests = document.requests();
    const BudgetView view(requests);
    const BudgetItemIdentifier id{BudgetItemTypes::Goal, budgeting::BudgetSource(goal)};
    const LedgerAccount account = accountToEnd(requests, view, id);
    Finished done;
    const numira::Money held = account.balance();
    if (!held.isZero()) {
        const std::optional<AccountNumber> place = to ? to : account.code().parent();
        if (!place)
            throw internal::noPlaceFor(goal);
        AccountCode debited(*place, std::nullopt);
        AccountCode credited = account.code();
        if (held.isNegative())
            std::swap(debited, credited);
        const QString reason = QObject::tr("The goal '%1' is finished").arg(goal);
        done.number = post(requests, accounting::Transaction(day, debited, credited,
                                                             held.isNegative() ? -held : held,
                                                             Description{{}, reason, {}}.text()));
    }
    end(requests, view, id, account, done);
    return done;
}

Finished finishDebt(Document &document, const QString &debt)
{
    Requests &requests = document.requests();
    const BudgetView view(requests);
    const BudgetItemIdentifier id{BudgetItemTypes::Debt, budgeting::BudgetSource(debt)};
    const LedgerAccount account = accountToEnd(requests, view, id);
    const QString balance = amountText(account.balance(), requests.displayAs());
    if (account.balance().isPositive())
        throw internal::stillOwed(debt, balance);
    if (account.balance().isNegative())
        throw internal::paidTooMuch(debt, amountText(-account.balance(), requests.displayAs()));
    Finished done;
    end(requests, view, id, account, done);
    return done;
}

Deed finishDeed(const BudgetItemIdentifier &item)
{
    const QString name = item.source.name();
    if (item.type == BudgetItemTypes::Debt)
        return {QObject::tr("Finished the debt %1.").arg(name),
                QObject::tr("finishing the debt “%1”").arg(name),
                {}};
    return {QObject::tr("Finished the goal %1.").arg(name),
            QObject::tr("finishing the goal “%1”").arg(name),
            {}};
}

QStringList toldOf(Requests &requests, const Finished &done, const BudgetItemIdentifier &item)
{
    QStringList told;
    if (done.number) {
        const accounting::Transaction moved = requests.transaction(*done.number);
        const AccountIndex index = requests.accounts();
        told += QObject::tr("Moved %1 from %2 to %3 (transaction %4).")
                    .arg(amountText(moved.amount(), requests.displayAs()),
                         index.plainName(moved.crediting().number()),
                         index.plainName(moved.debiting().number()),
                         accounting::presentationText(*done.number));
    }
    const QString name = item.source.name();
    told += QObject::tr("'%1' recurs no longer.").arg(name);
    told += done.isClosed
                ? QObject::tr("Closed the account of '%1'.").arg(name)
                : QObject::tr("The account of '%1' stays open: %2").arg(name, done.whyOpen);
    return told;
}

} // namespace kiv::workbench
