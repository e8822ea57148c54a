// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program that saves a budget for as long as it is let:
//
//     budget_saver start FILE     saves the first of two budgets once
//     budget_saver save FILE      saves the two in turn
//     budget_saver spoil FILE     does the same as a careless program does it
//     budget_saver check FILE     status 0 when the file is one of the two
//
// It prints a line before it begins.
#include "random_budget.h"

#include "storage/budget_file.h"

#include <QtCore/QFile>

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
        .make(500);
}

Data load(storage::BudgetFile &file, const QString &path)
{
    file.setFilePathName(path);
    return file.load();
}

[[noreturn]] void save(const QString &path)
{
    const Data budgets[] = {budget(1), budget(2)};
    storage::BudgetFile file;
    (void)load(file, path);
    std::cout << "saving" << std::endl;
    for (;;) {
        for (const Data &data : budgets)
            file.store(data);
    }
}

[[noreturn]] void spoil(const QString &path)
{
    QByteArray contents[2];
    for (const unsigned which : {0U, 1U}) {
        const QString draft = path + QStringLiteral(".draft");
        storage::BudgetFile file(0);
        file.setFilePathName(draft);
        file.store(budget(which + 1));
        QFile written(draft);
        if (!written.open(QIODevice::ReadOnly))
            std::exit(2);
        contents[which] = written.readAll();
    }
    std::cout << "saving" << std::endl;
    for (;;) {
        for (const QByteArray &content : contents) {
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
                std::exit(2);
            for (qsizetype done = 0; done < content.size(); done += 4096)
                file.write(content.mid(done, 4096));
        }
    }
}

bool isWhole(const QString &path)
{
    storage::BudgetFile file;
    const Data data = load(file, path);
    return test::difference(data, budget(1)).isEmpty() ||
           test::difference(data, budget(2)).isEmpty();
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string_view> arguments(argv, argv + argc);
    if (arguments.size() != 3)
        return 2;
    const QString path = QFile::decodeName(argv[2]);
    try {
        if (arguments[1] == "start") {
            storage::BudgetFile file;
            file.setFilePathName(path);
            file.store(budget(1));
            return 0;
        }
        if (arguments[1] == "save")
            save(path);
        if (arguments[1] == "spoil")
            spoil(path);
        return arguments[1] == "check" && isWhole(path) ? 0 : 1;
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
