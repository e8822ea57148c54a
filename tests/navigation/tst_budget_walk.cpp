// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include <QtTest/QTest>

#include "storage/budget_file.h"

#include "support/navigation.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>

#include <rapidcheck.h>

using namespace kiv;
using namespace kiv::test;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;

namespace {

/// What a walk does next: the kind of request, and what it is about.
using Step = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t>;

/// What the books must hold, told as plainly as it can be.
struct Model {
    struct Posting {
        AccountNumber debit;
        AccountNumber credit;
        numira::Money amount;
        friend bool operator==(const Posting &, const Posting &) = default;
    };
    std::set<BudgetItemIdentifier> items;
    std::set<BankName> banks;
    std::map<TransactionNumber, Posting> postings;
};

const QDate posted = day("2026-01-15");

class Walk {
public:
    explicit Walk(const QString &file) : m_file(file)
    {
        for (const char *name : {"Checking", "Food"})
            m_books.add(
                accounting::Account(name[0] == 'C' ? AccountTypes::Asset : AccountTypes::Expense,
                                    code(name[0] == 'C' ? 1000 : 2000, name), usd("0"), false));
    }

    /// Makes the request, and holds the books against the model. What is
    /// refused must leave everything as it was.
    void take(const Step &step)
    {
        const State before = stateOf(m_books);
        const Model modelBefore = m_model;
        try {
            request(step);
        } catch (const foundation::Error &) {
            m_model = modelBefore;
            RC_ASSERT(stateOf(m_books) == before);
        }
        check();
    }

    void saveAndLoad()
    {
        storage::BudgetFile out(0);
        out.setFilePathName(m_file);
        out.store({m_books.generalLedger(),
                   m_books.budget(),
                   m_books.budgetLedgers().budgetAccountCodes(),
                   m_books.banks(),
                   m_books.surveys(),
                   {}});
        auto data = out.load();
        BudgetBankLedgers loaded;
        loaded.setManaged(std::move(data.generalLedger), std::move(data.budget),
                          std::move(data.budgetAccountCodes), std::move(data.banks),
                          std::move(data.surveys));
        RC_ASSERT(loaded == m_books);
        RC_ASSERT(loaded.surveys() == m_books.surveys());
    }

private:
    void request(const Step &step)
    {
        const auto [kind, a, b, c] = step;
        const numira::Money amount(numira::toCurrency("USD"), c % 50, 25);
        const BudgetItemTypes type{static_cast<std::uint8_t>(a % 5 + 1)};
        const auto forItem = [&](auto &&visitor) {
            budgeting::visitItemClass(type, "no kind", visitor);
        };
        switch (kind % 15) {
        case 0:
        case 1:
            return forItem([&]<typename T>(std::type_identity<T>) { addItem<T>(b, c); });
        case 2:
            return forItem([&]<typename T>(std::type_identity<T>) {
                m_books.rename<T>(name(b), name(c));
                m_model.items.erase({type, name(b)});
                m_model.items.insert({type, name(c)});
            });
        case 3:
            return forItem([&]<typename T>(std::type_identity<T>) { updateItem<T>(b, amount); });
        case 4:
            m_books.remove(BudgetItemIdentifier{type, name(b)});
            m_model.items.erase({type, name(b)});
            return forgetOpenings();
        case 5:
            return changeBanks(a, b, c);
        case 6: {
            const AccountCode added = m_books.addAccount(
                name(b).name() + u'!', c % 2 ? BankAccountTypes::Savings : BankAccountTypes::Loan,
                c % 3 ? usd("0") : amount);
            noteOpening(added.number());
            if (!m_model.banks.empty())
                m_books.addAssociation(*m_model.banks.begin(), added.number(),
                                       c % 2 ? BankAccountTypes::Savings : BankAccountTypes::Loan);
            return;
        }
        case 7:
        case 8: {
            const auto posting = Model::Posting{account(a), account(b), amount};
            const TransactionNumber number = m_books.post(transaction(posting));
            m_model.postings.emplace(number, posting);
            return;
        }
        case 9:
            return changeTransaction(a, b, c);
        case 10:
            return process(type, b, amount);
        case 11:
            return survey(a);
        case 12: {
            const AccountCode from = m_books.generalLedger().accountCode(account(a));
            // An item's own account goes its own way; see the list of exceptions.
            if (!m_books.budgetLedgers().lookUpBudgetId(from.number())) {
                const AccountNumber to = c % 2 ? from.number() : no(3000U + c);
                m_books.recode(from, AccountCode(to, name(b).name() + u'?', from.parent()));
                renumber(from.number(), to);
            }
            return;
        }
        case 13:
            m_books.remove(m_books.generalLedger().accountCode(freeAccount(a)));
            return forgetOpenings();
        case 14:
            return a % 2 ? m_books.close(m_books.generalLedger().accountCode(freeAccount(b)))
                         : m_books.open(m_books.generalLedger().accountCode(freeAccount(b)));
        }
    }

    // ---- what requests are about -----------------------------------------------

    static budgeting::BudgetSource name(std::uint8_t seed)
    {
        return source(std::array{"Rent", "Trip", "Car", "%1 %2", "Food"}[seed % 5]);
    }
    [[nodiscard]] AccountNumber account(std::uint8_t seed) const
    {
        const auto codes = m_books.generalLedger().accountCodes();
        if (codes.empty())
            return no(1);
        return std::next(codes.begin(), static_cast<std::ptrdiff_t>(seed % codes.size()))->number();
    }
    /// One that belongs to no item and to no bank, or none. The account for
    /// openings stays open too: an item that is refused because of it stays in
    /// the budget on purpose.
    [[nodiscard]] AccountNumber freeAccount(std::uint8_t seed) const
    {
        const AccountNumber number = account(seed);
        const bool isTaken = !m_books.generalLedger().hasLedger(number) ||
                             m_books.budgetLedgers().lookUpBudgetId(number) ||
                             m_books.isBankAccount(number) ||
                             m_books.generalLedger().ledger(number).holdsOpenings() ||
                             number == no(1000) || number == no(2000);
        if (isTaken)
            throw accounting::AccountError(AccountCode(number, std::nullopt), u"taken"_qs);
        return number;
    }
    static accounting::Transaction transaction(const Model::Posting &posting)
    {
        return {posted, posting.debit, posting.credit, posting.amount};
    }
    [[nodiscard]] TransactionNumber transactionNumber(std::uint8_t seed) const
    {
        if (m_model.postings.empty())
            return txn(1);
        return std::next(m_model.postings.begin(),
                         static_cast<std::ptrdiff_t>(seed % m_model.postings.size()))
            ->first;
    }

    // ---- requests --------------------------------------------------------------

    template <typename T>
    void addItem(std::uint8_t b, std::uint8_t c)
    {
        const BudgetItemTypes type = budgeting::ItemTraits<T>::type;
        T added(item<T>(qPrintable(name(b).name())));
        AccountCode own;
        if constexpr (budgeting::BankTiedItem<T>) {
            std::optional<BankAccount> tie;
            if (c % 2)
                tie = at("First", std::same_as<T, budgeting::Goal> ? 1000 : 0,
                         BankAccountTypes::Loan);
            own = m_books.add<T>(std::move(added), tie);
        } else {
            own = m_books.add<T>(std::move(added));
        }
        m_model.items.insert({type, name(b)});
        noteOpening(own.number());
    }

    template <typename T>
    void updateItem(std::uint8_t b, const numira::Money &amount)
    {
        T changed(item<T>(qPrintable(name(b).name()), amount));
        if constexpr (budgeting::BankTiedItem<T>)
            m_books.update<T>(std::move(changed), std::nullopt);
        else
            m_books.update<T>(std::move(changed));
        RC_ASSERT(m_books.budget().items<T>().at(name(b)).amount() == amount);
    }

    void changeBanks(std::uint8_t a, std::uint8_t b, std::uint8_t c)
    {
        const auto bankOf = [](std::uint8_t seed) { return bank(seed % 2 ? "First" : "Second"); };
        switch (a % 5) {
        case 0:
        case 1: {
            // An account in two banks stays behind in one of them when it is
            // renumbered; loading mends that, and it is tested there.
            banking::Bank::Accounts accounts;
            if (c % 2 && !m_books.isBankAccount(no(1000)))
                accounts.emplace(no(1000), BankAccountTypes::Checking);
            m_books.add(banking::Bank(bankOf(b), std::move(accounts), false));
            m_model.banks.insert(bankOf(b));
            return;
        }
        case 2:
            m_books.rename(bankOf(b), bankOf(c));
            m_model.banks.erase(bankOf(b));
            m_model.banks.insert(bankOf(c));
            return;
        case 3:
            m_books.close(bankOf(b));
            m_books.open(bankOf(b));
            return;
        case 4:
            // A bank may take the account of a debt with it; loading mends that,
            // and it is tested there.
            if (m_books.banks().hasBank(bankOf(b))) {
                for (const auto &[number, type] : m_books.banks().bank(bankOf(b)).accounts()) {
                    if (m_books.budgetLedgers().lookUpBudgetId(number))
                        return;
                }
            }
            m_books.remove(bankOf(b));
            m_model.banks.erase(bankOf(b));
            return forgetOpenings();
        }
    }

    void changeTransaction(std::uint8_t a, std::uint8_t b, std::uint8_t c)
    {
        const TransactionNumber number = transactionNumber(b);
        switch (a % 6) {
        case 0: {
            const Model::Posting posting{account(b), account(c), usd("7")};
            m_books.repost(number, transaction(posting));
            m_model.postings.at(number) = posting;
            return;
        }
        case 1:
            m_books.remove(number);
            m_model.postings.erase(number);
            return;
        case 2: {
            const TransactionNumber refund = m_books.postRefund(number, usd("0.25"));
            const Model::Posting &original = m_model.postings.at(number);
            m_model.postings.insert({refund, {original.credit, original.debit, usd("0.25")}});
            return;
        }
        case 3:
            return m_books.reconcile(number);
        case 4:
            return m_books.unreconcile(number);
        case 5:
            return m_books.clear(number, std::nullopt);
        }
    }

    void process(BudgetItemTypes type, std::uint8_t b, const numira::Money &amount)
    {
        const BudgetItemIdentifier id{type, name(b)};
        const AccountCode from = code(1000, "Checking");
        const TransactionNumber number = m_books.process(id, amount, from, posted);
        const AccountNumber own = m_books.lookUpAccountCode(id)->number();
        const bool isWage = type == BudgetItemTypes::Wage;
        m_model.postings.insert(
            {number, {isWage ? no(1000) : own, isWage ? own : no(1000), amount}});
        m_books.skip(id);
    }

    /// Proposes a survey and completes it as proposed, when Checking has a bank.
    void survey(std::uint8_t a)
    {
        const auto at = m_books.lookUpBankAccount(no(1000));
        if (!at)
            return;
        const BudgetBankLedgers before(m_books);
        const auto proposed = m_books.createMapSurvey(at->bank, no(1000), foundation::today());
        RC_ASSERT(before == m_books);
        std::set<TransactionNumber> ticked;
        const auto checking = m_books.generalLedger().ledger(no(1000)).transactions();
        for (const accounting::Transaction &one : checking) {
            if (one.status() != accounting::TransactionStatuses::Reconciled)
                ticked.insert(*one.number());
        }
        const bool isOff = a % 4 == 0;
        const numira::Money balance =
            isOff ? proposed.expectedBalance() + usd("1000") : proposed.expectedBalance();
        m_books.completedSurvey(foundation::today(), *at, balance, ticked, {}, {},
                                proposed.distributions(), usd("0"),
                                foundation::Percentage(2.75, 6));
        RC_ASSERT(m_books.lastReconciliation(no(1000)).amount == balance);
    }

    // ---- the model -------------------------------------------------------------

    void noteOpening(AccountNumber number)
    {
        if (const auto opening = m_books.generalLedger().openingTransaction(number))
            m_model.postings.insert(
                {*opening->number(),
                 {opening->debiting().number(), opening->crediting().number(), opening->amount()}});
    }
    /// An account that went took its own opening transaction along.
    void forgetOpenings()
    {
        std::erase_if(m_model.postings, [this](const auto &posting) {
            return !m_books.generalLedger().hasLedger(posting.second.debit) ||
                   !m_books.generalLedger().hasLedger(posting.second.credit);
        });
    }
    void renumber(AccountNumber from, AccountNumber to)
    {
        for (auto &[number, posting] : m_model.postings) {
            for (AccountNumber *side : {&posting.debit, &posting.credit})
                *side = *side == from ? to : *side;
        }
    }

    void check() const
    {
        const accounting::GeneralLedger &ledger = m_books.generalLedger();
        std::set<BudgetItemIdentifier> items;
        m_books.budget().forEach([&](const budgeting::BudgetedMoney &one) {
            const BudgetItemIdentifier id{toBudgetItemTypes(one), one.source()};
            items.insert(id);
            const auto own = m_books.lookUpAccountCode(id);
            RC_ASSERT(own.has_value());
            RC_ASSERT(m_books.budgetLedgers().lookUpBudgetId(own->number()) == id);
        });
        RC_ASSERT(items == m_model.items);
        RC_ASSERT(m_books.bankNames() == m_model.banks);
        for (const auto &[bankName, one] : m_books.banks()) {
            for (const auto &[number, type] : one.accounts())
                RC_ASSERT(ledger.hasLedger(number));
        }
        std::map<TransactionNumber, Model::Posting> postings;
        std::map<AccountNumber, numira::Money> debits;
        for (const accounting::Transaction &one : ledger.transactions()) {
            const Model::Posting posting{one.debiting().number(), one.crediting().number(),
                                         one.amount()};
            postings.emplace(*one.number(), posting);
            debits[posting.debit] += posting.amount;
            debits[posting.credit] -= posting.amount;
        }
        RC_ASSERT(postings == m_model.postings);
        numira::Money sum(numira::toCurrency("USD"));
        for (const accounting::Account &one : ledger.accounts()) {
            const numira::Money debit = debits[one.code().number()];
            RC_ASSERT(one.balance().amount() ==
                      (accounting::isDebitNormal(one.type()) ? debit : -debit).amount());
            sum += debit;
            for (const BudgetItemIdentifier &id : items)
                RC_ASSERT(one.code().name() != id.source.name());
        }
        RC_ASSERT(sum.isZero());
    }

    BudgetBankLedgers m_books;
    Model m_model;
    QString m_file;
};

} // namespace

/// Random requests to the whole state, against a plain model of it.
class BudgetWalk : public QObject {
    Q_OBJECT

private slots:
    void everyStepKeepsTheBooksTrue()
    {
        QLoggingCategory::setFilterRules(
            QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
        installRates();
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("walk.budget"));
        unsigned walks = 0;
        QVERIFY(rc::check("every step keeps the books true", [&](const std::vector<Step> &steps) {
            Walk walk(file);
            for (const Step &step : steps)
                walk.take(step);
            if (++walks % 8 == 0)
                walk.saveAndLoad();
        }));
    }
};

static const kiv::test::Suite<BudgetWalk> suite;
#include "tst_budget_walk.moc"
