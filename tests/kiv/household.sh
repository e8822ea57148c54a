# SPDX-License-Identifier: GPL-3.0-or-later
# What every transcript begins with: a household in the folder of its own where cram
# runs it, without anything of the user's.
export HOME="$PWD" XDG_CONFIG_HOME="$PWD/config" XDG_DATA_HOME="$PWD/data"
export KIV_FILE=household.budget LC_ALL=C.UTF-8 COLUMNS=80
unset LANGUAGE

# Keeps what the file holds on which the command is to work.
keep() {
    watched=$KIV_FILE
    while [ $# -gt 0 ]; do
        [ "$1" != --file ] || watched=${2-}
        shift
    done
    watched=${watched%.budget}.budget
    rm -f "$CRAMTMP/before"
    [ ! -f "$watched" ] || cp "$watched" "$CRAMTMP/before"
}

is_as_kept() {
    if [ -f "$CRAMTMP/before" ]; then
        cmp "$watched" "$CRAMTMP/before" >&2
    elif [ -f "$watched" ]; then
        echo "$watched was made." >&2
    fi
}

# Runs the command. Whatever it refuses and whatever is dry leaves the file as it was,
# byte for byte, and what is refused is told on standard error only.
kiv() {
    case $1 in shell | watch | check | tour)
        command kiv "$@"
        return
        ;;
    esac
    keep "$@"
    command kiv "$@" >"$CRAMTMP/told"
    set -- $? "$*"
    cat "$CRAMTMP/told"
    case $1$2 in
    [12]* | *--dry-run*) is_as_kept ;;
    esac
    [ "$1" = 0 ] || [ ! -s "$CRAMTMP/told" ] || echo "This stood on standard output."
    return "$1"
}

# A bank with a checking account of 2,500.00 USD, a bill and a wage; made once, and
# copied when it is wanted again.
begin() {
    rm -rf config data household.budget*
    if [ ! -d "$CRAMTMP/begun" ]; then
        kiv new
        kiv bank add First
        kiv bank-account add Checking --bank First --balance '2500.00 USD' --date 2026-01-01
        kiv bill add Rent '1250.00 USD' --next 2026-01-31
        kiv wage add Salary '3100.00 USD' --next 2026-01-25
        mkdir "$CRAMTMP/begun"
        cp -pr household.budget* "$CRAMTMP/begun"
    fi >/dev/null
    cp -pr "$CRAMTMP/begun/"* .
}

# Keeps the file open in a shell that reads what `say` writes, until `let_go`.
hold() {
    mkfifo "$CRAMTMP/lines"
    : >"$CRAMTMP/heard"
    command kiv shell <"$CRAMTMP/lines" >"$CRAMTMP/heard" 2>&1 &
    exec 3>"$CRAMTMP/lines"
    say info File
}

# say LINES ANSWER: waits half a minute for the answer at most.
say() {
    echo "$1" >&3
    for _ in $(seq 600); do
        ! grep "$2" "$CRAMTMP/heard" || return 0
        sleep 0.05
    done >"$CRAMTMP/found"
    echo "'$2' is not in:"
    cat "$CRAMTMP/heard"
}

let_go() {
    exec 3>&-
    wait $!
}

# each STATUS: each line is a command of kiv, and all end with the status.
each() {
    wanted=$1
    while read -r line; do
        eval "kiv $line" </dev/null
        set -- $?
        [ "$1" = "$wanted" ] || echo "[$1] $line" >&2
    done
}
