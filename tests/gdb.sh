#!/bin/sh
# Checks what gdb shows with the printers: gdb.sh PRINTERS PROGRAM BARE_PROGRAM HOST_PROGRAM WORK_DIRECTORY
# Of a core dump, in which no function can be called; of the program without debug information on the library, and on a
# host's framework.  Skipped (77) where gdb may not run programs.
set -eu
printers=$1 program=$2 bare=$3 host=$4 work=$5
rm -rf "$work"
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
# shows PROGRAM [OPTION...]: reads expressions, and below each what is shown; or settings.
shows() {
    program=$1
    shift
    cat > "$work/looks"
    grep -v '^set ' "$work/looks" > "$work/expected"
    gdb -nx -batch -ex 'break Stop' -ex run -ex "generate-core-file $work/core" "$program" > "$work/run.log" 2>&1
    [ -s "$work/core" ] || { cat "$work/run.log" >&2; echo "gdb: the program could not be run" >&2; exit 1; }
    sed -n "s/^set .*/&/p; t; s/^[^ ].*/python look('&')/p" "$work/looks" > "$work/commands"
    gdb -nx -batch "$@" -ex "source $printers" -ex "source $work/look.py" -ex up -ex 'echo LOOKS\n' -x "$work/commands" \
        "$program" "$work/core" > "$work/log" 2>&1
    sed "1,/^LOOKS$/d; s/0x[0-9a-f]\{6,12\}\>/ADDRESS/g" "$work/log" | diff -u "$work/expected" - >&2 ||
        { echo "gdb: $program: something else is shown than expected" >&2; exit 1; }
    echo "gdb: $(grep -c '^[^ ]' "$work/expected") expressions shown as expected"
    rm "$work/core"
}

shows "$program" << 'END'
string
  "a \"b\" \001"
emptyString
  ""
point
  (1.5, -2)
vector
  (0.1, 1e+300)
matrix
  [1, 0.5; 0, 1]
points
  2 members = {[1] = (1.5, -2), [2] = null}
*table
  2 colours = {[0] = (200, 30, 40), [1] = (0, 0, 255)}
stroke
  colour 1, width 0.5, VEKPrintLineTypeSolid, dashes {4, 2.5}
fill
  colour 0, VEKPrtFillSolid, VEKPrtFillEvenOdd, pattern VEKPixelImage, 2 references
text
  "Sans", height 10, VEKPrintTextWeightRegular, VEKPrintTextAnchorBaselineLeft
marker
  VEKPrintMarkerPlus
link
  link "#wall"
transform
  VEKPrintTransformTranslation (10, 0), VEKPrintTransformRotation 30, VEKPrintTransformMatrix [1, 0.5; 0, 1], VEKPrintTransformTranslation (0, 5), VEKPrintTransformSkewX without a value
plainTransform
  no transforms
curve
  VEKPrtNURBSElt, 1 reference = {_order = 3, _count = 3, _controlPoints = {{0, 0}, {1, 1}, {2, 0}}, _knots = {0, 0, 0, 1, 1, 1}, _firstBound = 0, _secondBound = 1, _weights = {1, 0.5, 1}, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
polygons
  VEKPrtPolyPolygonElt, 1 reference = {_points = {{0, 0}, {1, 1}, {2, 0}}, _counts = {1, 2}, _polygonCount = 2, _drawStyle = VEKPrtDrawOutline, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _fill = colour 0, VEKPrtFillSolid, VEKPrtFillEvenOdd, _transform = no transforms}
polyline
  VEKPrtPolylineElt, 1 reference = {_points = {{0, 0}, {1, 1}, {2, 0}}, _count = 3, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
noPolyline
  VEKPrtPolylineElt, 1 reference = {_points = 0x0, _count = -2, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
line
  VEKPrtLineElt "wall", title "A wall", 3 references = {_startPoint = (0, 0), _endPoint = (30, 40), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
noLine
  null
lineReference
  VEKPrtLineElt "wall", title "A wall", 3 references = {_startPoint = (0, 0), _endPoint = (30, 40), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
*model._object
  VEKPrtModel, 1 reference = {[1] = VEKPrtImageElt, 2 references = {_origin = (0, 0), _width = 0, _height = 0, _units = VEKPrtImageMillimetre, _matrix = [1, 0; 0, 1], _colourTable = 2 colours = {[0] = (200, 30, 40), [1] = (0, 0, 255)}, [1] = VEKPrtGroupElt, 2 references = {_groupAttributes = link "#wall", _transform = no transforms, [1] = VEKPrtLineElt "wall", title "A wall", 3 references = {_startPoint = (0, 0), _endPoint = (30, 40), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}, [2] = (anonymous namespace)::Arrow, 2 references = {_startPoint = (0, 0), _endPoint = (0, 0), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms, heads = 2}}}}
figure
  VEKPrtClosedFigureElt, 1 reference = {_drawStyle = VEKPrtDrawOutline, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _fill = colour 0, VEKPrtFillSolid, VEKPrtFillEvenOdd, _transform = no transforms, [1] = VEKPrtClosedFigureRegionElt, 1 reference = {_children = 0x0, _transform = no transforms}}
*broken._children
  4 members = {[1] = VEKPrtLineElt "wall", title "A wall", 3 references = {_startPoint = (0, 0), _endPoint = (30, 40), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}, [2] = null, [3] = <Cannot access memory at address 0x10>, [4] = <no VEKPrtGraphicPrimitiveElt: destroyed, or never made>}
raw
  2 members = {[1] = (anonymous namespace)::Arrow, 2 references = {_startPoint = (0, 0), _endPoint = (0, 0), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms, heads = 2}, [2] = 0x10}
*(VEKPrtGraphicPrimitiveElt*)&arrow
  (anonymous namespace)::Arrow, 2 references = {_startPoint = (0, 0), _endPoint = (0, 0), _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms, heads = 2}
outer
  VEKPrtSymbolElt, 2 references = {_origin = (0, 0), _width = 0, _height = 0, _transform = no transforms, [1] = VEKPrtSymbolElt, 2 references, which holds itself}
*destroyed
  <no VEKPrtLineElt: destroyed, or never made>
*(VEKUnicodeString*)garbage
  0xabababababababab <error: Cannot access memory at address 0xabababababababab>
*(VEKRawCollPV*)garbage
  <no collection>
*(VEKPrtColourTable*)garbage
  2880154539 colours = {... = <Cannot access memory at address 0xabababababababab>}
*(VEKPrtStrokeAttributes*)garbage
  <Cannot access memory at address 0xabababababababab>
*(VEKPrtTransformAttributes*)garbage
  <Cannot access memory at address 0xabababababababab>
*(vekprt::VEKRef<VEKPrtLineElt>*)garbage
  <no VEKPrtLineElt: destroyed, or never made>
*(VEKPrtModel*)garbage
  <no VEKPrtModel: destroyed, or never made>
*(VEKPrtLineElt*)0
  error: Cannot access memory at address 0x0
set print elements 2
transform
  VEKPrintTransformTranslation (10, 0), VEKPrintTransformRotation 30, ...
*model._object
  VEKPrtModel, 1 reference = {[1] = VEKPrtImageElt, 2 references = {_origin = (0, 0), _width = 0...}}
set print elements 200
set max-value-size 320
longPolyline
  VEKPrtPolylineElt, 1 reference = {_points = {{0, 0} <repeats 20 times>}, _count = 40, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
set max-value-size unlimited
longPolyline
  VEKPrtPolylineElt, 1 reference = {_points = {{0, 0} <repeats 40 times>}, _count = 40, _stroke = colour 0, width 0.10000000149011612, VEKPrintLineTypeSolid, _transform = no transforms}
END

shows "$bare" -iex 'set auto-solib-add off' << 'END'
line
  <no debug information on VEKPrtLineElt: install libvekprt2dmodel1-dbgsym, or build the library with -g>
*line._object
  <no debug information on VEKPrtLineElt: install libvekprt2dmodel1-dbgsym, or build the library with -g>
lineReference
  <no debug information on VEKPrtLineElt: install libvekprt2dmodel1-dbgsym, or build the library with -g>
stroke
  <no debug information on VEKPrtStrokeAttributes: install libvekprt2dmodel1-dbgsym, or build the library with -g>
string
  "a \"b\" \001"
END

shows "$host" << 'END'
line
  VEKPrtLineElt, 3 references = {_startPoint = {_x = 0, _y = 0}, _endPoint = {_x = 30, _y = 40}, _stroke = colour 0, width 0.10000000149011612, value 0, _transform = no transforms}
lineReference
  VEKPrtLineElt, 3 references = {_startPoint = {_x = 0, _y = 0}, _endPoint = {_x = 30, _y = 40}, _stroke = colour 0, width 0.10000000149011612, value 0, _transform = no transforms}
image
  VEKPixelImage, 2 references = {_width = 4, _height = 3, _pixels = ADDRESS}
stroke
  colour 1, width 0.5, value 0, dashes {4, 2.5}
transform
  translations {_x = 10, _y = 0}, rotations 30, matrices {_values = {_M_elems = {1, 0.5, 0, 1}}}, translations {_x = 0, _y = 5}, skewsX without a value
link
  link {_units = ADDRESS u"\005#wall", _utf8 = ""}
*model._object
  VEKPrtModel, 1 reference = {_images = ADDRESS}
END
