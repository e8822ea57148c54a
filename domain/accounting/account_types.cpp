// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_types.h"

#include "accounting/internal/mistakes.h"

#include "foundation/enum_table.h"

#include <QtCore/QObject>

#include <array>
#include <ostream>

namespace kiv::accounting {
namespace {

struct Type {
    const char *name;
    const char *text; ///< for the user
};

/// By the values of AccountTypes.
constexpr std::array<Type, 6> types{{
    {"unknown", QT_TRANSLATE_NOOP("QObject", "Unknown")},
    {"asset", QT_TRANSLATE_NOOP("QObject", "Asset")},
    {"equity", QT_TRANSLATE_NOOP("QObject", "Equity")},
    {"expense", QT_TRANSLATE_NOOP("QObject", "Expense")},
    {"liability", QT_TRANSLATE_NOOP("QObject", "Liability")},
    {"income", QT_TRANSLATE_NOOP("QObject", "Income")},
}};

/// By the values of TransactionStatuses.
constexpr std::array<const char *, 3> statuses{"none", "cleared", "reconciled"};

const char *nameOf(AccountTypes type)
{
    if (const Type *known = foundation::entryOf(types, type))
        return known->name;
    throw internal::typeWithoutName();
}

const char *nameOf(TransactionStatuses status)
{
    if (const auto *known = foundation::entryOf(statuses, status))
        return *known;
    throw internal::statusWithoutName();
}

} // namespace

bool isDebitNormal(AccountTypes type)
{
    switch (type) {
    case AccountTypes::Asset:
    case AccountTypes::Expense:
        return true;
    case AccountTypes::Equity:
    case AccountTypes::Liability:
    case AccountTypes::Income:
        return false;
    case AccountTypes::Unknown:
        break;
    }
    throw internal::typeWithoutSide();
}

QString toQString(AccountTypes type)
{
    return QString::fromLatin1(nameOf(type));
}

QString presentationText(AccountTypes type)
{
    if (const Type *known = foundation::entryOf(types, type))
        return QObject::tr(known->text);
    throw internal::typeWithoutText();
}

std::ostream &operator<<(std::ostream &out, AccountTypes type)
{
    return out << nameOf(type);
}

QString toQString(TransactionStatuses status)
{
    return QString::fromLatin1(nameOf(status));
}

std::ostream &operator<<(std::ostream &out, TransactionStatuses status)
{
    return out << nameOf(status);
}

} // namespace kiv::accounting
