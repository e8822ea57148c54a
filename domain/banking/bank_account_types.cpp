// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank_account_types.h"

#include "banking/internal/mistakes.h"

#include "foundation/enum_table.h"

#include <QtCore/QObject>

#include <array>
#include <ostream>

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
    if (const Kind *known = foundation::entryOf(kinds, type))
        return *known;
    throw internal::bankAccountTypeUnknown();
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

} // namespace kiv::banking
