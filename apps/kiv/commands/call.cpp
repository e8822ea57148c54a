// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/call.h"

#include "messages/message_log.h"
#include "program/program.h"

#include "workbench/document/encryption_text.h"

namespace kiv::app {

Call::Call(Program &running, const Options &given)
    : document(running.document()),
      requests(running.document().requests()),
      options(given),
      program(running)
{
}

QString Call::fileNamed() const
{
    for (const QString &path : {options.file, document.file(), qEnvironmentVariable("KIV_FILE")}) {
        if (path.isEmpty())
            continue;
        document.writePending(); // the file itself is looked at
        document.listen();
        return path;
    }
    throw noFileNamed();
}

void Call::tellReadable() const
{
    if (document.isEncrypted())
        warn(workbench::outputIsReadable());
}

QString Call::fileToMake(const QString &given) const
{
    for (const QString &path : {given, options.file, qEnvironmentVariable("KIV_FILE")}) {
        if (!path.isEmpty())
            return path;
    }
    throw noFileNamed();
}

} // namespace kiv::app
