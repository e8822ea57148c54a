// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_line/arguments.h"

#include <CLI/CLI.hpp>

namespace kiv::app {

Arguments &Arguments::flag(const char *name, bool &value, const char *help)
{
    m_app.add_flag(name, value, help);
    return *this;
}

Arguments &Arguments::file()
{
    return optional("--file", m_options.file, "The budget file; else KIV_FILE names it");
}

Arguments &Arguments::dated(const char *help)
{
    return optional("--date", m_options.date, help);
}

Arguments &Arguments::add(const char *name, const Reader &read, const char *word, const char *help,
                          Presence presence)
{
    const bool isRepeated =
        presence == Presence::Repeated || presence == Presence::RequiredRepeated;
    const auto readAll = [read](const std::vector<std::string> &texts) {
        for (const std::string &text : texts)
            read(text);
    };
    CLI::Option *option =
        isRepeated ? m_app.add_option_function<std::vector<std::string>>(name, readAll, help)
                   : m_app.add_option_function<std::string>(name, read, help);
    const bool isOption = name[0] == '-';
    // An option takes one value each time, so that it does not swallow what
    // stands behind it.
    if (isRepeated && isOption)
        option->expected(1)->take_all();
    option->type_name(isOption ? word : "");
    option->required(presence == Presence::Required || presence == Presence::RequiredRepeated);
    return *this;
}

} // namespace kiv::app
