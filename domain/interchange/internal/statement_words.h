// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

/// The words of English, German and Spanish by which banks' tables are understood.
/// Headings stand in the form of `plainHeading`: in lower case, without marks; what
/// stands in cells is compared in any case.
namespace kiv::interchange::internal::words {

inline QStringList listed(const QString &words)
{
    return words.split(u'|');
}

inline const QStringList date =
    listed(QStringLiteral("date|booking date|transaction date|posting date|buchungstag|"
                          "buchungsdatum|datum|fecha|fecha operacion|fecha de operacion"));
inline const QStringList amount = listed(QStringLiteral("amount|betrag|umsatz|importe|cantidad"));
/// The two columns of some; a bank's debit lessens what the customer has.
inline const QStringList out =
    listed(QStringLiteral("debit|debit amount|withdrawal|withdrawals|money out|paid out|soll|"
                          "belastung|lastschrift|cargo|cargos|debe"));
inline const QStringList in =
    listed(QStringLiteral("credit|credit amount|deposit|deposits|money in|paid in|haben|"
                          "gutschrift|abono|abonos|haber"));
inline const QStringList text =
    listed(QStringLiteral("description|memo|payee|details|verwendungszweck|buchungstext|text|"
                          "concepto|descripcion"));
/// A reference is often the payer's own, the same each month, and so not among them.
inline const QStringList id = listed(QStringLiteral("fitid|transaction id"));
inline const QStringList currency =
    listed(QStringLiteral("currency|wahrung|waehrung|moneda|divisa"));

/// In a column that tells which way an amount without a sign went.
inline const QStringList wentOut =
    listed(QStringLiteral("S|SOLL|D|DR|DEB|DEBIT|DBIT|WITHDRAWAL|OUT|BELASTUNG|LASTSCHRIFT|"
                          "AUSGANG|DEBE|CARGO|-"));
inline const QStringList cameIn =
    listed(QStringLiteral("H|HABEN|C|CR|CRE|CREDIT|CRDT|DEPOSIT|IN|GUTSCHRIFT|EINGANG|HABER|"
                          "ABONO|+"));
/// Where the bank tells how far an entry has come.
inline const QStringList status =
    listed(QStringLiteral("status|state|booking status|posting status|transaction status|"
                          "buchungsstatus|umsatzstatus|info|estado"));
/// What the account holds after an entry.
inline const QStringList balance =
    listed(QStringLiteral("balance|running balance|account balance|saldo|kontostand|"
                          "saldo nach buchung"));
/// While the bank has not booked an entry, and may still change it.
inline const QStringList pending = listed(QStringLiteral("PENDING|VORGEMERKT|PENDIENTE"));

} // namespace kiv::interchange::internal::words
