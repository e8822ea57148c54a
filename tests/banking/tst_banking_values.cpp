// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "banking/bank.h"

#include "foundation/local_dates.h"

#include "support/accounting.h"
#include "support/comparison.h"

#include <stdexcept>

using namespace kiv::banking;
using namespace kiv::test;
using kiv::accounting::AccountTypes;

class tst_BankingValues : public QObject {
    Q_OBJECT

private slots:
    void eachTypeIsALedgerAccountOfItsKind()
    {
        const std::set<int> liabilities{3, 4, 6};
        for (int value = 1; value <= 8; ++value) {
            const auto type = static_cast<BankAccountTypes>(value);
            const bool isLiability = liabilities.contains(value);
            QCOMPARE(isLiabilityAccount(type), isLiability);
            QCOMPARE(isAssetAccount(type), !isLiability);
        }
        QCOMPARE(toAccountTypes(BankAccountTypes::Unknown), AccountTypes::Unknown);
        QVERIFY(!isAssetAccount(BankAccountTypes::Unknown));
        QVERIFY(!isLiabilityAccount(BankAccountTypes::Unknown));
        QCOMPARE(toQString(BankAccountTypes::Cash), u"cash"_qs);
    }

    void unknownTypesAreProgrammingErrors()
    {
        const auto unknown = static_cast<BankAccountTypes>(9);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(toAccountTypes(unknown)));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(isAssetAccount(unknown)));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(toQString(unknown)));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, static_cast<void>(presentationText(unknown)));
    }

    void accountsAreOrderedByBankNumberAndType()
    {
        const auto account = [](const char *bank, std::uint32_t number, BankAccountTypes type) {
            return BankAccount{BankName(QString::fromLatin1(bank)), {no(number), type}};
        };
        QCOMPARE(comparisonFault(std::vector{
                     account("", 9, BankAccountTypes::Cash),
                     account("First", 1, BankAccountTypes::Cash),
                     account("First", 2, BankAccountTypes::Checking),
                     account("First", 2, BankAccountTypes::Savings),
                     account("first", 1, BankAccountTypes::Checking),
                 }),
                 QString());
    }

    void textsNameTheAccountAndHideControlCharacters()
    {
        const BankAccount account{BankName(u"First %2\n"_qs),
                                  {no(1200), BankAccountTypes::CreditCard}};
        QCOMPARE(presentationText(account), u"First %2\n 1200 (credit card)"_qs);
        QCOMPARE(dump(account), u"First %2\\u{000A} 1200 (credit card)"_qs);
        const auto back = qScopeGuard([] { kiv::foundation::setDateLocale(""); });
        kiv::foundation::setDateLocale("de_DE");
        QCOMPARE(dump(ReconciledBankAccount(account, usd("5"), day("2026-01-31"))),
                 dump(account) + u" 5.00 USD on 2026-01-31"_qs);
    }

    void anAccountThatWasNeverReconciledIsAtZero()
    {
        const ReconciledBankAccount never(BankAccount(), numira::toCurrency("EUR"));
        QCOMPARE(never.balance(), money("EUR", "0"));
        QVERIFY(!never.reconciledOn());
        QVERIFY(never != ReconciledBankAccount(BankAccount(), never.balance(), day("2026-01-31")));
    }
};

static const kiv::test::Suite<tst_BankingValues> suite;
#include "tst_banking_values.moc"
