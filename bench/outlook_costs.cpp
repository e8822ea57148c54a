// SPDX-License-Identifier: GPL-3.0-or-later
// Looking ahead: a year of all items, by the size of the book.
#include "book.h"

#include "workbench/outlook/looking_ahead.h"

#include <benchmark/benchmark.h>

namespace kiv::bench {
namespace {

void lookAheadAYear(benchmark::State &state)
{
    const storage::BudgetStorage::Data data = dataOf(book(static_cast<int>(state.range(0))));
    workbench::OutlookQuestion question;
    question.first = lastDayOfBook();
    question.days = {365};
    for (auto _ : state)
        benchmark::DoNotOptimize(
            workbench::lookAhead(data, question, numira::toCurrency("USD")).outlook.payments);
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int transactions : bookSizes)
        benchmark->Arg(transactions);
}

BENCHMARK(lookAheadAYear)->Apply(sizes)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kiv::bench
