// SPDX-License-Identifier: GPL-3.0-or-later
// Deeds, and how they are kept.
#include "workbench/document/document.h"

#include "workbench/internal/faults.h"
#include "workbench/internal/recalling_storage.h"

#include "foundation/streams.h"

#include <QtCore/QDebug>

namespace kiv::workbench {

using storage::BudgetStorage;

void Document::setKeeping(Keeping keeping)
{
    if (keeping == m_keeping)
        return;
    if (keeping == Keeping::AtOnce || !m_file.isEmpty())
        throw std::logic_error("The keeping of a document is chosen before it opens a file.");
    m_keeping = keeping;
    if (m_navigator)
        keepLater();
}

void Document::keepLater()
{
    m_storage->keepLater([this](const BudgetStorage::Data &data) { keep(data); },
                         [this] {
                             QMetaObject::invokeMethod(
                                 &m_news, [this] { listen(); }, Qt::QueuedConnection);
                         });
}

Writer *Document::writer() const
{
    return m_storage ? m_storage->writer() : nullptr;
}

void Document::keep(const BudgetStorage::Data &data)
{
    m_isKept = true;
    std::optional<Writer::Job> unwritten = writer()->withdraw();
    auto again = qScopeGuard([&] {
        if (unwritten)
            writer()->submit(*unwritten);
    });
    if (!unwritten)
        m_history.handOver();
    if (m_goesOff) {
        m_history.begin(*std::exchange(m_goesOff, std::nullopt));
        m_goesTo = 0;
    }
    if (m_goesTo) {
        const std::size_t place = *std::exchange(m_goesTo, std::nullopt);
        m_history.goTo(place);
        if (!m_history.present().content->has(data)) // it was repaired
            m_history.replacePresent(data);
    } else if (m_history.present().content->has(data) && !m_notes) {
        return;
    } else {
        (void)m_history.add(data, m_deed, !m_storage->isNew(), m_notes);
    }
    const History::Entry &present = m_history.present();
    again.dismiss();
    writer()->submit({*present.content, present.mark});
}

Document::Kept Document::kept() const
{
    const Writer *late = writer();
    if (!late)
        return m_storage && m_storage->isUnsaved() ? Kept::NotSaved : Kept::Saved;
    if (late->failure())
        return Kept::NotSaved;
    return late->isPending() ? Kept::Saving : Kept::Saved;
}

std::optional<Trouble> Document::whyNotSaved() const
{
    const std::exception_ptr failure = writer() ? writer()->failure() : nullptr;
    if (!failure)
        return std::nullopt;
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception &error) {
        return troubleOfSaving(error);
    }
}

void Document::writeNow()
{
    if (!writer()) {
        saveUnsaved();
        return;
    }
    writer()->retry();
    writer()->finish();
    listen();
    if (const std::exception_ptr failure = writer()->failure())
        std::rethrow_exception(failure);
}

void Document::writePending() const noexcept
{
    if (Writer *late = writer())
        late->finish();
}

void Document::listen()
{
    if (!writer())
        return;
    const Writer::News news = writer()->takeNews();
    for (const storage::VersionMark &mark : news.written)
        m_history.setWritten(mark);
    for (const QString &warning : news.warnings)
        qWarning().noquote() << foundation::escaped(warning);
    // A failure may have another reason than the one before.
    const Kept now = kept();
    if (std::exchange(m_toldKept, now) != now || now == Kept::NotSaved)
        emit m_news.keepingChanged();
}

void Document::saveCopy(const QString &file)
{
    refuseExisting(file);
    storage::VersionMark mark = storage::VersionMark().next();
    mark.nameChange(QObject::tr("Saved a copy"));
    mark.savedAt = QDateTime::currentDateTimeUtc();
    storage::Version version;
    version.data = present();
    mark.transactions = static_cast<qint64>(version.data.generalLedger.transactionCount());
    version.mark = std::move(mark);
    version.reconciliations = keptReconciliations();
    version.notes = notes();
    storage::BudgetFile copy;
    copy.encryptNextAs(m_storage->fileItself());
    copy.setFilePathName(withExtension(file));
    (void)copy.storeVersion(version);
}

storage::Notes Document::notes() const
{
    if (m_notes || !m_storage)
        return m_notes.value_or(storage::Notes());
    return m_history.isEmpty() ? m_storage->notes() : m_history.present().content->notes();
}

void Document::setNotes(storage::Notes notes)
{
    if (notes == this->notes())
        return;
    m_notes = std::move(notes);
}

void Document::reload()
{
    openGivingUp(m_file, m_access);
}

void Document::openGivingUp(const QString &file, Access access)
{
    const QString path = withExtension(file);
    std::optional<Writer::Job> unwritten;
    if (writer())
        unwritten = writer()->withdraw();
    auto again = qScopeGuard([&] {
        if (unwritten)
            writer()->submit(*unwritten);
    });
    load(path, access);
    again.dismiss();
    m_file = path;
    if (writer())
        writer()->forget();
    begin();
}

void Document::refuseReadOnly() const
{
    if (m_whyReadOnly)
        throw Refusal(*m_whyReadOnly);
}

void Document::perform(const Deed &deed, const std::function<void()> &work)
{
    refuseReadOnly();
    try {
        work();
    } catch (...) {
        try {
            revert();
        } catch (const std::exception &error) {
            // The first error is the one to show.
            qWarning().noquote() << foundation::escaped(userText(error));
        }
        emit m_news.changed();
        throw;
    }
    save(deed);
}

} // namespace kiv::workbench
