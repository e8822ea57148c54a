// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/json_reply.h"

#include "networking/internal/faults.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace kiv::networking {

namespace {

bool isJsonType(const QString &contentType)
{
    const QString type = contentType.section(u';', 0, 0).trimmed().toLower();
    return type == QStringLiteral("application/json") || type.endsWith(QStringLiteral("+json"));
}

qsizetype memberCount(const QJsonValue &value)
{
    qsizetype count = 0;
    if (value.isArray()) {
        for (const QJsonValue element : value.toArray())
            count += memberCount(element);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        count += object.size();
        for (const QJsonValue member : object)
            count += memberCount(member);
    }
    return count;
}

/// In valid JSON, exactly one colon outside of strings belongs to each member.
qsizetype memberCount(const QByteArray &json)
{
    qsizetype count = 0;
    bool isInString = false;
    for (qsizetype at = 0; at < json.size(); ++at) {
        const char character = json.at(at);
        if (character == '"')
            isInString = !isInString;
        else if (isInString && character == '\\')
            ++at;
        else if (!isInString && character == ':')
            ++count;
    }
    return count;
}

} // namespace

QJsonDocument readJson(const Response &response)
{
    if (!response.isSuccess())
        throw internal::requestFailed(response.failure());
    if (!isJsonType(response.contentType()))
        throw internal::notJsonType(response.contentType());
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(response.body(), &error);
    if (error.error != QJsonParseError::NoError)
        throw internal::notJson(error.errorString(), error.offset);
    // Qt keeps one of two members of the same name, so that fewer are left
    // than the text has.
    const QJsonValue root =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    if (memberCount(root) != memberCount(response.body()))
        throw internal::duplicateMembers();
    return document;
}

} // namespace kiv::networking
