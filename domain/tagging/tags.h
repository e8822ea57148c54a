// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tagging/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <compare>
#include <initializer_list>
#include <iosfwd>
#include <set>

namespace kiv::tagging {

/// A word that the user puts on budget items to find them by. Tags are the same
/// exactly when their names are equal; case matters. Ordered by name, by code
/// units.
class KIV_TAGGING_EXPORT Tag {
public:
    Tag() = default;
    /// Any text.
    explicit Tag(QString name) : m_name(std::move(name)) {}
    /// The word as the user wrote it.
    [[nodiscard]] const QString &name() const noexcept { return m_name; }

    friend bool operator==(const Tag &, const Tag &) noexcept = default;
    /// By name, by code units.
    friend std::strong_ordering operator<=>(const Tag &a, const Tag &b) noexcept
    {
        return QString::compare(a.m_name, b.m_name) <=> 0;
    }

private:
    QString m_name;
};

/// A set of tags in their order. A class of its own rather than an alias: the
/// name under which it crosses signals and slots.
class KIV_TAGGING_EXPORT Tags {
public:
    /// Goes over the tags in their order.
    using const_iterator = std::set<Tag>::const_iterator;

    Tags() = default;
    /// These tags, each once.
    Tags(std::initializer_list<Tag> tags) : m_tags(tags) {}
    /// These tags.
    explicit Tags(std::set<Tag> tags) noexcept : m_tags(std::move(tags)) {}

    /// Whether there are none.
    [[nodiscard]] bool isEmpty() const noexcept { return m_tags.empty(); }
    /// How many there are.
    [[nodiscard]] std::size_t size() const noexcept { return m_tags.size(); }
    /// The first.
    [[nodiscard]] const_iterator begin() const noexcept { return m_tags.begin(); }
    /// Behind the last.
    [[nodiscard]] const_iterator end() const noexcept { return m_tags.end(); }
    /// Whether the tag is among them.
    [[nodiscard]] bool contains(const Tag &tag) const { return m_tags.contains(tag); }

    /// Adds the tag, if it is not there yet.
    void insert(Tag tag) { m_tags.insert(std::move(tag)); }
    /// Adds those that are not there yet.
    void insert(const Tags &others) { m_tags.insert(others.begin(), others.end()); }
    /// Removes those of the tags that it has.
    void remove(const Tags &others) noexcept
    {
        for (const Tag &tag : others)
            m_tags.erase(tag);
    }
    /// These tags without `others`.
    [[nodiscard]] Tags without(const Tags &others) const;

    friend bool operator==(const Tags &, const Tags &) noexcept = default;

private:
    std::set<Tag> m_tags;
};

/// The word as the user wrote it.
[[nodiscard]] KIV_TAGGING_EXPORT QString presentationText(const Tag &tag);
KIV_TAGGING_EXPORT std::ostream &operator<<(std::ostream &out, const Tag &tag);
/// "(car, home)".
KIV_TAGGING_EXPORT std::ostream &operator<<(std::ostream &out, const Tags &tags);
using foundation::operator<<;

} // namespace kiv::tagging

Q_DECLARE_METATYPE(kiv::tagging::Tag)
Q_DECLARE_METATYPE(kiv::tagging::Tags)
