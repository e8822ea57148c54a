SPDX-License-Identifier: GPL-3.0-or-later

Whatever is wrong with a call is told in one sentence on standard error; the exit status
is 2 when the call is wrong in itself and 1 when the budget refuses it. That nothing
stands on standard output, and the file is as it was, is seen to in household.sh.

  $ . "$TESTDIR/household.sh"
  $ begin

Amounts:

  $ each 2 <<'.'
  > bill add Gym '12.345 USD'
  > bill add Gym '12.5 JPY'
  > bill add Gym '12 ABQ'
  > bill add Gym '12 UDS'
  > .
  kiv: '12.345 USD' has too many decimals; USD allows 2.
  kiv: '12.5 JPY' is not an amount in JPY, which has no decimals.
  kiv: 'ABQ' is not a currency; write its ISO 4217 code, like USD.
  kiv: 'UDS' is not a currency; did you mean 'USD', 'UZS'?
  $ kiv bill add Gym -- -12
  kiv: The amount of the budget item 'Gym' cannot be negative, but is -$12.00.
  [1]

Dates, and other values:

  $ each 2 <<'.'
  > bill add Gym 12 --every moonthly
  > bill add ' ' 12
  > configure set --survey-window 5x%
  > rates set EUR USD
  > rates set USD EUR=1 EUR=2
  > .
  kiv: 'moonthly' is not one of: none, daily, every-weekday, weekly, every-two-weeks, twice-a-month, monthly, every-two-months, quarterly, every-four-months, twice-a-year, yearly, every-two-years, every-three-years, every-five-years, every-ten-years; did you mean 'monthly'?
  kiv: A name cannot be empty.
  kiv: '5x%' is not a percentage; write one like 2.75.
  kiv: 'USD' is not a rate; write one like EUR=0.92.
  kiv: The currency 'EUR' is given twice.
  $ env LC_ALL=de_DE.UTF-8 kiv account remove 'x Caused by: y'
  kiv: Es gibt kein Konto \xe2\x80\x9ex Caused by: y\xe2\x80\x9c; siehe kiv accounts. (esc)
  [1]

Nothing to change, and what excludes each other:

  $ each 2 <<'.'
  > bill update Rent
  > undo --steps 0
  > account recode 1 --under 3 --top-level
  > bill update Rent --tag home --no-tags
  > post Rent --all --account Checking
  > post --all --amount 5 --account Checking
  > post --account Checking
  > debt add Car 5 --borrowed 9 --type loan
  > new a --file b
  > report --title T
  > --json report --chart
  > export --format csv --json
  > .
  kiv: No change given; see --help.
  kiv: '0' is not a whole number from 1 to 1000.
  kiv: Use either --under or --top-level, not both.
  kiv: Use either --no-tags or --tag, not both.
  kiv: Use either --all or ITEM, not both.
  kiv: Use either --all or --amount, not both.
  kiv: ITEM is missing.
  kiv: Use --type only together with --bank.
  kiv: Use either FILE or --file, not both.
  kiv: Use --title only together with --html.
  kiv: Use either --chart or --json, not both.
  kiv: Use either --format or --json, not both.

Commands, options and arguments; for a slip, what may have been meant is offered:

  $ kiv
  kiv: No command given; see kiv --help.
  [2]
  $ each 2 <<'.'
  > frobnicate
  > bil list
  > bill add Gym 12 --colour red
  > accounts --json=3
  > post Rent --acount Checking
  > bill add Gym
  > bill add Gym 12 --next
  > bill add Gym 12 --next 2026-01-01 --next 2026-01-02
  > transaction remove 65536
  > .
  kiv: There is no command 'frobnicate'; see kiv --help.
  kiv: There is no command 'bil'; did you mean 'bill'?
  kiv: There is no option '--colour'; see kiv bill add --help.
  kiv: --json does not accept the value '3'; see kiv accounts --help.
  kiv: There is no option '--acount'; did you mean '--account', '--amount'?
  kiv: AMOUNT is missing; see kiv bill add --help.
  kiv: --next needs a value (DATE); see kiv bill add --help.
  kiv: --next was given 2 times, at most 1 is allowed; see kiv bill add --help.
  kiv: '65536' is not a whole number from 1 to 65535.

Names that are not there:

  $ each 1 <<'.'
  > ledger Opening
  > bank-account add Savings --bank Second
  > goal add Trip 5 --target 9 --bank-account 3
  > bill rename Gym Club
  > post Salray --account Checking
  > tags remove home
  > transaction update 77 --amount 1
  > .
  kiv: There is no account 'Opening'; did you mean 'Opening Balances USD [Equity]'?
  kiv: There is no bank 'Second'; see kiv banks.
  kiv: The account '3' is not assigned to a bank; assign it with kiv bank-account attach.
  kiv: There is no bill 'Gym'; see kiv bill list.
  kiv: There is no budget item 'Salray'; did you mean 'Salary'?
  kiv: There is no tag 'home'; see kiv tags list.
  kiv: There is no transaction 77; see kiv transactions.

Transactions to be loaded:

  $ while read -r text; do echo "$text" | kiv transaction load -; done <<'.'
  > [{
  > {"transactions": 1}
  > [{}]
  > {"transactions": [{"debit": 1, "credit": 3, "amount": "1"}]}
  > [{"debit": 1, "credit": 3, "date": "2026-01-01", "amount": "1", "debitStatus": "x"}]
  > .
  kiv: Cannot understand -: unterminated object at byte 3.
  kiv: Cannot understand -: it has no list of transactions.
  kiv: Cannot understand transaction 1 of '-': "debit" is missing.
  kiv: Cannot understand transaction 1 of '-': "date" is missing.
  kiv: Cannot understand transaction 1 of '-': 'x' is not one of: none, cleared, reconciled.
  [1]

Files:

  $ ln -s away.budget link.budget
  $ each 1 <<'.'
  > new link
  > accounts --file nowhere
  > transaction load nowhere.json
  > .
  kiv: The file 'link.budget' exists already; choose another name.
  kiv: There is no file 'nowhere.budget'.
  kiv: Cannot read 'nowhere.json': No such file or directory.
  $ printf 'bank add B\377\n' | kiv shell
  kiv: A value on the command line is not valid UTF-8.
  [2]

A file that is open elsewhere is refused until it is let go:

  $ hold
  $ kiv bank add Second
  kiv: The file 'household.budget' is in use by another program (process *, kiv on *). (glob)
  [1]
  $ let_go
  $ kiv bank add Second --dry-run
  Added the bank 'Second'.
  Dry run: nothing is saved.

A limit on the size of files stands for a disk that is full. It is not to hinder what a
coverage build writes at its end:

  $ (trap '' XFSZ; ulimit -f 1; LLVM_PROFILE_FILE=/dev/null command kiv bank add Second)
  kiv: The file 'household.budget' could not be saved: File too large.
  [1]

Output that cannot be written is a failure; the second is more than is kept until the end:

  $ command kiv accounts >/dev/full
  kiv: Cannot write the output: No space left on device.
  [1]
  $ command kiv completion manual >/dev/full
  kiv: Cannot write the output: No space left on device.
  [1]

After all that:

  $ cmp household.budget "$CRAMTMP/begun/household.budget"

Files that are no budgets of this program's, as empty, of another program, of a
newer version (which SQLite keeps at byte 60), are left alone:

  $ export KIV_FILE=bad.budget
  $ refused() { printf 'accounts\nbank add New\n' | each 1 2>&1 | uniq; }
  $ : >bad.budget
  $ refused
  kiv: The file 'bad.budget' is empty.
  $ yes '%PDF-1.7 and so on' | head -400 >bad.budget
  $ refused
  kiv: The file 'bad.budget' was not written by this program.
  $ cp household.budget bad.budget
  $ printf '\143' | dd of=bad.budget bs=1 seek=63 conv=notrunc status=none
  $ refused
  kiv: The file 'bad.budget' was written by a newer version of this program.

Commands that need a file say that none is named:

  $ KIV_FILE=
  $ printf 'accounts\nnew\ncheck\n' | each 2 2>&1 | uniq -c
        3 kiv: No budget file given; use --file or the variable KIV_FILE, or create one with kiv new FILE.
  $ kiv completion words -- post G
  $ kiv rates show
  There are no exchange rates; use kiv rates fetch or kiv rates set.
  $ printf 'new\naccounts\n' | kiv shell
  kiv: No budget file given; use --file or the variable KIV_FILE, or create one with kiv new FILE.
  kiv: No budget file given; use --file or the variable KIV_FILE, or create one with kiv new FILE.
  [2]
