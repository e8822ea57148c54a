// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messages/errors.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace kiv::app {

/// Checks the words for unknown commands and options. Throws a UsageError for the
/// first one, with a similar name or the help to look at.
void refuseUnknown(const CLI::App &app, const std::vector<std::string> &words);

/// The error for a call that CLI11 could not parse, with the help to look at.
[[nodiscard]] UsageError misuse(const CLI::App &app, const CLI::ParseError &error);

} // namespace kiv::app
