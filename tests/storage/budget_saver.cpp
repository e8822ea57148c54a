// SPDX-License-Identifier: GPL-3.0-or-later
// budget_saver save FILE      saves two budgets in turn, and prints a line once the file is there
// budget_saver encrypt FILE   does the same with encrypted ones
// budget_saver spoil FILE     does the same as a careless program does it
// budget_saver check FILE     status 0 when the file is one of the two and its versions are right
#include "random_budget.h"
#include "scratch_folder.h"

#include <algorithm>
#include <array>
#include <iostream>

using namespace kiv;

int main(int argc, char **argv)
{
    const std::string_view task = argc == 3 ? argv[1] : "";
    const QString path = argc == 3 ? QFile::decodeName(argv[2]) : QString();
    const std::array budgets{test::someBudget(1, 150), test::someBudget(2, 150)};
    try {
        test::isEncrypting = task == "encrypt";
        if (QFile::exists(path))
            test::keys()->unlock(path, test::passphrase());
        if (task == "check") {
            const auto data = test::load(path);
            const QString wrong = test::wrongInVersions(path);
            std::cerr << qPrintable(wrong) << '\n';
            return std::ranges::count(budgets, data) == 1 && wrong.isEmpty() ? 0 : 1;
        }
        test::TestFile file;
        file.setFilePathName(path);
        if (task != "spoil" && QFile::exists(path))
            (void)file.load();
        std::array<QByteArray, 2> drafts;
        for (const std::size_t which : {0U, 1U}) {
            const test::ScratchFolder folder;
            test::store(folder.path(QStringLiteral("a")), budgets[which]);
            drafts[which] = folder.read(QStringLiteral("a"));
        }
        for (std::size_t turn = 0;; ++turn) {
            if (task != "spoil")
                file.store(budgets[turn % 2]);
            else if (!test::saveCarelessly(path, drafts[turn % 2]))
                return 2;
            if (turn == 0)
                std::cout << "saving" << std::endl;
        }
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
