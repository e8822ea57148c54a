// SPDX-License-Identifier: GPL-3.0-or-later
#include "application.h"
#include "program.h"

int main(int argc, char **argv)
{
    kiv::app::Application application(argc, argv);
    kiv::app::Program program;
    return program.run(std::vector<std::string>(argv + 1, argv + argc));
}
