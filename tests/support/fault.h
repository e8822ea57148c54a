// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

#include <QtCore/QString>

#include <new>
#include <stdexcept>
#include <utility>

namespace kiv::test {

/// Fails one call out of all those that are counted while it is on.
struct Fault {
    enum class Kind { Domain, Memory, Other };
    /// What is counted: calls of the domain, or requests for memory.
    enum class Place { Calls, Memory };

    bool isOn = false;
    Place place = Place::Calls;
    Kind kind = Kind::Domain;
    long due = 0;                 ///< the call that fails, from 1; none with 0
    long count = 0;               ///< the calls so far
    const char *failed = nullptr; ///< the call that failed

    static QString text() { return QStringLiteral("planted fault"); }

    /// Counts a call. True when it is the one that has to fail.
    [[nodiscard]] bool isDue(Place at, const char *name) noexcept
    {
        if (!isOn || at != place || ++count != due)
            return false;
        failed = name;
        return true;
    }
    /// Counts a call of the domain, and fails when it is the one.
    void pass(const char *name)
    {
        if (!isDue(Place::Calls, name))
            return;
        isOn = false;
        if (kind == Kind::Domain) {
            const foundation::Error error(text());
            isOn = true;
            throw error;
        }
        isOn = true;
        if (kind == Kind::Memory)
            throw std::bad_alloc();
        throw std::runtime_error("planted fault");
    }
};

inline Fault fault;

/// While it lives, nothing is counted and nothing fails: a test's own doing.
class Unwatched {
public:
    Unwatched() : m_wasOn(std::exchange(fault.isOn, false)) {}
    ~Unwatched() { fault.isOn = m_wasOn; }
    Unwatched(const Unwatched &) = delete;
    Unwatched &operator=(const Unwatched &) = delete;

private:
    bool m_wasOn;
};

} // namespace kiv::test
