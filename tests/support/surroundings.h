// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/scripted_sender.h"

#include "workbench/document/document.h"

namespace kiv::test {

/// What a document needs, with a service that answers by the script.
inline workbench::Surroundings
surroundings(const QString &ratesFile, ScriptedSender::Script script = ScriptedSender::silence())
{
    return {[script = std::move(script)] {
                return foundation::UniqueQtPtr<networking::RequestSender>(
                    new ScriptedSender(script));
            },
            ratesFile};
}

} // namespace kiv::test
