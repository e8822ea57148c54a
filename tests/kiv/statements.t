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
  $ echo '{"rules": [{"contains": "rewe", "account": "Food"}, {"contains": "none", "account": "Gone"}]}' >config/kiv/import/rules.json
  $ first() {
  >     kiv import s.csv --into Checking --against Other --profile rules \
  >         --date-format DD.MM.YYYY --decimal , --save-profile mine "$@"
  > }
  $ first --dry-run
  Entry  Date        Description      Amount    What      For    Why
      1  2026-01-05  REWE         -$1,012.50    new       Food   By the rule \xe2\x80\x9crewe\xe2\x80\x9d. (esc)
      2  2026-01-06  Coffee           -$3.00    new       Other
      3  2026-01-06  Coffee           -$3.00    new       Other
      4  2026-01-07  Nothing           $0.00    left out         Entries with amount zero are skipped.
      5  2026-01-08  Refund           $20.00    new       Other
  Read as: UTF-8, semicolons, headings on line 1, date 'Date' as DD.MM.YYYY, amount 'Amount', text 'Text', decimal comma
  Entries with amount zero are skipped.
  New: 4; matched: 0; already imported: 0; left out: 1; accounts opened: 0.
  Dry run: nothing is saved.
  $ first --json | jq -c 'del(.entries), .entries[0]'
  {"account":1,"accounts":[],"doubtful":0,"known":0,"leftOut":1,"matched":0,"new":4,"notices":["Entries with amount zero are skipped."]}
  {"account":5,"amount":{"amount":"-1012.50","currency":"USD"},"date":"2026-01-05","description":"REWE","doubtful":false,"entry":1,"for":"Food","identifier":"~20260105-67d1be","line":2,"path":"Expenses:Food","reason":"By the rule \xe2\x80\x9crewe\xe2\x80\x9d.","state":"new"} (esc)

A third coffee is new; the other entries were there before:

  $ echo '06.01.2026;-3,00;Coffee' >>s.csv
  $ again() { kiv import s.csv --into Checking --against Other --profile mine "$@"; }
  $ again
  Entries with amount zero are skipped.
  New: 1; matched: 0; already imported: 4; left out: 1; accounts opened: 0.

What changes nothing is not saved, and keeps the former versions:

  $ kiv history --json >formerly
  $ again | tail -1
  New: 0; matched: 0; already imported: 5; left out: 1; accounts opened: 0.
  $ kiv history --json | cmp - formerly
  $ again --keep-duplicates | tail -1
  New: 5; matched: 0; already imported: 0; left out: 1; accounts opened: 0.

The bank's own identifiers tell what is there already:

  $ cat >s.ofx <<.
  > <OFX><STMTRS><CURDEF>USD<BANKTRANLIST>
  > <STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x1<NAME>Bakery</STMTTRN>
  > <STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x2<NAME>Bakery</STMTTRN>
  > </BANKTRANLIST></STMTRS></OFX>
  > .
  $ kiv import s.ofx --into Checking --against Other
  New: 2; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ kiv export | grep 'x2'
  2026-01-10 (13) Bakery | [id x2]
  $ kiv transaction update 13 --description 'Cake for Ann' >/dev/null
  $ kiv transaction update 12 --description 'Bread [id mine]' >/dev/null
  $ kiv import s.ofx --into Checking --against Other --dry-run | grep Bakery
      1  2026-01-10  Bakery       -$5.25    new    Other
      2  2026-01-10  Bakery       -$5.25    known  (13)   It was imported before.

A transfer that both banks tell is posted once, whatever it was for:

  $ kiv bank-account add Savings --bank First --balance '100 USD' --date 2026-01-01 >/dev/null
  $ moved() { echo "<OFX><STMTRS><CURDEF>USD<BANKTRANLIST><STMTTRN><DTPOSTED>20260112<TRNAMT>$1
  >     <FITID>$2<NAME>$3</STMTTRN></BANKTRANLIST></STMTRS></OFX>" >moved.ofx; }
  $ moved -300 c7 'TO SAVINGS'
  $ kiv import moved.ofx --into Checking --against Savings
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ moved 300 s9 'FROM CHECKING'
  $ kiv import moved.ofx --into Savings --against Checking --dry-run | tail -3
      1  2026-01-12  FROM CHECKING  $300.00    matched  (15)  The statement of Checking has it on 2026-01-12.
  New: 0; matched: 1; already imported: 0; left out: 0; accounts opened: 0.
  Dry run: nothing is saved.
  $ kiv import moved.ofx --into Savings --against Other --dry-run | tail -2
  New: 0; matched: 1; already imported: 0; left out: 0; accounts opened: 0.
  Dry run: nothing is saved.

What is left out, or goes elsewhere than the file says, is told:

  $ printf '!Type:Bank\nD1/15/2026\nT-9\nPShop\nL[Visa]\n^\n' >s.qif
  $ kiv import s.qif --into Checking --against Other --dry-run | grep account
      1  2026-01-15  Shop         -$9.00  ?  new   Other  There is no account 'Visa'; its transfers are posted to 'Expenses:Other'.
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ printf '!Type:Bank\nD1/15/2026\nT9\nPOpening Balance\nL[Checking]\n^\n' >s.qif
  $ kiv import s.qif --into Checking --against Other --dry-run | grep itself
      1  2026-01-15  Opening Balance   $9.00    left out       Entries from 'Assets:Checking' to itself are skipped, such as an opening balance.
  Entries from 'Assets:Checking' to itself are skipped, such as an opening balance.
  $ printf 'Date,Text,Amount,State\n2026-02-01,Shop,-9,Pending\n' >pending.csv
  $ kiv import pending.csv --into Checking --against Other --save-profile mine
  Entries that the bank has not booked yet are skipped.
  New: 0; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ printf 'Date,Text,Amount\n2025-12-31,Old,-9\n2026-01-01,New,-9\n' >old.csv
  $ kiv import old.csv --into Checking --against Other
  Some entries are older than the opening balance of 2026-01-01, which may already include them.
  New: 2; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  1 entry should be looked at; see the marks with --dry-run.
  $ kiv import old.csv --into Checking --against Other --profile mine
  New: 0; matched: 0; already imported: 2; left out: 0; accounts opened: 0.

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
  kiv: Cannot tell the format of 's.bin'; use --format: journal, csv, ofx, qif, mt940 or camt.
  [2]
  $ mkdir folder
  $ kiv import folder --format journal
  kiv: Cannot read 'folder': file to open is a directory.
  [1]
  $ kiv import /proc/self/mem --format journal
  kiv: Cannot read '/proc/self/mem': Input/output error.
  [1]

So are options that do not fit:

  $ each 2 <<'.'
  > import s.csv --into 1 --against Salary --profile ../x
  > import s.csv --into 1 --decimal x
  > import s.csv --into 1 --delimiter ab
  > .
  kiv: '../x' is not a profile name; use letters, digits, '-' and '_'.
  kiv: 'x' is not one of: '.', ','.
  kiv: 'ab' is not one of: ',', ';', '\t', '|'.

Every way to read a statement. What it is shows in its beginning:

  $ begin
  $ read_as() {
  >     cat >s.bin
  >     kiv import s.bin --into 1 --against 4 --dry-run --json "$@" | jq -c '.entries[] |
  >         [.date, .amount.amount, .path, .description, .identifier]'
  > }
  $ read_as --format csv --delimiter '\t' --skip 1 --date-column day --amount-column sum \
  >     --text-column of --text-column at --id-column id --currency-column code \
  >     --sign-column go --negative S --date-format DD/MM/YYYY --decimal , <<.
  > bank	X
  > day	sum	of	at	id	code	go
  > 05/01/2026	5,25	REWE	Köln	7	USD	S
  > .
  ["2026-01-05","-5.25","Income:Salary [Budget Item]","REWE K\xc3\xb6ln","7"] (esc)
  $ read_as --format csv --delimiter '|' --no-headings --date-column 1 --in-column 2 \
  >     --out-column 3 --text-column 4 <<.
  > 2026-01-05|5.25||x
  > 2026-01-06||1.00|y
  > .
  ["2026-01-05","5.25","Income:Salary [Budget Item]","x","~20260105-ae14f4"]
  ["2026-01-06","-1.00","Income:Salary [Budget Item]","y","~20260106-52b3a0"]
  $ read_as --format csv --negate --decimal . <<.
  > Date,Amount,Text
  > 2026-01-05,5.25,
  > .
  ["2026-01-05","-5.25","Income:Salary [Budget Item]","","~20260105-dc6a84"]
  $ read_as <s.ofx | head -1
  ["2026-01-10","-5.25","Income:Salary [Budget Item]","Bakery |","x1"]
  $ printf '!Type:Bank\nD13/01/2026\nT-1\nLRent [Budget Item]\n^\n' | read_as
  ["2026-01-13","-1.00","Expenses:Rent [Budget Item]","","~20260113-e32991"]
