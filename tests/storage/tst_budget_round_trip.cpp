// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "image_surgery.h"
#include "random_budget.h"
#include "scratch_folder.h"

#include "support/comparison.h"
#include "support/message_log.h"

#include <rapidcheck.h>

using namespace accounting;
using namespace budgeting;
using Data = storage::BudgetStorage::Data;

namespace {

/// A bill, a debt and a non-tracked item, each with its account (1, 2 and 3),
/// the debt's in two banks.
Data tiedBudget()
{
    Data data;
    accounting::SequentialAccountNumberGenerator generator;
    const numira::Money amount = test::usd("10");
    const auto add = [&]<typename Item>(const char16_t *name, const Item &made) {
        Item item = made;
        item.rename(budgeting::BudgetSource(QString::fromUtf16(name)));
        data.budget.items<Item>().add(item);
        data.budgetAccountCodes.insertOrAssign<Item>(
            item.source(),
            test::addAccount(data.generalLedger, generator,
                             budgeting::ItemTraits<Item>::accountType, {},
                             qUtf8Printable(budgeting::itemAccountName(item.source()))));
    };
    const QDate date(2026, 1, 31);
    const auto monthly = budgeting::EventFrequency::Monthly;
    add(u"Rent", Bill({}, amount, monthly, date));
    add(u"Car", Debt({}, amount, monthly, date, numira::Money(amount.code())));
    add(u"Rent", Nontrack({}, amount, monthly, date));
    for (const auto *bank : {u"First", u"Second"})
        data.banks.add(banking::Bank(banking::BankName(QString::fromUtf16(bank)),
                                     {{AccountNumber(2), banking::BankAccountTypes::Loan}}, false));
    return data;
}

const budgeting::BudgetSource rent(QStringLiteral("Rent"));
const budgeting::BudgetSource car(QStringLiteral("Car"));
const budgeting::BudgetSource unnamed;

const auto unnamedBill = budgeting::BudgetSource(QStringLiteral("Unnamed bill"));

void recode(Data &data, std::uint32_t from, std::uint32_t to, const QString &name = {})
{
    const auto code = data.generalLedger.accountCode(AccountNumber(from));
    data.generalLedger.recode(
        code, {AccountNumber(to), name.isEmpty() ? code.name() : name, code.parent()});
}

/// Gives the item the name, and the account if there is a number.
template <typename Item>
void rename(Data &data, const budgeting::BudgetSource &from, const budgeting::BudgetSource &to,
            std::uint32_t account = 0)
{
    data.budget.items<Item>().rename(from, to);
    data.budgetAccountCodes.remove<Item>(from);
    if (account > 0)
        data.budgetAccountCodes.insertOrAssign<Item>(to, AccountNumber(account));
}

/// All that ties parts to one another: "bill Rent 1" is an item with its account, "First 2"
/// a bank with its account, "First 2 (loan) 6" a survey with its kind and day.
QString tiesIn(const Data &data)
{
    QStringList ties;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        for (const auto &[source, item] : data.budget.items<Item>()) {
            const AccountNumber number = data.budgetAccountCodes.value<Item>(source);
            const auto account = data.generalLedger.ledger(number);
            const bool isStrange = account.type() != budgeting::ItemTraits<Item>::accountType ||
                                   account.balance().code() != item.amount().code();
            ties += QStringList{QString::fromLatin1(budgeting::ItemTraits<Item>::word),
                                source.name(), presentationText(number)}
                        .join(u' ');
            if (account.code().name() != budgeting::itemAccountName(source))
                ties.back() += u" as "_qs + account.code().name();
            if (account.isClosed() || isStrange)
                ties.back() += isStrange ? u" strange"_qs : u" closed"_qs;
        }
    });
    for (const auto &[name, bank] : data.banks) {
        for (const auto &[number, kind] : bank.accounts())
            ties += name.institution() + u' ' + presentationText(number);
    }
    for (const auto &[account, survey] : data.surveys) {
        ties += test::dump(account) + u' ' +
                QString::number(survey.reconciled().reconciledOn().value_or(QDate()).day());
        for (const auto &[item, amount] : survey.distribution())
            ties.back() += u" for "_qs + item.source.name();
    }
    for (const auto &[item, tags] : data.itemTags)
        ties += u"tags of "_qs + item.source.name();
    qsizetype count = 0;
    for (const auto &[type, codes] : data.budgetAccountCodes.maps())
        count += qsizetype(codes.size());
    return ties.join(u", ") + QStringLiteral("; %1 of %2 accounts")
                                  .arg(count)
                                  .arg(data.generalLedger.accountCodes().size());
}

/// What loosens ties, how many warnings tell of it, and the ties once it is mended.
using Loose = std::tuple<std::function<void(Data &)>, int, const char *>;

} // namespace

class BudgetRoundTripTest final : public QObject {
    Q_OBJECT

private slots:
    void whateverTheDomainMakesLoadsEqualAndSavesTheSameImage();
    void filesOfTheFirstEditionLoadAsTheyWereSaved();
    void looseTiesAreMended_data();
    void looseTiesAreMended();
    void aClosedAccountWithABalanceIsOpened();
};

void BudgetRoundTripTest::whateverTheDomainMakesLoadsEqualAndSavesTheSameImage()
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
        RC_ASSERT(test::imageOf(folder.read(u"a.budget"_qs)) ==
                  test::imageOf(folder.read(u"b.budget"_qs)));

        storage::BudgetFile file;
        file.setFilePathName(folder.path(u"c.budget"_qs));
        storage::Notes notes;
        notes.set(u"key"_qs, pick(100));
        file.setNotes(notes);
        file.store(data);
        const auto reconciliations = file.reconciliations();
        (void)file.load();
        RC_ASSERT(file.reconciliations() == reconciliations);
        RC_ASSERT(file.notes() == notes);
    });
    QVERIFY(holds);
    QCOMPARE(log.warnings(), QStringList());
}

void BudgetRoundTripTest::filesOfTheFirstEditionLoadAsTheyWereSaved()
{
    const test::ScratchFolder folder;
    const QString path = folder.path(u"a.budget"_qs);
    for (const auto &[name, seed] :
         {std::pair("data/odd.budget", 2U), {"data/strange.budget", 1U}}) {
        const Data saved = test::someBudget(seed, 150);
        test::overwrite(path, test::contentOf(QFINDTESTDATA(name)));
        QCOMPARE(test::difference(test::load(path), saved), QString());
        {
            storage::BudgetFile file;
            file.setFilePathName(path);
            file.store(file.load());
        }
        QVERIFY(test::FileParts(folder.read(u"a.budget"_qs)).hasSeal);
        QCOMPARE(test::difference(test::load(path), saved), QString());
    }
}

void BudgetRoundTripTest::looseTiesAreMended_data()
{
    QTest::addColumn<Loose>("row");
    const auto row = [](const char *title, int warnings, const char *mended, const auto &loosen) {
        QTest::newRow(title) << Loose(loosen, warnings, mended);
    };
    using budgeting::BudgetSource;

    row("account removed", 1,
        "bill Rent 4, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) { data.generalLedger.remove(AccountNumber(1)); });
    row("two items of one name find an account each", 2,
        "bill Rent 1, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) {
            data.budgetAccountCodes.remove<Bill>(rent);
            data.budgetAccountCodes.remove<Nontrack>(rent);
        });
    row("account renumbered; one of the same name belongs to another item", 1,
        "bill Rent 9, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) { recode(data, 1, 9); });
    row("account in two banks renumbered", 3,
        "bill Rent 1, debt Car 9, nontrack Rent 3; 3 of 3 accounts",
        [](Data &data) { recode(data, 2, 9); });
    row("account in two banks removed; no new account gets in its place there", 4,
        "bill Rent 1, debt Car 2, nontrack Rent 3; 3 of 3 accounts", [](Data &data) {
            data.generalLedger.remove(AccountNumber(3));
            data.generalLedger.remove(AccountNumber(2));
        });
    row("bank that held the account removed", 0,
        "bill Rent 1, debt Car 2, nontrack Rent 3, Second 2; 3 of 3 accounts",
        [](Data &data) { data.banks.remove(banking::BankName(u"First"_qs)); });
    row("item renamed after its account went", 1,
        "bill Car 4, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) {
            data.generalLedger.remove(AccountNumber(1));
            rename<Bill>(data, rent, car, 1);
        });
    row("item that the ledger refused", 1,
        "bill Rent 1, debt Car 2, nontrack Rent 3, wage Car 4, First 2, Second 2; 4 of 4 accounts",
        [](Data &data) {
            data.budget.wages.add(Wage(car, test::money("EUR", "5"),
                                       budgeting::EventFrequency::Weekly, QDate(2026, 1, 1)));
        });
    row("number of an account that a bank lost goes to a bill", 1,
        "bill Rent 1, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) {
            data.banks.add(banking::BankName(u"Second"_qs), AccountNumber(1),
                           banking::BankAccountTypes::Loan);
        });
    row("surveys of another kind, one earlier and one later", 2,
        "bill Rent 1, debt Car 2, nontrack Rent 3, First 2, Second 2, First 2 (loan) 6, Second 2 "
        "(loan) 6; 3 of 3 accounts",
        [](Data &data) {
            for (const auto &[bank, kind, day] :
                 {std::tuple(u"First"_qs, 3, 5), std::tuple(u"First"_qs, 4, 6),
                  std::tuple(u"Second"_qs, 4, 5), std::tuple(u"Second"_qs, 6, 6)}) {
                surveying::CompletedSurvey survey(
                    {banking::BankName(bank), {AccountNumber(2), banking::BankAccountTypes(kind)}},
                    numira::toCurrency("USD"));
                survey.completed(QDate(2026, 1, day), {}, {}, {}, {});
                data.surveys.upsert(survey);
            }
        });
    row("tie of an item that is gone", 1,
        "debt Car 2, nontrack Rent 3, First 2, Second 2; 2 of 3 accounts",
        [](Data &data) { data.budget.bills.remove(rent); });
    row("empty name without an account; two choices are taken", 2,
        "bill Unnamed bill 3 4, debt Unnamed bill 2 [Budget Item] 2 as Car [Budget Item], nontrack "
        "Unnamed bill 3 as Rent [Budget Item], First 2, Second 2; 3 of 4 accounts",
        [](Data &data) {
            rename<Bill>(data, rent, unnamed);
            rename<Nontrack>(data, rent, unnamedBill, 3);
            rename<Debt>(data, car, BudgetSource(u"Unnamed bill 2 [Budget Item]"_qs), 2);
        });
    row("empty name; the account bears another, or is gone; a choice is an account's", 3,
        "bill Unnamed bill 2 1 as Rent [Budget Item], debt Unnamed debt 4, nontrack Rent 3 as "
        "Unnamed bill [Budget Item], First 2, Second 2; 3 of 4 accounts",
        [](Data &data) {
            rename<Bill>(data, rent, unnamed, 1);
            recode(data, 3, 3, u"Unnamed bill [Budget Item]"_qs);
            rename<Debt>(data, car, unnamed, 9);
        });
    row("account found again: not the one of another kind, an open one first", 1,
        "bill Rent 9, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 6 accounts",
        [](Data &data) {
            accounting::SequentialAccountNumberGenerator generator;
            data.budgetAccountCodes.remove<Bill>(rent);
            data.generalLedger.remove(AccountNumber(1));
            for (const std::uint32_t number : {1U, 7U, 8U, 9U})
                test::addAccount(data.generalLedger, generator,
                                 number == 1U ? AccountTypes::Asset : AccountTypes::Expense,
                                 AccountNumber(number), "Rent [Budget Item]");
            data.generalLedger.close(AccountNumber(7));
            data.generalLedger.close(AccountNumber(8));
        });
    row("account found again: a closed one rather than none", 1,
        "bill Rent 1 closed, debt Car 2, nontrack Rent 3, First 2, Second 2; 3 of 3 accounts",
        [](Data &data) {
            data.budgetAccountCodes.remove<Bill>(rent);
            data.generalLedger.close(AccountNumber(1));
        });
    row("empty name; the account, tags and surveys follow it", 1,
        "bill Unnamed bill 2 1, debt Car 2, nontrack Rent 3 as Unnamed bill, First 2, Second 2,  0 "
        "(unknown) 1 for Unnamed bill 2, tags of Unnamed bill 2; 3 of 3 accounts",
        [](Data &data) {
            rename<Bill>(data, rent, unnamed, 1);
            recode(data, 1, 1, u" [Budget Item]"_qs);
            const budgeting::BudgetItemIdentifier id{budgeting::BudgetItemTypes::Bill, unnamed};
            data.itemTags.set(tagging::BudgetItemTags::ItemTags(id, {tagging::Tag(u"home"_qs)}));
            surveying::CompletedSurvey survey({}, numira::toCurrency("USD"));
            survey.completed(QDate(2026, 1, 1), {}, {{id, {}}}, {}, {});
            data.surveys.upsert(survey);
            recode(data, 3, 3, unnamedBill.name()); // the first choice of a name is taken
        });
}

void BudgetRoundTripTest::looseTiesAreMended()
{
    const auto [loosen, warnings, mended] = test::rowOf<Loose>();
    const test::ScratchFolder folder;
    Data data = tiedBudget();
    loosen(data);
    test::store(folder.path(u"a.budget"_qs), data);

    const MessageLog log;
    const Data loaded = test::load(folder.path(u"a.budget"_qs));
    QCOMPARE(tiesIn(loaded), QLatin1String(mended));
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
        test::addAccount(data.generalLedger, generator, AccountTypes::Asset, AccountNumber(number),
                         "");
    const auto post = [&](std::uint32_t debit, std::uint32_t credit, const char *amount) {
        data.generalLedger.post(
            test::transfer(AccountNumber(debit), AccountNumber(credit), test::usd(amount)));
    };
    post(1, 2, "0.02");
    post(1, 2, "0.02");
    post(2, 1, "0.04");
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

static const kiv::test::Suite<BudgetRoundTripTest> budgetRoundTripSuite;
#include "tst_budget_round_trip.moc"
