// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank_account_types.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <array>
#include <stdexcept>

namespace kiv::banking {
namespace {

struct Kind {
    const char *name;
    accounting::AccountTypes accountType;
};

/// By the values of BankAccountTypes.
constexpr std::array<Kind, 9> kinds{{
    {QT_TRANSLATE_NOOP("QObject", "unknown"), accounting::AccountTypes::Unknown},
    {QT_TRANSLATE_NOOP("QObject", "checking"), accounting::AccountTypes::Asset},
    {QT_TRANSLATE_NOOP("QObject", "savings"), accounting::AccountTypes::Asset},
    {QT_TRANSLATE_NOOP("QObject", "credit card"), accounting::AccountTypes::Liability},
    {QT_TRANSLATE_NOOP("QObject", "loan"), accounting::AccountTypes::Liability},
    {QT_TRANSLATE_NOOP("QObject", "goal sub-account"), accounting::AccountTypes::Asset},
    {QT_TRANSLATE_NOOP("QObject", "line of credit"), accounting::AccountTypes::Liability},
    {QT_TRANSLATE_NOOP("QObject", "money market"), accounting::AccountTypes::Asset},
    {QT_TRANSLATE_NOOP("QObject", "cash"), accounting::AccountTypes::Asset},
}};

const Kind &kindOf(BankAccountTypes type)
{
    const auto value = static_cast<std::size_t>(type);
    if (value >= kinds.size())
        throw std::logic_error("An unknown bank account type was supplied.");
    return kinds[value];
}

} // namespace

accounting::AccountTypes toAccountTypes(BankAccountTypes type)
{
    return kindOf(type).accountType;
}

bool isAssetAccount(BankAccountTypes type)
{
    return toAccountTypes(type) == accounting::AccountTypes::Asset;
}

bool isLiabilityAccount(BankAccountTypes type)
{
    return toAccountTypes(type) == accounting::AccountTypes::Liability;
}

QString toQString(BankAccountTypes type)
{
    return QString::fromLatin1(kindOf(type).name);
}

QString presentationText(BankAccountTypes type)
{
    return QObject::tr(kindOf(type).name);
}

std::ostream &operator<<(std::ostream &out, BankAccountTypes type)
{
    return out << kindOf(type).name;
}

QDebug operator<<(QDebug debug, BankAccountTypes type)
{
    return foundation::streamed(debug, type);
}

} // namespace kiv::banking
