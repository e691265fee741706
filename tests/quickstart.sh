#!/bin/sh
# The program of the README is the one that is built, prints what the README says and notices a full disk:
# quickstart.sh SOURCE_DIRECTORY PROGRAM
set -eu
# block LANGUAGE: the first block of it in the README.
block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$readme" | sed '1d;/^```$/,$d'; }
readme=$1/README.md
[ -n "$(block cpp)" ] && [ -n "$(block xml)" ] || { echo "quickstart: no listing or no output in the README" >&2; exit 1; }
[ "$(block cpp)" = "$(cat "$1/examples/quickstart/main.cpp")" ] || {
    echo "quickstart: README.md and examples/quickstart/main.cpp differ" >&2
    exit 1
}
[ "$(block xml)" = "$("$2")" ] || { echo "quickstart: the output is not that of the README" >&2; exit 1; }
if "$2" > /dev/full; then
    echo "quickstart: a full device goes unnoticed" >&2
    exit 1
fi
