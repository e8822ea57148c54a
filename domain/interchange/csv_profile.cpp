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
using Member =
    std::variant<QString CsvProfile::*, QStringList CsvProfile::*, bool CsvProfile::*,
                 std::optional<bool> CsvProfile::*, int CsvProfile::*,
                 std::optional<int> CsvProfile::*, std::optional<QChar> CsvProfile::*,
                 std::optional<DecimalMark> CsvProfile::*, std::optional<DateFormat> CsvProfile::*,
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
        {QStringLiteral("valueDate"), &CsvProfile::valueDateColumn},
        {QStringLiteral("amount"), &CsvProfile::amountColumn},
        {QStringLiteral("in"), &CsvProfile::inColumn},
        {QStringLiteral("out"), &CsvProfile::outColumn},
        {QStringLiteral("sign"), &CsvProfile::signColumn},
        {QStringLiteral("negative"), &CsvProfile::negativeSigns},
        {QStringLiteral("fee"), &CsvProfile::feeColumn},
        {QStringLiteral("payee"), &CsvProfile::payeeColumn},
        {QStringLiteral("text"), &CsvProfile::textColumns},
        {QStringLiteral("id"), &CsvProfile::idColumn},
        {QStringLiteral("currency"), &CsvProfile::currencyColumn},
        {QStringLiteral("status"), &CsvProfile::statusColumn},
        {QStringLiteral("balance"), &CsvProfile::balanceColumn},
        {QStringLiteral("account"), &CsvProfile::accountColumn},
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
    void operator()(bool CsvProfile::*member) const { m_profile.*member = yes(); }
    void operator()(std::optional<bool> CsvProfile::*member) const { m_profile.*member = yes(); }
    void operator()(int CsvProfile::*member) const { m_profile.*member = count(); }
    void operator()(std::optional<int> CsvProfile::*member) const { m_profile.*member = count(); }
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
    void operator()(std::optional<DateFormat> CsvProfile::*member) const
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
    [[nodiscard]] bool yes() const
    {
        demand(m_value.isBool());
        return m_value.toBool();
    }
    [[nodiscard]] int count() const
    {
        demand(m_value.toInt(-1) >= 0 && m_value.toInt() <= CsvProfile::skippedMax);
        return m_value.toInt();
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

QJsonValue jsonOf(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

QJsonValue jsonOf(QChar character)
{
    return QString(character);
}

QJsonValue jsonOf(DecimalMark mark)
{
    return QString(QChar(static_cast<char16_t>(mark)));
}

QJsonValue jsonOf(const DateFormat &format)
{
    return format.text();
}

QJsonValue jsonOf(const std::vector<AccountRule> &rules)
{
    QJsonArray array;
    for (const AccountRule &rule : rules)
        array.append(QJsonObject{{QStringLiteral("contains"), rule.contains},
                                 {QStringLiteral("account"), rule.account}});
    return array;
}

template <typename T>
requires std::constructible_from<QJsonValue, T> QJsonValue jsonOf(const T &value)
{
    return QJsonValue(value);
}

template <typename T>
QJsonValue jsonOf(const std::optional<T> &value)
{
    return value ? jsonOf(*value) : QJsonValue();
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
