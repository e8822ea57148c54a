#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# check_reader.sh KIV FOLDER: reads the first-edition files of the folder and what kiv makes
# of them, the second edition, in the clear and encrypted, by read_budget.py: all must hold
# the same.
set -eu
# The system's Python has the system's packages.
reader=$(dirname "$(realpath "$0")")/read_budget.py
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export HOME="$folder" XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/data"

for name in household odd strange; do
    file="$folder/$name.budget"
    cp "$2/$name.budget" "$file"
    /usr/bin/python3 "$reader" "$file" >"$folder/first"
    "$1" --file "$file" bank add Zebra >/dev/null
    "$1" --file "$file" bank remove Zebra >/dev/null
    /usr/bin/python3 "$reader" "$file" 2>"$folder/label" | grep -v '^\(reconciliations\|notes\) ' >"$folder/second"
    diff -u "$folder/first" "$folder/second"
    grep -q '"number": ' "$folder/label"
    # The same encrypted, with a passphrase that the key is not made from as it is written.
    printf 'cafe\314\201 au\302\240lait\n' >"$folder/words"
    printf 'caf\303\251 au lait' >"$folder/other"
    cp "$file" "$folder/plain"
    "$1" --file "$file" encrypt --passphrase-file "$folder/words" >/dev/null 2>&1
    /usr/bin/python3 "$reader" "$file" "$folder/other" 2>/dev/null |
        grep -v '^\(reconciliations\|notes\) ' | diff -u "$folder/first" -
    printf 'cafe au lait' >"$folder/other"
    ! /usr/bin/python3 "$reader" "$file" "$folder/other" >"$folder/told" 2>&1
    grep -q 'passphrase is wrong' "$folder/told"
    # A byte that changed is noticed in both.
    for whole in "$2/$name.budget" "$folder/plain" "$file"; do
        head -c 5000 "$whole" >"$folder/cut"
        tail -c +5002 "$whole" | cat "$folder/cut" - >"$folder/short"
        ! /usr/bin/python3 "$reader" "$folder/short" "$folder/words" >"$folder/told" 2>&1
    done
done
