// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/document/bank_steps.h"
#include "workbench/outlook/looking_ahead.h"
#include "workbench/outlook/payoff.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/due_items.h"
#include "workbench/requests/item_changes.h"
#include "workbench/requests/item_figures.h"
#include "workbench/requests/paying_account.h"

#include "storage/scratch_folder.h"
#include "support/accounting.h"
#include "support/damage.h"
#include "support/message_log.h"
#include "support/surroundings.h"

using namespace budgeting;
using Data = storage::BudgetStorage::Data;

namespace {

/// A random household that has all kinds of items, late ones too.
class RandomHousehold {
public:
    explicit RandomHousehold(quint32 seed) : m_random(seed)
    {
        const banking::BankName bank(u"First"_s);
        workbench::addBank(requests(), bank);
        for (const auto kind :
             {banking::BankAccountTypes::Checking, banking::BankAccountTypes::Savings,
              banking::BankAccountTypes::CreditCard}) {
            const numira::Money opening = test::money("USD", "1000.00").scaled(below(9), 2);
            m_accounts.push_back(
                workbench::addBankAccount(m_document, {u"Account %1"_s.arg(m_accounts.size()), bank,
                                                       kind, opening, start()}));
        }
        for (int count = 3 + below(8); count > 0; --count)
            addItem(count);
    }

    /// The first day that is looked at.
    [[nodiscard]] static QDate start() { return test::day("2025-03-10"); }
    [[nodiscard]] Data data() { return m_document.present(); }
    [[nodiscard]] int below(int count) { return static_cast<int>(m_random.bounded(count)); }

    /// Pays every date up to the day, the earliest first; what came to its end is skipped.
    void pay(QDate until)
    {
        while (const auto next = earliest(until)) {
            const BudgetItemIdentifier id = next->id.item();
            const Data now = data();
            if (hasEnded(now, id))
                workbench::skipDue(requests(), now.budget, next->id);
            else
                (void)workbench::payDue(
                    requests(), now.budget, *next,
                    now.generalLedger.accountCode(workbench::payingAccount(now, id).value()),
                    std::max(start(), next->id.dueOn));
        }
    }
    /// What the account is worth, so that what is owed is below zero.
    [[nodiscard]] numira::Money worth(accounting::AccountNumber number)
    {
        const accounting::LedgerAccount account = data().generalLedger.ledger(number);
        return account.type() == accounting::AccountTypes::Liability ? -account.balance()
                                                                     : account.balance();
    }

private:
    [[nodiscard]] workbench::Requests &requests() { return m_document.requests(); }

    void addItem(int number)
    {
        static constexpr EventFrequency often[] = {
            EventFrequency::Weekly,  EventFrequency::EveryTwoWeeks, EventFrequency::TwiceAMonth,
            EventFrequency::Monthly, EventFrequency::EveryWeekday,  EventFrequency::None};
        const auto kind = static_cast<BudgetItemTypes>(1 + below(5));
        workbench::ItemValues values;
        workbench::Amount amount;
        workbench::readPlain(QString::number(1 + below(90)) + u".35 USD"_s, amount);
        values.amount = amount;
        values.every = often[below(std::size(often))];
        values.next = start().addDays(below(60) - 20);
        if (kind == BudgetItemTypes::Goal || kind == BudgetItemTypes::Debt) {
            workbench::readPlain(QString::number(50 + below(400)) + u" USD"_s, amount);
            values.extra = amount;
        }
        workbench::addItem(requests(), navigation::GuiElementIdentifier(1),
                           {kind, budgeting::BudgetSource(u"Item %1"_s.arg(number))}, values,
                           start(), start());
        // An item that was paid before is paid from the same account again.
        const BudgetItemIdentifier id{kind, budgeting::BudgetSource(u"Item %1"_s.arg(number))};
        const Data now = data();
        if (below(2) == 0)
            (void)workbench::payExtra(
                requests(), {id.type, id.source, start().addDays(-1)}, test::usd("1"),
                now.generalLedger.accountCode(m_accounts[static_cast<std::size_t>(below(3))]),
                start().addDays(-1));
    }

    [[nodiscard]] std::optional<budgeting::BudgetItemAmountDue> earliest(QDate until)
    {
        std::optional<budgeting::BudgetItemAmountDue> first;
        const auto dayOf = [](const budgeting::BudgetItemAmountDue &one) {
            return std::pair(std::max(start(), one.id.dueOn), one.id.dueOn);
        };
        data().budget.forEach([&](const budgeting::BudgetedMoney &item) {
            const budgeting::BudgetItemAmountDue due = workbench::dueOf(item);
            if (item.period() != EventFrequency::None && due.id.dueOn <= until &&
                (!first || dayOf(due) < dayOf(*first)))
                first = due;
        });
        return first;
    }

    [[nodiscard]] static bool hasEnded(const Data &data, const BudgetItemIdentifier &id)
    {
        const budgeting::BudgetedMoney *item = budgeting::findBudgetItem(id, data.budget);
        const auto progress = workbench::progressOf(data, *item);
        if (!progress)
            return false;
        return id.type == BudgetItemTypes::Goal ? progress->part >= progress->whole
                                                : !progress->part.isPositive();
    }

    QRandomGenerator m_random;
    test::ScratchFolder m_folder;
    workbench::Document m_document{test::surroundings(m_folder.path(u"rates"_s))};
    std::vector<accounting::AccountNumber> m_accounts;
};

} // namespace

class tst_OutlookAhead : public QObject {
    Q_OBJECT

private slots:
    /// What was foretold for a day is what the books say after all was paid until then.
    void foretellsWhatPayingMakes()
    {
        const MessageLog quiet;
        int ended = 0;
        for (int run = randomRuns(50); run > 0; --run) {
            RandomHousehold household(static_cast<quint32>(run));
            const int days = 1 + household.below(120);
            const workbench::LookingAhead ahead = workbench::lookAhead(
                household.data(), {RandomHousehold::start(), days, {}}, numira::toCurrency("USD"));
            QCOMPARE(ahead.outlook.accounts.size(), std::size_t{3});
            household.pay(RandomHousehold::start().addDays(days - 1));
            for (const auto &[number, curve] : ahead.outlook.accounts) {
                QCOMPARE(curve.ends.size(), static_cast<std::size_t>(days));
                QCOMPARE(curve.ends.back(), household.worth(number));
            }
            ended += ahead.outlook.payments.empty();
        }
        QVERIFY(ended < randomRuns(50) / 2); // else little was foretold
    }

    /// Without interest, the payments are what is left and no more, and more a month is faster.
    void paysOffWhatIsLeft()
    {
        const MessageLog quiet;
        int shorter = 0;
        for (int run = randomRuns(50); run > 0; --run) {
            RandomHousehold household(static_cast<quint32>(run));
            const Data data = household.data();
            data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
                const auto kind = workbench::identify(item).type;
                if ((kind != BudgetItemTypes::Goal && kind != BudgetItemTypes::Debt) ||
                    item.period() == EventFrequency::None)
                    return;
                const auto payoff = workbench::payoffOf(data, item, RandomHousehold::start());
                const auto faster =
                    workbench::payoffOf(data, item, RandomHousehold::start(), test::usd("40"));
                numira::Money left = payoff.left;
                for (const workbench::ScheduledPayment &one : payoff.payments) {
                    QVERIFY(one.amount <= item.amount() && one.day >= RandomHousehold::start());
                    left -= one.amount;
                    QCOMPARE(one.left, left);
                }
                QCOMPARE(left.isZero(), payoff.left.isPositive() || payoff.left.isZero());
                QVERIFY(faster.payments.size() <= payoff.payments.size());
                shorter += faster.payments.size() < payoff.payments.size();
            });
        }
        QVERIFY(shorter > randomRuns(50) / 4);
    }
};

static const kiv::test::Suite<tst_OutlookAhead> outlookAheadSuite;
#include "tst_outlook_ahead.moc"
