// SPDX-License-Identifier: GPL-3.0-or-later
// What single calls cost, by the number of transactions in the book.
#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>

int main(int argc, char **argv)
{
    QStandardPaths::setTestModeEnabled(true);
    const QCoreApplication application(argc, argv);
    // As the command without --verbose: nobody pays for what nobody reads.
    QLoggingCategory::setFilterRules(
        QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
