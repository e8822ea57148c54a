// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/notifying_sender.h"

namespace kiv::networking {

NotifyingSender::~NotifyingSender() = default;

} // namespace kiv::networking
