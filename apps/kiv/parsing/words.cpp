// SPDX-License-Identifier: GPL-3.0-or-later
#include "parsing/words.h"

#include "messages/errors.h"

#include <optional>

namespace kiv::app {

std::vector<std::string> splitWords(std::string_view line)
{
    std::vector<std::string> words;
    std::optional<std::string> word;
    char quote = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char character = line[at];
        const bool isBlank = character == ' ' || character == '\t' || character == '\r';
        if (quote == 0 && isBlank) {
            if (word)
                words.push_back(*std::exchange(word, std::nullopt));
            continue;
        }
        if (quote == 0 && !word && character == '#')
            break;
        if (!word)
            word.emplace();
        if (quote != 0 && character == quote)
            quote = 0;
        else if (quote == 0 && (character == '"' || character == '\''))
            quote = character;
        else if (character == '\\' && quote != '\'' && at + 1 < line.size())
            *word += line[++at];
        else
            *word += character;
    }
    if (quote != 0)
        throw openQuote();
    if (word)
        words.push_back(*word);
    return words;
}

std::string quotedWord(const std::string &word)
{
    if (!word.empty() && word.find_first_of(" \t\"'\\#") == std::string::npos)
        return word;
    std::string quoted = "\"";
    for (const char character : word) {
        if (character == '"' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + '"';
}

} // namespace kiv::app
