// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/line_reader.h"

#include "messages/errors.h"
#include "parsing/words.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <poll.h>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

namespace kiv::app {
namespace {

constexpr int historyMax = 1000;

volatile std::sig_atomic_t isInterrupted = 0;

/// The thread that reads a line, while it does.
std::atomic<bool> isTyped = false;
pthread_t typist;

void noteInterrupt(int)
{
    isInterrupted = 1;
}

/// While a line is typed, Ctrl-C drops the line instead of ending the program.
class InterruptsGiveUpLine {
public:
    InterruptsGiveUpLine()
    {
        isInterrupted = 0;
        struct sigaction noting = {};
        noting.sa_handler = noteInterrupt;
        ::sigaction(SIGINT, &noting, &m_before);
        // Otherwise another thread waits for it.
        sigset_t interrupt;
        ::sigemptyset(&interrupt);
        ::sigaddset(&interrupt, SIGINT);
        ::pthread_sigmask(SIG_UNBLOCK, &interrupt, &m_blockedBefore);
        typist = ::pthread_self();
        isTyped = true;
    }
    ~InterruptsGiveUpLine()
    {
        isTyped = false;
        ::pthread_sigmask(SIG_SETMASK, &m_blockedBefore, nullptr);
        ::sigaction(SIGINT, &m_before, nullptr);
    }
    InterruptsGiveUpLine(const InterruptsGiveUpLine &) = delete;
    InterruptsGiveUpLine &operator=(const InterruptsGiveUpLine &) = delete;

private:
    struct sigaction m_before = {};
    sigset_t m_blockedBefore = {};
};

/// Waits until there is a key or a signal. A signal that arrived before the wait ends it,
/// too: signals are held back from the check until the wait begins.
bool waitForKey(int terminal)
{
    sigset_t all;
    sigset_t heldBefore;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, &heldBefore);
    bool isReady = false;
    if (::rl_pending_signal() == 0 && isInterrupted == 0) {
        pollfd key{terminal, POLLIN, 0};
        isReady = ::ppoll(&key, 1, nullptr, &heldBefore) > 0;
    }
    ::pthread_sigmask(SIG_SETMASK, &heldBefore, nullptr);
    return isReady;
}

/// Reads a key for readline. Its own function drops a signal that arrives shortly before
/// it waits.
int nextKey(FILE *terminal)
{
    while (true) {
        const bool isReady = waitForKey(::fileno(terminal));
        // readline has handlers of its own. This calls ours for what they caught.
        ::rl_check_signals();
        if (std::exchange(isInterrupted, 0) != 0) {
            rl_replace_line("", 0);
            ::rl_crlf();
            ::rl_on_new_line();
            ::rl_redisplay();
        }
        if (!isReady)
            continue;
        unsigned char key = 0;
        const ssize_t count = ::read(::fileno(terminal), &key, 1);
        if (count > 0)
            return key;
        if (count == 0 || (errno != EINTR && errno != EAGAIN))
            return EOF;
    }
}

// readline calls plain functions, so their data is global.
LineReader::Completer completerNow;
std::vector<std::string> candidates;

char *nextCandidate(const char *, int state)
{
    static std::size_t at = 0;
    if (state == 0)
        at = 0;
    return at < candidates.size() ? ::strdup(candidates[at++].c_str()) : nullptr;
}

char **complete(const char *prefix, int start, int)
{
    rl_attempted_completion_over = 1; // no file names
    try {
        // An open quote is before the prefix; readline closes it.
        const bool isQuoted = rl_completion_quote_character != 0;
        const std::string line(rl_line_buffer, static_cast<std::size_t>(start - int{isQuoted}));
        candidates.clear();
        for (const std::string &word : completerNow(splitWords(line))) {
            if (word.starts_with(prefix))
                candidates.push_back(isQuoted ? word : quotedWord(word));
        }
    } catch (const std::exception &) {
        // An incomplete line may be invalid; then there are no candidates.
        candidates.clear();
    }
    return rl_completion_matches(prefix, nextCandidate);
}

} // namespace

LineReader::LineReader(Completer completer, QString historyFile, std::function<bool()> isSecret)
    : m_isInteractive(::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0),
      m_historyFile(std::move(historyFile)),
      m_isSecret(std::move(isSecret))
{
    completerNow = std::move(completer);
    if (!m_isInteractive)
        return;
    rl_readline_name = "kiv";
    rl_attempted_completion_function = complete;
    rl_getc_function = nextKey;
    rl_completer_quote_characters = "\"'";
    rl_basic_word_break_characters = " \t";
    ::stifle_history(historyMax);
    ::read_history(QFile::encodeName(m_historyFile).constData());
}

LineReader::~LineReader()
{
    completerNow = nullptr;
    if (!m_isInteractive)
        return;
    settleHistory();
    writeHistory();
}

void LineReader::settleHistory()
{
    if (m_isSecret() && !m_historyFile.isEmpty()) {
        writeHistory(); // the lines before it
        m_historyFile.clear();
    }
    if (!m_last.empty())
        ::add_history(m_last.c_str());
    m_last.clear();
}

void LineReader::writeHistory() const
{
    if (m_historyFile.isEmpty())
        return;
    // If the history cannot be saved, only the history is lost.
    QDir().mkpath(QFileInfo(m_historyFile).path());
    ::write_history(QFile::encodeName(m_historyFile).constData());
}

void LineReader::leaveTerminal()
{
    if (::isatty(STDIN_FILENO) != 0 && rl_deprep_term_function)
        rl_deprep_term_function();
}

bool LineReader::giveUpLine()
{
    return isTyped && ::pthread_kill(typist, SIGINT) == 0;
}

std::optional<std::string> LineReader::next()
{
    std::string line;
    if (!m_isInteractive)
        return std::getline(std::cin, line) ? std::optional(line) : std::nullopt;
    settleHistory();
    const InterruptsGiveUpLine whileTyped;
    const std::unique_ptr<char, decltype(&std::free)> typed(::readline("kiv> "), &std::free);
    if (!typed) {
        std::cout << std::endl;
        return std::nullopt;
    }
    line = typed.get();
    m_last = line;
    return line;
}

} // namespace kiv::app
