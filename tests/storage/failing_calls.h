// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <functional>
#include <map>
#include <string>

/// Stands between the libraries and the system: a program that includes this
/// file answers their file calls itself, and can let one of them fail.
namespace kiv::test {

struct FailingCalls {
    bool isOn = false;
    std::map<std::string, int> counts = {}; ///< how often each call was made

    std::string name = {};                ///< the call that fails
    int from = 0;                         ///< from its time of this number on, counted from 1
    int times = 0;                        ///< and how many times
    int error = 0;                        ///< with this error; with 0 it lies instead
    std::function<void()> meanwhile = {}; ///< what another program does just before it,
                                          ///< or what else is to fail from then on

    [[nodiscard]] bool isChosen(const std::string &call, int count) const
    {
        return isOn && call == name && count >= from && count - from < times;
    }
};

inline FailingCalls failingCalls;

/// Lets the call fail that is made the `from`th time from now on.
inline void fail(const std::string &call, int from, int error, std::function<void()> meanwhile = {},
                 int times = 1)
{
    failingCalls = {.isOn = true,
                    .name = call,
                    .from = from,
                    .times = times,
                    .error = error,
                    .meanwhile = std::move(meanwhile)};
}

/// Whether the call that comes next is to lie.
inline bool lies(const char *call)
{
    return failingCalls.error == 0 && failingCalls.isChosen(call, failingCalls.counts[call] + 1);
}

/// The result of `real`, or a failure.
template <typename Real>
auto answer(const char *call, Real real) -> decltype(real())
{
    if (!failingCalls.isOn)
        return real();
    const bool isChosen = failingCalls.isChosen(call, ++failingCalls.counts[call]);
    const int error = failingCalls.error;
    if (failingCalls.meanwhile && isChosen) {
        failingCalls.isOn = false;
        failingCalls.meanwhile();
        failingCalls.isOn = true;
    }
    if (error == 0 || !isChosen)
        return real();
    errno = error;
    return -1;
}

} // namespace kiv::test
