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

/// What can come next on a command line.
struct Candidates {
    std::vector<std::string> values; ///< commands, or values of the next argument
    std::vector<std::string> options;
};

/// The candidates after the words `before`, which do not include the program's name.
/// Names come from the open budget of `document`, or else from the file in the words or
/// in KIV_FILE. Arguments with free values, such as amounts or files, have no
/// candidates.
[[nodiscard]] Candidates candidatesAfter(const CLI::App &commands,
                                         const std::vector<std::string> &before,
                                         workbench::Document &document);

} // namespace kiv::app
