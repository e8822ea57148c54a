// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "accounting/internal/number_set.h"

#include <random>
#include <set>

using kiv::accounting::TransactionNumber;
using kiv::accounting::internal::NumberSet;

class tst_NumberSet : public QObject {
    Q_OBJECT

private slots:
    /// Few numbers and many are kept in two ways, and change from one to the other.
    void answersLikeASetOfTheSameNumbers_data()
    {
        QTest::addColumn<int>("highest");
        QTest::addColumn<int>("additions");
        QTest::newRow("few and near") << 300 << 250;
        QTest::newRow("few and far") << 65'535 << 400;
        QTest::newRow("many and near") << 6'000 << 9'000;
        QTest::newRow("many and far") << 65'535 << 4'000;
    }

    void answersLikeASetOfTheSameNumbers()
    {
        QFETCH(int, highest);
        QFETCH(int, additions);
        const unsigned seed = std::random_device()();
        qInfo() << "seed" << seed;
        std::mt19937 random(seed);
        const auto any = [&] {
            return TransactionNumber(std::uniform_int_distribution<std::uint16_t>(
                1, static_cast<std::uint16_t>(highest))(random));
        };
        NumberSet numbers;
        std::set<TransactionNumber> expected;
        for (int i = 0; i < additions; ++i) {
            const TransactionNumber number = any();
            numbers.insert(number);
            expected.insert(number);
        }
        check(numbers, expected);
        const NumberSet all = numbers; // shares what the next changes change
        const std::set<TransactionNumber> expectedOfAll = expected;
        while (!expected.empty()) {
            // Less and less, until only a few far from each other are left.
            for (std::size_t i = 1 + expected.size() / 2; i > 0; --i) {
                const auto from = expected.lower_bound(any());
                const TransactionNumber gone = from == expected.end() ? *expected.begin() : *from;
                numbers.remove(gone);
                numbers.remove(gone);
                expected.erase(gone);
                if (expected.empty())
                    break;
            }
            check(numbers, expected);
            QVERIFY(!(numbers == all));
        }
        check(all, expectedOfAll);
    }

private:
    static void check(const NumberSet &numbers, const std::set<TransactionNumber> &expected)
    {
        NumberSet anew;
        std::vector<TransactionNumber> walked;
        for (auto number = numbers.next({}); number.isValid(); number = numbers.next(number))
            walked.push_back(number);
        QVERIFY(std::ranges::equal(walked, expected));
        TransactionNumber free(1);
        for (const TransactionNumber number : expected) {
            QVERIFY(numbers.contains(number));
            anew.insert(number);
            if (number == free)
                free = TransactionNumber(static_cast<std::uint16_t>(free.integer() + 1));
        }
        QCOMPARE(numbers.count(), expected.size());
        QCOMPARE(numbers.highest(), expected.empty() ? TransactionNumber() : *expected.rbegin());
        QCOMPARE(numbers.lowestFree(), free);
        QCOMPARE(numbers.contains(free), false);
        QVERIFY(numbers == anew && anew == numbers);
        if (!expected.empty()) {
            // As many, and the same highest one, but another below it.
            anew.remove(*expected.begin());
            QVERIFY(!(numbers == anew));
            anew.insert(free);
            QCOMPARE(numbers == anew, *expected.begin() == free);
        }
    }
};

static const kiv::test::Suite<tst_NumberSet> suite;
#include "tst_number_set.moc"
