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
  >     kiv undo >/dev/null
  >     image household.budget | cmp after -
  > }
  $ undone bill add Gym 30 --tag sport
  Added the bill 'Gym'.
  $ undone account recode Checking --number 77
  The account 1 Assets:Checking is now 77 Assets:Checking.
  $ undone survey complete First Checking --balance 2500 --tick 1 --date 2026-01-02
  Reconciled 1 Checking at First with a balance of $2,500.00.

Older versions come back by their number. The one that is replaced is then the newest of
the former ones:

  $ begin
  $ kiv export --format json >first
  $ kiv bill add Gym 30 --next 2026-02-01
  Added the bill 'Gym'.
  $ kiv bill add Club 20 --next 2026-02-01
  Added the bill 'Club'.
  $ kiv export --format json >last
  $ kiv undo --to 2 --dry-run --json | jq -c '.changes[] | [.change, .what, .name]'
  ["removed","item","bill Club"]
  ["removed","item","bill Gym"]
  ["removed","account","5 Gym [Budget Item]"]
  ["removed","account","6 Club [Budget Item]"]
  $ kiv undo --to 2
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  What     Name                  Change   Detail
  item     bill Club             removed  20.00 USD, monthly, 2026-02-01
  item     bill Gym              removed  30.00 USD, monthly, 2026-02-01
  account  5 Gym [Budget Item]   removed  0.00 USD
  account  6 Club [Budget Item]  removed  0.00 USD
  $ kiv export --format json | cmp - first
  $ kiv undo >/dev/null
  $ kiv export --format json | cmp - last

A large import that is undone does not fill the terminal:

  $ begin
  $ load() { jq -n "[range($1) | {date: \"2026-01-02\", debit: 1, credit: 4, amount: \"1 USD\"}]" |
  >     kiv transaction load - >/dev/null && kiv undo >lines && wc -l <lines && tail -1 lines; }
  $ load 18
  22
  transaction  19                      removed  2026-01-02, 1.00 USD
  $ load 19
  23
  1 more change is not shown; see all with --json.
  $ load 1000
  23
  982 more changes are not shown; see all with --json.
  $ kiv undo --dry-run --json | jq '.changes | length'
  1002

What is kept, from the file itself on:

  $ begin
  $ kiv bill add Gym 30 --next 2026-02-01
  Added the bill 'Gym'.
  $ kiv pay Gym 5 --account Checking --date 2026-02-01
  Posted $5.00 for the bill 'Gym', which is still due on 2026-02-01.
  $ kiv history
  Version  Saved at             Bytes  Items  Accounts  Transactions
        0  ????-??-?? ??:??:??  ?????      3         5             2 (glob)
        1  ????-??-?? ??:??:??  ?????      3         5             1 (glob)
        2  ????-??-?? ??:??:??  ?????      2         4             1 (glob)
        3  ????-??-?? ??:??:??  ?????      1         3             1 (glob)
        4  ????-??-?? ??:??:??  ?????      0         2             1 (glob)
        5  ????-??-?? ??:??:??  ?????      0         0             0 (glob)
  $ kiv history --json >history
  $ jq 'map(.savedAt) == (map(.savedAt) | sort | reverse),
  >     (now - (.[0].savedAt | sub("\\.\\d+"; "") | fromdate) | fabs < 600)' history
  true
  true

Differences are told field by field:

  $ begin
  $ kiv bill update Rent --amount 1300.00 --tag home
  Changed the bill 'Rent'.
  $ kiv pay Rent 5 --account Checking --date 2026-02-03
  Posted $5.00 for the bill 'Rent', which is still due on 2026-01-31.
  $ kiv history diff
  What         Name                  Change   Detail
  account      1 Checking            changed  balance 2500.00 USD → 2495.00 USD
  account      3 Rent [Budget Item]  changed  balance 0.00 USD → 5.00 USD
  transaction  2                     added    2026-02-03, 5.00 USD, Processed unexpected budget item 'Rent'.
  $ kiv history diff 2 1
  What  Name       Change   Detail
  item  bill Rent  changed  amount 1250.00 USD → 1300.00 USD, tags  → home
  $ kiv history diff --json | jq -c '.[0]'
  {"after":{"balance":{"amount":"2495.00","currency":"USD"},"name":"Checking","number":1,"open":true,"parent":null,"path":"Assets:Checking","type":"asset"},"before":{"balance":{"amount":"2500.00","currency":"USD"},"name":"Checking","number":1,"open":true,"parent":null,"path":"Assets:Checking","type":"asset"},"change":"changed","name":"1 Checking","what":"account"}
  $ kiv bill update Rent --every every-two-weeks --next 2026-03-01
  Changed the bill 'Rent'.
  $ kiv history diff
  What  Name       Change   Detail
  item  bill Rent  changed  every monthly → every two weeks, next 2026-01-31 → 2026-03-01
  $ kiv survey complete First Checking --date 2026-02-28 --balance 2495 --tick-all
  Reconciled 1 Checking at First with a balance of $2,495.00.
  $ kiv history diff
  What         Name     Change   Detail
  transaction  1        changed  creditStatus none → reconciled, debitStatus none → reconciled
  transaction  2        changed  creditStatus none → reconciled, debitStatus none → reconciled
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
  $ kiv history diff 3 2
  What     Name    Change   Detail
  account  5 Food  changed  parent – → 6, path Expenses:Food → Expenses:Out:Food
  $ kiv history diff 3 0
  What     Name    Change   Detail
  account  5 Food  changed  path Expenses:Food → Income:Food, type expense → income

Nothing is undone where that would lose something:

  $ rm household.budget*
  $ kiv new
  Created the empty budget 'household.budget'.
  $ kiv undo
  kiv: There is no version 1; this budget has no older versions.
  [1]
  $ kiv bank add First
  Added the bank 'First'.
  $ kiv undo --to 2
  kiv: There is no version 2; see kiv history.
  [1]
  $ hold
  $ kiv undo
  kiv: The file 'household.budget' is in use by another program (process *, kiv on *). (glob)
  [1]
  $ let_go

The former version is no file, or damaged; the file is not the worse for it:

  $ mv household.budget.backup-1 kept
  $ mkdir household.budget.backup-1
  $ kiv undo
  kiv: '*/versions.t/household.budget.backup-1' is not a regular file. (glob)
  [1]
  $ rmdir household.budget.backup-1
  $ head -c -100 household.budget >household.budget.backup-1
  $ kiv undo
  kiv: The version in '*/versions.t/household.budget.backup-1' is damaged. The checksum is wrong. (glob)
  [1]
  $ kiv history
  Version  Saved at             Bytes  Items  Accounts  Transactions
        0  ????-??-?? ??:??:??  ?????      0         0             0 (glob)
        1  ????-??-?? ??:??:??  ?????                                 damaged (glob)

So is the file itself; what to do then is said:

  $ cp household.budget whole
  $ head -c -100 whole >household.budget
  $ kiv undo
  kiv: The file 'household.budget' is damaged and was not loaded. Caused by: The checksum is wrong. Find an intact version with kiv history, then copy its file (such as '*/versions.t/household.budget.backup-1') over the damaged one. (glob)
  [1]
  $ kiv history
  Version  Saved at             Bytes  Items  Accounts  Transactions
        0  ????-??-?? ??:??:??  ?????                                 damaged (glob)
        1  ????-??-?? ??:??:??  ?????                                 damaged (glob)

Every promise of a file is judged, and none behind one that is broken:

  $ begin
  $ cp household.budget whole
  $ kiv check
  Check                                         Result  Details
  The file is a budget file of a known version  ok
  The tables belong to that version             ok
  The rows are as they were saved               ok
  The books follow the rules of the ledger      ok
  Items, accounts and banks match               ok
  Every balance is the sum of its transactions  ok
  Debits equal credits in every currency        ok      2500.00 USD
  The budget 'household.budget' is intact.
  $ kiv check --json | jq -c '.whole, .promises[-1]'
  true
  {"details":["2500.00 USD"],"promise":"sides","text":"Debits equal credits in every currency","verdict":"kept"}
  $ flipped() {
  >     perl -0777 -pe "substr(\$_, $1, 1) ^= qq(\1)" whole >household.budget
  >     cp household.budget flipped
  >     kiv check --json | jq -c '.whole, [.promises[].verdict]'
  >     kiv check >told
  >     echo "[$?]"
  >     grep -e FAILED -e '^The budget' told
  >     cmp household.budget flipped
  > }

As another kind of file is, and a newer version:

  $ flipped 70
  false
  ["broken","not judged","not judged","not judged","not judged","not judged","not judged"]
  [1]
  The file is a budget file of a known version  FAILED       The file 'household.budget' was not written by this program.
  The budget 'household.budget' is damaged; find an intact version with kiv history.

A word of its tables, and a letter of a name:

  $ flipped 'index($_, "CREATE TABLE")'
  false
  ["kept","not judged","broken","not judged","not judged","not judged","not judged"]
  [1]
  The rows are as they were saved               FAILED       The checksum is wrong.
  The budget 'household.budget' is damaged; find an intact version with kiv history.
  $ flipped 'index($_, "Checking")'
  false
  ["kept","not judged","broken","not judged","not judged","not judged","not judged"]
  [1]
  The rows are as they were saved               FAILED       The checksum is wrong.
  The budget 'household.budget' is damaged; find an intact version with kiv history.

Former versions are checked, too, and files that somebody has open. What has lost its
account is mended when it is opened:

  $ begin
  $ kiv check household.budget.backup-1 | tail -1
  The budget 'household.budget.backup-1' is intact.
  $ kiv check household | tail -2
  Debits equal credits in every currency        ok      2500.00 USD
  The budget 'household.budget' is intact.
  $ kiv account remove 3
  Removed the account 3 Rent [Budget Item].
  $ kiv check | tail -4
  Items, accounts and banks match               repaired when opened  The budget item 'Rent' had lost its account, which was opened anew under the number 5.
  Every balance is the sum of its transactions  ok
  Debits equal credits in every currency        ok                    2500.00 USD
  The budget 'household.budget' is intact.
  $ kiv check --json | jq -c '.whole, .promises[4]'
  true
  {"details":["The budget item 'Rent' had lost its account, which was opened anew under the number 5."],"promise":"ties","text":"Items, accounts and banks match","verdict":"mended"}
  $ printf 'check\nhistory\n' | kiv shell | grep '^The budget'
  kiv: warning: Repaired while loading: The budget item 'Rent' had lost its account, which was opened anew under the number 5.
  The budget 'household.budget' is intact.
