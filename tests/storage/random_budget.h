// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"

#include "budgeting/item_account.h"
#include "numira/library.h"

#include "support/accounting.h"

#include <functional>
#include <random>

namespace kiv::test {

/// Gives a number from 0 up to, but not including, its argument.
using Pick = std::function<int(int)>;

/// Builds a budget through the domain's own operations, as a user could. What
/// the domain refuses is simply not in it.
class RandomBudget {
public:
    using Data = storage::BudgetStorage::Data;

    explicit RandomBudget(Pick pick) : m_pick(std::move(pick)) {}

    Data make(int steps)
    {
        numira::setUpLibrary(
            [](const auto &, const auto &) { return numira::FloatingPoint("1.25"); }, "en_US",
            numira::ShouldAllowFallback::Yes);
        for (int step = 0; step < steps; ++step) {
            try {
                change(m_pick(13));
            } catch (const foundation::Error &) {
            }
        }
        return std::move(m_data);
    }

private:
    void change(int what)
    {
        static constexpr std::array additions{&RandomBudget::addAccount,
                                              &RandomBudget::addItem<budgeting::Bill>,
                                              &RandomBudget::addItem<budgeting::Debt>,
                                              &RandomBudget::addItem<budgeting::Goal>,
                                              &RandomBudget::addItem<budgeting::Wage>,
                                              &RandomBudget::addBank,
                                              &RandomBudget::addSurvey};
        if (what < 7)
            return (this->*additions.at(static_cast<std::size_t>(what)))();
        auto &ledger = m_data.generalLedger;
        switch (what) {
        case 7: {
            const auto code = ledger.accountCode(account());
            if (m_pick(2))
                return ledger.close(code.number());
            const auto number = isTied(code.number()) ? code.number().integer() : 20 + picked(10);
            return ledger.recode(code, {accounting::AccountNumber(number), name(), code.parent()});
        }
        case 8: {
            const accounting::AccountNumber number = account();
            // A closed account could come to a balance, which loading mends.
            if (!ledger.ledger(number).isClosed())
                ledger.convertTo(number, currency(), m_generator);
            return;
        }
        case 9:
            return changeTransaction();
        default:
            ledger.post({date(), account(), account(), money(),
                         m_pick(2) ? std::optional(name()) : std::nullopt});
        }
    }

    void changeTransaction()
    {
        auto &ledger = m_data.generalLedger;
        const auto all = ledger.transactions();
        if (all.empty())
            return;
        const auto &one = all.at(static_cast<std::size_t>(m_pick(static_cast<int>(all.size()))));
        const accounting::TransactionNumber number = *one.number();
        switch (m_pick(5)) {
        case 0:
            return ledger.reconcile(number, one.debiting().number());
        case 1:
            return ledger.reconcile(number, one.crediting().number());
        case 2:
            return ledger.clear(number);
        case 3:
            return ledger.remove(number);
        default:
            ledger.refund(number, money(), date());
        }
    }

    void addAccount()
    {
        const auto type = static_cast<accounting::AccountTypes>(1 + m_pick(5));
        const auto parent = m_pick(3) ? std::nullopt : std::optional(account());
        open(type, name(), parent, m_pick(2) ? money() : numira::Money(currency()));
    }

    accounting::AccountNumber open(accounting::AccountTypes type, const QString &name,
                                   std::optional<accounting::AccountNumber> parent,
                                   const numira::Money &opening)
    {
        accounting::NumberHandout handout(m_generator, m_data.generalLedger);
        m_data.generalLedger.add({type, {handout.number(), name, parent}, opening, false},
                                 m_generator, date());
        handout.keep();
        return handout.number();
    }

    template <typename Item>
    void addItem()
    {
        const budgeting::BudgetSource source(name());
        const auto period = static_cast<budgeting::EventFrequency>(m_pick(16));
        Item item;
        if constexpr (budgeting::BankTiedItem<Item>)
            item = Item(source, money(), period, date(), -money());
        else if (m_pick(4))
            item = Item(source, money(), period, date());
        else
            item.rename(source);
        if (m_pick(2) && period != budgeting::EventFrequency::None)
            item.updateNextOccurOn();
        // An account without an item is a state that needs no mending, the other
        // way round is.
        const accounting::AccountNumber number =
            open(budgeting::ItemTraits<Item>::accountType, budgeting::itemAccountName(source),
                 std::nullopt, budgeting::openingMoney(item));
        m_data.budget.items<Item>().add(item);
        m_data.budgetAccountCodes.insertOrAssign<Item>(source, number);
        m_data.itemTags.set(tagging::BudgetItemTags::ItemTags(
            {budgeting::ItemTraits<Item>::type, source}, {tagging::Tag(name()), tagging::Tag()}));
    }

    /// Recoding would take the account from an item or a bank.
    [[nodiscard]] bool isTied(accounting::AccountNumber number) const
    {
        const auto &types = m_data.budgetAccountCodes.maps();
        return m_data.banks.find(number) || std::ranges::any_of(types, [&](const auto &type) {
                   return std::ranges::any_of(
                       type.second, [&](const auto &entry) { return entry.second == number; });
               });
    }

    void addBank()
    {
        banking::Bank::Accounts accounts;
        const accounting::AccountNumber first(1);
        if (m_data.generalLedger.hasLedger(first) && m_pick(2) &&
            m_data.generalLedger.ledger(first).type() == accounting::AccountTypes::Asset)
            accounts.emplace(first, banking::BankAccountTypes::Cash);
        m_data.banks.add(banking::Bank(banking::BankName(name()), accounts, m_pick(2) == 0));
    }

    void addSurvey()
    {
        const banking::BankAccount account{
            banking::BankName(name()),
            {accounting::AccountNumber(picked(9)), banking::BankAccountTypes::Cash}};
        surveying::CompletedSurvey survey(account, currency());
        if (m_pick(2)) {
            surveying::Distribution distribution;
            for (int count = m_pick(3); count > 0; --count) {
                distribution.insert_or_assign(
                    {static_cast<budgeting::BudgetItemTypes>(m_pick(6)),
                     budgeting::BudgetSource(name())},
                    surveying::DistributedAmount(-money(), m_pick(2) ? date() : QDate(), money()));
            }
            survey.completed(date(), money(), distribution, -money(), {m_pick(100) / 7.0, 6});
        }
        m_data.surveys.upsert(survey);
    }

    std::uint32_t picked(int count) { return static_cast<std::uint32_t>(m_pick(count)); }
    accounting::AccountNumber account() { return accounting::AccountNumber(1 + picked(12)); }
    numira::Currency currency()
    {
        return numira::toCurrency(std::array{"USD", "EUR", "JPY", "KWD", "XXX"}.at(picked(5)));
    }
    numira::Money money()
    {
        const auto *text =
            std::array{"1", "0.000000000001", "12.5", "99999999999999999999.99", "7.123456789012"}
                .at(picked(5));
        return {currency(), numira::Decimal::fromText(text)};
    }
    QDate date()
    {
        return std::array{QDate(2026, 1, 31), QDate(2024, 2, 29),  QDate(1, 1, 1),
                          QDate(-44, 3, 15),  QDate(9999, 12, 31), QDate(12026, 6, 5)}
            .at(picked(6));
    }
    /// Names as users, copied texts and enemies give them.
    QString name()
    {
        const QString names[] = {QStringLiteral("Rent"),
                                 QStringLiteral("Z\u00fcrich \u20ac \U0001F600"),
                                 QString(QChar(0xD800)) + QStringLiteral("x\u00e9\u20ac\U0001F600"),
                                 u'y' + QString(QChar(0xDC00)),
                                 QStringLiteral("\uFEFFmark"),
                                 QString(QChar(u'\0')) + QStringLiteral("nul\n\t%1 'quoted'"),
                                 QStringLiteral("e\u0301"),
                                 QStringLiteral("\u00e9"),
                                 QString(300, u'n'),
                                 QStringLiteral("Rent [Budget Item]")};
        return names[m_pick(10)] + (m_pick(3) ? QString() : QString::number(m_pick(10)));
    }

    Pick m_pick;
    Data m_data;
    accounting::SequentialAccountNumberGenerator m_generator;
};

/// Two accounts with that many transactions.
inline RandomBudget::Data budgetWith(int transactions)
{
    RandomBudget::Data data;
    accounting::SequentialAccountNumberGenerator generator;
    for (const std::uint32_t number : {1U, 2U})
        addAccount(data.generalLedger, generator, accounting::AccountTypes::Asset, no(number), "a");
    for (int i = 0; i < transactions; ++i)
        data.generalLedger.post({QDate(2026, 1, 1).addDays(i % 3650), no(1), no(2),
                                 numira::Money(usd("0").code(), std::int64_t(i + 5), 0),
                                 QStringLiteral("shopping")});
    return data;
}

/// The budget of that many random steps from a seed.
inline RandomBudget::Data someBudget(unsigned seed, int steps)
{
    std::mt19937 random(seed);
    return RandomBudget([&](int count) { return int(random() % unsigned(count)); }).make(steps);
}

/// The first part of the data in which the two differ; empty when none does.
inline QString difference(const RandomBudget::Data &a, const RandomBudget::Data &b)
{
    const std::pair<bool, const char *> parts[] = {
        {a.generalLedger == b.generalLedger, "ledger"},
        {a.budget == b.budget, "budget"},
        {a.budgetAccountCodes == b.budgetAccountCodes, "item accounts"},
        {a.banks == b.banks, "banks"},
        {a.surveys == b.surveys, "surveys"},
        {a.itemTags == b.itemTags, "tags"}};
    const auto *part = std::ranges::find(parts, false, &std::pair<bool, const char *>::first);
    return part == std::end(parts) ? QString() : QString::fromLatin1(part->second);
}

} // namespace kiv::test
