// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

namespace kiv::test {

using accounting::AccountNumber;

bool isBalanced(const accounting::GeneralLedger &ledger)
{
    std::map<numira::Currency, numira::Money> sums;
    for (const accounting::Account &account : ledger.accounts()) {
        const AccountNumber number = account.code().number();
        numira::Money balance(account.balance().code());
        for (const accounting::Transaction &transaction : account.transactions()) {
            const bool isDebit = transaction.debiting().number() == number;
            const numira::Money entered = transaction.amount();
            sums[entered.code()] += isDebit ? entered : -entered;
            const numira::Money own = transaction.amountFor(number);
            balance += isDebit == accounting::isDebitNormal(account.type()) ? own : -own;
        }
        if (balance != account.balance())
            return false;
    }
    return std::ranges::all_of(sums, [](const auto &sum) { return sum.second.isZero(); });
}

void addStates()
{
    const std::map<const char *, const char *> inWords{
        {"empty", "clear"},
        {"new with changes", "clear; Added(bill Gas)"},
        {"open", ""},
        {"open with changes", "Added(bill Gas)"},
        {"bank closed", "BankAdded(Prime); BankClosed(Prime)"},
        {"account reconciled", "MarkReconciled(1); MarkReconciled(2)"},
        {"goal under a bank account", "Added(goal Trip, First 1 checking)"},
        {"debt at a bank", "Added(debt Car, First 0 loan)"},
        {"two currencies", "StoreExchangeRates(0.5); AddedBankAccount(Card, cash, 50 EUR); "
                           "TransferRequested(7, 1, 5); StoreExchangeRates()"},
        {"wizard's", "CompletedNewBudgetFirstTimeWizard(USD, USD, 1, First, checking, Checking, "
                     "100, 5)"}};
    QTest::addColumn<Request>("prepare");
    for (const auto &[name, requests] : inWords)
        QTest::newRow(name) << requestOf(QString::fromLatin1(requests));
    QTest::newRow("full") << Request([](Navigator &n) {
        for (int i = 3; i < 65535; ++i)
            n.onAddedTransaction(transfer(no(8), no(1), usd("0.01")));
    });
    QTest::newRow("after a failed load") << Request([](Navigator &n) {
        try {
            n.onConfirmedLoadBudgetFile(QStringLiteral("gone"), false);
        } catch (const storage::StorageError &) {
        }
    });
}

QString randomRequest(std::array<std::uint8_t, 4> seeds)
{
    // Left out is what may end half-way on purpose, or is mended when a file is loaded.
    static const QStringList patterns =
        QStringLiteral("Added($k $n $m);Added($k $n $m);Added(debt $n $m, First 0 loan);"
                       "Added(goal $n $m, First 1 checking);Renamed($k, $n, $n);"
                       "Updated($k $n $m);Updated(goal $n $m, First 1 checking);Removed($k, $n);"
                       "BankAdded($b);BankRenamed(Second, $b);BankClosed($b);BankOpened($b);"
                       "BankRemoved($b);BankUpdated($b);AddedBankAccount($n!, savings, $m);"
                       "AddedTransaction($a from $a: $m);AddedTransaction($a from 1: $m);"
                       "UpdatedTransaction($t, $a from $a: 7);RemovedTransaction($t);"
                       "PostRefund($t, 0.25);MarkReconciled($t);MarkUnreconciled($t);"
                       "MarkCleared($t);PostBudgetItemPosted($k $n $m, 1, 2026-01-15);"
                       "PostBudgetItemPostedUnexpected($k $n, $m, 1, 2026-01-15);"
                       "PostBudgetItemSkipped($k $n);GenerateMappingSurvey(First, 1, 2026-01-31);"
                       "CompletedSurvey(2026-03-31, First 1 checking, 2500, $t $t);"
                       "AddedAct(900 $n?: $m);Recoded(900 Vault, 901 $n?);"
                       "Recoded(901 Vault, 900 Vault);Closed(900);Opened(900);RemovedAct(900)")
            .split(u';');
    const std::map<QChar, QStringList> words{
        {u'k', {u"bill"_qs, u"debt"_qs, u"goal"_qs, u"nontrack"_qs, u"wage"_qs}},
        {u'n', {u"Rent"_qs, u"Trip"_qs, u"Car"_qs, u"%1_%2"_qs, u"Food"_qs, u"Checking"_qs}},
        {u'm', {u"10"_qs, u"0.25"_qs, u"49.99"_qs}},
        {u'b', {u"Second"_qs, u"Third"_qs}}};
    QString request = patterns[seeds[0] % patterns.size()];
    std::size_t next = 0;
    for (qsizetype place = request.indexOf(u'$'); place >= 0; place = request.indexOf(u'$')) {
        const std::uint8_t seed = seeds[1 + next++ % 3];
        const auto found = words.find(request[place + 1]);
        // Accounts and transactions go by their numbers.
        request.replace(place, 2,
                        found == words.end() ? QString::number(1 + seed % 12)
                                             : found->second[seed % found->second.size()]);
    }
    return request;
}

} // namespace kiv::test
