# SPDX-License-Identifier: GPL-3.0-or-later
# What Doxygen reads in place of a header, line for line. Unless something is said
# of them, members that every value has (copies, moves, what the compiler writes) are
# left out, and the stream operators, which are all alike, get the one sentence that
# holds for them all.
function isEveryValues(line, name, argument)
{
    if (line ~ /= (default|delete);$/)
        return 1
    if (line ~ /^ *[A-Z][A-Za-z]* &operator=\((const )?[A-Z][A-Za-z]* &&?/)
        return index(line, "{") == 0
    if (!match(line, /^ *[A-Z][A-Za-z]*\((const )?[A-Z][A-Za-z]* &&?[a-z]*\)( noexcept)?;$/))
        return 0
    name = argument = line
    sub(/\(.*/, "", name)
    gsub(/ /, "", name)
    sub(/^[^(]*\((const )?/, "", argument)
    sub(/ .*/, "", argument)
    return name == argument
}
{
    line = $0
    if (previous !~ /^ *\/\/\/([^<]|$)/) {
        if (isEveryValues(line))
            line = ""
        else if (line ~ /^ *(friend |inline )?([A-Z_]+_EXPORT )?(std::ostream &|QDebug )operator<</)
            line = "/** Writes the value on one line, for logs; see foundation/streams.h. */ " line
    }
    previous = $0
    print line
}
