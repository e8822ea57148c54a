// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/history/history.h"

#include "workbench/notes/account_notes.h"

#include "surveying/reconciliation_derivation.h"

#include <algorithm>

namespace kiv::workbench {

using storage::BudgetStorage;
using storage::KeptVersion;
using storage::VersionMark;

namespace {
QString stepName(std::size_t serial)
{
    return QStringLiteral("step-") + QString::number(serial);
}
} // namespace

QString History::Entry::name() const
{
    return mark.number > 0 ? QString::number(mark.number) : stepName(serial);
}

Deed History::Entry::leadingDeed() const
{
    return deed == Deed() ? Deed{mark.change, {}, {}} : deed;
}

bool History::Entry::isCalled(const QString &word) const
{
    return word == name() || (serial > 0 && word == stepName(serial));
}

KeptVersion History::Entry::kept() const
{
    return {name(), path, mark, KeptVersion::Telling::Everything, 0, false};
}

void History::begin(storage::Version version)
{
    Entry entry{{}, version.mark, std::nullopt};
    entry.content.emplace(std::move(version));
    begin(std::move(entry));
}

void History::begin(Entry entry)
{
    m_entries.clear();
    m_entries.push_back(std::move(entry));
    m_place = 0;
}

SharedVersion History::following(const Entry &before, const BudgetStorage::Data &data,
                                 bool isFollowing, const std::optional<storage::Notes> &notes) const
{
    const SharedVersion &old = before.content.value();
    if (!isFollowing) {
        return SharedVersion(
            {data,
             surveying::reconciliationsAfter({}, {{}, {}}, {data.surveys, data.generalLedger}),
             notes.value_or(storage::Notes()),
             {}});
    }
    return SharedVersion(
        {data,
         surveying::reconciliationsAfter(old.reconciliations(), {old.surveys(), old.ledger()},
                                         {data.surveys, data.generalLedger}),
         notesAfter(notes.value_or(old.notes()), old.ledger(), data.generalLedger),
         {}},
        &old);
}

const History::Entry &History::add(const BudgetStorage::Data &data, const Deed &deed,
                                   bool isFollowing, const std::optional<storage::Notes> &notes)
{
    const Entry &before = present();
    Entry entry{deed, before.mark.next(), following(before, data, isFollowing, notes)};
    entry.first = deed.line.endsWith(u'.') ? deed.line.chopped(1) : deed.line;
    if (!before.wasHandedOver) {
        entry.mark.ancestors = before.mark.ancestors;
        if (!before.first.isEmpty())
            entry.first = before.first;
        entry.others = before.others + 1;
    }
    entry.mark.nameChanges(entry.first, entry.others);
    entry.mark.savedAt = QDateTime::currentDateTimeUtc();
    entry.mark.transactions = static_cast<qint64>(data.generalLedger.transactionCount());
    entry.wasHandedOver = false;
    entry.serial = m_serial + 1;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(m_place) + 1, m_entries.end());
    m_entries.push_back(std::move(entry));
    ++m_serial;
    ++m_place;
    if (m_entries.size() > stepsMax) {
        m_entries.pop_front();
        --m_place;
    }
    return present();
}

void History::replacePresent(const BudgetStorage::Data &data)
{
    Entry &entry = m_entries.at(m_place);
    entry.content = following(entry, data, true, std::nullopt);
    VersionMark mark = entry.mark.next();
    mark.change = entry.mark.change;
    mark.savedAt = QDateTime::currentDateTimeUtc();
    mark.transactions = static_cast<qint64>(data.generalLedger.transactionCount());
    entry.mark = std::move(mark);
    entry.wasHandedOver = false;
}

void History::setWritten(const VersionMark &mark)
{
    for (Entry &entry : m_entries) {
        if (entry.mark.id == mark.id) {
            entry.mark.number = mark.number;
            entry.wasHandedOver = true;
        }
    }
}

void History::setContent(std::size_t place, storage::Version version)
{
    m_entries.at(place).content.emplace(std::move(version));
}

History::Entry History::entryOf(const KeptVersion &version)
{
    return {Deed{version.mark.change, {}, {}}, version.mark, std::nullopt, version.path};
}

void History::prepend(std::span<const KeptVersion> versions)
{
    for (const KeptVersion &version : versions)
        m_entries.push_front(entryOf(version));
    m_place += versions.size();
}

void History::append(std::span<const KeptVersion> versions)
{
    for (const KeptVersion &version : versions)
        m_entries.push_back(entryOf(version));
}

} // namespace kiv::workbench
