// SPDX-License-Identifier: GPL-3.0-or-later
// save_book BUDGET COPY [PASSPHRASE]: loads a budget file and stores it as another,
// encrypted if there is a passphrase; prints how many seconds the storing took.
#include "storage/budget_file.h"
#include "storage/passphrase.h"

#include <chrono>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 3 && argc != 4) {
        std::cerr << "usage: save_book BUDGET COPY [PASSPHRASE]\n";
        return 2;
    }
    kiv::storage::BudgetFile file;
    file.setFilePathName(QString::fromLocal8Bit(argv[1]));
    const kiv::storage::BudgetStorage::Data data = file.load();
    file.setFilePathName(QString::fromLocal8Bit(argv[2]));
    // The key of an encrypted file is made when it is opened.
    if (argc == 4)
        file.encryptNext(kiv::storage::Passphrase(QString::fromLocal8Bit(argv[3])));
    const auto begin = std::chrono::steady_clock::now();
    file.store(data);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    std::cout << taken.count() << '\n';
    return 0;
}
