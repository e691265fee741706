#!/bin/sh
# The program of the README is the one that is built, draws what it says and notices a full disk:
# quickstart.sh SOURCE_DIRECTORY PROGRAM
set -eu
listing=$(sed -n '/^```cpp$/,/^```$/p' "$1/README.md" | sed '1d;/^```$/,$d')
[ -n "$listing" ] || { echo "quickstart: no listing in the README" >&2; exit 1; }
[ "$listing" = "$(cat "$1/examples/quickstart/main.cpp")" ] || {
    echo "quickstart: README.md and examples/quickstart/main.cpp differ" >&2
    exit 1
}
"$2" | grep -q '<line x1="10" y1="10" x2="90" y2="40" stroke="#c81e28"'
if "$2" > /dev/full; then
    echo "quickstart: a full device goes unnoticed" >&2
    exit 1
fi
