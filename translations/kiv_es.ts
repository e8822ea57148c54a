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
        <source>The account &apos;%1&apos; cannot have the number of the account &apos;%2&apos;.</source>
        <translation>La cuenta «%1» no puede tener el número de la cuenta «%2».</translation>
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
        <source>The account &apos;%1&apos; cannot stand under the account &apos;%2&apos;, which is the same account or stands under it.</source>
        <translation>La cuenta «%1» no puede depender de la cuenta «%2», que es la misma o depende de ella.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; cannot stand under the account &apos;%2&apos;: accounts can be nested at most %3 deep.</source>
        <translation>La cuenta «%1» no puede depender de la cuenta «%2»: las cuentas se pueden anidar en un máximo de %3 niveles.</translation>
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
        <source>The account &apos;%1&apos; cannot be removed while its opening transaction %2 is reconciled.</source>
        <translation>La cuenta «%1» no se puede eliminar mientras su asiento de apertura, %2, esté conciliado.</translation>
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
        <source>The account &apos;%1&apos; cannot be kept in %2: the %3 of its transaction %4 would round to zero.</source>
        <translation>La cuenta «%1» no se puede llevar en %2: los %3 de su asiento %4 se redondearían a cero.</translation>
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
        <source>The amount %1 rounds to zero in %2.</source>
        <translation>El importe %1 se redondea a cero en %2.</translation>
    </message>
    <message>
        <source>The ledger is full: it holds at most 65,535 transactions.</source>
        <translation>El libro mayor está lleno: admite como máximo 65.535 asientos.</translation>
    </message>
    <message>
        <source>The transaction %1 is reconciled; undo its reconciliation before you change it.</source>
        <translation>El asiento %1 está conciliado; antes de cambiarlo hay que anular su conciliación.</translation>
    </message>
    <message>
        <source>The account %1 is not part of the transaction %2.</source>
        <translation>La cuenta %1 no interviene en el asiento %2.</translation>
    </message>
    <message>
        <source>The transaction %1 opened the account &apos;%2&apos; and must stay in it.</source>
        <translation>El asiento %1 abrió la cuenta «%2» y debe seguir en ella.</translation>
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
        <source>Two transactions have the number %1.</source>
        <translation>Dos asientos tienen el número %1.</translation>
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
        <source>%1 % of the income is planned; at most %2 % is possible.</source>
        <translation>El %1 % de los ingresos está asignado; como máximo es posible el %2 %.</translation>
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
        <source>There is no income and no spending yet.</source>
        <translation>Todavía no hay ingresos ni gastos.</translation>
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
        <source>The amount of the budget item &apos;%1&apos; cannot be negative, but is %2.</source>
        <translation>El importe de la partida «%1» no puede ser negativo, pero es %2.</translation>
    </message>
    <message>
        <source>The budget item &apos;%1&apos; cannot recur on day %2 of a month.</source>
        <translation>La partida «%1» no puede repetirse el día %2 de un mes.</translation>
    </message>
    <message>
        <source>A budget item without a frequency has no next date.</source>
        <translation>Una partida sin frecuencia no tiene próxima fecha.</translation>
    </message>
    <message>
        <source>A budget item with the frequency &apos;%2&apos; has no date after %1.</source>
        <translation>Una partida con la frecuencia «%2» no tiene ninguna fecha después del %1.</translation>
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
        <source>Exchange rates need a base currency.</source>
        <translation>Los tipos de cambio necesitan una moneda base.</translation>
    </message>
    <message>
        <source>Exchange rates need the time when they were fetched.</source>
        <translation>Los tipos de cambio necesitan la hora en que se obtuvieron.</translation>
    </message>
    <message>
        <source>There is no exchange rate from &apos;%1&apos; to &apos;%2&apos;; fetch the rates, or set it by hand.</source>
        <translation>No hay ningún tipo de cambio de «%1» a «%2»; hay que obtenerlo o fijarlo a mano.</translation>
    </message>
    <message>
        <source>The member &apos;%1&apos; of the reply is missing or invalid.</source>
        <translation>El elemento «%1» de la respuesta falta o no es válido.</translation>
    </message>
    <message>
        <source>The reply contains the unknown currency &apos;%1&apos;.</source>
        <translation>La respuesta contiene la moneda desconocida «%1».</translation>
    </message>
    <message>
        <source>No answer came in time.</source>
        <translation>No llegó ninguna respuesta a tiempo.</translation>
    </message>
    <message>
        <source>The source of the rates was closed before it answered.</source>
        <translation>La fuente de los tipos de cambio se cerró antes de responder.</translation>
    </message>
    <message>
        <source>Requests can no longer be sent.</source>
        <translation>Ya no se pueden enviar peticiones.</translation>
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
        <source>amount</source>
        <translation>importe</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, line %2: %3</source>
        <translation>«%1», línea %2: %3</translation>
    </message>
    <message>
        <source>&apos;%1&apos;: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>The file is not valid %1 here; name its encoding with --encoding.</source>
        <translation>El archivo no es %1 válido aquí; su codificación se indica con --encoding.</translation>
    </message>
    <message>
        <source>The line has more than %1 characters.</source>
        <translation>La línea tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>A budget holds no more than %1 transactions.</source>
        <translation>Un presupuesto admite como máximo %1 asientos.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date in the form %2.</source>
        <translation>«%1» no es una fecha escrita como %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number.</source>
        <translation>«%1» no es un número.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; can be read in two ways; name the decimal mark with --decimal.</source>
        <translation>«%1» se puede leer de dos maneras; la marca decimal se indica con --decimal.</translation>
    </message>
    <message>
        <source>An amount here is too large to be kept exactly.</source>
        <translation>Un importe de aquí es demasiado grande para conservarlo con exactitud.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more decimal places than %3, which has %2.</source>
        <translation>«%1» tiene más decimales que %3, que tiene %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the ISO 4217 code of a currency.</source>
        <translation>«%1» no es el código ISO 4217 de una moneda.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be imported.</source>
        <translation>«%1» no se puede importar.</translation>
    </message>
    <message>
        <source>The line is indented but belongs to no transaction or directive.</source>
        <translation>La línea está sangrada, pero no pertenece a ningún asiento ni directiva.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; begins here and is never closed.</source>
        <translation>«%1» empieza aquí y nunca se cierra.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known top-level account; tell what it is with --root, like --root &apos;%1=asset&apos;.</source>
        <translation>«%1» no es una cuenta raíz conocida; lo que es se indica con --root, por ejemplo --root &apos;%1=asset&apos;.</translation>
    </message>
    <message>
        <source>The account name is missing.</source>
        <translation>Falta el nombre de la cuenta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount.</source>
        <translation>«%1» no es un importe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no currency; name one with --currency.</source>
        <translation>«%1» no tiene moneda; se indica con --currency.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency; write its cost after @, or name its currency, like --commodity &apos;%1=USD&apos;.</source>
        <translation>«%1» no es una moneda; su coste puede ponerse tras @, o se indica su moneda, por ejemplo --commodity &apos;%1=USD&apos;.</translation>
    </message>
    <message>
        <source>The transaction has fewer than two postings.</source>
        <translation>El asiento tiene menos de dos apuntes.</translation>
    </message>
    <message>
        <source>More than one posting of the transaction has no amount.</source>
        <translation>Más de un apunte del asiento no tiene importe.</translation>
    </message>
    <message>
        <source>The transaction does not balance; it is off by %1.</source>
        <translation>El asiento no cuadra; la diferencia es %1.</translation>
    </message>
    <message>
        <source>The balance of &apos;%1&apos; should be %2 here, but is %3.</source>
        <translation>El saldo de «%1» debería ser aquí %2, pero es %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid pattern for account names.</source>
        <translation>«%1» no es un patrón válido de nombres de cuenta.</translation>
    </message>
    <message>
        <source>Cannot include &apos;%1&apos;: %2.</source>
        <translation>No se puede incluir «%1»: %2.</translation>
    </message>
    <message>
        <source>A quote opens here and is never closed.</source>
        <translation>Unas comillas se abren aquí y nunca se cierran.</translation>
    </message>
    <message>
        <source>There is text after a closing quote, before the next delimiter.</source>
        <translation>Hay texto entre unas comillas de cierre y el siguiente separador.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos;; the columns are: %2.</source>
        <translation>No hay ninguna columna «%1»; las columnas son: %2.</translation>
    </message>
    <message>
        <source>A column is not known; name it with %1. The columns are: %2.</source>
        <translation>No se conoce una columna; se indica con %1. Las columnas son: %2.</translation>
    </message>
    <message>
        <source>This table is an exported ledger, not a bank statement; import the journal instead.</source>
        <translation>Esta tabla es un libro mayor exportado y no un extracto; en su lugar se puede importar el diario.</translation>
    </message>
    <message>
        <source>The row has one amount that came in and one that went out.</source>
        <translation>La fila tiene un importe que entró y otro que salió.</translation>
    </message>
    <message>
        <source>The entry has no %1.</source>
        <translation>A la entrada le falta: %1.</translation>
    </message>
    <message>
        <source>The amount is in %1, but the account is in %2.</source>
        <translation>El importe está en %1, pero la cuenta en %2.</translation>
    </message>
    <message>
        <source>The file contains no &lt;OFX&gt;.</source>
        <translation>El archivo no contiene ningún &lt;OFX&gt;.</translation>
    </message>
    <message>
        <source>A tag is broken: its name or its &apos;&gt;&apos; is missing.</source>
        <translation>Una etiqueta está rota: le falta el nombre o su «&gt;».</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; does not close &lt;%2&gt;, which opens on line %3.</source>
        <translation>&lt;/%1&gt; no cierra &lt;%2&gt;, que se abre en la línea %3.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is never closed.</source>
        <translation>&lt;%1&gt; nunca se cierra.</translation>
    </message>
    <message>
        <source>Tags are nested too deeply.</source>
        <translation>Las etiquetas están anidadas a demasiada profundidad.</translation>
    </message>
    <message>
        <source>The file contains no statement of a bank account or credit card.</source>
        <translation>El archivo no contiene ningún extracto de una cuenta bancaria o de una tarjeta de crédito.</translation>
    </message>
    <message>
        <source>The file contains several statements; choose one with --statement: %1.</source>
        <translation>El archivo contiene varios extractos; se elige uno con --statement: %1.</translation>
    </message>
    <message>
        <source>The file contains no statement of &apos;%1&apos;; choose one of: %2.</source>
        <translation>El archivo no contiene ningún extracto de «%1»; se puede elegir entre: %2.</translation>
    </message>
    <message>
        <source>The file does not begin with a QIF header like !Type:Bank.</source>
        <translation>El archivo no empieza con una cabecera QIF como !Type:Bank.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known field of a bank statement.</source>
        <translation>«%1» no es un campo conocido de un extracto.</translation>
    </message>
    <message>
        <source>The parts add up to %1, but the whole is %2.</source>
        <translation>Las partes suman %1, pero el total es %2.</translation>
    </message>
    <message>
        <source>A report cannot end before it begins.</source>
        <translation>Un informe no puede terminar antes de empezar.</translation>
    </message>
    <message>
        <source>Net worth, %1</source>
        <translation>Patrimonio neto, %1</translation>
    </message>
    <message>
        <source>Income, %1</source>
        <translation>Ingresos, %1</translation>
    </message>
    <message>
        <source>Expenses, %1</source>
        <translation>Gastos, %1</translation>
    </message>
    <message>
        <source>The figures as a table</source>
        <translation>Las cifras en una tabla</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Total, %1</source>
        <translation>Total, %1</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>All accounts are empty.</source>
        <translation>Todas las cuentas están vacías.</translation>
    </message>
    <message>
        <source>Planned per month</source>
        <translation>Previsto al mes</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Partida</translation>
    </message>
    <message>
        <source>The plan is today&apos;s, restated per month. ▲ marks months with higher spending.</source>
        <translation>El plan es el de hoy, expresado por mes. ▲ señala los meses con más gasto.</translation>
    </message>
    <message>
        <source>Net worth over time, %1</source>
        <translation>Evolución del patrimonio neto, %1</translation>
    </message>
    <message>
        <source>All assets less all debts at the end of each month; the last is %1.</source>
        <translation>Lo que suman todos los activos al final de cada mes, menos lo que se debe; el último, %1.</translation>
    </message>
    <message>
        <source>Net worth</source>
        <translation>Patrimonio neto</translation>
    </message>
    <message>
        <source>Income and expenses, %1</source>
        <translation>Ingresos y gastos, %1</translation>
    </message>
    <message>
        <source>Money that came in and money spent in each month.</source>
        <translation>Lo que entró y lo que se gastó cada mes.</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Gastos</translation>
    </message>
    <message>
        <source>Budget against actual, %1</source>
        <translation>Presupuesto y gasto real, %1</translation>
    </message>
    <message>
        <source>Planned and actual spending per month on bills, debts, goals and non-tracked items.</source>
        <translation>Gasto previsto y real al mes en facturas, deudas, metas y partidas sin seguimiento.</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Previsto</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Real</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the reports, as HTML names it</comment>
        <translation>es</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Del %1 al %2</translation>
    </message>
    <message>
        <source>Balances on %1</source>
        <translation>Saldos a %1</translation>
    </message>
    <message>
        <source>Commodities other than currencies are kept at their cost.</source>
        <translation>Lo que no es una moneda se lleva a su coste.</translation>
    </message>
    <message>
        <source>Unbalanced virtual postings are posted against Equity:Virtual.</source>
        <translation>Los apuntes virtuales que no cuadran se registran contra Equity:Virtual.</translation>
    </message>
    <message>
        <source>Periodic transactions are skipped.</source>
        <translation>Los asientos periódicos se omiten.</translation>
    </message>
    <message>
        <source>Market prices are skipped; they change no balance.</source>
        <translation>Los precios de mercado se omiten; no cambian ningún saldo.</translation>
    </message>
    <message>
        <source>the journal has no folder</source>
        <translation>el diario no tiene carpeta</translation>
    </message>
    <message>
        <source>too many files include each other</source>
        <translation>demasiados archivos se incluyen unos a otros</translation>
    </message>
    <message>
        <source>Second dates of transactions are skipped.</source>
        <translation>Las segundas fechas de los asientos se omiten.</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>Cheque %1</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>The connection was closed before the answer came.</source>
        <translation>La conexión se cerró antes de que llegara la respuesta.</translation>
    </message>
    <message>
        <source>Requests cannot be sent.</source>
        <translation>No se pueden enviar peticiones.</translation>
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
        <source>The reply is compressed, which was not requested.</source>
        <translation>La respuesta está comprimida, aunque no se pidió.</translation>
    </message>
    <message>
        <source>The transfer failed (%1).</source>
        <translation>La transferencia de datos falló (%1).</translation>
    </message>
    <message>
        <source>The reply is not JSON; its type is &apos;%1&apos;.</source>
        <translation>La respuesta no es JSON; es de tipo «%1».</translation>
    </message>
    <message>
        <source>The reply is not JSON: %1 at byte %2.</source>
        <translation>La respuesta no es JSON: %1 en el byte %2.</translation>
    </message>
    <message>
        <source>The reply contains a member twice.</source>
        <translation>La respuesta contiene un elemento dos veces.</translation>
    </message>
    <message>
        <source>Repaired while loading: %1</source>
        <translation>Reparado al cargar: %1</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>No se eligió ningún archivo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid file name.</source>
        <translation>«%1» no es un nombre de archivo válido.</translation>
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
        <source>The file &apos;%1&apos; is too large.</source>
        <translation>El archivo «%1» es demasiado grande.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is empty.</source>
        <translation>El archivo «%1» está vacío.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was not written by this program.</source>
        <translation>El archivo «%1» no es de este programa.</translation>
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
        <source>The file &apos;%1&apos; cannot be changed: %2.</source>
        <translation>El archivo «%1» no se puede cambiar: %2.</translation>
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
        <source>The file &apos;%1&apos; could not be saved: it cannot be read back as it was written.</source>
        <translation>No se pudo guardar el archivo «%1»: no se puede leer tal como se escribió.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; was not saved: it cannot hold this budget.</source>
        <translation>No se guardó el archivo «%1»: no puede contener este presupuesto.</translation>
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
        <source>An increase or a decrease cannot be negative, but is %1.</source>
        <translation>Un aumento o una disminución no puede ser negativo, pero es %1.</translation>
    </message>
    <message>
        <source>A survey cannot be completed without a valid date.</source>
        <translation>Una conciliación no se puede finalizar sin una fecha válida.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a version.</source>
        <translation>«%1» no es una versión.</translation>
    </message>
    <message>
        <source>The member &apos;%1&apos; of the release is missing or invalid.</source>
        <translation>El elemento «%1» de la versión publicada falta o no es válido.</translation>
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
        <translation>No se puede procesar una partida que vence de tipo desconocido.</translation>
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
        <source>Cannot convert between currencies: the source of the exchange rates is closed.</source>
        <translation>No se puede convertir entre monedas: la fuente de los tipos de cambio está cerrada.</translation>
    </message>
    <message>
        <source>The user preferences file, %1, is not writable.</source>
        <translation>No se puede escribir en el archivo de preferencias, %1.</translation>
    </message>
    <message>
        <source>No command given</source>
        <translation>No se indicó ninguna orden</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>cerrada</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>There are no accounts.</source>
        <translation>No hay cuentas.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Other account</source>
        <translation>Contrapartida</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>There are no transactions.</source>
        <translation>No hay asientos.</translation>
    </message>
    <message>
        <source>Added the account %1 %2.</source>
        <translation>Se añadió la cuenta %1 %2.</translation>
    </message>
    <message>
        <source>The account %1 is now %2.</source>
        <translation>La cuenta %1 es ahora %2.</translation>
    </message>
    <message>
        <source>Closed the account %1.</source>
        <translation>Se cerró la cuenta %1.</translation>
    </message>
    <message>
        <source>Opened the account %1 again.</source>
        <translation>Se volvió a abrir la cuenta %1.</translation>
    </message>
    <message>
        <source>Removed the account %1.</source>
        <translation>Se eliminó la cuenta %1.</translation>
    </message>
    <message>
        <source>There are no banks.</source>
        <translation>No hay bancos.</translation>
    </message>
    <message>
        <source>%1 (closed)</source>
        <translation>%1 (cerrado)</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Added the bank &apos;%1&apos;.</source>
        <translation>Se añadió el banco «%1».</translation>
    </message>
    <message>
        <source>The bank is now called &apos;%1&apos;.</source>
        <translation>El banco se llama ahora «%1».</translation>
    </message>
    <message>
        <source>Added the account %1 to the bank &apos;%2&apos;.</source>
        <translation>Se añadió la cuenta %1 al banco «%2».</translation>
    </message>
    <message>
        <source>Assigned the account %2 to the bank &apos;%1&apos;.</source>
        <translation>Se asignó la cuenta %2 al banco «%1».</translation>
    </message>
    <message>
        <source>Separated the account %2 from the bank &apos;%1&apos;.</source>
        <translation>Se separó la cuenta %2 del banco «%1».</translation>
    </message>
    <message>
        <source>Closed the bank &apos;%1&apos;.</source>
        <translation>Se cerró el banco «%1».</translation>
    </message>
    <message>
        <source>Opened the bank &apos;%1&apos; again.</source>
        <translation>Se volvió a abrir el banco «%1».</translation>
    </message>
    <message>
        <source>Removed the bank &apos;%1&apos;.</source>
        <translation>Se eliminó el banco «%1».</translation>
    </message>
    <message>
        <source>The bank account %1 is now %2.</source>
        <translation>La cuenta bancaria %1 es ahora %2.</translation>
    </message>
    <message>
        <source>Removed the bank account %1.</source>
        <translation>Se eliminó la cuenta bancaria %1.</translation>
    </message>
    <message>
        <source>Created the empty budget &apos;%1&apos;.</source>
        <translation>Se creó el presupuesto vacío «%1».</translation>
    </message>
    <message>
        <source>Every change is saved at once; nothing is pending.</source>
        <translation>Cada cambio se guarda al momento; no hay nada pendiente.</translation>
    </message>
    <message>
        <source>All changes are saved in &apos;%1&apos;.</source>
        <translation>Todos los cambios están guardados en «%1».</translation>
    </message>
    <message>
        <source>Saved the budget as &apos;%1&apos;.</source>
        <translation>Se guardó el presupuesto como «%1».</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Asientos</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Bancos</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Partidas</translation>
    </message>
    <message>
        <source>Sum of debits</source>
        <translation>Suma del debe</translation>
    </message>
    <message>
        <source>Sum of credits</source>
        <translation>Suma del haber</translation>
    </message>
    <message>
        <source>Preferred currency</source>
        <translation>Moneda preferida</translation>
    </message>
    <message>
        <source>Usable currencies</source>
        <translation>Monedas utilizables</translation>
    </message>
    <message>
        <source>Display of currencies</source>
        <translation>Presentación de las monedas</translation>
    </message>
    <message>
        <source>Due items shown ahead, in days</source>
        <translation>Vencimientos con antelación, en días</translation>
    </message>
    <message>
        <source>Survey window</source>
        <translation>Margen de la conciliación</translation>
    </message>
    <message>
        <source>Work hours a week</source>
        <translation>Horas de trabajo por semana</translation>
    </message>
    <message>
        <source>Work days a week</source>
        <translation>Días de trabajo por semana</translation>
    </message>
    <message>
        <source>There are no tags.</source>
        <translation>No hay etiquetas.</translation>
    </message>
    <message numerus="yes">
        <source>Removed the tags %1.</source>
        <translation>
            <numerusform>Se eliminó la etiqueta %1.</numerusform>
            <numerusform>Se eliminaron las etiquetas %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Wages</source>
        <translation>Salarios</translation>
    </message>
    <message>
        <source>Bills</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>Debts</source>
        <translation>Deudas</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Metas</translation>
    </message>
    <message>
        <source>Non-tracked</source>
        <translation>Sin seguimiento</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Vence</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Nothing is due.</source>
        <translation>No vence nada.</translation>
    </message>
    <message>
        <source>Budget health: %1</source>
        <translation>Salud del presupuesto: %1</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>mañana</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Posted the %1 &apos;%2&apos;, due on %3: %4.</source>
        <translation>Registrado: «%2» (%1), que vencía el %3: %4.</translation>
    </message>
    <message>
        <source>Posted %1 for the %2 &apos;%3&apos;, which is still due on %4.</source>
        <translation>Se registraron %1 para «%3» (%2), que sigue venciendo el %4.</translation>
    </message>
    <message>
        <source>Skipped the %1 &apos;%2&apos; due on %3; it is next due on %4.</source>
        <translation>Omitido: «%2» (%1), que vencía el %3; el próximo vencimiento es el %4.</translation>
    </message>
    <message>
        <source>patterns are not supported; name each file</source>
        <translation>no se admiten patrones; hay que nombrar cada archivo</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>it is outside the folder of the journal</source>
        <translation>está fuera de la carpeta del diario</translation>
    </message>
    <message>
        <source>all files together are larger than 64 MiB</source>
        <translation>todos los archivos juntos superan los 64 MiB</translation>
    </message>
    <message>
        <source>Entries with amount zero are skipped.</source>
        <translation>Las entradas de importe cero se omiten.</translation>
    </message>
    <message>
        <source>New account</source>
        <translation>Nueva cuenta</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Debe</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Haber</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>duplicado</translation>
    </message>
    <message>
        <source>There are no transactions in the file.</source>
        <translation>No hay asientos en el archivo.</translation>
    </message>
    <message>
        <source>Added the %1 &apos;%2&apos;.</source>
        <translation>Se añadió «%2» (%1).</translation>
    </message>
    <message>
        <source>Changed the %1 &apos;%2&apos;.</source>
        <translation>Se cambió «%2» (%1).</translation>
    </message>
    <message>
        <source>The %1 &apos;%2&apos; is now called &apos;%3&apos;.</source>
        <translation>«%2» (%1) se llama ahora «%3».</translation>
    </message>
    <message>
        <source>Removed the %1 &apos;%2&apos;.</source>
        <translation>Se eliminó «%2» (%1).</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próxima fecha</translation>
    </message>
    <message>
        <source>Borrowed</source>
        <translation>Prestado</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>No hay nada.</translation>
    </message>
    <message>
        <source>For 1 %1, as of %2 (out of date)</source>
        <translation>Por 1 %1, a %2 (ya no está al día)</translation>
    </message>
    <message>
        <source>For 1 %1, as of %2</source>
        <translation>Por 1 %1, a %2</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Tipo de cambio</translation>
    </message>
    <message>
        <source>There are no exchange rates; use kiv rates fetch or kiv rates set.</source>
        <translation>No hay tipos de cambio; se obtienen con kiv rates fetch o se fijan con kiv rates set.</translation>
    </message>
    <message>
        <source>fetching exchange rates …</source>
        <translation>obteniendo los tipos de cambio …</translation>
    </message>
    <message>
        <source>There is no newer release.</source>
        <translation>No hay ninguna versión más reciente.</translation>
    </message>
    <message>
        <source>There is a newer release: %1.</source>
        <translation>Hay una versión más reciente: %1.</translation>
    </message>
    <message>
        <source>There are no releases.</source>
        <translation>No hay versiones publicadas.</translation>
    </message>
    <message>
        <source>Household report</source>
        <translation>Informe del hogar</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>Budget against actual</source>
        <translation>Presupuesto y gasto real</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>En %1</translation>
    </message>
    <message>
        <source>There are no budget items.</source>
        <translation>No hay partidas.</translation>
    </message>
    <message>
        <source>Day of the statement</source>
        <translation>Día del extracto</translation>
    </message>
    <message>
        <source>Last reconciled on</source>
        <translation>Última conciliación</translation>
    </message>
    <message>
        <source>Reconciled balance</source>
        <translation>Saldo conciliado</translation>
    </message>
    <message>
        <source>Changes since</source>
        <translation>Cambios desde</translation>
    </message>
    <message>
        <source>Expected balance</source>
        <translation>Saldo esperado</translation>
    </message>
    <message>
        <source>Still due this month</source>
        <translation>Por vencer este mes</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Asiento</translation>
    </message>
    <message>
        <source>Changes by budget item</source>
        <translation>Cambios por partida</translation>
    </message>
    <message>
        <source>Other changes</source>
        <translation>Otros cambios</translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation>Apartado</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>There are no items to set money aside for.</source>
        <translation>No hay partidas para las que apartar dinero.</translation>
    </message>
    <message>
        <source>Reconciled %1 at %2 with a balance of %3.</source>
        <translation>Se concilió %1 en %2 con un saldo de %3.</translation>
    </message>
    <message>
        <source>Balance of the statement</source>
        <translation>Saldo del extracto</translation>
    </message>
    <message>
        <source>Amount to set aside for an item, as ITEM=AMOUNT</source>
        <translation>Importe que se aparta para una partida, como PARTIDA=IMPORTE</translation>
    </message>
    <message>
        <source>(empty to continue)</source>
        <translation>(vacío: continuar)</translation>
    </message>
    <message>
        <source>Complete the survey?</source>
        <translation>¿Finalizar la conciliación?</translation>
    </message>
    <message>
        <source>%1 was never reconciled.</source>
        <translation>%1 nunca se ha conciliado.</translation>
    </message>
    <message>
        <source>%1 was reconciled on %2 with a balance of %3.</source>
        <translation>%1 se concilió el %2 con un saldo de %3.</translation>
    </message>
    <message>
        <source>(exit status %1)
</source>
        <translation>(estado de salida %1)
</translation>
    </message>
    <message>
        <source>The tour stopped: the last command gave an unexpected exit status.</source>
        <translation>El recorrido se detuvo: la última orden dio un estado de salida inesperado.</translation>
    </message>
    <message>
        <source>A new budget in US dollars, with a bank and a checking account</source>
        <translation>Un presupuesto nuevo en dólares, con un banco y una cuenta corriente</translation>
    </message>
    <message>
        <source>Wages and bills, with the days when they are due</source>
        <translation>Salarios y facturas, con los días en que vencen</translation>
    </message>
    <message>
        <source>Due items are posted; the fitness studio is closed this month and is skipped</source>
        <translation>Se registra lo que vence; el gimnasio está cerrado este mes y se omite</translation>
    </message>
    <message>
        <source>An account cannot have the name of a budget item: kiv refuses and changes nothing</source>
        <translation>Una cuenta no puede llamarse como una partida: kiv lo rechaza y no cambia nada</translation>
    </message>
    <message>
        <source>Every change was saved at once; each command opens the file again</source>
        <translation>Cada cambio se guardó al momento; cada orden vuelve a abrir el archivo</translation>
    </message>
    <message>
        <source>The debits do not equal the credits.</source>
        <translation>El debe no es igual al haber.</translation>
    </message>
    <message>
        <source>The sum of all debits equals the sum of all credits.</source>
        <translation>La suma del debe es igual a la suma del haber.</translation>
    </message>
    <message>
        <source>Posted transaction %1.</source>
        <translation>Se registró el asiento %1.</translation>
    </message>
    <message>
        <source>Changed transaction %1.</source>
        <translation>Se cambió el asiento %1.</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Traspaso</translation>
    </message>
    <message>
        <source>Posted the refund as transaction %1.</source>
        <translation>Se registró el reembolso como asiento %1.</translation>
    </message>
    <message numerus="yes">
        <source>Removed the transactions %1.</source>
        <translation>
            <numerusform>Se eliminó el asiento %1.</numerusform>
            <numerusform>Se eliminaron los asientos %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleared the transactions %1.</source>
        <translation>
            <numerusform>Se confirmó el asiento %1.</numerusform>
            <numerusform>Se confirmaron los asientos %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reconciled the transactions %1.</source>
        <translation>
            <numerusform>Se concilió el asiento %1.</numerusform>
            <numerusform>Se conciliaron los asientos %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undid the reconciliation of the transactions %1.</source>
        <translation>
            <numerusform>Se anuló la conciliación del asiento %1.</numerusform>
            <numerusform>Se anuló la conciliación de los asientos %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored the state of %1.</source>
        <translation>Se restauró el estado de %1.</translation>
    </message>
    <message>
        <source>Restored the version saved at %1.</source>
        <translation>Se restauró la versión guardada el %1.</translation>
    </message>
    <message>
        <source>Both versions are the same.</source>
        <translation>Ambas versiones son iguales.</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañada</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Saved at</source>
        <translation>Guardada el</translation>
    </message>
    <message>
        <source>Created the budget &apos;%1&apos;.</source>
        <translation>Se creó el presupuesto «%1».</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Household</source>
        <translation>Hogar</translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <translation>%1; %2.</translation>
    </message>
    <message>
        <source>%1; did you mean %2?</source>
        <translation>%1; ¿se trataba de %2?</translation>
    </message>
    <message>
        <source>A value on the command line is not valid UTF-8.</source>
        <translation>Un valor de la línea de órdenes no es UTF-8 válido.</translation>
    </message>
    <message>
        <source>A name cannot be empty.</source>
        <translation>Un nombre no puede estar vacío.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid date; write one like 2026-03-31.</source>
        <translation>«%1» no es una fecha válida; debe ser como 2026-03-31.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount; write one like 1234.50 or &apos;1234.50 USD&apos;.</source>
        <translation>«%1» no es un importe; debe ser como 1234.50 o &apos;1234.50 USD&apos;.</translation>
    </message>
    <message>
        <source>The amount &apos;%1&apos; is too large.</source>
        <translation>El importe «%1» es demasiado grande.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount in %2, which has no decimals.</source>
        <translation>«%1» no es un importe en %2, moneda que no tiene decimales.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has too many decimals; %3 allows %2.</source>
        <translation>«%1» tiene demasiados decimales; %3 admite %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency</source>
        <translation>«%1» no es una moneda</translation>
    </message>
    <message>
        <source>write its ISO 4217 code, like USD</source>
        <translation>se indica su código ISO 4217, como USD</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from %2 to %3.</source>
        <translation>«%1» no es un número entero de %2 a %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a percentage; write one like 2.75.</source>
        <translation>«%1» no es un porcentaje; debe ser como 2.75.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not one of: %2</source>
        <translation>«%1» no es ninguno de estos valores: %2</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>Falta %1.</translation>
    </message>
    <message>
        <source>No change given; see --help.</source>
        <translation>No se indicó ningún cambio; véase --help.</translation>
    </message>
    <message>
        <source>No budget file given; use --file or the variable KIV_FILE, or create one with kiv new FILE.</source>
        <translation>No se indicó ningún archivo de presupuesto; se indica con --file o la variable KIV_FILE, o se crea con kiv new ARCHIVO.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form NAME=VALUE.</source>
        <translation>«%1» no tiene la forma NOMBRE=VALOR.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;</source>
        <translation>No hay ninguna orden «%1»</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;</source>
        <translation>No hay ninguna opción «%1»</translation>
    </message>
    <message>
        <source>A closing quote is missing.</source>
        <translation>Faltan las comillas de cierre.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a profile name; use letters, digits, &apos;-&apos; and &apos;_&apos;.</source>
        <translation>«%1» no es un nombre de perfil; se admiten letras, cifras, «-» y «_».</translation>
    </message>
    <message>
        <source>Cannot understand %1: %2.</source>
        <translation>No se entiende %1: %2.</translation>
    </message>
    <message>
        <source>There is no account &apos;%1&apos;</source>
        <translation>No hay ninguna cuenta «%1»</translation>
    </message>
    <message>
        <source>see %1</source>
        <translation>véase %1</translation>
    </message>
    <message>
        <source>There is no bank &apos;%1&apos;</source>
        <translation>No hay ningún banco «%1»</translation>
    </message>
    <message>
        <source>There is no %1 &apos;%2&apos;</source>
        <translation>No existe «%2» (%1)</translation>
    </message>
    <message>
        <source>There is no budget item &apos;%1&apos;</source>
        <translation>No hay ninguna partida «%1»</translation>
    </message>
    <message>
        <source>see kiv bill list (or debt, goal, nontrack, wage)</source>
        <translation>véase kiv bill list (o debt, goal, nontrack, wage)</translation>
    </message>
    <message>
        <source>The input ended before the last question; nothing is saved.</source>
        <translation>La entrada terminó antes de la última pregunta; no se guarda nada.</translation>
    </message>
    <message>
        <source>The survey was not completed; nothing is saved.</source>
        <translation>La conciliación no se finalizó; no se guarda nada.</translation>
    </message>
    <message>
        <source>The budget could not be created.</source>
        <translation>No se pudo crear el presupuesto.</translation>
    </message>
    <message>
        <source>There is no tag &apos;%1&apos;</source>
        <translation>No hay ninguna etiqueta «%1»</translation>
    </message>
    <message>
        <source>There is no version %1</source>
        <translation>No hay ninguna versión %1</translation>
    </message>
    <message>
        <source>The version in &apos;%1&apos; is damaged.</source>
        <translation>La versión de «%1» está dañada.</translation>
    </message>
    <message>
        <source>The %1 &apos;%3&apos; cannot be processed while there is a %2 of the same name; rename one of them.</source>
        <translation>«%3» (%1) no se puede procesar mientras haya otra partida (%2) con el mismo nombre; hay que cambiar el nombre de una.</translation>
    </message>
    <message>
        <source>There is no transaction %1</source>
        <translation>No hay ningún asiento %1</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;; saved profiles: %2.</source>
        <translation>No hay ningún perfil «%1»; los guardados son: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; exists already; choose another name.</source>
        <translation>El archivo «%1» ya existe; hace falta otro nombre.</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>No se puede escribir la salida: %1.</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>No se puede leer «%1»: %2.</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>aviso: %1</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 en el byte %2</translation>
    </message>
    <message>
        <source>it has no list of transactions</source>
        <translation>no tiene ninguna lista de asientos</translation>
    </message>
    <message>
        <source>transaction %1 of &apos;%2&apos;</source>
        <translation>asiento %1 de «%2»</translation>
    </message>
    <message>
        <source>Dry run: nothing is saved.</source>
        <translation>Ensayo: no se guarda nada.</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>The row has more than %1 cells.</source>
        <translation>La fila tiene más de %1 celdas.</translation>
    </message>
    <message>
        <source>Long comments are cut off.</source>
        <translation>Los comentarios largos se acortan.</translation>
    </message>
    <message>
        <source>ACCOUNT</source>
        <translation>CUENTA</translation>
    </message>
    <message>
        <source>ACCOUNT=AMOUNT</source>
        <translation>CUENTA=IMPORTE</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTE</translation>
    </message>
    <message>
        <source>BANK</source>
        <translation>BANCO</translation>
    </message>
    <message>
        <source>BANK ACCOUNT</source>
        <translation>BANCO CUENTA</translation>
    </message>
    <message>
        <source>BASE</source>
        <translation>BASE</translation>
    </message>
    <message>
        <source>CURRENCY</source>
        <translation>MONEDA</translation>
    </message>
    <message>
        <source>CURRENCY=RATE</source>
        <translation>MONEDA=TIPO</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>FECHA</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>DÍAS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>DE</translation>
    </message>
    <message>
        <source>HOURS</source>
        <translation>HORAS</translation>
    </message>
    <message>
        <source>ITEM</source>
        <translation>PARTIDA</translation>
    </message>
    <message>
        <source>ITEM=AMOUNT</source>
        <translation>PARTIDA=IMPORTE</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>NEW-NAME</source>
        <translation>NUEVO-NOMBRE</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>PORCENTAJE</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>ETIQUETA</translation>
    </message>
    <message>
        <source>TEMPLATE</source>
        <translation>PLANTILLA</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>TO</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Budget file (default: the variable KIV_FILE)</source>
        <translation>Archivo de presupuesto (por defecto: la variable KIV_FILE)</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Print JSON, for programs</source>
        <translation>Escribe JSON, para programas</translation>
    </message>
    <message>
        <source>Show the result, save nothing</source>
        <translation>Muestra el resultado, no guarda nada</translation>
    </message>
    <message>
        <source>Show the log on standard error</source>
        <translation>Muestra el registro en la salida de errores</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>Falta %1</translation>
    </message>
    <message>
        <source>%1 does not accept the value &apos;%2&apos;</source>
        <translation>%1 no admite el valor «%2»</translation>
    </message>
    <message>
        <source>Account: number, name or path</source>
        <translation>Cuenta: número, nombre o ruta</translation>
    </message>
    <message>
        <source>New number</source>
        <translation>Número nuevo</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>New parent account</source>
        <translation>Cuenta superior nueva</translation>
    </message>
    <message>
        <source>Remove the parent account</source>
        <translation>Quita la cuenta superior</translation>
    </message>
    <message>
        <source>Only accounts of this type: asset, equity, expense, liability or income</source>
        <translation>Solo cuentas de este tipo: asset, equity, expense, liability o income</translation>
    </message>
    <message>
        <source>Only open accounts</source>
        <translation>Solo cuentas abiertas</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Type: asset, equity, expense, liability or income</source>
        <translation>Tipo: asset, equity, expense, liability o income</translation>
    </message>
    <message>
        <source>Number (default: the next free one)</source>
        <translation>Número (por defecto: el siguiente libre)</translation>
    </message>
    <message>
        <source>Parent account</source>
        <translation>Cuenta superior</translation>
    </message>
    <message>
        <source>Opening balance (default: 0)</source>
        <translation>Saldo inicial (por defecto: 0)</translation>
    </message>
    <message>
        <source>Currency (default: the preferred one)</source>
        <translation>Moneda (por defecto: la preferida)</translation>
    </message>
    <message>
        <source>Day of the opening balance (default: today)</source>
        <translation>Día del saldo inicial (por defecto: hoy)</translation>
    </message>
    <message>
        <source>List all accounts with their balances</source>
        <translation>Enumera todas las cuentas con sus saldos</translation>
    </message>
    <message>
        <source>List the transactions of an account</source>
        <translation>Enumera los asientos de una cuenta</translation>
    </message>
    <message>
        <source>Add, change, close or remove an account</source>
        <translation>Añade, cambia, cierra o elimina una cuenta</translation>
    </message>
    <message>
        <source>Add an account</source>
        <translation>Añade una cuenta</translation>
    </message>
    <message>
        <source>Change an account&apos;s number, name or parent</source>
        <translation>Cambia el número, el nombre o la cuenta superior de una cuenta</translation>
    </message>
    <message>
        <source>Close an account</source>
        <translation>Cierra una cuenta</translation>
    </message>
    <message>
        <source>Reopen an account</source>
        <translation>Vuelve a abrir una cuenta</translation>
    </message>
    <message>
        <source>Remove an account without transactions</source>
        <translation>Elimina una cuenta sin asientos</translation>
    </message>
    <message>
        <source>Name of the bank</source>
        <translation>Nombre del banco</translation>
    </message>
    <message>
        <source>Type: checking (default), savings, credit-card, loan, line-of-credit, money-market or cash</source>
        <translation>Tipo: checking (por defecto), savings, credit-card, loan, line-of-credit, money-market o cash</translation>
    </message>
    <message>
        <source>Type: checking, savings, credit-card, loan, goal-sub-account, line-of-credit, money-market or cash</source>
        <translation>Tipo: checking, savings, credit-card, loan, goal-sub-account, line-of-credit, money-market o cash</translation>
    </message>
    <message>
        <source>List all banks with their accounts</source>
        <translation>Enumera todos los bancos con sus cuentas</translation>
    </message>
    <message>
        <source>Add a bank</source>
        <translation>Añade un banco</translation>
    </message>
    <message>
        <source>Add, rename, close or remove a bank</source>
        <translation>Añade, renombra, cierra o elimina un banco</translation>
    </message>
    <message>
        <source>Rename a bank</source>
        <translation>Cambia el nombre de un banco</translation>
    </message>
    <message>
        <source>Close a bank and its accounts</source>
        <translation>Cierra un banco y sus cuentas</translation>
    </message>
    <message>
        <source>Reopen a bank and its accounts</source>
        <translation>Vuelve a abrir un banco y sus cuentas</translation>
    </message>
    <message>
        <source>Remove a bank and its accounts</source>
        <translation>Elimina un banco y sus cuentas</translation>
    </message>
    <message>
        <source>Add, change or remove an account of a bank</source>
        <translation>Añade, cambia o elimina la cuenta de un banco</translation>
    </message>
    <message>
        <source>Add an account to a bank</source>
        <translation>Añade una cuenta a un banco</translation>
    </message>
    <message>
        <source>Assign an account of the ledger to a bank</source>
        <translation>Asigna a un banco una cuenta del libro mayor</translation>
    </message>
    <message>
        <source>Separate an account from its bank; it stays in the ledger</source>
        <translation>Separa una cuenta de su banco; sigue en el libro mayor</translation>
    </message>
    <message>
        <source>Change a bank account&apos;s number, name or parent</source>
        <translation>Cambia el número, el nombre o la cuenta superior de una cuenta bancaria</translation>
    </message>
    <message>
        <source>Remove a bank account</source>
        <translation>Elimina una cuenta bancaria</translation>
    </message>
    <message>
        <source>New file; .budget is added if it is missing</source>
        <translation>Archivo nuevo; se añade .budget si falta</translation>
    </message>
    <message>
        <source>Create an empty budget file</source>
        <translation>Crea un archivo de presupuesto vacío</translation>
    </message>
    <message>
        <source>Show what the budget contains</source>
        <translation>Muestra lo que contiene el presupuesto</translation>
    </message>
    <message>
        <source>In a shell, write the changes now</source>
        <translation>En una shell, escribir los cambios ahora</translation>
    </message>
    <message>
        <source>Save the budget under another name</source>
        <translation>Guarda el presupuesto con otro nombre</translation>
    </message>
    <message>
        <source>The file is a budget file of a known version</source>
        <translation>El archivo es un presupuesto de una versión conocida</translation>
    </message>
    <message>
        <source>The tables belong to that version</source>
        <translation>Las tablas corresponden a esa versión</translation>
    </message>
    <message>
        <source>The rows are as they were saved</source>
        <translation>Las filas están como se guardaron</translation>
    </message>
    <message>
        <source>The books follow the rules of the ledger</source>
        <translation>Los libros cumplen las reglas del libro mayor</translation>
    </message>
    <message>
        <source>Items, accounts and banks match</source>
        <translation>Las partidas, las cuentas y los bancos encajan</translation>
    </message>
    <message>
        <source>Every balance is the sum of its transactions</source>
        <translation>Cada saldo es la suma de sus asientos</translation>
    </message>
    <message>
        <source>Debits equal credits in every currency</source>
        <translation>En cada moneda el debe es igual al haber</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>repaired when opened</source>
        <translation>se repara al abrir</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALLO</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>sin comprobar</translation>
    </message>
    <message>
        <source>Budget file or one of its former versions</source>
        <translation>Archivo de presupuesto o una de sus versiones anteriores</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is intact.</source>
        <translation>El presupuesto «%1» está íntegro.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is damaged; bring a whole version back with kiv undo.</source>
        <translation>El presupuesto «%1» está dañado; kiv undo recupera una versión íntegra.</translation>
    </message>
    <message>
        <source>Check a budget file for damage</source>
        <translation>Comprueba si un archivo de presupuesto está dañado</translation>
    </message>
    <message>
        <source>Words of the command line; the last one is incomplete</source>
        <translation>Palabras de la línea de órdenes; la última está incompleta</translation>
    </message>
    <message>
        <source>Print completion scripts or the manual page</source>
        <translation>Escribe los guiones de autocompletado o la página de manual</translation>
    </message>
    <message>
        <source>Print the completion script for bash</source>
        <translation>Escribe el guion de autocompletado para bash</translation>
    </message>
    <message>
        <source>Print the completion script for zsh</source>
        <translation>Escribe el guion de autocompletado para zsh</translation>
    </message>
    <message>
        <source>Print the completion script for fish</source>
        <translation>Escribe el guion de autocompletado para fish</translation>
    </message>
    <message>
        <source>List completions of the last word</source>
        <translation>Enumera las formas de completar la última palabra</translation>
    </message>
    <message>
        <source>Print the commands as part of a manual page</source>
        <translation>Escribe las órdenes como parte de una página de manual</translation>
    </message>
    <message>
        <source>Preferred currency, used for amounts without one</source>
        <translation>Moneda preferida, para los importes sin moneda</translation>
    </message>
    <message>
        <source>Usable currency; replaces the old list (repeatable)</source>
        <translation>Moneda utilizable; sustituye la lista anterior (repetible)</translation>
    </message>
    <message>
        <source>Display of currencies: code, symbol or both</source>
        <translation>Presentación de las monedas: code, symbol o both</translation>
    </message>
    <message>
        <source>Show due items this many days ahead</source>
        <translation>Muestra los vencimientos con tantos días de antelación</translation>
    </message>
    <message>
        <source>Allowed difference between survey and statement, in percent</source>
        <translation>Diferencia admitida entre conciliación y extracto, en porcentaje</translation>
    </message>
    <message>
        <source>Show or change the settings</source>
        <translation>Muestra o cambia los ajustes</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Muestra los ajustes</translation>
    </message>
    <message>
        <source>Change the given settings</source>
        <translation>Cambia los ajustes indicados</translation>
    </message>
    <message>
        <source>List or remove tags</source>
        <translation>Enumera o elimina etiquetas</translation>
    </message>
    <message>
        <source>List all tags</source>
        <translation>Enumera todas las etiquetas</translation>
    </message>
    <message>
        <source>Remove tags from all budget items</source>
        <translation>Elimina etiquetas de todas las partidas</translation>
    </message>
    <message numerus="yes">
        <source>Due within %n days</source>
        <translation>
            <numerusform>Vence en %n día</numerusform>
            <numerusform>Vence en %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Show totals, due items and budget health</source>
        <translation>Muestra totales, vencimientos y salud del presupuesto</translation>
    </message>
    <message>
        <source>Name of the budget item</source>
        <translation>Nombre de la partida</translation>
    </message>
    <message>
        <source>Kind, if several items have the name: bill, debt, goal, nontrack or wage</source>
        <translation>Tipo, si varias partidas se llaman así: bill, debt, goal, nontrack o wage</translation>
    </message>
    <message>
        <source>Days ahead (default: the setting)</source>
        <translation>Días de antelación (por defecto: el ajuste)</translation>
    </message>
    <message>
        <source>Day to count from (default: today)</source>
        <translation>Día desde el que se cuenta (por defecto: hoy)</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n día de retraso</numerusform>
            <numerusform>%n días de retraso</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>en %n día</numerusform>
            <numerusform>en %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Account that pays, or that receives a wage</source>
        <translation>Cuenta que paga o que recibe un salario</translation>
    </message>
    <message>
        <source>Amount (default: that of the item)</source>
        <translation>Importe (por defecto: el de la partida)</translation>
    </message>
    <message>
        <source>Post all due items</source>
        <translation>Registra todas las partidas que vencen</translation>
    </message>
    <message>
        <source>Day (default: today)</source>
        <translation>Día (por defecto: hoy)</translation>
    </message>
    <message>
        <source>List due items</source>
        <translation>Enumera las partidas que vencen</translation>
    </message>
    <message>
        <source>Post a due budget item</source>
        <translation>Registra una partida que vence</translation>
    </message>
    <message>
        <source>Post an unexpected amount for a budget item</source>
        <translation>Registra un importe imprevisto de una partida</translation>
    </message>
    <message>
        <source>Skip a budget item once, without posting</source>
        <translation>Omite una partida una vez, sin registrarla</translation>
    </message>
    <message>
        <source>Format: journal (default), csv or json</source>
        <translation>Formato: journal (por defecto), csv o json</translation>
    </message>
    <message>
        <source>Print the ledger for other programs</source>
        <translation>Escribe el libro mayor para otros programas</translation>
    </message>
    <message>
        <source>File; - for standard input</source>
        <translation>Archivo; - para la entrada estándar</translation>
    </message>
    <message>
        <source>Decimal mark: . or ,</source>
        <translation>Marca decimal: . o ,</translation>
    </message>
    <message>
        <source>Date format, such as DD.MM.YYYY</source>
        <translation>Formato de fecha, como DD.MM.YYYY</translation>
    </message>
    <message>
        <source>Currency of amounts without one (journal)</source>
        <translation>Moneda de los importes sin moneda (journal)</translation>
    </message>
    <message>
        <source>Type of a top account, such as Aktiva=asset (journal, repeatable)</source>
        <translation>Tipo de una cuenta principal, como Activos=asset (journal, repetible)</translation>
    </message>
    <message>
        <source>Currency behind a name, such as Fr=CHF (journal, repeatable)</source>
        <translation>Moneda a la que se refiere un nombre, como Fr=CHF (journal, repetible)</translation>
    </message>
    <message>
        <source>Saved profile to read the file with</source>
        <translation>Perfil guardado con el que se lee el archivo</translation>
    </message>
    <message>
        <source>Save these options as a profile with this name</source>
        <translation>Guarda estas opciones como perfil con este nombre</translation>
    </message>
    <message>
        <source>Column of the date, by heading or number (csv)</source>
        <translation>Columna de la fecha, por encabezado o número (csv)</translation>
    </message>
    <message>
        <source>Column of the amount (csv)</source>
        <translation>Columna del importe (csv)</translation>
    </message>
    <message>
        <source>Column of incoming amounts (csv)</source>
        <translation>Columna de las entradas de dinero (csv)</translation>
    </message>
    <message>
        <source>Column of outgoing amounts (csv)</source>
        <translation>Columna de las salidas de dinero (csv)</translation>
    </message>
    <message>
        <source>Column of the sign (csv)</source>
        <translation>Columna del signo (csv)</translation>
    </message>
    <message>
        <source>Text in the sign column for outgoing amounts (csv, repeatable)</source>
        <translation>Texto de la columna del signo para las salidas (csv, repetible)</translation>
    </message>
    <message>
        <source>Column of the description (csv, repeatable)</source>
        <translation>Columna de la descripción (csv, repetible)</translation>
    </message>
    <message>
        <source>Column of the bank&apos;s identifier (csv)</source>
        <translation>Columna del identificador del banco (csv)</translation>
    </message>
    <message>
        <source>Column of the currency (csv)</source>
        <translation>Columna de la moneda (csv)</translation>
    </message>
    <message>
        <source>Delimiter between cells (csv, default: guessed)</source>
        <translation>Separador de celdas (csv, por defecto: se deduce)</translation>
    </message>
    <message>
        <source>Number of lines above the headings (csv)</source>
        <translation>Número de líneas sobre los encabezados (csv)</translation>
    </message>
    <message>
        <source>The file has no headings (csv)</source>
        <translation>El archivo no tiene encabezados (csv)</translation>
    </message>
    <message>
        <source>Outgoing amounts are positive (csv)</source>
        <translation>Las salidas son positivas (csv)</translation>
    </message>
    <message>
        <source>Account of the bank statement</source>
        <translation>Cuenta del extracto</translation>
    </message>
    <message>
        <source>Counter-account of entries that match no rule</source>
        <translation>Contrapartida de las entradas sin regla</translation>
    </message>
    <message>
        <source>Post duplicates, too</source>
        <translation>Registra también los duplicados</translation>
    </message>
    <message>
        <source>Import a journal or statement, all or nothing</source>
        <translation>Importa un diario o un extracto, todo o nada</translation>
    </message>
    <message>
        <source>Frequency, such as monthly</source>
        <translation>Frecuencia, como monthly</translation>
    </message>
    <message>
        <source>Next due date</source>
        <translation>Próxima fecha</translation>
    </message>
    <message>
        <source>Tag (repeatable)</source>
        <translation>Etiqueta (repetible)</translation>
    </message>
    <message>
        <source>Amount borrowed; the opening balance of its account</source>
        <translation>Importe prestado; el saldo inicial de la cuenta de la deuda</translation>
    </message>
    <message>
        <source>Type of the bank account, such as loan (default)</source>
        <translation>Tipo de la cuenta bancaria, como loan (por defecto)</translation>
    </message>
    <message>
        <source>Target amount</source>
        <translation>Importe de la meta</translation>
    </message>
    <message>
        <source>Bank account that holds the savings</source>
        <translation>Cuenta bancaria en la que se aparta el dinero</translation>
    </message>
    <message>
        <source>Day of the opening; next due date if --next is missing</source>
        <translation>Día de la apertura; próxima fecha si falta --next</translation>
    </message>
    <message>
        <source>Remove all tags</source>
        <translation>Elimina todas las etiquetas</translation>
    </message>
    <message>
        <source>Remove the link to the bank</source>
        <translation>Elimina el vínculo con el banco</translation>
    </message>
    <message>
        <source>Add an item</source>
        <translation>Añade una partida</translation>
    </message>
    <message>
        <source>Change the given values of an item</source>
        <translation>Cambia los valores indicados de una partida</translation>
    </message>
    <message>
        <source>Rename an item</source>
        <translation>Cambia el nombre de una partida</translation>
    </message>
    <message>
        <source>Remove an item</source>
        <translation>Elimina una partida</translation>
    </message>
    <message>
        <source>List all items</source>
        <translation>Enumera todas las partidas</translation>
    </message>
    <message>
        <source>Add, change or list bills</source>
        <translation>Añade, cambia o enumera facturas</translation>
    </message>
    <message>
        <source>Add, change or list debts</source>
        <translation>Añade, cambia o enumera deudas</translation>
    </message>
    <message>
        <source>Add, change or list goals to save for</source>
        <translation>Añade, cambia o enumera metas de ahorro</translation>
    </message>
    <message>
        <source>Add, change or list free spending (non-tracked)</source>
        <translation>Añade, cambia o enumera gastos libres (sin seguimiento)</translation>
    </message>
    <message>
        <source>Add, change or list wages</source>
        <translation>Añade, cambia o enumera salarios</translation>
    </message>
    <message>
        <source>Currencies (default: the usable ones)</source>
        <translation>Monedas (por defecto: las utilizables)</translation>
    </message>
    <message>
        <source>Base currency; each rate is for one unit of it</source>
        <translation>Moneda base; cada tipo vale para una unidad de ella</translation>
    </message>
    <message>
        <source>Rate of a currency, such as EUR=0.92 (repeatable)</source>
        <translation>Tipo de una moneda, como EUR=0.92 (repetible)</translation>
    </message>
    <message>
        <source>Show, fetch or set exchange rates</source>
        <translation>Muestra, obtiene o fija tipos de cambio</translation>
    </message>
    <message>
        <source>Show the exchange rates</source>
        <translation>Muestra los tipos de cambio</translation>
    </message>
    <message>
        <source>Fetch current rates</source>
        <translation>Obtiene los tipos actuales</translation>
    </message>
    <message>
        <source>Set rates by hand</source>
        <translation>Fija tipos a mano</translation>
    </message>
    <message>
        <source>Check for a newer release</source>
        <translation>Comprueba si hay una versión más reciente</translation>
    </message>
    <message>
        <source>Show the release notes</source>
        <translation>Muestra las novedades de las versiones</translation>
    </message>
    <message>
        <source>Last day (default: today)</source>
        <translation>Último día (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Print an HTML page with charts</source>
        <translation>Escribe una página HTML con gráficos</translation>
    </message>
    <message>
        <source>Draw charts on the terminal</source>
        <translation>Dibuja gráficos en la terminal</translation>
    </message>
    <message>
        <source>Title of the HTML page</source>
        <translation>Título de la página HTML</translation>
    </message>
    <message>
        <source>Last day, like --to</source>
        <translation>Último día, como --to</translation>
    </message>
    <message>
        <source>Budget file, like --file</source>
        <translation>Archivo de presupuesto, como --file</translation>
    </message>
    <message>
        <source>Read commands line by line, keep the budget open</source>
        <translation>Lee órdenes línea a línea, con el presupuesto abierto</translation>
    </message>
    <message>
        <source>Like shell, but print all signals as JSON</source>
        <translation>Como shell, pero escribe todas las señales como JSON</translation>
    </message>
    <message>
        <source>Edited output of survey show --json; - for standard input</source>
        <translation>Salida editada de survey show --json; - para la entrada estándar</translation>
    </message>
    <message>
        <source>All transactions are on the statement</source>
        <translation>Todos los asientos están en el extracto</translation>
    </message>
    <message>
        <source>Unbooked money of an item, negative if it went out (repeatable)</source>
        <translation>Dinero sin registrar de una partida, negativo si salió (repetible)</translation>
    </message>
    <message>
        <source>Unbooked money of another account (repeatable)</source>
        <translation>Dinero sin registrar de otra cuenta (repetible)</translation>
    </message>
    <message>
        <source>Amount to set aside for an item (repeatable)</source>
        <translation>Importe que se aparta para una partida (repetible)</translation>
    </message>
    <message>
        <source>Amount that is not distributed (default: the rest)</source>
        <translation>Importe sin repartir (por defecto: el resto)</translation>
    </message>
    <message>
        <source>Compare the books with a bank statement</source>
        <translation>Compara los libros con un extracto</translation>
    </message>
    <message>
        <source>Show the changes since the last survey</source>
        <translation>Muestra los cambios desde la última conciliación</translation>
    </message>
    <message>
        <source>Reconcile an account with a statement</source>
        <translation>Concilia una cuenta con un extracto</translation>
    </message>
    <message>
        <source>Reconcile an account question by question</source>
        <translation>Concilia una cuenta pregunta a pregunta</translation>
    </message>
    <message>
        <source>Show the last reconciliation</source>
        <translation>Muestra la última conciliación</translation>
    </message>
    <message>
        <source>Show the last reconciliation of an account</source>
        <translation>Muestra la última conciliación de una cuenta</translation>
    </message>
    <message>
        <source>Demonstrate kiv on a temporary budget</source>
        <translation>Muestra kiv con un presupuesto temporal</translation>
    </message>
    <message>
        <source>Amount, in the currency of the debited account</source>
        <translation>Importe, en la moneda de la cuenta del debe</translation>
    </message>
    <message>
        <source>Account to debit</source>
        <translation>Cuenta del debe</translation>
    </message>
    <message>
        <source>Account to credit</source>
        <translation>Cuenta del haber</translation>
    </message>
    <message>
        <source>JSON list of transactions; - for standard input</source>
        <translation>Lista JSON de asientos; - para la entrada estándar</translation>
    </message>
    <message numerus="yes">
        <source>Posted %n transactions.</source>
        <translation>
            <numerusform>Se registró %n asiento.</numerusform>
            <numerusform>Se registraron %n asientos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Number of the transaction</source>
        <translation>Número del asiento</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Numbers of the transactions</source>
        <translation>Números de los asientos</translation>
    </message>
    <message>
        <source>Number of the transaction to refund</source>
        <translation>Número del asiento que se reembolsa</translation>
    </message>
    <message>
        <source>List all transactions</source>
        <translation>Enumera todos los asientos</translation>
    </message>
    <message>
        <source>Add, change, mark or remove transactions</source>
        <translation>Añade, cambia, marca o elimina asientos</translation>
    </message>
    <message>
        <source>Post a transaction</source>
        <translation>Registra un asiento</translation>
    </message>
    <message>
        <source>Post all transactions of a JSON file</source>
        <translation>Registra todos los asientos de un archivo JSON</translation>
    </message>
    <message>
        <source>Change the given values of a transaction</source>
        <translation>Cambia los valores indicados de un asiento</translation>
    </message>
    <message>
        <source>Remove transactions</source>
        <translation>Elimina asientos</translation>
    </message>
    <message>
        <source>Mark transactions as cleared by the bank</source>
        <translation>Marca asientos como confirmados por el banco</translation>
    </message>
    <message>
        <source>Mark transactions as reconciled with a statement</source>
        <translation>Marca asientos como conciliados con un extracto</translation>
    </message>
    <message>
        <source>Undo the reconciliation of transactions</source>
        <translation>Anula la conciliación de asientos</translation>
    </message>
    <message>
        <source>List refundable transactions of a budget item</source>
        <translation>Enumera los asientos reembolsables de una partida</translation>
    </message>
    <message>
        <source>Post a refund of a transaction</source>
        <translation>Registra un reembolso de un asiento</translation>
    </message>
    <message>
        <source>List the kept versions of the budget</source>
        <translation>Enumera las versiones conservadas del presupuesto</translation>
    </message>
    <message>
        <source>Show the changes between two versions</source>
        <translation>Muestra los cambios entre dos versiones</translation>
    </message>
    <message>
        <source>Template, see kiv templates list (default: none)</source>
        <translation>Plantilla, véase kiv templates list (por defecto: none)</translation>
    </message>
    <message>
        <source>Currency, which becomes the preferred one</source>
        <translation>Moneda, que pasa a ser la preferida</translation>
    </message>
    <message>
        <source>Name of the bank account</source>
        <translation>Nombre de la cuenta bancaria</translation>
    </message>
    <message>
        <source>Type of the bank account, such as checking (default)</source>
        <translation>Tipo de la cuenta bancaria, como checking (por defecto)</translation>
    </message>
    <message>
        <source>Template, see kiv templates list</source>
        <translation>Plantilla, véase kiv templates list</translation>
    </message>
    <message>
        <source>Create a budget from a template</source>
        <translation>Crea un presupuesto a partir de una plantilla</translation>
    </message>
    <message>
        <source>Show the templates of kiv wizard</source>
        <translation>Muestra las plantillas de kiv wizard</translation>
    </message>
    <message>
        <source>List all templates</source>
        <translation>Enumera todas las plantillas</translation>
    </message>
    <message>
        <source>Show the budget items of a template</source>
        <translation>Muestra las partidas de una plantilla</translation>
    </message>
    <message>
        <source>The exchange rates could not be fetched; try again later, or set them with kiv rates set.</source>
        <translation>No se pudieron obtener los tipos de cambio; se puede reintentar más tarde o fijarlos con kiv rates set.</translation>
    </message>
    <message>
        <source>The releases could not be fetched; try again later.</source>
        <translation>No se pudieron obtener las versiones publicadas; se puede reintentar más tarde.</translation>
    </message>
    <message>
        <source> Caused by: </source>
        <translation> Causa: </translation>
    </message>
    <message>
        <source>cleared</source>
        <translation>confirmado</translation>
    </message>
    <message>
        <source>reconciled</source>
        <translation>conciliado</translation>
    </message>
    <message>
        <source>none</source>
        <comment>the status of a transaction</comment>
        <translation>pendiente</translation>
    </message>
    <message>
        <source>non-tracked item</source>
        <translation>partida sin seguimiento</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s budget: accounts, banks, bills, wages and what is due.</source>
        <translation>Lleva el presupuesto de un hogar: cuentas, bancos, facturas, salarios y lo que vence.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumentos</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>OBLIGATORIO</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>ORDEN</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Muestra esta ayuda</translation>
    </message>
    <message>
        <source>Show the version of kiv</source>
        <translation>Muestra la versión de kiv</translation>
    </message>
    <message>
        <source>kiv COMMAND --help describes a command.</source>
        <translation>kiv ORDEN --help describe una orden.</translation>
    </message>
    <message>
        <source>item</source>
        <translation>partida</translation>
    </message>
    <message>
        <source>account</source>
        <translation>cuenta</translation>
    </message>
    <message>
        <source>transaction</source>
        <translation>asiento</translation>
    </message>
    <message>
        <source>bank</source>
        <translation>banco</translation>
    </message>
    <message>
        <source>survey</source>
        <translation>conciliación</translation>
    </message>
    <message>
        <source>added</source>
        <translation>añadido</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminado</translation>
    </message>
    <message>
        <source>accounts</source>
        <translation>cuentas</translation>
    </message>
    <message>
        <source>balance</source>
        <translation>saldo</translation>
    </message>
    <message>
        <source>borrowed</source>
        <translation>prestado</translation>
    </message>
    <message>
        <source>description</source>
        <translation>descripción</translation>
    </message>
    <message>
        <source>every</source>
        <translation>frecuencia</translation>
    </message>
    <message>
        <source>next</source>
        <translation>próxima fecha</translation>
    </message>
    <message>
        <source>parent</source>
        <translation>cuenta superior</translation>
    </message>
    <message>
        <source>path</source>
        <translation>ruta</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>target</source>
        <translation>meta</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>Cannot load the HTTP library: %1.</source>
        <translation>No se puede cargar la biblioteca HTTP: %1.</translation>
    </message>
    <message>
        <source>The row has %1 cells but there are %2 headings; put quotes around cells that contain the delimiter.</source>
        <translation>La fila tiene %1 celdas, pero hay %2 encabezados; las celdas que contienen el separador necesitan comillas.</translation>
    </message>
    <message>
        <source>The file has no headings and no entries.</source>
        <translation>El archivo no tiene encabezados ni entradas.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date form; combine YYYY, MM and DD, like DD.MM.YYYY.</source>
        <translation>«%1» no es una forma de fecha; se compone de YYYY, MM y DD, como DD.MM.YYYY.</translation>
    </message>
    <message>
        <source>Transactions posted: %1; duplicates skipped: %2; accounts opened: %3.</source>
        <translation>Asientos registrados: %1; duplicados omitidos: %2; cuentas abiertas: %3.</translation>
    </message>
    <message>
        <source>Give the account of the bank statement with --into.</source>
        <translation>La cuenta del extracto se indica con --into.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known encoding; use one like windows-1252 or UTF-16.</source>
        <translation>«%1» no es una codificación conocida; debe ser como windows-1252 o UTF-16.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date in the form %2; name another form with --date-format.</source>
        <translation>«%1» no es una fecha escrita como %2; otra forma se indica con --date-format.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a known transaction or directive; put ; before the line to skip it.</source>
        <translation>«%1» no es un asiento ni una directiva conocidos; un ; al principio de la línea la omite.</translation>
    </message>
    <message>
        <source>The row has only %1 of the %2 cells it needs.</source>
        <translation>La fila solo tiene %1 de las %2 celdas necesarias.</translation>
    </message>
    <message>
        <source>The dates can be read in two ways; name the order with --date-format, like M/D/YYYY.</source>
        <translation>Las fechas se pueden leer de dos maneras; el orden se indica con --date-format, como M/D/YYYY.</translation>
    </message>
    <message>
        <source>The last entry may be cut off; download the file again, or end it with a line ^.</source>
        <translation>La última entrada quizá esté cortada; hay que descargar el archivo de nuevo o terminarlo con una línea ^.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argumento inesperado: %1</translation>
    </message>
    <message>
        <source>Unexpected arguments: %1</source>
        <translation>Argumentos inesperados: %1</translation>
    </message>
    <message>
        <source>Encoding (default: the one named in the file, or UTF-8)</source>
        <translation>Codificación (por defecto: la que indica el archivo, o UTF-8)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rate; write one like EUR=0.92.</source>
        <translation>«%1» no es un tipo de cambio; debe ser como EUR=0.92.</translation>
    </message>
    <message>
        <source>it is larger than 64 MiB (exceeded in line %1); split it into smaller files</source>
        <translation>supera los 64 MiB (en la línea %1); hay que dividirlo en archivos más pequeños</translation>
    </message>
    <message>
        <source>The checksum is wrong.</source>
        <translation>La suma de comprobación es incorrecta.</translation>
    </message>
    <message>
        <source>Its header is damaged.</source>
        <translation>Su cabecera está dañada.</translation>
    </message>
    <message>
        <source>The content is larger than a file may be.</source>
        <translation>El contenido es mayor de lo que puede ser un archivo.</translation>
    </message>
    <message>
        <source>The surveys contradict each other.</source>
        <translation>Las conciliaciones se contradicen.</translation>
    </message>
    <message>
        <source>There are too many rows.</source>
        <translation>Hay demasiadas filas.</translation>
    </message>
    <message>
        <source>A text is too long.</source>
        <translation>Un texto es demasiado largo.</translation>
    </message>
    <message>
        <source>%1 needs a value (%2)</source>
        <translation>%1 necesita un valor (%2)</translation>
    </message>
    <message>
        <source>%1 was given %3 times, at most %2 is allowed</source>
        <translation>%1 se indicó %3 veces, como máximo se admite %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <comment>a name</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Income</source>
        <comment>what came in</comment>
        <translation>Ingresos</translation>
    </message>
    <message>
        <source>No amount is negative, but column %1 contains &apos;%2&apos;; tell what went out with --sign-column and --negative.</source>
        <translation>Ningún importe es negativo, pero la columna %1 contiene «%2»; lo que salió se indica con --sign-column y --negative.</translation>
    </message>
    <message>
        <source>y</source>
        <comment>the answer yes, a letter</comment>
        <translation>s</translation>
    </message>
    <message>
        <source>n</source>
        <comment>the answer no, a letter</comment>
        <translation>n</translation>
    </message>
    <message>
        <source>A journal can have at most %1 automated transactions.</source>
        <translation>Un diario admite como máximo %1 asientos automáticos.</translation>
    </message>
    <message>
        <source>a journal can include at most %1 files</source>
        <translation>un diario incluye como máximo %1 archivos</translation>
    </message>
    <message numerus="yes">
        <source>%n more changes are not shown; see all with --json.</source>
        <translation>
            <numerusform>%n cambio más no se muestra; --json los muestra todos.</numerusform>
            <numerusform>%n cambios más no se muestran; --json los muestra todos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The column of what went out has both signs; move refunds to the column of what came in.</source>
        <translation>La columna de salidas tiene ambos signos; los reembolsos deben ir en la columna de entradas.</translation>
    </message>
    <message>
        <source>The last line may be cut off; download the file again, or end it with a line break.</source>
        <translation>La última línea quizá esté cortada; hay que descargar el archivo de nuevo o terminarlo con un fin de línea.</translation>
    </message>
    <message>
        <source>The file has entries of several accounts; put each account into its own file.</source>
        <translation>El archivo contiene entradas de varias cuentas; cada una necesita su propio archivo.</translation>
    </message>
    <message>
        <source>Entries that the bank has not booked yet are skipped.</source>
        <translation>Se omiten las entradas que el banco aún no ha contabilizado.</translation>
    </message>
    <message>
        <source>There is no account &apos;%1&apos;; its transfers are posted to &apos;%2&apos;.</source>
        <translation>No hay ninguna cuenta «%1»; sus traspasos se registran en «%2».</translation>
    </message>
    <message>
        <source>Some entries are older than the opening balance of %1, which may already include them.</source>
        <translation>Algunas entradas son anteriores al saldo inicial del %1, que quizá ya las incluye.</translation>
    </message>
    <message>
        <source>Entries from &apos;%1&apos; to itself are skipped, such as an opening balance.</source>
        <translation>Las entradas de «%1» a la misma cuenta se omiten, como un saldo inicial.</translation>
    </message>
    <message>
        <source>Number of lines below the entries, such as totals (csv)</source>
        <translation>Número de líneas bajo las entradas, como totales (csv)</translation>
    </message>
    <message>
        <source>An amount in the column of what came in is negative; move it to what went out, or remove its sign.</source>
        <translation>Un importe de la columna de entradas es negativo; debe figurar como salida o sin signo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not tell whether the amount went out; name the words that do with --negative.</source>
        <translation>«%1» no dice si el importe salió; las palabras que lo dicen se indican con --negative.</translation>
    </message>
    <message>
        <source>The line to be skipped contains a date; skip fewer lines with --skip-last.</source>
        <translation>La línea que se omitiría contiene una fecha; hay que omitir menos líneas con --skip-last.</translation>
    </message>
    <message>
        <source>The entry has more than %1 characters up to here.</source>
        <translation>La entrada tiene hasta aquí más de %1 caracteres.</translation>
    </message>
    <message>
        <source>All descriptions up to here have more than %1 characters together; split the file.</source>
        <translation>Todas las descripciones hasta aquí suman más de %1 caracteres; hay que dividir el archivo.</translation>
    </message>
    <message>
        <source>A journal can have at most %1 accounts, parent accounts included.</source>
        <translation>Un diario tiene como máximo %1 cuentas, incluidas las superiores.</translation>
    </message>
    <message>
        <source>The full names of all accounts up to here have more than %1 characters together; shorten them.</source>
        <translation>Los nombres completos de todas las cuentas hasta aquí suman más de %1 caracteres; hay que acortarlos.</translation>
    </message>
    <message>
        <source>The kind of &apos;%1&apos; is declared too late; move the declaration above the account&apos;s first transaction.</source>
        <translation>El tipo de «%1» se declara demasiado tarde; la declaración debe estar antes del primer asiento de la cuenta.</translation>
    </message>
    <message>
        <source>Programs differ on how aliases rename &apos;%1&apos;; write the full account name.</source>
        <translation>Los programas no coinciden en cómo los alias cambian «%1»; conviene escribir el nombre completo de la cuenta.</translation>
    </message>
    <message>
        <source>Programs differ on which amount gives this balance of &apos;%1&apos;; write the amount.</source>
        <translation>Los programas no coinciden en qué importe da este saldo de «%1»; conviene escribir el importe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; may be an amount or a multiplier; add its currency, or put * before it.</source>
        <translation>«%1» puede ser un importe o un factor; conviene escribir su moneda, o * delante.</translation>
    </message>
    <message>
        <source>Programs differ on whether this automated transaction applies to &apos;%1&apos;, which was posted earlier or automatically.</source>
        <translation>Los programas no coinciden en si este asiento automático se aplica a «%1», que se registró antes o automáticamente.</translation>
    </message>
    <message>
        <source>Some accounts are merged into one, such as &apos;%1&apos; and &apos;%2&apos;.</source>
        <translation>Algunas cuentas se reúnen en una sola, como «%1» y «%2».</translation>
    </message>
    <message>
        <source>The postings of automated transactions are added.</source>
        <translation>Se registra lo que añaden los asientos automáticos.</translation>
    </message>
    <message numerus="yes">
        <source>%n transaction(s) that move no money are skipped.</source>
        <translation>
            <numerusform>Se omite %n asiento que no mueve nada.</numerusform>
            <numerusform>Se omiten %n asientos que no mueven nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates in comments are skipped; each posting has the date of its transaction.</source>
        <translation>Las fechas en los comentarios se omiten; cada apunte tiene la fecha de su asiento.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is not assigned to a bank</source>
        <translation>La cuenta «%1» no está asignada a ningún banco</translation>
    </message>
    <message>
        <source>Several budget items are named &apos;%1&apos;</source>
        <translation>Varias partidas se llaman «%1»</translation>
    </message>
    <message>
        <source>The budget was opened for reading only.</source>
        <translation>El presupuesto se abrió solo para lectura.</translation>
    </message>
    <message>
        <source>Saved a copy</source>
        <translation>Copia guardada</translation>
    </message>
    <message>
        <source>The changes of &apos;%1&apos; could not be saved</source>
        <translation>No se pudieron guardar los cambios de «%1»</translation>
    </message>
    <message>
        <source>assign it with kiv bank-account attach</source>
        <translation>se asigna con kiv bank-account attach</translation>
    </message>
    <message>
        <source>choose one with --kind: %1</source>
        <translation>se elige una con --kind: %1</translation>
    </message>
    <message>
        <source>save them elsewhere with save-as</source>
        <translation>se guardan en otro lugar con save-as</translation>
    </message>
    <message>
        <source>The table has more than %1 characters up to here, each cell counted as at least %2; split the file.</source>
        <translation>La tabla tiene hasta aquí más de %1 caracteres, contando cada celda como al menos %2; hay que dividir el archivo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is in two cells but may be one amount; put quotes around amounts that contain the delimiter.</source>
        <translation>«%1» está en dos celdas, pero puede ser un solo importe; los importes que contienen el separador necesitan comillas.</translation>
    </message>
    <message>
        <source>The columns %1 are all named &apos;%2&apos;; choose one by its number with %3.</source>
        <translation>Las columnas %1 se llaman todas «%2»; se elige una por su número con %3.</translation>
    </message>
    <message>
        <source>The heading line contains an entry; use --no-headings if the file has no headings.</source>
        <translation>La línea de los encabezados contiene una entrada; si el archivo no tiene encabezados, se indica con --no-headings.</translation>
    </message>
    <message>
        <source>This entry is inside quotes that open on an earlier line; close them there.</source>
        <translation>Esta entrada está dentro de unas comillas que se abren en una línea anterior; hay que cerrarlas allí.</translation>
    </message>
    <message>
        <source>The entries add up to a balance of %1 here, but the file says %2; --balance-column - skips this check.</source>
        <translation>Las entradas dan aquí un saldo de %1, pero el archivo dice %2; --balance-column - omite esta comprobación.</translation>
    </message>
    <message>
        <source>This entry belongs to no statement.</source>
        <translation>Esta entrada no pertenece a ningún extracto.</translation>
    </message>
    <message>
        <source>There is text outside &lt;OFX&gt; and &lt;/OFX&gt;; put each document into its own file.</source>
        <translation>Hay texto fuera de &lt;OFX&gt; y &lt;/OFX&gt;; cada documento necesita su propio archivo.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; appears twice.</source>
        <translation>&lt;%1&gt; aparece dos veces.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; repeats a field of this entry; a line ^ may be missing above.</source>
        <translation>«%1» repite un campo de esta entrada; quizá falte una línea ^ más arriba.</translation>
    </message>
    <message>
        <source>The entry has two different amounts, %1 and %2.</source>
        <translation>La entrada tiene dos importes distintos, %1 y %2.</translation>
    </message>
    <message>
        <source>Column that marks pending entries (csv)</source>
        <translation>Columna que marca las entradas pendientes (csv)</translation>
    </message>
    <message>
        <source>Column of the balance; - skips its check (csv)</source>
        <translation>Columna del saldo; - omite su comprobación (csv)</translation>
    </message>
    <message>
        <source>The rates of the reply are from %1, older than the known ones from %2.</source>
        <translation>Los tipos de la respuesta son del %1, más antiguos que los conocidos del %2.</translation>
    </message>
    <message>
        <source>%1 It was renamed to &apos;%2&apos;.</source>
        <translation>%1 Ahora se llama «%2».</translation>
    </message>
    <message>
        <source>Kind, if several items have the name, or to limit --all: bill, debt, goal, nontrack or wage</source>
        <translation>Tipo, si varias partidas se llaman así o para limitar --all: bill, debt, goal, nontrack o wage</translation>
    </message>
    <message>
        <source>typed</source>
        <translation>a mano</translation>
    </message>
    <message>
        <source>fetched</source>
        <translation>obtenido</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>The service has no exchange rates for: %1</source>
        <translation>El servicio no tiene tipos de cambio para: %1</translation>
    </message>
    <message>
        <source>The currency &apos;%1&apos; is given twice.</source>
        <translation>La moneda «%1» se indica dos veces.</translation>
    </message>
    <message>
        <source>Use either %1 or %2, not both.</source>
        <translation>Indicar %1 o %2, no ambos.</translation>
    </message>
    <message>
        <source>Use %1 only together with %2.</source>
        <translation>%1 solo vale junto con %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be locked: &apos;%2&apos; is not a lock file. Move it away or rename it.</source>
        <translation>El archivo «%1» no se puede bloquear: «%2» no es un archivo de bloqueo. Hay que moverlo o cambiarle el nombre.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be saved: &apos;%2&apos; is in the way.</source>
        <translation>No se pudo guardar el archivo «%1»: «%2» lo impide.</translation>
    </message>
    <message>
        <source>Amounts in the account &apos;%1&apos; that differed from those of their transactions in the same currency were corrected.</source>
        <translation>Se corrigieron los importes de la cuenta «%1» que diferían de los de sus asientos en la misma moneda.</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; had the account %2, which is neither an asset nor a liability.</source>
        <translation>El banco «%1» tenía la cuenta %2, que no es de activo ni de pasivo.</translation>
    </message>
    <message>
        <source>The last survey of the account %1 at the bank &apos;%2&apos; is from when the account had another type; it now counts for the present type, unless there is a later one.</source>
        <translation>La última conciliación de la cuenta %1 del banco «%2» es de cuando la cuenta era de otro tipo; ahora vale para el tipo actual, salvo que haya una posterior.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Budget file</source>
        <translation>Archivo de presupuesto</translation>
    </message>
    <message>
        <source>Accounts and transactions</source>
        <translation>Cuentas y asientos</translation>
    </message>
    <message>
        <source>Budget items</source>
        <translation>Partidas</translation>
    </message>
    <message>
        <source>Banks and statements</source>
        <translation>Bancos y extractos</translation>
    </message>
    <message>
        <source>Reports and export</source>
        <translation>Informes y exportación</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>There are no refundable transactions.</source>
        <translation>No hay asientos reembolsables.</translation>
    </message>
    <message>
        <source>The entry has no amount.</source>
        <translation>La entrada no tiene importe.</translation>
    </message>
    <message>
        <source>The entry has no date.</source>
        <translation>La entrada no tiene fecha.</translation>
    </message>
    <message>
        <source>The import profile is not valid JSON: %1.</source>
        <translation>El perfil de importación no es JSON válido: %1.</translation>
    </message>
    <message>
        <source>The import profile is not a JSON object.</source>
        <translation>El perfil de importación no es un objeto JSON.</translation>
    </message>
    <message>
        <source>The import profile has an unknown key &apos;%1&apos;.</source>
        <translation>El perfil de importación tiene una clave desconocida «%1».</translation>
    </message>
    <message>
        <source>The import profile has a wrong value for &apos;%1&apos;.</source>
        <translation>El perfil de importación tiene un valor incorrecto para «%1».</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;</source>
        <translation>No hay ningún perfil «%1»</translation>
    </message>
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
    <message>
        <source>save one with --save-profile</source>
        <translation>guarda uno con --save-profile</translation>
    </message>
    <message>
        <source>The key &apos;%1&apos; of a note must have 1 to %2 characters.</source>
        <translation>La clave «%1» de una nota debe tener de 1 a %2 caracteres.</translation>
    </message>
    <message>
        <source>The note &apos;%1&apos; is too large.</source>
        <translation>La nota «%1» es demasiado grande.</translation>
    </message>
    <message>
        <source>The note &apos;%1&apos; cannot be stored.</source>
        <translation>La nota «%1» no se puede guardar.</translation>
    </message>
    <message>
        <source>There cannot be more than %1 notes.</source>
        <translation>No puede haber más de %1 notas.</translation>
    </message>
    <message>
        <source>A note is malformed or nested too deep.</source>
        <translation>Una nota está mal formada o anidada con demasiada profundidad.</translation>
    </message>
    <message>
        <source>#%1, %2, was removed after the survey of %3</source>
        <translation>n.º %1, %2, se eliminó después de la conciliación del %3</translation>
    </message>
    <message>
        <source>#%1 was changed from %2 to %3 after the survey of %4</source>
        <translation>n.º %1 se cambió de %2 a %3 después de la conciliación del %4</translation>
    </message>
    <message>
        <source>What it says about its version is damaged.</source>
        <translation>Lo que dice sobre su versión está dañado.</translation>
    </message>
    <message>
        <source>#%1, %2, is no longer marked as reconciled since the survey of %3</source>
        <translation>n.º %1, %2, ya no está marcado como conciliado desde la conciliación del %3</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; for the former versions cannot be used: %2.</source>
        <translation>La carpeta «%1» de las versiones anteriores no se puede usar: %2.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; for the former versions belongs to another user.</source>
        <translation>La carpeta «%1» de las versiones anteriores pertenece a otro usuario.</translation>
    </message>
    <message>
        <source>Old versions could not be removed: %1</source>
        <translation>No se pudieron quitar versiones antiguas: %1</translation>
    </message>
    <message>
        <source>The file already is at version %1.</source>
        <translation>El archivo ya está en la versión %1.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is gone, but its former versions are kept</source>
        <translation>El archivo «%1» ya no está, pero se conservan sus versiones anteriores</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is gone.</source>
        <translation>El archivo «%1» ya no está.</translation>
    </message>
    <message>
        <source>bring the newest back with kiv undo</source>
        <translation>kiv undo recupera la más reciente</translation>
    </message>
    <message>
        <source>%1 Former versions are kept; bring the newest back with kiv undo.</source>
        <translation>%1 Se conservan versiones anteriores; kiv undo recupera la más reciente.</translation>
    </message>
    <message>
        <source>Created the budget</source>
        <translation>Presupuesto creado</translation>
    </message>
    <message>
        <source>Saved under a new name</source>
        <translation>Guardado con otro nombre</translation>
    </message>
    <message>
        <source>Survey of %1, %2</source>
        <translation>Conciliación de %1, %2</translation>
    </message>
    <message>
        <source>How many changes (default: 1)</source>
        <translation>Número de cambios (por defecto: 1)</translation>
    </message>
    <message>
        <source>Name of the version, see kiv history</source>
        <translation>Nombre de la versión; véase kiv history</translation>
    </message>
    <message>
        <source>Name of the older version (default: the one that kiv undo goes to)</source>
        <translation>Nombre de la versión más antigua (por defecto: a la que va kiv undo)</translation>
    </message>
    <message>
        <source>Name of the newer version (default: the file itself)</source>
        <translation>Nombre de la versión más reciente (por defecto: el propio archivo)</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Deshacer el último cambio</translation>
    </message>
    <message>
        <source>Take back the last undo</source>
        <translation>Rehacer lo último que se deshizo</translation>
    </message>
    <message>
        <source>present</source>
        <translation>actual</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries</source>
        <translation>
            <numerusform>%n asiento importado</numerusform>
            <numerusform>%n asientos importados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be undone.</source>
        <translation>
            <numerusform>Solo se puede deshacer %n cambio.</numerusform>
            <numerusform>Solo se pueden deshacer %n cambios.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n change(s) can be redone.</source>
        <translation>
            <numerusform>Solo se puede rehacer %n cambio.</numerusform>
            <numerusform>Solo se pueden rehacer %n cambios.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is as it was reconciled.</source>
        <translation>%1 está como se concilió.</translation>
    </message>
    <message>
        <source>%1 is as it was reconciled, but %2.</source>
        <translation>%1 está como se concilió, pero %2.</translation>
    </message>
    <message>
        <source>%1 is not as it was reconciled: %2.</source>
        <translation>%1 ya no está como se concilió: %2.</translation>
    </message>
    <message>
        <source>not as reconciled</source>
        <translation>no como se concilió</translation>
    </message>
    <message>
        <source>holds</source>
        <translation>se mantiene</translation>
    </message>
    <message>
        <source>broken</source>
        <translation>rota</translation>
    </message>
    <message>
        <source>Only those of this account: number, name or path (default: all)</source>
        <translation>Solo las de esta cuenta: número, nombre o ruta (por defecto: todas)</translation>
    </message>
    <message>
        <source>There are no reconciliations.</source>
        <translation>No hay conciliaciones.</translation>
    </message>
    <message>
        <source>Check whether the books still are as they were reconciled</source>
        <translation>Comprobar si los libros siguen como se conciliaron</translation>
    </message>
    <message>
        <source>%1 See kiv reconciliations.</source>
        <translation>%1 Véase kiv reconciliations.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no amounts; write them like &gt;50, &lt;20, =12.30 or 50..80.</source>
        <translation>«%1» no indica importes; escribirlos como &gt;50, &lt;20, =12.30 o 50..80.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no days; write them like 2026-03-05, 2026-03 or 2026-03..2026-05.</source>
        <translation>«%1» no indica días; escribirlos como 2026-03-05, 2026-03 o 2026-03..2026-05.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; names no mark; the marks are reconciled, cleared and open.</source>
        <translation>«%1» no indica ninguna marca; las marcas son reconciled, cleared y open.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends before it begins.</source>
        <translation>«%1» termina antes de empezar.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks a word behind the colon.</source>
        <translation>A «%1» le falta una palabra tras los dos puntos.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a filter</source>
        <translation>«%1» no es un filtro</translation>
    </message>
    <message>
        <source>Several accounts are named &apos;%1&apos;; write one of: %2.</source>
        <translation>Varias cuentas se llaman «%1»; escribir una de: %2.</translation>
    </message>
    <message>
        <source>Money is not spent on &apos;%1&apos;; name a budget item or an expense account, or move it to &apos;%1&apos;.</source>
        <translation>En «%1» no se gasta dinero; indicar una partida o una cuenta de gasto, o traspasarlo a «%1».</translation>
    </message>
    <message>
        <source>Money is not earned from &apos;%1&apos;; name a wage or an income account, or move it from &apos;%1&apos;.</source>
        <translation>De «%1» no se gana dinero; indicar un salario o una cuenta de ingreso, o traspasarlo desde «%1».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; keeps no money; name an account such as a bank account, a card or cash.</source>
        <translation>«%1» no guarda dinero; indicar una cuenta como una cuenta bancaria, una tarjeta o efectivo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was never paid before, and no bank has a checking account; name the account.</source>
        <translation>«%1» no se ha pagado nunca, y ningún banco tiene una cuenta corriente; indicar la cuenta.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>this month</source>
        <translation>este mes</translation>
    </message>
    <message>
        <source>last month</source>
        <translation>mes pasado</translation>
    </message>
    <message>
        <source>this year</source>
        <translation>este año</translation>
    </message>
    <message>
        <source>last year</source>
        <translation>año pasado</translation>
    </message>
    <message numerus="yes">
        <source>Entered %n due items: %1.</source>
        <translation>
            <numerusform>Registrada %n partida que vence: %1.</numerusform>
            <numerusform>Registradas %n partidas que vencen: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>entering %n due items</source>
        <translation>
            <numerusform>registrar %n partida que vence</numerusform>
            <numerusform>registrar %n partidas que vencen</numerusform>
        </translation>
    </message>
    <message>
        <source>Received %1.</source>
        <translation>%1: recibido.</translation>
    </message>
    <message>
        <source>receiving “%1”</source>
        <translation>recibir «%1»</translation>
    </message>
    <message>
        <source>Saved for %1.</source>
        <translation>Ahorro para %1 registrado.</translation>
    </message>
    <message>
        <source>saving for “%1”</source>
        <translation>ahorrar para «%1»</translation>
    </message>
    <message>
        <source>Paid %1.</source>
        <translation>%1: pagado.</translation>
    </message>
    <message>
        <source>paying “%1”</source>
        <translation>pagar «%1»</translation>
    </message>
    <message>
        <source>Skipped %1.</source>
        <translation>%1: omitido.</translation>
    </message>
    <message>
        <source>skipping “%1”</source>
        <translation>omitir «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Skipped %n due items: %1.</source>
        <translation>
            <numerusform>Omitida %n partida que vence: %1.</numerusform>
            <numerusform>Omitidas %n partidas que vencen: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>skipping %n due items</source>
        <translation>
            <numerusform>omitir %n partida que vence</numerusform>
            <numerusform>omitir %n partidas que vencen</numerusform>
        </translation>
    </message>
    <message>
        <source>At banks and in cash</source>
        <translation>En bancos y en efectivo</translation>
    </message>
    <message>
        <source>Owed: cards and loans</source>
        <translation>Adeudado: tarjetas y préstamos</translation>
    </message>
    <message>
        <source>Set aside for goals</source>
        <translation>Apartado para metas</translation>
    </message>
    <message>
        <source>Items of the budget</source>
        <translation>Partidas del presupuesto</translation>
    </message>
    <message>
        <source>Everything else</source>
        <translation>Todo lo demás</translation>
    </message>
    <message>
        <source>%1, changed since</source>
        <translation>%1, modificado desde entonces</translation>
    </message>
    <message>
        <source>With goals under it</source>
        <translation>Con las metas que contiene</translation>
    </message>
    <message>
        <source>Last reconciled</source>
        <translation>Última conciliación</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>no longer</source>
        <translation>ya no</translation>
    </message>
    <message>
        <source>Its balance then</source>
        <translation>Saldo después</translation>
    </message>
    <message>
        <source>Next due</source>
        <translation>Próximo vencimiento</translation>
    </message>
    <message>
        <source>Nothing is due until %1.</source>
        <translation>Nada vence hasta el %1.</translation>
    </message>
    <message>
        <source>To pay until %1: %2.</source>
        <translation>Por pagar hasta el %1: %2.</translation>
    </message>
    <message>
        <source>To come in until %1: %2.</source>
        <translation>Por recibir hasta el %1: %2.</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>menos %1</translation>
    </message>
    <message>
        <source>No account is chosen for “%1”.</source>
        <translation>No se ha elegido ninguna cuenta para «%1».</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EN</translation>
    </message>
    <message>
        <source>WORDS</source>
        <translation>PALABRAS</translation>
    </message>
    <message>
        <source>Words of the payee, the reason or an account; amounts like &apos;&gt;50&apos; or 50..80; days like march, 2026-03 or today; is:reconciled, not:cleared; account:NAME, item:NAME, payee:NAME. After --, -WORD excludes</source>
        <translation>Palabras del beneficiario, el motivo o una cuenta; importes como &apos;&gt;50&apos; o 50..80; días como marzo, 2026-03 u hoy; is:reconciled, not:cleared; account:NOMBRE, item:NOMBRE, payee:NOMBRE. Tras --, -PALABRA excluye</translation>
    </message>
    <message>
        <source>Day that counts as today</source>
        <translation>Día que cuenta como hoy</translation>
    </message>
    <message>
        <source>No transaction fits.</source>
        <translation>No coincide ningún asiento.</translation>
    </message>
    <message>
        <source>%1 of %2, together %3.</source>
        <translation>%1 de %2, en total %3.</translation>
    </message>
    <message>
        <source>Search the transactions</source>
        <translation>Buscar asientos</translation>
    </message>
    <message>
        <source>What it was for</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Amount, in the currency of the account</source>
        <translation>Importe, en la moneda de la cuenta</translation>
    </message>
    <message>
        <source>Budget item or expense account</source>
        <translation>Partida o cuenta de gasto</translation>
    </message>
    <message>
        <source>Account that paid (default: that of the last time, or else the first checking account)</source>
        <translation>Cuenta que pagó (por defecto: la de la última vez o, si no, la primera cuenta corriente)</translation>
    </message>
    <message>
        <source>Who got the money</source>
        <translation>Quién recibió el dinero</translation>
    </message>
    <message>
        <source>Spent %1 from %2 on %3 (transaction %4).</source>
        <translation>Gastado %1 de %2 en %3 (asiento %4).</translation>
    </message>
    <message>
        <source>Wage or income account</source>
        <translation>Salario o cuenta de ingreso</translation>
    </message>
    <message>
        <source>Account that got the money (default: that of the last time, or else the first checking account)</source>
        <translation>Cuenta que recibió el dinero (por defecto: la de la última vez o, si no, la primera cuenta corriente)</translation>
    </message>
    <message>
        <source>Who gave the money</source>
        <translation>Quién dio el dinero</translation>
    </message>
    <message>
        <source>Earned %1 from %2 to %3 (transaction %4).</source>
        <translation>Ganado %1 de %2 en %3 (asiento %4).</translation>
    </message>
    <message>
        <source>Account that the money leaves</source>
        <translation>Cuenta de la que sale el dinero</translation>
    </message>
    <message>
        <source>Account that the money goes to: a bank account, a card, a loan, a goal …</source>
        <translation>Cuenta a la que va el dinero: una cuenta bancaria, una tarjeta, un préstamo, una meta …</translation>
    </message>
    <message>
        <source>Enter money that was spent</source>
        <translation>Anotar dinero gastado</translation>
    </message>
    <message>
        <source>Enter money that was earned</source>
        <translation>Anotar dinero ganado</translation>
    </message>
    <message>
        <source>Move money between accounts</source>
        <translation>Traspasar dinero entre cuentas</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has two currencies; enter amounts of one currency.</source>
        <translation>«%1» tiene dos monedas; introducir importes de una sola moneda.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not come out even; enter the amount itself.</source>
        <translation>«%1» no da un importe exacto; introducir el importe mismo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a day; write one like 2026-03-31, 3, 5-2, +7 or today.</source>
        <translation>«%1» no es un día; debe ser como 2026-03-31, 3, 5-2, +7 u hoy.</translation>
    </message>
    <message>
        <source>“%1” has no category: it was neither spent nor earned.</source>
        <translation>«%1» no tiene categoría: no se gastó ni se ingresó.</translation>
    </message>
    <message>
        <source>“%1” is reconciled; take the reconciliation back first.</source>
        <translation>«%1» está conciliado; primero se debe deshacer la conciliación.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Spent %1 on %2.</source>
        <translation>%1 gastado en %2.</translation>
    </message>
    <message>
        <source>spending %1 on %2</source>
        <translation>gastar %1 en %2</translation>
    </message>
    <message>
        <source>Earned %1 from %2.</source>
        <translation>%1 ingresado de %2.</translation>
    </message>
    <message>
        <source>earning %1 from %2</source>
        <translation>ingresar %1 de %2</translation>
    </message>
    <message>
        <source>Moved %1 from %2 to %3.</source>
        <translation>%1 traspasado de %2 a %3.</translation>
    </message>
    <message>
        <source>moving %1 from %2 to %3</source>
        <translation>traspasar %1 de %2 a %3</translation>
    </message>
    <message>
        <source>Changed “%1”.</source>
        <translation>«%1»: modificado.</translation>
    </message>
    <message>
        <source>changing “%1”</source>
        <translation>modificar «%1»</translation>
    </message>
    <message>
        <source>Refunded %1 of “%2”.</source>
        <translation>%1 de «%2» reembolsado.</translation>
    </message>
    <message>
        <source>refunding %1 of “%2”</source>
        <translation>reembolsar %1 de «%2»</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>«%1»: eliminado.</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>eliminar «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n transaction(s).</source>
        <translation>
            <numerusform>%n asiento eliminado.</numerusform>
            <numerusform>%n asientos eliminados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removing %n transaction(s)</source>
        <translation>
            <numerusform>eliminar %n asiento</numerusform>
            <numerusform>eliminar %n asientos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as cleared.</source>
        <translation>
            <numerusform>%n asiento marcado como confirmado.</numerusform>
            <numerusform>%n asientos marcados como confirmados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as cleared</source>
        <translation>
            <numerusform>marcar %n asiento como confirmado</numerusform>
            <numerusform>marcar %n asientos como confirmados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not cleared.</source>
        <translation>
            <numerusform>%n asiento marcado como no confirmado.</numerusform>
            <numerusform>%n asientos marcados como no confirmados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not cleared</source>
        <translation>
            <numerusform>marcar %n asiento como no confirmado</numerusform>
            <numerusform>marcar %n asientos como no confirmados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as reconciled.</source>
        <translation>
            <numerusform>%n asiento marcado como conciliado.</numerusform>
            <numerusform>%n asientos marcados como conciliados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as reconciled</source>
        <translation>
            <numerusform>marcar %n asiento como conciliado</numerusform>
            <numerusform>marcar %n asientos como conciliados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Marked %n transaction(s) as not reconciled.</source>
        <translation>
            <numerusform>%n asiento marcado como no conciliado.</numerusform>
            <numerusform>%n asientos marcados como no conciliados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>marking %n transaction(s) as not reconciled</source>
        <translation>
            <numerusform>marcar %n asiento como no conciliado</numerusform>
            <numerusform>marcar %n asientos como no conciliados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put %n transaction(s) under %1.</source>
        <translation>
            <numerusform>%n asiento clasificado en %1.</numerusform>
            <numerusform>%n asientos clasificados en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>putting %n transaction(s) under %1</source>
        <translation>
            <numerusform>clasificar %n asiento en %1</numerusform>
            <numerusform>clasificar %n asientos en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Budgets (*.budget)</source>
        <translation>Presupuestos (*.budget)</translation>
    </message>
    <message>
        <source>Open a budget</source>
        <translation>Abrir un presupuesto</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>%1 was last reconciled on %2.</source>
        <translation>%1 se concilió por última vez el %2.</translation>
    </message>
    <message>
        <source>There is no exchange rate between %1 and %2.</source>
        <translation>No hay tipo de cambio entre %1 y %2.</translation>
    </message>
    <message>
        <source>The last changes are not saved. %1</source>
        <translation>Los últimos cambios no están guardados. %1</translation>
    </message>
    <message>
        <source>open</source>
        <comment>the state of an account</comment>
        <translation>abierta</translation>
    </message>
    <message>
        <source>state</source>
        <translation>estado</translation>
    </message>
    <message>
        <source>from</source>
        <comment>an account</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>to</source>
        <comment>an account</comment>
        <translation>a</translation>
    </message>
    <message>
        <source>amount given</source>
        <translation>importe entregado</translation>
    </message>
    <message>
        <source>amount received</source>
        <translation>importe recibido</translation>
    </message>
    <message>
        <source>mark of the giver</source>
        <translation>marca de quien da</translation>
    </message>
    <message>
        <source>mark of the receiver</source>
        <translation>marca de quien recibe</translation>
    </message>
    <message>
        <source>refund of</source>
        <translation>reembolso de</translation>
    </message>
    <message>
        <source>reconciled on</source>
        <translation>conciliado el</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>sobrante</translation>
    </message>
    <message>
        <source>set aside</source>
        <translation>apartado</translation>
    </message>
    <message>
        <source>owed to %1</source>
        <translation>adeudado a %1</translation>
    </message>
    <message>
        <source>owed</source>
        <translation>adeudado</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>Apart</source>
        <translation>Aparte</translation>
    </message>
    <message>
        <source>There is no exchange rate for %1; balances leave it out.</source>
        <translation>No hay tipo de cambio para %1; los saldos lo omiten.</translation>
    </message>
    <message>
        <source>As it was opened</source>
        <translation>Como se abrió</translation>
    </message>
    <message>
        <source>in the file now</source>
        <translation>ahora en el archivo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Since the file was opened</source>
        <translation>Desde que se abrió el archivo</translation>
    </message>
    <message>
        <source>Versions of the file</source>
        <translation>Versiones del archivo</translation>
    </message>
    <message>
        <source>Free spending</source>
        <translation>Gasto libre</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 still owed of %2</source>
        <translation>%1 de %2 aún por pagar</translation>
    </message>
    <message>
        <source>A month&apos;s share</source>
        <translation>Parte mensual</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>unchanged since</source>
        <translation>sin cambios desde entonces</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>modificado desde entonces</translation>
    </message>
    <message>
        <source>1 %1 = %2 %3</source>
        <translation>1 %1 = %2 %3</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>de hace %n día</numerusform>
            <numerusform>de hace %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>of today</source>
        <translation>de hoy</translation>
    </message>
    <message>
        <source>Reconciled on</source>
        <translation>Conciliado el</translation>
    </message>
    <message>
        <source>Not set aside</source>
        <translation>No apartado</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Antigüedad</translation>
    </message>
    <message>
        <source>Receive</source>
        <translation>Recibir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Ahorrar</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Pagar</translation>
    </message>
    <message>
        <source>Weekly shopping</source>
        <translation>Compra semanal</translation>
    </message>
    <message>
        <source>Bakery</source>
        <translation>Panadería</translation>
    </message>
    <message>
        <source>Noodle house</source>
        <translation>Casa de los fideos</translation>
    </message>
    <message>
        <source>Castle pharmacy</source>
        <translation>Farmacia del castillo</translation>
    </message>
    <message>
        <source>Furniture store</source>
        <translation>Tienda de muebles</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpara</translation>
    </message>
    <message>
        <source>Village shop</source>
        <translation>Tienda del pueblo</translation>
    </message>
    <message>
        <source>Corner market</source>
        <translation>Mercado de la esquina</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Ahorro mensual</translation>
    </message>
    <message>
        <source>Cash machine</source>
        <translation>Cajero</translation>
    </message>
    <message>
        <source>Card bill</source>
        <translation>Liquidación de la tarjeta</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Intereses</translation>
    </message>
    <message>
        <source>Account given up</source>
        <translation>Cuenta dada de baja</translation>
    </message>
    <message>
        <source>Harbour hotel</source>
        <translation>Hotel del puerto</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Vacaciones</translation>
    </message>
    <message>
        <source>Travel money</source>
        <translation>Dinero para el viaje</translation>
    </message>
    <message>
        <source>A split has at least two parts.</source>
        <translation>Un reparto tiene al menos dos partes.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is kept in %2; give its amount in %2 instead of %3.</source>
        <translation>«%1» se lleva en %2; indicar su importe en %2 en lugar de %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; are both kept in %3, so nothing is exchanged; move one amount.</source>
        <translation>«%1» y «%2» se llevan en %3, así que no se cambia nada; traspasar un solo importe.</translation>
    </message>
    <message>
        <source>The %1 &apos;%2&apos; could not be added.</source>
        <translation>No se pudo añadir «%2» (%1).</translation>
    </message>
    <message>
        <source>The demonstration ends today or on a day before, not on %1.</source>
        <translation>La demostración termina hoy o un día anterior, no el %1.</translation>
    </message>
    <message>
        <source>Salary</source>
        <translation>Nómina</translation>
    </message>
    <message>
        <source>Evening classes</source>
        <translation>Clases nocturnas</translation>
    </message>
    <message>
        <source>Rent</source>
        <translation>Alquiler</translation>
    </message>
    <message>
        <source>home</source>
        <translation>vivienda</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Bus pass</source>
        <translation>Abono de autobús</translation>
    </message>
    <message>
        <source>travel</source>
        <translation>transporte</translation>
    </message>
    <message>
        <source>Fitness studio</source>
        <translation>Gimnasio</translation>
    </message>
    <message>
        <source>leisure</source>
        <translation>ocio</translation>
    </message>
    <message>
        <source>Home insurance</source>
        <translation>Seguro del hogar</translation>
    </message>
    <message>
        <source>Car tax</source>
        <translation>Impuesto del coche</translation>
    </message>
    <message>
        <source>Pocket money</source>
        <translation>Dinero de bolsillo</translation>
    </message>
    <message>
        <source>Bicycle</source>
        <translation>Bicicleta</translation>
    </message>
    <message>
        <source>Car loan</source>
        <translation>Préstamo del coche</translation>
    </message>
    <message>
        <source>Family loan</source>
        <translation>Préstamo familiar</translation>
    </message>
    <message>
        <source>Town Bank</source>
        <translation>Banco de la ciudad</translation>
    </message>
    <message>
        <source>Lake Bank</source>
        <translation>Banco del lago</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Cuenta corriente</translation>
    </message>
    <message>
        <source>Credit card</source>
        <translation>Tarjeta de crédito</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Cuenta de ahorro</translation>
    </message>
    <message>
        <source>Old savings</source>
        <translation>Cuenta de ahorro antigua</translation>
    </message>
    <message>
        <source>Travel cash</source>
        <translation>Efectivo de viaje</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Efectivo</translation>
    </message>
    <message>
        <source>Groceries</source>
        <translation>Comida</translation>
    </message>
    <message>
        <source>Furniture</source>
        <translation>Muebles</translation>
    </message>
    <message>
        <source>Eating out</source>
        <translation>Restaurantes</translation>
    </message>
    <message>
        <source>Pharmacy</source>
        <translation>Farmacia</translation>
    </message>
    <message>
        <source>Travelling</source>
        <translation>Viajes</translation>
    </message>
    <message>
        <source>Exchanged %1 for %2.</source>
        <translation>Se cambiaron %1 por %2.</translation>
    </message>
    <message>
        <source>exchanging %1 for %2</source>
        <translation>cambiar %1 por %2</translation>
    </message>
    <message>
        <source>Last day of its year (default: today)</source>
        <translation>Último día del año (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Created the demonstration</source>
        <translation>Se creó la demostración</translation>
    </message>
    <message>
        <source>Created the demonstration &apos;%1&apos;: a year of a household until %2.</source>
        <translation>Se creó la demostración «%1»: un año de un hogar hasta el %2.</translation>
    </message>
    <message>
        <source>Create the budget of a made-up household, to try things out</source>
        <translation>Crear el presupuesto de un hogar inventado, para probar</translation>
    </message>
    <message>
        <source>Amount, in the currency of the account it goes to; with --received, in that of the account it leaves</source>
        <translation>Importe, en la moneda de la cuenta a la que va; con --received, en la de la cuenta de la que sale</translation>
    </message>
    <message>
        <source>Amount that arrived, in another currency: both amounts as the bank booked them</source>
        <translation>Importe que llegó, en otra moneda: ambos importes como los registró el banco</translation>
    </message>
    <message>
        <source>Part of what was spent, or with --to earned, such as Food=40 (repeatable)</source>
        <translation>Parte de lo gastado o, con --to, de lo ingresado, como Comida=40 (repetible)</translation>
    </message>
    <message>
        <source>With --split, account that paid (default: that of the last time for the first part, or else the first checking account)</source>
        <translation>Con --split, cuenta que pagó (por defecto: la de la última vez para la primera parte o, si no, la primera cuenta corriente)</translation>
    </message>
    <message>
        <source>With --split, account that got the money</source>
        <translation>Con --split, cuenta que recibió el dinero</translation>
    </message>
    <message>
        <source>With --split, who got or gave the money</source>
        <translation>Con --split, quién recibió o dio el dinero</translation>
    </message>
    <message>
        <source>With --split, what it was for</source>
        <translation>Con --split, para qué fue</translation>
    </message>
    <message>
        <source>Amount of an item of the template, such as &apos;Rent=900&apos;, &apos;Rent=900 2026-03-31&apos; or &apos;goal:Car=50 of 900&apos; (repeatable); items without one are left out</source>
        <translation>Importe de una partida de la plantilla, como &apos;Alquiler=900&apos;, &apos;Alquiler=900 2026-03-31&apos; o &apos;goal:Coche=50 of 900&apos; (repetible); las partidas sin importe se omiten</translation>
    </message>
    <message>
        <source>Give its items amounts, such as --item &apos;%1=100&apos;; those without one are left out.</source>
        <translation>Dar importes a sus partidas, como --item &apos;%1=100&apos;; las que no tienen importe se omiten.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is given twice.</source>
        <translation>«%1» se indica dos veces.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no goal, and has no target.</source>
        <translation>«%1» no es una meta y no tiene importe de la meta.</translation>
    </message>
    <message>
        <source>The template has no item &apos;%1&apos;</source>
        <translation>La plantilla no tiene ninguna partida «%1»</translation>
    </message>
    <message>
        <source>The template has several items &apos;%1&apos;; write one of: %2.</source>
        <translation>La plantilla tiene varias partidas «%1»; escribir una de: %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Bank or account</source>
        <translation>Banco o cuenta</translation>
    </message>
    <message>
        <source>There are no bills yet: what must be paid, such as rent.</source>
        <translation>Aún no hay facturas: lo que hay que pagar, como el alquiler.</translation>
    </message>
    <message>
        <source>There are no debts yet: money that you pay back.</source>
        <translation>Aún no hay deudas: dinero que se devuelve.</translation>
    </message>
    <message>
        <source>There are no goals yet: what you save for.</source>
        <translation>Aún no hay metas: para lo que se ahorra.</translation>
    </message>
    <message>
        <source>There is no free spending yet: money that you spend without noting each purchase.</source>
        <translation>Aún no hay gastos libres: dinero que se gasta sin anotar cada compra.</translation>
    </message>
    <message>
        <source>There are no wages yet: money that comes in.</source>
        <translation>Aún no hay salarios: dinero que entra.</translation>
    </message>
    <message>
        <source>paid off</source>
        <translation>pagada</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>alcanzada: %1</translation>
    </message>
    <message>
        <source>%1 (%2 % paid off)</source>
        <translation>%1 (%2 % pagado)</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Together a month: %1</source>
        <translation>En total al mes: %1</translation>
    </message>
    <message>
        <source>New %1</source>
        <translation>Añadir: %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Presupuesto nuevo</translation>
    </message>
    <message>
        <source>I add my own items later</source>
        <translation>Añadir las partidas más tarde</translation>
    </message>
    <message>
        <source>A teenager</source>
        <translation>Un adolescente</translation>
    </message>
    <message>
        <source>One adult</source>
        <translation>Un adulto</translation>
    </message>
    <message>
        <source>Two adults, one income</source>
        <translation>Dos adultos, un ingreso</translation>
    </message>
    <message>
        <source>Two adults, two incomes</source>
        <translation>Dos adultos, dos ingresos</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Deseada</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>wanted</source>
        <translation>deseada</translation>
    </message>
    <message>
        <source>not wanted</source>
        <translation>no deseada</translation>
    </message>
    <message>
        <source>no amount yet</source>
        <translation>aún sin importe</translation>
    </message>
    <message>
        <source>household</source>
        <comment>the name of a file</comment>
        <translation>hogar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a rate; write one like 0.92.</source>
        <translation>«%1» no es un tipo de cambio; se escribe como 0.92.</translation>
    </message>
    <message>
        <source>No currency is given; write codes such as USD, EUR.</source>
        <translation>No se indica ninguna moneda; se escriben como USD, EUR.</translation>
    </message>
    <message>
        <source>reconciling “%1”</source>
        <translation>conciliar «%1»</translation>
    </message>
    <message>
        <source>The transactions of one account or of all, and below them the row for new ones: Spent, Earned or Moved. Enter in any field posts; the day stays. When a payee is known, its last entry fills the other fields.

F2 changes the chosen transaction, Del removes it, Ctrl+D enters it again. “Refund” in the menu “Transaction” takes money back: the whole amount is proposed, and a smaller one can be typed.

Ctrl+F searches: words and conditions such as &gt;50, march or not:reconciled.</source>
        <translation>Los asientos de una cuenta o de todas, y debajo la fila para los nuevos: gastado, ingresado o traspasado. Intro registra desde cualquier campo; el día se queda. Si se conoce el beneficiario, su último asiento llena los demás campos.

F2 cambia el asiento elegido, Supr lo elimina, Ctrl+D lo registra otra vez. «Reembolsar», en el menú «Asiento», recupera dinero: se propone todo el importe, y se puede escribir uno menor.

Ctrl+F busca: palabras y condiciones como &gt;50, march o not:reconciled.</translation>
    </message>
    <message>
        <source>What is due soon and what is late. The form pays the chosen line from an account, pays another amount, or skips it. Several lines can be chosen with Shift and the arrow keys; they are one step of undo.</source>
        <translation>Lo que vence pronto y lo atrasado. El formulario paga la línea elegida desde una cuenta, paga otro importe o la omite. Con Mayús y las flechas se eligen varias líneas; se deshacen en un solo paso.</translation>
    </message>
    <message>
        <source>The banks and their accounts. The kind of an account says whether its balance is money or a debt, and what can be tied to it.</source>
        <translation>Los bancos y sus cuentas. La clase de una cuenta dice si su saldo es dinero o una deuda, y qué se puede vincular con ella.</translation>
    </message>
    <message>
        <source>One line for each currency: its rate, the day of the rate, and whether it was fetched or typed. “Not converted” stands where a usable currency has no rate; totals leave it out.

A rate can be typed over, and all can be fetched from the service. Rates are the same for all budgets and cannot be undone.</source>
        <translation>Una línea por moneda: su tipo de cambio, el día del tipo y si se obtuvo o se escribió. «Sin convertir» figura donde una moneda utilizable no tiene tipo; los totales la dejan fuera.

Un tipo se puede sobrescribir, y todos se pueden obtener del servicio. Los tipos valen para todos los presupuestos y no se pueden deshacer.</translation>
    </message>
    <message>
        <source>Each setting is applied as soon as its field is left. Settings are the same for all budgets and cannot be undone. A currency that the budget uses must stay usable.

The survey window says by how much the ticked transactions may miss the balance of a statement. The hours and days of work are for wages.

Removing a tag takes it from all items.</source>
        <translation>Cada ajuste vale en cuanto se deja su campo. Los ajustes valen para todos los presupuestos y no se pueden deshacer. Una moneda que el presupuesto usa debe seguir siendo utilizable.

El margen de la conciliación dice cuánto pueden apartarse los asientos marcados del saldo de un extracto. Las horas y los días de trabajo sirven para los salarios.

Al eliminar una etiqueta, la pierden todas las partidas.</translation>
    </message>
    <message>
        <source>not converted</source>
        <translation>sin convertir</translation>
    </message>
    <message>
        <source>not booked yet</source>
        <translation>sin registrar</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Item or account</source>
        <translation>Partida o cuenta</translation>
    </message>
    <message>
        <source>On the statement</source>
        <translation>En el extracto</translation>
    </message>
    <message>
        <source>stays in the account</source>
        <translation>se queda en la cuenta</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>sin marcar</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>marcado</translation>
    </message>
    <message numerus="yes">
        <source>%n ticked</source>
        <translation>
            <numerusform>%n marcado</numerusform>
            <numerusform>%n marcados</numerusform>
        </translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Archivos %1 (*.%2)</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>comas</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>puntos y comas</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>tabuladores</translation>
    </message>
    <message>
        <source>no headings</source>
        <translation>sin encabezados</translation>
    </message>
    <message>
        <source>decimal comma</source>
        <translation>coma decimal</translation>
    </message>
    <message>
        <source>Read as: %1</source>
        <translation>Leído como: %1</translation>
    </message>
    <message>
        <source>The file is read as %1, since its letters are not %2.</source>
        <translation>El archivo se lee como %1, pues sus letras no son %2.</translation>
    </message>
    <message>
        <source>The dates are read as %1: only so are they in order.</source>
        <translation>Las fechas se leen como %1: solo así están en orden.</translation>
    </message>
    <message>
        <source>The headings appear again on line %1; the file may contain entries twice.</source>
        <translation>Los encabezados aparecen de nuevo en la línea %1; es posible que el archivo contenga entradas dos veces.</translation>
    </message>
    <message>
        <source>No amount is negative: amounts marked CR came in, all others went out.</source>
        <translation>Ningún importe es negativo: los marcados con CR entraron y todos los demás salieron.</translation>
    </message>
    <message>
        <source>No amount is negative, so all of them are read as money that came in.</source>
        <translation>Ningún importe es negativo; por eso todos se leen como entradas.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries that did not take place are skipped (%1).</source>
        <translation>
            <numerusform>Se omite %n entrada que no se realizó (%1).</numerusform>
            <numerusform>Se omiten %n entradas que no se realizaron (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>The fees in column &apos;%1&apos; are subtracted from the amounts.</source>
        <translation>Las comisiones de la columna «%1» se restan de los importes.</translation>
    </message>
    <message>
        <source>The balances show that the amounts include the fees in column &apos;%1&apos;.</source>
        <translation>Los saldos muestran que los importes incluyen las comisiones de la columna «%1».</translation>
    </message>
    <message>
        <source>The balances in column &apos;%1&apos; do not follow from the amounts, and are not used.</source>
        <translation>Los saldos de la columna «%1» no resultan de los importes y no se usan.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; should have nothing but %2 here, but has more.</source>
        <translation>«%1» debería tener aquí solo %2, pero tiene algo más.</translation>
    </message>
    <message>
        <source>Programs differ on what &apos;%1&apos; costs here; write the price of its lot after @, too.</source>
        <translation>Los programas no coinciden en cuánto cuesta aquí «%1»; conviene escribir el precio del lote también después de @.</translation>
    </message>
    <message>
        <source>Line %1: the comment has no end; the rest of the file belongs to it.</source>
        <translation>Línea %1: el comentario no tiene fin; el resto del archivo forma parte de él.</translation>
    </message>
    <message>
        <source>Lots are not kept apart; shares are kept at their cost.</source>
        <translation>Los lotes no se distinguen; las acciones se llevan a su coste.</translation>
    </message>
    <message>
        <source>This line looks like an entry but is above the headings; say with --skip how many lines are above them.</source>
        <translation>Esta línea parece una entrada, pero está encima de los encabezados; indicar con --skip cuántas líneas hay encima de ellos.</translation>
    </message>
    <message>
        <source>The column of fees has both signs.</source>
        <translation>La columna de comisiones tiene ambos signos.</translation>
    </message>
    <message>
        <source>The file contains no CAMT message about an account.</source>
        <translation>El archivo no contiene ningún mensaje CAMT sobre una cuenta.</translation>
    </message>
    <message>
        <source>The file has a document type (&lt;!DOCTYPE&gt;), which may refer to other files; banks write none.</source>
        <translation>El archivo tiene un tipo de documento (&lt;!DOCTYPE&gt;), que puede remitir a otros archivos; los bancos no lo escriben.</translation>
    </message>
    <message>
        <source>The XML is broken here: %1</source>
        <translation>El XML está dañado aquí: %1</translation>
    </message>
    <message>
        <source>The file contains no MT940 statement; one begins with :20:.</source>
        <translation>El archivo no contiene ningún extracto MT940; empiezan con :20:.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read; it should be like %2.</source>
        <translation>«%1» no se puede leer; debería ser como %2.</translation>
    </message>
    <message>
        <source>The statement that begins on line %1 has no closing balance; it may be cut off. Download the file again.</source>
        <translation>El extracto que empieza en la línea %1 no tiene saldo final; quizá esté cortado. Conviene volver a descargar el archivo.</translation>
    </message>
    <message>
        <source>Line %1: the entries add up to a balance of %2, but the file says %3; entries may be missing.</source>
        <translation>Línea %1: las entradas dan un saldo de %2, pero el archivo dice %3; quizá falten entradas.</translation>
    </message>
    <message numerus="yes">
        <source>%n further balance(s) differ from the entries, too.</source>
        <translation>
            <numerusform>%n saldo más tampoco concuerda con las entradas.</numerusform>
            <numerusform>%n saldos más tampoco concuerdan con las entradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1: the statement goes on in another file; import that, too.</source>
        <translation>Línea %1: el extracto continúa en otro archivo, que también hay que importar.</translation>
    </message>
    <message>
        <source>Line %1: &lt;%2&gt; is never closed; the file is read as if it were.</source>
        <translation>Línea %1: &lt;%2&gt; nunca se cierra; el archivo se lee como si se cerrara.</translation>
    </message>
    <message>
        <source>The end of the file is missing; it may be cut off.</source>
        <translation>Falta el final del archivo; quizá esté cortado.</translation>
    </message>
    <message>
        <source>Line %1: the balance cannot be read.</source>
        <translation>Línea %1: el saldo no se puede leer.</translation>
    </message>
    <message>
        <source>Line %1: the correction over %2 is skipped, because the entry that it corrects is not in the file; correct it by hand.</source>
        <translation>Línea %1: la corrección de %2 se omite, porque la entrada que corrige no está en el archivo; hay que corregirla a mano.</translation>
    </message>
    <message>
        <source>Comments above the first entry are skipped.</source>
        <translation>Los comentarios anteriores a la primera entrada se omiten.</translation>
    </message>
    <message>
        <source>Investments are skipped.</source>
        <translation>Las inversiones se omiten.</translation>
    </message>
    <message>
        <source>date &apos;%1&apos;</source>
        <translation>fecha «%1»</translation>
    </message>
    <message>
        <source>date &apos;%1&apos; as %2</source>
        <translation>fecha «%1» como %2</translation>
    </message>
    <message>
        <source>date &apos;%1&apos; as %2 (%3 proves it)</source>
        <translation>fecha «%1» como %2 (lo prueba %3)</translation>
    </message>
    <message>
        <source>amount &apos;%1&apos;</source>
        <translation>importe «%1»</translation>
    </message>
    <message>
        <source>money in &apos;%1&apos;</source>
        <translation>entradas «%1»</translation>
    </message>
    <message>
        <source>money out &apos;%1&apos;</source>
        <translation>salidas «%1»</translation>
    </message>
    <message>
        <source>sign &apos;%1&apos;</source>
        <translation>signo «%1»</translation>
    </message>
    <message>
        <source>fee &apos;%1&apos;</source>
        <translation>comisión «%1»</translation>
    </message>
    <message>
        <source>payee &apos;%1&apos;</source>
        <translation>beneficiario «%1»</translation>
    </message>
    <message>
        <source>text &apos;%1&apos;</source>
        <translation>texto «%1»</translation>
    </message>
    <message>
        <source>balance &apos;%1&apos;</source>
        <translation>saldo «%1»</translation>
    </message>
    <message>
        <source>account &apos;%1&apos;</source>
        <translation>cuenta «%1»</translation>
    </message>
    <message>
        <source>headings on line %1</source>
        <translation>encabezados en la línea %1</translation>
    </message>
    <message>
        <source>What is below the entries from line %1 on is skipped.</source>
        <translation>Se omite lo que hay debajo de las entradas a partir de la línea %1.</translation>
    </message>
    <message>
        <source>It is not known what &apos;%1&apos; of %2 was for.</source>
        <translation>No se sabe para qué era «%1» del %2.</translation>
    </message>
    <message>
        <source>A rule needs a text that entries contain.</source>
        <translation>Una regla necesita un texto que contengan las entradas.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a regular expression: %2.</source>
        <translation>«%1» no es una expresión regular: %2.</translation>
    </message>
    <message>
        <source>No amount lies between those of the rule.</source>
        <translation>Ningún importe está entre los de la regla.</translation>
    </message>
    <message>
        <source>There are too many rules; remove some first.</source>
        <translation>Hay demasiadas reglas; antes hay que quitar algunas.</translation>
    </message>
    <message>
        <source>The file has it twice.</source>
        <translation>El archivo la da dos veces.</translation>
    </message>
    <message>
        <source>%1 is due on %2 for %3.</source>
        <translation>%1 vence el %2 por %3.</translation>
    </message>
    <message>
        <source>%1 is due on %2, but for %3.</source>
        <translation>%1 vence el %2, pero por %3.</translation>
    </message>
    <message>
        <source>It was imported before.</source>
        <translation>Ya se importó.</translation>
    </message>
    <message>
        <source>Another file of the account had it already.</source>
        <translation>Otro archivo de la cuenta ya la daba.</translation>
    </message>
    <message numerus="yes">
        <source>Entered on %1 in %n parts, which add up to it.</source>
        <translation>
            <numerusform>Registrado el %1 en %n parte, que suma su importe.</numerusform>
            <numerusform>Registrado el %1 en %n partes, que suman su importe.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement of %1 has it on %2.</source>
        <translation>El extracto de %1 la daba el %2.</translation>
    </message>
    <message>
        <source>Entered on %1 for the same amount; another entry fits as well.</source>
        <translation>Registrado el %1 con el mismo importe; otro asiento también encaja.</translation>
    </message>
    <message>
        <source>Entered on %1 for the same amount.</source>
        <translation>Registrado el %1 con el mismo importe.</translation>
    </message>
    <message>
        <source>As you said before.</source>
        <translation>Como se indicó antes.</translation>
    </message>
    <message>
        <source>The columns that were kept no longer fit, and were found anew: %1</source>
        <translation>Las columnas guardadas ya no encajan y se han buscado de nuevo: %1</translation>
    </message>
    <message>
        <source>The file is of %1, whose files have the number %2.</source>
        <translation>El archivo es de %1, cuyos archivos llevan el número %2.</translation>
    </message>
    <message>
        <source>The file is of the account %1; former files of %2 were of %3.</source>
        <translation>El archivo es de la cuenta %1; los anteriores de %2 eran de %3.</translation>
    </message>
    <message>
        <source>It is not known what it was for.</source>
        <translation>No se sabe para qué era.</translation>
    </message>
    <message>
        <source>By the rule “%1”.</source>
        <translation>Por la regla «%1».</translation>
    </message>
    <message>
        <source>As the last time.</source>
        <translation>Como la última vez.</translation>
    </message>
    <message>
        <source>As %1 of %2 times.</source>
        <translation>Como %1 de %2 veces.</translation>
    </message>
    <message>
        <source>By the file&apos;s category.</source>
        <translation>Por la categoría del archivo.</translation>
    </message>
    <message>
        <source>By the file&apos;s category; “%1” is opened for it.</source>
        <translation>Por la categoría del archivo; se abre «%1» para ello.</translation>
    </message>
    <message>
        <source>Format: journal, csv, ofx, qif, mt940 or camt (default: guessed)</source>
        <translation>Formato: journal, csv, ofx, qif, mt940 o camt (por defecto: se deduce)</translation>
    </message>
    <message>
        <source>Account number, to choose one of several statements</source>
        <translation>Número de cuenta, para elegir uno de varios extractos</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nueva</translation>
    </message>
    <message>
        <source>due</source>
        <translation>vence</translation>
    </message>
    <message>
        <source>matched</source>
        <translation>encontrada</translation>
    </message>
    <message>
        <source>known</source>
        <translation>conocida</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitida</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Por qué</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n entries of %1</source>
        <translation>
            <numerusform>%n entrada de %1 importada</numerusform>
            <numerusform>%n entradas de %1 importadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Read the account&apos;s tables like this from now on (csv)</source>
        <translation>Leer así las tablas de la cuenta desde ahora (csv)</translation>
    </message>
    <message>
        <source>Take the preview as it is, and ask nothing</source>
        <translation>Tomar la vista previa como está y no preguntar nada</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Statements of</source>
        <translation>Extractos de</translation>
    </message>
    <message>
        <source>There are no rules.</source>
        <translation>No hay reglas.</translation>
    </message>
    <message>
        <source>The least amount, without its sign</source>
        <translation>Importe mínimo, sin signo</translation>
    </message>
    <message>
        <source>The highest amount, without its sign</source>
        <translation>Importe máximo, sin signo</translation>
    </message>
    <message>
        <source>Only statements of this account</source>
        <translation>Solo extractos de esta cuenta</translation>
    </message>
    <message>
        <source>Text that the payee or the text contains</source>
        <translation>Texto que contiene el beneficiario o el texto</translation>
    </message>
    <message>
        <source>Account or item that such entries are for</source>
        <translation>Cuenta o partida para la que son esas entradas</translation>
    </message>
    <message>
        <source>The text is a regular expression</source>
        <translation>El texto es una expresión regular</translation>
    </message>
    <message>
        <source>Added the rule “%1” for %2.</source>
        <translation>Se ha añadido la regla «%1» para %2.</translation>
    </message>
    <message>
        <source>What a bank says of an entry</source>
        <translation>Lo que dice un banco de una entrada</translation>
    </message>
    <message>
        <source>Amount of the entry</source>
        <translation>Importe de la entrada</translation>
    </message>
    <message>
        <source>Account of the statement</source>
        <translation>Cuenta del extracto</translation>
    </message>
    <message>
        <source>No rule fits.</source>
        <translation>Ninguna regla encaja.</translation>
    </message>
    <message>
        <source>Rule %1, “%2”, says that it is for %3.</source>
        <translation>Según la regla %1, «%2», es para %3.</translation>
    </message>
    <message>
        <source>Numbers of rules, see rules list</source>
        <translation>Números de reglas, véase rules list</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n rules.</source>
        <translation>
            <numerusform>Se ha quitado %n regla.</numerusform>
            <numerusform>Se han quitado %n reglas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say what entries of statements are for</source>
        <translation>Indicar para qué son las entradas de los extractos</translation>
    </message>
    <message>
        <source>List all rules</source>
        <translation>Listar todas las reglas</translation>
    </message>
    <message>
        <source>Add a rule</source>
        <translation>Añadir una regla</translation>
    </message>
    <message>
        <source>Tell which rule fits a text</source>
        <translation>Decir qué regla encaja con un texto</translation>
    </message>
    <message>
        <source>Remove rules</source>
        <translation>Quitar reglas</translation>
    </message>
    <message>
        <source>Entry %1: %2. %3 Pay it with this?</source>
        <translation>Entrada %1: %2. %3 ¿Pagarlo con esto?</translation>
    </message>
    <message>
        <source>Entry %1: %2. %3 Is it the same?</source>
        <translation>Entrada %1: %2. %3 ¿Es la misma?</translation>
    </message>
    <message>
        <source>Entry %1: %2. What was it for? (account or item; empty leaves it out)</source>
        <translation>Entrada %1: %2. ¿Para qué era? (cuenta o partida; vacío la omite)</translation>
    </message>
    <message>
        <source>Entry %1: %2. What was it for? (empty: %3)</source>
        <translation>Entrada %1: %2. ¿Para qué era? (vacío: %3)</translation>
    </message>
    <message>
        <source>Always %1 for this payee?</source>
        <translation>¿Siempre %1 para este beneficiario?</translation>
    </message>
    <message>
        <source>Entry that is new, whatever is there (repeatable)</source>
        <translation>Entrada que es nueva, haya lo que haya (repetible)</translation>
    </message>
    <message>
        <source>ENTRY=TRANSACTION, which is the same (repeatable)</source>
        <translation>ENTRADA=ASIENTO, que es lo mismo (repetible)</translation>
    </message>
    <message>
        <source>ENTRY=ACCOUNT, which it is for (repeatable)</source>
        <translation>ENTRADA=CUENTA, para la que es (repetible)</translation>
    </message>
    <message>
        <source>Entry that is not taken (repeatable)</source>
        <translation>Entrada que no se toma (repetible)</translation>
    </message>
    <message>
        <source>Is %1 the day %2?</source>
        <translation>¿Es %1 el día %2?</translation>
    </message>
    <message>
        <source>Which account is it of? (%1)</source>
        <translation>¿De qué cuenta es? (%1)</translation>
    </message>
    <message>
        <source>Import it all the same?</source>
        <translation>¿Importarlo de todos modos?</translation>
    </message>
    <message numerus="yes">
        <source>Import %n entries?</source>
        <translation>
            <numerusform>¿Importar %n entrada?</numerusform>
            <numerusform>¿Importar %n entradas?</numerusform>
        </translation>
    </message>
    <message>
        <source>New: %1; matched: %2; already imported: %3; left out: %4; accounts opened: %5.</source>
        <translation>Nuevas: %1; encontradas: %2; ya importadas: %3; omitidas: %4; cuentas abiertas: %5.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries should be looked at; see the marks with --dry-run.</source>
        <translation>
            <numerusform>Conviene mirar %n entrada; véanse las marcas con --dry-run.</numerusform>
            <numerusform>Conviene mirar %n entradas; véanse las marcas con --dry-run.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot tell the format of &apos;%1&apos;; use --format: journal, csv, ofx, qif, mt940 or camt.</source>
        <translation>No se reconoce el formato de «%1»; se indica con --format: journal, csv, ofx, qif, mt940 o camt.</translation>
    </message>
    <message>
        <source>%1 It may be: %2.</source>
        <translation>%1 Puede ser: %2.</translation>
    </message>
    <message>
        <source>%1 Use --yes to import it all the same.</source>
        <translation>%1 Con --yes se importa de todos modos.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
    <message>
        <source>Transaction %1 cannot be the same as an entry of %2.</source>
        <translation>El asiento %1 no puede ser lo mismo que una entrada de %2.</translation>
    </message>
    <message>
        <source>It is not known what this was for: %1. Say it with --for, --against or a rule.</source>
        <translation>No se sabe para qué era esto: %1. Se indica con --for, --against o una regla.</translation>
    </message>
    <message>
        <source>Transaction %1 has its identifier, but another amount.</source>
        <translation>El asiento %1 tiene su identificador, pero otro importe.</translation>
    </message>
    <message>
        <source>A file of your bank, or a journal of another program, is laid beside the books.

1. Choose the file. Its account is found if that is possible, and asked otherwise.
2. A table (CSV) shows how it is read. What was found can be changed, and is kept for the account.
3. Each entry says what becomes of it: it is new, it is there already, or an item that is due is paid with it. Space takes it or leaves it out. Below the table it can be said what it is and what it is for, and that this is remembered for the payee. Entries with the sign ⚠ should be looked at.

The import does what is shown, and is one step of undo.</source>
        <translation>Un archivo del banco, o el diario de otro programa, se pone al lado de los libros.

1. Elegir el archivo. Su cuenta se encuentra si es posible, y si no se pregunta.
2. Una tabla (CSV) muestra cómo se lee. Lo que se encontró se puede cambiar, y se guarda para la cuenta.
3. Cada entrada dice qué pasa con ella: es nueva, ya está, o con ella se paga una partida que vence. La barra espaciadora la toma o la deja fuera. Debajo de la tabla se puede decir qué es y para qué es, y que esto se recuerde para el beneficiario. Conviene mirar las entradas con el signo ⚠.

La importación hace lo que se muestra, y es un solo paso que se puede deshacer.</translation>
    </message>
    <message>
        <source>A rule says what entries of banks’ files are for, by a part of payee or text, and by amount and account if wanted. The first rule that fits counts. “Try the rules” tells which one fits a text.</source>
        <translation>Una regla dice para qué son las entradas de los archivos del banco, según una parte del beneficiario o del texto y, si se quiere, según el importe y la cuenta. Vale la primera regla que encaja. «Probar las reglas» dice cuál encaja con un texto.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Fuera</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Ya está</translation>
    </message>
    <message>
        <source>%1, to look at</source>
        <translation>%1, por mirar</translation>
    </message>
    <message>
        <source>%1 (is opened)</source>
        <translation>%1 (se abre)</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún no se sabe</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Tomada</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Qué pasa con ella</translation>
    </message>
    <message>
        <source>Payee and text</source>
        <translation>Beneficiario y texto</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>tomada</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>no tomada</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n nueva</numerusform>
            <numerusform>%n nuevas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n already there</source>
        <translation>
            <numerusform>%n ya está</numerusform>
            <numerusform>%n ya están</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%n fuera</numerusform>
            <numerusform>%n fuera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n por mirar</numerusform>
            <numerusform>%n por mirar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Accounts to be opened: %2.</source>
        <translation>%1. Cuentas que se abren: %2.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>hasta %1</translation>
    </message>
    <message>
        <source>any</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>patrón</translation>
    </message>
    <message>
        <source>words</source>
        <translation>palabras</translation>
    </message>
    <message>
        <source>any account</source>
        <translation>todas las cuentas</translation>
    </message>
    <message>
        <source>Import a bank file</source>
        <translation>Importar un archivo del banco</translation>
    </message>
    <message>
        <source>set aside on %1</source>
        <translation>apartado el %1</translation>
    </message>
    <message>
        <source>not set aside on %1</source>
        <translation>no apartado el %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 %2 = %3 a month, %n months</source>
        <translation>
            <numerusform>%1 %2 = %3 al mes, %n mes</numerusform>
            <numerusform>%1 %2 = %3 al mes, %n meses</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3, which is closed.</source>
        <translation>Hay %1 apartado para «%2» en %3, que está cerrada.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3, where nothing can be set aside any more.</source>
        <translation>Hay %1 apartado para «%2» en %3, donde ya no se puede apartar nada.</translation>
    </message>
    <message>
        <source>%1 was set aside for &apos;%2&apos; at %3, but nothing is set aside for it any more.</source>
        <translation>Había %1 apartado para «%2» en %3, pero ya no se aparta nada para eso.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3 until that is reconciled again, but its account lies elsewhere.</source>
        <translation>Hay %1 apartado para «%2» en %3 hasta que esta se concilie de nuevo, pero la cuenta de la partida está en otro lugar.</translation>
    </message>
    <message>
        <source>%1 is set aside for &apos;%2&apos; at %3 and also at another account, so no line shows it.</source>
        <translation>Hay %1 apartado para «%2» en %3 y también en otra cuenta, por eso ninguna línea lo muestra.</translation>
    </message>
    <message>
        <source>paid: %1</source>
        <translation>pagado: %1</translation>
    </message>
    <message>
        <source>%1 more was paid than was set aside</source>
        <translation>se pagó %1 más de lo apartado</translation>
    </message>
    <message>
        <source>put into its account: %1</source>
        <translation>ingresado en su cuenta: %1</translation>
    </message>
    <message>
        <source>taken out of its account: %1</source>
        <translation>retirado de su cuenta: %1</translation>
    </message>
    <message>
        <source>%1 to the balance of its account</source>
        <translation>%1 hasta el saldo de su cuenta</translation>
    </message>
    <message>
        <source>%1 was never reconciled; its lines count from %2.</source>
        <translation>%1 no se ha conciliado nunca; sus líneas cuentan desde el %2.</translation>
    </message>
    <message>
        <source>At %1, %2 more is set aside than there is.</source>
        <translation>En %1 hay %2 más apartado de lo que hay.</translation>
    </message>
    <message>
        <source>The sum at %1 leaves &apos;%2&apos; out.</source>
        <translation>La suma de %1 deja fuera «%2».</translation>
    </message>
    <message>
        <source>The money of &apos;%1&apos; is in an account of its own that is not under %2, so the balance does not count it.</source>
        <translation>El dinero de «%1» está en una cuenta propia que no está bajo %2, por eso el saldo no lo cuenta.</translation>
    </message>
    <message>
        <source>The balance of %1 leaves &apos;%2&apos; out.</source>
        <translation>El saldo de %1 deja fuera «%2».</translation>
    </message>
    <message>
        <source>Several accounts have a line for the same item, until a survey of one of them sets it aside: %1</source>
        <translation>Varias cuentas tienen una línea para la misma partida, hasta que la conciliación de una de ellas la aparte: %1</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagado</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is reached: %2.</source>
        <translation>La meta «%1» está alcanzada: %2.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 of %3, %4 %.</source>
        <translation>La meta «%1» tiene %2 de %3, %4 %.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 of %3.</source>
        <translation>La meta «%1» tiene %2 de %3.</translation>
    </message>
    <message>
        <source>The debt &apos;%1&apos; is paid off.</source>
        <translation>La deuda «%1» está pagada.</translation>
    </message>
    <message>
        <source>Of the debt &apos;%1&apos; are %2 left; as it is paid now, it has no end.</source>
        <translation>De la deuda «%1» quedan %2; tal como se paga, no tiene fin.</translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, without interest.</source>
        <translation>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pago, sin intereses.</numerusform>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pagos, sin intereses.</numerusform>
        </translation>
    </message>
    <message>
        <source>Only this bank account: number, name or path (default: all)</source>
        <translation>Solo esta cuenta bancaria: número, nombre o ruta (por defecto: todas)</translation>
    </message>
    <message>
        <source>Day of the balances (default: today)</source>
        <translation>Día de los saldos (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Tell each item, and why it has so much</source>
        <translation>Mostrar cada partida y por qué tiene tanto</translation>
    </message>
    <message>
        <source>Still due until %1, of what is paid monthly</source>
        <translation>Aún vence hasta el %1, de lo que se paga cada mes</translation>
    </message>
    <message>
        <source>Paid since</source>
        <translation>Pagado desde</translation>
    </message>
    <message>
        <source>No bank has an open account for which money is set aside.</source>
        <translation>Ningún banco tiene una cuenta abierta en la que se aparte dinero.</translation>
    </message>
    <message>
        <source>%1 is closed.</source>
        <translation>%1 está cerrada.</translation>
    </message>
    <message>
        <source>%1 is owed; nothing is set aside of it.</source>
        <translation>%1 es un pasivo; no se aparta nada de ella.</translation>
    </message>
    <message>
        <source>%1 has no envelopes of its own; the account above it counts its money.</source>
        <translation>En %1 no se aparta nada; la cuenta superior cuenta su dinero.</translation>
    </message>
    <message>
        <source>Show what is set aside at the bank accounts, what is free, and why</source>
        <translation>Mostrar lo apartado en las cuentas bancarias, lo que queda libre y por qué</translation>
    </message>
    <message>
        <source>%1 was reconciled on %2 already; the statement of %3 is older.</source>
        <translation>%1 ya se concilió el %2; el extracto del %3 es anterior.</translation>
    </message>
    <message>
        <source>The books differ from the statement; find what differs, or say that the difference may stay.</source>
        <translation>Los libros difieren del extracto; hay que encontrar qué difiere o decir que la diferencia puede quedar.</translation>
    </message>
    <message>
        <source>There is no transaction %1 on the sheet.</source>
        <translation>En la hoja no hay ningún asiento %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a list of transactions; write one like 1-5,9, &apos;all&apos;, &apos;all but 3&apos; or &apos;none&apos;.</source>
        <translation>«%1» no es una lista de asientos; se escribe como 1-5,9, «todos», «todos menos 3» o «ninguno».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a statement of another account than %2.</source>
        <translation>«%1» es un extracto de otra cuenta que %2.</translation>
    </message>
    <message>
        <source>What moves within the account is on no statement; move it without the survey.</source>
        <translation>Lo que se traspasa dentro de la cuenta no está en ningún extracto; se traspasa sin la conciliación.</translation>
    </message>
    <message>
        <source>The survey has too many ticks to be put off.</source>
        <translation>La conciliación tiene demasiadas marcas para aplazarla.</translation>
    </message>
    <message>
        <source>%1 above the bank</source>
        <translation>%1 por encima del banco</translation>
    </message>
    <message>
        <source>%1 below the bank</source>
        <translation>%1 por debajo del banco</translation>
    </message>
    <message>
        <source>The books of %1 are %2 since %3.</source>
        <translation>Los libros de %1 están %2 desde el %3.</translation>
    </message>
    <message>
        <source>#%1 of %2, %3, %4</source>
        <translation>n.º %1 del %2, %3, %4</translation>
    </message>
    <message>
        <source>%1, is not ticked and has that amount.</source>
        <translation>%1, no está marcado y tiene ese importe.</translation>
    </message>
    <message>
        <source>%1, and %2, are not ticked and add up to it.</source>
        <translation>%1, y %2, no están marcados y suman eso.</translation>
    </message>
    <message>
        <source>All that is not ticked adds up to it.</source>
        <translation>Todo lo que no está marcado suma eso.</translation>
    </message>
    <message>
        <source>%1, and %2, are perhaps the same, entered twice.</source>
        <translation>%1, y %2, quizá sean lo mismo, introducido dos veces.</translation>
    </message>
    <message>
        <source>%1, is ticked and has that amount; is it on the statement?</source>
        <translation>%1, está marcado y tiene ese importe; ¿está en el extracto?</translation>
    </message>
    <message>
        <source>%1, has half of that amount; did the money go the other way?</source>
        <translation>%1, tiene la mitad de ese importe; ¿fue el dinero en el otro sentido?</translation>
    </message>
    <message>
        <source>%1, differs by two digits that may have changed places.</source>
        <translation>%1, difiere en dos cifras que quizá se cambiaron de lugar.</translation>
    </message>
    <message>
        <source>Changed or reconciled since the survey was put off, and not ticked any more: %1</source>
        <translation>Cambiados o conciliados desde que se aplazó la conciliación, y ya sin marcar: %1</translation>
    </message>
    <message>
        <source>Gone since the survey was put off, and left out: %1</source>
        <translation>Desaparecidos desde que se aplazó la conciliación, y omitidos: %1</translation>
    </message>
    <message>
        <source>Put off the survey of %1 of %2.</source>
        <translation>Se aplazó la conciliación de %1 del %2.</translation>
    </message>
    <message>
        <source>putting off the survey of “%1”</source>
        <translation>aplazar la conciliación de «%1»</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%1 del %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n entries of the file are not in the books: %1</source>
        <translation>
            <numerusform>%n entrada del archivo no está en los libros: %1</numerusform>
            <numerusform>%n entradas del archivo no están en los libros: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>all</source>
        <comment>all transactions</comment>
        <translation>todos</translation>
    </message>
    <message>
        <source>none</source>
        <comment>no transactions</comment>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>all but</source>
        <translation>todos menos</translation>
    </message>
    <message>
        <source>under %1 %</source>
        <translation>menos del %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 more is set aside than there is; set less aside for some of it.</source>
        <translation>Hay %1 más apartado de lo que hay; conviene apartar menos para algo.</translation>
    </message>
    <message>
        <source>The rest does not count what is set aside for &apos;%1&apos;: there is no exchange rate.</source>
        <translation>El resto no cuenta lo apartado para «%1»: no hay tipo de cambio.</translation>
    </message>
    <message>
        <source>The bank&apos;s file: its day, balance and entries are taken</source>
        <translation>Archivo del banco: se toman su día, su saldo y sus entradas</translation>
    </message>
    <message>
        <source>Set aside what the survey proposes, as if nothing had been paid</source>
        <translation>Apartar lo que propone la conciliación, como si no se hubiera pagado nada</translation>
    </message>
    <message>
        <source>Day of the statement (default: that of the bank&apos;s file, or today)</source>
        <translation>Día del extracto (por defecto: el del archivo del banco, o hoy)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; tells no day; give that of the statement.</source>
        <translation>«%1» no dice ningún día; hay que dar el del extracto.</translation>
    </message>
    <message>
        <source>Balance of the statement (empty: %1)</source>
        <translation>Saldo del extracto (vacío: %1)</translation>
    </message>
    <message>
        <source>Which are on the statement? 1-5,9, &apos;all but 3&apos;, &apos;none&apos;, &apos;ask&apos; (empty: all)</source>
        <translation>¿Cuáles están en el extracto? 1-5,9, «todos menos 3», «ninguno», «preguntar» (vacío: todos)</translation>
    </message>
    <message numerus="yes">
        <source>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos;, &apos;ask&apos; (empty: the %n ticked)</source>
        <translation>
            <numerusform>¿Cuáles están en el extracto? 1-5,9, «todos», «todos menos 3», «preguntar» (vacío: el %n marcado)</numerusform>
            <numerusform>¿Cuáles están en el extracto? 1-5,9, «todos», «todos menos 3», «preguntar» (vacío: los %n marcados)</numerusform>
        </translation>
    </message>
    <message>
        <source>ask</source>
        <translation>preguntar</translation>
    </message>
    <message>
        <source>What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue)</source>
        <translation>¿Qué está en el extracto pero no en los libros, como NOMBRE=IMPORTE, o NOMBRE para todo lo que falta? (vacío para seguir)</translation>
    </message>
    <message>
        <source>May the difference of %1 stay? It is told until it is gone.</source>
        <translation>¿Puede quedar la diferencia de %1? Se dirá hasta que desaparezca.</translation>
    </message>
    <message>
        <source>%1: is it on the statement?</source>
        <translation>%1: ¿está en el extracto?</translation>
    </message>
    <message>
        <source>Which are on the statement? 1-5,9, &apos;all&apos;, &apos;all but 3&apos; (empty: leave it so)</source>
        <translation>¿Cuáles están en el extracto? 1-5,9, «todos», «todos menos 3» (vacío: dejarlo así)</translation>
    </message>
    <message>
        <source>Take the tick of %1 away?</source>
        <translation>¿Quitar la marca de %1?</translation>
    </message>
    <message numerus="yes">
        <source>Tick all %n that are not ticked yet?</source>
        <translation>
            <numerusform>¿Marcar el %n que falta?</numerusform>
            <numerusform>¿Marcar los %n que faltan?</numerusform>
        </translation>
    </message>
    <message>
        <source>Tick %1?</source>
        <translation>¿Marcar %1?</translation>
    </message>
    <message>
        <source>Tick %1, and %2?</source>
        <translation>¿Marcar %1, y %2?</translation>
    </message>
    <message>
        <source>The survey of %1 goes on, as it was put off.</source>
        <translation>La conciliación del %1 sigue, como se aplazó.</translation>
    </message>
    <message>
        <source>To enter them, leave the survey and use kiv import.</source>
        <translation>Para registrarlas, salir de la conciliación y usar kiv import.</translation>
    </message>
    <message>
        <source>To go on with it, use kiv survey run for this account.</source>
        <translation>Para seguir, usar kiv survey run con esta cuenta.</translation>
    </message>
    <message>
        <source>Begin anew, instead of with what was put off</source>
        <translation>Empezar de nuevo, en lugar de con lo aplazado</translation>
    </message>
    <message>
        <source>Put the survey off, to go on with it later?</source>
        <translation>¿Aplazar la conciliación para seguir después?</translation>
    </message>
    <message>
        <source>The books stay %1.</source>
        <translation>Los libros quedan %1.</translation>
    </message>
    <message>
        <source>What is on the statement: 3, 1-5,9, &apos;all but 4&apos; or &apos;none&apos; (repeatable; default: what is marked as seen at the bank)</source>
        <translation>Lo que está en el extracto: 3, 1-5,9, &apos;todos menos 4&apos; o &apos;ninguno&apos; (repetible; por defecto: lo marcado como visto en el banco)</translation>
    </message>
    <message>
        <source>Item or account to which the difference is posted, such as the interest of a loan</source>
        <translation>Partida o cuenta en la que se registra la diferencia, como el interés de un préstamo</translation>
    </message>
    <message>
        <source>A difference may stay; it is told until it is gone</source>
        <translation>Una diferencia puede quedar; se dice hasta que desaparece</translation>
    </message>
    <message>
        <source>Nothing is set aside at %1 any more.</source>
        <translation>En %1 ya no hay nada apartado.</translation>
    </message>
    <message>
        <source>Set nothing aside at an account any more</source>
        <translation>No apartar ya nada en una cuenta</translation>
    </message>
    <message>
        <source>which is never refused for what is owed</source>
        <translation>lo que nunca se rechaza en lo que se debe</translation>
    </message>
    <message>
        <source>inside the window of %1</source>
        <translation>dentro del margen del %1</translation>
    </message>
    <message>
        <source>outside the window of %1: the survey is refused</source>
        <translation>fuera del margen del %1: la conciliación se rechaza</translation>
    </message>
    <message>
        <source>Nothing is open up to this day.</source>
        <translation>Hasta ese día no hay nada pendiente.</translation>
    </message>
    <message>
        <source>%1, was reconciled with %2 and is not yet seen here.</source>
        <translation>%1, se concilió con %2 y aquí aún no se ha visto.</translation>
    </message>
    <message>
        <source>Calculated</source>
        <translation>Calculado</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Extracto</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>The books agree with the statement.</source>
        <translation>Los libros coinciden con el extracto.</translation>
    </message>
    <message>
        <source>The books are %1</source>
        <translation>Los libros están %1</translation>
    </message>
    <message>
        <source>With it, the books are as the bank has them again.</source>
        <translation>Con ello, los libros vuelven a estar como en el banco.</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Propuesto</translation>
    </message>
    <message>
        <source>Still due in %1, of what is paid monthly</source>
        <translation>Aún pendiente en %1, de lo que se paga cada mes</translation>
    </message>
    <message>
        <source>To be posted, of %1</source>
        <translation>Por registrar, con fecha %1</translation>
    </message>
    <message>
        <source>what was asked about</source>
        <translation>lo que se preguntó</translation>
    </message>
    <message>
        <source>#%1, to %2</source>
        <translation>n.º %1, a %2</translation>
    </message>
    <message>
        <source>Lowest on %1: %2, because of %3.</source>
        <translation>Mínimo el %1: %2, por %3.</translation>
    </message>
    <message>
        <source>Lowest on %1: %2.</source>
        <translation>Mínimo el %1: %2.</translation>
    </message>
    <message>
        <source>Below %1 for the first time on %2.</source>
        <translation>Por debajo de %1 por primera vez el %2.</translation>
    </message>
    <message>
        <source>Never below %1.</source>
        <translation>Nunca por debajo de %1.</translation>
    </message>
    <message>
        <source>Free until the next wage on %1: %2.</source>
        <translation>Libre hasta el próximo salario el %1: %2.</translation>
    </message>
    <message>
        <source>Free until the end, without a wage: %1.</source>
        <translation>Libre hasta el final, sin salario: %1.</translation>
    </message>
    <message>
        <source>there is no exchange rate between %1 and %2</source>
        <translation>no hay tipo de cambio entre %1 y %2</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: %2.</source>
        <translation>La previsión omite «%1»: %2.</translation>
    </message>
    <message>
        <source>The outlook leaves an entry out: %1.</source>
        <translation>La previsión omite un asiento: %1.</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: no open account can pay it.</source>
        <translation>La previsión omite «%1»: ninguna cuenta abierta puede pagarlo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not of the form &apos;AMOUNT on DAY&apos;, such as &apos;900 on 2026-12-05&apos;.</source>
        <translation>«%1» no tiene la forma &apos;IMPORTE on DÍA&apos;, como &apos;900 on 2026-12-05&apos;.</translation>
    </message>
    <message>
        <source>How many days to look ahead (default: 92; at most 3,660)</source>
        <translation>Cuántos días se mira hacia adelante (por defecto: 92; como mucho 3660)</translation>
    </message>
    <message>
        <source>Tell the first day on which less than this is there</source>
        <translation>Decir el primer día en que hay menos que esto</translation>
    </message>
    <message>
        <source>As if there were no such budget item (repeatable)</source>
        <translation>Como si no existiera esa partida (repetible)</translation>
    </message>
    <message>
        <source>Something more, as in &apos;900 on 2026-12-05&apos;; negative if it comes in (repeatable)</source>
        <translation>Algo más, como &apos;900 on 2026-12-05&apos;; negativo si entra (repetible)</translation>
    </message>
    <message>
        <source>List what is paid and received</source>
        <translation>Enumerar lo que se paga y se recibe</translation>
    </message>
    <message>
        <source>First day (default: today)</source>
        <translation>Primer día (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>On</source>
        <translation>El</translation>
    </message>
    <message>
        <source>Because of</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>No bank has an open account.</source>
        <translation>Ningún banco tiene una cuenta abierta.</translation>
    </message>
    <message>
        <source>Nothing is expected.</source>
        <translation>No se espera nada.</translation>
    </message>
    <message>
        <source>Look ahead: the lowest day, and what can be spent until then</source>
        <translation>Mirar adelante: el día más bajo y lo que se puede gastar hasta entonces</translation>
    </message>
    <message>
        <source>There is no exchange rate between %1 and %2; it is needed for: %3.</source>
        <translation>No hay tipo de cambio entre %1 y %2; se necesita para: %3.</translation>
    </message>
    <message>
        <source>The budget&apos;s health is not judged, since an exchange rate is missing.</source>
        <translation>No se evalúa la salud del presupuesto, porque falta un tipo de cambio.</translation>
    </message>
    <message>
        <source>Nothing is free to spend: %1 more is set aside than there is.</source>
        <translation>No hay nada libre para gastar: se ha apartado %1 más de lo que hay.</translation>
    </message>
    <message>
        <source>%1 is free to spend: %2 at the bank, of which %3 is set aside.</source>
        <translation>Hay %1 libres para gastar: %2 en el banco, de los que %3 están apartados.</translation>
    </message>
    <message>
        <source>Still due until %1, of what is paid monthly: %2.</source>
        <translation>De lo que se paga cada mes, aún vence hasta el %1: %2.</translation>
    </message>
    <message>
        <source>The budget&apos;s items of five kinds. Bills, debts and free spending are paid, goals are saved for, wages come in. Each has an amount, how often it recurs and its next day. Enter changes an item, Del removes it.

Below the table stands how what is set aside for the chosen item comes about: what the last survey had, what was added since and why, and what was paid. A goal that is reached and a debt that is paid off can be ended there: they are due no longer. The last tab has all that is set aside, account by account; Enter shows the item.</source>
        <translation>Las partidas del presupuesto, de cinco clases. Las facturas, las deudas y el gasto libre se pagan, para las metas se ahorra, los salarios entran. Cada una tiene un importe, cada cuánto se repite y su próximo día. Intro cambia una partida, Supr la elimina.

Debajo de la tabla se explica cómo se llega a lo apartado para la partida elegida: lo que tenía la última conciliación, lo que se añadió desde entonces y por qué, y lo que se pagó. Una meta alcanzada y una deuda pagada se pueden terminar ahí: ya no vencen. La última pestaña tiene todo lo apartado, cuenta por cuenta; Intro muestra la partida.</translation>
    </message>
    <message>
        <source>In goals at the banks</source>
        <translation>En metas en los bancos</translation>
    </message>
    <message>
        <source>%1: %2 = %3 set aside + %4 free</source>
        <translation>%1: %2 = %3 apartado + %4 libre</translation>
    </message>
    <message>
        <source>%1: %2 = %3 set aside + %4 free; paid since %5: %6</source>
        <translation>%1: %2 = %3 apartado + %4 libre; pagado desde el %5: %6</translation>
    </message>
    <message>
        <source>Set aside at %1</source>
        <translation>Apartado en %1</translation>
    </message>
    <message>
        <source>Adjusted</source>
        <translation>Ajustado</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>%1 is of the type %2 now.</source>
        <translation>%1 es ahora del tipo %2.</translation>
    </message>
    <message>
        <source>correcting the type of “%1”</source>
        <translation>corregir el tipo de «%1»</translation>
    </message>
    <message>
        <source>The balance of %1 is %2 now; its transactions are as they were.</source>
        <translation>El saldo de %1 es ahora %2; sus asientos están como antes.</translation>
    </message>
    <message>
        <source>%1 lies under no other account any more.</source>
        <translation>%1 ya no está bajo otra cuenta.</translation>
    </message>
    <message>
        <source>Separated %1 from the bank &apos;%2&apos;, which cannot keep it.</source>
        <translation>Se separó %1 del banco «%2», que no puede llevarla.</translation>
    </message>
    <message>
        <source>What was set aside at %1 is free now.</source>
        <translation>Lo que estaba apartado en %1 está libre ahora.</translation>
    </message>
    <message>
        <source>%1 replaced by %2</source>
        <translation>%1 reemplazada por %2</translation>
    </message>
    <message>
        <source>%1 is at the bank %2 now.</source>
        <translation>%1 está ahora en el banco %2.</translation>
    </message>
    <message>
        <source>moving “%1” to “%2”</source>
        <translation>pasar «%1» a «%2»</translation>
    </message>
    <message>
        <source>Replaced %1 by %2.</source>
        <translation>Se reemplazó %1 por %2.</translation>
    </message>
    <message>
        <source>replacing “%1” by “%2”</source>
        <translation>reemplazar «%1» por «%2»</translation>
    </message>
    <message>
        <source>Moved %1 from %2 to %3 (transaction %4).</source>
        <translation>Se traspasaron %1 de %2 a %3 (asiento %4).</translation>
    </message>
    <message>
        <source>Under %1 are now: %2</source>
        <translation>Bajo %1 están ahora: %2</translation>
    </message>
    <message>
        <source>Set aside at %1 are now: %2</source>
        <translation>En %1 está apartado ahora para: %2</translation>
    </message>
    <message>
        <source>%1 stays open; close it after its last statement.</source>
        <translation>%1 queda abierta; cerrarla después de su último extracto.</translation>
    </message>
    <message>
        <source>Closed %1.</source>
        <translation>Se cerró %1.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is finished</source>
        <translation>La meta «%1» ha terminado</translation>
    </message>
    <message>
        <source>Finished the debt %1.</source>
        <translation>Se terminó la deuda %1.</translation>
    </message>
    <message>
        <source>finishing the debt “%1”</source>
        <translation>terminar la deuda «%1»</translation>
    </message>
    <message>
        <source>Finished the goal %1.</source>
        <translation>Se terminó la meta %1.</translation>
    </message>
    <message>
        <source>finishing the goal “%1”</source>
        <translation>terminar la meta «%1»</translation>
    </message>
    <message>
        <source>&apos;%1&apos; recurs no longer.</source>
        <translation>«%1» ya no se repite.</translation>
    </message>
    <message>
        <source>Closed the account of &apos;%1&apos;.</source>
        <translation>Se cerró la cuenta de «%1».</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; stays open: %2</source>
        <translation>La cuenta de «%1» queda abierta: %2</translation>
    </message>
    <message>
        <source>Correct the type of &apos;%1&apos; first: it is %2, and no bank keeps that as %3</source>
        <translation>Corregir antes el tipo de «%1»: es %2, y ningún banco lleva eso como %3</translation>
    </message>
    <message>
        <source>A bank cannot keep an account of the type %2 as %1.</source>
        <translation>Un banco no puede llevar una cuenta del tipo %2 como %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is at the bank &apos;%2&apos; already.</source>
        <translation>«%1» ya está en el banco «%2».</translation>
    </message>
    <message>
        <source>The bank &apos;%1&apos; is closed; open it again first.</source>
        <translation>El banco «%1» está cerrado; abrirlo antes de nuevo.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is closed; open it again first.</source>
        <translation>La cuenta «%1» está cerrada; abrirla antes de nuevo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies under &apos;%2&apos; and goes along with it; name &apos;%2&apos;.</source>
        <translation>«%1» está bajo «%2» y va con ella; indicar «%2».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot replace itself; add an account first.</source>
        <translation>«%1» no puede reemplazarse a sí misma; añadir antes una cuenta.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; cannot replace each other: one is owned, and the other is owed. Pay it off by a transfer, then close it.</source>
        <translation>«%1» y «%2» no pueden reemplazarse: una es lo que se tiene, la otra lo que se debe. Saldarla con un traspaso y luego cerrarla.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; are kept in different currencies. Transfer the money with both amounts, tie its goals to &apos;%2&apos;, then close &apos;%1&apos;.</source>
        <translation>«%1» y «%2» tienen monedas distintas. Traspasar el dinero con ambos importes, vincular sus metas a «%2» y luego cerrar «%1».</translation>
    </message>
    <message>
        <source>%1 is still to come; name a day until today.</source>
        <translation>%1 aún no ha llegado; indicar un día hasta hoy.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is of the type %2 already.</source>
        <translation>«%1» ya es del tipo %2.</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; has the type that its item needs. Add an item of the right kind, put the transactions under it, then remove this one.</source>
        <translation>La cuenta de «%1» tiene el tipo que necesita su partida. Añadir una partida de la clase correcta, ponerle los asientos y luego eliminar esta.</translation>
    </message>
    <message>
        <source>The account of &apos;%1&apos; lies under it. Tie &apos;%1&apos; to another bank account first, or to none.</source>
        <translation>La cuenta de «%1» está debajo. Vincular antes «%1» a otra cuenta bancaria, o a ninguna.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds the opening balances; its type cannot change.</source>
        <translation>«%1» guarda los saldos iniciales; su tipo no puede cambiar.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no account; save and open the budget once.</source>
        <translation>«%1» no tiene cuenta; guardar y abrir el presupuesto una vez.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is finished already.</source>
        <translation>«%1» ya ha terminado.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; lies under no bank account; say to which account its money goes, or move it there first.</source>
        <translation>La meta «%1» no está bajo ninguna cuenta bancaria; indicar a qué cuenta va su dinero, o traspasarlo antes.</translation>
    </message>
    <message>
        <source>Of the debt &apos;%1&apos;, %2 is still owed; pay it first.</source>
        <translation>De la deuda «%1» aún se deben %2; pagarla antes.</translation>
    </message>
    <message>
        <source>For the debt &apos;%1&apos;, %2 more was paid than was owed; move it back first.</source>
        <translation>Por la deuda «%1» se pagaron %2 más de lo que se debía; devolverlo antes.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has an amount of zero and was skipped.</source>
        <translation>«%1» tiene un importe de cero y se omitió.</translation>
    </message>
    <message>
        <source>This money came from %1, which is an expense account and keeps none.</source>
        <translation>Este dinero vino de %1, que es una cuenta de gasto y no guarda dinero.</translation>
    </message>
    <message>
        <source>The money of %1 went straight to %2, which is an expense account and keeps none.</source>
        <translation>El dinero de %1 fue directamente a %2, que es una cuenta de gasto y no guarda dinero.</translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is %n years ago.</source>
        <translation>
            <numerusform>El día %1 fue hace %n año.</numerusform>
            <numerusform>El día %1 fue hace %n años.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The day %1 is in %n years.</source>
        <translation>
            <numerusform>El día %1 es dentro de %n año.</numerusform>
            <numerusform>El día %1 es dentro de %n años.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is below zero: %2.</source>
        <translation>%1 está por debajo de cero: %2.</translation>
    </message>
    <message>
        <source>The goals at %1 hold %2 more than there is.</source>
        <translation>Las metas de %1 guardan %2 más de lo que hay.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; has %2 now, more than its target of %3.</source>
        <translation>La meta «%1» tiene ahora %2, más que su importe de %3.</translation>
    </message>
    <message>
        <source>For the debt &apos;%1&apos;, %2 more was paid than was owed.</source>
        <translation>Por la deuda «%1» se pagaron %2 más de lo que se debía.</translation>
    </message>
    <message>
        <source>The totals leave &apos;%1&apos; out: there is no exchange rate between %2 and %3.</source>
        <translation>Los totales dejan fuera «%1»: no hay tipo de cambio entre %2 y %3.</translation>
    </message>
    <message>
        <source>What it is to its bank then: checking, savings, credit-card, loan … (default: checking or credit-card)</source>
        <translation>Qué es entonces para su banco: checking, savings, credit-card, loan … (por defecto: checking o credit-card)</translation>
    </message>
    <message>
        <source>Correct the type of an account; its transactions stay</source>
        <translation>Corregir el tipo de una cuenta; sus asientos quedan</translation>
    </message>
    <message>
        <source>Name of the bank that keeps it from now on</source>
        <translation>Nombre del banco que la lleva a partir de ahora</translation>
    </message>
    <message>
        <source>Account of a bank that takes its place</source>
        <translation>Cuenta de un banco que ocupa su lugar</translation>
    </message>
    <message>
        <source>Do not close it: a statement is still to come</source>
        <translation>No cerrarla: aún falta un extracto</translation>
    </message>
    <message>
        <source>Day on which the money goes over (default: today)</source>
        <translation>Día en que pasa el dinero (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Give an account to another bank, with all that is set aside</source>
        <translation>Dar una cuenta a otro banco, con todo lo apartado</translation>
    </message>
    <message>
        <source>Change banks: another account takes the money, goals and what is set aside</source>
        <translation>Cambiar de banco: otra cuenta toma el dinero, las metas y lo apartado</translation>
    </message>
    <message>
        <source>To end it, use kiv %1 finish.</source>
        <translation>Para terminarla: kiv %1 finish.</translation>
    </message>
    <message>
        <source>Account that gets the money, or on which it is spent (default: the bank account that holds it)</source>
        <translation>Cuenta que recibe el dinero o en la que se gasta (por defecto: la cuenta bancaria que lo guarda)</translation>
    </message>
    <message>
        <source>End a goal: its money goes back or is spent</source>
        <translation>Terminar una meta: su dinero vuelve o se gasta</translation>
    </message>
    <message>
        <source>End a debt that is paid off</source>
        <translation>Terminar una deuda pagada</translation>
    </message>
    <message>
        <source>use kiv account convert</source>
        <translation>véase kiv account convert</translation>
    </message>
    <message>
        <source>A survey compares the books with a statement of the bank.

1. Choose the account, type the day and the balance of the statement, and press Enter; or lay the bank’s file beside, which fills them in.
2. Tick each transaction that stands on the statement: Space ticks and goes down. What the bank shows and the books lack can be added to the list, and the amount that is missing is offered.
3. The second tab has what is set aside for the items, and why. An amount can be typed over; an empty field takes it back.
4. Complete: the ticked transactions are reconciled, and the balance is kept. A difference may only stay if you say so, and is shown until it is gone.

“Put off” keeps the survey, to go on with it later. The third tab lists the past reconciliations, and says whether their transactions are still as they were.</source>
        <translation>Una conciliación compara los libros con un extracto del banco.

1. Elegir la cuenta, escribir el día y el saldo del extracto y pulsar Intro; o poner al lado el archivo del banco, que los rellena.
2. Marcar cada asiento que está en el extracto: la barra espaciadora marca y baja. Lo que muestra el banco y falta en los libros se puede añadir a la lista, y se ofrece el importe que falta.
3. La segunda pestaña muestra lo que se aparta para las partidas, y por qué. Un importe se puede sobrescribir; un campo vacío lo retira.
4. Finalizar: los asientos marcados quedan conciliados, y el saldo, anotado. Una diferencia solo puede quedar si se dice expresamente, y se muestra hasta que desaparezca.

«Aplazar» guarda la conciliación para seguir más tarde. La tercera pestaña muestra las conciliaciones anteriores y dice si sus asientos siguen como entonces.</translation>
    </message>
    <message>
        <source>balance of its account</source>
        <translation>saldo de su cuenta</translation>
    </message>
    <message>
        <source>as proposed</source>
        <translation>según la propuesta</translation>
    </message>
    <message>
        <source>nothing to set aside</source>
        <translation>nada que apartar</translation>
    </message>
    <message>
        <source>Still due in %1, of what is paid monthly: %2.</source>
        <translation>Aún vence en %1, de lo que se paga cada mes: %2.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Nothing is set aside of what is owed.</source>
        <translation>De lo que se debe no se aparta nada.</translation>
    </message>
    <message>
        <source>Set aside for items: %1; free: %2.</source>
        <translation>Apartado para partidas: %1; libre: %2.</translation>
    </message>
    <message>
        <source>reconciled with %1, not yet seen here</source>
        <translation>conciliado con %1, aquí aún no visto</translation>
    </message>
    <message>
        <source>Of what is owed, any difference is accepted.</source>
        <translation>En lo que se debe se acepta cualquier diferencia.</translation>
    </message>
    <message>
        <source>That is inside the survey window of %1.</source>
        <translation>Está dentro del margen de la conciliación de %1.</translation>
    </message>
    <message>
        <source>That is beyond the survey window of %1: the survey cannot be completed.</source>
        <translation>Está fuera del margen de la conciliación de %1: la conciliación no se puede finalizar.</translation>
    </message>
    <message>
        <source>%1, the books are %2</source>
        <translation>%1, los libros están %2</translation>
    </message>
    <message>
        <source>%1, the books are %2 (%3)</source>
        <translation>%1, los libros están %2 (%3)</translation>
    </message>
    <message>
        <source>It makes up for the earlier difference.</source>
        <translation>Compensa la diferencia anterior.</translation>
    </message>
    <message>
        <source>Calculated %1, statement %2.</source>
        <translation>Calculado %1, extracto %2.</translation>
    </message>
    <message>
        <source>Calculated %1. Type the balance of the statement to compare.</source>
        <translation>Calculado %1. Para comparar se escribe el saldo del extracto.</translation>
    </message>
    <message>
        <source>%1, no difference</source>
        <translation>%1, sin diferencia</translation>
    </message>
    <message>
        <source>“%1” does not look like a statement of a bank.</source>
        <translation>«%1» no parece un extracto de un banco.</translation>
    </message>
    <message>
        <source>Taken up where it was put off.</source>
        <translation>Sigue la conciliación aplazada.</translation>
    </message>
    <message>
        <source>The survey that was put off is taken up with the day of today. %1</source>
        <translation>La conciliación aplazada sigue con la fecha de hoy. %1</translation>
    </message>
    <message>
        <source>To set nothing aside at an account any more, use kiv survey drop.</source>
        <translation>Para no apartar ya nada en una cuenta: kiv survey drop.</translation>
    </message>
    <message>
        <source>Which kind for what
Rent, insurance, taxes: a bill. Salary, pension: a wage. A loan from a bank or a friend: a debt. A holiday, money for emergencies: a goal. Pocket money and groceries with a planned amount: free spending. What you only want to look back at: an account for spending. A credit card: an account at a bank, of the kind credit card. A purse: an account that is owned.</source>
        <translation>Qué clase para qué
Alquiler, seguro, impuestos: una factura. Nómina, pensión: un salario. Un préstamo de un banco o de un amigo: una deuda. Unas vacaciones, dinero para emergencias: una meta. Dinero de bolsillo y comida con un importe previsto: gasto libre. Lo que solo se mira después: una cuenta de gastos. Una tarjeta de crédito: una cuenta en un banco, de la clase tarjeta de crédito. Un monedero: una cuenta que se posee.</translation>
    </message>
    <message>
        <source>The end of the month
1. Import the file of the bank (Ctrl+I).
2. On the page “Survey”, choose the account, and compare the day and the balance with the statement. What differs is told.
3. Look at what is set aside for bills that do not come each month, and complete.
4. “Home” tells what is free.</source>
        <translation>El fin de mes
1. Importar el archivo del banco (Ctrl+I).
2. En la página «Conciliación», elegir la cuenta y comparar el día y el saldo con el extracto. Se dice lo que difiere.
3. Mirar lo que se aparta para facturas que no llegan cada mes, y finalizar.
4. «Inicio» dice lo que queda libre.</translation>
    </message>
    <message>
        <source>A card
What is bought with it is spent on that day: “Spent”, from the card. Paying its bill is no second expense: “Moved”, from the bank account to the card.</source>
        <translation>Una tarjeta
Lo que se compra con ella se gasta ese día: «Gastado», de la tarjeta. Pagar su cuenta no es un segundo gasto: «Traspasado», de la cuenta bancaria a la tarjeta.</translation>
    </message>
    <message>
        <source>A loan
The page “Due” pays it, and the debt gets smaller. The interest stands on the lender’s statement: add it in the survey of the loan. A loan from a friend needs no bank.</source>
        <translation>Un préstamo
La página «Vencimientos» lo paga y la deuda se reduce. El interés está en el extracto del préstamo: se añade en su conciliación. Un préstamo de un amigo no necesita banco.</translation>
    </message>
    <message>
        <source>A second currency
Each account has one. “Moved” asks for both amounts, as they were booked; no exchange rate is needed for that. Totals need one: see “Exchange rates”.</source>
        <translation>Una segunda moneda
Cada cuenta tiene una. «Traspasado» pregunta por los dos importes, como se registraron; no hace falta tipo de cambio. Los totales sí lo necesitan: véase «Tipos de cambio».</translation>
    </message>
    <message>
        <source>A refund
Choose the payment in the register, then “Refund” in the menu “Transaction”.</source>
        <translation>Un reembolso
Elegir el pago en el registro y después «Reembolsar» en el menú «Asiento».</translation>
    </message>
    <message>
        <source>An account of the wrong kind
“Change” on the page “Accounts” corrects it, and on the page “Banks” what it is to the bank. Its transactions stay.</source>
        <translation>Una cuenta de la clase equivocada
«Modificar» en la página «Cuentas» la corrige, y en la página «Bancos» lo que es para el banco. Sus asientos quedan.</translation>
    </message>
    <message>
        <source>Changing banks
Add the new bank and its account on the page “Banks”. “Replace” then moves the money of the old one, its goals and what is set aside. “Move to another bank” is for an account that stays as it is.</source>
        <translation>Cambiar de banco
Añadir el banco nuevo y su cuenta en la página «Bancos». «Reemplazar» traspasa entonces el dinero de la antigua, sus metas y lo apartado. «Pasar a otro banco» es para una cuenta que sigue como está.</translation>
    </message>
    <message>
        <source>A difference with the bank
The survey tells what may be behind it. What is only on the statement is entered, what is only in the books is not ticked, and what was entered twice or with a wrong amount is corrected. A small rest may stay, and is told until it is gone.</source>
        <translation>Una diferencia con el banco
La conciliación dice qué puede haber detrás. Lo que solo está en el extracto se introduce, lo que solo está en los libros no se marca, y lo introducido dos veces o con un importe equivocado se corrige. Un resto pequeño puede quedar, y se dice hasta que desaparece.</translation>
    </message>
    <message>
        <source>Coming from another program
Ctrl+I takes journals of ledger and hledger as they are. Other programs export each account as QIF, OFX or CSV. Add the account with the balance that it had before the first entry of the file, then import. At the end, compare the balances.</source>
        <translation>Desde otro programa
Ctrl+I lee los diarios de ledger y hledger como están. Otros programas exportan cada cuenta como QIF, OFX o CSV. Añadir la cuenta con el saldo que tenía antes de la primera entrada del archivo, e importar. Al final, comparar los saldos.</translation>
    </message>
    <message>
        <source>%1 is behind %2, the last day that is looked at.</source>
        <translation>El %1 es posterior al %2, el último día de la previsión.</translation>
    </message>
    <message>
        <source>What is to come cannot be told: its amounts become too large.</source>
        <translation>No se puede decir lo que vendrá: los importes son demasiado grandes.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no schedule: it is not due regularly, or its amount is not above zero.</source>
        <translation>«%1» no tiene plan de pagos: no vence con regularidad o su importe no es mayor que cero.</translation>
    </message>
    <message>
        <source>What is paid more a month must be above zero.</source>
        <translation>Lo que se paga de más al mes debe ser mayor que cero.</translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments, with interest of about %4 a year.</source>
        <translation>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pago, con intereses de alrededor del %4 al año.</numerusform>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pagos, con intereses de alrededor del %4 al año.</numerusform>
        </translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Al menos %1</translation>
    </message>
    <message numerus="yes">
        <source>No wage comes within %n days.</source>
        <translation>
            <numerusform>En %n día no llega ningún salario.</numerusform>
            <numerusform>En %n días no llega ningún salario.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next wage comes on %1.</source>
        <translation>El próximo salario llega el %1.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; is reached.</source>
        <translation>La meta «%1» está alcanzada.</translation>
    </message>
    <message>
        <source>The goal &apos;%1&apos; lacks %2; as it is saved for now, it has no end.</source>
        <translation>A la meta «%1» le faltan %2; tal como se ahorra, no tiene fin.</translation>
    </message>
    <message numerus="yes">
        <source>The goal &apos;%1&apos; lacks %2: reached on %3, after %n payments.</source>
        <translation>
            <numerusform>A la meta «%1» le faltan %2: alcanzada el %3, tras %n pago.</numerusform>
            <numerusform>A la meta «%1» le faltan %2: alcanzada el %3, tras %n pagos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the debt &apos;%1&apos; are %2 left: paid off on %3, after %n payments.</source>
        <translation>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pago.</numerusform>
            <numerusform>De la deuda «%1» quedan %2: pagada el %3, tras %n pagos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interest is left out: the account of the debt shows none.</source>
        <translation>Los intereses no se cuentan: la cuenta de la deuda no muestra ninguno.</translation>
    </message>
    <message>
        <source>With interest of about %1 a year: from %2 to %3 the account of the debt was charged with %4.</source>
        <translation>Con intereses de alrededor del %1 al año: del %2 al %3 se cargaron %4 en la cuenta de la deuda.</translation>
    </message>
    <message>
        <source>Interest to come: %1.</source>
        <translation>Intereses por venir: %1.</translation>
    </message>
    <message>
        <source>With %1 more a month it still has no end.</source>
        <translation>Aun con %1 más al mes no tiene fin.</translation>
    </message>
    <message>
        <source>With %1 more a month it ends on %2.</source>
        <translation>Con %1 más al mes termina el %2.</translation>
    </message>
    <message numerus="yes">
        <source>With %1 more a month it ends on %2, %n days earlier.</source>
        <translation>
            <numerusform>Con %1 más al mes termina el %2, %n día antes.</numerusform>
            <numerusform>Con %1 más al mes termina el %2, %n días antes.</numerusform>
        </translation>
    </message>
    <message>
        <source>That spares %1 of interest.</source>
        <translation>Así se ahorran %1 de intereses.</translation>
    </message>
    <message>
        <source>What is to come</source>
        <translation>Lo que vendrá</translation>
    </message>
    <message>
        <source>So much more a month</source>
        <translation>Tanto más al mes</translation>
    </message>
    <message>
        <source>Day on which late payments count (default: today)</source>
        <translation>Día en que cuentan los pagos atrasados (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Resto</translation>
    </message>
    <message>
        <source>List the payments to come until nothing is left</source>
        <translation>Listar los pagos por venir hasta que no quede nada</translation>
    </message>
    <message>
        <source>Home answers five questions: what is free to spend, what is due, which day ahead is the lowest, what else there is, and what needs care.

Of the balance of each bank account, a part is set aside for what is paid less often than monthly and for goals; the rest is free. What is still due this month is told beside it. Enter on an account shows its lines.

Each line of what is due has its own buttons: pay it, skip it, or go to the page “Due” for another amount. A balance is that of the bank, with the goals that lie in the account. Without an exchange rate, amounts are shown in their own currency, and what sums leave out is named.</source>
        <translation>El inicio responde a cinco preguntas: qué queda libre para gastar, qué vence, qué día próximo es el más bajo, qué más hay y qué requiere atención.

Del saldo de cada cuenta bancaria, una parte está apartada para las metas y para lo que se paga con menos frecuencia que cada mes; el resto está libre. Al lado se dice lo que aún vence este mes. Intro en una cuenta muestra sus líneas.

Cada línea de lo que vence tiene sus botones: pagarla, omitirla o ir a la página de vencimientos para otro importe. Un saldo es el del banco, con las metas que están en la cuenta. Sin tipo de cambio, los importes se muestran en su propia moneda, y se nombra lo que las sumas dejan fuera.</translation>
    </message>
    <message>
        <source>What is to come, if everything regular goes on: each item on each of its days, what is late today, and what was entered for later days. A goal ends when it is reached, a debt when it is paid off. Money that is set aside for goals is not counted.

The arrow keys go through the days of the chart. Each row of the upper table has its own chart and payments; the lower table has the same numbers as the chart.

The fields ask what if: more or fewer days, an amount that should always be there, items that are left out (also by Del on a payment), and an amount that is paid on a day, or received if it has a minus. Enter asks, Esc starts again. The budget stays as it is.</source>
        <translation>Lo que vendrá si todo lo regular sigue: cada partida en cada uno de sus días, lo atrasado hoy, y lo registrado para días posteriores. Una meta termina cuando se alcanza, una deuda cuando se ha pagado. El dinero de las metas no cuenta.

Las flechas recorren los días del gráfico. Cada fila de la tabla superior tiene su propio gráfico y sus pagos; la tabla inferior tiene los mismos números que el gráfico.

Los campos preguntan qué pasaría: más o menos días, un importe que siempre debe quedar, partidas que se omiten (también con Supr en un pago), y un importe que se paga en un día, o se recibe si lleva un menos. Intro pregunta, Esc vuelve a empezar. El presupuesto queda como está.</translation>
    </message>
    <message>
        <source>All together</source>
        <translation>Todas juntas</translation>
    </message>
    <message>
        <source>%1, due on %2</source>
        <translation>%1, vencía el %2</translation>
    </message>
    <message>
        <source>Balance then</source>
        <translation>Saldo después</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is encrypted: it needs its passphrase.</source>
        <translation>El archivo «%1» está cifrado: necesita su frase de contraseña.</translation>
    </message>
    <message>
        <source>This is not the passphrase of the file &apos;%1&apos;.</source>
        <translation>Esta no es la frase de contraseña del archivo «%1».</translation>
    </message>
    <message>
        <source>A passphrase has at least one character.</source>
        <translation>Una frase de contraseña tiene al menos un carácter.</translation>
    </message>
    <message>
        <source>A passphrase has at most %1 bytes.</source>
        <translation>Una frase de contraseña tiene como máximo %1 bytes.</translation>
    </message>
    <message>
        <source>There is too little memory for the passphrase of the file &apos;%1&apos;: %2 MiB are needed.</source>
        <translation>No hay memoria suficiente para la frase de contraseña del archivo «%1»: se necesitan %2 MiB.</translation>
    </message>
    <message>
        <source>Its passphrase would take %1 MiB of memory and %2 passes, more than any such file needs.</source>
        <translation>Su frase de contraseña tomaría %1 MiB de memoria y %2 pasadas, más de lo que necesita cualquier archivo así.</translation>
    </message>
    <message>
        <source>A short passphrase can be guessed: four or five words that do not belong together are better.</source>
        <translation>Una frase de contraseña corta se puede adivinar: mejor cuatro o cinco palabras que no tengan que ver entre sí.</translation>
    </message>
    <message>
        <source>Without the passphrase nobody can read the budget, you neither: keep it where you find it again.</source>
        <translation>Sin la frase de contraseña nadie puede leer el presupuesto, tampoco quien lo cifró: conviene guardarla donde se vuelva a encontrar.</translation>
    </message>
    <message>
        <source>What was saved before can still be found on the disk, and in copies elsewhere.</source>
        <translation>Lo que se guardó antes aún puede encontrarse en el disco y en copias de otros lugares.</translation>
    </message>
    <message>
        <source>The budget is encrypted, but what is written here is not: everybody who has it can read it.</source>
        <translation>El presupuesto está cifrado, pero lo que se escribe aquí no: quien lo tenga puede leerlo.</translation>
    </message>
    <message>
        <source>Balance of %1 at the end of %2</source>
        <translation>Saldo de %1 al final del %2</translation>
    </message>
    <message>
        <source>Balance of %1</source>
        <translation>Saldo de %1</translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation>Saldo inicial</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier entries</source>
        <translation>
            <numerusform>%n asiento anterior</numerusform>
            <numerusform>%n asientos anteriores</numerusform>
        </translation>
    </message>
    <message>
        <source>The share of a month of %1</source>
        <translation>La parte de un mes de %1</translation>
    </message>
    <message>
        <source>times a year</source>
        <translation>veces al año</translation>
    </message>
    <message>
        <source>years from one to the next</source>
        <translation>años de uno al siguiente</translation>
    </message>
    <message>
        <source>months of a year</source>
        <translation>meses de un año</translation>
    </message>
    <message>
        <source>1 %1 is %2 %3, typed by hand</source>
        <translation>1 %1 son %2 %3, introducido a mano</translation>
    </message>
    <message>
        <source>1 %1 is %2 %3, fetched from the service</source>
        <translation>1 %1 son %2 %3, obtenido del servicio</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Amount in %1</source>
        <translation>Importe en %1</translation>
    </message>
    <message>
        <source>what 1 %1 is in %2</source>
        <translation>lo que es 1 %1 en %2</translation>
    </message>
    <message>
        <source>Transaction %1 in %2</source>
        <translation>Asiento %1 en %2</translation>
    </message>
    <message>
        <source>what 1 %1 was in %2 when it was posted, by its two sides</source>
        <translation>lo que era 1 %1 en %2 al registrarlo, según sus dos lados</translation>
    </message>
    <message>
        <source>of the income: %1</source>
        <translation>de los ingresos: %1</translation>
    </message>
    <message>
        <source>%1 at the end of %2, as it is expected</source>
        <translation>%1 al final del %2, según lo previsto</translation>
    </message>
    <message>
        <source>All money at the end of %1, as it is expected</source>
        <translation>Todo el dinero al final del %1, según lo previsto</translation>
    </message>
    <message>
        <source>With all that was entered until today</source>
        <translation>Con todo lo registrado hasta hoy</translation>
    </message>
    <message>
        <source>At the end of the day before</source>
        <translation>Al final del día anterior</translation>
    </message>
    <message>
        <source>Rounding of converted amounts</source>
        <translation>Redondeo de importes convertidos</translation>
    </message>
    <message>
        <source>%1 when %2 is paid</source>
        <translation>%1 cuando se haya pagado %2</translation>
    </message>
    <message>
        <source>Set aside for %1</source>
        <translation>Apartado para %1</translation>
    </message>
    <message>
        <source>Set aside for %1 at %2</source>
        <translation>Apartado para %1 en %2</translation>
    </message>
    <message>
        <source>Free to spend in %1</source>
        <translation>Libre para gastar en %1</translation>
    </message>
    <message>
        <source>How far the books of %1 may be from the statement</source>
        <translation>Cuánto pueden diferir los libros de %1 del extracto</translation>
    </message>
    <message>
        <source>less than one unit, since a part of zero is zero</source>
        <translation>menos de una unidad, porque una parte de cero es cero</translation>
    </message>
    <message>
        <source>the window of %1</source>
        <translation>el margen de %1</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is not encrypted.</source>
        <translation>El presupuesto «%1» no está cifrado.</translation>
    </message>
    <message>
        <source>Nothing of transaction %1 was converted; it is all in one currency.</source>
        <translation>No se convirtió nada del asiento %1; está todo en una sola moneda.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not recur, so no month has a share of it.</source>
        <translation>«%1» no se repite, así que ningún mes tiene una parte.</translation>
    </message>
    <message>
        <source>Nothing is set aside for &apos;%1&apos; at %2.</source>
        <translation>No hay nada apartado para «%1» en %2.</translation>
    </message>
    <message>
        <source>%1 is owed; a survey refuses no difference there.</source>
        <translation>%1 se debe; allí una conciliación no rechaza ninguna diferencia.</translation>
    </message>
    <message>
        <source>There is no income of which anything could take a part.</source>
        <translation>No hay ingresos de los que algo pueda tomar una parte.</translation>
    </message>
    <message>
        <source>%1 is not a day to look ahead to; name one from %2 to %3.</source>
        <translation>El %1 está fuera de la previsión; se admite un día del %2 al %3.</translation>
    </message>
    <message>
        <source>The outlook does not tell of %1: it is no open account of a bank, or holds the money of a goal.</source>
        <translation>La previsión no muestra %1: no es una cuenta abierta de un banco, o guarda el dinero de una meta.</translation>
    </message>
    <message>
        <source>Without an open bank account, or without an exchange rate, the money cannot be added up; name an account.</source>
        <translation>Sin una cuenta bancaria abierta, o sin un tipo de cambio, el dinero no se puede sumar; hay que indicar una cuenta.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <comment>a total</comment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Owed</source>
        <translation>Adeudado</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>En total</translation>
    </message>
    <message>
        <source>File with the passphrase of an encrypted budget (default: the variable KIV_PASSPHRASE_FILE)</source>
        <translation>Archivo con la frase de contraseña de un presupuesto cifrado (por defecto: la variable KIV_PASSPHRASE_FILE)</translation>
    </message>
    <message>
        <source>Balances at the end of this day (default: now)</source>
        <translation>Saldos al final de este día (por defecto: ahora)</translation>
    </message>
    <message numerus="yes">
        <source>%n transactions, together %1.</source>
        <translation>
            <numerusform>%n asiento, en total %1.</numerusform>
            <numerusform>%n asientos, en total %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Encrypt it with a passphrase</source>
        <translation>Cifrarlo con una frase de contraseña</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>File with the new passphrase (default: asked at the terminal)</source>
        <translation>Archivo con la nueva frase de contraseña (por defecto: se pregunta en el terminal)</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions have the new passphrase.</source>
        <translation>El presupuesto «%1» y sus versiones anteriores tienen la nueva frase de contraseña.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions are encrypted.</source>
        <translation>El presupuesto «%1» y sus versiones anteriores están cifrados.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; and its former versions are not encrypted any more: everybody who has the files can read them.</source>
        <translation>El presupuesto «%1» y sus versiones anteriores ya no están cifrados: quien tenga los archivos puede leerlos.</translation>
    </message>
    <message>
        <source>Encrypt the budget and its former versions, or change the passphrase</source>
        <translation>Cifrar el presupuesto y sus versiones anteriores, o cambiar la frase de contraseña</translation>
    </message>
    <message>
        <source>Take the encryption away again</source>
        <translation>Quitar el cifrado</translation>
    </message>
    <message>
        <source>Day of the balance (default: all transactions)</source>
        <translation>Día del saldo (por defecto: todos los asientos)</translation>
    </message>
    <message>
        <source>Budget item</source>
        <translation>Partida del presupuesto</translation>
    </message>
    <message>
        <source>Amount, such as &apos;100 EUR&apos;</source>
        <translation>Importe, como &apos;100 EUR&apos;</translation>
    </message>
    <message>
        <source>Currency of the result (default: the preferred one)</source>
        <translation>Moneda del resultado (por defecto: la preferida)</translation>
    </message>
    <message>
        <source>Transaction whose sides were converted when it was posted</source>
        <translation>Asiento cuyos lados se convirtieron al registrarlo</translation>
    </message>
    <message>
        <source>Give an amount, or a transaction with --entry.</source>
        <translation>Indicar un importe, o un asiento con --entry.</translation>
    </message>
    <message>
        <source>Balance of the statement (default: the expected one)</source>
        <translation>Saldo del extracto (por defecto: el esperado)</translation>
    </message>
    <message>
        <source>Day of the statement (default: today)</source>
        <translation>Día del extracto (por defecto: hoy)</translation>
    </message>
    <message>
        <source>Only one: planned, needs, debts, spending or goals (default: all)</source>
        <translation>Solo uno: planned, needs, debts, spending o goals (por defecto: todos)</translation>
    </message>
    <message>
        <source>Day that is to come</source>
        <translation>Día que está por venir</translation>
    </message>
    <message>
        <source>Account: number, name or path (default: all money together)</source>
        <translation>Cuenta: número, nombre o ruta (por defecto: todo el dinero junto)</translation>
    </message>
    <message>
        <source>Tell why a figure is what it is</source>
        <translation>Decir por qué una cifra es la que es</translation>
    </message>
    <message>
        <source>Explain the balance of an account</source>
        <translation>Explicar el saldo de una cuenta</translation>
    </message>
    <message>
        <source>Explain an item&apos;s share of a month</source>
        <translation>Explicar la parte de un mes de una partida</translation>
    </message>
    <message>
        <source>Explain a conversion into another currency</source>
        <translation>Explicar una conversión a otra moneda</translation>
    </message>
    <message>
        <source>Explain what is set aside for an item</source>
        <translation>Explicar lo apartado para una partida</translation>
    </message>
    <message>
        <source>Explain what is free to spend</source>
        <translation>Explicar lo que está libre para gastar</translation>
    </message>
    <message>
        <source>Explain how far the books may be from a statement</source>
        <translation>Explicar cuánto pueden diferir los libros de un extracto</translation>
    </message>
    <message>
        <source>Explain the percentages of the budget&apos;s health</source>
        <translation>Explicar los porcentajes de la salud del presupuesto</translation>
    </message>
    <message>
        <source>Explain what is expected at the end of a day</source>
        <translation>Explicar lo que se espera al final de un día</translation>
    </message>
    <message>
        <source>another passphrase</source>
        <translation>otra frase de contraseña</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is encrypted: give its passphrase with %2, or at a terminal.</source>
        <translation>El archivo «%1» está cifrado: hay que indicar su frase de contraseña con %2 o en un terminal.</translation>
    </message>
    <message>
        <source>This is not the same passphrase.</source>
        <translation>No es la misma frase de contraseña.</translation>
    </message>
    <message>
        <source>Others can read the passphrase in &apos;%1&apos;.</source>
        <translation>Otros pueden leer la frase de contraseña en «%1».</translation>
    </message>
    <message>
        <source>Passphrase of &apos;%1&apos;</source>
        <translation>Frase de contraseña de «%1»</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Nueva frase de contraseña</translation>
    </message>
    <message>
        <source>The new passphrase again</source>
        <translation>La nueva frase de contraseña otra vez</translation>
    </message>
    <message>
        <source>The desktop’s keyring does not keep the passphrase: %1</source>
        <translation>El llavero del escritorio no guarda la frase de contraseña: %1</translation>
    </message>
    <message>
        <source>A budget is one file. Each change is kept at once and written within a second; the title says whether it is saved. Ctrl+Z takes a change back, and the page “History” goes back further.

The pages stand at the left. Ctrl+1 to Ctrl+9 open them, F6 goes between the list and the page. Ctrl+K finds every command, account and item by a part of its name. Ctrl+? lists all keys. F9 tells why the number that is chosen is what it is.

In a form, Enter does what its first button does, and Esc gives up. What is refused is told at its field, and what was typed stays. Amounts can be sums, such as 12+3.5. Days can be short: 3, 5-2, +7, or T for today.</source>
        <translation>Un presupuesto es un archivo. Cada cambio se toma enseguida y se escribe en menos de un segundo; el título dice si está guardado. Ctrl+Z deshace un cambio, y la página «Historial» retrocede más.

Las páginas están a un lado. Ctrl+1 a Ctrl+9 las abren, F6 pasa de la lista a la página y vuelve. Ctrl+K encuentra cada orden, cuenta y partida por una parte de su nombre. Ctrl+? muestra todas las teclas. F9 dice por qué la cifra elegida es la que es.

En un formulario, Intro hace lo que hace su primer botón, y Esc lo deja. Lo que se rechaza se dice en su campo, y lo escrito se queda. Los importes pueden ser sumas, como 12+3.5. Los días pueden ser cortos: 3, 5-2, +7 o T para hoy.</translation>
    </message>
    <message>
        <source>All accounts with their balances: money, what is owed, what is set aside, and what money is spent on or comes from. Enter opens the register of an account. With a day, the balances are those at its end.</source>
        <translation>Todas las cuentas con sus saldos: el dinero, lo que se debe, lo que está apartado y en qué se gasta o de dónde viene. Intro abre el registro de una cuenta. Con un día, son los saldos a su final.</translation>
    </message>
    <message>
        <source>A passphrase encrypts the budget and its former versions: in a shared folder or on a lost computer nobody can read them. It is needed each time the budget is opened, unless the desktop’s keyring keeps it. Without it nobody can read the budget, you neither.

What was saved before, exports, and what a running program has in memory are not protected.</source>
        <translation>Una frase de contraseña cifra el presupuesto y sus versiones anteriores: en una carpeta compartida o en un ordenador perdido nadie puede leerlos. Hace falta cada vez que se abre el presupuesto, salvo que la guarde el llavero del escritorio. Sin ella nadie puede leer el presupuesto, tampoco quien lo cifró.

Lo que se guardó antes, lo exportado y lo que un programa tiene en memoria no está protegido.</translation>
    </message>
    <message>
        <source>The passphrase of “%1”:</source>
        <translation>La frase de contraseña de «%1»:</translation>
    </message>
    <message>
        <source>This is not the passphrase of “%1”. The passphrase:</source>
        <translation>Esta no es la frase de contraseña de «%1». La frase:</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Frase de contraseña</translation>
    </message>
    <message>
        <source>&amp;Keep it in the desktop’s keyring</source>
        <translation>Guar&amp;darla en el llavero del escritorio</translation>
    </message>
    <message>
        <source>Draw a chart on the terminal</source>
        <translation>Dibujar un gráfico en la terminal</translation>
    </message>
    <message>
        <source>To</source>
        <comment>an account</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>Savings rate, %1</source>
        <translation>Tasa de ahorro, %1</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>By account, from %1 to %2</source>
        <translation>Por cuenta, del %1 al %2</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>such as: Expense, USD</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Nothing was spent or earned.</source>
        <translation>No se gastó ni se ingresó nada.</translation>
    </message>
    <message>
        <source>Planned per span</source>
        <translation>Previsto por periodo</translation>
    </message>
    <message>
        <source>The plan is today&apos;s, restated per span. ▲ marks spans with higher spending.</source>
        <translation>El plan es el de hoy, expresado por periodo. ▲ señala los periodos con un gasto mayor.</translation>
    </message>
    <message>
        <source>All assets less all debts at the end of each span; the last is %1.</source>
        <translation>Todos los activos menos todas las deudas al final de cada periodo; el último valor es %1.</translation>
    </message>
    <message>
        <source>Money that came in and money spent in each span.</source>
        <translation>Dinero ingresado y gastado en cada periodo.</translation>
    </message>
    <message>
        <source>Planned and actual spending per span on bills, debts, goals and non-tracked items.</source>
        <translation>Gasto previsto y real por periodo en facturas, deudas, metas y partidas sin seguimiento.</translation>
    </message>
    <message>
        <source>Only what fits: %1</source>
        <translation>Solo lo que coincide: %1</translation>
    </message>
    <message>
        <source>A report has at most %1 spans; choose a later first day or longer spans.</source>
        <translation>Un informe tiene como máximo %1 periodos; hay que elegir un primer día posterior o periodos más largos.</translation>
    </message>
    <message>
        <source>No wage has come in by the last day; choose other spans than paydays.</source>
        <translation>Hasta el último día no se ha recibido ningún salario; hay que elegir otros periodos que los de cobro.</translation>
    </message>
    <message>
        <source>By payee</source>
        <translation>Por beneficiario</translation>
    </message>
    <message>
        <source>By tag</source>
        <translation>Por etiqueta</translation>
    </message>
    <message>
        <source>By account</source>
        <translation>Por cuenta</translation>
    </message>
    <message>
        <source>By category</source>
        <translation>Por categoría</translation>
    </message>
    <message>
        <source>The last %1 of %2 spans are shown; --csv and --json have all.</source>
        <translation>Se muestran los últimos %1 de %2 periodos; --csv y --json los tienen todos.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Ahorrado</translation>
    </message>
    <message>
        <source>Savings rate</source>
        <translation>Tasa de ahorro</translation>
    </message>
    <message>
        <source>Count only the transactions that &apos;kiv find WORDS&apos; finds</source>
        <translation>Contar solo los asientos que encuentra &apos;kiv find PALABRAS&apos;</translation>
    </message>
    <message>
        <source>Add up by category, payee, tag or account (with WORDS, --csv and --html by category)</source>
        <translation>Sumar por category (categoría), payee (beneficiario), tag (etiqueta) o account (cuenta); con PALABRAS, --csv y --html, por categoría</translation>
    </message>
    <message>
        <source>Spans: week, two-weeks, payday, month, quarter or year (default: month, with --by a single span)</source>
        <translation>Periodos: week, two-weeks, payday, month, quarter o year (por defecto: month; con --by, uno solo)</translation>
    </message>
    <message>
        <source>First day, or a day in the first span (default: twelve spans)</source>
        <translation>Primer día, o un día del primer periodo (por defecto: doce periodos)</translation>
    </message>
    <message>
        <source>Print a table as CSV</source>
        <translation>Mostrar una tabla como CSV</translation>
    </message>
    <message>
        <source>Show income, expenses and net worth, or where the money went</source>
        <translation>Mostrar ingresos, gastos y patrimonio neto, o adónde fue el dinero</translation>
    </message>
    <message>
        <source>The former version &apos;%1&apos; could not be encrypted.</source>
        <translation>No se pudo cifrar la versión anterior «%1».</translation>
    </message>
    <message>
        <source>Whoever has an old copy and the old passphrase can read what is saved later, too; taking the encryption away and encrypting again makes a new key.</source>
        <translation>Quien tenga una copia antigua y la frase de contraseña antigua puede leer también lo que se guarde después; quitar el cifrado y cifrar de nuevo crea una clave nueva.</translation>
    </message>
    <message>
        <source>These former versions stay as they are, since they are damaged, have another passphrase, or cannot be written: %1.</source>
        <translation>Estas versiones anteriores quedan como están, porque están dañadas, tienen otra frase de contraseña o no se pueden escribir: %1.</translation>
    </message>
    <message>
        <source>An amount of zero changes nothing that is to come.</source>
        <translation>Un importe de cero no cambia nada de lo que viene.</translation>
    </message>
    <message>
        <source>No bank has an open account that could pay or get this amount.</source>
        <translation>Ningún banco tiene una cuenta abierta que pueda pagar o recibir este importe.</translation>
    </message>
    <message>
        <source>The outlook leaves &apos;%1&apos; out: its account is closed.</source>
        <translation>La previsión omite «%1»: su cuenta está cerrada.</translation>
    </message>
    <message>
        <source>All together is without the accounts in %1: there is no exchange rate between %1 and %2.</source>
        <translation>El total va sin las cuentas en %1: no hay tipo de cambio entre %1 y %2.</translation>
    </message>
    <message>
        <source>At a terminal a passphrase has fewer than %1 bytes; a longer one can be given in a file.</source>
        <translation>En un terminal, una frase de contraseña tiene menos de %1 bytes; una más larga puede darse en un archivo.</translation>
    </message>
    <message>
        <source>Several budget items are named &apos;%1&apos;; write one of these: %2.</source>
        <translation>Varias partidas se llaman «%1»; hay que escribir una de estas: %2.</translation>
    </message>
    <message>
        <source>Without an exchange rate, and apart: %1</source>
        <translation>Sin tipo de cambio, y aparte: %1</translation>
    </message>
    <message>
        <source>(no tag)</source>
        <translation>(sin etiqueta)</translation>
    </message>
    <message>
        <source>(no payee)</source>
        <translation>(sin beneficiario)</translation>
    </message>
    <message>
        <source>All expenses, %1</source>
        <translation>Todos los gastos, %1</translation>
    </message>
    <message>
        <source>All income, %1</source>
        <translation>Todos los ingresos, %1</translation>
    </message>
    <message>
        <source>%1 for %2. The largest: %3 with %4.</source>
        <translation>%1 de %2. Lo mayor: %3 con %4.</translation>
    </message>
    <message>
        <source>%1: %2 together, %3 on average.</source>
        <translation>%1: %2 en total, %3 de media.</translation>
    </message>
    <message>
        <source>%1, planned and actual</source>
        <translation>%1, previsto y real</translation>
    </message>
    <message>
        <source>%1: %2 planned for each span, %3 on average.</source>
        <translation>%1: %2 previsto por periodo, %3 de media.</translation>
    </message>
    <message>
        <source>at the end of each span</source>
        <translation>al final de cada periodo</translation>
    </message>
    <message>
        <source>All items but wages, %1</source>
        <translation>Todas las partidas salvo salarios, %1</translation>
    </message>
    <message>
        <source>Convert all amounts into this currency, at the present rates</source>
        <translation>Convertir todos los importes a esta moneda, a los tipos actuales</translation>
    </message>
    <message>
        <source>Where the money went and came from. “What” is added up by category, payee, tag or account; the overview has what is owned and the plan of each item. Spans last from a week to a year, or from payday to payday; without days there are twelve up to today. “Only” takes a search, as on the page “Register”.

Each row of the first table has its own chart. The arrow keys go through the bars, and the second table has the same numbers. Enter on a bar or a number goes to the entries behind it, and Enter on an entry to the register.

Each currency stands by itself unless one is chosen to convert into, at the present exchange rates. What moves between the household’s own accounts is neither income nor expense. “Save as” makes a document, a page or a table; Ctrl+P prints.</source>
        <translation>Adónde fue el dinero y de dónde vino. «Qué» se suma por categoría, beneficiario, etiqueta o cuenta; el resumen tiene lo que se posee y lo previsto de cada partida. Los periodos duran de una semana a un año, o de un día de pago al siguiente; sin días son doce hasta hoy. «Solo» admite una búsqueda, como en la página «Registro».

Cada fila de la primera tabla tiene su propio gráfico. Las flechas recorren las barras, y la segunda tabla tiene los mismos números. Intro en una barra o un número va a los asientos que hay detrás, e Intro en un asiento va al registro.

Cada moneda va por separado salvo que se elija una a la que convertir, a los tipos de cambio actuales. Lo que se mueve entre las cuentas del hogar no es ingreso ni gasto. «Guardar como» hace un documento, una página o una tabla; Ctrl+P imprime.</translation>
    </message>
    <message>
        <source>In which form is the report saved?</source>
        <translation>¿En qué forma se guarda el informe?</translation>
    </message>
    <message>
        <source>Document (PDF)</source>
        <translation>Documento (PDF)</translation>
    </message>
    <message>
        <source>Page (HTML)</source>
        <translation>Página (HTML)</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabla (CSV)</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Impreso.</translation>
    </message>
    <message>
        <source>%1 spent, %2 received</source>
        <translation>%1 gastado, %2 recibido</translation>
    </message>
    <message>
        <source>%1; %2 more spent than received.</source>
        <translation>%1; %2 más gastado que recibido.</translation>
    </message>
    <message>
        <source>%1; %2 kept, which is %3.</source>
        <translation>%1; %2 conservado, que es el %3.</translation>
    </message>
    <message>
        <source>%1; %2 kept.</source>
        <translation>%1; %2 conservado.</translation>
    </message>
    <message>
        <source>Everywhere: the field or button with the underlined letter</source>
        <translation>En todas partes: el campo o botón con la letra subrayada</translation>
    </message>
    <message>
        <source>%1+letter</source>
        <translation>%1+letra</translation>
    </message>
    <message>
        <source>Everywhere: the next field or button, or the one before</source>
        <translation>En todas partes: el campo o botón siguiente, o el anterior</translation>
    </message>
    <message>
        <source>In a form: do what its first button does</source>
        <translation>En un formulario: hacer lo que hace su primer botón</translation>
    </message>
    <message>
        <source>In a form: give up</source>
        <translation>En un formulario: dejarlo</translation>
    </message>
    <message>
        <source>In a field with a day: a day on</source>
        <translation>En un campo con un día: un día adelante</translation>
    </message>
    <message>
        <source>In a field with a day: a day back</source>
        <translation>En un campo con un día: un día atrás</translation>
    </message>
    <message>
        <source>In a field with a day: today</source>
        <translation>En un campo con un día: hoy</translation>
    </message>
    <message>
        <source>In a field with names: take the marked one, or the only one</source>
        <translation>En un campo con nombres: tomar el marcado, o el único</translation>
    </message>
    <message>
        <source>In a table: open or change the row</source>
        <translation>En una tabla: abrir o cambiar la fila</translation>
    </message>
    <message>
        <source>In a table: change the row</source>
        <translation>En una tabla: cambiar la fila</translation>
    </message>
    <message>
        <source>In a table: remove the row</source>
        <translation>En una tabla: eliminar la fila</translation>
    </message>
    <message>
        <source>In “Due” and in the register: choose several rows</source>
        <translation>En «Vencimientos» y en el registro: elegir varias filas</translation>
    </message>
    <message>
        <source>In the register: all that can be done with the row</source>
        <translation>En el registro: todo lo que se puede hacer con la fila</translation>
    </message>
    <message>
        <source>In the search of the register: search now</source>
        <translation>En la búsqueda del registro: buscar ahora</translation>
    </message>
    <message>
        <source>In the search of the register: on to the rows</source>
        <translation>En la búsqueda del registro: pasar a las filas</translation>
    </message>
    <message>
        <source>In the search of the register: show all rows again</source>
        <translation>En la búsqueda del registro: mostrar de nuevo todas las filas</translation>
    </message>
    <message>
        <source>In the entry row: enter</source>
        <translation>En la fila de entrada: registrar</translation>
    </message>
    <message>
        <source>In the entry row: give up</source>
        <translation>En la fila de entrada: dejarlo</translation>
    </message>
    <message>
        <source>In a survey: tick the row, and go down</source>
        <translation>En una conciliación: marcar la fila y bajar</translation>
    </message>
    <message>
        <source>In an import: take the row, or leave it out</source>
        <translation>En una importación: tomar la fila o dejarla fuera</translation>
    </message>
    <message>
        <source>In the payments of the outlook: leave the item out</source>
        <translation>En los pagos de la previsión: dejar fuera la partida</translation>
    </message>
    <message>
        <source>In a chart: the next point, or the one before</source>
        <translation>En un gráfico: el punto siguiente, o el anterior</translation>
    </message>
    <message>
        <source>In a chart: the first point, the last point</source>
        <translation>En un gráfico: el primer punto, el último punto</translation>
    </message>
    <message>
        <source>In the explanation of a number: open the transaction</source>
        <translation>En la explicación de una cifra: abrir el asiento</translation>
    </message>
    <message>
        <source>In the explanation of a number: close it</source>
        <translation>En la explicación de una cifra: cerrarla</translation>
    </message>
    <message>
        <source>The steps of this session, and below them the former versions of the file. The lower table says what changed since the chosen one. “Go back to this” makes it the present state; undo and redo go on from there. A version that was encrypted with another passphrase asks for it.</source>
        <translation>Los pasos de esta sesión y, debajo, las versiones anteriores del archivo. La tabla inferior dice qué cambió desde la elegida. «Volver a este estado» la convierte en el estado actual; deshacer y rehacer siguen desde ahí. Una versión cifrada con otra frase de contraseña pregunta por ella.</translation>
    </message>
    <message>
        <source>A first week
Enter the bank account with its balance, what comes in, and the largest bills: “Begin step by step” in the menu “File” asks for them. Then enter what is spent (Ctrl+T), and pay on the page “Due” what is due. All else can wait until it happens.</source>
        <translation>Una primera semana
Introducir la cuenta bancaria con su saldo, lo que entra y las facturas mayores: «Empezar paso a paso» en el menú «Archivo» pregunta por ello. Después, introducir lo que se gasta (Ctrl+T) y pagar en la página «Vencimientos» lo que vence. Todo lo demás puede esperar a que ocurra.</translation>
    </message>
    <message>
        <source>A goal that is reached
“End it” on the page “Items” spends its money on what is typed there, or gives it back to the account that holds it. To go on saving, raise what is to be reached.</source>
        <translation>Una meta alcanzada
«Terminar» en la página «Partidas» gasta su dinero en lo que se escriba ahí, o lo devuelve a la cuenta que lo guarda. Para seguir ahorrando, aumentar lo que se quiere alcanzar.</translation>
    </message>
    <message>
        <source>In a chart of a report: the entries behind the point</source>
        <translation>En el gráfico de un informe: los asientos detrás del punto</translation>
    </message>
    <message>
        <source>No bank&apos;s statement is of &apos;%1&apos;: the account neither holds money nor owes any.</source>
        <translation>Ningún extracto bancario es de «%1»: la cuenta ni guarda dinero ni lo debe.</translation>
    </message>
    <message>
        <source>kiv-desktop: One file can be opened, not &apos;%1&apos; and &apos;%2&apos;.</source>
        <translation>kiv-desktop: Se puede abrir un archivo, no «%1» y «%2».</translation>
    </message>
    <message numerus="yes">
        <source>%n entries with a ? should be looked at.</source>
        <translation>
            <numerusform>Conviene mirar %n entrada con un ?.</numerusform>
            <numerusform>Conviene mirar %n entradas con un ?.</numerusform>
        </translation>
    </message>
    <message>
        <source>An amount is missing; write one like 1234.50 or &apos;1234.50 USD&apos;.</source>
        <translation>Falta un importe; debe ser como 1234.50 o &apos;1234.50 USD&apos;.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::AccountForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Cla&amp;se:</translation>
    </message>
    <message>
        <source>N&amp;umber (may be empty):</source>
        <translation>Nú&amp;mero (puede faltar):</translation>
    </message>
    <message>
        <source>&amp;Part of (may be empty):</source>
        <translation>&amp;Parte de (puede faltar):</translation>
    </message>
    <message>
        <source>Ba&amp;lance at first:</source>
        <translation>Saldo inicia&amp;l:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>El &amp;día:</translation>
    </message>
    <message>
        <source>New account</source>
        <translation>Nueva cuenta</translation>
    </message>
    <message>
        <source>Change the account “%1”</source>
        <translation>Modificar la cuenta «%1»</translation>
    </message>
    <message>
        <source>Added the account “%1”.</source>
        <translation>Se añadió la cuenta «%1».</translation>
    </message>
    <message>
        <source>adding the account “%1”</source>
        <translation>añadir la cuenta «%1»</translation>
    </message>
    <message>
        <source>Changed the account “%1”.</source>
        <translation>Se cambió la cuenta «%1».</translation>
    </message>
    <message>
        <source>changing the account “%1”</source>
        <translation>cambiar la cuenta «%1»</translation>
    </message>
    <message>
        <source>spending</source>
        <translation>gastos</translation>
    </message>
    <message>
        <source>earning</source>
        <translation>ingresos</translation>
    </message>
    <message>
        <source>owned</source>
        <translation>bienes</translation>
    </message>
    <message>
        <source>owed</source>
        <translation>deuda</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::AccountsPage</name>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>&amp;Show transactions</source>
        <translation>Mostrar &amp;movimientos</translation>
    </message>
    <message>
        <source>There are no accounts yet. They come with banks and with the items of the budget.</source>
        <translation>Todavía no hay cuentas. Llegan con los bancos y con las partidas del presupuesto.</translation>
    </message>
    <message>
        <source>&amp;New account</source>
        <translation>&amp;Nueva cuenta</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Modi&amp;ficar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>It belongs to the item “%1” and is changed with it, on the page of items.</source>
        <translation>Pertenece a la partida «%1» y se cambia con ella, en la página de partidas.</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>No se ha elegido ninguna línea.</translation>
    </message>
    <message>
        <source>&amp;Open again</source>
        <translation>A&amp;brir de nuevo</translation>
    </message>
    <message>
        <source>Opened “%1” again.</source>
        <translation>Se volvió a abrir «%1».</translation>
    </message>
    <message>
        <source>opening “%1”</source>
        <translation>abrir «%1»</translation>
    </message>
    <message>
        <source>Closed “%1”.</source>
        <translation>Se cerró «%1».</translation>
    </message>
    <message>
        <source>closing “%1”</source>
        <translation>cerrar «%1»</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>Se eliminó «%1».</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>eliminar «%1»</translation>
    </message>
    <message>
        <source>&amp;Import a bank file</source>
        <translation>Im&amp;portar un archivo del banco</translation>
    </message>
    <message>
        <source>Balances on the &amp;day (may be empty):</source>
        <translation>Sald&amp;os del día (puede faltar):</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ActionCollection</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>Asien&amp;to</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::BankForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Cuenta:</translation>
    </message>
    <message>
        <source>&amp;Bank:</source>
        <translation>&amp;Banco:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Cla&amp;se:</translation>
    </message>
    <message>
        <source>Ba&amp;lance at first:</source>
        <translation>Saldo inicia&amp;l:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>El &amp;día:</translation>
    </message>
    <message>
        <source>New bank</source>
        <translation>Nuevo banco</translation>
    </message>
    <message>
        <source>Another name for the bank</source>
        <translation>Otro nombre para el banco</translation>
    </message>
    <message>
        <source>New account at a bank</source>
        <translation>Nueva cuenta en un banco</translation>
    </message>
    <message>
        <source>An account that is already here belongs to a bank</source>
        <translation>Una cuenta que ya existe es de un banco</translation>
    </message>
    <message>
        <source>Name and kind of the account</source>
        <translation>Nombre y clase de la cuenta</translation>
    </message>
    <message>
        <source>This account has the name of its item.</source>
        <translation>Esta cuenta tiene el nombre de su partida.</translation>
    </message>
    <message>
        <source>Added the bank “%1”.</source>
        <translation>Se añadió el banco «%1».</translation>
    </message>
    <message>
        <source>adding the bank “%1”</source>
        <translation>añadir el banco «%1»</translation>
    </message>
    <message>
        <source>The bank “%1” is now called “%2”.</source>
        <translation>El banco «%1» se llama ahora «%2».</translation>
    </message>
    <message>
        <source>renaming “%1” to “%2”</source>
        <translation>cambiar el nombre de «%1» a «%2»</translation>
    </message>
    <message>
        <source>Added the account “%1” at “%2”.</source>
        <translation>Se añadió la cuenta «%1» en «%2».</translation>
    </message>
    <message>
        <source>adding the account “%1”</source>
        <translation>añadir la cuenta «%1»</translation>
    </message>
    <message>
        <source>Choose an account.</source>
        <translation>Elegir una cuenta.</translation>
    </message>
    <message>
        <source>“%1” belongs to the bank “%2”.</source>
        <translation>«%1» es del banco «%2».</translation>
    </message>
    <message>
        <source>assigning “%1” to “%2”</source>
        <translation>asignar «%1» a «%2»</translation>
    </message>
    <message>
        <source>Changed the account “%1”.</source>
        <translation>Se cambió la cuenta «%1».</translation>
    </message>
    <message>
        <source>changing the account “%1”</source>
        <translation>cambiar la cuenta «%1»</translation>
    </message>
    <message>
        <source>It stays &amp;open:</source>
        <translation>Sigue &amp;abierta:</translation>
    </message>
    <message>
        <source>Another bank keeps “%1” from now on</source>
        <translation>Desde ahora, otro banco lleva «%1»</translation>
    </message>
    <message>
        <source>Another account takes the money of “%1”, its goals, and what is set aside there</source>
        <translation>Otra cuenta recibe el dinero de «%1», sus metas y lo apartado allí</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::BanksPage</name>
    <message>
        <source>Banks</source>
        <translation>Bancos</translation>
    </message>
    <message>
        <source>&amp;New bank</source>
        <translation>&amp;Nuevo banco</translation>
    </message>
    <message>
        <source>&amp;Add an account</source>
        <translation>Añadir una &amp;cuenta</translation>
    </message>
    <message>
        <source>Ass&amp;ign an account</source>
        <translation>A&amp;signar una cuenta</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>Separate from &amp;bank</source>
        <translation>Separar del banc&amp;o</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>There are no banks yet. A bank keeps your accounts, as its statements show them.</source>
        <translation>Aún no hay bancos. Un banco lleva cuentas, como las muestran sus extractos.</translation>
    </message>
    <message>
        <source>This is for an account.</source>
        <translation>Esto es para una cuenta.</translation>
    </message>
    <message>
        <source>&amp;Open again</source>
        <translation>A&amp;brir de nuevo</translation>
    </message>
    <message>
        <source>Opened “%1” again.</source>
        <translation>Se volvió a abrir «%1».</translation>
    </message>
    <message>
        <source>opening “%1”</source>
        <translation>abrir «%1»</translation>
    </message>
    <message>
        <source>Closed “%1”.</source>
        <translation>Se cerró «%1».</translation>
    </message>
    <message>
        <source>closing “%1”</source>
        <translation>cerrar «%1»</translation>
    </message>
    <message>
        <source>Separated “%1” from its bank.</source>
        <translation>Se separó «%1» de su banco.</translation>
    </message>
    <message>
        <source>separating “%1” from its bank</source>
        <translation>separar «%1» de su banco</translation>
    </message>
    <message>
        <source>Removed “%1”.</source>
        <translation>Se eliminó «%1».</translation>
    </message>
    <message>
        <source>removing “%1”</source>
        <translation>eliminar «%1»</translation>
    </message>
    <message>
        <source>&amp;Move to another bank</source>
        <translation>&amp;Pasar a otro banco</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Reempla&amp;zar</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::CategoryRow</name>
    <message>
        <source>Change</source>
        <translation>Modificar</translation>
    </message>
    <message numerus="yes">
        <source>Put %n transaction(s) under</source>
        <translation>
            <numerusform>Clasificar %n asiento en</numerusform>
            <numerusform>Clasificar %n asientos en</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose an item or a category.</source>
        <translation>Elegir una partida o una categoría.</translation>
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
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>Another request is not answered yet; try again in a moment.</source>
        <translation>Otra petición aún no tiene respuesta; intentarlo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Exported to “%1”.</source>
        <translation>Exportado a «%1».</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::DueLines</name>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Other amount …</source>
        <translation>Otro importe …</translation>
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
        <translation>Vencimientos</translation>
    </message>
    <message>
        <source>What is due</source>
        <translation>Lo que vence</translation>
    </message>
    <message>
        <source>&amp;In addition: it stays due</source>
        <translation>Además: sigue pe&amp;ndiente</translation>
    </message>
    <message>
        <source>&amp;Pay</source>
        <translation>&amp;Pagar</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>O&amp;mitir</translation>
    </message>
    <message>
        <source>Pay this am&amp;ount</source>
        <translation>Paga&amp;r este importe</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Cuenta:</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>El &amp;día:</translation>
    </message>
    <message>
        <source>Another a&amp;mount:</source>
        <translation>&amp;Otro importe:</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>No se ha elegido ninguna línea.</translation>
    </message>
    <message>
        <source>Another amount is for one line.</source>
        <translation>Otro importe vale para una sola línea.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EncryptionPage</name>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nueva frase de contraseña:</translation>
    </message>
    <message>
        <source>The same &amp;again:</source>
        <translation>&amp;La misma otra vez:</translation>
    </message>
    <message>
        <source>Typing:</source>
        <translation>Escritura:</translation>
    </message>
    <message>
        <source>&amp;Show what is typed</source>
        <translation>&amp;Mostrar lo que se escribe</translation>
    </message>
    <message>
        <source>Afterwards:</source>
        <translation>Después:</translation>
    </message>
    <message>
        <source>&amp;Keep it in the desktop’s keyring</source>
        <translation>Guar&amp;darla en el llavero del escritorio</translation>
    </message>
    <message>
        <source>Encr&amp;ypt</source>
        <translation>&amp;Cifrar</translation>
    </message>
    <message>
        <source>Take the encryption a&amp;way</source>
        <translation>&amp;Quitar el cifrado</translation>
    </message>
    <message>
        <source>This budget and its former versions are encrypted. Whoever finds the files reads nothing without the passphrase.</source>
        <translation>Este presupuesto y sus versiones anteriores están cifrados. Quien encuentre los archivos no lee nada sin la frase de contraseña.</translation>
    </message>
    <message>
        <source>This budget is not encrypted: whoever gets the file can read it. A passphrase protects it and its former versions, in a shared folder or on a lost computer.</source>
        <translation>Este presupuesto no está cifrado: quien obtenga el archivo puede leerlo. Una frase de contraseña lo protege, con sus versiones anteriores, en una carpeta compartida o en un ordenador perdido.</translation>
    </message>
    <message>
        <source>Exports, and what a running program has in memory, are not protected.</source>
        <translation>Lo exportado, y lo que un programa en marcha tiene en memoria, no está protegido.</translation>
    </message>
    <message>
        <source>Change the passphrase</source>
        <translation>Cambiar la frase de contraseña</translation>
    </message>
    <message>
        <source>This budget is not encrypted.</source>
        <translation>Este presupuesto no está cifrado.</translation>
    </message>
    <message>
        <source>This is not the same passphrase.</source>
        <translation>No es la misma frase de contraseña.</translation>
    </message>
    <message>
        <source>The budget is encrypted.</source>
        <translation>El presupuesto está cifrado.</translation>
    </message>
    <message>
        <source>The budget is not encrypted any more.</source>
        <translation>El presupuesto ya no está cifrado.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EntryFields</name>
    <message>
        <source>&amp;Amount</source>
        <translation>I&amp;mporte</translation>
    </message>
    <message>
        <source>In e&amp;xchange</source>
        <translation>Lo &amp;que llegó</translation>
    </message>
    <message>
        <source>Reaso&amp;n</source>
        <translation>M&amp;otivo</translation>
    </message>
    <message>
        <source>Da&amp;y</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>T&amp;o</source>
        <translation>De&amp;stino</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>Ori&amp;gen</translation>
    </message>
    <message>
        <source>&amp;On</source>
        <translation>&amp;Partida</translation>
    </message>
    <message>
        <source>&amp;Payer</source>
        <translation>De &amp;quién</translation>
    </message>
    <message>
        <source>&amp;Payee</source>
        <translation>A &amp;quién</translation>
    </message>
    <message>
        <source>Choose the account that the money came to.</source>
        <translation>Elegir la cuenta a la que llegó el dinero.</translation>
    </message>
    <message>
        <source>Choose the account that the money left.</source>
        <translation>Elegir la cuenta de la que salió el dinero.</translation>
    </message>
    <message>
        <source>Choose what the money was spent on.</source>
        <translation>Elegir en qué se gastó el dinero.</translation>
    </message>
    <message>
        <source>Choose where the money came from.</source>
        <translation>Elegir de dónde vino el dinero.</translation>
    </message>
    <message>
        <source>Choose the account that the money went to.</source>
        <translation>Elegir la cuenta a la que fue el dinero.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::EntryRow</name>
    <message>
        <source>Kind of transaction</source>
        <translation>Tipo de asiento</translation>
    </message>
    <message>
        <source>&amp;Spent</source>
        <translation>Gas&amp;tado</translation>
    </message>
    <message>
        <source>Earne&amp;d</source>
        <translation>I&amp;ngresado</translation>
    </message>
    <message>
        <source>&amp;Moved</source>
        <translation>T&amp;raspasado</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Change:</source>
        <translation>Modificar:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Refund: the amount that was given back, and the day.</source>
        <translation>Reembolso: el importe devuelto y el día.</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Reembolso</translation>
    </message>
    <message>
        <source>Another &amp;line</source>
        <translation>Otra &amp;línea</translation>
    </message>
    <message>
        <source>For one payment on several things: each line becomes a transaction</source>
        <translation>Para un pago de varias cosas: cada línea será un asiento</translation>
    </message>
    <message>
        <source>Add all</source>
        <translation>Añadir todas</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ExplanationPanel</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicación</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FileOutputs</name>
    <message>
        <source>&amp;Export …</source>
        <translation>E&amp;xportar …</translation>
    </message>
    <message>
        <source>Check the &amp;file</source>
        <translation>Comprobar el archi&amp;vo</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>In which form are the transactions exported?</source>
        <translation>¿En qué forma se exportan los asientos?</translation>
    </message>
    <message>
        <source>Journal, for ledger and hledger</source>
        <translation>Diario, para ledger y hledger</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabla (CSV)</translation>
    </message>
    <message>
        <source>Everything (JSON)</source>
        <translation>Todo (JSON)</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is intact.</source>
        <translation>El presupuesto «%1» está íntegro.</translation>
    </message>
    <message>
        <source>The budget &apos;%1&apos; is damaged. A former version can be brought back on the page “History”.</source>
        <translation>El presupuesto «%1» está dañado. Se puede recuperar una versión anterior en la página «Historial».</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Check of the file</source>
        <translation>Comprobación del archivo</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FileSession</name>
    <message>
        <source>&amp;New budget …</source>
        <translation>&amp;Nuevo presupuesto …</translation>
    </message>
    <message>
        <source>&amp;Open a budget …</source>
        <translation>&amp;Abrir un presupuesto …</translation>
    </message>
    <message>
        <source>&amp;Save now</source>
        <translation>&amp;Guardar ahora</translation>
    </message>
    <message>
        <source>Save a &amp;copy …</source>
        <translation>Guardar una &amp;copia …</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>This budget can only be read now. %1</source>
        <translation>Este presupuesto ahora solo se puede leer. %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>“%1” is open.</source>
        <translation>«%1» está abierto.</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Nuevo presupuesto</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>The copy is saved as “%1”.</source>
        <translation>La copia está guardada como «%1».</translation>
    </message>
    <message>
        <source>Save elsewhere</source>
        <translation>Guardar en otro lugar</translation>
    </message>
    <message>
        <source>Saved elsewhere</source>
        <translation>Guardado en otro lugar</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>The last changes are not saved. %1</source>
        <translation>Los últimos cambios no están guardados. %1</translation>
    </message>
    <message>
        <source>Save elsewhere …</source>
        <translation>Guardar en otro lugar …</translation>
    </message>
    <message>
        <source>Give the changes up</source>
        <translation>Renunciar a los cambios</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>guardando</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>sin guardar</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Sin guardar: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>Take the file as it is now</source>
        <translation>Tomar el archivo como está ahora</translation>
    </message>
    <message>
        <source>Look at former versions</source>
        <translation>Ver las versiones anteriores</translation>
    </message>
    <message>
        <source>Bring the newest whole version back</source>
        <translation>Recuperar la versión íntegra más nueva</translation>
    </message>
    <message>
        <source>&amp;Demonstration …</source>
        <translation>&amp;Demostración …</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Demostración</translation>
    </message>
    <message>
        <source>Made the demonstration</source>
        <translation>Demostración creada</translation>
    </message>
    <message>
        <source>making the demonstration</source>
        <translation>crear la demostración</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Which version of “%1” is to be brought back?</source>
        <translation>¿Qué versión de «%1» se recupera?</translation>
    </message>
    <message>
        <source>Open it for reading</source>
        <translation>Abrir para leer</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Guardar c&amp;omo …</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Encr&amp;yption …</source>
        <translation>Cif&amp;rado …</translation>
    </message>
    <message>
        <source>saved, encrypted</source>
        <translation>guardado, cifrado</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FilterBar</name>
    <message>
        <source>groceries &gt;50 march not:reconciled</source>
        <translation>comida &gt;50 marzo not:reconciled</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Any mark</source>
        <translation>Cualquier marca</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierto</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>Confirmado</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Conciliado</translation>
    </message>
    <message>
        <source>Not reconciled</source>
        <translation>No conciliado</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Any day</source>
        <translation>Cualquier día</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Este año</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>El año pasado</translation>
    </message>
    <message>
        <source>Account or item</source>
        <translation>Cuenta o partida</translation>
    </message>
    <message>
        <source>Any account or item</source>
        <translation>Cualquier cuenta o partida</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::FirstTimeWizard</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Paso %1 de %2: %3</translation>
    </message>
    <message>
        <source>where the budget lies. It is one file on your computer.</source>
        <translation>dónde está el presupuesto. Es un archivo en este equipo.</translation>
    </message>
    <message>
        <source>&amp;Budget file:</source>
        <translation>Archivo del &amp;presupuesto:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Choose the file …</source>
        <translation>Elegir el ar&amp;chivo …</translation>
    </message>
    <message>
        <source>New budget</source>
        <translation>Presupuesto nuevo</translation>
    </message>
    <message>
        <source>the bank account from which you pay most things. More can be added later.</source>
        <translation>la cuenta bancaria de la que se paga casi todo. Después se pueden añadir más.</translation>
    </message>
    <message>
        <source>Name of the &amp;bank:</source>
        <translation>Nombre del &amp;banco:</translation>
    </message>
    <message>
        <source>Name of the &amp;account:</source>
        <translation>Nombre de la &amp;cuenta:</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Cuenta corriente</translation>
    </message>
    <message>
        <source>K&amp;ind of account:</source>
        <translation>C&amp;lase de cuenta:</translation>
    </message>
    <message>
        <source>&amp;What is on it today:</source>
        <translation>Sal&amp;do de hoy:</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>At&amp;rás</translation>
    </message>
    <message>
        <source>what comes in and what must be paid. Only items with an amount are made; all of it can be changed later.</source>
        <translation>lo que entra y lo que hay que pagar. Solo se crean las partidas con importe; todo se puede cambiar después.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>At&amp;rás</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Make the budget with %n item(s)</source>
        <translation>
            <numerusform>&amp;Crear el presupuesto con %n partida</numerusform>
            <numerusform>&amp;Crear el presupuesto con %n partidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Or begin in another way:</source>
        <translation>O empezar de otra manera:</translation>
    </message>
    <message>
        <source>Not n&amp;ow</source>
        <translation>Ahora &amp;no</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>No hay ninguna carpeta «%1».</translation>
    </message>
    <message>
        <source>Nothing can be written to the folder “%1”.</source>
        <translation>No se puede escribir en la carpeta «%1».</translation>
    </message>
    <message>
        <source>Made the budget</source>
        <translation>Presupuesto creado</translation>
    </message>
    <message>
        <source>making the budget</source>
        <translation>crear el presupuesto</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HelpSession</name>
    <message>
        <source>&amp;Manual of this page</source>
        <translation>&amp;Manual de esta página</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>List of &amp;keys</source>
        <translation>Lista de &amp;teclas</translation>
    </message>
    <message>
        <source>List of keys</source>
        <translation>Lista de teclas</translation>
    </message>
    <message>
        <source>&amp;Release notes</source>
        <translation>&amp;Notas de las versiones</translation>
    </message>
    <message>
        <source>&amp;About kiv</source>
        <translation>&amp;Acerca de kiv</translation>
    </message>
    <message>
        <source>There is a newer release: %1.</source>
        <translation>Hay una versión más reciente: %1.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de las versiones</translation>
    </message>
    <message>
        <source>About kiv</source>
        <translation>Acerca de kiv</translation>
    </message>
    <message>
        <source>kiv %1 keeps a household&apos;s money: what there is, what is due, and what is left to spend.

It is free software under the GNU General Public License, version 3 or later: anybody may use, study, share and change it. It comes without any warranty.</source>
        <translation>kiv %1 lleva el dinero de un hogar: lo que hay, lo que vence y lo que queda para gastar.

Es software libre bajo la Licencia Pública General de GNU, versión 3 o posterior: cualquiera puede usarlo, estudiarlo, compartirlo y cambiarlo. No tiene ninguna garantía.</translation>
    </message>
    <message>
        <source>Fetching the release notes …</source>
        <translation>Obteniendo las notas de las versiones …</translation>
    </message>
    <message>
        <source>%1, %2
%3</source>
        <translation>%1, %2
%3</translation>
    </message>
    <message>
        <source>There are no releases.</source>
        <translation>No hay versiones.</translation>
    </message>
    <message>
        <source>The household&apos;s &amp;guide</source>
        <translation>&amp;Guía del hogar</translation>
    </message>
    <message>
        <source>The household&apos;s guide</source>
        <translation>Guía del hogar</translation>
    </message>
    <message>
        <source>Type keys, or what they do</source>
        <translation>Escribir teclas, o lo que hacen</translation>
    </message>
    <message>
        <source>Found keys</source>
        <translation>Teclas encontradas</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Steps and versions</source>
        <translation>Pasos y versiones</translation>
    </message>
    <message>
        <source>What changed since</source>
        <translation>Lo que cambió desde entonces</translation>
    </message>
    <message>
        <source>Go &amp;back to this</source>
        <translation>Volve&amp;r a este estado</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>No se ha elegido ninguna línea.</translation>
    </message>
    <message>
        <source>This is the present state.</source>
        <translation>Este es el estado actual.</translation>
    </message>
    <message>
        <source>Nothing changed since then.</source>
        <translation>Nada cambió desde entonces.</translation>
    </message>
    <message numerus="yes">
        <source>What changed since then. %n more changes are not shown.</source>
        <translation>
            <numerusform>Lo que cambió desde entonces. %n cambio más no se muestra.</numerusform>
            <numerusform>Lo que cambió desde entonces. %n cambios más no se muestran.</numerusform>
        </translation>
    </message>
    <message>
        <source>What changed since then:</source>
        <translation>Lo que cambió desde entonces:</translation>
    </message>
    <message>
        <source>The budget is as it was then. Undo and redo go on from there.</source>
        <translation>El presupuesto está como estaba entonces. Deshacer y rehacer continúan desde ahí.</translation>
    </message>
    <message>
        <source>T&amp;ype its passphrase …</source>
        <translation>Escribir su &amp;frase de contraseña …</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HomePage</name>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Saldos</translation>
    </message>
    <message>
        <source>There are no accounts yet.</source>
        <translation>Todavía no hay cuentas.</translation>
    </message>
    <message numerus="yes">
        <source>Show %n more</source>
        <translation>
            <numerusform>Mostrar %n más</numerusform>
            <numerusform>Mostrar %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs care</source>
        <translation>Nada requiere atención</translation>
    </message>
    <message>
        <source>What needs care</source>
        <translation>Lo que requiere atención</translation>
    </message>
    <message>
        <source>%1 (the budget&apos;s health: %2)</source>
        <translation>%1 (salud del presupuesto: %2)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>Mostrar: %1</translation>
    </message>
    <message>
        <source>Free to spend</source>
        <translation>Libre para gastar</translation>
    </message>
    <message>
        <source>Other balances</source>
        <translation>Otros saldos</translation>
    </message>
    <message>
        <source>Look ahead</source>
        <translation>Mirar adelante</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::HouseholdStep</name>
    <message>
        <source>Items of the household</source>
        <translation>Partidas del hogar</translation>
    </message>
    <message>
        <source>&amp;Amount each time:</source>
        <translation>I&amp;mporte cada vez:</translation>
    </message>
    <message>
        <source>Next da&amp;y:</source>
        <translation>Pró&amp;xima fecha:</translation>
    </message>
    <message>
        <source>Ta&amp;rget:</source>
        <translation>Im&amp;porte de la meta:</translation>
    </message>
    <message>
        <source>Ho&amp;usehold:</source>
        <translation>&amp;Hogar:</translation>
    </message>
    <message>
        <source>&amp;Keep this line</source>
        <translation>Guardar la &amp;línea</translation>
    </message>
    <message>
        <source>The next day must lie in the future.</source>
        <translation>La próxima fecha debe estar en el futuro.</translation>
    </message>
    <message>
        <source>“%1” is wanted.</source>
        <translation>«%1» se desea.</translation>
    </message>
    <message>
        <source>“%1” is not wanted.</source>
        <translation>«%1» no se desea.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportColumnsStep</name>
    <message>
        <source>First rows of the table</source>
        <translation>Primeras filas de la tabla</translation>
    </message>
    <message>
        <source>&amp;Letters as:</source>
        <translation>&amp;Codificación:</translation>
    </message>
    <message>
        <source>&amp;Between cells:</source>
        <translation>Se&amp;parador:</translation>
    </message>
    <message>
        <source>Headings in l&amp;ine:</source>
        <translation>Enca&amp;bezados en la línea:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>comas</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>puntos y comas</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>tabuladores</translation>
    </message>
    <message>
        <source>bars</source>
        <translation>barras</translation>
    </message>
    <message>
        <source>&amp;Day:</source>
        <translation>&amp;Día:</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>elegir</translation>
    </message>
    <message>
        <source>Days a&amp;re:</source>
        <translation>Los días s&amp;on:</translation>
    </message>
    <message>
        <source>&amp;Amount:</source>
        <translation>I&amp;mporte:</translation>
    </message>
    <message>
        <source>&amp;Money in:</source>
        <translation>E&amp;ntrada:</translation>
    </message>
    <message>
        <source>Money o&amp;ut:</source>
        <translation>&amp;Salida:</translation>
    </message>
    <message>
        <source>&amp;Payee:</source>
        <translation>Bene&amp;ficiario:</translation>
    </message>
    <message>
        <source>Te&amp;xt:</source>
        <translation>Te&amp;xto:</translation>
    </message>
    <message>
        <source>Balan&amp;ce:</source>
        <translation>Sa&amp;ldo:</translation>
    </message>
    <message>
        <source>From now on:</source>
        <translation>De ahora en adelante:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Si&amp;guiente</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>At&amp;rás</translation>
    </message>
    <message>
        <source>Read files of this account so</source>
        <translation>Leer así los archivos de esta cuenta</translation>
    </message>
    <message>
        <source>Read files of “%1” so</source>
        <translation>Leer así los archivos de «%1»</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <comment>how a day is read</comment>
        <translation>%1 es %2</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>Day and month can be read in two ways. Choose how.</source>
        <translation>El día y el mes se pueden leer de dos maneras. Elegir una.</translation>
    </message>
    <message>
        <source>Choose the column with the day.</source>
        <translation>Elegir la columna del día.</translation>
    </message>
    <message>
        <source>Choose the column with the amount, or those of money in and money out.</source>
        <translation>Elegir la columna del importe, o las de entrada y salida.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportFileStep</name>
    <message>
        <source>&amp;Bank file:</source>
        <translation>Archivo del &amp;banco:</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>Ti&amp;po de archivo:</translation>
    </message>
    <message>
        <source>&amp;Statement of:</source>
        <translation>E&amp;xtracto de:</translation>
    </message>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Cuenta:</translation>
    </message>
    <message>
        <source>Another number:</source>
        <translation>Otro número:</translation>
    </message>
    <message>
        <source>I&amp;mport it into this account all the same</source>
        <translation>I&amp;mportarlo en esta cuenta de todos modos</translation>
    </message>
    <message>
        <source>A file of your bank, or a journal of another program. Nothing is changed before the last step.</source>
        <translation>Un archivo del banco, o el diario de otro programa. Nada cambia antes del último paso.</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Choose the file …</source>
        <translation>Elegir e&amp;l archivo …</translation>
    </message>
    <message>
        <source>Table of a bank (CSV)</source>
        <translation>Tabla de un banco (CSV)</translation>
    </message>
    <message>
        <source>Statement as OFX or QFX</source>
        <translation>Extracto en OFX o QFX</translation>
    </message>
    <message>
        <source>Statement as QIF</source>
        <translation>Extracto en QIF</translation>
    </message>
    <message>
        <source>Statement as MT940</source>
        <translation>Extracto en MT940</translation>
    </message>
    <message>
        <source>Statement as CAMT (XML)</source>
        <translation>Extracto en CAMT (XML)</translation>
    </message>
    <message>
        <source>Journal of ledger or hledger</source>
        <translation>Diario de ledger o hledger</translation>
    </message>
    <message>
        <source>as the file says</source>
        <translation>lo que diga el archivo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The file does not show what it is. Choose it.</source>
        <translation>El archivo no muestra qué es. Elegirlo.</translation>
    </message>
    <message>
        <source>Choose the file that is to be imported.</source>
        <translation>Elegir el archivo que se quiere importar.</translation>
    </message>
    <message>
        <source>The file has statements of several accounts. Choose one; the others can be imported afterwards.</source>
        <translation>El archivo tiene extractos de varias cuentas. Elegir uno; los otros se pueden importar después.</translation>
    </message>
    <message>
        <source>There is no account at a bank yet. It is added on the page “Banks”.</source>
        <translation>Aún no hay ninguna cuenta en un banco. Se añade en la página «Bancos».</translation>
    </message>
    <message>
        <source>Choose the account whose statement it is.</source>
        <translation>Elegir la cuenta cuyo extracto es.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportJournalStep</name>
    <message>
        <source>Transactions of the journal</source>
        <translation>Asientos del diario</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>At&amp;rás</translation>
    </message>
    <message numerus="yes">
        <source>Im&amp;port %n transactions</source>
        <translation>
            <numerusform>Im&amp;portar %n asiento</numerusform>
            <numerusform>Im&amp;portar %n asientos</numerusform>
        </translation>
    </message>
    <message>
        <source>Com&amp;plete</source>
        <translation>&amp;Finalizar</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportRowsStep</name>
    <message>
        <source>Entries of the file</source>
        <translation>Entradas del archivo</translation>
    </message>
    <message>
        <source>&amp;What it is:</source>
        <translation>&amp;Qué es:</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>&amp;Partida o cuenta:</translation>
    </message>
    <message>
        <source>From now on:</source>
        <translation>De ahora en adelante:</translation>
    </message>
    <message>
        <source>Re&amp;member this for the payee</source>
        <translation>Rec&amp;ordarlo para el beneficiario</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>Mo&amp;strar:</translation>
    </message>
    <message>
        <source>all entries</source>
        <translation>todas las entradas</translation>
    </message>
    <message>
        <source>new ones</source>
        <translation>las nuevas</translation>
    </message>
    <message>
        <source>those that are there already</source>
        <translation>las que ya están</translation>
    </message>
    <message>
        <source>those to look at</source>
        <translation>las que hay que mirar</translation>
    </message>
    <message>
        <source>&amp;Keep this line</source>
        <translation>Guardar la &amp;línea</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>At&amp;rás</translation>
    </message>
    <message numerus="yes">
        <source>Im&amp;port %n entries</source>
        <translation>
            <numerusform>I&amp;mportar %n entrada</numerusform>
            <numerusform>I&amp;mportar %n entradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Mark %n entries as seen at the bank</source>
        <translation>
            <numerusform>Marcar %n entrada como vista en el banco</numerusform>
            <numerusform>Marcar %n entradas como vistas en el banco</numerusform>
        </translation>
    </message>
    <message>
        <source>Com&amp;plete</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message numerus="yes">
        <source>%n entries still need an item or account.</source>
        <translation>
            <numerusform>%n entrada necesita aún una partida o cuenta.</numerusform>
            <numerusform>%n entradas necesitan aún una partida o cuenta.</numerusform>
        </translation>
    </message>
    <message>
        <source>New: nothing that is there is the same</source>
        <translation>Nueva: nada de lo que ya está es lo mismo</translation>
    </message>
    <message>
        <source>Only a new entry has an item or account to choose.</source>
        <translation>Solo una entrada nueva tiene una partida o cuenta que elegir.</translation>
    </message>
    <message>
        <source>Choose the item or account of this entry.</source>
        <translation>Elegir la partida o cuenta de esta entrada.</translation>
    </message>
    <message>
        <source>“%1” is closed, or is the account of the file itself.</source>
        <translation>«%1» está cerrada, o es la cuenta del propio archivo.</translation>
    </message>
    <message>
        <source>Taken: %1</source>
        <translation>Tomada: %1</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Fuera: %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ImportWizard</name>
    <message>
        <source>Import</source>
        <translation>Importación</translation>
    </message>
    <message>
        <source>The account of the file is no longer there.</source>
        <translation>La cuenta del archivo ya no está.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
    <message>
        <source>Imported into “%1”: %2.</source>
        <translation>Importado en «%1»: %2.</translation>
    </message>
    <message numerus="yes">
        <source>All %n entries are there already.</source>
        <translation>
            <numerusform>La %n entrada ya está.</numerusform>
            <numerusform>Las %n entradas ya están.</numerusform>
        </translation>
    </message>
    <message>
        <source>importing into “%1”</source>
        <translation>importar en «%1»</translation>
    </message>
    <message>
        <source>Imported the journal: %1.</source>
        <translation>Diario importado: %1.</translation>
    </message>
    <message>
        <source>importing the journal</source>
        <translation>importar el diario</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemExplained</name>
    <message>
        <source>End &amp;it</source>
        <translation>&amp;Terminar</translation>
    </message>
    <message>
        <source>How it comes about</source>
        <translation>Cómo se llega a ello</translation>
    </message>
    <message>
        <source>S&amp;pent on (may be empty):</source>
        <translation>&amp;Gastado en (puede quedar vacío):</translation>
    </message>
    <message>
        <source>On the da&amp;y:</source>
        <translation>En e&amp;l día:</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemForm</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Amount each time:</source>
        <translation>I&amp;mporte cada vez:</translation>
    </message>
    <message>
        <source>Ho&amp;w often:</source>
        <translation>&amp;Frecuencia:</translation>
    </message>
    <message>
        <source>Ne&amp;xt on:</source>
        <translation>&amp;Próxima vez el:</translation>
    </message>
    <message>
        <source>Am&amp;ount borrowed:</source>
        <translation>Importe presta&amp;do:</translation>
    </message>
    <message>
        <source>Owe&amp;d since:</source>
        <translation>Se de&amp;be desde:</translation>
    </message>
    <message>
        <source>&amp;Bank:</source>
        <translation>&amp;Banco:</translation>
    </message>
    <message>
        <source>&amp;Kind of debt:</source>
        <translation>Cla&amp;se de deuda:</translation>
    </message>
    <message>
        <source>Tags, with co&amp;mmas:</source>
        <translation>Etiquetas, con c&amp;omas:</translation>
    </message>
    <message>
        <source>T&amp;o be reached:</source>
        <translation>Importe de &amp;la meta:</translation>
    </message>
    <message>
        <source>Owed to the &amp;bank:</source>
        <translation>Se debe al ban&amp;co:</translation>
    </message>
    <message>
        <source>Kept in the &amp;bank account:</source>
        <translation>En la &amp;cuenta bancaria:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>sin cuenta</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The debt is at no bank.</source>
        <translation>La deuda no está en ningún banco.</translation>
    </message>
    <message>
        <source>The page of banks corrects the kind of an account.</source>
        <translation>La clase de una cuenta se corrige en la página de bancos.</translation>
    </message>
    <message>
        <source>Added the %1 “%2”.</source>
        <translation>Se añadió «%2» (%1).</translation>
    </message>
    <message>
        <source>adding the %1 “%2”</source>
        <translation>añadir «%2» (%1)</translation>
    </message>
    <message>
        <source>Changed the %1 “%2”.</source>
        <translation>Se cambió «%2» (%1).</translation>
    </message>
    <message>
        <source>changing the %1 “%2”</source>
        <translation>cambiar «%2» (%1)</translation>
    </message>
    <message>
        <source>The %1 “%2” is now called “%3”.</source>
        <translation>«%2» (%1) se llama ahora «%3».</translation>
    </message>
    <message>
        <source>renaming “%1” to “%2”</source>
        <translation>cambiar el nombre de «%1» a «%2»</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemSchedule</name>
    <message>
        <source>Payments to come</source>
        <translation>Pagos por venir</translation>
    </message>
    <message>
        <source>If so much more were paid a month:</source>
        <translation>Si se pagara tanto más al mes:</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ItemsPage</name>
    <message>
        <source>Items</source>
        <translation>Partidas</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nueva</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Kinds of items</source>
        <translation>Clases de partidas</translation>
    </message>
    <message>
        <source>Removed the %1 “%2”.</source>
        <translation>Se eliminó «%2» (%1).</translation>
    </message>
    <message>
        <source>removing the %1 “%2”</source>
        <translation>eliminar «%2» (%1)</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ListPage</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>No line is chosen.</source>
        <translation>No se ha elegido ninguna línea.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::MainWindow</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Find a command …</source>
        <translation>&amp;Buscar una orden …</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>F&amp;orward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>Next &amp;part of the window</source>
        <translation>Siguiente &amp;parte de la ventana</translation>
    </message>
    <message>
        <source>Colours of the &amp;system</source>
        <translation>Colores del &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>Text size %1 %</source>
        <translation>Tamaño del texto %1 %</translation>
    </message>
    <message>
        <source>L&amp;arger text</source>
        <translation>Texto más &amp;grande</translation>
    </message>
    <message>
        <source>S&amp;maller text</source>
        <translation>Texto más &amp;pequeño</translation>
    </message>
    <message>
        <source>&amp;Usual text size</source>
        <translation>Tamaño de texto &amp;usual</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Begin s&amp;tep by step …</source>
        <translation>Empezar &amp;paso a paso …</translation>
    </message>
    <message>
        <source>&amp;Import a bank file …</source>
        <translation>&amp;Importar un archivo del banco …</translation>
    </message>
    <message>
        <source>&amp;Explain this number</source>
        <translation>E&amp;xplicar esta cifra</translation>
    </message>
    <message>
        <source>No number is chosen that can be explained.</source>
        <translation>No hay elegida ninguna cifra que se pueda explicar.</translation>
    </message>
    <message>
        <source>&amp;Black on white</source>
        <translation>&amp;Negro sobre blanco</translation>
    </message>
    <message>
        <source>&amp;White on black</source>
        <translation>&amp;Blanco sobre negro</translation>
    </message>
    <message>
        <source>Type what you want to do or to see</source>
        <translation>Escribir lo que se quiere hacer o ver</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Found commands</source>
        <translation>Órdenes encontradas</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::OutlookPage</name>
    <message>
        <source>Outlook</source>
        <translation>Previsión</translation>
    </message>
    <message>
        <source>&amp;Days ahead:</source>
        <translation>&amp;Días por delante:</translation>
    </message>
    <message>
        <source>&amp;Not below:</source>
        <translation>&amp;No bajar de:</translation>
    </message>
    <message>
        <source>&amp;Leave out:</source>
        <translation>&amp;Omitir:</translation>
    </message>
    <message>
        <source>What if I &amp;pay:</source>
        <translation>Si &amp;pago:</translation>
    </message>
    <message>
        <source>&amp;On:</source>
        <translation>En la &amp;fecha:</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>What is paid and received</source>
        <translation>Lo que se paga y se recibe</translation>
    </message>
    <message>
        <source>What if? Nothing of this is kept. An amount with a minus comes in.</source>
        <translation>¿Qué pasaría? Nada de esto se guarda. Un importe con un menos se recibe.</translation>
    </message>
    <message>
        <source>Loo&amp;k ahead</source>
        <translation>&amp;Mirar adelante</translation>
    </message>
    <message>
        <source>Start &amp;again</source>
        <translation>Empe&amp;zar de nuevo</translation>
    </message>
    <message>
        <source>Only items of the budget can be left out.</source>
        <translation>Solo se pueden omitir partidas del presupuesto.</translation>
    </message>
    <message>
        <source>And &amp;more</source>
        <translation>Y má&amp;s</translation>
    </message>
    <message>
        <source>Counted already: %1 on %2.</source>
        <translation>Ya contado: %1 el %2.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::Page</name>
    <message>
        <source>The page “%1” cannot be shown: %2</source>
        <translation>No se puede mostrar la página «%1»: %2</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::PastSurveys</name>
    <message>
        <source>Past reconciliations</source>
        <translation>Conciliaciones anteriores</translation>
    </message>
    <message>
        <source>No account was reconciled yet.</source>
        <translation>Todavía no se ha conciliado ninguna cuenta.</translation>
    </message>
    <message>
        <source>Its transactions are as they were then.</source>
        <translation>Sus asientos están como entonces.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RatesPage</name>
    <message>
        <source>Exchange rates</source>
        <translation>Tipos de cambio</translation>
    </message>
    <message>
        <source>There are no exchange rates. Fetch them, or type one.</source>
        <translation>No hay tipos de cambio. Se pueden obtener o escribir.</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>&amp;Rate:</source>
        <translation>Tipo de &amp;cambio:</translation>
    </message>
    <message>
        <source>Rates are the same for all budgets. They cannot be undone.</source>
        <translation>Los tipos valen para todos los presupuestos. No se pueden deshacer.</translation>
    </message>
    <message>
        <source>&amp;Keep this rate</source>
        <translation>&amp;Guardar este tipo</translation>
    </message>
    <message>
        <source>Fetch &amp;all rates now</source>
        <translation>&amp;Obtener todos ahora</translation>
    </message>
    <message>
        <source>&amp;Rate, for 1 %1:</source>
        <translation>Tipo de &amp;cambio de 1 %1:</translation>
    </message>
    <message>
        <source>1 %1 = %2 %3</source>
        <translation>1 %1 = %2 %3</translation>
    </message>
    <message>
        <source>Fetching exchange rates …</source>
        <translation>Obteniendo los tipos de cambio …</translation>
    </message>
    <message>
        <source>The exchange rates are fetched.</source>
        <translation>Los tipos de cambio se han obtenido.</translation>
    </message>
    <message>
        <source>The exchange rates could not be fetched; try again later, or type them. %1</source>
        <translation>Los tipos de cambio no se pudieron obtener; intentarlo más tarde o escribirlos. %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterFilter</name>
    <message numerus="yes">
        <source>%n transaction(s)</source>
        <translation>
            <numerusform>%n asiento</numerusform>
            <numerusform>%n asientos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, together %2</source>
        <translation>%1, en total %2</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RegisterModel</name>
    <message>
        <source>cleared</source>
        <translation>confirmado</translation>
    </message>
    <message>
        <source>reconciled</source>
        <translation>conciliado</translation>
    </message>
    <message>
        <source>open</source>
        <translation>abierto</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Reembolso</translation>
    </message>
    <message>
        <source>Refund: %1</source>
        <translation>Reembolso: %1</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>minus %1</source>
        <translation>menos %1</translation>
    </message>
    <message>
        <source>no payee or reason</source>
        <translation>sin beneficiario ni motivo</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>no balance</source>
        <translation>sin saldo</translation>
    </message>
    <message>
        <source>balance %1</source>
        <translation>saldo %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Payee and reason</source>
        <translation>Beneficiario y motivo</translation>
    </message>
    <message>
        <source>Account or item</source>
        <translation>Cuenta o partida</translation>
    </message>
    <message>
        <source>From and to</source>
        <translation>De y a</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Debe</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Haber</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
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
        <translation>Registro</translation>
    </message>
    <message>
        <source>A&amp;ccount</source>
        <translation>&amp;Cuenta</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Asientos</translation>
    </message>
    <message>
        <source>&amp;New transaction</source>
        <translation>&amp;Nuevo asiento</translation>
    </message>
    <message>
        <source>New, e&amp;arned</source>
        <translation>Nuevo, &amp;ingresado</translation>
    </message>
    <message>
        <source>New &amp;transfer</source>
        <translation>Nuevo &amp;traspaso</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;Enter again</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>Re&amp;fund</source>
        <translation>Reem&amp;bolsar</translation>
    </message>
    <message>
        <source>&amp;Item or category</source>
        <translation>&amp;Partida o categoría</translation>
    </message>
    <message>
        <source>&amp;Find transactions</source>
        <translation>&amp;Buscar asientos</translation>
    </message>
    <message>
        <source>&amp;Entry row</source>
        <translation>Línea de &amp;entrada</translation>
    </message>
    <message>
        <source>Mark as c&amp;leared</source>
        <translation>Marcar como &amp;confirmado</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot cleared</source>
        <translation>Marcar como n&amp;o confirmado</translation>
    </message>
    <message>
        <source>Mark as reconcile&amp;d</source>
        <translation>Marcar como conci&amp;liado</translation>
    </message>
    <message>
        <source>&amp;Mark as not reconciled</source>
        <translation>Marcar como no concili&amp;ado</translation>
    </message>
    <message>
        <source>The register is not shown.</source>
        <translation>El registro no se muestra.</translation>
    </message>
    <message>
        <source>No transaction is selected.</source>
        <translation>No hay ningún asiento seleccionado.</translation>
    </message>
    <message>
        <source>All accounts</source>
        <translation>Todas las cuentas</translation>
    </message>
    <message>
        <source>Reconcile this acco&amp;unt</source>
        <translation>Conciliar esta c&amp;uenta</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>Import a bank file</source>
        <translation>Importar un archivo del banco</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::ReportsPage</name>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>&amp;Qué:</translation>
    </message>
    <message>
        <source>Spa&amp;ns:</source>
        <translation>&amp;Periodos:</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>On&amp;ly:</source>
        <translation>&amp;Solo:</translation>
    </message>
    <message>
        <source>&amp;Convert into:</source>
        <translation>&amp;Convertir a:</translation>
    </message>
    <message>
        <source>Lines of the report</source>
        <translation>Líneas del informe</translation>
    </message>
    <message>
        <source>Values of the line</source>
        <translation>Valores de la línea</translation>
    </message>
    <message>
        <source>Entries behind the value</source>
        <translation>Asientos detrás del valor</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>Two weeks</source>
        <translation>Dos semanas</translation>
    </message>
    <message>
        <source>Payday to payday</source>
        <translation>De día de pago a día de pago</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Quarters</source>
        <translation>Trimestres</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Años</translation>
    </message>
    <message>
        <source>twelve spans</source>
        <translation>doce periodos</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>all entries; words as in a search</source>
        <translation>todos los asientos; palabras como en una búsqueda</translation>
    </message>
    <message>
        <source>A&amp;dd up</source>
        <translation>Su&amp;mar</translation>
    </message>
    <message>
        <source>Start &amp;again</source>
        <translation>Empe&amp;zar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Guardar como …</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>Imp&amp;rimir …</translation>
    </message>
    <message>
        <source>Save a &amp;report as …</source>
        <translation>Guardar un in&amp;forme como …</translation>
    </message>
    <message>
        <source>&amp;Print a report …</source>
        <translation>Impri&amp;mir un informe …</translation>
    </message>
    <message>
        <source>No budget is open.</source>
        <translation>No hay ningún presupuesto abierto.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a name and a span of days</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1: no entries</source>
        <translation>%1: sin asientos</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entries, together %2</source>
        <translation>
            <numerusform>%1: %n asiento, en total %2</numerusform>
            <numerusform>%1: %n asientos, en total %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The first %1 are shown.</source>
        <translation>Se muestran los primeros %1.</translation>
    </message>
    <message>
        <source>All as one</source>
        <translation>Todo como uno</translation>
    </message>
    <message>
        <source>twelve months</source>
        <translation>doce meses</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n entries, which change it by %2</source>
        <translation>
            <numerusform>%1: %n asiento, que lo cambia en %2</numerusform>
            <numerusform>%1: %n asientos, que lo cambian en %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kiv::desktop::RulesPage</name>
    <message>
        <source>Import rules</source>
        <translation>Reglas de importación</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Files of</source>
        <translation>Archivos de</translation>
    </message>
    <message>
        <source>Item or account</source>
        <translation>Partida o cuenta</translation>
    </message>
    <message>
        <source>&amp;New rule</source>
        <translation>&amp;Nueva regla</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Tr&amp;y the rules</source>
        <translation>&amp;Probar las reglas</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Entries of banks’ files whose payee or text fits are for this item or account. The first rule that fits counts.</source>
        <translation>Las entradas de los archivos del banco cuyo beneficiario o texto encaja son para esta partida o cuenta. Vale la primera regla que encaja.</translation>
    </message>
    <message>
        <source>&amp;Payee or text contains:</source>
        <translation>&amp;Beneficiario o texto contiene:</translation>
    </message>
    <message>
        <source>Kind of text:</source>
        <translation>Tipo de texto:</translation>
    </message>
    <message>
        <source>It is a regula&amp;r expression</source>
        <translation>Es una e&amp;xpresión regular</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>&amp;Partida o cuenta:</translation>
    </message>
    <message>
        <source>&amp;Amount at least:</source>
        <translation>Importe mí&amp;nimo:</translation>
    </message>
    <message>
        <source>Amount at &amp;most:</source>
        <translation>I&amp;mporte máximo:</translation>
    </message>
    <message>
        <source>&amp;Only in files of:</source>
        <translation>&amp;Solo en archivos de:</translation>
    </message>
    <message>
        <source>&amp;What the bank says:</source>
        <translation>Lo &amp;que dice el banco:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>I&amp;mporte:</translation>
    </message>
    <message>
        <source>In a file &amp;of:</source>
        <translation>En un archivo &amp;de:</translation>
    </message>
    <message>
        <source>Tr&amp;y</source>
        <translation>&amp;Probar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>There are no rules. Without them, an import learns from former entries of the same payee.</source>
        <translation>No hay reglas. Sin ellas, una importación aprende de las entradas anteriores del mismo beneficiario.</translation>
    </message>
    <message>
        <source>There are no rules.</source>
        <translation>No hay reglas.</translation>
    </message>
    <message>
        <source>It is the first rule.</source>
        <translation>Es la primera regla.</translation>
    </message>
    <message>
        <source>Choose the item or account of such entries.</source>
        <translation>Elegir la partida o cuenta de esas entradas.</translation>
    </message>
    <message>
        <source>Changed the rule “%1”.</source>
        <translation>Modificada la regla «%1».</translation>
    </message>
    <message>
        <source>changing the rule “%1”</source>
        <translation>modificar la regla «%1»</translation>
    </message>
    <message>
        <source>Added the rule “%1”.</source>
        <translation>Añadida la regla «%1».</translation>
    </message>
    <message>
        <source>adding the rule “%1”</source>
        <translation>añadir la regla «%1»</translation>
    </message>
    <message>
        <source>Removed the rule “%1”.</source>
        <translation>Eliminada la regla «%1».</translation>
    </message>
    <message>
        <source>removing the rule “%1”</source>
        <translation>eliminar la regla «%1»</translation>
    </message>
    <message>
        <source>Moved the rule “%1” up.</source>
        <translation>Subida la regla «%1».</translation>
    </message>
    <message>
        <source>moving the rule “%1”</source>
        <translation>mover la regla «%1»</translation>
    </message>
    <message>
        <source>Which rule fits what a bank says of an entry?</source>
        <translation>¿Qué regla encaja con lo que un banco dice de una entrada?</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Settings are the same for all budgets. They cannot be undone.</source>
        <translation>Los ajustes valen para todos los presupuestos. No se pueden deshacer.</translation>
    </message>
    <message>
        <source>&amp;Preferred currency:</source>
        <translation>Moneda &amp;preferida:</translation>
    </message>
    <message>
        <source>&amp;Usable currencies:</source>
        <translation>&amp;Monedas utilizables:</translation>
    </message>
    <message>
        <source>&amp;Display of currencies:</source>
        <translation>P&amp;resentación de las monedas:</translation>
    </message>
    <message>
        <source>Due items shown &amp;ahead, in days:</source>
        <translation>Vencimientos con antela&amp;ción, en días:</translation>
    </message>
    <message>
        <source>Survey wi&amp;ndow:</source>
        <translation>Mar&amp;gen de la conciliación:</translation>
    </message>
    <message>
        <source>&amp;Work hours a week:</source>
        <translation>&amp;Horas de trabajo por semana:</translation>
    </message>
    <message>
        <source>Work da&amp;ys a week:</source>
        <translation>&amp;Días de trabajo por semana:</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>C&amp;olores:</translation>
    </message>
    <message>
        <source>as the system</source>
        <translation>como el sistema</translation>
    </message>
    <message>
        <source>light</source>
        <translation>claro</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>oscuro</translation>
    </message>
    <message>
        <source>Te&amp;xt size:</source>
        <translation>Tamaño del te&amp;xto:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>At the start:</source>
        <translation>Al empezar:</translation>
    </message>
    <message>
        <source>&amp;Open the last budget</source>
        <translation>Abrir e&amp;l último presupuesto</translation>
    </message>
    <message>
        <source>There are no tags. An item&apos;s tags are set with the item.</source>
        <translation>No hay etiquetas. Las de una partida se indican con la partida.</translation>
    </message>
    <message>
        <source>&amp;Remove this tag</source>
        <translation>Eliminar e&amp;sta etiqueta</translation>
    </message>
    <message>
        <source>The settings are kept.</source>
        <translation>Los ajustes se han guardado.</translation>
    </message>
    <message>
        <source>No tag is chosen.</source>
        <translation>No se ha elegido ninguna etiqueta.</translation>
    </message>
    <message>
        <source>Removed the tag “%1”.</source>
        <translation>Eliminada la etiqueta «%1».</translation>
    </message>
    <message>
        <source>removing the tag “%1”</source>
        <translation>eliminar la etiqueta «%1»</translation>
    </message>
    <message>
        <source>black on white</source>
        <translation>negro sobre blanco</translation>
    </message>
    <message>
        <source>white on black</source>
        <translation>blanco sobre negro</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SplitLines</name>
    <message>
        <source>Take the last line &amp;back</source>
        <translation>De&amp;shacer la última línea</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Together with this line: %1</source>
        <translation>Junto con esta línea: %1</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyDrops</name>
    <message>
        <source>Set nothing aside there any more</source>
        <translation>No apartar allí nada más</translation>
    </message>
    <message>
        <source>setting nothing aside at “%1”</source>
        <translation>no apartar nada en «%1»</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyFoot</name>
    <message>
        <source>C&amp;omplete</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>P&amp;ut off</source>
        <translation>Apla&amp;zar</translation>
    </message>
    <message>
        <source>Begi&amp;n anew</source>
        <translation>Empezar de &amp;nuevo</translation>
    </message>
    <message>
        <source>The difference of %1 ma&amp;y stay; it is shown until it is gone</source>
        <translation>La diferencia de %1 puede quedar; se muestra &amp;hasta que desaparezca</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyPage</name>
    <message>
        <source>Survey</source>
        <translation>Conciliación</translation>
    </message>
    <message>
        <source>Parts of the survey</source>
        <translation>Partes de la conciliación</translation>
    </message>
    <message>
        <source>There is no account at a bank to reconcile.</source>
        <translation>No hay ninguna cuenta bancaria que conciliar.</translation>
    </message>
    <message>
        <source>&amp;1 Statement</source>
        <translation>&amp;1 Extracto</translation>
    </message>
    <message>
        <source>&amp;2 Set aside</source>
        <translation>&amp;2 Apartado</translation>
    </message>
    <message>
        <source>&amp;3 Past reconciliations</source>
        <translation>&amp;3 Conciliaciones anteriores</translation>
    </message>
    <message>
        <source>Forgot the survey of “%1” that was put off.</source>
        <translation>Se ha olvidado la conciliación aplazada de «%1».</translation>
    </message>
    <message>
        <source>forgetting the survey of “%1”</source>
        <translation>olvidar la conciliación aplazada de «%1»</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyShares</name>
    <message>
        <source>What is set aside</source>
        <translation>Lo que se aparta</translation>
    </message>
    <message>
        <source>As p&amp;roposed, where nothing is typed</source>
        <translation>Se&amp;gún la propuesta, donde no se ha escrito nada</translation>
    </message>
    <message>
        <source>&amp;Set aside for it:</source>
        <translation>Importe &amp;que se aparta:</translation>
    </message>
    <message>
        <source>&amp;Keep this amount</source>
        <translation>&amp;Mantener este importe</translation>
    </message>
    <message>
        <source>Nothing is set aside of what is owed.</source>
        <translation>De lo que se debe no se aparta nada.</translation>
    </message>
    <message>
        <source>There are no items to set money aside for.</source>
        <translation>No hay partidas para las que apartar dinero.</translation>
    </message>
    <message>
        <source>No item is chosen.</source>
        <translation>No se ha elegido ninguna partida.</translation>
    </message>
    <message>
        <source>For a goal, what was moved to its account is set aside.</source>
        <translation>Para una meta está apartado lo que se ha traspasado a su cuenta.</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyStatement</name>
    <message>
        <source>&amp;Account:</source>
        <translation>&amp;Cuenta:</translation>
    </message>
    <message>
        <source>&amp;Day:</source>
        <translation>&amp;Día:</translation>
    </message>
    <message>
        <source>&amp;Balance:</source>
        <translation>&amp;Saldo:</translation>
    </message>
    <message>
        <source>Import &amp;what is missing</source>
        <translation>Importar lo &amp;que falta</translation>
    </message>
    <message>
        <source>What the bank&apos;s statement says:</source>
        <translation>Lo que dice el extracto del banco:</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>Com&amp;parar</translation>
    </message>
    <message>
        <source>Lay a ban&amp;k&apos;s file beside …</source>
        <translation>Archivo del &amp;banco al lado …</translation>
    </message>
    <message>
        <source>&amp;Item or account:</source>
        <translation>Pa&amp;rtida o cuenta:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>I&amp;mporte:</translation>
    </message>
    <message>
        <source>&amp;Put on the list</source>
        <translation>Añadir a &amp;la lista</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What you owe stands without a minus; money that the bank owes you has one.</source>
        <translation>Lo que se debe va sin menos; un saldo a favor lo lleva.</translation>
    </message>
    <message>
        <source>Money in the account stands without a minus; an overdrawn account has one.</source>
        <translation>El dinero de la cuenta va sin menos; una cuenta en descubierto lo lleva.</translation>
    </message>
    <message>
        <source>On the statement, but not booked yet (interest, for example):</source>
        <translation>En el extracto, pero sin registrar (por ejemplo, intereses):</translation>
    </message>
    <message>
        <source>On the statement, but not booked yet:</source>
        <translation>En el extracto, pero sin registrar:</translation>
    </message>
    <message>
        <source>For which item or account?</source>
        <translation>¿Para qué partida o cuenta?</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::SurveyTicks</name>
    <message>
        <source>Transactions to tick</source>
        <translation>Asientos para marcar</translation>
    </message>
    <message>
        <source>Tick a&amp;ll</source>
        <translation>Marcar t&amp;odo</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::TableModel</name>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
</context>
<context>
    <name>kiv::desktop::WelcomePage</name>
    <message>
        <source>Opened before:</source>
        <translation>Abiertos antes:</translation>
    </message>
    <message>
        <source>kiv keeps your household&apos;s money: what you have, what is due, and what is left to spend. A budget is one file on your computer; nothing of it is sent anywhere.</source>
        <translation>kiv lleva el dinero de un hogar: lo que hay, lo que vence y lo que queda para gastar. Un presupuesto es un archivo en este equipo; nada de él se envía a ninguna parte.</translation>
    </message>
</context>
</TS>
