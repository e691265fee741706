#!/bin/sh
# The programs on good and bad input: atlas.sh ATLAS SPECIMEN FOOTPRINT DATA_DIRECTORY WORK_DIRECTORY
set -u
atlas=$1 specimen=$2 footprint=$3 world=$4/countries-110m.json work=$5 failures=0
rm -rf "$work"
mkdir -p "$work/in" "$work/empty"
fail() { echo "atlas: $*" >&2; failures=$((failures + 1)); }
# Modest memory, where the program can run with a limit at all: sanitizers reserve more than any.
(ulimit -v 2000000 && "$atlas" --help) > /dev/null 2>&1 && ulimit -v 2000000

topology() { # arcs, geometries, [transform]
    printf '{"type":"Topology",%s"arcs":[%s],"objects":{"countries":{"type":"GeometryCollection","geometries":[%s]}}}' "${3-}" "$1" "$2"
}
square='[[0,0],[20,0],[20,20],[0,20],[0,0]]'
polygon() { printf '{"type":"Polygon","arcs":[[%s]]%s}' "$1" "${2-}"; }
repeat() { yes "$2" | head -n "$1" | paste -sd, -; }

# Each of these gives one line on stderr, which names the reason, a status above 0 (and no signal), and no file.
refused() { # name, reason, command...
    name=$1 reason=$2
    shift 2
    rm -rf "$work/out"
    timeout 10 "$@" > "$work/stdout" 2> "$work/stderr"
    status=$?
    [ $status -gt 0 ] && [ $status -lt 124 ] || fail "$name: exit status $status"
    [ "$(wc -l < "$work/stderr")" -eq 1 ] && grep -q -e "$reason" "$work/stderr" || fail "$name: $(cat "$work/stderr")"
    [ -z "$(ls -A "$work/out" 2> /dev/null)" ] || fail "$name: files were written: $(ls -A "$work/out")"
}
invalid() { # name, reason, content, [option...]
    name=$1 reason=$2
    printf '%s' "$3" > "$work/in/$1.json"
    shift 3
    refused "$name" "$reason" "$atlas" "$work/in/$name.json" "$work/out" "$@"
}
refused missing 'No such file' "$atlas" "$work/in/none.json" "$work/out"
refused directory 'Is a directory' "$atlas" "$work/in" "$work/out"
refused endless 'too large' "$atlas" /dev/zero "$work/out"
invalid empty 'the file is empty' ''
invalid not-json 'byte 20' '{"type":"Topology",'
invalid huge-number 'out of range' "$(topology '[[1e999,0],[1,1],[2,0],[1e999,0]]' "$(polygon 0)")"
invalid open-brackets 'byte 200001' "$(head -c 200000 /dev/zero | tr '\0' '[')"
invalid not-topojson 'not TopoJSON' '{"type":"FeatureCollection","features":[]}'
invalid array 'not TopoJSON' '[1,2,3]'
invalid no-objects 'objects' '{"type":"Topology","arcs":[]}'
invalid no-polygons 'no polygons' "$(topology "$square" '')"
invalid no-level 'no object "x"; the file has "countries"' "$(topology "$square" "$(polygon 0)")" --level x
invalid projected '/arcs/0: .*projected' "$(topology '[[300,500],[400,1],[2,0],[300,500]]' "$(polygon 0)")"
invalid arc-out-of-range 'geometries/1: arc index 1 ' "$(topology "$square" "null,$(polygon 1)")"
invalid arc-far-out-of-range 'out of range' "$(topology "$square" "$(polygon 18446744073709551615)")"
invalid negative-out-of-range 'out of range' "$(topology "$square" "$(polygon -2)")"
invalid arc-is-text 'geometries/0: an arc index' "$(topology "$square" "$(polygon '"0"')")"
invalid position-is-text '/arcs/1: .*string' "$(topology "$square,"'[["a","b"],[1,1]]' "$(polygon 0)")"
invalid arcs-not-nested 'arcs' '{"type":"Topology","arcs":5,"objects":{"countries":null}}'
invalid deep 'too deeply' "$(topology "$square" "$(yes '{"type":"GeometryCollection","geometries":[' | head -n 20000 | tr -d '\n')$(yes ']}' | head -n 20000 | tr -d '\n')")"
invalid rings 'too many positions' "$(topology "$square" '{"type":"Polygon","arcs":['"$(repeat 400000 '[0]')]}")"
invalid long-edges 'too many positions' "$(topology "$(repeat 40000 '[0,-90],[0,90]' | sed 's/.*/[&]/')" "$(polygon 0)")"
invalid long-credit 'credit' "$(topology "$square" "$(polygon 0)")" --credit "$(repeat 200 wordy)"
touch "$work/file"
refused output-is-a-file 'cannot make directory' "$atlas" "$world" "$work/file"
refused unknown-format 'no such format: .bmp' "$specimen" "$work/out.bmp"
refused no-parents 'No such file' "$specimen" "$work/out/specimen.svg"
refused replaced-directory 'is a directory' "$specimen" "$work/in"
ln -s /dev/full "$work/full"
refused full-device 'No space left' "$specimen" "$work/full"
[ -L "$work/full" ] || fail "the link to a device is replaced"
for program in "$atlas" "$specimen" "$footprint"; do
    (cd "$work/empty" && "$program" --help) | grep -qi usage || fail "$program --help"
    "$program" one two three four > /dev/null 2> "$work/stderr" && fail "$program: four arguments are accepted"
done
[ -z "$(ls -A "$work/empty")" ] || fail "--help writes files"

# Large, but soon done: 200 000 polygons on 100 islands.
islands=$(awk 'BEGIN { for (i = 0; i < 100; ++i) printf "%s[[%d,0],[%d,1],[%d,0]]", i ? "," : "", 3 * i - 150, 3 * i - 150, 3 * i - 149 }')
polygons=$(awk 'BEGIN { for (i = 0; i < 200000; ++i) printf "%s{\"type\":\"Polygon\",\"arcs\":[[%d]]}", i ? "," : "", i % 100 }')
topology "$islands" "$polygons" > "$work/in/many.json"
timeout "${VEKPRT_TIMEOUT:-30}" "$atlas" "$work/in/many.json" "$work/many.svg" > /dev/null || fail "many polygons: exit status $?"

# A link stays, and its target is written; a pipe is written to.
mkdir "$work/links"
ln -s ../linked.svg "$work/links/map.svg"
mkfifo "$work/pipe"
timeout 60 cat "$work/pipe" > "$work/piped.svg" &
"$specimen" "$work/pipe" || fail "a pipe is refused"
wait $!
[ -p "$work/pipe" ] && grep -q '</svg>' "$work/piped.svg" || fail "a pipe is replaced, or not written to"

# What TopoJSON allows: each is drawn as one page that is fitted to the square.
accepted() { # name, content
    printf '%s' "$2" > "$work/in/$1.topo.json"
    "$atlas" "$work/in/$1.topo.json" "$work/links" > /dev/null 2> "$work/stderr" || fail "$1: $(cat "$work/stderr")"
    grep -q '1 : 9 500 000' "$work/linked.svg" || fail "$1: the page is not fitted to the square"
    mv "$work/linked.svg" "$work/$1.svg"
}
accepted no-name "$(topology "$square" "$(polygon 0 ',"id":[true],"properties":{"name":{"en":"A"}}')")"
accepted no-transform "$(topology "$square" "$(polygon 0 ',"properties":{"name":"A < B"}')" '"transform":null,')"
accepted nested "$(topology "$square" '{"type":"GeometryCollection","geometries":[{"type":null},'"$(polygon 0)]}")"
accepted lost-neighbour "$(topology '[[0,0],[20,0]],[[20,0],[20,20],[0,20],[0,0]]' "$(polygon 0,1),$(polygon 0)")"
[ -L "$work/links/map.svg" ] || fail "a link is replaced"
grep -q '>no-name</text>' "$work/no-name.svg" || fail "the page is not titled as its file"
grep -q '>A &lt; B</text>' "$work/no-transform.svg" || fail "the name of the country is not in the page, or not escaped"

# The real map: a page a file, or all pages in one.
"$atlas" "$world" "$work/world" --credit 'Data: A & B' > "$work/stdout" 2> "$work/stderr" || fail "the world is refused"
grep -q '^177 areas from object "countries"; the file has "countries" "land"$' "$work/stdout" || fail "reported: $(cat "$work/stdout")"
[ -s "$work/stderr" ] && fail "complaints: $(cat "$work/stderr")"
[ "$(grep -l 'Data: A &amp; B' "$work/world"/*.svg | wc -l)" -eq 8 ] || fail "not eight pages with their credit"
"$specimen" "$work/world/specimen.svg"
for page in "$work/world"/*.svg; do
    complaints=$(xmllint --noout "$page" 2>&1; rsvg-convert -w 400 "$page" -o "$page.png" 2>&1)
    [ -z "$complaints" ] && [ -s "$page.png" ] || fail "$page is not rendered: $complaints"
done
"$atlas" "$world" "$work/land.svg" --level land | grep -q '^1 areas from object "land"' || fail "another level is not drawn"
"$atlas" "$world" "$work/atlas.pdf" > /dev/null && "$specimen" "$work/specimen.png" || fail "a format is refused"
grep -aq '(element-7) \[' "$work/atlas.pdf" || fail "not eight pages are linked in the document"
[ "$(head -c 4 "$work/atlas.pdf")$(head -c 4 "$work/specimen.png" | tail -c 3)" = %PDFPNG ] || fail "an extension gives another format"
[ $failures -eq 0 ] && echo "atlas: all cases"
exit $failures
