# SPDX-License-Identifier: MIT
# Prints the virtual table of `class`, one operation a line, up to the table's first base part.
# First input: layout_of_debug_info.awk's output; second: g++'s -fdump-lang-class.

function operation_at(slot, from, i, found) {
    if ((from, slot) in declared)
        return declared[from, slot]
    for (i = 1; i <= base_count[from]; ++i) {
        found = operation_at(slot, bases[from, i])
        if (found != "")
            return found
    }
    return ""
}

FNR == NR {
    if ($2 == "slot")
        declared[$1, $3] = $4
    else if ($2 == "base")
        bases[$1, ++base_count[$1]] = $3
    next
}

/^Vtable for / {
    name = $0
    sub(/^Vtable for /, "", name)
    sub(/<.*/, "", name)
    sub(/^.*::/, "", name)
    inside = (name == class)
    in_operations = 0
    next
}
/^$/ { inside = 0 }
!inside { next }

# The operations begin behind the pointer to the type information.
/_ZTI/ {
    if (in_operations)
        exit
    in_operations = 1
    next
}
!in_operations { next }

{
    entry = $0
    sub(/^[0-9]+ +/, "", entry)
    if (entry ~ /__cxa_pure_virtual/)
        print operation_at(slot, class)
    else if (entry ~ /::/) {
        sub(/^.*::/, "", entry)
        print (entry ~ /^~/ ? "destructor" : entry)
    } else if (entry == "0")
        print "destructor"
    else
        exit
    ++slot
}
