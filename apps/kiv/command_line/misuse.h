// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <string>
#include <vector>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace kiv::app {

/// Throws a UsageError for the first word that is no command where one is
/// expected, or no option of the command that is called, with what may have been
/// meant. CLI11 would only say that something is missing or too much.
void refuseUnknown(const CLI::App &app, const std::vector<std::string> &words);

/// What CLI11 says of a wrong call, worded as a sentence where it is terse.
[[nodiscard]] QString misuse(const CLI::ParseError &error);

} // namespace kiv::app
