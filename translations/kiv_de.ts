<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Vermögen</translation>
    </message>
    <message>
        <source>Equity</source>
        <translation>Eigenkapital</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Aufwand</translation>
    </message>
    <message>
        <source>Liability</source>
        <translation>Verbindlichkeit</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Ertrag</translation>
    </message>
    <message>
        <source>There is no account with the number %1.</source>
        <translation>Es gibt kein Konto mit der Nummer %1.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; needs a number above 0.</source>
        <translation>Das Konto „%1“ braucht eine Nummer über 0.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot have the number of the account &apos;%2&apos;.</source>
        <translation>Das Konto „%1“ kann nicht die Nummer des Kontos „%2“ haben.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; needs a type.</source>
        <translation>Das Konto „%1“ braucht eine Kontoart.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account %2, which does not exist.</source>
        <translation>Das Konto „%1“ kann nicht unter dem Konto %2 stehen, da es dieses nicht gibt.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; of type %2 cannot stand under the account &apos;%3&apos; of type %4.</source>
        <translation>Das Konto „%1“ der Art %2 kann nicht unter dem Konto „%3“ der Art %4 stehen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account &apos;%2&apos;, which is the same account or stands under it.</source>
        <translation>Das Konto „%1“ kann nicht unter dem Konto „%2“ stehen; dieses ist dasselbe Konto oder steht unter ihm.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account &apos;%2&apos;: accounts can be nested at most %3 deep.</source>
        <translation>Das Konto „%1“ kann nicht unter dem Konto „%2“ stehen: Konten lassen sich höchstens %3 Ebenen tief verschachteln.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is open already.</source>
        <translation>Das Konto „%1“ ist bereits offen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is closed.</source>
        <translation>Das Konto „%1“ ist geschlossen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be closed while its balance is %2.</source>
        <translation>Das Konto „%1“ kann nicht geschlossen werden, solange sein Saldo %2 beträgt.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while accounts stand under it.</source>
        <translation>Das Konto „%1“ kann nicht entfernt werden, solange Konten unter ihm stehen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while it has transactions.</source>
        <translation>Das Konto „%1“ kann nicht entfernt werden, solange es Buchungen hat.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while its opening transaction %2 is reconciled.</source>
        <translation>Das Konto „%1“ kann nicht entfernt werden, solange seine Eröffnungsbuchung %2 abgeglichen ist.</translation>
    </message>
    <message>
        <source>The amounts of the account &apos;%1&apos; would become too large.</source>
        <translation>Die Beträge des Kontos „%1“ würden zu groß.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be kept in %2, as the amount of its transaction %3 cannot be converted.</source>
        <translation>Das Konto „%1“ kann nicht in %2 geführt werden, da der Betrag seiner Buchung %3 nicht umgerechnet werden kann.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be kept in %2: the %3 of its transaction %4 would round to zero.</source>
        <translation>Das Konto „%1“ kann nicht in %2 geführt werden: Die %3 seiner Buchung %4 würden auf null gerundet.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; of type %2 cannot hold opening balances.</source>
        <translation>Das Konto „%1“ der Art %2 kann keine Anfangssalden aufnehmen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; was opened by the transaction %2 already.</source>
        <translation>Das Konto „%1“ wurde bereits durch die Buchung %2 eröffnet.</translation>
    </message>
    <message>
        <source>The balance %1 of the account &apos;%2&apos; cannot be changed by %3.</source>
        <translation>Der Saldo %1 des Kontos „%2“ kann nicht um %3 geändert werden.</translation>
    </message>
    <message>
        <source>The amounts %1 and %2 cannot be compared.</source>
        <translation>Die Beträge %1 und %2 können nicht verglichen werden.</translation>
    </message>
    <message>
        <source>There is no transaction with the number %1.</source>
        <translation>Es gibt keine Buchung mit der Nummer %1.</translation>
    </message>
    <message>
        <source>A transaction needs a valid day.</source>
        <translation>Eine Buchung braucht einen gültigen Tag.</translation>
    </message>
    <message>
        <source>The amount of a transaction must be above zero, but is %1.</source>
        <translation>Der Betrag einer Buchung muss über null liegen, ist aber %1.</translation>
    </message>
    <message>
        <source>A transaction cannot debit and credit the same account &apos;%1&apos;.</source>
        <translation>Eine Buchung kann nicht dasselbe Konto „%1“ im Soll und im Haben haben.</translation>
    </message>
    <message>
        <source>The amount %1 cannot be converted into %2.</source>
        <translation>Der Betrag %1 kann nicht in %2 umgerechnet werden.</translation>
    </message>
    <message>
        <source>The amount %1 rounds to zero in %2.</source>
        <translation>Der Betrag %1 wird in %2 auf null gerundet.</translation>
    </message>
    <message>
        <source>The ledger is full: it holds at most 65,535 transactions.</source>
        <translation>Das Hauptbuch ist voll: Es fasst höchstens 65.535 Buchungen.</translation>
    </message>
    <message>
        <source>The transaction %1 is reconciled; undo its reconciliation before you change it.</source>
        <translation>Die Buchung %1 ist abgeglichen; vor einer Änderung ist ihr Abgleich aufzuheben.</translation>
    </message>
    <message>
        <source>The account %1 is not part of the transaction %2.</source>
        <translation>Das Konto %1 ist an der Buchung %2 nicht beteiligt.</translation>
    </message>
    <message>
        <source>The transaction %1 opened the account &apos;%2&apos; and must stay in it.</source>
        <translation>Die Buchung %1 hat das Konto „%2“ eröffnet und muss darin bleiben.</translation>
    </message>
    <message>
        <source>The transaction %1 is a refund of the transaction %2 and cannot be refunded itself.</source>
        <translation>Die Buchung %1 ist eine Erstattung der Buchung %2 und kann nicht selbst erstattet werden.</translation>
    </message>
    <message>
        <source>A refund of %1 exceeds the %2 that are left of the transaction %3.</source>
        <translation>Eine Erstattung von %1 übersteigt die %2, die von der Buchung %3 übrig sind.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be lowered to %2, as %3 of it were refunded.</source>
        <translation>Die Buchung %1 kann nicht auf %2 gesenkt werden, da %3 von ihr erstattet wurden.</translation>
    </message>
    <message>
        <source>The accounts of the transaction %1 cannot be changed, as it is a refund or was refunded.</source>
        <translation>Die Konten der Buchung %1 können nicht geändert werden, da sie eine Erstattung ist oder erstattet wurde.</translation>
    </message>
    <message>
        <source>The amount of the transaction %1 must stay in %2, in which it was refunded.</source>
        <translation>Der Betrag der Buchung %1 muss in %2 bleiben, da sie darin erstattet wurde.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be removed, as %2 of it were refunded.</source>
        <translation>Die Buchung %1 kann nicht entfernt werden, da %2 von ihr erstattet wurden.</translation>
    </message>
    <message>
        <source>A stored transaction has no number.</source>
        <translation>Eine gespeicherte Buchung hat keine Nummer.</translation>
    </message>
    <message>
        <source>Two transactions have the number %1.</source>
        <translation>Zwei Buchungen haben die Nummer %1.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot have the amount %2 in the account &apos;%3&apos;.</source>
        <translation>Die Buchung %1 kann im Konto „%3“ nicht den Betrag %2 haben.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be a refund of the transaction %2.</source>
        <translation>Die Buchung %1 kann keine Erstattung der Buchung %2 sein.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot have opened the account &apos;%2&apos;.</source>
        <translation>Die Buchung %1 kann das Konto „%2“ nicht eröffnet haben.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>excellent</source>
        <translation>ausgezeichnet</translation>
    </message>
    <message>
        <source>good</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>mittelmäßig</translation>
    </message>
    <message>
        <source>poor</source>
        <translation>schlecht</translation>
    </message>
    <message>
        <source>critical</source>
        <translation>kritisch</translation>
    </message>
    <message>
        <source>%1 % of the income is planned; at most %2 % is possible.</source>
        <translation>%1 % des Einkommens sind verplant; höchstens %2 % sind möglich.</translation>
    </message>
    <message>
        <source>Bills and debts take %1 % of the income; up to %2 % is sound.</source>
        <translation>Rechnungen und Schulden brauchen %1 % des Einkommens; bis %2 % sind solide.</translation>
    </message>
    <message>
        <source>Debts take %1 % of the income; up to %2 % is sound.</source>
        <translation>Schulden brauchen %1 % des Einkommens; bis %2 % sind solide.</translation>
    </message>
    <message>
        <source>Free spending takes %1 % of the income; up to %2 % is sound.</source>
        <translation>Freie Ausgaben brauchen %1 % des Einkommens; bis %2 % sind solide.</translation>
    </message>
    <message>
        <source>Goals get %1 % of the income; from %2 % on is sound.</source>
        <translation>Ziele bekommen %1 % des Einkommens; ab %2 % ist das solide.</translation>
    </message>
    <message>
        <source>There is no income to pay for what goes out.</source>
        <translation>Es gibt kein Einkommen, das die Ausgaben deckt.</translation>
    </message>
    <message>
        <source>There is no income and no spending yet.</source>
        <translation>Es gibt noch kein Einkommen und keine Ausgaben.</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>savings</source>
        <translation>Sparkonto</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>loan</source>
        <translation>Darlehen</translation>
    </message>
    <message>
        <source>goal sub-account</source>
        <translation>Unterkonto eines Ziels</translation>
    </message>
    <message>
        <source>line of credit</source>
        <translation>Kreditlinie</translation>
    </message>
    <message>
        <source>money market</source>
        <translation>Geldmarktkonto</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>Bargeld</translation>
    </message>
    <message>
        <source>The name of a bank cannot be empty.</source>
        <translation>Der Name einer Bank darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; already exists.</source>
        <translation>Die Bank „%1“ gibt es bereits.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; does not exist.</source>
        <translation>Die Bank „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; does not have the account &apos;%2&apos;.</source>
        <translation>Die Bank „%1“ hat das Konto „%2“ nicht.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is already open.</source>
        <translation>Die Bank „%1“ ist bereits offen.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is already closed.</source>
        <translation>Die Bank „%1“ ist bereits geschlossen.</translation>
    </message>
    <message>
        <source>The new budgeted money item source cannot be empty.</source>
        <translation>Der Name des neuen Budgetpostens darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The new budgeted money item source already exists.</source>
        <translation>Der Name des neuen Budgetpostens ist bereits vergeben.</translation>
    </message>
    <message>
        <source>Failed to remove the budgeted money item as it does not exist.</source>
        <translation>Der Budgetposten konnte nicht entfernt werden, da es ihn nicht gibt.</translation>
    </message>
    <message>
        <source>Cannot update the budgeted money item as it does not exist.</source>
        <translation>Der Budgetposten kann nicht geändert werden, da es ihn nicht gibt.</translation>
    </message>
    <message>
        <source>Cannot rename the budgeted money item source as it does not exist.</source>
        <translation>Der Budgetposten kann nicht umbenannt werden, da es ihn nicht gibt.</translation>
    </message>
    <message>
        <source>Cannot rename the budgeted money item source, as the new source, %1, already exists.</source>
        <translation>Der Budgetposten kann nicht umbenannt werden, da der neue Name, %1, bereits vergeben ist.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>daily</source>
        <translation>täglich</translation>
    </message>
    <message>
        <source>every weekday</source>
        <translation>werktäglich</translation>
    </message>
    <message>
        <source>weekly</source>
        <translation>wöchentlich</translation>
    </message>
    <message>
        <source>every two weeks</source>
        <translation>alle zwei Wochen</translation>
    </message>
    <message>
        <source>twice a month</source>
        <translation>zweimal im Monat</translation>
    </message>
    <message>
        <source>monthly</source>
        <translation>monatlich</translation>
    </message>
    <message>
        <source>every two months</source>
        <translation>alle zwei Monate</translation>
    </message>
    <message>
        <source>quarterly</source>
        <translation>vierteljährlich</translation>
    </message>
    <message>
        <source>every four months</source>
        <translation>alle vier Monate</translation>
    </message>
    <message>
        <source>twice a year</source>
        <translation>zweimal im Jahr</translation>
    </message>
    <message>
        <source>yearly</source>
        <translation>jährlich</translation>
    </message>
    <message>
        <source>every two years</source>
        <translation>alle zwei Jahre</translation>
    </message>
    <message>
        <source>every three years</source>
        <translation>alle drei Jahre</translation>
    </message>
    <message>
        <source>every five years</source>
        <translation>alle fünf Jahre</translation>
    </message>
    <message>
        <source>every ten years</source>
        <translation>alle zehn Jahre</translation>
    </message>
    <message>
        <source>bill</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>debt</source>
        <translation>Schuld</translation>
    </message>
    <message>
        <source>goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>non-tracked</source>
        <translation>nicht verfolgt</translation>
    </message>
    <message>
        <source>wage</source>
        <translation>Lohn</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; needs a valid next date.</source>
        <translation>Der Budgetposten „%1“ braucht einen gültigen nächsten Termin.</translation>
    </message>
    <message>
        <source>The amount of the budget item &apos;%1&apos; cannot be negative, but is %2.</source>
        <translation>Der Betrag des Budgetpostens „%1“ darf nicht negativ sein, ist aber %2.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; cannot recur on day %2 of a month.</source>
        <translation>Der Budgetposten „%1“ kann nicht am Tag %2 eines Monats wiederkehren.</translation>
    </message>
    <message>
        <source>A budget item without a frequency has no next date.</source>
        <translation>Ein Budgetposten ohne Turnus hat keinen nächsten Termin.</translation>
    </message>
    <message>
        <source>A budget item with the frequency &apos;%2&apos; has no date after %1.</source>
        <translation>Ein Budgetposten mit dem Turnus „%2“ hat keinen Termin nach dem %1.</translation>
    </message>
    <message>
        <source>The exchange rate of &apos;%1&apos; must be a positive number between 10^-12 and 10^12.</source>
        <translation>Der Wechselkurs von „%1“ muss eine positive Zahl zwischen 10^-12 und 10^12 sein.</translation>
    </message>
    <message>
        <source>The exchange rate of the base currency &apos;%1&apos; must be 1.</source>
        <translation>Der Wechselkurs der Basiswährung „%1“ muss 1 sein.</translation>
    </message>
    <message>
        <source>Exchange rates need a base currency.</source>
        <translation>Wechselkurse brauchen eine Basiswährung.</translation>
    </message>
    <message>
        <source>Exchange rates need the time when they were fetched.</source>
        <translation>Wechselkurse brauchen die Zeit, zu der sie abgerufen wurden.</translation>
    </message>
    <message>
        <source>There is no exchange rate from &apos;%1&apos; to &apos;%2&apos;; fetch the rates, or set it by hand.</source>
        <translation>Es gibt keinen Wechselkurs von „%1“ zu „%2“; er ist abzurufen oder von Hand zu setzen.</translation>
    </message>
    <message>
        <source>The member &apos;%1&apos; of the reply is missing or invalid.</source>
        <translation>Das Element „%1“ der Antwort fehlt oder ist ungültig.</translation>
    </message>
    <message>
        <source>The reply contains the unknown currency &apos;%1&apos;.</source>
        <translation>Die Antwort enthält die unbekannte Währung „%1“.</translation>
    </message>
    <message>
        <source>No answer came in time.</source>
        <translation>Es kam nicht rechtzeitig eine Antwort.</translation>
    </message>
    <message>
        <source>The source of the rates was closed before it answered.</source>
        <translation>Die Quelle der Kurse wurde geschlossen, bevor sie antwortete.</translation>
    </message>
    <message>
        <source>Requests can no longer be sent.</source>
        <translation>Anfragen können nicht mehr gesendet werden.</translation>
    </message>
    <message>
        <source>The reply has none of the wanted rates.</source>
        <translation>Die Antwort enthält keinen der gewünschten Kurse.</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>Failed to find a mutable value under the type &apos;%1&apos; with the key &apos;%2&apos;.</source>
        <translation>Unter dem Typ „%1“ wurde kein änderbarer Wert mit dem Schlüssel „%2“ gefunden.</translation>
    </message>
    <message>
        <source>Failed to find a non-mutable value under the type &apos;%1&apos; with the key &apos;%2&apos;.</source>
        <translation>Unter dem Typ „%1“ wurde kein unveränderlicher Wert mit dem Schlüssel „%2“ gefunden.</translation>
    </message>
    <message>
        <source>Failed to remove the value under the key &apos;%1&apos; as the index type &apos;%2&apos; was not found.</source>
        <translation>Der Wert mit dem Schlüssel „%1“ konnte nicht entfernt werden, da der Typ „%2“ nicht gefunden wurde.</translation>
    </message>
    <message>
        <source>Failed to remove the value under the key &apos;%1&apos; as the key was not found under the index type &apos;%2&apos;.</source>
        <translation>Der Wert mit dem Schlüssel „%1“ konnte nicht entfernt werden, da der Schlüssel unter dem Typ „%2“ nicht gefunden wurde.</translation>
    </message>
    <message>
        <source>amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation>„%1“, Zeile %2: %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>The file is not valid %1 here; name its encoding with --encoding.</source>
        <translation>Die Datei ist hier kein gültiges %1; ihre Kodierung kann mit --encoding angegeben werden.</translation>
    </message>
    <message>
        <source>The line has more than %1 characters.</source>
        <translation>Die Zeile hat mehr als %1 Zeichen.</translation>
    </message>
    <message>
        <source>A budget holds no more than %1 transactions.</source>
        <translation>Ein Budget fasst höchstens %1 Buchungen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date in the form %2.</source>
        <translation>„%1“ ist kein Datum in der Form %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; can be read in two ways; name the decimal mark with --decimal.</source>
        <translation>„%1“ kann auf zwei Arten gelesen werden; das Dezimalzeichen wird mit --decimal angegeben.</translation>
    </message>
    <message>
        <source>An amount here is too large to be kept exactly.</source>
        <translation>Ein Betrag hier ist zu groß, um genau dargestellt zu werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more decimal places than %3, which has %2.</source>
        <translation>„%1“ hat mehr Nachkommastellen als %3; dort sind es %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the ISO 4217 code of a currency.</source>
        <translation>„%1“ ist nicht der ISO-4217-Code einer Währung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be imported.</source>
        <translation>„%1“ kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>The line is indented but belongs to no transaction or directive.</source>
        <translation>Die Zeile ist eingerückt, gehört aber zu keiner Buchung oder Anweisung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins here and is never closed.</source>
        <translation>„%1“ beginnt hier und wird nie geschlossen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known top-level account; tell what it is with --root, like --root &apos;%1=asset&apos;.</source>
        <translation>„%1“ ist kein bekanntes oberstes Konto; was es ist, wird mit --root angegeben, etwa --root &apos;%1=asset&apos;.</translation>
    </message>
    <message>
        <source>The account name is missing.</source>
        <translation>Der Name des Kontos fehlt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount.</source>
        <translation>„%1“ ist kein Betrag.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no currency; name one with --currency.</source>
        <translation>„%1“ hat keine Währung; sie kann mit --currency angegeben werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency; write its cost after @, or name its currency, like --commodity &apos;%1=USD&apos;.</source>
        <translation>„%1“ ist keine Währung; hinter @ kann der Preis stehen, oder die Währung wird angegeben, etwa --commodity &apos;%1=USD&apos;.</translation>
    </message>
    <message>
        <source>The transaction has fewer than two postings.</source>
        <translation>Die Buchung hat weniger als zwei Posten.</translation>
    </message>
    <message>
        <source>More than one posting of the transaction has no amount.</source>
        <translation>Mehr als ein Posten der Buchung hat keinen Betrag.</translation>
    </message>
    <message>
        <source>The transaction does not balance; it is off by %1.</source>
        <translation>Die Buchung geht nicht auf; der Unterschied ist %1.</translation>
    </message>
    <message>
        <source>The balance of &apos;%1&apos; should be %2 here, but is %3.</source>
        <translation>Der Saldo von „%1“ müsste hier %2 sein, ist aber %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid pattern for account names.</source>
        <translation>„%1“ ist kein gültiges Muster für Kontonamen.</translation>
    </message>
    <message>
        <source>Cannot include &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht eingebunden werden: %2.</translation>
    </message>
    <message>
        <source>A quote opens here and is never closed.</source>
        <translation>Ein Anführungszeichen beginnt hier und wird nie geschlossen.</translation>
    </message>
    <message>
        <source>There is text after a closing quote, before the next delimiter.</source>
        <translation>Zwischen einem schließenden Anführungszeichen und dem nächsten Trennzeichen steht Text.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos;; the columns are: %2.</source>
        <translation>Es gibt keine Spalte „%1“; die Spalten sind: %2.</translation>
    </message>
    <message>
        <source>A column is not known; name it with %1. The columns are: %2.</source>
        <translation>Eine Spalte ist nicht bekannt; sie wird mit %1 angegeben. Die Spalten sind: %2.</translation>
    </message>
    <message>
        <source>This table is an exported ledger, not a bank statement; import the journal instead.</source>
        <translation>Diese Tabelle ist ein exportiertes Hauptbuch und kein Kontoauszug; importiert werden kann stattdessen das Journal.</translation>
    </message>
    <message>
        <source>The row has one amount that came in and one that went out.</source>
        <translation>Der Datensatz hat einen Betrag, der einging, und einen, der ausging.</translation>
    </message>
    <message>
        <source>The entry has no %1.</source>
        <translation>Dem Eintrag fehlt: %1.</translation>
    </message>
    <message>
        <source>The amount is in %1, but the account is in %2.</source>
        <translation>Der Betrag ist in %1, das Konto aber in %2.</translation>
    </message>
    <message>
        <source>The file contains no &lt;OFX&gt;.</source>
        <translation>Die Datei enthält kein &lt;OFX&gt;.</translation>
    </message>
    <message>
        <source>A tag is broken: its name or its &apos;&gt;&apos; is missing.</source>
        <translation>Ein Tag ist kaputt: Sein Name oder sein „&gt;“ fehlt.</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; does not close &lt;%2&gt;, which opens on line %3.</source>
        <translation>&lt;/%1&gt; schließt nicht &lt;%2&gt;, das auf Zeile %3 beginnt.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is never closed.</source>
        <translation>&lt;%1&gt; wird nie geschlossen.</translation>
    </message>
    <message>
        <source>Tags are nested too deeply.</source>
        <translation>Tags sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The file contains no statement of a bank account or credit card.</source>
        <translation>Die Datei enthält keinen Auszug eines Bankkontos oder einer Kreditkarte.</translation>
    </message>
    <message>
        <source>The file contains several statements; choose one with --statement: %1.</source>
        <translation>Die Datei enthält mehrere Auszüge; einer wird mit --statement gewählt: %1.</translation>
    </message>
    <message>
        <source>The file contains no statement of &apos;%1&apos;; choose one of: %2.</source>
        <translation>Die Datei enthält keinen Auszug von „%1“; wählbar sind: %2.</translation>
    </message>
    <message>
        <source>The file does not begin with a QIF header like !Type:Bank.</source>
        <translation>Die Datei beginnt nicht mit einer QIF-Kopfzeile wie !Type:Bank.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known field of a bank statement.</source>
        <translation>„%1“ ist kein bekanntes Feld eines Kontoauszugs.</translation>
    </message>
    <message>
        <source>The parts add up to %1, but the whole is %2.</source>
        <translation>Die Teile ergeben %1, das Ganze ist aber %2.</translation>
    </message>
    <message>
        <source>A report cannot end before it begins.</source>
        <translation>Ein Bericht kann nicht enden, bevor er beginnt.</translation>
    </message>
    <message>
        <source>Net worth, %1</source>
        <translation>Reinvermögen, %1</translation>
    </message>
    <message>
        <source>Income, %1</source>
        <translation>Einnahmen, %1</translation>
    </message>
    <message>
        <source>Expenses, %1</source>
        <translation>Ausgaben, %1</translation>
    </message>
    <message>
        <source>The figures as a table</source>
        <translation>Die Zahlen als Tabelle</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Total, %1</source>
        <translation>Summe, %1</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>All accounts are empty.</source>
        <translation>Alle Konten sind leer.</translation>
    </message>
    <message>
        <source>Planned per month</source>
        <translation>Im Monat geplant</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>The plan is today&apos;s, restated per month. ▲ marks months with higher spending.</source>
        <translation>Der Plan ist der heutige, auf den Monat umgerechnet. ▲ kennzeichnet Monate mit höheren Ausgaben.</translation>
    </message>
    <message>
        <source>Net worth over time, %1</source>
        <translation>Reinvermögen im Lauf der Zeit, %1</translation>
    </message>
    <message>
        <source>All assets less all debts at the end of each month; the last is %1.</source>
        <translation>Das gesamte Vermögen am Ende jedes Monats, abzüglich der Verbindlichkeiten; zuletzt %1.</translation>
    </message>
    <message>
        <source>Net worth</source>
        <translation>Reinvermögen</translation>
    </message>
    <message>
        <source>Income and expenses, %1</source>
        <translation>Einnahmen und Ausgaben, %1</translation>
    </message>
    <message>
        <source>Money that came in and money spent in each month.</source>
        <translation>Was in jedem Monat eingenommen und ausgegeben wurde.</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>Budget against actual, %1</source>
        <translation>Plan-Ist-Vergleich, %1</translation>
    </message>
    <message>
        <source>Planned and actual spending per month on bills, debts, goals and non-tracked items.</source>
        <translation>Geplante und tatsächliche Ausgaben im Monat für Rechnungen, Schulden, Ziele und nicht verfolgte Posten.</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Tatsächlich</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the reports, as HTML names it</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Vom %1 bis %2</translation>
    </message>
    <message>
        <source>Balances on %1</source>
        <translation>Salden am %1</translation>
    </message>
    <message>
        <source>Commodities other than currencies are kept at their cost.</source>
        <translation>Was keine Währung ist, wird zum Kaufpreis geführt.</translation>
    </message>
    <message>
        <source>Unbalanced virtual postings are posted against Equity:Virtual.</source>
        <translation>Nicht ausgeglichene virtuelle Posten werden gegen Equity:Virtual gebucht.</translation>
    </message>
    <message>
        <source>Periodic transactions are skipped.</source>
        <translation>Wiederkehrende Buchungen werden übersprungen.</translation>
    </message>
    <message>
        <source>Market prices are skipped; they change no balance.</source>
        <translation>Marktpreise werden übersprungen; sie ändern keinen Saldo.</translation>
    </message>
    <message>
        <source>the journal has no folder</source>
        <translation>das Journal hat keinen Ordner</translation>
    </message>
    <message>
        <source>too many files include each other</source>
        <translation>zu viele Dateien binden einander ein</translation>
    </message>
    <message>
        <source>Second dates of transactions are skipped.</source>
        <translation>Zweite Datumsangaben von Buchungen werden übersprungen.</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>Scheck %1</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>The connection was closed before the answer came.</source>
        <translation>Die Verbindung wurde geschlossen, bevor die Antwort kam.</translation>
    </message>
    <message>
        <source>Requests cannot be sent.</source>
        <translation>Anfragen können nicht gesendet werden.</translation>
    </message>
    <message>
        <source>Only HTTPS is allowed, and plain HTTP to the loopback address.</source>
        <translation>Erlaubt ist nur HTTPS, und einfaches HTTP nur zur eigenen Adresse des Rechners.</translation>
    </message>
    <message>
        <source>The server redirected to another host or to a protocol that is not allowed.</source>
        <translation>Der Server hat auf einen anderen Rechner oder ein nicht erlaubtes Protokoll umgeleitet.</translation>
    </message>
    <message>
        <source>The server redirected more than %1 times.</source>
        <translation>Der Server hat mehr als %1 Mal umgeleitet.</translation>
    </message>
    <message>
        <source>The reply was not complete after %1 ms.</source>
        <translation>Die Antwort war nach %1 ms nicht vollständig.</translation>
    </message>
    <message>
        <source>The reply is larger than %1 bytes.</source>
        <translation>Die Antwort ist größer als %1 Bytes.</translation>
    </message>
    <message>
        <source>The server answered with the status %1.</source>
        <translation>Der Server hat mit dem Status %1 geantwortet.</translation>
    </message>
    <message>
        <source>The reply is compressed, which was not requested.</source>
        <translation>Die Antwort ist komprimiert, was nicht verlangt war.</translation>
    </message>
    <message>
        <source>The transfer failed (%1).</source>
        <translation>Die Übertragung ist fehlgeschlagen (%1).</translation>
    </message>
    <message>
        <source>The reply is not JSON; its type is &apos;%1&apos;.</source>
        <translation>Die Antwort ist kein JSON, sondern vom Typ „%1“.</translation>
    </message>
    <message>
        <source>The reply is not JSON: %1 at byte %2.</source>
        <translation>Die Antwort ist kein JSON: %1 bei Byte %2.</translation>
    </message>
    <message>
        <source>The reply contains a member twice.</source>
        <translation>Die Antwort enthält ein Element zweimal.</translation>
    </message>
    <message>
        <source>Repaired while loading: %1</source>
        <translation>Beim Laden repariert: %1</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>Es wurde keine Datei gewählt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid file name.</source>
        <translation>„%1“ ist kein gültiger Dateiname.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>The folder of the file &apos;%1&apos; does not exist.</source>
        <translation>Den Ordner der Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be read: %2.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is too large.</source>
        <translation>Die Datei „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was not written by this program.</source>
        <translation>Die Datei „%1“ stammt nicht von diesem Programm.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was written by a newer version of this program.</source>
        <translation>Die Datei „%1“ wurde von einer neueren Version dieses Programms geschrieben.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged and was not loaded.</source>
        <translation>Die Datei „%1“ ist beschädigt und wurde nicht geladen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another program.</source>
        <translation>Die Datei „%1“ wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another program (%2).</source>
        <translation>Die Datei „%1“ wird von einem anderen Programm benutzt (%2).</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be changed: %2.</source>
        <translation>Die Datei „%1“ kann nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was changed by another program and was not overwritten.</source>
        <translation>Die Datei „%1“ wurde von einem anderen Programm geändert und nicht überschrieben.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: %2.</source>
        <translation>Die Datei „%1“ konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: it cannot be read back as it was written.</source>
        <translation>Die Datei „%1“ konnte nicht gespeichert werden: Sie lässt sich nicht so lesen, wie sie geschrieben wurde.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was not saved: it cannot hold this budget.</source>
        <translation>Die Datei „%1“ wurde nicht gespeichert: Sie kann dieses Budget nicht fassen.</translation>
    </message>
    <message>
        <source>process %1, %2 on %3</source>
        <translation>Prozess %1, %2 auf %3</translation>
    </message>
    <message>
        <source>The closed account &apos;%1&apos; has a balance and was opened.</source>
        <translation>Das geschlossene Konto „%1“ hat einen Saldo und wurde geöffnet.</translation>
    </message>
    <message>
        <source>A budget item without a name was named &apos;%1&apos;.</source>
        <translation>Ein Budgetposten ohne Namen wurde „%1“ genannt.</translation>
    </message>
    <message>
        <source>The account %1 belonged to the budget item &apos;%2&apos;, which is gone.</source>
        <translation>Das Konto %1 gehörte zum Budgetposten „%2“, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; had lost its account, which was found under the number %2.</source>
        <translation>Der Budgetposten „%1“ hatte sein Konto verloren; es fand sich unter der Nummer %2.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; had lost its account, which was opened anew under the number %2.</source>
        <translation>Der Budgetposten „%1“ hatte sein Konto verloren; es wurde unter der Nummer %2 neu eröffnet.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; had the account %2, which is gone.</source>
        <translation>Die Bank „%1“ hatte das Konto %2, das es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>An increase or a decrease cannot be negative, but is %1.</source>
        <translation>Eine Zunahme oder Abnahme kann nicht negativ sein, ist aber %1.</translation>
    </message>
    <message>
        <source>A survey cannot be completed without a valid date.</source>
        <translation>Ein Abgleich kann ohne gültiges Datum nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version.</source>
        <translation>„%1“ ist keine Version.</translation>
    </message>
    <message>
        <source>The member &apos;%1&apos; of the release is missing or invalid.</source>
        <translation>Das Element „%1“ der Veröffentlichung fehlt oder ist ungültig.</translation>
    </message>
    <message>
        <source>The reply is not a list of releases.</source>
        <translation>Die Antwort ist keine Liste von Veröffentlichungen.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Child</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Teenager</source>
        <translation>Jugendlicher</translation>
    </message>
    <message>
        <source>Adult, single</source>
        <translation>Erwachsener, alleinstehend</translation>
    </message>
    <message>
        <source>Adult, married, single income</source>
        <translation>Erwachsener, verheiratet, ein Einkommen</translation>
    </message>
    <message>
        <source>Adult, married, double income</source>
        <translation>Erwachsener, verheiratet, zwei Einkommen</translation>
    </message>
    <message>
        <source>Enables the advanced GUI instead of the simplified one.</source>
        <translation>Schaltet statt der vereinfachten die erweiterte Oberfläche ein.</translation>
    </message>
    <message>
        <source>Disables the usage of accounting jargon in the application.</source>
        <translation>Schaltet Fachwörter der Buchhaltung in der Anwendung ab.</translation>
    </message>
    <message>
        <source>ISO-4217 Code</source>
        <translation>Code nach ISO 4217</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Symbol and Code</source>
        <translation>Symbol und Code</translation>
    </message>
    <message>
        <source>Processed the budget item due on %2.</source>
        <translation>Budgetposten verarbeitet, fällig am %2.</translation>
    </message>
    <message>
        <source>Processed unexpected budget item &apos;%1&apos;.</source>
        <translation>Unerwarteten Budgetposten „%1“ verarbeitet.</translation>
    </message>
    <message>
        <source>Allowance</source>
        <translation>Taschengeld</translation>
    </message>
    <message>
        <source>Part-time Job</source>
        <translation>Nebenjob</translation>
    </message>
    <message>
        <source>Gifts</source>
        <translation>Geschenke</translation>
    </message>
    <message>
        <source>Tax Refund</source>
        <translation>Steuererstattung</translation>
    </message>
    <message>
        <source>Mobile carrier</source>
        <translation>Mobilfunkvertrag</translation>
    </message>
    <message>
        <source>Music Subscription</source>
        <translation>Musikabo</translation>
    </message>
    <message>
        <source>School-related fees (clubs, sports, etc.)</source>
        <translation>Schulkosten (AGs, Sport usw.)</translation>
    </message>
    <message>
        <source>Clothing and accessories</source>
        <translation>Kleidung und Zubehör</translation>
    </message>
    <message>
        <source>Personal care items (toiletries, haircuts)</source>
        <translation>Körperpflege (Toilettenartikel, Friseur)</translation>
    </message>
    <message>
        <source>Going to movies</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Outings with friends</source>
        <translation>Ausgehen mit Freunden</translation>
    </message>
    <message>
        <source>Dining out</source>
        <translation>Essen gehen</translation>
    </message>
    <message>
        <source>Hobby (sports equipment, art supplies)</source>
        <translation>Hobby (Sportgeräte, Künstlerbedarf)</translation>
    </message>
    <message>
        <source>Public transportation costs (bus or train fare)</source>
        <translation>Fahrkarten (Bus oder Bahn)</translation>
    </message>
    <message>
        <source>Petrol</source>
        <translation>Benzin</translation>
    </message>
    <message>
        <source>Gifts for friends and family</source>
        <translation>Geschenke für Freunde und Familie</translation>
    </message>
    <message>
        <source>Donation or charity contribution</source>
        <translation>Spende</translation>
    </message>
    <message>
        <source>Car Maintenance (oil change, repair, washing, etc.)</source>
        <translation>Autopflege (Ölwechsel, Reparatur, Wäsche usw.)</translation>
    </message>
    <message>
        <source>Pet Care</source>
        <translation>Haustier</translation>
    </message>
    <message>
        <source>Car Registration</source>
        <translation>Kfz-Zulassung</translation>
    </message>
    <message>
        <source>Emergencies</source>
        <translation>Notfälle</translation>
    </message>
    <message>
        <source>Gaming Console</source>
        <translation>Spielkonsole</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Snacks</source>
        <translation>Snacks</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Rent or mortgage payment</source>
        <translation>Miete oder Hypothekenrate</translation>
    </message>
    <message>
        <source>Property taxes</source>
        <translation>Grundsteuer</translation>
    </message>
    <message>
        <source>Homeowners or renters insurance</source>
        <translation>Gebäude- oder Hausratversicherung</translation>
    </message>
    <message>
        <source>Electricity</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>Water and sewage</source>
        <translation>Wasser und Abwasser</translation>
    </message>
    <message>
        <source>Gas or heating</source>
        <translation>Gas oder Heizung</translation>
    </message>
    <message>
        <source>Inter-net and cable</source>
        <translation>Internet und Kabelfernsehen</translation>
    </message>
    <message>
        <source>Rubbish collection</source>
        <translation>Müllabfuhr</translation>
    </message>
    <message>
        <source>Groceries &amp; Household Supplies (cleaning products, toiletries, etc.)</source>
        <translation>Lebensmittel &amp; Haushaltsbedarf (Putzmittel, Toilettenartikel usw.)</translation>
    </message>
    <message>
        <source>Public transportation</source>
        <translation>Öffentliche Verkehrsmittel</translation>
    </message>
    <message>
        <source>Car Insurance</source>
        <translation>Kfz-Versicherung</translation>
    </message>
    <message>
        <source>Health insurance premiums</source>
        <translation>Krankenversicherung</translation>
    </message>
    <message>
        <source>Medical Care (e.g. Out-of-pocket medical expenses, doctor visits, prescriptions)</source>
        <translation>Gesundheit (z. B. Zuzahlungen, Arztbesuche, Rezepte)</translation>
    </message>
    <message>
        <source>Gym or fitness memberships</source>
        <translation>Fitnessstudio</translation>
    </message>
    <message>
        <source>Retirement savings (401(k), IRA) contribution</source>
        <translation>Altersvorsorge (Riester, Rürup)</translation>
    </message>
    <message>
        <source>Travel and vacations</source>
        <translation>Reisen und Urlaub</translation>
    </message>
    <message>
        <source>Subscriptions (streaming services, magazines)</source>
        <translation>Abos (Streaming, Zeitschriften)</translation>
    </message>
    <message>
        <source>Dating</source>
        <translation>Verabredungen</translation>
    </message>
    <message>
        <source>Hobbies and activities</source>
        <translation>Hobbys und Freizeit</translation>
    </message>
    <message>
        <source>Identification Document</source>
        <translation>Ausweis</translation>
    </message>
    <message>
        <source>Spring Holiday Meal</source>
        <translation>Festessen im Frühling</translation>
    </message>
    <message>
        <source>Winter Holiday Meal</source>
        <translation>Festessen im Winter</translation>
    </message>
    <message>
        <source>Winter Holiday Gifts</source>
        <translation>Geschenke zum Winterfest</translation>
    </message>
    <message>
        <source>Unexpected (3-Months Wages)</source>
        <translation>Unvorhergesehenes (3 Monatslöhne)</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Handy</translation>
    </message>
    <message>
        <source>Car Down Payment</source>
        <translation>Anzahlung für ein Auto</translation>
    </message>
    <message>
        <source>Home Down Payment</source>
        <translation>Eigenkapital für ein Haus</translation>
    </message>
    <message>
        <source>Free Money</source>
        <translation>Freies Geld</translation>
    </message>
    <message>
        <source>Free Money Adult 2</source>
        <translation>Freies Geld Erwachsener 2</translation>
    </message>
    <message>
        <source>Mobile Adult 2</source>
        <translation>Handy Erwachsener 2</translation>
    </message>
    <message>
        <source>Petrol Adult 2</source>
        <translation>Benzin Erwachsener 2</translation>
    </message>
    <message>
        <source>Public transportation Adult 2</source>
        <translation>Öffentliche Verkehrsmittel Erwachsener 2</translation>
    </message>
    <message>
        <source>Identification Document Adult 2</source>
        <translation>Ausweis Erwachsener 2</translation>
    </message>
    <message>
        <source>Car Registration Adult 2</source>
        <translation>Kfz-Zulassung Erwachsener 2</translation>
    </message>
    <message>
        <source>Job Adult 2</source>
        <translation>Arbeit Erwachsener 2</translation>
    </message>
    <message>
        <source>Date Night</source>
        <translation>Abend zu zweit</translation>
    </message>
    <message>
        <source>Free Money Adult 1</source>
        <translation>Freies Geld Erwachsener 1</translation>
    </message>
    <message>
        <source>Mobile Adult 1</source>
        <translation>Handy Erwachsener 1</translation>
    </message>
    <message>
        <source>Petrol Adult 1</source>
        <translation>Benzin Erwachsener 1</translation>
    </message>
    <message>
        <source>Public transportation Adult 1</source>
        <translation>Öffentliche Verkehrsmittel Erwachsener 1</translation>
    </message>
    <message>
        <source>Identification Document Adult 1</source>
        <translation>Ausweis Erwachsener 1</translation>
    </message>
    <message>
        <source>Car Registration Adult 1</source>
        <translation>Kfz-Zulassung Erwachsener 1</translation>
    </message>
    <message>
        <source>Job Adult 1</source>
        <translation>Arbeit Erwachsener 1</translation>
    </message>
    <message>
        <source>The number of work hours in a week must be between %1 and %2.</source>
        <translation>Die Zahl der Arbeitsstunden in einer Woche muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The number of work days in a week must be between %1 and %2.</source>
        <translation>Die Zahl der Arbeitstage in einer Woche muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The data.usable_ currencies must contain &apos;%1&apos;, as they are currently in use in the application.</source>
        <translation>Die nutzbaren Währungen müssen „%1“ enthalten, da diese gerade in Gebrauch sind.</translation>
    </message>
    <message>
        <source>The number of days to notify within must be between %1 and %2.</source>
        <translation>Die Zahl der Tage, die im Voraus erinnert wird, muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The survey balance window must be between %1 and %2 percent.</source>
        <translation>Die Toleranz des Abgleichs muss zwischen %1 und %2 Prozent liegen.</translation>
    </message>
    <message>
        <source>The budget does not have a bill source named &apos;%1&apos;.</source>
        <translation>Das Budget hat keine Rechnung namens „%1“.</translation>
    </message>
    <message>
        <source>Cannot update a bill that does not exist.</source>
        <translation>Eine Rechnung, die es nicht gibt, kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove a bill that does not exist.</source>
        <translation>Eine Rechnung, die es nicht gibt, kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The budget does not have a debt source named &apos;%1&apos;.</source>
        <translation>Das Budget hat keine Schuld namens „%1“.</translation>
    </message>
    <message>
        <source>Cannot update a debt that does not exist.</source>
        <translation>Eine Schuld, die es nicht gibt, kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove a debt that does not exist.</source>
        <translation>Eine Schuld, die es nicht gibt, kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Cannot remove a debt that has a balance.</source>
        <translation>Eine Schuld mit einem Saldo kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Failure making the debt bank account association.</source>
        <translation>Die Schuld konnte nicht mit dem Bankkonto verknüpft werden.</translation>
    </message>
    <message>
        <source>Failure updating the debt bank account association.</source>
        <translation>Die Verknüpfung der Schuld mit dem Bankkonto konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>The budget does not have a goal source named &apos;%1&apos;.</source>
        <translation>Das Budget hat kein Ziel namens „%1“.</translation>
    </message>
    <message>
        <source>Cannot update a goal that does not exist.</source>
        <translation>Ein Ziel, das es nicht gibt, kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove a goal that does not exist.</source>
        <translation>Ein Ziel, das es nicht gibt, kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Cannot remove a goal that has a balance.</source>
        <translation>Ein Ziel mit einem Saldo kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Failure making the goal bank account association.</source>
        <translation>Das Ziel konnte nicht mit dem Bankkonto verknüpft werden.</translation>
    </message>
    <message>
        <source>Failed to update the goal bank account association.</source>
        <translation>Die Verknüpfung des Ziels mit dem Bankkonto konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>The budget does not have a non-tracked source named &apos;%1&apos;.</source>
        <translation>Das Budget hat keinen nicht verfolgten Posten namens „%1“.</translation>
    </message>
    <message>
        <source>Cannot update a nontrack that does not exist.</source>
        <translation>Ein nicht verfolgter Posten, den es nicht gibt, kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove a nontrack that does not exist.</source>
        <translation>Ein nicht verfolgter Posten, den es nicht gibt, kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The budget does not have a wage source named &apos;%1&apos;.</source>
        <translation>Das Budget hat keinen Lohn namens „%1“.</translation>
    </message>
    <message>
        <source>Cannot update a wage that does not exist.</source>
        <translation>Ein Lohn, den es nicht gibt, kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove a wage that does not exist.</source>
        <translation>Ein Lohn, den es nicht gibt, kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The bank account number, %1, does not match the account code number, %2.</source>
        <translation>Die Nummer des Bankkontos, %1, passt nicht zur Nummer des Kontos, %2.</translation>
    </message>
    <message>
        <source>Unknown budget code type!</source>
        <translation>Unbekannte Art von Budgetkonto!</translation>
    </message>
    <message>
        <source>The account ledger does not have an account number &apos;%1&apos;.</source>
        <translation>Das Hauptbuch hat keine Kontonummer „%1“.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; is not a known type that is a budget money!</source>
        <translation>Der Budgetposten „%1“ ist von keiner bekannten Art!</translation>
    </message>
    <message>
        <source>The budget item type &apos;%1&apos; is not a known type.</source>
        <translation>Die Art „%1“ eines Budgetpostens ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Cannot process unexpected budget item that has an unknown type.</source>
        <translation>Ein unerwarteter Budgetposten unbekannter Art kann nicht verarbeitet werden.</translation>
    </message>
    <message>
        <source>Failed to locate the unexpected budget item source to post.</source>
        <translation>Der unerwartete Budgetposten, der gebucht werden soll, wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>There is %1 distributed in the surveyed bank account %2. Empty the distribution first before removing the budgeted item.</source>
        <translation>Im abgeglichenen Bankkonto %2 sind %1 zurückgelegt. Vor dem Entfernen des Budgetpostens muss diese Verteilung geleert werden.</translation>
    </message>
    <message>
        <source>The account ledger number is not present in the general ledger.</source>
        <translation>Die Kontonummer ist im Hauptbuch nicht vorhanden.</translation>
    </message>
    <message>
        <source>Adding the account &apos;%1&apos; is not in the general ledger.</source>
        <translation>Das hinzuzufügende Konto „%1“ steht nicht im Hauptbuch.</translation>
    </message>
    <message>
        <source>Invalid mapping between the account ledger &apos;%1&apos; and the bank account type &apos;%2&apos; during bank creation.</source>
        <translation>Beim Anlegen der Bank passt das Konto „%1“ nicht zur Bankkontoart „%2“.</translation>
    </message>
    <message>
        <source>The bank does not exist.</source>
        <translation>Die Bank gibt es nicht.</translation>
    </message>
    <message>
        <source>The account name &apos;%1&apos; is already associated with the bank &apos;%2&apos;.</source>
        <translation>Der Kontoname „%1“ ist bereits mit der Bank „%2“ verknüpft.</translation>
    </message>
    <message>
        <source>The general ledger does not have the account number &apos;%1&apos;.</source>
        <translation>Das Hauptbuch hat die Kontonummer „%1“ nicht.</translation>
    </message>
    <message>
        <source>The bank account type cannot be unknown.</source>
        <translation>Die Art des Bankkontos darf nicht unbekannt sein.</translation>
    </message>
    <message>
        <source>Cannot remove a bank account when the bank does not exist.</source>
        <translation>Ein Bankkonto kann nicht entfernt werden, wenn es die Bank nicht gibt.</translation>
    </message>
    <message>
        <source>Cannot remove a bank account when no association exists.</source>
        <translation>Ein Bankkonto kann nicht entfernt werden, wenn es mit keiner Bank verknüpft ist.</translation>
    </message>
    <message>
        <source>Cannot update when a bank by that name does not exist.</source>
        <translation>Eine Bank dieses Namens gibt es nicht; sie kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot close a bank via an update.</source>
        <translation>Eine Bank kann nicht durch eine Änderung geschlossen werden.</translation>
    </message>
    <message>
        <source>Updating the account &apos;%1&apos; is not in the general ledger.</source>
        <translation>Das zu ändernde Konto „%1“ steht nicht im Hauptbuch.</translation>
    </message>
    <message>
        <source>Invalid mapping between the account ledger &apos;%1&apos; and the bank account type &apos;%2&apos;.</source>
        <translation>Das Konto „%1“ passt nicht zur Bankkontoart „%2“.</translation>
    </message>
    <message>
        <source>Cannot change the bank account type once set.</source>
        <translation>Die Art eines Bankkontos kann nicht mehr geändert werden.</translation>
    </message>
    <message>
        <source>Cannot remove when a bank by that name does not exist.</source>
        <translation>Eine Bank dieses Namens gibt es nicht; sie kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Cannot remove when the bank is closed.</source>
        <translation>Eine geschlossene Bank kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Cannot remove the bank as the account number &apos;%1&apos; cannot be removed.</source>
        <translation>Die Bank kann nicht entfernt werden, da die Kontonummer „%1“ nicht entfernt werden kann.</translation>
    </message>
    <message>
        <source>Cannot recode a bank account when no association exists.</source>
        <translation>Ein Bankkonto ohne Verknüpfung kann nicht umnummeriert werden.</translation>
    </message>
    <message>
        <source>Cannot recode the account &apos;%1&apos; to the account &apos;%2&apos; as it is already associated.</source>
        <translation>Das Konto „%1“ kann nicht in „%2“ umnummeriert werden, da dieses bereits verknüpft ist.</translation>
    </message>
    <message>
        <source>Found an account code name that is the same name as a budget item.</source>
        <translation>Ein Konto heißt genauso wie ein Budgetposten.</translation>
    </message>
    <message>
        <source>The budget item has the same name as an existing ledger account.</source>
        <translation>Der Budgetposten heißt genauso wie ein vorhandenes Konto.</translation>
    </message>
    <message>
        <source>The code name is the same name as an existing budget item.</source>
        <translation>Das Konto heißt genauso wie ein vorhandener Budgetposten.</translation>
    </message>
    <message>
        <source>Cannot process budget item due that has an unknown type.</source>
        <translation>Ein fälliger Budgetposten unbekannter Art kann nicht verarbeitet werden.</translation>
    </message>
    <message>
        <source>Cannot skip a budget item when its type is not known.</source>
        <translation>Ein Budgetposten unbekannter Art kann nicht übersprungen werden.</translation>
    </message>
    <message>
        <source>A bank account cannot have its parent account removed.</source>
        <translation>Einem Bankkonto kann sein Oberkonto nicht genommen werden.</translation>
    </message>
    <message>
        <source>A bank account cannot have its parent account changed to non-bank account.</source>
        <translation>Das Oberkonto eines Bankkontos kann nur ein Bankkonto sein.</translation>
    </message>
    <message>
        <source>Cannot change parent accounts of a bank account that has transactions that have been reconciled.</source>
        <translation>Das Oberkonto eines Bankkontos mit abgeglichenen Buchungen kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Cannot get the last reconciliation amount, because no bank account is associated with the account &apos;%1&apos;.</source>
        <translation>Der Betrag des letzten Abgleichs ist nicht bekannt, da mit dem Konto „%1“ kein Bankkonto verknüpft ist.</translation>
    </message>
    <message>
        <source>The bank account cannot be set directly when updating a debt.</source>
        <translation>Beim Ändern einer Schuld kann das Bankkonto nicht unmittelbar gesetzt werden.</translation>
    </message>
    <message>
        <source>A goal must have an account to store under a bank account.</source>
        <translation>Ein Ziel braucht ein Konto, das unter einem Bankkonto stehen kann.</translation>
    </message>
    <message>
        <source>Cannot change a goal’s bank account once it has been reconciled.</source>
        <translation>Das Bankkonto eines Ziels kann nach einem Abgleich nicht mehr geändert werden.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey upon a bank that does not exist.</source>
        <translation>Bei einer Bank, die es nicht gibt, ist kein Abgleich möglich.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey upon an account that does not exist.</source>
        <translation>Für ein Konto, das es nicht gibt, ist kein Abgleich möglich.</translation>
    </message>
    <message>
        <source>Cannot map a survey for a bank account that does not exist.</source>
        <translation>Für ein Bankkonto, das es nicht gibt, ist kein Abgleich möglich.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey for a future date, %1.</source>
        <translation>Für ein künftiges Datum, %1, ist kein Abgleich möglich.</translation>
    </message>
    <message>
        <source>Failed to determine the bank account involved in the additional transaction %1.</source>
        <translation>Das Bankkonto der zusätzlichen Buchung %1 konnte nicht bestimmt werden.</translation>
    </message>
    <message>
        <source>The transaction %1 is not in the bank account ledger nor one of its children.</source>
        <translation>Die Buchung %1 steht weder im Bankkonto noch in einem seiner Unterkonten.</translation>
    </message>
    <message>
        <source>The posting date for transaction %1 is %2 which is after the survey date, %3.</source>
        <translation>Das Datum der Buchung %1 ist der %2 und liegt nach dem Tag des Abgleichs, dem %3.</translation>
    </message>
    <message>
        <source>The surveying bank account is neither an asset nor a liability!</source>
        <translation>Das abzugleichende Bankkonto ist weder Vermögen noch Verbindlichkeit!</translation>
    </message>
    <message>
        <source>The calculated budget item transaction total, &apos;%1&apos;, must be within %2 of the reconciled current balance, &apos;%3&apos;.</source>
        <translation>Die errechnete Summe der Buchungen, „%1“, darf höchstens %2 vom abgeglichenen Saldo, „%3“, abweichen.</translation>
    </message>
    <message>
        <source>The budget item %1 cannot be distributed.</source>
        <translation>Für den Budgetposten %1 kann nichts zurückgelegt werden.</translation>
    </message>
    <message>
        <source>Cannot manually distribute into the goal &apos;%1&apos;.</source>
        <translation>Für das Ziel „%1“ kann nicht von Hand zurückgelegt werden.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; has no account code associated with it.</source>
        <translation>Mit dem Budgetposten „%1“ ist kein Konto verknüpft.</translation>
    </message>
    <message>
        <source>Failed to locate the reconciled transaction to determine its kind!</source>
        <translation>Die abgeglichene Buchung wurde nicht gefunden, ihre Art ist daher unbekannt!</translation>
    </message>
    <message>
        <source>Additional surveyed income.</source>
        <translation>Zusätzliche Einnahme laut Abgleich.</translation>
    </message>
    <message>
        <source>Additional surveyed charges.</source>
        <translation>Zusätzliche Belastung laut Abgleich.</translation>
    </message>
    <message>
        <source>Additional surveyed expense.</source>
        <translation>Zusätzliche Ausgabe laut Abgleich.</translation>
    </message>
    <message>
        <source>Additional surveyed payments.</source>
        <translation>Zusätzliche Zahlung laut Abgleich.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed income.</source>
        <translation>Einnahme außerhalb des Budgets laut Abgleich.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed charges.</source>
        <translation>Belastung außerhalb des Budgets laut Abgleich.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed expense.</source>
        <translation>Ausgabe außerhalb des Budgets laut Abgleich.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed payments.</source>
        <translation>Zahlung außerhalb des Budgets laut Abgleich.</translation>
    </message>
    <message>
        <source>Cannot convert between currencies: the source of the exchange rates is closed.</source>
        <translation>Zwischen Währungen kann nicht umgerechnet werden: Die Quelle der Wechselkurse ist geschlossen.</translation>
    </message>
    <message>
        <source>The user preferences file, %1, is not writable.</source>
        <translation>Die Datei der Einstellungen, %1, ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>No command given</source>
        <translation>Kein Befehl angegeben</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>There are no accounts.</source>
        <translation>Es gibt keine Konten.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Other account</source>
        <translation>Gegenkonto</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There are no transactions.</source>
        <translation>Es gibt keine Buchungen.</translation>
    </message>
    <message>
        <source>Added the account %1 %2.</source>
        <translation>Konto %1 %2 angelegt.</translation>
    </message>
    <message>
        <source>The account %1 is now %2.</source>
        <translation>Das Konto %1 ist jetzt %2.</translation>
    </message>
    <message>
        <source>Closed the account %1.</source>
        <translation>Konto %1 geschlossen.</translation>
    </message>
    <message>
        <source>Opened the account %1 again.</source>
        <translation>Konto %1 wieder geöffnet.</translation>
    </message>
    <message>
        <source>Removed the account %1.</source>
        <translation>Konto %1 entfernt.</translation>
    </message>
    <message>
        <source>There are no banks.</source>
        <translation>Es gibt keine Banken.</translation>
    </message>
    <message>
        <source>%1 (closed)</source>
        <translation>%1 (geschlossen)</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Added the bank &apos;%1&apos;.</source>
        <translation>Bank „%1“ angelegt.</translation>
    </message>
    <message>
        <source>The bank is now called &apos;%1&apos;.</source>
        <translation>Die Bank heißt jetzt „%1“.</translation>
    </message>
    <message>
        <source>Added the account %1 to the bank &apos;%2&apos;.</source>
        <translation>Konto %1 bei der Bank „%2“ angelegt.</translation>
    </message>
    <message>
        <source>Assigned the account %2 to the bank &apos;%1&apos;.</source>
        <translation>Konto %2 der Bank „%1“ zugeordnet.</translation>
    </message>
    <message>
        <source>Separated the account %2 from the bank &apos;%1&apos;.</source>
        <translation>Konto %2 von der Bank „%1“ gelöst.</translation>
    </message>
    <message>
        <source>Closed the bank &apos;%1&apos;.</source>
        <translation>Bank „%1“ geschlossen.</translation>
    </message>
    <message>
        <source>Opened the bank &apos;%1&apos; again.</source>
        <translation>Bank „%1“ wieder geöffnet.</translation>
    </message>
    <message>
        <source>Removed the bank &apos;%1&apos;.</source>
        <translation>Bank „%1“ entfernt.</translation>
    </message>
    <message>
        <source>The bank account %1 is now %2.</source>
        <translation>Das Bankkonto %1 ist jetzt %2.</translation>
    </message>
    <message>
        <source>Removed the bank account %1.</source>
        <translation>Bankkonto %1 entfernt.</translation>
    </message>
    <message>
        <source>Created the empty budget &apos;%1&apos;.</source>
        <translation>Leeres Budget „%1“ angelegt.</translation>
    </message>
    <message>
        <source>Every change is saved at once; nothing is pending.</source>
        <translation>Jede Änderung wird sofort gespeichert; nichts steht aus.</translation>
    </message>
    <message>
        <source>All changes are saved in &apos;%1&apos;.</source>
        <translation>Alle Änderungen sind in „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Saved the budget as &apos;%1&apos;.</source>
        <translation>Budget als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Buchungen</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Banken</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>Sum of debits</source>
        <translation>Summe im Soll</translation>
    </message>
    <message>
        <source>Sum of credits</source>
        <translation>Summe im Haben</translation>
    </message>
    <message>
        <source>Preferred currency</source>
        <translation>Bevorzugte Währung</translation>
    </message>
    <message>
        <source>Usable currencies</source>
        <translation>Nutzbare Währungen</translation>
    </message>
    <message>
        <source>Display of currencies</source>
        <translation>Anzeige von Währungen</translation>
    </message>
    <message>
        <source>Due items shown ahead, in days</source>
        <translation>Fällige Posten im Voraus, in Tagen</translation>
    </message>
    <message>
        <source>Survey window</source>
        <translation>Toleranz des Abgleichs</translation>
    </message>
    <message>
        <source>Work hours a week</source>
        <translation>Arbeitsstunden je Woche</translation>
    </message>
    <message>
        <source>Work days a week</source>
        <translation>Arbeitstage je Woche</translation>
    </message>
    <message>
        <source>There are no tags.</source>
        <translation>Es gibt keine Schlagwörter.</translation>
    </message>
    <message numerus="yes">
        <source>Removed the tags %1.</source>
        <translation>
            <numerusform>Schlagwort entfernt: %1.</numerusform>
            <numerusform>Schlagwörter entfernt: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Jeden Monat</translation>
    </message>
    <message>
        <source>Wages</source>
        <translation>Löhne</translation>
    </message>
    <message>
        <source>Bills</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Debts</source>
        <translation>Schulden</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Non-tracked</source>
        <translation>Nicht verfolgt</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Übrig</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Nothing is due.</source>
        <translation>Nichts ist fällig.</translation>
    </message>
    <message>
        <source>Budget health: %1</source>
        <translation>Gesundheit des Budgets: %1</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Posted the %1 &apos;%2&apos;, due on %3: %4.</source>
        <translation>Gebucht: „%2“ (%1), fällig am %3: %4.</translation>
    </message>
    <message>
        <source>Posted %1 for the %2 &apos;%3&apos;, which is still due on %4.</source>
        <translation>%1 für „%3“ (%2) gebucht, weiterhin fällig am %4.</translation>
    </message>
    <message>
        <source>Skipped the %1 &apos;%2&apos; due on %3; it is next due on %4.</source>
        <translation>Übersprungen: „%2“ (%1), fällig am %3; als Nächstes fällig am %4.</translation>
    </message>
    <message>
        <source>patterns are not supported; name each file</source>
        <translation>Muster werden nicht unterstützt; jede Datei ist einzeln zu nennen</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is outside the folder of the journal</source>
        <translation>sie liegt außerhalb des Ordners des Journals</translation>
    </message>
    <message>
        <source>all files together are larger than 64 MiB</source>
        <translation>alle Dateien zusammen sind größer als 64 MiB</translation>
    </message>
    <message>
        <source>Entries with amount zero are skipped.</source>
        <translation>Einträge mit dem Betrag null werden übersprungen.</translation>
    </message>
    <message>
        <source>New account</source>
        <translation>Neues Konto</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Soll</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Haben</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>Dublette</translation>
    </message>
    <message>
        <source>There are no transactions in the file.</source>
        <translation>In der Datei stehen keine Buchungen.</translation>
    </message>
    <message>
        <source>Added the %1 &apos;%2&apos;.</source>
        <translation>Angelegt: „%2“ (%1).</translation>
    </message>
    <message>
        <source>Changed the %1 &apos;%2&apos;.</source>
        <translation>Geändert: „%2“ (%1).</translation>
    </message>
    <message>
        <source>The %1 &apos;%2&apos; is now called &apos;%3&apos;.</source>
        <translation>„%2“ (%1) heißt jetzt „%3“.</translation>
    </message>
    <message>
        <source>Removed the %1 &apos;%2&apos;.</source>
        <translation>Entfernt: „%2“ (%1).</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Turnus</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster Termin</translation>
    </message>
    <message>
        <source>Borrowed</source>
        <translation>Geliehen</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Zielbetrag</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <source>For 1 %1, as of %2 (out of date)</source>
        <translation>Für 1 %1, Stand %2 (nicht mehr aktuell)</translation>
    </message>
    <message>
        <source>For 1 %1, as of %2</source>
        <translation>Für 1 %1, Stand %2</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>There are no exchange rates; use kiv rates fetch or kiv rates set.</source>
        <translation>Es gibt keine Wechselkurse; abrufen mit kiv rates fetch oder setzen mit kiv rates set.</translation>
    </message>
    <message>
        <source>fetching exchange rates …</source>
        <translation>Wechselkurse werden abgerufen …</translation>
    </message>
    <message>
        <source>There is no newer release.</source>
        <translation>Es gibt keine neuere Version.</translation>
    </message>
    <message>
        <source>There is a newer release: %1.</source>
        <translation>Es gibt eine neuere Version: %1.</translation>
    </message>
    <message>
        <source>There are no releases.</source>
        <translation>Es gibt keine Veröffentlichungen.</translation>
    </message>
    <message>
        <source>Household report</source>
        <translation>Haushaltsbericht</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>Budget against actual</source>
        <translation>Plan-Ist-Vergleich</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Im Monat %1</translation>
    </message>
    <message>
        <source>There are no budget items.</source>
        <translation>Es gibt keine Budgetposten.</translation>
    </message>
    <message>
        <source>Day of the statement</source>
        <translation>Tag des Kontoauszugs</translation>
    </message>
    <message>
        <source>Last reconciled on</source>
        <translation>Zuletzt abgeglichen am</translation>
    </message>
    <message>
        <source>Reconciled balance</source>
        <translation>Abgeglichener Saldo</translation>
    </message>
    <message>
        <source>Changes since</source>
        <translation>Änderungen seit</translation>
    </message>
    <message>
        <source>Expected balance</source>
        <translation>Erwarteter Saldo</translation>
    </message>
    <message>
        <source>Still due this month</source>
        <translation>Diesen Monat noch fällig</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Buchung</translation>
    </message>
    <message>
        <source>Changes by budget item</source>
        <translation>Änderungen nach Budgetposten</translation>
    </message>
    <message>
        <source>Other changes</source>
        <translation>Andere Änderungen</translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation>Zurückgelegt</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>There are no items to set money aside for.</source>
        <translation>Es gibt keine Posten, für die zurückgelegt wird.</translation>
    </message>
    <message>
        <source>Reconciled %1 at %2 with a balance of %3.</source>
        <translation>%1 bei %2 mit einem Saldo von %3 abgeglichen.</translation>
    </message>
    <message>
        <source>Balance of the statement</source>
        <translation>Saldo des Kontoauszugs</translation>
    </message>
    <message>
        <source>Amount to set aside for an item, as ITEM=AMOUNT</source>
        <translation>Betrag, der für einen Posten zurückgelegt wird, als POSTEN=BETRAG</translation>
    </message>
    <message>
        <source>(empty to continue)</source>
        <translation>(leer: weiter)</translation>
    </message>
    <message>
        <source>Complete the survey?</source>
        <translation>Abgleich abschließen?</translation>
    </message>
    <message>
        <source>%1 was never reconciled.</source>
        <translation>%1 wurde noch nie abgeglichen.</translation>
    </message>
    <message>
        <source>%1 was reconciled on %2 with a balance of %3.</source>
        <translation>%1 wurde am %2 mit einem Saldo von %3 abgeglichen.</translation>
    </message>
    <message>
        <source>(exit status %1)
</source>
        <translation>(Rückgabewert %1)
</translation>
    </message>
    <message>
        <source>The tour stopped: the last command gave an unexpected exit status.</source>
        <translation>Der Rundgang endet hier: Der letzte Befehl gab einen unerwarteten Rückgabewert.</translation>
    </message>
    <message>
        <source>A new budget in US dollars, with a bank and a checking account</source>
        <translation>Ein neues Budget in US-Dollar, mit einer Bank und einem Girokonto</translation>
    </message>
    <message>
        <source>Wages and bills, with the days when they are due</source>
        <translation>Löhne und Rechnungen, mit den Tagen, an denen sie fällig sind</translation>
    </message>
    <message>
        <source>Due items are posted; the fitness studio is closed this month and is skipped</source>
        <translation>Fällige Posten werden gebucht; das Fitnessstudio hat diesen Monat zu und wird übersprungen</translation>
    </message>
    <message>
        <source>An account cannot have the name of a budget item: kiv refuses and changes nothing</source>
        <translation>Ein Konto kann nicht wie ein Budgetposten heißen: kiv lehnt ab und ändert nichts</translation>
    </message>
    <message>
        <source>Every change was saved at once; each command opens the file again</source>
        <translation>Jede Änderung wurde sofort gespeichert; jeder Befehl öffnet die Datei neu</translation>
    </message>
    <message>
        <source>The debits do not equal the credits.</source>
        <translation>Soll und Haben sind nicht gleich.</translation>
    </message>
    <message>
        <source>The sum of all debits equals the sum of all credits.</source>
        <translation>Die Summe im Soll ist gleich der Summe im Haben.</translation>
    </message>
    <message>
        <source>Posted transaction %1.</source>
        <translation>Buchung %1 ausgeführt.</translation>
    </message>
    <message>
        <source>Changed transaction %1.</source>
        <translation>Buchung %1 geändert.</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Umbuchung</translation>
    </message>
    <message>
        <source>Posted the refund as transaction %1.</source>
        <translation>Erstattung als Buchung %1 ausgeführt.</translation>
    </message>
    <message numerus="yes">
        <source>Removed the transactions %1.</source>
        <translation>
            <numerusform>Buchung entfernt: %1.</numerusform>
            <numerusform>Buchungen entfernt: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared the transactions %1.</source>
        <translation>
            <numerusform>Buchung bestätigt: %1.</numerusform>
            <numerusform>Buchungen bestätigt: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reconciled the transactions %1.</source>
        <translation>
            <numerusform>Buchung abgeglichen: %1.</numerusform>
            <numerusform>Buchungen abgeglichen: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undid the reconciliation of the transactions %1.</source>
        <translation>
            <numerusform>Abgleich der Buchung %1 aufgehoben.</numerusform>
            <numerusform>Abgleich der Buchungen %1 aufgehoben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored the state of %1.</source>
        <translation>Stand vom %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Restored the version saved at %1.</source>
        <translation>Version vom %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Both versions are the same.</source>
        <translation>Beide Versionen sind gleich.</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Saved at</source>
        <translation>Gespeichert am</translation>
    </message>
    <message>
        <source>Created the budget &apos;%1&apos;.</source>
        <translation>Budget „%1“ angelegt.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Household</source>
        <translation>Haushalt</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1; %2.</translation>
    </message>
    <message>
        <source>%1; did you mean %2?</source>
        <translation>%1; war %2 gemeint?</translation>
    </message>
    <message>
        <source>A value on the command line is not valid UTF-8.</source>
        <translation>Ein Wert der Befehlszeile ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>A name cannot be empty.</source>
        <translation>Ein Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid date; write one like 2026-03-31.</source>
        <translation>„%1“ ist kein gültiges Datum; richtig ist etwa 2026-03-31.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount; write one like 1234.50 or &apos;1234.50 USD&apos;.</source>
        <translation>„%1“ ist kein Betrag; richtig ist etwa 1234.50 oder &apos;1234.50 USD&apos;.</translation>
    </message>
    <message>
        <source>The amount &apos;%1&apos; is too large.</source>
        <translation>Der Betrag „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount in %2, which has no decimals.</source>
        <translation>„%1“ ist kein Betrag in %2; diese Währung hat keine Nachkommastellen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has too many decimals; %3 allows %2.</source>
        <translation>„%1“ hat zu viele Nachkommastellen; %3 erlaubt %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency</source>
        <translation>„%1“ ist keine Währung</translation>
    </message>
    <message>
        <source>write its ISO 4217 code, like USD</source>
        <translation>anzugeben ist ihr ISO-4217-Code, etwa USD</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3.</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a percentage; write one like 2.75.</source>
        <translation>„%1“ ist kein Prozentsatz; richtig ist etwa 2.75.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>„%1“ ist keiner von diesen Werten: %2</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>No change given; see --help.</source>
        <translation>Keine Änderung angegeben; siehe --help.</translation>
    </message>
    <message>
        <source>No budget file given; use --file or the variable KIV_FILE, or create one with kiv new FILE.</source>
        <translation>Keine Budgetdatei angegeben; sie wird mit --file oder der Variablen KIV_FILE genannt oder mit kiv new DATEI angelegt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form NAME=VALUE.</source>
        <translation>„%1“ hat nicht die Form NAME=WERT.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;</source>
        <translation>Es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;</source>
        <translation>Es gibt keine Option „%1“</translation>
    </message>
    <message>
        <source>A closing quote is missing.</source>
        <translation>Ein schließendes Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a profile name; use letters, digits, &apos;-&apos; and &apos;_&apos;.</source>
        <translation>„%1“ ist kein Profilname; möglich sind Buchstaben, Ziffern, „-“ und „_“.</translation>
    </message>
    <message>
        <source>Cannot understand %1: %2.</source>
        <translation>%1 ist nicht zu verstehen: %2.</translation>
    </message>
    <message>
        <source>There is no account &apos;%1&apos;</source>
        <translation>Es gibt kein Konto „%1“</translation>
    </message>
    <message>
        <source>see %1</source>
        <translation>siehe %1</translation>
    </message>
    <message>
        <source>There is no bank &apos;%1&apos;</source>
        <translation>Es gibt keine Bank „%1“</translation>
    </message>
    <message>
        <source>There is no %1 &apos;%2&apos;</source>
        <translation>„%2“ (%1) gibt es nicht</translation>
    </message>
    <message>
        <source>There is no budget item &apos;%1&apos;</source>
        <translation>Es gibt keinen Budgetposten „%1“</translation>
    </message>
    <message>
        <source>see kiv bill list (or debt, goal, nontrack, wage)</source>
        <translation>siehe kiv bill list (oder debt, goal, nontrack, wage)</translation>
    </message>
    <message>
        <source>The input ended before the last question; nothing is saved.</source>
        <translation>Die Eingabe endete vor der letzten Frage; nichts ist gespeichert.</translation>
    </message>
    <message>
        <source>The survey was not completed; nothing is saved.</source>
        <translation>Der Abgleich wurde nicht abgeschlossen; nichts ist gespeichert.</translation>
    </message>
    <message>
        <source>The budget could not be created.</source>
        <translation>Das Budget konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>There is no tag &apos;%1&apos;</source>
        <translation>Es gibt kein Schlagwort „%1“</translation>
    </message>
    <message>
        <source>There is no version %1</source>
        <translation>Es gibt keine Version %1</translation>
    </message>
    <message>
        <source>The version in &apos;%1&apos; is damaged.</source>
        <translation>Die Version in „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The %1 &apos;%3&apos; cannot be processed while there is a %2 of the same name; rename one of them.</source>
        <translation>„%3“ (%1) kann nicht verarbeitet werden, solange es einen gleichnamigen Posten der Art %2 gibt; einer von beiden ist umzubenennen.</translation>
    </message>
    <message>
        <source>There is no transaction %1</source>
        <translation>Es gibt keine Buchung %1</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;; saved profiles: %2.</source>
        <translation>Es gibt kein Profil „%1“; gespeichert sind: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; exists already; choose another name.</source>
        <translation>Die Datei „%1“ gibt es bereits; ein anderer Name ist nötig.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>Die Ausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>it has no list of transactions</source>
        <translation>eine Liste von Buchungen fehlt</translation>
    </message>
    <message>
        <source>transaction %1 of &apos;%2&apos;</source>
        <translation>Buchung %1 von „%2“</translation>
    </message>
    <message>
        <source>Dry run: nothing is saved.</source>
        <translation>Probelauf: Nichts ist gespeichert.</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>The row has more than %1 cells.</source>
        <translation>Der Datensatz hat mehr als %1 Zellen.</translation>
    </message>
    <message>
        <source>Long comments are cut off.</source>
        <translation>Lange Kommentare werden gekürzt.</translation>
    </message>
    <message>
        <source>ACCOUNT</source>
        <translation>KONTO</translation>
    </message>
    <message>
        <source>ACCOUNT=AMOUNT</source>
        <translation>KONTO=BETRAG</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>BETRAG</translation>
    </message>
    <message>
        <source>BANK</source>
        <translation>BANK</translation>
    </message>
    <message>
        <source>BANK ACCOUNT</source>
        <translation>BANK KONTO</translation>
    </message>
    <message>
        <source>BASE</source>
        <translation>BASIS</translation>
    </message>
    <message>
        <source>CURRENCY</source>
        <translation>WÄHRUNG</translation>
    </message>
    <message>
        <source>CURRENCY=RATE</source>
        <translation>WÄHRUNG=KURS</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATUM</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>TAGE</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>VON</translation>
    </message>
    <message>
        <source>HOURS</source>
        <translation>STUNDEN</translation>
    </message>
    <message>
        <source>ITEM</source>
        <translation>POSTEN</translation>
    </message>
    <message>
        <source>ITEM=AMOUNT</source>
        <translation>POSTEN=BETRAG</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>NEW-NAME</source>
        <translation>NEUER-NAME</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>PROZENT</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>SCHLAGWORT</translation>
    </message>
    <message>
        <source>TEMPLATE</source>
        <translation>VORLAGE</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>TO</source>
        <translation>NACH</translation>
    </message>
    <message>
        <source>Budget file (default: the variable KIV_FILE)</source>
        <translation>Budgetdatei (Standard: die Variable KIV_FILE)</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Print JSON, for programs</source>
        <translation>JSON ausgeben, für Programme</translation>
    </message>
    <message>
        <source>Show the result, save nothing</source>
        <translation>Das Ergebnis zeigen, nichts speichern</translation>
    </message>
    <message>
        <source>Show the log on standard error</source>
        <translation>Das Protokoll auf der Fehlerausgabe zeigen</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 does not accept the value &apos;%2&apos;</source>
        <translation>%1 nimmt den Wert „%2“ nicht an</translation>
    </message>
    <message>
        <source>Account: number, name or path</source>
        <translation>Konto: Nummer, Name oder Pfad</translation>
    </message>
    <message>
        <source>New number</source>
        <translation>Neue Nummer</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>New parent account</source>
        <translation>Neues Oberkonto</translation>
    </message>
    <message>
        <source>Remove the parent account</source>
        <translation>Das Oberkonto entfernen</translation>
    </message>
    <message>
        <source>Only accounts of this type: asset, equity, expense, liability or income</source>
        <translation>Nur Konten dieser Art: asset, equity, expense, liability oder income</translation>
    </message>
    <message>
        <source>Only open accounts</source>
        <translation>Nur offene Konten</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Type: asset, equity, expense, liability or income</source>
        <translation>Art: asset, equity, expense, liability oder income</translation>
    </message>
    <message>
        <source>Number (default: the next free one)</source>
        <translation>Nummer (Standard: die nächste freie)</translation>
    </message>
    <message>
        <source>Parent account</source>
        <translation>Oberkonto</translation>
    </message>
    <message>
        <source>Opening balance (default: 0)</source>
        <translation>Anfangssaldo (Standard: 0)</translation>
    </message>
    <message>
        <source>Currency (default: the preferred one)</source>
        <translation>Währung (Standard: die bevorzugte)</translation>
    </message>
    <message>
        <source>Day of the opening balance (default: today)</source>
        <translation>Tag des Anfangssaldos (Standard: heute)</translation>
    </message>
    <message>
        <source>List all accounts with their balances</source>
        <translation>Alle Konten mit ihren Salden auflisten</translation>
    </message>
    <message>
        <source>List the transactions of an account</source>
        <translation>Die Buchungen eines Kontos auflisten</translation>
    </message>
    <message>
        <source>Add, change, close or remove an account</source>
        <translation>Ein Konto anlegen, ändern, schließen oder entfernen</translation>
    </message>
    <message>
        <source>Add an account</source>
        <translation>Ein Konto anlegen</translation>
    </message>
    <message>
        <source>Change an account&apos;s number, name or parent</source>
        <translation>Nummer, Name oder Oberkonto eines Kontos ändern</translation>
    </message>
    <message>
        <source>Close an account</source>
        <translation>Ein Konto schließen</translation>
    </message>
    <message>
        <source>Reopen an account</source>
        <translation>Ein Konto wieder öffnen</translation>
    </message>
    <message>
        <source>Remove an account without transactions</source>
        <translation>Ein Konto ohne Buchungen entfernen</translation>
    </message>
    <message>
        <source>Name of the bank</source>
        <translation>Name der Bank</translation>
    </message>
    <message>
        <source>Type: checking (default), savings, credit-card, loan, line-of-credit, money-market or cash</source>
        <translation>Art: checking (Standard), savings, credit-card, loan, line-of-credit, money-market oder cash</translation>
    </message>
    <message>
        <source>Type: checking, savings, credit-card, loan, goal-sub-account, line-of-credit, money-market or cash</source>
        <translation>Art: checking, savings, credit-card, loan, goal-sub-account, line-of-credit, money-market oder cash</translation>
    </message>
    <message>
        <source>List all banks with their accounts</source>
        <translation>Alle Banken mit ihren Konten auflisten</translation>
    </message>
    <message>
        <source>Add a bank</source>
        <translation>Eine Bank anlegen</translation>
    </message>
    <message>
        <source>Add, rename, close or remove a bank</source>
        <translation>Eine Bank anlegen, umbenennen, schließen oder entfernen</translation>
    </message>
    <message>
        <source>Rename a bank</source>
        <translation>Eine Bank umbenennen</translation>
    </message>
    <message>
        <source>Close a bank and its accounts</source>
        <translation>Eine Bank und ihre Konten schließen</translation>
    </message>
    <message>
        <source>Reopen a bank and its accounts</source>
        <translation>Eine Bank und ihre Konten wieder öffnen</translation>
    </message>
    <message>
        <source>Remove a bank and its accounts</source>
        <translation>Eine Bank und ihre Konten entfernen</translation>
    </message>
    <message>
        <source>Add, change or remove an account of a bank</source>
        <translation>Das Konto einer Bank anlegen, ändern oder entfernen</translation>
    </message>
    <message>
        <source>Add an account to a bank</source>
        <translation>Ein Konto bei einer Bank anlegen</translation>
    </message>
    <message>
        <source>Assign an account of the ledger to a bank</source>
        <translation>Ein Konto des Hauptbuchs einer Bank zuordnen</translation>
    </message>
    <message>
        <source>Separate an account from its bank; it stays in the ledger</source>
        <translation>Ein Konto von seiner Bank lösen; es bleibt im Hauptbuch</translation>
    </message>
    <message>
        <source>Change a bank account&apos;s number, name or parent</source>
        <translation>Nummer, Name oder Oberkonto eines Bankkontos ändern</translation>
    </message>
    <message>
        <source>Remove a bank account</source>
        <translation>Ein Bankkonto entfernen</translation>
    </message>
    <message>
        <source>New file; .budget is added if it is missing</source>
        <translation>Neue Datei; .budget wird ergänzt, falls es fehlt</translation>
    </message>
    <message>
        <source>Create an empty budget file</source>
        <translation>Eine leere Budgetdatei anlegen</translation>
    </message>
    <message>
        <source>Show what the budget contains</source>
        <translation>Zeigen, was das Budget enthält</translation>
    </message>
    <message>
        <source>In a shell, write the changes now</source>
        <translation>In einer Shell die Änderungen jetzt schreiben</translation>
    </message>
    <message>
        <source>Save the budget under another name</source>
        <translation>Das Budget unter anderem Namen speichern</translation>
    </message>
    <message>
        <source>The file is a budget file of a known version</source>
        <translation>Die Datei ist eine Budgetdatei einer bekannten Version</translation>
    </message>
    <message>
        <source>The tables belong to that version</source>
        <translation>Die Tabellen gehören zu dieser Version</translation>
    </message>
    <message>
        <source>The rows are as they were saved</source>
        <translation>Die Zeilen sind so, wie sie gespeichert wurden</translation>
    </message>
    <message>
        <source>The books follow the rules of the ledger</source>
        <translation>Die Bücher folgen den Regeln des Hauptbuchs</translation>
    </message>
    <message>
        <source>Items, accounts and banks match</source>
        <translation>Posten, Konten und Banken passen zueinander</translation>
    </message>
    <message>
        <source>Every balance is the sum of its transactions</source>
        <translation>Jeder Saldo ist die Summe seiner Buchungen</translation>
    </message>
    <message>
        <source>Debits equal credits in every currency</source>
        <translation>In jeder Währung ist Soll gleich Haben</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>repaired when opened</source>
        <translation>wird beim Öffnen repariert</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>nicht geprüft</translation>
    </message>
    <message>
        <source>Budget file or one of its former versions</source>
        <translation>Budgetdatei oder eine ihrer früheren Versionen</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is intact.</source>
        <translation>Das Budget „%1“ ist unbeschädigt.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is damaged; bring a whole version back with kiv undo.</source>
        <translation>Das Budget „%1“ ist beschädigt; eine unbeschädigte Version holt kiv undo zurück.</translation>
    </message>
    <message>
        <source>Check a budget file for damage</source>
        <translation>Eine Budgetdatei auf Schäden prüfen</translation>
    </message>
    <message>
        <source>Words of the command line; the last one is incomplete</source>
        <translation>Wörter der Befehlszeile; das letzte ist unvollständig</translation>
    </message>
    <message>
        <source>Print completion scripts or the manual page</source>
        <translation>Vervollständigungsskripte oder die Handbuchseite ausgeben</translation>
    </message>
    <message>
        <source>Print the completion script for bash</source>
        <translation>Das Vervollständigungsskript für bash ausgeben</translation>
    </message>
    <message>
        <source>Print the completion script for zsh</source>
        <translation>Das Vervollständigungsskript für zsh ausgeben</translation>
    </message>
    <message>
        <source>Print the completion script for fish</source>
        <translation>Das Vervollständigungsskript für fish ausgeben</translation>
    </message>
    <message>
        <source>List completions of the last word</source>
        <translation>Mögliche Ergänzungen des letzten Wortes auflisten</translation>
    </message>
    <message>
        <source>Print the commands as part of a manual page</source>
        <translation>Die Befehle als Teil einer Handbuchseite ausgeben</translation>
    </message>
    <message>
        <source>Preferred currency, used for amounts without one</source>
        <translation>Bevorzugte Währung, für Beträge ohne Währung</translation>
    </message>
    <message>
        <source>Usable currency; replaces the old list (repeatable)</source>
        <translation>Nutzbare Währung; ersetzt die alte Liste (wiederholbar)</translation>
    </message>
    <message>
        <source>Display of currencies: code, symbol or both</source>
        <translation>Anzeige von Währungen: code, symbol oder both</translation>
    </message>
    <message>
        <source>Show due items this many days ahead</source>
        <translation>Fällige Posten so viele Tage im Voraus zeigen</translation>
    </message>
    <message>
        <source>Allowed difference between survey and statement, in percent</source>
        <translation>Erlaubte Abweichung des Abgleichs vom Kontoauszug, in Prozent</translation>
    </message>
    <message>
        <source>Show or change the settings</source>
        <translation>Die Einstellungen zeigen oder ändern</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Die Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Change the given settings</source>
        <translation>Die angegebenen Einstellungen ändern</translation>
    </message>
    <message>
        <source>List or remove tags</source>
        <translation>Schlagwörter auflisten oder entfernen</translation>
    </message>
    <message>
        <source>List all tags</source>
        <translation>Alle Schlagwörter auflisten</translation>
    </message>
    <message>
        <source>Remove tags from all budget items</source>
        <translation>Schlagwörter von allen Budgetposten entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Due within %n days</source>
        <translation>
            <numerusform>Fällig innerhalb eines Tages</numerusform>
            <numerusform>Fällig innerhalb von %n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Show totals, due items and budget health</source>
        <translation>Summen, fällige Posten und Gesundheit des Budgets zeigen</translation>
    </message>
    <message>
        <source>Name of the budget item</source>
        <translation>Name des Budgetpostens</translation>
    </message>
    <message>
        <source>Kind, if several items have the name: bill, debt, goal, nontrack or wage</source>
        <translation>Art, falls mehrere Posten so heißen: bill, debt, goal, nontrack oder wage</translation>
    </message>
    <message>
        <source>Days ahead (default: the setting)</source>
        <translation>Tage im Voraus (Standard: die Einstellung)</translation>
    </message>
    <message>
        <source>Day to count from (default: today)</source>
        <translation>Tag, ab dem gezählt wird (Standard: heute)</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n Tag überfällig</numerusform>
            <numerusform>%n Tage überfällig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>in %n Tag</numerusform>
            <numerusform>in %n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Account that pays, or that receives a wage</source>
        <translation>Konto, das zahlt oder einen Lohn erhält</translation>
    </message>
    <message>
        <source>Amount (default: that of the item)</source>
        <translation>Betrag (Standard: der des Postens)</translation>
    </message>
    <message>
        <source>Post all due items</source>
        <translation>Alle fälligen Posten buchen</translation>
    </message>
    <message>
        <source>Day (default: today)</source>
        <translation>Tag (Standard: heute)</translation>
    </message>
    <message>
        <source>List due items</source>
        <translation>Fällige Posten auflisten</translation>
    </message>
    <message>
        <source>Post a due budget item</source>
        <translation>Einen fälligen Budgetposten buchen</translation>
    </message>
    <message>
        <source>Post an unexpected amount for a budget item</source>
        <translation>Einen unerwarteten Betrag für einen Budgetposten buchen</translation>
    </message>
    <message>
        <source>Skip a budget item once, without posting</source>
        <translation>Einen Budgetposten einmal überspringen, ohne zu buchen</translation>
    </message>
    <message>
        <source>Format: journal (default), csv or json</source>
        <translation>Format: journal (Standard), csv oder json</translation>
    </message>
    <message>
        <source>Print the ledger for other programs</source>
        <translation>Das Hauptbuch für andere Programme ausgeben</translation>
    </message>
    <message>
        <source>File; - for standard input</source>
        <translation>Datei; - für die Standardeingabe</translation>
    </message>
    <message>
        <source>Decimal mark: . or ,</source>
        <translation>Dezimalzeichen: . oder ,</translation>
    </message>
    <message>
        <source>Date format, such as DD.MM.YYYY</source>
        <translation>Datumsformat, etwa DD.MM.YYYY</translation>
    </message>
    <message>
        <source>Currency of amounts without one (journal)</source>
        <translation>Währung von Beträgen ohne Währung (journal)</translation>
    </message>
    <message>
        <source>Type of a top account, such as Aktiva=asset (journal, repeatable)</source>
        <translation>Art eines obersten Kontos, etwa Aktiva=asset (journal, wiederholbar)</translation>
    </message>
    <message>
        <source>Currency behind a name, such as Fr=CHF (journal, repeatable)</source>
        <translation>Währung hinter einem Namen, etwa Fr=CHF (journal, wiederholbar)</translation>
    </message>
    <message>
        <source>Saved profile to read the file with</source>
        <translation>Gespeichertes Profil, mit dem die Datei gelesen wird</translation>
    </message>
    <message>
        <source>Save these options as a profile with this name</source>
        <translation>Diese Optionen als Profil mit diesem Namen speichern</translation>
    </message>
    <message>
        <source>Column of the date, by heading or number (csv)</source>
        <translation>Spalte des Datums, nach Überschrift oder Nummer (csv)</translation>
    </message>
    <message>
        <source>Column of the amount (csv)</source>
        <translation>Spalte des Betrags (csv)</translation>
    </message>
    <message>
        <source>Column of incoming amounts (csv)</source>
        <translation>Spalte der Eingänge (csv)</translation>
    </message>
    <message>
        <source>Column of outgoing amounts (csv)</source>
        <translation>Spalte der Ausgänge (csv)</translation>
    </message>
    <message>
        <source>Column of the sign (csv)</source>
        <translation>Spalte des Vorzeichens (csv)</translation>
    </message>
    <message>
        <source>Text in the sign column for outgoing amounts (csv, repeatable)</source>
        <translation>Text in der Spalte des Vorzeichens bei Ausgängen (csv, wiederholbar)</translation>
    </message>
    <message>
        <source>Column of the description (csv, repeatable)</source>
        <translation>Spalte der Beschreibung (csv, wiederholbar)</translation>
    </message>
    <message>
        <source>Column of the bank&apos;s identifier (csv)</source>
        <translation>Spalte mit der Kennung der Bank (csv)</translation>
    </message>
    <message>
        <source>Column of the currency (csv)</source>
        <translation>Spalte der Währung (csv)</translation>
    </message>
    <message>
        <source>Delimiter between cells (csv, default: guessed)</source>
        <translation>Trennzeichen zwischen Zellen (csv, Standard: erraten)</translation>
    </message>
    <message>
        <source>Number of lines above the headings (csv)</source>
        <translation>Zahl der Zeilen über den Überschriften (csv)</translation>
    </message>
    <message>
        <source>The file has no headings (csv)</source>
        <translation>Die Datei hat keine Überschriften (csv)</translation>
    </message>
    <message>
        <source>Outgoing amounts are positive (csv)</source>
        <translation>Ausgänge sind positiv (csv)</translation>
    </message>
    <message>
        <source>Account of the bank statement</source>
        <translation>Konto des Kontoauszugs</translation>
    </message>
    <message>
        <source>Counter-account of entries that match no rule</source>
        <translation>Gegenkonto von Einträgen, zu denen keine Regel passt</translation>
    </message>
    <message>
        <source>Post duplicates, too</source>
        <translation>Auch Dubletten buchen</translation>
    </message>
    <message>
        <source>Import a journal or statement, all or nothing</source>
        <translation>Journal oder Kontoauszug importieren, ganz oder gar nicht</translation>
    </message>
    <message>
        <source>Frequency, such as monthly</source>
        <translation>Turnus, etwa monthly</translation>
    </message>
    <message>
        <source>Next due date</source>
        <translation>Nächster Termin</translation>
    </message>
    <message>
        <source>Tag (repeatable)</source>
        <translation>Schlagwort (wiederholbar)</translation>
    </message>
    <message>
        <source>Amount borrowed; the opening balance of its account</source>
        <translation>Geliehener Betrag; der Anfangssaldo des Kontos der Schuld</translation>
    </message>
    <message>
        <source>Type of the bank account, such as loan (default)</source>
        <translation>Art des Bankkontos, etwa loan (Standard)</translation>
    </message>
    <message>
        <source>Target amount</source>
        <translation>Zielbetrag</translation>
    </message>
    <message>
        <source>Bank account that holds the savings</source>
        <translation>Bankkonto, auf dem zurückgelegt wird</translation>
    </message>
    <message>
        <source>Day of the opening; next due date if --next is missing</source>
        <translation>Tag der Eröffnung; nächster Termin, falls --next fehlt</translation>
    </message>
    <message>
        <source>Remove all tags</source>
        <translation>Alle Schlagwörter entfernen</translation>
    </message>
    <message>
        <source>Remove the link to the bank</source>
        <translation>Die Verknüpfung mit der Bank entfernen</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Einen Posten anlegen</translation>
    </message>
    <message>
        <source>Change the given values of an item</source>
        <translation>Die angegebenen Werte eines Postens ändern</translation>
    </message>
    <message>
        <source>Rename an item</source>
        <translation>Einen Posten umbenennen</translation>
    </message>
    <message>
        <source>Remove an item</source>
        <translation>Einen Posten entfernen</translation>
    </message>
    <message>
        <source>List all items</source>
        <translation>Alle Posten auflisten</translation>
    </message>
    <message>
        <source>Add, change or list bills</source>
        <translation>Rechnungen anlegen, ändern oder auflisten</translation>
    </message>
    <message>
        <source>Add, change or list debts</source>
        <translation>Schulden anlegen, ändern oder auflisten</translation>
    </message>
    <message>
        <source>Add, change or list goals to save for</source>
        <translation>Sparziele anlegen, ändern oder auflisten</translation>
    </message>
    <message>
        <source>Add, change or list free spending (non-tracked)</source>
        <translation>Freie Ausgaben (nicht verfolgt) anlegen, ändern, auflisten</translation>
    </message>
    <message>
        <source>Add, change or list wages</source>
        <translation>Löhne anlegen, ändern oder auflisten</translation>
    </message>
    <message>
        <source>Currencies (default: the usable ones)</source>
        <translation>Währungen (Standard: die nutzbaren)</translation>
    </message>
    <message>
        <source>Base currency; each rate is for one unit of it</source>
        <translation>Basiswährung; jeder Kurs gilt für eine Einheit davon</translation>
    </message>
    <message>
        <source>Rate of a currency, such as EUR=0.92 (repeatable)</source>
        <translation>Kurs einer Währung, etwa EUR=0.92 (wiederholbar)</translation>
    </message>
    <message>
        <source>Show, fetch or set exchange rates</source>
        <translation>Wechselkurse zeigen, abrufen oder setzen</translation>
    </message>
    <message>
        <source>Show the exchange rates</source>
        <translation>Die Wechselkurse zeigen</translation>
    </message>
    <message>
        <source>Fetch current rates</source>
        <translation>Aktuelle Kurse abrufen</translation>
    </message>
    <message>
        <source>Set rates by hand</source>
        <translation>Kurse von Hand setzen</translation>
    </message>
    <message>
        <source>Check for a newer release</source>
        <translation>Nach einer neueren Version suchen</translation>
    </message>
    <message>
        <source>Show the release notes</source>
        <translation>Die Neuerungen der Versionen zeigen</translation>
    </message>
    <message>
        <source>Last day (default: today)</source>
        <translation>Letzter Tag (Standard: heute)</translation>
    </message>
    <message>
        <source>Print an HTML page with charts</source>
        <translation>Eine HTML-Seite mit Diagrammen ausgeben</translation>
    </message>
    <message>
        <source>Draw charts on the terminal</source>
        <translation>Diagramme im Terminal zeichnen</translation>
    </message>
    <message>
        <source>Title of the HTML page</source>
        <translation>Titel der HTML-Seite</translation>
    </message>
    <message>
        <source>Last day, like --to</source>
        <translation>Letzter Tag, wie --to</translation>
    </message>
    <message>
        <source>Budget file, like --file</source>
        <translation>Budgetdatei, wie --file</translation>
    </message>
    <message>
        <source>Read commands line by line, keep the budget open</source>
        <translation>Befehle Zeile für Zeile lesen, das Budget offen halten</translation>
    </message>
    <message>
        <source>Like shell, but print all signals as JSON</source>
        <translation>Wie shell, aber alle Signale als JSON ausgeben</translation>
    </message>
    <message>
        <source>Edited output of survey show --json; - for standard input</source>
        <translation>Bearbeitete Ausgabe von survey show --json; - für die Standardeingabe</translation>
    </message>
    <message>
        <source>All transactions are on the statement</source>
        <translation>Alle Buchungen stehen im Kontoauszug</translation>
    </message>
    <message>
        <source>Unbooked money of an item, negative if it went out (repeatable)</source>
        <translation>Nicht gebuchtes Geld eines Postens, negativ bei Ausgängen (wiederholbar)</translation>
    </message>
    <message>
        <source>Unbooked money of another account (repeatable)</source>
        <translation>Nicht gebuchtes Geld eines anderen Kontos (wiederholbar)</translation>
    </message>
    <message>
        <source>Amount to set aside for an item (repeatable)</source>
        <translation>Betrag, der für einen Posten zurückgelegt wird (wiederholbar)</translation>
    </message>
    <message>
        <source>Amount that is not distributed (default: the rest)</source>
        <translation>Nicht verteilter Betrag (Standard: der Rest)</translation>
    </message>
    <message>
        <source>Compare the books with a bank statement</source>
        <translation>Die Bücher mit einem Kontoauszug vergleichen</translation>
    </message>
    <message>
        <source>Show the changes since the last survey</source>
        <translation>Die Änderungen seit dem letzten Abgleich zeigen</translation>
    </message>
    <message>
        <source>Reconcile an account with a statement</source>
        <translation>Ein Konto mit einem Kontoauszug abgleichen</translation>
    </message>
    <message>
        <source>Reconcile an account question by question</source>
        <translation>Ein Konto Frage für Frage abgleichen</translation>
    </message>
    <message>
        <source>Show the last reconciliation</source>
        <translation>Den letzten Abgleich zeigen</translation>
    </message>
    <message>
        <source>Show the last reconciliation of an account</source>
        <translation>Den letzten Abgleich eines Kontos zeigen</translation>
    </message>
    <message>
        <source>Demonstrate kiv on a temporary budget</source>
        <translation>kiv an einem Probebudget vorführen</translation>
    </message>
    <message>
        <source>Amount, in the currency of the debited account</source>
        <translation>Betrag, in der Währung des Kontos im Soll</translation>
    </message>
    <message>
        <source>Account to debit</source>
        <translation>Konto im Soll</translation>
    </message>
    <message>
        <source>Account to credit</source>
        <translation>Konto im Haben</translation>
    </message>
    <message>
        <source>JSON list of transactions; - for standard input</source>
        <translation>JSON-Liste von Buchungen; - für die Standardeingabe</translation>
    </message>
    <message numerus="yes">
        <source>Posted %n transactions.</source>
        <translation>
            <numerusform>%n Buchung ausgeführt.</numerusform>
            <numerusform>%n Buchungen ausgeführt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Number of the transaction</source>
        <translation>Nummer der Buchung</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Numbers of the transactions</source>
        <translation>Nummern der Buchungen</translation>
    </message>
    <message>
        <source>Number of the transaction to refund</source>
        <translation>Nummer der zu erstattenden Buchung</translation>
    </message>
    <message>
        <source>List all transactions</source>
        <translation>Alle Buchungen auflisten</translation>
    </message>
    <message>
        <source>Add, change, mark or remove transactions</source>
        <translation>Buchungen anlegen, ändern, kennzeichnen oder entfernen</translation>
    </message>
    <message>
        <source>Post a transaction</source>
        <translation>Eine Buchung ausführen</translation>
    </message>
    <message>
        <source>Post all transactions of a JSON file</source>
        <translation>Alle Buchungen einer JSON-Datei ausführen</translation>
    </message>
    <message>
        <source>Change the given values of a transaction</source>
        <translation>Die angegebenen Werte einer Buchung ändern</translation>
    </message>
    <message>
        <source>Remove transactions</source>
        <translation>Buchungen entfernen</translation>
    </message>
    <message>
        <source>Mark transactions as cleared by the bank</source>
        <translation>Buchungen als von der Bank bestätigt kennzeichnen</translation>
    </message>
    <message>
        <source>Mark transactions as reconciled with a statement</source>
        <translation>Buchungen als mit einem Kontoauszug abgeglichen kennzeichnen</translation>
    </message>
    <message>
        <source>Undo the reconciliation of transactions</source>
        <translation>Den Abgleich von Buchungen aufheben</translation>
    </message>
    <message>
        <source>List refundable transactions of a budget item</source>
        <translation>Erstattbare Buchungen eines Budgetpostens auflisten</translation>
    </message>
    <message>
        <source>Post a refund of a transaction</source>
        <translation>Eine Erstattung einer Buchung ausführen</translation>
    </message>
    <message>
        <source>List the kept versions of the budget</source>
        <translation>Die aufbewahrten Versionen des Budgets auflisten</translation>
    </message>
    <message>
        <source>Show the changes between two versions</source>
        <translation>Die Änderungen zwischen zwei Versionen zeigen</translation>
    </message>
    <message>
        <source>Template, see kiv templates list (default: none)</source>
        <translation>Vorlage, siehe kiv templates list (Standard: none)</translation>
    </message>
    <message>
        <source>Currency, which becomes the preferred one</source>
        <translation>Währung, die zur bevorzugten wird</translation>
    </message>
    <message>
        <source>Name of the bank account</source>
        <translation>Name des Bankkontos</translation>
    </message>
    <message>
        <source>Type of the bank account, such as checking (default)</source>
        <translation>Art des Bankkontos, etwa checking (Standard)</translation>
    </message>
    <message>
        <source>Template, see kiv templates list</source>
        <translation>Vorlage, siehe kiv templates list</translation>
    </message>
    <message>
        <source>Create a budget from a template</source>
        <translation>Ein Budget nach einer Vorlage anlegen</translation>
    </message>
    <message>
        <source>Show the templates of kiv wizard</source>
        <translation>Die Vorlagen von kiv wizard zeigen</translation>
    </message>
    <message>
        <source>List all templates</source>
        <translation>Alle Vorlagen auflisten</translation>
    </message>
    <message>
        <source>Show the budget items of a template</source>
        <translation>Die Budgetposten einer Vorlage zeigen</translation>
    </message>
    <message>
        <source>The exchange rates could not be fetched; try again later, or set them with kiv rates set.</source>
        <translation>Die Wechselkurse konnten nicht abgerufen werden; später noch einmal versuchen oder mit kiv rates set setzen.</translation>
    </message>
    <message>
        <source>The releases could not be fetched; try again later.</source>
        <translation>Die Veröffentlichungen konnten nicht abgerufen werden; später noch einmal versuchen.</translation>
    </message>
    <message>
        <source> Caused by: </source>
        <translation> Ursache: </translation>
    </message>
    <message>
        <source>cleared</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>reconciled</source>
        <translation>abgeglichen</translation>
    </message>
    <message>
        <source>none</source>
        <comment>the status of a transaction</comment>
        <translation>offen</translation>
    </message>
    <message>
        <source>non-tracked item</source>
        <translation>nicht verfolgter Posten</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s budget: accounts, banks, bills, wages and what is due.</source>
        <translation>Führt das Budget eines Haushalts: Konten, Banken, Rechnungen, Löhne und was fällig ist.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>NÖTIG</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Diese Hilfe zeigen</translation>
    </message>
    <message>
        <source>Show the version of kiv</source>
        <translation>Die Version von kiv zeigen</translation>
    </message>
    <message>
        <source>kiv COMMAND --help describes a command.</source>
        <translation>kiv BEFEHL --help beschreibt einen Befehl.</translation>
    </message>
    <message>
        <source>item</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>transaction</source>
        <translation>Buchung</translation>
    </message>
    <message>
        <source>bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>survey</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>borrowed</source>
        <translation>geliehen</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>every</source>
        <translation>Turnus</translation>
    </message>
    <message>
        <source>next</source>
        <translation>nächster Termin</translation>
    </message>
    <message>
        <source>parent</source>
        <translation>Oberkonto</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>target</source>
        <translation>Zielbetrag</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Cannot load the HTTP library: %1.</source>
        <translation>Die HTTP-Bibliothek kann nicht geladen werden: %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells but there are %2 headings; put quotes around cells that contain the delimiter.</source>
        <translation>Der Datensatz hat %1 Zellen, es gibt aber %2 Überschriften; Zellen, die das Trennzeichen enthalten, brauchen Anführungszeichen.</translation>
    </message>
    <message>
        <source>The file has no headings and no entries.</source>
        <translation>Die Datei hat weder Überschriften noch Einträge.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date form; combine YYYY, MM and DD, like DD.MM.YYYY.</source>
        <translation>„%1“ ist keine Form für ein Datum; sie besteht aus YYYY, MM und DD, etwa DD.MM.YYYY.</translation>
    </message>
    <message>
        <source>Transactions posted: %1; duplicates skipped: %2; accounts opened: %3.</source>
        <translation>Buchungen: %1; übersprungene Dubletten: %2; eröffnete Konten: %3.</translation>
    </message>
    <message>
        <source>Give the account of the bank statement with --into.</source>
        <translation>Das Konto des Kontoauszugs mit --into angeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known encoding; use one like windows-1252 or UTF-16.</source>
        <translation>„%1“ ist keine bekannte Kodierung; richtig ist etwa windows-1252 oder UTF-16.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date in the form %2; name another form with --date-format.</source>
        <translation>„%1“ ist kein Datum in der Form %2; eine andere Form wird mit --date-format angegeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known transaction or directive; put ; before the line to skip it.</source>
        <translation>„%1“ ist keine bekannte Buchung oder Anweisung; ein ; am Anfang der Zeile überspringt sie.</translation>
    </message>
    <message>
        <source>The row has only %1 of the %2 cells it needs.</source>
        <translation>Der Datensatz hat nur %1 der %2 Zellen, die nötig sind.</translation>
    </message>
    <message>
        <source>The dates can be read in two ways; name the order with --date-format, like M/D/YYYY.</source>
        <translation>Die Datumsangaben können auf zwei Arten gelesen werden; die Reihenfolge wird mit --date-format angegeben, etwa M/D/YYYY.</translation>
    </message>
    <message>
        <source>The last entry may be cut off; download the file again, or end it with a line ^.</source>
        <translation>Der letzte Eintrag ist vielleicht abgeschnitten; die Datei ist neu herunterzuladen oder mit einer Zeile ^ zu beenden.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>Unexpected arguments: %1</source>
        <translation>Unerwartete Argumente: %1</translation>
    </message>
    <message>
        <source>Encoding (default: the one named in the file, or UTF-8)</source>
        <translation>Kodierung (Standard: die in der Datei genannte oder UTF-8)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rate; write one like EUR=0.92.</source>
        <translation>„%1“ ist kein Kurs; richtig ist etwa EUR=0.92.</translation>
    </message>
    <message>
        <source>it is larger than 64 MiB (exceeded in line %1); split it into smaller files</source>
        <translation>sie ist größer als 64 MiB (überschritten in Zeile %1) und in kleinere zu teilen</translation>
    </message>
    <message>
        <source>The checksum is wrong.</source>
        <translation>Die Prüfsumme ist falsch.</translation>
    </message>
    <message>
        <source>Its header is damaged.</source>
        <translation>Ihr Kopf ist beschädigt.</translation>
    </message>
    <message>
        <source>The content is larger than a file may be.</source>
        <translation>Der Inhalt ist größer, als eine Datei sein darf.</translation>
    </message>
    <message>
        <source>The surveys contradict each other.</source>
        <translation>Die Abgleiche widersprechen einander.</translation>
    </message>
    <message>
        <source>There are too many rows.</source>
        <translation>Es sind zu viele Zeilen.</translation>
    </message>
    <message>
        <source>A text is too long.</source>
        <translation>Ein Text ist zu lang.</translation>
    </message>
    <message>
        <source>%1 needs a value (%2)</source>
        <translation>%1 braucht einen Wert (%2)</translation>
    </message>
    <message>
        <source>%1 was given %3 times, at most %2 is allowed</source>
        <translation>%1 wurde %3-mal angegeben, höchstens %2-mal ist erlaubt</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <comment>a name</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Income</source>
        <comment>what came in</comment>
        <translation>Einnahmen</translation>
    </message>
    <message>
        <source>No amount is negative, but column %1 contains &apos;%2&apos;; tell what went out with --sign-column and --negative.</source>
        <translation>Kein Betrag ist negativ, aber in Spalte %1 steht „%2“; was ausging, wird mit --sign-column und --negative angegeben.</translation>
    </message>
    <message>
        <source>y</source>
        <comment>the answer yes, a letter</comment>
        <translation>j</translation>
    </message>
    <message>
        <source>n</source>
        <comment>the answer no, a letter</comment>
        <translation>n</translation>
    </message>
    <message>
        <source>A journal can have at most %1 automated transactions.</source>
        <translation>Ein Journal fasst höchstens %1 automatische Buchungen.</translation>
    </message>
    <message>
        <source>a journal can include at most %1 files</source>
        <translation>ein Journal bindet höchstens %1 Dateien ein</translation>
    </message>
    <message numerus="yes">
        <source>%n more changes are not shown; see all with --json.</source>
        <translation>
            <numerusform>%n weitere Änderung ist nicht gezeigt; --json zeigt alle.</numerusform>
            <numerusform>%n weitere Änderungen sind nicht gezeigt; --json zeigt alle.</numerusform>
        </translation>
    </message>
    <message>
        <source>The column of what went out has both signs; move refunds to the column of what came in.</source>
        <translation>Die Spalte der Abgänge hat beide Vorzeichen; Erstattungen gehören in die Spalte der Eingänge.</translation>
    </message>
    <message>
        <source>The last line may be cut off; download the file again, or end it with a line break.</source>
        <translation>Die letzte Zeile ist vielleicht abgeschnitten; die Datei ist neu herunterzuladen oder mit einem Zeilenende abzuschließen.</translation>
    </message>
    <message>
        <source>The file has entries of several accounts; put each account into its own file.</source>
        <translation>Die Datei enthält Einträge mehrerer Konten; jedes braucht eine eigene Datei.</translation>
    </message>
    <message>
        <source>Entries that the bank has not booked yet are skipped.</source>
        <translation>Einträge, die die Bank noch nicht gebucht hat, werden übersprungen.</translation>
    </message>
    <message>
        <source>There is no account &apos;%1&apos;; its transfers are posted to &apos;%2&apos;.</source>
        <translation>Es gibt kein Konto „%1“; seine Umbuchungen kommen auf „%2“.</translation>
    </message>
    <message>
        <source>Some entries are older than the opening balance of %1, which may already include them.</source>
        <translation>Manche Einträge sind älter als der Anfangssaldo vom %1, der sie vielleicht schon enthält.</translation>
    </message>
    <message>
        <source>Entries from &apos;%1&apos; to itself are skipped, such as an opening balance.</source>
        <translation>Einträge von „%1“ auf dasselbe Konto werden übersprungen, etwa ein Anfangssaldo.</translation>
    </message>
    <message>
        <source>Number of lines below the entries, such as totals (csv)</source>
        <translation>Zahl der Zeilen unter den Einträgen, etwa Summen (csv)</translation>
    </message>
    <message>
        <source>An amount in the column of what came in is negative; move it to what went out, or remove its sign.</source>
        <translation>Ein Betrag in der Spalte der Eingänge ist negativ; er gehört zu den Abgängen oder braucht kein Vorzeichen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not tell whether the amount went out; name the words that do with --negative.</source>
        <translation>„%1“ sagt nicht, ob der Betrag abging; die Wörter dafür werden mit --negative genannt.</translation>
    </message>
    <message>
        <source>The line to be skipped contains a date; skip fewer lines with --skip-last.</source>
        <translation>Die Zeile soll übersprungen werden, enthält aber ein Datum; mit --skip-last sind weniger Zeilen zu überspringen.</translation>
    </message>
    <message>
        <source>The entry has more than %1 characters up to here.</source>
        <translation>Der Eintrag hat bis hierher mehr als %1 Zeichen.</translation>
    </message>
    <message>
        <source>All descriptions up to here have more than %1 characters together; split the file.</source>
        <translation>Alle Beschreibungen bis hierher haben zusammen mehr als %1 Zeichen; die Datei ist aufzuteilen.</translation>
    </message>
    <message>
        <source>A journal can have at most %1 accounts, parent accounts included.</source>
        <translation>Ein Journal hat höchstens %1 Konten, Oberkonten eingeschlossen.</translation>
    </message>
    <message>
        <source>The full names of all accounts up to here have more than %1 characters together; shorten them.</source>
        <translation>Die vollen Namen aller Konten bis hierher haben zusammen mehr als %1 Zeichen; sie sind zu kürzen.</translation>
    </message>
    <message>
        <source>The kind of &apos;%1&apos; is declared too late; move the declaration above the account&apos;s first transaction.</source>
        <translation>Die Art von „%1“ wird zu spät angegeben; die Angabe gehört über die erste Buchung des Kontos.</translation>
    </message>
    <message>
        <source>Programs differ on how aliases rename &apos;%1&apos;; write the full account name.</source>
        <translation>Programme sind sich nicht einig, wie die Aliasnamen „%1“ umbenennen; es hilft, den vollen Namen des Kontos zu schreiben.</translation>
    </message>
    <message>
        <source>Programs differ on which amount gives this balance of &apos;%1&apos;; write the amount.</source>
        <translation>Programme sind sich nicht einig, welcher Betrag diesen Saldo von „%1“ ergibt; es hilft, den Betrag zu schreiben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be an amount or a multiplier; add its currency, or put * before it.</source>
        <translation>„%1“ kann ein Betrag oder ein Faktor sein; es hilft, die Währung dazu oder * davor zu schreiben.</translation>
    </message>
    <message>
        <source>Programs differ on whether this automated transaction applies to &apos;%1&apos;, which was posted earlier or automatically.</source>
        <translation>Programme sind sich nicht einig, ob diese automatische Buchung für „%1“ gilt, das schon vorher oder automatisch bebucht wurde.</translation>
    </message>
    <message>
        <source>Some accounts are merged into one, such as &apos;%1&apos; and &apos;%2&apos;.</source>
        <translation>Manche Konten werden zu einem zusammengelegt, so „%1“ und „%2“.</translation>
    </message>
    <message>
        <source>The postings of automated transactions are added.</source>
        <translation>Was automatische Buchungen hinzufügen, wird gebucht.</translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) that move no money are skipped.</source>
        <translation>
            <numerusform>%n Buchung, die nichts bewegt, wird übersprungen.</numerusform>
            <numerusform>%n Buchungen, die nichts bewegen, werden übersprungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates in comments are skipped; each posting has the date of its transaction.</source>
        <translation>Datumsangaben in Kommentaren werden übersprungen; jeder Posten hat das Datum seiner Buchung.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is not assigned to a bank</source>
        <translation>Das Konto „%1“ ist keiner Bank zugeordnet</translation>
    </message>
    <message>
        <source>Several budget items are named &apos;%1&apos;</source>
        <translation>Mehrere Budgetposten heißen „%1“</translation>
    </message>
    <message>
        <source>The budget was opened for reading only.</source>
        <translation>Das Budget wurde nur zum Lesen geöffnet.</translation>
    </message>
    <message>
        <source>Saved a copy</source>
        <translation>Kopie gespeichert</translation>
    </message>
    <message>
        <source>The changes of &apos;%1&apos; could not be saved</source>
        <translation>Die Änderungen von „%1“ ließen sich nicht speichern</translation>
    </message>
    <message>
        <source>assign it with kiv bank-account attach</source>
        <translation>zuordnen mit kiv bank-account attach</translation>
    </message>
    <message>
        <source>choose one with --kind: %1</source>
        <translation>einer wird mit --kind gewählt: %1</translation>
    </message>
    <message>
        <source>save them elsewhere with save-as</source>
        <translation>anderswo speichern mit save-as</translation>
    </message>
    <message>
        <source>The table has more than %1 characters up to here, each cell counted as at least %2; split the file.</source>
        <translation>Die Tabelle hat bis hierher mehr als %1 Zeichen, jede Zelle als mindestens %2 gezählt; die Datei ist aufzuteilen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is in two cells but may be one amount; put quotes around amounts that contain the delimiter.</source>
        <translation>„%1“ steht in zwei Zellen, ist aber vielleicht ein einziger Betrag; Beträge, die das Trennzeichen enthalten, brauchen Anführungszeichen.</translation>
    </message>
    <message>
        <source>The columns %1 are all named &apos;%2&apos;; choose one by its number with %3.</source>
        <translation>Die Spalten %1 heißen alle „%2“; eine davon wird mit %3 durch ihre Nummer gewählt.</translation>
    </message>
    <message>
        <source>The heading line contains an entry; use --no-headings if the file has no headings.</source>
        <translation>Die Zeile der Überschriften enthält einen Eintrag; hat die Datei keine Überschriften, ist --no-headings anzugeben.</translation>
    </message>
    <message>
        <source>This entry is inside quotes that open on an earlier line; close them there.</source>
        <translation>Dieser Eintrag steht innerhalb von Anführungszeichen, die auf einer früheren Zeile beginnen; sie sind dort zu schließen.</translation>
    </message>
    <message>
        <source>The entries add up to a balance of %1 here, but the file says %2; --balance-column - skips this check.</source>
        <translation>Die Einträge ergeben hier den Saldo %1, die Datei nennt aber %2; --balance-column - überspringt diese Prüfung.</translation>
    </message>
    <message>
        <source>This entry belongs to no statement.</source>
        <translation>Dieser Eintrag gehört zu keinem Kontoauszug.</translation>
    </message>
    <message>
        <source>There is text outside &lt;OFX&gt; and &lt;/OFX&gt;; put each document into its own file.</source>
        <translation>Außerhalb von &lt;OFX&gt; und &lt;/OFX&gt; steht noch etwas; jedes Dokument braucht eine eigene Datei.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; appears twice.</source>
        <translation>&lt;%1&gt; kommt zweimal vor.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; repeats a field of this entry; a line ^ may be missing above.</source>
        <translation>„%1“ wiederholt ein Feld dieses Eintrags; darüber fehlt vielleicht eine Zeile ^.</translation>
    </message>
    <message>
        <source>The entry has two different amounts, %1 and %2.</source>
        <translation>Der Eintrag hat zwei verschiedene Beträge, %1 und %2.</translation>
    </message>
    <message>
        <source>Column that marks pending entries (csv)</source>
        <translation>Spalte, die vorgemerkte Einträge kennzeichnet (csv)</translation>
    </message>
    <message>
        <source>Column of the balance; - skips its check (csv)</source>
        <translation>Spalte des Saldos; - überspringt seine Prüfung (csv)</translation>
    </message>
    <message>
        <source>The rates of the reply are from %1, older than the known ones from %2.</source>
        <translation>Die Kurse der Antwort sind vom %1 und älter als die bekannten vom %2.</translation>
    </message>
    <message>
        <source>%1 It was renamed to &apos;%2&apos;.</source>
        <translation>%1 Sie heißt jetzt „%2“.</translation>
    </message>
    <message>
        <source>Kind, if several items have the name, or to limit --all: bill, debt, goal, nontrack or wage</source>
        <translation>Art, falls mehrere Posten so heißen oder um --all einzuschränken: bill, debt, goal, nontrack oder wage</translation>
    </message>
    <message>
        <source>typed</source>
        <translation>von Hand</translation>
    </message>
    <message>
        <source>fetched</source>
        <translation>abgerufen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>The service has no exchange rates for: %1</source>
        <translation>Der Dienst hat keine Wechselkurse für: %1</translation>
    </message>
    <message>
        <source>The currency &apos;%1&apos; is given twice.</source>
        <translation>Die Währung „%1“ ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>Use either %1 or %2, not both.</source>
        <translation>Entweder %1 oder %2 angeben, nicht beides.</translation>
    </message>
    <message>
        <source>Use %1 only together with %2.</source>
        <translation>%1 gilt nur zusammen mit %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be locked: &apos;%2&apos; is not a lock file. Move it away or rename it.</source>
        <translation>Die Datei „%1“ kann nicht gesperrt werden: „%2“ ist keine Sperrdatei. Sie ist zu verschieben oder umzubenennen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: &apos;%2&apos; is in the way.</source>
        <translation>Die Datei „%1“ konnte nicht gespeichert werden: „%2“ ist im Weg.</translation>
    </message>
    <message>
        <source>Amounts in the account &apos;%1&apos; that differed from those of their transactions in the same currency were corrected.</source>
        <translation>Beträge im Konto „%1“, die von denen ihrer Buchungen in derselben Währung abwichen, wurden berichtigt.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; had the account %2, which is neither an asset nor a liability.</source>
        <translation>Die Bank „%1“ hatte das Konto %2, das weder Vermögen noch Verbindlichkeit ist.</translation>
    </message>
    <message>
        <source>The last survey of the account %1 at the bank &apos;%2&apos; is from when the account had another type; it now counts for the present type, unless there is a later one.</source>
        <translation>Der letzte Abgleich des Kontos %1 bei der Bank „%2“ stammt aus der Zeit, als das Konto eine andere Art hatte; er gilt jetzt für die heutige Art, sofern es keinen späteren gibt.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Budget file</source>
        <translation>Budgetdatei</translation>
    </message>
    <message>
        <source>Accounts and transactions</source>
        <translation>Konten und Buchungen</translation>
    </message>
    <message>
        <source>Budget items</source>
        <translation>Budgetposten</translation>
    </message>
    <message>
        <source>Banks and statements</source>
        <translation>Banken und Kontoauszüge</translation>
    </message>
    <message>
        <source>Reports and export</source>
        <translation>Berichte und Export</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>There are no refundable transactions.</source>
        <translation>Es gibt keine erstattbaren Buchungen.</translation>
    </message>
    <message>
        <source>The entry has no amount.</source>
        <translation>Der Eintrag hat keinen Betrag.</translation>
    </message>
    <message>
        <source>The entry has no date.</source>
        <translation>Der Eintrag hat kein Datum.</translation>
    </message>
    <message>
        <source>The import profile is not valid JSON: %1.</source>
        <translation>Das Importprofil ist kein gültiges JSON: %1.</translation>
    </message>
    <message>
        <source>The import profile is not a JSON object.</source>
        <translation>Das Importprofil ist kein JSON-Objekt.</translation>
    </message>
    <message>
        <source>The import profile has an unknown key &apos;%1&apos;.</source>
        <translation>Das Importprofil hat einen unbekannten Schlüssel „%1“.</translation>
    </message>
    <message>
        <source>The import profile has a wrong value for &apos;%1&apos;.</source>
        <translation>Das Importprofil hat einen falschen Wert für „%1“.</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;</source>
        <translation>Es gibt kein Profil „%1“</translation>
    </message>
    <message>
        <source>The provided item type does not match the item&apos;s type.</source>
        <translation>Die angegebene Art passt nicht zur Art des Postens.</translation>
    </message>
    <message>
        <source>The provided item source does not match the item&apos;s source.</source>
        <translation>Der angegebene Name passt nicht zum Namen des Postens.</translation>
    </message>
    <message>
        <source>Failed to add the bank account &apos;%1&apos; for the first time wizard.</source>
        <translation>Das Bankkonto „%1“ konnte bei der Ersteinrichtung nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Failed to add the bank &apos;%1&apos; for the first time wizard.</source>
        <translation>Die Bank „%1“ konnte bei der Ersteinrichtung nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Failed to add the generate the %1 budget item &apos;%2&apos; for the first time wizard.</source>
        <translation>Der Budgetposten „%2“ (%1) konnte bei der Ersteinrichtung nicht erzeugt werden.</translation>
    </message>
    <message>
        <source>save one with --save-profile</source>
        <translation>eines mit --save-profile speichern</translation>
    </message>
    <message>
        <source>The key &apos;%1&apos; of a note must have 1 to %2 characters.</source>
        <translation>Der Schlüssel „%1“ einer Notiz muss 1 bis %2 Zeichen haben.</translation>
    </message>
    <message>
        <source>The note &apos;%1&apos; is too large.</source>
        <translation>Die Notiz „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>The note &apos;%1&apos; cannot be stored.</source>
        <translation>Die Notiz „%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There cannot be more than %1 notes.</source>
        <translation>Es kann nicht mehr als %1 Notizen geben.</translation>
    </message>
    <message>
        <source>A note is malformed or nested too deep.</source>
        <translation>Eine Notiz ist fehlerhaft oder zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>#%1, %2, was removed after the survey of %3</source>
        <translation>Nr. %1, %2, wurde nach dem Abgleich vom %3 entfernt</translation>
    </message>
    <message>
        <source>#%1 was changed from %2 to %3 after the survey of %4</source>
        <translation>Nr. %1 wurde nach dem Abgleich vom %4 von %2 zu %3 geändert</translation>
    </message>
    <message>
        <source>What it says about its version is damaged.</source>
        <translation>Was sie über ihre Version sagt, ist beschädigt.</translation>
    </message>
    <message>
        <source>#%1, %2, is no longer marked as reconciled since the survey of %3</source>
        <translation>Nr. %1, %2, ist seit dem Abgleich vom %3 nicht mehr als abgeglichen markiert</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; for the former versions cannot be used: %2.</source>
        <translation>Der Ordner „%1“ für die früheren Versionen ist nicht verwendbar: %2.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; for the former versions belongs to another user.</source>
        <translation>Der Ordner „%1“ für die früheren Versionen gehört einem anderen Benutzer.</translation>
    </message>
    <message>
        <source>Old versions could not be removed: %1</source>
        <translation>Alte Versionen konnten nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>The file already is at version %1.</source>
        <translation>Die Datei ist schon auf dem Stand der Version %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is gone, but its former versions are kept</source>
        <translation>Die Datei „%1“ ist weg, aber ihre früheren Versionen sind aufbewahrt</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is gone.</source>
        <translation>Die Datei „%1“ ist weg.</translation>
    </message>
    <message>
        <source>bring the newest back with kiv undo</source>
        <translation>die neueste holt kiv undo zurück</translation>
    </message>
    <message>
        <source>%1 Former versions are kept; bring the newest back with kiv undo.</source>
        <translation>%1 Frühere Versionen sind aufbewahrt; die neueste holt kiv undo zurück.</translation>
    </message>
    <message>
        <source>Created the budget</source>
        <translation>Budget angelegt</translation>
    </message>
    <message>
        <source>Saved under a new name</source>
        <translation>Unter neuem Namen gespeichert</translation>
    </message>
    <message>
        <source>Survey of %1, %2</source>
        <translation>Abgleich von %1, %2</translation>
    </message>
    <message>
        <source>How many changes (default: 1)</source>
        <translation>Anzahl der Änderungen (Standard: 1)</translation>
    </message>
    <message>
        <source>Name of the version, see kiv history</source>
        <translation>Name der Version, siehe kiv history</translation>
    </message>
    <message>
        <source>Name of the older version (default: the one that kiv undo goes to)</source>
        <translation>Name der älteren Version (Standard: die, zu der kiv undo führt)</translation>
    </message>
    <message>
        <source>Name of the newer version (default: the file itself)</source>
        <translation>Name der neueren Version (Standard: die Datei selbst)</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>Take back the last undo</source>
        <translation>Das letzte Zurücknehmen aufheben</translation>
    </message>
    <message>
        <source>present</source>
        <translation>aktuell</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries</source>
        <translation>
            <numerusform>%n Eintrag importiert</numerusform>
            <numerusform>%n Einträge importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be undone.</source>
        <translation>
            <numerusform>Nur %n Änderung lässt sich rückgängig machen.</numerusform>
            <numerusform>Nur %n Änderungen lassen sich rückgängig machen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be redone.</source>
        <translation>
            <numerusform>Nur %n Änderung lässt sich wiederholen.</numerusform>
            <numerusform>Nur %n Änderungen lassen sich wiederholen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is as it was reconciled.</source>
        <translation>%1 ist noch, wie es abgeglichen wurde.</translation>
    </message>
    <message>
        <source>%1 is as it was reconciled, but %2.</source>
        <translation>%1 ist noch, wie es abgeglichen wurde, aber: %2.</translation>
    </message>
    <message>
        <source>%1 is not as it was reconciled: %2.</source>
        <translation>%1 ist nicht mehr, wie es abgeglichen wurde: %2.</translation>
    </message>
    <message>
        <source>not as reconciled</source>
        <translation>nicht wie abgeglichen</translation>
    </message>
    <message>
        <source>holds</source>
        <translation>gilt</translation>
    </message>
    <message>
        <source>broken</source>
        <translation>gilt nicht mehr</translation>
    </message>
    <message>
        <source>Only those of this account: number, name or path (default: all)</source>
        <translation>Nur die dieses Kontos: Nummer, Name oder Pfad (Standard: alle)</translation>
    </message>
    <message>
        <source>There are no reconciliations.</source>
        <translation>Es gibt keine Abgleiche.</translation>
    </message>
    <message>
        <source>Check whether the books still are as they were reconciled</source>
        <translation>Prüfen, ob die Bücher noch sind, wie sie abgeglichen wurden</translation>
    </message>
    <message>
        <source>%1 See kiv reconciliations.</source>
        <translation>%1 Siehe kiv reconciliations.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no amounts; write them like &gt;50, &lt;20, =12.30 or 50..80.</source>
        <translation>„%1“ nennt keine Beträge; schreiben wie &gt;50, &lt;20, =12.30 oder 50..80.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no days; write them like 2026-03-05, 2026-03 or 2026-03..2026-05.</source>
        <translation>„%1“ nennt keine Tage; schreiben wie 2026-03-05, 2026-03 oder 2026-03..2026-05.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no mark; the marks are reconciled, cleared and open.</source>
        <translation>„%1“ nennt keinen Vermerk; Vermerke sind reconciled, cleared und open.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends before it begins.</source>
        <translation>„%1“ endet, bevor es beginnt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks a word behind the colon.</source>
        <translation>„%1“ fehlt ein Wort hinter dem Doppelpunkt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a filter</source>
        <translation>„%1“ ist kein Filter</translation>
    </message>
    <message>
        <source>Several accounts are named &apos;%1&apos;; write one of: %2.</source>
        <translation>Mehrere Konten heißen „%1“; eines davon schreiben: %2.</translation>
    </message>
    <message>
        <source>Money is not spent on &apos;%1&apos;; name a budget item or an expense account, or move it to &apos;%1&apos;.</source>
        <translation>Für „%1“ wird kein Geld ausgegeben; einen Budgetposten oder ein Aufwandskonto nennen oder nach „%1“ umbuchen.</translation>
    </message>
    <message>
        <source>Money is not earned from &apos;%1&apos;; name a wage or an income account, or move it from &apos;%1&apos;.</source>
        <translation>Mit „%1“ wird kein Geld verdient; einen Lohn oder ein Ertragskonto nennen oder von „%1“ umbuchen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; keeps no money; name an account such as a bank account, a card or cash.</source>
        <translation>„%1“ enthält kein Geld; ein Konto wie Bankkonto, Karte oder Bargeld nennen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was never paid before, and no bank has a checking account; name the account.</source>
        <translation>„%1“ wurde noch nie bezahlt, und keine Bank hat ein Girokonto; das Konto nennen.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>this month</source>
        <translation>dieser Monat</translation>
    </message>
    <message>
        <source>last month</source>
        <translation>letzter Monat</translation>
    </message>
    <message>
        <source>this year</source>
        <translation>dieses Jahr</translation>
    </message>
    <message>
        <source>last year</source>
        <translation>letztes Jahr</translation>
    </message>
    <message numerus="yes">
        <source>Entered %n due items: %1.</source>
        <translation>
            <numerusform>%n fälligen Posten gebucht: %1.</numerusform>
            <numerusform>%n fällige Posten gebucht: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>entering %n due items</source>
        <translation>
            <numerusform>%n fälligen Posten buchen</numerusform>
            <numerusform>%n fällige Posten buchen</numerusform>
        </translation>
    </message>
    <message>
        <source>Received %1.</source>
        <translation>%1 erhalten.</translation>
    </message>
    <message>
        <source>receiving “%1”</source>
        <translation>„%1“ erhalten</translation>
    </message>
    <message>
        <source>Saved for %1.</source>
        <translation>Für %1 gespart.</translation>
    </message>
    <message>
        <source>saving for “%1”</source>
        <translation>für „%1“ sparen</translation>
    </message>
    <message>
        <source>Paid %1.</source>
        <translation>%1 bezahlt.</translation>
    </message>
    <message>
        <source>paying “%1”</source>
        <translation>„%1“ bezahlen</translation>
    </message>
    <message>
        <source>Skipped %1.</source>
        <translation>%1 übersprungen.</translation>
    </message>
    <message>
        <source>skipping “%1”</source>
        <translation>„%1“ überspringen</translation>
    </message>
    <message numerus="yes">
        <source>Skipped %n due items: %1.</source>
        <translation>
            <numerusform>%n fälligen Posten übersprungen: %1.</numerusform>
            <numerusform>%n fällige Posten übersprungen: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>skipping %n due items</source>
        <translation>
            <numerusform>%n fälligen Posten überspringen</numerusform>
            <numerusform>%n fällige Posten überspringen</numerusform>
        </translation>
    </message>
    <message>
        <source>At banks and in cash</source>
        <translation>Bei Banken und in bar</translation>
    </message>
    <message>
        <source>Owed: cards and loans</source>
        <translation>Geschuldet: Karten und Kredite</translation>
    </message>
    <message>
        <source>Set aside for goals</source>
        <translation>Für Ziele zurückgelegt</translation>
    </message>
    <message>
        <source>Items of the budget</source>
        <translation>Posten des Budgets</translation>
    </message>
    <message>
        <source>Everything else</source>
        <translation>Alles andere</translation>
    </message>
    <message>
        <source>%1, changed since</source>
        <translation>%1, seitdem geändert</translation>
    </message>
    <message>
        <source>With goals under it</source>
        <translation>Mit Zielen darunter</translation>
    </message>
    <message>
        <source>Last reconciled</source>
        <translation>Zuletzt abgeglichen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>no longer</source>
        <translation>nicht mehr</translation>
    </message>
    <message>
        <source>Its balance then</source>
        <translation>Saldo danach</translation>
    </message>
    <message>
        <source>Next due</source>
        <translation>Danach fällig</translation>
    </message>
    <message>
        <source>Nothing is due until %1.</source>
        <translation>Bis %1 ist nichts fällig.</translation>
    </message>
    <message>
        <source>To pay until %1: %2.</source>
        <translation>Zu zahlen bis %1: %2.</translation>
    </message>
    <message>
        <source>To come in until %1: %2.</source>
        <translation>Zu erwarten bis %1: %2.</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>minus %1</translation>
    </message>
    <message>
        <source>No account is chosen for “%1”.</source>
        <translation>Für „%1“ ist kein Konto gewählt.</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>WOFÜR</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>WÖRTER</translation>
    </message>
    <message>
        <source>Words of the payee, the reason or an account; amounts like &apos;&gt;50&apos; or 50..80; days like march, 2026-03 or today; is:reconciled, not:cleared; account:NAME, item:NAME, payee:NAME. After --, -WORD excludes</source>
        <translation>Wörter aus Empfänger, Zweck oder Konto; Beträge wie &apos;&gt;50&apos; oder 50..80; Tage wie März, 2026-03 oder heute; is:reconciled, not:cleared; account:NAME, item:NAME, payee:NAME. Nach -- schließt -WORT aus</translation>
    </message>
    <message>
        <source>Day that counts as today</source>
        <translation>Tag, der als heute gilt</translation>
    </message>
    <message>
        <source>No transaction fits.</source>
        <translation>Keine Buchung passt.</translation>
    </message>
    <message>
        <source>%1 of %2, together %3.</source>
        <translation>%1 von %2, zusammen %3.</translation>
    </message>
    <message>
        <source>Search the transactions</source>
        <translation>Buchungen suchen</translation>
    </message>
    <message>
        <source>What it was for</source>
        <translation>Zweck</translation>
    </message>
    <message>
        <source>Amount, in the currency of the account</source>
        <translation>Betrag, in der Währung des Kontos</translation>
    </message>
    <message>
        <source>Budget item or expense account</source>
        <translation>Budgetposten oder Aufwandskonto</translation>
    </message>
    <message>
        <source>Account that paid (default: that of the last time, or else the first checking account)</source>
        <translation>Konto, von dem bezahlt wurde (Standard: das vom letzten Mal, sonst das erste Girokonto)</translation>
    </message>
    <message>
        <source>Who got the money</source>
        <translation>Wer das Geld bekam</translation>
    </message>
    <message>
        <source>Spent %1 from %2 on %3 (transaction %4).</source>
        <translation>%1 von %2 für %3 ausgegeben (Buchung %4).</translation>
    </message>
    <message>
        <source>Wage or income account</source>
        <translation>Lohn oder Ertragskonto</translation>
    </message>
    <message>
        <source>Account that got the money (default: that of the last time, or else the first checking account)</source>
        <translation>Konto, auf das das Geld kam (Standard: das vom letzten Mal, sonst das erste Girokonto)</translation>
    </message>
    <message>
        <source>Who gave the money</source>
        <translation>Von wem das Geld kam</translation>
    </message>
    <message>
        <source>Earned %1 from %2 to %3 (transaction %4).</source>
        <translation>%1 aus %2 auf %3 eingenommen (Buchung %4).</translation>
    </message>
    <message>
        <source>Account that the money leaves</source>
        <translation>Konto, von dem das Geld abgeht</translation>
    </message>
    <message>
        <source>Account that the money goes to: a bank account, a card, a loan, a goal …</source>
        <translation>Konto, auf das das Geld geht: Bankkonto, Karte, Darlehen, Ziel …</translation>
    </message>
    <message>
        <source>Enter money that was spent</source>
        <translation>Ausgegebenes Geld eintragen</translation>
    </message>
    <message>
        <source>Enter money that was earned</source>
        <translation>Eingenommenes Geld eintragen</translation>
    </message>
    <message>
        <source>Move money between accounts</source>
        <translation>Geld zwischen Konten umbuchen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has two currencies; enter amounts of one currency.</source>
        <translation>„%1“ hat zwei Währungen; Beträge in einer Währung eingeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not come out even; enter the amount itself.</source>
        <translation>„%1“ geht nicht auf; den Betrag selbst eingeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a day; write one like 2026-03-31, 3, 5-2, +7 or today.</source>
        <translation>„%1“ ist kein Tag; richtig ist etwa 2026-03-31, 3, 5-2, +7 oder heute.</translation>
    </message>
    <message>
        <source>“%1” has no category: it was neither spent nor earned.</source>
        <translation>„%1“ hat keine Kategorie: es wurde weder ausgegeben noch eingenommen.</translation>
    </message>
    <message>
        <source>“%1” is reconciled; take the reconciliation back first.</source>
        <translation>„%1“ ist abgeglichen; zuerst den Abgleich zurücknehmen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Spent %1 on %2.</source>
        <translation>%1 für %2 ausgegeben.</translation>
    </message>
    <message>
        <source>spending %1 on %2</source>
        <translation>%1 für %2 ausgeben</translation>
    </message>
    <message>
        <source>Earned %1 from %2.</source>
        <translation>%1 aus %2 eingenommen.</translation>
    </message>
    <message>
        <source>earning %1 from %2</source>
        <translation>%1 aus %2 einnehmen</translation>
    </message>
    <message>
        <source>Moved %1 from %2 to %3.</source>
        <translation>%1 von %2 nach %3 umgebucht.</translation>
    </message>
    <message>
        <source>moving %1 from %2 to %3</source>
        <translation>%1 von %2 nach %3 umbuchen</translation>
    </message>
    <message>
        <source>Changed “%1”.</source>
        <translation>„%1“ geändert.</translation>
    </message>
    <message>
        <source>changing “%1”</source>
        <translation>„%1“ ändern</translation>
    </message>
    <message>
        <source>Refunded %1 of “%2”.</source>
        <translation>%1 von „%2“ erstattet.</translation>
    </message>
    <message>
        <source>refunding %1 of “%2”</source>
        <translation>%1 von „%2“ erstatten</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>„%1“ entfernt.</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n transaction(s).</source>
        <translation>
            <numerusform>%n Buchung entfernt.</numerusform>
            <numerusform>%n Buchungen entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removing %n transaction(s)</source>
        <translation>
            <numerusform>%n Buchung entfernen</numerusform>
            <numerusform>%n Buchungen entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as cleared.</source>
        <translation>
            <numerusform>%n Buchung als bestätigt markiert.</numerusform>
            <numerusform>%n Buchungen als bestätigt markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as cleared</source>
        <translation>
            <numerusform>%n Buchung als bestätigt markieren</numerusform>
            <numerusform>%n Buchungen als bestätigt markieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not cleared.</source>
        <translation>
            <numerusform>%n Buchung als nicht bestätigt markiert.</numerusform>
            <numerusform>%n Buchungen als nicht bestätigt markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not cleared</source>
        <translation>
            <numerusform>%n Buchung als nicht bestätigt markieren</numerusform>
            <numerusform>%n Buchungen als nicht bestätigt markieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as reconciled.</source>
        <translation>
            <numerusform>%n Buchung als abgeglichen markiert.</numerusform>
            <numerusform>%n Buchungen als abgeglichen markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as reconciled</source>
        <translation>
            <numerusform>%n Buchung als abgeglichen markieren</numerusform>
            <numerusform>%n Buchungen als abgeglichen markieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not reconciled.</source>
        <translation>
            <numerusform>%n Buchung als nicht abgeglichen markiert.</numerusform>
            <numerusform>%n Buchungen als nicht abgeglichen markiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not reconciled</source>
        <translation>
            <numerusform>%n Buchung als nicht abgeglichen markieren</numerusform>
            <numerusform>%n Buchungen als nicht abgeglichen markieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put %n transaction(s) under %1.</source>
        <translation>
            <numerusform>%n Buchung unter %1 eingeordnet.</numerusform>
            <numerusform>%n Buchungen unter %1 eingeordnet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>putting %n transaction(s) under %1</source>
        <translation>
            <numerusform>%n Buchung unter %1 einordnen</numerusform>
            <numerusform>%n Buchungen unter %1 einordnen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Budgets (*.budget)</source>
        <translation>Budgets (*.budget)</translation>
    </message>
    <message>
        <source>Open a budget</source>
        <translation>Budget öffnen</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>%1 was last reconciled on %2.</source>
        <translation>%1 wurde zuletzt am %2 abgeglichen.</translation>
    </message>
    <message>
        <source>There is no exchange rate between %1 and %2.</source>
        <translation>Zwischen %1 und %2 gibt es keinen Wechselkurs.</translation>
    </message>
    <message>
        <source>The last changes are not saved. %1</source>
        <translation>Die letzten Änderungen sind nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>open</source>
        <comment>the state of an account</comment>
        <translation>offen</translation>
    </message>
    <message>
        <source>state</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>from</source>
        <comment>an account</comment>
        <translation>von</translation>
    </message>
    <message>
        <source>to</source>
        <comment>an account</comment>
        <translation>an</translation>
    </message>
    <message>
        <source>amount given</source>
        <translation>abgegebener Betrag</translation>
    </message>
    <message>
        <source>amount received</source>
        <translation>erhaltener Betrag</translation>
    </message>
    <message>
        <source>mark of the giver</source>
        <translation>Vermerk beim Geber</translation>
    </message>
    <message>
        <source>mark of the receiver</source>
        <translation>Vermerk beim Empfänger</translation>
    </message>
    <message>
        <source>refund of</source>
        <translation>Erstattung von</translation>
    </message>
    <message>
        <source>reconciled on</source>
        <translation>abgeglichen am</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>übrig</translation>
    </message>
    <message>
        <source>set aside</source>
        <translation>zurückgelegt</translation>
    </message>
    <message>
        <source>owed to %1</source>
        <translation>geschuldet an %1</translation>
    </message>
    <message>
        <source>owed</source>
        <translation>geschuldet</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Apart</source>
        <translation>Daneben</translation>
    </message>
    <message>
        <source>There is no exchange rate for %1; balances leave it out.</source>
        <translation>Für %1 gibt es keinen Wechselkurs; Salden lassen es aus.</translation>
    </message>
    <message>
        <source>As it was opened</source>
        <translation>Wie es geöffnet wurde</translation>
    </message>
    <message>
        <source>in the file now</source>
        <translation>jetzt in der Datei</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Since the file was opened</source>
        <translation>Seit dem Öffnen der Datei</translation>
    </message>
    <message>
        <source>Versions of the file</source>
        <translation>Versionen der Datei</translation>
    </message>
    <message>
        <source>Free spending</source>
        <translation>Freie Ausgaben</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 still owed of %2</source>
        <translation>%1 von %2 noch geschuldet</translation>
    </message>
    <message>
        <source>A month&apos;s share</source>
        <translation>Anteil je Monat</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>unchanged since</source>
        <translation>seitdem unverändert</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>seitdem geändert</translation>
    </message>
    <message>
        <source>1 %1 = %2 %3</source>
        <translation>1 %1 = %2 %3</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>%n Tag alt</numerusform>
            <numerusform>%n Tage alt</numerusform>
        </translation>
    </message>
    <message>
        <source>of today</source>
        <translation>von heute</translation>
    </message>
    <message>
        <source>Reconciled on</source>
        <translation>Abgeglichen am</translation>
    </message>
    <message>
        <source>Not set aside</source>
        <translation>Nicht zurückgelegt</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Receive</source>
        <translation>Erhalten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sparen</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Weekly shopping</source>
        <translation>Wocheneinkauf</translation>
    </message>
    <message>
        <source>Bakery</source>
        <translation>Bäckerei</translation>
    </message>
    <message>
        <source>Noodle house</source>
        <translation>Nudelhaus</translation>
    </message>
    <message>
        <source>Castle pharmacy</source>
        <translation>Schlossapotheke</translation>
    </message>
    <message>
        <source>Furniture store</source>
        <translation>Möbelhaus</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Village shop</source>
        <translation>Dorfladen</translation>
    </message>
    <message>
        <source>Corner market</source>
        <translation>Eckmarkt</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Sparen</translation>
    </message>
    <message>
        <source>Cash machine</source>
        <translation>Geldautomat</translation>
    </message>
    <message>
        <source>Card bill</source>
        <translation>Kartenabrechnung</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Zinsen</translation>
    </message>
    <message>
        <source>Account given up</source>
        <translation>Konto aufgegeben</translation>
    </message>
    <message>
        <source>Harbour hotel</source>
        <translation>Hafenhotel</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>Travel money</source>
        <translation>Reisegeld</translation>
    </message>
    <message>
        <source>A split has at least two parts.</source>
        <translation>Eine Aufteilung hat mindestens zwei Teile.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is kept in %2; give its amount in %2 instead of %3.</source>
        <translation>„%1“ wird in %2 geführt; den Betrag in %2 statt in %3 angeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; are both kept in %3, so nothing is exchanged; move one amount.</source>
        <translation>„%1“ und „%2“ werden beide in %3 geführt, also wird nichts gewechselt; einen einzigen Betrag umbuchen.</translation>
    </message>
    <message>
        <source>The %1 &apos;%2&apos; could not be added.</source>
        <translation>„%2“ (%1) konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The demonstration ends today or on a day before, not on %1.</source>
        <translation>Das Beispiel endet heute oder an einem früheren Tag, nicht am %1.</translation>
    </message>
    <message>
        <source>Salary</source>
        <translation>Gehalt</translation>
    </message>
    <message>
        <source>Evening classes</source>
        <translation>Abendkurse</translation>
    </message>
    <message>
        <source>Rent</source>
        <translation>Miete</translation>
    </message>
    <message>
        <source>home</source>
        <translation>Wohnung</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Bus pass</source>
        <translation>Busfahrkarte</translation>
    </message>
    <message>
        <source>travel</source>
        <translation>Verkehr</translation>
    </message>
    <message>
        <source>Fitness studio</source>
        <translation>Fitnessstudio</translation>
    </message>
    <message>
        <source>leisure</source>
        <translation>Freizeit</translation>
    </message>
    <message>
        <source>Home insurance</source>
        <translation>Hausratversicherung</translation>
    </message>
    <message>
        <source>Car tax</source>
        <translation>Kfz-Steuer</translation>
    </message>
    <message>
        <source>Pocket money</source>
        <translation>Taschengeld</translation>
    </message>
    <message>
        <source>Bicycle</source>
        <translation>Fahrrad</translation>
    </message>
    <message>
        <source>Car loan</source>
        <translation>Autokredit</translation>
    </message>
    <message>
        <source>Family loan</source>
        <translation>Kredit der Familie</translation>
    </message>
    <message>
        <source>Town Bank</source>
        <translation>Stadtbank</translation>
    </message>
    <message>
        <source>Lake Bank</source>
        <translation>Seebank</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Sparkonto</translation>
    </message>
    <message>
        <source>Old savings</source>
        <translation>Altes Sparkonto</translation>
    </message>
    <message>
        <source>Travel cash</source>
        <translation>Reisekasse</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Bargeld</translation>
    </message>
    <message>
        <source>Groceries</source>
        <translation>Lebensmittel</translation>
    </message>
    <message>
        <source>Furniture</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Eating out</source>
        <translation>Essen gehen</translation>
    </message>
    <message>
        <source>Pharmacy</source>
        <translation>Apotheke</translation>
    </message>
    <message>
        <source>Travelling</source>
        <translation>Reisen</translation>
    </message>
    <message>
        <source>Exchanged %1 for %2.</source>
        <translation>%1 in %2 gewechselt.</translation>
    </message>
    <message>
        <source>exchanging %1 for %2</source>
        <translation>%1 in %2 wechseln</translation>
    </message>
    <message>
        <source>Last day of its year (default: today)</source>
        <translation>Letzter Tag des Jahres (Standard: heute)</translation>
    </message>
    <message>
        <source>Created the demonstration</source>
        <translation>Beispiel angelegt</translation>
    </message>
    <message>
        <source>Created the demonstration &apos;%1&apos;: a year of a household until %2.</source>
        <translation>Beispiel „%1“ angelegt: ein Jahr eines Haushalts bis zum %2.</translation>
    </message>
    <message>
        <source>Create the budget of a made-up household, to try things out</source>
        <translation>Das Budget eines erfundenen Haushalts zum Ausprobieren anlegen</translation>
    </message>
    <message>
        <source>Amount, in the currency of the account it goes to; with --received, in that of the account it leaves</source>
        <translation>Betrag, in der Währung des Kontos, auf das er geht; mit --received in der des Kontos, von dem er kommt</translation>
    </message>
    <message>
        <source>Amount that arrived, in another currency: both amounts as the bank booked them</source>
        <translation>Betrag, der in einer anderen Währung ankam: beide Beträge, wie die Bank sie gebucht hat</translation>
    </message>
    <message>
        <source>Part of what was spent, or with --to earned, such as Food=40 (repeatable)</source>
        <translation>Teil dessen, was ausgegeben oder mit --to eingenommen wurde, etwa Essen=40 (wiederholbar)</translation>
    </message>
    <message>
        <source>With --split, account that paid (default: that of the last time for the first part, or else the first checking account)</source>
        <translation>Mit --split: Konto, von dem bezahlt wurde (Standard: das vom letzten Mal für den ersten Teil, sonst das erste Girokonto)</translation>
    </message>
    <message>
        <source>With --split, account that got the money</source>
        <translation>Mit --split: Konto, auf das das Geld kam</translation>
    </message>
    <message>
        <source>With --split, who got or gave the money</source>
        <translation>Mit --split: wer das Geld bekam oder gab</translation>
    </message>
    <message>
        <source>With --split, what it was for</source>
        <translation>Mit --split: wofür es war</translation>
    </message>
    <message>
        <source>Amount of an item of the template, such as &apos;Rent=900&apos;, &apos;Rent=900 2026-03-31&apos; or &apos;goal:Car=50 of 900&apos; (repeatable); items without one are left out</source>
        <translation>Betrag eines Postens der Vorlage, etwa &apos;Miete=900&apos;, &apos;Miete=900 2026-03-31&apos; oder &apos;goal:Auto=50 of 900&apos; (wiederholbar); Posten ohne Betrag entfallen</translation>
    </message>
    <message>
        <source>Give its items amounts, such as --item &apos;%1=100&apos;; those without one are left out.</source>
        <translation>Den Posten Beträge geben, etwa --item &apos;%1=100&apos;; solche ohne Betrag entfallen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is given twice.</source>
        <translation>„%1“ ist doppelt angegeben.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no goal, and has no target.</source>
        <translation>„%1“ ist kein Ziel und hat keinen Zielbetrag.</translation>
    </message>
    <message>
        <source>The template has no item &apos;%1&apos;</source>
        <translation>Die Vorlage hat keinen Posten „%1“</translation>
    </message>
    <message>
        <source>The template has several items &apos;%1&apos;; write one of: %2.</source>
        <translation>Die Vorlage hat mehrere Posten „%1“; einen davon schreiben: %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>Bank or account</source>
        <translation>Bank oder Konto</translation>
    </message>
    <message>
        <source>There are no bills yet: what must be paid, such as rent.</source>
        <translation>Noch keine Rechnungen: was bezahlt werden muss, wie die Miete.</translation>
    </message>
    <message>
        <source>There are no debts yet: money that you pay back.</source>
        <translation>Noch keine Schulden: Geld, das zurückgezahlt wird.</translation>
    </message>
    <message>
        <source>There are no goals yet: what you save for.</source>
        <translation>Noch keine Ziele: wofür gespart wird.</translation>
    </message>
    <message>
        <source>There is no free spending yet: money that you spend without noting each purchase.</source>
        <translation>Noch keine freien Ausgaben: Geld, das ausgegeben wird, ohne jeden Kauf zu notieren.</translation>
    </message>
    <message>
        <source>There are no wages yet: money that comes in.</source>
        <translation>Noch keine Löhne: Geld, das hereinkommt.</translation>
    </message>
    <message>
        <source>paid off</source>
        <translation>abbezahlt</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>erreicht: %1</translation>
    </message>
    <message>
        <source>%1 (%2 % paid off)</source>
        <translation>%1 (%2 % abbezahlt)</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Together a month: %1</source>
        <translation>Zusammen im Monat: %1</translation>
    </message>
    <message>
        <source>New %1</source>
        <translation>Neu: %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Neues Budget</translation>
    </message>
    <message>
        <source>I add my own items later</source>
        <translation>Eigene Posten später anlegen</translation>
    </message>
    <message>
        <source>A teenager</source>
        <translation>Ein Jugendlicher</translation>
    </message>
    <message>
        <source>One adult</source>
        <translation>Ein Erwachsener</translation>
    </message>
    <message>
        <source>Two adults, one income</source>
        <translation>Zwei Erwachsene, ein Einkommen</translation>
    </message>
    <message>
        <source>Two adults, two incomes</source>
        <translation>Zwei Erwachsene, zwei Einkommen</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Gewünscht</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>wanted</source>
        <translation>gewünscht</translation>
    </message>
    <message>
        <source>not wanted</source>
        <translation>nicht gewünscht</translation>
    </message>
    <message>
        <source>no amount yet</source>
        <translation>noch ohne Betrag</translation>
    </message>
    <message>
        <source>household</source>
        <comment>the name of a file</comment>
        <translation>haushalt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rate; write one like 0.92.</source>
        <translation>„%1“ ist kein Kurs; die Form ist 0.92.</translation>
    </message>
    <message>
        <source>No currency is given; write codes such as USD, EUR.</source>
        <translation>Es ist keine Währung angegeben; die Form ist USD, EUR.</translation>
    </message>
    <message>
        <source>reconciling “%1”</source>
        <translation>„%1“ abgleichen</translation>
    </message>
    <message>
        <source>The transactions of one account or of all, and below them the row for new ones: Spent, Earned or Moved. Enter in any field posts; the day stays. When a payee is known, its last entry fills the other fields.

F2 changes the chosen transaction, Del removes it, Ctrl+D enters it again. “Refund” in the menu “Transaction” takes money back: the whole amount is proposed, and a smaller one can be typed.

Ctrl+F searches: words and conditions such as &gt;50, march or not:reconciled.</source>
        <translation>Die Buchungen eines Kontos oder aller Konten und darunter die Zeile für neue: Ausgegeben, Eingenommen oder Umgebucht. Enter bucht aus jedem Feld; der Tag bleibt. Ist ein Empfänger bekannt, füllt sein letzter Eintrag die anderen Felder.

F2 ändert die gewählte Buchung, Entf entfernt sie, Strg+D bucht sie noch einmal. „Erstatten“ im Menü „Buchung“ nimmt Geld zurück: Der ganze Betrag wird vorgeschlagen, ein kleinerer kann getippt werden.

Strg+F sucht: Wörter und Bedingungen wie &gt;50, march oder not:reconciled.</translation>
    </message>
    <message>
        <source>What is due soon and what is late. The form pays the chosen line from an account, pays another amount, or skips it. Several lines can be chosen with Shift and the arrow keys; they are one step of undo.</source>
        <translation>Was bald fällig und was überfällig ist. Das Formular bezahlt die gewählte Zeile von einem Konto, zahlt einen anderen Betrag oder überspringt sie. Mit Umschalt und den Pfeiltasten werden mehrere Zeilen gewählt; sie sind ein Schritt beim Rückgängigmachen.</translation>
    </message>
    <message>
        <source>The banks and their accounts. The kind of an account says whether its balance is money or a debt, and what can be tied to it.</source>
        <translation>Die Banken und ihre Konten. Die Art eines Kontos sagt, ob sein Saldo Geld oder eine Schuld ist und was mit ihm verknüpft werden kann.</translation>
    </message>
    <message>
        <source>One line for each currency: its rate, the day of the rate, and whether it was fetched or typed. “Not converted” stands where a usable currency has no rate; totals leave it out.

A rate can be typed over, and all can be fetched from the service. Rates are the same for all budgets and cannot be undone.</source>
        <translation>Eine Zeile je Währung: ihr Kurs, der Tag des Kurses und ob er abgerufen oder eingegeben wurde. „Nicht umgerechnet“ steht, wo eine nutzbare Währung keinen Kurs hat; Summen lassen sie aus.

Ein Kurs kann überschrieben, alle können vom Dienst abgerufen werden. Kurse gelten für alle Budgets und können nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Each setting is applied as soon as its field is left. Settings are the same for all budgets and cannot be undone. A currency that the budget uses must stay usable.

The survey window says by how much the ticked transactions may miss the balance of a statement. The hours and days of work are for wages.

Removing a tag takes it from all items.</source>
        <translation>Jede Einstellung gilt, sobald ihr Feld verlassen wird. Einstellungen gelten für alle Budgets und können nicht rückgängig gemacht werden. Eine Währung, die das Budget verwendet, muss nutzbar bleiben.

Die Toleranz des Abgleichs sagt, um wie viel die abgehakten Buchungen den Saldo eines Auszugs verfehlen dürfen. Arbeitsstunden und Arbeitstage gelten für Löhne.

Wird ein Schlagwort entfernt, verlieren es alle Posten.</translation>
    </message>
    <message>
        <source>not converted</source>
        <translation>nicht umgerechnet</translation>
    </message>
    <message>
        <source>not booked yet</source>
        <translation>noch nicht gebucht</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Item or account</source>
        <translation>Posten oder Konto</translation>
    </message>
    <message>
        <source>On the statement</source>
        <translation>Auf dem Auszug</translation>
    </message>
    <message>
        <source>stays in the account</source>
        <translation>bleibt auf dem Konto</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>nicht abgehakt</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>abgehakt</translation>
    </message>
    <message numerus="yes">
        <source>%n ticked</source>
        <translation>
            <numerusform>%n abgehakt</numerusform>
            <numerusform>%n abgehakt</numerusform>
        </translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>%1-Dateien (*.%2)</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>Kommas</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>Semikolons</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>Tabulatoren</translation>
    </message>
    <message>
        <source>no headings</source>
        <translation>keine Überschriften</translation>
    </message>
    <message>
        <source>decimal comma</source>
        <translation>Dezimalkomma</translation>
    </message>
    <message>
        <source>Read as: %1</source>
        <translation>Gelesen als: %1</translation>
    </message>
    <message>
        <source>The file is read as %1, since its letters are not %2.</source>
        <translation>Die Datei wird als %1 gelesen, denn ihre Buchstaben sind nicht %2.</translation>
    </message>
    <message>
        <source>The dates are read as %1: only so are they in order.</source>
        <translation>Die Datumsangaben werden als %1 gelesen: Nur so sind sie in der richtigen Reihenfolge.</translation>
    </message>
    <message>
        <source>The headings appear again on line %1; the file may contain entries twice.</source>
        <translation>Die Überschriften stehen in Zeile %1 noch einmal; die Datei enthält vielleicht Einträge doppelt.</translation>
    </message>
    <message>
        <source>No amount is negative: amounts marked CR came in, all others went out.</source>
        <translation>Kein Betrag ist negativ: Mit CR gekennzeichnete Beträge sind eingegangen, alle anderen ausgegangen.</translation>
    </message>
    <message>
        <source>No amount is negative, so all of them are read as money that came in.</source>
        <translation>Kein Betrag ist negativ; daher werden alle als Eingänge gelesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries that did not take place are skipped (%1).</source>
        <translation>
            <numerusform>%n Eintrag, der nicht ausgeführt wurde, wird übersprungen (%1).</numerusform>
            <numerusform>%n Einträge, die nicht ausgeführt wurden, werden übersprungen (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>The fees in column &apos;%1&apos; are subtracted from the amounts.</source>
        <translation>Die Gebühren in der Spalte „%1“ werden von den Beträgen abgezogen.</translation>
    </message>
    <message>
        <source>The balances show that the amounts include the fees in column &apos;%1&apos;.</source>
        <translation>Die Salden zeigen, dass die Beträge die Gebühren in der Spalte „%1“ enthalten.</translation>
    </message>
    <message>
        <source>The balances in column &apos;%1&apos; do not follow from the amounts, and are not used.</source>
        <translation>Die Salden in der Spalte „%1“ ergeben sich nicht aus den Beträgen und werden nicht verwendet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; should have nothing but %2 here, but has more.</source>
        <translation>„%1“ müsste hier nur %2 haben, hat aber noch anderes.</translation>
    </message>
    <message>
        <source>Programs differ on what &apos;%1&apos; costs here; write the price of its lot after @, too.</source>
        <translation>Programme sind sich nicht einig, was „%1“ hier kostet; es hilft, den Preis des Postens auch hinter @ zu schreiben.</translation>
    </message>
    <message>
        <source>Line %1: the comment has no end; the rest of the file belongs to it.</source>
        <translation>Zeile %1: Der Kommentar hat kein Ende; der Rest der Datei gehört dazu.</translation>
    </message>
    <message>
        <source>Lots are not kept apart; shares are kept at their cost.</source>
        <translation>Wertpapierposten werden nicht unterschieden; Anteile stehen mit ihren Kosten zu Buch.</translation>
    </message>
    <message>
        <source>This line looks like an entry but is above the headings; say with --skip how many lines are above them.</source>
        <translation>Diese Zeile sieht wie ein Eintrag aus, steht aber über den Überschriften; mit --skip angeben, wie viele Zeilen darüber stehen.</translation>
    </message>
    <message>
        <source>The column of fees has both signs.</source>
        <translation>Die Spalte der Gebühren hat beide Vorzeichen.</translation>
    </message>
    <message>
        <source>The file contains no CAMT message about an account.</source>
        <translation>Die Datei enthält keine CAMT-Nachricht über ein Konto.</translation>
    </message>
    <message>
        <source>The file has a document type (&lt;!DOCTYPE&gt;), which may refer to other files; banks write none.</source>
        <translation>Die Datei hat einen Dokumenttyp (&lt;!DOCTYPE&gt;), der auf andere Dateien verweisen kann; Banken schreiben keinen.</translation>
    </message>
    <message>
        <source>The XML is broken here: %1</source>
        <translation>Das XML ist hier fehlerhaft: %1</translation>
    </message>
    <message>
        <source>The file contains no MT940 statement; one begins with :20:.</source>
        <translation>Die Datei enthält keinen MT940-Kontoauszug; einer beginnt mit :20:.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read; it should be like %2.</source>
        <translation>„%1“ kann nicht gelesen werden; es müsste wie %2 aussehen.</translation>
    </message>
    <message>
        <source>The statement that begins on line %1 has no closing balance; it may be cut off. Download the file again.</source>
        <translation>Der Kontoauszug ab Zeile %1 hat keinen Schlusssaldo; er ist vielleicht abgeschnitten. Die Datei ist neu herunterzuladen.</translation>
    </message>
    <message>
        <source>Line %1: the entries add up to a balance of %2, but the file says %3; entries may be missing.</source>
        <translation>Zeile %1: Die Einträge ergeben den Saldo %2, die Datei nennt aber %3; vielleicht fehlen Einträge.</translation>
    </message>
    <message numerus="yes">
        <source>%n further balance(s) differ from the entries, too.</source>
        <translation>
            <numerusform>%n weiterer Saldo weicht ebenfalls von den Einträgen ab.</numerusform>
            <numerusform>%n weitere Salden weichen ebenfalls von den Einträgen ab.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1: the statement goes on in another file; import that, too.</source>
        <translation>Zeile %1: Der Kontoauszug geht in einer anderen Datei weiter; auch sie ist zu importieren.</translation>
    </message>
    <message>
        <source>Line %1: &lt;%2&gt; is never closed; the file is read as if it were.</source>
        <translation>Zeile %1: &lt;%2&gt; wird nie geschlossen; die Datei wird gelesen, als wäre es geschlossen.</translation>
    </message>
    <message>
        <source>The end of the file is missing; it may be cut off.</source>
        <translation>Das Ende der Datei fehlt; sie ist vielleicht abgeschnitten.</translation>
    </message>
    <message>
        <source>Line %1: the balance cannot be read.</source>
        <translation>Zeile %1: Der Saldo kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Line %1: the correction over %2 is skipped, because the entry that it corrects is not in the file; correct it by hand.</source>
        <translation>Zeile %1: Die Korrektur über %2 wird übersprungen, weil der korrigierte Eintrag nicht in der Datei steht; er ist von Hand zu korrigieren.</translation>
    </message>
    <message>
        <source>Comments above the first entry are skipped.</source>
        <translation>Kommentare über dem ersten Eintrag werden übersprungen.</translation>
    </message>
    <message>
        <source>Investments are skipped.</source>
        <translation>Wertpapiergeschäfte werden übersprungen.</translation>
    </message>
    <message>
        <source>date &apos;%1&apos;</source>
        <translation>Datum „%1“</translation>
    </message>
    <message>
        <source>date &apos;%1&apos; as %2</source>
        <translation>Datum „%1“ als %2</translation>
    </message>
    <message>
        <source>date &apos;%1&apos; as %2 (%3 proves it)</source>
        <translation>Datum „%1“ als %2 (%3 beweist es)</translation>
    </message>
    <message>
        <source>amount &apos;%1&apos;</source>
        <translation>Betrag „%1“</translation>
    </message>
    <message>
        <source>money in &apos;%1&apos;</source>
        <translation>Eingänge „%1“</translation>
    </message>
    <message>
        <source>money out &apos;%1&apos;</source>
        <translation>Ausgänge „%1“</translation>
    </message>
    <message>
        <source>sign &apos;%1&apos;</source>
        <translation>Vorzeichen „%1“</translation>
    </message>
    <message>
        <source>fee &apos;%1&apos;</source>
        <translation>Gebühr „%1“</translation>
    </message>
    <message>
        <source>payee &apos;%1&apos;</source>
        <translation>Empfänger „%1“</translation>
    </message>
    <message>
        <source>text &apos;%1&apos;</source>
        <translation>Text „%1“</translation>
    </message>
    <message>
        <source>balance &apos;%1&apos;</source>
        <translation>Saldo „%1“</translation>
    </message>
    <message>
        <source>account &apos;%1&apos;</source>
        <translation>Konto „%1“</translation>
    </message>
    <message>
        <source>headings on line %1</source>
        <translation>Überschriften in Zeile %1</translation>
    </message>
    <message>
        <source>What is below the entries from line %1 on is skipped.</source>
        <translation>Was ab Zeile %1 unter den Einträgen steht, wird übersprungen.</translation>
    </message>
    <message>
        <source>It is not known what &apos;%1&apos; of %2 was for.</source>
        <translation>Es ist nicht bekannt, wofür „%1“ vom %2 war.</translation>
    </message>
    <message>
        <source>A rule needs a text that entries contain.</source>
        <translation>Eine Regel braucht einen Text, den Einträge enthalten.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a regular expression: %2.</source>
        <translation>„%1“ ist kein regulärer Ausdruck: %2.</translation>
    </message>
    <message>
        <source>No amount lies between those of the rule.</source>
        <translation>Zwischen den Beträgen der Regel liegt keiner.</translation>
    </message>
    <message>
        <source>There are too many rules; remove some first.</source>
        <translation>Es gibt zu viele Regeln; erst sind einige zu entfernen.</translation>
    </message>
    <message>
        <source>The file has it twice.</source>
        <translation>Die Datei nennt ihn zweimal.</translation>
    </message>
    <message>
        <source>%1 is due on %2 for %3.</source>
        <translation>%1 ist am %2 mit %3 fällig.</translation>
    </message>
    <message>
        <source>%1 is due on %2, but for %3.</source>
        <translation>%1 ist am %2 fällig, aber mit %3.</translation>
    </message>
    <message>
        <source>It was imported before.</source>
        <translation>Er wurde schon importiert.</translation>
    </message>
    <message>
        <source>Another file of the account had it already.</source>
        <translation>Eine andere Datei des Kontos enthielt ihn schon.</translation>
    </message>
    <message numerus="yes">
        <source>Entered on %1 in %n parts, which add up to it.</source>
        <translation>
            <numerusform>Zum %1 in %n Teil eingegeben, der ihn ergibt.</numerusform>
            <numerusform>Zum %1 in %n Teilen eingegeben, die ihn ergeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement of %1 has it on %2.</source>
        <translation>Der Auszug von %1 nannte ihn zum %2.</translation>
    </message>
    <message>
        <source>Entered on %1 for the same amount; another entry fits as well.</source>
        <translation>Zum %1 mit demselben Betrag eingegeben; eine andere Buchung passt auch.</translation>
    </message>
    <message>
        <source>Entered on %1 for the same amount.</source>
        <translation>Zum %1 mit demselben Betrag eingegeben.</translation>
    </message>
    <message>
        <source>As you said before.</source>
        <translation>Wie früher angegeben.</translation>
    </message>
    <message>
        <source>The columns that were kept no longer fit, and were found anew: %1</source>
        <translation>Die gemerkten Spalten passen nicht mehr und wurden neu gefunden: %1</translation>
    </message>
    <message>
        <source>The file is of %1, whose files have the number %2.</source>
        <translation>Die Datei ist von %1, dessen Dateien die Nummer %2 haben.</translation>
    </message>
    <message>
        <source>The file is of the account %1; former files of %2 were of %3.</source>
        <translation>Die Datei ist vom Konto %1; frühere Dateien von %2 waren von %3.</translation>
    </message>
    <message>
        <source>It is not known what it was for.</source>
        <translation>Es ist nicht bekannt, wofür es war.</translation>
    </message>
    <message>
        <source>By the rule “%1”.</source>
        <translation>Nach der Regel „%1“.</translation>
    </message>
    <message>
        <source>As the last time.</source>
        <translation>Wie beim letzten Mal.</translation>
    </message>
    <message>
        <source>As %1 of %2 times.</source>
        <translation>Wie %1 von %2 Malen.</translation>
    </message>
    <message>
        <source>By the file&apos;s category.</source>
        <translation>Nach der Kategorie der Datei.</translation>
    </message>
    <message>
        <source>By the file&apos;s category; “%1” is opened for it.</source>
        <translation>Nach der Kategorie der Datei; „%1“ wird dafür eröffnet.</translation>
    </message>
    <message>
        <source>Format: journal, csv, ofx, qif, mt940 or camt (default: guessed)</source>
        <translation>Format: journal, csv, ofx, qif, mt940 oder camt (Standard: erraten)</translation>
    </message>
    <message>
        <source>Account number, to choose one of several statements</source>
        <translation>Kontonummer, um einen von mehreren Auszügen zu wählen</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>due</source>
        <translation>fällig</translation>
    </message>
    <message>
        <source>matched</source>
        <translation>zugeordnet</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Wofür</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries of %1</source>
        <translation>
            <numerusform>%n Eintrag von %1 importiert</numerusform>
            <numerusform>%n Einträge von %1 importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Read the account&apos;s tables like this from now on (csv)</source>
        <translation>Die Tabellen des Kontos von nun an so lesen (csv)</translation>
    </message>
    <message>
        <source>Take the preview as it is, and ask nothing</source>
        <translation>Die Vorschau nehmen, wie sie ist, und nichts fragen</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Statements of</source>
        <translation>Auszüge von</translation>
    </message>
    <message>
        <source>There are no rules.</source>
        <translation>Es gibt keine Regeln.</translation>
    </message>
    <message>
        <source>The least amount, without its sign</source>
        <translation>Kleinster Betrag, ohne Vorzeichen</translation>
    </message>
    <message>
        <source>The highest amount, without its sign</source>
        <translation>Größter Betrag, ohne Vorzeichen</translation>
    </message>
    <message>
        <source>Only statements of this account</source>
        <translation>Nur Auszüge dieses Kontos</translation>
    </message>
    <message>
        <source>Text that the payee or the text contains</source>
        <translation>Text, den Empfänger oder Text enthalten</translation>
    </message>
    <message>
        <source>Account or item that such entries are for</source>
        <translation>Konto oder Posten, für den solche Einträge sind</translation>
    </message>
    <message>
        <source>The text is a regular expression</source>
        <translation>Der Text ist ein regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Added the rule “%1” for %2.</source>
        <translation>Regel „%1“ für %2 angelegt.</translation>
    </message>
    <message>
        <source>What a bank says of an entry</source>
        <translation>Was eine Bank zu einem Eintrag sagt</translation>
    </message>
    <message>
        <source>Amount of the entry</source>
        <translation>Betrag des Eintrags</translation>
    </message>
    <message>
        <source>Account of the statement</source>
        <translation>Konto des Auszugs</translation>
    </message>
    <message>
        <source>No rule fits.</source>
        <translation>Keine Regel passt.</translation>
    </message>
    <message>
        <source>Rule %1, “%2”, says that it is for %3.</source>
        <translation>Nach Regel %1, „%2“, ist es für %3.</translation>
    </message>
    <message>
        <source>Numbers of rules, see rules list</source>
        <translation>Nummern von Regeln, siehe rules list</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n rules.</source>
        <translation>
            <numerusform>%n Regel entfernt.</numerusform>
            <numerusform>%n Regeln entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say what entries of statements are for</source>
        <translation>Festlegen, wofür Einträge von Auszügen sind</translation>
    </message>
    <message>
        <source>List all rules</source>
        <translation>Alle Regeln auflisten</translation>
    </message>
    <message>
        <source>Add a rule</source>
        <translation>Eine Regel anlegen</translation>
    </message>
    <message>
        <source>Tell which rule fits a text</source>
        <translation>Sagen, welche Regel zu einem Text passt</translation>
    </message>
    <message>
        <source>Remove rules</source>
        <translation>Regeln entfernen</translation>
    </message>
    <message>
        <source>Entry %1: %2. %3 Pay it with this?</source>
        <translation>Eintrag %1: %2. %3 Damit bezahlen?</translation>
    </message>
    <message>
        <source>Entry %1: %2. %3 Is it the same?</source>
        <translation>Eintrag %1: %2. %3 Ist es derselbe?</translation>
    </message>
    <message>
        <source>Entry %1: %2. What was it for? (account or item; empty leaves it out)</source>
        <translation>Eintrag %1: %2. Wofür war das? (Konto oder Posten; leer lässt ihn weg)</translation>
    </message>
    <message>
        <source>Entry %1: %2. What was it for? (empty: %3)</source>
        <translation>Eintrag %1: %2. Wofür war das? (leer: %3)</translation>
    </message>
    <message>
        <source>Always %1 for this payee?</source>
        <translation>Immer %1 für diesen Empfänger?</translation>
    </message>
    <message>
        <source>Entry that is new, whatever is there (repeatable)</source>
        <translation>Eintrag, der neu ist, was auch da ist (wiederholbar)</translation>
    </message>
    <message>
        <source>ENTRY=TRANSACTION, which is the same (repeatable)</source>
        <translation>EINTRAG=BUCHUNG, die dasselbe ist (wiederholbar)</translation>
    </message>
    <message>
        <source>ENTRY=ACCOUNT, which it is for (repeatable)</source>
        <translation>EINTRAG=KONTO, für das er ist (wiederholbar)</translation>
    </message>
    <message>
        <source>Entry that is not taken (repeatable)</source>
        <translation>Eintrag, der nicht übernommen wird (wiederholbar)</translation>
    </message>
    <message>
        <source>Is %1 the day %2?</source>
        <translation>Ist %1 der Tag %2?</translation>
    </message>
    <message>
        <source>Which account is it of? (%1)</source>
        <translation>Von welchem Konto ist die Datei? (%1)</translation>
    </message>
    <message>
        <source>Import it all the same?</source>
        <translation>Trotzdem importieren?</translation>
    </message>
    <message numerus="yes">
        <source>Import %n entries?</source>
        <translation>
            <numerusform>%n Eintrag importieren?</numerusform>
            <numerusform>%n Einträge importieren?</numerusform>
        </translation>
    </message>
    <message>
        <source>New: %1; matched: %2; already imported: %3; left out: %4; accounts opened: %5.</source>
        <translation>Neu: %1; zugeordnet: %2; schon importiert: %3; weggelassen: %4; Konten eröffnet: %5.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries should be looked at; see the marks with --dry-run.</source>
        <translation>
            <numerusform>%n Eintrag sollte angesehen werden; siehe die Zeichen mit --dry-run.</numerusform>
            <numerusform>%n Einträge sollten angesehen werden; siehe die Zeichen mit --dry-run.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot tell the format of &apos;%1&apos;; use --format: journal, csv, ofx, qif, mt940 or camt.</source>
        <translation>Das Format von „%1“ ist nicht zu erkennen; es wird mit --format angegeben: journal, csv, ofx, qif, mt940 oder camt.</translation>
    </message>
    <message>
        <source>%1 It may be: %2.</source>
        <translation>%1 Möglich sind: %2.</translation>
    </message>
    <message>
        <source>%1 Use --yes to import it all the same.</source>
        <translation>%1 Mit --yes wird sie trotzdem importiert.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Transaction %1 cannot be the same as an entry of %2.</source>
        <translation>Buchung %1 kann nicht dasselbe sein wie ein Eintrag über %2.</translation>
    </message>
    <message>
        <source>It is not known what this was for: %1. Say it with --for, --against or a rule.</source>
        <translation>Es ist nicht bekannt, wofür das war: %1. Es lässt sich mit --for, --against oder einer Regel angeben.</translation>
    </message>
    <message>
        <source>Transaction %1 has its identifier, but another amount.</source>
        <translation>Buchung %1 hat seine Kennung, aber einen anderen Betrag.</translation>
    </message>
    <message>
        <source>A file of your bank, or a journal of another program, is laid beside the books.

1. Choose the file. Its account is found if that is possible, and asked otherwise.
2. A table (CSV) shows how it is read. What was found can be changed, and is kept for the account.
3. Each entry says what becomes of it: it is new, it is there already, or an item that is due is paid with it. Space takes it or leaves it out. Below the table it can be said what it is and what it is for, and that this is remembered for the payee. Entries with the sign ⚠ should be looked at.

The import does what is shown, and is one step of undo.</source>
        <translation>Eine Datei der Bank oder das Journal eines anderen Programms wird neben die Bücher gelegt.

1. Die Datei wählen. Ihr Konto wird gefunden, wenn das möglich ist, und sonst erfragt.
2. Eine Tabelle (CSV) zeigt, wie sie gelesen wird. Was gefunden wurde, lässt sich ändern und wird für das Konto gemerkt.
3. Jeder Eintrag sagt, was aus ihm wird: Er ist neu, er ist schon da, oder ein fälliger Posten wird mit ihm bezahlt. Die Leertaste nimmt ihn oder lässt ihn weg. Unter der Tabelle lässt sich sagen, was er ist und wofür er ist, und dass dies für den Empfänger gemerkt wird. Einträge mit dem Zeichen ⚠ sollten angesehen werden.

Der Import tut, was gezeigt wird, und ist ein einziger Schritt zum Rückgängigmachen.</translation>
    </message>
    <message>
        <source>A rule says what entries of banks’ files are for, by a part of payee or text, and by amount and account if wanted. The first rule that fits counts. “Try the rules” tells which one fits a text.</source>
        <translation>Eine Regel sagt, wofür Einträge aus Dateien der Bank sind: nach einem Teil von Empfänger oder Text und, wenn gewünscht, nach Betrag und Konto. Die erste passende Regel gilt. „Regeln ausprobieren“ zeigt, welche zu einem Text passt.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Schon da</translation>
    </message>
    <message>
        <source>%1, to look at</source>
        <translation>%1, anzusehen</translation>
    </message>
    <message>
        <source>%1 (is opened)</source>
        <translation>%1 (wird eröffnet)</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch nicht bekannt</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Genommen</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Was daraus wird</translation>
    </message>
    <message>
        <source>Payee and text</source>
        <translation>Empfänger und Text</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>genommen</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>nicht genommen</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n neu</numerusform>
            <numerusform>%n neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already there</source>
        <translation>
            <numerusform>%n schon da</numerusform>
            <numerusform>%n schon da</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n weggelassen</numerusform>
            <numerusform>%n weggelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n anzusehen</numerusform>
            <numerusform>%n anzusehen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Accounts to be opened: %2.</source>
        <translation>%1. Zu eröffnende Konten: %2.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>ab %1</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>any account</source>
        <translation>alle Konten</translation>
    </message>
    <message>
        <source>Import a bank file</source>
        <translation>Datei der Bank importieren</translation>
    </message>
    <message>
        <source>set aside on %1</source>
        <translation>zurückgelegt am %1</translation>
    </message>
    <message>
        <source>not set aside on %1</source>
        <translation>am %1 nicht zurückgelegt</translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 = %3 a month, %n months</source>
        <translation>
            <numerusform>%1 %2 = %3 im Monat, %n Monat</numerusform>
            <numerusform>%1 %2 = %3 im Monat, %n Monate</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3, which is closed.</source>
        <translation>%1 ist für „%2“ bei %3 zurückgelegt, das geschlossen ist.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3, where nothing can be set aside any more.</source>
        <translation>%1 ist für „%2“ bei %3 zurückgelegt, wo nichts mehr zurückgelegt werden kann.</translation>
    </message>
    <message>
        <source>%1 was set aside for &apos;%2&apos; at %3, but nothing is set aside for it any more.</source>
        <translation>%1 war für „%2“ bei %3 zurückgelegt, doch dafür wird nichts mehr zurückgelegt.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3 until that is reconciled again, but its account lies elsewhere.</source>
        <translation>%1 ist für „%2“ bei %3 zurückgelegt, bis dieses wieder abgeglichen wird, doch das Konto des Postens liegt anderswo.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3 and also at another account, so no line shows it.</source>
        <translation>%1 ist für „%2“ bei %3 und auch bei einem anderen Konto zurückgelegt, daher zeigt es keine Zeile.</translation>
    </message>
    <message>
        <source>paid: %1</source>
        <translation>gezahlt: %1</translation>
    </message>
    <message>
        <source>%1 more was paid than was set aside</source>
        <translation>%1 mehr gezahlt als zurückgelegt</translation>
    </message>
    <message>
        <source>put into its account: %1</source>
        <translation>in sein Konto eingezahlt: %1</translation>
    </message>
    <message>
        <source>taken out of its account: %1</source>
        <translation>aus seinem Konto entnommen: %1</translation>
    </message>
    <message>
        <source>%1 to the balance of its account</source>
        <translation>%1 bis zum Saldo seines Kontos</translation>
    </message>
    <message>
        <source>%1 was never reconciled; its lines count from %2.</source>
        <translation>%1 wurde noch nie abgeglichen; die Zeilen zählen ab %2.</translation>
    </message>
    <message>
        <source>At %1, %2 more is set aside than there is.</source>
        <translation>Bei %1 ist %2 mehr zurückgelegt, als da ist.</translation>
    </message>
    <message>
        <source>The sum at %1 leaves &apos;%2&apos; out.</source>
        <translation>Die Summe bei %1 lässt „%2“ aus.</translation>
    </message>
    <message>
        <source>The money of &apos;%1&apos; is in an account of its own that is not under %2, so the balance does not count it.</source>
        <translation>Das Geld von „%1“ liegt in einem eigenen Konto, das nicht unter %2 steht; der Saldo zählt es nicht.</translation>
    </message>
    <message>
        <source>The balance of %1 leaves &apos;%2&apos; out.</source>
        <translation>Der Saldo von %1 lässt „%2“ aus.</translation>
    </message>
    <message>
        <source>Several accounts have a line for the same item, until a survey of one of them sets it aside: %1</source>
        <translation>Mehrere Konten haben eine Zeile für denselben Posten, bis der Abgleich eines davon ihn zurücklegt: %1</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dazu</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Gezahlt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is reached: %2.</source>
        <translation>Das Ziel „%1“ ist erreicht: %2.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 of %3, %4 %.</source>
        <translation>Das Ziel „%1“ hat %2 von %3, %4 %.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 of %3.</source>
        <translation>Das Ziel „%1“ hat %2 von %3.</translation>
    </message>
    <message>
        <source>The debt &apos;%1&apos; is paid off.</source>
        <translation>Die Schuld „%1“ ist abbezahlt.</translation>
    </message>
    <message>
        <source>Of the debt &apos;%1&apos; are %2 left; as it is paid now, it has no end.</source>
        <translation>Von der Schuld „%1“ bleiben %2; so, wie sie gezahlt wird, endet sie nicht.</translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, without interest.</source>
        <translation>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlung, ohne Zinsen.</numerusform>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlungen, ohne Zinsen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Only this bank account: number, name or path (default: all)</source>
        <translation>Nur dieses Bankkonto: Nummer, Name oder Pfad (Standard: alle)</translation>
    </message>
    <message>
        <source>Day of the balances (default: today)</source>
        <translation>Tag der Salden (Standard: heute)</translation>
    </message>
    <message>
        <source>Tell each item, and why it has so much</source>
        <translation>Jeden Posten zeigen, und warum er so viel hat</translation>
    </message>
    <message>
        <source>Still due until %1, of what is paid monthly</source>
        <translation>Bis %1 noch fällig, von dem, was monatlich gezahlt wird</translation>
    </message>
    <message>
        <source>Paid since</source>
        <translation>Seither gezahlt</translation>
    </message>
    <message>
        <source>No bank has an open account for which money is set aside.</source>
        <translation>Keine Bank hat ein offenes Konto, bei dem Geld zurückgelegt wird.</translation>
    </message>
    <message>
        <source>%1 is closed.</source>
        <translation>%1 ist geschlossen.</translation>
    </message>
    <message>
        <source>%1 is owed; nothing is set aside of it.</source>
        <translation>%1 ist eine Verbindlichkeit; davon wird nichts zurückgelegt.</translation>
    </message>
    <message>
        <source>%1 has no envelopes of its own; the account above it counts its money.</source>
        <translation>Bei %1 selbst wird nichts zurückgelegt; das Konto darüber zählt sein Geld.</translation>
    </message>
    <message>
        <source>Show what is set aside at the bank accounts, what is free, and why</source>
        <translation>Zeigen, was bei den Bankkonten zurückgelegt ist, was frei ist, und warum</translation>
    </message>
    <message>
        <source>%1 was reconciled on %2 already; the statement of %3 is older.</source>
        <translation>%1 wurde schon zum %2 abgeglichen; der Auszug vom %3 ist älter.</translation>
    </message>
    <message>
        <source>The books differ from the statement; find what differs, or say that the difference may stay.</source>
        <translation>Die Bücher weichen vom Auszug ab; zu finden ist, was abweicht, oder zu sagen, dass die Abweichung bleiben darf.</translation>
    </message>
    <message>
        <source>There is no transaction %1 on the sheet.</source>
        <translation>Auf dem Blatt steht keine Buchung %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a list of transactions; write one like 1-5,9, &apos;all&apos;, &apos;all but 3&apos; or &apos;none&apos;.</source>
        <translation>„%1“ ist keine Liste von Buchungen; eine sieht aus wie 1-5,9, „alle“, „alle außer 3“ oder „keine“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a statement of another account than %2.</source>
        <translation>„%1“ ist ein Auszug eines anderen Kontos als %2.</translation>
    </message>
    <message>
        <source>What moves within the account is on no statement; move it without the survey.</source>
        <translation>Was innerhalb des Kontos umgebucht wird, steht auf keinem Auszug; es wird ohne den Abgleich umgebucht.</translation>
    </message>
    <message>
        <source>The survey has too many ticks to be put off.</source>
        <translation>Der Abgleich hat zu viele Haken, um aufgeschoben zu werden.</translation>
    </message>
    <message>
        <source>%1 above the bank</source>
        <translation>%1 über der Bank</translation>
    </message>
    <message>
        <source>%1 below the bank</source>
        <translation>%1 unter der Bank</translation>
    </message>
    <message>
        <source>The books of %1 are %2 since %3.</source>
        <translation>Die Bücher von %1 liegen seit dem %3 %2.</translation>
    </message>
    <message>
        <source>#%1 of %2, %3, %4</source>
        <translation>Nr. %1 vom %2, %3, %4</translation>
    </message>
    <message>
        <source>%1, is not ticked and has that amount.</source>
        <translation>%1, ist nicht abgehakt und hat diesen Betrag.</translation>
    </message>
    <message>
        <source>%1, and %2, are not ticked and add up to it.</source>
        <translation>%1, und %2, sind nicht abgehakt und ergeben ihn zusammen.</translation>
    </message>
    <message>
        <source>All that is not ticked adds up to it.</source>
        <translation>Alles, was nicht abgehakt ist, ergibt ihn zusammen.</translation>
    </message>
    <message>
        <source>%1, and %2, are perhaps the same, entered twice.</source>
        <translation>%1, und %2, sind vielleicht dasselbe, zweimal eingegeben.</translation>
    </message>
    <message>
        <source>%1, is ticked and has that amount; is it on the statement?</source>
        <translation>%1, ist abgehakt und hat diesen Betrag; steht es auf dem Auszug?</translation>
    </message>
    <message>
        <source>%1, has half of that amount; did the money go the other way?</source>
        <translation>%1, hat die Hälfte dieses Betrags; ging das Geld in die andere Richtung?</translation>
    </message>
    <message>
        <source>%1, differs by two digits that may have changed places.</source>
        <translation>%1, weicht um zwei Ziffern ab, die vielleicht vertauscht sind.</translation>
    </message>
    <message>
        <source>Changed or reconciled since the survey was put off, and not ticked any more: %1</source>
        <translation>Geändert oder abgeglichen, seit der Abgleich aufgeschoben wurde, und nicht mehr abgehakt: %1</translation>
    </message>
    <message>
        <source>Gone since the survey was put off, and left out: %1</source>
        <translation>Fort, seit der Abgleich aufgeschoben wurde, und weggelassen: %1</translation>
    </message>
    <message>
        <source>Put off the survey of %1 of %2.</source>
        <translation>Den Abgleich von %1 zum %2 aufgeschoben.</translation>
    </message>
    <message>
        <source>putting off the survey of “%1”</source>
        <translation>den Abgleich von „%1“ aufschieben</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%1 vom %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n entries of the file are not in the books: %1</source>
        <translation>
            <numerusform>%n Eintrag der Datei steht nicht in den Büchern: %1</numerusform>
            <numerusform>%n Einträge der Datei stehen nicht in den Büchern: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>all</source>
        <comment>all transactions</comment>
        <translation>alle</translation>
    </message>
    <message>
        <source>none</source>
        <comment>no transactions</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>all but</source>
        <translation>alle außer</translation>
    </message>
    <message>
        <source>under %1 %</source>
        <translation>unter %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 more is set aside than there is; set less aside for some of it.</source>
        <translation>Es ist %1 mehr zurückgelegt, als da ist; für etwas davon ist weniger zurückzulegen.</translation>
    </message>
    <message>
        <source>The rest does not count what is set aside for &apos;%1&apos;: there is no exchange rate.</source>
        <translation>Der Rest zählt nicht, was für „%1“ zurückgelegt ist: Es gibt keinen Wechselkurs.</translation>
    </message>
    <message>
        <source>The bank&apos;s file: its day, balance and entries are taken</source>
        <translation>Datei der Bank: Ihr Tag, ihr Saldo und ihre Einträge gelten</translation>
    </message>
    <message>
        <source>Set aside what the survey proposes, as if nothing had been paid</source>
        <translation>Zurücklegen, was der Abgleich vorschlägt, als wäre nichts bezahlt</translation>
    </message>
    <message>
        <source>Day of the statement (default: that of the bank&apos;s file, or today)</source>
        <translation>Tag des Kontoauszugs (Standard: der aus der Datei der Bank, oder heute)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; tells no day; give that of the statement.</source>
        <translation>„%1“ nennt keinen Tag; der des Auszugs ist anzugeben.</translation>
    </message>
    <message>
        <source>Balance of the statement (empty: %1)</source>
        <translation>Saldo des Kontoauszugs (leer: %1)</translation>
    </message>
    <message>
        <source>Which are on the statement? 1-5,9, &apos;all but 3&apos;, &apos;none&apos;, &apos;ask&apos; (empty: all)</source>
        <translation>Welche stehen auf dem Auszug? 1-5,9, „alle außer 3“, „keine“, „fragen“ (leer: alle)</translation>
    </message>
    <message numerus="yes">
        <source>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos;, &apos;ask&apos; (empty: the %n ticked)</source>
        <translation>
            <numerusform>Welche stehen auf dem Auszug? 1-5,9, „alle“, „alle außer 3“, „fragen“ (leer: die %n abgehakte)</numerusform>
            <numerusform>Welche stehen auf dem Auszug? 1-5,9, „alle“, „alle außer 3“, „fragen“ (leer: die %n abgehakten)</numerusform>
        </translation>
    </message>
    <message>
        <source>ask</source>
        <translation>fragen</translation>
    </message>
    <message>
        <source>What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue)</source>
        <translation>Was steht auf dem Auszug, aber nicht in den Büchern, als NAME=BETRAG, oder NAME für alles, was fehlt? (leer zum Fortfahren)</translation>
    </message>
    <message>
        <source>May the difference of %1 stay? It is told until it is gone.</source>
        <translation>Darf die Abweichung von %1 bleiben? Sie wird genannt, bis sie fort ist.</translation>
    </message>
    <message>
        <source>%1: is it on the statement?</source>
        <translation>%1: Steht es auf dem Auszug?</translation>
    </message>
    <message>
        <source>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos; (empty: leave it so)</source>
        <translation>Welche stehen auf dem Auszug? 1-5,9, „alle“, „alle außer 3“ (leer: so lassen)</translation>
    </message>
    <message>
        <source>Take the tick of %1 away?</source>
        <translation>Den Haken von %1 wegnehmen?</translation>
    </message>
    <message numerus="yes">
        <source>Tick all %n that are not ticked yet?</source>
        <translation>
            <numerusform>Den %n abhaken, der noch fehlt?</numerusform>
            <numerusform>Alle %n abhaken, die es noch nicht sind?</numerusform>
        </translation>
    </message>
    <message>
        <source>Tick %1?</source>
        <translation>%1 abhaken?</translation>
    </message>
    <message>
        <source>Tick %1, and %2?</source>
        <translation>%1, und %2 abhaken?</translation>
    </message>
    <message>
        <source>The survey of %1 goes on, as it was put off.</source>
        <translation>Der Abgleich vom %1 geht weiter, wie er aufgeschoben wurde.</translation>
    </message>
    <message>
        <source>To enter them, leave the survey and use kiv import.</source>
        <translation>Zum Eintragen den Abgleich verlassen und kiv import verwenden.</translation>
    </message>
    <message>
        <source>To go on with it, use kiv survey run for this account.</source>
        <translation>Weiter geht es mit kiv survey run für dieses Konto.</translation>
    </message>
    <message>
        <source>Begin anew, instead of with what was put off</source>
        <translation>Neu beginnen, statt mit dem Aufgeschobenen</translation>
    </message>
    <message>
        <source>Put the survey off, to go on with it later?</source>
        <translation>Den Abgleich aufschieben, um später weiterzumachen?</translation>
    </message>
    <message>
        <source>The books stay %1.</source>
        <translation>Die Bücher bleiben %1.</translation>
    </message>
    <message>
        <source>What is on the statement: 3, 1-5,9, &apos;all but 4&apos; or &apos;none&apos; (repeatable; default: what is marked as seen at the bank)</source>
        <translation>Was auf dem Auszug steht: 3, 1-5,9, &apos;alle außer 4&apos; oder &apos;keine&apos; (wiederholbar; Standard: was als bei der Bank gesehen markiert ist)</translation>
    </message>
    <message>
        <source>Item or account to which the difference is posted, such as the interest of a loan</source>
        <translation>Posten oder Konto, auf das die Abweichung gebucht wird, etwa die Zinsen eines Kredits</translation>
    </message>
    <message>
        <source>A difference may stay; it is told until it is gone</source>
        <translation>Eine Abweichung darf bleiben; sie wird genannt, bis sie fort ist</translation>
    </message>
    <message>
        <source>Nothing is set aside at %1 any more.</source>
        <translation>Bei %1 ist nichts mehr zurückgelegt.</translation>
    </message>
    <message>
        <source>Set nothing aside at an account any more</source>
        <translation>Bei einem Konto nichts mehr zurücklegen</translation>
    </message>
    <message>
        <source>which is never refused for what is owed</source>
        <translation>was bei einer Schuld nie abgelehnt wird</translation>
    </message>
    <message>
        <source>inside the window of %1</source>
        <translation>innerhalb der Toleranz von %1</translation>
    </message>
    <message>
        <source>outside the window of %1: the survey is refused</source>
        <translation>außerhalb der Toleranz von %1: Der Abgleich wird abgelehnt</translation>
    </message>
    <message>
        <source>Nothing is open up to this day.</source>
        <translation>Bis zu diesem Tag ist nichts offen.</translation>
    </message>
    <message>
        <source>%1, was reconciled with %2 and is not yet seen here.</source>
        <translation>%1, wurde mit %2 abgeglichen und hier noch nicht gesehen.</translation>
    </message>
    <message>
        <source>Calculated</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Kontoauszug</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>The books agree with the statement.</source>
        <translation>Die Bücher stimmen mit dem Auszug überein.</translation>
    </message>
    <message>
        <source>The books are %1</source>
        <translation>Die Bücher liegen %1</translation>
    </message>
    <message>
        <source>With it, the books are as the bank has them again.</source>
        <translation>Damit sind die Bücher wieder wie bei der Bank.</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Vorgeschlagen</translation>
    </message>
    <message>
        <source>Still due in %1, of what is paid monthly</source>
        <translation>Im %1 noch fällig, von dem, was monatlich bezahlt wird</translation>
    </message>
    <message>
        <source>To be posted, of %1</source>
        <translation>Zu buchen, zum %1</translation>
    </message>
    <message>
        <source>what was asked about</source>
        <translation>wonach gefragt wurde</translation>
    </message>
    <message>
        <source>#%1, to %2</source>
        <translation>Nr. %1, an %2</translation>
    </message>
    <message>
        <source>Lowest on %1: %2, because of %3.</source>
        <translation>Tiefststand am %1: %2, wegen %3.</translation>
    </message>
    <message>
        <source>Lowest on %1: %2.</source>
        <translation>Tiefststand am %1: %2.</translation>
    </message>
    <message>
        <source>Below %1 for the first time on %2.</source>
        <translation>Zum ersten Mal unter %1 am %2.</translation>
    </message>
    <message>
        <source>Never below %1.</source>
        <translation>Nie unter %1.</translation>
    </message>
    <message>
        <source>Free until the next wage on %1: %2.</source>
        <translation>Frei bis zum nächsten Lohn am %1: %2.</translation>
    </message>
    <message>
        <source>Free until the end, without a wage: %1.</source>
        <translation>Frei bis zum Ende, ohne einen Lohn: %1.</translation>
    </message>
    <message>
        <source>there is no exchange rate between %1 and %2</source>
        <translation>es gibt keinen Wechselkurs zwischen %1 und %2</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: %2.</source>
        <translation>Die Vorschau lässt „%1“ weg: %2.</translation>
    </message>
    <message>
        <source>The outlook leaves an entry out: %1.</source>
        <translation>Die Vorschau lässt eine Buchung weg: %1.</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: no open account can pay it.</source>
        <translation>Die Vorschau lässt „%1“ weg: Kein offenes Konto kann ihn bezahlen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form &apos;AMOUNT on DAY&apos;, such as &apos;900 on 2026-12-05&apos;.</source>
        <translation>„%1“ hat nicht die Form &apos;BETRAG on TAG&apos;, etwa &apos;900 on 2026-12-05&apos;.</translation>
    </message>
    <message>
        <source>How many days to look ahead (default: 92; at most 3,660)</source>
        <translation>Wie viele Tage vorausgeschaut wird (Standard: 92; höchstens 3.660)</translation>
    </message>
    <message>
        <source>Tell the first day on which less than this is there</source>
        <translation>Den ersten Tag nennen, an dem weniger als das da ist</translation>
    </message>
    <message>
        <source>As if there were no such budget item (repeatable)</source>
        <translation>Als gäbe es diesen Budgetposten nicht (wiederholbar)</translation>
    </message>
    <message>
        <source>Something more, as in &apos;900 on 2026-12-05&apos;; negative if it comes in (repeatable)</source>
        <translation>Etwas dazu, wie in &apos;900 on 2026-12-05&apos;; negativ, wenn es hereinkommt (wiederholbar)</translation>
    </message>
    <message>
        <source>List what is paid and received</source>
        <translation>Auflisten, was bezahlt und empfangen wird</translation>
    </message>
    <message>
        <source>First day (default: today)</source>
        <translation>Erster Tag (Standard: heute)</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Tiefststand</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Am</translation>
    </message>
    <message>
        <source>Because of</source>
        <translation>Wegen</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>No bank has an open account.</source>
        <translation>Keine Bank hat ein offenes Konto.</translation>
    </message>
    <message>
        <source>Nothing is expected.</source>
        <translation>Nichts wird erwartet.</translation>
    </message>
    <message>
        <source>Look ahead: the lowest day, and what can be spent until then</source>
        <translation>Vorausschauen: der tiefste Tag, und was bis dahin ausgegeben werden kann</translation>
    </message>
    <message>
        <source>There is no exchange rate between %1 and %2; it is needed for: %3.</source>
        <translation>Zwischen %1 und %2 gibt es keinen Wechselkurs; er wird gebraucht für: %3.</translation>
    </message>
    <message>
        <source>The budget&apos;s health is not judged, since an exchange rate is missing.</source>
        <translation>Die Gesundheit des Budgets wird nicht beurteilt, weil ein Wechselkurs fehlt.</translation>
    </message>
    <message>
        <source>Nothing is free to spend: %1 more is set aside than there is.</source>
        <translation>Nichts ist frei verfügbar: Es ist %1 mehr zurückgelegt, als da ist.</translation>
    </message>
    <message>
        <source>%1 is free to spend: %2 at the bank, of which %3 is set aside.</source>
        <translation>%1 sind frei verfügbar: %2 bei der Bank, davon %3 zurückgelegt.</translation>
    </message>
    <message>
        <source>Still due until %1, of what is paid monthly: %2.</source>
        <translation>Von dem, was monatlich bezahlt wird, ist bis zum %1 noch fällig: %2.</translation>
    </message>
    <message>
        <source>The budget&apos;s items of five kinds. Bills, debts and free spending are paid, goals are saved for, wages come in. Each has an amount, how often it recurs and its next day. Enter changes an item, Del removes it.

Below the table stands how what is set aside for the chosen item comes about: what the last survey had, what was added since and why, and what was paid. A goal that is reached and a debt that is paid off can be ended there: they are due no longer. The last tab has all that is set aside, account by account; Enter shows the item.</source>
        <translation>Die Posten des Budgets in fünf Arten. Rechnungen, Schulden und freie Ausgaben werden bezahlt, für Ziele wird gespart, Löhne kommen herein. Jeder hat einen Betrag, wie oft er wiederkehrt und seinen nächsten Tag. Enter ändert einen Posten, Entf entfernt ihn.

Unter der Tabelle steht, wie zustande kommt, was für den gewählten Posten zurückgelegt ist: was beim letzten Abgleich da war, was seitdem hinzukam und warum, und was bezahlt wurde. Ein erreichtes Ziel und eine abbezahlte Schuld können dort beendet werden: Sie sind dann nicht mehr fällig. Der letzte Reiter hat alles, was zurückgelegt ist, Konto für Konto; Enter zeigt den Posten.</translation>
    </message>
    <message>
        <source>In goals at the banks</source>
        <translation>In Zielen bei den Banken</translation>
    </message>
    <message>
        <source>%1: %2 = %3 set aside + %4 free</source>
        <translation>%1: %2 = %3 zurückgelegt + %4 frei</translation>
    </message>
    <message>
        <source>%1: %2 = %3 set aside + %4 free; paid since %5: %6</source>
        <translation>%1: %2 = %3 zurückgelegt + %4 frei; seit dem %5 bezahlt: %6</translation>
    </message>
    <message>
        <source>Set aside at %1</source>
        <translation>Zurückgelegt bei %1</translation>
    </message>
    <message>
        <source>Adjusted</source>
        <translation>Berichtigt</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>%1 is of the type %2 now.</source>
        <translation>%1 ist jetzt von der Art %2.</translation>
    </message>
    <message>
        <source>correcting the type of “%1”</source>
        <translation>die Art von „%1“ berichtigen</translation>
    </message>
    <message>
        <source>The balance of %1 is %2 now; its transactions are as they were.</source>
        <translation>Der Saldo von %1 ist jetzt %2; seine Buchungen sind, wie sie waren.</translation>
    </message>
    <message>
        <source>%1 lies under no other account any more.</source>
        <translation>%1 liegt unter keinem anderen Konto mehr.</translation>
    </message>
    <message>
        <source>Separated %1 from the bank &apos;%2&apos;, which cannot keep it.</source>
        <translation>%1 von der Bank „%2“ gelöst, die es nicht führen kann.</translation>
    </message>
    <message>
        <source>What was set aside at %1 is free now.</source>
        <translation>Was auf %1 zurückgelegt war, ist jetzt frei.</translation>
    </message>
    <message>
        <source>%1 replaced by %2</source>
        <translation>%1 durch %2 ersetzt</translation>
    </message>
    <message>
        <source>%1 is at the bank %2 now.</source>
        <translation>%1 ist jetzt bei der Bank %2.</translation>
    </message>
    <message>
        <source>moving “%1” to “%2”</source>
        <translation>„%1“ zu „%2“ umziehen</translation>
    </message>
    <message>
        <source>Replaced %1 by %2.</source>
        <translation>%1 durch %2 ersetzt.</translation>
    </message>
    <message>
        <source>replacing “%1” by “%2”</source>
        <translation>„%1“ durch „%2“ ersetzen</translation>
    </message>
    <message>
        <source>Moved %1 from %2 to %3 (transaction %4).</source>
        <translation>%1 von %2 auf %3 umgebucht (Buchung %4).</translation>
    </message>
    <message>
        <source>Under %1 are now: %2</source>
        <translation>Unter %1 sind jetzt: %2</translation>
    </message>
    <message>
        <source>Set aside at %1 are now: %2</source>
        <translation>Auf %1 ist jetzt zurückgelegt für: %2</translation>
    </message>
    <message>
        <source>%1 stays open; close it after its last statement.</source>
        <translation>%1 bleibt offen; nach dem letzten Kontoauszug schließen.</translation>
    </message>
    <message>
        <source>Closed %1.</source>
        <translation>%1 geschlossen.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is finished</source>
        <translation>Das Ziel „%1“ ist beendet</translation>
    </message>
    <message>
        <source>Finished the debt %1.</source>
        <translation>Die Schuld %1 beendet.</translation>
    </message>
    <message>
        <source>finishing the debt “%1”</source>
        <translation>die Schuld „%1“ beenden</translation>
    </message>
    <message>
        <source>Finished the goal %1.</source>
        <translation>Das Ziel %1 beendet.</translation>
    </message>
    <message>
        <source>finishing the goal “%1”</source>
        <translation>das Ziel „%1“ beenden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; recurs no longer.</source>
        <translation>„%1“ kehrt nicht mehr wieder.</translation>
    </message>
    <message>
        <source>Closed the account of &apos;%1&apos;.</source>
        <translation>Das Konto von „%1“ geschlossen.</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; stays open: %2</source>
        <translation>Das Konto von „%1“ bleibt offen: %2</translation>
    </message>
    <message>
        <source>Correct the type of &apos;%1&apos; first: it is %2, and no bank keeps that as %3</source>
        <translation>Zuerst die Art von „%1“ berichtigen: es ist %2, und keine Bank führt das als %3</translation>
    </message>
    <message>
        <source>A bank cannot keep an account of the type %2 as %1.</source>
        <translation>Eine Bank kann ein Konto der Art %2 nicht als %1 führen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is at the bank &apos;%2&apos; already.</source>
        <translation>„%1“ ist bereits bei der Bank „%2“.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is closed; open it again first.</source>
        <translation>Die Bank „%1“ ist geschlossen; zuerst wieder öffnen.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is closed; open it again first.</source>
        <translation>Das Konto „%1“ ist geschlossen; zuerst wieder öffnen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies under &apos;%2&apos; and goes along with it; name &apos;%2&apos;.</source>
        <translation>„%1“ liegt unter „%2“ und geht mit ihm; „%2“ nennen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot replace itself; add an account first.</source>
        <translation>„%1“ kann sich nicht selbst ersetzen; zuerst ein Konto anlegen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; cannot replace each other: one is owned, and the other is owed. Pay it off by a transfer, then close it.</source>
        <translation>„%1“ und „%2“ können einander nicht ersetzen: das eine ist Guthaben, das andere Schuld. Durch eine Umbuchung begleichen, dann schließen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; are kept in different currencies. Transfer the money with both amounts, tie its goals to &apos;%2&apos;, then close &apos;%1&apos;.</source>
        <translation>„%1“ und „%2“ haben verschiedene Währungen. Das Geld mit beiden Beträgen umbuchen, die Ziele mit „%2“ verknüpfen, dann „%1“ schließen.</translation>
    </message>
    <message>
        <source>%1 is still to come; name a day until today.</source>
        <translation>%1 liegt noch in der Zukunft; einen Tag bis heute nennen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is of the type %2 already.</source>
        <translation>„%1“ ist bereits von der Art %2.</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; has the type that its item needs. Add an item of the right kind, put the transactions under it, then remove this one.</source>
        <translation>Das Konto von „%1“ hat die Art, die sein Posten braucht. Einen Posten der richtigen Art anlegen, die Buchungen ihm zuordnen, dann diesen entfernen.</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; lies under it. Tie &apos;%1&apos; to another bank account first, or to none.</source>
        <translation>Das Konto von „%1“ liegt darunter. Zuerst „%1“ mit einem anderen Bankkonto verknüpfen, oder mit keinem.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds the opening balances; its type cannot change.</source>
        <translation>„%1“ hält die Anfangssalden; seine Art kann sich nicht ändern.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no account; save and open the budget once.</source>
        <translation>„%1“ hat kein Konto; das Budget einmal speichern und öffnen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is finished already.</source>
        <translation>„%1“ ist bereits beendet.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; lies under no bank account; say to which account its money goes, or move it there first.</source>
        <translation>Das Ziel „%1“ liegt unter keinem Bankkonto; angeben, auf welches Konto sein Geld geht, oder es zuerst dorthin umbuchen.</translation>
    </message>
    <message>
        <source>Of the debt &apos;%1&apos;, %2 is still owed; pay it first.</source>
        <translation>Von der Schuld „%1“ sind noch %2 offen; zuerst bezahlen.</translation>
    </message>
    <message>
        <source>For the debt &apos;%1&apos;, %2 more was paid than was owed; move it back first.</source>
        <translation>Für die Schuld „%1“ wurden %2 mehr bezahlt, als offen waren; zuerst zurückbuchen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has an amount of zero and was skipped.</source>
        <translation>„%1“ hat den Betrag null und wurde übersprungen.</translation>
    </message>
    <message>
        <source>This money came from %1, which is an expense account and keeps none.</source>
        <translation>Dieses Geld kam von %1, einem Aufwandskonto, das keines hat.</translation>
    </message>
    <message>
        <source>The money of %1 went straight to %2, which is an expense account and keeps none.</source>
        <translation>Das Geld von %1 ging gleich an %2, ein Aufwandskonto, das keines behält.</translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is %n years ago.</source>
        <translation>
            <numerusform>Der Tag %1 liegt %n Jahr zurück.</numerusform>
            <numerusform>Der Tag %1 liegt %n Jahre zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is in %n years.</source>
        <translation>
            <numerusform>Der Tag %1 ist in %n Jahr.</numerusform>
            <numerusform>Der Tag %1 ist in %n Jahren.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is below zero: %2.</source>
        <translation>%1 ist unter null: %2.</translation>
    </message>
    <message>
        <source>The goals at %1 hold %2 more than there is.</source>
        <translation>Die Ziele auf %1 halten %2 mehr, als da ist.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 now, more than its target of %3.</source>
        <translation>Das Ziel „%1“ hat jetzt %2, mehr als seinen Zielbetrag von %3.</translation>
    </message>
    <message>
        <source>For the debt &apos;%1&apos;, %2 more was paid than was owed.</source>
        <translation>Für die Schuld „%1“ wurden %2 mehr bezahlt, als offen waren.</translation>
    </message>
    <message>
        <source>The totals leave &apos;%1&apos; out: there is no exchange rate between %2 and %3.</source>
        <translation>Die Summen lassen „%1“ aus: es gibt keinen Wechselkurs zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>What it is to its bank then: checking, savings, credit-card, loan … (default: checking or credit-card)</source>
        <translation>Was es dann für seine Bank ist: checking, savings, credit-card, loan … (Standard: checking oder credit-card)</translation>
    </message>
    <message>
        <source>Correct the type of an account; its transactions stay</source>
        <translation>Die Art eines Kontos berichtigen; seine Buchungen bleiben</translation>
    </message>
    <message>
        <source>Name of the bank that keeps it from now on</source>
        <translation>Name der Bank, die es von nun an führt</translation>
    </message>
    <message>
        <source>Account of a bank that takes its place</source>
        <translation>Konto einer Bank, das an seine Stelle tritt</translation>
    </message>
    <message>
        <source>Do not close it: a statement is still to come</source>
        <translation>Nicht schließen: ein Kontoauszug steht noch aus</translation>
    </message>
    <message>
        <source>Day on which the money goes over (default: today)</source>
        <translation>Tag, an dem das Geld übergeht (Standard: heute)</translation>
    </message>
    <message>
        <source>Give an account to another bank, with all that is set aside</source>
        <translation>Ein Konto einer anderen Bank geben, mit allem, was zurückgelegt ist</translation>
    </message>
    <message>
        <source>Change banks: another account takes the money, goals and what is set aside</source>
        <translation>Die Bank wechseln: ein anderes Konto übernimmt Geld, Ziele und was zurückgelegt ist</translation>
    </message>
    <message>
        <source>To end it, use kiv %1 finish.</source>
        <translation>Zum Beenden: kiv %1 finish.</translation>
    </message>
    <message>
        <source>Account that gets the money, or on which it is spent (default: the bank account that holds it)</source>
        <translation>Konto, das das Geld bekommt oder für das es ausgegeben wird (Standard: das Bankkonto, auf dem es liegt)</translation>
    </message>
    <message>
        <source>End a goal: its money goes back or is spent</source>
        <translation>Ein Ziel beenden: sein Geld geht zurück oder wird ausgegeben</translation>
    </message>
    <message>
        <source>End a debt that is paid off</source>
        <translation>Eine abbezahlte Schuld beenden</translation>
    </message>
    <message>
        <source>use kiv account convert</source>
        <translation>siehe kiv account convert</translation>
    </message>
    <message>
        <source>A survey compares the books with a statement of the bank.

1. Choose the account, type the day and the balance of the statement, and press Enter; or lay the bank’s file beside, which fills them in.
2. Tick each transaction that stands on the statement: Space ticks and goes down. What the bank shows and the books lack can be added to the list, and the amount that is missing is offered.
3. The second tab has what is set aside for the items, and why. An amount can be typed over; an empty field takes it back.
4. Complete: the ticked transactions are reconciled, and the balance is kept. A difference may only stay if you say so, and is shown until it is gone.

“Put off” keeps the survey, to go on with it later. The third tab lists the past reconciliations, and says whether their transactions are still as they were.</source>
        <translation>Ein Abgleich vergleicht die Bücher mit einem Kontoauszug.

1. Das Konto wählen, Tag und Saldo des Auszugs tippen und Enter drücken; oder die Datei der Bank danebenlegen, die beides einträgt.
2. Jede Buchung abhaken, die auf dem Auszug steht: Die Leertaste hakt ab und geht nach unten. Was die Bank zeigt und in den Büchern fehlt, kann in die Liste aufgenommen werden; der fehlende Betrag wird angeboten.
3. Der zweite Reiter zeigt, was für die Posten zurückgelegt wird und warum. Ein Betrag kann überschrieben werden; ein leeres Feld nimmt ihn zurück.
4. Abschließen: Die abgehakten Buchungen sind abgeglichen, der Saldo ist festgehalten. Eine Abweichung darf nur bleiben, wenn das ausdrücklich gesagt wird, und wird gezeigt, bis sie weg ist.

„Aufschieben“ behält den Abgleich, um später weiterzumachen. Der dritte Reiter nennt die früheren Abgleiche und sagt, ob ihre Buchungen noch wie damals sind.</translation>
    </message>
    <message>
        <source>balance of its account</source>
        <translation>Saldo seines Kontos</translation>
    </message>
    <message>
        <source>as proposed</source>
        <translation>wie vorgeschlagen</translation>
    </message>
    <message>
        <source>nothing to set aside</source>
        <translation>nichts zurückzulegen</translation>
    </message>
    <message>
        <source>Still due in %1, of what is paid monthly: %2.</source>
        <translation>Noch fällig im %1 von dem, was monatlich bezahlt wird: %2.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Nothing is set aside of what is owed.</source>
        <translation>Von einer Schuld wird nichts zurückgelegt.</translation>
    </message>
    <message>
        <source>Set aside for items: %1; free: %2.</source>
        <translation>Für Posten zurückgelegt: %1; frei: %2.</translation>
    </message>
    <message>
        <source>reconciled with %1, not yet seen here</source>
        <translation>mit %1 abgeglichen, hier noch nicht gesehen</translation>
    </message>
    <message>
        <source>Of what is owed, any difference is accepted.</source>
        <translation>Bei einer Schuld wird jede Abweichung angenommen.</translation>
    </message>
    <message>
        <source>That is inside the survey window of %1.</source>
        <translation>Das liegt innerhalb der Toleranz des Abgleichs von %1.</translation>
    </message>
    <message>
        <source>That is beyond the survey window of %1: the survey cannot be completed.</source>
        <translation>Das liegt außerhalb der Toleranz des Abgleichs von %1: Der Abgleich kann nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>%1, the books are %2</source>
        <translation>%1, die Bücher liegen %2</translation>
    </message>
    <message>
        <source>%1, the books are %2 (%3)</source>
        <translation>%1, die Bücher liegen %2 (%3)</translation>
    </message>
    <message>
        <source>It makes up for the earlier difference.</source>
        <translation>Er gleicht die frühere Abweichung aus.</translation>
    </message>
    <message>
        <source>Calculated %1, statement %2.</source>
        <translation>Errechnet %1, Auszug %2.</translation>
    </message>
    <message>
        <source>Calculated %1. Type the balance of the statement to compare.</source>
        <translation>Errechnet %1. Zum Vergleichen den Saldo des Auszugs eingeben.</translation>
    </message>
    <message>
        <source>%1, no difference</source>
        <translation>%1, keine Abweichung</translation>
    </message>
    <message>
        <source>“%1” does not look like a statement of a bank.</source>
        <translation>„%1“ sieht nicht wie ein Kontoauszug aus.</translation>
    </message>
    <message>
        <source>Taken up where it was put off.</source>
        <translation>Der aufgeschobene Abgleich geht weiter.</translation>
    </message>
    <message>
        <source>The survey that was put off is taken up with the day of today. %1</source>
        <translation>Der aufgeschobene Abgleich geht mit dem heutigen Tag weiter. %1</translation>
    </message>
    <message>
        <source>To set nothing aside at an account any more, use kiv survey drop.</source>
        <translation>Um bei einem Konto nichts mehr zurückzulegen: kiv survey drop.</translation>
    </message>
    <message>
        <source>Which kind for what
Rent, insurance, taxes: a bill. Salary, pension: a wage. A loan from a bank or a friend: a debt. A holiday, money for emergencies: a goal. Pocket money and groceries with a planned amount: free spending. What you only want to look back at: an account for spending. A credit card: an account at a bank, of the kind credit card. A purse: an account that is owned.</source>
        <translation>Welche Art wofür
Miete, Versicherung, Steuern: eine Rechnung. Gehalt, Rente: ein Lohn. Ein Kredit von einer Bank oder von Freunden: eine Schuld. Eine Reise, Geld für Notfälle: ein Ziel. Taschengeld und Lebensmittel mit einem geplanten Betrag: freie Ausgaben. Was nur im Rückblick zählt: ein Konto für Ausgaben. Eine Kreditkarte: ein Konto bei einer Bank, von der Art Kreditkarte. Eine Geldbörse: ein Konto, das Besitz ist.</translation>
    </message>
    <message>
        <source>The end of the month
1. Import the file of the bank (Ctrl+I).
2. On the page “Survey”, choose the account, and compare the day and the balance with the statement. What differs is told.
3. Look at what is set aside for bills that do not come each month, and complete.
4. “Home” tells what is free.</source>
        <translation>Das Ende des Monats
1. Die Datei der Bank importieren (Strg+I).
2. Auf der Seite „Abgleich“ das Konto wählen und Tag und Saldo mit dem Auszug vergleichen. Was abweicht, wird genannt.
3. Ansehen, was für Rechnungen zurückgelegt ist, die nicht jeden Monat kommen, und abschließen.
4. „Start“ sagt, was frei ist.</translation>
    </message>
    <message>
        <source>A card
What is bought with it is spent on that day: “Spent”, from the card. Paying its bill is no second expense: “Moved”, from the bank account to the card.</source>
        <translation>Eine Karte
Was mit ihr gekauft wird, ist an dem Tag ausgegeben: „Ausgegeben“, von der Karte. Ihre Abrechnung zu bezahlen ist keine zweite Ausgabe: „Umgebucht“, vom Bankkonto zur Karte.</translation>
    </message>
    <message>
        <source>A loan
The page “Due” pays it, and the debt gets smaller. The interest stands on the lender’s statement: add it in the survey of the loan. A loan from a friend needs no bank.</source>
        <translation>Ein Kredit
Die Seite „Fällig“ bezahlt ihn, und die Schuld wird kleiner. Die Zinsen stehen auf dem Auszug des Kredits: Sie werden in dessen Abgleich eingetragen. Ein Kredit von Freunden braucht keine Bank.</translation>
    </message>
    <message>
        <source>A second currency
Each account has one. “Moved” asks for both amounts, as they were booked; no exchange rate is needed for that. Totals need one: see “Exchange rates”.</source>
        <translation>Eine zweite Währung
Jedes Konto hat eine. „Umgebucht“ fragt nach beiden Beträgen, wie sie gebucht wurden; ein Wechselkurs ist dafür nicht nötig. Summen brauchen einen: siehe „Wechselkurse“.</translation>
    </message>
    <message>
        <source>A refund
Choose the payment in the register, then “Refund” in the menu “Transaction”.</source>
        <translation>Eine Erstattung
Die Zahlung im Register wählen, dann „Erstatten“ im Menü „Buchung“.</translation>
    </message>
    <message>
        <source>An account of the wrong kind
“Change” on the page “Accounts” corrects it, and on the page “Banks” what it is to the bank. Its transactions stay.</source>
        <translation>Ein Konto der falschen Art
„Ändern“ auf der Seite „Konten“ berichtigt es, und auf der Seite „Banken“, was es für die Bank ist. Seine Buchungen bleiben.</translation>
    </message>
    <message>
        <source>Changing banks
Add the new bank and its account on the page “Banks”. “Replace” then moves the money of the old one, its goals and what is set aside. “Move to another bank” is for an account that stays as it is.</source>
        <translation>Die Bank wechseln
Die neue Bank und ihr Konto auf der Seite „Banken“ anlegen. „Durch anderes ersetzen“ bucht dann das Geld des alten um, mit seinen Zielen und dem, was zurückgelegt ist. „Zu anderer Bank“ ist für ein Konto, das bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>A difference with the bank
The survey tells what may be behind it. What is only on the statement is entered, what is only in the books is not ticked, and what was entered twice or with a wrong amount is corrected. A small rest may stay, and is told until it is gone.</source>
        <translation>Eine Abweichung von der Bank
Der Abgleich sagt, was dahinter stecken kann. Was nur auf dem Auszug steht, wird eingetragen, was nur in den Büchern steht, nicht abgehakt, und was zweimal oder mit falschem Betrag eingetragen wurde, berichtigt. Ein kleiner Rest darf bleiben und wird genannt, bis er fort ist.</translation>
    </message>
    <message>
        <source>Coming from another program
Ctrl+I takes journals of ledger and hledger as they are. Other programs export each account as QIF, OFX or CSV. Add the account with the balance that it had before the first entry of the file, then import. At the end, compare the balances.</source>
        <translation>Von einem anderen Programm
Strg+I liest Journale von ledger und hledger, wie sie sind. Andere Programme exportieren jedes Konto als QIF, OFX oder CSV. Das Konto mit dem Saldo anlegen, den es vor dem ersten Eintrag der Datei hatte, dann importieren. Am Ende die Salden vergleichen.</translation>
    </message>
    <message>
        <source>%1 is behind %2, the last day that is looked at.</source>
        <translation>%1 liegt hinter dem %2, dem letzten Tag der Vorschau.</translation>
    </message>
    <message>
        <source>What is to come cannot be told: its amounts become too large.</source>
        <translation>Was kommt, lässt sich nicht sagen: Die Beträge werden zu groß.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no schedule: it is not due regularly, or its amount is not above zero.</source>
        <translation>„%1“ hat keinen Zahlungsplan: nicht regelmäßig fällig, oder der Betrag liegt nicht über null.</translation>
    </message>
    <message>
        <source>What is paid more a month must be above zero.</source>
        <translation>Was im Monat mehr gezahlt wird, muss über null liegen.</translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, with interest of about %4 a year.</source>
        <translation>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlung, mit etwa %4 Zinsen im Jahr.</numerusform>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlungen, mit etwa %4 Zinsen im Jahr.</numerusform>
        </translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
    <message numerus="yes">
        <source>No wage comes within %n days.</source>
        <translation>
            <numerusform>Innerhalb von %n Tag kommt kein Lohn.</numerusform>
            <numerusform>Innerhalb von %n Tagen kommt kein Lohn.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next wage comes on %1.</source>
        <translation>Der nächste Lohn kommt am %1.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is reached.</source>
        <translation>Das Ziel „%1“ ist erreicht.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; lacks %2; as it is saved for now, it has no end.</source>
        <translation>Dem Ziel „%1“ fehlen %2; so, wie gespart wird, wird es nie erreicht.</translation>
    </message>
    <message numerus="yes">
        <source>The goal &apos;%1&apos; lacks %2: reached on %3, after %n payments.</source>
        <translation>
            <numerusform>Dem Ziel „%1“ fehlen %2: erreicht am %3, nach %n Zahlung.</numerusform>
            <numerusform>Dem Ziel „%1“ fehlen %2: erreicht am %3, nach %n Zahlungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments.</source>
        <translation>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlung.</numerusform>
            <numerusform>Von der Schuld „%1“ bleiben %2: abbezahlt am %3, nach %n Zahlungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interest is left out: the account of the debt shows none.</source>
        <translation>Zinsen sind nicht gerechnet: Das Konto der Schuld zeigt keine.</translation>
    </message>
    <message>
        <source>With interest of about %1 a year: from %2 to %3 the account of the debt was charged with %4.</source>
        <translation>Mit etwa %1 Zinsen im Jahr: Vom %2 bis zum %3 wurde das Konto der Schuld mit %4 belastet.</translation>
    </message>
    <message>
        <source>Interest to come: %1.</source>
        <translation>Zinsen, die noch kommen: %1.</translation>
    </message>
    <message>
        <source>With %1 more a month it still has no end.</source>
        <translation>Auch mit %1 mehr im Monat endet es nicht.</translation>
    </message>
    <message>
        <source>With %1 more a month it ends on %2.</source>
        <translation>Mit %1 mehr im Monat endet es am %2.</translation>
    </message>
    <message numerus="yes">
        <source>With %1 more a month it ends on %2, %n days earlier.</source>
        <translation>
            <numerusform>Mit %1 mehr im Monat endet es am %2, %n Tag früher.</numerusform>
            <numerusform>Mit %1 mehr im Monat endet es am %2, %n Tage früher.</numerusform>
        </translation>
    </message>
    <message>
        <source>That spares %1 of interest.</source>
        <translation>Das spart %1 Zinsen.</translation>
    </message>
    <message>
        <source>What is to come</source>
        <translation>Was kommt</translation>
    </message>
    <message>
        <source>So much more a month</source>
        <translation>So viel mehr im Monat</translation>
    </message>
    <message>
        <source>Day on which late payments count (default: today)</source>
        <translation>Tag, an dem verspätete Zahlungen zählen (Standard: heute)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>List the payments to come until nothing is left</source>
        <translation>Die kommenden Zahlungen auflisten, bis nichts mehr bleibt</translation>
    </message>
    <message>
        <source>Home answers five questions: what is free to spend, what is due, which day ahead is the lowest, what else there is, and what needs care.

Of the balance of each bank account, a part is set aside for what is paid less often than monthly and for goals; the rest is free. What is still due this month is told beside it. Enter on an account shows its lines.

Each line of what is due has its own buttons: pay it, skip it, or go to the page “Due” for another amount. A balance is that of the bank, with the goals that lie in the account. Without an exchange rate, amounts are shown in their own currency, and what sums leave out is named.</source>
        <translation>Die Startseite beantwortet fünf Fragen: was frei verfügbar ist, was fällig ist, welcher kommende Tag der tiefste ist, was sonst noch da ist und was Aufmerksamkeit braucht.

Vom Saldo jedes Bankkontos ist ein Teil zurückgelegt, für Ziele und für das, was seltener als monatlich bezahlt wird; der Rest ist frei. Was in diesem Monat noch fällig ist, steht dabei. Enter auf einem Konto zeigt seine Zeilen.

Jede fällige Zeile hat eigene Schaltflächen: bezahlen, überspringen oder für einen anderen Betrag zur Seite „Fällig“ gehen. Ein Saldo ist der der Bank, mit den Zielen, die auf dem Konto liegen. Ohne Wechselkurs stehen Beträge in ihrer eigenen Währung, und was Summen auslassen, wird genannt.</translation>
    </message>
    <message>
        <source>What is to come, if everything regular goes on: each item on each of its days, what is late today, and what was entered for later days. A goal ends when it is reached, a debt when it is paid off. Money that is set aside for goals is not counted.

The arrow keys go through the days of the chart. Each row of the upper table has its own chart and payments; the lower table has the same numbers as the chart.

The fields ask what if: more or fewer days, an amount that should always be there, items that are left out (also by Del on a payment), and an amount that is paid on a day, or received if it has a minus. Enter asks, Esc starts again. The budget stays as it is.</source>
        <translation>Was kommt, wenn alles Regelmäßige weitergeht: jeder Posten an jedem seiner Tage, Verspätetes heute, und was für spätere Tage eingetragen ist. Ein Ziel endet, wenn es erreicht ist, eine Schuld, wenn sie abbezahlt ist. Geld, das in Zielen liegt, zählt nicht.

Die Pfeiltasten gehen durch die Tage des Diagramms. Jede Zeile der oberen Tabelle hat ihr eigenes Diagramm und ihre Zahlungen; die untere Tabelle hat dieselben Zahlen wie das Diagramm.

Die Felder fragen, was wäre, wenn: mehr oder weniger Tage, ein Betrag, der immer da sein soll, Posten, die weggelassen werden (auch mit Entf auf einer Zahlung), und ein Betrag, der an einem Tag gezahlt wird, oder mit einem Minus eingeht. Enter fragt, Esc fängt neu an. Das Budget bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>All together</source>
        <translation>Alle zusammen</translation>
    </message>
    <message>
        <source>%1, due on %2</source>
        <translation>%1, fällig am %2</translation>
    </message>
    <message>
        <source>Balance then</source>
        <translation>Saldo danach</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is encrypted: it needs its passphrase.</source>
        <translation>Die Datei „%1“ ist verschlüsselt: Sie braucht ihre Passphrase.</translation>
    </message>
    <message>
        <source>This is not the passphrase of the file &apos;%1&apos;.</source>
        <translation>Das ist nicht die Passphrase der Datei „%1“.</translation>
    </message>
    <message>
        <source>A passphrase has at least one character.</source>
        <translation>Eine Passphrase hat mindestens ein Zeichen.</translation>
    </message>
    <message>
        <source>A passphrase has at most %1 bytes.</source>
        <translation>Eine Passphrase hat höchstens %1 Bytes.</translation>
    </message>
    <message>
        <source>There is too little memory for the passphrase of the file &apos;%1&apos;: %2 MiB are needed.</source>
        <translation>Für die Passphrase der Datei „%1“ ist zu wenig Arbeitsspeicher da: %2 MiB werden gebraucht.</translation>
    </message>
    <message>
        <source>Its passphrase would take %1 MiB of memory and %2 passes, more than any such file needs.</source>
        <translation>Ihre Passphrase bräuchte %1 MiB Arbeitsspeicher und %2 Durchgänge, mehr als jede solche Datei.</translation>
    </message>
    <message>
        <source>A short passphrase can be guessed: four or five words that do not belong together are better.</source>
        <translation>Eine kurze Passphrase lässt sich erraten: Besser sind vier oder fünf Wörter, die nicht zusammengehören.</translation>
    </message>
    <message>
        <source>Without the passphrase nobody can read the budget, you neither: keep it where you find it again.</source>
        <translation>Ohne die Passphrase kann niemand das Budget lesen, auch wer es verschlüsselt hat nicht: so aufbewahren, dass sie wiederzufinden ist.</translation>
    </message>
    <message>
        <source>What was saved before can still be found on the disk, and in copies elsewhere.</source>
        <translation>Was vorher gespeichert wurde, ist auf der Festplatte und in Kopien anderswo noch zu finden.</translation>
    </message>
    <message>
        <source>The budget is encrypted, but what is written here is not: everybody who has it can read it.</source>
        <translation>Das Budget ist verschlüsselt, aber was hier geschrieben wird, nicht: Jeder, der es hat, kann es lesen.</translation>
    </message>
    <message>
        <source>Balance of %1 at the end of %2</source>
        <translation>Saldo von %1 am Ende des %2</translation>
    </message>
    <message>
        <source>Balance of %1</source>
        <translation>Saldo von %1</translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation>Anfangssaldo</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier entries</source>
        <translation>
            <numerusform>%n frühere Buchung</numerusform>
            <numerusform>%n frühere Buchungen</numerusform>
        </translation>
    </message>
    <message>
        <source>The share of a month of %1</source>
        <translation>Monatsanteil von %1</translation>
    </message>
    <message>
        <source>times a year</source>
        <translation>mal im Jahr</translation>
    </message>
    <message>
        <source>years from one to the next</source>
        <translation>Jahre von einem zum nächsten</translation>
    </message>
    <message>
        <source>months of a year</source>
        <translation>Monate eines Jahres</translation>
    </message>
    <message>
        <source>1 %1 is %2 %3, typed by hand</source>
        <translation>1 %1 sind %2 %3, eingegeben</translation>
    </message>
    <message>
        <source>1 %1 is %2 %3, fetched from the service</source>
        <translation>1 %1 sind %2 %3, vom Dienst abgerufen</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Amount in %1</source>
        <translation>Betrag in %1</translation>
    </message>
    <message>
        <source>what 1 %1 is in %2</source>
        <translation>was 1 %1 in %2 ist</translation>
    </message>
    <message>
        <source>Transaction %1 in %2</source>
        <translation>Buchung %1 in %2</translation>
    </message>
    <message>
        <source>what 1 %1 was in %2 when it was posted, by its two sides</source>
        <translation>was 1 %1 beim Buchen in %2 war, nach beiden Seiten</translation>
    </message>
    <message>
        <source>of the income: %1</source>
        <translation>vom Einkommen: %1</translation>
    </message>
    <message>
        <source>%1 at the end of %2, as it is expected</source>
        <translation>%1 am Ende des %2, wie erwartet</translation>
    </message>
    <message>
        <source>All money at the end of %1, as it is expected</source>
        <translation>Alles Geld am Ende des %1, wie erwartet</translation>
    </message>
    <message>
        <source>With all that was entered until today</source>
        <translation>Mit allem, was bis heute eingetragen ist</translation>
    </message>
    <message>
        <source>At the end of the day before</source>
        <translation>Am Ende des Tages davor</translation>
    </message>
    <message>
        <source>Rounding of converted amounts</source>
        <translation>Rundung umgerechneter Beträge</translation>
    </message>
    <message>
        <source>%1 when %2 is paid</source>
        <translation>%1, wenn %2 bezahlt ist</translation>
    </message>
    <message>
        <source>Set aside for %1</source>
        <translation>Zurückgelegt für %1</translation>
    </message>
    <message>
        <source>Set aside for %1 at %2</source>
        <translation>Zurückgelegt für %1 bei %2</translation>
    </message>
    <message>
        <source>Free to spend in %1</source>
        <translation>Frei verfügbar in %1</translation>
    </message>
    <message>
        <source>How far the books of %1 may be from the statement</source>
        <translation>Wie weit die Bücher von %1 vom Kontoauszug abweichen dürfen</translation>
    </message>
    <message>
        <source>less than one unit, since a part of zero is zero</source>
        <translation>weniger als eine Einheit, da ein Teil von null null ist</translation>
    </message>
    <message>
        <source>the window of %1</source>
        <translation>die Toleranz von %1</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is not encrypted.</source>
        <translation>Das Budget „%1“ ist nicht verschlüsselt.</translation>
    </message>
    <message>
        <source>Nothing of transaction %1 was converted; it is all in one currency.</source>
        <translation>Von der Buchung %1 wurde nichts umgerechnet; sie ist ganz in einer Währung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not recur, so no month has a share of it.</source>
        <translation>„%1“ wiederholt sich nicht, also hat kein Monat einen Anteil daran.</translation>
    </message>
    <message>
        <source>Nothing is set aside for &apos;%1&apos; at %2.</source>
        <translation>Für „%1“ ist bei %2 nichts zurückgelegt.</translation>
    </message>
    <message>
        <source>%1 is owed; a survey refuses no difference there.</source>
        <translation>%1 ist geschuldet; dort lehnt ein Abgleich keine Abweichung ab.</translation>
    </message>
    <message>
        <source>There is no income of which anything could take a part.</source>
        <translation>Es gibt kein Einkommen, von dem etwas einen Teil nehmen könnte.</translation>
    </message>
    <message>
        <source>%1 is not a day to look ahead to; name one from %2 to %3.</source>
        <translation>Auf den %1 kann nicht vorausgeschaut werden; möglich ist ein Tag vom %2 bis zum %3.</translation>
    </message>
    <message>
        <source>The outlook does not tell of %1: it is no open account of a bank, or holds the money of a goal.</source>
        <translation>Die Vorschau nennt %1 nicht: Es ist kein offenes Konto einer Bank oder hält das Geld eines Ziels.</translation>
    </message>
    <message>
        <source>Without an open bank account, or without an exchange rate, the money cannot be added up; name an account.</source>
        <translation>Ohne offenes Bankkonto oder ohne Wechselkurs lässt sich das Geld nicht zusammenzählen; ein Konto angeben.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <comment>a total</comment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Owed</source>
        <translation>Geschuldet</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Zusammen</translation>
    </message>
    <message>
        <source>File with the passphrase of an encrypted budget (default: the variable KIV_PASSPHRASE_FILE)</source>
        <translation>Datei mit der Passphrase eines verschlüsselten Budgets (Standard: die Variable KIV_PASSPHRASE_FILE)</translation>
    </message>
    <message>
        <source>Balances at the end of this day (default: now)</source>
        <translation>Salden am Ende dieses Tages (Standard: jetzt)</translation>
    </message>
    <message numerus="yes">
        <source>%n transactions, together %1.</source>
        <translation>
            <numerusform>%n Buchung, zusammen %1.</numerusform>
            <numerusform>%n Buchungen, zusammen %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Encrypt it with a passphrase</source>
        <translation>Mit einer Passphrase verschlüsseln</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>File with the new passphrase (default: asked at the terminal)</source>
        <translation>Datei mit der neuen Passphrase (Standard: am Terminal erfragt)</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions have the new passphrase.</source>
        <translation>Das Budget „%1“ und seine früheren Versionen haben die neue Passphrase.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions are encrypted.</source>
        <translation>Das Budget „%1“ und seine früheren Versionen sind verschlüsselt.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions are not encrypted any more: everybody who has the files can read them.</source>
        <translation>Das Budget „%1“ und seine früheren Versionen sind nicht mehr verschlüsselt: Jeder, der die Dateien hat, kann sie lesen.</translation>
    </message>
    <message>
        <source>Encrypt the budget and its former versions, or change the passphrase</source>
        <translation>Das Budget und seine früheren Versionen verschlüsseln oder die Passphrase ändern</translation>
    </message>
    <message>
        <source>Take the encryption away again</source>
        <translation>Die Verschlüsselung wieder aufheben</translation>
    </message>
    <message>
        <source>Day of the balance (default: all transactions)</source>
        <translation>Tag des Saldos (Standard: alle Buchungen)</translation>
    </message>
    <message>
        <source>Budget item</source>
        <translation>Budgetposten</translation>
    </message>
    <message>
        <source>Amount, such as &apos;100 EUR&apos;</source>
        <translation>Betrag, etwa &apos;100 EUR&apos;</translation>
    </message>
    <message>
        <source>Currency of the result (default: the preferred one)</source>
        <translation>Währung des Ergebnisses (Standard: die bevorzugte)</translation>
    </message>
    <message>
        <source>Transaction whose sides were converted when it was posted</source>
        <translation>Buchung, deren Seiten beim Buchen umgerechnet wurden</translation>
    </message>
    <message>
        <source>Give an amount, or a transaction with --entry.</source>
        <translation>Einen Betrag oder mit --entry eine Buchung angeben.</translation>
    </message>
    <message>
        <source>Balance of the statement (default: the expected one)</source>
        <translation>Saldo des Kontoauszugs (Standard: der erwartete)</translation>
    </message>
    <message>
        <source>Day of the statement (default: today)</source>
        <translation>Tag des Kontoauszugs (Standard: heute)</translation>
    </message>
    <message>
        <source>Only one: planned, needs, debts, spending or goals (default: all)</source>
        <translation>Nur einer: planned, needs, debts, spending oder goals (Standard: alle)</translation>
    </message>
    <message>
        <source>Day that is to come</source>
        <translation>Tag, der noch kommt</translation>
    </message>
    <message>
        <source>Account: number, name or path (default: all money together)</source>
        <translation>Konto: Nummer, Name oder Pfad (Standard: alles Geld zusammen)</translation>
    </message>
    <message>
        <source>Tell why a figure is what it is</source>
        <translation>Sagen, warum eine Zahl ist, wie sie ist</translation>
    </message>
    <message>
        <source>Explain the balance of an account</source>
        <translation>Den Saldo eines Kontos erklären</translation>
    </message>
    <message>
        <source>Explain an item&apos;s share of a month</source>
        <translation>Den Monatsanteil eines Postens erklären</translation>
    </message>
    <message>
        <source>Explain a conversion into another currency</source>
        <translation>Eine Umrechnung in eine andere Währung erklären</translation>
    </message>
    <message>
        <source>Explain what is set aside for an item</source>
        <translation>Erklären, was für einen Posten zurückgelegt ist</translation>
    </message>
    <message>
        <source>Explain what is free to spend</source>
        <translation>Erklären, was frei verfügbar ist</translation>
    </message>
    <message>
        <source>Explain how far the books may be from a statement</source>
        <translation>Erklären, wie weit die Bücher von einem Kontoauszug abweichen dürfen</translation>
    </message>
    <message>
        <source>Explain the percentages of the budget&apos;s health</source>
        <translation>Die Prozentsätze der Budgetgesundheit erklären</translation>
    </message>
    <message>
        <source>Explain what is expected at the end of a day</source>
        <translation>Erklären, was am Ende eines Tages erwartet wird</translation>
    </message>
    <message>
        <source>another passphrase</source>
        <translation>andere Passphrase</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is encrypted: give its passphrase with %2, or at a terminal.</source>
        <translation>Die Datei „%1“ ist verschlüsselt: ihre Passphrase mit %2 oder an einem Terminal angeben.</translation>
    </message>
    <message>
        <source>This is not the same passphrase.</source>
        <translation>Das ist nicht dieselbe Passphrase.</translation>
    </message>
    <message>
        <source>Others can read the passphrase in &apos;%1&apos;.</source>
        <translation>Andere können die Passphrase in „%1“ lesen.</translation>
    </message>
    <message>
        <source>Passphrase of &apos;%1&apos;</source>
        <translation>Passphrase von „%1“</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Neue Passphrase</translation>
    </message>
    <message>
        <source>The new passphrase again</source>
        <translation>Die neue Passphrase noch einmal</translation>
    </message>
    <message>
        <source>The desktop’s keyring does not keep the passphrase: %1</source>
        <translation>Der Schlüsselbund des Desktops bewahrt die Passphrase nicht auf: %1</translation>
    </message>
    <message>
        <source>A budget is one file. Each change is kept at once and written within a second; the title says whether it is saved. Ctrl+Z takes a change back, and the page “History” goes back further.

The pages stand at the left. Ctrl+1 to Ctrl+9 open them, F6 goes between the list and the page. Ctrl+K finds every command, account and item by a part of its name. Ctrl+? lists all keys. F9 tells why the number that is chosen is what it is.

In a form, Enter does what its first button does, and Esc gives up. What is refused is told at its field, and what was typed stays. Amounts can be sums, such as 12+3.5. Days can be short: 3, 5-2, +7, or T for today.</source>
        <translation>Ein Budget ist eine Datei. Jede Änderung wird sofort übernommen und binnen einer Sekunde geschrieben; der Titel sagt, ob sie gespeichert ist. Strg+Z nimmt eine Änderung zurück, die Seite „Verlauf“ geht weiter zurück.

Die Seiten stehen links. Strg+1 bis Strg+9 öffnen sie, F6 wechselt zwischen der Liste und der Seite. Strg+K findet jeden Befehl, jedes Konto und jeden Posten nach einem Teil des Namens. Strg+? nennt alle Tasten. F9 sagt, warum die gewählte Zahl ist, wie sie ist.

In einem Formular tut Enter, was die erste Schaltfläche tut, und Esc gibt auf. Was abgelehnt wird, steht bei seinem Feld, und das Getippte bleibt. Beträge können Summen sein, wie 12+3.5. Tage können kurz sein: 3, 5-2, +7 oder T für heute.</translation>
    </message>
    <message>
        <source>All accounts with their balances: money, what is owed, what is set aside, and what money is spent on or comes from. Enter opens the register of an account. With a day, the balances are those at its end.</source>
        <translation>Alle Konten mit ihren Salden: Geld, was geschuldet wird, was zurückgelegt ist und wofür Geld ausgegeben wird oder woher es kommt. Enter öffnet das Register eines Kontos. Mit einem Tag sind es die Salden an dessen Ende.</translation>
    </message>
    <message>
        <source>A passphrase encrypts the budget and its former versions: in a shared folder or on a lost computer nobody can read them. It is needed each time the budget is opened, unless the desktop’s keyring keeps it. Without it nobody can read the budget, you neither.

What was saved before, exports, and what a running program has in memory are not protected.</source>
        <translation>Eine Passphrase verschlüsselt das Budget und seine früheren Versionen: In einem geteilten Ordner oder auf einem verlorenen Rechner kann sie niemand lesen. Sie wird bei jedem Öffnen gebraucht, außer der Schlüsselbund des Desktops bewahrt sie auf. Ohne sie kann niemand das Budget lesen, auch wer es verschlüsselt hat nicht.

Was vorher gespeichert wurde, Exporte und was ein laufendes Programm im Speicher hat, ist nicht geschützt.</translation>
    </message>
    <message>
        <source>The passphrase of “%1”:</source>
        <translation>Die Passphrase von „%1“:</translation>
    </message>
    <message>
        <source>This is not the passphrase of “%1”. The passphrase:</source>
        <translation>Das ist nicht die Passphrase von „%1“. Die Passphrase:</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>&amp;Keep it in the desktop’s keyring</source>
        <translation>Im &amp;Schlüsselbund des Desktops aufbewahren</translation>
    </message>
    <message>
        <source>Draw a chart on the terminal</source>
        <translation>Ein Diagramm im Terminal zeichnen</translation>
    </message>
    <message>
        <source>To</source>
        <comment>an account</comment>
        <translation>An</translation>
    </message>
    <message>
        <source>Savings rate, %1</source>
        <translation>Sparquote, %1</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>By account, from %1 to %2</source>
        <translation>Nach Konten, %1 bis %2</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>such as: Expense, USD</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Nothing was spent or earned.</source>
        <translation>Nichts wurde ausgegeben oder eingenommen.</translation>
    </message>
    <message>
        <source>Planned per span</source>
        <translation>Im Zeitraum geplant</translation>
    </message>
    <message>
        <source>The plan is today&apos;s, restated per span. ▲ marks spans with higher spending.</source>
        <translation>Der Plan ist der heutige, umgerechnet auf einen Zeitraum. ▲ kennzeichnet Zeiträume mit höheren Ausgaben.</translation>
    </message>
    <message>
        <source>All assets less all debts at the end of each span; the last is %1.</source>
        <translation>Alles Vermögen abzüglich aller Schulden am Ende jedes Zeitraums; zuletzt %1.</translation>
    </message>
    <message>
        <source>Money that came in and money spent in each span.</source>
        <translation>Einnahmen und Ausgaben jedes Zeitraums.</translation>
    </message>
    <message>
        <source>Planned and actual spending per span on bills, debts, goals and non-tracked items.</source>
        <translation>Geplante und tatsächliche Ausgaben im Zeitraum für Rechnungen, Schulden, Ziele und nicht verfolgte Posten.</translation>
    </message>
    <message>
        <source>Only what fits: %1</source>
        <translation>Nur was passt: %1</translation>
    </message>
    <message>
        <source>A report has at most %1 spans; choose a later first day or longer spans.</source>
        <translation>Ein Bericht hat höchstens %1 Zeiträume; nötig sind ein späterer erster Tag oder längere Zeiträume.</translation>
    </message>
    <message>
        <source>No wage has come in by the last day; choose other spans than paydays.</source>
        <translation>Bis zum letzten Tag ist kein Lohn eingegangen; andere Zeiträume als die zwischen Zahltagen wählen.</translation>
    </message>
    <message>
        <source>By payee</source>
        <translation>Nach Empfängern</translation>
    </message>
    <message>
        <source>By tag</source>
        <translation>Nach Schlagwörtern</translation>
    </message>
    <message>
        <source>By account</source>
        <translation>Nach Konten</translation>
    </message>
    <message>
        <source>By category</source>
        <translation>Nach Kategorien</translation>
    </message>
    <message>
        <source>The last %1 of %2 spans are shown; --csv and --json have all.</source>
        <translation>Gezeigt werden die letzten %1 von %2 Zeiträumen; --csv und --json haben alle.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespart</translation>
    </message>
    <message>
        <source>Savings rate</source>
        <translation>Sparquote</translation>
    </message>
    <message>
        <source>Count only the transactions that &apos;kiv find WORDS&apos; finds</source>
        <translation>Nur die Buchungen zählen, die &apos;kiv find WÖRTER&apos; findet</translation>
    </message>
    <message>
        <source>Add up by category, payee, tag or account (with WORDS, --csv and --html by category)</source>
        <translation>Summen nach category (Kategorie), payee (Empfänger), tag (Schlagwort) oder account (Konto); mit WÖRTERN, --csv und --html nach Kategorie</translation>
    </message>
    <message>
        <source>Spans: week, two-weeks, payday, month, quarter or year (default: month, with --by a single span)</source>
        <translation>Zeiträume: week, two-weeks, payday, month, quarter oder year (Standard: month, mit --by ein einziger)</translation>
    </message>
    <message>
        <source>First day, or a day in the first span (default: twelve spans)</source>
        <translation>Erster Tag oder ein Tag im ersten Zeitraum (Standard: zwölf Zeiträume)</translation>
    </message>
    <message>
        <source>Print a table as CSV</source>
        <translation>Eine Tabelle als CSV ausgeben</translation>
    </message>
    <message>
        <source>Show income, expenses and net worth, or where the money went</source>
        <translation>Einnahmen, Ausgaben und Reinvermögen zeigen, oder wohin das Geld ging</translation>
    </message>
    <message>
        <source>The former version &apos;%1&apos; could not be encrypted.</source>
        <translation>Die frühere Version „%1“ konnte nicht verschlüsselt werden.</translation>
    </message>
    <message>
        <source>Whoever has an old copy and the old passphrase can read what is saved later, too; taking the encryption away and encrypting again makes a new key.</source>
        <translation>Wer eine alte Kopie und die alte Passphrase hat, kann auch lesen, was später gespeichert wird; die Verschlüsselung aufheben und neu verschlüsseln macht einen neuen Schlüssel.</translation>
    </message>
    <message>
        <source>These former versions stay as they are, since they are damaged, have another passphrase, or cannot be written: %1.</source>
        <translation>Diese früheren Versionen bleiben, wie sie sind, weil sie beschädigt sind, eine andere Passphrase haben oder nicht geschrieben werden können: %1.</translation>
    </message>
    <message>
        <source>An amount of zero changes nothing that is to come.</source>
        <translation>Ein Betrag von null ändert nichts an dem, was kommt.</translation>
    </message>
    <message>
        <source>No bank has an open account that could pay or get this amount.</source>
        <translation>Keine Bank hat ein offenes Konto, das diesen Betrag zahlen oder bekommen könnte.</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: its account is closed.</source>
        <translation>Die Vorschau lässt „%1“ aus: Das Konto dazu ist geschlossen.</translation>
    </message>
    <message>
        <source>All together is without the accounts in %1: there is no exchange rate between %1 and %2.</source>
        <translation>„Alle zusammen“ ist ohne die Konten in %1: Zwischen %1 und %2 ist kein Wechselkurs bekannt.</translation>
    </message>
    <message>
        <source>At a terminal a passphrase has fewer than %1 bytes; a longer one can be given in a file.</source>
        <translation>An einem Terminal hat eine Passphrase weniger als %1 Bytes; eine längere kann in einer Datei stehen.</translation>
    </message>
    <message>
        <source>Several budget items are named &apos;%1&apos;; write one of these: %2.</source>
        <translation>Mehrere Budgetposten heißen „%1“; eines davon schreiben: %2.</translation>
    </message>
    <message>
        <source>Without an exchange rate, and apart: %1</source>
        <translation>Ohne Wechselkurs, deshalb für sich: %1</translation>
    </message>
    <message>
        <source>(no tag)</source>
        <translation>(ohne Schlagwort)</translation>
    </message>
    <message>
        <source>(no payee)</source>
        <translation>(ohne Empfänger)</translation>
    </message>
    <message>
        <source>All expenses, %1</source>
        <translation>Alle Ausgaben, %1</translation>
    </message>
    <message>
        <source>All income, %1</source>
        <translation>Alle Einnahmen, %1</translation>
    </message>
    <message>
        <source>%1 for %2. The largest: %3 with %4.</source>
        <translation>%1 für %2. Am meisten: %3 mit %4.</translation>
    </message>
    <message>
        <source>%1: %2 together, %3 on average.</source>
        <translation>%1: zusammen %2, im Durchschnitt %3.</translation>
    </message>
    <message>
        <source>%1, planned and actual</source>
        <translation>%1, geplant und tatsächlich</translation>
    </message>
    <message>
        <source>%1: %2 planned for each span, %3 on average.</source>
        <translation>%1: %2 je Zeitraum geplant, im Durchschnitt %3.</translation>
    </message>
    <message>
        <source>at the end of each span</source>
        <translation>am Ende jedes Zeitraums</translation>
    </message>
    <message>
        <source>All items but wages, %1</source>
        <translation>Alle Posten außer Löhnen, %1</translation>
    </message>
    <message>
        <source>Convert all amounts into this currency, at the present rates</source>
        <translation>Alle Beträge zu den jetzigen Kursen in diese Währung umrechnen</translation>
    </message>
    <message>
        <source>Where the money went and came from. “What” is added up by category, payee, tag or account; the overview has what is owned and the plan of each item. Spans last from a week to a year, or from payday to payday; without days there are twelve up to today. “Only” takes a search, as on the page “Register”.

Each row of the first table has its own chart. The arrow keys go through the bars, and the second table has the same numbers. Enter on a bar or a number goes to the entries behind it, and Enter on an entry to the register.

Each currency stands by itself unless one is chosen to convert into, at the present exchange rates. What moves between the household’s own accounts is neither income nor expense. “Save as” makes a document, a page or a table; Ctrl+P prints.</source>
        <translation>Wohin das Geld ging und woher es kam. „Was“ wird nach Kategorie, Empfänger, Schlagwort oder Konto summiert; die Übersicht hat, was man besitzt, und den Plan jedes Postens. Zeiträume dauern eine Woche bis ein Jahr oder von Zahltag zu Zahltag; ohne Tage sind es zwölf bis heute. „Nur“ nimmt eine Suche, wie auf der Seite „Register“.

Jede Zeile der ersten Tabelle hat ihr eigenes Diagramm. Die Pfeiltasten gehen durch die Balken, und die zweite Tabelle hat dieselben Zahlen. Die Eingabetaste auf einem Balken oder einer Zahl geht zu den Buchungen dahinter, und auf einer Buchung zum Register.

Jede Währung steht für sich, wenn keine gewählt ist, in die zu den jetzigen Wechselkursen umgerechnet wird. Was zwischen den eigenen Konten des Haushalts bewegt wird, ist weder Einnahme noch Ausgabe. „Speichern als“ macht ein Dokument, eine Seite oder eine Tabelle; Strg+P druckt.</translation>
    </message>
    <message>
        <source>In which form is the report saved?</source>
        <translation>In welcher Form wird der Bericht gespeichert?</translation>
    </message>
    <message>
        <source>Document (PDF)</source>
        <translation>Dokument (PDF)</translation>
    </message>
    <message>
        <source>Page (HTML)</source>
        <translation>Seite (HTML)</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabelle (CSV)</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Gedruckt.</translation>
    </message>
    <message>
        <source>%1 spent, %2 received</source>
        <translation>%1 ausgegeben, %2 eingenommen</translation>
    </message>
    <message>
        <source>%1; %2 more spent than received.</source>
        <translation>%1; %2 mehr ausgegeben als eingenommen.</translation>
    </message>
    <message>
        <source>%1; %2 kept, which is %3.</source>
        <translation>%1; %2 behalten, das sind %3.</translation>
    </message>
    <message>
        <source>%1; %2 kept.</source>
        <translation>%1; %2 behalten.</translation>
    </message>
    <message>
        <source>Everywhere: the field or button with the underlined letter</source>
        <translation>Überall: das Feld oder die Schaltfläche mit dem unterstrichenen Buchstaben</translation>
    </message>
    <message>
        <source>%1+letter</source>
        <translation>%1+Buchstabe</translation>
    </message>
    <message>
        <source>Everywhere: the next field or button, or the one before</source>
        <translation>Überall: das nächste Feld oder die nächste Schaltfläche, oder davor</translation>
    </message>
    <message>
        <source>In a form: do what its first button does</source>
        <translation>In einem Formular: was die erste Schaltfläche tut</translation>
    </message>
    <message>
        <source>In a form: give up</source>
        <translation>In einem Formular: aufgeben</translation>
    </message>
    <message>
        <source>In a field with a day: a day on</source>
        <translation>In einem Feld mit einem Tag: einen Tag weiter</translation>
    </message>
    <message>
        <source>In a field with a day: a day back</source>
        <translation>In einem Feld mit einem Tag: einen Tag zurück</translation>
    </message>
    <message>
        <source>In a field with a day: today</source>
        <translation>In einem Feld mit einem Tag: heute</translation>
    </message>
    <message>
        <source>In a field with names: take the marked one, or the only one</source>
        <translation>In einem Feld mit Namen: den markierten nehmen, oder den einzigen</translation>
    </message>
    <message>
        <source>In a table: open or change the row</source>
        <translation>In einer Tabelle: die Zeile öffnen oder ändern</translation>
    </message>
    <message>
        <source>In a table: change the row</source>
        <translation>In einer Tabelle: die Zeile ändern</translation>
    </message>
    <message>
        <source>In a table: remove the row</source>
        <translation>In einer Tabelle: die Zeile entfernen</translation>
    </message>
    <message>
        <source>In “Due” and in the register: choose several rows</source>
        <translation>In „Fällig“ und im Register: mehrere Zeilen wählen</translation>
    </message>
    <message>
        <source>In the register: all that can be done with the row</source>
        <translation>Im Register: alles, was mit der Zeile getan werden kann</translation>
    </message>
    <message>
        <source>In the search of the register: search now</source>
        <translation>In der Suche des Registers: jetzt suchen</translation>
    </message>
    <message>
        <source>In the search of the register: on to the rows</source>
        <translation>In der Suche des Registers: weiter zu den Zeilen</translation>
    </message>
    <message>
        <source>In the search of the register: show all rows again</source>
        <translation>In der Suche des Registers: wieder alle Zeilen zeigen</translation>
    </message>
    <message>
        <source>In the entry row: enter</source>
        <translation>In der Eingabezeile: eintragen</translation>
    </message>
    <message>
        <source>In the entry row: give up</source>
        <translation>In der Eingabezeile: aufgeben</translation>
    </message>
    <message>
        <source>In a survey: tick the row, and go down</source>
        <translation>In einem Abgleich: die Zeile abhaken und eine tiefer gehen</translation>
    </message>
    <message>
        <source>In an import: take the row, or leave it out</source>
        <translation>Bei einem Import: die Zeile nehmen oder weglassen</translation>
    </message>
    <message>
        <source>In the payments of the outlook: leave the item out</source>
        <translation>In den Zahlungen der Vorschau: den Posten weglassen</translation>
    </message>
    <message>
        <source>In a chart: the next point, or the one before</source>
        <translation>In einem Diagramm: der nächste Punkt, oder der davor</translation>
    </message>
    <message>
        <source>In a chart: the first point, the last point</source>
        <translation>In einem Diagramm: der erste Punkt, der letzte Punkt</translation>
    </message>
    <message>
        <source>In the explanation of a number: open the transaction</source>
        <translation>In der Erklärung einer Zahl: die Buchung öffnen</translation>
    </message>
    <message>
        <source>In the explanation of a number: close it</source>
        <translation>In der Erklärung einer Zahl: sie schließen</translation>
    </message>
    <message>
        <source>The steps of this session, and below them the former versions of the file. The lower table says what changed since the chosen one. “Go back to this” makes it the present state; undo and redo go on from there. A version that was encrypted with another passphrase asks for it.</source>
        <translation>Die Schritte dieser Sitzung und darunter die früheren Versionen der Datei. Die untere Tabelle sagt, was sich seit der gewählten geändert hat. „Zurück zu diesem Stand“ macht sie zum jetzigen Stand; Rückgängigmachen und Wiederholen gehen von dort weiter. Eine Version, die mit einer anderen Passphrase verschlüsselt wurde, fragt nach ihr.</translation>
    </message>
    <message>
        <source>A first week
Enter the bank account with its balance, what comes in, and the largest bills: “Begin step by step” in the menu “File” asks for them. Then enter what is spent (Ctrl+T), and pay on the page “Due” what is due. All else can wait until it happens.</source>
        <translation>Eine erste Woche
Das Bankkonto mit seinem Saldo eintragen, was hereinkommt, und die größten Rechnungen: „Schritt für Schritt beginnen“ im Menü „Datei“ fragt danach. Dann eintragen, was ausgegeben wird (Strg+T), und auf der Seite „Fällig“ bezahlen, was fällig ist. Alles andere kann warten, bis es vorkommt.</translation>
    </message>
    <message>
        <source>A goal that is reached
“End it” on the page “Items” spends its money on what is typed there, or gives it back to the account that holds it. To go on saving, raise what is to be reached.</source>
        <translation>Ein Ziel, das erreicht ist
„Beenden“ auf der Seite „Posten“ gibt sein Geld für das aus, was dort eingetragen ist, oder gibt es an das Konto zurück, bei dem es liegt. Wer weiter sparen will, erhöht, was erreicht werden soll.</translation>
    </message>
    <message>
        <source>In a chart of a report: the entries behind the point</source>
        <translation>Im Diagramm eines Berichts: die Buchungen hinter dem Punkt</translation>
    </message>
    <message>
        <source>No bank&apos;s statement is of &apos;%1&apos;: the account neither holds money nor owes any.</source>
        <translation>Kein Kontoauszug gehört zu „%1“: Das Konto enthält weder Geld noch Schulden.</translation>
    </message>
    <message>
        <source>kiv-desktop: One file can be opened, not &apos;%1&apos; and &apos;%2&apos;.</source>
        <translation>kiv-desktop: Eine Datei kann geöffnet werden, nicht „%1“ und „%2“.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries with a ? should be looked at.</source>
        <translation>
            <numerusform>%n Eintrag mit einem ? sollte angesehen werden.</numerusform>
            <numerusform>%n Einträge mit einem ? sollten angesehen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>An amount is missing; write one like 1234.50 or &apos;1234.50 USD&apos;.</source>
        <translation>Ein Betrag fehlt; richtig ist etwa 1234.50 oder &apos;1234.50 USD&apos;.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::AccountForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>N&amp;ame:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>N&amp;umber (may be empty):</source>
        <translation>Nu&amp;mmer (kann leer sein):</translation>
    </message>
    <message>
        <source>&amp;Part of (may be empty):</source>
        <translation>Teil &amp;von (kann leer sein):</translation>
    </message>
    <message>
        <source>Ba&amp;lance at first:</source>
        <translation>Anfangssa&amp;ldo:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>Am &amp;Tag:</translation>
    </message>
    <message>
        <source>New account</source>
        <translation>Neues Konto</translation>
    </message>
    <message>
        <source>Change the account “%1”</source>
        <translation>Konto „%1“ ändern</translation>
    </message>
    <message>
        <source>Added the account “%1”.</source>
        <translation>Konto „%1“ angelegt.</translation>
    </message>
    <message>
        <source>adding the account “%1”</source>
        <translation>das Konto „%1“ anlegen</translation>
    </message>
    <message>
        <source>Changed the account “%1”.</source>
        <translation>Konto „%1“ geändert.</translation>
    </message>
    <message>
        <source>changing the account “%1”</source>
        <translation>das Konto „%1“ ändern</translation>
    </message>
    <message>
        <source>spending</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>earning</source>
        <translation>Einnahmen</translation>
    </message>
    <message>
        <source>owned</source>
        <translation>Besitz</translation>
    </message>
    <message>
        <source>owed</source>
        <translation>Schuld</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::AccountsPage</name>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>&amp;Show transactions</source>
        <translation>Buchungen an&amp;zeigen</translation>
    </message>
    <message>
        <source>There are no accounts yet. They come with banks and with the items of the budget.</source>
        <translation>Es gibt noch keine Konten. Sie kommen mit Banken und mit den Posten des Budgets.</translation>
    </message>
    <message>
        <source>&amp;New account</source>
        <translation>N&amp;eues Konto</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>It belongs to the item “%1” and is changed with it, on the page of items.</source>
        <translation>Es gehört zum Posten „%1“ und wird mit ihm auf der Seite der Posten geändert.</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>Es ist keine Zeile gewählt.</translation>
    </message>
    <message>
        <source>&amp;Open again</source>
        <translation>&amp;Wieder öffnen</translation>
    </message>
    <message>
        <source>Opened “%1” again.</source>
        <translation>„%1“ wieder geöffnet.</translation>
    </message>
    <message>
        <source>opening “%1”</source>
        <translation>„%1“ wieder öffnen</translation>
    </message>
    <message>
        <source>Closed “%1”.</source>
        <translation>„%1“ geschlossen.</translation>
    </message>
    <message>
        <source>closing “%1”</source>
        <translation>„%1“ schließen</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>„%1“ entfernt.</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>&amp;Import a bank file</source>
        <translation>Date&amp;i der Bank importieren</translation>
    </message>
    <message>
        <source>Balances on the &amp;day (may be empty):</source>
        <translation>Salden v&amp;om Tag (kann leer sein):</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ActionCollection</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>B&amp;uchung</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::BankForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>N&amp;ame:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>K&amp;onto:</translation>
    </message>
    <message>
        <source>&amp;Bank:</source>
        <translation>Ban&amp;k:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Ba&amp;lance at first:</source>
        <translation>Anfangssa&amp;ldo:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>Am &amp;Tag:</translation>
    </message>
    <message>
        <source>New bank</source>
        <translation>Neue Bank</translation>
    </message>
    <message>
        <source>Another name for the bank</source>
        <translation>Ein anderer Name für die Bank</translation>
    </message>
    <message>
        <source>New account at a bank</source>
        <translation>Neues Konto bei einer Bank</translation>
    </message>
    <message>
        <source>An account that is already here belongs to a bank</source>
        <translation>Ein vorhandenes Konto gehört zu einer Bank</translation>
    </message>
    <message>
        <source>Name and kind of the account</source>
        <translation>Name und Art des Kontos</translation>
    </message>
    <message>
        <source>This account has the name of its item.</source>
        <translation>Dieses Konto hat den Namen seines Postens.</translation>
    </message>
    <message>
        <source>Added the bank “%1”.</source>
        <translation>Bank „%1“ angelegt.</translation>
    </message>
    <message>
        <source>adding the bank “%1”</source>
        <translation>die Bank „%1“ anlegen</translation>
    </message>
    <message>
        <source>The bank “%1” is now called “%2”.</source>
        <translation>Die Bank „%1“ heißt jetzt „%2“.</translation>
    </message>
    <message>
        <source>renaming “%1” to “%2”</source>
        <translation>„%1“ in „%2“ umbenennen</translation>
    </message>
    <message>
        <source>Added the account “%1” at “%2”.</source>
        <translation>Konto „%1“ bei „%2“ angelegt.</translation>
    </message>
    <message>
        <source>adding the account “%1”</source>
        <translation>das Konto „%1“ anlegen</translation>
    </message>
    <message>
        <source>Choose an account.</source>
        <translation>Ein Konto wählen.</translation>
    </message>
    <message>
        <source>“%1” belongs to the bank “%2”.</source>
        <translation>„%1“ gehört zur Bank „%2“.</translation>
    </message>
    <message>
        <source>assigning “%1” to “%2”</source>
        <translation>„%1“ der Bank „%2“ zuordnen</translation>
    </message>
    <message>
        <source>Changed the account “%1”.</source>
        <translation>Konto „%1“ geändert.</translation>
    </message>
    <message>
        <source>changing the account “%1”</source>
        <translation>das Konto „%1“ ändern</translation>
    </message>
    <message>
        <source>It stays &amp;open:</source>
        <translation>Es bleibt &amp;offen:</translation>
    </message>
    <message>
        <source>Another bank keeps “%1” from now on</source>
        <translation>Ab jetzt führt eine andere Bank „%1“</translation>
    </message>
    <message>
        <source>Another account takes the money of “%1”, its goals, and what is set aside there</source>
        <translation>Ein anderes Konto übernimmt das Geld von „%1“, seine Ziele und was dort zurückgelegt ist</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::BanksPage</name>
    <message>
        <source>Banks</source>
        <translation>Banken</translation>
    </message>
    <message>
        <source>&amp;New bank</source>
        <translation>N&amp;eue Bank</translation>
    </message>
    <message>
        <source>&amp;Add an account</source>
        <translation>Konto h&amp;inzufügen</translation>
    </message>
    <message>
        <source>Ass&amp;ign an account</source>
        <translation>Konto &amp;zuordnen</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Separate from &amp;bank</source>
        <translation>Von der Bank &amp;lösen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>There are no banks yet. A bank keeps your accounts, as its statements show them.</source>
        <translation>Noch keine Banken. Eine Bank führt Konten, wie ihre Kontoauszüge sie zeigen.</translation>
    </message>
    <message>
        <source>This is for an account.</source>
        <translation>Das ist für ein Konto.</translation>
    </message>
    <message>
        <source>&amp;Open again</source>
        <translation>&amp;Wieder öffnen</translation>
    </message>
    <message>
        <source>Opened “%1” again.</source>
        <translation>„%1“ wieder geöffnet.</translation>
    </message>
    <message>
        <source>opening “%1”</source>
        <translation>„%1“ wieder öffnen</translation>
    </message>
    <message>
        <source>Closed “%1”.</source>
        <translation>„%1“ geschlossen.</translation>
    </message>
    <message>
        <source>closing “%1”</source>
        <translation>„%1“ schließen</translation>
    </message>
    <message>
        <source>Separated “%1” from its bank.</source>
        <translation>„%1“ von seiner Bank gelöst.</translation>
    </message>
    <message>
        <source>separating “%1” from its bank</source>
        <translation>„%1“ von seiner Bank lösen</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>„%1“ entfernt.</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>&amp;Move to another bank</source>
        <translation>Zu &amp;anderer Bank</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Dur&amp;ch anderes ersetzen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::CategoryRow</name>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message numerus="yes">
        <source>Put %n transaction(s) under</source>
        <translation>
            <numerusform>%n Buchung einordnen unter</numerusform>
            <numerusform>%n Buchungen einordnen unter</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose an item or a category.</source>
        <translation>Einen Posten oder eine Kategorie wählen.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ChartView</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::CurrencyBox</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::Desk</name>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>Another request is not answered yet; try again in a moment.</source>
        <translation>Eine andere Anfrage ist noch nicht beantwortet; gleich noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Exported to “%1”.</source>
        <translation>Nach „%1“ exportiert.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::DueLines</name>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Other amount …</source>
        <translation>Anderer Betrag …</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1: %2, %3, %4</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::DuePage</name>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>What is due</source>
        <translation>Was fällig ist</translation>
    </message>
    <message>
        <source>&amp;In addition: it stays due</source>
        <translation>Zusätzl&amp;ich: bleibt fällig</translation>
    </message>
    <message>
        <source>&amp;Pay</source>
        <translation>&amp;Zahlen</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Über&amp;springen</translation>
    </message>
    <message>
        <source>Pay this am&amp;ount</source>
        <translation>Diesen Betrag zah&amp;len</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Konto:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>Am &amp;Tag:</translation>
    </message>
    <message>
        <source>Another a&amp;mount:</source>
        <translation>Anderer Bet&amp;rag:</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>Es ist keine Zeile gewählt.</translation>
    </message>
    <message>
        <source>Another amount is for one line.</source>
        <translation>Ein anderer Betrag gilt für eine Zeile.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EncryptionPage</name>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>Neue &amp;Passphrase:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>Noch ein&amp;mal dieselbe:</translation>
    </message>
    <message>
        <source>Typing:</source>
        <translation>Eingabe:</translation>
    </message>
    <message>
        <source>&amp;Show what is typed</source>
        <translation>Eingabe &amp;zeigen</translation>
    </message>
    <message>
        <source>Afterwards:</source>
        <translation>Danach:</translation>
    </message>
    <message>
        <source>&amp;Keep it in the desktop’s keyring</source>
        <translation>Im &amp;Schlüsselbund des Desktops aufbewahren</translation>
    </message>
    <message>
        <source>Encr&amp;ypt</source>
        <translation>&amp;Verschlüsseln</translation>
    </message>
    <message>
        <source>Take the encryption a&amp;way</source>
        <translation>Verschlüsselung &amp;aufheben</translation>
    </message>
    <message>
        <source>This budget and its former versions are encrypted. Whoever finds the files reads nothing without the passphrase.</source>
        <translation>Dieses Budget und seine früheren Versionen sind verschlüsselt. Wer die Dateien findet, liest ohne die Passphrase nichts.</translation>
    </message>
    <message>
        <source>This budget is not encrypted: whoever gets the file can read it. A passphrase protects it and its former versions, in a shared folder or on a lost computer.</source>
        <translation>Dieses Budget ist nicht verschlüsselt: Wer die Datei bekommt, kann sie lesen. Eine Passphrase schützt es und seine früheren Versionen, in einem geteilten Ordner oder auf einem verlorenen Rechner.</translation>
    </message>
    <message>
        <source>Exports, and what a running program has in memory, are not protected.</source>
        <translation>Exporte und was ein laufendes Programm im Speicher hat, sind nicht geschützt.</translation>
    </message>
    <message>
        <source>Change the passphrase</source>
        <translation>Die Passphrase ändern</translation>
    </message>
    <message>
        <source>This budget is not encrypted.</source>
        <translation>Dieses Budget ist nicht verschlüsselt.</translation>
    </message>
    <message>
        <source>This is not the same passphrase.</source>
        <translation>Das ist nicht dieselbe Passphrase.</translation>
    </message>
    <message>
        <source>The budget is encrypted.</source>
        <translation>Das Budget ist verschlüsselt.</translation>
    </message>
    <message>
        <source>The budget is not encrypted any more.</source>
        <translation>Das Budget ist nicht mehr verschlüsselt.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EntryFields</name>
    <message>
        <source>&amp;Amount</source>
        <translation>Bet&amp;rag</translation>
    </message>
    <message>
        <source>In e&amp;xchange</source>
        <translation>Angek&amp;ommen</translation>
    </message>
    <message>
        <source>Reaso&amp;n</source>
        <translation>&amp;Zweck</translation>
    </message>
    <message>
        <source>Da&amp;y</source>
        <translation>Datu&amp;m</translation>
    </message>
    <message>
        <source>T&amp;o</source>
        <translation>N&amp;ach</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>V&amp;on</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>&amp;Wofür</translation>
    </message>
    <message>
        <source>&amp;Payer</source>
        <translation>Zah&amp;ler</translation>
    </message>
    <message>
        <source>&amp;Payee</source>
        <translation>Em&amp;pfänger</translation>
    </message>
    <message>
        <source>Choose the account that the money came to.</source>
        <translation>Das Konto wählen, auf das das Geld kam.</translation>
    </message>
    <message>
        <source>Choose the account that the money left.</source>
        <translation>Das Konto wählen, von dem das Geld abging.</translation>
    </message>
    <message>
        <source>Choose what the money was spent on.</source>
        <translation>Wählen, wofür das Geld ausgegeben wurde.</translation>
    </message>
    <message>
        <source>Choose where the money came from.</source>
        <translation>Wählen, woher das Geld kam.</translation>
    </message>
    <message>
        <source>Choose the account that the money went to.</source>
        <translation>Das Konto wählen, auf das das Geld ging.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EntryRow</name>
    <message>
        <source>Kind of transaction</source>
        <translation>Art der Buchung</translation>
    </message>
    <message>
        <source>&amp;Spent</source>
        <translation>Au&amp;sgegeben</translation>
    </message>
    <message>
        <source>Earne&amp;d</source>
        <translation>E&amp;ingenommen</translation>
    </message>
    <message>
        <source>&amp;Moved</source>
        <translation>Umg&amp;ebucht</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Eintragen</translation>
    </message>
    <message>
        <source>Change:</source>
        <translation>Ändern:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Refund: the amount that was given back, and the day.</source>
        <translation>Erstattung: der Betrag, der zurückkam, und das Datum.</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Erstattung</translation>
    </message>
    <message>
        <source>Another &amp;line</source>
        <translation>Wei&amp;tere Zeile</translation>
    </message>
    <message>
        <source>For one payment on several things: each line becomes a transaction</source>
        <translation>Für eine Zahlung für mehrere Dinge: jede Zeile wird eine Buchung</translation>
    </message>
    <message>
        <source>Add all</source>
        <translation>Alle buchen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ExplanationPanel</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FileOutputs</name>
    <message>
        <source>&amp;Export …</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>Check the &amp;file</source>
        <translation>Datei &amp;prüfen</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>In which form are the transactions exported?</source>
        <translation>In welcher Form werden die Buchungen exportiert?</translation>
    </message>
    <message>
        <source>Journal, for ledger and hledger</source>
        <translation>Journal, für ledger und hledger</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabelle (CSV)</translation>
    </message>
    <message>
        <source>Everything (JSON)</source>
        <translation>Alles (JSON)</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is intact.</source>
        <translation>Das Budget „%1“ ist unbeschädigt.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is damaged. A former version can be brought back on the page “History”.</source>
        <translation>Das Budget „%1“ ist beschädigt. Eine frühere Version kann auf der Seite „Verlauf“ zurückgeholt werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Check of the file</source>
        <translation>Prüfung der Datei</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FileSession</name>
    <message>
        <source>&amp;New budget …</source>
        <translation>&amp;Neues Budget …</translation>
    </message>
    <message>
        <source>&amp;Open a budget …</source>
        <translation>Budget &amp;öffnen …</translation>
    </message>
    <message>
        <source>&amp;Save now</source>
        <translation>Jetzt &amp;speichern</translation>
    </message>
    <message>
        <source>Save a &amp;copy …</source>
        <translation>&amp;Kopie speichern …</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>This budget can only be read now. %1</source>
        <translation>Dieses Budget kann jetzt nur gelesen werden. %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>“%1” is open.</source>
        <translation>„%1“ ist geöffnet.</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Neues Budget</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>The copy is saved as “%1”.</source>
        <translation>Die Kopie ist als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Woanders speichern</translation>
    </message>
    <message>
        <source>Saved elsewhere</source>
        <translation>Woanders gespeichert</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>The last changes are not saved. %1</source>
        <translation>Die letzten Änderungen sind nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Save elsewhere …</source>
        <translation>Woanders speichern …</translation>
    </message>
    <message>
        <source>Give the changes up</source>
        <translation>Änderungen aufgeben</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>nur lesen</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>wird gespeichert</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>Take the file as it is now</source>
        <translation>Die Datei nehmen, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>Look at former versions</source>
        <translation>Frühere Versionen ansehen</translation>
    </message>
    <message>
        <source>Bring the newest whole version back</source>
        <translation>Die neueste unbeschädigte Version zurückholen</translation>
    </message>
    <message>
        <source>&amp;Demonstration …</source>
        <translation>Beispie&amp;l …</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Made the demonstration</source>
        <translation>Beispiel angelegt</translation>
    </message>
    <message>
        <source>making the demonstration</source>
        <translation>das Beispiel anlegen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Which version of “%1” is to be brought back?</source>
        <translation>Welche Version von „%1“ soll zurückgeholt werden?</translation>
    </message>
    <message>
        <source>Open it for reading</source>
        <translation>Zum Lesen öffnen</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Encr&amp;yption …</source>
        <translation>&amp;Verschlüsselung …</translation>
    </message>
    <message>
        <source>saved, encrypted</source>
        <translation>gespeichert, verschlüsselt</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FilterBar</name>
    <message>
        <source>groceries &gt;50 march not:reconciled</source>
        <translation>lebensmittel &gt;50 märz not:reconciled</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Vermerk</translation>
    </message>
    <message>
        <source>Any mark</source>
        <translation>Jeder Vermerk</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Abgeglichen</translation>
    </message>
    <message>
        <source>Not reconciled</source>
        <translation>Nicht abgeglichen</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Any day</source>
        <translation>Jeder Tag</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Letztes Jahr</translation>
    </message>
    <message>
        <source>Account or item</source>
        <translation>Konto oder Posten</translation>
    </message>
    <message>
        <source>Any account or item</source>
        <translation>Jedes Konto, jeder Posten</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FirstTimeWizard</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <source>where the budget lies. It is one file on your computer.</source>
        <translation>wo das Budget liegt. Es ist eine Datei auf diesem Rechner.</translation>
    </message>
    <message>
        <source>&amp;Budget file:</source>
        <translation>Budgetdat&amp;ei:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Weite&amp;r</translation>
    </message>
    <message>
        <source>&amp;Choose the file …</source>
        <translation>Datei wäh&amp;len …</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Neues Budget</translation>
    </message>
    <message>
        <source>the bank account from which you pay most things. More can be added later.</source>
        <translation>das Bankkonto, von dem das meiste bezahlt wird. Weitere können später dazukommen.</translation>
    </message>
    <message>
        <source>Name of the &amp;bank:</source>
        <translation>Name der B&amp;ank:</translation>
    </message>
    <message>
        <source>Name of the &amp;account:</source>
        <translation>Name des &amp;Kontos:</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>K&amp;ind of account:</source>
        <translation>Kont&amp;oart:</translation>
    </message>
    <message>
        <source>&amp;What is on it today:</source>
        <translation>&amp;Stand heute:</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>what comes in and what must be paid. Only items with an amount are made; all of it can be changed later.</source>
        <translation>was hereinkommt und was zu bezahlen ist. Nur Posten mit einem Betrag werden angelegt; alles lässt sich später ändern.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Make the budget with %n item(s)</source>
        <translation>
            <numerusform>Budget &amp;mit %n Posten anlegen</numerusform>
            <numerusform>Budget &amp;mit %n Posten anlegen</numerusform>
        </translation>
    </message>
    <message>
        <source>Or begin in another way:</source>
        <translation>Oder anders beginnen:</translation>
    </message>
    <message>
        <source>Not n&amp;ow</source>
        <translation>&amp;Jetzt nicht</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Es gibt keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>Nothing can be written to the folder “%1”.</source>
        <translation>In den Ordner „%1“ lässt sich nichts schreiben.</translation>
    </message>
    <message>
        <source>Made the budget</source>
        <translation>Budget angelegt</translation>
    </message>
    <message>
        <source>making the budget</source>
        <translation>das Budget anlegen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HelpSession</name>
    <message>
        <source>&amp;Manual of this page</source>
        <translation>Ha&amp;ndbuch dieser Seite</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>List of &amp;keys</source>
        <translation>Liste der &amp;Tasten</translation>
    </message>
    <message>
        <source>List of keys</source>
        <translation>Liste der Tasten</translation>
    </message>
    <message>
        <source>&amp;Release notes</source>
        <translation>&amp;Versionshinweise</translation>
    </message>
    <message>
        <source>&amp;About kiv</source>
        <translation>Ü&amp;ber kiv</translation>
    </message>
    <message>
        <source>There is a newer release: %1.</source>
        <translation>Es gibt eine neuere Version: %1.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>About kiv</source>
        <translation>Über kiv</translation>
    </message>
    <message>
        <source>kiv %1 keeps a household&apos;s money: what there is, what is due, and what is left to spend.

It is free software under the GNU General Public License, version 3 or later: anybody may use, study, share and change it. It comes without any warranty.</source>
        <translation>kiv %1 verwaltet das Geld eines Haushalts: was da ist, was fällig ist und was zum Ausgeben bleibt.

Es ist freie Software unter der GNU General Public License, Version 3 oder später: Alle dürfen sie benutzen, untersuchen, weitergeben und ändern. Es gibt keine Gewährleistung.</translation>
    </message>
    <message>
        <source>Fetching the release notes …</source>
        <translation>Versionshinweise werden abgerufen …</translation>
    </message>
    <message>
        <source>%1, %2
%3</source>
        <translation>%1, %2
%3</translation>
    </message>
    <message>
        <source>There are no releases.</source>
        <translation>Es gibt keine Versionen.</translation>
    </message>
    <message>
        <source>The household&apos;s &amp;guide</source>
        <translation>&amp;Leitfaden für den Haushalt</translation>
    </message>
    <message>
        <source>The household&apos;s guide</source>
        <translation>Leitfaden für den Haushalt</translation>
    </message>
    <message>
        <source>Type keys, or what they do</source>
        <translation>Tasten eingeben, oder was sie tun</translation>
    </message>
    <message>
        <source>Found keys</source>
        <translation>Gefundene Tasten</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Steps and versions</source>
        <translation>Schritte und Versionen</translation>
    </message>
    <message>
        <source>What changed since</source>
        <translation>Was sich seitdem geändert hat</translation>
    </message>
    <message>
        <source>Go &amp;back to this</source>
        <translation>&amp;Zurück zu diesem Stand</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>Es ist keine Zeile gewählt.</translation>
    </message>
    <message>
        <source>This is the present state.</source>
        <translation>Dies ist der jetzige Stand.</translation>
    </message>
    <message>
        <source>Nothing changed since then.</source>
        <translation>Seitdem hat sich nichts geändert.</translation>
    </message>
    <message numerus="yes">
        <source>What changed since then. %n more changes are not shown.</source>
        <translation>
            <numerusform>Was sich seitdem geändert hat. %n weitere Änderung wird nicht gezeigt.</numerusform>
            <numerusform>Was sich seitdem geändert hat. %n weitere Änderungen werden nicht gezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>What changed since then:</source>
        <translation>Was sich seitdem geändert hat:</translation>
    </message>
    <message>
        <source>The budget is as it was then. Undo and redo go on from there.</source>
        <translation>Das Budget ist, wie es damals war. Rückgängig und Wiederholen gehen von dort weiter.</translation>
    </message>
    <message>
        <source>T&amp;ype its passphrase …</source>
        <translation>Ihre &amp;Passphrase eingeben …</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HomePage</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Salden</translation>
    </message>
    <message>
        <source>There are no accounts yet.</source>
        <translation>Es gibt noch keine Konten.</translation>
    </message>
    <message numerus="yes">
        <source>Show %n more</source>
        <translation>
            <numerusform>%n weiteren zeigen</numerusform>
            <numerusform>%n weitere zeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs care</source>
        <translation>Nichts braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>What needs care</source>
        <translation>Was Aufmerksamkeit braucht</translation>
    </message>
    <message>
        <source>%1 (the budget&apos;s health: %2)</source>
        <translation>%1 (Gesundheit des Budgets: %2)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>Zeigen: %1</translation>
    </message>
    <message>
        <source>Free to spend</source>
        <translation>Frei verfügbar</translation>
    </message>
    <message>
        <source>Other balances</source>
        <translation>Andere Salden</translation>
    </message>
    <message>
        <source>Look ahead</source>
        <translation>Vorausschauen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HouseholdStep</name>
    <message>
        <source>Items of the household</source>
        <translation>Posten des Haushalts</translation>
    </message>
    <message>
        <source>&amp;Amount each time:</source>
        <translation>Be&amp;trag jedes Mal:</translation>
    </message>
    <message>
        <source>Next da&amp;y:</source>
        <translation>Nä&amp;chstes Datum:</translation>
    </message>
    <message>
        <source>Ta&amp;rget:</source>
        <translation>&amp;Zielbetrag:</translation>
    </message>
    <message>
        <source>Ho&amp;usehold:</source>
        <translation>Hausha&amp;lt:</translation>
    </message>
    <message>
        <source>&amp;Keep this line</source>
        <translation>Zeile übe&amp;rnehmen</translation>
    </message>
    <message>
        <source>The next day must lie in the future.</source>
        <translation>Das nächste Datum muss in der Zukunft liegen.</translation>
    </message>
    <message>
        <source>“%1” is wanted.</source>
        <translation>„%1“ ist gewünscht.</translation>
    </message>
    <message>
        <source>“%1” is not wanted.</source>
        <translation>„%1“ ist nicht gewünscht.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportColumnsStep</name>
    <message>
        <source>First rows of the table</source>
        <translation>Erste Zeilen der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Letters as:</source>
        <translation>&amp;Zeichensatz:</translation>
    </message>
    <message>
        <source>&amp;Between cells:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Headings in l&amp;ine:</source>
        <translation>Überschriften in Ze&amp;ile:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>Kommas</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>Semikolons</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>Tabulatoren</translation>
    </message>
    <message>
        <source>bars</source>
        <translation>senkrechte Striche</translation>
    </message>
    <message>
        <source>&amp;Day:</source>
        <translation>T&amp;ag:</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>wählen</translation>
    </message>
    <message>
        <source>Days a&amp;re:</source>
        <translation>&amp;Lesart der Tage:</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>Bet&amp;rag:</translation>
    </message>
    <message>
        <source>&amp;Money in:</source>
        <translation>&amp;Eingang:</translation>
    </message>
    <message>
        <source>Money o&amp;ut:</source>
        <translation>Au&amp;sgang:</translation>
    </message>
    <message>
        <source>&amp;Payee:</source>
        <translation>Em&amp;pfänger:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>Te&amp;xt:</translation>
    </message>
    <message>
        <source>Balan&amp;ce:</source>
        <translation>Sald&amp;o:</translation>
    </message>
    <message>
        <source>From now on:</source>
        <translation>Von nun an:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message>
        <source>Read files of this account so</source>
        <translation>Dateien dieses Kontos so lesen</translation>
    </message>
    <message>
        <source>Read files of “%1” so</source>
        <translation>Dateien von „%1“ so lesen</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <comment>how a day is read</comment>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Day and month can be read in two ways. Choose how.</source>
        <translation>Tag und Monat lassen sich auf zwei Arten lesen. Eine davon wählen.</translation>
    </message>
    <message>
        <source>Choose the column with the day.</source>
        <translation>Die Spalte mit dem Tag wählen.</translation>
    </message>
    <message>
        <source>Choose the column with the amount, or those of money in and money out.</source>
        <translation>Die Spalte mit dem Betrag wählen, oder die für Eingang und Ausgang.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportFileStep</name>
    <message>
        <source>&amp;Bank file:</source>
        <translation>Da&amp;tei der Bank:</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Art der Datei:</translation>
    </message>
    <message>
        <source>&amp;Statement of:</source>
        <translation>Aus&amp;zug von:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Konto:</translation>
    </message>
    <message>
        <source>Another number:</source>
        <translation>Andere Nummer:</translation>
    </message>
    <message>
        <source>I&amp;mport it into this account all the same</source>
        <translation>T&amp;rotzdem in dieses Konto importieren</translation>
    </message>
    <message>
        <source>A file of your bank, or a journal of another program. Nothing is changed before the last step.</source>
        <translation>Eine Datei der Bank oder das Journal eines anderen Programms. Vor dem letzten Schritt wird nichts geändert.</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Choose the file …</source>
        <translation>Datei wäh&amp;len …</translation>
    </message>
    <message>
        <source>Table of a bank (CSV)</source>
        <translation>Tabelle einer Bank (CSV)</translation>
    </message>
    <message>
        <source>Statement as OFX or QFX</source>
        <translation>Kontoauszug als OFX oder QFX</translation>
    </message>
    <message>
        <source>Statement as QIF</source>
        <translation>Kontoauszug als QIF</translation>
    </message>
    <message>
        <source>Statement as MT940</source>
        <translation>Kontoauszug als MT940</translation>
    </message>
    <message>
        <source>Statement as CAMT (XML)</source>
        <translation>Kontoauszug als CAMT (XML)</translation>
    </message>
    <message>
        <source>Journal of ledger or hledger</source>
        <translation>Journal von ledger oder hledger</translation>
    </message>
    <message>
        <source>as the file says</source>
        <translation>wie die Datei sagt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The file does not show what it is. Choose it.</source>
        <translation>Der Datei ist nicht anzusehen, was sie ist. Die Art wählen.</translation>
    </message>
    <message>
        <source>Choose the file that is to be imported.</source>
        <translation>Die Datei wählen, die importiert werden soll.</translation>
    </message>
    <message>
        <source>The file has statements of several accounts. Choose one; the others can be imported afterwards.</source>
        <translation>Die Datei enthält Kontoauszüge mehrerer Konten. Einen wählen; die anderen lassen sich danach importieren.</translation>
    </message>
    <message>
        <source>There is no account at a bank yet. It is added on the page “Banks”.</source>
        <translation>Es gibt noch kein Konto bei einer Bank. Es wird auf der Seite „Banken“ hinzugefügt.</translation>
    </message>
    <message>
        <source>Choose the account whose statement it is.</source>
        <translation>Das Konto wählen, dessen Auszug es ist.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportJournalStep</name>
    <message>
        <source>Transactions of the journal</source>
        <translation>Buchungen des Journals</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message numerus="yes">
        <source>Im&amp;port %n transactions</source>
        <translation>
            <numerusform>%n Buchung im&amp;portieren</numerusform>
            <numerusform>%n Buchungen im&amp;portieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Com&amp;plete</source>
        <translation>&amp;Fertig</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportRowsStep</name>
    <message>
        <source>Entries of the file</source>
        <translation>Einträge der Datei</translation>
    </message>
    <message>
        <source>&amp;What it is:</source>
        <translation>&amp;Was es ist:</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>&amp;Posten oder Konto:</translation>
    </message>
    <message>
        <source>From now on:</source>
        <translation>Von nun an:</translation>
    </message>
    <message>
        <source>Re&amp;member this for the payee</source>
        <translation>Für den Empfänger &amp;merken</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
    <message>
        <source>all entries</source>
        <translation>alle Einträge</translation>
    </message>
    <message>
        <source>new ones</source>
        <translation>neue</translation>
    </message>
    <message>
        <source>those that are there already</source>
        <translation>die schon da sind</translation>
    </message>
    <message>
        <source>those to look at</source>
        <translation>die anzusehen sind</translation>
    </message>
    <message>
        <source>&amp;Keep this line</source>
        <translation>Zeile übe&amp;rnehmen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message numerus="yes">
        <source>Im&amp;port %n entries</source>
        <translation>
            <numerusform>%n Eintrag imp&amp;ortieren</numerusform>
            <numerusform>%n Einträge imp&amp;ortieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mark %n entries as seen at the bank</source>
        <translation>
            <numerusform>%n Eintrag als von der Bank bestätigt kennzeichnen</numerusform>
            <numerusform>%n Einträge als von der Bank bestätigt kennzeichnen</numerusform>
        </translation>
    </message>
    <message>
        <source>Com&amp;plete</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message numerus="yes">
        <source>%n entries still need an item or account.</source>
        <translation>
            <numerusform>%n Eintrag braucht noch einen Posten oder ein Konto.</numerusform>
            <numerusform>%n Einträge brauchen noch einen Posten oder ein Konto.</numerusform>
        </translation>
    </message>
    <message>
        <source>New: nothing that is there is the same</source>
        <translation>Neu: nichts, was schon da ist, ist dasselbe</translation>
    </message>
    <message>
        <source>Only a new entry has an item or account to choose.</source>
        <translation>Nur ein neuer Eintrag hat einen Posten oder ein Konto zu wählen.</translation>
    </message>
    <message>
        <source>Choose the item or account of this entry.</source>
        <translation>Posten oder Konto dieses Eintrags wählen.</translation>
    </message>
    <message>
        <source>“%1” is closed, or is the account of the file itself.</source>
        <translation>„%1“ ist geschlossen oder das Konto der Datei selbst.</translation>
    </message>
    <message>
        <source>Taken: %1</source>
        <translation>Genommen: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Weggelassen: %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportWizard</name>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>The account of the file is no longer there.</source>
        <translation>Das Konto der Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Imported into “%1”: %2.</source>
        <translation>In „%1“ importiert: %2.</translation>
    </message>
    <message numerus="yes">
        <source>All %n entries are there already.</source>
        <translation>
            <numerusform>Der %n Eintrag ist schon da.</numerusform>
            <numerusform>Alle %n Einträge sind schon da.</numerusform>
        </translation>
    </message>
    <message>
        <source>importing into “%1”</source>
        <translation>in „%1“ importieren</translation>
    </message>
    <message>
        <source>Imported the journal: %1.</source>
        <translation>Journal importiert: %1.</translation>
    </message>
    <message>
        <source>importing the journal</source>
        <translation>das Journal importieren</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemExplained</name>
    <message>
        <source>End &amp;it</source>
        <translation>Bee&amp;nden</translation>
    </message>
    <message>
        <source>How it comes about</source>
        <translation>Wie es zustande kommt</translation>
    </message>
    <message>
        <source>S&amp;pent on (may be empty):</source>
        <translation>Ausgegeben &amp;für (darf leer sein):</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>Am T&amp;ag:</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>N&amp;ame:</translation>
    </message>
    <message>
        <source>&amp;Amount each time:</source>
        <translation>Be&amp;trag jedes Mal:</translation>
    </message>
    <message>
        <source>Ho&amp;w often:</source>
        <translation>&amp;Wie oft:</translation>
    </message>
    <message>
        <source>Ne&amp;xt on:</source>
        <translation>Nä&amp;chstes Mal am:</translation>
    </message>
    <message>
        <source>Am&amp;ount borrowed:</source>
        <translation>Ge&amp;liehener Betrag:</translation>
    </message>
    <message>
        <source>Owe&amp;d since:</source>
        <translation>G&amp;eschuldet seit:</translation>
    </message>
    <message>
        <source>&amp;Bank:</source>
        <translation>Ban&amp;k:</translation>
    </message>
    <message>
        <source>&amp;Kind of debt:</source>
        <translation>A&amp;rt der Schuld:</translation>
    </message>
    <message>
        <source>Tags, with co&amp;mmas:</source>
        <translation>Schlagwörter, mit Ko&amp;mmas:</translation>
    </message>
    <message>
        <source>T&amp;o be reached:</source>
        <translation>Z&amp;ielbetrag:</translation>
    </message>
    <message>
        <source>Owed to the &amp;bank:</source>
        <translation>Geschuldet der Ban&amp;k:</translation>
    </message>
    <message>
        <source>Kept in the &amp;bank account:</source>
        <translation>Auf dem Ban&amp;kkonto:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The debt is at no bank.</source>
        <translation>Die Schuld ist bei keiner Bank.</translation>
    </message>
    <message>
        <source>The page of banks corrects the kind of an account.</source>
        <translation>Die Art eines Kontos wird auf der Seite der Banken berichtigt.</translation>
    </message>
    <message>
        <source>Added the %1 “%2”.</source>
        <translation>Angelegt: „%2“ (%1).</translation>
    </message>
    <message>
        <source>adding the %1 “%2”</source>
        <translation>„%2“ (%1) anlegen</translation>
    </message>
    <message>
        <source>Changed the %1 “%2”.</source>
        <translation>Geändert: „%2“ (%1).</translation>
    </message>
    <message>
        <source>changing the %1 “%2”</source>
        <translation>„%2“ (%1) ändern</translation>
    </message>
    <message>
        <source>The %1 “%2” is now called “%3”.</source>
        <translation>„%2“ (%1) heißt jetzt „%3“.</translation>
    </message>
    <message>
        <source>renaming “%1” to “%2”</source>
        <translation>„%1“ in „%2“ umbenennen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemSchedule</name>
    <message>
        <source>Payments to come</source>
        <translation>Kommende Zahlungen</translation>
    </message>
    <message>
        <source>If so much more were paid a month:</source>
        <translation>Wenn im Monat so viel mehr gezahlt würde:</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemsPage</name>
    <message>
        <source>Items</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>N&amp;eu</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Kinds of items</source>
        <translation>Arten von Posten</translation>
    </message>
    <message>
        <source>Removed the %1 “%2”.</source>
        <translation>Entfernt: „%2“ (%1).</translation>
    </message>
    <message>
        <source>removing the %1 “%2”</source>
        <translation>„%2“ (%1) entfernen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ListPage</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>Es ist keine Zeile gewählt.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::MainWindow</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Find a command …</source>
        <translation>Befehl &amp;finden …</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>F&amp;orward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>Next &amp;part of the window</source>
        <translation>Nächster &amp;Teil des Fensters</translation>
    </message>
    <message>
        <source>Colours of the &amp;system</source>
        <translation>Farben des &amp;Systems</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Text size %1 %</source>
        <translation>Textgröße %1 %</translation>
    </message>
    <message>
        <source>L&amp;arger text</source>
        <translation>&amp;Größerer Text</translation>
    </message>
    <message>
        <source>S&amp;maller text</source>
        <translation>&amp;Kleinerer Text</translation>
    </message>
    <message>
        <source>&amp;Usual text size</source>
        <translation>&amp;Übliche Textgröße</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Begin s&amp;tep by step …</source>
        <translation>Schritt &amp;für Schritt beginnen …</translation>
    </message>
    <message>
        <source>&amp;Import a bank file …</source>
        <translation>Datei der Bank &amp;importieren …</translation>
    </message>
    <message>
        <source>&amp;Explain this number</source>
        <translation>&amp;Zahl erklären</translation>
    </message>
    <message>
        <source>No number is chosen that can be explained.</source>
        <translation>Es ist keine Zahl gewählt, die erklärt werden kann.</translation>
    </message>
    <message>
        <source>&amp;Black on white</source>
        <translation>Sch&amp;warz auf Weiß</translation>
    </message>
    <message>
        <source>&amp;White on black</source>
        <translation>W&amp;eiß auf Schwarz</translation>
    </message>
    <message>
        <source>Type what you want to do or to see</source>
        <translation>Eingeben, was zu tun oder zu sehen ist</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Found commands</source>
        <translation>Gefundene Befehle</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::OutlookPage</name>
    <message>
        <source>Outlook</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Days ahead:</source>
        <translation>&amp;Tage voraus:</translation>
    </message>
    <message>
        <source>&amp;Not below:</source>
        <translation>N&amp;icht unter:</translation>
    </message>
    <message>
        <source>&amp;Leave out:</source>
        <translation>&amp;Weglassen:</translation>
    </message>
    <message>
        <source>What if I &amp;pay:</source>
        <translation>Wenn ich &amp;zahle:</translation>
    </message>
    <message>
        <source>&amp;On:</source>
        <translation>&amp;Am:</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>What is paid and received</source>
        <translation>Was gezahlt wird und eingeht</translation>
    </message>
    <message>
        <source>What if? Nothing of this is kept. An amount with a minus comes in.</source>
        <translation>Was wäre, wenn? Nichts davon wird behalten. Ein Betrag mit Minus geht ein.</translation>
    </message>
    <message>
        <source>Loo&amp;k ahead</source>
        <translation>&amp;Vorausschauen</translation>
    </message>
    <message>
        <source>Start &amp;again</source>
        <translation>Neu an&amp;fangen</translation>
    </message>
    <message>
        <source>Only items of the budget can be left out.</source>
        <translation>Nur Posten des Budgets können weggelassen werden.</translation>
    </message>
    <message>
        <source>And &amp;more</source>
        <translation>Und m&amp;ehr</translation>
    </message>
    <message>
        <source>Counted already: %1 on %2.</source>
        <translation>Schon mitgezählt: %1 am %2.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::Page</name>
    <message>
        <source>The page “%1” cannot be shown: %2</source>
        <translation>Die Seite „%1“ kann nicht gezeigt werden: %2</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::PastSurveys</name>
    <message>
        <source>Past reconciliations</source>
        <translation>Frühere Abgleiche</translation>
    </message>
    <message>
        <source>No account was reconciled yet.</source>
        <translation>Es wurde noch kein Konto abgeglichen.</translation>
    </message>
    <message>
        <source>Its transactions are as they were then.</source>
        <translation>Seine Buchungen sind wie damals.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RatesPage</name>
    <message>
        <source>Exchange rates</source>
        <translation>Wechselkurse</translation>
    </message>
    <message>
        <source>There are no exchange rates. Fetch them, or type one.</source>
        <translation>Es gibt keine Wechselkurse. Sie können abgerufen oder eingegeben werden.</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>&amp;Rate:</source>
        <translation>&amp;Kurs:</translation>
    </message>
    <message>
        <source>Rates are the same for all budgets. They cannot be undone.</source>
        <translation>Kurse gelten für alle Budgets. Sie können nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Keep this rate</source>
        <translation>Kurs &amp;eintragen</translation>
    </message>
    <message>
        <source>Fetch &amp;all rates now</source>
        <translation>A&amp;lle Kurse jetzt abrufen</translation>
    </message>
    <message>
        <source>&amp;Rate, for 1 %1:</source>
        <translation>&amp;Kurs für 1 %1:</translation>
    </message>
    <message>
        <source>1 %1 = %2 %3</source>
        <translation>1 %1 = %2 %3</translation>
    </message>
    <message>
        <source>Fetching exchange rates …</source>
        <translation>Wechselkurse werden abgerufen …</translation>
    </message>
    <message>
        <source>The exchange rates are fetched.</source>
        <translation>Die Wechselkurse sind abgerufen.</translation>
    </message>
    <message>
        <source>The exchange rates could not be fetched; try again later, or type them. %1</source>
        <translation>Die Wechselkurse konnten nicht abgerufen werden; später noch einmal versuchen oder eingeben. %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterFilter</name>
    <message numerus="yes">
        <source>%n transaction(s)</source>
        <translation>
            <numerusform>%n Buchung</numerusform>
            <numerusform>%n Buchungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, together %2</source>
        <translation>%1, zusammen %2</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterModel</name>
    <message>
        <source>cleared</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>reconciled</source>
        <translation>abgeglichen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Erstattung</translation>
    </message>
    <message>
        <source>Refund: %1</source>
        <translation>Erstattung: %1</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>minus %1</translation>
    </message>
    <message>
        <source>no payee or reason</source>
        <translation>ohne Empfänger und Zweck</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 nach %2</translation>
    </message>
    <message>
        <source>no balance</source>
        <translation>kein Saldo</translation>
    </message>
    <message>
        <source>balance %1</source>
        <translation>Saldo %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Payee and reason</source>
        <translation>Empfänger und Zweck</translation>
    </message>
    <message>
        <source>Account or item</source>
        <translation>Konto oder Posten</translation>
    </message>
    <message>
        <source>From and to</source>
        <translation>Von und nach</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Soll</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Haben</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Vermerk</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterPage</name>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>A&amp;ccount</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Buchungen</translation>
    </message>
    <message>
        <source>&amp;New transaction</source>
        <translation>&amp;Neue Buchung</translation>
    </message>
    <message>
        <source>New, e&amp;arned</source>
        <translation>Neu, &amp;eingenommen</translation>
    </message>
    <message>
        <source>New &amp;transfer</source>
        <translation>Neue &amp;Umbuchung</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>&amp;Enter again</source>
        <translation>Erneut ein&amp;geben</translation>
    </message>
    <message>
        <source>Re&amp;fund</source>
        <translation>Er&amp;statten</translation>
    </message>
    <message>
        <source>&amp;Item or category</source>
        <translation>&amp;Posten oder Kategorie</translation>
    </message>
    <message>
        <source>&amp;Find transactions</source>
        <translation>Buchungen &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Entry row</source>
        <translation>&amp;Eingabezeile</translation>
    </message>
    <message>
        <source>Mark as c&amp;leared</source>
        <translation>Als &amp;bestätigt markieren</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot cleared</source>
        <translation>Als n&amp;icht bestätigt markieren</translation>
    </message>
    <message>
        <source>Mark as reconcile&amp;d</source>
        <translation>Als &amp;abgeglichen markieren</translation>
    </message>
    <message>
        <source>&amp;Mark as not reconciled</source>
        <translation>Als nicht abgegli&amp;chen markieren</translation>
    </message>
    <message>
        <source>The register is not shown.</source>
        <translation>Das Register wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>No transaction is selected.</source>
        <translation>Keine Buchung ist ausgewählt.</translation>
    </message>
    <message>
        <source>All accounts</source>
        <translation>Alle Konten</translation>
    </message>
    <message>
        <source>Reconcile this acco&amp;unt</source>
        <translation>Dieses Konto abglei&amp;chen</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>Import a bank file</source>
        <translation>Datei der Bank importieren</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>&amp;Was:</translation>
    </message>
    <message>
        <source>Spa&amp;ns:</source>
        <translation>&amp;Zeiträume:</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>B&amp;is:</translation>
    </message>
    <message>
        <source>On&amp;ly:</source>
        <translation>Nu&amp;r:</translation>
    </message>
    <message>
        <source>&amp;Convert into:</source>
        <translation>Umre&amp;chnen in:</translation>
    </message>
    <message>
        <source>Lines of the report</source>
        <translation>Zeilen des Berichts</translation>
    </message>
    <message>
        <source>Values of the line</source>
        <translation>Werte der Zeile</translation>
    </message>
    <message>
        <source>Entries behind the value</source>
        <translation>Buchungen hinter dem Wert</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Two weeks</source>
        <translation>Zwei Wochen</translation>
    </message>
    <message>
        <source>Payday to payday</source>
        <translation>Von Zahltag zu Zahltag</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>Quartale</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>twelve spans</source>
        <translation>zwölf Zeiträume</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>all entries; words as in a search</source>
        <translation>alle Buchungen; Wörter wie in der Suche</translation>
    </message>
    <message>
        <source>A&amp;dd up</source>
        <translation>&amp;Summieren</translation>
    </message>
    <message>
        <source>Start &amp;again</source>
        <translation>Neu an&amp;fangen</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>Speichern &amp;als …</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>Druc&amp;ken …</translation>
    </message>
    <message>
        <source>Save a &amp;report as …</source>
        <translation>Einen Berich&amp;t speichern als …</translation>
    </message>
    <message>
        <source>&amp;Print a report …</source>
        <translation>Einen Bericht d&amp;rucken …</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>Es ist kein Budget geöffnet.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a name and a span of days</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1: no entries</source>
        <translation>%1: keine Buchungen</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entries, together %2</source>
        <translation>
            <numerusform>%1: %n Buchung, zusammen %2</numerusform>
            <numerusform>%1: %n Buchungen, zusammen %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The first %1 are shown.</source>
        <translation>Die ersten %1 sind zu sehen.</translation>
    </message>
    <message>
        <source>All as one</source>
        <translation>Alles als einer</translation>
    </message>
    <message>
        <source>twelve months</source>
        <translation>zwölf Monate</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entries, which change it by %2</source>
        <translation>
            <numerusform>%1: %n Buchung, die es um %2 ändert</numerusform>
            <numerusform>%1: %n Buchungen, die es um %2 ändern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RulesPage</name>
    <message>
        <source>Import rules</source>
        <translation>Importregeln</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Files of</source>
        <translation>Dateien von</translation>
    </message>
    <message>
        <source>Item or account</source>
        <translation>Posten oder Konto</translation>
    </message>
    <message>
        <source>&amp;New rule</source>
        <translation>Neue Rege&amp;l</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ände&amp;rn</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Tr&amp;y the rules</source>
        <translation>Regeln aus&amp;probieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Entries of banks’ files whose payee or text fits are for this item or account. The first rule that fits counts.</source>
        <translation>Einträge aus Dateien der Bank, deren Empfänger oder Text passt, sind für diesen Posten oder dieses Konto. Die erste passende Regel gilt.</translation>
    </message>
    <message>
        <source>&amp;Payee or text contains:</source>
        <translation>Empfänger oder Te&amp;xt enthält:</translation>
    </message>
    <message>
        <source>Kind of text:</source>
        <translation>Art des Textes:</translation>
    </message>
    <message>
        <source>It is a regula&amp;r expression</source>
        <translation>Es ist ein &amp;regulärer Ausdruck</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>&amp;Posten oder Konto:</translation>
    </message>
    <message>
        <source>&amp;Amount at least:</source>
        <translation>Betrag m&amp;indestens:</translation>
    </message>
    <message>
        <source>Amount at &amp;most:</source>
        <translation>Betrag hö&amp;chstens:</translation>
    </message>
    <message>
        <source>&amp;Only in files of:</source>
        <translation>Nur in Da&amp;teien von:</translation>
    </message>
    <message>
        <source>&amp;What the bank says:</source>
        <translation>&amp;Was die Bank sagt:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>Bet&amp;rag:</translation>
    </message>
    <message>
        <source>In a file &amp;of:</source>
        <translation>In einer Datei v&amp;on:</translation>
    </message>
    <message>
        <source>Tr&amp;y</source>
        <translation>Aus&amp;probieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There are no rules. Without them, an import learns from former entries of the same payee.</source>
        <translation>Es gibt keine Regeln. Ohne sie lernt ein Import aus früheren Einträgen desselben Empfängers.</translation>
    </message>
    <message>
        <source>There are no rules.</source>
        <translation>Es gibt keine Regeln.</translation>
    </message>
    <message>
        <source>It is the first rule.</source>
        <translation>Es ist die erste Regel.</translation>
    </message>
    <message>
        <source>Choose the item or account of such entries.</source>
        <translation>Posten oder Konto solcher Einträge wählen.</translation>
    </message>
    <message>
        <source>Changed the rule “%1”.</source>
        <translation>Regel „%1“ geändert.</translation>
    </message>
    <message>
        <source>changing the rule “%1”</source>
        <translation>die Regel „%1“ ändern</translation>
    </message>
    <message>
        <source>Added the rule “%1”.</source>
        <translation>Regel „%1“ hinzugefügt.</translation>
    </message>
    <message>
        <source>adding the rule “%1”</source>
        <translation>die Regel „%1“ anlegen</translation>
    </message>
    <message>
        <source>Removed the rule “%1”.</source>
        <translation>Regel „%1“ entfernt.</translation>
    </message>
    <message>
        <source>removing the rule “%1”</source>
        <translation>die Regel „%1“ entfernen</translation>
    </message>
    <message>
        <source>Moved the rule “%1” up.</source>
        <translation>Regel „%1“ nach oben verschoben.</translation>
    </message>
    <message>
        <source>moving the rule “%1”</source>
        <translation>die Regel „%1“ verschieben</translation>
    </message>
    <message>
        <source>Which rule fits what a bank says of an entry?</source>
        <translation>Welche Regel passt zu dem, was eine Bank von einem Eintrag sagt?</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Schlagwort</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Settings are the same for all budgets. They cannot be undone.</source>
        <translation>Einstellungen gelten für alle Budgets. Sie können nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Preferred currency:</source>
        <translation>Be&amp;vorzugte Währung:</translation>
    </message>
    <message>
        <source>&amp;Usable currencies:</source>
        <translation>Nut&amp;zbare Währungen:</translation>
    </message>
    <message>
        <source>&amp;Display of currencies:</source>
        <translation>&amp;Anzeige von Währungen:</translation>
    </message>
    <message>
        <source>Due items shown &amp;ahead, in days:</source>
        <translation>Fällige &amp;Posten im Voraus, in Tagen:</translation>
    </message>
    <message>
        <source>Survey wi&amp;ndow:</source>
        <translation>&amp;Toleranz des Abgleichs:</translation>
    </message>
    <message>
        <source>&amp;Work hours a week:</source>
        <translation>A&amp;rbeitsstunden je Woche:</translation>
    </message>
    <message>
        <source>Work da&amp;ys a week:</source>
        <translation>Arb&amp;eitstage je Woche:</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>as the system</source>
        <translation>wie das System</translation>
    </message>
    <message>
        <source>light</source>
        <translation>hell</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>dunkel</translation>
    </message>
    <message>
        <source>Te&amp;xt size:</source>
        <translation>Te&amp;xtgröße:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>At the start:</source>
        <translation>Beim Start:</translation>
    </message>
    <message>
        <source>&amp;Open the last budget</source>
        <translation>&amp;Letztes Budget öffnen</translation>
    </message>
    <message>
        <source>There are no tags. An item&apos;s tags are set with the item.</source>
        <translation>Es gibt keine Schlagwörter. Die eines Postens werden beim Posten angegeben.</translation>
    </message>
    <message>
        <source>&amp;Remove this tag</source>
        <translation>Schlag&amp;wort entfernen</translation>
    </message>
    <message>
        <source>The settings are kept.</source>
        <translation>Die Einstellungen sind übernommen.</translation>
    </message>
    <message>
        <source>No tag is chosen.</source>
        <translation>Es ist kein Schlagwort gewählt.</translation>
    </message>
    <message>
        <source>Removed the tag “%1”.</source>
        <translation>Schlagwort „%1“ entfernt.</translation>
    </message>
    <message>
        <source>removing the tag “%1”</source>
        <translation>das Schlagwort „%1“ entfernen</translation>
    </message>
    <message>
        <source>black on white</source>
        <translation>Schwarz auf Weiß</translation>
    </message>
    <message>
        <source>white on black</source>
        <translation>Weiß auf Schwarz</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SplitLines</name>
    <message>
        <source>Take the last line &amp;back</source>
        <translation>Letzte Zeile zurückh&amp;olen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Together with this line: %1</source>
        <translation>Zusammen mit dieser Zeile: %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyDrops</name>
    <message>
        <source>Set nothing aside there any more</source>
        <translation>Dort nichts mehr zurücklegen</translation>
    </message>
    <message>
        <source>setting nothing aside at “%1”</source>
        <translation>auf „%1“ nichts mehr zurücklegen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyFoot</name>
    <message>
        <source>C&amp;omplete</source>
        <translation>Abs&amp;chließen</translation>
    </message>
    <message>
        <source>P&amp;ut off</source>
        <translation>Au&amp;fschieben</translation>
    </message>
    <message>
        <source>Begi&amp;n anew</source>
        <translation>V&amp;on vorn beginnen</translation>
    </message>
    <message>
        <source>The difference of %1 ma&amp;y stay; it is shown until it is gone</source>
        <translation>Die Abweichung von %1 darf bleiben; sie wird gezeigt, bis sie &amp;weg ist</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyPage</name>
    <message>
        <source>Survey</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Parts of the survey</source>
        <translation>Teile des Abgleichs</translation>
    </message>
    <message>
        <source>There is no account at a bank to reconcile.</source>
        <translation>Es gibt kein Bankkonto zum Abgleichen.</translation>
    </message>
    <message>
        <source>&amp;1 Statement</source>
        <translation>&amp;1 Kontoauszug</translation>
    </message>
    <message>
        <source>&amp;2 Set aside</source>
        <translation>&amp;2 Zurückgelegt</translation>
    </message>
    <message>
        <source>&amp;3 Past reconciliations</source>
        <translation>&amp;3 Frühere Abgleiche</translation>
    </message>
    <message>
        <source>Forgot the survey of “%1” that was put off.</source>
        <translation>Den aufgeschobenen Abgleich von „%1“ vergessen.</translation>
    </message>
    <message>
        <source>forgetting the survey of “%1”</source>
        <translation>den aufgeschobenen Abgleich von „%1“ vergessen</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyShares</name>
    <message>
        <source>What is set aside</source>
        <translation>Was zurückgelegt wird</translation>
    </message>
    <message>
        <source>As p&amp;roposed, where nothing is typed</source>
        <translation>Wie &amp;vorgeschlagen, wo nichts eingegeben ist</translation>
    </message>
    <message>
        <source>&amp;Set aside for it:</source>
        <translation>Dafür &amp;zurücklegen:</translation>
    </message>
    <message>
        <source>&amp;Keep this amount</source>
        <translation>Betrag &amp;eintragen</translation>
    </message>
    <message>
        <source>Nothing is set aside of what is owed.</source>
        <translation>Von einer Schuld wird nichts zurückgelegt.</translation>
    </message>
    <message>
        <source>There are no items to set money aside for.</source>
        <translation>Es gibt keine Posten, für die zurückgelegt wird.</translation>
    </message>
    <message>
        <source>No item is chosen.</source>
        <translation>Es ist kein Posten gewählt.</translation>
    </message>
    <message>
        <source>For a goal, what was moved to its account is set aside.</source>
        <translation>Für ein Ziel ist zurückgelegt, was auf sein Konto umgebucht wurde.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyStatement</name>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Konto:</translation>
    </message>
    <message>
        <source>&amp;Day:</source>
        <translation>&amp;Tag:</translation>
    </message>
    <message>
        <source>&amp;Balance:</source>
        <translation>&amp;Saldo:</translation>
    </message>
    <message>
        <source>Import &amp;what is missing</source>
        <translation>Fehlendes i&amp;mportieren</translation>
    </message>
    <message>
        <source>What the bank&apos;s statement says:</source>
        <translation>Was auf dem Kontoauszug steht:</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Lay a ban&amp;k&apos;s file beside …</source>
        <translation>D&amp;atei danebenlegen …</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>&amp;Posten oder Konto:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>Bet&amp;rag:</translation>
    </message>
    <message>
        <source>&amp;Put on the list</source>
        <translation>&amp;In die Liste</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What you owe stands without a minus; money that the bank owes you has one.</source>
        <translation>Was geschuldet wird, steht ohne Minus; ein Guthaben hat eines.</translation>
    </message>
    <message>
        <source>Money in the account stands without a minus; an overdrawn account has one.</source>
        <translation>Geld auf dem Konto steht ohne Minus; ein überzogenes Konto hat eines.</translation>
    </message>
    <message>
        <source>On the statement, but not booked yet (interest, for example):</source>
        <translation>Auf dem Auszug, aber noch nicht gebucht (zum Beispiel Zinsen):</translation>
    </message>
    <message>
        <source>On the statement, but not booked yet:</source>
        <translation>Auf dem Auszug, aber noch nicht gebucht:</translation>
    </message>
    <message>
        <source>For which item or account?</source>
        <translation>Für welchen Posten oder welches Konto?</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyTicks</name>
    <message>
        <source>Transactions to tick</source>
        <translation>Buchungen zum Abhaken</translation>
    </message>
    <message>
        <source>Tick a&amp;ll</source>
        <translation>A&amp;lle abhaken</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::TableModel</name>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::WelcomePage</name>
    <message>
        <source>Opened before:</source>
        <translation>Zuletzt geöffnet:</translation>
    </message>
    <message>
        <source>kiv keeps your household&apos;s money: what you have, what is due, and what is left to spend. A budget is one file on your computer; nothing of it is sent anywhere.</source>
        <translation>kiv führt das Geld eines Haushalts: was da ist, was fällig ist und was zum Ausgeben bleibt. Ein Budget ist eine Datei auf diesem Rechner; nichts davon wird irgendwohin gesendet.</translation>
    </message>
</context>
</TS>
