SPDX-License-Identifier: GPL-3.0-or-later

The command in the languages and locales of its users, none of which need to be installed.

  $ . "$TESTDIR/household.sh"
  $ as() { locale=$1; shift; env -u LC_ALL -u LANG -u LANGUAGE $locale kiv "$@"; }
  $ de() { as LC_ALL=de_DE.UTF-8 "$@"; }
  $ es() { as LC_ALL=es_ES.UTF-8 "$@"; }
  $ {
  >   kiv configure set --preferred EUR --usable EUR --display symbol
  >   kiv new
  >   kiv bank add First
  >   kiv bank-account add Checking --bank First --balance 1234.56 --date 2026-01-31
  >   kiv bill add Rent 850.00 --next 2026-03-01
  >   kiv wage add Salary 1500.10 --next 2026-03-02
  >   kiv rates set EUR USD=1.25
  > } >/dev/null
  $ printf 'date,amount,text\n2026-02-01,0,x\n' >zero.csv
  $ printf 'SQLite format 3' >short.budget

Amounts, days and words are the user's:

  $ de accounts | head -2
  Nummer  Konto                                      Saldo
       1  Assets:Checking                       1.234,56 €
  $ es ledger Checking
  1 Checking
  Número  Fecha       Descripción  Contrapartida                     Cambio      Saldo  Estado
       1  31/01/2026               Opening Balances EUR [Equity]  1234,56 €  1234,56 €  pendiente
  $ de find --date 2026-03-01 'januar >1.234,55' | tail -1
  1 von 1, zusammen 1.234,56 €.
  $ de bill list
  Name    Betrag  Turnus     Nächster Termin  Schlagwörter
  Rent  850,00 €  monatlich  01.03.2026
  $ de check | grep -o '1.234,56.EUR'
  1.234,56 EUR
  $ de check --json | jq -r '.promises[0].text' | grep -o Budgetdatei
  Budgetdatei
  $ de rates show | grep -o '1,25'
  1,25
  $ de history diff
  Was     Name         Änderung     Einzelheiten
  Posten  Lohn Salary  hinzugefügt  1.500,10 EUR, monatlich, 02.03.2026
  Konto   4 Salary     hinzugefügt  0,00 EUR
  $ de due --date 2026-02-27
  Fällig      Posten  Art           Betrag  Wann
  01.03.2026  Rent    Rechnung    850,00 €  in 2 Tagen
  02.03.2026  Salary  Lohn      1.500,10 €  in 3 Tagen
  Zu zahlen bis 13.03.2026: 850,00 €.
  Zu erwarten bis 13.03.2026: 1.500,10 €.
  $ kiv due --date 2026-03-02 | sed -n 2,3p
  2026-03-01  Rent    bill    €850.00  1 day late
  2026-03-02  Salary  wage  €1,500.10  today

So are refusals and help:

  $ begin_of() { "$@" 2>&1 | cut -d';' -f1; }
  $ de bil add 2>&1 | grep -o 'war .*'
  war „bill“ gemeint?
  $ de accounts --file short
  kiv: Die Datei „short.budget“ ist beschädigt und wurde nicht geladen. Ursache: Ihr Kopf ist beschädigt.
  [1]

A language that is not spoken, a second choice, and a locale for numbers or days alone:

  $ as LC_ALL=fr_FR.UTF-8 ledger Checking
  1 Checking
  Number  Date        Description  Other account                      Change     Balance  Status
       1  31/01/2026               Opening Balances EUR [Equity]  1 234,56 €  1 234,56 €  none
  $ for locale in 'LANG=fr_FR.UTF-8 LANGUAGE=fr:es' 'LANG=en_GB.UTF-8 LANGUAGE=en_GB:de' \
  >     LANG=de_AT.UTF-8 'LANG=C.UTF-8 LANGUAGE=de' LC_ALL=tlh_KX.UTF-8 \
  >     'LC_ALL=../../etc LANGUAGE=../..'; do
  >   begin_of as "$locale" ledger Nothing
  > done
  kiv: No hay ninguna cuenta «Nothing»
  kiv: There is no account 'Nothing'
  kiv: Es gibt kein Konto „Nothing“
  kiv: There is no account 'Nothing'
  kiv: There is no account 'Nothing'
  kiv: There is no account 'Nothing'
  $ for locale in 'LANG=C.UTF-8 LANGUAGE=de' 'LANG=en_US.UTF-8 LANGUAGE=de' \
  >     'LANG=de_DE.UTF-8 LC_NUMERIC=en_US.UTF-8'; do
  >   as "$locale" accounts | grep Checking
  > done | uniq -c
        3      1  Assets:Checking                       €1,234.56
  $ as 'LANG=de_DE.UTF-8 LC_TIME=C' ledger Checking | grep 2026
       1  2026-01-31                Opening Balances EUR [Equity]  1.234,56 €  1.234,56 €  offen

What other programs read is the same in every language, but for sentences:

  $ for line in accounts 'ledger Checking' 'bill list' banks info 'due --date 2026-03-01' \
  >     'templates list' dashboard 'survey show First Checking --date 2026-03-01' \
  >     'configure show' 'rates show' check history 'history diff' \
  >     'import zero.csv --into Checking --against 3 --dry-run'; do
  >   for locale in C de_DE es_MX; do
  >     as LC_ALL=$locale.UTF-8 $line --json | jq -c 'del(.. | .text?, .details?, .notices?, .reason?)'
  >   done | uniq -c | sed 's/^ *\([0-9]*\) .*/\1/'
  > done | uniq -c
       15 3
  $ for format in journal csv json; do
  >   for locale in C de_DE es_MX; do
  >     as LC_ALL=$locale.UTF-8 export --format $format | sha256sum
  >   done | uniq | wc -l
  > done | uniq -c
        3 1

Numbers and days are taken as the user writes them:

  $ added() { locale=$1; shift; as LC_ALL=$locale.UTF-8 bill add Test "$@" --dry-run --json; }
  $ taken() { added "$@" | jq -c '[.amount.amount, .next]'; }
  $ taken de_DE 1.234,50 --next 05.03.2026
  ["1234.50","2026-03-05"]
  $ taken de_DE '12,5 EUR' --next 2026-03-05
  ["12.50","2026-03-05"]
  $ taken de_DE 1234.50 --next 2026-03-05
  ["1234.50","2026-03-05"]
  $ taken es_MX 1,234.50 --next 05/03/2026
  ["1234.50","2026-03-05"]
  $ added de_DE 1.234 2>/dev/null
  [2]
  $ added de_DE 1 --next 03/05/2026 2>/dev/null
  [2]
  $ added C 12,50 2>/dev/null
  [2]

A file is read alike everywhere, so in it the locale's forms are refused:

  $ load() {
  >   printf '[{"date": "%s", "debit": 3, "credit": 1, "amount": "%s"}]' "$@" |
  >     de transaction load - --dry-run
  > }
  $ load 2026-03-05 12.50 >/dev/null
  $ load 2026-03-05 12,50 2>/dev/null
  [1]
  $ load 05.03.2026 12.50 2>/dev/null
  [1]

Questions are answered in the user's letters:

  $ for answer in C:y de_DE:j es_ES:s; do
  >   printf '1234.56\n\n\n%s\n' "${answer#*:}" |
  >     as LC_ALL=${answer%:*}.UTF-8 survey run First Checking --date 2026-02-01 --dry-run 2>&1 |
  >     grep -o '\[./n\]' | head -1
  > done
  [Y/n]
  [J/n]
  [S/n]

A description is written once, in the language of who posts:

  $ de post Rent --account Checking --date 2026-03-01 >/dev/null
  $ es transactions --from 2026-03-01
  Número  Fecha       Descripción                                          Debe  Haber      Importe
       2  01/03/2026  Budgetposten verarbeitet, fällig am Sun Mar 1 2026.  Rent  Checking  850,00 €
