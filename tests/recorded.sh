#!/bin/sh
# The specimen sheet is drawn and dumped as it is on record: recorded.sh SPECIMEN SOURCE_DIRECTORY WORK_DIRECTORY [--renew]
set -eu
mkdir -p "$3"
# Compressed pixels depend on the version of zlib.
plain() { sed 's/base64,[^"]*/base64,/' "$1"; }
for file in docs/specimen.svg tests/specimen.txt; do
    drawn=$3/${file##*/} record=$2/$file
    "$1" "$drawn"
    [ "${4-}" != --renew ] || cp "$drawn" "$record"
    plain "$record" > "$3/expected"
    plain "$drawn" | diff -u "$3/expected" - || { echo "recorded: $file differs; scripts/record renews it" >&2; exit 1; }
done
