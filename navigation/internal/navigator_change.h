// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_bank_ledgers.h"
#include "navigation/navigator.h"

#include "foundation/streams.h"

#include <QtCore/QDebug>

// The one shape of the Navigator's changing slots, for its own sources.
namespace kiv::navigation {

namespace internal {

inline QString userText(const foundation::Error &error)
{
    return error.message();
}

inline QString userText(const std::exception &error)
{
    return QString::fromUtf8(error.what());
}

/// An exception's text for the log. It may hold names that a file brought, and
/// a terminal must not obey them.
inline QByteArray logText(const std::exception &error)
{
    return foundation::escaped(QString::fromUtf8(error.what())).toUtf8();
}

} // namespace internal

template <typename Caught, typename Operation, typename Failure>
bool Navigator::attempt(const char *sentence, Operation &&operation, Failure &&failure)
{
    try {
        operation();
        return true;
    } catch (const Caught &error) {
        qWarning() << sentence << internal::logText(error).constData();
        failure(internal::userText(error));
        return false;
    }
}

template <typename Caught, typename Operation, typename Success, typename Failure>
bool Navigator::change(const char *sentence, Operation &&operation, Success &&success,
                       Failure &&failure)
{
    if (!attempt<Caught>(sentence, operation, failure))
        return false;
    m_isDirty = true;
    // Outside of the try: what a receiver throws is no failure of the change.
    success();
    return true;
}

} // namespace kiv::navigation
