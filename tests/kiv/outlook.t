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
  $ kiv outlook --date 2026-01-31 --days 60 --floor 100 --payments | sed '12,$d'
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
  $ kiv outlook --date 2026-01-31 --days 60 --chart | sed -n '3,4p;22,23p'
  2026-01-31       ███████████████████████████████                      $2,250.00
  2026-02-03       █████████████████████                                $1,550.00
  2026-03-29       ███████████████████████████████████                  $2,550.00
  
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
  > outlook --without Nothing
  > .
  kiv: 2026-02-09 is behind 2026-02-08, the last day that is looked at.
  kiv: There is no exchange rate between EUR and USD.
  kiv: There is no budget item 'Nothing'; see kiv bill list (or debt, goal, nontrack, wage).
  $ each 2 <<'.'
  > outlook --days 5000
  > outlook --with 900
  > .
  kiv: '5000' is not a whole number from 1 to 3660.
  kiv: '900' is not of the form 'AMOUNT on DAY', such as '900 on 2026-12-05'.

Until nothing is left, with the interest that the account shows, for each day of what was owed:

  $ begin
  $ kiv debt add Loan '400 USD' --borrowed 1200 --next 2026-02-05 --date 2026-01-05 >/dev/null
  $ kiv account add Interest --type expense >/dev/null
  $ kiv goal add Trip '300 USD' --target 700 --bank-account Checking --next 2026-02-03 >/dev/null
  $ kiv debt schedule Loan --date 2026-02-04 | head -2
  Of the debt 'Loan' are $1,200.00 left: paid off on 2026-04-05, after 3 payments.
  Interest is left out: the account of the debt shows none.
  $ kiv transfer Loan Interest 12 --date 2026-02-04 >/dev/null
  $ kiv debt schedule Loan --date 2026-02-04 --more 200
  Of the debt 'Loan' are $1,212.00 left: paid off on 2026-05-05, after 4 payments.
  With interest of about 12.17 % a year: from 2026-01-05 to 2026-02-04 the account of the debt was charged with $12.00.
  Interest to come: $12.56.
  With $200.00 more a month it ends on 2026-04-05, 30 days earlier. That spares $6.25 of interest.
  Date         Amount  Interest     Left
  2026-02-05  $600.00     $0.40  $612.40
  2026-03-05  $600.00     $5.72   $18.12
  2026-04-05   $18.31     $0.19    $0.00
  $ kiv goal schedule Trip --date 2026-02-04 --more 50
  The goal 'Trip' lacks $700.00: reached on 2026-04-03, after 3 payments.
  With $50.00 more a month it ends on 2026-03-03, 31 days earlier.
  Date         Amount     Left
  2026-02-04  $350.00  $350.00
  2026-03-03  $350.00    $0.00
  $ kiv debt update Loan --amount 5 >/dev/null
  $ kiv goal update Trip --every none >/dev/null
  $ kiv debt schedule Loan --date 2026-02-04 --json | jq -c '.end, .interestPercent, .payments'
  null
  12.17
  []
  $ each 1 <<'.'
  > debt schedule Loan --more 0
  > goal schedule Trip
  > .
  kiv: What is paid more a month must be above zero.
  kiv: 'Trip' has no schedule: it is not due regularly, or its amount is not above zero.

What is closed is not paid, what has no rate is named, and a day that rises has no cause:

  $ begin
  $ kiv bank-account add Euros --bank First --balance '10 EUR' --date 2026-01-01 >/dev/null
  $ kiv account close Rent >/dev/null
  $ kiv bill add Phone 20 --next 2026-01-25 --date 2026-01-20 >/dev/null
  $ kiv outlook --date 2026-01-25 --days 3 --floor 9000
  Lowest on 2026-01-25: $5,580.00.
  Below $9,000.00 for the first time on 2026-01-25.
  Free until the end, without a wage: $5,580.00.
  Account         Now     Lowest  On          Because of  At the end
  Checking  $2,500.00  $5,580.00  2026-01-25               $5,580.00
  Euros        €10.00     €10.00  2026-01-25                  €10.00
  The outlook leaves 'Rent' out: its account is closed.
  All together is without the accounts in EUR: there is no exchange rate between EUR and USD.
  $ kiv outlook --date 2026-01-25 --with '0 on 2026-01-26'
  kiv: An amount of zero changes nothing that is to come.
  [1]

A name that several items have is written with its kind, as the refusal says:

  $ kiv wage add Rent 5 --next 2026-02-01 >/dev/null
  $ kiv outlook --date 2026-01-25 --without Rent
  kiv: Several budget items are named 'Rent'; write one of these: bill:Rent, wage:Rent.
  [1]
  $ kiv outlook --date 2026-02-01 --days 1 --without bill:Rent --json | jq -c '.payments[] | [.name, .kind, .transaction]'
  ["Phone","bill",null]
  ["Salary","wage",null]
  ["Rent","wage",null]

Without a checking account another one of a bank pays, but none that is owed:

  $ kiv new poor.budget >/dev/null; export KIV_FILE=poor.budget
  $ kiv bank add First >/dev/null
  $ kiv bank-account add Card --bank First --type credit-card --balance 100 --date 2026-01-01 >/dev/null
  $ kiv outlook --date 2026-01-25 --days 9 --with '5 on 2026-01-26'
  kiv: No bank has an open account that could pay or get this amount.
  [1]
  $ kiv bank-account add Savings --bank First --type savings --balance 10 --date 2026-01-01 >/dev/null
  $ kiv outlook --date 2026-01-25 --days 9 --with '5 on 2026-01-26' | tail -2
  Card     -$100.00  -$100.00  2026-01-25                          -$100.00
  Savings    $10.00     $5.00  2026-01-26  what was asked about       $5.00
