// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/start_options.h"

namespace kiv::desktop {

StartOptions readStartOptions(const QStringList &arguments)
{
    StartOptions options;
    QStringList others;
    bool isOption = true; // until "--"
    for (const QString &argument : arguments) {
        if (others.isEmpty())
            others += argument; // the program's name
        else if (isOption && argument == u"--")
            isOption = false;
        else if (isOption && argument.startsWith(u'-'))
            others += argument;
        else
            options.file = argument;
    }
    options.ui = navigation::parse(others);
    return options;
}

} // namespace kiv::desktop
