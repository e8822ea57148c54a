// SPDX-License-Identifier: GPL-3.0-or-later
// make_book COUNT BUDGET JOURNAL: writes a book with that many transactions as
// a budget file and as a plain-text journal.
#include "book.h"

#include "interchange/ledger_writer.h"
#include "storage/budget_file.h"

#include <QtCore/QFile>

#include <cstdlib>
#include <iostream>

int main(int argc, char **argv)
{
    const int count = argc == 4 ? std::atoi(argv[1]) : 0;
    if (count < 1 || count > kiv::bench::fullBook) {
        std::cerr << "usage: make_book COUNT BUDGET JOURNAL\n";
        return 2;
    }
    const auto whole = kiv::bench::makeBook(count);
    kiv::storage::BudgetFile file;
    file.setFilePathName(QString::fromLocal8Bit(argv[2]));
    file.store(kiv::bench::dataOf(*whole));

    const kiv::accounting::GeneralLedger &ledger = whole->generalLedger();
    const QByteArray text =
        kiv::interchange::writeJournal(ledger.accounts(), ledger.transactions());
    QFile journal(QString::fromLocal8Bit(argv[3]));
    if (!journal.open(QIODevice::WriteOnly) || journal.write(text) != text.size()) {
        std::cerr << "The journal cannot be written.\n";
        return 1;
    }
    return 0;
}
