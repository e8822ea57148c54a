// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/demonstration.h"

#include "workbench/internal/chance.h"
#include "workbench/internal/faults.h"
#include "workbench/internal/made_up_household.h"
#include "workbench/requests/due_items.h"
#include "workbench/requests/entry_forms.h"
#include "workbench/requests/exchanges.h"
#include "workbench/requests/item_changes.h"
#include "workbench/surveys/survey_sheet.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"
#include "surveying/reconciliation_derivation.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using internal::hundredths;
using navigation::Navigator;

namespace {

/// What is due on the last days stays so.
constexpr int openDays = 3;
/// The last statements are so many days older than the last day.
constexpr int statementDays = 20;
/// What is older than so many days is cleared.
constexpr int clearedDays = 8;

class Year {
public:
    Year(Document &document, const internal::DemonstrationFrame &frame)
        : m_document(document),
          m_requests(document.requests()),
          m_frame(frame),
          m_household(internal::openHousehold(m_requests, frame)),
          m_accounts(m_household.accounts),
          m_budget(BudgetView(m_requests).budget())
    {
    }

    void live()
    {
        for (m_day = m_frame.start; m_day <= m_frame.end; m_day = m_day.addDays(1)) {
            payWhatIsDue();
            shop();
            moveMoney();
            travel();
            compareStatements();
        }
        markCleared();
    }

private:
    /// The days since the first.
    [[nodiscard]] int place() const { return static_cast<int>(m_frame.start.daysTo(m_day)); }
    /// Once in so many days.
    [[nodiscard]] bool isTurn(int every, int offset) const { return place() % every == offset; }
    [[nodiscard]] numira::Money balance(AccountNumber number)
    {
        return m_requests.accounts().find(number)->balance();
    }
    [[nodiscard]] accounting::AccountCode code(AccountNumber number)
    {
        return m_requests.accounts().find(number)->code();
    }
    TransactionNumber spend(AccountNumber from, AccountNumber on, int amount, const QString &payee,
                            const QString &reason = {})
    {
        return enter(m_requests,
                     {EntryForm::Spent, hundredths(amount), from, on, payee, reason, m_day});
    }
    void move(AccountNumber from, AccountNumber to, const Amount &amount, const QString &reason)
    {
        enter(m_requests, {EntryForm::Moved, amount, from, to, {}, reason, m_day});
    }

    void payWhatIsDue()
    {
        if (m_day > m_frame.end.addDays(-openDays))
            return;
        for (internal::RegularItem &item : m_household.items) {
            if (item.occurring.nextOccurOn() == m_day)
                pay(item);
        }
    }
    void pay(internal::RegularItem &item)
    {
        numira::Money amount = item.occurring.amount();
        if (item.varies != 0)
            amount += hundredths(m_chance.between(0, item.varies)).in(amount.code());
        (void)payDue(m_requests, m_budget, {{item.id.type, item.id.source, m_day}, amount},
                     code(item.account), m_day);
        item.occurring.updateNextOccurOn();
        if (item.target && balance(m_requests.accountOf(item.id).value()) >= *item.target)
            finish(item);
    }
    /// A goal that is reached is saved for no more.
    void finish(internal::RegularItem &item)
    {
        ItemValues values;
        values.every = budgeting::EventFrequency::None;
        const BudgetView view(m_requests);
        const auto &goal =
            dynamic_cast<const budgeting::Goal &>(view.find(item.id.source.name(), item.id.type));
        updateItem(m_requests, navigation::GuiElementIdentifier(1), view, goal, values);
        item.occurring = {};
    }

    void shop()
    {
        const AccountNumber payer = isTurn(3, 0) ? m_accounts.card : m_accounts.checking;
        if (isTurn(24, 10))
            shopForTwoThings(payer);
        else if (isTurn(4, 2))
            spend(payer, m_accounts.groceries, m_chance.between(2640, 6890), market(),
                  QObject::tr("Weekly shopping"));
        if (isTurn(6, 1))
            spend(m_accounts.cash, m_accounts.groceries, m_chance.between(240, 780),
                  QObject::tr("Bakery"));
        if (isTurn(9, 4))
            spend(m_accounts.card, m_accounts.eatingOut, m_chance.between(1450, 4600),
                  QObject::tr("Noodle house"));
        if (isTurn(41, 20))
            spend(m_accounts.checking, m_accounts.pharmacy, m_chance.between(620, 2390),
                  QObject::tr("Castle pharmacy"));
        if (isTurn(120, 80))
            m_bought = spend(m_accounts.card, m_accounts.furniture, m_chance.between(4900, 12900),
                             QObject::tr("Furniture store"), QObject::tr("Lamp"));
        if (isTurn(120, 88))
            (void)refund(m_requests, m_bought, hundredths(m_chance.between(1500, 4500)), m_day);
    }
    [[nodiscard]] QString market()
    {
        return m_chance.between(0, 2) == 0 ? QObject::tr("Village shop")
                                           : QObject::tr("Corner market");
    }
    void shopForTwoThings(AccountNumber payer)
    {
        SplitEntry entry;
        entry.own = payer;
        entry.lines = {{m_accounts.groceries, hundredths(m_chance.between(2100, 5200))},
                       {m_accounts.furniture, hundredths(m_chance.between(900, 2800))}};
        entry.payee = market();
        entry.day = m_day;
        (void)enterSplit(m_requests, entry);
    }

    void moveMoney()
    {
        if (isTurn(30, 5))
            move(m_accounts.checking, m_accounts.savings, hundredths(65000), QObject::tr("Saving"));
        if (isTurn(20, 0))
            move(m_accounts.checking, m_accounts.cash, hundredths(8000),
                 QObject::tr("Cash machine"));
        if (isTurn(30, 11))
            moveAll(m_accounts.checking, m_accounts.card, balance(m_accounts.card),
                    QObject::tr("Card bill"));
        if (isTurn(91, 60))
            enter(m_requests,
                  {EntryForm::Earned, hundredths(m_chance.between(890, 1240)), m_accounts.savings,
                   m_accounts.interest, m_household.townBank, QObject::tr("Interest"), m_day});
        if (place() == 45) {
            moveAll(m_accounts.formerSavings, m_accounts.savings, balance(m_accounts.formerSavings),
                    QObject::tr("Account given up"));
            m_requests.change(accountOutcome, &Navigator::onClosed, code(m_accounts.formerSavings));
        }
    }
    void moveAll(AccountNumber from, AccountNumber to, const numira::Money &amount,
                 const QString &reason)
    {
        if (!amount.isPositive())
            return;
        Amount typed;
        readPlain(QString::fromStdString(numira::toText(amount)), typed);
        move(from, to, typed, reason);
    }

    void travel()
    {
        if (place() == 140 || place() == 170)
            change(m_chance.between(180, 260) * 100);
        if (place() >= 150 && place() < 180 && isTurn(4, 1))
            spend(m_accounts.foreign, m_accounts.abroad, m_chance.between(1900, 4800),
                  QObject::tr("Harbour hotel"), QObject::tr("Holiday"));
    }
    /// What the bank gives for an amount, about nine tenths.
    void change(int given)
    {
        const int received = given * m_chance.between(905, 925) / 1000;
        (void)exchange(m_requests,
                       {typed(m_accounts.checking), typed(m_accounts.foreign), hundredths(given),
                        hundredths(received), QObject::tr("Travel money"), m_day});
    }
    [[nodiscard]] static QString typed(AccountNumber number)
    {
        return accounting::presentationText(number);
    }

    void compareStatements()
    {
        const QDate last = m_frame.end.addDays(-statementDays);
        for (int months = 0; months < 12; ++months) {
            if (m_day != last.addMonths(-months))
                continue;
            for (const AccountNumber account :
                 {m_accounts.checking, m_accounts.card, m_accounts.savings})
                compare(m_household.townBank, account);
        }
        if (m_day == last)
            compare(m_household.lakeBank, m_accounts.carLoan);
    }
    void compare(const QString &bank, AccountNumber account)
    {
        const SheetBooks books{m_document.present(), m_reconciliations, {}};
        SurveySheet sheet = SurveySheet::begin(m_requests, books, bank, typed(account), m_day);
        sheet.form.reconciled = sheet.readTicks(QStringLiteral("all"));
        sheet.finished(false).complete(m_requests);
        // The next sheet knows by them what this one counted.
        const storage::BudgetStorage::Data after = m_document.present();
        m_reconciliations = surveying::reconciliationsAfter(
            std::move(m_reconciliations), {books.data.surveys, books.data.generalLedger},
            {after.surveys, after.generalLedger});
    }

    void markCleared()
    {
        const AccountIndex index = m_requests.accounts();
        const QDate last = m_frame.end.addDays(-clearedDays);
        std::set<TransactionNumber> cleared;
        for (const AccountNumber account : {m_accounts.checking, m_accounts.card}) {
            for (const accounting::Transaction &transaction : index.find(account)->transactions()) {
                if (transaction.occurredOn() <= last &&
                    transaction.status() == accounting::TransactionStatuses::None)
                    cleared.insert(transaction.number().value());
            }
        }
        mark(m_requests, {cleared.begin(), cleared.end()}, Marking::Clear);
    }

    Document &m_document;
    Requests &m_requests;
    const internal::DemonstrationFrame &m_frame;
    internal::Household m_household;
    const internal::HouseholdAccounts &m_accounts;
    budgeting::Budget m_budget;
    internal::Chance m_chance;
    QDate m_day;
    TransactionNumber m_bought;
    surveying::Reconciliations m_reconciliations;
};

} // namespace

void makeDemonstration(Document &document, QDate end)
{
    Requests &requests = document.requests();
    if (end > foundation::today())
        throw internal::demonstrationInFuture(foundation::presentationText(end));
    const numira::Currency dollar = numira::toCurrency("USD");
    const numira::Currency euro = numira::toCurrency("EUR");
    const numira::Currency preferred = requests.preferredCurrency();
    const numira::Currency main = numira::minorUnitDigits(preferred) == 2 ? preferred : dollar;
    requests.within([&] { requests.navigator().onConfirmedNewBudgetEmpty(); });
    const internal::DemonstrationFrame frame{end.addYears(-1), end, main,
                                             main == euro ? dollar : euro};
    Year(document, frame).live();
}

} // namespace kiv::workbench
