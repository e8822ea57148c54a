// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/faults.h"
#include "interchange/internal/limits.h"

namespace kiv::interchange::internal {

/// Counts the characters of all descriptions of a statement. Several entries may repeat one
/// text.
class DescriptionCount {
public:
    /// Throws ImportError when all descriptions together are too long.
    void add(const QString &text, const Place &place)
    {
        m_characters += text.size();
        if (m_characters > limits::descriptionsMax)
            throw faults::descriptionsTooLong(place, limits::descriptionsMax);
    }

private:
    qsizetype m_characters = 0;
};

} // namespace kiv::interchange::internal
