// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_profile.h"

#include "interchange/internal/statement_faults.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <variant>

namespace kiv::interchange {

namespace {

/// The keys of the JSON object, each with the member that it stands for.
using Member = std::variant<QString CsvProfile::*, QStringList CsvProfile::*, bool CsvProfile::*,
                            int CsvProfile::*, std::optional<QChar> CsvProfile::*,
                            std::optional<DecimalMark> CsvProfile::*, DateFormat CsvProfile::*,
                            std::vector<AccountRule> CsvProfile::*>;

const std::map<QString, Member> &members()
{
    static const std::map<QString, Member> table{
        {QStringLiteral("encoding"), &CsvProfile::encoding},
        {QStringLiteral("delimiter"), &CsvProfile::delimiter},
        {QStringLiteral("skip"), &CsvProfile::skippedLines},
        {QStringLiteral("skipLast"), &CsvProfile::skippedLast},
        {QStringLiteral("headings"), &CsvProfile::hasHeadings},
        {QStringLiteral("date"), &CsvProfile::dateColumn},
        {QStringLiteral("amount"), &CsvProfile::amountColumn},
        {QStringLiteral("in"), &CsvProfile::inColumn},
        {QStringLiteral("out"), &CsvProfile::outColumn},
        {QStringLiteral("sign"), &CsvProfile::signColumn},
        {QStringLiteral("negative"), &CsvProfile::negativeSigns},
        {QStringLiteral("text"), &CsvProfile::textColumns},
        {QStringLiteral("id"), &CsvProfile::idColumn},
        {QStringLiteral("currency"), &CsvProfile::currencyColumn},
        {QStringLiteral("status"), &CsvProfile::statusColumn},
        {QStringLiteral("balance"), &CsvProfile::balanceColumn},
        {QStringLiteral("dateFormat"), &CsvProfile::dateFormat},
        {QStringLiteral("decimal"), &CsvProfile::decimalMark},
        {QStringLiteral("negate"), &CsvProfile::isNegated},
        {QStringLiteral("rules"), &CsvProfile::rules}};
    return table;
}

/// Reads one member's value, or throws for a value of another kind.
class MemberReader {
public:
    MemberReader(CsvProfile &profile, const QString &key, const QJsonValue &value,
                 const Place &place)
        : m_profile(profile), m_key(key), m_value(value), m_place(place)
    {
    }

    void operator()(QString CsvProfile::*member) const { m_profile.*member = text(m_value); }
    void operator()(QStringList CsvProfile::*member) const
    {
        demand(m_value.isArray());
        for (const QJsonValue element : m_value.toArray())
            (m_profile.*member) += text(element);
    }
    void operator()(bool CsvProfile::*member) const
    {
        demand(m_value.isBool());
        m_profile.*member = m_value.toBool();
    }
    void operator()(int CsvProfile::*member) const
    {
        demand(m_value.toInt(-1) >= 0 && m_value.toInt() <= CsvProfile::skippedMax);
        m_profile.*member = m_value.toInt();
    }
    void operator()(std::optional<QChar> CsvProfile::*member) const
    {
        demand(text(m_value).size() == 1);
        m_profile.*member = m_value.toString().front();
    }
    void operator()(std::optional<DecimalMark> CsvProfile::*member) const
    {
        demand(text(m_value) == u"." || text(m_value) == u",");
        m_profile.*member = static_cast<DecimalMark>(m_value.toString().front().unicode());
    }
    void operator()(DateFormat CsvProfile::*member) const
    {
        m_profile.*member = DateFormat(text(m_value), m_place);
    }
    void operator()(std::vector<AccountRule> CsvProfile::*member) const
    {
        demand(m_value.isArray());
        for (const QJsonValue element : m_value.toArray()) {
            (m_profile.*member)
                .push_back({text(element[QLatin1String("contains")]),
                            text(element[QLatin1String("account")])});
            demand(!(m_profile.*member).back().contains.isEmpty());
        }
    }

private:
    void demand(bool isGood) const
    {
        if (!isGood)
            throw faults::wrongProfileValue(m_place, m_key);
    }
    [[nodiscard]] QString text(const QJsonValue &value) const
    {
        demand(value.isString());
        return value.toString();
    }

    CsvProfile &m_profile;
    const QString &m_key;
    const QJsonValue &m_value;
    const Place &m_place;
};

template <typename T>
QJsonValue jsonOf(const T &value)
{
    if constexpr (std::is_same_v<T, QStringList>) {
        return QJsonArray::fromStringList(value);
    } else if constexpr (std::is_same_v<T, std::optional<QChar>>) {
        return value ? QJsonValue(QString(*value)) : QJsonValue();
    } else if constexpr (std::is_same_v<T, std::optional<DecimalMark>>) {
        return value ? QJsonValue(QString(QChar(static_cast<char16_t>(*value)))) : QJsonValue();
    } else if constexpr (std::is_same_v<T, DateFormat>) {
        return value.text();
    } else if constexpr (std::is_same_v<T, std::vector<AccountRule>>) {
        QJsonArray rules;
        for (const AccountRule &rule : value)
            rules.append(QJsonObject{{QStringLiteral("contains"), rule.contains},
                                     {QStringLiteral("account"), rule.account}});
        return rules;
    } else {
        return value;
    }
}

} // namespace

CsvProfile readProfile(const QByteArray &json, const QString &file)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const auto line = json.left(error.offset).count('\n') + 1;
    const Place place{file, error.error == QJsonParseError::NoError ? 0 : line};
    if (!document.isObject())
        throw error.error == QJsonParseError::NoError
            ? faults::profileNotAnObject(place)
            : faults::profileNotJson(place, error.errorString());
    CsvProfile profile;
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto member = members().find(entry.key());
        if (member == members().end())
            throw faults::unknownProfileKey(place, entry.key());
        const QJsonValue value = entry.value();
        if (!value.isNull())
            std::visit(MemberReader(profile, member->first, value, place), member->second);
    }
    return profile;
}

QByteArray toJson(const CsvProfile &profile)
{
    QJsonObject object;
    for (const auto &[key, member] : members()) {
        object.insert(
            key, std::visit([&profile](auto pointer) { return jsonOf(profile.*pointer); }, member));
    }
    return QJsonDocument(object).toJson();
}

} // namespace kiv::interchange
