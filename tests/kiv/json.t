SPDX-License-Identifier: GPL-3.0-or-later

With --json what changes something tells programs what has become of it, in the form in
which it is listed.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ told() { kiv "$@" --json | jq -c .; }
  $ told bank add Second
  {"accounts":[],"name":"Second","open":true}
  $ told bank-account add Savings --bank Second --type savings
  {"balance":{"amount":"0.00","currency":"USD"},"name":"Savings","number":5,"open":true,"parent":null,"path":"Assets:Savings","type":"asset"}
  $ told bill add Gym 30 --next 2026-02-01 --tag 😀
  {"amount":{"amount":"30.00","currency":"USD"},"every":"monthly","kind":"bill","name":"Gym","next":"2026-02-01","tags":["\xf0\x9f\x98\x80"]} (esc)
  $ told bill rename Gym Club
  {"amount":{"amount":"30.00","currency":"USD"},"every":"monthly","kind":"bill","name":"Club","next":"2026-02-01","tags":["\xf0\x9f\x98\x80"]} (esc)
  $ told account add Food --type expense
  {"balance":{"amount":"0.00","currency":"USD"},"name":"Food","number":7,"open":true,"parent":null,"path":"Expenses:Food","type":"expense"}
  $ told post Rent --account Checking --date 2026-02-01
  {"amount":{"amount":"1250.00","currency":"USD"},"credit":1,"creditStatus":"none","date":"2026-02-01","debit":3,"debitStatus":"none","description":"Processed the budget item due on Sat Jan 31 2026.","kind":"bill","name":"Rent","number":2}
  $ told post --all --account Checking --date 2026-01-26
  [{"amount":{"amount":"3100.00","currency":"USD"},"credit":4,"creditStatus":"none","date":"2026-01-26","debit":1,"debitStatus":"none","description":"Processed the budget item due on Sun Jan 25 2026.","kind":"wage","name":"Salary","number":3}]
  $ told pay Rent 5 --account Checking --date 2026-02-02
  {"amount":{"amount":"5.00","currency":"USD"},"credit":1,"creditStatus":"none","date":"2026-02-02","debit":3,"debitStatus":"none","description":"Processed unexpected budget item 'Rent'.","kind":"bill","name":"Rent","number":4}
  $ told skip Rent
  {"amount":{"amount":"1250.00","currency":"USD"},"every":"monthly","kind":"bill","name":"Rent","next":"2026-03-31","tags":[]}
  $ told transaction add 5 --debit 7 --credit Checking --date 2026-02-02
  {"amount":{"amount":"5.00","currency":"USD"},"credit":1,"creditStatus":"none","date":"2026-02-02","debit":7,"debitStatus":"none","description":"","number":5}
  $ told transaction update 2 --amount 7
  {"amount":{"amount":"7.00","currency":"USD"},"credit":1,"creditStatus":"none","date":"2026-02-01","debit":3,"debitStatus":"none","description":"Processed the budget item due on Sat Jan 31 2026.","number":2}
  $ told transaction clear 2
  {"transactions":[2]}
  $ told transaction remove 5
  {"transactions":[5]}
  $ told refundable Rent
  [{"amount":{"amount":"7.00","currency":"USD"},"credit":1,"creditPath":"Assets:Checking","creditStatus":"cleared","date":"2026-02-01","debit":3,"debitPath":"Expenses:Rent [Budget Item]","debitStatus":"cleared","description":"Processed the budget item due on Sat Jan 31 2026.","number":2},{"amount":{"amount":"5.00","currency":"USD"},"credit":1,"creditPath":"Assets:Checking","creditStatus":"none","date":"2026-02-02","debit":3,"debitPath":"Expenses:Rent [Budget Item]","debitStatus":"none","description":"Processed unexpected budget item 'Rent'.","number":4}]
  $ told refund 2 1 --date 2026-02-03
  {"amount":{"amount":"1.00","currency":"USD"},"credit":3,"creditStatus":"none","date":"2026-02-03","debit":1,"debitStatus":"none","description":"Processed the budget item due on Sat Jan 31 2026.","number":5,"refundOf":2}
  $ told transfer Checking Savings 5 --date 2026-02-03
  {"amount":{"amount":"5.00","currency":"USD"},"credit":1,"creditStatus":"none","date":"2026-02-03","debit":5,"debitStatus":"none","description":"Transfer","number":6}
  $ echo '[{"date": "2026-02-02", "debit": 7, "credit": 1, "amount": "1 USD"}]' |
  >     told transaction load -
  {"posted":[7]}
  $ told survey complete First Checking --date 2026-02-03 --balance 5583 --tick-all
  {"account":1,"accountChanges":[{"account":2,"change":{"amount":"2500.00","currency":"USD"},"date":"2026-01-01","description":"","name":"Opening Balances USD [Equity]","transaction":1},{"account":5,"change":{"amount":"-5.00","currency":"USD"},"date":"2026-02-03","description":"Transfer","name":"Savings","transaction":6},{"account":7,"change":{"amount":"-1.00","currency":"USD"},"date":"2026-02-02","description":"","name":"Food","transaction":7}],"accountName":"Checking","accounts":[],"amountDue":{"amount":"1280.00","currency":"USD"},"balance":{"amount":"5583.00","currency":"USD"},"bank":"First","date":"2026-02-03","distribution":[],"elsewhere":[],"expectedBalance":{"amount":"5583.00","currency":"USD"},"figures":{"accepted":true,"before":{"amount":"0.00","currency":"USD"},"calculated":{"amount":"5583.00","currency":"USD"},"difference":{"amount":"0.00","currency":"USD"},"percent":"0.00"},"itemChanges":[{"change":{"amount":"-7.00","currency":"USD"},"date":"2026-02-01","description":"Processed the budget item due on Sat Jan 31 2026.","kind":"bill","name":"Rent","transaction":2},{"change":{"amount":"-5.00","currency":"USD"},"date":"2026-02-02","description":"Processed unexpected budget item 'Rent'.","kind":"bill","name":"Rent","transaction":4},{"change":{"amount":"1.00","currency":"USD"},"date":"2026-02-03","description":"Processed the budget item due on Sat Jan 31 2026.","kind":"bill","name":"Rent","transaction":5},{"change":{"amount":"3100.00","currency":"USD"},"date":"2026-01-26","description":"Processed the budget item due on Sun Jan 25 2026.","kind":"wage","name":"Salary","transaction":3}],"items":[],"lines":[],"nonDistributed":{"amount":"5583.00","currency":"USD"},"reconciled":[1,2,3,4,5,6,7],"reconciledBalance":{"amount":"0.00","currency":"USD"},"reconciledOn":null,"start":"2025-12-31"}
  $ told templates list
  [{"household":"None","template":"none"},{"household":"Teenager","template":"teenager"},{"household":"Adult, single","template":"adult-single"},{"household":"Adult, married, single income","template":"adult-married-single-income"},{"household":"Adult, married, double income","template":"adult-married-double-income"}]
  $ kiv bank-account detach Savings >/dev/null
  $ told bank close Second
  {"accounts":[],"name":"Second","open":false}
  $ told save-as third
  {"file":"third.budget"}
