// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

/// English, German and Spanish words in banks' tables. Headings are written as
/// `plainHeading` returns them: in lower case, without marks. Words in cells are compared
/// ignoring case.
namespace kiv::interchange::internal::words {

inline QStringList listed(const QString &words)
{
    return words.split(u'|');
}

inline const QStringList date =
    listed(QStringLiteral("date|booking date|transaction date|posting date|buchungstag|"
                          "buchungsdatum|datum|fecha|fecha operacion|fecha de operacion"));
inline const QStringList amount = listed(QStringLiteral("amount|betrag|umsatz|importe|cantidad"));
/// Some tables have two columns. A bank's debit is money that leaves the account.
inline const QStringList out =
    listed(QStringLiteral("debit|debit amount|withdrawal|withdrawals|money out|paid out|soll|"
                          "belastung|lastschrift|cargo|cargos|debe"));
inline const QStringList in =
    listed(QStringLiteral("credit|credit amount|deposit|deposits|money in|paid in|haben|"
                          "gutschrift|abono|abonos|haber"));
inline const QStringList text =
    listed(QStringLiteral("description|memo|payee|details|verwendungszweck|buchungstext|text|"
                          "concepto|descripcion"));
/// "Reference" is missing on purpose: it is often the payer's own and the same each month.
inline const QStringList id = listed(QStringLiteral("fitid|transaction id"));
inline const QStringList currency =
    listed(QStringLiteral("currency|wahrung|waehrung|moneda|divisa"));

/// In a column that tells the direction of an amount without a sign.
inline const QStringList wentOut =
    listed(QStringLiteral("S|SOLL|D|DR|DEB|DEBIT|DBIT|WITHDRAWAL|OUT|BELASTUNG|LASTSCHRIFT|"
                          "AUSGANG|DEBE|CARGO|-"));
inline const QStringList cameIn =
    listed(QStringLiteral("H|HABEN|C|CR|CRE|CREDIT|CRDT|DEPOSIT|IN|GUTSCHRIFT|EINGANG|HABER|"
                          "ABONO|+"));
/// The column that tells whether the bank has booked an entry.
inline const QStringList status =
    listed(QStringLiteral("status|state|booking status|posting status|transaction status|"
                          "buchungsstatus|umsatzstatus|info|estado"));
/// The account's balance after an entry.
inline const QStringList balance =
    listed(QStringLiteral("balance|running balance|account balance|saldo|kontostand|"
                          "saldo nach buchung"));
/// Status of an entry that the bank has not booked and may still change.
inline const QStringList pending = listed(QStringLiteral("PENDING|VORGEMERKT|PENDIENTE"));

} // namespace kiv::interchange::internal::words
