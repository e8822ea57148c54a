// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kiv::workbench {
class Document;
}

namespace kiv::app {

/// What may be written next on a command line.
struct Candidates {
    std::vector<std::string> values; ///< commands, or values of the argument whose turn it is
    std::vector<std::string> options;
};

/// The candidates behind the words `before`, which follow the command's own
/// name. Names come from the budget of `document` that is open, or else from the
/// file that the words or KIV_FILE name; without one there are no names. An
/// argument whose values nobody can list, such as an amount or a file, has none.
[[nodiscard]] Candidates candidatesAfter(const CLI::App &commands,
                                         const std::vector<std::string> &before,
                                         workbench::Document &document);

} // namespace kiv::app
