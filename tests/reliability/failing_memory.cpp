// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stands between everything and the system's memory: what is asked for by `new`
// is counted, and one request can be answered with none. What Qt's own lists and
// texts ask for is left alone: some of them cannot do without.
#include "support/fault.h"

#include <cstdlib>
#include <new>

using kiv::test::fault;
using kiv::test::Fault;

#pragma GCC visibility push(default)

void *operator new(std::size_t size)
{
    void *memory = fault.isDue(Fault::Place::Memory, "memory") ? nullptr : std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}
// Those who ask like this do without, as sorting does.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size);
}
void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

/// Qt loses what a connection has taken already when there is no memory for the
/// rest of it.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:connect<";
}

#pragma GCC visibility pop
