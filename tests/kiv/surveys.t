SPDX-License-Identifier: GPL-3.0-or-later

Debts and goals at a bank, and comparing the books with a statement.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ each 0 <<'.' >/dev/null
  > bill add Tax '360.00 USD' --every yearly --next 2026-07-01
  > goal add Trip '50.00 USD' --target 900 --bank-account Checking --next 2026-02-01
  > debt add Car '200.00 USD' --borrowed 5000.00 --bank First --next 2026-02-05
  > post Rent --account Checking --date 2026-01-31
  > post Salary --account Checking --date 2026-01-28
  > .
  $ kiv pay Trip 75 --account Checking --date 2026-01-29
  Posted $75.00 for the goal 'Trip', which is still due on 2026-02-01.
  $ kiv save-as january
  Saved the budget as 'january.budget'.

Items are tied to their bank. What is not given stays, the bank too:

  $ kiv goal list --json | jq -c .[]
  {"amount":{"amount":"50.00","currency":"USD"},"bank":"First","bankAccount":1,"every":"monthly","kind":"goal","name":"Trip","next":"2026-02-01","tags":[],"target":{"amount":"900.00","currency":"USD"}}
  $ kiv goal update Trip --target 950
  Changed the goal 'Trip'.
  $ kiv debt update Car --amount 210 >/dev/null
  $ kiv goal list
  Name  Amount  Every    Next         Target  Bank   Tags
  Trip  $50.00  monthly  2026-02-01  $950.00  First
  $ kiv debt list
  Name   Amount  Every    Next         Borrowed  Bank   Tags
  Car   $210.00  monthly  2026-02-05  $5,000.00  First
  $ kiv goal update Trip --no-bank >/dev/null
  $ kiv goal list --json | jq -c .[]
  {"amount":{"amount":"50.00","currency":"USD"},"every":"monthly","kind":"goal","name":"Trip","next":"2026-02-01","tags":[],"target":{"amount":"950.00","currency":"USD"}}
  $ kiv accounts --type asset | grep Trip
       6  Assets:Trip         $75.00

The reason stands behind what failed:

  $ kiv goal update Trip --bank-account 'Car [Budget Item]'
  kiv: Failed to update the goal bank account association. Caused by: The account '6 Trip' of type Asset cannot stand under the account '7 Car' of type Liability.
  [1]

An edited document completes a survey. What went to the goal stays in the family:

  $ january() { cp january.budget household.budget; }
  $ january
  $ kiv survey show First Checking --date 2026-01-31
  Bank                  First
  Account               Checking
  Day of the statement  2026-01-31
  Last reconciled on
  Reconciled balance    $0.00
  Changes since         2025-12-31
  Expected balance      $4,350.00
  Still due this month  $1,500.00
  Changes by budget item
  Item    Transaction  Date        Description                                            Change
  Rent              3  2026-01-31  Processed the budget item due on Sat Jan 31 2026.  -$1,250.00
  Trip              5  2026-01-29  Processed unexpected budget item 'Trip'.              -$75.00
  Salary            4  2026-01-28  Processed the budget item due on Sun Jan 25 2026.   $3,100.00
  Other changes
  Account                        Transaction  Date        Description     Change
  Opening Balances USD [Equity]            1  2026-01-01               $2,500.00
  Set aside
  Item  Before   Added   Paid     Now  Proposed  Expected  Next
  Tax    $0.00  $30.00  $0.00  $30.00    $30.00   $360.00  2026-07-01
  Trip   $0.00  $75.00  $0.00  $75.00    $75.00   $900.00  2026-02-01
  Tax: $360.00 yearly = $30.00 a month, 1 month
  Trip: put into its account: #5
  Free  $4,245.00
  Still due in January 2026, of what is paid monthly
  Nothing is due.
  $ kiv survey show First Checking --date 2026-01-31 --json >shown.json
  $ jq -c '.distribution[0]' shown.json
  {"distributed":{"amount":"30.00","currency":"USD"},"expected":{"amount":"360.00","currency":"USD"},"kind":"bill","name":"Tax","next":"2026-07-01"}
  $ jq '.balance = "4330.50" | .items = [{kind: "bill", name: "Rent", change: "-20.00"}] |
  >     .accounts = [{account: 2, change: "0.50 USD"}]' shown.json >survey.json
  $ jq '.items[0].name = "Nil"' survey.json | kiv survey complete --from -
  kiv: There is no bill 'Nil'; see kiv bill list.
  [1]
  $ kiv survey complete --from - --tick 1 --dry-run <survey.json >told
  [1]
  $ sed '/^Set aside/,$d' told
  Calculated  $2,480.50
  Statement   $4,330.50
  Difference  $1,850.00
  The books are $1,850.00 below the bank (42.72 %), outside the window of 2.75 %: the survey is refused.
  #4 of 2026-01-28, Processed the budget item due on Sun Jan 25 2026. (Salary), $3,100.00, and #3 of 2026-01-31, Processed the budget item due on Sat Jan 31 2026. (Rent), -$1,250.00, are not ticked and add up to it.
  To be posted, of 2026-01-31
  Item or account                 Change
  Rent                           -$20.00
  Opening Balances USD [Equity]    $0.50
  $ kiv survey complete --from survey.json
  Reconciled 1 Checking at First with a balance of $4,330.50.
  $ kiv reconciliation last Checking
  1 Checking was reconciled on 2026-01-31 with a balance of $4,330.50.
  $ kiv reconciliation last Checking --json | jq -c .
  {"account":1,"balance":{"amount":"4330.50","currency":"USD"},"currency":"USD","on":"2026-01-31"}
  $ kiv accounts | grep Trip
       6  Assets:Checking:Trip                      $75.00
  $ kiv ledger Checking | tail -4
       3  2026-01-31  Processed the budget item due on Sat Jan 31 2026.  Rent                           -$1,250.00  $4,275.00  reconciled
       6  2026-01-31  Additional surveyed expense.                       Rent                              -$20.00  $4,255.00  reconciled
       7  2026-01-31  Extra-budget surveyed income.                      Opening Balances USD [Equity]       $0.50  $4,255.50  reconciled
  6 transactions, together $4,255.50.

Flags do the same:

  $ january
  $ kiv survey complete First Checking --date 2026-01-31 --balance 4330.00 --tick-all \
  >     --item bill:Rent=-20 --extra 2=0 --not-distributed 0
  Reconciled 1 Checking at First with a balance of $4,330.00.
  $ books() { kiv reconciliation last Checking; kiv ledger Checking; }
  $ books >flags

Its last survey follows an account to the kind that is right, and the next one starts there:

  $ kiv bank-account attach Checking --bank First --type savings >/dev/null
  $ kiv reconciliation last Checking
  1 Checking was reconciled on 2026-01-31 with a balance of $4,330.00.
  $ kiv survey show First Checking --date 2026-02-15 --json | jq -c '.reconciledOn, .expectedBalance,
  >     (.distribution | map([.name, .distributed.amount]))'
  "2026-01-31"
  {"amount":"4330.00","currency":"USD"}
  [["Tax","60.00"],["Trip","75.00"]]
  $ kiv survey complete First Checking --date 2026-02-15 --balance 4330.00
  Reconciled 1 Checking at First with a balance of $4,330.00.

And so do answers, asked for until they can be understood:

  $ january
  $ run() {
  >     (kiv survey run First "$1" --date 2026-01-31 2>&1 >tables; echo "[$?]") |
  >         sed 's/\(n]\|)\): /\1:\n/g'
  > }
  $ printf '%s\n' 433O 4330.00 yes 'all but 9' ask '' '' '' '' Nobody=1 Rent=-5 Rent '' y | run Checking
  Balance of the statement (empty: $4,350.00):
  kiv: '433O' is not an amount; write one like 1234.50 or '1234.50 USD'.
  Balance of the statement (empty: $4,350.00):
  Which are on the statement? 1-5,9, 'all but 3', 'none', 'ask' (empty: all):
  kiv: 'yes' is not a list of transactions; write one like 1-5,9, 'all', 'all but 3' or 'none'.
  Which are on the statement? 1-5,9, 'all but 3', 'none', 'ask' (empty: all):
  kiv: There is no transaction 9 on the sheet.
  Which are on the statement? 1-5,9, 'all but 3', 'none', 'ask' (empty: all):
  #1 of 2026-01-01, Opening Balances USD [Equity], $2,500.00: is it on the statement? [Y/n]:
  #4 of 2026-01-28, Processed the budget item due on Sun Jan 25 2026. (Salary), $3,100.00: is it on the statement? [Y/n]:
  #5 of 2026-01-29, Processed unexpected budget item 'Trip'. (Trip), -$75.00: is it on the statement? [Y/n]:
  #3 of 2026-01-31, Processed the budget item due on Sat Jan 31 2026. (Rent), -$1,250.00: is it on the statement? [Y/n]:
  What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue):
  kiv: There is no account 'Nobody'; see kiv accounts.
  What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue):
  What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue):
  Amount to set aside for an item, as ITEM=AMOUNT (empty to continue):
  Complete the survey? [Y/n]:
  [0]
  $ tail -1 tables
  Reconciled 1 Checking at First with a balance of $4,330.00.
  $ books | diff flags -

Nothing is set aside of a card, and nobody is asked for a distribution:

  $ kiv bank-account add Card --bank First --type credit-card --balance '80.00 USD' \
  >     --date 2026-01-01
  Added the account 8 Card to the bank 'First'.
  $ kiv pay Rent 20.00 --account Card --date 2026-01-15 >/dev/null
  $ kiv reconciliation last Card
  8 Card was never reconciled.
  $ printf '%s\n' 100 '' y | run Card
  Balance of the statement (empty: $100.00):
  Which are on the statement? 1-5,9, 'all but 3', 'none', 'ask' (empty: all):
  Complete the survey? [Y/n]:
  [0]
  $ kiv survey show First Card --date 2026-02-28 --json | jq -c 'del(.figures, .lines)'
  {"account":8,"accountChanges":[],"accountName":"Card","accounts":[],"amountDue":null,"balance":{"amount":"100.00","currency":"USD"},"bank":"First","date":"2026-02-28","distribution":[],"elsewhere":[],"expectedBalance":{"amount":"100.00","currency":"USD"},"itemChanges":[],"items":[],"nonDistributed":{"amount":"100.00","currency":"USD"},"reconciled":[],"reconciledBalance":{"amount":"100.00","currency":"USD"},"reconciledOn":"2026-01-31","start":"2026-01-31"}
  $ kiv survey complete First Card --date 2026-02-28 --balance 100 --distribute Rent=5
  kiv: The budget item Rent (bill) cannot be distributed.
  [1]

Bad surveys change nothing:

  $ january
  $ each 2 <<'.'
  > survey complete
  > survey complete First Checking
  > survey complete First --from x
  > survey complete First Checking --date 2026-01-31 --balance 4350.00 --tick-all --tick 99
  > .
  kiv: BANK ACCOUNT is missing.
  kiv: --balance is missing.
  kiv: Use either --from or BANK, not both.
  kiv: Use either --tick-all or --tick, not both.
  $ kiv survey show First Checking --date 2199-01-01
  kiv: Cannot perform a mapping survey for a future date, 2199-01-01.
  [1]

The wizard makes a budget of those of a template's items that get amounts, all of them due in
days to come:

  $ start='--file start wizard --template teenager --bank First --account Savings
  >     --type savings --balance 12.50 --currency EUR'
  $ coming() { jq -c 'map(.next > (now | strftime("%F"))) | [length, all]'; }
  $ kiv templates list | sed -n 3p
  teenager                     Teenager
  $ kiv templates show teenager --json >items
  $ coming <items
  [25,true]
  $ each 2 <<'.'
  > $start --item 'Mobile carrier=5'
  > $start --item 'Petrl=5'
  > $start --item 'Petrol=5' --item 'bill:Petrol=6'
  > $start --item 'Petrol=5 of 7'
  > .
  kiv: The template has several items 'Mobile carrier'; write one of: bill:Mobile carrier, goal:Mobile carrier.
  kiv: The template has no item 'Petrl'; did you mean 'Petrol'?
  kiv: 'bill:Petrol' is given twice.
  kiv: 'Petrol' is no goal, and has no target.
  $ kiv $start --item 'goal:Mobile carrier=5 of 300 2024-02-29' --item Petrol=20.50 --json >made
  $ coming <made
  [2,true]
  $ jq -c '.[] | [.name, .amount.amount, .target.amount, .bank]' made
  ["Petrol","20.50",null,null]
  ["Mobile carrier","5.00","300.00","First"]
  $ kiv history --file start --json | jq length
  1
  $ kiv accounts --file start --json | jq -c '[length, .[0]]'
  [4,{"balance":{"amount":"12.50","currency":"EUR"},"name":"Savings","number":1,"open":true,"parent":null,"path":"Assets:Savings","type":"asset"}]
  $ kiv wizard none --template teenager --bank A --account B
  There are no budget items.
  Created the budget 'none.budget'.
  Give its items amounts, such as --item 'Allowance=100'; those without one are left out.
  $ kiv wizard other --template teenager --bank A --account B --type credit-card --item Car=5
  kiv: The goal 'Car' could not be added. Failure making the goal bank account association. Caused by: The account '2 Car' of type Asset cannot stand under the account '1 B' of type Liability.
  [1]
  $ kiv wizard other --template teenager --bank A --account Petrol --item Petrol=1 --currency JPY
  kiv: The bill 'Petrol' could not be added. The budget item has the same name as an existing ledger account.
  [1]
  $ kiv configure show | grep JPY
  [1]
