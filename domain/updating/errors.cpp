// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/errors.h"

namespace kiv::updating {

UpdateError::~UpdateError() = default;

} // namespace kiv::updating
