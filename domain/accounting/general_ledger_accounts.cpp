// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/general_ledger.h"

#include "accounting/internal/faults.h"
#include "accounting/internal/ledger_state.h"
#include "accounting/internal/posting.h"
#include "accounting/number_handout.h"

#include "foundation/money_refusals.h"
#include "foundation/presentation.h"

namespace kiv::accounting {
namespace {

using internal::AccountRecord;
using internal::LedgerState;

/// The account against which accounts in the currency are opened: an open one
/// if there are several, which conversions of such accounts can bring about.
const AccountRecord *openingsAccount(const LedgerState &state, const numira::Currency &currency)
{
    const AccountRecord *found = nullptr;
    for (const auto &account : state.accounts()) {
        if (account->holdsOpenings && account->currency() == currency &&
            (!found || (found->isClosed && !account->isClosed)))
            found = account.constData();
    }
    return found;
}

/// Whether nothing but the account's own opening transaction holds it. An opening
/// whose other side was changed to an account that holds no openings moves real
/// money, and must not go with the account.
bool isUnused(const LedgerState &state, const AccountRecord &account)
{
    const std::size_t count = account.transactions.count();
    if (count != 1 || !account.openedBy)
        return count == 0;
    const internal::TransactionRecord &opening = state.record(*account.openedBy);
    const AccountNumber own = account.code.number();
    return state.account(opening.debit == own ? opening.credit : opening.debit).holdsOpenings;
}

/// The transaction that opened the account, if it is reconciled.
std::optional<TransactionNumber> reconciledOpening(const LedgerState &state,
                                                   const AccountRecord &account)
{
    if (const auto opening = account.openedBy; opening && state.record(*opening).isReconciled())
        return opening;
    return std::nullopt;
}

/// Throws AccountError when the account `from` would come to stand under itself
/// by taking on the code `to`.
void checkNotUnderItself(const LedgerState &state, AccountNumber from, const AccountCode &to)
{
    const AccountNumber none = AccountNumber::invalid();
    const AccountNumber parent = to.parent().value_or(none);
    for (AccountNumber above = parent; above != none;
         above = state.account(above).code.parent().value_or(none)) {
        if (above == from)
            throw internal::parentBelowItself(to, state.account(parent).code);
    }
}

} // namespace

bool GeneralLedger::canRemove(const AccountCode &code) const noexcept
{
    const AccountRecord *account = m_state->find(code.number());
    return account && !m_state->hasChildren(code.number()) && isUnused(*m_state, *account) &&
           !reconciledOpening(*m_state, *account);
}

std::optional<TransactionNumber>
GeneralLedger::add(const Account &account, AccountNumberGenerator &generator, QDate openedOn)
{
    internal::checkNewAccount(*m_state, account.type(), account.code());
    internal::checkDepth(*m_state, account.code());
    const AccountNumber number = account.code().number();
    const numira::Money &balance = account.balance();
    if (balance.isZero() && !account.isClosed()) {
        // In one step, so no copy is needed to go back to.
        change().insertAccount(account.type(), account.code(), balance.code(), false);
        return std::nullopt;
    }
    GeneralLedger next(*this);
    next.change().insertAccount(account.type(), account.code(), balance.code(), false);

    std::optional<TransactionNumber> opening;
    std::optional<NumberHandout> handout;
    if (!balance.isZero()) {
        const AccountRecord *openings = openingsAccount(*next.m_state, balance.code());
        AccountNumber against;
        if (openings) {
            against = openings->code.number();
        } else {
            against = handout.emplace(generator, next).number();
            const QString name = QStringLiteral("Opening Balances %1 [Equity]")
                                     .arg(foundation::presentationText(balance.code()));
            next.change().insertAccount(AccountTypes::Equity,
                                        AccountCode(against, name, std::nullopt), balance.code(),
                                        true);
        }
        const bool isDebited = isDebitNormal(account.type()) == balance.isPositive();
        opening = next.post(Transaction(openedOn, isDebited ? number : against,
                                        isDebited ? against : number, balance.abs()));
        next.change().changeAccount(number).openedBy = opening;
    }
    if (account.isClosed())
        next.close(number);
    if (handout)
        handout->keep();
    *this = std::move(next);
    return opening;
}

void GeneralLedger::remove(AccountNumber number)
{
    const AccountRecord &account = m_state->account(number);
    if (m_state->hasChildren(number))
        throw internal::accountHasChildren(account.code);
    if (!isUnused(*m_state, account))
        throw internal::accountHasTransactions(account.code);
    if (const auto opening = reconciledOpening(*m_state, account))
        throw internal::openingIsReconciled(account.code, *opening);
    GeneralLedger next(*this);
    if (account.openedBy)
        next.change().exchange(*account.openedBy, std::nullopt);
    next.change().eraseAccount(number);
    *this = std::move(next);
}

void GeneralLedger::open(const AccountCode &code)
{
    const AccountRecord &account = m_state->account(code.number());
    if (!account.isClosed)
        throw internal::accountIsOpen(account.code);
    change().changeAccount(code.number()).isClosed = false;
}

void GeneralLedger::close(AccountNumber number)
{
    internal::checkClosing(m_state->account(number));
    change().changeAccount(number).isClosed = true;
}

void GeneralLedger::recode(const AccountCode &from, const AccountCode &to)
{
    const AccountRecord &account = m_state->account(from.number());
    if (!to.number().isValid())
        throw internal::accountNumberInvalid(to);
    const AccountRecord *holder = m_state->find(to.number());
    if (holder && holder != &account)
        throw internal::accountNumberTaken(to, holder->code);
    internal::checkParent(*m_state, account.type, to);
    checkNotUnderItself(*m_state, from.number(), to);
    if (to.parent() != account.code.parent())
        internal::checkDepth(*m_state, to, from.number());
    GeneralLedger next(*this);
    next.change().recode(from.number(), to);
    *this = std::move(next);
}

void GeneralLedger::convertTo(AccountNumber number, const numira::Currency &currency,
                              AccountNumberGenerator & /*generator*/)
{
    const AccountRecord &account = m_state->account(number);
    if (account.currency() == currency)
        return;
    LedgerState::RestatedSides sides;
    sides.reserve(account.transactions.count());
    const internal::NumberSet &numbers = account.transactions;
    for (auto at = numbers.next({}); at.isValid(); at = numbers.next(at)) {
        const internal::TransactionRecord &record = m_state->record(at);
        const numira::Money &side = record.amountFor(number);
        if (const numira::Money *known = record.knownIn(currency)) {
            sides.emplace_back(at, *known);
            continue;
        }
        const numira::Money restated = foundation::withMoneyRefusals(
            [&] { return side.convertedTo(currency).rounded(); },
            [&](const std::exception &cause) {
                return internal::notRestated(account.code, currency, at, cause);
            });
        if (!restated.isPositive())
            throw internal::restatedToNothing(account.code, currency, at, side);
        sides.emplace_back(at, restated);
    }
    GeneralLedger next(*this);
    foundation::withMoneyRefusals([&] { next.change().restate(number, currency, sides); },
                                  [&](const std::exception &cause) {
                                      return internal::balanceOutOfRange(account.code, cause);
                                  });
    *this = std::move(next);
}

} // namespace kiv::accounting
