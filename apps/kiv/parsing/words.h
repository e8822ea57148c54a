// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kiv::app {

/// A line split into words as a shell does: at blanks, but not within quotes;
/// within double quotes and outside of any a backslash takes the next character
/// as it is. Throws a UsageError when a quote is not closed. A word that begins
/// with "#" begins a comment.
[[nodiscard]] std::vector<std::string> splitWords(std::string_view line);

/// The word in such quotes that splitWords gives it back.
[[nodiscard]] std::string quotedWord(const std::string &word);

} // namespace kiv::app
