#!/bin/sh
# Draws every page and has it rendered without complaint: pictures.sh SPECIMEN ATLAS DATA_DIRECTORY WORK_DIRECTORY
set -eu
rm -rf "$4"
mkdir -p "$4"
"$1" "$4/specimen.svg" > /dev/null
"$2" "$3/countries-110m.json" "$4" > /dev/null
pages=0
for page in "$4"/*.svg; do
    xmllint --noout "$page"
    complaints=$(rsvg-convert -w 400 "$page" -o "$page.png" 2>&1)
    [ -z "$complaints" ] || { echo "pictures: $page: $complaints" >&2; exit 1; }
    [ -s "$page.png" ] || { echo "pictures: $page renders to nothing" >&2; exit 1; }
    pages=$((pages + 1))
done
# The check can fail: a broken page is rejected.
printf '<svg xmlns="http://www.w3.org/2000/svg"><g></svg>' > "$4/broken.svg"
if xmllint --noout "$4/broken.svg" 2> /dev/null; then echo "pictures: xmllint accepts a broken page" >&2; exit 1; fi
[ "$pages" -eq 9 ] || { echo "pictures: $pages pages instead of 9" >&2; exit 1; }
echo "pictures: $pages pages rendered"
