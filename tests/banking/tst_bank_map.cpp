// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank_map.h"
#include "banking/errors.h"

#include "support/accounting.h"
#include "support/comparison.h"

#include <QtTest/QtTest>

using namespace kiv::banking;
using namespace kiv::test;

using Operation = std::function<void(BankMap &)>;
Q_DECLARE_METATYPE(Operation)

namespace {

const BankName first(u"First"_qs);
const BankName second(u"Second %1"_qs);
const BankName third(u"Third"_qs);
const BankName nameless;

BankMap twoBanks()
{
    BankMap banks;
    banks.add(Bank(second, {{no(2100), BankAccountTypes::CreditCard}}, true));
    banks.add(Bank(first,
                   {{no(1200), BankAccountTypes::Checking}, {no(1300), BankAccountTypes::Savings}},
                   false));
    return banks;
}

} // namespace

class tst_BankMap : public QObject {
    Q_OBJECT

private slots:
    void requestsAreDoneOrRefused_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QString>("after"); // empty for a refusal
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("refusedBank");

        const QString firstBank = u"First [1200=>checking, 1300=>savings]"_qs;
        const QString secondBank = u"Second %1 [2100=>credit card] closed"_qs;
        const auto accepted = [](const char *name, Operation operation, const QString &after) {
            QTest::newRow(name) << std::move(operation) << after << QString() << QString();
        };
        const auto refused = [](const char *name, Operation operation, const QString &message,
                                const BankName &bank) {
            QTest::newRow(name) << std::move(operation) << QString() << message
                                << bank.institution();
        };

        accepted(
            "add a bank", [](BankMap &banks) { banks.add(Bank(third, {}, false)); },
            u"(%1, %2, Third [])"_qs.arg(firstBank, secondBank));
        refused(
            "add a bank without a name", [](BankMap &banks) { banks.add(Bank()); },
            u"The name of a bank cannot be empty."_qs, nameless);
        refused(
            "add a bank of a name in use",
            [](BankMap &banks) { banks.add(Bank(second, {}, false)); },
            u"The bank 'Second %1' already exists."_qs, second);

        accepted(
            "add an account, also one that another bank has",
            [](BankMap &banks) { banks.add(second, no(1200), BankAccountTypes::Loan); },
            u"(%1, Second %1 [1200=>loan, 2100=>credit card] closed)"_qs.replace(1, 2, firstBank));
        accepted(
            "add an account again as another kind",
            [](BankMap &banks) { banks.add(first, no(1300), BankAccountTypes::Cash); },
            u"(First [1200=>checking, 1300=>cash], "_qs + secondBank + u')');
        refused(
            "add an account to an unknown bank",
            [](BankMap &banks) { banks.add(third, no(1), BankAccountTypes::Cash); },
            u"The bank 'Third' does not exist."_qs, third);

        accepted(
            "remove a bank", [](BankMap &banks) { banks.remove(first); }, u'(' + secondBank + u')');
        refused(
            "remove an unknown bank", [](BankMap &banks) { banks.remove(third); },
            u"The bank 'Third' does not exist."_qs, third);
        accepted(
            "remove an account", [](BankMap &banks) { banks.remove(first, no(1200)); },
            u"(First [1300=>savings], "_qs + secondBank + u')');
        refused(
            "remove an account that another bank has",
            [](BankMap &banks) { banks.remove(second, no(1200)); },
            u"The bank 'Second %1' does not have the account '1200'."_qs, second);
        refused(
            "remove an account of an unknown bank",
            [](BankMap &banks) { banks.remove(third, no(1200)); },
            u"The bank 'Third' does not exist."_qs, third);

        accepted(
            "update a closed bank as an open one",
            [](BankMap &banks) { banks.update(Bank(second, {}, false)); },
            u'(' + firstBank + u", Second %1 [] closed)"_qs);
        refused(
            "update an unknown bank", [](BankMap &banks) { banks.update(Bank(third, {}, false)); },
            u"The bank 'Third' does not exist."_qs, third);

        accepted(
            "rename a closed bank", [](BankMap &banks) { banks.rename(second, third); },
            u'(' + firstBank + u", Third [2100=>credit card] closed)"_qs);
        refused(
            "rename an unknown bank", [](BankMap &banks) { banks.rename(third, first); },
            u"The bank 'Third' does not exist."_qs, third);
        refused(
            "rename to nothing", [](BankMap &banks) { banks.rename(first, nameless); },
            u"The name of a bank cannot be empty."_qs, nameless);
        refused(
            "rename to a name in use", [](BankMap &banks) { banks.rename(first, second); },
            u"The bank 'Second %1' already exists."_qs, second);
        refused(
            "rename to its own name", [](BankMap &banks) { banks.rename(first, first); },
            u"The bank 'First' already exists."_qs, first);

        accepted(
            "open", [](BankMap &banks) { banks.open(second); },
            u'(' + firstBank + u", Second %1 [2100=>credit card])"_qs);
        refused(
            "open an open bank", [](BankMap &banks) { banks.open(first); },
            u"The bank 'First' is already open."_qs, first);
        refused(
            "open an unknown bank", [](BankMap &banks) { banks.open(third); },
            u"The bank 'Third' does not exist."_qs, third);
        accepted(
            "close", [](BankMap &banks) { banks.close(first); },
            u'(' + firstBank + u" closed, "_qs + secondBank + u')');
        refused(
            "close a closed bank", [](BankMap &banks) { banks.close(second); },
            u"The bank 'Second %1' is already closed."_qs, second);
        refused(
            "close an unknown bank", [](BankMap &banks) { banks.close(third); },
            u"The bank 'Third' does not exist."_qs, third);
    }

    void requestsAreDoneOrRefused()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, after);
        QFETCH(QString, refusal);
        QFETCH(QString, refusedBank);
        const BankMap before = twoBanks();
        BankMap banks = before;
        try {
            operation(banks);
            QCOMPARE(dump(banks), after);
        } catch (const BankError &error) {
            QCOMPARE(error.message(), refusal);
            QCOMPARE(error.name().institution(), refusedBank);
            QCOMPARE(banks, before);
        }
    }

    void lookUpsGoByName()
    {
        BankMap banks = twoBanks();
        QCOMPARE(dump(banks.bank(second)), u"Second %1 [2100=>credit card] closed"_qs);
        QVERIFY_EXCEPTION_THROWN(static_cast<void>(banks.bank(third)), BankError);
        QCOMPARE(banks.names(), (std::set{first, second}));
        QVERIFY(banks.hasBank(first) && !banks.hasBank(third));
        QCOMPARE(banks.find(no(2100)), std::optional(second));
        QVERIFY(!banks.find(no(9)));
        banks.add(first, no(2100), BankAccountTypes::Loan);
        QCOMPARE(banks.find(no(2100)), std::optional(first));
    }
};

QTEST_APPLESS_MAIN(tst_BankMap)
#include "tst_bank_map.moc"
