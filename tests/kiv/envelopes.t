SPDX-License-Identifier: GPL-3.0-or-later

What is set aside at a bank, and why. The household is the one that docs/domain.md works out.

  $ . "$TESTDIR/household.sh"
  $ kiv new >/dev/null
  $ kiv envelopes
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
  > bank-account add Savings --bank First --type savings --balance '50 USD' --date 2026-03-01
  > .
  $ kiv envelopes --on 2026-03-25
  $ kiv survey complete First Checking --date 2026-03-25 --balance 8557.50 --item Salary=40 \
  >     --extra Fees=-2.50 $(printf -- '--tick %s ' 1 2 3 4 5 6 8 9 10 11)
  $ kiv envelopes Checking --on 2026-04-25 --items

A bill that was paid no longer needs its money, and what is free stays:

  $ kiv pay Tax 60 --account Checking --date 2026-04-20 >/dev/null
  $ kiv envelopes Checking --on 2026-04-25

What the last statement had is in its record; what the card paid on that day is not, nor what
came back. No line falls below zero:

  $ why() { kiv envelopes Checking --on 2026-05-02 --items | grep -e Tax -e Car; }
  $ kiv pay Tax 20 --account Checking --date 2026-04-30 >/dev/null
  $ kiv survey complete First Checking --date 2026-04-30 --balance 8402.50 --tick 13 --tick 17 \
  >     --tick 18 --distribute Tax=120
  $ kiv pay Tax 30 --account Card --date 2026-04-30 >/dev/null
  $ kiv refund 17 5 --date 2026-05-01 >/dev/null
  $ why
  $ kiv pay Tax 400 --account Checking --date 2026-05-02 >/dev/null
  $ why

A debt grows by interest and what was borrowed; its line does not:

  $ kiv debt add Car '200 USD' --every quarterly --borrowed 1000.00 --bank First \
  >     --next 2026-06-20 --date 2026-05-01 >/dev/null
  $ kiv account add Interest --type expense >/dev/null
  $ kiv transfer Car Interest 25 --date 2026-05-01 >/dev/null
  $ kiv spend 50 Car --from Checking --date 2026-05-02 >/dev/null
  $ why
  $ kiv envelopes --on 2026-05-02 | grep -e debt -e goal
  $ kiv goal update Trip --target 300 >/dev/null
  $ kiv spend 975 Car --from Checking --date 2026-05-02 >/dev/null
  $ kiv envelopes --on 2026-05-02 | grep -e debt -e goal

More than there is, and what no line shows:

  $ kiv bill add Insurance '120 USD' --every yearly --next 2026-12-01 >/dev/null
  $ kiv survey complete First Savings --date 2026-05-03 --balance 50 --tick-all \
  >     --distribute Tax=0 --distribute Car=0 --distribute Insurance=70
  $ kiv envelopes Savings --on 2026-05-03
  $ kiv transfer Savings Checking 50 --date 2026-05-03 >/dev/null
  $ kiv account close Savings >/dev/null
  $ kiv envelopes Savings
  $ each 0 <<'.'
  > envelopes Card
  > envelopes Trip
  > .
  $ kiv envelopes Groceries

What has no exchange rate is named and left out; all else adds up:

  $ kiv bill add Hotel '500 EUR' --every yearly --next 2026-08-01 >/dev/null
  $ kiv envelopes Checking --on 2026-05-02
  $ kiv envelopes --on 2026-05-02 --json | jq -c 'def cents: (.amount | tonumber) * 100 | round;
  >     .accounts[] | [.account, (.balance | cents) - (.free | cents) - ([.lines[].counted |
  >     select(.) | cents] | add // 0), (.lines[] | ([.parts[].amount | cents] | add) -
  >     (.now | cents), .handedOver)]'
