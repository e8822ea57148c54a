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
  Kind  Item    Planned per month  In 2026-02  Average
  bill  Rent            $1,250.00       $0.00  $625.00
  wage  Salary          $3,100.00       $0.00    $0.00
  $ kiv report --from 2026-01-01 --to 2026-02-28 --json | jq -c '.currencies[], .items[]'
  {"currency":"USD","expenses":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"income":[{"amount":"0.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"netWorth":[{"amount":"1250.00","currency":"USD"},{"amount":"1250.00","currency":"USD"}],"outgoing":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"planned":{"amount":"1250.00","currency":"USD"}}
  {"actual":[{"amount":"1250.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"average":{"amount":"625.00","currency":"USD"},"kind":"bill","last":{"amount":"0.00","currency":"USD"},"name":"Rent","planned":{"amount":"1250.00","currency":"USD"}}
  {"actual":[{"amount":"0.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"average":{"amount":"0.00","currency":"USD"},"kind":"wage","last":{"amount":"0.00","currency":"USD"},"name":"Salary","planned":{"amount":"3100.00","currency":"USD"}}
  $ kiv report --json --to 2026-02-28 | jq -c 'keys, .from, .to'
  ["balances","currencies","from","items","months","to"]
  "2026-01-01"
  "2026-02-28"
  $ kiv report --html --to 2026-02-28 --title '<i>' >page
  $ head -1 page
  <!DOCTYPE html>
  $ grep -o '</*details' page | sort | uniq -c
        3 </details
        3 <details
  $ grep -o '<h1>.*</h1>' page
  <h1>&lt;i&gt;</h1>
  $ kiv report --html --to 2100-01-01 | grep -o -e '<h2>What.*</h2>' -e '<p>Lowest on' -e 'class="mark"'
  <h2>What is to come</h2>
  <p>Lowest on
  class="mark"
  $ kiv report --from 2026-02-01 --to 2026-01-01
  kiv: A report cannot end before it begins.
  [1]

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
  $ kiv report --chart --from 2026-01-01 --to 2026-05-31 | sed -n '1,11p; 18,19p'
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
  2026-05 █████████████████████████████████████████████████             $1,000.03
                                                                            $0.00

Where the money went: by category, payee, tag and account, for any span, and for what a search
finds.

  $ kiv demo year.budget --date 2025-03-31 >/dev/null
  $ export KIV_FILE=year.budget
  $ kiv report --by category --period quarter --from 2024-10-01 --to 2025-03-31 | sed '6,13d; 15,18d'
  Expense, USD
  Name              2024-Q4    2025-Q1      Total    Average
  Rent            $2,940.00  $2,940.00  $5,880.00  $2,940.00
  Groceries       $1,113.85  $1,149.47  $2,263.32  $1,131.66
  Eating out        $289.27    $304.37    $593.64    $296.82
  Income, USD
  USD
  Span         Income    Expenses      Saved  Savings rate
  2024-Q4   $9,400.46   $5,394.05  $4,006.41  42.6 %
  2025-Q1   $9,539.38   $5,234.78  $4,304.60  45.1 %
  Total    $18,939.84  $10,628.83  $8,311.01  43.9 %
  $ for period in week two-weeks payday quarter year; do
  >   kiv report --by category --period $period --to 2025-03-31 --json | jq -c '[.from, .spans[1]]'
  > done
  ["2025-01-13","2025-01-20"]
  ["2024-10-28","2024-11-11"]
  ["2024-10-23","2024-11-06"]
  ["2024-01-01","2024-Q2"]
  ["2024-01-01","2025"]
  $ kiv report --by payee --from 2025-03-01 --to 2025-03-31 groceries
  Expense, USD
  Name             Total
  Corner market  $293.17
  Village shop    $62.15
  Bakery          $33.69
  USD
  Span                    Income  Expenses     Saved  Savings rate
  2025-03-01..2025-03-31   $0.00   $389.01  -$389.01
  $ kiv report --by tag --period payday --from 2025-02-01 --to 2025-03-31 --json |
  >     jq -c 'keys, .spans, .groups[0], .currencies[0].total'
  ["by","currencies","from","groups","spans","to"]
  ["2025-01-29","2025-02-12","2025-02-26","2025-03-12","2025-03-26"]
  {"amounts":[{"amount":"1122.96","currency":"USD"},{"amount":"0.00","currency":"USD"},{"amount":"1039.80","currency":"USD"},{"amount":"0.00","currency":"USD"},{"amount":"0.00","currency":"USD"}],"average":{"amount":"432.55","currency":"USD"},"kind":"expense","name":"home","total":{"amount":"2162.76","currency":"USD"}}
  {"expenses":{"amount":"3681.51","currency":"USD"},"income":{"amount":"6409.38","currency":"USD"},"saved":{"amount":"2727.87","currency":"USD"},"savingsRate":42.6}
  $ kiv report --period year --from 2024-01-01 --to 2025-03-31 | head -4
  USD
  Span      Income    Expenses      Budget      Actual   Net worth
  2024  $28,339.79  $16,694.83  $20,374.40  $16,154.61  $12,547.91
  2025   $9,539.38   $5,234.78  $20,374.40   $4,887.46  $16,852.51
  $ kiv report --html --to 2025-03-31 >page; grep -c 'Budget Item' page
  0
  [1]
  $ kiv report --html --to 2025-03-31 --by payee 'payee:<b>' | grep -o '</h1>.*</header>\|<h2>.*</h2>'
  </h1><p>From 2024-04-01 to 2025-03-31</p><p>Only what fits: payee:&lt;b&gt;</p></header>
  <h2>By payee</h2>
  $ kiv report --period decade
  kiv: 'decade' is not one of: week, two-weeks, payday, month, quarter, year.
  [2]

The figures are those of hledger, by account, period and depth.

  $ . "$TESTDIR/peers.sh"
  $ kiv account add Bakery --type expense --under Groceries >/dev/null
  $ kiv spend 3.20 Bakery --from Cash --date 2025-01-02 >/dev/null
  $ kiv export >year.journal
  $ span='--from 2024-04-01 --to 2025-03-31'
  $ same() { wc -l <ours; diff ours theirs; }
  $ ownFlows --by account --period month $span >ours
  $ peerFlows year.journal -M -b 2024-04-01 -e 2025-04-01 >theirs; same
  30
  $ ownFlows --by account --period two-weeks $span >ours
  $ peerFlows year.journal -p 'every 2 weeks from 2024-04-01 to 2025-04-01' >theirs; same
  30
  $ ownFlows --by category --period quarter $span >ours
  $ peerFlows year.journal -Q --depth 2 Expenses Income -b 2024-04-01 -e 2025-04-01 >theirs; same
  17

So they are of the example of ledger's own manual, as its authors wrote it:

  $ export KIV_FILE=manual.budget
  $ kiv new >/dev/null
  $ kiv import "$TESTDIR/data/ledger_manual.journal" 2>/dev/null | tail -1
  Transactions posted: 20; duplicates skipped: 0; accounts opened: 18.
  $ sed 's/apply tag/; &/; s/end tag/; &/' "$TESTDIR/data/ledger_manual.journal" >manual.journal
  $ flows() { peerFlows manual.journal "$@" Expenses Income | sed 's/ \$ / USD /'; }
  $ ownFlows --by category --period month --from 2010-12-01 --to 2011-12-31 >ours
  $ flows -M --depth 2 -b 2010-12-01 -e 2012-01-01 >theirs; same
  7
  $ ownFlows --by account --period quarter --from 2010-10-01 --to 2011-12-31 | grep -e ^Exp -e ^Inc >ours
  $ flows -Q -b 2010-10-01 -e 2012-01-01 >theirs; same
  7

Currencies stay apart unless one is asked for, and then the rates are told with their days. What has
no rate stays apart.

  $ export KIV_FILE=year.budget
  $ euros() {
  >     kiv report --by category --in EUR --from 2024-08-01 --to 2024-09-30 |
  >         grep -E '^(Exp|Inc|USD|EUR|Rent|Travel|2024|With|1 )' | sed "s/$(date -u +%F)/TODAY/"
  > }
  $ euros
  Expense, USD
  Rent            $1,960.00
  Expense, EUR
  Travelling  €270.19
  Income, USD
  USD
  2024-08-01..2024-09-30  $6,270.40  $3,754.89  $2,515.51  40.1 %
  EUR
  2024-08-01..2024-09-30   €0.00   €270.19  -€270.19
  Without an exchange rate, and apart: USD
  $ kiv rates set USD EUR=0.5 >/dev/null
  $ euros
  Expense, EUR
  Rent            €980.00
  Travelling      €270.19
  Income, EUR
  EUR
  2024-08-01..2024-09-30  €3,135.20  €2,147.63  €987.57  31.5 %
  1 USD is 0.5 EUR, typed by hand (TODAY)
  $ kiv report --in EUR --from 2024-08-01 --to 2024-09-30 | head -4
  EUR
  Month       Income   Expenses   Budget   Actual  Net worth
  2024-08  €1,570.20    €951.63  €848.94  €918.70  €3,906.46
  2024-09  €1,565.00  €1,196.01  €848.94  €982.35  €4,348.94
  $ kiv report --by tag --in USD --from 2024-08-01 --to 2024-09-30 --json |
  >     jq -c '.in, (.rates[] | del(.day)), [.groups[].total.currency]'
  "USD"
  {"base":"USD","currency":"EUR","rate":"0.5","source":"typed"}
  ["USD","USD","USD","USD","USD"]
