// SPDX-License-Identifier: GPL-3.0-or-later
// What the cells of the register show and tell.
#include "models/register_model.h"

#include "widgets/colours.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/entry_forms.h"

#include "foundation/local_dates.h"

#include <QtGui/QGuiApplication>

#include <algorithm>

namespace kiv::desktop {

using accounting::Transaction;
using accounting::TransactionStatuses;
using numira::Money;

namespace {

/// What an empty cell shows, so that nothing looks forgotten.
const QString &nothing()
{
    static const QString dash(u'\u2013');
    return dash;
}

QString markWord(TransactionStatuses status)
{
    switch (status) {
    case TransactionStatuses::Cleared:
        return RegisterModel::tr("cleared");
    case TransactionStatuses::Reconciled:
        return RegisterModel::tr("reconciled");
    case TransactionStatuses::None:
        break;
    }
    return RegisterModel::tr("open");
}

QString markText(TransactionStatuses status)
{
    const char16_t sign = status == TransactionStatuses::Reconciled ? u'\u25cf'
                          : status == TransactionStatuses::Cleared  ? u'\u2713'
                                                                    : u'\u25cb';
    return QChar(sign) + QStringLiteral(" ") + markWord(status);
}

QString descriptionText(const Transaction &transaction)
{
    QString text = workbench::payeeAndReason(transaction);
    if (!transaction.refundOf())
        return text;
    return text.isEmpty() ? RegisterModel::tr("Refund") : RegisterModel::tr("Refund: %1").arg(text);
}

} // namespace

QVariant RegisterModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int row = index.row();
    const Column column = m_columns[static_cast<std::size_t>(index.column())];
    const bool isMoney = column == Column::Amount || column == Column::Balance;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(transaction(row), row, column);
    case Qt::AccessibleTextRole:
        return index.column() == 0 ? spokenRow(transaction(row), row)
                                   : spoken(transaction(row), row, column);
    case Qt::TextAlignmentRole:
        return QVariant(isMoney || column == Column::Number ? Qt::AlignRight | Qt::AlignVCenter
                                                            : Qt::AlignLeft | Qt::AlignVCenter);
    case SortRole:
        return sortValue(transaction(row), row, column);
    case Qt::ForegroundRole:
        return ink(row, column);
    case SectionRole:
        return static_cast<int>(section(row));
    default:
        return {};
    }
}

QVariant RegisterModel::ink(int row, Column column) const
{
    const bool isNegative =
        (column == Column::Balance && m_account && balance(row).isNegative()) ||
        (column == Column::Amount && signedAmount(transaction(row)).isNegative());
    if (isNegative)
        return colour(Colour::Negative, QGuiApplication::palette());
    if (section(row) == Section::Ahead)
        return colour(Colour::Faint, QGuiApplication::palette());
    return {};
}

QString RegisterModel::otherText(const Transaction &transaction) const
{
    if (!m_account)
        return tr("%1 \u2192 %2")
            .arg(m_accounts->plainName(transaction.crediting().number()),
                 m_accounts->plainName(transaction.debiting().number()));
    return m_accounts->plainName(transaction.debiting().number() == *m_account
                                     ? transaction.crediting().number()
                                     : transaction.debiting().number());
}

QString RegisterModel::text(const Transaction &transaction, int row, Column column) const
{
    const auto orNothing = [](const QString &text) { return text.isEmpty() ? nothing() : text; };
    switch (column) {
    case Column::Number:
        return accounting::presentationText(number(row));
    case Column::Day:
        return foundation::localText(transaction.occurredOn());
    case Column::Text:
        return orNothing(descriptionText(transaction));
    case Column::Other:
        return otherText(transaction);
    case Column::Debit:
        return m_accounts->label(transaction.debiting().number());
    case Column::Credit:
        return m_accounts->label(transaction.crediting().number());
    case Column::Mark:
        return markText(m_account
                            ? transaction.seenFrom(*m_account).status()
                            : std::max(transaction.debitStatus(), transaction.creditStatus()));
    case Column::Amount:
        return workbench::amountText(signedAmount(transaction), m_displayAs);
    case Column::Balance:
        return m_account ? workbench::amountText(balance(row), m_displayAs) : nothing();
    }
    return {};
}

QString RegisterModel::spoken(const Transaction &transaction, int row, Column column) const
{
    const auto inWords = [this](const Money &money) {
        const QString text = workbench::amountText(money.abs(), m_displayAs);
        return money.isNegative() ? tr("minus %1").arg(text) : text;
    };
    switch (column) {
    case Column::Text: {
        const QString text = descriptionText(transaction);
        return text.isEmpty() ? tr("no payee or reason") : text;
    }
    case Column::Other:
        return m_account ? otherText(transaction)
                         : tr("from %1 to %2")
                               .arg(m_accounts->plainName(transaction.crediting().number()),
                                    m_accounts->plainName(transaction.debiting().number()));
    case Column::Mark:
        return text(transaction, row, column).sliced(2);
    case Column::Amount:
        return inWords(signedAmount(transaction));
    case Column::Balance:
        return m_account ? inWords(balance(row)) : tr("no balance");
    default:
        return text(transaction, row, column);
    }
}

QString RegisterModel::spokenRow(const Transaction &transaction, int row) const
{
    QStringList parts;
    for (const Column column : m_columns) {
        const QString part = spoken(transaction, row, column);
        if (column != Column::Balance)
            parts += part;
        else if (m_account)
            parts += tr("balance %1").arg(part);
    }
    return parts.join(QStringLiteral(", "));
}

QVariant RegisterModel::sortValue(const Transaction &transaction, int row, Column column) const
{
    switch (column) {
    case Column::Number:
        return number(row).integer();
    case Column::Day:
        return transaction.occurredOn();
    case Column::Amount:
        return signedAmount(transaction).amount().toDouble();
    case Column::Balance:
        return m_account ? balance(row).amount().toDouble() : 0.0;
    case Column::Mark:
        return static_cast<int>(transaction.status());
    default:
        return text(transaction, row, column);
    }
}

QVariant RegisterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column column = m_columns[static_cast<std::size_t>(section)];
    if (role == Qt::TextAlignmentRole)
        return data(index(0, section), role);
    if (role != Qt::DisplayRole)
        return {};
    switch (column) {
    case Column::Number:
        return tr("No.");
    case Column::Day:
        return tr("Day");
    case Column::Text:
        return tr("Payee and reason");
    case Column::Other:
        return m_account ? tr("Account or item") : tr("From and to");
    case Column::Debit:
        return tr("Debit");
    case Column::Credit:
        return tr("Credit");
    case Column::Mark:
        return tr("Mark");
    case Column::Amount:
        return tr("Amount");
    case Column::Balance:
        return tr("Balance");
    }
    return {};
}

} // namespace kiv::desktop
