SPDX-License-Identifier: GPL-3.0-or-later

Help, the tour, completion and settings.

  $ . "$TESTDIR/household.sh"

Help needs nothing and leaves nothing:

  $ kiv help bill add | sed '3,6d;9,15d'
  Add an item
  Usage: kiv bill add [OPTIONS] NAME AMOUNT
  
  Options:
    --passphrase-file FILE      File with the passphrase of an encrypted budget
                                (default: the variable KIV_PASSPHRASE_FILE)
    --json                      Print JSON, for programs
    --dry-run                   Show the result, save nothing
    --verbose                   Show the log on standard error
  
  $ env LC_ALL=de_DE.UTF-8 kiv bank rename --help | head -2
  Eine Bank umbenennen
  Aufruf: kiv bank rename [OPTIONEN] BANK NEUER-NAME
  $ kiv --version
  kiv 1.* (glob)
  $ ls -A

The tour ends well and leaves nothing either:

  $ kiv tour >tour 2>errors
  $ grep -c '^\$ kiv' tour
  20
  $ grep 'equals the sum of all credits' tour
  The sum of all debits equals the sum of all credits.
  $ cat errors
  kiv: The code name is the same name as an existing budget item.
  $ ls -A
  errors
  tour

What a shell completes, with the names of the budget; one with a line break in it is
never offered:

  $ begin
  $ kiv bank add 'F
  > 2'
  Added the bank 'F\u{000A}2'.
  $ completed() { for line; do echo "$line >" $(kiv completion words -- $line); done; }
  $ completed 'bill update -- R' 'bill update -- -x R' 'bill add R' 'post R' \
  >     'post Rent --account Che' 'post Rent --kind b' 'post Rent --js --acc' \
  >     'post --json --colour R' 'post --json=true R' 'bank rename F' \
  >     'bank-account add New --bank=First --type mo' 'rates fetch EUR JM' \
  >     '--file=household.budget post R' '--file = nowhere.budget post R' '--file b'
  bill update -- R > Rent
  bill update -- -x R >
  bill add R >
  post R > Rent
  post Rent --account Che > Checking
  post Rent --kind b > bill
  post Rent --js --acc > --account
  post --json --colour R > Rent
  post --json=true R > Rent
  bank rename F > First
  bank-account add New --bank=First --type mo > money-market
  rates fetch EUR JM > JMD
  --file=household.budget post R > Rent
  --file = nowhere.budget post R >
  --file b >
  $ kiv --json completion bash
  kiv: There is no option '--json'; see kiv completion bash --help.
  [2]
  $ echo $(kiv completion words)
  new demo info save save-as wizard templates undo redo history check encrypt decrypt accounts ledger account spend earn transfer transactions transaction refundable refund find bill debt goal nontrack wage tags due post pay skip banks bank bank-account import rules survey reconciliations reconciliation envelopes outlook explain dashboard report export configure rates shell watch tour updates release-notes completion

A rates file that cannot be read gets another name, which is told:

  $ mkdir -p data/kiv/kiv && echo damaged >data/kiv/kiv/rates
  $ kiv new other 2>&1 | sed "s|'/.*/data|'data|"
  kiv: warning: Failed to initialise the currency conversions. The file 'data/kiv/kiv/rates' was not written by this program.
  kiv: warning: The file 'data/kiv/kiv/rates' was not written by this program. It was renamed to 'rates.unreadable'.
  Created the empty budget 'other.budget'.

Settings are kept. What is preferred is usable, unless the usable ones are given:

  $ rm -r household.budget*
  $ kiv new >/dev/null
  $ kiv configure set --preferred EUR --usable EUR --usable USD --display code --notify-within 30 | tail -2
  Work hours a week               40
  Work days a week                5
  $ kiv bill add Miete 700 --next 2026-02-01 >/dev/null
  $ kiv bill list | tail -1
  Miete  700.00 EUR  monthly  2026-02-01
  $ kiv configure set --notify-within 61
  kiv: The number of days to notify within must be between 0 and 60.
  [1]
  $ settings() { kiv configure "$@" --json | jq -c .; }
  $ settings set --preferred JPY
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.75,"usableCurrencies":["JPY","USD","EUR"]}
  $ settings set --usable JPY
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.75,"usableCurrencies":["JPY"]}
  $ settings set --survey-window 2.5 --hours 30 --days 4 --display both
  {"currenciesDisplayAs":"Symbol and Code","daysInWeek":4,"hoursInWeek":30,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.5,"usableCurrencies":["JPY"]}
  $ kiv configure show --verbose >/dev/null
  kiv: User system locale "C"
  kiv: The first update check will occur in 5000ms
  kiv: Starting update check with the interval of 3600000ms
  $ kiv bill list | tail -1
  Miete  €700.00 EUR  monthly  2026-02-01
