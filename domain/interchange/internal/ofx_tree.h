// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/element.h"

#include <QtCore/QStringList>

namespace kiv::interchange::internal {

/// The elements of a file.
struct OfxDocument {
    Element root;
    QStringList notices = {}; ///< where an end tag was missing
};

/// Reads the document's elements; values that no statement needs are left out.
///
/// Banks forget end tags: of values under a header of XML, of lists, of the document. They are
/// mended where that leaves no doubt about an amount. Throws ImportError for other tags that
/// are broken, never closed or closed in the wrong place, for a value that appears twice in one
/// element, and for text outside the document.
[[nodiscard]] OfxDocument readOfxTree(const QString &text, const QString &file);

} // namespace kiv::interchange::internal
