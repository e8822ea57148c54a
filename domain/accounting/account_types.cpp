// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_types.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

#include <stdexcept>

namespace kiv::accounting {

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
    throw std::logic_error("An unknown account type has no side on which its balance is positive.");
}

QString toQString(AccountTypes type)
{
    switch (type) {
    case AccountTypes::Unknown:
        return QStringLiteral("unknown");
    case AccountTypes::Asset:
        return QStringLiteral("asset");
    case AccountTypes::Equity:
        return QStringLiteral("equity");
    case AccountTypes::Expense:
        return QStringLiteral("expense");
    case AccountTypes::Liability:
        return QStringLiteral("liability");
    case AccountTypes::Income:
        return QStringLiteral("income");
    }
    throw std::logic_error("An unknown account type has no name.");
}

QString presentationText(AccountTypes type)
{
    switch (type) {
    case AccountTypes::Unknown:
        return QObject::tr("Unknown");
    case AccountTypes::Asset:
        return QObject::tr("Asset");
    case AccountTypes::Equity:
        return QObject::tr("Equity");
    case AccountTypes::Expense:
        return QObject::tr("Expense");
    case AccountTypes::Liability:
        return QObject::tr("Liability");
    case AccountTypes::Income:
        return QObject::tr("Income");
    }
    throw std::logic_error("An unknown account type has no text.");
}

std::ostream &operator<<(std::ostream &out, AccountTypes type)
{
    return out << toQString(type).toStdString();
}

QDebug operator<<(QDebug debug, AccountTypes type)
{
    return foundation::streamed(std::move(debug), type);
}

QString toQString(TransactionStatuses status)
{
    switch (status) {
    case TransactionStatuses::None:
        return QStringLiteral("none");
    case TransactionStatuses::Cleared:
        return QStringLiteral("cleared");
    case TransactionStatuses::Reconciled:
        return QStringLiteral("reconciled");
    }
    throw std::logic_error("An unknown transaction status has no name.");
}

std::ostream &operator<<(std::ostream &out, TransactionStatuses status)
{
    return out << toQString(status).toStdString();
}

QDebug operator<<(QDebug debug, TransactionStatuses status)
{
    return foundation::streamed(std::move(debug), status);
}

} // namespace kiv::accounting
