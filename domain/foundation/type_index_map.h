// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

#include <QtCore/QString>

#include <cstddef>
#include <map>
#include <ostream>
#include <stdexcept>
#include <typeindex>
#include <typeinfo>
#include <utility>

namespace kiv::foundation {

/// Every sentence with which the map refuses something: one function each, which gives the
/// exception to throw.
namespace internal {
[[nodiscard]] KIV_FOUNDATION_EXPORT Error mutableValueMissing(const QString &type,
                                                              const QString &key);
[[nodiscard]] KIV_FOUNDATION_EXPORT Error valueMissing(const QString &type, const QString &key);
[[nodiscard]] KIV_FOUNDATION_EXPORT Error typeToRemoveMissing(const QString &type,
                                                              const QString &key);
[[nodiscard]] KIV_FOUNDATION_EXPORT Error keyToRemoveMissing(const QString &type,
                                                             const QString &key);
} // namespace internal

/// A two-level map: first by a type, then by a key. No inner map is ever empty,
/// and size() is always the number of keys over all of them.
///
/// An operation that throws leaves the map unchanged.
template <typename K, typename V>
class TypeIndexMap {
public:
    /// The values under one type.
    using Inner = std::map<K, V>;
    /// The inner maps under all types.
    using Outer = std::map<std::type_index, Inner>;

    /// Everything, to be read.
    [[nodiscard]] const Outer &maps() const noexcept { return m_maps; }
    /// The number of keys over all types.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    /// Whether there is no key.
    [[nodiscard]] bool isEmpty() const noexcept { return m_maps.empty(); }
    /// Removes everything.
    void clear() noexcept
    {
        m_maps.clear();
        m_size = 0;
    }

    /// Throws Error when there is no such key under the type.
    template <typename T>
    [[nodiscard]] V &value(const K &key)
    {
        try {
            return m_maps.at(typeid(T)).at(key);
        } catch (const std::out_of_range &) {
            throw internal::mutableValueMissing(typeName<T>(), presentationText(key));
        }
    }
    /// The same, to be read only.
    template <typename T>
    [[nodiscard]] const V &value(const K &key) const
    {
        try {
            return m_maps.at(typeid(T)).at(key);
        } catch (const std::out_of_range &) {
            throw internal::valueMissing(typeName<T>(), presentationText(key));
        }
    }

    /// Whether there is such a key under the type.
    template <typename T>
    [[nodiscard]] bool has(const K &key) const
    {
        const auto inner = m_maps.find(typeid(T));
        return inner != m_maps.end() && inner->second.contains(key);
    }

    /// Adds the key, or replaces its value.
    template <typename T>
    void insertOrAssign(const K &key, V value)
    {
        insertOrAssign(std::type_index(typeid(T)), key, std::move(value));
    }
    /// The same for a type that is known by its index.
    void insertOrAssign(std::type_index type, const K &key, V value)
    {
        if (const auto inner = m_maps.find(type); inner != m_maps.end()) {
            if (inner->second.insert_or_assign(key, std::move(value)).second)
                ++m_size;
            return;
        }
        Inner first;
        first.emplace(key, std::move(value));
        m_maps.emplace(type, std::move(first));
        ++m_size;
    }

    /// Throws Error when there is no such key under the type.
    template <typename T>
    void remove(const K &key)
    {
        const auto inner = m_maps.find(typeid(T));
        if (inner == m_maps.end())
            throw internal::typeToRemoveMissing(typeName<T>(), presentationText(key));
        if (inner->second.erase(key) == 0)
            throw internal::keyToRemoveMissing(typeName<T>(), presentationText(key));
        --m_size;
        if (inner->second.empty())
            m_maps.erase(inner);
    }

private:
    template <typename T>
    static QString typeName()
    {
        return QString::fromUtf8(plainName(typeid(T)));
    }

public:
    /// The type's implementation name without the mark that some compilers put
    /// before names with internal linkage.
    static const char *plainName(std::type_index type) noexcept
    {
        const char *name = type.name();
        return *name == '*' ? name + 1 : name;
    }

private:
    Outer m_maps;
    std::size_t m_size = 0;
};

/// Same types, same keys (exact comparison) and same values.
template <typename K, typename V>
[[nodiscard]] bool operator==(const TypeIndexMap<K, V> &a, const TypeIndexMap<K, V> &b)
{
    return a.size() == b.size() && a.maps() == b.maps();
}

/// "Type-Keys (name[key=>value, key=>value], name[…])".
template <typename K, typename V>
std::ostream &operator<<(std::ostream &out, const TypeIndexMap<K, V> &map)
{
    out << "Type-Keys (";
    const char *betweenTypes = "";
    for (const auto &[type, inner] : map.maps()) {
        out << betweenTypes << TypeIndexMap<K, V>::plainName(type) << '[';
        betweenTypes = ", ";
        const char *betweenKeys = "";
        for (const auto &[key, value] : inner) {
            out << betweenKeys << key << "=>" << value;
            betweenKeys = ", ";
        }
        out << ']';
    }
    return out << ')';
}

} // namespace kiv::foundation
