SPDX-License-Identifier: GPL-3.0-or-later

What is to come, if everything regular goes on.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ each 0 <<'.' >/dev/null
  > account add Food --type expense
  > goal add Trip '400.00 USD' --target 700 --bank-account Checking --next 2026-02-03
  > debt add Car '300.00 USD' --borrowed 500 --bank First --next 2026-02-05 --date 2026-01-10
  > post Salary --account Checking --date 2026-01-25
  > transfer Checking Food 2000 --date 2026-02-10
  > transfer Checking Food 2100 --date 2026-01-20
  > .
  $ kiv outlook --date 2026-01-31 --days 60 --floor 100 --payments
  Lowest on 2026-02-10: -$450.00, because of #4, to Food.
  Below $100.00 for the first time on 2026-02-10.
  Free until the next wage on 2026-02-25: -$450.00.
  Account         Now    Lowest  On          Because of   At the end
  Checking  $3,500.00  -$450.00  2026-02-10  #4, to Food   $2,550.00
  Car        -$500.00  -$500.00  2026-01-31                  $100.00
  Date        What         From      To           Amount
  2026-01-31  Rent         Checking  Rent      $1,250.00
  2026-02-03  Trip         Checking  Trip        $400.00
  2026-02-05  Car          Checking  Car         $300.00
  2026-02-10  #4, to Food  Checking  Food      $2,000.00
  2026-02-25  Salary       Salary    Checking  $3,100.00
  2026-02-28  Rent         Checking  Rent      $1,250.00
  2026-03-03  Trip         Checking  Trip        $400.00
  2026-03-05  Car          Checking  Car         $300.00
  2026-03-25  Salary       Salary    Checking  $3,100.00
  2026-03-31  Rent         Checking  Rent      $1,250.00
  $ kiv outlook --date 2026-01-31 --days 60 --without Rent --without Trip --with '900 on 2026-02-24' \
  >     --with '-50 on 2026-02-01' | head -2
  Lowest on 2026-02-24: $350.00, because of what was asked about.
  Free until the next wage on 2026-02-25: $350.00.
  $ kiv outlook --date 2026-01-31 --days 2 --json | jq -c '.together | .lowest, .because, .days'
  {"amount":"2250.00","currency":"USD"}
  "Rent"
  [{"amount":"2250.00","currency":"USD"},{"amount":"2250.00","currency":"USD"}]
  $ kiv bill add Hotel '9 EUR' --next 2026-02-02 >/dev/null
  $ kiv outlook --date 2026-01-31 --days 9 | tail -1
  The outlook leaves 'Hotel' out: there is no exchange rate between EUR and USD.
  $ each 1 <<'.'
  > outlook --date 2026-01-31 --days 9 --with '5 on 2026-02-09'
  > outlook --floor '5 EUR'
  > .
  kiv: 2026-02-09 is behind 2026-02-08, the last day that is looked at.
  kiv: There is no exchange rate between EUR and USD.
  $ each 2 <<'.'
  > outlook --days 0
  > outlook --days 5000
  > outlook --with 900
  > outlook --with '900 on 2026-02-30'
  > .
  kiv: '0' is not a whole number from 1 to 3660.
  kiv: '5000' is not a whole number from 1 to 3660.
  kiv: '900' is not of the form 'AMOUNT on DAY', such as '900 on 2026-12-05'.
  kiv: '2026-02-30' is not a valid date; write one like 2026-03-31.
  $ kiv outlook --without Nothing
  kiv: There is no budget item 'Nothing'; see kiv bill list (or debt, goal, nontrack, wage).
  [1]
