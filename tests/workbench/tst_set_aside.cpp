// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/document/bank_moves.h"
#include "workbench/document/bank_steps.h"
#include "workbench/document/demonstration.h"
#include "workbench/internal/chance.h"
#include "workbench/requests/paying_account.h"
#include "workbench/surveys/set_aside.h"
#include "workbench/surveys/survey_sheet.h"

#include "storage/scratch_folder.h"
#include "support/accounting.h"
#include "support/damage.h"
#include "support/message_log.h"
#include "support/surroundings.h"

using navigation::Navigator;
using namespace workbench;
using Data = storage::BudgetStorage::Data;

namespace {

/// The made-up household, which goes on by chance after its year.
class GoingOn {
public:
    explicit GoingOn(int which)
    {
        while (which-- > 0)
            (void)m_chance.between(0, 1);
        m_document.setKeeping(workbench::Document::Keeping::WithinASecond);
        m_document.createFilled(m_folder.path(u"household.budget"_s), {u"Made"_s, {}, {}},
                                [this] { makeDemonstration(m_document, m_day); });
    }

    void step()
    {
        m_day = m_day.addDays(m_chance.between(0, 12));
        m_after.reset();
        m_document.perform({u"Step"_s, {}, {}}, [this] {
            if (m_chance.between(0, 3) == 0)
                survey(any(withLines()));
            else
                post();
        });
        if (m_after)
            QCOMPARE(differenceOf(m_surveyed), *m_after);
    }
    /// How far the books are below the bank.
    [[nodiscard]] numira::Money differenceOf(const banking::BankAccount &account)
    {
        for (const workbench::BooksDifference &one : booksDifferences(m_document)) {
            if (one.account == account)
                return one.amount;
        }
        return numira::Money(m_after->code());
    }
    [[nodiscard]] std::vector<SetAside> shown() { return shown(m_document.present()); }
    [[nodiscard]] std::vector<SetAside> shown(const Data &data) const
    {
        return workbench::envelopes(data, m_document.keptReconciliations(), m_day).accounts;
    }
    [[nodiscard]] SurveyForm proposed(const SetAside &account)
    {
        return SurveyForm::propose(m_document.requests(), account.account.bank.institution(),
                                   accounting::presentationText(account.account.account.number),
                                   m_day);
    }
    /// The budget after a payment of today from this account for an item.
    [[nodiscard]] Data paid(const SetAside &from, const SetAsideLine &line,
                            const numira::Money &amount)
    {
        Data data = m_document.present();
        (void)data.generalLedger.post({m_day, workbench::accountOf(data, line.item).value(),
                                       from.account.account.number, amount});
        return data;
    }
    /// The balance of the account with those under it.
    [[nodiscard]] numira::Money inBooks(accounting::AccountNumber number)
    {
        const accounting::GeneralLedger ledger = m_document.present().generalLedger;
        numira::Money balance = ledger.ledger(number).balance();
        for (const auto child : ledger.lookUpChildren(number, accounting::OpenStates::Either))
            balance += ledger.ledger(child).balance();
        return balance;
    }

    /// Gives the account to a new bank, or replaces it by a new account there; its number then.
    accounting::AccountNumber changeBank(const SetAside &account, bool isReplaced)
    {
        accounting::AccountNumber number = account.account.account.number;
        const banking::BankName bank(u"Bank %1"_s.arg(++m_banks));
        m_document.perform({bank.institution(), {}, {}}, [&] {
            workbench::addBank(m_document.requests(), bank);
            if (!isReplaced)
                return workbench::moveBankAccount(m_document, number, bank);
            const auto by = workbench::addBankAccount(
                m_document, {bank.institution() + u" giro"_s, bank, account.account.account.type,
                             numira::Money(account.balance.code()), m_day});
            workbench::replaceBankAccount(m_document, {number, by, m_day});
            number = by;
        });
        return number;
    }
    /// What is set aside for each item, and the balance of all banks. Items that several
    /// accounts show have no place yet.
    [[nodiscard]] std::map<QString, numira::Money> sums()
    {
        const workbench::Envelopes all =
            workbench::envelopes(m_document.present(), m_document.keptReconciliations(), m_day);
        std::map<QString, numira::Money> sums;
        for (const SetAside &account : all.accounts) {
            const auto add = [&](const QString &what, const numira::Money &money) {
                sums.try_emplace(what, money.code()).first->second += money;
            };
            add(u"balance"_s, account.balance);
            for (const SetAsideLine &line : account.lines) {
                if (!line.counted->isZero() && std::ranges::count(all.shared, line.item) == 0)
                    add(line.item.source.name(), *line.counted);
            }
        }
        return sums;
    }
    /// By how much the books differ from the banks.
    [[nodiscard]] std::vector<numira::Money> differences()
    {
        std::vector<numira::Money> amounts;
        for (const workbench::BooksDifference &one : booksDifferences(m_document))
            amounts.push_back(one.amount);
        std::ranges::sort(amounts, {}, [](const numira::Money &one) { return one.amount(); });
        return amounts;
    }
    [[nodiscard]] workbench::Document &document() { return m_document; }

private:
    [[nodiscard]] std::vector<SetAside> withLines()
    {
        std::vector<SetAside> all = shown();
        std::erase_if(all, [](const SetAside &one) { return one.lines.empty(); });
        return all;
    }
    [[nodiscard]] accounting::AccountNumber accountOf(const SetAsideLine &line)
    {
        return workbench::accountOf(m_document.present(), line.item).value();
    }
    template <typename T>
    T any(const std::vector<T> &all)
    {
        return all[static_cast<std::size_t>(m_chance.between(0, static_cast<int>(all.size()) - 1))];
    }
    /// Reconciles some of what is there, with money that is not booked and a difference that
    /// stays, and sets aside what is shown.
    void survey(const SetAside &account)
    {
        SurveySheet sheet =
            SurveySheet::begin(m_document.requests(), workbench::SheetBooks::of(m_document),
                               account.account.bank.institution(),
                               accounting::presentationText(account.account.account.number), m_day);
        for (const accounting::Transaction &one : sheet.form.transactions()) {
            if (m_chance.between(0, 9) > 0)
                sheet.form.reconciled.insert(one.number().value());
        }
        const numira::Currency currency = account.balance.code();
        const accounting::AccountNumber item = accountOf(any(account.lines));
        if (m_chance.between(0, 2) == 0 && !sheet.form.accounts.contains(item))
            sheet.addUnbooked(item, numira::Money(currency, -m_chance.between(1, 300), 0));
        sheet.form.balance = sheet.figures().calculated;
        if (m_chance.between(0, 2) == 0)
            sheet.form.balance += numira::Money(currency, m_chance.between(-9, 9), 0);
        if (!sheet.figures().isAccepted)
            sheet.form.balance = sheet.figures().calculated;
        numira::Money rest = sheet.form.balance;
        for (const workbench::SheetLine &line : sheet.lines())
            rest -= line.now;
        QCOMPARE(sheet.rest(), rest);
        m_after = sheet.figures().after();
        m_surveyed = account.account;
        complete(m_document, sheet, true);
    }
    /// Posts for an item, or back from it, on one of the last days.
    void post()
    {
        const SetAside account = any(withLines());
        const SetAsideLine line = any(account.lines);
        accounting::AccountNumber debit = accountOf(line);
        accounting::AccountNumber credit = any(shown()).account.account.number;
        if (m_chance.between(0, 4) == 0)
            std::swap(debit, credit);
        const numira::Money amount(account.balance.code(), m_chance.between(1, 400), 50);
        m_document.requests().change(
            workbench::transactionOutcome, &Navigator::onAddedTransaction,
            accounting::Transaction(m_day.addDays(-m_chance.between(0, 6)), debit, credit, amount));
    }

    std::optional<numira::Money> m_after; ///< what the last survey left between books and bank
    banking::BankAccount m_surveyed;
    test::ScratchFolder m_folder;
    workbench::internal::Chance m_chance;
    int m_banks = 0;
    QDate m_day = test::day("2024-06-30");
    workbench::Document m_document{test::surroundings(m_folder.path(u"rates"_s))};
};

template <typename Lines, typename Member>
std::set<budgeting::BudgetItemIdentifier> itemsOf(const Lines &lines, Member member)
{
    std::set<budgeting::BudgetItemIdentifier> items;
    for (const auto &line : lines)
        items.insert(std::invoke(member, line));
    return items;
}

} // namespace

class SetAsideTest final : public QObject {
    Q_OBJECT

private slots:
    void linesAndFreeMoneyAreWhatTheBankHas()
    {
        const MessageLog quiet;
        int cut = 0;
        for (int run = randomRuns(1); run > 0; --run)
            live(run, cut);
        QVERIFY(cut > 0); // else no line was ever paid beyond its end
    }

    void anotherBankTakesOverAllThatIsSetAside()
    {
        const MessageLog quiet;
        GoingOn household(1);
        for (int round = 0; round < 12; ++round) {
            for (int step = 0; step < 4; ++step)
                household.step();
            const auto sums = household.sums();
            const auto differences = household.differences();
            const Data before = household.document().present();
            const std::vector<SetAside> all = household.shown();
            const SetAside &account = all[static_cast<std::size_t>(round) % all.size()];
            numira::Money expected = household.proposed(account).proposal.expectedBalance();
            const bool isReplaced = round % 3 != 0;
            for (const auto &one : booksDifferences(household.document())) {
                // Only what is in the books can go over.
                if (isReplaced && one.account == account.account)
                    expected -= one.amount;
            }
            const auto number = household.changeBank(account, isReplaced);
            QCOMPARE(household.sums(), sums);
            QCOMPARE(household.differences(), differences);
            // The next statement continues where the last one ended.
            for (const SetAside &now : household.shown()) {
                if (now.account.account.number == number)
                    QCOMPARE(household.proposed(now).proposal.expectedBalance(), expected);
            }
            if (round % 4 == 0) {
                (void)household.document().undo();
                QCOMPARE(household.document().present(), before);
            }
        }
    }

private:
    static void live(int run, int &cut)
    {
        GoingOn household(run);
        for (int step = 0; step < 60; ++step) {
            household.step();
            for (const SetAside &account : household.shown()) {
                const SurveyForm proposed = household.proposed(account);
                numira::Money rest = household.inBooks(account.account.account.number);
                const surveying::Distribution &wanted = proposed.proposal.distributions();
                QCOMPARE(itemsOf(account.lines, &SetAsideLine::item),
                         itemsOf(wanted, &surveying::Distribution::value_type::first));
                for (const SetAsideLine &line : account.lines) {
                    check(household, account, line, wanted.at(line.item).distributed(),
                          proposed.proposal.budgetItemChanges().at(line.item).empty());
                    rest -= *line.counted;
                    cut += !line.isByAccount && !line.parts->adjusted.isZero();
                }
                QCOMPARE(account.free(), rest);
            }
        }
    }
    static void check(GoingOn &household, const SetAside &account, const SetAsideLine &line,
                      const numira::Money &proposed, bool isQuiet)
    {
        const numira::Money now = line.parts->now();
        if (line.isByAccount) {
            QCOMPARE(now, proposed);
            return;
        }
        QVERIFY(!now.isNegative());
        if (isQuiet && line.postings.empty())
            QCOMPARE(now, proposed.rounded());
        const numira::Money payment(now.code(), 30, 0);
        const numira::Money left = now < payment ? numira::Money(now.code()) : now - payment;
        for (const SetAside &later : household.shown(household.paid(account, line, payment))) {
            const auto same = std::ranges::find(later.lines, line.item, &SetAsideLine::item);
            if (later.account == account.account)
                QVERIFY(same->parts->now() <= left);
        }
    }
};

static const kiv::test::Suite<SetAsideTest> setAsideSuite;
#include "tst_set_aside.moc"
