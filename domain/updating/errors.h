// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"

#include "foundation/error.h"

namespace kiv::updating {

/// A version that is none, or a list of releases that is refused.
class KIV_UPDATING_EXPORT UpdateError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~UpdateError() override;
};

namespace internal {

[[nodiscard]] UpdateError notAVersion(const QString &text);
// Where the user finds these is the log.
[[nodiscard]] UpdateError releaseMemberMalformed(const QString &member);
[[nodiscard]] UpdateError notAListOfReleases();

} // namespace internal

} // namespace kiv::updating
