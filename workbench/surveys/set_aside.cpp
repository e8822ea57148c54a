// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/set_aside.h"

#include "workbench/requests/balances.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/paying_account.h"

#include "foundation/dates.h"
#include "surveying/distributable.h"
#include "surveying/survey_rules.h"

#include <algorithm>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::LedgerAccount;
using accounting::Transaction;
using accounting::TransactionNumber;
using banking::BankAccount;
using budgeting::BudgetedMoney;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using numira::Currency;
using numira::Money;
using storage::BudgetStorage;

namespace {

using OwnAccount = std::optional<LedgerAccount>;

OwnAccount ownAccount(const BudgetStorage::Data &data, const BudgetItemIdentifier &id)
{
    const auto number = accountOf(data, id);
    return number && data.generalLedger.hasLedger(*number)
               ? OwnAccount(data.generalLedger.ledger(*number))
               : std::nullopt;
}

bool liesUnderAnother(const OwnAccount &own, AccountNumber account)
{
    return own && own->code().parent() && *own->code().parent() != account;
}

/// What went to the account of an item, and what came back from it.
struct Postings {
    Money there;
    Money back;
    std::vector<TransactionNumber> numbers;
};

/// Makes the lines of one account.
class SettingAside {
public:
    SettingAside(const BankAccount &account, const BudgetStorage::Data &data,
                 const surveying::Reconciliations &reconciliations, QDate day)
        : m_data(data),
          m_number(account.account.number),
          m_survey(data.surveys.lookUpSurvey(account.bank, m_number)),
          m_currency(data.generalLedger.ledger(m_number).balance().code())
    {
        const banking::ReconciledBankAccount reconciled =
            m_survey ? m_survey->reconciled() : banking::ReconciledBankAccount(account, m_currency);
        m_made.account = account;
        m_made.day = day;
        m_made.reconciledOn = reconciled.reconciledOn();
        m_made.start = surveying::countsFrom(reconciled, day, data.generalLedger);
        m_made.months = std::max(0, foundation::monthsBetween(m_made.start, day));
        m_made.total = m_made.paid = Money(m_currency);
        for (const surveying::Reconciliation &one : reconciliations) {
            if (one.account.bank != account.bank || one.account.account.number != m_number ||
                one.day != m_made.reconciledOn)
                continue;
            for (const surveying::ReconciledTransaction &transaction : one.transactions)
                m_ticked.insert(transaction.number);
        }
    }

    [[nodiscard]] SetAside made()
    {
        addBalances();
        m_data.budget.forEach([this](const BudgetedMoney &item) { addLine(item); });
        return std::move(m_made);
    }

private:
    void addBalances();
    void addLine(const BudgetedMoney &item);
    [[nodiscard]] Postings postingsOf(const SetAsideLine &line, const LedgerAccount &own) const;
    /// Whether the last survey cannot know the transaction yet.
    [[nodiscard]] bool isSince(const Transaction &transaction, bool isByAccount) const;
    void addParts(SetAsideLine &line, const OwnAccount &own) const;
    void count(SetAsideLine &line);

    const BudgetStorage::Data &m_data;
    AccountNumber m_number;
    std::optional<surveying::CompletedSurvey> m_survey;
    Currency m_currency;
    std::set<TransactionNumber> m_ticked; ///< by the last survey
    SetAside m_made;
};

void SettingAside::addBalances()
{
    const accounting::GeneralLedger &ledger = m_data.generalLedger;
    m_made.balance = balanceOn(ledger.ledger(m_number), m_made.day);
    for (const AccountNumber child :
         ledger.lookUpChildren(m_number, accounting::OpenStates::Either)) {
        const Money balance = balanceOn(ledger.ledger(child), m_made.day);
        if (const auto converted = convertedIfKnown(balance, m_currency))
            m_made.balance += converted->rounded();
        else
            m_made.leftOut.push_back({child, {balance.code(), m_currency}});
    }
}

void SettingAside::addLine(const BudgetedMoney &item)
{
    SetAsideLine line;
    line.item = {budgeting::toBudgetItemTypes(item), item.source()};
    if (!surveying::isDistributable(line.item.type, item.period()))
        return;
    const OwnAccount own = ownAccount(m_data, line.item);
    if (liesUnderAnother(own, m_number) ||
        !surveying::otherHolders(line.item, m_made.account, m_data.surveys).empty())
        return;
    line.amount = item.amount();
    line.every = item.period();
    line.monthly =
        budgeting::accumulateOver(budgeting::EventFrequency::Monthly, item.amount(), item.period());
    line.next = item.nextOccurOn();
    line.expected = surveying::expectedBy(m_made.day, item);
    line.isRecorded = m_survey && m_survey->distribution().contains(line.item);
    line.isByAccount = own && line.item.type == BudgetItemTypes::Goal;
    line.isOutside = line.isByAccount && own->code().parent() != m_number;
    addParts(line, own);
    if (line.parts)
        count(line);
    m_made.lines.push_back(std::move(line));
}

bool SettingAside::isSince(const Transaction &transaction, bool isByAccount) const
{
    const QDate day = transaction.occurredOn();
    if (!m_made.reconciledOn)
        return isByAccount || day >= m_made.start;
    return day > *m_made.reconciledOn ||
           (day == *m_made.reconciledOn && !m_ticked.contains(transaction.number().value()));
}

Postings SettingAside::postingsOf(const SetAsideLine &line, const LedgerAccount &own) const
{
    const AccountNumber number = own.code().number();
    const Money none(own.balance().code());
    Postings postings{none, none, {}};
    for (const Transaction &transaction : own.transactions()) {
        if (transaction.occurredOn() > m_made.day || transaction.number() == own.openedBy() ||
            !isSince(transaction, line.isByAccount))
            continue;
        const bool isBack = transaction.crediting().number() == number;
        // Interest and what more is borrowed raise a debt, and give nothing back.
        if (isBack && line.item.type == BudgetItemTypes::Debt && !transaction.refundOf())
            continue;
        (isBack ? postings.back : postings.there) += transaction.amountFor(number);
        postings.numbers.push_back(transaction.number().value());
    }
    return postings;
}

void SettingAside::addParts(SetAsideLine &line, const OwnAccount &own) const
{
    const Money record = line.isRecorded ? m_survey->distribution().at(line.item).distributed()
                                         : Money(line.amount.code());
    Currency currency = record.isZero() ? line.amount.code() : record.code();
    if (line.isByAccount)
        currency = own->balance().code();
    const auto inCurrency = [&](const Money &money) -> std::optional<Money> {
        const std::optional<Money> converted = convertedIfKnown(money, currency);
        if (converted)
            return converted->rounded();
        line.lackingRate = {money.code(), currency};
        return std::nullopt;
    };
    const Postings postings =
        own ? postingsOf(line, *own) : Postings{Money(currency), Money(currency), {}};
    const auto before = inCurrency(record);
    const auto there =
        inCurrency(line.isByAccount ? postings.there : postings.there - postings.back);
    const auto added = line.isByAccount ? there : inCurrency(line.monthly.scaled(m_made.months, 1));
    const auto paid = line.isByAccount ? inCurrency(postings.back) : there;
    if (!before || !added || !paid)
        return;
    line.postings = postings.numbers;
    SetAsideParts parts{*before, *added, *paid, Money(currency)};
    if (line.isByAccount)
        parts.adjusted = own->balance() - parts.now();
    else if (parts.now().isNegative())
        parts.adjusted = -parts.now();
    line.parts = parts;
}

void SettingAside::count(SetAsideLine &line)
{
    const Money now = line.parts->now();
    line.counted = convertedIfKnown(now, m_currency);
    if (!line.counted) {
        line.lackingRate = {now.code(), m_currency};
        return;
    }
    if (now.code() != m_currency)
        line.counted = line.counted->rounded();
    m_made.total += *line.counted;
    if (!line.isByAccount)
        m_made.paid += line.parts->paid.convertedTo(m_currency).rounded();
}

std::optional<StrandedAmount::Why> whyStranded(const BankAccount &account,
                                               const BudgetItemIdentifier &id,
                                               const BudgetStorage::Data &data)
{
    using enum StrandedAmount::Why;
    const AccountNumber number = account.account.number;
    if (data.generalLedger.hasLedger(number) && data.generalLedger.ledger(number).isClosed())
        return AccountClosed;
    if (!holdsEnvelopes(account, data))
        return AccountGone;
    const BudgetedMoney *item = budgeting::findBudgetItem(id, data.budget);
    if (!item || !surveying::isDistributable(id.type, item->period()))
        return NotSetAside;
    if (liesUnderAnother(ownAccount(data, id), number))
        return OtherAccount;
    if (!surveying::otherHolders(id, account, data.surveys).empty())
        return OtherSurvey;
    return std::nullopt;
}

} // namespace

SetAside setAsideAt(const BankAccount &account, const BudgetStorage::Data &data,
                    const surveying::Reconciliations &reconciliations, QDate day)
{
    return SettingAside(account, data, reconciliations, day).made();
}

bool holdsEnvelopes(const BankAccount &account, const BudgetStorage::Data &data)
{
    const auto isOwnAsset = [&data](AccountNumber number) {
        const auto bank = data.banks.find(number);
        return bank && banking::isAssetAccount(data.banks.bank(*bank).accounts().at(number));
    };
    const AccountNumber number = account.account.number;
    if (data.banks.find(number) != account.bank || !isOwnAsset(number) ||
        account.account.type == banking::BankAccountTypes::GoalSubAccount ||
        !data.generalLedger.hasLedger(number))
        return false;
    const LedgerAccount ledger = data.generalLedger.ledger(number);
    return !ledger.isClosed() && !(ledger.code().parent() && isOwnAsset(*ledger.code().parent()));
}

Envelopes envelopes(const BudgetStorage::Data &data,
                    const surveying::Reconciliations &reconciliations, QDate day)
{
    Envelopes all;
    all.day = day;
    all.dueUntil = foundation::lastOfMonth(day);
    all.dueYet = surveying::monthlyPaymentsDue(day, data.budget, day);
    for (const auto &[name, bank] : data.banks) {
        for (const auto &[number, type] : bank.accounts()) {
            const BankAccount account{name, {number, type}};
            if (holdsEnvelopes(account, data))
                all.accounts.push_back(setAsideAt(account, data, reconciliations, day));
        }
    }
    std::map<BudgetItemIdentifier, int> counts;
    for (const SetAside &one : all.accounts) {
        for (const SetAsideLine &line : one.lines) {
            if (++counts[line.item] == 2)
                all.shared.push_back(line.item);
        }
    }
    for (const auto &[account, survey] : data.surveys) {
        for (const auto &[item, amount] : survey.distribution()) {
            if (const auto why = whyStranded(account, item, data))
                all.stranded.push_back({item, account, amount.distributed(), *why});
        }
    }
    return all;
}

std::map<Currency, SetAsideSum> sumsOf(const Envelopes &all)
{
    std::map<Currency, SetAsideSum> sums;
    for (const SetAside &one : all.accounts) {
        const Currency currency = one.balance.code();
        const Money none(currency);
        SetAsideSum &sum = sums.try_emplace(currency, SetAsideSum{none, none}).first->second;
        sum.balance += one.balance;
        sum.setAside += one.total;
    }
    return sums;
}

std::vector<SetAsideHere> linesOf(const Envelopes &all, const BudgetItemIdentifier &item)
{
    std::vector<SetAsideHere> found;
    for (const SetAside &one : all.accounts) {
        const auto line = std::ranges::find(one.lines, item, &SetAsideLine::item);
        if (line != one.lines.end())
            found.push_back({&one, &*line});
    }
    return found;
}

} // namespace kiv::workbench
