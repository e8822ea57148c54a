SPDX-License-Identifier: GPL-3.0-or-later

What a household may not have meant, and the ways out of dead ends.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ kiv account add Groceries --type expense >/dev/null
  $ kiv bank-account add Savings --bank First --type savings --balance 100 --date 2026-01-01 >/dev/null
  $ kiv goal add Trip 100 --target 150 --bank-account Savings --next 2026-02-01 >/dev/null
  $ kiv debt add Car 100 --borrowed 120 --bank First --next 2026-02-01 --date 2026-01-02 >/dev/null

It is a warning, and the entry stands:

  $ each 0 <<'.' >/dev/null
  > transfer Savings Trip 160 --date 2026-02-01
  > transfer Trip Checking 261 --date 2026-02-01
  > pay Car 121 --account Checking --date 2026-02-01
  > spend 2650 Groceries --date 1926-02-01
  > transfer Groceries Checking 1200 --date 2026-02-01
  > refund 7 5 --date 2026-02-01
  > transaction update 7 --description 'nothing new is said'
  > pay Salary 10 --account Groceries --date 2026-02-01
  > earn 1 Salary --date 2010-02-01
  > .
  kiv: warning: The goals at Savings hold $60.00 more than there is.
  kiv: warning: The goal 'Trip' has $160.00 now, more than its target of $150.00.
  kiv: warning: Trip is below zero: -$101.00.
  kiv: warning: For the debt 'Car', $1.00 more was paid than was owed.
  kiv: warning: The day 1926-02-01 is 100 years ago.
  kiv: warning: Checking is below zero: -$10.00.
  kiv: warning: This money came from Groceries, which is an expense account and keeps none.
  kiv: warning: The money of Salary went straight to Groceries, which is an expense account and keeps none.

What comes to nothing does not stop what else is due:

  $ kiv bill add Zero 0 --next 2026-01-30 >/dev/null
  $ kiv post --all --kind bill --account Checking --date 2026-01-31
  kiv: warning: 'Zero' has an amount of zero and was skipped.
  kiv: warning: Checking is below zero: -$54.00.
  Posted the bill 'Rent', due on 2026-01-31: $1,250.00.
  $ kiv bill list | grep Zero
  Zero      $0.00  monthly  2026-02-28

Without an exchange rate, the rest is shown:

  $ kiv wage add Lessons '10 CHF' --next 2026-04-01
  Added the wage 'Lessons'.
  $ kiv dashboard | grep -e Wages -e Lessons
  Wages        $3,100.00
  2026-04-01  Lessons  wage  CHF\xc2\xa010.00 (esc)
  The totals leave 'Lessons' out: there is no exchange rate between CHF and USD.
  $ kiv dashboard --json | jq -c .notices
  ["The totals leave 'Lessons' out: there is no exchange rate between CHF and USD."]
  $ kiv wage list | tail -1
  Together a month: CHF 10.00, $3,100.00

An account goes to another bank with its goals, its survey and what is set aside:

  $ begin
  $ each 0 <<'.' >/dev/null
  > bank add Second
  > bank-account add Giro --bank Second --date 2026-01-01
  > bill add Tax 600 --every yearly --next 2026-06-30
  > goal add Trip 100 --target 300 --bank-account Checking --next 2026-02-10
  > transfer Checking Trip 300 --date 2026-01-10
  > survey complete First Checking --balance 2500 --tick-all --distribute Tax=150 --date 2026-03-25
  > .
  $ kiv bank-account move Checking --to Second
  Checking is at the bank Second now.
  $ kiv envelopes Checking --on 2026-03-25 --json | jq -c '.accounts[] | .bank, .free.amount, [.lines[] | [.name, .now.amount]]'
  "Second"
  "2050.00"
  [["Tax","150.00"],["Trip","300.00"]]
  $ kiv reconciliations | tail -1
  Second  Assets:Checking  2026-03-25            $2,500.00             2  holds
  $ kiv undo | sed -n 3,4p
  bank    First     changed  accounts \xe2\x80\x93 \xe2\x86\x92 1, 7 (esc)
  bank    Second    changed  accounts 1, 5, 7 \xe2\x86\x92 5 (esc)

Another account takes its place. The statements of both show the whole transfer:

  $ kiv survey complete Second Giro --balance 0 --distribute Tax=10 --date 2026-03-26 >/dev/null
  $ kiv spend 20 Tax --from Checking --date 2026-03-28 >/dev/null
  $ kiv bank-account replace Checking --by Giro --date 2026-04-01 | sed -n 4p
  Set aside at Giro are now: Trip
  $ kiv envelopes --on 2026-04-01 --items | sed -n '1p; 7,8p'
  Giro, Second
  Tax   $160.00   $50.00   -$20.00  $190.00   $600.00  2026-06-30
  Trip  $300.00  $300.00  -$300.00  $300.00   $512.90  2026-02-10
  $ kiv survey show Second Giro --date 2026-04-02 --json | jq -r .expectedBalance.amount
  2480.00
  $ kiv banks | tail -2
       5  Giro     checking          $2,180.00
       7  Trip     goal sub-account    $300.00
  $ each 1 <<'.'
  > bank-account replace Checking --by Giro
  > bank-account replace Giro --by Giro
  > bank-account replace Giro --by Trip
  > bank-account move Trip --to First
  > bank-account move Giro --to Second
  > bank-account move Rent --to Second
  > .
  kiv: The account 'Checking' is closed; open it again first.
  kiv: 'Giro' cannot replace itself; add an account first.
  kiv: 'Trip' lies under 'Giro' and goes along with it; name 'Giro'.
  kiv: 'Trip' lies under 'Giro' and goes along with it; name 'Giro'.
  kiv: 'Giro' is at the bank 'Second' already.
  kiv: The account 'Rent' is not assigned to a bank; assign it with kiv bank-account attach.

A goal and a debt that came to their end:

  $ kiv goal finish Trip --to Rent --date 2026-04-02 >/dev/null
  $ kiv bank-account add Next --bank First --date 2026-04-01 >/dev/null
  $ kiv bank-account replace Giro --by Next --date 2026-04-02 --dry-run | tail -2
  Closed Giro.
  Dry run: nothing is saved.
  $ kiv undo --steps 2 >/dev/null
  $ kiv goal finish Trip --date 2026-04-02 | sed -n 2p
  Moved $300.00 from Trip to Giro (transaction 7).
  $ kiv goal finish Trip
  kiv: 'Trip' is finished already.
  [1]
  $ kiv debt add Car 20 --borrowed 40 --bank First --next 2026-04-10 --date 2026-04-01 >/dev/null
  $ kiv debt finish Car
  kiv: Of the debt 'Car', $40.00 is still owed; pay it first.
  [1]
  $ kiv pay Car 40 --account Giro --date 2026-04-03 >/dev/null
  $ kiv debt finish Car | sed 2d
  Finished the debt Car.
  Closed the account of 'Car'.

An account of the wrong type becomes what it is, with all that was entered:

  $ each 0 <<'.' >/dev/null
  > bank-account add Visa --bank Second --balance 10 --date 2026-04-01
  > account add Purse --type expense
  > transfer Giro Purse 50 --date 2026-04-02
  > spend 30 Rent --from Visa --date 2026-04-02
  > survey complete Second Visa --balance -20 --tick-all --date 2026-04-03
  > .
  kiv: warning: Visa is below zero: -$20.00.
  $ kiv bank-account attach Visa --bank Second --type credit-card
  kiv: Correct the type of 'Visa' first: it is Asset, and no bank keeps that as credit card; use kiv account convert.
  [1]
  $ kiv account convert Visa --type liability
  Visa is of the type Liability now.
  The balance of Visa is $20.00 now; its transactions are as they were.
  $ kiv account convert Purse --type asset >/dev/null
  $ kiv bank-account attach Purse --bank Second --type cash >/dev/null
  $ kiv account convert Purse --type expense | tail -1
  Separated Purse from the bank 'Second', which cannot keep it.
  $ kiv accounts | grep Purse
      10  Expenses:Purse                           $50.00
  $ kiv banks | grep Visa
       9  Visa     credit card          $20.00
  $ kiv check household | tail -1
  The budget 'household.budget' is intact.
  $ each 1 <<'.'
  > account convert Giro --type asset
  > account convert Giro --type expense
  > account convert Rent --type asset
  > .
  kiv: 'Giro' is of the type Asset already.
  kiv: The account of 'Trip' lies under it. Tie 'Trip' to another bank account first, or to none.
  kiv: The account of 'Rent' has the type that its item needs. Add an item of the right kind, put the transactions under it, then remove this one.
  $ for step in 1 2 3 4; do kiv undo; done >/dev/null
  $ kiv accounts | grep -e Visa -e Purse
       9  Assets:Visa                             -$20.00
      10  Expenses:Purse                           $50.00

What cannot be moved, replaced, finished or compared says why:

  $ begin
  $ each 0 <<'.' >/dev/null
  > bank-account add Card --bank First --type credit-card --balance 100 --date 2026-01-01
  > bank-account add Euros --bank First --type savings --balance '10 EUR' --date 2026-01-01
  > bank-account add Spare --bank First --type savings --balance 10 --date 2026-01-01
  > bank add Third
  > bank close Third
  > goal add Apart 10 --target 700 --next 2026-03-03
  > transfer Checking Apart 7 --date 2026-03-04
  > debt add Loan 50 --borrowed 50 --next 2026-03-03 --date 2026-01-01
  > transfer Checking Loan 57 --date 2026-03-04
  > .
  kiv: warning: For the debt 'Loan', $7.00 more was paid than was owed.
  $ each 1 <<'.'
  > bank-account replace Card --by Spare
  > bank-account replace Euros --by Spare
  > bank-account move Spare --to Third
  > account convert 'Opening Balances USD [Equity]' --type asset
  > debt finish Loan
  > goal finish Apart
  > explain tolerance Euros --balance '5 USD'
  > .
  kiv: 'Card' and 'Spare' cannot replace each other: one is owned, and the other is owed. Pay it off by a transfer, then close it.
  kiv: 'Euros' and 'Spare' are kept in different currencies. Transfer the money with both amounts, tie its goals to 'Spare', then close 'Euros'.
  kiv: The bank 'Third' is closed; open it again first.
  kiv: 'Opening Balances USD [Equity]' holds the opening balances; its type cannot change.
  kiv: For the debt 'Loan', $7.00 more was paid than was owed; move it back first.
  kiv: The goal 'Apart' lies under no bank account; say to which account its money goes, or move it there first.
  kiv: There is no exchange rate from 'USD' to 'EUR'; fetch the rates, or set it by hand.
