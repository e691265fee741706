#!/bin/sh
# Checks what gdb shows with the printers: gdb.sh PRINTERS PROGRAM BARE_PROGRAM HOST_PROGRAM WORK_DIRECTORY
# Of a core dump, in which no function can be called; of the program without debug information on the library, and on a
# host's framework.  gdb.txt has, for each, expressions with what is shown below them, and settings.  Skipped (77) where
# gdb may not run programs.
set -eu
record=$(dirname "$0")/gdb.txt printers=$1 work=$5
mkdir -p "$work"
gdb -nx -batch -ex run --args true 2>&1 | grep -q 'exited normally' || { echo "SKIPPED: gdb may run no program here"; exit 77; }

cat > "$work/look.py" << 'END'
def look(expression):
    try:
        shown = gdb.execute("output " + expression, to_string=True)
    except gdb.error as error:
        shown = "error: %s" % error
    print("%s\n  %s" % (expression, shown))
END
# shows SECTION PROGRAM [OPTION...]
shows() {
    section=$1 program=$2
    shift 2
    sed -n "/^== $section\$/,/^== / { /^== /!p }" "$record" > "$work/looks"
    rm -f "$work/core"
    gdb -nx -batch -ex 'break Stop' -ex run -ex "generate-core-file $work/core" "$program" > "$work/log" 2>&1
    [ -s "$work/core" ] || { cat "$work/log" >&2; echo "gdb: the program could not be run" >&2; exit 1; }
    sed -n "s/^set .*/&/p; t; s/^[^ ].*/python look('&')/p" "$work/looks" > "$work/commands"
    gdb -nx -batch "$@" -ex "source $printers" -ex "source $work/look.py" -ex up -ex 'echo LOOKS\n' -x "$work/commands" \
        "$program" "$work/core" > "$work/log" 2>&1
    grep -v '^set ' "$work/looks" > "$work/expected"
    sed "1,/^LOOKS\$/d; s/0x[0-9a-f]\{6,12\}\>/ADDRESS/g" "$work/log" | diff -u "$work/expected" - >&2 ||
        { echo "gdb: $program: something else is shown than expected" >&2; exit 1; }
    echo "gdb: $(grep -c '^[^ ]' "$work/expected") expressions shown as expected"
}
shows sample "$2"
shows bare "$3" -iex 'set auto-solib-add off'
shows host "$4"
rm "$work/core"
