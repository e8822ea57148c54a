// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/streams.h"

#include <QtCore/QDebug>

#include <chrono>
#include <optional>
#include <set>

// Everything that crosses the Navigator's signals and slots can be written to
// the log, but Qt learned to write these templates of the standard library only
// after 6.4. They stand in Qt's own namespace, because that is where the
// registration of a meta-type looks for them.

#if QT_VERSION < QT_VERSION_CHECK(6, 9, 0)
template <typename T, typename Compare, typename Alloc>
QDebug operator<<(QDebug debug, const std::set<T, Compare, Alloc> &set)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << '(';
    const char *separator = "";
    for (const T &element : set) {
        debug << separator << element;
        separator = ", ";
    }
    debug << ')';
    return debug;
}

template <typename T>
QDebug operator<<(QDebug debug, const std::optional<T> &value)
{
    QDebugStateSaver saver(debug);
    if (value)
        debug.nospace() << *value;
    else
        debug.nospace() << "none";
    return debug;
}
#endif

#if QT_VERSION < QT_VERSION_CHECK(6, 6, 0)
inline QDebug operator<<(QDebug debug, std::chrono::days days)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << static_cast<qint64>(days.count()) << "d";
    return debug;
}

inline QDebug operator<<(QDebug debug, std::chrono::milliseconds milliseconds)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << static_cast<qint64>(milliseconds.count()) << "ms";
    return debug;
}
#endif
