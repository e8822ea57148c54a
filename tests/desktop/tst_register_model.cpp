// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/follower.h"
#include "models/register_filter.h"
#include "support/accounting.h"
#include "support/preferences_store.h"
#include "support/surroundings.h"
#include "workbench/requests/entry_forms.h"

using namespace accounting;
using namespace desktop;
using navigation::Navigator;

/// The register follows the ledger by difference.
class TestRegisterModel : public QObject {
    Q_OBJECT

private slots:
    void itIsTheLedgerAfterRandomChanges_data()
    {
        kiv::test::addRows<quint32>({{"an asset", 1u}, {"a liability", 2u}, {"all accounts", 0u}});
    }
    void itIsTheLedgerAfterRandomChanges()
    {
        const auto account = kiv::test::rowOf<quint32>();
        m_shown = account == 0 ? std::nullopt : std::optional(AccountNumber(account));
        RegisterModel model(account == 0);
        RegisterFilter filter(model);
        kiv::test::Follower shown(model);
        kiv::test::Follower found(filter);
        workbench::Document document(kiv::test::surroundings({}));
        m_requests = &document.requests();
        addAccounts();
        QRandomGenerator random(account + 7);
        for (int step = 0; step < 150; ++step) {
            show(model);
            if (step == 60)
                filter.search(u">50 -food"_s, model.accounts(), QDate(2026, 6, 1));
            std::map<TransactionNumber, std::pair<QPersistentModelIndex, QDate>> kept;
            for (int row = 0; row < model.rowCount(); ++row)
                kept.emplace(model.number(row),
                             std::pair(QPersistentModelIndex(model.index(row, 0)),
                                       model.transaction(row).occurredOn()));
            change(random);
            show(model);
            compare(model, filter, step >= 60);
            QCOMPARE(shown.missed() + found.missed(), QString());
            for (const auto &[number, place] : kept) {
                const int row = model.rowOf(number);
                if (row >= 0 && model.transaction(row).occurredOn() == place.second)
                    QCOMPARE(place.first.row(), row);
                else if (row < 0)
                    QVERIFY(!place.first.isValid());
            }
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(model.rowCount() > 20 && filter.rowCount() < model.rowCount());
    }

private:
    void addAccounts()
    {
        std::uint32_t number = 0;
        for (const auto &[type, name] : {std::pair(AccountTypes::Asset, u"Checking"_s),
                                         {AccountTypes::Liability, u"Card"_s},
                                         {AccountTypes::Expense, u"Food"_s},
                                         {AccountTypes::Income, u"Work"_s}})
            m_requests->change(workbench::accountOutcome, &Navigator::onAddedAct,
                               accounting::Account(type,
                                                   {AccountNumber(++number), name, std::nullopt},
                                                   kiv::test::usd("0"), false));
    }
    void show(RegisterModel &model)
    {
        model.show(std::make_shared<const workbench::AccountIndex>(m_requests->accounts()), m_shown,
                   navigation::CurrencyDisplayOptions::IsoCode, {QDate(2026, 6, 1)});
    }
    Transaction randomTransaction(QRandomGenerator &random)
    {
        const auto debit = static_cast<std::uint32_t>(random.bounded(1, 5));
        const auto credit = 1 + (debit - 1 + static_cast<std::uint32_t>(random.bounded(1, 4))) % 4;
        return {QDate(2026, 1, 1).addDays(random.bounded(20)), AccountNumber(debit),
                AccountNumber(credit),
                numira::Money(numira::toCurrency("USD"), numira::Decimal(random.bounded(1, 100))),
                u"Shop | %1"_s.arg(random.bounded(1000))};
    }
    void change(QRandomGenerator &random)
    {
        const std::vector<Transaction> all = m_requests->transactions();
        const int kind = all.size() < 5 ? 0 : random.bounded(8);
        const auto any = [&] {
            return all[static_cast<std::size_t>(random.bounded(static_cast<int>(all.size())))]
                .number()
                .value();
        };
        switch (kind) {
        case 4:
            m_requests->change(workbench::transactionOutcome, &Navigator::onRemovedTransaction,
                               any());
            break;
        case 5:
        case 6:
            m_requests->change(workbench::transactionOutcome, &Navigator::onUpdatedTransaction,
                               any(), randomTransaction(random));
            break;
        case 7:
            workbench::mark(*m_requests, {any()}, workbench::Marking::Clear);
            break;
        default: // several come at once, as after an import
            for (int count = random.bounded(1, 4); count > 0; --count)
                (void)workbench::post(*m_requests, randomTransaction(random));
        }
    }
    /// Against all that the ledger says, read anew.
    void compare(const RegisterModel &model, const RegisterFilter &filter, bool isSearching)
    {
        const workbench::AccountIndex index = m_requests->accounts();
        std::vector<Transaction> expected = m_requests->transactions();
        std::erase_if(expected,
                      [&](const Transaction &t) { return m_shown && !t.involves(*m_shown); });
        std::ranges::sort(expected, {}, [](const Transaction &t) {
            return std::pair(t.occurredOn(), t.number());
        });
        QCOMPARE(model.rowCount(), static_cast<int>(expected.size()));
        numira::Money balance(numira::toCurrency("USD"));
        std::vector<TransactionNumber> fitting;
        for (int row = 0; row < model.rowCount(); ++row) {
            const Transaction &transaction = expected[static_cast<std::size_t>(row)];
            QCOMPARE(model.transaction(row), transaction);
            const bool isFood = transaction.involves(AccountNumber(3));
            if (transaction.amount() > kiv::test::usd("50") && !isFood)
                fitting.push_back(model.number(row));
            if (!m_shown)
                continue;
            const bool isPlus = (transaction.debiting().number() == *m_shown) ==
                                accounting::isDebitNormal(index.find(*m_shown)->type());
            const numira::Money amount = isPlus ? transaction.amount() : -transaction.amount();
            QCOMPARE(model.amount(row), amount);
            balance += amount;
            const QModelIndex cell = model.index(row, model.place(RegisterModel::Column::Balance));
            QCOMPARE(cell.data(RegisterModel::SortRole).toDouble(), balance.amount().toDouble());
        }
        if (m_shown)
            QCOMPARE(balance, index.find(*m_shown)->balance());
        if (!isSearching)
            return;
        std::vector<TransactionNumber> found;
        for (int row = 0; row < filter.rowCount(); ++row)
            found.push_back(model.number(filter.sourceRow(row)));
        QCOMPARE(found, fitting);
    }

    PreferencesStore m_preferences;
    workbench::Requests *m_requests = nullptr;
    std::optional<AccountNumber> m_shown;
};

static const kiv::test::Suite<TestRegisterModel> testRegisterModelSuite;

#include "tst_register_model.moc"
