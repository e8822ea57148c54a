#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# check.sh PROGRAM: runs the example in a folder of its own, without touching
# the user's settings, and compares what it shows.
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export XDG_CONFIG_HOME="$folder/config" XDG_DATA_HOME="$folder/data"

"$1" missing/home.budget home > shown
test -s home.budget

cat > expected <<'END'
Rent $850.00
The new budgeted money item source already exists.
The folder of the file 'missing/home.budget' does not exist.
home.budget
END
diff -u expected shown
