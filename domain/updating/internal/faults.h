// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/errors.h"

/// Every sentence with which this library refuses something: one function each, which gives the
/// exception to throw.
namespace kiv::updating::internal {

[[nodiscard]] UpdateError notAVersion(const QString &text);
// The user finds these in the log.
[[nodiscard]] UpdateError releaseMemberMalformed(const QString &member);
[[nodiscard]] UpdateError notAListOfReleases();

} // namespace kiv::updating::internal
