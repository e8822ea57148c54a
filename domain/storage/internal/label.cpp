// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/label.h"

#include "storage/internal/faults.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace kiv::storage::internal {
namespace {

// The keys of the object.
constexpr QLatin1String idKey("id");
constexpr QLatin1String numberKey("number");
constexpr QLatin1String ancestorsKey("ancestors");
constexpr QLatin1String changeKey("change");
constexpr QLatin1String savedAtKey("savedAt");
constexpr QLatin1String transactionsKey("transactions");

bool isId(const QString &text)
{
    constexpr qsizetype digits = 16;
    return text.size() == digits && std::ranges::all_of(text, [](QChar digit) {
               return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f');
           });
}

} // namespace

QByteArray toLabel(const VersionMark &mark)
{
    return QJsonDocument(QJsonObject{{idKey, mark.id},
                                     {numberKey, mark.number},
                                     {ancestorsKey, QJsonArray::fromStringList(mark.ancestors)},
                                     {changeKey, mark.change},
                                     {savedAtKey, mark.savedAt.toUTC().toString(Qt::ISODateWithMs)},
                                     {transactionsKey, mark.transactions}})
        .toJson(QJsonDocument::Compact);
}

VersionMark fromLabel(QByteArrayView label)
{
    if (label.size() > labelSizeMax)
        throw labelMalformed();
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromRawData(label.data(), label.size())).object();
    VersionMark mark;
    mark.id = json.value(idKey).toString();
    mark.number = json.value(numberKey).toInteger(-1);
    for (const auto &ancestor : json.value(ancestorsKey).toArray())
        mark.ancestors.append(ancestor.toString());
    mark.change = json.value(changeKey).toString();
    mark.savedAt = QDateTime::fromString(json.value(savedAtKey).toString(), Qt::ISODateWithMs);
    mark.transactions = json.value(transactionsKey).toInteger(-1);
    if (!isId(mark.id) || mark.number < 1 || mark.number > VersionMark::numberMax ||
        mark.ancestors.size() > VersionMark::ancestorsMax ||
        !std::ranges::all_of(mark.ancestors, isId) || mark.change.size() > VersionMark::changeMax ||
        !mark.savedAt.isValid() || mark.transactions < 0)
        throw labelMalformed();
    return mark;
}

} // namespace kiv::storage::internal
