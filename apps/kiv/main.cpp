// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commands.h"
#include "program/application.h"
#include "program/program.h"

int main(int argc, char **argv)
{
    kiv::app::Application application(argc, argv);
    kiv::app::Program program(kiv::app::declareCommands);
    return program.run(std::vector<std::string>(argv + 1, argv + argc));
}
