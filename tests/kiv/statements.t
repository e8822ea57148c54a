SPDX-License-Identifier: GPL-3.0-or-later

Statements of banks come in whole, or nothing of them does.

  $ . "$TESTDIR/household.sh"

A statement is previewed, posted, and known again:

  $ begin
  $ kiv account add Food --type expense >/dev/null
  $ kiv account add Other --type expense >/dev/null
  $ cat >s.csv <<.
  > Date;Amount;Text
  > 05.01.2026;-1.012,50;REWE
  > 06.01.2026;-3,00;Coffee
  > 06.01.2026;-3,00;Coffee
  > 07.01.2026;0,00;Nothing
  > 08.01.2026;20,00;Refund
  > .
  $ mkdir -p config/kiv/import
  $ echo '{"rules": [{"contains": "rewe", "account": "Food"}]}' >config/kiv/import/rules.json
  $ first() {
  >     kiv import s.csv --into Checking --against Other --profile rules \
  >         --date-format DD.MM.YYYY --decimal , --save-profile mine "$@"
  > }
  $ first --dry-run
  Line  Date        Description  Debit     Credit       Amount
     2  2026-01-05  REWE         Food      Checking  $1,012.50
     3  2026-01-06  Coffee       Other     Checking      $3.00
     4  2026-01-06  Coffee       Other     Checking      $3.00
     6  2026-01-08  Refund       Checking  Other        $20.00
  Entries with amount zero are skipped.
  Transactions posted: 4; duplicates skipped: 0; accounts opened: 0.
  Dry run: nothing is saved.
  $ first --json | jq -c 'del(.transactions), .transactions[0]'
  {"accounts":[],"duplicates":0,"notices":["Entries with amount zero are skipped."],"posted":4}
  {"amount":{"amount":"1012.50","currency":"USD"},"credit":1,"creditPath":"Assets:Checking","creditStatus":"none","date":"2026-01-05","debit":5,"debitPath":"Expenses:Food","debitStatus":"none","description":"REWE","duplicate":false,"line":2}

A third coffee is new; the other entries were there before:

  $ echo '06.01.2026;-3,00;Coffee' >>s.csv
  $ again() { kiv import s.csv --into Checking --against Other --profile mine "$@"; }
  $ again
  Entries with amount zero are skipped.
  Transactions posted: 1; duplicates skipped: 4; accounts opened: 0.

What changes nothing is not saved, and keeps the former versions:

  $ kiv history --json >formerly
  $ again | tail -1
  Transactions posted: 0; duplicates skipped: 5; accounts opened: 0.
  $ kiv history --json | cmp - formerly
  $ again --keep-duplicates | tail -1
  Transactions posted: 5; duplicates skipped: 0; accounts opened: 0.

The bank's own identifiers tell what is there already:

  $ cat >s.ofx <<.
  > <OFX><STMTRS><CURDEF>USD<BANKTRANLIST>
  > <STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x1<NAME>Bakery</STMTTRN>
  > <STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x2<NAME>Bakery</STMTTRN>
  > </BANKTRANLIST></STMTRS></OFX>
  > .
  $ kiv import s.ofx --into Checking --against Other
  Transactions posted: 2; duplicates skipped: 0; accounts opened: 0.
  $ kiv import s.ofx --into Checking --against Other
  Transactions posted: 0; duplicates skipped: 2; accounts opened: 0.
  $ kiv export | grep 'x2'
  2026-01-10 (13) Bakery | [id x2]
  $ kiv transaction update 13 --description 'Cake for Ann' >/dev/null
  $ kiv transaction update 12 --description 'Bread [id mine]' >/dev/null
  $ kiv import s.ofx --into Checking --against Other --dry-run | grep Bakery
     2  2026-01-10  Bakery       Other  Checking   $5.25
     3  2026-01-10  Bakery       Other  Checking   $5.25  duplicate

A transfer that both banks tell is told as one that may be there:

  $ kiv bank-account add Savings --bank First --balance '100 USD' --date 2026-01-01 >/dev/null
  $ moved() { echo "<OFX><STMTRS><CURDEF>USD<BANKTRANLIST><STMTTRN><DTPOSTED>20260112<TRNAMT>$1
  >     <FITID>$2<NAME>$3</STMTTRN></BANKTRANLIST></STMTRS></OFX>" >moved.ofx; }
  $ moved -300 c7 'TO SAVINGS'
  $ kiv import moved.ofx --into Checking --against Savings
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 0.
  $ moved 300 s9 'FROM CHECKING'
  $ kiv import moved.ofx --into Savings --against Checking --dry-run | tail -3
  Line 1 may be a transfer that the other account's statement already posted.
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 0.
  Dry run: nothing is saved.
  $ kiv import moved.ofx --into Savings --against Other --dry-run | tail -2
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 0.
  Dry run: nothing is saved.

What is left out, or goes elsewhere than the file says, is told:

  $ printf '!Type:Bank\nD1/15/2026\nT-9\nPShop\nL[Visa]\n^\n' >s.qif
  $ kiv import s.qif --into Checking --against Other --dry-run | grep account
  There is no account 'Visa'; its transfers are posted to 'Expenses:Other'.
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 0.
  $ printf '!Type:Bank\nD1/15/2026\nT9\nPOpening Balance\nL[Checking]\n^\n' >s.qif
  $ kiv import s.qif --into Checking --against Other --dry-run | grep itself
  Entries from 'Assets:Checking' to itself are skipped, such as an opening balance.
  $ printf 'Date,Text,Amount,State\n2026-02-01,Shop,-9,Pending\n' >pending.csv
  $ kiv import pending.csv --into Checking --against Other --save-profile mine
  Entries that the bank has not booked yet are skipped.
  Transactions posted: 0; duplicates skipped: 0; accounts opened: 0.
  $ printf 'Date,Text,Amount\n2025-12-31,Old,-9\n2026-01-01,New,-9\n' >old.csv
  $ kiv import old.csv --into Checking --against Other
  Some entries are older than the opening balance of 2026-01-01, which may already include them.
  Transactions posted: 2; duplicates skipped: 0; accounts opened: 0.
  $ kiv import old.csv --into Checking --against Other --profile mine
  Transactions posted: 0; duplicates skipped: 2; accounts opened: 0.

A profile is saved with the budget, or not at all:

  $ (trap '' XFSZ; ulimit -f 2; LLVM_PROFILE_FILE=/dev/null command kiv import s.csv \
  >     --into Checking --against Other --profile rules --date-format DD.MM.YYYY --decimal , \
  >     --keep-duplicates --save-profile unsaved)
  kiv: The file 'household.budget' could not be saved: File too large.
  [1]
  $ ls config/kiv/import
  mine.json
  rules.json

Where a profile cannot be saved, nothing is posted:

  $ kiv import s.csv --into Checking --profile yours
  kiv: There is no profile 'yours'; saved profiles: mine, rules.
  [1]
  $ rm -r config/kiv/import
  $ echo 'no folder' >config/kiv/import
  $ kiv import s.ofx --into Checking --against Other --keep-duplicates --save-profile mine
  kiv: Cannot write '*/config/kiv/import/mine.json': Not a directory. (glob)
  [1]

What cannot be read is refused, with its line:

  $ begin
  $ bank() {
  >     cat >"$1"
  >     kiv import "$1" --into Checking --against Salary
  > }
  $ echo x | bank s.bin
  kiv: Cannot tell the format of 's.bin'; use --format: journal, csv, ofx or qif.
  [2]
  $ kiv import s.ofx --into Checking
  kiv: Give the counter-account of 'Bakery', 2026-01-10 with --against.
  [1]
  $ mkdir folder
  $ kiv import folder --format journal
  kiv: Cannot read 'folder': file to open is a directory.
  [1]
  $ kiv import /proc/self/mem --format journal
  kiv: Cannot read '/proc/self/mem': Input/output error.
  [1]
  $ printf '!Type:Bank\nD1/25/2026\nT1\n^\n' >s.qif
  $ kiv import s.qif
  kiv: Give the account of the bank statement with --into.
  [2]

So are options that do not fit:

  $ kiv import s.csv --into Checking --against Salary --profile ../x
  kiv: '../x' is not a profile name; use letters, digits, '-' and '_'.
  [2]
  $ each 2 <<'.'
  > import s.csv --into 1 --decimal x
  > import s.csv --into 1 --delimiter ab
  > import s.csv --into 1 --skip 1001
  > import s.ofx --into 1 --decimal ,
  > .
  kiv: 'x' is not one of: '.', ','.
  kiv: 'ab' is not one of: ',', ';', '\t', '|'.
  kiv: '1001' is not a whole number from 0 to 1000.
  kiv: Use either --decimal or --format ofx, not both.
  $ echo | kiv import - --format journal --save-profile mine
  kiv: Use either --save-profile or --format journal, not both.
  [2]

Every way to read a statement. What it is shows in its beginning, and the other side in its
categories:

  $ begin
  $ kiv account add Food --type expense >/dev/null
  $ read_as() {
  >     cat >s.bin
  >     kiv import s.bin --into 1 --against 4 --dry-run --json "$@" | jq -c '.transactions[] |
  >         [.date, .amount.amount, .debitPath, .creditPath, .description]'
  > }
  $ read_as --format csv --delimiter '\t' --skip 1 --date-column day --amount-column sum \
  >     --text-column of --text-column at --id-column id --currency-column code \
  >     --sign-column go --negative S --date-format DD/MM/YYYY --decimal , <<.
  > bank	X
  > day	sum	of	at	id	code	go
  > 05/01/2026	5,25	REWE	Köln	7	USD	S
  > .
  ["2026-01-05","5.25","Income:Salary [Budget Item]","Assets:Checking","REWE Köln [id 7]"]
  $ read_as --format csv --delimiter '|' --no-headings --date-column 1 --in-column 2 \
  >     --out-column 3 --text-column 4 <<.
  > 2026-01-05|5.25||x
  > 2026-01-06||1.00|y
  > .
  ["2026-01-05","5.25","Assets:Checking","Income:Salary [Budget Item]","x"]
  ["2026-01-06","1.00","Income:Salary [Budget Item]","Assets:Checking","y"]
  $ read_as --format csv --negate --decimal . <<.
  > Date,Amount,Text
  > 2026-01-05,5.25,
  > .
  ["2026-01-05","5.25","Income:Salary [Budget Item]","Assets:Checking",""]
  $ read_as <s.ofx
  ["2026-01-10","5.25","Income:Salary [Budget Item]","Assets:Checking","Bakery | [id x1]"]
  ["2026-01-10","5.25","Income:Salary [Budget Item]","Assets:Checking","Bakery | [id x2]"]
  $ read_as <<.
  > !Type:Bank
  > D13/01/2026
  > T-1
  > LRent [Budget Item]
  > ^
  > D01/02/2026
  > T-2
  > LExpenses:Food
  > ^
  > .
  ["2026-01-13","1.00","Expenses:Rent [Budget Item]","Assets:Checking",""]
  ["2026-02-01","2.00","Expenses:Food","Assets:Checking",""]
