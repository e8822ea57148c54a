// SPDX-License-Identifier: GPL-3.0-or-later
#include "tagging/tags.h"

#include "foundation/streams.h"

#include <algorithm>
#include <iterator>

namespace kiv::tagging {

Tags Tags::without(const Tags &others) const
{
    Tags remaining;
    std::ranges::set_difference(m_tags, others.m_tags,
                                std::inserter(remaining.m_tags, remaining.m_tags.end()));
    return remaining;
}

QString presentationText(const Tag &tag)
{
    return tag.name();
}

std::ostream &operator<<(std::ostream &out, const Tag &tag)
{
    return out << foundation::escapedUtf8(tag.name());
}

std::ostream &operator<<(std::ostream &out, const Tags &tags)
{
    return foundation::streamRange(out, tags);
}

} // namespace kiv::tagging
