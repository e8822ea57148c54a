// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/statement_words.h"

#include "interchange/internal/month_names.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <algorithm>
#include <vector>

namespace kiv::interchange::internal::words {

namespace {

constexpr int columnCount = static_cast<int>(Column::Account) + 1;

/// In the order of the enumerators: English, German, Spanish, French, Dutch, Italian,
/// Portuguese, Polish, Hungarian, Scandinavian.
const char *const headingTexts[columnCount] = {
    // Date
    "booking date|date booked|booked date|posting date|posted date|date posted|post date|"
    "date processed|processed date|processing date|completed date|date completed|"
    "buchungstag|buchungsdatum|buchung|fecha contable|fecha operacion|fecha de operacion|"
    "fecha movimiento|date comptable|date de comptabilisation|date operation|date d operation|"
    "date de l operation|boekdatum|boekingsdatum|datum verrekening|data contabile|"
    "data registrazione|data operazione|data lancamento|data de lancamento|data mov|"
    "data movimento|data do movimento|data operacao|data ksiegowania|data operacji|"
    "konyveles datuma|konyvelesi datum|konyveles napja|bokforingsdag|bokforingsdatum|"
    "bokforingsdato|bogforingsdato|bokfort|bogfort|kirjauspaiva|"
    "transaction date|date of transaction|trans date|tran date|transaktionsdatum|"
    "fecha transaccion|date transaction|date de transaction|transactiedatum|"
    "data transakcji|tranzakcio datuma|tranzakcio napja|transaktionsdag|transaktionsdato|"
    "date|datum|fecha|data|dato|dag|pvm|paivamaara|created|created at|date time|timestamp|"
    "started date|effective date",
    // ValueDate
    "value date|date value|valuta date|valutadatum|wertstellung|wertstellung "
    "(valuta)|wertstellungsdatum|wert|"
    "fecha valor|f valor|date valeur|date de valeur|rentedatum|data valuta|data valor|"
    "data waluty|erteknap|ertekdatum|valutadato|valutadag|rentedato|arvopaiva|valuta|value|"
    "belegdatum|datum verrichting",
    // Amount
    "booked amount|billing amount|account amount|buchungsbetrag|konyvelt osszeg|amount|betrag|"
    "umsatz|importe|cantidad|monto|montant|montant de l operation|montant operation|bedrag|"
    "importo|valor|montante|kwota|kwota operacji|kwota transakcji|osszeg|tranzakcio osszege|"
    "belopp|belob|belop|maara|transaction amount|net|net amount|value|sum|summe|summa",
    // In
    "credit|credits|credit amount|deposit|deposits|deposit amount|money in|paid in|inflow|"
    "haben|gutschrift|eingang|einnahmen|abono|abonos|haber|ingresos|credito|creditos|bij|"
    "accrediti|accredito|avere|entrate|entradas|uznania|uznanie|wplywy|jovairas|bevetel|"
    "insattning|ind|indbetaling|indsat|inn|inn pa konto|kredit|in",
    // Out
    "debit|debits|debit amount|withdrawal|withdrawals|withdrawal amount|money out|paid out|"
    "outflow|soll|belastung|lastschrift|ausgang|ausgaben|cargo|cargos|debe|gastos|debito|"
    "debitos|debet|af|addebiti|addebito|dare|uscite|saidas|obciazenia|obciazenie|wydatki|"
    "terheles|kiadas|uttag|ud|udbetaling|haevet|ut|ut fra konto|out",
    // Fee
    "fee|fees|fee amount|gebuhr|gebuhren|gebuehr|comision|comisiones|frais|commissioni|"
    "commissione|prowizja|jutalek|avgift|gebyr",
    // Payee
    "payee|payee name|merchant|merchant name|beneficiary|beneficiary name|counterparty|"
    "counterparty name|counter party|recipient|recipient name|paid to|payer payee|"
    "auftraggeber empfanger|empfanger auftraggeber|auftraggeber begunstigter|"
    "beguenstigter zahlungspflichtiger|begunstigter zahlungspflichtiger|beguenstigter|"
    "begunstigter|zahlungsempfanger|zahlungsbeteiligter|name zahlungsbeteiligter|empfanger|"
    "partnername|partner name|handler|beneficiario|comercio|ordenante|beneficiaire|tiers|"
    "naam tegenpartij|tegenpartij|tegenpartij naam|naam omschrijving|handelaar|controparte|"
    "esercente|destinatario|kontrahent|nazwa kontrahenta|nadawca odbiorca|odbiorca|"
    "nazwa odbiorcy|partner neve|partner|kedvezmenyezett|mottagare|mottaker|modtager|motpart|"
    "saaja|saaja maksaja|name|naam|navn|namn",
    // Text
    "description|transaction description|memo|details|transaction details|narrative|narration|"
    "particulars|purpose|remittance information|remittance info|payment details|"
    "verwendungszweck|buchungsdetails|transaktionsbeschreibung|beschreibung|buchungstext|"
    "umsatztext|text|concepto|descripcion|observaciones|libelle|libelle operation|"
    "libelle de l operation|communication|omschrijving|mededelingen|mededeling|"
    "vrije mededeling|descrizione|descrizione operazione|causale|descricao|"
    "descricao do movimento|historico|opis|opis operacji|opis transakcji|tytul|"
    "tytul operacji|tytulem|kozlemeny|reszletek|megjegyzes|leiras|beskrivning|beskrivelse|"
    "tekst|forklaring|meddelelse|rubrik|viesti|selite|toelichting|note|notes|message|"
    "payment reference",
    // Id
    "fitid|transaction id|transaktions id|transaktionsnummer|id transaccion",
    // Currency
    "buchungswahrung|kontowahrung|account currency|tranzakcio devizaneme|currency|"
    "currency code|ccy|wahrung|waehrung|moneda|divisa|devise|munt|muntsoort|moeda|waluta|"
    "devizanem|valuta|valutta",
    // Status
    "status|state|booking status|posting status|transaction status|buchungsstatus|"
    "umsatzstatus|info|estado|statut|stato|allapot|status transakcji|tila",
    // Balance
    "balance|running balance|account balance|balance after|balance after transaction|saldo|"
    "kontostand|saldo nach buchung|solde|saldo contabile|saldo contabilistico|"
    "saldo po operacji|saldo po transakcji|egyenleg|konyvelt egyenleg",
    // Account
    "account number|account no|account iban|iban|iban account|account|iban auftragskonto|"
    "auftragskonto|kontonummer|konto nr|konto|rekeningnummer|rekening|iban bban|compte|"
    "numero de compte|n de compte|cuenta|numero de cuenta|conto|numero conto|conta|"
    "numer rachunku|numer konta|rachunek|szamlaszam",
};

/// A bit for each column that has the heading.
const QHash<QString, int> &columnsByHeading()
{
    static const QHash<QString, int> columns = [] {
        QHash<QString, int> made;
        for (int column = 0; column < columnCount; ++column) {
            for (const QString &heading : headingsOf(static_cast<Column>(column)))
                made[heading] |= 1 << column;
        }
        return made;
    }();
    return columns;
}

QSet<QString> setOf(const char *texts)
{
    const QStringList list = QString::fromLatin1(texts).split(u'|');
    return {list.begin(), list.end()};
}

/// A longer cell tells something else.
constexpr qsizetype wordsMax = 40;

/// Whether one of the cell's words is listed.
bool hasWord(QStringView cell, const QSet<QString> &listed)
{
    if (cell.isEmpty() || cell.size() > wordsMax)
        return false;
    const QStringList said = plainWord(cell).split(u' ');
    return std::ranges::any_of(said, [&](const QString &word) { return listed.contains(word); });
}

} // namespace

QString plainWord(QStringView text)
{
    QString plain = plainText(text);
    for (QChar &letter : plain) {
        if (QStringLiteral("/_-.:'’*#,;\"").contains(letter) && plain.size() > 1)
            letter = u' ';
    }
    return plain.simplified();
}

const QStringList &headingsOf(Column column)
{
    static const std::vector<QStringList> lists = [] {
        std::vector<QStringList> made;
        for (const char *text : headingTexts)
            made.push_back(QString::fromLatin1(text).split(u'|'));
        return made;
    }();
    return lists[static_cast<std::size_t>(column)];
}

bool isHeading(const QString &plain, std::initializer_list<Column> columns)
{
    const int found = columnsByHeading().value(plain);
    return std::ranges::any_of(
        columns, [found](Column column) { return (found >> static_cast<int>(column)) & 1; });
}

bool isHeading(const QString &plain)
{
    return columnsByHeading().contains(plain);
}

bool saysOut(const QString &plain)
{
    static const QSet<QString> listed =
        setOf("s|soll|d|dr|deb|debit|dbit|withdrawal|out|outflow|outgoing|belastung|lastschrift|"
              "ausgang|debe|cargo|af|uit|debet|dare|addebito|obciazenie|terheles|kiadas|debito|"
              "uttag|ud|ut|-");
    return listed.contains(plain);
}

bool saysIn(const QString &plain)
{
    static const QSet<QString> listed =
        setOf("h|haben|c|cr|cre|credit|crdt|deposit|in|inflow|incoming|gutschrift|eingang|haber|"
              "abono|bij|kredit|avere|accredito|uznanie|jovairas|bevetel|credito|insattning|ind|"
              "inn|+");
    return listed.contains(plain);
}

bool saysPending(QStringView cell)
{
    static const QSet<QString> listed =
        setOf("pending|vorgemerkt|pendiente|reserved|reservierung|"
              "attente|gereserveerd|sospeso|pendente|oczekujaca|oczekujace|fuggoben|"
              "reserverad|reserveret|reservert");
    return hasWord(cell, listed);
}

bool saysUndone(QStringView cell)
{
    static const QSet<QString> listed =
        setOf("reverted|declined|failed|cancelled|canceled|rejected|expired|abgelehnt|"
              "fehlgeschlagen|abgebrochen|rechazado|rechazada|cancelado|cancelada|fallido|refuse|"
              "annule|echoue|geweigerd|mislukt|geannuleerd|rifiutato|annullato|rejeitado|"
              "odrzucona|odrzucono|anulowana|elutasitva|sikertelen|avvisad|afvist|avvist");
    return !cell.isEmpty() && cell.size() <= wordsMax && listed.contains(plainWord(cell));
}

} // namespace kiv::interchange::internal::words
