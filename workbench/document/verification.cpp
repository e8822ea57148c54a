// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/verification.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/balances.h"

#include <QtCore/QObject>

namespace kiv::workbench {

using accounting::Account;
using storage::BudgetStorage;
using storage::FilePromise;
using storage::Verdict;

namespace {

Promise promiseOf(FilePromise promise)
{
    switch (promise) {
    case FilePromise::Identity:
        return Promise::Identity;
    case FilePromise::Tables:
        return Promise::Tables;
    case FilePromise::Seal:
        return Promise::Seal;
    case FilePromise::Rules:
        return Promise::Rules;
    case FilePromise::Ties:
        break;
    }
    return Promise::Ties;
}

/// Adds up the transactions by account, and compares the sums with the balances and with
/// each other.
std::vector<PromiseVerdict> judgeSums(const std::optional<BudgetStorage::Data> &data)
{
    PromiseVerdict balances{Promise::Balances, Verdict::NotJudged, {}};
    PromiseVerdict sides{Promise::Sides, Verdict::NotJudged, {}};
    if (!data)
        return {balances, sides};
    Sums debits;
    Sums credits;
    for (const Account &account : data->generalLedger.accounts()) {
        numira::Money sum(account.balance().code());
        for (const accounting::Transaction &transaction : account.transactions()) {
            const bool isDebit = transaction.debiting().number() == account.code().number();
            const numira::Money &amount = transaction.amountFor(account.code().number());
            sum += isDebit == accounting::isDebitNormal(account.type()) ? amount : -amount;
            // A transaction between currencies counts in neither sum.
            if (transaction.debitAmount().code() == transaction.creditAmount().code())
                add(isDebit ? debits : credits, amount);
        }
        if (sum != account.balance())
            balances.reasons += accounting::presentationText(account.code());
    }
    balances.verdict = balances.reasons.isEmpty() ? Verdict::Kept : Verdict::Broken;
    sides.verdict = debits == credits ? Verdict::Kept : Verdict::Broken;
    for (const auto &[_, sum] : debits)
        sides.reasons += amountText(sum, navigation::CurrencyDisplayOptions::IsoCode);
    return {balances, sides};
}

} // namespace

QString PromiseVerdict::sentence() const
{
    switch (promise) {
    case Promise::Identity:
        return QObject::tr("The file is a budget file of a known version");
    case Promise::Tables:
        return QObject::tr("The tables belong to that version");
    case Promise::Seal:
        return QObject::tr("The rows are as they were saved");
    case Promise::Rules:
        return QObject::tr("The books follow the rules of the ledger");
    case Promise::Ties:
        return QObject::tr("Items, accounts and banks match");
    case Promise::Balances:
        return QObject::tr("Every balance is the sum of its transactions");
    case Promise::Sides:
        break;
    }
    return QObject::tr("Debits equal credits in every currency");
}

QString PromiseVerdict::result() const
{
    switch (verdict) {
    case storage::Verdict::Kept:
        return QObject::tr("ok");
    case storage::Verdict::Mended:
        return QObject::tr("repaired when opened");
    case storage::Verdict::Broken:
        return QObject::tr("FAILED");
    case storage::Verdict::NotJudged:
        break;
    }
    return QObject::tr("not checked");
}

bool Verification::isWhole() const
{
    return std::ranges::none_of(
        promises, [](const PromiseVerdict &promise) { return promise.verdict == Verdict::Broken; });
}

Verification verify(const QString &path, const storage::KeyRing *keys)
{
    storage::BudgetInspection found = storage::inspectBudget(path, keys);
    Verification verification{path, {}};
    for (storage::Judgement &judgement : found.judgements) {
        verification.promises.push_back(
            {promiseOf(judgement.promise), judgement.verdict, std::move(judgement.reasons)});
    }
    std::ranges::move(judgeSums(found.data), std::back_inserter(verification.promises));
    return verification;
}

} // namespace kiv::workbench
