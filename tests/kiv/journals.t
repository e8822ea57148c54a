SPDX-License-Identifier: GPL-3.0-or-later

Journals of other accounting programs come in whole, or nothing of them does.

  $ . "$TESTDIR/household.sh"
  $ . "$TESTDIR/peers.sh"

The example of ledger's own manual has the same balances in all three programs. One side
of a virtual posting has no place in double entry; hledger does not know "apply tag", and
automated transactions only in another notation:

  $ cp "$TESTDIR/data/ledger_manual.journal" manual.journal
  $ kiv new >/dev/null
  $ kiv import manual.journal
  Dates in comments are skipped; each posting has the date of its transaction.
  Second dates of transactions are skipped.
  The postings of automated transactions are added.
  Unbalanced virtual postings are posted against Equity:Virtual.
  Transactions posted: 20; duplicates skipped: 0; accounts opened: 18.
  $ own >own
  $ grep -v Equity:Virtual own >ledger
  $ peer ledger manual.journal | diff ledger -
  $ sed 's/apply tag/; &/; s/end tag/; &/' manual.journal >plain.journal
  $ grep -v Liabilities:Tithe ledger >hledger
  $ peer hledger plain.journal | diff hledger -

So has a journal of many forms, but for the accounts through which each currency goes that
paid for another one:

  $ cat >forms.journal <<'.'
  > ; several currencies, prices, tags, assertions and virtual postings
  > account Assets:Cash
  > 
  > 2026-01-01 * (12) Opening  ; from: before
  >     Assets:Cash          1000.00 EUR
  >     Equity:Opening
  > 
  > 2026-01-01 Opening
  >     Assets:Bank:Dollars  500.00 USD  ; two
  >     Equity:Dollars
  > 
  > 2026-01-02 Changed
  >     Assets:Bank:Dollars  110.00 USD @@ 100.00 EUR
  >     Assets:Cash          -100.00 EUR = 900.00 EUR
  > 
  > 2026-01-03 ! Dinner, shared
  >     Expenses:Food        33.33 EUR
  >     Assets:Owed:Ann      16.67 EUR
  >     Assets:Cash
  >     [Assets:Envelope]    -10.00 EUR
  >     [Assets:Owed:Ben]    10.00 EUR
  > 
  > 2026-01-04 Changed back
  >     Assets:Cash          7.50 EUR @ 1.12 USD
  >     Assets:Bank:Dollars
  > apply account Expenses
  > 
  > 2026-01-05 Moved
  >     Lunch                5.00 EUR
  >     Food                -5.00 EUR
  > end apply account
  > alias owed=Assets:Owed
  > 
  > 2026-01-06 Paid back
  >     Assets:Cash          3.00 EUR
  >     owed:Ann
  > .
  $ rm -r household.budget*
  $ kiv new >/dev/null
  $ kiv import forms.journal
  Transactions posted: 12; duplicates skipped: 0; accounts opened: 14.
  $ own | grep -v Equity:Conversion: >own
  $ peer ledger forms.journal | diff own -
  $ peer hledger forms.journal | diff own -

A journal is shown before it is posted:

  $ rm -r household.budget*
  $ kiv new >/dev/null
  $ cat >a.journal <<.
  > 2026-01-01 x
  >  Assets:Cash  \$0
  >  Income:Job
  > .
  $ kiv import a.journal --dry-run
  Number  New account
       1  Assets:Cash
  There are no transactions in the file.
  1 transaction that moves nothing is left out.
  Transactions posted: 0; duplicates skipped: 0; accounts opened: 1.
  Dry run: nothing is saved.
  $ kiv import a.journal >/dev/null
  $ kiv accounts
  Number  Account      Balance
       1  Assets:Cash    $0.00
  $ cat >a.journal <<.
  > 2026-01-01
  >  Assets:Cash  5 Fr
  >  Income:Job
  > .
  $ kiv import a.journal --commodity Fr=USD
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 1.

Includes are followed within the journal's folder:

  $ mkdir -p books/2026
  $ echo 'include 2026/january.journal' >books/all.journal
  $ echo 'include february.journal' >books/2026/january.journal
  $ cat >books/2026/february.journal <<.
  > 2026-02-01 x
  >  Assets:A  \$1
  >  Income:I
  > .
  $ kiv import books/all.journal
  Transactions posted: 1; duplicates skipped: 0; accounts opened: 2.
  $ : >books.journal
  $ echo 'include ../books.journal' >books/all.journal
  $ kiv import books/all.journal
  kiv: 'books/all.journal', line 1: Cannot include '../books.journal': it is outside the folder of the journal.
  [1]
  $ ln -s ../books.journal books/link.journal
  $ echo 'include link.journal' >books/all.journal
  $ kiv import books/all.journal
  kiv: 'books/all.journal', line 1: Cannot include 'link.journal': it is outside the folder of the journal.
  [1]

A journal of a gigabyte is refused at once:

  $ truncate -s 1G large.journal
  $ timeout 20 kiv import large.journal
  kiv: Cannot read 'large.journal': it is larger than 64 MiB (exceeded in line 1); split it into smaller files.
  [1]

What cannot be understood is refused, with its line, and so are options that do not fit:

  $ begin
  $ kiv account add Gone --type expense >/dev/null
  $ kiv account close Gone >/dev/null
  $ journal() {
  >     cat >s.journal
  >     kiv import s.journal
  > }
  $ journal <<.
  > 2026-01-01 x
  >  Assets:New  \$1
  >  Income:I
  > 2026-01-02 y
  >  Expenses:Gone  \$1
  >  Assets:New
  > .
  kiv: 's.journal', line 4: The account '5 Gone' is closed.
  [1]
  $ echo 'include none.journal' | journal
  kiv: 's.journal', line 1: Cannot include 'none.journal': the file does not exist.
  [1]
  $ echo 'include *.journal' | journal
  kiv: 's.journal', line 1: Cannot include '*.journal': patterns are not supported; name each file.
  [1]
  $ each 2 <<'.'
  > import s.journal --root Aktiva=fish
  > import s.journal --root =asset
  > import s.journal --into Checking
  > .
  kiv: 'fish' is not one of: asset, equity, expense, liability, income.
  kiv: '=asset' is not of the form NAME=VALUE.
  kiv: Use either --into or --format journal, not both.
