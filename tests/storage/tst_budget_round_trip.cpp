// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "random_budget.h"
#include "scratch_folder.h"

#include "support/message_log.h"

#include "accounting/number_handout.h"

#include <QtTest/QTest>

#include <rapidcheck.h>

using namespace kiv;
using accounting::AccountNumber;
using accounting::AccountTypes;
using Data = storage::BudgetStorage::Data;

namespace {

/// A bill, a debt and a non-tracked item, each with its account (1, 2 and 3),
/// the debt's in two banks.
Data tiedBudget()
{
    Data data;
    accounting::SequentialAccountNumberGenerator generator;
    const numira::Money amount(numira::toCurrency("USD"), 10, 0);
    const auto add = [&]<typename Item>(const char16_t *name, const Item &made) {
        Item item = made;
        item.rename(budgeting::BudgetSource(QString::fromUtf16(name)));
        data.budget.items<Item>().add(item);
        accounting::NumberHandout number(generator, data.generalLedger);
        data.generalLedger.add({budgeting::ItemTraits<Item>::accountType,
                                {number.number(), budgeting::itemAccountName(item.source()), {}},
                                budgeting::openingMoney(item),
                                false},
                               generator);
        number.keep();
        data.budgetAccountCodes.insertOrAssign<Item>(item.source(), number.number());
    };
    const QDate date(2026, 1, 31);
    const auto monthly = budgeting::EventFrequency::Monthly;
    add(u"Rent", budgeting::Bill({}, amount, monthly, date));
    add(u"Car", budgeting::Debt({}, amount, monthly, date, numira::Money(amount.code())));
    add(u"Rent", budgeting::Nontrack({}, amount, monthly, date));
    for (const auto *bank : {u"First", u"Second"})
        data.banks.add(banking::Bank(banking::BankName(QString::fromUtf16(bank)),
                                     {{AccountNumber(2), banking::BankAccountTypes::Loan}}, false));
    return data;
}

const budgeting::BudgetSource rent(QStringLiteral("Rent"));
const budgeting::BudgetSource car(QStringLiteral("Car"));
const budgeting::BudgetSource unnamed;

void recode(Data &data, std::uint32_t from, std::uint32_t to)
{
    const auto code = data.generalLedger.accountCode(AccountNumber(from));
    data.generalLedger.recode(code, {AccountNumber(to), code.name(), code.parent()});
}

} // namespace

class BudgetRoundTripTest final : public QObject {
    Q_OBJECT

private slots:
    void whateverTheDomainMakesLoadsEqualAndSavesTheSameBytes();
    void aFullLedgerLoadsEqual();
    void theLongestTextIsKept();
    void looseTiesAreMended_data();
    void looseTiesAreMended();
    void aClosedAccountWithABalanceIsOpened();
};

void BudgetRoundTripTest::whateverTheDomainMakesLoadsEqualAndSavesTheSameBytes()
{
    const MessageLog log;
    const test::ScratchFolder folder;
    const bool holds = rc::check("round trip", [&] {
        const auto pick = [](int count) { return *rc::gen::inRange(0, count); };
        const Data data = test::RandomBudget(pick).make(*rc::gen::inRange(0, 60));
        test::store(folder.path(u"a.budget"_qs), data);
        const Data loaded = test::load(folder.path(u"a.budget"_qs));
        RC_ASSERT(test::difference(data, loaded).toStdString() == std::string());
        test::store(folder.path(u"b.budget"_qs), loaded);
        RC_ASSERT(folder.read(u"a.budget"_qs) == folder.read(u"b.budget"_qs));
    });
    QVERIFY(holds);
    QCOMPARE(log.warnings(), QStringList());
}

void BudgetRoundTripTest::aFullLedgerLoadsEqual()
{
    Data data = tiedBudget();
    for (int i = 0; i < 65'535; ++i) {
        data.generalLedger.post({QDate(2020, 1, 1).addDays(i / 20), AccountNumber(1),
                                 AccountNumber(2),
                                 numira::Money(numira::toCurrency("USD"), 1 + i % 997, 25)});
    }
    const test::ScratchFolder folder;
    test::store(folder.path(u"a.budget"_qs), data);
    QVERIFY(data == test::load(folder.path(u"a.budget"_qs)));
}

void BudgetRoundTripTest::theLongestTextIsKept()
{
    const test::ScratchFolder folder;
    for (const int more : {0, 1}) {
        Data data;
        data.banks.add(banking::Bank(
            banking::BankName(QString(4 * 1024 * 1024 + more, QChar(u'n'))), {}, false));
        std::string refusal;
        try {
            test::store(folder.path(u"a"_qs), data);
            QCOMPARE(test::difference(data, test::load(folder.path(u"a"_qs))), QString());
        } catch (const storage::StorageError &error) {
            refusal = error.what();
        }
        QCOMPARE(refusal.ends_with("A text is too long."), more > 0);
    }
}

void BudgetRoundTripTest::looseTiesAreMended_data()
{
    using Change = std::function<void(Data &)>;
    using Check = std::function<bool(const Data &)>;
    QTest::addColumn<Change>("loosen");
    QTest::addColumn<Check>("isMended");
    QTest::addColumn<int>("warnings");

    const auto accountOf = []<typename Item>(std::type_identity<Item>, const Data &data,
                                             const budgeting::BudgetSource &source) {
        return data.budgetAccountCodes.value<Item>(source).integer();
    };
    const std::type_identity<budgeting::Bill> bill;
    const std::type_identity<budgeting::Debt> debt;
    const std::type_identity<budgeting::Nontrack> nontrack;

    QTest::newRow("account removed") << Change([](Data &data) {
        data.generalLedger.remove(AccountNumber(1));
    }) << Check([=](const Data &data) {
        const auto account = data.generalLedger.ledger(AccountNumber(accountOf(bill, data, rent)));
        return account.code() == accounting::AccountCode(
                                     AccountNumber(4), QStringLiteral("Rent [Budget Item]"), {}) &&
               account.type() == AccountTypes::Expense && !account.isClosed();
    }) << 1;
    QTest::newRow("two items of one name find an account each") << Change([](Data &data) {
        data.budgetAccountCodes.remove<budgeting::Bill>(rent);
        data.budgetAccountCodes.remove<budgeting::Nontrack>(rent);
    }) << Check([=](const Data &data) {
        return accountOf(bill, data, rent) == 1 && accountOf(nontrack, data, rent) == 3;
    }) << 2;
    QTest::newRow("account renumbered; one of the same name belongs to another item")
        << Change([](Data &data) { recode(data, 1, 9); }) << Check([=](const Data &data) {
               return accountOf(bill, data, rent) == 9 && accountOf(nontrack, data, rent) == 3;
           })
        << 1;
    QTest::newRow("account in two banks renumbered")
        << Change([](Data &data) { recode(data, 2, 9); }) << Check([=](const Data &data) {
               return accountOf(debt, data, car) == 9 && !data.banks.find(AccountNumber(2));
           })
        << 3;
    QTest::newRow("account in two banks removed; no new account gets in its place there")
        << Change([](Data &data) {
               data.generalLedger.remove(AccountNumber(3));
               data.generalLedger.remove(AccountNumber(2));
           })
        << Check([=](const Data &data) {
               return accountOf(debt, data, car) == 2 && accountOf(nontrack, data, rent) == 3 &&
                      !data.banks.find(AccountNumber(2));
           })
        << 4;
    QTest::newRow("bank that held the account removed")
        << Change([](Data &data) { data.banks.remove(banking::BankName(QStringLiteral("First"))); })
        << Check([=](const Data &data) { return accountOf(debt, data, car) == 2; }) << 0;
    QTest::newRow("item renamed after its account went") << Change([](Data &data) {
        data.generalLedger.remove(AccountNumber(1));
        data.budget.bills.rename(rent, car);
        data.budgetAccountCodes.remove<budgeting::Bill>(rent);
        data.budgetAccountCodes.insertOrAssign<budgeting::Bill>(car, AccountNumber(1));
    }) << Check([=](const Data &data) { return accountOf(bill, data, car) == 4; })
                                                         << 1;
    QTest::newRow("item that the ledger refused") << Change([](Data &data) {
        data.budget.wages.add(budgeting::Wage(car, numira::Money(numira::toCurrency("EUR"), 5, 0),
                                              budgeting::EventFrequency::Weekly,
                                              QDate(2026, 1, 1)));
    }) << Check([=](const Data &data) {
        const auto number = data.budgetAccountCodes.value<budgeting::Wage>(car);
        return data.generalLedger.ledger(number).type() == AccountTypes::Income &&
               data.generalLedger.ledger(number).balance().code() == numira::toCurrency("EUR");
    }) << 1;
    QTest::newRow("number of an account that a bank lost goes to a bill") << Change([](Data &data) {
        data.banks.add(banking::BankName(u"Second"_qs), AccountNumber(1),
                       banking::BankAccountTypes::Loan);
    }) << Check([](const Data &data) { return !data.banks.find(AccountNumber(1)); })
                                                                          << 1;
    QTest::newRow("surveys of another kind, one earlier and one later") << Change([](Data &data) {
        for (const auto &[bank, kind, day] :
             {std::tuple(u"First"_qs, 3, 5), std::tuple(u"First"_qs, 4, 6),
              std::tuple(u"Second"_qs, 4, 5), std::tuple(u"Second"_qs, 6, 6)}) {
            surveying::CompletedSurvey survey(
                {banking::BankName(bank), {AccountNumber(2), banking::BankAccountTypes(kind)}},
                numira::toCurrency("USD"));
            survey.completed(QDate(2026, 1, day), {}, {}, {}, {});
            data.surveys.upsert(survey);
        }
    }) << Check([](const Data &data) {
        return std::ranges::all_of(data.surveys, [](const auto &entry) {
            return entry.first.account.type == banking::BankAccountTypes::Loan &&
                   entry.first == entry.second.bankAccount() &&
                   entry.second.reconciled().reconciledOn() == QDate(2026, 1, 6);
        });
    }) << 2;
    QTest::newRow("tie of an item that is gone") << Change([](Data &data) {
        data.budget.bills.remove(rent);
    }) << Check([](const Data &data) {
        return !data.budgetAccountCodes.has<budgeting::Bill>(rent) &&
               data.generalLedger.hasLedger(AccountNumber(1));
    }) << 1;
    QTest::newRow("empty name without an account; two choices are taken") << Change([](Data &data) {
        data.budget.bills.rename(rent, unnamed);
        data.budgetAccountCodes.remove<budgeting::Bill>(rent);
        data.budget.nontracks.rename(rent, budgeting::BudgetSource(u"Unnamed bill"_qs));
        data.budgetAccountCodes.remove<budgeting::Nontrack>(rent);
        data.budgetAccountCodes.insertOrAssign<budgeting::Nontrack>(
            budgeting::BudgetSource(u"Unnamed bill"_qs), AccountNumber(3));
        data.budget.debts.rename(car, budgeting::BudgetSource(u"Unnamed bill 2 [Budget Item]"_qs));
        data.budgetAccountCodes.remove<budgeting::Debt>(car);
        data.budgetAccountCodes.insertOrAssign<budgeting::Debt>(
            budgeting::BudgetSource(u"Unnamed bill 2 [Budget Item]"_qs), AccountNumber(2));
    }) << Check([=](const Data &data) {
        return accountOf(bill, data, budgeting::BudgetSource(u"Unnamed bill 3"_qs)) == 4;
    }) << 2;
    QTest::newRow("empty name; the account bears another, or is gone; a choice is an account's")
        << Change([](Data &data) {
               data.budget.bills.rename(rent, unnamed);
               data.budgetAccountCodes.remove<budgeting::Bill>(rent);
               data.budgetAccountCodes.insertOrAssign<budgeting::Bill>(unnamed, AccountNumber(1));
               data.generalLedger.recode(
                   data.generalLedger.accountCode(AccountNumber(3)),
                   {AccountNumber(3), QStringLiteral("Unnamed bill [Budget Item]"), {}});
               data.budget.debts.rename(car, unnamed);
               data.budgetAccountCodes.remove<budgeting::Debt>(car);
               data.budgetAccountCodes.insertOrAssign<budgeting::Debt>(unnamed, AccountNumber(9));
           })
        << Check([=](const Data &data) {
               const budgeting::BudgetSource named(u"Unnamed bill 2"_qs);
               return accountOf(bill, data, named) == 1 &&
                      data.generalLedger.accountCode(AccountNumber(1)).name() ==
                          budgeting::itemAccountName(rent) &&
                      accountOf(debt, data, budgeting::BudgetSource(u"Unnamed debt"_qs)) == 4;
           })
        << 3;
    QTest::newRow("account found again: not the one of another kind, an open one first")
        << Change([](Data &data) {
               const QString name = budgeting::itemAccountName(rent);
               accounting::SequentialAccountNumberGenerator generator;
               data.budgetAccountCodes.remove<budgeting::Bill>(rent);
               data.generalLedger.remove(AccountNumber(1));
               for (const auto &[number, type] :
                    {std::pair(1U, AccountTypes::Asset), std::pair(7U, AccountTypes::Expense),
                     std::pair(8U, AccountTypes::Expense), std::pair(9U, AccountTypes::Expense)})
                   data.generalLedger.add({type,
                                           {AccountNumber(number), name, {}},
                                           numira::Money(numira::toCurrency("USD")),
                                           false},
                                          generator);
               data.generalLedger.close(AccountNumber(7));
               data.generalLedger.close(AccountNumber(8));
           })
        << Check([=](const Data &data) { return accountOf(bill, data, rent) == 9; }) << 1;
    QTest::newRow("account found again: a closed one rather than none") << Change([](Data &data) {
        data.budgetAccountCodes.remove<budgeting::Bill>(rent);
        data.generalLedger.close(AccountNumber(1));
    }) << Check([=](const Data &data) { return accountOf(bill, data, rent) == 1; })
                                                                        << 1;
    QTest::newRow("empty name; the account, tags and surveys follow it") << Change([](Data &data) {
        data.budget.bills.rename(rent, unnamed);
        data.budgetAccountCodes.remove<budgeting::Bill>(rent);
        data.budgetAccountCodes.insertOrAssign<budgeting::Bill>(unnamed, AccountNumber(1));
        data.generalLedger.recode(data.generalLedger.accountCode(AccountNumber(1)),
                                  {AccountNumber(1), QStringLiteral(" [Budget Item]"), {}});
        const budgeting::BudgetItemIdentifier id{budgeting::BudgetItemTypes::Bill, unnamed};
        data.itemTags.set(tagging::BudgetItemTags::ItemTags(id, {tagging::Tag(u"home"_qs)}));
        surveying::CompletedSurvey survey({}, numira::toCurrency("USD"));
        survey.completed(QDate(2026, 1, 1), {}, {{id, {}}}, {}, {});
        data.surveys.upsert(survey);
        // The first choice of a name is taken.
        recode(data, 3, 5);
        data.generalLedger.recode(data.generalLedger.accountCode(AccountNumber(5)),
                                  {AccountNumber(3), QStringLiteral("Unnamed bill"), {}});
    }) << Check([=](const Data &data) {
        const budgeting::BudgetSource named(QStringLiteral("Unnamed bill 2"));
        const budgeting::BudgetItemIdentifier id{budgeting::BudgetItemTypes::Bill, named};
        return accountOf(bill, data, named) == 1 && data.itemTags.contains(id) &&
               data.generalLedger.accountCode(AccountNumber(1)).name() ==
                   budgeting::itemAccountName(named) &&
               data.surveys.begin()->second.distribution().contains(id);
    }) << 1;
}

void BudgetRoundTripTest::looseTiesAreMended()
{
    QFETCH(std::function<void(Data &)>, loosen);
    QFETCH(std::function<bool(const Data &)>, isMended);
    QFETCH(int, warnings);
    const test::ScratchFolder folder;
    Data data = tiedBudget();
    loosen(data);
    test::store(folder.path(u"a.budget"_qs), data);

    const MessageLog log;
    const Data loaded = test::load(folder.path(u"a.budget"_qs));
    QVERIFY(isMended(loaded));
    QCOMPARE(log.warnings().size(), warnings);
    QVERIFY2(!log.text().contains(u'%'), qPrintable(log.text()));
    test::store(folder.path(u"b.budget"_qs), loaded);
    QCOMPARE(test::difference(loaded, test::load(folder.path(u"b.budget"_qs))), QString());
    QCOMPARE(log.warnings().size(), warnings);
}

void BudgetRoundTripTest::aClosedAccountWithABalanceIsOpened()
{
    numira::setUpLibrary([](const auto &, const auto &) { return numira::FloatingPoint("0.335"); },
                         "en_US", numira::ShouldAllowFallback::Yes);
    Data data;
    accounting::SequentialAccountNumberGenerator generator;
    for (const std::uint32_t number : {1U, 2U})
        data.generalLedger.add({AccountTypes::Asset,
                                {AccountNumber(number), {}, {}},
                                numira::Money(numira::toCurrency("USD")),
                                false},
                               generator);
    const auto post = [&](std::uint32_t debit, std::uint32_t credit, int cents) {
        data.generalLedger.post(
            {QDate(2026, 1, 1), AccountNumber(debit), AccountNumber(credit),
             numira::Money(numira::toCurrency("USD"), 0, static_cast<std::uint16_t>(cents))});
    };
    post(1, 2, 2);
    post(1, 2, 2);
    post(2, 1, 4);
    data.generalLedger.close(AccountNumber(1));
    data.generalLedger.convertTo(AccountNumber(1), numira::toCurrency("EUR"), generator);
    QVERIFY(!data.generalLedger.ledger(AccountNumber(1)).balance().isZero());

    const test::ScratchFolder folder;
    test::store(folder.path(u"a.budget"_qs), data);
    const MessageLog log;
    const Data loaded = test::load(folder.path(u"a.budget"_qs));
    QVERIFY(!loaded.generalLedger.ledger(AccountNumber(1)).isClosed());
    QCOMPARE(log.warnings().size(), 1);
    data.generalLedger.open(data.generalLedger.accountCode(AccountNumber(1)));
    QCOMPARE(test::difference(data, loaded), QString());
}

static const kiv::test::Suite<BudgetRoundTripTest> suite;
#include "tst_budget_round_trip.moc"
