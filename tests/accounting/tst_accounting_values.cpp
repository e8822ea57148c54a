// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "ledger_book.h"

#include "support/comparison.h"

#include "accounting/balances.h"
#include "accounting/internal/number_set.h"

#include <random>

using kiv::foundation::Percentage;
using enum AccountTypes;
using enum TransactionStatuses;

namespace {

using internal::NumberSet;

/// Whether the numbers are those, however they are asked for.
bool areThose(const NumberSet &numbers, const std::set<TransactionNumber> &expected)
{
    std::vector<TransactionNumber> walked;
    for (auto number = numbers.next({}); number.isValid(); number = numbers.next(number))
        walked.push_back(number);
    NumberSet anew;
    TransactionNumber free(1);
    for (const TransactionNumber number : expected) {
        if (!numbers.contains(number))
            return false;
        anew.insert(number);
        if (number == free)
            free = txn(static_cast<std::uint16_t>(free.integer() + 1));
    }
    const bool isEqual = numbers == anew && anew == numbers;
    if (!expected.empty()) {
        // As many, and the same highest one, but another below it.
        anew.remove(*expected.begin());
        anew.insert(free);
    }
    return std::ranges::equal(walked, expected) && numbers.count() == expected.size() &&
           numbers.highest() == (expected.empty() ? txn(0) : *expected.rbegin()) &&
           numbers.lowestFree() == free && !numbers.contains(free) && isEqual &&
           (numbers == anew) == (expected.empty() || *expected.begin() == free);
}

} // namespace

class tst_AccountingValues : public QObject {
    Q_OBJECT

private slots:
    void init() { installRates(); }

    void valuesAreOrdered()
    {
        const std::vector<AccountCode> codes{{},
                                             {u"Z"_qs, {}},
                                             {no(1), {}},
                                             {no(1), u"A"_qs, {}},
                                             {no(1), u"A"_qs, no(3)},
                                             {no(1), u"A"_qs, no(4)},
                                             {no(1), u"ä"_qs, {}},
                                             {no(2), {}}};
        QCOMPARE(comparisonFault(codes), QString());
        QCOMPARE(presentationText(codes[1]) + presentationText(codes[2]), u"Z1"_qs);

        const Transaction base = transfer(no(1), no(2), usd("5"));
        const Transaction first = base.withNumber(txn(1));
        const auto described = [](std::optional<QString> description) {
            return Transaction(day("2026-01-14"), no(1), no(2), usd("5"), std::move(description));
        };
        QCOMPARE(comparisonFault(std::vector{
                     Transaction(day("2026-01-01")), described({}), described(QString()),
                     described(u"b"_qs), base, first,
                     first.asRefundOf(txn(3)), // statuses, refund mark and text come last
                     first.withStatuses(None, Reconciled), first.withStatuses(Cleared, None),
                     first.withSideAmounts(usd("5"), usd("6")),
                     first.withSideAmounts(usd("6"), usd("5")),
                     transfer(no(1), no(2), usd("6")).withNumber(txn(1)),
                     transfer(no(1), no(2), money("EUR", "1")).withNumber(txn(1)),
                     transfer(no(1), no(3), usd("5")).withNumber(txn(1)),
                     transfer(no(2), no(1), usd("5")).withNumber(txn(1)),
                     transfer(no(1), no(2), usd("1"), day("2026-01-16")).withNumber(txn(1)),
                     transfer(no(1), no(2), usd("1"), day("2025-01-16")).withNumber(txn(2))}),
                 QString());

        const AccountCode code(no(1), {});
        QCOMPARE(
            comparisonFault(std::vector<Account>{{Asset, code, usd("2"), false},
                                                 {Asset, code, money("EUR", "1"), false},
                                                 {Asset, code, usd("1"), true},
                                                 {Equity, code, usd("1"), false},
                                                 {Asset, AccountCode(no(2), {}), usd("1"), false}}),
            QString());
        QVERIFY(Account(Book().ledger.ledger(no(4))) !=
                Account(Expense, AccountCode(no(4), u"Rent"_qs, {}), usd("750"), false));
    }

    void eachSideHasItsAmountAndStatus()
    {
        const Transaction transaction = transfer(no(1), no(2), usd("5"))
                                            .withStatuses(Reconciled, Cleared)
                                            .withSideAmounts(usd("4"), usd("3"));
        QCOMPARE(transaction.status(), Cleared);
        QVERIFY(transaction.seenFrom(no(1)) == transaction);
        struct Side {
            std::uint32_t account;
            const char *amount;
            TransactionStatuses status;
            const char *asset; // what becomes of ten dollars
            const char *liability;
        };
        for (const auto &[account, amount, status, asset, liability] :
             {Side{1, "4", Reconciled, "14", "6"}, Side{2, "3", Cleared, "7", "13"},
              Side{3, "5", Cleared, "10", "10"}}) {
            const AccountCode code(no(account), {});
            QVERIFY(transaction.amountFor(no(account)) == usd(amount));
            QCOMPARE(transaction.seenFrom(no(account)).status(), status);
            QVERIFY(adjustAssetBalance(code, usd("10"), transaction) == usd(asset));
            QVERIFY(adjustLiabilityBalance(code, usd("10"), transaction) == usd(liability));
            QCOMPARE(shouldIncreaseAsset(transaction, no(account)), account == 1);
        }
        QVERIFY_THROWS_EXCEPTION(AccountError, static_cast<void>(adjustAssetBalance(
                                                   {no(1), {}}, money("CAD", "1"), transaction)));
    }

    void theWindowIncludesItsBounds()
    {
        struct Row {
            const char *calculated;
            const char *reference;
            double rate;
            bool isWithin;
        };
        for (const auto &[calculated, reference, rate, isWithin] : std::initializer_list<Row>{
                 {"102.75", "100", 2.75, true},
                 {"102.750000000001", "100", 2.75, false},
                 {"97.25", "100", 2.75, true},
                 {"97.249999999999", "100", 2.75, false},
                 {"-102.75", "-100", 2.75, true},
                 {"-102.76", "-100", 2.75, false},
                 {"0", "0", 2.75, true},
                 {"0.000000000001", "0", 2.75, false},
                 // 2.75 % of it is 0.02 and 0.7 of the last digit.
                 {"0.747272727299", "0.727272727298", 2.75, false},
                 {"0.747272727298", "0.727272727298", 2.75, true},
                 {"1027500000000000000000000", "1000000000000000000000000", 2.75, true},
                 {"1027500000000000000000000.000000000001", "1000000000000000000000000", 2.75,
                  false},
                 {"5", "5", 0, true},
                 {"5", "5", -1, false}}) {
            for (const bool byMajor : {true, false}) {
                QVERIFY2(isWithinWindow(usd(calculated), Percentage(rate, 6), usd(reference),
                                        ByMajorUnit(byMajor)) == isWithin,
                         calculated);
            }
        }
        const auto isWithin = [](const char *currency, const char *calculated) {
            return isWithinWindow(money(currency, calculated), Percentage(2.75, 6), usd("100"),
                                  ByMajorUnit(true));
        };
        QVERIFY(isWithin("EUR", "51.375") && !isWithin("EUR", "51.376"));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, static_cast<void>(isWithin("CAD", "1")));
    }

    void handoutsStepOverUsedNumbersAndGiveBack()
    {
        GeneralLedger ledger;
        SequentialAccountNumberGenerator generator;
        addAccount(ledger, generator, Asset, no(2), "By hand");
        {
            const NumberHandout refused(generator, ledger);
            QCOMPARE(refused.number(), no(1));
            // The one in between keeps its number, and steps over number 2.
            addAccount(ledger, generator, Asset, {}, "Meanwhile");
            QVERIFY(ledger.hasLedger(no(3)));
        }
        for (const std::uint32_t expected : {1U, 4U})
            QCOMPARE(addAccount(ledger, generator, Asset, {}, "Taken"), no(expected));
        addAccount(ledger, generator, Asset, no(0xFFFF'FFFF), "Highest by hand");
        SequentialAccountNumberGenerator loaded(generator.seedFrom(ledger.accounts()));
        SequentialAccountNumberGenerator almost(no(0xFFFF'FFFE));
        for (int attempt = 0; attempt < 2; ++attempt) {
            QCOMPARE(NumberHandout(loaded, ledger).number(), no(5));
            QCOMPARE(NumberHandout(almost, GeneralLedger()).number(), no(0xFFFF'FFFF));
        }
        QCOMPARE(++*loaded.clone(), no(1)); // goes on from the lowest
        SequentialAccountNumberGenerator first;
        QCOMPARE(--first, no(0));
    }

    /// Few numbers and many are kept in two ways, and change from one to the other.
    void numberSetsAnswerLikeSetsOfTheSameNumbers()
    {
        const unsigned seed = std::random_device()();
        qInfo() << "seed" << seed;
        std::mt19937 random(seed);
        for (const auto &[highest, additions] :
             {std::pair(300, 250), {65'535, 400}, {6'000, 9'000}, {65'535, 4'000}}) {
            std::uniform_int_distribution<int> any(1, highest);
            NumberSet numbers;
            std::set<TransactionNumber> expected;
            for (int i = 0; i < additions; ++i) {
                const auto number = txn(static_cast<std::uint16_t>(any(random)));
                numbers.insert(number);
                expected.insert(number);
            }
            const NumberSet all = numbers; // shares what the next changes change
            const std::set<TransactionNumber> expectedOfAll = expected;
            QVERIFY(areThose(numbers, expected));
            // Less and less, until only a few far from each other are left.
            while (!expected.empty()) {
                for (std::size_t i = 1 + expected.size() / 2; i > 0; --i) {
                    const auto from =
                        expected.lower_bound(txn(static_cast<std::uint16_t>(any(random))));
                    const auto gone = from == expected.end() ? *expected.begin() : *from;
                    numbers.remove(gone);
                    numbers.remove(gone);
                    expected.erase(gone);
                }
                QVERIFY(areThose(numbers, expected) && !(numbers == all));
            }
            QVERIFY(areThose(all, expectedOfAll));
        }
    }
};

static const kiv::test::Suite<tst_AccountingValues> accountingValuesSuite;
#include "tst_accounting_values.moc"
