// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QString>

#include <initializer_list>
#include <vector>

namespace kiv::interchange::internal {

/// One element of an OFX or CAMT document: a value, or further elements.
struct Element {
    QString tag;
    Place place;
    QString value = {};
    std::vector<Element> children = {};
    bool holdsElements = false; ///< also elements that were left out

    /// The first child with this tag; null when there is none.
    [[nodiscard]] const Element *child(const char *name) const;
    /// The value of such a child; empty when there is none.
    [[nodiscard]] QString text(const char *name) const;
    /// The first element below these tags, each within the one before; null when there is none.
    [[nodiscard]] const Element *find(std::initializer_list<const char *> tags) const;
    /// The value of such an element; empty when there is none.
    [[nodiscard]] QString text(std::initializer_list<const char *> tags) const;
};

} // namespace kiv::interchange::internal
