// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/gui_element_identifier.h"

#include "foundation/streams.h"

namespace kiv::navigation {

std::ostream &operator<<(std::ostream &out, GuiElementIdentifier id)
{
    return out << id.integer();
}

} // namespace kiv::navigation
