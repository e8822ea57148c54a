SPDX-License-Identifier: GPL-3.0-or-later

The day of the statement: what differs is said, and what is set aside is explained.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ each 0 <<'.' >/dev/null
  > bank-account add Savings --bank First --type savings
  > account add Food --type expense
  > account add Interest --type expense
  > bill add Tax '360.00 USD' --every yearly --next 2026-07-01
  > goal add Trip '50.00 USD' --target 900 --bank-account Savings --next 2026-02-01
  > post Salary --account Checking --date 2026-01-25
  > spend 50.10 Food --from Checking --payee Market --date 2026-01-10
  > spend 43.22 Food --from Checking --payee Bakery --date 2026-01-12
  > spend 20.00 Food --from Checking --payee Kiosk --date 2026-01-14
  > spend 20.00 Food --from Checking --payee Kiosk --date 2026-01-15
  > .
  $ run() {
  >     (kiv survey run First "$@" 2>&1 >tables; echo "[$?]") | sed 's/\(n]\|)\): /\1:\n/g'
  > }
  $ complete() { kiv survey complete First Checking "$@"; }
  $ figures() { complete --date 2026-01-31 --dry-run "$@" 2>&1 | sed -n '/Difference/,/^Set aside/p' | sed '$d'; }

A difference is always told, with what may be behind it, and stays only where that is said:

  $ figures --balance 5466.68 --tick-all
  Difference  $0.00
  The books agree with the statement.
  $ figures --balance 5466.68 --tick 1,2,4-6
  Difference  -$50.10
  The books are $50.10 above the bank (0.92 %), inside the window of 2.75 %.
  #3 of 2026-01-10, Market (Food), -$50.10, is not ticked and has that amount.
  $ figures --balance 5466.68 --tick 1,2,4,6
  Difference  -$70.10
  The books are $70.10 above the bank (1.28 %), inside the window of 2.75 %.
  #3 of 2026-01-10, Market (Food), -$50.10, and #5 of 2026-01-14, Kiosk (Food), -$20.00, are not ticked and add up to it.
  $ figures --balance 5466.68 --tick 1-2
  Difference  -$133.32
  The books are $133.32 above the bank (2.44 %), inside the window of 2.75 %.
  All that is not ticked adds up to it.
  $ figures --balance 5486.68 --tick-all
  Difference  $20.00
  The books are $20.00 below the bank (0.36 %), inside the window of 2.75 %.
  #5 of 2026-01-14, Kiosk (Food), -$20.00, and #6 of 2026-01-15, Kiosk (Food), -$20.00, are perhaps the same, entered twice.
  $ figures --balance 5509.90 --tick-all
  Difference  $43.22
  The books are $43.22 below the bank (0.78 %), inside the window of 2.75 %.
  #4 of 2026-01-12, Bakery (Food), -$43.22, is ticked and has that amount; is it on the statement?
  $ figures --balance 5553.12 --tick-all
  Difference  $86.44
  The books are $86.44 below the bank (1.56 %), inside the window of 2.75 %.
  #4 of 2026-01-12, Bakery (Food), -$43.22, has half of that amount; did the money go the other way?
  $ figures --balance 5457.68 --tick-all
  Difference  -$9.00
  The books are $9.00 above the bank (0.16 %), inside the window of 2.75 %.
  $ figures --balance 5166.68 --tick-all
  Difference  -$300.00
  The books are $300.00 above the bank (5.81 %), outside the window of 2.75 %: the survey is refused.
  $ complete --date 2026-01-31 --balance 5509.90 --tick-all
  kiv: The books differ from the statement; find what differs, or say that the difference may stay.
  [1]
  $ complete --date 2026-01-31 --balance 5509.90 --tick-all --accept-difference
  Reconciled 1 Checking at First with a balance of $5,509.90.
  The books stay $43.22 below the bank.
  $ told() { kiv accounts; kiv banks; } ; told | grep books
  The books of Checking are $43.22 below the bank since 2026-01-31.
  The books of Checking are $43.22 below the bank since 2026-01-31.
  $ kiv accounts --json | jq -c '.[] | select(.bankDifference) | [.name, .bankDifference.amount]'
  ["Checking","43.22"]
  $ printf '\n\n\n' | run Checking --date 2026-02-01 >/dev/null; grep books tables
  The books of Checking are $43.22 below the bank since 2026-01-31.
  The books agree with the statement.
  The books of Checking are $43.22 below the bank since 2026-01-31.

The difference goes with what explains it, and needs no consent then:

  $ kiv transfer Food Checking 43.22 --date 2026-02-01 >/dev/null
  kiv: warning: This money came from Food, which is an expense account and keeps none.
  $ complete --date 2026-02-02 --balance 5509.90 --tick all --dry-run | sed -n 3,5p
  Difference  -$43.22
  The books are $43.22 above the bank (0.78 %), inside the window of 2.75 %.
  With it, the books are as the bank has them again.
  $ complete --date 2026-02-02 --balance 5509.90 --tick all
  Reconciled 1 Checking at First with a balance of $5,509.90.
  $ told | grep books
  [1]

A survey is put off with all that was entered; what changed meanwhile is said:

  $ kiv spend 12.50 Food --from Checking --date 2026-02-03 >/dev/null
  $ kiv spend 7.30 Food --from Checking --date 2026-02-04 >/dev/null
  $ printf '5480.10\nall\nFood=-3\nRent=-7\nTax=40\n\nn\ny\n' | run Checking --date 2026-02-05 | tail -1; grep -i off tables
  [0]
  Put off the survey of Checking of 2026-02-05.
  $ kiv history --json | jq -r '.[0].change'
  Put off the survey of Checking of 2026-02-05.
  $ kiv transaction update 8 --amount 13.50 >/dev/null
  $ printf '\n\nn\nn\n' | run Checking; sed -n 1,3p tables; grep -e Tax -e books tables
  Which are on the statement? 1-5,9, 'all', 'all but 3', 'ask' (empty: the one ticked):
  What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue):
  May the difference of -$12.50 stay? It is told until it is gone. [y/N]: Put the survey off, to go on with it later? [Y/n]:
  kiv: The survey was not completed; nothing is saved.
  [1]
  The survey of 2026-02-05 goes on, as it was put off.
  Changed or reconciled since the survey was put off, and not ticked any more: #8
  Bank                  First
  The books are $12.50 above the bank (0.23 %), inside the window of 2.75 %.
  $ printf '\n\n\nn\nn\n' | run Checking --anew | head -1
  Balance of the statement (empty: $5,489.10):
  $ kiv undo --steps 2 >/dev/null
  $ printf '' | run Checking --date 2026-02-05 | head -1
  Balance of the statement (empty: $5,490.10):

Money that another account's survey reconciled is listed where it was never counted:

  $ kiv transfer Checking Trip 60 --date 2026-02-06 >/dev/null
  $ kiv survey complete First Checking --date 2026-02-06 --balance 5430.10 --tick-all >/dev/null
  $ printf '' | run Savings --date 2026-02-06; sed '1,/^Number/d' tables
  Balance of the statement (empty: $60.00):
  kiv: The input ended before the last question; nothing is saved.
  [1]
      10  2026-02-06  Transfer     Checking         $60.00  ticked
  #10 of 2026-02-06, Transfer (Checking), $60.00, was reconciled with Checking and is not yet seen here.
  This stood on standard output.
  $ kiv survey complete First Savings --date 2026-02-06 --balance 60
  Reconciled 5 Savings at First with a balance of $60.00.
  $ printf '' | run Savings --date 2026-02-07 | head -1; sed '1,/^Reconciled/d' tables
  Balance of the statement (empty: $60.00):
  Nothing is open up to this day.
  This stood on standard output.

Nothing is set aside at an account any more; a closed one can be asked, too:

  $ kiv survey drop First Checking
  Nothing is set aside at Checking any more.
  $ kiv envelopes Checking --on 2026-02-06 | sed -n 2p
  Checking  $5,430.10      $0.00  $5,430.10       $0.00  2026-02-06

A bank's file says day, balance and what is on the statement; the interest of a card goes to its account:

  $ kiv bank-account add Card --bank First --type credit-card --date 2026-01-01 >/dev/null
  $ kiv spend 30.00 Food --from Card --payee Market --date 2026-01-10 >/dev/null
  $ kiv spend 12.00 Food --from Card --payee Kiosk --date 2026-01-20 >/dev/null
  $ cat >card.csv <<'.'
  > Date,Text,Amount,Balance
  > 2026-01-10,Market,-30.00,-30.00
  > 2026-01-20,Kiosk,-12.00,-42.00
  > 2026-01-31,Interest,-1.44,-43.44
  > .
  $ printf '\n\n' | run Card --bank-file card.csv; sed -n '/^1 entry/,/^To/p; /^The books/p' tables
  Which are on the statement? 1-5,9, 'all', 'all but 3', 'ask' (empty: the 2 ticked):
  What is on the statement but not in the books, as NAME=AMOUNT, or NAME for all that is missing? (empty to continue):
  May the difference of $1.44 stay? It is told until it is gone. [y/N]: kiv: The input ended before the last question; nothing is saved.
  [1]
  1 entry of the file is not in the books: -$1.44 of 2026-01-31, Interest
  To enter them, leave the survey and use kiv import.
  The books are $1.44 below the bank (3.31 %), which is never refused for what is owed.
  $ kiv survey complete First Card --bank-file card.csv --difference-to Interest
  Reconciled 10 Card at First with a balance of $43.44.
  $ kiv accounts | grep Interest
       7  Expenses:Interest                         $1.44

Wrong statements change nothing:

  $ echo 'Date,Text,Amount' >empty.csv
  $ each 1 <<'.'
  > survey complete First Checking --bank-file card.csv
  > survey complete First Card --bank-file empty.csv --balance 1
  > .
  kiv: Checking was reconciled on 2026-02-06 already; the statement of 2026-01-31 is older.
  kiv: 'empty.csv' tells no day; give that of the statement.
  $ kiv survey complete First Card --balance 1 --tick 5-3
  kiv: '5-3' is not a list of transactions; write one like 1-5,9, 'all', 'all but 3' or 'none'.
  [2]

Files of single weeks: what an earlier one told stays ticked:

  $ each 0 <<'.' >/dev/null
  > bank-account add Visa --bank First --type credit-card --date 2026-01-01
  > spend 10.00 Food --from Visa --payee Market --date 2026-01-10
  > spend 5.00 Food --from Visa --payee Market --date 2026-01-17
  > spend 3.00 Food --from Visa --payee Kiosk --date 2026-01-18
  > .
  $ week() { printf 'Date,Text,Amount,Balance\n2026-01-%s,Market,-%s,-%s\n' "$@" >week.csv; }
  $ week 10 10.00 10.00; kiv import week.csv --into Visa | head -1
  New: 0; matched: 1; already imported: 0; left out: 0; accounts opened: 0.
  $ week 17 5.00 15.00; kiv survey run First Visa --bank-file week.csv --dry-run </dev/null 2>/dev/null |
  >     sed -n '/^Number/,/^Difference/p'
  Number  Date        Description  Item or account  Change
      14  2026-01-10  Market       Food             $10.00  ticked
      15  2026-01-17  Market       Food              $5.00  ticked
  Calculated  $15.00
  Statement   $15.00
  Difference  $0.00

The end of a month from the banks' files, with few answers. Money between two
accounts stands in both files, after the first account was surveyed, too:

  $ export KIV_FILE=year.budget
  $ kiv demo --date 2026-06-30 >/dev/null
  $ told() {
  >   kiv ledger "$1" --from 2026-06-11 --json | jq -r --argjson sign "$2" --argjson under "$3" '
  >     def cents: tonumber * 100 | round * $sign;
  >     def money: "\(. / 100 | trunc).\(. % 100 | fabs | tostring | "0\(.)"[-2:])";
  >     ["Date","Text","Amount","Balance"],
  >     (.transactions[] | [.date, .description, (.change.amount | cents | money),
  >       (.balance.amount | cents + $under | money)]) | @csv' >"$1.csv"
  > }
  $ told Checking 1 0; told 'Credit card' -1 0; told Savings 1 246000
  $ for account in Checking 'Credit card' Savings; do
  >   kiv import "$account.csv" --into "$account" </dev/null | head -1
  >   printf '\n\n\n\n' | kiv survey run 'Town Bank' "$account" --bank-file "$account.csv" 2>asked | tail -1
  >   sed 's/\(n]\|)\): /\1:\n/g' asked
  > done
  New: 0; matched: 10; already imported: 0; left out: 0; accounts opened: 0.
  Reconciled 1 Checking at Town Bank with a balance of $7,258.29.
  Amount to set aside for an item, as ITEM=AMOUNT (empty to continue):
  Complete the survey? [Y/n]:
  New: 0; matched: 5; already imported: 0; left out: 0; accounts opened: 0.
  Reconciled 3 Credit card at Town Bank with a balance of $242.05.
  Complete the survey? [Y/n]:
  New: 0; matched: 1; already imported: 0; left out: 0; accounts opened: 0.
  Reconciled 4 Savings at Town Bank with a balance of $13,641.55.
  Amount to set aside for an item, as ITEM=AMOUNT (empty to continue):
  Complete the survey? [Y/n]:

What an account held that no bank keeps any more goes, too; else its items could be set aside nowhere:

  $ export KIV_FILE=household.budget
  $ kiv survey complete First Checking --date 2026-02-07 --balance 5430.10 --distribute Tax=10 >/dev/null
  $ kiv bank-account detach Checking >/dev/null
  $ kiv envelopes | grep Tax
  $10.00 is set aside for 'Tax' at Checking, where nothing can be set aside any more.
  $ kiv survey drop First Checking
  Nothing is set aside at Checking any more.
  $ kiv envelopes --items | grep Tax
  Tax    $0.00  $270.00  $0.00  $270.00    $360.00  2026-07-01
  Tax: not set aside on 2026-02-06; $360.00 yearly = $30.00 a month, 9 months
  $ kiv survey drop First Checking
  kiv: The account 'Checking' is not assigned to a bank; assign it with kiv bank-account attach.
  [1]
