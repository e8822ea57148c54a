// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"

#include "foundation/error.h"

namespace kiv::updating {

/// An error about a text that is no version, or about a malformed list of releases.
class KIV_UPDATING_EXPORT UpdateError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~UpdateError() override;
};

} // namespace kiv::updating
