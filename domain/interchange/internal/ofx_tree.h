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
    bool holdsElements = false; ///< also elements that were left out

    /// The first child with this tag; null when there is none.
    [[nodiscard]] const OfxElement *child(const char *name) const;
    /// The value of such a child; empty when there is none.
    [[nodiscard]] QString text(const char *name) const;
};

/// Reads the document's elements; values that no statement needs are left out. Throws
/// ImportError for a tag that is broken, never closed or closed in the wrong place, for a
/// value that appears twice in one element, and for text outside the document.
[[nodiscard]] OfxElement readOfxTree(const QString &text, const QString &file);

} // namespace kiv::interchange::internal
