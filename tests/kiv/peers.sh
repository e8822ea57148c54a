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
