SPDX-License-Identifier: GPL-3.0-or-later

What other programs are given.

  $ . "$TESTDIR/household.sh"
  $ . "$TESTDIR/peers.sh"
  $ begin
  $ kiv post Rent --account Checking --date 2026-01-31 >/dev/null
  $ kiv transaction reconcile 2 >/dev/null
  $ kiv export | tail -3
  2026-01-31 (2) Processed the budget item due on Sat Jan 31 2026.
      * Expenses:Rent [Budget Item]  1250.00 USD
      * Assets:Checking  -1250.00 USD
  $ kiv export --format csv | tail -1 | tr '\r' '~'
  "2","2026-01-31","3","Expenses:Rent [Budget Item]","1","Assets:Checking","1250.00","USD","Processed the budget item due on Sat Jan 31 2026.","reconciled","reconciled"~
  $ kiv export --format json | jq -c '.format, .version, .banks[], .items[], .transactions[1]'
  "kiv-export"
  1
  {"accounts":[{"balance":{"amount":"1250.00","currency":"USD"},"name":"Checking","number":1,"type":"checking"}],"name":"First","open":true}
  {"amount":{"amount":"1250.00","currency":"USD"},"every":"monthly","kind":"bill","name":"Rent","next":"2026-02-28","tags":[]}
  {"amount":{"amount":"3100.00","currency":"USD"},"every":"monthly","kind":"wage","name":"Salary","next":"2026-01-25","tags":[]}
  {"amount":{"amount":"1250.00","currency":"USD"},"credit":1,"creditStatus":"reconciled","date":"2026-01-31","debit":3,"debitStatus":"reconciled","description":"Processed the budget item due on Sat Jan 31 2026.","number":2}

Names that mean something else to a reader of journals, to a spreadsheet or to a terminal,
and that are never told raw:

  $ begin
  $ cat >names <<'.'
  > Food
  > Food
  > Food 7
  > A:B
  > two  blanks
  > ; no comment
  > =SUM(A1)
  > +1
  > @home
  > (virtual)
  > [Budget Item]
  > * star
  > 12.00 USD
  > "quoted"
  > Zürich 食費
  > .
  $ printf '\033[31mred\n\342\200\256turned\n' >>names
  $ sed 's/"/\\&/g; s/.*/account add "&" --type expense --currency USD/' names | kiv shell | tail -2
  Added the account 20 \u{001B}[31mred.
  Added the account 21 \u{202E}turned.
  $ kiv account add 'line
  > break' --type expense
  Added the account 22 line\u{000A}break.

Accounts of the other kinds and in other currencies, and a thousand transactions from each
account to each other one:

  $ kiv shell <<. >/dev/null
  > account add "=SUM(A1)" --type asset --under Checking --currency USD
  > account add Card --type liability --currency USD --balance 120.55
  > account add Euros --type asset --currency EUR --balance 99.01
  > account add Yen --type asset --currency JPY --balance 1234567
  > account add Dinar --type asset --currency KWD --balance 1.234
  > rates set USD EUR=0.92 JPY=150 KWD=0.31
  > .
  $ kiv accounts --json | jq --rawfile names names '
  >     ($names | split("\n") | .[-1] = "line\nbreak") as $names | . as $accounts | length as $n |
  >     [range(1000) | $accounts[. % $n] as $debit | {
  >         debit: $debit.number,
  >         credit: $accounts[(. + 1 + (. / $n | floor) % ($n - 1)) % $n].number,
  >         date: (1735689600 + . % 700 * 86400 | todate[:10]),
  >         amount: "\(. * 4801 % 5000)\(if $debit.balance.currency == "JPY" then "" else
  >             ".\(. % 90 + 10)" end) \($debit.balance.currency)",
  >         debitStatus: ["none", "cleared", "reconciled"][. % 3],
  >         creditStatus: ["none", "cleared", "reconciled"][(. / 3 | floor) % 3],
  >         description: $names[. % ($names | length)]}]' >many.json
  $ kiv transaction load many.json | tail -1
  Posted 1000 transactions.

On any day hledger finds the same balances:

  $ kiv demo year --date 2025-03-31 >/dev/null
  $ kiv export --file year >year.journal
  $ for day in 2024-04-15 2024-09-30 2025-02-28; do
  >     own --on $day --file year >own
  >     peer hledger year.journal -e $(date -d "$day + 1 day" +%F) | diff own - && grep Checking own
  > done
  Assets:Checking  3855.27 USD
  Assets:Checking  5083.5 USD
  Assets:Checking  7480.09 USD

Both tools find the same balances in the journal:

  $ own >own
  $ kiv export >export.journal
  $ peer ledger export.journal | diff own -
  $ peer hledger export.journal | diff own -

They see one that is forged:

  $ sed 's/2500.00 USD/2500.01 USD/' export.journal >forged.journal
  $ peer hledger forged.journal | diff -U0 own - | grep '^[-+][A-Z]'
  -Assets:Checking  -7720.68 USD
  +Assets:Checking  -7720.67 USD
  -Equity:Opening Balances USD [Equity]  -15086.12 USD
  +Equity:Opening Balances USD [Equity]  -15086.13 USD

The journal makes the same books, but that each currency which paid for another one went
through an account:

  $ kiv new again >/dev/null
  $ kiv import export.journal --file again | tail -1
  Transactions posted: 1356; duplicates skipped: 0; accounts opened: 35.
  $ own --file again | grep -v Equity:Conversion: | diff own -
  $ own --file again | grep -c Equity:Conversion:
  4

All of it is there already:

  $ kiv import export.journal --file again --dry-run | tail -2
  Transactions posted: 0; duplicates skipped: 1356; accounts opened: 0.
  Dry run: nothing is saved.

The JSON has all of it, accounts by their numbers, and what has a fault in it loads nothing:

  $ kiv export --format json >export.json
  $ jq '.transactions | length' export.json
  1005
  $ kiv accounts --json | jq 'map(del(.withGoals)) | sort_by(.number)' >accounts.json
  $ jq .accounts export.json | diff accounts.json -
  $ kiv transaction load - <<.
  > [{"date": "2026-01-01", "debit": 1, "credit": 2, "amount": "1 USD"},
  >  {"date": "2026-02-30", "debit": 1, "credit": 2, "amount": "1 USD"}]
  > .
  kiv: Cannot understand transaction 2 of '-': '2026-02-30' is not a valid date; write one like 2026-03-31.
  [1]

The JSON export follows the schema that its documentation holds:

  $ begin
  $ kiv debt add Car 200 --borrowed 5000 --bank First --type loan --tag a --next 2026-01-31 >/dev/null
  $ kiv goal add Trip 50 --target 900 --bank-account Checking --next 2026-01-31 >/dev/null
  $ kiv post --all --account Checking --date 2026-01-31 | tail -1
  Posted the goal 'Trip', due on 2026-01-31: $50.00.
  $ kiv refund 3 1.00 >/dev/null
  $ kiv rates set USD EUR=0.9 >rates
  $ kiv account add Euros --type asset --currency EUR >/dev/null
  $ kiv transaction add '3 EUR' --debit Euros --credit Checking >/dev/null
  $ kiv export --json >export.json
  $ jq '.transactions | length' export.json
  8
  $ sed -n '/^```json/,/^```$/ { /^```/! p }' "$TESTDIR/../../docs/import-export.md" >schema.json
  $ python3 -W ignore -m jsonschema -i export.json schema.json
  $ jq '.version = 2 | .more = 1 | del(.banks)' export.json >forged.json
  $ python3 -W ignore -m jsonschema -i forged.json schema.json \
  >     --error-format '{error.message}
  > '
  'banks' is a required property
  Additional properties are not allowed ('more' was unexpected)
  1 was expected
  [1]
