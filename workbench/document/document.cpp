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
      m_requests([this]() -> Navigator & { return navigator(); })
{
}

Document::~Document() = default;

Navigator &Document::navigator()
{
    if (!m_navigator) {
        auto budgetFile = std::make_unique<RecallingStorage>();
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
    (void)navigator();
    m_storage->setReading(access == Access::Reading);
    std::optional<QString> whyReadOnly;
    try {
        navigator().onConfirmedLoadBudgetFile(path, false);
    } catch (const storage::StorageError &error) {
        if (access != Access::ChangeIfPossible ||
            error.failure() != storage::StorageFailure::Locked)
            throw;
        whyReadOnly = userText(error);
        m_storage->setReading(true);
        navigator().onConfirmedLoadBudgetFile(path, false);
    }
    m_whyReadOnly = std::move(whyReadOnly);
    m_file = path;
    m_watch = {};
    m_isOther = false;
    watch(false);
    begin();
}

void Document::reload()
{
    navigator().onConfirmedLoadBudgetFile(m_file, true);
    m_watch = {};
    m_isOther = false;
    watch(false);
    begin();
}

void Document::begin()
{
    m_goesTo.reset();
    m_trouble.reset();
    m_at = 0;
    m_steps.clear();
    if (m_keeping == Keeping::WithinASecond)
        m_steps.push_back({{{}, QDateTime::currentDateTimeUtc()}, *m_storage->present()});
    emit m_news.changed();
    emit m_news.keepingChanged();
}

void Document::openLost(const QString &file)
{
    refuseUnsaved();
    (void)navigator();
    m_file = withExtension(file);
}

bool Document::isLost() const
{
    return m_storage->openFile() != m_file;
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
    refuseExisting(file);
    navigator().onConfirmedNewBudgetEmpty();
    auto back = qScopeGuard([this] { revert(); });
    saveAs(withExtension(file), change);
    back.dismiss();
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
    const surveying::Reconciliations &all = m_storage->reconciliations();
    m_broken = isChange ? m_watch.follow(all, ledger) : m_watch.check(all, ledger);
}

std::vector<JudgedReconciliation> Document::reconciliations() const
{
    if (!m_storage || !m_storage->present())
        return {};
    return judged(m_storage->reconciliations(), m_storage->present()->generalLedger);
}

std::map<accounting::AccountNumber, bool> Document::reconciledAccounts() const
{
    std::map<accounting::AccountNumber, bool> accounts;
    if (!m_storage)
        return accounts;
    const surveying::Reconciliations &all = m_storage->reconciliations();
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
    (void)navigator();
    m_storage->setChange(deed.line);
    try {
        store(&Navigator::onSaveBudgetFile);
        m_trouble.reset();
    } catch (const storage::StorageError &error) {
        if (m_keeping == Keeping::AtOnce)
            throw;
        m_trouble = troubleOfSaving(error);
    }
    if (m_keeping == Keeping::WithinASecond) {
        if (m_goesTo) {
            m_at = *std::exchange(m_goesTo, std::nullopt);
        } else {
            m_steps.resize(m_steps.empty() ? 0 : m_at + 1);
            m_steps.push_back({{deed, QDateTime::currentDateTimeUtc()}, *m_storage->present()});
            m_at = m_steps.size() - 1;
        }
    }
    emit m_news.changed();
    emit m_news.keepingChanged();
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
    m_whyReadOnly.reset();
    begin();
}

void Document::setKeeping(Keeping keeping)
{
    m_keeping = keeping;
}

Document::Kept Document::kept() const
{
    return m_storage && m_storage->isUnsaved() ? Kept::NotSaved : Kept::Saved;
}

std::optional<Trouble> Document::whyNotSaved() const
{
    return m_trouble;
}

void Document::writeNow()
{
    saveUnsaved();
    m_trouble.reset();
    emit m_news.keepingChanged();
}

void Document::saveCopy(const QString &file)
{
    refuseExisting(file);
    storage::BudgetFile copy;
    copy.setFilePathName(withExtension(file));
    copy.store(present());
}

void Document::perform(const Deed &deed, const std::function<void()> &work)
{
    if (m_whyReadOnly)
        throw Refusal(*m_whyReadOnly);
    try {
        work();
    } catch (...) {
        revert();
        throw;
    }
    save(deed);
}

std::vector<Step> Document::steps() const
{
    std::vector<Step> steps;
    for (std::size_t place = 0; place < m_steps.size(); ++place) {
        steps.push_back(m_steps[place].first);
        steps.back().isPresent = place == m_at;
    }
    return steps;
}

std::optional<Deed> Document::undoable() const
{
    return m_at > 0 ? std::optional(m_steps[m_at].first.deed) : std::nullopt;
}

std::optional<Deed> Document::redoable() const
{
    return m_at + 1 < m_steps.size() ? std::optional(m_steps[m_at + 1].first.deed) : std::nullopt;
}

void Document::refuseUnsaved() const
{
    if (m_storage && m_storage->isUnsaved())
        throw internal::unsavedChanges(m_file);
}

void Document::saveUnsaved()
{
    // Under the name of the change that could not be saved.
    if (m_storage && m_storage->isUnsaved())
        store(&Navigator::onSaveBudgetFile);
}

void Document::revert()
{
    if (!m_navigator)
        return;
    m_goesTo.reset();
    m_file = m_storage->openFile(); // a lost one was only chosen
    // Not from the file, which may be missing or older than the budget in memory.
    if (const auto &present = m_storage->present()) {
        m_storage->recall(storage::BudgetFile::mended(*present));
        navigator().onConfirmedLoadBudgetFile(m_file, true);
    } else {
        navigator().onConfirmedNewBudgetEmpty();
    }
}

Document::Recalled Document::recall(storage::KeptVersion version, BudgetStorage::Data data)
{
    const bool wasLost = isLost();
    Recalled recalled{{}, version, wasLost ? std::nullopt : m_storage->present(), data};
    m_storage->restore(std::move(version), std::move(data));
    if (wasLost)
        navigator().onConfirmedLoadBudgetFile(m_file, false);
    else
        navigator().onReloadBudgetFile();
    return recalled;
}

Document::Recalled Document::settled(Recalled recalled, Settle settle)
{
    if (settle == Settle::Now)
        save(recalled.deed);
    return recalled;
}

Document::Recalled Document::goTo(qsizetype step, Settle settle)
{
    const auto place = static_cast<std::size_t>(step);
    const auto &[reached, data] = m_steps.at(place);
    Recalled recalled{m_steps[std::min(m_steps.size() - 1, std::max(place, m_at))].first.deed,
                      {},
                      m_storage->present(),
                      data};
    recalled.version.mark.savedAt = reached.at;
    recalled.version.mark.change = reached.deed.line;
    m_storage->recall(data);
    navigator().onConfirmedLoadBudgetFile(m_file, true);
    m_goesTo = place;
    return settled(std::move(recalled), settle);
}

Document::Recalled Document::undo(qsizetype steps, Settle settle)
{
    if (static_cast<std::size_t>(steps) <= m_at)
        return goTo(static_cast<qsizetype>(m_at) - steps, settle);
    refuseUnsaved();
    const KeptVersions versions(m_file);
    if (isLost()) {
        auto found = versions.newestWhole();
        if (!found)
            throw internal::nothingToUndo(0);
        return settled(recall(std::move(found->first), std::move(found->second)), settle);
    }
    const storage::KeptVersion &version = versions.undone(steps);
    return settled(recall(version, dataOf(version)), settle);
}

Document::Recalled Document::undoTo(const QString &name, Settle settle)
{
    refuseUnsaved();
    const KeptVersions versions(m_file);
    const storage::KeptVersion &version = versions.named(name);
    if (version.isFile)
        throw internal::alreadyPresent(name);
    return settled(recall(version, dataOf(version)), settle);
}

Document::Recalled Document::redo(qsizetype steps, Settle settle)
{
    if (m_at + static_cast<std::size_t>(steps) < m_steps.size())
        return goTo(static_cast<qsizetype>(m_at) + steps, settle);
    refuseUnsaved();
    const KeptVersions versions(m_file);
    const storage::KeptVersion &version = versions.redone(steps);
    return settled(recall(version, dataOf(version)), settle);
}

BudgetStorage::Data Document::present()
{
    return m_storage->caught([this] { navigator().onSaveAsBudgetFile(m_file); });
}

void Document::mend()
{
    const BudgetStorage::Data data = present();
    // No warnings here: the user asked for the change that is repaired.
    BudgetStorage::Data mended =
        m_requests.within([&data] { return storage::BudgetFile::mended(data); });
    if (mended == data)
        return;
    m_storage->recall(std::move(mended));
    (void)m_requests.ask(&Navigator::loadedBudgetFile, &Navigator::onConfirmedLoadBudgetFile,
                         m_file, true);
}

} // namespace kiv::workbench
