// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>

namespace kiv::test {

/// What of a JSON document does not follow a JSON schema; as much of schemas as
/// ours use: $ref, const, enum, type, pattern, required, properties,
/// additionalProperties and items.
class JsonSchema {
public:
    explicit JsonSchema(QJsonObject schema) : m_root(std::move(schema)) {}

    /// Empty when all is well.
    [[nodiscard]] QStringList faultsOf(const QJsonValue &value) const
    {
        QStringList faults;
        check(value, m_root, QStringLiteral("$"), faults);
        return faults;
    }

private:
    static QString typeOf(const QJsonValue &value)
    {
        const QVariant plain = value.toVariant();
        if (value.isDouble())
            return plain.toDouble() == static_cast<double>(value.toInteger())
                       ? QStringLiteral("integer")
                       : QStringLiteral("number");
        return value.isObject()   ? QStringLiteral("object")
               : value.isArray()  ? QStringLiteral("array")
               : value.isString() ? QStringLiteral("string")
               : value.isBool()   ? QStringLiteral("boolean")
                                  : QStringLiteral("null");
    }

    static QJsonArray listed(const QJsonValue &value)
    {
        return value.isArray() ? value.toArray() : QJsonArray{value};
    }

    void check(const QJsonValue &value, QJsonObject schema, const QString &at,
               QStringList &faults) const
    {
        const auto key = [&schema](const char *name) { return schema.value(QLatin1String(name)); };
        if (const QString reference = key("$ref").toString(); !reference.isEmpty())
            schema = m_root[QLatin1String("$defs")][reference.section(u'/', -1)].toObject();
        const auto demand = [&](bool isGood, const char *what) {
            if (!isGood)
                faults += at + u' ' + QLatin1String(what);
        };
        demand(key("const").isUndefined() || key("const") == value, "const");
        demand(key("enum").isUndefined() || key("enum").toArray().contains(value), "enum");
        demand(key("type").isUndefined() || listed(key("type")).contains(typeOf(value)), "type");
        const QRegularExpression pattern(key("pattern").toString());
        demand(pattern.match(value.toString()).hasMatch(), "pattern");
        for (const QJsonValue &name : key("required").toArray())
            demand(value.toObject().contains(name.toString()), qPrintable(name.toString()));
        const QJsonObject properties = key("properties").toObject();
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            if (properties.contains(member.key()))
                check(member.value(), properties[member.key()].toObject(), at + u'.' + member.key(),
                      faults);
            else
                demand(key("additionalProperties").toBool(true), qPrintable(member.key()));
        }
        for (const QJsonValue &element : value.toArray())
            check(element, key("items").toObject(), at + QStringLiteral("[]"), faults);
    }

    QJsonObject m_root;
};

} // namespace kiv::test
