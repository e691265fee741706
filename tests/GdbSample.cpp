// What gdb.sh has gdb look at: objects of every kind, sound and broken.
#include <cstdlib>
#include <cstring>

#include "VEKFont.h"
#include "VEKListPtrVEKMathPoint2D.h"
#include "VEKPixelImage.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtValues.h"
#include "VEKPrtWalk.h"

using namespace vekprt;

namespace {

struct Host {
    virtual ~Host() = default;
};
// A client's own class, in which the element is not the first base.
struct Arrow : Host, VEKPrtLineElt {
    int heads = 2;
};

void Stop() { std::_Exit(0); }

} // namespace

int main() {
    VEKUnicodeString string("a \"b\" \x01"), emptyString;
    VEKMathPoint2D point(1.5, -2);
    VEKMathVector2D vector(0.1, 1e300);
    VEKMath2x2Matrix matrix(1, 0.5, 0, 1);
    VEKListPtrVEKMathPoint2D points(2);
    points.Append(&point);
    points.Append(nullptr);

    auto* const table = new VEKPrtColourTable;
    unsigned index = 0;
    table->AddColour(200, 30, 40, index);
    table->AddColour(0, 0, 255, index);
    auto image = Make<VEKPixelImage>(4, 3);
    VEKFont font("Sans");

    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(1);
    stroke.SetStrokeWidth(0.5);
    const float dashes[] = {4, 2.5F};
    stroke.SetStrokeTypePattern(dashes, 2);
    VEKPrtFillAttributes fill;
    fill.SetPattern(image.Get(), vector, vector);
    VEKPrtTextAttributes text;
    text.SetFont(&font);
    VEKPrtMarkerAttributes marker;
    VEKPrtGroupAttributes link;
    link.SetLinkURI("#wall");
    VEKPrtTransformAttributes transform, plainTransform;
    transform.AddTranslation({10, 0});
    transform.AddRotation(30);
    transform.AddMatrix(matrix);
    transform.AddTranslation({0, 5});
    transform.AddTransform(transformSkewX);

    const double coordinates[] = {0, 0, 1, 1, 2, 0}, knots[] = {9, 0, 0, 0, 1, 1, 1},
                 weights[] = {9, 1, 0.5, 1};
    const int counts[] = {1, 2};
    VEKPrtPolyPolygonElt polygons(coordinates, counts, 2);
    VEKPrtNURBSElt curve;
    curve.SetParameters(3, 3, coordinates, knots, 0, 1, weights);
    VEKPrtPolylineElt polyline(coordinates, 3), noPolyline(coordinates, -2);
    const double zeros[80] = {};
    VEKPrtPolylineElt longPolyline(zeros, 40);

    auto line = Make<VEKPrtLineElt>(VEKMathPoint2D(0, 0), VEKMathPoint2D(30, 40));
    line->SetID("wall");
    line->SetTitle("A wall");
    VEKPrtLineElt& lineReference = *line;
    Arrow arrow;
    VEKPrtGroupElt group;
    group.SetGroupAttributes(link);
    group.AddChild(line.Get());
    group.AddChild(&arrow);
    auto page = Make<VEKPrtImageElt>();
    page->SetColourTable(table);
    page->AddChild(&group);
    auto model = Make<VEKPrtModel>();
    model->AddImage(page.Get());
    VEKPrtClosedFigureElt figure;
    figure.AddChild(Make<VEKPrtClosedFigureRegionElt>().Get());

    alignas(16) unsigned char garbage[1024], place[sizeof(VEKPrtLineElt)];
    std::memset(garbage, 0xab, sizeof garbage);
    auto* const destroyed = new (place) VEKPrtLineElt;
    destroyed->~VEKPrtLineElt();
    VEKRef<VEKPrtLineElt> noLine;
    VEKPrtSymbolElt outer, inner, broken;
    outer.AddChild(&inner);
    inner.AddChild(&outer);
    broken.AddChild(line.Get());
    VEKListPtrVEKPrtGraphicPrimitiveElt* brokenList = nullptr;
    broken.GetChildren(brokenList);
    brokenList->Append(nullptr);
    brokenList->Append(reinterpret_cast<void*>(16));
    brokenList->Append(garbage);
    VEKRawCollPV raw(2);
    raw.Append(&arrow);
    raw.Append(reinterpret_cast<void*>(16));
    // Not used otherwise, as far as the compiler sees.
    static_cast<void>(lineReference);
    Stop();
}
