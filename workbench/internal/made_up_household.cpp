// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/made_up_household.h"

#include "workbench/requests/item_changes.h"
#include "workbench/requests/other_day.h"

namespace kiv::workbench::internal {

using accounting::AccountNumber;
using accounting::AccountTypes;
using banking::BankAccountTypes;
using budgeting::BudgetItemTypes;
using budgeting::EventFrequency;
using navigation::Navigator;

namespace {

/// What an item of the household is, in hundredths.
struct ItemPlan {
    BudgetItemTypes kind;
    const char *name;
    int amount;
    EventFrequency every;
    int day; ///< one on which it is due, counted from the last day of the demonstration
    AccountNumber HouseholdAccounts::*account; ///< that pays, or gets a wage
    const char *tag = nullptr;
    int extra = 0; ///< borrowed, or the target
    int varies = 0;
    bool isAtBank = false; ///< a goal at its account, a debt at the bank by the lake
};

using Kind = BudgetItemTypes;
using Every = EventFrequency;

constexpr ItemPlan items[] = {
    {Kind::Wage, QT_TRANSLATE_NOOP("QObject", "Salary"), 285000, Every::Monthly, 4,
     &HouseholdAccounts::checking},
    {Kind::Wage, QT_TRANSLATE_NOOP("QObject", "Evening classes"), 14000, Every::EveryTwoWeeks, 9,
     &HouseholdAccounts::checking},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Rent"), 98000, Every::Monthly, 6,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "home")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Electricity"), 8200, Every::EveryTwoMonths, 11,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "home"), 0, 1500},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Telephone"), 2490, Every::Monthly, -2,
     &HouseholdAccounts::card, QT_TRANSLATE_NOOP("QObject", "home")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Internet"), 3490, Every::Monthly, 0,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "home")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Bus pass"), 5500, Every::Monthly, 2,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "travel")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Fitness studio"), 2990, Every::Monthly, 13,
     &HouseholdAccounts::card, QT_TRANSLATE_NOOP("QObject", "leisure")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Home insurance"), 24000, Every::Yearly, -200,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "home")},
    {Kind::Bill, QT_TRANSLATE_NOOP("QObject", "Car tax"), 18600, Every::Yearly, 75,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "travel")},
    {Kind::Nontrack, QT_TRANSLATE_NOOP("QObject", "Pocket money"), 2000, Every::Weekly, 3,
     &HouseholdAccounts::cash},
    {Kind::Goal, QT_TRANSLATE_NOOP("QObject", "Holiday"), 15000, Every::Monthly, 8,
     &HouseholdAccounts::savings, QT_TRANSLATE_NOOP("QObject", "leisure"), 240000, 0, true},
    {Kind::Goal, QT_TRANSLATE_NOOP("QObject", "Bicycle"), 11000, Every::Monthly, 15,
     &HouseholdAccounts::savings, QT_TRANSLATE_NOOP("QObject", "leisure"), 66000, 0, true},
    {Kind::Debt, QT_TRANSLATE_NOOP("QObject", "Car loan"), 21000, Every::Monthly, 5,
     &HouseholdAccounts::checking, QT_TRANSLATE_NOOP("QObject", "travel"), 630000, 0, true},
    {Kind::Debt, QT_TRANSLATE_NOOP("QObject", "Family loan"), 5000, Every::Monthly, 10,
     &HouseholdAccounts::checking, nullptr, 90000},
};

/// The first of the days so many periods before or after this one that is not before `start`.
QDate firstFrom(QDate day, EventFrequency every, QDate start)
{
    const auto moved = [&](int count) {
        switch (every) {
        case Every::Weekly:
            return day.addDays(7 * count);
        case Every::EveryTwoWeeks:
            return day.addDays(14 * count);
        case Every::EveryTwoMonths:
            return day.addMonths(2 * count);
        case Every::Yearly:
            return day.addYears(count);
        default:
            return day.addMonths(count);
        }
    };
    int count = 0;
    while (moved(count - 1) >= start)
        --count;
    return moved(count);
}

class Opening {
public:
    Opening(Requests &requests, const DemonstrationFrame &frame)
        : m_requests(requests), m_frame(frame)
    {
    }

    AccountNumber bankAccount(const QString &name, BankAccountTypes type, int opening,
                              const numira::Currency &currency)
    {
        std::optional<AccountNumber> added;
        openNewOn(m_requests, m_frame.start, [&] {
            const auto answers =
                m_requests.change(bankAccountOutcome, &Navigator::onAddedBankAccount, name, type,
                                  hundredths(opening).in(currency));
            added = std::get<accounting::AccountCode>(answers.front()).number();
        });
        m_bankAccounts.emplace(*added, type);
        return *added;
    }
    /// Adds a bank that keeps the accounts added since the one before.
    void bank(const QString &name)
    {
        m_requests.change(
            bankOutcome, &Navigator::onBankAdded,
            banking::Bank(banking::BankName(name), std::exchange(m_bankAccounts, {}), false));
    }
    AccountNumber account(const QString &name, AccountTypes type, const numira::Currency &currency,
                          int opening = 0)
    {
        const AccountNumber number = m_requests.accounts().nextNumber();
        openNewOn(m_requests, m_frame.start, [&] {
            m_requests.change(accountOutcome, &Navigator::onAddedAct,
                              accounting::Account(type, {number, name, std::nullopt},
                                                  hundredths(opening).in(currency), false));
        });
        return number;
    }
    RegularItem item(const ItemPlan &plan, const Household &household)
    {
        const QDate first = firstFrom(m_frame.end.addDays(plan.day), plan.every, m_frame.start);
        ItemValues values;
        values.amount = hundredths(plan.amount);
        values.amount->currency = m_frame.main;
        values.every = plan.every;
        values.next = first;
        if (plan.tag)
            values.tags = tagging::Tags{tagging::Tag(QObject::tr(plan.tag))};
        if (plan.extra != 0)
            values.extra = hundredths(plan.extra);
        const AccountNumber account = household.accounts.*plan.account;
        const QString name = QObject::tr(plan.name);
        if (plan.isAtBank && plan.kind == Kind::Goal)
            values.bankAccount = m_requests.bankAccount(account, name);
        else if (plan.isAtBank)
            values.bankAccount = {banking::BankName(household.lakeBank),
                                  {AccountNumber(), BankAccountTypes::Loan}};
        const auto unknown = [] { return std::logic_error("An item of no kind is not added."); };
        const auto id = budgeting::visitItemClass(
            plan.kind, unknown, [&]<typename Item>(std::type_identity<Item>) {
                return addItem<Item>(m_requests, navigation::GuiElementIdentifier(1), name, values,
                                     first, m_frame.start);
            });
        RegularItem regular{id,
                            {id.source, values.amount->in(m_frame.main), plan.every, first},
                            account,
                            plan.varies};
        if (plan.kind == Kind::Goal)
            regular.target = hundredths(plan.extra).in(m_frame.main);
        return regular;
    }

private:
    Requests &m_requests;
    const DemonstrationFrame &m_frame;
    banking::Bank::Accounts m_bankAccounts;
};

} // namespace

Amount hundredths(int count)
{
    Amount amount;
    readPlain(QStringLiteral("%1.%2").arg(count / 100).arg(count % 100, 2, 10, QLatin1Char('0')),
              amount);
    return amount;
}

Household openHousehold(Requests &requests, const DemonstrationFrame &frame)
{
    Household household;
    household.townBank = QObject::tr("Town Bank");
    household.lakeBank = QObject::tr("Lake Bank");
    Opening opening(requests, frame);
    HouseholdAccounts &accounts = household.accounts;
    const auto &[start, end, main, foreign] = frame;
    accounts.checking =
        opening.bankAccount(QObject::tr("Checking"), BankAccountTypes::Checking, 324517, main);
    accounts.card =
        opening.bankAccount(QObject::tr("Credit card"), BankAccountTypes::CreditCard, 0, main);
    accounts.savings =
        opening.bankAccount(QObject::tr("Savings"), BankAccountTypes::Savings, 451200, main);
    opening.bank(household.townBank);
    accounts.formerSavings =
        opening.bankAccount(QObject::tr("Old savings"), BankAccountTypes::Savings, 64038, main);
    opening.bank(household.lakeBank);
    using enum AccountTypes;
    accounts.cash = opening.account(QObject::tr("Cash"), Asset, main, 8640);
    accounts.foreign = opening.account(QObject::tr("Travel cash"), Asset, foreign);
    accounts.groceries = opening.account(QObject::tr("Groceries"), Expense, main);
    accounts.furniture = opening.account(QObject::tr("Furniture"), Expense, main);
    accounts.eatingOut = opening.account(QObject::tr("Eating out"), Expense, main);
    accounts.pharmacy = opening.account(QObject::tr("Pharmacy"), Expense, main);
    accounts.abroad = opening.account(QObject::tr("Travelling"), Expense, foreign);
    accounts.interest = opening.account(QObject::tr("Interest"), Income, main);
    for (const ItemPlan &plan : items) {
        household.items.push_back(opening.item(plan, household));
        if (plan.kind == Kind::Debt && plan.isAtBank)
            accounts.carLoan = requests.accountOf(household.items.back().id).value();
    }
    return household;
}

} // namespace kiv::workbench::internal
