// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/call.h"
#include "program/passphrases.h"

namespace kiv::app {

/// Whether a new file is encrypted.
struct WhetherEncrypted {
    bool isEncrypted = false;

    void declare(Arguments &arguments)
    {
        arguments.flag("--encrypt", isEncrypted, QObject::tr("Encrypt it with a passphrase"));
    }
    /// Gets the passphrase for the file that is made next.
    void choose(const Call &call) const
    {
        if (isEncrypted)
            call.document.encryptNext(Passphrases(call.options).chosen({}, false));
    }
};

} // namespace kiv::app
