// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/outlook/looking_ahead.h"

#include "workbench/internal/faults_of_outlook.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/paying_account.h"
#include "workbench/surveys/set_aside_text.h"

#include "accounting/account_types.h"
#include "numira/error.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::LedgerAccount;
using budgeting::BudgetedMoney;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using numira::Money;
using storage::BudgetStorage;

namespace {

/// What the outlook starts from, gathered from a budget.
class Gathering {
public:
    Gathering(const BudgetStorage::Data &data, const OutlookQuestion &question)
        : m_data(data), m_question(question)
    {
        m_beginning.first = question.first;
        m_beginning.days = question.days.count;
    }

    outlook::Beginning made(LookingAhead &ahead)
    {
        gatherBooks();
        m_data.budget.forEach([&](const BudgetedMoney &item) { add(item, ahead); });
        for (const OutlookQuestion::Once &one : m_question.with)
            addAsked(one);
        return std::move(m_beginning);
    }

private:
    [[nodiscard]] QDate last() const { return m_question.first.addDays(m_question.days.count - 1); }

    /// What each account is worth with all that was entered up to the first day, and the
    /// transactions of the days to come, each once. A full book is long, so this is one pass.
    void gatherBooks()
    {
        std::map<accounting::TransactionNumber, outlook::Once> entries;
        for (const accounting::AccountCode &code : m_data.generalLedger.accountCodes()) {
            const LedgerAccount account = m_data.generalLedger.ledger(code);
            if (account.type() != AccountTypes::Asset && account.type() != AccountTypes::Liability)
                continue;
            const AccountNumber number = code.number();
            Money worth =
                account.type() == AccountTypes::Liability ? -account.balance() : account.balance();
            const accounting::TransactionList &list = account.transactions();
            for (auto each = list.begin(); each != list.end(); ++each) {
                if (each.occurredOn() <= m_question.first)
                    continue;
                const accounting::Transaction one = *each;
                const AccountNumber from = one.crediting().number();
                const AccountNumber to = one.debiting().number();
                const Money &amount = one.amountFor(number);
                worth += to == number ? -amount : amount;
                if (one.occurredOn() <= last())
                    entries.emplace(one.number().value(),
                                    outlook::Once{one.occurredOn(), one.amountFor(from), from, to,
                                                  one.number(), one.amountFor(to)});
            }
            m_beginning.balances.emplace(number, worth);
            watch(account);
        }
        for (const auto &[number, once] : entries)
            m_beginning.once.push_back(once);
    }

    /// Watches the open accounts of banks, but not those of goals.
    void watch(const LedgerAccount &account)
    {
        const AccountNumber number = account.code().number();
        const auto bank = m_data.banks.find(number);
        if (!account.isClosed() && bank &&
            m_data.banks.bank(*bank).accounts().at(number) !=
                banking::BankAccountTypes::GoalSubAccount)
            m_beginning.watched.insert(number);
    }

    void add(const BudgetedMoney &item, LookingAhead &ahead)
    {
        const BudgetItemIdentifier id{budgeting::toBudgetItemTypes(item), item.source()};
        const auto own = accountOf(m_data, id);
        if (m_question.without.contains(id) || !own ||
            item.period() == budgeting::EventFrequency::None)
            return;
        if (m_data.generalLedger.hasLedger(*own) && m_data.generalLedger.ledger(*own).isClosed()) {
            ahead.closed.push_back(id);
            return;
        }
        const auto payer = payingAccount(m_data, id);
        if (!payer) {
            ahead.unpaid.push_back(id);
            return;
        }
        outlook::Expected expected{
            id, item.amount(), item.period(), item.nextOccurOn(), item.dayOfMonth(), *payer, *own};
        if (id.type == BudgetItemTypes::Wage)
            std::swap(expected.from, expected.to);
        if (const auto holding = m_beginning.balances.find(*own);
            holding != m_beginning.balances.end()) {
            if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
                expected.until = outlook::Ending{*own, goal->final()};
            else if (id.type == BudgetItemTypes::Debt)
                expected.until = outlook::Ending{*own, Money(holding->second.code())};
        }
        m_beginning.expected.push_back(std::move(expected));
    }

    void addAsked(const OutlookQuestion::Once &one)
    {
        if (one.amount.isZero())
            throw internal::nothingAsked();
        auto payer = usualPayer(nullptr, m_data.banks, [this](AccountNumber number) {
            return m_beginning.watched.contains(number);
        });
        for (const AccountNumber number : m_beginning.watched) {
            if (!payer && m_data.generalLedger.ledger(number).type() == AccountTypes::Asset)
                payer = number;
        }
        if (!payer)
            throw internal::nobodyToPay();
        // Of no account that is watched.
        outlook::Once once{one.day, one.amount.abs(), *payer, AccountNumber()};
        if (one.amount.isNegative())
            std::swap(once.from, once.to);
        m_beginning.once.push_back(once);
    }

    const BudgetStorage::Data &m_data;
    const OutlookQuestion &m_question;
    outlook::Beginning m_beginning;
};

} // namespace

void readValue(const QString &text, OutlookDays &value)
{
    value.count = readWhole(text, 1, outlookDaysMax);
}

Money outlookFloor(const Amount &typed, const numira::Currency &preferred)
{
    const Money floor = typed.in(preferred);
    const auto converted = convertedIfKnown(floor, preferred);
    if (!converted)
        throw Refusal(lackingRateText({floor.code(), preferred}));
    return converted->rounded();
}

LookingAhead lookAhead(const BudgetStorage::Data &data, const OutlookQuestion &question,
                       const numira::Currency &preferred)
try {
    const QDate last = question.first.addDays(question.days.count - 1);
    for (const OutlookQuestion::Once &one : question.with) {
        if (one.day > last)
            throw internal::behindOutlook(one.day, last);
    }
    LookingAhead ahead;
    ahead.outlook = outlook::look(Gathering(data, question).made(ahead));
    std::set<AccountNumber> money;
    for (const auto &[number, curve] : ahead.outlook.accounts) {
        if (data.generalLedger.ledger(number).type() == AccountTypes::Liability)
            continue;
        if (convertedIfKnown(curve.start, preferred))
            money.insert(number);
        else
            ahead.lacking.emplace(curve.start.code(), preferred);
    }
    if (!money.empty())
        ahead.together = ahead.outlook.together(money, preferred);
    std::set<AccountNumber> wages;
    for (const auto &[source, wage] : data.budget.wages) {
        if (const auto account = accountOf(data, {BudgetItemTypes::Wage, source}))
            wages.insert(*account);
    }
    for (const outlook::Payment &one : ahead.outlook.payments) {
        if (wages.contains(one.from) && one.amount.isPositive() && one.day > question.first) {
            ahead.nextWage = one.day;
            break;
        }
    }
    if (ahead.together) {
        std::optional<std::size_t> days;
        if (ahead.nextWage)
            days = static_cast<std::size_t>(question.first.daysTo(*ahead.nextWage));
        ahead.free = ahead.together->least(days);
    }
    return ahead;
} catch (const numira::OverflowError &) {
    throw internal::outlookTooLarge();
}

} // namespace kiv::workbench
