SPDX-License-Identifier: GPL-3.0-or-later

What a household does from day to day.

  $ . "$TESTDIR/household.sh"
  $ begin

A month, from what is due to what is on file:

  $ kiv bill add Power '84.35 USD' --next 2026-02-10 --tag home >/dev/null
  $ kiv bill rename Power Light
  The bill 'Power' is now called 'Light'.
  $ kiv post Rent --account Checking --date 2026-02-01
  Posted the bill 'Rent', due on 2026-01-31: $1,250.00.
  $ kiv post Salary --account Checking --date 2026-02-01
  Posted the wage 'Salary', due on 2026-01-25: $3,100.00.
  $ kiv skip Light
  Skipped the bill 'Light' due on 2026-02-10; it is next due on 2026-03-10.
  $ kiv bill add Lamp 5 --next 2026-01-31 >/dev/null; kiv skip Lamp >/dev/null
  $ kiv bill update Lamp --amount 6 >/dev/null; kiv skip Lamp
  Skipped the bill 'Lamp' due on 2026-02-28; it is next due on 2026-03-31.
  $ kiv bill remove Lamp >/dev/null
  $ kiv pay Light 19.10 --account Checking --date 2026-02-11
  Posted $19.10 for the bill 'Light', which is still due on 2026-03-10.
  $ kiv transaction clear 2 3
  Cleared the transactions 2, 3.
  $ kiv transaction reconcile 2
  Reconciled the transaction 2.
  $ kiv bill update Light --amount 90.00 --every quarterly
  Changed the bill 'Light'.
  $ kiv transaction unreconcile 2
  Undid the reconciliation of the transaction 2.
  $ kiv transaction clear 2
  Cleared the transaction 2.
  $ kiv transaction update 2 --description "A month's rent"
  Changed transaction 2.
  $ kiv transactions
  Number  Date        Description                                        Debit     Credit                            Amount
       1  2026-01-01                                                     Checking  Opening Balances USD [Equity]  $2,500.00
       2  2026-02-01  A month's rent                                     Rent      Checking                       $1,250.00
       3  2026-02-01  Processed the budget item due on Sun Jan 25 2026.  Checking  Salary                         $3,100.00
       4  2026-02-11  Processed unexpected budget item 'Light'.          Light     Checking                          $19.10
  $ kiv ledger Checking | tail -2
       4  2026-02-11  Processed unexpected budget item 'Light'.          Light                             -$19.10  $4,330.90  none
  4 transactions, together $4,330.90.
  $ kiv info | tail -3
  Items           bill 2, debt 0, goal 0, non-tracked item 0, wage 1
  Sum of debits   $6,869.10
  Sum of credits  $6,869.10

The day of the month that an item was given outlives a short month:

  $ kiv bill list | sed '1d; $d'
  Light     $90.00  quarterly  2026-03-10  home
  Rent   $1,250.00  monthly    2026-02-28
  $ kiv skip Rent >/dev/null

Programs read JSON:

  $ kiv ledger Checking --json | jq -c '.transactions[1]'
  {"amount":{"amount":"1250.00","currency":"USD"},"balance":{"amount":"1250.00","currency":"USD"},"change":{"amount":"-1250.00","currency":"USD"},"credit":1,"creditStatus":"cleared","date":"2026-02-01","debit":3,"debitStatus":"cleared","description":"A month's rent","number":2,"other":3,"otherPath":"Expenses:Rent [Budget Item]","status":"cleared"}
  $ kiv info --json | jq -c 'del(.bytes)'
  {"accounts":5,"banks":1,"credits":[{"amount":"6869.10","currency":"USD"}],"debits":[{"amount":"6869.10","currency":"USD"}],"encrypted":false,"file":"household.budget","items":{"bill":2,"debt":0,"goal":0,"nontrack":0,"wage":1},"transactions":4}

A month at a glance:

  $ begin
  $ kiv dashboard
  Every month
  Wages        $3,100.00
  Bills        $1,250.00
  Debts        $0.00
  Goals        $0.00
  Non-tracked  $0.00
  Remaining    $1,850.00
  Due within 14 days
  Due         Item    Kind     Amount
  2026-01-25  Salary  wage  $3,100.00
  2026-01-31  Rent    bill  $1,250.00
  What is to come
  Lowest on *, because of *. The next wage comes on *. (glob)
  Budget health: good
  40.3 % of the income is planned; at most 100 % is possible.
  Bills and debts take 40.3 % of the income; up to 50 % is sound.
  Debts take 0 % of the income; up to 36 % is sound.
  Free spending takes 0 % of the income; up to 30 % is sound.
  Goals get 0 % of the income; from 20 % on is sound.
  $ kiv dashboard --json | jq -c '.dueWithinDays, .health.reasons[4], .totals.remaining,
  >     (.ahead | [.lowest.currency, (. as $all | .text | contains($all | .because, .lowestOn, .nextWage))])'
  14
  {"sound":false,"text":"Goals get 0 % of the income; from 20 % on is sound."}
  {"amount":"1850.00","currency":"USD"}
  ["USD",true,true,true]

What is due, by day:

  $ kiv due --date 2026-01-27
  Due         Item    Kind     Amount  When
  2026-01-25  Salary  wage  $3,100.00  2 days late
  2026-01-31  Rent    bill  $1,250.00  in 4 days
  To pay until 2026-02-10: $1,250.00.
  To come in until 2026-02-10: $3,100.00.
  $ kiv due --date 2026-01-27 --within 3 --json | jq -c .[]
  {"amount":{"amount":"3100.00","currency":"USD"},"due":"2026-01-25","inDays":-2,"kind":"wage","name":"Salary"}
  $ kiv post --all --kind bill --account Checking --date 2026-01-31 --dry-run
  Posted the bill 'Rent', due on 2026-01-31: $1,250.00.
  Dry run: nothing is saved.
  $ kiv post --all --account Checking --date 2026-01-31
  Posted the wage 'Salary', due on 2026-01-25: $3,100.00.
  Posted the bill 'Rent', due on 2026-01-31: $1,250.00.
  $ kiv due --date 2026-02-01 --within 5
  Nothing is due.

Names that stand in several places. Posting goes by name, and would take the bill for the wage:

  $ kiv wage add Rent '500.00 USD' --next 2026-02-01 >/dev/null
  $ kiv account add Twin --type expense >/dev/null
  $ kiv account add Twin --type income >/dev/null
  $ each 1 <<'.'
  > ledger Twin
  > post Rent --account Checking
  > post Rent --kind wage --account Checking
  > .
  kiv: Several accounts are named 'Twin'; write one of: 6, 7.
  kiv: Several budget items are named 'Rent'; choose one with --kind: bill, wage.
  kiv: The wage 'Rent' cannot be processed while there is a bill of the same name; rename one of them.
  $ kiv pay Rent 25 --kind wage --account Checking
  Posted $25.00 for the wage 'Rent', which is still due on 2026-02-01.

A refund gives back what was paid:

  $ begin
  $ kiv pay Rent 100 --account Checking --date 2026-02-03 >/dev/null
  $ kiv refund 2 30.50
  Posted the refund as transaction 3.
  $ kiv transactions --json | jq -c '.[-1] | .date == (now | todate[:10]), del(.date)'
  true
  {"amount":{"amount":"30.50","currency":"USD"},"credit":3,"creditPath":"Expenses:Rent [Budget Item]","creditStatus":"none","debit":1,"debitPath":"Assets:Checking","debitStatus":"none","description":"Processed unexpected budget item 'Rent'.","number":3,"refundOf":2}
  $ kiv refund 2 69.50 >/dev/null

A new item of a former one's name is the one that is meant:

  $ kiv bill remove Rent >/dev/null && kiv bill add Rent 5 >/dev/null && kiv ledger Rent
  5 Rent
  There are no transactions.
