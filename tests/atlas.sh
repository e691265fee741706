#!/bin/sh
# The programs on good and bad input: atlas.sh ATLAS SPECIMEN FOOTPRINT DATA_DIRECTORY WORK_DIRECTORY
set -u
atlas=$1 specimen=$2 footprint=$3 data=$4 work=$5 failures=0
rm -rf "$work"
mkdir -p "$work/in" "$work/empty"
fail() { echo "atlas: $*" >&2; failures=$((failures + 1)); }
# Modest memory, where the program can run with a limit at all: sanitizers reserve more than any.
(ulimit -v 2000000 && "$atlas" --help) > /dev/null 2>&1 && ulimit -v 2000000

topology() { # arcs, geometries, [transform]
    printf '{"type":"Topology",%s"arcs":[%s],"objects":{"countries":{"type":"GeometryCollection","geometries":[%s]}}}' "${3-}" "$1" "$2"
}
square='[[0,0],[20,0],[20,20],[0,20],[0,0]]'
country() { printf '{"type":"Polygon","arcs":[[%s]],"properties":{"name":"A < B"}}' "$1"; }
repeat() { yes "$2" | head -n "$1" | paste -sd, -; }

# Each of these gives one line on stderr, which names the reason, a status above 0 (and no signal), and no file.
refused() { # name, reason, command...
    name=$1 reason=$2
    shift 2
    rm -rf "$work/out"
    timeout 60 "$@" > "$work/stdout" 2> "$work/stderr"
    status=$?
    [ $status -gt 0 ] && [ $status -lt 124 ] || fail "$name: exit status $status"
    [ "$(wc -l < "$work/stderr")" -eq 1 ] && grep -q -e "$reason" "$work/stderr" || fail "$name: $(cat "$work/stderr")"
    [ -z "$(ls -A "$work/out" 2> /dev/null)" ] || fail "$name: files were written: $(ls -A "$work/out")"
}
case_of() { # name, reason, content
    printf '%s' "$3" > "$work/in/$1.json"
    refused "$1" "$2" "$atlas" "$work/in/$1.json" "$work/out"
}
world=$data/countries-110m.json
refused missing 'No such file' "$atlas" "$work/in/none.json" "$work/out"
refused directory 'Is a directory' "$atlas" "$work/in" "$work/out"
refused endless 'larger than' "$atlas" /dev/zero "$work/out"
case_of empty 'the file is empty' ''
case_of not-json 'byte 20' '{"type":"Topology",'
case_of huge-number 'out of range' "$(topology '[[1e999,0],[1,1],[2,0],[1e999,0]]' "$(country 0)")"
case_of truncated 'byte 5001' "$(head -c 5000 "$world")"
case_of open-brackets 'byte 200001' "$(head -c 200000 /dev/zero | tr '\0' '[')"
case_of not-topojson 'not TopoJSON' '{"type":"FeatureCollection","features":[]}'
case_of array 'not TopoJSON' '[1,2,3]'
case_of no-objects 'objects' '{"type":"Topology","arcs":[]}'
case_of no-polygons 'no polygons' "$(topology "$square" '')"
case_of arc-out-of-range 'geometries/1: arc index 1 ' "$(topology "$square" "null,$(country 1)")"
case_of arc-far-out-of-range 'no integer' "$(topology "$square" "$(country 99999999999999999999)")"
case_of negative-out-of-range 'out of range' "$(topology "$square" "$(country -2)")"
case_of arc-is-text 'geometries/0: an arc index' "$(topology "$square" "$(country '"0"')")"
case_of position-is-text '/arcs/1: .*string' "$(topology "$square,"'[["a","b"],[1,1]]' "$(country 0)")"
case_of beyond-the-globe '/arcs/0: ' "$(topology '[[0,0],[400,1],[2,0],[0,0]]' "$(country 0)")"
case_of arcs-not-nested 'arcs' '{"type":"Topology","arcs":5,"objects":{"countries":{"type":"GeometryCollection","geometries":[]}}}'
case_of deep 'too deeply' "$(topology "$square" "$(yes '{"type":"GeometryCollection","geometries":[' | head -n 20000 | tr -d '\n')$(yes ']}' | head -n 20000 | tr -d '\n')")"
case_of rings 'too many positions' "$(topology "$square" '{"type":"Polygon","arcs":['"$(repeat 200000 '[0]')]}")"
case_of long-ring 'too many positions' "$(topology "$square" "$(country "$(repeat 1000000 0)")")"
touch "$work/file"
refused output-is-a-file 'cannot make directory' "$atlas" "$world" "$work/file"
refused long-credit 'credit' "$atlas" "$world" "$work/out" --credit "$(repeat 200 wordy)"
refused no-parents 'No such file' "$specimen" "$work/out/specimen.svg"
refused replaced-directory 'is a directory' "$specimen" "$work/in"
ln -s /dev/full "$work/full"
refused full-device 'No space left' "$specimen" "$work/full"
[ -L "$work/full" ] || fail "the link to a device is replaced"

# Many countries with one identifier: not refused, but soon done.
topology "$square" "$(repeat 8000 '{"type":"Polygon","id":1,"arcs":[[0]]}')" > "$work/in/many.json"
timeout 30 "$atlas" "$work/in/many.json" "$work/many" > /dev/null || fail "many countries: exit status $?"
for program in "$atlas" "$specimen" "$footprint"; do
    (cd "$work/empty" && "$program" --help) | grep -qi usage || fail "$program --help"
    "$program" one two three four > /dev/null 2> "$work/stderr" && fail "$program: four arguments are accepted"
done
(cd "$work/empty" && "$specimen" --help > /dev/null) || fail "specimen --help fails"
[ -z "$(ls -A "$work/empty")" ] || fail "--help writes files"
"$atlas" > /dev/null 2>&1 && fail "no arguments: accepted"

# A link stays, and what it leads to is written; a pipe is written to.
mkdir "$work/links"
ln -s ../linked.svg "$work/links/map.svg"
mkfifo "$work/pipe"
timeout 60 cat "$work/pipe" > "$work/piped.svg" &
"$specimen" "$work/pipe" || fail "a pipe is refused"
wait $!
[ -p "$work/pipe" ] && grep -q '</svg>' "$work/piped.svg" || fail "a pipe is replaced, or not written to"

# What TopoJSON allows: each is drawn as one page that is fitted to the square.
accepted() { # name, content
    printf '%s' "$2" > "$work/in/$1.json"
    "$atlas" "$work/in/$1.json" "$work/links" > /dev/null 2> "$work/stderr" || fail "$1: $(cat "$work/stderr")"
    grep -q '1 : 10 000 000' "$work/linked.svg" || fail "$1: the page is not fitted to the square"
    rm -f "$work/linked.svg"
}
plain='"type":"Polygon","arcs":[[0]]'
accepted name-number "$(topology "$square" "{$plain"',"id":1.5,"properties":{"name":5}}')"
accepted name-object "$(topology "$square" "{$plain"',"id":[true],"properties":{"name":{"en":"A"}}}')"
accepted no-transform "$(topology "$square" "$(country 0)" '"transform":null,')"
accepted nested "$(topology "$square" '{"type":"GeometryCollection","geometries":[{"type":null},'"{$plain}]}")"
accepted bare-polygon '{"type":"Topology","arcs":['"$square"'],"objects":{"countries":null,"a":{'"$plain}}}"
accepted bare-multipolygon '{"type":"Topology","arcs":['"$square"'],"objects":{"a":{"type":"MultiPolygon","arcs":[[[0]]]}}}'
accepted lost-neighbour "$(topology '[[0,0],[20,0]],[[20,0],[20,20],[0,20],[0,0]]' "$(country 0,1),$(country 0)")"
[ -L "$work/links/map.svg" ] || fail "a link is replaced"

# Plain arcs without a transform, and the real map; its duplicate is the same drawing.
topology "$square" "$(country 0)" > "$work/in/square.json"
"$atlas" "$work/in/square.json" "$work/square" > /dev/null || fail "a single square is refused"
[ "$(ls "$work/square" | xargs)" = "map-duplicate.svg map.svg" ] || fail "one country: $(ls "$work/square")"
grep -q 'A &lt; B' "$work/square"/*.svg || fail "the name of the country is not in the page, or not escaped"
grep -q 'Data' "$work/square"/*.svg && fail "unknown data is credited"
"$atlas" "$world" "$work/world" --credit 'Data: A & B' > "$work/stdout" 2> "$work/stderr" || fail "the world is refused"
[ -s "$work/stderr" ] && fail "complaints: $(cat "$work/stderr")"
[ "$(grep -l 'Data: A &amp; B' "$work/world"/*.svg | wc -l)" -eq 9 ] || fail "not nine pages with their credit"
grep -ho 'font-size="[^"]*"' "$work/world"/*.svg | tr -d '"' | awk -F= '$2 < 1.8 { bad = 1 } END { exit bad }' ||
    fail "letters of less than 1.8 mm"
for name in Indonesia Chile Japan Germany Botswana Afghanistan Madagascar Thailand Paraguay "New" Zealand; do
    grep -q ">$name</text>" "$work/world/world.svg" || fail "$name has no name on the map of the world"
done
for duplicate in "$work"/world/*-duplicate.svg; do
    original=${duplicate%-duplicate.svg}.svg
    # Titles, descriptions and identifiers of containers are what a duplicate does not carry.
    plain() { sed -e 's/ id="[^"]*"//' -e '/<\(title\|desc\)>/d' -e 's/<g\/>/<g>/' "$1"; }
    [ "$(plain "$original" | md5sum)" = "$(plain "$duplicate" | md5sum)" ] || fail "$duplicate is another drawing"
    cmp -s "$original" "$duplicate" && fail "$duplicate carries the titles of the countries"
done
[ $failures -eq 0 ] && echo "atlas: all cases"
exit $failures
