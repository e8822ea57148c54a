SPDX-License-Identifier: GPL-3.0-or-later

What a budget holds is listed, and each field of it changed alone.

  $ . "$TESTDIR/household.sh"

Banks, accounts and their states:

  $ kiv new >/dev/null
  $ kiv banks
  There are no banks.
  $ kiv tags list
  There are no tags.
  $ begin
  $ kiv bank-account add Savings --bank First --type savings >/dev/null
  $ kiv bank-account rename Savings --under Checking --name 'Rainy days'
  The bank account 5 Assets:Savings is now 5 Assets:Checking:Rainy days.
  $ kiv account add Food --type expense --number 500
  Added the account 500 Food.
  $ kiv account recode Food --number 510
  The account 500 Expenses:Food is now 510 Expenses:Food.
  $ kiv account close 510
  Closed the account 510 Food.
  $ kiv bank rename First Second
  The bank is now called 'Second'.
  $ kiv banks
  Second
  Number  Account     Type        Balance
       1  Checking    checking  $2,500.00
       5  Rainy days  savings       $0.00

Money goes into a sub-account:

  $ kiv transaction add 70 --debit 'Rainy days' --credit Checking --date 2026-02-01
  Posted transaction 2.

What is there is told:

  $ begin
  $ kiv bill add Gym 30 --next 2026-02-03 --tag sport --tag home >/dev/null
  $ kiv goal add Trip 50 --target 900 --bank-account Checking --next 2026-02-05
  Added the goal 'Trip'.
  $ kiv account add Food --type expense --date 2026-01-01 >/dev/null
  $ kiv account add Old --type expense >/dev/null
  $ kiv account close Old >/dev/null
  $ kiv bank add Second >/dev/null
  $ kiv bank close Second
  Closed the bank 'Second'.
  $ kiv rates set USD EUR=0.80 >/dev/null
  $ kiv configure set --usable USD --usable EUR >/dev/null
  $ kiv account add Euros --type asset --currency EUR --balance 1 --date 2026-01-01 >/dev/null
  $ kiv transaction add '8 USD' --debit Euros --credit Checking --date 2026-02-02 >/dev/null
  $ kiv pay Rent 100 --account Checking --date 2026-02-03 >/dev/null
  $ kiv transaction clear 4 >/dev/null
  $ kiv account recode Food --under Old
  The account 7 Expenses:Food is now 7 Expenses:Old:Food.
  $ kiv transaction update 3 --date 2026-02-01 >/dev/null
  $ kiv history diff
  What         Name  Change   Detail
  transaction  3     changed  date 2026-02-02 → 2026-02-01
  $ kiv accounts | sed 1,7d
       8  Expenses:Old                              $0.00  closed
       7  Expenses:Old:Food                         $0.00
       3  Expenses:Rent                           $100.00
       4  Income:Salary                             $0.00
  At banks and in cash: $2,392.00, €7.40.
  Together: $2,392.00, €7.40.
  $ kiv banks | tail -2
  Second (closed)
  There are no accounts.
  $ kiv banks --json | jq -c '.[]'
  {"accounts":[{"balance":{"amount":"2392.00","currency":"USD"},"name":"Checking","number":1,"type":"checking"},{"balance":{"amount":"0.00","currency":"USD"},"name":"Trip [Budget Item]","number":6,"type":"goal sub-account"}],"name":"First","open":true}
  {"accounts":[],"name":"Second","open":false}
  $ kiv ledger Checking --from 2026-02-01 --to 2026-02-02
  1 Checking
  Number  Date        Description  Other account  Change    Balance  Status
       3  2026-02-01               Euros          -$8.00  $2,492.00  none
  $ kiv transactions --json --from 2026-02-01 --to 2026-02-02 | jq -c '.[]'
  {"amount":{"amount":"8.00","currency":"USD"},"credit":1,"creditAmount":{"amount":"8.00","currency":"USD"},"creditPath":"Assets:Checking","creditStatus":"none","date":"2026-02-01","debit":9,"debitAmount":{"amount":"6.40","currency":"EUR"},"debitPath":"Assets:Euros","debitStatus":"none","description":"","number":3}
  $ kiv refundable Rent
  Number  Date        Description                               Debit  Credit     Amount
       4  2026-02-03  Processed unexpected budget item 'Rent'.  Rent   Checking  $100.00
  $ kiv due --date 2026-02-02 --within 3 | grep Gym
  2026-02-03  Gym     bill     $30.00  tomorrow
  $ kiv tags list
  home
  sport

Each field of something is changed alone:

  $ begin
  $ each 0 <<'.' >/dev/null
  > account add Food --type expense
  > account add Out --type expense --under Food
  > account recode Out --top-level
  > pay Rent 100 --account Checking
  > transaction update 2 --amount 'USD 90'
  > transaction update 2 --debit Food
  > transaction update 2 --credit 'Rent [Budget Item]'
  > transaction update 2 --date 2026-02-09
  > bill update Rent --every weekly
  > bill update Rent --next 2026-03-01
  > bill update Rent --tag home
  > .
  kiv: warning: This money came from Rent, which is an expense account and keeps none.
  $ kiv debt add Car 20 --borrowed 500 --bank First --next 2026-02-01 --date 2026-01-02
  Added the debt 'Car'.
  $ kiv bank add Second >/dev/null
  $ kiv debt update Car --borrowed 400
  Changed the debt 'Car'.
  $ kiv debt update Car --bank Second >/dev/null
  $ kiv bill list | tail -1
  Rent  $1,250.00  weekly  2026-03-01  home
  $ kiv bill update Rent --no-tags >/dev/null
  $ kiv post Rent --amount 7 --account Checking --date 2026-03-01 >/dev/null
  $ kiv bank-account detach Checking
  Separated the account 1 Checking from the bank 'First'.
  $ kiv transactions
  Number  Date        Description                                       Debit                          Credit                            Amount
       1  2026-01-01                                                    Checking                       Opening Balances USD [Equity]  $2,500.00
       2  2026-02-09  Processed unexpected budget item 'Rent'.          Food                           Rent                              $90.00
       3  2026-01-02                                                    Opening Balances USD [Equity]  Car                              $500.00
       4  2026-03-01  Processed the budget item due on Sun Mar 1 2026.  Rent                           Checking                           $7.00
  $ kiv bill list | tail -1
  Rent  $1,250.00  weekly  2026-03-08
  $ kiv debt list --json | jq -c .[]
  {"amount":{"amount":"20.00","currency":"USD"},"bank":"Second","bankAccount":7,"borrowed":{"amount":"400.00","currency":"USD"},"every":"monthly","kind":"debt","name":"Car","next":"2026-02-01","tags":[]}

What was closed is opened again, and what was added is removed:

  $ begin
  $ kiv account add Food --type expense >/dev/null
  $ kiv account close Food >/dev/null
  $ kiv account open Food
  Opened the account 5 Food again.
  $ kiv account remove Food
  Removed the account 5 Food.
  $ kiv bank-account add Card --bank First --type credit-card >/dev/null
  $ kiv bank-account detach Card
  Separated the account 5 Card from the bank 'First'.
  $ kiv bank-account attach Card --bank First --type line-of-credit
  Assigned the account 5 Card to the bank 'First'.
  $ kiv banks | grep Card
       5  Card      line of credit      $0.00
  $ kiv bank-account remove Card
  Removed the bank account 5 Card.
  $ kiv bank add Second >/dev/null
  $ for account in Jar Pot; do kiv bank-account add $account --bank Second; done >/dev/null
  $ kiv account close Jar >/dev/null
  $ kiv bank close Second >/dev/null
  $ kiv account open Jar >/dev/null
  $ kiv bank open Second >/dev/null
  $ kiv accounts --type asset --open | tail -3
       5  Assets:Jar           $0.00
       6  Assets:Pot           $0.00
  At banks and in cash: $2,500.00.
  $ for account in Jar Pot; do kiv bank-account remove $account; done >/dev/null
  $ kiv bank remove First
  Removed the bank 'First'.
  $ kiv transactions
  There are no transactions.
  $ kiv ledger 2
  2 Opening Balances USD [Equity]
  There are no transactions.
