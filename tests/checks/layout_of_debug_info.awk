# SPDX-License-Identifier: MIT
# Reads `readelf --debug-dump=info` and prints, tab-separated, for every class that is defined in it:
#   CLASS  field  [virtual ]base BASE      in the order of declaration
#   CLASS  field  FIELD: TYPE
#   CLASS  slot   NUMBER  OPERATION        virtual operations that the class itself declares
#   CLASS  base   BASE
# Names stand without namespace and template arguments; nested records as Outer.Inner.

function plain(text) {
    sub(/<.*/, "", text)
    return text
}

function type_of(offset, tag) {
    if (offset == "")
        return "void"
    tag = tags[offset]
    if (tag == "DW_TAG_pointer_type")
        return type_of(types[offset]) "*"
    if (tag == "DW_TAG_const_type")
        return type_of(types[offset])
    return plain(names[offset])
}

function class_of(offset, outer) {
    outer = parents[offset]
    if (outer in is_record)
        return class_of(outer) "." plain(names[offset])
    return plain(names[offset])
}

/^ *<[0-9a-f]+><[0-9a-f]+>: Abbrev Number: / {
    split($0, part, /[<>]/)
    depth = part[2] + 0
    current = part[4]
    tag = $NF
    gsub(/[()]/, "", tag)
    tags[current] = tag
    open_at[depth] = current
    parents[current] = open_at[depth - 1]
    if (tag == "DW_TAG_class_type" || tag == "DW_TAG_structure_type")
        is_record[current] = 1
    order[++count] = current
    next
}

/DW_AT_name / {
    text = $0
    sub(/^.*DW_AT_name *: /, "", text)
    sub(/^\(indirect (line )?string, offset: 0x[0-9a-f]+\): /, "", text)
    sub(/[ \t]+$/, "", text)
    names[current] = text
}
/DW_AT_type / { text = $NF; gsub(/[<>]|0x/, "", text); types[current] = text }
/DW_AT_byte_size/ { is_defined[current] = 1 }
/DW_AT_virtuality/ { is_virtual[current] = 1 }
/DW_AT_artificial/ { is_artificial[current] = 1 }
/DW_AT_vtable_elem_location/ { text = $NF; gsub(/[()]/, "", text); slots[current] = text }

END {
    for (i = 1; i <= count; ++i) {
        die = order[i]
        outer = parents[die]
        if (!(outer in is_record) || !(outer in is_defined))
            continue
        class = class_of(outer)
        if (tags[die] == "DW_TAG_inheritance") {
            base = type_of(types[die])
            print class "\tfield\t" (die in is_virtual ? "virtual base " : "base ") base
            print class "\tbase\t" base
        } else if (tags[die] == "DW_TAG_member" && names[die] !~ /^_vptr/) {
            print class "\tfield\t" names[die] ": " type_of(types[die])
        } else if (tags[die] == "DW_TAG_subprogram" && die in slots) {
            print class "\tslot\t" slots[die] "\t" names[die]
        }
    }
}
