// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/notes.h"

#include "storage/internal/faults.h"
#include "storage/internal/note_text.h"

namespace kiv::storage {

QJsonValue Notes::value(const QString &key) const
{
    const auto found = m_values.find(key);
    return found == end() ? QJsonValue(QJsonValue::Undefined) : found->second;
}

void Notes::set(const QString &key, const QJsonValue &value)
{
    if (value.isUndefined()) {
        m_values.erase(key);
        return;
    }
    if (key.isEmpty() || key.size() > keySizeMax)
        throw internal::noteKeyRefused(key, keySizeMax);
    const QByteArray text = internal::noteText(value);
    if (text.size() > valueSizeMax)
        throw internal::noteTooLarge(key);
    QJsonValue kept;
    try {
        kept = internal::noteFromText(text);
    } catch (const internal::ContentFault &fault) {
        throw internal::noteNotReadable(key, fault);
    }
    if (m_values.size() >= countMax && !m_values.contains(key))
        throw internal::tooManyNotes(countMax);
    m_values.insert_or_assign(key, std::move(kept));
}

} // namespace kiv::storage
