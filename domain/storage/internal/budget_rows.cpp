// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/budget_rows.h"

#include "storage/internal/faults.h"

#include <QtCore/QObject>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kiv::storage::internal {
namespace {

using accounting::AccountNumber;
using banking::BankAccountTypes;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;
using budgeting::EventFrequency;
using numira::Money;

constexpr std::int64_t accountNumberMax = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t dayOfMonthMax = 31;

template <typename Item>
concept HasTotal = budgeting::BankTiedItem<Item>;

const Money &totalOf(const budgeting::Debt &debt) noexcept
{
    return debt.borrowed();
}

const Money &totalOf(const budgeting::Goal &goal) noexcept
{
    return goal.final();
}

AccountNumber accountNumber(RowReader &row)
{
    return AccountNumber(static_cast<std::uint32_t>(row.integer(0, accountNumberMax)));
}

void write(RowWriter &row, const BudgetItemIdentifier &item)
{
    row.integer(static_cast<int>(item.type)).text(item.source.name());
}

BudgetItemIdentifier readIdentifier(RowReader &row)
{
    const auto type = row.enumerator(BudgetItemTypes::Wage);
    return {type, BudgetSource(row.text())};
}

/// Calls the visitor for the class of the row's item.
template <typename Visitor>
void visitClassOf(const BudgetItemIdentifier &item, RowReader &row, Visitor visitor)
{
    if (item.type == BudgetItemTypes::None)
        row.refuse("is about no kind of item");
    budgeting::visitItemClass(item.type, itemKindUnknown, visitor);
}

template <typename Item>
void writeItem(RowWriter &row, const Item &item)
{
    row.newRow();
    write(row, {budgeting::ItemTraits<Item>::type, item.source()});
    row.money(item.amount()).integer(static_cast<int>(item.period()));
    row.date(item.nextOccurOn()).integer(item.dayOfMonth());
    if constexpr (HasTotal<Item>)
        row.money(totalOf(item));
    else
        row.null().null();
    row.endRow();
}

template <typename Item>
Item readItem(RowReader &row, const BudgetSource &source)
{
    const Money amount = row.money();
    const auto period = row.enumerator(EventFrequency::EveryTenYears);
    const QDate next = row.date();
    const auto day = static_cast<int>(row.integer(1, dayOfMonthMax));
    const auto make = [&](auto... total) {
        // Only a default-constructed item has no date.
        if (next.isValid())
            return Item(source, amount, period, next, total...);
        Item item;
        item.rename(source);
        return item;
    };
    Item item;
    if constexpr (HasTotal<Item>) {
        item = make(row.money());
    } else {
        row.absent();
        row.absent();
        item = make();
    }
    item.setDayOfMonth(day);
    return item;
}

/// Puts the item into its map. The map takes no new item without a name, but an
/// item can lose its name later.
template <typename Map, typename Item>
void put(Map &items, Item item)
{
    const BudgetSource source = item.source();
    if (source.isEmpty())
        item.rename(BudgetSource(QStringLiteral("?")));
    const BudgetSource added = item.source();
    items.add(std::move(item));
    if (added != source)
        items.rename(added, source);
}

void writePercentage(RowWriter &row, const foundation::Percentage &percentage)
{
    // The shortest text that reads back as the same number.
    std::array<char, 32> text{};
    const char *const end =
        std::to_chars(text.data(), text.data() + text.size(), percentage.rate()).ptr;
    row.text(QString::fromLatin1(text.data(), end - text.data())).integer(percentage.digits());
}

foundation::Percentage readPercentage(RowReader &row)
{
    const QByteArray text = row.text().toLatin1();
    double rate = 0.0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), rate);
    if (error != std::errc() || end != text.end() || !std::isfinite(rate))
        row.refuse("has a malformed percentage");
    const auto digits = row.integer(0, std::numeric_limits<std::uint8_t>::max());
    return {rate, static_cast<std::uint8_t>(digits)};
}

/// The distributions of the surveys, by the keys of their rows.
using Distributions = std::map<std::int64_t, surveying::Distribution>;

Distributions readDistributions(RowSource &source)
{
    Distributions distributions;
    RowReader row(source, Table::Distributions);
    while (row.next()) {
        surveying::Distribution &distribution = distributions[row.integer(1, rowsMax)];
        const BudgetItemIdentifier item = readIdentifier(row);
        const Money distributed = row.money();
        const QDate next = row.date();
        if (!distribution
                 .emplace(item, surveying::DistributedAmount(distributed, next, row.money()))
                 .second)
            row.refuse("sets money aside twice for an item");
    }
    return distributions;
}

} // namespace

void writeItems(RowSink &sink, const budgeting::Budget &budget)
{
    RowWriter row(sink, Table::Items);
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        for (const auto &[source, item] : budget.items<Item>())
            writeItem(row, item);
    });
}

budgeting::Budget readItems(RowSource &source)
{
    budgeting::Budget budget;
    RowReader row(source, Table::Items);
    while (row.next()) {
        const BudgetItemIdentifier id = readIdentifier(row);
        visitClassOf(id, row, [&]<typename Item>(std::type_identity<Item>) {
            put(budget.items<Item>(), readItem<Item>(row, id.source));
        });
    }
    return budget;
}

void writeItemAccounts(RowSink &sink, const BudgetStorage::BudgetAccountCodes &codes)
{
    RowWriter row(sink, Table::ItemAccounts);
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        const auto ofClass = codes.maps().find(typeid(Item));
        if (ofClass == codes.maps().end())
            return;
        for (const auto &[source, number] : ofClass->second) {
            row.newRow();
            write(row, {budgeting::ItemTraits<Item>::type, source});
            row.integer(number.integer()).endRow();
        }
    });
}

BudgetStorage::BudgetAccountCodes readItemAccounts(RowSource &source)
{
    BudgetStorage::BudgetAccountCodes codes;
    RowReader row(source, Table::ItemAccounts);
    while (row.next()) {
        const BudgetItemIdentifier id = readIdentifier(row);
        visitClassOf(id, row, [&]<typename Item>(std::type_identity<Item>) {
            if (codes.has<Item>(id.source))
                row.refuse("gives an item a second account");
            codes.insertOrAssign<Item>(id.source, accountNumber(row));
        });
    }
    return codes;
}

void writeBanks(RowSink &sink, const banking::BankMap &banks)
{
    RowWriter bankRow(sink, Table::Banks);
    for (const auto &[name, bank] : banks)
        bankRow.newRow().text(name.institution()).integer(bank.isClosed()).endRow();
    RowWriter row(sink, Table::BankAccounts);
    std::int64_t bankKey = 0;
    for (const auto &[name, bank] : banks) {
        ++bankKey;
        for (const auto &[number, type] : bank.accounts()) {
            row.newRow().integer(bankKey).integer(number.integer());
            row.integer(static_cast<int>(type)).endRow();
        }
    }
}

banking::BankMap readBanks(RowSource &source)
{
    struct BankRow {
        banking::BankName name;
        bool isClosed = false;
        banking::Bank::Accounts accounts;
    };
    std::map<std::int64_t, BankRow> rows;
    RowReader bankRow(source, Table::Banks);
    while (bankRow.next()) {
        banking::BankName name(bankRow.text());
        rows.emplace(bankRow.key(), BankRow{std::move(name), bankRow.boolean(), {}});
    }
    RowReader row(source, Table::BankAccounts);
    while (row.next()) {
        const auto bank = rows.find(row.integer(1, rowsMax));
        if (bank == rows.end())
            row.refuse("is about no bank");
        const AccountNumber number = accountNumber(row);
        const auto type = row.enumerator(BankAccountTypes::Cash);
        if (type == BankAccountTypes::Unknown)
            row.refuse("gives a bank an account of no kind");
        if (!bank->second.accounts.emplace(number, type).second)
            row.refuse("gives a bank an account twice");
    }
    banking::BankMap banks;
    for (auto &[key, bank] : rows)
        banks.add(banking::Bank(std::move(bank.name), std::move(bank.accounts), bank.isClosed));
    return banks;
}

void writeSurveys(RowSink &sink, const surveying::CompletedSurveys &surveys)
{
    RowWriter surveyRow(sink, Table::Surveys);
    for (const auto &[account, survey] : surveys) {
        surveyRow.newRow().text(account.bank.institution());
        surveyRow.integer(account.account.number.integer());
        surveyRow.integer(static_cast<int>(account.account.type));
        surveyRow.money(survey.reconciled().balance());
        surveyRow.date(survey.reconciled().reconciledOn().value_or(QDate()));
        surveyRow.money(survey.nonDistributed());
        writePercentage(surveyRow, survey.window());
        surveyRow.endRow();
    }
    RowWriter row(sink, Table::Distributions);
    std::int64_t surveyKey = 0;
    for (const auto &[account, survey] : surveys) {
        ++surveyKey;
        for (const auto &[item, amount] : survey.distribution()) {
            row.newRow().integer(surveyKey);
            write(row, item);
            row.money(amount.distributed()).date(amount.nextOccurOn());
            row.money(amount.expected()).endRow();
        }
    }
}

surveying::CompletedSurveys readSurveys(RowSource &source)
{
    struct SurveyRow {
        banking::BankAccount account;
        Money balance;
        QDate reconciledOn;
        Money leftOver;
        foundation::Percentage window;
    };
    std::map<std::int64_t, SurveyRow> rows;
    RowReader row(source, Table::Surveys);
    while (row.next()) {
        SurveyRow survey;
        survey.account.bank = banking::BankName(row.text());
        survey.account.account.number = accountNumber(row);
        survey.account.account.type = row.enumerator(BankAccountTypes::Cash);
        survey.balance = row.money();
        survey.reconciledOn = row.date();
        survey.leftOver = row.money();
        survey.window = readPercentage(row);
        rows.emplace(row.key(), std::move(survey));
    }
    Distributions distributions = readDistributions(source);
    surveying::CompletedSurveys surveys;
    for (auto &[key, survey] : rows) {
        surveying::CompletedSurvey completed(survey.account, survey.balance.code());
        // Only a survey that was never completed has no day, and nothing else.
        if (survey.reconciledOn.isValid())
            completed.completed(survey.reconciledOn, survey.balance, std::move(distributions[key]),
                                survey.leftOver, survey.window);
        surveys.upsert(std::move(completed));
    }
    if (surveys.size() != rows.size() ||
        !std::ranges::all_of(distributions,
                             [&](const auto &entry) { return rows.contains(entry.first); }))
        throw surveysDoNotFit();
    return surveys;
}

void writeItemTags(RowSink &sink, const tagging::BudgetItemTags &tags)
{
    RowWriter row(sink, Table::ItemTags);
    for (const auto &[item, itemTags] : tags) {
        for (const tagging::Tag &tag : itemTags) {
            row.newRow();
            write(row, item);
            row.text(tag.name()).endRow();
        }
    }
}

tagging::BudgetItemTags readItemTags(RowSource &source)
{
    std::map<BudgetItemIdentifier, tagging::Tags> rows;
    RowReader row(source, Table::ItemTags);
    while (row.next()) {
        tagging::Tags &tags = rows[readIdentifier(row)];
        tagging::Tag tag(row.text());
        if (tags.contains(tag))
            row.refuse("gives an item a tag twice");
        tags.insert(std::move(tag));
    }
    tagging::BudgetItemTags tags;
    for (auto &[item, itemTags] : rows)
        tags.set(tagging::BudgetItemTags::ItemTags(item, std::move(itemTags)));
    return tags;
}

} // namespace kiv::storage::internal
