#!/bin/sh
# Checks what the model library exports: exports.sh LIBRARY HEADER_DIRECTORY ALL_ELEMENTS_HEADER
set -eu
library=$1 headers=$2 elements=$3
fail() { echo "exports: $*" >&2; exit 1; }

symbols=$(nm -DC --defined-only "$library" | cut -d' ' -f3-)
[ -n "$symbols" ] || fail "nm finds no symbols in $library"
classes=$(cd "$headers" && ls | sed -n 's/^\(VEK.*\(Elt\|Attributes\|Model\|ColourTable\)\)\.h$/\1/p')
[ "$(echo "$classes" | wc -l)" -eq 34 ] || fail "34 exported classes expected, not: $classes"

# Nothing but members, virtual tables and type records of these classes, the caches, and the framework's name.
surplus() {
    echo "$1" | grep -vE "^($(echo "$classes" | paste -sd'|'))::[^:]*\(|^(vtable|typeinfo|typeinfo name) for ($(echo "$classes" | paste -sd'|'))\$|^meta_object__[0-9]+VEKPrt[A-Za-z]+Elt\$|^VEKPrt2DModel_compiled_on_framework_VEKFramework\$" || true
}
[ -z "$(surplus "$symbols")" ] || fail "exported, but not meant to be: $(surplus "$symbols")"
for control in 'vekprt::RetrieveMetaObject()' 'VEKPrtModelHelper::f()' 'void std::vector<VEKPrtLineElt*>::f()'; do
    [ -n "$(surplus "$control")" ] || fail "the check would let $control pass"
done

# All of it is there, and the tests' list of element classes is complete.
has() { echo "$symbols" | grep -qxF "$1" || fail "not exported: $1"; }
has VEKPrt2DModel_compiled_on_framework_VEKFramework
for class in $classes; do
    has "vtable for $class"
    has "typeinfo for $class"
done
caches=$(echo "$symbols" | sed -n 's/^meta_object__\([0-9]*\)\(VEK.*\)$/\1 \2/p')
[ "$(echo "$caches" | wc -l)" -eq 23 ] || fail "23 caches expected, not: $caches"
echo "$caches" | while read -r length class; do
    [ "$length" -eq "${#class}" ] || fail "wrong length in the cache of $class"
    grep -v "#include" "$elements" | grep -qw "$class" || fail "$class is missing in $elements"
done

# No console, no process exit, no other library's streams.
used=$(nm -DC --undefined-only "$library")
[ -n "$used" ] || fail "nm finds no undefined symbols in $library"
if echo "$used" | grep -wE 'printf|puts|putchar|exit|_exit|abort|std::cout|std::cerr'; then
    fail "the library must not print or end the process"
fi
echo "exports: $(echo "$symbols" | wc -l) symbols of 34 classes, 23 caches"
