// SPDX-License-Identifier: GPL-3.0-or-later
// Requests to the Navigator: every answer that shows something, and adding items.
#include "book.h"

#include "support/memory_storage.h"
#include "support/scripted_sender.h"

#include "navigation/navigator.h"

#include <benchmark/benchmark.h>

namespace kiv::bench {
namespace {

using benchmark::State;
using budgeting::BudgetSource;
using navigation::Navigator;

const QString &path()
{
    static const QString theOnly = QStringLiteral("book.budget");
    return theOnly;
}

/// A Navigator that keeps its files in memory and asks no network.
std::unique_ptr<Navigator> makeNavigator(const std::shared_ptr<test::MemoryDisk> &disk)
{
    return std::make_unique<Navigator>(std::make_unique<ScriptedSender>(ScriptedSender::silence()),
                                       std::make_unique<test::MemoryBudgetStorage>(disk),
                                       std::make_unique<test::MemoryRatesStorage>(disk));
}

/// One with a book of that size open.
std::unique_ptr<Navigator> navigatorOf(int transactions)
{
    const auto disk = std::make_shared<test::MemoryDisk>();
    disk->files.emplace(path(), dataOf(book(transactions)));
    auto navigator = makeNavigator(disk);
    navigator->onConfirmedLoadBudgetFile(path(), false);
    return navigator;
}

struct Question {
    const char *name;
    void (Navigator::*slot)();
};

constexpr Question questions[]{
    {"showBills", &Navigator::onPrepareShowBills},
    {"showDebts", &Navigator::onPrepareShowDebts},
    {"showGoals", &Navigator::onPrepareShowGoals},
    {"showNontracks", &Navigator::onPrepareShowNontracks},
    {"showWages", &Navigator::onPrepareShowWages},
    {"showAccounts", &Navigator::onPrepareShowAccounts},
    {"showLedgers", &Navigator::onPrepareShowLedgers},
    {"showBanks", &Navigator::onPrepareShowBanks},
    {"showProcessBudgetItems", &Navigator::onPrepareShowProcessBudgetItems},
    {"showSurvey", &Navigator::onPrepareShowSurvey},
    {"showDashboard", &Navigator::onPrepareShowDashboard},
    {"showConfigure", &Navigator::onPrepareShowConfigure},
    {"showMoneyTransfer", &Navigator::onPrepareShowMoneyTransfer},
    {"showBudgetItemRefund", &Navigator::onPrepareShowBudgetItemRefund},
};

void show(State &state, void (Navigator::*slot)())
{
    const auto navigator = navigatorOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
        (navigator.get()->*slot)();
}

void showLedger(State &state)
{
    const auto navigator = navigatorOf(static_cast<int>(state.range(0)));
    const accounting::AccountCode busy(accounting::AccountNumber(busyAccount), std::nullopt);
    for (auto _ : state)
        navigator->onSelectedLedger(busy);
}

/// So many items with two tags each, added one after the other to an empty budget.
void addItems(State &state)
{
    const auto disk = std::make_shared<test::MemoryDisk>();
    const auto navigator = makeNavigator(disk);
    const numira::Money amount(numira::toCurrency("USD"), 12, 34);
    for (auto _ : state) {
        for (int index = 0; index < state.range(0); ++index) {
            const BudgetSource source(QStringLiteral("Item %1").arg(index));
            const tagging::Tags tags{tagging::Tag(QStringLiteral("home")),
                                     tagging::Tag(QStringLiteral("Tag %1").arg(index % 20))};
            const bool isAdded = navigator->onAdded(
                navigation::GuiElementIdentifier(1), budgeting::BudgetItemTypes::Bill,
                budgeting::Bill(source, amount, budgeting::EventFrequency::Monthly,
                                lastDayOfBook()),
                std::nullopt,
                tagging::BudgetItemTags::ItemTags({budgeting::BudgetItemTypes::Bill, source},
                                                  tags));
            if (!isAdded)
                state.SkipWithError("An item was refused.");
        }
        state.PauseTiming();
        navigator->onConfirmedNewBudgetEmpty();
        state.ResumeTiming();
    }
}
BENCHMARK(addItems)->Arg(1)->Arg(10)->Arg(100)->Arg(300);

/// Registers the questions before main() begins, as BENCHMARK does.
const bool areRegistered = [] {
    const auto atAllSizes = [](benchmark::internal::Benchmark *benchmark) {
        for (const int transactions : bookSizes)
            benchmark->Arg(transactions);
    };
    for (const Question &question : questions)
        atAllSizes(benchmark::RegisterBenchmark(question.name, show, question.slot));
    atAllSizes(benchmark::RegisterBenchmark("showLedger", showLedger));
    return true;
}();

} // namespace
} // namespace kiv::bench
