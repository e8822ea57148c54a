SPDX-License-Identifier: GPL-3.0-or-later

Reports come in three forms, and as JSON.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ kiv post Rent --account Checking --date 2026-01-31 >/dev/null
  $ kiv report --from 2026-01-01 --to 2026-02-28
  USD
  Month    Income   Expenses     Budget     Actual  Net worth
  2026-01   $0.00  $1,250.00  $1,250.00  $1,250.00  $1,250.00
  2026-02   $0.00      $0.00  $1,250.00      $0.00  $1,250.00
  Budget against actual
  Kind  Item    Planned per month  In 2026-02
  bill  Rent            $1,250.00       $0.00
  wage  Salary          $3,100.00       $0.00
  $ kiv report --from 2026-01-01 --to 2026-02-28 --json | jq -c '.currencies[], .items[]'
  {"currency":"USD","expenses":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"income":[{"amount":"0.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"netWorth":[{"amount":"1250.00","currency":"USD"},{"amount":"1250.00","currency":"USD"}],"outgoing":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"planned":{"amount":"1250.00","currency":"USD"}}
  {"actual":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"kind":"bill","last":{"amount":"0.00","currency":"USD"},"name":"Rent","planned":{"amount":"1250.00","currency":"USD"}}
  {"actual":[{"amount":"0.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"kind":"wage","last":{"amount":"0.00","currency":"USD"},"name":"Salary","planned":{"amount":"3100.00","currency":"USD"}}
  $ kiv report --json --to 2026-02-28 | jq -c 'keys, .from, .to'
  ["balances","currencies","from","items","months","to"]
  "2025-03-01"
  "2026-02-28"
  $ kiv report --html --to 2026-02-28 --title '<i>' >page
  $ head -1 page
  <!DOCTYPE html>
  $ grep -o '<h[1-9]>.*</h[1-9]>' page
  <h1>&lt;i&gt;</h1>
  <h2>Budget against actual by month</h2>
  <h2>Balances on 2026-02-28</h2>
  <h3>Asset</h3>
  <h3>Equity</h3>
  <h3>Expense</h3>
  $ kiv report --html --to 2100-01-01 | grep -o -e '<h2>What.*</h2>' -e '<p>Lowest on' -e 'class="mark"'
  <h2>What is to come</h2>
  <p>Lowest on
  class="mark"
  $ kiv report --from 2026-02-01 --to 2026-01-01
  kiv: A report cannot end before it begins.
  [1]
  $ kiv report --html --chart
  kiv: Use either --html or --chart, not both.
  [2]

A chart is as wide as the terminal. What is hardly anything is seen, and what is owed lies to
the left of what is owned:

  $ each 0 <<'.' >/dev/null
  > pay Rent 0.01 --account Checking --date 2026-02-20
  > pay Rent 1250.01 --account Checking --date 2026-03-20
  > pay Rent 1000.00 --account Checking --date 2026-04-20
  > pay Salary 1000.03 --account Checking --date 2026-05-20
  > .
  kiv: warning: Checking is below zero: -$0.02.
  kiv: warning: Checking is below zero: -$1,000.02.
  $ kiv report --chart --from 2026-01-01 --to 2026-05-31 | head -20
  Net worth over time, USD
  2026-01                            █████████████████████████████████  $1,250.00
  2026-02                            █████████████████████████████████  $1,249.99
  2026-03                           ▏                                      -$0.02
  2026-04 ███████████████████████████                                  -$1,000.02
  2026-05                            ▏                                      $0.01
  
  Income and expenses, USD
          ██ Income   ▒▒ Expenses
  2026-01                                                                   $0.00
          ▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒ $1,250.00
  2026-02                                                                   $0.00
          ▏                                                                 $0.01
  2026-03                                                                   $0.00
          ▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒ $1,250.01
  2026-04                                                                   $0.00
          ▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒             $1,000.00
  2026-05 █████████████████████████████████████████████████             $1,000.03
                                                                            $0.00
  
