// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kiv::app {

/// Splits a line into words at blanks, as a shell does. Quotes keep blanks; a backslash
/// keeps the next character, except in single quotes. A word that begins with "#" begins
/// a comment. Throws a UsageError if a quote is not closed.
[[nodiscard]] std::vector<std::string> splitWords(std::string_view line);

/// Quotes the word, so that splitWords() returns it unchanged.
[[nodiscard]] std::string quotedWord(const std::string &word);

} // namespace kiv::app
