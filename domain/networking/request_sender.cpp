// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/request_sender.h"

namespace kiv::networking {

RequestSender::RequestSender() = default;
RequestSender::~RequestSender() = default;

} // namespace kiv::networking
