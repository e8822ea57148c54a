// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/element.h"

#include <algorithm>

namespace kiv::interchange::internal {

const Element *Element::child(const char *name) const
{
    const auto found = std::ranges::find(children, QLatin1String(name), &Element::tag);
    return found == children.end() ? nullptr : &*found;
}

QString Element::text(const char *name) const
{
    return text({name});
}

const Element *Element::find(std::initializer_list<const char *> tags) const
{
    const Element *found = this;
    for (const char *name : tags) {
        found = found->child(name);
        if (!found)
            break;
    }
    return found;
}

QString Element::text(std::initializer_list<const char *> tags) const
{
    const Element *found = find(tags);
    return found ? found->value : QString();
}

} // namespace kiv::interchange::internal
