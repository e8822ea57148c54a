SPDX-License-Identifier: GPL-3.0-or-later

Bank files are laid beside what is there.

  $ . "$TESTDIR/household.sh"

Entries are matched with what was typed, and items that are due are paid. What somebody should look
at has a mark, and can be corrected by the numbers of its entries:

  $ begin
  $ kiv account add Food --type expense >/dev/null
  $ kiv spend 12.50 Food --payee 'Corner shop' --date 2026-01-03 >/dev/null
  $ kiv spend 30 Food --payee 'Fair' --date 2026-01-20 >/dev/null
  $ kiv spend 7.20 Food --payee 'Kiosk' --date 2026-01-22 >/dev/null
  $ kiv transaction reconcile 4 >/dev/null
  $ cat >s.ofx <<.
  > <OFX><STMTRS><CURDEF>USD<BANKACCTFROM><ACCTID>DE77</BANKACCTFROM><BANKTRANLIST>
  > <STMTTRN><DTPOSTED>20260105<TRNAMT>-12.50<FITID>a1<NAME>CORNER SHOP 12</STMTTRN>
  > <STMTTRN><DTPOSTED>20260130<TRNAMT>-1250<FITID>a2<NAME>RENT JANUARY</STMTTRN>
  > <STMTTRN><DTPOSTED>20260123<TRNAMT>3150<FITID>a3<NAME>ACME SALARY</STMTTRN>
  > <STMTTRN><DTPOSTED>20260129<TRNAMT>-30<FITID>a4<NAME>ACME</STMTTRN>
  > <STMTTRN><DTPOSTED>20260122<TRNAMT>-7.20<FITID>a5<NAME>NEWS</STMTTRN>
  > <STMTTRN><DTPOSTED>20260108<TRNAMT>-9.99<FITID>a6<NAME>CORNER SHOP 12</STMTTRN>
  > </BANKTRANLIST></STMTRS></OFX>
  > .
  $ kiv import s.ofx --dry-run
  Entry  Date        Description         Amount     What     For     Why
      1  2026-01-05  CORNER SHOP 12     -$12.50     matched  (2)     Entered on 2026-01-03 for the same amount.
      2  2026-01-30  RENT JANUARY    -$1,250.00     due      Rent    Rent is due on 2026-01-31 for $1,250.00.
      3  2026-01-23  ACME SALARY      $3,150.00  ?  due      Salary  Salary is due on 2026-01-25, but for $3,100.00.
      4  2026-01-29  ACME               -$30.00  ?  new              It is not known what it was for.
      5  2026-01-22  NEWS                -$7.20     known    (4)     Entered on 2026-01-22 for the same amount.
      6  2026-01-08  CORNER SHOP 12      -$9.99     new      Food    As the last time.
  New: 4; matched: 1; already imported: 1; left out: 0; accounts opened: 0.
  2 entries with a ? should be looked at.
  Dry run: nothing is saved.
  $ kiv import s.ofx --new 1 --same 4=3 --for 3=Food --leave-out 2 --dry-run --json |
  >     jq -c '.entries[] | [.state, .for]'
  ["new","Food"]
  ["left out","Rent"]
  ["new","Food"]
  ["matched","(3)"]
  ["known","(4)"]
  ["new","Food"]
  $ each 1 <<'.'
  > import s.ofx
  > import s.ofx --same 4=1
  > import s.ofx --for 4=Nowhere
  > .
  kiv: It is not known what this was for: 2026-01-29, -$30.00, ACME. Say it with --for, --against or a rule.
  kiv: Transaction 1 cannot be the same as an entry of -$30.00.
  kiv: There is no account 'Nowhere'; see kiv accounts.
  $ kiv rules add acme Food --from 25 --to 100
  Added the rule \xe2\x80\x9cacme\xe2\x80\x9d for Food. (esc)
  $ kiv import s.ofx
  New: 4; matched: 1; already imported: 1; left out: 0; accounts opened: 0.
  1 entry should be looked at; see the marks with --dry-run.
  $ kiv export --format csv | cut -d, -f2,4,6,7,9-11 | tr -d '\r'
  date,debitAccount,creditAccount,amount,description,debitStatus,creditStatus
  "2026-01-01","Assets:Checking","Equity:Opening Balances USD [Equity]","2500.00","","none","none"
  "2026-01-03","Expenses:Food","Assets:Checking","12.50","Corner shop | [id a1]","none","cleared"
  "2026-01-20","Expenses:Food","Assets:Checking","30.00","Fair |","none","none"
  "2026-01-22","Expenses:Food","Assets:Checking","7.20","Kiosk |","reconciled","reconciled"
  "2026-01-23","Assets:Checking","Income:Salary [Budget Item]","3150.00","ACME SALARY | Processed the budget item due on Sun Jan 25 2026. [id a3]","cleared","none"
  "2026-01-30","Expenses:Rent [Budget Item]","Assets:Checking","1250.00","RENT JANUARY | Processed the budget item due on Sat Jan 31 2026. [id a2]","none","cleared"
  "2026-01-29","Expenses:Food","Assets:Checking","30.00","ACME | [id a4]","none","cleared"
  "2026-01-08","Expenses:Food","Assets:Checking","9.99","CORNER SHOP 12 | [id a6]","none","cleared"
  $ kiv due --date 2026-01-30
  Nothing is due.
  $ kiv import s.ofx
  New: 0; matched: 0; already imported: 6; left out: 0; accounts opened: 0.
  $ kiv undo | sed -n '3p; 9p; $p' | cut -c1-60
  item         bill Rent    changed  next 2026-02-28 \xe2\x86\x92 2026- (esc)
  transaction  2            changed  mark of the giver cleared
  transaction  8            removed  2026-01-08, 9.99 USD, COR

A rule follows the account, undo takes it back:

  $ kiv account recode Food --number 77 >/dev/null
  $ kiv rules list
  Rule  Text  Pattern  From  To   Statements of  For
     1  acme           25    100                 Food
  $ kiv rules test 'The Acme Inc' --amount 30
  Rule 1, \xe2\x80\x9cacme\xe2\x80\x9d, says that it is for Food. (esc)
  $ kiv rules test acme --amount 101
  No rule fits.
  $ kiv rules remove 1
  Removed 1 rule.
  $ kiv undo >/dev/null
  $ kiv rules list --json | jq -c '.[]'
  {"account":77,"from":"25","of":null,"path":"Expenses:Food","pattern":false,"rule":1,"text":"acme","to":"100"}
  $ each 2 <<'.'
  > rules add '(' Food --pattern
  > rules add ' ' Food
  > rules add x Food --from 9 --to 3
  > rules remove 2
  > import s.ofx --keep-columns
  > import s.ofx --leave-out 7
  > .
  kiv: '(' is not a regular expression: missing closing parenthesis.
  kiv: A rule needs a text that entries contain.
  kiv: No amount lies between those of the rule.
  kiv: '2' is not a whole number from 1 to 1.
  kiv: Use either --keep-columns or --format ofx, not both.
  kiv: '7' is not a whole number from 1 to 6.

A file of another account is noticed, and one whose account is known needs no name:

  $ kiv bank-account add Savings --bank First --balance '100 USD' --date 2026-01-01 >/dev/null
  $ sed 's/DE77/DE88/; s/FITID>a/FITID>b/' s.ofx >other.ofx
  $ kiv import other.ofx
  kiv: Give the account of the bank statement with --into. It may be: Checking, Savings.
  [2]
  $ kiv import other.ofx --into Food
  kiv: No bank's statement is of 'Food': the account neither holds money nor owes any.
  [1]
  $ kiv import other.ofx --into Checking --against Food
  New: 4; matched: 1; already imported: 1; left out: 0; accounts opened: 0.
  1 entry should be looked at; see the marks with --dry-run.
  $ kiv import other.ofx --into Savings --against Food | tail -2
  kiv: The file is of Checking, whose files have the number DE88. Use --yes to import it all the same.
  $ kiv import other.ofx | tail -1
  New: 0; matched: 0; already imported: 6; left out: 0; accounts opened: 0.

Of two in one file, the one whose account is known:

  $ { grep -v '</OFX>' other.ofx; sed 's/<OFX>//; s/DE88/DE99/' other.ofx; } >both.ofx
  $ kiv import both.ofx | tail -1
  New: 0; matched: 0; already imported: 6; left out: 0; accounts opened: 0.
  $ kiv import both.ofx --into Savings
  kiv: 'both.ofx': The file contains several statements; choose one with --statement: DE88, DE99.
  [1]

A table that names no currency may be of any account, and one that does only of one:

  $ kiv bank-account add Trip --bank First --currency EUR >/dev/null
  $ kiv account add Abroad --type expense --currency EUR >/dev/null
  $ printf 'Date,Amount,Text\n2026-01-09,-3.00,x\n' >trip.csv
  $ kiv import trip.csv --against Abroad
  kiv: Give the account of the bank statement with --into. It may be: Checking, Savings, Trip.
  [2]
  $ sed -i 's/Amount/Amount (EUR)/' trip.csv
  $ kiv import trip.csv --against Abroad
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.

Columns that are found can be kept, as long as they fit:

  $ printf 'Day;Booked;Sum;What\n3/4/2026;9/4/2026;-1,50;x\n' >a.csv
  $ kiv import a.csv --into Checking --against Food
  kiv: 'a.csv', line 1: A column is not known; name it with --date-column. The columns are: Day, Booked, Sum, What.
  [1]
  $ kiv import a.csv --into Checking --against Food --date-column Day --amount-column Sum \
  >     --text-column What --date-format D/M/YYYY --keep-columns
  Read as: UTF-8, semicolons, headings on line 1, date 'Day' as D/M/YYYY, amount 'Sum', text 'What', decimal comma
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ sed 's/-1,50/-1,60/' a.csv >b.csv
  $ kiv import b.csv --into Checking --against Food
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.
  $ printf 'Date,Payee,Amount\n2026-04-13,Shop,-3.00\n' >c.csv
  $ kiv import c.csv --into Checking --against Food
  The columns that were kept no longer fit, and were found anew: 'c.csv', line 1: There is no column 'Day'; the columns are: Date,Payee,Amount.
  New: 1; matched: 0; already imported: 0; left out: 0; accounts opened: 0.

On a terminal it asks, and remembers what the user agrees to:

  $ cat >asked.csv <<.
  > Date,Payee,Amount
  > 2026-05-12,Unknown Ltd 77,-3.00
  > 2026-05-13,Unknown Ltd 78,-4.00
  > .
  $ "$TESTDIR/type" 'kiv> ' 'import asked.csv --into Checking\n' 'What was it for' 'Food\n' 'Always' '\n' \
  >     'Import 2' '\n' 'kiv> ' '\x04'
  $ sed 's/-05-1/-05-2/' asked.csv >again.csv
  $ kiv import again.csv --into Checking --dry-run | sed -n 2,3p
      1  2026-05-22  Unknown Ltd 77  -$3.00    new   Food  As you said before.
      2  2026-05-23  Unknown Ltd 78  -$4.00    new   Food  As you said before.
