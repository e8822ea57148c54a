// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kiv::app {

/// Lines that a person types, with history and completion, or lines of a file
/// or pipe on standard input.
class LineReader {
public:
    /// Gives all words that could stand behind those already written.
    using Completer =
        std::function<std::vector<std::string>(const std::vector<std::string> &before)>;

    /// The history is kept in a file between two sessions.
    LineReader(Completer completer, QString historyFile);
    ~LineReader();
    LineReader(const LineReader &) = delete;
    LineReader &operator=(const LineReader &) = delete;

    /// The next line; nothing at the end.
    [[nodiscard]] std::optional<std::string> next();

private:
    bool m_isInteractive;
    QString m_historyFile;
};

} // namespace kiv::app
