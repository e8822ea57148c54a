SPDX-License-Identifier: GPL-3.0-or-later

What is set aside at a bank, and why. The household is the one that docs/domain.md works out.

  $ . "$TESTDIR/household.sh"
  $ kiv new >/dev/null
  $ each 0 <<'.' >/dev/null
  > bank add First
  > bank-account add Checking --bank First --balance '3000 USD' --date 2026-01-01
  > bank-account add Card --bank First --type credit-card --date 2026-01-01
  > account add Groceries --type expense
  > account add Fees --type expense
  > bill add Rent '900 USD' --next 2026-03-28
  > bill add Tax '600 USD' --every yearly --next 2026-06-30
  > wage add Salary '2500 USD' --next 2026-04-02
  > goal add Trip '100 USD' --target 1200 --next 2026-04-10 --bank-account Checking
  > earn 2500 Salary --to Checking --date 2026-01-02
  > transfer Checking Trip 100 --date 2026-01-10
  > spend 900 Rent --from Checking --date 2026-01-28
  > earn 2500 Salary --to Checking --date 2026-02-02
  > transfer Checking Trip 100 --date 2026-02-10
  > spend 180 Groceries --from Card --date 2026-02-15
  > spend 900 Rent --from Checking --date 2026-02-28
  > earn 2500 Salary --to Checking --date 2026-03-02
  > transfer Checking Card 180 --date 2026-03-05
  > transfer Checking Trip 100 --date 2026-03-10
  > spend 60 Groceries --from Card --date 2026-03-12
  > spend 75 Groceries --from Checking --date 2026-03-20
  > account add Group --type asset
  > account add Savings --type asset --under Group --balance '50 USD' --date 2026-03-01
  > bank-account attach Savings --bank First --type savings
  > .
  $ kiv envelopes --on 2026-03-25 | sed 4,6d
  Account     Balance  Set aside       Free  Paid since  Last reconciled
  Checking  $8,445.00    $450.00  $7,995.00       $0.00
  Savings      $50.00     $50.00      $0.00       $0.00
  $7,995.00 is free to spend: $8,495.00 at the bank, of which $500.00 is set aside.
  The goal 'Trip' has $300.00 of $1,200.00, 25 %.
  Checking was never reconciled; its lines count from 2025-12-31.
  Savings was never reconciled; its lines count from 2026-02-28.
  Several accounts have a line for the same item, until a survey of one of them sets it aside: Tax
  $ kiv survey complete First Checking --date 2026-03-25 --balance 8557.50 --item Salary=40 \
  >     --extra Fees=-2.50 $(printf -- '--tick %s ' 1 2 3 4 5 6 8 9 10 11)
  Reconciled 1 Checking at First with a balance of $8,557.50.
  $ kiv envelopes Checking --on 2026-04-25 --items
  Checking, First
  Balance             $8,482.50
  Set aside           $500.00
  Free                $7,982.50
  Last reconciled on  2026-03-25
  Item   Before   Added   Paid      Now   Expected  Next
  Tax   $150.00  $50.00  $0.00  $200.00    $600.00  2026-06-30
  Trip  $300.00   $0.00  $0.00  $300.00  $1,200.00  2026-04-10
  Tax: set aside on 2026-03-25; $600.00 yearly = $50.00 a month, 1 month
  Trip: set aside on 2026-03-25
  Still due until 2026-04-30, of what is paid monthly
  Due         Item  Kind   Amount
  2026-03-28  Rent  bill  $900.00
  2026-04-10  Trip  goal  $100.00

A bill that was paid no longer needs its money, and what is free stays:

  $ kiv pay Tax 60 --account Checking --date 2026-04-20 >/dev/null
  $ kiv envelopes Checking --on 2026-04-25 | sed -n 2p
  Checking  $8,422.50    $440.00  $7,982.50      $60.00  2026-03-25

What the last statement had is in its record; what the card paid on that day is not, nor what
came back. No line falls below zero:

  $ why() { kiv envelopes Checking --on 2026-05-02 --items | grep -e Tax -e Car; }
  $ kiv pay Tax 20 --account Checking --date 2026-04-30 >/dev/null
  $ kiv survey complete First Checking --date 2026-04-30 --balance 8402.50 --tick 13 --tick 17 \
  >     --tick 18 --distribute Tax=120
  Reconciled 1 Checking at First with a balance of $8,402.50.
  $ kiv pay Tax 30 --account Card --date 2026-04-30 >/dev/null
  $ kiv refund 17 5 --date 2026-05-01 >/dev/null
  $ why
  Tax   $120.00  $50.00  -$25.00  $145.00    $600.00  2026-06-30
  Tax: set aside on 2026-04-30; $600.00 yearly = $50.00 a month, 1 month; paid: #19, #20
  $ kiv pay Tax 400 --account Checking --date 2026-05-02 >/dev/null
  $ why
  Tax   $120.00  $50.00  -$425.00    $0.00    $600.00  2026-06-30
  Tax: set aside on 2026-04-30; $600.00 yearly = $50.00 a month, 1 month; paid: #19, #20, #21; $255.00 more was paid than was set aside

A debt grows by interest and what was borrowed; its line does not:

  $ kiv debt add Car '200 USD' --every quarterly --borrowed 1000.00 --bank First \
  >     --next 2026-06-20 --date 2026-05-01 >/dev/null
  $ kiv account add Interest --type expense >/dev/null
  $ kiv transfer Car Interest 25 --date 2026-05-01 >/dev/null
  $ kiv spend 50 Car --from Checking --date 2026-05-02 >/dev/null
  $ why | grep Car
  Car     $0.00  $66.67   -$50.00   $16.67    $200.00  2026-06-20
  Car: not set aside on 2026-04-30; $200.00 quarterly = $66.67 a month, 1 month; paid: #24
  Several accounts have a line for the same item, until a survey of one of them sets it aside: Car
  $ kiv envelopes --on 2026-05-02 | grep debt
  Of the debt 'Car' are $975.00 left: paid off on 2027-06-20, after 5 payments, without interest.
  $ kiv goal update Trip --target 300 >/dev/null
  $ kiv spend 975 Car --from Checking --date 2026-05-02 >/dev/null
  $ kiv envelopes --on 2026-05-02 | grep '^The'
  The goal 'Trip' is reached: $300.00. To end it, use kiv goal finish.
  The debt 'Car' is paid off. To end it, use kiv debt finish.

More than there is, and what no line shows:

  $ kiv bill add Insurance '120 USD' --every yearly --next 2026-12-01 >/dev/null
  $ kiv survey complete First Savings --date 2026-05-03 --balance 50 --tick-all \
  >     --distribute Tax=5 --distribute Car=0 --distribute Insurance=70
  Reconciled 11 Savings at First with a balance of $50.00.
  $ kiv envelopes Savings --on 2026-05-03 | sed '1d; 3,6d'
  Savings   $50.00     $70.00  -$20.00       $0.00  2026-05-03
  At Savings, $20.00 more is set aside than there is.
  $5.00 is set aside for 'Tax' at Savings and also at another account, so no line shows it.
  Several accounts have a line for the same item, until a survey of one of them sets it aside: Car
  To set nothing aside at an account any more, use kiv survey drop.
  $ kiv transfer Savings Checking 50 --date 2026-05-03 >/dev/null
  $ kiv account close Savings >/dev/null
  $ kiv envelopes Savings | head -2
  Savings is closed.
  $70.00 is set aside for 'Insurance' at Savings, which is closed.
  $ kiv envelopes Card
  Card is owed; nothing is set aside of it.
  $ kiv envelopes Trip
  Trip has no envelopes of its own; the account above it counts its money.
  $ kiv envelopes Groceries
  kiv: The account 'Groceries' is not assigned to a bank; assign it with kiv bank-account attach.
  [1]

What has no exchange rate is named and left out; all else adds up:

  $ kiv bill add Hotel '500 EUR' --every yearly --next 2026-08-01 >/dev/null
  $ kiv envelopes Checking --on 2026-05-02 | sed -n '2p; 7p'
  Checking  $6,982.50    $300.00  $6,682.50   $1,025.00  2026-04-30
  The sum at Checking leaves 'Hotel' out. There is no exchange rate between EUR and USD.
  $ kiv envelopes --on 2026-05-02 --json | jq -c 'def cents: (.amount | tonumber) * 100 | round;
  >     (.accounts[] | [.account, (.balance | cents) - (.free | cents) - ([.lines[].counted |
  >     select(.) | cents] | add // 0), (.lines[] | ([.parts[].amount | cents] | add) -
  >     (.now | cents), .handedOver)]), ([.goals, .debts] | map(map(.name)))'
  [1,0,0,true,0,false,0,true]
  [["Trip"],["Car"]]
