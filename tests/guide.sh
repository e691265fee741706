#!/bin/sh
# The programs of the guide, one a section.
# guide.sh GUIDE: writes them as one source, a program that runs the section whose number it is given
# guide.sh GUIDE PROGRAM WORK_DIRECTORY: runs them, and compares what they print with the guide; follows the links of
# the documents
set -eu
guide=$1
if [ $# -eq 1 ]; then
    exec awk '
        /^## / { ++section }
        /^```$/ { code = 0 }
        code { sub(/^int main\(\)/, "static void Section" section "()"); print }
        /^```cpp$/ {
            code = 1
            printf "#line %d \"%s\"\n", NR + 1, FILENAME
            if (section) cases = cases "    case " section ": Section" section "(); return 0;\n"
        }
        END { print "int main(int, char** iWords) {\n    switch (*iWords[1] - 48) {\n" cases "    }\n    return 2;\n}" }
    ' "$guide"
fi
program=$2 work=$3
mkdir -p "$work"
for section in 1 2 3 4 5 6 7 8 9; do
    awk -v wanted=$section '/^## / { ++section } /^```$/ { text = 0 } text; /^```text$/ { text = section == wanted }' \
        "$guide" > "$work/$section.expected"
    "$program" $section > "$work/$section.out" 2>&1 || { cat "$work/$section.out"; echo "guide: section $section fails" >&2; exit 1; }
    diff -u "$work/$section.expected" "$work/$section.out"
done

documents=$(dirname "$guide")
for document in "$documents"/*.md "$documents/../README.md"; do
    sed '/^```/,/^```$/d; s/`[^`]*`//g' "$document" | grep -o ']([^):#]*[)#]' | sed 's/^](//; s/.$//' |
        while read -r link; do
            [ -e "$(dirname "$document")/$link" ] || { echo "guide: $document: no $link" >&2; exit 1; }
        done
done
