// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "sample_book.h"

#include "accounting/balances.h"

#include <sstream>

using namespace kiv::test;
using kiv::foundation::Percentage;
using enum TransactionStatuses;

namespace {

/// Checks all comparisons of every pair of values that are given in ascending
/// order and differ.
template <typename T>
bool areInOrder(const std::vector<T> &values)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t j = 0; j < values.size(); ++j) {
            if ((values[i] <=> values[j]) != (i <=> j) || (values[i] == values[j]) != (i == j))
                return false;
        }
    }
    return true;
}

template <typename T>
QString text(const T &value)
{
    std::ostringstream out;
    out << value;
    return QString::fromStdString(out.str());
}

} // namespace

class tst_AccountingValues : public QObject {
    Q_OBJECT

private slots:
    void init() { installRates(); }

    void valuesAreOrdered()
    {
        QVERIFY(areInOrder<AccountCode>({{},
                                         {u"Z"_qs, {}},
                                         {no(1), {}},
                                         {no(1), u"A"_qs, {}},
                                         {no(1), u"A"_qs, no(3)},
                                         {no(1), u"A"_qs, no(4)},
                                         {no(1), u"Z"_qs, {}},
                                         {no(1), u"a"_qs, {}},
                                         {no(1), u"ä"_qs, {}},
                                         {no(2), {}}}));

        const Transaction base = transfer(no(1), no(2), usd("5"));
        const Transaction first = base.withNumber(txn(1));
        QVERIFY(areInOrder<Transaction>(
            {Transaction(day("2026-01-01")), base, first,
             first.asRefundOf(txn(3)), // statuses, refund mark and text come last
             first.withStatuses(None, Reconciled), first.withStatuses(Cleared, None),
             first.withSideAmounts(usd("5"), usd("6")), first.withSideAmounts(usd("6"), usd("5")),
             transfer(no(1), no(2), usd("6")).withNumber(txn(1)),
             transfer(no(1), no(2), money("EUR", "1")).withNumber(txn(1)),
             transfer(no(1), no(3), usd("5")).withNumber(txn(1)),
             transfer(no(2), no(1), usd("5")).withNumber(txn(1)),
             transfer(no(1), no(2), usd("1"), day("2026-01-16")).withNumber(txn(1)),
             transfer(no(1), no(2), usd("1"), day("2025-01-16")).withNumber(txn(2))}));
        const auto described = [](std::optional<QString> description) {
            return Transaction(day("2026-01-15"), no(1), no(2), usd("5"), std::move(description));
        };
        QVERIFY(areInOrder<Transaction>({described({}), described(QString()), described(u"b"_qs)}));

        const AccountCode code(no(1), {});
        using enum AccountTypes;
        QVERIFY(areInOrder<Account>({{Asset, code, usd("2"), false},
                                     {Asset, code, money("EUR", "1"), false},
                                     {Asset, code, usd("1"), true},
                                     {Equity, code, usd("1"), false},
                                     {Asset, AccountCode(no(2), {}), usd("1"), false}}));
        QVERIFY(Account(Book().ledger.ledger(no(4))) !=
                Account(Expense, AccountCode(no(4), u"Rent"_qs, {}), usd("750"), false));
    }

    void sidesAreSeenFromTheirAccounts()
    {
        const Transaction transaction = transfer(no(1), no(2), usd("5"))
                                            .withStatuses(Reconciled, Cleared)
                                            .withSideAmounts(money("EUR", "4"), money("GBP", "3"));
        QCOMPARE(transaction.status(), Cleared);
        QCOMPARE(transaction.seenFrom(no(1)).status(), Reconciled);
        QCOMPARE(transaction.seenFrom(no(2)).status(), Cleared);
        QCOMPARE(transaction.seenFrom(no(3)).status(), Cleared);
        QVERIFY(transaction.seenFrom(no(1)) == transaction);
        QVERIFY(transaction.amountFor(no(1)) == money("EUR", "4"));
        QVERIFY(transaction.amountFor(no(2)) == money("GBP", "3"));
        QVERIFY(transaction.amountFor(no(3)) == usd("5"));
    }

    void balancesFollowTheirOwnSide()
    {
        const Transaction transaction =
            transfer(no(1), no(2), usd("5")).withSideAmounts(usd("4"), usd("3"));
        const auto asset = [&](std::uint32_t number) {
            return adjustAssetBalance({no(number), {}}, usd("10"), transaction);
        };
        const auto liability = [&](std::uint32_t number) {
            return adjustLiabilityBalance({no(number), {}}, usd("10"), transaction);
        };
        QVERIFY(shouldIncreaseAsset(transaction, no(1)) &&
                !shouldIncreaseAsset(transaction, no(2)));
        QVERIFY(asset(1) == usd("14") && asset(2) == usd("7") && asset(3) == usd("10"));
        QVERIFY(liability(1) == usd("6") && liability(2) == usd("13"));
        QVERIFY(liability(3) == usd("10"));
        QVERIFY_THROWS_EXCEPTION(AccountError, static_cast<void>(adjustAssetBalance(
                                                   {no(1), {}}, money("CAD", "1"), transaction)));
    }

    void theWindowIncludesItsBounds_data()
    {
        QTest::addColumn<QByteArray>("calculated");
        QTest::addColumn<QByteArray>("reference");
        QTest::addColumn<double>("rate");
        QTest::addColumn<bool>("isWithin");
        const auto row = [](const char *calculated, const char *reference, double rate, bool is) {
            QTest::addRow("%s of %s at %g", calculated, reference, rate)
                << QByteArray(calculated) << QByteArray(reference) << rate << is;
        };
        row("102.75", "100", 2.75, true);
        row("102.750000000001", "100", 2.75, false);
        row("97.25", "100", 2.75, true);
        row("97.249999999999", "100", 2.75, false);
        row("-102.75", "-100", 2.75, true);
        row("-102.76", "-100", 2.75, false);
        row("0", "0", 2.75, true);
        row("0.000000000001", "0", 2.75, false);
        // 2.75 % of it is 0.02 and 0.7 of the last digit.
        row("0.747272727299", "0.727272727298", 2.75, false);
        row("0.747272727298", "0.727272727298", 2.75, true);
        row("1027500000000000000000000", "1000000000000000000000000", 2.75, true);
        row("1027500000000000000000000.000000000001", "1000000000000000000000000", 2.75, false);
        row("5", "5", 0, true);
        row("5", "5", -1, false);
    }

    void theWindowIncludesItsBounds()
    {
        QFETCH(QByteArray, calculated);
        QFETCH(QByteArray, reference);
        QFETCH(double, rate);
        QFETCH(bool, isWithin);
        for (const bool byMajor : {true, false}) {
            QCOMPARE(isWithinWindow(usd(calculated.constData()), Percentage(rate, 6),
                                    usd(reference.constData()), ByMajorUnit(byMajor)),
                     isWithin);
        }
    }

    void theWindowIsInTheReferencesCurrency()
    {
        const auto isWithin = [](const char *currency, const char *calculated) {
            return isWithinWindow(money(currency, calculated), Percentage(2.75, 6), usd("100"),
                                  ByMajorUnit(true));
        };
        QVERIFY(isWithin("EUR", "51.375") && !isWithin("EUR", "51.376"));
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, static_cast<void>(isWithin("CAD", "1")));
    }

    void textsStayOnOneLine()
    {
        Book book;
        book.ledger.recode(AccountCode(no(8), {}), {no(8), u"Two\nlines %1"_qs, no(2)});
        book.ledger.repost(txn(2), {day("2026-01-02"), no(2), no(5), usd("1"), u"tab\there"_qs});
        const QString dump = text(book.ledger);
        QVERIFY(!dump.contains(u'\n') && !dump.contains(u'\t'));
        QVERIFY(
            dump.contains(u"asset account 8 Two\\u{000A}lines %1 under 2, open, balance 0.00 USD"));
        QCOMPARE(text(found(book.ledger, 4)),
                 u"#4 2026-01-04 100.00 USD: debit 2 Checking under 1 (100.00 USD, none), credit "
                 u"4 Rent (100.00 USD, none), refund of #3, \"January\""_qs);
        QCOMPARE(presentationText(AccountCode(u"Only a name"_qs, {})), u"Only a name"_qs);
        QCOMPARE(presentationText(AccountCode(no(1200), {})), u"1200"_qs);
    }
};

static const kiv::test::Suite<tst_AccountingValues> suite;
#include "tst_accounting_values.moc"
