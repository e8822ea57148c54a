// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/start_options.h"

#include <QtCore/QObject>

#include <cstdlib>
#include <iostream>

namespace kiv::desktop {

namespace {

[[noreturn]] void refuseSecond(const QString &first, const QString &second)
{
    constexpr int wrongUse = 2;
    std::cerr << QObject::tr("kiv-desktop: One file can be opened, not '%1' and '%2'.")
                     .arg(first, second)
                     .toStdString()
              << std::endl;
    std::exit(wrongUse);
}

} // namespace

StartOptions readStartOptions(const QStringList &arguments)
{
    StartOptions options;
    QStringList others;
    bool isOption = true; // until "--"
    for (const QString &argument : arguments) {
        if (isOption && argument == u"--")
            isOption = false;
        else if (others.isEmpty() || (isOption && argument.startsWith(u'-')))
            others += argument; // the program's name, or an option
        else if (options.file.isEmpty())
            options.file = argument;
        else
            refuseSecond(options.file, argument);
    }
    options.ui = navigation::parse(others);
    return options;
}

} // namespace kiv::desktop
