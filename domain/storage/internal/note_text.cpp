// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/note_text.h"

#include "storage/internal/faults.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

namespace kiv::storage::internal {

// A document is an array or an object, so a value stands in an array of one.

QByteArray noteText(const QJsonValue &value)
{
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return text.sliced(1, text.size() - 2);
}

QJsonValue noteFromText(QByteArrayView text)
{
    QJsonParseError error;
    const QByteArray array = '[' + text.toByteArray() + ']';
    const QJsonArray values = QJsonDocument::fromJson(array, &error).array();
    if (error.error != QJsonParseError::NoError || values.size() != 1)
        throw noteMalformed();
    return values.first();
}

} // namespace kiv::storage::internal
