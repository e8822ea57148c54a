// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

#include <memory>

namespace kiv::storage::internal {

/// Makes the library of ciphers ready, once. Throws std::runtime_error when it is unusable.
void readyCiphers();

/// Bytes that nobody else should see: their memory is not swapped out where the system allows
/// that, is left out of core dumps, and is overwritten at the end. Throws std::bad_alloc.
class Secret {
public:
    explicit Secret(qsizetype size);
    explicit Secret(QByteArrayView bytes);

    [[nodiscard]] unsigned char *data() noexcept { return m_data.get(); }
    [[nodiscard]] const unsigned char *data() const noexcept { return m_data.get(); }
    [[nodiscard]] qsizetype size() const noexcept { return m_size; }
    [[nodiscard]] QByteArrayView bytes() const noexcept
    {
        return {reinterpret_cast<const char *>(m_data.get()), m_size};
    }

private:
    struct Free {
        void operator()(unsigned char *bytes) const noexcept;
    };

    std::unique_ptr<unsigned char, Free> m_data;
    qsizetype m_size;
};

} // namespace kiv::storage::internal
