// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <map>

namespace kiv::storage {

/// What front ends remember beside the books: JSON values under keys. The storage does not
/// look into them.
class KIV_STORAGE_EXPORT Notes {
public:
    /// The longest key, in UTF-16 code units.
    static constexpr qsizetype keySizeMax = 200;
    /// The longest value, in bytes of its text.
    static constexpr qsizetype valueSizeMax = qsizetype{64} * 1024;
    /// The most notes.
    static constexpr std::size_t countMax = 1'000;

    /// Goes over pairs of key and value in the order of the keys.
    using const_iterator = std::map<QString, QJsonValue>::const_iterator;

    /// Whether there are none.
    [[nodiscard]] bool isEmpty() const noexcept { return m_values.empty(); }
    /// How many there are.
    [[nodiscard]] std::size_t size() const noexcept { return m_values.size(); }
    /// The first note.
    [[nodiscard]] const_iterator begin() const noexcept { return m_values.begin(); }
    /// Behind the last note.
    [[nodiscard]] const_iterator end() const noexcept { return m_values.end(); }
    /// The value under the key; undefined if there is none.
    [[nodiscard]] QJsonValue value(const QString &key) const;

    /// Sets the value under the key; an undefined one removes the note. The value is kept
    /// as a file would give it back: numbers that JSON cannot write become null. Throws
    /// StorageError if the key is empty or too long, the value is too large or nested too
    /// deep, or there are too many notes; then nothing has changed.
    void set(const QString &key, const QJsonValue &value);

    /// The same values under the same keys.
    friend bool operator==(const Notes &, const Notes &) = default;

private:
    std::map<QString, QJsonValue> m_values;
};

} // namespace kiv::storage
