// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kiv::app {

/// Reads lines from a terminal, with history and completion, or from a file or pipe.
class LineReader {
public:
    /// Returns all words that can follow the given ones.
    using Completer =
        std::function<std::vector<std::string>(const std::vector<std::string> &before)>;

    /// The history is kept in a file between sessions, but for the lines that are typed once
    /// `isSecret` says so.
    LineReader(Completer completer, QString historyFile, std::function<bool()> isSecret);
    ~LineReader();
    LineReader(const LineReader &) = delete;
    LineReader &operator=(const LineReader &) = delete;

    /// The next line, or nothing at the end.
    [[nodiscard]] std::optional<std::string> next();
    /// Makes the terminal as it was before a line was typed. Any thread may call it before
    /// the program ends.
    static void leaveTerminal();
    /// Drops the line that is typed, as Ctrl-C does. Any thread may call it. Returns false
    /// when none is typed.
    static bool giveUpLine();

private:
    /// Adds the last line to the history, once it has run: it may have opened a budget.
    void settleHistory();
    void writeHistory() const;

    bool m_isInteractive;
    QString m_historyFile; ///< empty once it is secret
    std::function<bool()> m_isSecret;
    std::string m_last; ///< not in the history yet
};

} // namespace kiv::app
