// SPDX-License-Identifier: GPL-3.0-or-later
#include "session.h"

#include "parsing/similar.h"
#include "user_locale.h"

#include "networking/http_request_sender.h"
#include "storage/rates_file.h"
#include "storage/storage_error.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace kiv::app {

using navigation::Navigator;

Session::Session(MessageLog &log) : m_log(log) {}

Session::~Session() = default;

Navigator &Session::navigator()
{
    if (!m_navigator) {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        auto budgetFile = std::make_unique<RecallingStorage>();
        m_storage = budgetFile.get();
        m_navigator = std::make_unique<Navigator>(
            std::make_unique<networking::HttpRequestSender>(), std::move(budgetFile),
            std::make_unique<storage::RatesFile>(folder + QStringLiteral("/rates")));
        writeNumbersAsUser();
        // The offer of the first-time wizard empties the budget; who works on a
        // file wants what was in memory.
        QObject::connect(m_navigator.get(), &Navigator::showNewBudgetFirstTimeWizard,
                         m_navigator.get(), [this] {
                             if (!m_file.isEmpty())
                                 revert();
                         });
    }
    return *m_navigator;
}

QString Session::withExtension(const QString &path)
{
    static const QString extension = QStringLiteral(".budget");
    return path.endsWith(extension) ? path : path + extension;
}

void Session::open(const QString &file)
{
    refuseUnsaved();
    const QString path = withExtension(file);
    navigator().onConfirmedLoadBudgetFile(path, false);
    m_file = path;
}

void Session::refuseExisting(const QString &file)
{
    // A dangling link counts as a file, too: what it names is not ours to make.
    const QFileInfo target(withExtension(file));
    if (target.exists() || target.isSymLink())
        throw fileExists(target.filePath());
}

void Session::create(const QString &file)
{
    refuseExisting(file);
    saveAs(withExtension(file));
}

template <typename Slot, typename... Values>
void Session::store(Slot slot, const Values &...values)
{
    (void)navigator();
    const int before = m_storage->timesStored();
    try {
        (void)ask(&Navigator::savedBudgetFile, slot, values...);
    } catch (const storage::StorageError &error) {
        if (m_storage->timesStored() == before)
            throw;
        qWarning().noquote() << error.what();
    }
}

void Session::save()
{
    store(&Navigator::onSaveBudgetFile);
}

void Session::saveAs(const QString &file)
{
    (void)navigator();
    // Also when something fails after the budget was stored.
    const auto follow = qScopeGuard([this] { m_file = m_storage->openFile(); });
    store(&Navigator::onSaveAsBudgetFile, file);
}

void Session::refuseUnsaved() const
{
    if (m_storage && m_storage->isUnsaved())
        throw unsavedChanges(m_file);
}

void Session::saveUnsaved()
{
    if (m_storage && m_storage->isUnsaved())
        save();
}

void Session::revert()
{
    if (!m_navigator)
        return;
    // Not from the file, which may be gone, or older than what is in memory.
    if (const auto &present = m_storage->present()) {
        m_storage->recall(storage::BudgetFile::mended(*present));
        navigator().onConfirmedLoadBudgetFile(m_file, true);
    } else {
        navigator().onConfirmedNewBudgetEmpty();
    }
}

void Session::recall(storage::BudgetStorage::Data version)
{
    refuseUnsaved();
    m_storage->recall(std::move(version));
    navigator().onReloadBudgetFile();
}

AccountIndex Session::accounts()
{
    return AccountIndex(std::get<std::set<accounting::Account>>(
        ask(&Navigator::showAccounts, &Navigator::onPrepareShowAccounts)));
}

banking::BankMap Session::banks()
{
    return std::get<banking::BankMap>(ask(&Navigator::showBanks, &Navigator::onPrepareShowBanks));
}

banking::Bank Session::bank(const QString &name)
{
    const banking::BankMap all = banks();
    const banking::BankName bankName(name);
    if (!all.hasBank(bankName)) {
        QStringList known;
        for (const banking::BankName &candidate : all.names())
            known += candidate.institution();
        throw noSuchBank(name, similarTo(name, known));
    }
    return all.bank(bankName);
}

numira::Currency Session::preferredCurrency()
{
    return std::get<numira::Currency>(
        ask(&Navigator::showProcessBudgetItems, &Navigator::onPrepareShowProcessBudgetItems));
}

navigation::CurrencyDisplayOptions Session::displayAs()
{
    if (!m_navigator)
        return navigation::CurrencyDisplayOptions::IsoCode;
    return std::get<navigation::CurrencyDisplayOptions>(
        ask(&Navigator::showBudgetItemRefund, &Navigator::onPrepareShowBudgetItemRefund));
}

std::vector<accounting::Transaction> Session::transactions()
{
    // Every transaction debits one account, so that it comes once.
    std::vector<accounting::Transaction> all;
    const AccountIndex index = accounts();
    for (const accounting::Account &account : index.accounts()) {
        for (const accounting::Transaction &transaction : account.transactions()) {
            if (transaction.debiting().number() == account.code().number())
                all.push_back(transaction);
        }
    }
    std::ranges::sort(all, {}, [](const accounting::Transaction &transaction) {
        return transaction.number().value_or(accounting::TransactionNumber());
    });
    return all;
}

accounting::Transaction Session::transaction(accounting::TransactionNumber number)
{
    const AccountIndex index = accounts();
    for (const accounting::Account &account : index.accounts()) {
        if (const auto found = account.transactions().find(number))
            return *found;
    }
    throw noSuchTransaction(accounting::presentationText(number));
}

Refusal Session::refusal(const QString &message) const
{
    static const QString marker = QStringLiteral(" Caused by: ");
    const qsizetype at = m_log.lastKept().indexOf(marker);
    return Refusal(at < 0 || message.contains(marker) ? message
                                                      : message + m_log.lastKept().mid(at));
}

} // namespace kiv::app
