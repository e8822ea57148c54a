// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/journal.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

#include <map>

namespace kiv::app {

using accounting::Transaction;
using accounting::TransactionStatuses;

namespace {

QString amountText(const numira::Money &money)
{
    return foundation::toQString(money) + u' ' + foundation::toQString(money.code());
}

QString markOf(TransactionStatuses status)
{
    switch (status) {
    case TransactionStatuses::Cleared:
        return QStringLiteral("! ");
    case TransactionStatuses::Reconciled:
        return QStringLiteral("* ");
    case TransactionStatuses::None:
        break;
    }
    return {};
}

/// A description on one line that begins no comment.
QString safeDescription(const Transaction &transaction)
{
    return foundation::escaped(transaction.description().value_or(QString()).simplified())
        .replace(u';', u',');
}

/// How each currency is written, so that every reader takes the point for what
/// it is and shows all digits.
void declareCurrencies(QString &text, const AccountIndex &index,
                       const std::vector<Transaction> &transactions)
{
    std::map<numira::Currency, unsigned> digits;
    const auto note = [&digits](const numira::Money &money) {
        unsigned &most = digits[money.code()];
        most = std::max({most, money.amount().digits(), numira::minorUnitDigits(money.code())});
    };
    for (const accounting::Account &account : index.accounts())
        note(account.balance());
    for (const Transaction &transaction : transactions) {
        note(transaction.debitAmount());
        note(transaction.creditAmount());
    }
    for (const auto &[currency, count] : digits) {
        const QString code = foundation::toQString(currency);
        text += QStringLiteral("commodity %1\n").arg(code);
        // No form of an amount without decimals suits both readers.
        if (count > 0)
            text += QStringLiteral("    format 1000.%2 %1\n")
                        .arg(code, QString(static_cast<qsizetype>(count), u'0'));
    }
    text += u'\n';
}

QString cell(const QString &text)
{
    QString safe = foundation::escaped(text);
    if (!safe.isEmpty() && QStringLiteral("=+-@").contains(safe.front()))
        safe.prepend(u'\'');
    return u'"' + safe.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

QByteArray toJournal(const AccountIndex &index, const std::vector<Transaction> &transactions)
{
    QString text;
    declareCurrencies(text, index, transactions);
    for (const accounting::Account &account : index.accounts()) {
        const accounting::AccountNumber number = account.code().number();
        text += QStringLiteral("account %1\n    ; number: %2\n")
                    .arg(index.path(number), accounting::presentationText(number));
    }
    for (const Transaction &transaction : transactions) {
        const numira::Money &debit = transaction.debitAmount();
        const numira::Money &credit = transaction.creditAmount();
        const auto number = transaction.number().value_or(accounting::TransactionNumber());
        QString debitText = amountText(debit);
        if (debit.code() != credit.code())
            debitText += QStringLiteral(" @@ ") + amountText(credit);
        text +=
            QStringLiteral("\n%1 (%2) %3\n    %4%5  %6\n    %7%8  %9\n")
                .arg(transaction.occurredOn().toString(Qt::ISODate),
                     accounting::presentationText(number), safeDescription(transaction),
                     markOf(transaction.debitStatus()), index.path(transaction.debiting().number()),
                     debitText, markOf(transaction.creditStatus()),
                     index.path(transaction.crediting().number()), amountText(-credit));
    }
    return text.toUtf8();
}

QByteArray toCsv(const AccountIndex &index, const std::vector<Transaction> &transactions)
{
    QString text = QStringLiteral("number,date,debit,debitAccount,credit,creditAccount,amount,"
                                  "currency,description,debitStatus,creditStatus\r\n");
    for (const Transaction &transaction : transactions) {
        const accounting::AccountNumber debit = transaction.debiting().number();
        const accounting::AccountNumber credit = transaction.crediting().number();
        const QStringList cells{accounting::presentationText(
                                    transaction.number().value_or(accounting::TransactionNumber())),
                                transaction.occurredOn().toString(Qt::ISODate),
                                accounting::presentationText(debit),
                                index.path(debit),
                                accounting::presentationText(credit),
                                index.path(credit),
                                foundation::toQString(transaction.amount()),
                                foundation::toQString(transaction.amount().code()),
                                transaction.description().value_or(QString()),
                                accounting::toQString(transaction.debitStatus()),
                                accounting::toQString(transaction.creditStatus())};
        QStringList quoted;
        for (const QString &value : cells)
            quoted += cell(value);
        text += quoted.join(u',') + QStringLiteral("\r\n");
    }
    return text.toUtf8();
}

} // namespace kiv::app
