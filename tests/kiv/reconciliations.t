SPDX-License-Identifier: GPL-3.0-or-later

What was reconciled is watched: a survey leaves its transactions behind.

  $ . "$TESTDIR/household.sh"
  $ begin
  $ kiv reconciliations
  There are no reconciliations.
  $ january() { kiv survey complete First Checking --date 2026-01-31 "$@"; }
  $ kiv post Rent --account Checking --date 2026-01-28 >/dev/null
  $ january --balance 1250 --tick-all >/dev/null
  $ kiv post Salary --account Checking --date 2026-02-25 >/dev/null
  $ kiv survey complete First Checking --date 2026-02-28 --balance 4350 --tick-all >/dev/null
  $ kiv reconciliations Checking
  Bank   Account          Day of the statement    Balance  Transactions
  First  Assets:Checking  2026-01-31            $1,250.00             2  holds
  First  Assets:Checking  2026-02-28            $4,350.00             1  holds
  $ kiv save-as whole >/dev/null

A change that breaks one is told, once; then each command tells it.

  $ kiv transaction unreconcile 2
  Undid the reconciliation of the transaction 2.
  $ kiv reconciliations --json | jq -c '.[0] | .holds, .difference'
  true
  {"kind":"unmarked","now":{"amount":{"amount":"1250.00","currency":"USD"},"credit":1,"date":"2026-01-28","debit":3,"number":2},"text":"1 Checking is as it was reconciled, but #2, $1,250.00, is no longer marked as reconciled since the survey of 2026-01-31.","then":{"amount":{"amount":"1250.00","currency":"USD"},"credit":1,"date":"2026-01-28","debit":3,"number":2}}
  $ kiv transaction update 2 --amount 1200 --date 2026-01-27 --debit Salary
  kiv: warning: 1 Checking is not as it was reconciled: #2 was changed from 2026-01-28, $1,250.00, 3 Rent to 2026-01-27, $1,200.00, 4 Salary after the survey of 2026-01-31. See kiv reconciliations.
  Changed transaction 2.
  $ kiv transaction remove 2
  kiv: warning: 1 Checking is not as it was reconciled: #2 was changed from 2026-01-28, $1,250.00, 3 Rent to 2026-01-27, $1,200.00, 4 Salary after the survey of 2026-01-31. See kiv reconciliations.
  Removed the transaction 2.
  $ kiv accounts --type asset
  kiv: warning: 1 Checking is not as it was reconciled: #2, $1,250.00, was removed after the survey of 2026-01-31. See kiv reconciliations.
  Number  Account            Balance
       1  Assets:Checking  $5,600.00    not as reconciled
  The books of Checking are $1,250.00 above the bank since 2026-02-28.
  $ kiv reconciliations
  kiv: warning: 1 Checking is not as it was reconciled: #2, $1,250.00, was removed after the survey of 2026-01-31. See kiv reconciliations.
  Bank   Account          Day of the statement    Balance  Transactions
  First  Assets:Checking  2026-01-31            $1,250.00             2  broken
  First  Assets:Checking  2026-02-28            $4,350.00             1  holds
  1 Checking is not as it was reconciled: #2, $1,250.00, was removed after the survey of 2026-01-31.
  $ kiv reconciliations --json 2>/dev/null | jq -c '.[0]'
  {"account":1,"balance":{"amount":"1250.00","currency":"USD"},"bank":"First","difference":{"kind":"removed","now":null,"text":"1 Checking is not as it was reconciled: #2, $1,250.00, was removed after the survey of 2026-01-31.","then":{"amount":{"amount":"1250.00","currency":"USD"},"credit":1,"date":"2026-01-28","debit":3,"number":2}},"holds":false,"on":"2026-01-31","path":"Assets:Checking","transactions":2}
  $ kiv accounts --json 2>/dev/null | jq -c '.[0].asReconciled, .[1].asReconciled'
  false
  null
  $ kiv undo --steps 2 >/dev/null 2>&1
  $ kiv reconciliations --json | jq -c '.[0].holds'
  true

Reconciliations go along with a recode, another name of the bank and a copy, not with
another budget.

  $ cp whole.budget household.budget
  $ kiv account recode Checking --number 100 >/dev/null
  $ kiv bank rename First Second >/dev/null
  $ kiv reconciliations | tail -2
  Second  Assets:Checking  2026-01-31            $1,250.00             2  holds
  Second  Assets:Checking  2026-02-28            $4,350.00             1  holds
  $ printf '%s\n' 'new other' 'reconciliations' | kiv shell
  Created the empty budget 'other.budget'.
  There are no reconciliations.
