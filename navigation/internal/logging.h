// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/streams.h"

#include <QtCore/QDebug>

namespace kiv::navigation::internal {

/// An error's text for the log, escaped: a name from a file must not control a
/// terminal.
inline std::string logText(const std::exception &error)
{
    return foundation::escapedUtf8(QString::fromUtf8(error.what()));
}

/// Writes a warning: a fixed sentence, and the error's text. A line that cannot be
/// written, for want of memory or by the front end's own handler, is left out: the
/// error matters more.
inline void logWarning(const char *sentence, const std::exception &error) noexcept
{
    try {
        qWarning() << sentence << logText(error).c_str();
    } catch (...) {
    }
}

/// Writes what was done. It is done whether or not the line can be written.
template <typename... Parts>
void logDone(const Parts &...parts) noexcept
{
    try {
        (qInfo() << ... << parts);
    } catch (...) {
    }
}

} // namespace kiv::navigation::internal
