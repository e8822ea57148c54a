SPDX-License-Identifier: GPL-3.0-or-later

Why a figure is what it is: each is shown with the lines that come to it.

  $ . "$TESTDIR/household.sh"
  $ kiv demo --date 2025-03-31 >/dev/null
  $ kiv explain balance Savings --on 2024-07-08 | sed '9,$d'
  Balance of Savings at the end of 2024-07-08: $6,831.31
  What                                                        Date        Transaction     Amount
  Opening balance                                             2024-03-31            2  $4,512.00
  3 earlier entries                                           2024-04-15                 $390.00
  Checking: Saving                                            2024-05-05           55    $650.00
  Holiday: Processed the budget item due on Wed May 8 2024.   2024-05-08           59   -$150.00
  Bicycle: Processed the budget item due on Wed May 15 2024.  2024-05-15           69   -$110.00
  Old savings: Account given up                               2024-05-15           70    $640.38
  $ kiv explain share Electricity
  The share of a month of Electricity: $41.00
  What              Date        Transaction  Amount
  every two months  2025-04-11               $82.00
  times a year                                  \xc3\x97 6 (esc)
  months of a year                             \xc3\xb7 12 (esc)
  $ kiv explain set-aside Checking Electricity --date 2025-03-31
  Set aside for Electricity at Checking: $41.00
  What                                                       Date        Transaction  Amount
  Before: set aside on 2025-03-11                            2025-03-11               $41.00
  Added: $82.00 every two months = $41.00 a month, 0 months                            $0.00
  $ kiv explain free --date 2025-03-31 | sed '1,2d; 5,6d'
  Balance of Checking           2025-03-31                $7,273.79
  Set aside for Car tax                                    -$124.00
  Balance of Savings            2025-03-31               $13,641.55
  Set aside for Bicycle                                    -$660.00
  Set aside for Holiday                                  -$1,800.00
  $ kiv explain tolerance Checking --balance 1000 --date 2025-03-31
  How far the books of Checking may be from the statement: $27.50
  What                      Date        Transaction     Amount
  Balance of the statement  2025-03-31               $1,000.00
  the window of 2.75 %                                \xc3\x97 0.0275 (esc)
  $ kiv explain health debts
  Debts take 8.2 % of the income; up to 36 % is sound.
  What                            Date  Transaction     Amount
  Car loan                                             $210.00
  Family loan                                           $50.00
  of the income: Evening classes                       $303.33
  of the income: Salary                              $2,850.00
  $ kiv explain health --json | jq -c 'map(.percent), .[4].lines[-1].role'
  ["53.8","46.3","8.2","2.7","4.7"]
  "of"
  $ kiv explain outlook 2025-04-02 --date 2025-03-31
  All money at the end of 2025-04-02, as it is expected: $18,365.44
  What                          Date        Transaction      Amount
  At the end of the day before  2025-04-01               $18,420.44
  Bus pass                      2025-04-02                  -$55.00
  $ kiv explain outlook 2025-03-31 Checking --date 2025-03-31 --json | jq -c '.[].lines[-1]'
  {"amount":{"amount":"-34.90","currency":"USD"},"date":"2025-03-31","factor":null,"role":"adds","text":"Internet","transaction":null}

A conversion has its rate, with the day and the source; one of the past has its two sides:

  $ each 1 <<'.'
  > explain conversion '100 EUR'
  > explain conversion --entry 4
  > .
  kiv: There is no exchange rate between EUR and USD.
  kiv: Nothing of transaction 4 was converted; it is all in one currency.
  $ kiv rates set USD EUR=0.80 CHF=0.90 | wc -l
  4
  $ kiv explain conversion '100 EUR' CHF | sed "s/$(date -u +%Y-%m-%d)/TODAY/"
  \xe2\x82\xac100.00 in CHF: CHF\xc2\xa0112.50 (esc)
  What                             Date        Transaction   Amount
  Amount in EUR                                             \xe2\x82\xac100.00 (esc)
  what 1 EUR is in CHF                                      \xc3\x97 1.125 (esc)
  1 USD is 0.8 EUR, typed by hand  TODAY
  1 USD is 0.9 CHF, typed by hand  TODAY
  $ kiv transfer Checking 'Travel cash' '50 USD' --date 2025-03-31 >/dev/null
  $ kiv transfer 'Travel cash' Checking '10 EUR' --date 2025-03-31 >/dev/null
  $ kiv rates set USD EUR=0.50 >/dev/null; kiv account convert 'Travel cash' --type liability >/dev/null
  $ kiv explain conversion --entry 489 --json | jq -c '.[] | .amount, .lines[1].factor'
  {"amount":"40.00","currency":"EUR"}
  "0.8"
  $ kiv explain conversion --entry 490 --json | jq -c '.[] | .amount, .lines[1].factor'
  {"amount":"12.50","currency":"USD"}
  "1.25"

What cannot be explained is one clear sentence:

  $ kiv nontrack add Once 5 --every none --next 2025-04-01 >/dev/null
  $ kiv new empty >/dev/null
  $ each 1 <<'.'
  > explain share Once
  > explain set-aside Cash Holiday
  > explain tolerance 'Credit card'
  > explain outlook 2025-04-01 Bicycle --date 2025-03-31
  > explain conversion '99999999999999999999999999 EUR'
  > explain health --file empty
  > explain free --file empty
  > explain outlook 2025-04-01 --date 2025-03-31 --file empty
  > .
  kiv: 'Once' does not recur, so no month has a share of it.
  kiv: Nothing is set aside for 'Holiday' at Cash.
  kiv: Credit card is owed; a survey refuses no difference there.
  kiv: The outlook does not tell of Bicycle: it is no open account of a bank, or holds the money of a goal.
  kiv: The amount has more digits before the point than can be kept exactly.
  kiv: There is no income of which anything could take a part.
  kiv: No bank has an open account for which money is set aside.
  kiv: Without an open bank account, or without an exchange rate, the money cannot be added up; name an account.
  $ each 2 <<'.'
  > explain conversion
  > explain health wealth
  > explain outlook 2035-04-08 --date 2025-03-31
  > .
  kiv: Give an amount, or a transaction with --entry.
  kiv: 'wealth' is not one of: planned, needs, debts, spending, goals.
  kiv: 2035-04-08 is not a day to look ahead to; name one from 2025-03-31 to 2035-04-07.
