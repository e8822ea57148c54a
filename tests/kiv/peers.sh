# SPDX-License-Identifier: GPL-3.0-or-later
# Balances of kiv, ledger and hledger in one form: "path  amount currency", sorted,
# without those of zero, and debits positive, as they are in journals.

# own [ARGUMENTS OF kiv accounts]
own() {
    kiv accounts "$@" --json | jq -r '.[] | .path + "  " +
        (if .type == "asset" or .type == "expense" then "" else "-" end) +
        .balance.amount + " " + .balance.currency' | sed 's/  --/  /' | plain
}

# peer ledger|hledger JOURNAL [ARGUMENTS]
peer() {
    tool=$1 journal=$2
    shift 2
    # Either format is that tool's own.
    case $tool in
    ledger) set -- "$@" --balance-format '%(account)  %(quantity(scrub(amount))) %(commodity(scrub(amount)))
' ;;
    hledger) set -- "$@" --format '%(account)  %(total)' ;;
    esac
    "$tool" -f "$journal" balance --flat --no-total "$@" | plain
}

# "$-5,200.00" and "-5200 $" are the same amount. No path holds two blanks.
plain() {
    awk -F '  +' '{
        isDollars = gsub(/[$,]/, "", $2)
        split($2, amount, " ")
        if (amount[1] ~ /\./) sub(/\.?0+$/, "", amount[1])
        if (amount[1] + 0 != 0) print $1 "  " amount[1], isDollars ? "USD" : amount[2]
    }' | sort
}

# What moved, of each account and span: "path currency amount …", sorted, debits positive.

# ownFlows [ARGUMENTS OF kiv report]
ownFlows() {
    kiv report --csv "$@" | tr -d '\r"' | awk -F, 'NR > 1 {
        sign = $1 == "expense" || $1 == "asset" ? 1 : -1
        root = $2 ~ /:/ ? "" : $1 == "income" ? "Income:" : "Expenses:"
        flows = root $2 " " $3
        for (at = 4; at < NF - 1; at++) flows = flows sprintf(" %.2f", sign * $at)
        print flows }' | moved
}

# peerFlows JOURNAL [ARGUMENTS OF hledger balance]
peerFlows() {
    hledger balance --layout bare -O csv -f "$@" | tr -d '"' | awk -F, 'NR > 1 && $1 != "total" {
        flows = $1 " " $2
        for (at = 3; at <= NF; at++) flows = flows sprintf(" %.2f", $at)
        print flows }' | moved
}

moved() {
    sed 's/ \[Budget Item\]//; s/-0\.00/0.00/g; / [A-Z]* \(0\.00 *\)*$/d' | sort
}
