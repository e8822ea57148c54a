// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigator_desk.h"

namespace kiv::test {

using Request = std::function<void(Navigator &)>;
using Rows = std::vector<std::pair<QByteArray, Request>>;

/// Requests to every slot, accepted and refused, under "topic: what is special".
/// What they name is what Desk::furnish() made.
[[nodiscard]] Rows allRequests();

} // namespace kiv::test
