// SPDX-License-Identifier: GPL-3.0-or-later
// A test program: [SUITE] [Qt Test arguments]. Without a suite all of them run, each in a
// process of its own, so that none meets what another left: settings, a converter, a log.
// With -suites it prints their names.
#include "support/suite.h"

#include <sys/wait.h>
#include <unistd.h>

#ifdef KIV_TEST_WINDOW
#include "application/application.h"
using Application = kiv::desktop::Application;
#else
#include <QtCore/QCoreApplication>
using Application = QCoreApplication;
#endif

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
    for (const auto *suite : suites()) {
        if (argc > 1 && suite->name() == argv[1]) {
            Application application(argc, argv);
            return QTest::qExec(suite->tests().get(), argc - 1, argv + 1);
        }
    }
    if (argc > 1 && std::string_view(argv[1]) == "-suites") {
        for (const auto *suite : suites())
            std::puts(suite->name().data());
        return 0;
    }
    int failed = suites().empty() ? 1 : 0;
    for (const auto *suite : suites()) {
        const pid_t child = fork();
        if (child == 0) {
            Application application(argc, argv);
            return QTest::qExec(suite->tests().get(), argc, argv);
        }
        int status = 1;
        waitpid(child, &status, 0);
        failed += status == 0 ? 0 : 1;
    }
    return failed;
}
