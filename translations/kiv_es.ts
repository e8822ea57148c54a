<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Asset</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Equity</source>
        <translation>Patrimonio</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Gasto</translation>
    </message>
    <message>
        <source>Liability</source>
        <translation>Pasivo</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Ingreso</translation>
    </message>
    <message>
        <source>There is no account with the number %1.</source>
        <translation>No hay ninguna cuenta con el número %1.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; needs a number above 0.</source>
        <translation>La cuenta «%1» necesita un número mayor que 0.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot have a number that the account &apos;%2&apos; has.</source>
        <translation>La cuenta «%1» no puede tener un número que ya tiene la cuenta «%2».</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; needs a type.</source>
        <translation>La cuenta «%1» necesita un tipo.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account %2, which does not exist.</source>
        <translation>La cuenta «%1» no puede depender de la cuenta %2, que no existe.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; of type %2 cannot stand under the account &apos;%3&apos; of type %4.</source>
        <translation>La cuenta «%1» de tipo %2 no puede depender de la cuenta «%3» de tipo %4.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account &apos;%2&apos;, which is itself or stands below it.</source>
        <translation>La cuenta «%1» no puede depender de la cuenta «%2», que es ella misma o depende de ella.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is open already.</source>
        <translation>La cuenta «%1» ya está abierta.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is closed.</source>
        <translation>La cuenta «%1» está cerrada.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be closed while its balance is %2.</source>
        <translation>La cuenta «%1» no se puede cerrar mientras su saldo sea %2.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while accounts stand under it.</source>
        <translation>La cuenta «%1» no se puede eliminar mientras haya cuentas que dependan de ella.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while it has transactions.</source>
        <translation>La cuenta «%1» no se puede eliminar mientras tenga asientos.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be removed while the transaction %2, which opened it, is reconciled.</source>
        <translation>La cuenta «%1» no se puede eliminar mientras el asiento %2, que la abrió, esté conciliado.</translation>
    </message>
    <message>
        <source>The amounts of the account &apos;%1&apos; would become too large.</source>
        <translation>Los importes de la cuenta «%1» serían demasiado grandes.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be kept in %2, as the amount of its transaction %3 cannot be converted.</source>
        <translation>La cuenta «%1» no se puede llevar en %2, porque el importe de su asiento %3 no se puede convertir.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot be kept in %2, in which the %3 of its transaction %4 come to nothing.</source>
        <translation>La cuenta «%1» no se puede llevar en %2, moneda en la que los %3 de su asiento %4 quedan en nada.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; of type %2 cannot hold opening balances.</source>
        <translation>La cuenta «%1» de tipo %2 no puede contener saldos iniciales.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; was opened by the transaction %2 already.</source>
        <translation>La cuenta «%1» ya se abrió con el asiento %2.</translation>
    </message>
    <message>
        <source>The balance %1 of the account &apos;%2&apos; cannot be changed by %3.</source>
        <translation>El saldo %1 de la cuenta «%2» no se puede cambiar en %3.</translation>
    </message>
    <message>
        <source>The amounts %1 and %2 cannot be compared.</source>
        <translation>Los importes %1 y %2 no se pueden comparar.</translation>
    </message>
    <message>
        <source>There is no transaction with the number %1.</source>
        <translation>No hay ningún asiento con el número %1.</translation>
    </message>
    <message>
        <source>A transaction needs a valid day.</source>
        <translation>Un asiento necesita un día válido.</translation>
    </message>
    <message>
        <source>The amount of a transaction must be above zero, but is %1.</source>
        <translation>El importe de un asiento debe ser mayor que cero, pero es %1.</translation>
    </message>
    <message>
        <source>A transaction cannot debit and credit the same account &apos;%1&apos;.</source>
        <translation>Un asiento no puede tener la misma cuenta «%1» en el debe y en el haber.</translation>
    </message>
    <message>
        <source>The amount %1 cannot be converted into %2.</source>
        <translation>El importe %1 no se puede convertir a %2.</translation>
    </message>
    <message>
        <source>The amount %1 comes to nothing in %2.</source>
        <translation>El importe %1 queda en nada en %2.</translation>
    </message>
    <message>
        <source>The ledger is full: it holds at most 65,535 transactions.</source>
        <translation>El libro mayor está lleno: admite como máximo 65.535 asientos.</translation>
    </message>
    <message>
        <source>The transaction %1 is reconciled and cannot be changed before it is unreconciled.</source>
        <translation>El asiento %1 está conciliado y no se puede cambiar antes de anular su conciliación.</translation>
    </message>
    <message>
        <source>The account %1 has no part in the transaction %2.</source>
        <translation>La cuenta %1 no interviene en el asiento %2.</translation>
    </message>
    <message>
        <source>The transaction %1 opened the account &apos;%2&apos; and cannot leave it.</source>
        <translation>El asiento %1 abrió la cuenta «%2» y no puede salir de ella.</translation>
    </message>
    <message>
        <source>The transaction %1 is a refund of the transaction %2 and cannot be refunded itself.</source>
        <translation>El asiento %1 es un reembolso del asiento %2 y no se puede reembolsar a su vez.</translation>
    </message>
    <message>
        <source>A refund of %1 exceeds the %2 that are left of the transaction %3.</source>
        <translation>Un reembolso de %1 supera los %2 que quedan del asiento %3.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be lowered to %2, as %3 of it were refunded.</source>
        <translation>El asiento %1 no se puede rebajar a %2, porque ya se reembolsaron %3 de él.</translation>
    </message>
    <message>
        <source>The accounts of the transaction %1 cannot be changed, as it is a refund or was refunded.</source>
        <translation>Las cuentas del asiento %1 no se pueden cambiar, porque es un reembolso o fue reembolsado.</translation>
    </message>
    <message>
        <source>The amount of the transaction %1 must stay in %2, in which it was refunded.</source>
        <translation>El importe del asiento %1 debe seguir en %2, la moneda en la que se reembolsó.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be removed, as %2 of it were refunded.</source>
        <translation>El asiento %1 no se puede eliminar, porque se reembolsaron %2 de él.</translation>
    </message>
    <message>
        <source>A stored transaction has no number.</source>
        <translation>Un asiento guardado no tiene número.</translation>
    </message>
    <message>
        <source>The transaction number %1 stands for two transactions.</source>
        <translation>El número de asiento %1 corresponde a dos asientos.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot have the amount %2 in the account &apos;%3&apos;.</source>
        <translation>El asiento %1 no puede tener el importe %2 en la cuenta «%3».</translation>
    </message>
    <message>
        <source>The transaction %1 cannot be a refund of the transaction %2.</source>
        <translation>El asiento %1 no puede ser un reembolso del asiento %2.</translation>
    </message>
    <message>
        <source>The transaction %1 cannot have opened the account &apos;%2&apos;.</source>
        <translation>El asiento %1 no puede haber abierto la cuenta «%2».</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>excellent</source>
        <translation>excelente</translation>
    </message>
    <message>
        <source>good</source>
        <translation>buena</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>regular</translation>
    </message>
    <message>
        <source>poor</source>
        <translation>mala</translation>
    </message>
    <message>
        <source>critical</source>
        <translation>crítica</translation>
    </message>
    <message>
        <source>%1 % of the income is planned; %2 % is all there is.</source>
        <translation>El %1 % de los ingresos está asignado; el %2 % es todo lo que hay.</translation>
    </message>
    <message>
        <source>Bills and debts take %1 % of the income; up to %2 % is sound.</source>
        <translation>Las facturas y deudas se llevan el %1 % de los ingresos; hasta el %2 % es sano.</translation>
    </message>
    <message>
        <source>Debts take %1 % of the income; up to %2 % is sound.</source>
        <translation>Las deudas se llevan el %1 % de los ingresos; hasta el %2 % es sano.</translation>
    </message>
    <message>
        <source>Free spending takes %1 % of the income; up to %2 % is sound.</source>
        <translation>Los gastos libres se llevan el %1 % de los ingresos; hasta el %2 % es sano.</translation>
    </message>
    <message>
        <source>Goals get %1 % of the income; from %2 % on is sound.</source>
        <translation>Las metas reciben el %1 % de los ingresos; a partir del %2 % es sano.</translation>
    </message>
    <message>
        <source>There is no income to pay for what goes out.</source>
        <translation>No hay ingresos con los que pagar los gastos.</translation>
    </message>
    <message>
        <source>There is neither income nor spending to judge.</source>
        <translation>No hay ni ingresos ni gastos que valorar.</translation>
    </message>
    <message>
        <source>checking</source>
        <translation>cuenta corriente</translation>
    </message>
    <message>
        <source>savings</source>
        <translation>ahorro</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>tarjeta de crédito</translation>
    </message>
    <message>
        <source>loan</source>
        <translation>préstamo</translation>
    </message>
    <message>
        <source>goal sub-account</source>
        <translation>subcuenta de meta</translation>
    </message>
    <message>
        <source>line of credit</source>
        <translation>línea de crédito</translation>
    </message>
    <message>
        <source>money market</source>
        <translation>mercado monetario</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>efectivo</translation>
    </message>
    <message>
        <source>The name of a bank cannot be empty.</source>
        <translation>El nombre de un banco no puede estar vacío.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; already exists.</source>
        <translation>El banco «%1» ya existe.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; does not exist.</source>
        <translation>El banco «%1» no existe.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; does not have the account &apos;%2&apos;.</source>
        <translation>El banco «%1» no tiene la cuenta «%2».</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is already open.</source>
        <translation>El banco «%1» ya está abierto.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is already closed.</source>
        <translation>El banco «%1» ya está cerrado.</translation>
    </message>
    <message>
        <source>The new budgeted money item source cannot be empty.</source>
        <translation>El nombre de la nueva partida no puede estar vacío.</translation>
    </message>
    <message>
        <source>The new budgeted money item source already exists.</source>
        <translation>El nombre de la nueva partida ya existe.</translation>
    </message>
    <message>
        <source>Failed to remove the budgeted money item as it does not exist.</source>
        <translation>No se pudo eliminar la partida porque no existe.</translation>
    </message>
    <message>
        <source>Cannot update the budgeted money item as it does not exist.</source>
        <translation>No se puede cambiar la partida porque no existe.</translation>
    </message>
    <message>
        <source>Cannot rename the budgeted money item source as it does not exist.</source>
        <translation>No se puede cambiar el nombre de la partida porque no existe.</translation>
    </message>
    <message>
        <source>Cannot rename the budgeted money item source, as the new source, %1, already exists.</source>
        <translation>No se puede cambiar el nombre de la partida, porque el nuevo nombre, %1, ya existe.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>daily</source>
        <translation>cada día</translation>
    </message>
    <message>
        <source>every weekday</source>
        <translation>cada día laborable</translation>
    </message>
    <message>
        <source>weekly</source>
        <translation>cada semana</translation>
    </message>
    <message>
        <source>every two weeks</source>
        <translation>cada dos semanas</translation>
    </message>
    <message>
        <source>twice a month</source>
        <translation>dos veces al mes</translation>
    </message>
    <message>
        <source>monthly</source>
        <translation>cada mes</translation>
    </message>
    <message>
        <source>every two months</source>
        <translation>cada dos meses</translation>
    </message>
    <message>
        <source>quarterly</source>
        <translation>cada trimestre</translation>
    </message>
    <message>
        <source>every four months</source>
        <translation>cada cuatro meses</translation>
    </message>
    <message>
        <source>twice a year</source>
        <translation>dos veces al año</translation>
    </message>
    <message>
        <source>yearly</source>
        <translation>cada año</translation>
    </message>
    <message>
        <source>every two years</source>
        <translation>cada dos años</translation>
    </message>
    <message>
        <source>every three years</source>
        <translation>cada tres años</translation>
    </message>
    <message>
        <source>every five years</source>
        <translation>cada cinco años</translation>
    </message>
    <message>
        <source>every ten years</source>
        <translation>cada diez años</translation>
    </message>
    <message>
        <source>bill</source>
        <translation>factura</translation>
    </message>
    <message>
        <source>debt</source>
        <translation>deuda</translation>
    </message>
    <message>
        <source>goal</source>
        <translation>meta</translation>
    </message>
    <message>
        <source>non-tracked</source>
        <translation>sin seguimiento</translation>
    </message>
    <message>
        <source>wage</source>
        <translation>salario</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; needs a valid next date.</source>
        <translation>La partida «%1» necesita una próxima fecha válida.</translation>
    </message>
    <message>
        <source>The amount of the budget item &apos;%1&apos; cannot be negative, as %2 is.</source>
        <translation>El importe de la partida «%1» no puede ser negativo, como lo es %2.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; cannot recur on day %2 of a month.</source>
        <translation>La partida «%1» no puede repetirse el día %2 de un mes.</translation>
    </message>
    <message>
        <source>What is not scheduled has no next date to move on to.</source>
        <translation>Lo que no está programado no tiene una próxima fecha a la que pasar.</translation>
    </message>
    <message>
        <source>There is no date after %1 for what recurs %2.</source>
        <translation>No hay ninguna fecha después del %1 para lo que se repite así: %2.</translation>
    </message>
    <message>
        <source>The exchange rate of &apos;%1&apos; must be a positive number between 10^-12 and 10^12.</source>
        <translation>El tipo de cambio de «%1» debe ser un número positivo entre 10^-12 y 10^12.</translation>
    </message>
    <message>
        <source>The exchange rate of the base currency &apos;%1&apos; must be 1.</source>
        <translation>El tipo de cambio de la moneda base «%1» debe ser 1.</translation>
    </message>
    <message>
        <source>Exchange rates must be given for a base currency.</source>
        <translation>Los tipos de cambio deben referirse a una moneda base.</translation>
    </message>
    <message>
        <source>Exchange rates must have the time they were fetched at.</source>
        <translation>Los tipos de cambio deben llevar la hora en que se obtuvieron.</translation>
    </message>
    <message>
        <source>There is no exchange rate from &apos;%1&apos; to &apos;%2&apos;.</source>
        <translation>No hay ningún tipo de cambio de «%1» a «%2».</translation>
    </message>
    <message>
        <source>The reply&apos;s member &apos;%1&apos; is missing or makes no sense.</source>
        <translation>El elemento «%1» de la respuesta falta o no tiene sentido.</translation>
    </message>
    <message>
        <source>The reply names an unknown currency &apos;%1&apos;.</source>
        <translation>La respuesta nombra una moneda desconocida, «%1».</translation>
    </message>
    <message>
        <source>No answer came in time.</source>
        <translation>No llegó ninguna respuesta a tiempo.</translation>
    </message>
    <message>
        <source>The source of the rates was destroyed before it answered.</source>
        <translation>La fuente de los tipos de cambio se cerró antes de responder.</translation>
    </message>
    <message>
        <source>There is nothing left to send requests with.</source>
        <translation>Ya no queda nada con que enviar peticiones.</translation>
    </message>
    <message>
        <source>The reply has none of the wanted rates.</source>
        <translation>La respuesta no contiene ninguno de los tipos de cambio pedidos.</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>Failed to find a mutable value under the type &apos;%1&apos; with the key &apos;%2&apos;.</source>
        <translation>No se encontró ningún valor modificable del tipo «%1» con la clave «%2».</translation>
    </message>
    <message>
        <source>Failed to find a non-mutable value under the type &apos;%1&apos; with the key &apos;%2&apos;.</source>
        <translation>No se encontró ningún valor no modificable del tipo «%1» con la clave «%2».</translation>
    </message>
    <message>
        <source>Failed to remove the value under the key &apos;%1&apos; as the index type &apos;%2&apos; was not found.</source>
        <translation>No se pudo eliminar el valor con la clave «%1», porque no se encontró el tipo «%2».</translation>
    </message>
    <message>
        <source>Failed to remove the value under the key &apos;%1&apos; as the key was not found under the index type &apos;%2&apos;.</source>
        <translation>No se pudo eliminar el valor con la clave «%1», porque la clave no se encontró en el tipo «%2».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a wrong value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no key of one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no encoding that is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not valid %1; name the file&apos;s encoding with --encoding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line has more than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A budget holds no more than %1 transactions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a day written as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; can be read in two ways; name the decimal mark with --decimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amounts here cannot be kept exactly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more digits behind the decimal mark than the %2 of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the ISO 4217 code of a currency.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a transaction nor a directive that can be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line is indented, but there is nothing that it belongs to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins here and does not end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts begin with Assets, Liabilities, Equity, Income or Expenses; tell what &apos;%1&apos; is with --root, like --root &apos;%1=asset&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of an account is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no currency; name one with --currency.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency; give its cost behind @, or say which currency it is with --commodity, like --commodity &apos;%1=USD&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction has fewer than two postings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than one posting of the transaction has no amount.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transaction does not balance: %1 are left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The balance of &apos;%1&apos; should be %2 here, and is %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pattern of account names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not included: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quote begins here and does not end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is text between a closing quote and the next delimiter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos; among: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say with %1 which column it is, of: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record has %1 cells where %2 are needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the table of a whole ledger, and no bank statement; import the journal instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record has an amount that came in and one that went out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entry has no %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The days can be read in two ways; name the order with --date-format, like MM/DD/YYYY.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount is in %1, and the account in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no import profile: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no &lt;OFX&gt; in this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tag is broken: its name or its &apos;&gt;&apos; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;/%1&gt; stands where the &lt;%2&gt; of line %3 should be closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;/%1&gt; closes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags are nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no statement of a bank account or a credit card.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several statements; choose one with --statement: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no statement of &apos;%1&apos;, but of: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not begin with a QIF header like !Type:Bank.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no field of a bank statement.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parts come to %1 and the whole to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A report cannot end before it begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A report covers no more than %1 months.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net worth, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Income, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expenses, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The figures as a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All accounts are empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned a month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plan is today&apos;s, restated per month. ▲ marks a month in which more was spent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net worth over time, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the end of each month, what all assets hold less what is owed; %1 at last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net worth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Income and expenses, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What came in and what was spent in each month.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget against actual, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What bills, debts, goals and non-tracked items are planned to take in a month, and what went out for them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the reports, as HTML names it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget against actual by month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balances on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is no currency is kept at its cost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unbalanced virtual postings are kept against Equity:Virtual.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Periodic transactions are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Market prices are left out; they change no balance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no folder for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files include each other too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second days of transactions are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request manager was destroyed before the answer came.</source>
        <translation>La conexión se cerró antes de que llegara la respuesta.</translation>
    </message>
    <message>
        <source>There is nothing to send requests with.</source>
        <translation>No hay nada con que enviar peticiones.</translation>
    </message>
    <message>
        <source>Only HTTPS is allowed, and plain HTTP to the loopback address.</source>
        <translation>Solo se permite HTTPS, y HTTP sin cifrar únicamente a la dirección del propio equipo.</translation>
    </message>
    <message>
        <source>The server redirected to another host or to a protocol that is not allowed.</source>
        <translation>El servidor redirigió a otro equipo o a un protocolo no permitido.</translation>
    </message>
    <message>
        <source>The server redirected more than %1 times.</source>
        <translation>El servidor redirigió más de %1 veces.</translation>
    </message>
    <message>
        <source>The reply was not complete after %1 ms.</source>
        <translation>La respuesta no estaba completa después de %1 ms.</translation>
    </message>
    <message>
        <source>The reply is larger than %1 bytes.</source>
        <translation>La respuesta ocupa más de %1 bytes.</translation>
    </message>
    <message>
        <source>The server answered with the status %1.</source>
        <translation>El servidor respondió con el estado %1.</translation>
    </message>
    <message>
        <source>The reply is compressed although that was not asked for.</source>
        <translation>La respuesta está comprimida, aunque no se pidió.</translation>
    </message>
    <message>
        <source>The transfer failed (%1).</source>
        <translation>La transferencia de datos falló (%1).</translation>
    </message>
    <message>
        <source>The reply&apos;s type is &apos;%1&apos; and not JSON.</source>
        <translation>La respuesta es de tipo «%1» y no JSON.</translation>
    </message>
    <message>
        <source>The reply is not JSON: %1 at byte %2.</source>
        <translation>La respuesta no es JSON: %1 en el byte %2.</translation>
    </message>
    <message>
        <source>The reply names a member twice.</source>
        <translation>La respuesta nombra un elemento dos veces.</translation>
    </message>
    <message>
        <source>Mended while loading: %1</source>
        <translation>Reparado al cargar: %1</translation>
    </message>
    <message>
        <source>Saving without a backup: %1</source>
        <translation>Se guarda sin copia de seguridad: %1</translation>
    </message>
    <message>
        <source>A backup could not be kept: %1</source>
        <translation>No se pudo conservar una copia de seguridad: %1</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>No se eligió ningún archivo.</translation>
    </message>
    <message>
        <source>No file can have the name &apos;%1&apos;.</source>
        <translation>Ningún archivo puede llamarse «%1».</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;.</source>
        <translation>No existe el archivo «%1».</translation>
    </message>
    <message>
        <source>The folder of the file &apos;%1&apos; does not exist.</source>
        <translation>La carpeta del archivo «%1» no existe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a regular file.</source>
        <translation>«%1» no es un archivo normal.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be read: %2.</source>
        <translation>No se pudo leer el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is larger than such a file can be.</source>
        <translation>El archivo «%1» es mayor de lo que puede ser un archivo así.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is empty.</source>
        <translation>El archivo «%1» está vacío.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not of the kind that is used here.</source>
        <translation>El archivo «%1» no es del tipo que se usa aquí.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was written by a newer version of this program.</source>
        <translation>El archivo «%1» lo escribió una versión más reciente de este programa.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged and was not loaded.</source>
        <translation>El archivo «%1» está dañado y no se cargó.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another program.</source>
        <translation>El archivo «%1» lo está usando otro programa.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another program (%2).</source>
        <translation>El archivo «%1» lo está usando otro programa (%2).</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was changed by another program and was not overwritten.</source>
        <translation>Otro programa cambió el archivo «%1», por lo que no se sobrescribió.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: %2.</source>
        <translation>No se pudo guardar el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: what was written reads back otherwise.</source>
        <translation>No se pudo guardar el archivo «%1»: lo escrito se lee de otra manera.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was not saved: it cannot hold what it should.</source>
        <translation>No se guardó el archivo «%1»: no puede contener lo que debería.</translation>
    </message>
    <message>
        <source>process %1, %2 on %3</source>
        <translation>proceso %1, %2 en %3</translation>
    </message>
    <message>
        <source>The closed account &apos;%1&apos; has a balance and was opened.</source>
        <translation>La cuenta cerrada «%1» tiene saldo y se abrió.</translation>
    </message>
    <message>
        <source>A budget item without a name was named &apos;%1&apos;.</source>
        <translation>A una partida sin nombre se le dio el nombre «%1».</translation>
    </message>
    <message>
        <source>The account %1 belonged to the budget item &apos;%2&apos;, which is gone.</source>
        <translation>La cuenta %1 pertenecía a la partida «%2», que ya no existe.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; had lost its account, which was found under the number %2.</source>
        <translation>La partida «%1» había perdido su cuenta, que se encontró con el número %2.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; had lost its account, which was opened anew under the number %2.</source>
        <translation>La partida «%1» había perdido su cuenta, que se abrió de nuevo con el número %2.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; had the account %2, which is gone.</source>
        <translation>El banco «%1» tenía la cuenta %2, que ya no existe.</translation>
    </message>
    <message>
        <source>An increase or a decrease cannot be negative, as %1 is.</source>
        <translation>Un aumento o una disminución no puede ser negativo, como lo es %1.</translation>
    </message>
    <message>
        <source>A survey cannot be completed without a valid date.</source>
        <translation>Una conciliación no se puede completar sin una fecha válida.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version.</source>
        <translation>«%1» no es una versión.</translation>
    </message>
    <message>
        <source>The release&apos;s member &apos;%1&apos; is missing or makes no sense.</source>
        <translation>El elemento «%1» de la versión publicada falta o no tiene sentido.</translation>
    </message>
    <message>
        <source>The reply is not a list of releases.</source>
        <translation>La respuesta no es una lista de versiones publicadas.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Child</source>
        <translation>Niño</translation>
    </message>
    <message>
        <source>Teenager</source>
        <translation>Adolescente</translation>
    </message>
    <message>
        <source>Adult, single</source>
        <translation>Adulto, soltero</translation>
    </message>
    <message>
        <source>Adult, married, single income</source>
        <translation>Adulto, casado, un ingreso</translation>
    </message>
    <message>
        <source>Adult, married, double income</source>
        <translation>Adulto, casado, dos ingresos</translation>
    </message>
    <message>
        <source>Enables the advanced GUI instead of the simplified one.</source>
        <translation>Activa la interfaz avanzada en lugar de la simplificada.</translation>
    </message>
    <message>
        <source>Disables the usage of accounting jargon in the application.</source>
        <translation>Desactiva el uso de jerga contable en la aplicación.</translation>
    </message>
    <message>
        <source>ISO-4217 Code</source>
        <translation>Código ISO 4217</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Symbol and Code</source>
        <translation>Símbolo y código</translation>
    </message>
    <message>
        <source>Processed the budget item due on %2.</source>
        <translation>Se procesó la partida que vencía el %2.</translation>
    </message>
    <message>
        <source>Processed unexpected budget item &apos;%1&apos;.</source>
        <translation>Se procesó la partida imprevista «%1».</translation>
    </message>
    <message>
        <source>Allowance</source>
        <translation>Paga</translation>
    </message>
    <message>
        <source>Part-time Job</source>
        <translation>Trabajo a tiempo parcial</translation>
    </message>
    <message>
        <source>Gifts</source>
        <translation>Regalos</translation>
    </message>
    <message>
        <source>Tax Refund</source>
        <translation>Devolución de impuestos</translation>
    </message>
    <message>
        <source>Mobile carrier</source>
        <translation>Operador de telefonía móvil</translation>
    </message>
    <message>
        <source>Music Subscription</source>
        <translation>Suscripción de música</translation>
    </message>
    <message>
        <source>School-related fees (clubs, sports, etc.)</source>
        <translation>Gastos escolares (clubes, deportes, etc.)</translation>
    </message>
    <message>
        <source>Clothing and accessories</source>
        <translation>Ropa y complementos</translation>
    </message>
    <message>
        <source>Personal care items (toiletries, haircuts)</source>
        <translation>Cuidado personal (aseo, peluquería)</translation>
    </message>
    <message>
        <source>Going to movies</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Outings with friends</source>
        <translation>Salidas con amigos</translation>
    </message>
    <message>
        <source>Dining out</source>
        <translation>Comer fuera</translation>
    </message>
    <message>
        <source>Hobby (sports equipment, art supplies)</source>
        <translation>Afición (material deportivo, material artístico)</translation>
    </message>
    <message>
        <source>Public transportation costs (bus or train fare)</source>
        <translation>Gastos de transporte público (autobús o tren)</translation>
    </message>
    <message>
        <source>Petrol</source>
        <translation>Gasolina</translation>
    </message>
    <message>
        <source>Gifts for friends and family</source>
        <translation>Regalos para amigos y familia</translation>
    </message>
    <message>
        <source>Donation or charity contribution</source>
        <translation>Donativo o contribución benéfica</translation>
    </message>
    <message>
        <source>Car Maintenance (oil change, repair, washing, etc.)</source>
        <translation>Mantenimiento del coche (aceite, reparación, lavado, etc.)</translation>
    </message>
    <message>
        <source>Pet Care</source>
        <translation>Cuidado de mascotas</translation>
    </message>
    <message>
        <source>Car Registration</source>
        <translation>Matriculación del coche</translation>
    </message>
    <message>
        <source>Emergencies</source>
        <translation>Emergencias</translation>
    </message>
    <message>
        <source>Gaming Console</source>
        <translation>Consola de videojuegos</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Coche</translation>
    </message>
    <message>
        <source>Snacks</source>
        <translation>Aperitivos</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Rent or mortgage payment</source>
        <translation>Alquiler o hipoteca</translation>
    </message>
    <message>
        <source>Property taxes</source>
        <translation>Impuesto sobre bienes inmuebles</translation>
    </message>
    <message>
        <source>Homeowners or renters insurance</source>
        <translation>Seguro de hogar</translation>
    </message>
    <message>
        <source>Electricity</source>
        <translation>Electricidad</translation>
    </message>
    <message>
        <source>Water and sewage</source>
        <translation>Agua y alcantarillado</translation>
    </message>
    <message>
        <source>Gas or heating</source>
        <translation>Gas o calefacción</translation>
    </message>
    <message>
        <source>Inter-net and cable</source>
        <translation>Internet y televisión por cable</translation>
    </message>
    <message>
        <source>Rubbish collection</source>
        <translation>Recogida de basuras</translation>
    </message>
    <message>
        <source>Groceries &amp; Household Supplies (cleaning products, toiletries, etc.)</source>
        <translation>Comestibles &amp; artículos para el hogar (limpieza, aseo, etc.)</translation>
    </message>
    <message>
        <source>Public transportation</source>
        <translation>Transporte público</translation>
    </message>
    <message>
        <source>Car Insurance</source>
        <translation>Seguro del coche</translation>
    </message>
    <message>
        <source>Health insurance premiums</source>
        <translation>Seguro médico</translation>
    </message>
    <message>
        <source>Medical Care (e.g. Out-of-pocket medical expenses, doctor visits, prescriptions)</source>
        <translation>Atención médica (p. ej. gastos propios, visitas al médico, recetas)</translation>
    </message>
    <message>
        <source>Gym or fitness memberships</source>
        <translation>Gimnasio</translation>
    </message>
    <message>
        <source>Retirement savings (401(k), IRA) contribution</source>
        <translation>Ahorro para la jubilación (planes de pensiones)</translation>
    </message>
    <message>
        <source>Travel and vacations</source>
        <translation>Viajes y vacaciones</translation>
    </message>
    <message>
        <source>Subscriptions (streaming services, magazines)</source>
        <translation>Suscripciones (streaming, revistas)</translation>
    </message>
    <message>
        <source>Dating</source>
        <translation>Citas</translation>
    </message>
    <message>
        <source>Hobbies and activities</source>
        <translation>Aficiones y actividades</translation>
    </message>
    <message>
        <source>Identification Document</source>
        <translation>Documento de identidad</translation>
    </message>
    <message>
        <source>Spring Holiday Meal</source>
        <translation>Comida festiva de primavera</translation>
    </message>
    <message>
        <source>Winter Holiday Meal</source>
        <translation>Comida festiva de invierno</translation>
    </message>
    <message>
        <source>Winter Holiday Gifts</source>
        <translation>Regalos de las fiestas de invierno</translation>
    </message>
    <message>
        <source>Unexpected (3-Months Wages)</source>
        <translation>Imprevistos (3 meses de salario)</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>Car Down Payment</source>
        <translation>Entrada del coche</translation>
    </message>
    <message>
        <source>Home Down Payment</source>
        <translation>Entrada de la vivienda</translation>
    </message>
    <message>
        <source>Free Money</source>
        <translation>Dinero libre</translation>
    </message>
    <message>
        <source>Free Money Adult 2</source>
        <translation>Dinero libre adulto 2</translation>
    </message>
    <message>
        <source>Mobile Adult 2</source>
        <translation>Móvil adulto 2</translation>
    </message>
    <message>
        <source>Petrol Adult 2</source>
        <translation>Gasolina adulto 2</translation>
    </message>
    <message>
        <source>Public transportation Adult 2</source>
        <translation>Transporte público adulto 2</translation>
    </message>
    <message>
        <source>Identification Document Adult 2</source>
        <translation>Documento de identidad adulto 2</translation>
    </message>
    <message>
        <source>Car Registration Adult 2</source>
        <translation>Matriculación del coche adulto 2</translation>
    </message>
    <message>
        <source>Job Adult 2</source>
        <translation>Trabajo adulto 2</translation>
    </message>
    <message>
        <source>Date Night</source>
        <translation>Noche en pareja</translation>
    </message>
    <message>
        <source>Free Money Adult 1</source>
        <translation>Dinero libre adulto 1</translation>
    </message>
    <message>
        <source>Mobile Adult 1</source>
        <translation>Móvil adulto 1</translation>
    </message>
    <message>
        <source>Petrol Adult 1</source>
        <translation>Gasolina adulto 1</translation>
    </message>
    <message>
        <source>Public transportation Adult 1</source>
        <translation>Transporte público adulto 1</translation>
    </message>
    <message>
        <source>Identification Document Adult 1</source>
        <translation>Documento de identidad adulto 1</translation>
    </message>
    <message>
        <source>Car Registration Adult 1</source>
        <translation>Matriculación del coche adulto 1</translation>
    </message>
    <message>
        <source>Job Adult 1</source>
        <translation>Trabajo adulto 1</translation>
    </message>
    <message>
        <source>The number of work hours in a week must be between %1 and %2.</source>
        <translation>El número de horas de trabajo por semana debe estar entre %1 y %2.</translation>
    </message>
    <message>
        <source>The number of work days in a week must be between %1 and %2.</source>
        <translation>El número de días de trabajo por semana debe estar entre %1 y %2.</translation>
    </message>
    <message>
        <source>The data.usable_ currencies must contain &apos;%1&apos;, as they are currently in use in the application.</source>
        <translation>Las monedas utilizables deben incluir «%1», porque están en uso en este momento.</translation>
    </message>
    <message>
        <source>The number of days to notify within must be between %1 and %2.</source>
        <translation>El número de días de aviso previo debe estar entre %1 y %2.</translation>
    </message>
    <message>
        <source>The survey balance window must be between %1 and %2 percent.</source>
        <translation>El margen de la conciliación debe estar entre el %1 y el %2 por ciento.</translation>
    </message>
    <message>
        <source>The budget does not have a bill source named &apos;%1&apos;.</source>
        <translation>El presupuesto no tiene ninguna factura llamada «%1».</translation>
    </message>
    <message>
        <source>Cannot update a bill that does not exist.</source>
        <translation>No se puede cambiar una factura que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a bill that does not exist.</source>
        <translation>No se puede eliminar una factura que no existe.</translation>
    </message>
    <message>
        <source>The budget does not have a debt source named &apos;%1&apos;.</source>
        <translation>El presupuesto no tiene ninguna deuda llamada «%1».</translation>
    </message>
    <message>
        <source>Cannot update a debt that does not exist.</source>
        <translation>No se puede cambiar una deuda que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a debt that does not exist.</source>
        <translation>No se puede eliminar una deuda que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a debt that has a balance.</source>
        <translation>No se puede eliminar una deuda que tiene saldo.</translation>
    </message>
    <message>
        <source>Failure making the debt bank account association.</source>
        <translation>No se pudo vincular la deuda a la cuenta bancaria.</translation>
    </message>
    <message>
        <source>Failure updating the debt bank account association.</source>
        <translation>No se pudo cambiar el vínculo de la deuda con la cuenta bancaria.</translation>
    </message>
    <message>
        <source>The budget does not have a goal source named &apos;%1&apos;.</source>
        <translation>El presupuesto no tiene ninguna meta llamada «%1».</translation>
    </message>
    <message>
        <source>Cannot update a goal that does not exist.</source>
        <translation>No se puede cambiar una meta que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a goal that does not exist.</source>
        <translation>No se puede eliminar una meta que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a goal that has a balance.</source>
        <translation>No se puede eliminar una meta que tiene saldo.</translation>
    </message>
    <message>
        <source>Failure making the goal bank account association.</source>
        <translation>No se pudo vincular la meta a la cuenta bancaria.</translation>
    </message>
    <message>
        <source>Failed to update the goal bank account association.</source>
        <translation>No se pudo cambiar el vínculo de la meta con la cuenta bancaria.</translation>
    </message>
    <message>
        <source>The budget does not have a non-tracked source named &apos;%1&apos;.</source>
        <translation>El presupuesto no tiene ninguna partida sin seguimiento llamada «%1».</translation>
    </message>
    <message>
        <source>Cannot update a nontrack that does not exist.</source>
        <translation>No se puede cambiar una partida sin seguimiento que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a nontrack that does not exist.</source>
        <translation>No se puede eliminar una partida sin seguimiento que no existe.</translation>
    </message>
    <message>
        <source>The budget does not have a wage source named &apos;%1&apos;.</source>
        <translation>El presupuesto no tiene ningún salario llamado «%1».</translation>
    </message>
    <message>
        <source>Cannot update a wage that does not exist.</source>
        <translation>No se puede cambiar un salario que no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a wage that does not exist.</source>
        <translation>No se puede eliminar un salario que no existe.</translation>
    </message>
    <message>
        <source>The bank account number, %1, does not match the account code number, %2.</source>
        <translation>El número de la cuenta bancaria, %1, no coincide con el número de la cuenta, %2.</translation>
    </message>
    <message>
        <source>Unknown budget code type!</source>
        <translation>¡Tipo de cuenta de presupuesto desconocido!</translation>
    </message>
    <message>
        <source>The account ledger does not have an account number &apos;%1&apos;.</source>
        <translation>El libro mayor no tiene el número de cuenta «%1».</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; is not a known type that is a budget money!</source>
        <translation>¡La partida «%1» no es de ningún tipo conocido!</translation>
    </message>
    <message>
        <source>The budget item type &apos;%1&apos; is not a known type.</source>
        <translation>El tipo de partida «%1» no es un tipo conocido.</translation>
    </message>
    <message>
        <source>Cannot process unexpected budget item that has an unknown type.</source>
        <translation>No se puede procesar una partida imprevista de tipo desconocido.</translation>
    </message>
    <message>
        <source>Failed to locate the unexpected budget item source to post.</source>
        <translation>No se encontró la partida imprevista que se quería registrar.</translation>
    </message>
    <message>
        <source>There is %1 distributed in the surveyed bank account %2. Empty the distribution first before removing the budgeted item.</source>
        <translation>Hay %1 repartidos en la cuenta bancaria conciliada %2. Antes de eliminar la partida hay que vaciar ese reparto.</translation>
    </message>
    <message>
        <source>The account ledger number is not present in the general ledger.</source>
        <translation>El número de cuenta no está en el libro mayor.</translation>
    </message>
    <message>
        <source>Adding the account &apos;%1&apos; is not in the general ledger.</source>
        <translation>La cuenta que se añade, «%1», no está en el libro mayor.</translation>
    </message>
    <message>
        <source>Invalid mapping between the account ledger &apos;%1&apos; and the bank account type &apos;%2&apos; during bank creation.</source>
        <translation>Al crear el banco, la cuenta «%1» no corresponde al tipo de cuenta bancaria «%2».</translation>
    </message>
    <message>
        <source>The bank does not exist.</source>
        <translation>El banco no existe.</translation>
    </message>
    <message>
        <source>The account name &apos;%1&apos; is already associated with the bank &apos;%2&apos;.</source>
        <translation>El nombre de cuenta «%1» ya está vinculado al banco «%2».</translation>
    </message>
    <message>
        <source>The general ledger does not have the account number &apos;%1&apos;.</source>
        <translation>El libro mayor no tiene el número de cuenta «%1».</translation>
    </message>
    <message>
        <source>The bank account type cannot be unknown.</source>
        <translation>El tipo de la cuenta bancaria no puede ser desconocido.</translation>
    </message>
    <message>
        <source>Cannot remove a bank account when the bank does not exist.</source>
        <translation>No se puede quitar una cuenta bancaria si el banco no existe.</translation>
    </message>
    <message>
        <source>Cannot remove a bank account when no association exists.</source>
        <translation>No se puede quitar una cuenta bancaria que no está vinculada a ningún banco.</translation>
    </message>
    <message>
        <source>Cannot update when a bank by that name does not exist.</source>
        <translation>No se puede cambiar un banco con ese nombre, porque no existe.</translation>
    </message>
    <message>
        <source>Cannot close a bank via an update.</source>
        <translation>No se puede cerrar un banco mediante un cambio.</translation>
    </message>
    <message>
        <source>Updating the account &apos;%1&apos; is not in the general ledger.</source>
        <translation>La cuenta que se cambia, «%1», no está en el libro mayor.</translation>
    </message>
    <message>
        <source>Invalid mapping between the account ledger &apos;%1&apos; and the bank account type &apos;%2&apos;.</source>
        <translation>La cuenta «%1» no corresponde al tipo de cuenta bancaria «%2».</translation>
    </message>
    <message>
        <source>Cannot change the bank account type once set.</source>
        <translation>El tipo de una cuenta bancaria no se puede cambiar una vez fijado.</translation>
    </message>
    <message>
        <source>Cannot remove when a bank by that name does not exist.</source>
        <translation>No se puede eliminar un banco con ese nombre, porque no existe.</translation>
    </message>
    <message>
        <source>Cannot remove when the bank is closed.</source>
        <translation>No se puede eliminar un banco cerrado.</translation>
    </message>
    <message>
        <source>Cannot remove the bank as the account number &apos;%1&apos; cannot be removed.</source>
        <translation>No se puede eliminar el banco, porque el número de cuenta «%1» no se puede eliminar.</translation>
    </message>
    <message>
        <source>Cannot recode a bank account when no association exists.</source>
        <translation>No se puede renumerar una cuenta bancaria sin vínculo.</translation>
    </message>
    <message>
        <source>Cannot recode the account &apos;%1&apos; to the account &apos;%2&apos; as it is already associated.</source>
        <translation>No se puede renumerar la cuenta «%1» como «%2», porque esta ya está vinculada.</translation>
    </message>
    <message>
        <source>Found an account code name that is the same name as a budget item.</source>
        <translation>Se encontró una cuenta con el mismo nombre que una partida.</translation>
    </message>
    <message>
        <source>The budget item has the same name as an existing ledger account.</source>
        <translation>La partida tiene el mismo nombre que una cuenta existente.</translation>
    </message>
    <message>
        <source>The code name is the same name as an existing budget item.</source>
        <translation>La cuenta tiene el mismo nombre que una partida existente.</translation>
    </message>
    <message>
        <source>Cannot process budget item due that has an unknown type.</source>
        <translation>No se puede procesar una partida vencida de tipo desconocido.</translation>
    </message>
    <message>
        <source>Cannot skip a budget item when its type is not known.</source>
        <translation>No se puede omitir una partida de tipo desconocido.</translation>
    </message>
    <message>
        <source>A bank account cannot have its parent account removed.</source>
        <translation>A una cuenta bancaria no se le puede quitar su cuenta superior.</translation>
    </message>
    <message>
        <source>A bank account cannot have its parent account changed to non-bank account.</source>
        <translation>La cuenta superior de una cuenta bancaria solo puede ser otra cuenta bancaria.</translation>
    </message>
    <message>
        <source>Cannot change parent accounts of a bank account that has transactions that have been reconciled.</source>
        <translation>No se puede cambiar la cuenta superior de una cuenta bancaria con asientos conciliados.</translation>
    </message>
    <message>
        <source>Cannot get the last reconciliation amount, because no bank account is associated with the account &apos;%1&apos;.</source>
        <translation>No se puede obtener el importe de la última conciliación, porque la cuenta «%1» no está vinculada a ninguna cuenta bancaria.</translation>
    </message>
    <message>
        <source>The bank account cannot be set directly when updating a debt.</source>
        <translation>Al cambiar una deuda no se puede fijar directamente la cuenta bancaria.</translation>
    </message>
    <message>
        <source>A goal must have an account to store under a bank account.</source>
        <translation>Una meta necesita una cuenta que pueda depender de una cuenta bancaria.</translation>
    </message>
    <message>
        <source>Cannot change a goal’s bank account once it has been reconciled.</source>
        <translation>La cuenta bancaria de una meta no se puede cambiar después de conciliarla.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey upon a bank that does not exist.</source>
        <translation>No se puede conciliar con un banco que no existe.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey upon an account that does not exist.</source>
        <translation>No se puede conciliar una cuenta que no existe.</translation>
    </message>
    <message>
        <source>Cannot map a survey for a bank account that does not exist.</source>
        <translation>No se puede conciliar una cuenta bancaria que no existe.</translation>
    </message>
    <message>
        <source>Cannot perform a mapping survey for a future date, %1.</source>
        <translation>No se puede conciliar en una fecha futura, %1.</translation>
    </message>
    <message>
        <source>Failed to determine the bank account involved in the additional transaction %1.</source>
        <translation>No se pudo determinar la cuenta bancaria del asiento adicional %1.</translation>
    </message>
    <message>
        <source>The transaction %1 is not in the bank account ledger nor one of its children.</source>
        <translation>El asiento %1 no está ni en la cuenta bancaria ni en ninguna de sus subcuentas.</translation>
    </message>
    <message>
        <source>The posting date for transaction %1 is %2 which is after the survey date, %3.</source>
        <translation>La fecha del asiento %1 es el %2, posterior a la fecha de la conciliación, el %3.</translation>
    </message>
    <message>
        <source>The surveying bank account is neither an asset nor a liability!</source>
        <translation>¡La cuenta bancaria que se concilia no es ni activo ni pasivo!</translation>
    </message>
    <message>
        <source>The calculated budget item transaction total, &apos;%1&apos;, must be within %2 of the reconciled current balance, &apos;%3&apos;.</source>
        <translation>El total calculado de los asientos, «%1», no puede apartarse más de un %2 del saldo conciliado, «%3».</translation>
    </message>
    <message>
        <source>The budget item %1 cannot be distributed.</source>
        <translation>No se puede repartir dinero a la partida %1.</translation>
    </message>
    <message>
        <source>Cannot manually distribute into the goal &apos;%1&apos;.</source>
        <translation>No se puede repartir a mano a la meta «%1».</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; has no account code associated with it.</source>
        <translation>La partida «%1» no tiene ninguna cuenta vinculada.</translation>
    </message>
    <message>
        <source>Failed to locate the reconciled transaction to determine its kind!</source>
        <translation>¡No se encontró el asiento conciliado, por lo que se desconoce su clase!</translation>
    </message>
    <message>
        <source>Additional surveyed income.</source>
        <translation>Ingreso adicional de la conciliación.</translation>
    </message>
    <message>
        <source>Additional surveyed charges.</source>
        <translation>Cargos adicionales de la conciliación.</translation>
    </message>
    <message>
        <source>Additional surveyed expense.</source>
        <translation>Gasto adicional de la conciliación.</translation>
    </message>
    <message>
        <source>Additional surveyed payments.</source>
        <translation>Pagos adicionales de la conciliación.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed income.</source>
        <translation>Ingreso fuera del presupuesto según la conciliación.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed charges.</source>
        <translation>Cargos fuera del presupuesto según la conciliación.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed expense.</source>
        <translation>Gasto fuera del presupuesto según la conciliación.</translation>
    </message>
    <message>
        <source>Extra-budget surveyed payments.</source>
        <translation>Pagos fuera del presupuesto según la conciliación.</translation>
    </message>
    <message>
        <source>Cannot convert between currencies, because what looked up the exchange rates has been closed.</source>
        <translation>No se puede convertir entre monedas, porque se cerró lo que consultaba los tipos de cambio.</translation>
    </message>
    <message>
        <source>The user preferences file, %1, is not writable.</source>
        <translation>No se puede escribir en el archivo de preferencias, %1.</translation>
    </message>
    <message>
        <source>A command is missing; --help lists those that there are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no accounts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no transactions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added the account %1 %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account %1 is now %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed the account %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened the account %1 again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the account %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no banks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (closed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It keeps no accounts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added the bank &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank is now called &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added the account %1 at the bank &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; keeps the account %2 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; no longer keeps the account %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed the bank &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened the bank &apos;%1&apos; again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the bank &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank account %1 is now %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the bank account %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made the empty budget &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved the budget as &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Banks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum of debits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum of credits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferred currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usable currencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currencies are shown by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days in which items count as due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Survey window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work hours a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work days a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no tags.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the tags %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non-tracked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due within %1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget health: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted the %1 &apos;%2&apos;, due on %3: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted %1 for the %2 &apos;%3&apos;, which is still due on %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped the %1 &apos;%2&apos; due on %3; it is next due on %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is outside of the journal&apos;s own folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all files together are too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries of nothing are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted %1 transactions, left out %2 duplicates, opened %3 accounts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no transactions in the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added the %1 &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed the %1 &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 &apos;%2&apos; is now called &apos;%3&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the %1 &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Borrowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For one %1, as of %2 (no longer current)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For one %1, as of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No exchange rates are known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetching exchange rates …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No newer release is announced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a newer release: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no releases.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Household report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget against actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no budget items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day of the statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last reconciled on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes counted from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still due this month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes by budget item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposed distribution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to set aside for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not distributed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconciled %1 with a balance of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does the statement show %1 %2 &apos;%3&apos;, %4?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement&apos;s balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money for an item that is not booked, as ITEM=AMOUNT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money for another account, as ACCOUNT=AMOUNT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is set aside for an item, as ITEM=AMOUNT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete the survey?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was never reconciled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was reconciled on %2 with a balance of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(exit status %1)
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command ended otherwise than expected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new budget, kept in US dollars, with a bank and its checking account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What comes in, and what goes out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is due is posted; the studio is closed this month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No account may bear a budget item&apos;s name: refused, nothing changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every change above was saved at once; here the file is opened again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The debits do not equal the credits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sum of all debits equals the sum of all credits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted transaction %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted %1 transactions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed transaction %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posted the refund as transaction %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the transactions %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleared the transactions %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconciled the transactions %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Took the reconciliation of %1 back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The budget is again as it was saved at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That changes nothing in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They hold the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no budget items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made the budget &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Household</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; did you mean %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value on the command line is not valid UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name cannot be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date; write one like 2026-03-31, with a day that exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount; write one like 1234.50 or &apos;1234.50 USD&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount &apos;%1&apos; is too large to be kept exactly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount of %2, which has no minor unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more digits behind the point than the %2 of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write its ISO 4217 code, like USD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a percentage; write one like 2.75.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to change was given; --help lists what can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No budget file was named; use --file or the variable KIV_FILE, or make one with kiv new FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form NAME=VALUE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv --help lists those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no option of this command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--help lists those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quote is not closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a profile; use letters, digits, &apos;-&apos; and &apos;_&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot understand %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no account &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv accounts lists those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several accounts are named &apos;%1&apos;; give the number of one: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no bank &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv banks lists those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bank keeps the account &apos;%1&apos;; kiv bank-account attach ties it to one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no %1 &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv %1 list shows those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no budget item &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv bill list and the like show those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several budget items are named &apos;%1&apos;; choose one with --kind: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answers ended before the questions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The survey was not completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The exchange rates could not be fetched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The releases could not be fetched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The budget could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no tag &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv tags list shows those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no former version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none was kept of this budget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv history lists those that are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version in &apos;%1&apos; is not whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 &apos;%3&apos; cannot be processed while there is a %2 of the same name; rename one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money can be moved out of an asset account that a bank keeps, which &apos;%1&apos; is not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money can be moved into an asset account that a bank keeps and that stands under no other, which &apos;%1&apos; is not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no transaction %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kiv transactions lists those that there are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;; --save-profile saves one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos; among: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say with --against which account is the other side of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; exists already; choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than 64 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no list of transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transaction %1 of &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This was a dry run: nothing is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kiv::navigation::Navigator</name>
    <message>
        <source>The provided item type does not match the item&apos;s type.</source>
        <translation>El tipo indicado no coincide con el tipo de la partida.</translation>
    </message>
    <message>
        <source>The provided item source does not match the item&apos;s source.</source>
        <translation>El nombre indicado no coincide con el nombre de la partida.</translation>
    </message>
    <message>
        <source>Failed to add the bank account &apos;%1&apos; for the first time wizard.</source>
        <translation>No se pudo añadir la cuenta bancaria «%1» en la configuración inicial.</translation>
    </message>
    <message>
        <source>Failed to add the bank &apos;%1&apos; for the first time wizard.</source>
        <translation>No se pudo añadir el banco «%1» en la configuración inicial.</translation>
    </message>
    <message>
        <source>Failed to add the generate the %1 budget item &apos;%2&apos; for the first time wizard.</source>
        <translation>No se pudo generar la partida «%2» (%1) en la configuración inicial.</translation>
    </message>
</context>
</TS>
