// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs at least to start a Qt program and print a line.
#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::puts("bare");
    return 0;
}
