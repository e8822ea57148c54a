SPDX-License-Identifier: GPL-3.0-or-later

What was saved before can be looked at and comes back.

  $ . "$TESTDIR/household.sh"

What is undone is back, byte for byte but for what tells about the version, and what is
undone again is there again:

  $ image() {
  >     perl -0777 -ne 'print substr($_, 0, 4096 * unpack("N", substr($_, 28, 4)))' "$1"
  > }
  $ undone() {
  >     begin
  >     image household.budget >before
  >     kiv "$@"
  >     image household.budget >after
  >     ! cmp -s before after || echo "Nothing was changed."
  >     kiv undo --dry-run >dry
  >     tail -1 dry | grep -v 'nothing is saved'
  >     kiv undo >/dev/null
  >     image household.budget | cmp before -
  >     kiv redo >/dev/null
  >     image household.budget | cmp after -
  > }
  $ undone bill add Gym 30 --tag sport
  Added the bill 'Gym'.
  $ undone account recode Checking --number 77
  The account 1 Assets:Checking is now 77 Assets:Checking.
  $ undone survey complete First Checking --balance 2500 --tick 1 --date 2026-01-02
  Reconciled 1 Checking at First with a balance of $2,500.00.

Undo goes back by one change each time, or by several, or to any version; redo goes forth
again:

  $ begin
  $ kiv export --format json >first
  $ kiv bill add Gym 30 --next 2026-02-01 >/dev/null
  $ kiv bill add Club 20 --next 2026-02-01 >/dev/null
  $ kiv export --format json >last
  $ kiv undo --steps 2 --dry-run --json | jq -c '.changes[3] | [.change, .what, .name]'
  ["removed","account","6 Club [Budget Item]"]
  $ kiv undo --to 5
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  What     Name       Change   Detail
  item     bill Club  removed  20.00 USD, monthly, 2026-02-01
  item     bill Gym   removed  30.00 USD, monthly, 2026-02-01
  account  5 Gym      removed  0.00 USD
  account  6 Club     removed  0.00 USD
  $ kiv export --format json | cmp - first
  $ kiv redo --steps 2 >/dev/null
  $ kiv export --format json | cmp - last
  $ kiv undo >/dev/null
  $ kiv undo >/dev/null
  $ kiv export --format json | cmp - first

What is kept; a new change ends redo, and what was undone stays in the list:

  $ kiv pay Rent 5 --account Checking --date 2026-02-01 >/dev/null
  $ kiv redo
  kiv: There is nothing to redo.
  [1]
  $ kiv history
  Version           Saved at             Transactions  Change
  8        present  ????-??-?? ??:??:??             2  Posted $5.00 for the bill 'Rent', which is still due on 2026-01-31 (glob)
  7                 ????-??-?? ??:??:??             1  Added the bill 'Club' (glob)
  6                 ????-??-?? ??:??:??             1  Added the bill 'Gym' (glob)
  5                 ????-??-?? ??:??:??             1  Added the wage 'Salary' (glob)
  4                 ????-??-?? ??:??:??             1  Added the bill 'Rent' (glob)
  3                 ????-??-?? ??:??:??             1  Added the account 1 Checking to the bank 'First' (glob)
  2                 ????-??-?? ??:??:??             0  Added the bank 'First' (glob)
  1                 ????-??-?? ??:??:??             0  Created the budget (glob)
  $ kiv undo >/dev/null
  $ kiv history --json | jq -c 'map([.version, .present])'
  [["8",false],["7",false],["6",false],["5",true],["4",false],["3",false],["2",false],["1",false]]
  $ kiv undo --to 5
  kiv: The file already is at version 5.
  [1]

Surveys and imports have their own lines, and what one program does at once is one:

  $ begin
  $ kiv survey complete First Checking --balance 2500 --tick 1 --date 2026-01-02 >/dev/null
  $ jq -n '[{date: "2026-01-02", debit: 1, credit: 4, amount: "1 USD"}]' |
  >     kiv transaction load - >/dev/null
  $ printf 'bill add Gym 30\nbill add Club 20\nbill add Car 9\n' | kiv shell >/dev/null
  $ kiv history --json | jq -r '.[:3][].change'
  Added the bill 'Gym' and 2 more
  Posted 1 transaction
  Survey of Checking, 2026-01-02

A large import that is undone does not fill the terminal:

  $ begin
  $ load() { jq -n "[range($1) | {date: \"2026-01-02\", debit: 1, credit: 4, amount: \"1 USD\"}]" |
  >     kiv transaction load - >/dev/null && kiv undo >lines && wc -l <lines && tail -1 lines; }
  $ load 18
  22
  transaction  19          removed  2026-01-02, 1.00 USD
  $ load 19
  23
  1 more change is not shown; see all with --json.
  $ kiv redo --dry-run --json | jq '.changes | length'
  21

Differences are told field by field:

  $ begin
  $ kiv bill update Rent --amount 1300.00 --tag home >/dev/null
  $ kiv pay Rent 5 --account Checking --date 2026-02-03 >/dev/null
  $ kiv history diff
  What         Name        Change   Detail
  account      1 Checking  changed  balance 2500.00 USD \xe2\x86\x92 2495.00 USD (esc)
  account      3 Rent      changed  balance 0.00 USD \xe2\x86\x92 5.00 USD (esc)
  transaction  2           added    2026-02-03, 5.00 USD, Processed unexpected budget item 'Rent'.
  $ kiv history diff 5 6
  What  Name       Change   Detail
  item  bill Rent  changed  amount 1250.00 USD \xe2\x86\x92 1300.00 USD, tags \xe2\x80\x93 \xe2\x86\x92 home (esc)
  $ kiv history diff --json | jq -c '.[0]'
  {"after":{"balance":{"amount":"2495.00","currency":"USD"},"name":"Checking","number":1,"open":true,"parent":null,"path":"Assets:Checking","type":"asset"},"before":{"balance":{"amount":"2500.00","currency":"USD"},"name":"Checking","number":1,"open":true,"parent":null,"path":"Assets:Checking","type":"asset"},"change":"changed","name":"1 Checking","what":"account"}
  $ kiv bill update Rent --every every-two-weeks --next 2026-03-01 >/dev/null
  $ kiv history diff
  What  Name       Change   Detail
  item  bill Rent  changed  every monthly \xe2\x86\x92 every two weeks, next 2026-01-31 \xe2\x86\x92 2026-03-01 (esc)
  $ kiv survey complete First Checking --date 2026-02-28 --balance 2495 --tick-all
  Reconciled 1 Checking at First with a balance of $2,495.00.
  $ kiv history diff
  What         Name     Change   Detail
  transaction  1        changed  mark of the giver none \xe2\x86\x92 reconciled, mark of the receiver none \xe2\x86\x92 reconciled (esc)
  transaction  2        changed  mark of the giver none \xe2\x86\x92 reconciled, mark of the receiver none \xe2\x86\x92 reconciled (esc)
  survey       First 1  added    2495.00 USD
  $ kiv bank rename First Second
  The bank is now called 'Second'.
  $ kiv history diff
  What    Name      Change   Detail
  bank    First     removed
  bank    Second    added
  survey  First 1   removed  2495.00 USD
  survey  Second 1  added    2495.00 USD
  $ each 0 <<'.' >/dev/null
  > account add Food --type expense
  > account add Out --type expense
  > account recode Food --under Out
  > account remove Food
  > account add Food --type income --number 5
  > .
  $ kiv history diff 12 13
  What     Name    Change   Detail
  account  5 Food  changed  parent \xe2\x80\x93 \xe2\x86\x92 6, path Expenses:Food \xe2\x86\x92 Expenses:Out:Food (esc)
  $ kiv history diff 12 15
  What     Name    Change   Detail
  account  5 Food  changed  path Expenses:Food \xe2\x86\x92 Income:Food, type expense \xe2\x86\x92 income (esc)

Nothing is undone where that would lose something:

  $ rm -r household.budget*
  $ kiv new >/dev/null
  $ kiv undo
  kiv: There is nothing to undo.
  [1]
  $ kiv bank add First >/dev/null
  $ kiv undo --to 7
  kiv: There is no version 7; see kiv history.
  [1]
  $ hold
  $ kiv banks
  First
  There are no accounts.
  $ ls -A | grep lock
  household.budget.lock
  $ let_go

A former version is damaged; the file is not the worse for it:

  $ former=$(ls household.budget.versions/*)
  $ cp "$former" kept
  $ head -c -100 kept >"$former"
  $ kiv undo
  kiv: The version in '*/versions.t/household.budget.versions/*-1.budget' is damaged. The checksum is wrong. (glob)
  [1]
  $ kiv history
  Version           Saved at             Transactions  Change
  2        present  ????-??-?? ??:??:??             0  Added the bank 'First' (glob)
  1                 ????-??-?? ??:??:??                                        damaged (glob)
  $ cp kept "$former"

The file is gone or damaged. Each command says what to do, and undo does it:

  $ cp household.budget whole
  $ rm household.budget
  $ each 1 2>&1 <<'.' | uniq -c
  > banks
  > bank add Second
  > check
  > redo
  > new
  > history diff
  > .
        4 kiv: There is no file 'household.budget'. Former versions are kept; bring the newest back with kiv undo.
        2 kiv: The file 'household.budget' is gone, but its former versions are kept; bring the newest back with kiv undo.
  $ kiv history
  Version    Saved at             Transactions  Change
  1          ????-??-?? ??:??:??             0  Created the budget (glob)
  The file 'household.budget' is gone. Former versions are kept; bring the newest back with kiv undo.
  $ kiv undo --dry-run
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  Dry run: nothing is saved.
  $ test -e household.budget
  [1]
  $ kiv undo
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  $ cmp kept household.budget
  $ head -c -100 whole >household.budget
  $ kiv undo
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  $ cmp kept household.budget

Every promise of a file is judged, and none behind one that is broken:

  $ begin
  $ cp household.budget whole
  $ kiv check | sed 3,7d
  Check                                         Result  Details
  The file is a budget file of a known version  ok
  Debits equal credits in every currency        ok      2500.00 USD
  The budget 'household.budget' is intact.
  $ perl -0777 -pe 'substr($_, index($_, "CREATE TABLE"), 1) ^= "\1"' whole >household.budget
  $ cp household.budget flipped
  $ kiv check --json | jq -c '.whole, [.promises[].verdict]'
  false
  ["kept","not judged","broken","not judged","not judged","not judged","not judged"]
  $ kiv check >told
  [1]
  $ grep -e FAILED -e '^The budget' told
  The rows are as they were saved               FAILED       The checksum is wrong.
  The budget 'household.budget' is damaged; bring a whole version back with kiv undo.
  $ cmp household.budget flipped

Former versions are checked, too, and files that somebody has open. What has lost its
account is mended when it is opened:

  $ begin
  $ kiv check household.budget.versions/*-4.budget | tail -1
  The budget 'household.budget.versions/*-4.budget' is intact. (glob)
  $ kiv account remove 3 >/dev/null
  $ kiv check | grep repaired
  Items, accounts and banks match               repaired when opened  The budget item 'Rent' had lost its account, which was opened anew under the number 5.
  $ kiv check --json | jq -c '.whole, .promises[4]'
  true
  {"details":["The budget item 'Rent' had lost its account, which was opened anew under the number 5."],"promise":"ties","text":"Items, accounts and banks match","verdict":"mended"}
  $ printf 'check\nhistory\n' | kiv shell | grep '^The budget'
  kiv: warning: Repaired while loading: The budget item 'Rent' had lost its account, which was opened anew under the number 5.
  The budget 'household.budget' is intact.
