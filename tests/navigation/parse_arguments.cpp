// SPDX-License-Identifier: GPL-3.0-or-later
// Reads its command line as a front end does, which ends a program that is misused.
// The status tells what was read.
#include "navigation/configuration.h"

#include <QtCore/QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral("4.5.6"));
    const auto options = kiv::navigation::parse(QCoreApplication::arguments());
    return 10 + int(options.isAdvancedUi) + 2 * int(options.isJargonFree);
}
