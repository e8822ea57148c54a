// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/secret.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include <sodium.h>

namespace kiv::storage::internal {

void readyCiphers()
{
    static const bool isReady = sodium_init() >= 0;
    if (!isReady)
        throw std::runtime_error("The system gives no random numbers.");
}

Secret::Secret(qsizetype size) : m_size(size)
{
    readyCiphers();
    m_data.reset(static_cast<unsigned char *>(sodium_malloc(static_cast<std::size_t>(size))));
    if (!m_data)
        throw std::bad_alloc();
}

Secret::Secret(QByteArrayView bytes) : Secret(bytes.size())
{
    std::ranges::copy(bytes, m_data.get());
}

void Secret::Free::operator()(unsigned char *bytes) const noexcept
{
    sodium_free(bytes);
}

} // namespace kiv::storage::internal
