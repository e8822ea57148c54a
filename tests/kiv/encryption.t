SPDX-License-Identifier: GPL-3.0-or-later

A budget is encrypted with its former versions, and then used as before.

  $ . "$TESTDIR/household.sh"
  $ readable() { grep -rl -e SQLite -e transactions -e Landlord . --include='*budget*' | sort; }
  $ umask 077
  $ begin
  $ echo 'four words of my own' >words
  $ echo 'other words of my own' >others
  $ kiv bill add Landlord 30 >/dev/null
  $ kiv encrypt --passphrase-file words >/dev/null
  $ readable
  $ kiv accounts
  kiv: The file 'household.budget' is encrypted: give its passphrase with --passphrase-file, or at a terminal.
  [2]
  $ kiv accounts --passphrase-file others
  kiv: This is not the passphrase of the file 'household.budget'.
  [1]
  $ chmod 644 words
  $ kiv info --passphrase-file words | head -2
  kiv: warning: Others can read the passphrase in 'words'.
  File            household.budget
  Encrypted       yes
  $ chmod 600 words
  $ export KIV_PASSPHRASE_FILE=words
  $ kiv bill remove Landlord
  Removed the bill 'Landlord'.
  $ kiv undo | tail -1
  account  5 Landlord     added   0.00 USD
  $ kiv history --json | jq -c '.[:2][] | [.change, .otherPassphrase]'
  ["Removed the bill 'Landlord'",false]
  ["Added the bill 'Landlord'",false]
  $ kiv check | tail -1
  The budget 'household.budget' is intact.
  $ kiv save-as copy.budget >/dev/null
  $ readable

What leaves the file can be read, and is said to be so:

  $ kiv export 2>&1 >/dev/null
  kiv: warning: The budget is encrypted, but what is written here is not: everybody who has it can read it.
  $ kiv report --html 2>&1 >/dev/null
  kiv: warning: The budget is encrypted, but what is written here is not: everybody who has it can read it.

A passphrase is changed, also for the former versions; one that is wrong changes nothing:

  $ kiv encrypt
  kiv: --new-passphrase-file is missing.
  [2]
  $ : >empty
  $ kiv encrypt --new-passphrase-file empty
  kiv: A passphrase has at least one character.
  [1]
  $ kiv encrypt --new-passphrase-file nowhere
  kiv: There is no file 'nowhere'.
  [1]
  $ kiv encrypt --new-passphrase-file others --dry-run | tail -1
  Dry run: nothing is saved.
  $ cat others | kiv encrypt --new-passphrase-file - | head -1
  The budget 'household.budget' and its former versions have the new passphrase.
  $ kiv due
  kiv: This is not the passphrase of the file 'household.budget'.
  [1]
  $ export KIV_PASSPHRASE_FILE=others
  $ kiv history --json | jq -c '[.[] | .otherPassphrase] | unique'
  [false]
  $ kiv history diff 1 | tail -1
  bank         First                            added

A version that another passphrase encrypted is told apart, and comes back with it:

  $ kiv new second.budget --encrypt --passphrase-file others >/dev/null
  $ kiv --file second.budget encrypt --passphrase-file others --new-passphrase-file words | head -1
  The budget 'second.budget' and its former versions have the new passphrase.
  $ stranger=household.budget.versions/2026-01-01T12-00-00.000Z-9000.budget
  $ cp second.budget $stranger
  $ kiv history | grep 9000
  9000              2026-01-01 12:00:00                                                                    another passphrase
  $ kiv undo --to 9000
  kiv: This is not the passphrase of the file '*/encryption.t/household.budget.versions/2026-01-01T12-00-00.000Z-9000.budget'. (glob)
  [1]
  $ kiv encrypt --new-passphrase-file others | head -1
  kiv: warning: These former versions stay as they are, since they are damaged, have another passphrase, or cannot be written: */encryption.t/household.budget.versions/2026-01-01T12-00-00.000Z-9000.budget. (glob)
  The budget 'household.budget' and its former versions have the new passphrase.
  $ rm $stranger

Damage is told apart from a wrong passphrase, and a whole version brought back:

  $ cp household.budget whole
  $ printf x | dd of=household.budget bs=1 seek=9000 conv=notrunc 2>/dev/null
  $ kiv accounts >/dev/null
  kiv: The file 'household.budget' is damaged and was not loaded. Caused by: The checksum is wrong. Former versions are kept; bring the newest back with kiv undo.
  [1]
  $ kiv undo
  Restored the version saved at ????-??-?? ??:??:??. (glob)
  $ readable

Nothing asks where nobody can answer, and completion knows no names then:

  $ unset KIV_PASSPHRASE_FILE
  $ kiv completion words -- post "" </dev/null
  $ kiv new third --encrypt
  kiv: --passphrase-file is missing.
  [2]
  $ kiv wizard --encrypt --passphrase-file others --bank A --account B third.budget | tail -1
  Created the budget 'third.budget'.
  $ kiv --file second.budget accounts --passphrase-file words
  There are no accounts.
  $ readable

At a terminal it is asked unseen, once a shell, and what is typed there is not kept:

  $ "$TESTDIR/type" "Passphrase of 'household.budget':" 'wrong\n' \
  >     "not the passphrase of the file 'household.budget'.\r\nPassphrase" \
  >     'other words of my own\n' 'kiv> ' 'bill add Secret 5 --next 2026-02-01\n' \
  >     'Added the bill' 'encrypt\n' 'New passphrase' 'short\n' 'again' 'shorter\n' \
  >     'not the same passphrase.\r\nNew pass' 'short\n' 'again' 'short\n' 'have the new passphrase' 'exit\n'
  $ ! grep -rs Secret data

Who ends the program while it asks sees again what is typed:

  $ "$TESTDIR/type" "Passphrase of 'household.budget':" SIGTERM
  [143]
  $ "$TESTDIR/type" "Passphrase of 'household.budget':" 'short\n' 'kiv> ' 'encrypt\n' \
  >     'New passphrase' SIGHUP
  [129]

  $ echo short >words
  $ kiv bill remove Secret --passphrase-file words
  Removed the bill 'Secret'.
  $ kiv decrypt --passphrase-file words
  kiv: warning: These former versions stay as they are, since they are damaged, have another passphrase, or cannot be written: */encryption.t/household.budget.versions/*Z-8.budget. (glob)
  The budget 'household.budget' and its former versions are not encrypted any more: everybody who has the files can read them.
  $ kiv decrypt
  kiv: The budget 'household.budget' is not encrypted.
  [1]
  $ readable | head -1
  ./household.budget
