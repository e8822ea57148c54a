// SPDX-License-Identifier: GPL-3.0-or-later
#include "line_reader.h"

#include "errors.h"
#include "parsing/words.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

namespace kiv::app {
namespace {

constexpr int historyMax = 1000;

// readline asks plain functions, so what they need stands here.
LineReader::Completer completerNow;
std::vector<std::string> candidates;

char *nextCandidate(const char *prefix, int state)
{
    static std::size_t at = 0;
    if (state == 0)
        at = 0;
    while (at < candidates.size()) {
        const std::string &candidate = candidates[at++];
        if (candidate.starts_with(prefix))
            return ::strdup(candidate.c_str());
    }
    return nullptr;
}

char **complete(const char *prefix, int start, int)
{
    rl_attempted_completion_over = 1; // no file names
    try {
        const std::string line(rl_line_buffer, static_cast<std::size_t>(start));
        candidates.clear();
        for (const std::string &word : completerNow(splitWords(line)))
            candidates.push_back(quotedWord(word));
    } catch (const std::exception &) {
        // Half a line may be wrong; there is nothing to be completed then.
        candidates.clear();
    }
    return rl_completion_matches(prefix, nextCandidate);
}

} // namespace

LineReader::LineReader(Completer completer, QString historyFile)
    : m_isInteractive(::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0),
      m_historyFile(std::move(historyFile))
{
    completerNow = std::move(completer);
    if (!m_isInteractive)
        return;
    rl_readline_name = "kiv";
    rl_attempted_completion_function = complete;
    // A quoted name is one word, with its quotes.
    rl_completer_quote_characters = "";
    rl_basic_word_break_characters = " \t";
    ::stifle_history(historyMax);
    ::read_history(QFile::encodeName(m_historyFile).constData());
}

LineReader::~LineReader()
{
    completerNow = nullptr;
    if (!m_isInteractive)
        return;
    // What cannot be kept is only lost to the next session.
    QDir().mkpath(QFileInfo(m_historyFile).path());
    ::write_history(QFile::encodeName(m_historyFile).constData());
}

std::optional<std::string> LineReader::next()
{
    std::string line;
    if (!m_isInteractive)
        return std::getline(std::cin, line) ? std::optional(line) : std::nullopt;
    const std::unique_ptr<char, decltype(&std::free)> typed(::readline("kiv> "), &std::free);
    if (!typed)
        return std::nullopt;
    line = typed.get();
    if (!line.empty())
        ::add_history(line.c_str());
    return line;
}

} // namespace kiv::app
