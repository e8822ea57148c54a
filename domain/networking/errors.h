// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"

#include "foundation/error.h"

namespace kiv::networking {

/// A reply of a server that is refused. The user finds its text in the log.
class KIV_NETWORKING_EXPORT ReplyError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~ReplyError() override;
};

} // namespace kiv::networking
