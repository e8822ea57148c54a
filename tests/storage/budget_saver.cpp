// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program that saves a budget for as long as it is let:
//
//     budget_saver save FILE      saves two budgets in turn
//     budget_saver spoil FILE     does the same as a careless program does it
//     budget_saver check FILE     status 0 when the file is one of the two
//
// It prints a line once the file is there and it goes on.
#include "random_budget.h"
#include "scratch_folder.h"

#include <iostream>
#include <random>

using namespace kiv;
using Data = storage::BudgetStorage::Data;

namespace {

/// The budgets that are saved in turn.
Data budget(unsigned which)
{
    std::mt19937 random(which);
    return test::RandomBudget(
               [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); })
        .make(150);
}

[[noreturn]] void save(const QString &path)
{
    const Data budgets[] = {budget(1), budget(2)};
    storage::BudgetFile file;
    file.setFilePathName(path);
    if (QFile::exists(path))
        (void)file.load();
    else
        file.store(budgets[0]);
    std::cout << "saving" << std::endl;
    for (;;) {
        for (const Data &data : budgets)
            file.store(data);
    }
}

[[noreturn]] void spoil(const QString &path)
{
    const test::ScratchFolder drafts;
    for (const unsigned which : {1U, 2U})
        test::store(drafts.path(QString::number(which)), budget(which));
    const auto overwrite = [&](const QString &which) {
        const QByteArray content = drafts.read(which);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
            std::exit(2);
        for (qsizetype done = 0; done < content.size(); done += 4096)
            file.write(content.mid(done, 4096));
    };
    overwrite(QStringLiteral("1"));
    std::cout << "saving" << std::endl;
    for (;;) {
        overwrite(QStringLiteral("2"));
        overwrite(QStringLiteral("1"));
    }
}

bool isWhole(const QString &path)
{
    const Data data = test::load(path);
    return test::difference(data, budget(1)).isEmpty() ||
           test::difference(data, budget(2)).isEmpty();
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view task = argc == 3 ? argv[1] : "";
    const QString path = argc == 3 ? QFile::decodeName(argv[2]) : QString();
    try {
        if (task == "save")
            save(path);
        if (task == "spoil")
            spoil(path);
        return task == "check" && isWhole(path) ? 0 : 1;
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
