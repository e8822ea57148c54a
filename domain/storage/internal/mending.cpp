// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/mending.h"

#include "accounting/account_number_generator.h"
#include "accounting/number_handout.h"
#include "budgeting/item_account.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::storage::internal {
namespace {

using accounting::AccountCode;
using accounting::AccountNumber;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetSource;
using budgeting::ItemTraits;

class Mending {
public:
    Mending(BudgetStorage::Data &data, QStringList &mended) : m_data(data), m_mended(mended) {}

    void run()
    {
        budgeting::forEachItemClass(
            [this]<typename Item>(std::type_identity<Item>) { nameUnnamed<Item>(); });
        // References to missing accounts are removed first: a new account may get
        // the number of one.
        dropBankAccounts();
        carrySurveys();
        budgeting::forEachItemClass(
            [this]<typename Item>(std::type_identity<Item>) { dropMissingTies<Item>(); });
        budgeting::forEachItemClass(
            [this]<typename Item>(std::type_identity<Item>) { tieItems<Item>(); });
    }

private:
    template <typename Item>
    void nameUnnamed()
    {
        const BudgetSource unnamed;
        auto &items = m_data.budget.items<Item>();
        if (!items.contains(unnamed))
            return;
        const BudgetSource name = freeName(QString::fromLatin1(ItemTraits<Item>::word));
        const BudgetItemIdentifier id{ItemTraits<Item>::type, unnamed};
        items.rename(unnamed, name);
        if (m_data.budgetAccountCodes.has<Item>(unnamed)) {
            const AccountNumber number = m_data.budgetAccountCodes.value<Item>(unnamed);
            m_data.budgetAccountCodes.remove<Item>(unnamed);
            m_data.budgetAccountCodes.insertOrAssign<Item>(name, number);
            renameAccount(number, unnamed, name);
        }
        m_data.itemTags.rename(id, name);
        renameInSurveys(id, name);
        m_mended << QObject::tr("A budget item without a name was named '%1'.").arg(name.name());
    }

    /// "Unnamed bill", or that with a number behind it.
    BudgetSource freeName(const QString &word) const
    {
        const std::set<AccountCode> codes = m_data.generalLedger.accountCodes();
        const auto isTaken = [&](const QString &name) {
            const QString accountName = budgeting::itemAccountName(BudgetSource(name));
            bool isItem = false;
            m_data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
                isItem =
                    isItem || item.source().name() == name || item.source().name() == accountName;
            });
            return isItem || std::ranges::any_of(codes, [&](const AccountCode &code) {
                       return code.name() == name || code.name() == accountName;
                   });
        };
        const QString first = QStringLiteral("Unnamed %1").arg(word);
        QString name = first;
        for (int number = 2; isTaken(name); ++number)
            name = QStringLiteral("%1 %2").arg(first, QString::number(number));
        return BudgetSource(name);
    }

    /// Gives an account that has its item's old name the new one.
    void renameAccount(AccountNumber number, const BudgetSource &from, const BudgetSource &to)
    {
        if (!m_data.generalLedger.hasLedger(number))
            return;
        const AccountCode code = m_data.generalLedger.accountCode(number);
        if (code.name() == budgeting::itemAccountName(from))
            m_data.generalLedger.recode(
                code, AccountCode(number, budgeting::itemAccountName(to), code.parent()));
    }

    void renameInSurveys(const BudgetItemIdentifier &id, const BudgetSource &to)
    {
        surveying::CompletedSurveys renamed;
        for (const auto &[account, survey] : m_data.surveys) {
            surveying::CompletedSurvey copy = survey;
            copy.renamed(id, to);
            renamed.upsert(std::move(copy));
        }
        m_data.surveys = std::move(renamed);
    }

    template <typename Item>
    void dropMissingTies()
    {
        const auto ofClass = m_data.budgetAccountCodes.maps().find(typeid(Item));
        if (ofClass == m_data.budgetAccountCodes.maps().end())
            return;
        const std::map<BudgetSource, AccountNumber> ties = ofClass->second;
        for (const auto &[source, number] : ties) {
            const bool hasItem = m_data.budget.items<Item>().contains(source);
            if (hasItem && m_data.generalLedger.hasLedger(number)) {
                m_claimed.insert(number);
                continue;
            }
            m_data.budgetAccountCodes.remove<Item>(source);
            if (!hasItem)
                m_mended << QObject::tr("The account %1 belonged to the budget item '%2', "
                                        "which is gone.")
                                .arg(presentationText(number), source.name());
        }
    }

    template <typename Item>
    void tieItems()
    {
        auto &tied = m_data.budgetAccountCodes;
        for (const auto &[source, item] : m_data.budget.items<Item>()) {
            if (tied.has<Item>(source))
                continue;
            const std::optional<AccountNumber> found =
                findAccount(budgeting::itemAccountName(source), ItemTraits<Item>::accountType);
            const AccountNumber number =
                found ? *found : openAccount(item, ItemTraits<Item>::accountType);
            m_claimed.insert(number);
            tied.insertOrAssign<Item>(source, number);
            m_mended << (found ? QObject::tr("The budget item '%1' had lost its account, which "
                                             "was found under the number %2.")
                               : QObject::tr("The budget item '%1' had lost its account, which "
                                             "was opened anew under the number %2."))
                            .arg(source.name(), presentationText(number));
        }
    }

    /// The account of that name and type that no item has; an open one if there
    /// are several.
    std::optional<AccountNumber> findAccount(const QString &name,
                                             accounting::AccountTypes type) const
    {
        std::optional<AccountNumber> closed;
        for (const AccountCode &code : m_data.generalLedger.accountCodes()) {
            if (code.name() != name || m_claimed.contains(code.number()))
                continue;
            const accounting::LedgerAccount account = m_data.generalLedger.ledger(code);
            if (account.type() == type && !account.isClosed())
                return code.number();
            if (account.type() == type && !closed)
                closed = code.number();
        }
        return closed;
    }

    AccountNumber openAccount(const budgeting::BudgetedMoney &item, accounting::AccountTypes type)
    {
        accounting::GeneralLedger &ledger = m_data.generalLedger;
        accounting::SequentialAccountNumberGenerator generator;
        generator =
            accounting::SequentialAccountNumberGenerator(generator.seedFrom(ledger.accounts()));
        accounting::NumberHandout handout(generator, ledger);
        const auto add = [&](const numira::Money &opening) {
            ledger.add(accounting::Account(type,
                                           AccountCode(handout.number(),
                                                       budgeting::itemAccountName(item.source()),
                                                       std::nullopt),
                                           opening, false),
                       generator);
        };
        const numira::Money opening = budgeting::openingMoney(item);
        try {
            add(opening);
        } catch (const foundation::Error &) {
            // A full ledger, for instance, takes no opening transaction. Then the
            // account is opened without one.
            add(numira::Money(opening.code()));
        }
        handout.keep();
        return handout.number();
    }

    void dropBankAccounts()
    {
        const banking::BankMap banks = m_data.banks;
        for (const auto &[name, bank] : banks) {
            for (const auto &[number, kind] : bank.accounts()) {
                const bool isThere = m_data.generalLedger.hasLedger(number);
                if (isThere && canBeAtBank(m_data.generalLedger.ledger(number).type()))
                    continue;
                m_data.banks.remove(name, number);
                m_mended << (isThere ? QObject::tr("The bank '%1' had the account %2, which is "
                                                   "neither an asset nor a liability.")
                                     : QObject::tr("The bank '%1' had the account %2, which is "
                                                   "gone."))
                                .arg(name.institution(), presentationText(number));
            }
        }
    }

    static bool canBeAtBank(accounting::AccountTypes type)
    {
        return type == accounting::AccountTypes::Asset ||
               type == accounting::AccountTypes::Liability;
    }

    /// A proposal finds the last survey by bank and number; completing it also uses
    /// the kind. So an account has one survey, under its present kind.
    void carrySurveys()
    {
        surveying::CompletedSurveys carried;
        for (const auto &[account, survey] : m_data.surveys) {
            const banking::BankAccount present = asKept(account);
            const auto other = carried.lookUpSurvey(present);
            const auto day = [](const auto &one) { return one.reconciled().reconciledOn(); };
            if (present == account && (!other || day(survey) >= day(*other)))
                carried.upsert(survey);
            if (present == account)
                continue;
            if (!other || day(survey) > day(*other))
                carried.upsert(movedTo(present, survey));
            m_mended << QObject::tr("The last survey of the account %1 at the bank '%2' is from "
                                    "when the account had another type; it now counts for the "
                                    "present type, unless there is a later one.")
                            .arg(presentationText(account.account.number),
                                 account.bank.institution());
        }
        m_data.surveys = std::move(carried);
    }

    static surveying::CompletedSurvey movedTo(banking::BankAccount account,
                                              const surveying::CompletedSurvey &survey)
    {
        const numira::Money &balance = survey.reconciled().balance();
        surveying::CompletedSurvey moved(std::move(account), balance.code());
        if (const auto &day = survey.reconciled().reconciledOn())
            moved.completed(*day, balance, survey.distribution(), survey.nonDistributed(),
                            survey.window());
        return moved;
    }

    /// The same account with the kind that its bank has for it, if it has it.
    banking::BankAccount asKept(banking::BankAccount account) const
    {
        if (m_data.banks.hasBank(account.bank)) {
            const banking::Bank::Accounts &kept = m_data.banks.bank(account.bank).accounts();
            const auto found = kept.find(account.account.number);
            if (found != kept.end())
                account.account.type = found->second;
        }
        return account;
    }

    BudgetStorage::Data &m_data;
    QStringList &m_mended;
    std::set<AccountNumber> m_claimed;
};

} // namespace

void mend(BudgetStorage::Data &data, QStringList &mended)
{
    Mending(data, mended).run();
}

} // namespace kiv::storage::internal
