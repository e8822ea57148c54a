// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/document.h"

#include "workbench/entry/user_locale.h"
#include "workbench/internal/faults.h"
#include "workbench/internal/recalling_storage.h"
#include "workbench/versions/kept_versions.h"

#include "storage/rates_file.h"
#include "storage/storage_error.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

namespace kiv::workbench {

using navigation::Navigator;
using storage::BudgetStorage;

Document::Document(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)),
      m_keys(m_surroundings.keys),
      m_requests([this]() -> Navigator & { return navigator(); }, [this] { return present(); })
{
}

Document::~Document() = default; // writes what is pending

Navigator &Document::navigator()
{
    if (!m_navigator) {
        auto budgetFile = std::make_unique<RecallingStorage>(m_keys);
        m_storage = budgetFile.get();
        m_navigator = std::make_unique<Navigator>(
            m_surroundings.makeSender(), std::move(budgetFile),
            std::make_unique<storage::RatesFile>(m_surroundings.ratesFile));
        writeNumbersAsUser();
        // The first-time wizard empties the budget; a document with a file restores it.
        QObject::connect(m_navigator.get(), &Navigator::showNewBudgetFirstTimeWizard,
                         m_navigator.get(), [this] {
                             if (!m_file.isEmpty())
                                 revert();
                         });
        // What was reconciled in another budget means nothing in a new one.
        QObject::connect(m_navigator.get(), &Navigator::showNewBudget, m_navigator.get(), [this] {
            m_storage->beginAnew();
            m_isOther = true;
        });
        if (m_keeping == Keeping::WithinASecond)
            keepLater();
    }
    return *m_navigator;
}

navigation::CurrencyDisplayOptions Document::displayAs()
{
    return m_navigator ? m_requests.displayAs() : navigation::CurrencyDisplayOptions::IsoCode;
}

QString Document::withExtension(const QString &path)
{
    static const QString extension = QStringLiteral(".budget");
    return path.endsWith(extension) ? path : path + extension;
}

void Document::open(const QString &file, Access access)
{
    refuseUnsaved();
    const QString path = withExtension(file);
    load(path, access);
    if (path != m_file)
        ++m_opening;
    m_file = path;
    begin();
}

void Document::load(const QString &path, Access access)
{
    (void)navigator();
    m_storage->setReading(access == Access::Reading);
    std::optional<QString> whyReadOnly;
    try {
        navigator().onConfirmedLoadBudgetFile(path, false);
        if (access == Access::Reading)
            whyReadOnly = internal::openedForReading().message();
        else if (const auto &obstacle = m_storage->obstacle();
                 obstacle && access == Access::ChangeIfPossible)
            whyReadOnly = userText(*obstacle);
    } catch (const storage::StorageError &error) {
        if (access != Access::ChangeIfPossible ||
            error.failure() != storage::StorageFailure::Locked)
            throw;
        whyReadOnly = userText(error);
        m_storage->setReading(true);
        navigator().onConfirmedLoadBudgetFile(path, false);
    }
    m_access = access;
    m_whyReadOnly = std::move(whyReadOnly);
    m_watch = {};
    m_isOther = false;
}

void Document::begin()
{
    m_goesTo.reset();
    m_goesOff.reset();
    m_history = {};
    if (m_keeping == Keeping::WithinASecond)
        m_history.begin(m_storage->version());
    watch(false);
    emit m_news.changed();
    emit m_news.keepingChanged();
}

void Document::openLost(const QString &file)
{
    refuseUnsaved();
    (void)navigator();
    m_file = withExtension(file);
}

void Document::refuseExisting(const QString &file)
{
    // A dangling link counts as a file, too: the file that it names must not be created.
    const QFileInfo target(withExtension(file));
    if (target.exists() || target.isSymLink())
        throw internal::fileExists(target.filePath());
    if (hasFormerVersions(target.filePath()))
        throw internal::fileGone(target.filePath());
}

void Document::create(const QString &file, const QString &change)
{
    refuseExisting(file);
    saveAs(withExtension(file), change);
}

void Document::createEmpty(const QString &file, const QString &change)
{
    refuseUnsaved();
    refuseExisting(file);
    navigator().onConfirmedNewBudgetEmpty();
    ++m_opening;
    auto back = qScopeGuard([this] {
        --m_opening;
        revert();
    });
    saveAs(withExtension(file), change);
    back.dismiss();
}

void Document::createFilled(const QString &file, const Deed &deed,
                            const std::function<void()> &fill)
{
    refuseUnsaved();
    refuseExisting(file);
    // Before there is a file, so that a refusal leaves none.
    const auto filled = [&] {
        const auto back = qScopeGuard([this] { revert(); });
        fill();
        return present();
    };
    BudgetStorage::Data data = filled();
    createEmpty(file, QObject::tr("New budget"));
    m_storage->recall(std::move(data));
    navigator().onConfirmedLoadBudgetFile(m_file, true);
    save(deed);
}

template <typename Slot, typename... Values>
void Document::store(Slot slot, const Values &...values)
{
    (void)navigator();
    const int before = m_storage->timesStored();
    try {
        // What is logged meanwhile is news: no answer tells that a file got another name.
        const auto answers = m_requests.gather(&Navigator::savedBudgetFile,
                                               [&] { std::invoke(slot, navigator(), values...); });
        if (answers.size() != 1)
            throw std::logic_error("A save was not answered once.");
    } catch (const storage::StorageError &error) {
        if (m_storage->timesStored() == before)
            throw;
        qWarning().noquote() << userText(error);
    }
    watch(!std::exchange(m_isOther, false));
}

void Document::watch(bool isChange)
{
    const accounting::GeneralLedger &ledger = m_storage->present()->generalLedger;
    const surveying::Reconciliations &all = keptReconciliations();
    m_broken = isChange ? m_watch.follow(all, ledger) : m_watch.check(all, ledger);
}

const surveying::Reconciliations &Document::keptReconciliations() const
{
    return m_history.isEmpty() ? m_storage->reconciliations()
                               : m_history.present().content.value().reconciliations();
}

std::vector<JudgedReconciliation> Document::reconciliations() const
{
    if (!m_storage || !m_storage->present())
        return {};
    return judged(keptReconciliations(), m_storage->present()->generalLedger);
}

std::map<accounting::AccountNumber, bool> Document::reconciledAccounts() const
{
    std::map<accounting::AccountNumber, bool> accounts;
    if (!m_storage)
        return accounts;
    const surveying::Reconciliations &all = keptReconciliations();
    for (std::size_t place = 0; place < all.size(); ++place) {
        const auto account = accounts.try_emplace(all[place].account.account.number, true).first;
        account->second = account->second && m_watch.holds(place);
    }
    return accounts;
}

QString Document::sentence(const JudgedReconciliation &reconciliation)
{
    return reconciliation.sentence(m_storage->present()->generalLedger, displayAs());
}

std::vector<JudgedReconciliation> Document::takeBroken()
{
    return std::exchange(m_broken, {});
}

void Document::save(const Deed &deed)
{
    refuseReadOnly();
    (void)navigator();
    m_storage->setChange(deed.line);
    m_storage->setNotes(m_notes);
    m_deed = deed;
    m_isKept = false;
    store(&Navigator::onSaveBudgetFile);
    m_deed = {};
    m_notes.reset();
    // What was written at once begins anew: the file was lost.
    if (m_keeping == Keeping::WithinASecond && !m_isKept) {
        ++m_opening;
        begin();
    } else {
        emit m_news.changed();
    }
    listen();
}

void Document::saveAs(const QString &file, const QString &change)
{
    (void)navigator();
    m_storage->setChange(change);
    {
        // Also if something fails after the budget was stored.
        const auto follow = qScopeGuard([this] { m_file = m_storage->openFile(); });
        store(&Navigator::onSaveAsBudgetFile, file);
    }
    m_access = Access::Change;
    m_whyReadOnly.reset();
    begin();
}

void Document::refuseUnsaved() const
{
    writePending();
    if (kept() == Kept::NotSaved)
        throw internal::unsavedChanges(m_file);
}

void Document::saveUnsaved()
{
    // Under the name of the change that could not be saved.
    if (writer())
        writeNow();
    else if (m_storage && m_storage->isUnsaved())
        store(&Navigator::onSaveBudgetFile);
}

void Document::revert()
{
    if (!m_navigator)
        return;
    m_goesTo.reset();
    m_goesOff.reset();
    m_notes.reset();
    m_file = m_storage->openFile(); // a lost one was only chosen
    // Not from the file, which may be missing or older than the budget in memory.
    if (const auto &present = m_storage->present()) {
        m_storage->recall(storage::BudgetFile::mended(*present));
        navigator().onConfirmedLoadBudgetFile(m_file, true);
    } else {
        navigator().onConfirmedNewBudgetEmpty();
    }
}

BudgetStorage::Data Document::present()
{
    (void)navigator();
    return m_storage->caught([this] { navigator().onSaveAsBudgetFile(m_file); });
}

void Document::put(BudgetStorage::Data data)
{
    // No warnings here: the user asked for the change that is repaired.
    m_storage->recall(m_requests.within([&data] { return storage::BudgetFile::mended(data); }));
    (void)m_requests.ask(&Navigator::loadedBudgetFile, &Navigator::onConfirmedLoadBudgetFile,
                         m_file, true);
}

void Document::mend()
{
    BudgetStorage::Data data = present();
    if (m_requests.within([&data] { return storage::BudgetFile::mended(data); }) != data)
        put(std::move(data));
}

} // namespace kiv::workbench
