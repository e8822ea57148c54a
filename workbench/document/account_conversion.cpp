// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/account_conversion.h"

#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"

#include "accounting/ledger_replay.h"

namespace kiv::workbench {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::GeneralLedger;
using accounting::LedgerAccount;
using accounting::LedgerReplay;
using banking::BankAccountTypes;
using storage::BudgetStorage;
using surveying::CompletedSurvey;

namespace {

bool canBeKept(AccountTypes type)
{
    return type == AccountTypes::Asset || type == AccountTypes::Liability;
}

/// The kind that a bank has such an account as: the wanted one, if it fits.
BankAccountTypes kindFor(const Conversion &said)
{
    const bool isAsset = said.type == AccountTypes::Asset;
    const BankAccountTypes usual =
        isAsset ? BankAccountTypes::Checking : BankAccountTypes::CreditCard;
    const BankAccountTypes kind = said.kind.value_or(usual);
    if (banking::isAssetAccount(kind) != isAsset)
        throw internal::kindDoesNotFit(banking::presentationText(kind),
                                       accounting::presentationText(said.type));
    return kind;
}

/// Converts accounts of a budget.
class Converting {
public:
    Converting(BudgetStorage::Data data, const Conversion &said)
        : m_data(std::move(data)), m_said(said)
    {
        addFamily(said.account);
        refuse();
    }

    Converted run()
    {
        const GeneralLedger before = m_data.generalLedger;
        m_done.isTopLevel = before.accountCode(m_said.account).parent().has_value();
        m_data.generalLedger = replayed(before);
        m_done.balance = m_data.generalLedger.ledger(m_said.account).balance();
        followAtBanks();
        followSurveys();
        return m_done;
    }
    [[nodiscard]] BudgetStorage::Data data() && { return std::move(m_data); }

private:
    void addFamily(AccountNumber number)
    {
        m_family.insert(number);
        for (const AccountNumber child :
             m_data.generalLedger.lookUpChildren(number, accounting::OpenStates::Either))
            addFamily(child);
    }
    void refuse() const;
    [[nodiscard]] GeneralLedger replayed(const GeneralLedger &before) const;
    void addAccount(LedgerReplay &replay, const GeneralLedger &before, AccountNumber number,
                    std::set<AccountNumber> &added) const;
    void followAtBanks();
    void followSurveys();

    BudgetStorage::Data m_data;
    Conversion m_said;
    std::set<AccountNumber> m_family; ///< the account and all below it
    Converted m_done;
};

void Converting::refuse() const
{
    for (const AccountNumber number : m_family) {
        const LedgerAccount account = m_data.generalLedger.ledger(number);
        const QString name = plainNameOf(account);
        if (number == m_said.account && account.type() == m_said.type)
            throw internal::isOfThatType(name, accounting::presentationText(m_said.type));
        if (isItemAccount(account))
            throw number == m_said.account ? internal::typeOfItem(name) : internal::itemBelow(name);
        if (account.holdsOpenings())
            throw internal::typeOfOpenings(name);
    }
}

void Converting::addAccount(LedgerReplay &replay, const GeneralLedger &before, AccountNumber number,
                            std::set<AccountNumber> &added) const
{
    if (!added.insert(number).second)
        return;
    const LedgerAccount account = before.ledger(number);
    std::optional<AccountNumber> parent = account.code().parent();
    if (number == m_said.account)
        parent.reset(); // it is of the former type
    if (parent)
        addAccount(replay, before, *parent, added);
    replay.addAccount(m_family.contains(number) ? m_said.type : account.type(),
                      AccountCode(number, account.code().name(), parent), account.balance().code(),
                      account.holdsOpenings());
}

GeneralLedger Converting::replayed(const GeneralLedger &before) const
{
    LedgerReplay replay;
    std::set<AccountNumber> added;
    for (const AccountCode &code : before.accountCodes())
        addAccount(replay, before, code.number(), added);
    accounting::StoredTransactions transactions(before);
    while (const auto transaction = transactions.next())
        replay.post(*transaction);
    replay.markRefunds();
    for (const AccountNumber number : added) {
        if (const auto opening = before.ledger(number).openedBy())
            replay.markOpening(number, *opening);
    }
    for (const AccountNumber number : added) {
        if (before.ledger(number).isClosed())
            replay.close(number);
    }
    return replay.finish();
}

void Converting::followAtBanks()
{
    const banking::BankMap before = m_data.banks;
    for (const auto &[name, bank] : before) {
        for (const auto &[number, kind] : bank.accounts()) {
            if (!m_family.contains(number))
                continue;
            m_data.banks.remove(name, number);
            if (canBeKept(m_said.type))
                m_data.banks.add(name, number, kindFor(m_said));
            else if (number == m_said.account)
                m_done.separatedFrom = name;
        }
    }
}

void Converting::followSurveys()
{
    surveying::CompletedSurveys surveys;
    for (const auto &[account, survey] : m_data.surveys) {
        const AccountNumber number = account.account.number;
        if (!m_family.contains(number)) {
            surveys.upsert(survey);
            continue;
        }
        m_done.isReleased = m_done.isReleased || !survey.distribution().empty();
        const auto bank = m_data.banks.find(number);
        const banking::ReconciledBankAccount &last = survey.reconciled();
        if (!bank || !last.reconciledOn())
            continue;
        // What was owned is owed now, and the other way round.
        const numira::Money balance = -last.balance();
        CompletedSurvey kept({account.bank, {number, kindFor(m_said)}}, balance.code());
        kept.completed(*last.reconciledOn(), balance, {}, balance, survey.window());
        surveys.upsert(kept);
    }
    m_data.surveys = std::move(surveys);
}

} // namespace

Converted convertAccount(Document &document, const Conversion &conversion)
{
    Converting converting(document.present(), conversion);
    Converted done = converting.run();
    document.put(std::move(converting).data());
    return done;
}

Deed convertDeed(Requests &requests, const Conversion &conversion)
{
    const QString name = requests.accounts().plainName(conversion.account);
    return {QObject::tr("%1 is of the type %2 now.")
                .arg(name, accounting::presentationText(conversion.type)),
            QObject::tr("correcting the type of “%1”").arg(name),
            {}};
}

QStringList toldOf(Requests &requests, const Converted &done, const Conversion &conversion)
{
    const QString name = requests.accounts().plainName(conversion.account);
    QStringList told{QObject::tr("The balance of %1 is %2 now; its transactions are as they were.")
                         .arg(name, amountText(done.balance, requests.displayAs()))};
    if (done.isTopLevel)
        told += QObject::tr("%1 lies under no other account any more.").arg(name);
    if (done.separatedFrom)
        told += QObject::tr("Separated %1 from the bank '%2', which cannot keep it.")
                    .arg(name, done.separatedFrom->institution());
    if (done.isReleased)
        told += QObject::tr("What was set aside at %1 is free now.").arg(name);
    return told;
}

} // namespace kiv::workbench
