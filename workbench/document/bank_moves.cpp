// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/bank_moves.h"

#include "workbench/entry/description.h"
#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/balances.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/surveys/set_aside.h"
#include "workbench/surveys/survey_notes.h"

#include "foundation/clock.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::GeneralLedger;
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using banking::BankAccount;
using banking::BankName;
using budgeting::BudgetItemIdentifier;
using numira::Money;
using storage::BudgetStorage;
using surveying::CompletedSurvey;
using surveying::CompletedSurveys;
using surveying::Distribution;

namespace {

using FamilyNumbers = std::set<AccountNumber>;

QString nameIn(const GeneralLedger &ledger, AccountNumber number)
{
    return plainNameOf(ledger.ledger(number));
}

/// Adds all accounts below this one.
void addBelow(FamilyNumbers &family, const GeneralLedger &ledger, AccountNumber number)
{
    for (const AccountNumber child :
         ledger.lookUpChildren(number, accounting::OpenStates::Either)) {
        family.insert(child);
        addBelow(family, ledger, child);
    }
}

/// Gives those accounts of the family that the bank keeps, and their surveys, to another bank.
void moveFamily(BudgetStorage::Data &data, const FamilyNumbers &family, const BankName &from,
                const BankName &to)
{
    const banking::Bank::Accounts kept = data.banks.bank(from).accounts();
    for (const auto &[number, kind] : kept) {
        if (!family.contains(number))
            continue;
        data.banks.remove(from, number);
        data.banks.add(to, number, kind);
    }
    CompletedSurveys surveys;
    for (const auto &[account, survey] : data.surveys) {
        // A record from an earlier time at the other bank is older than the one that moves.
        const bool isReplaced = account.bank == to && family.contains(account.account.number) &&
                                data.surveys.lookUpSurvey(from, account.account.number).has_value();
        if (isReplaced)
            continue;
        CompletedSurvey followed = survey;
        if (account.bank == from && family.contains(account.account.number))
            followed.renamed(from, to);
        surveys.upsert(std::move(followed));
    }
    data.surveys = std::move(surveys);
}

/// A bank that keeps the account, another than `to` if possible.
BankAccount keptElsewhere(const BudgetStorage::Data &data, AccountNumber number, const BankName &to)
{
    std::optional<BankAccount> found;
    for (const auto &[name, bank] : data.banks) {
        const auto kept = bank.accounts().find(number);
        if (kept != bank.accounts().end() && (!found || found->bank == to))
            found = BankAccount{name, {number, kept->second}};
    }
    if (!found)
        throw internal::notABankAccount(nameIn(data.generalLedger, number));
    return *found;
}

/// Throws unless nothing of a bank is above the account.
void refuseBelow(const BudgetStorage::Data &data, AccountNumber number)
{
    const auto parent = data.generalLedger.accountCode(number).parent();
    if (parent && data.banks.find(*parent))
        throw internal::liesUnder(nameIn(data.generalLedger, number),
                                  nameIn(data.generalLedger, *parent));
}

/// Replaces an account in a budget.
class Replacing {
public:
    Replacing(BudgetStorage::Data data, surveying::Reconciliations reconciliations,
              SurveyNotes notes, const Replacement &replacement)
        : m_data(std::move(data)),
          m_reconciliations(std::move(reconciliations)),
          m_said(replacement),
          m_old(checked(replacement.old)),
          m_new(checked(replacement.by)),
          m_notes(std::move(notes))
    {
        refuse();
        for (const Transaction &one : reconciledElsewhere(m_old, QDate(9999, 12, 31), m_data,
                                                          m_reconciliations, m_notes.counted))
            m_elsewhere.insert(one.number().value());
    }

    Replaced run()
    {
        const bool holdsMoney = banking::isAssetAccount(m_old.account.type);
        if (holdsMoney)
            findWanted();
        moveAll();
        if (holdsMoney)
            moveSetAside();
        if (!m_said.isKeptOpen)
            m_data.generalLedger.close(m_said.old);
        return std::move(m_done);
    }
    [[nodiscard]] BudgetStorage::Data data() && { return std::move(m_data); }
    [[nodiscard]] const SurveyNotes &notes() const noexcept { return m_notes; }

private:
    [[nodiscard]] BankAccount checked(AccountNumber number) const
    {
        const auto bank = m_data.banks.find(number);
        if (!bank)
            throw internal::notABankAccount(nameIn(m_data.generalLedger, number));
        refuseBelow(m_data, number);
        if (m_data.generalLedger.ledger(number).isClosed())
            throw internal::accountIsClosed(nameIn(m_data.generalLedger, number));
        return {*bank, {number, m_data.banks.bank(*bank).accounts().at(number)}};
    }
    void refuse() const;
    void findWanted();
    void moveAll();
    /// What of the account's balance the statements of the old account counted. Notes these
    /// transactions, and those within the family, which no statement is going to show.
    [[nodiscard]] Money countedOf(AccountNumber child, const FamilyNumbers &members);
    void moveUnder();
    /// Moves so much of a balance on the day.
    TransactionNumber post(AccountNumber from, AccountNumber to, const Money &amount);
    void moveSetAside();
    /// The record at the new account that makes each line there what it was at the old one.
    [[nodiscard]] Distribution recordOf(const CompletedSurvey &present) const;
    [[nodiscard]] std::optional<CompletedSurvey> surveyOf(const BankAccount &account) const
    {
        return m_data.surveys.lookUpSurvey(account.bank, account.account.number);
    }
    /// What of the balance is set aside for nothing.
    [[nodiscard]] static Money leftOf(const Money &balance, const Distribution &distribution);

    BudgetStorage::Data m_data;
    surveying::Reconciliations m_reconciliations;
    Replacement m_said;
    BankAccount m_old;
    BankAccount m_new;
    QDate m_day;           ///< on which the lines are compared
    Distribution m_wanted; ///< what is set aside at the old account on that day
    Distribution m_former; ///< what its last survey recorded
    SurveyNotes m_notes;
    /// That other accounts' surveys reconciled, and those of the old account did not count.
    std::set<TransactionNumber> m_elsewhere;
    std::set<TransactionNumber> m_within; ///< between the old account and those under it
    Replaced m_done;
};

void Replacing::refuse() const
{
    const GeneralLedger &ledger = m_data.generalLedger;
    const QString old = nameIn(ledger, m_said.old);
    const QString by = nameIn(ledger, m_said.by);
    if (m_said.old == m_said.by)
        throw internal::replacedByItself(old);
    if (banking::isAssetAccount(m_old.account.type) != banking::isAssetAccount(m_new.account.type))
        throw internal::differentNature(old, by);
    if (ledger.ledger(m_said.old).balance().code() != ledger.ledger(m_said.by).balance().code())
        throw internal::differentCurrency(old, by);
    if (m_said.day > foundation::today())
        throw internal::dayToCome(m_said.day);
}

void Replacing::findWanted()
{
    const auto present = surveyOf(m_new);
    m_day = m_said.day;
    if (present && present->reconciled().reconciledOn())
        m_day = std::max(m_day, *present->reconciled().reconciledOn());
    const auto former = surveyOf(m_old);
    if (former)
        m_former = former->distribution();
    const auto isElsewhere = [&](const BudgetItemIdentifier &item) {
        for (const SetAside &other : envelopes(m_data, m_reconciliations, m_day).accounts) {
            if (other.account == m_old || other.account == m_new)
                continue;
            if (std::ranges::find(other.lines, item, &SetAsideLine::item) != other.lines.end())
                return true;
        }
        return false;
    };
    for (const SetAsideLine &line : setAsideAt(m_old, m_data, m_reconciliations, m_day).lines) {
        if (!line.isRecorded && (!line.isHandedOver() || isElsewhere(line.item)))
            continue;
        const Money now = line.parts ? line.parts->now() : m_former.at(line.item).distributed();
        m_wanted.insert_or_assign(line.item,
                                  surveying::DistributedAmount(now, line.next, line.expected));
    }
}

Money Replacing::countedOf(AccountNumber child, const FamilyNumbers &members)
{
    const accounting::LedgerAccount account = m_data.generalLedger.ledger(child);
    Money counted(account.balance().code());
    for (const Transaction &one : account.transactions()) {
        const bool isWithin =
            members.contains(one.debiting().number()) && members.contains(one.crediting().number());
        const TransactionNumber number = one.number().value();
        if (!isWithin && (one.seenFrom(child).status() != TransactionStatuses::Reconciled ||
                          m_elsewhere.contains(number)))
            continue;
        m_notes.counted[m_said.by].insert(number);
        if (isWithin)
            m_within.insert(number);
        counted += changeOf(one, account);
    }
    return counted;
}

TransactionNumber Replacing::post(AccountNumber from, AccountNumber to, const Money &amount)
{
    GeneralLedger &ledger = m_data.generalLedger;
    AccountCode debited = ledger.accountCode(to);
    AccountCode credited = ledger.accountCode(from);
    if (accounting::isDebitNormal(ledger.ledger(from).type()) == amount.isNegative())
        std::swap(debited, credited);
    const QString reason =
        QObject::tr("%1 replaced by %2").arg(nameIn(ledger, m_said.old), nameIn(ledger, m_said.by));
    return ledger.post(Transaction(m_said.day, debited, credited, amount.abs(),
                                   Description{{}, reason, {}}.text()));
}

void Replacing::moveAll()
{
    GeneralLedger &ledger = m_data.generalLedger;
    const FamilyNumbers under = ledger.lookUpChildren(m_said.old, accounting::OpenStates::Either);
    FamilyNumbers members = under;
    members.insert(m_said.old);
    // The old bank's balance counts what lies under the account, so this money goes over with
    // the rest: it returns to the account, where no statement shows it, and leaves that of the
    // new one likewise. What the old bank has not shown yet is left to the new one.
    std::map<AccountNumber, Money> held;
    FamilyNumbers finished;
    for (const AccountNumber child : under) {
        const Money counted = countedOf(child, members);
        if (counted.isZero())
            continue;
        // A finished goal's money may have left it without the old bank having shown that yet.
        if (ledger.ledger(child).isClosed()) {
            finished.insert(child);
            ledger.open(ledger.accountCode(child));
        }
        held.emplace(child, counted);
        const TransactionNumber back = post(child, m_said.old, counted);
        m_within.insert(back);
        m_notes.counted[m_said.by].insert(back);
    }
    ledger.reconcile(m_within);
    if (!m_within.empty())
        m_notes.counted[m_said.old].insert(m_within.begin(), m_within.end());
    moveUnder();
    m_done.moved = ledger.ledger(m_said.old).balance();
    if (!m_done.moved.isZero())
        m_done.number = post(m_said.old, m_said.by, m_done.moved);
    for (const auto &[child, counted] : held)
        ledger.reconcile(post(m_said.by, child, counted));
    for (const AccountNumber child : finished)
        ledger.close(child);
}

void Replacing::moveUnder()
{
    GeneralLedger &ledger = m_data.generalLedger;
    FamilyNumbers family;
    addBelow(family, ledger, m_said.old);
    for (const AccountNumber child :
         ledger.lookUpChildren(m_said.old, accounting::OpenStates::Either)) {
        const AccountCode code = ledger.accountCode(child);
        ledger.recode(code, AccountCode(child, code.name(), m_said.by));
        m_done.under.push_back(child);
    }
    if (m_old.bank != m_new.bank)
        moveFamily(m_data, family, m_old.bank, m_new.bank);
}

Money Replacing::leftOf(const Money &balance, const Distribution &distribution)
{
    Money left = balance;
    for (const auto &[item, amount] : distribution)
        left -= convertedIfKnown(amount.distributed(), balance.code())
                    .value_or(Money(balance.code()))
                    .rounded();
    return left;
}

Distribution Replacing::recordOf(const CompletedSurvey &present) const
{
    // With what is wanted as the record, a line of the new account shows what it would add and
    // take away since its own last survey.
    BudgetStorage::Data tried = m_data;
    CompletedSurvey trial = present;
    Distribution distribution = present.distribution();
    for (const auto &[item, wanted] : m_wanted)
        distribution.insert_or_assign(item, wanted);
    const banking::ReconciledBankAccount &reconciled = present.reconciled();
    trial.completed(*reconciled.reconciledOn(), reconciled.balance(), distribution,
                    present.nonDistributed(), present.window());
    tried.surveys.upsert(trial);
    for (const SetAsideLine &line : setAsideAt(m_new, tried, m_reconciliations, m_day).lines) {
        if (line.isByAccount || !line.parts || !m_wanted.contains(line.item))
            continue;
        const SetAsideParts &parts = *line.parts;
        distribution[line.item] = parts.before - parts.added + parts.paid;
    }
    // Both surveys had it, so that no line showed it: now one has all of it.
    for (const auto &[item, former] : m_former) {
        const auto own = present.distribution().find(item);
        if (own == present.distribution().end() || m_wanted.contains(item))
            continue;
        if (const auto more =
                convertedIfKnown(former.distributed(), own->second.distributed().code()))
            distribution[item] += more->rounded();
    }
    return distribution;
}

void Replacing::moveSetAside()
{
    std::optional<CompletedSurvey> old = surveyOf(m_old);
    if (old && old->reconciled().reconciledOn() && !m_former.empty()) {
        const banking::ReconciledBankAccount &last = old->reconciled();
        const Money balance = last.balance();
        old->completed(*last.reconciledOn(), balance, {}, balance, old->window());
        m_data.surveys.upsert(*old);
    }
    if (m_wanted.empty() && m_former.empty())
        return;
    const numira::Currency currency = m_data.generalLedger.ledger(m_said.by).balance().code();
    CompletedSurvey present = surveyOf(m_new).value_or(CompletedSurvey(m_new, currency));
    const foundation::Percentage window = old ? old->window() : present.window();
    if (!present.reconciled().reconciledOn())
        present.completed(m_said.day, Money(currency), {}, Money(currency), window);
    const Distribution distribution = recordOf(present);
    const banking::ReconciledBankAccount last = present.reconciled();
    present.completed(*last.reconciledOn(), last.balance(), distribution,
                      leftOf(last.balance(), distribution), present.window());
    m_data.surveys.upsert(present);
    for (const auto &[item, amount] : m_wanted)
        m_done.setAside.push_back(item);
}

} // namespace

void moveBankAccount(Document &document, AccountNumber account, const BankName &to)
{
    BudgetStorage::Data data = document.present();
    const GeneralLedger &ledger = data.generalLedger;
    const QString name = nameIn(ledger, account);
    const BankAccount kept = keptElsewhere(data, account, to);
    if (kept.bank == to)
        throw internal::atThatBank(name, to.institution());
    refuseBelow(data, account);
    if (data.banks.bank(to).isClosed())
        throw internal::bankIsClosed(to.institution());
    FamilyNumbers family{account};
    addBelow(family, ledger, account);
    moveFamily(data, family, kept.bank, to);
    document.put(std::move(data));
}

Replaced replaceBankAccount(Document &document, const Replacement &replacement)
{
    Replacing replacing(document.present(), document.keptReconciliations(),
                        SurveyNotes::of(document.notes()), replacement);
    Replaced done = replacing.run();
    document.setNotes(replacing.notes().keptIn(document.notes()));
    document.put(std::move(replacing).data());
    return done;
}

Deed moveDeed(Requests &requests, AccountNumber account, const BankName &to)
{
    const QString name = requests.accounts().plainName(account);
    return {QObject::tr("%1 is at the bank %2 now.").arg(name, to.institution()),
            QObject::tr("moving “%1” to “%2”").arg(name, to.institution()),
            {}};
}

Deed replaceDeed(Requests &requests, const Replacement &replacement)
{
    const AccountIndex index = requests.accounts();
    const QString old = index.plainName(replacement.old);
    const QString by = index.plainName(replacement.by);
    return {QObject::tr("Replaced %1 by %2.").arg(old, by),
            QObject::tr("replacing “%1” by “%2”").arg(old, by),
            {}};
}

QStringList toldOf(Requests &requests, const Replaced &done, const Replacement &replacement)
{
    const AccountIndex index = requests.accounts();
    const QString old = index.plainName(replacement.old);
    const QString by = index.plainName(replacement.by);
    QStringList told;
    if (done.number)
        told += QObject::tr("Moved %1 from %2 to %3 (transaction %4).")
                    .arg(amountText(done.moved, requests.displayAs()), old, by,
                         accounting::presentationText(*done.number));
    const auto list = [](const QStringList &names) { return QLocale().createSeparatedList(names); };
    QStringList names;
    for (const AccountNumber number : done.under)
        names += index.plainName(number);
    if (!names.isEmpty())
        told += QObject::tr("Under %1 are now: %2").arg(by, list(names));
    names.clear();
    for (const BudgetItemIdentifier &item : done.setAside)
        names += item.source.name();
    if (!names.isEmpty())
        told += QObject::tr("Set aside at %1 are now: %2").arg(by, list(names));
    told += replacement.isKeptOpen
                ? QObject::tr("%1 stays open; close it after its last statement.").arg(old)
                : QObject::tr("Closed %1.").arg(old);
    return told;
}

} // namespace kiv::workbench
