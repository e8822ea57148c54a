// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/posting.h"

#include "accounting/internal/faults.h"
#include "accounting/internal/mistakes.h"

#include "foundation/money_refusals.h"

namespace kiv::accounting::internal {
namespace {

/// On how many levels accounts stand under this one; no more than `most` are counted.
int levelsBelow(const LedgerState &state, AccountNumber number, int most)
{
    std::set<AccountNumber> level{number};
    for (int levels = 0; levels < most; ++levels) {
        std::set<AccountNumber> below;
        for (const auto &account : state.accounts()) {
            const AccountCode &code = account->code;
            if (code.parent() && level.contains(*code.parent()))
                below.insert(code.number());
        }
        if (below.empty())
            return levels;
        level = std::move(below);
    }
    return most;
}

} // namespace

void checkNewAccount(const LedgerState &state, AccountTypes type, const AccountCode &code)
{
    if (!code.number().isValid())
        throw accountNumberInvalid(code);
    if (const AccountRecord *holder = state.find(code.number()))
        throw accountNumberTaken(code, holder->code);
    if (type == AccountTypes::Unknown)
        throw accountTypeUnknown(code);
    static_cast<void>(isDebitNormal(type)); // every known type has a side
    checkParent(state, type, code);
}

void checkParent(const LedgerState &state, AccountTypes type, const AccountCode &code)
{
    const auto &number = code.parent();
    if (!number)
        return;
    const AccountRecord *parent = state.find(*number);
    if (!parent)
        throw parentNotFound(code);
    if (parent->type != type)
        throw parentOfOtherType(code, type, parent->code, parent->type);
}

void checkDepth(const LedgerState &state, const AccountCode &code, AccountNumber moved)
{
    if (!code.parent())
        return;
    int depth = 1;
    for (std::optional<AccountNumber> above = code.parent(); above && depth <= accountDepthMax;
         above = state.account(*above).code.parent())
        ++depth;
    if (moved.isValid() && depth <= accountDepthMax)
        depth += levelsBelow(state, moved, accountDepthMax);
    if (depth > accountDepthMax)
        throw accountTooDeep(code, state.account(*code.parent()).code);
}

void checkClosing(const AccountRecord &account)
{
    if (account.isClosed)
        throw accountIsClosed(account.code);
    const bool mustBeEmpty =
        account.type == AccountTypes::Asset || account.type == AccountTypes::Liability;
    if (mustBeEmpty && !account.balance().isZero())
        throw closingWithBalance(account.code, account.balance());
}

void checkOpen(const AccountRecord &account)
{
    if (account.isClosed)
        throw accountIsClosed(account.code);
}

std::pair<const AccountRecord &, const AccountRecord &>
checkTransaction(const LedgerState &state, const TransactionRecord &record,
                 TransactionNumber number)
{
    for (const TransactionStatuses status : {record.debitStatus, record.creditStatus}) {
        if (status > TransactionStatuses::Reconciled)
            throw statusNotPostable();
    }
    if (!record.occurredOn.isValid())
        throw dayInvalid(number);
    if (!record.amount.isPositive())
        throw amountNotPositive(number, record.amount);
    const AccountRecord &debit = state.account(record.debit);
    const AccountRecord &credit = state.account(record.credit);
    if (&debit == &credit)
        throw accountsAreTheSame(number, debit.code);
    checkOpen(debit);
    checkOpen(credit);
    return {debit, credit};
}

numira::Money convertedAmount(const numira::Money &amount, const numira::Currency &currency,
                              TransactionNumber number)
{
    if (amount.code() == currency)
        return amount;
    const numira::Money result = foundation::withMoneyRefusals(
        [&] { return amount.convertedTo(currency).rounded(); },
        [&](const std::exception &cause) { return notConverted(number, amount, currency, cause); });
    if (!result.isPositive())
        throw comesToNothing(number, amount, currency);
    return result;
}

TransactionRecord newRecord(const LedgerState &state, const Transaction &transaction,
                            TransactionNumber number, const TransactionRecord *before)
{
    TransactionRecord record = plainRecord(transaction);
    const auto [debit, credit] = checkTransaction(state, record, number);
    const auto side = [&](const AccountRecord &account) {
        const numira::Currency &currency = account.currency();
        const bool isSameAmount = before && before->amount == record.amount;
        const numira::Money *known = isSameAmount ? before->knownIn(currency) : nullptr;
        return known ? *known : convertedAmount(record.amount, currency, number);
    };
    record.setSideAmounts(side(debit), side(credit));
    return record;
}

TransactionRecord plainRecord(const Transaction &transaction)
{
    TransactionRecord record{.occurredOn = transaction.occurredOn(),
                             .debit = transaction.debiting().number(),
                             .credit = transaction.crediting().number(),
                             .amount = transaction.amount(),
                             .description = {},
                             .debitStatus = transaction.debitStatus(),
                             .creditStatus = transaction.creditStatus(),
                             .refundOf = std::nullopt,
                             .seldom = {}};
    record.setSideAmounts(transaction.debitAmount(), transaction.creditAmount());
    record.description = Description(transaction.description());
    return record;
}

} // namespace kiv::accounting::internal
