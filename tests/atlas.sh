#!/bin/sh
# The atlas on good and bad input: atlas.sh PROGRAM DATA_DIRECTORY WORK_DIRECTORY
set -u
program=$1 data=$2 work=$3 failures=0
rm -rf "$work"
mkdir -p "$work/in"
fail() { echo "atlas: $*" >&2; failures=$((failures + 1)); }

topology() { # arcs, geometries
    printf '{"type":"Topology","arcs":[%s],"objects":{"countries":{"type":"GeometryCollection","geometries":[%s]}}}' "$1" "$2"
}
square='[[0,0],[20,0],[20,20],[0,20],[0,0]]'
country() { printf '{"type":"Polygon","arcs":[[%s]],"properties":{"name":"A < B"}}' "$1"; }

# Each of these gives one line on stderr, a status above 0 (and no signal), and no file.
refused() { # name, input, [output directory]
    rm -rf "$work/out"
    "$program" "$2" "${3:-$work/out}" > "$work/stdout" 2> "$work/stderr"
    status=$?
    [ $status -gt 0 ] && [ $status -lt 126 ] || fail "$1: exit status $status"
    [ "$(wc -l < "$work/stderr")" -eq 1 ] || fail "$1: not one line on stderr: $(cat "$work/stderr")"
    [ -z "$(ls -A "$work/out" 2> /dev/null)" ] || fail "$1: files were written: $(ls -A "$work/out")"
}
case_of() { # name, content
    printf '%s' "$2" > "$work/in/$1.json"
    refused "$1" "$work/in/$1.json"
}
refused missing "$work/in/none.json"
refused directory "$work/in"
case_of empty ''
case_of not-json '{"type":"Topology",'
case_of not-topojson '{"type":"FeatureCollection","features":[]}'
case_of array '[1,2,3]'
case_of no-objects '{"type":"Topology","arcs":[]}'
case_of no-polygons "$(topology "$square" '')"
case_of arc-out-of-range "$(topology "$square" "$(country 1)")"
case_of arc-far-out-of-range "$(topology "$square" "$(country 99999999999999999999)")"
case_of negative-out-of-range "$(topology "$square" "$(country -2)")"
case_of arc-is-text "$(topology "$square" "$(country '"0"')")"
case_of position-is-text "$(topology '[["a","b"],[1,1]]' "$(country 0)")"
case_of huge-number "$(topology '[[1e999,0],[1,1],[2,0],[1e999,0]]' "$(country 0)")"
case_of arcs-not-nested '{"type":"Topology","arcs":5,"objects":{"countries":{"type":"GeometryCollection","geometries":[]}}}'
case_of deep "$(head -c 200000 /dev/zero | tr '\0' '[')"
case_of truncated "$(head -c 5000 "$data/countries-110m.json")"
touch "$work/file"
refused output-is-a-file "$data/countries-110m.json" "$work/file"
"$program" > /dev/null 2> "$work/stderr" && fail "no arguments: accepted"

# Good input: plain arcs without a transform, and the real map; its duplicate is the same drawing.
topology "$square" "$(country 0)" > "$work/in/square.json"
"$program" "$work/in/square.json" "$work/square" > /dev/null || fail "a single square is refused"
grep -q 'A &lt; B' "$work/square"/*.svg || fail "the name of the country is not in the page, or not escaped"
"$program" "$data/countries-110m.json" "$work/world" > "$work/stdout" 2> "$work/stderr" || fail "the world is refused"
[ -s "$work/stderr" ] && fail "complaints: $(cat "$work/stderr")"
for duplicate in "$work"/world/*-duplicate.svg; do
    original=${duplicate%-duplicate.svg}.svg
    # Titles, descriptions and identifiers of containers are what a duplicate does not carry.
    plain() { sed -e 's/ id="[^"]*"//' -e '/<\(title\|desc\)>/d' -e 's/<g\/>/<g>/' "$1"; }
    [ "$(plain "$original" | md5sum)" = "$(plain "$duplicate" | md5sum)" ] || fail "$duplicate is another drawing"
    cmp -s "$original" "$duplicate" && fail "$duplicate carries the titles of the countries"
done
[ $failures -eq 0 ] && echo "atlas: all cases"
exit $failures
