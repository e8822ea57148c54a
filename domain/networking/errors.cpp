// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/errors.h"

namespace kiv::networking {

ReplyError::~ReplyError() = default;

} // namespace kiv::networking
