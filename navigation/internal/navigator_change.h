// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/failure.h"
#include "navigation/internal/budget_bank_ledgers.h"
#include "navigation/internal/logging.h"
#include "navigation/navigator.h"

#include <tuple>

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

/// Leaves the failure for whoever hears of it. Where memory is short the refusal
/// itself matters more.
inline void keepFailure(const QObject &navigator, const char *sentence,
                        const std::exception &error) noexcept
{
    try {
        if (LastFailure *last = LastFailure::of(navigator))
            last->keep(failureOf(QString::fromLatin1(sentence), error));
    } catch (...) {
    }
}

/// A view may change the budget, or whatever it handed in, while it draws itself
/// or a slot waits; the copy stays.
template <typename Value>
Value copied(const Value &value)
{
    return value;
}

/// Emits the signal with copies, so that all views hear the same, whatever the
/// first of them does with what it had handed in.
template <typename... Parameters, typename... Values>
void tell(Navigator *navigator, void (Navigator::*signal)(Parameters...), const Values &...values)
{
    const std::tuple<std::remove_cvref_t<Parameters>...> told(values...);
    std::apply([&](const auto &...each) { (navigator->*signal)(each...); }, told);
}

} // namespace internal

template <typename Caught, typename Operation, typename Failure>
bool Navigator::attempt(const char *sentence, Operation &&operation, Failure &&failure)
{
    try {
        operation();
        return true;
    } catch (const Caught &error) {
        internal::logWarning(sentence, error);
        internal::keepFailure(*this, sentence, error);
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
