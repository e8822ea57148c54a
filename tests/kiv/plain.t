SPDX-License-Identifier: GPL-3.0-or-later

Money is entered, moved and found by the names that a household uses.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ each 0 <<'.' >/dev/null
  > bill add Groceries 400 --next 2026-03-01
  > nontrack add Rent 20 --next 2026-03-01
  > goal add Trip 50 --target 900 --next 2026-02-05
  > debt add Car 100 --borrowed 5000 --next 2026-02-05 --date 2026-01-01
  > bank-account add Visa --bank First --type credit-card --date 2026-01-01
  > account add Euros --type asset --currency EUR
  > .

An item's name stands for its account; a kind tells two items apart:

  $ kiv transaction add 3 --debit Groceries --credit Visa --date 2026-02-01 >/dev/null
  $ kiv ledger Groceries
  5 Groceries
  Number  Date        Description  Other account  Change  Balance  Status
       3  2026-02-01               Visa            $3.00    $3.00  none
  $ kiv ledger Rent
  kiv: Several accounts are named 'Rent'; write one of: bill:Rent, nontrack:Rent.
  [1]
  $ kiv ledger nontrack:Rent --json | grep name
          "name": "Rent [Budget Item]",
  $ kiv ledger wage:Rent
  kiv: There is no account 'wage:Rent'; see kiv accounts.
  [1]
  $ kiv ledger Grocereis
  kiv: There is no account 'Grocereis'; did you mean 'Groceries'?
  [1]
  $ kiv account recode Trip --name Journey
  The account 7 Assets:Trip is now 7 Assets:Journey.
  $ kiv ledger Trip | head -1
  7 Journey

Without an account the last one pays, and at first the first checking account:

  $ kiv spend 42.10 Groceries --payee Market --reason weekly --date 2026-02-03
  Spent $42.10 from Visa on Groceries (transaction 4).
  $ kiv spend 7 bill:Rent --date 2026-02-03
  Spent $7.00 from Checking on bill:Rent (transaction 5).
  $ kiv spend 100 Car --from Checking --date 2026-02-04
  Spent $100.00 from Checking on Car (transaction 6).
  $ kiv spend 5 Groceries --from bill:Rent
  kiv: 'bill:Rent' keeps no money; name an account such as a bank account, a card or cash.
  [1]
  $ kiv spend 5 Checking
  kiv: Money is not spent on 'Checking'; name a budget item or an expense account, or move it to 'Checking'.
  [1]
  $ kiv earn 3100 Salary --payee Works --date 2026-02-25
  Earned $3,100.00 from Salary to Checking (transaction 7).
  $ kiv earn 5 Trip
  kiv: Money is not earned from 'Journey'; name a wage or an income account, or move it from 'Journey'.
  [1]

Money moves between any accounts, and the receiver is debited:

  $ kiv transfer Checking Visa 420.15 --date 2026-02-26 >/dev/null
  $ kiv transfer Checking Car 50 --description 'Bank | extra' --date 2026-02-27 >/dev/null
  $ kiv transfer Visa Trip 12 --dry-run --json | grep -E 'credit"|debit"|description'
      "credit": 9,
      "debit": 7,
      "description": "Transfer",
  $ kiv transactions | grep -e Market -e bill:Rent -e Bank
       4  2026-02-03  Market | weekly  Groceries                      Visa                              $42.10
       5  2026-02-03                   bill:Rent                      Checking                           $7.00
       9  2026-02-27  Bank | extra     Car                            Checking                          $50.00

A search looks at all of it, and sums up what was spent and earned:

  $ kiv find groceries --date 2026-03-15
  Number  Date        Description      Debit      Credit  Amount
       3  2026-02-01                   Groceries  Visa     $3.00
       4  2026-02-03  Market | weekly  Groceries  Visa    $42.10
  2 of 9, together -$45.10.
  $ kiv find --date 2026-03-15 -- february '>50' not:cleared -works -visa | tail -2
       6  2026-02-04               Car    Checking  $100.00
  1 of 9, together $0.00.
  $ kiv find 'item:car <=100' --json | grep -E 'count|of"|filter'
      "count": 2,
      "filter": "item:car <=100",
      "of": 9,
  $ kiv find nothing
  No transaction fits.
  0 of 9, together 0.

What was paid in one go is split, all or none, and is one step of undo:

  $ kiv transaction add --split Groceries=40 --split nontrack:Rent=12.30 --payee Market --date 2026-03-01 | tail -2
      11  2026-03-01  Market       nontrack:Rent  Visa    $12.30
  Spent $52.30 on Groceries, nontrack:Rent.
  $ kiv transaction add --split Salary=3000 --split Salary=9.50 --to Checking --dry-run | tail -2
  Earned $3,009.50 from Salary.
  Dry run: nothing is saved.
  $ each 2 <<'.'
  > transaction add --split Groceries=40
  > transaction add --split Groceries=99999999999999999999999999 --split Car=99999999999999999999999999
  > transaction add 5 --split Groceries=40
  > transaction add 5 --debit Groceries --from Visa
  > transaction add 5 --debit Groceries
  > .
  kiv: A split has at least two parts.
  kiv: The amount '99999999999999999999999999' is too large.
  kiv: Use either --split or AMOUNT, not both.
  kiv: Use --from only together with --split.
  kiv: --credit is missing.
  $ kiv undo >/dev/null
  $ kiv info | grep Transactions
  Transactions    9
  $ printf '%s\n' 'transaction add --split Groceries=40 --split Visa=1' 'info' | kiv shell | grep Transactions
  kiv: Money is not spent on 'Visa'; name a budget item or an expense account, or move it to 'Visa'.
  Transactions    9

An exchange keeps both amounts as the bank booked them, without a rate:

  $ kiv transfer Checking Euros 200 --received '183.40 EUR' --date 2026-03-02 >/dev/null
  $ kiv accounts | grep -E 'Checking|Euros|Conversion:'
       1  Assets:Checking                        $4,822.85
      10  Assets:Euros                             \xe2\x82\xac183.40 (esc)
      13  Equity:Conversion:EUR                    \xe2\x82\xac183.40 (esc)
      12  Equity:Conversion:USD                   -$200.00
  $ kiv transfer Checking Euros '200 EUR' --received 183.40
  kiv: 'Checking' is kept in USD; give its amount in USD instead of EUR.
  [1]
  $ kiv transfer Checking Visa 5 --received 5
  kiv: 'Checking' and 'Visa' are both kept in USD, so nothing is exchanged; move one amount.
  [1]
  $ kiv transfer Euros Checking 10 --received 11 --json | jq -c '.[] | [.number, .amount.currency]'
  [12,"EUR"]
  [13,"USD"]
