SPDX-License-Identifier: GPL-3.0-or-later

A made-up household shows what a budget can be. One day always gives the same year, with books
that hold.

  $ . "$TESTDIR/household.sh"
  $ kiv demo --date 2025-03-31
  Created the demonstration 'household.budget': a year of a household until 2025-03-31.
  $ kiv demo other --date 2025-03-31 >/dev/null
  $ kiv export --format json >own
  $ kiv export --format json --file other | diff own -
  $ kiv check | tail -1
  The budget 'household.budget' is intact.
  $ kiv reconciliations | cut -c1-59,76-
  Bank       Account                  Day of the statement   actions
  Lake Bank  Liabilities:Car loan     2025-03-11                  13  holds
  Town Bank  Assets:Checking          2025-03-11                 228  holds
  Town Bank  Liabilities:Credit card  2025-03-11                 107  holds
  Town Bank  Assets:Savings           2025-03-11            $     36  holds
  $ for account in Checking Cash; do
  >     kiv ledger $account --json | jq '[.transactions[].balance.amount | tonumber] | min > 0'
  > done
  true
  true
  $ kiv transactions --json | jq -c '[map(.refundOf != null) | any, length],
  >     (group_by(.debit) | map("\(length)x" + (map(.amount.amount | tonumber) | add | round | tostring))),
  >     (group_by(.debitStatus) | map(length))'
  [true,488]
  ["39x41085","2x7200","15x3403","19x13642","1x640","20x1606","2x348","152x4695","18x557","41x1196","9x109","7x270","12x11760","6x525","11x274","12x419","12x660","12x359","1x240","1x186","52x1040","12x1800","6x660","12x2520","12x600","2x381"]
  [9,131,348]
  $ kiv demo
  kiv: The file 'household.budget' exists already; choose another name.
  [1]
  $ kiv demo late --date 2199-01-01
  kiv: The demonstration ends today or on a day before, not on 2199-01-01.
  [1]
  $ LC_ALL=de_DE@euro kiv demo heute | cut -d : -f 1
  Beispiel \xe2\x80\x9eheute.budget\xe2\x80\x9c angelegt (esc)
