// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/streams.h"

#include <QtCore/QDebug>

namespace kiv::navigation::internal {

/// An error's text for the log. It may hold names that a file brought, and a
/// terminal must not obey them.
inline std::string logText(const std::exception &error)
{
    return foundation::escapedUtf8(QString::fromUtf8(error.what()));
}

/// Writes a warning: a fixed sentence, and the error's text.
inline void logWarning(const char *sentence, const std::exception &error)
{
    qWarning() << sentence << logText(error).c_str();
}

} // namespace kiv::navigation::internal
