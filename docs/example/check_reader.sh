#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# check_reader.sh KIV FOLDER: reads the first-edition files of the folder and what kiv makes
# of them, the second edition, by read_budget.py: both must hold the same.
set -eu
reader=$(dirname "$(realpath "$0")")/read_budget.py
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export HOME="$folder" XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/data"

for name in household odd strange; do
    file="$folder/$name.budget"
    cp "$2/$name.budget" "$file"
    python3 "$reader" "$file" >"$folder/first"
    "$1" --file "$file" bank add Zebra >/dev/null
    "$1" --file "$file" bank remove Zebra >/dev/null
    python3 "$reader" "$file" 2>"$folder/label" | grep -v '^\(reconciliations\|notes\) ' >"$folder/second"
    diff -u "$folder/first" "$folder/second"
    grep -q '"number": ' "$folder/label"
    # A byte that changed is noticed in both.
    for whole in "$2/$name.budget" "$file"; do
        head -c 5000 "$whole" >"$folder/cut"
        tail -c +5002 "$whole" | cat "$folder/cut" - >"$folder/short"
        ! python3 "$reader" "$folder/short" >"$folder/told" 2>&1
    done
done
