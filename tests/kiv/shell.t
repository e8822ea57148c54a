SPDX-License-Identifier: GPL-3.0-or-later

Many commands in one process.

  $ . "$TESTDIR/household.sh"
  $ begin

A shell keeps one budget open. What is refused or dry is taken back in memory before the
next line, and the exit status is that of the first line that failed:

  $ kiv shell <<.
  > # a comment, then a mistake
  > bill add Gym 12,3x
  > account add Rent --type expense
  > new household
  > bill add "Car tax" 360 --dry-run
  > bill list --file household
  > .
  kiv: '12,3x' is not an amount; write one like 1234.50 or '1234.50 USD'.
  kiv: The code name is the same name as an existing budget item.
  kiv: The file 'household.budget' exists already; choose another name.
  Added the bill 'Car tax'.
  Dry run: nothing is saved.
  Name     Amount  Every    Next        Tags
  Rent  $1,250.00  monthly  2026-01-31
  [2]
  $ cmp household.budget "$CRAMTMP/begun/household.budget"
  $ kiv shell <<.
  > bill add 'Car tax' 360 --next 2026-02-01
  > exit
  > frobnicate
  > .
  Added the bill 'Car tax'.
  $ echo 'help bill add' | kiv shell >told
  $ kiv bill add --help | diff told -
  $ printf 'quit\nfrobnicate\n' | kiv shell household

What was done is undone change by change, also what was written together, and then version
by version; a new change ends redo:

  $ begin
  $ kiv shell <<. | sed 's/of ....-..-.. ..:..:../of TIME/; s/at ....-..-.. ..:..:../at TIME/' | grep -v '^account'
  > bill add Gym 30 --next 2026-02-01
  > bill add Club 20 --next 2026-02-01
  > undo
  > undo --steps 2
  > redo --steps 2
  > save
  > bill add Toll 10 --next 2026-02-01
  > redo
  > undo --to step-1
  > .
  kiv: There is nothing to redo.
  Added the bill 'Gym'.
  Added the bill 'Club'.
  Restored the state of TIME.
  What     Name       Change   Detail
  item     bill Club  removed  20.00 USD, monthly, 2026-02-01
  Restored the version saved at TIME.
  What     Name         Change   Detail
  item     bill Gym     removed  30.00 USD, monthly, 2026-02-01
  item     wage Salary  removed  3100.00 USD, monthly, 2026-01-25
  Restored the state of TIME.
  What     Name         Change  Detail
  item     bill Gym     added   30.00 USD, monthly, 2026-02-01
  item     wage Salary  added   3100.00 USD, monthly, 2026-01-25
  All changes are saved in 'household.budget'.
  Added the bill 'Toll'.
  Restored the state of TIME.
  What     Name       Change   Detail
  item     bill Toll  removed  10.00 USD, monthly, 2026-02-01
  $ printf '%s\n' undo undo 'redo --steps 9' 'redo --steps 2' redo 'undo --steps 40' 'undo --to 5' 'undo --to 7' \
  >     'bill add Zoo 1' save 'bill add Bus 1' 'undo --to 8' |
  >     kiv shell 2>&1 | sed -n 's/Restored.*/Restored/p; /^kiv:/p' | uniq -c | sed 's/^ *//'
  2 Restored
  1 kiv: Only 3 changes can be redone.
  2 Restored
  1 kiv: Only 6 changes can be undone.
  3 Restored
  $ kiv history --json | jq -r '.[] | select(.present).change'
  Added the bill 'Zoo'
  $ kiv save
  Every change is saved at once; nothing is pending.

That rates could not be stored is a warning, since the budget was saved:

  $ begin
  $ echo 'no folder' >data
  $ kiv shell <<.
  > new second
  > bill add Gym 30 --next 2026-02-01
  > save-as third
  > bill add Club 20 --next 2026-02-01
  > bill add Club 20 --next 2026-02-01
  > .
  kiv: warning: The file '*/shell.t/data/kiv/kiv/rates' could not be saved: Not a directory. (glob)
  Created the empty budget 'second.budget'.
  Added the bill 'Gym'.
  Saved the budget as 'third.budget'.
  Added the bill 'Club'.
  kiv: The new budgeted money item source already exists.
  [1]
  $ cmp household.budget "$CRAMTMP/begun/household.budget"
  $ for file in second third; do kiv bill list --file $file --json | jq -c 'map(.name)'; done
  ["Gym"]
  ["Club","Gym"]

What could not be saved stays in memory, and the next prompt tells why. Neither another
refusal nor a dry run gives it up, and no other file does; it is saved at the end at the
latest:

  $ begin
  $ kiv save-as other >/dev/null
  $ cp other.budget kept
  $ hold
  $ mv household.budget away
  $ mkdir household.budget
  $ say 'bill add Gym 30 --next 2026-02-01' 'Added the bill'
  $ say save 'not a regular file'
  $ say 'bill remove Rent --dry-run' 'Removed the bill'
  $ say 'bill add Gym 31' 'already exists'
  $ say 'bill list --file other' 'elsewhere with save-as'
  $ rmdir household.budget
  $ mv away household.budget
  $ let_go
  [1]
  $ grep kiv: "$CRAMTMP/heard"
  kiv: 'household.budget' is not a regular file.
  kiv: The new budgeted money item source already exists.
  kiv: The changes of 'household.budget' could not be saved; save them elsewhere with save-as.
  $ kiv bill list --json | jq -c 'map(.name)'
  ["Gym","Rent"]
  $ cmp other.budget kept

Watching tells signals as they come, in place of results; those that come by the clock may
stand among them:

  $ begin
  $ kiv watch <<. >signals 2>errors
  > account add Rent --type expense
  > bill add Gym 30 --next 2026-02-01
  > help bill
  > .
  [1]
  $ grep -v warning errors | head -2
  kiv: The code name is the same name as an existing budget item.
  Add, change or list bills
  $ jq -r .signal signals | head -1
  loadedBudgetFile
  $ jq -c 'select(.signal | test("^save|SaveFailed"))' signals
  {"arguments":{"displayed":"5 Rent","errorMessage":"The code name is the same name as an existing budget item.","original":null},"signal":"accountSaveFailed"}
  {"arguments":{"id":"1","source":"Gym"},"signal":"saveSucceeded"}
  {"arguments":{"filePathName":"household.budget"},"signal":"savedBudgetFile"}

At a terminal, lines are typed with history and completion:

  $ begin
  $ kiv bill add 'Car tax' 360 --next 2026-01-31 >/dev/null
  $ "$TESTDIR/type" 'kiv> ' 'bil\t rem\tRe' Re '\x03' 'kiv> ' 'bill update Ca\t--amount 400\r' \
  >   'kiv> ' 'bill rename "Ca\tToll\r' 'kiv> ' '\x1b[A\r' 'kiv> ' '\r' 'kiv> ' '\x04'
  [1]
  $ kiv bill list | grep Toll
  Toll    $400.00  monthly  2026-01-31
