// SPDX-License-Identifier: GPL-3.0-or-later
// save_book BUDGET COPY: loads a budget file and stores it as another; prints
// how many seconds the storing took.
#include "storage/budget_file.h"

#include <chrono>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "usage: save_book BUDGET COPY\n";
        return 2;
    }
    kiv::storage::BudgetFile file;
    file.setFilePathName(QString::fromLocal8Bit(argv[1]));
    const kiv::storage::BudgetStorage::Data data = file.load();
    file.setFilePathName(QString::fromLocal8Bit(argv[2]));
    const auto begin = std::chrono::steady_clock::now();
    file.store(data);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    std::cout << taken.count() << '\n';
    return 0;
}
