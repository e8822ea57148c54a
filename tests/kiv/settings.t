SPDX-License-Identifier: GPL-3.0-or-later

Help, the tour, completion and settings.

  $ . "$TESTDIR/household.sh"

Help needs nothing and leaves nothing:

  $ kiv help bill add
  Add an item
  Usage: kiv bill add [OPTIONS] NAME AMOUNT
  
  Arguments:
    NAME REQUIRED               Name
    AMOUNT REQUIRED             Amount
  
  Options:
    -h,--help                   Show this help
    --every TEXT                Frequency, such as monthly
    --next DATE                 Next due date
    --tag TAG                   Tag (repeatable)
    --date DATE                 Day of the opening; next due date if --next is
                                missing
    --file FILE                 Budget file (default: the variable KIV_FILE)
    --json                      Print JSON, for programs
    --dry-run                   Show the result, save nothing
    --verbose                   Show the log on standard error
  
  $ env LC_ALL=de_DE.UTF-8 kiv bank rename --help
  Eine Bank umbenennen
  Aufruf: kiv bank rename [OPTIONEN] BANK NEUER-NAME
  
  Argumente:
    BANK NÖTIG                  Name der Bank
    NEUER-NAME NÖTIG            Neuer Name
  
  Optionen:
    -h,--help                   Diese Hilfe zeigen
    --file DATEI                Budgetdatei (Standard: die Variable KIV_FILE)
    --json                      JSON ausgeben, für Programme
    --dry-run                   Das Ergebnis zeigen, nichts speichern
    --verbose                   Das Protokoll auf der Fehlerausgabe zeigen
  
  $ kiv --version
  kiv 1.* (glob)
  $ ls -A

The tour ends well and leaves nothing either:

  $ kiv tour >tour 2>errors
  $ sed -n '/^\$/ { s/^\$ //; s/20..-..-../some day/; p }' tour
  kiv configure set --preferred USD --usable USD --display code
  kiv new
  kiv bank add 'First Bank'
  kiv bank-account add Checking --bank 'First Bank' --balance 2500.00
  kiv wage add Salary 3100.00 --next some day
  kiv bill add Rent 1250.00 --next some day
  kiv bill add Electricity 84.35 --next some day
  kiv bill add Gym 29.90 --tag sport --next some day
  kiv bill add 'Car tax' 360.00 --every yearly --next some day
  kiv bill rename Gym 'Fitness studio'
  kiv due
  kiv post --all --account Checking
  kiv skip 'Fitness studio'
  kiv pay Electricity 19.10 --account Checking
  kiv account add Rent --type expense
  kiv bill list
  kiv ledger Checking
  kiv accounts
  kiv dashboard
  kiv info
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
  $ completed 'ban' 'bill re' 'bill update R' 'bill update -- R' 'bill update -- -x R' \
  >     'bill add R' 'account add R' 'save-as R' 'accounts b' 'post R' \
  >     'post Rent --account Che' 'post Rent --kind b' 'post Rent --js --acc' \
  >     'post --json --colour R' 'post --json=true R' 'bank rename F' \
  >     'bank-account add New --bank=First --type mo' 'bank-account add New --bank F' \
  >     'account add New --type e' 'bill add Gym --every week' 'import x --format q' \
  >     'export --format j' 'configure set --usable JM' 'rates fetch EUR JM' \
  >     '--file=household.budget post R' '--file = nowhere.budget post R' '--file b'
  ban > banks bank bank-account
  bill re > rename remove
  bill update R > Rent
  bill update -- R > Rent
  bill update -- -x R >
  bill add R >
  account add R >
  save-as R >
  accounts b >
  post R > Rent
  post Rent --account Che > Checking
  post Rent --kind b > bill
  post Rent --js --acc > --account
  post --json --colour R > Rent
  post --json=true R > Rent
  bank rename F > First
  bank-account add New --bank=First --type mo > money-market
  bank-account add New --bank F > First
  account add New --type e > equity expense
  bill add Gym --every week > weekly
  import x --format q > qif
  export --format j > journal json
  configure set --usable JM > JMD
  rates fetch EUR JM > JMD
  --file=household.budget post R > Rent
  --file = nowhere.budget post R >
  --file b >
  $ kiv --json completion bash
  kiv: '--json' is no option of this command; --help lists those that there are.
  [2]
  $ echo $(kiv completion words)
  new info save-as wizard templates undo history check accounts ledger account transactions transaction transfer refundable refund bill debt goal nontrack wage tags due post pay skip banks bank bank-account import survey reconciliation dashboard report export configure rates shell watch tour updates release-notes completion

A rates file that cannot be read gets another name, which is told:

  $ mkdir -p data/kiv/kiv && echo damaged >data/kiv/kiv/rates
  $ kiv new other

Settings are kept. What is preferred is usable, unless the usable ones are given:

  $ rm household.budget*
  $ kiv new
  Created the empty budget 'household.budget'.
  $ kiv configure set --preferred EUR --usable EUR --usable USD --display code --notify-within 30
  Preferred currency              EUR
  Usable currencies               USD, EUR
  Display of currencies           ISO-4217 Code
  Due items shown ahead, in days  30
  Survey window                   2.75 %
  Work hours a week               40
  Work days a week                5
  $ kiv bill add Miete 700 --next 2026-02-01
  Added the bill 'Miete'.
  $ kiv bill list
  Name       Amount  Every    Next        Tags
  Miete  700.00 EUR  monthly  2026-02-01
  $ kiv configure set --notify-within 61
  kiv: The number of days to notify within must be between 0 and 60.
  [1]
  $ kiv configure set
  kiv: No change given; see --help.
  [2]
  $ settings() { kiv configure "$@" --json | jq -c .; }
  $ settings show
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"EUR","surveyWindowPercent":2.75,"usableCurrencies":["USD","EUR"]}
  $ settings set --preferred JPY
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.75,"usableCurrencies":["JPY","USD","EUR"]}
  $ settings set --usable JPY
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.75,"usableCurrencies":["JPY"]}
  $ settings set --survey-window 2.5
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":40,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.5,"usableCurrencies":["JPY"]}
  $ settings set --hours 30
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":5,"hoursInWeek":30,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.5,"usableCurrencies":["JPY"]}
  $ settings set --days 4
  {"currenciesDisplayAs":"ISO-4217 Code","daysInWeek":4,"hoursInWeek":30,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.5,"usableCurrencies":["JPY"]}
  $ settings set --display both
  {"currenciesDisplayAs":"Symbol and Code","daysInWeek":4,"hoursInWeek":30,"notifyDueWithinDays":30,"preferredCurrency":"JPY","surveyWindowPercent":2.5,"usableCurrencies":["JPY"]}
  $ kiv configure show --verbose
  kiv: User system locale "C"
  kiv: The first update check will occur in 5000ms
  kiv: Starting update check with the interval of 3600000ms
  Preferred currency              JPY
  Usable currencies               JPY
  Display of currencies           Symbol and Code
  Due items shown ahead, in days  30
  Survey window                   2.5 %
  Work hours a week               30
  Work days a week                4
  $ kiv bill list
  Name        Amount  Every    Next        Tags
  Miete  €700.00 EUR  monthly  2026-02-01
