// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "banking/bank_map.h"
#include "banking/errors.h"

#include "support/accounting.h"
#include "support/comparison.h"

using namespace kiv::banking;
using namespace kiv::test;

using Request = std::function<void(BankMap &)>;
Q_DECLARE_METATYPE(Request)

namespace {

const BankName first(u"1st"_qs);
const BankName second(u"2nd %1"_qs);
const BankName third(u"Third"_qs);
const BankName nameless;

BankMap twoBanks()
{
    BankMap banks;
    banks.add(Bank(second, {{no(21), BankAccountTypes::CreditCard}}, true));
    banks.add(Bank(
        first, {{no(12), BankAccountTypes::Checking}, {no(13), BankAccountTypes::Savings}}, false));
    return banks;
}

} // namespace

class tst_BankMap : public QObject {
    Q_OBJECT

private slots:
    void requestsAreDoneOrRefused_data()
    {
        QTest::addColumn<Request>("request");
        QTest::addColumn<QString>("after"); // nothing for a refusal
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<BankName>("refused");

        using M = BankMap &;
        const auto done = [](const char *name, Request request, const char *after) {
            QTest::newRow(name) << std::move(request) << QString::fromLatin1(after) << QString()
                                << BankName();
        };
        const auto refused = [](const char *name, Request request, const BankName &bank,
                                const char *message) {
            QTest::newRow(name) << std::move(request) << QString() << QString::fromLatin1(message)
                                << bank;
        };
        const char *unknown = "The bank 'Third' does not exist.";
        const char *unnamed = "The name of a bank cannot be empty.";
        const char *taken = "The bank '2nd %1' already exists.";

        done(
            "add a bank", [](M banks) { banks.add(Bank(third, {}, false)); },
            "(1st [12=>checking, 13=>savings], 2nd %1 [21=>credit card] closed, Third [])");
        refused(
            "add a bank without a name", [](M banks) { banks.add(Bank()); }, nameless, unnamed);
        refused(
            "add a bank of a name in use", [](M banks) { banks.add(Bank(second, {}, false)); },
            second, taken);

        done(
            "add an account that another bank has",
            [](M banks) { banks.add(second, no(12), BankAccountTypes::Loan); },
            "(1st [12=>checking, 13=>savings], 2nd %1 [12=>loan, 21=>credit card] closed)");
        done(
            "add an account again as another kind",
            [](M banks) { banks.add(first, no(13), BankAccountTypes::Cash); },
            "(1st [12=>checking, 13=>cash], 2nd %1 [21=>credit card] closed)");
        refused(
            "add an account to an unknown bank",
            [](M banks) { banks.add(third, no(1), BankAccountTypes::Cash); }, third, unknown);

        done(
            "remove a bank", [](M banks) { banks.remove(first); },
            "(2nd %1 [21=>credit card] closed)");
        refused(
            "remove an unknown bank", [](M banks) { banks.remove(third); }, third, unknown);
        done(
            "remove an account", [](M banks) { banks.remove(first, no(12)); },
            "(1st [13=>savings], 2nd %1 [21=>credit card] closed)");
        refused(
            "remove an account that another bank has",
            [](M banks) { banks.remove(second, no(12)); }, second,
            "The bank '2nd %1' does not have the account '12'.");
        refused(
            "remove an account of an unknown bank", [](M banks) { banks.remove(third, no(12)); },
            third, unknown);

        done(
            "update a closed bank as an open one",
            [](M banks) { banks.update(Bank(second, {}, false)); },
            "(1st [12=>checking, 13=>savings], 2nd %1 [] closed)");
        refused(
            "update an unknown bank", [](M banks) { banks.update(Bank(third, {}, false)); }, third,
            unknown);

        done(
            "rename a closed bank", [](M banks) { banks.rename(second, third); },
            "(1st [12=>checking, 13=>savings], Third [21=>credit card] closed)");
        refused(
            "rename an unknown bank", [](M banks) { banks.rename(third, first); }, third, unknown);
        refused(
            "rename to nothing", [](M banks) { banks.rename(first, nameless); }, nameless, unnamed);
        refused(
            "rename to a name in use", [](M banks) { banks.rename(first, second); }, second, taken);
        refused(
            "rename to its own name", [](M banks) { banks.rename(second, second); }, second, taken);

        done(
            "open", [](M banks) { banks.open(second); },
            "(1st [12=>checking, 13=>savings], 2nd %1 [21=>credit card])");
        refused(
            "open an open bank", [](M banks) { banks.open(first); }, first,
            "The bank '1st' is already open.");
        refused(
            "open an unknown bank", [](M banks) { banks.open(third); }, third, unknown);
        done(
            "close", [](M banks) { banks.close(first); },
            "(1st [12=>checking, 13=>savings] closed, 2nd %1 [21=>credit card] closed)");
        refused(
            "close a closed bank", [](M banks) { banks.close(second); }, second,
            "The bank '2nd %1' is already closed.");
        refused(
            "close an unknown bank", [](M banks) { banks.close(third); }, third, unknown);
    }

    void requestsAreDoneOrRefused()
    {
        QFETCH(Request, request);
        QFETCH(QString, after);
        QFETCH(QString, refusal);
        QFETCH(BankName, refused);
        const BankMap before = twoBanks();
        BankMap banks = before;
        try {
            request(banks);
            QCOMPARE(dump(banks), after);
        } catch (const BankError &error) {
            QCOMPARE(error.message(), refusal);
            QCOMPARE(error.name(), refused);
            QCOMPARE(banks, before);
        }
    }

    void unknownKindsAreProgrammingErrors()
    {
        const auto unknown = static_cast<BankAccountTypes>(9);
        const std::vector<Request> requests{
            [=](BankMap &banks) {
                banks.add(Bank(third, {{no(1), unknown}}, false));
            },
            [=](BankMap &banks) { banks.add(first, no(12), unknown); },
            [=](BankMap &banks) {
                banks.update(Bank(first, {{no(12), unknown}}, false));
            },
        };
        for (const Request &request : requests) {
            BankMap banks = twoBanks();
            QVERIFY_THROWS_EXCEPTION(std::logic_error, request(banks));
            QCOMPARE(banks, twoBanks());
        }
    }

    void lookUpsGoByName()
    {
        BankMap banks = twoBanks();
        QCOMPARE(dump(banks.bank(second)), u"2nd %1 [21=>credit card] closed"_qs);
        QVERIFY_THROWS_EXCEPTION(BankError, static_cast<void>(banks.bank(third)));
        QCOMPARE(banks.names(), (std::set{first, second}));
        QVERIFY(banks.hasBank(first) && !banks.hasBank(third));
        QCOMPARE(banks.find(no(21)), std::optional(second));
        QVERIFY(!banks.find(no(9)));
        banks.add(first, no(21), BankAccountTypes::Loan);
        QCOMPARE(banks.find(no(21)), std::optional(first));
    }
};

static const kiv::test::Suite<tst_BankMap> suite;
#include "tst_bank_map.moc"
