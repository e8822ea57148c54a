// SPDX-License-Identifier: GPL-3.0-or-later
// A test program: [SUITE] [Qt Test arguments]. Without a suite all of them run; the
// status is the number of tests that failed.
#include "support/suite.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace {

std::vector<const kiv::test::AnySuite *> &suites()
{
    static std::vector<const kiv::test::AnySuite *> all;
    return all;
}

} // namespace

kiv::test::AnySuite::AnySuite()
{
    suites().push_back(this);
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments();
    auto chosen = suites();
    const auto isNamed = [&](const auto *suite) {
        return arguments.size() > 1 && arguments.at(1) == QLatin1String(suite->name());
    };
    if (const auto named = std::ranges::find_if(chosen, isNamed); named != chosen.end()) {
        chosen = {*named};
        arguments.removeAt(1);
    }
    int failed = chosen.empty() ? 1 : 0;
    for (const auto *suite : chosen) {
        failed += QTest::qExec(suite->tests().get(), arguments);
    }
    return std::min(failed, 100);
}
