SPDX-License-Identifier: GPL-3.0-or-later

A budget is encrypted with its former versions, and then used as before.

  $ . "$TESTDIR/household.sh"
  $ readable() { grep -rl -e SQLite -e transactions -e Landlord . --include='*budget*' | sort; }
  $ umask 077
  $ begin
  $ echo 'four words of my own' >words
  $ echo 'other words of my own' >others
  $ kiv bill add Landlord 30 >/dev/null
  $ kiv encrypt --passphrase-file words
  $ readable
  $ kiv accounts
  $ kiv accounts --passphrase-file others
  $ chmod 644 words
  $ kiv info --passphrase-file words | head -2
  $ chmod 600 words
  $ export KIV_PASSPHRASE_FILE=words
  $ kiv bill remove Landlord
  $ kiv undo
  $ kiv history --json | jq -c '.[:2][] | [.change, .encrypted]'
  $ kiv check | tail -1
  $ kiv save-as copy.budget >/dev/null
  $ readable

What leaves the file can be read, and is said to be so:

  $ kiv export 2>&1 >/dev/null
  $ kiv report --html 2>&1 >/dev/null

A passphrase is changed, also for the former versions; one that is wrong changes nothing:

  $ kiv encrypt
  $ : >empty
  $ kiv encrypt --new-passphrase-file empty
  $ kiv encrypt --new-passphrase-file nowhere
  $ kiv encrypt --new-passphrase-file others --dry-run | tail -1
  $ cat others | kiv encrypt --new-passphrase-file - | head -1
  $ kiv due
  $ export KIV_PASSPHRASE_FILE=others
  $ kiv history --json | jq -c '[.[] | .encrypted] | unique'
  $ kiv history diff | tail -1

A version that another passphrase encrypted is told apart, and comes back with it:

  $ cp copy.budget household.budget.versions/2026-01-01T12-00-00.000Z-9000.budget
  $ kiv history | grep 9000
  $ kiv undo --to 9000
  $ rm household.budget.versions/*-9000.budget

Damage is told apart from a wrong passphrase, and a whole version brought back:

  $ cp household.budget whole
  $ printf x | dd of=household.budget bs=1 seek=9000 conv=notrunc 2>/dev/null
  $ kiv accounts >/dev/null
  $ kiv check | tail -1
  $ kiv undo
  $ readable

Nothing asks where nobody can answer, and completion knows no names then:

  $ unset KIV_PASSPHRASE_FILE
  $ kiv completion words -- post "" </dev/null
  $ kiv new second --encrypt
  $ kiv new second.budget --encrypt --passphrase-file others >/dev/null
  $ kiv --file second.budget accounts --passphrase-file others
  $ readable

At a terminal it is asked unseen, once a shell, and what is typed there is not kept:

  $ "$TESTDIR/type" "Passphrase of 'household.budget':" 'wrong\n' "not the passphrase" \
  >     'other words of my own\n' 'kiv> ' 'bill add Secret 5 --next 2026-02-01\n' 'Added' '' \
  >     'kiv> ' 'encrypt\n' 'New passphrase' 'short\n' 'again' 'shorter\n' 'not the same' \
  >     'short\n' 'can be guessed' '' 'kiv> ' 'exit\n'
  $ grep -c Secret "$XDG_DATA_HOME"/kiv/history
  $ echo short >words
  $ kiv decrypt --passphrase-file words
  $ kiv bill remove Secret
  $ kiv decrypt
  $ readable | head -1
