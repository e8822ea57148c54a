// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "banking/bank_map.h"
#include "banking/errors.h"

#include "support/accounting.h"
#include "support/comparison.h"

using namespace kiv::banking;
using enum BankAccountTypes;

namespace {

const BankName first(u"1st"_qs);
const BankName second(u"2nd %1"_qs);
const BankName third(u"Third"_qs);
const auto unknownType = static_cast<BankAccountTypes>(9);

BankMap twoBanks()
{
    BankMap banks;
    banks.add(Bank(second, {{no(21), CreditCard}}, true));
    banks.add(Bank(first, {{no(12), Checking}, {no(13), Savings}}, false));
    return banks;
}

/// A request, and what there is after it or why it is refused.
struct Row {
    const char *answer;
    std::function<void(BankMap &)> request;
};

const char *const unknown = "The bank 'Third' does not exist.";
const char *const nameless = "The name of a bank cannot be empty.";
const char *const taken = "The bank '2nd %1' already exists.";

using M = BankMap &;
const std::initializer_list<Row> rows{
    {"(1st [12=>checking, 13=>savings], 2nd %1 [21=>credit card] closed, Third [])",
     [](M banks) { banks.add(Bank(third, {}, false)); }},
    {nameless, [](M banks) { banks.add(Bank()); }},
    {taken, [](M banks) { banks.add(Bank(second, {}, false)); }},
    // An account that another bank has, and one that comes again as another kind.
    {"(1st [12=>checking, 13=>savings], 2nd %1 [12=>loan, 21=>credit card] closed)",
     [](M banks) { banks.add(second, no(12), Loan); }},
    {"(1st [12=>checking, 13=>cash], 2nd %1 [21=>credit card] closed)",
     [](M banks) { banks.add(first, no(13), Cash); }},
    {unknown, [](M banks) { banks.add(third, no(1), Cash); }},

    {"(2nd %1 [21=>credit card] closed)", [](M banks) { banks.remove(first); }},
    {unknown, [](M banks) { banks.remove(third); }},
    {"(1st [13=>savings], 2nd %1 [21=>credit card] closed)",
     [](M banks) { banks.remove(first, no(12)); }},
    {"The bank '2nd %1' does not have the account '12'.",
     [](M banks) { banks.remove(second, no(12)); }},
    {unknown, [](M banks) { banks.remove(third, no(12)); }},

    {"(1st [12=>checking, 13=>savings], 2nd %1 [] closed)", // and stays closed
     [](M banks) { banks.update(Bank(second, {}, false)); }},
    {unknown, [](M banks) { banks.update(Bank(third, {}, false)); }},
    {"(1st [12=>checking, 13=>savings], Third [21=>credit card] closed)",
     [](M banks) { banks.rename(second, third); }},
    {unknown, [](M banks) { banks.rename(third, first); }},
    {nameless, [](M banks) { banks.rename(first, BankName()); }},
    {taken, [](M banks) { banks.rename(first, second); }},
    {taken, [](M banks) { banks.rename(second, second); }},

    {"(1st [12=>checking, 13=>savings], 2nd %1 [21=>credit card])",
     [](M banks) { banks.open(second); }},
    {"The bank '1st' is already open.", [](M banks) { banks.open(first); }},
    {unknown, [](M banks) { banks.open(third); }},
    {"(1st [12=>checking, 13=>savings] closed, 2nd %1 [21=>credit card] closed)",
     [](M banks) { banks.close(first); }},
    {"The bank '2nd %1' is already closed.", [](M banks) { banks.close(second); }},
    {unknown, [](M banks) { banks.close(third); }},
};

} // namespace

class tst_Banking : public QObject {
    Q_OBJECT

private slots:
    void requestsAreDoneOrRefused()
    {
        const BankMap before = twoBanks();
        for (const Row &row : rows) {
            BankMap banks = before;
            try {
                row.request(banks);
                QCOMPARE(dump(banks), QString::fromLatin1(row.answer));
                QVERIFY(banks != before);
            } catch (const BankError &error) {
                QCOMPARE(error.message(), QString::fromLatin1(row.answer));
                QVERIFY(error.message().contains(presentationText(error.name())));
                QCOMPARE(banks, before);
            }
        }
    }

    void lookUpsGoByName()
    {
        BankMap banks = twoBanks();
        QCOMPARE(dump(banks.bank(second)), u"2nd %1 [21=>credit card] closed"_qs);
        QVERIFY_THROWS_EXCEPTION(BankError, static_cast<void>(banks.bank(third)));
        QCOMPARE(banks.names(), (std::set{first, second}));
        QVERIFY(banks.hasBank(first) && !banks.hasBank(third) && !banks.find(no(9)));
        QCOMPARE(banks.find(no(21)), std::optional(second));
        banks.add(first, no(21), Loan);
        QCOMPARE(banks.find(no(21)), std::optional(first));
    }

    void eachTypeIsALedgerAccountOfItsKind()
    {
        const std::set<int> liabilities{3, 4, 6};
        for (int value = 0; value <= 8; ++value) {
            const auto type = static_cast<BankAccountTypes>(value);
            QCOMPARE(isLiabilityAccount(type), liabilities.contains(value));
            QCOMPARE(isAssetAccount(type), value > 0 && !liabilities.contains(value));
        }
        QCOMPARE(toAccountTypes(Unknown), kiv::accounting::AccountTypes::Unknown);
    }

    void unknownTypesAreProgrammingErrors()
    {
        BankMap banks = twoBanks();
        for (const auto &use : std::initializer_list<std::function<void()>>{
                 [&] {
                     banks.add(Bank(third, {{no(1), unknownType}}, false));
                 },
                 [&] { banks.add(first, no(12), unknownType); },
                 [&] {
                     banks.update(Bank(first, {{no(12), unknownType}}, false));
                 },
                 [&] { static_cast<void>(toAccountTypes(unknownType)); },
                 [&] { static_cast<void>(presentationText(unknownType)); }})
            QVERIFY_THROWS_EXCEPTION(std::logic_error, use());
        QCOMPARE(banks, twoBanks());
    }

    void accountsHaveTextsAndBalances()
    {
        const BankAccount account{BankName(u"First %2\n"_qs), {no(1200), CreditCard}};
        QCOMPARE(presentationText(account), u"First %2\n 1200 (credit card)"_qs);
        QCOMPARE(dump(account), u"First %2\\u{000A} 1200 (credit card)"_qs);
        const ReconciledBankAccount never(account, numira::toCurrency("EUR"));
        QVERIFY(never.balance() == money("EUR", "0") && !never.reconciledOn());
    }
};

static const kiv::test::Suite<tst_Banking> bankingSuite;
#include "tst_banking.moc"
