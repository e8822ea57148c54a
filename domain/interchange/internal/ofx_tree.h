// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QString>

#include <vector>

namespace kiv::interchange::internal {

/// One element of an OFX document: a value, or further elements.
struct OfxElement {
    QString tag;
    Place place;
    QString value = {};
    std::vector<OfxElement> children = {};
    bool holdsElements = false; ///< also such as are not kept

    /// The first child with this tag; null when there is none.
    [[nodiscard]] const OfxElement *child(const char *name) const;
    /// The value of such a child; empty when there is none.
    [[nodiscard]] QString text(const char *name) const;
};

/// Reads the document's elements, but for values that say nothing of statements. Throws
/// ImportError for a tag that is broken, not closed, or closed where another one is open,
/// for a value that stands twice in one element, and for what stands around the document.
[[nodiscard]] OfxElement readOfxTree(const QString &text, const QString &file);

} // namespace kiv::interchange::internal
