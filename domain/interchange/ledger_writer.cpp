// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/ledger_writer.h"

#include "interchange/account_paths.h"
#include "interchange/csv_table.h"
#include "interchange/internal/journal_parser.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionStatuses;

namespace {

QString amountText(const numira::Money &money)
{
    return foundation::toQString(money) + u' ' + foundation::toQString(money.code());
}

QString numberText(const Transaction &transaction)
{
    return accounting::presentationText(
        transaction.number().value_or(accounting::TransactionNumber()));
}

QString markOf(TransactionStatuses status)
{
    if (status == TransactionStatuses::Cleared)
        return QStringLiteral("! ");
    return status == TransactionStatuses::Reconciled ? QStringLiteral("* ") : QString();
}

/// The description on one line, without a start of a comment.
QString safeDescription(const Transaction &transaction)
{
    return foundation::escaped(transaction.description().value_or(QString()).simplified())
        .replace(u';', u',');
}

/// How each currency is written, so that every reader takes the point for the decimal mark
/// and shows all digits.
void declareCurrencies(QString &text, const std::set<Account> &accounts,
                       const std::vector<Transaction> &transactions)
{
    std::map<numira::Currency, unsigned> digits;
    const auto note = [&digits](const numira::Money &money) {
        unsigned &most = digits[money.code()];
        most = std::max({most, money.amount().digits(), numira::minorUnitDigits(money.code())});
    };
    for (const Account &account : accounts)
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

} // namespace

QByteArray writeJournal(const std::set<Account> &accounts,
                        const std::vector<Transaction> &transactions)
{
    const std::map<AccountNumber, QString> paths = accountPaths(accounts);
    QString text = internal::JournalParser::ownHeader() + u'\n';
    declareCurrencies(text, accounts, transactions);
    for (const Account &account : accounts) {
        const AccountNumber number = account.code().number();
        text += QStringLiteral("account %1\n    ; number: %2, currency: %3\n")
                    .arg(paths.at(number), accounting::presentationText(number),
                         foundation::toQString(account.balance().code()));
    }
    for (const Transaction &transaction : transactions) {
        const numira::Money &debit = transaction.debitAmount();
        const numira::Money &credit = transaction.creditAmount();
        QString debitText = amountText(debit);
        if (debit.code() != credit.code())
            debitText += QStringLiteral(" @@ ") + amountText(credit);
        text += QStringLiteral("\n%1 (%2) %3\n    %4%5  %6\n    %7%8  %9\n")
                    .arg(transaction.occurredOn().toString(Qt::ISODate), numberText(transaction),
                         safeDescription(transaction), markOf(transaction.debitStatus()),
                         paths.at(transaction.debiting().number()), debitText,
                         markOf(transaction.creditStatus()),
                         paths.at(transaction.crediting().number()), amountText(-credit));
    }
    return text.toUtf8();
}

QByteArray writeCsv(const std::set<Account> &accounts, const std::vector<Transaction> &transactions)
{
    const std::map<AccountNumber, QString> paths = accountPaths(accounts);
    QString text = QStringLiteral("number,date,debit,debitAccount,credit,creditAccount,amount,"
                                  "currency,description,debitStatus,creditStatus\r\n");
    for (const Transaction &transaction : transactions) {
        const AccountNumber debit = transaction.debiting().number();
        const AccountNumber credit = transaction.crediting().number();
        text += csvLine({numberText(transaction), transaction.occurredOn().toString(Qt::ISODate),
                         accounting::presentationText(debit), paths.at(debit),
                         accounting::presentationText(credit), paths.at(credit),
                         foundation::toQString(transaction.amount()),
                         foundation::toQString(transaction.amount().code()),
                         transaction.description().value_or(QString()),
                         accounting::toQString(transaction.debitStatus()),
                         accounting::toQString(transaction.creditStatus())});
    }
    return text.toUtf8();
}

} // namespace kiv::interchange
