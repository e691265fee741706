// The cells that show an element class each.
#include <algorithm>
#include <cmath>
#include <string>

#include "Cell.h"
#include "VEKPixelImage.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtPolyCubicBezierElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolyQuadraticBezierElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtSymbolElt.h"

namespace {

void DrawLine(const Cell& iCell) {
    iCell.Line(6, 8, 44, 34, ink, 0.7);
    iCell.Mark(6, 8);
    iCell.Mark(44, 34);
    iCell.Text(8.5, 5.6, "start");
    iCell.Right(41.5, 35.2, "end");
}

void DrawRectangle(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtRectangleElt>(Point(8, 8), Point(42, 34)), ink, ochre);
    iCell.Mark(8, 8);
    iCell.Mark(42, 34);
    iCell.Text(10, 9.6, "first corner");
    iCell.Right(40, 31, "second corner");
}

void DrawCircle(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtCircleElt>(Point(25, 21), 15.0), ink, teal);
    iCell.Line(25, 21, 25 + 15 * 0.8, 21 + 15 * 0.6, paper, 0.25);
    iCell.Mark(25, 21);
}

void DrawCircularArc(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtCircularArcElt>(Point(25, 19), 16.0, 20.0F, 250.0F), ink, faint);
    for (const double angle : {20.0, 250.0})
        iCell.Line(25, 19, 25 + 16 * std::cos(angle * pi / 180), 19 + 16 * std::sin(angle * pi / 180), red);
    iCell.Text(42, 25, "20°");
    iCell.Right(18.5, 1.6, "250°");
    iCell.Mark(25, 19);
}

void DrawEllipse(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtEllipseElt>(Point(25, 21), 19.0, 9.0, 25.0F), ink, blue);
    const double x = 19 * std::cos(25 * pi / 180), y = 19 * std::sin(25 * pi / 180);
    iCell.Line(25 - x, 21 - y, 25 + x, 21 + y, paper, 0.2);
    iCell.Centred(25, 2.6, "slope 25°");
}

void DrawEllipticalArc(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtEllipticalArcElt>(Point(25, 22), 19.0, 10.0, 45.0F, 300.0F, 25.0F), ink,
                     faint);
    iCell.Mark(25, 22);
    iCell.Centred(25, 2.6, "45° to 300°, slope 25°");
}

void DrawPolyline(const Cell& iCell) {
    static const double points[] = {5, 10, 12, 32, 19, 10, 26, 32, 33, 10, 40, 32, 45, 16};
    iCell.AddStroked(Make<VEKPrtPolylineElt>(points, 7), Stroke(ink, 0.6));
}

void DrawPolygon(const Cell& iCell) {
    double points[10];
    for (int i = 0; i < 5; ++i) {
        points[2 * i] = 25 + 17 * std::sin(2 * pi * i / 5);
        points[2 * i + 1] = 19.5 + 17 * std::cos(2 * pi * i / 5);
    }
    iCell.AddPainted(Make<VEKPrtPolygonElt>(points, 5), ink, red);
}

void DrawDisjoint(const Cell& iCell) {
    double points[48];
    for (int i = 0; i < 24; ++i) {
        const int spoke = i / 2;
        const double angle = pi * spoke / 6, radius = i % 2 ? 17 : 8;
        points[2 * i] = 25 + radius * std::cos(angle);
        points[2 * i + 1] = 21 + radius * std::sin(angle);
    }
    iCell.AddStroked(Make<VEKPrtDisjointPolylineElt>(points, 24), Stroke(teal, 0.9));
}

void DrawPolyPolygon(const Cell& iCell) {
    static const double points[] = {5,  6,  45, 6,  45, 36, 5,  36, 10, 11,   22,
                                    11, 22, 31, 10, 31, 27, 11, 40, 11, 33.5, 31};
    static const int counts[] = {4, 4, 3};
    iCell.AddPainted(Make<VEKPrtPolyPolygonElt>(points, counts, 3), ink, ochre);
}

// Control points and the polygon through them.
void Construction(const Cell& iCell, const double* iPoints, int iCount) {
    static const float dashes[] = {1.0F, 0.7F};
    VEKPrtStrokeAttributes stroke = Stroke(grey, 0.15);
    stroke.SetStrokeTypePattern(dashes, 2);
    iCell.AddStroked(Make<VEKPrtPolylineElt>(iPoints, iCount), stroke);
    for (int i = 0; i < iCount; ++i)
        iCell.Mark(iPoints[2 * i], iPoints[2 * i + 1]);
}

void DrawCubic(const Cell& iCell) {
    static const double points[] = {4, 19, 8, 38, 20, 38, 25, 20, 30, 2, 42, 2, 46, 21};
    Construction(iCell, points, 7);
    iCell.AddStroked(Make<VEKPrtPolyCubicBezierElt>(points, 7), Stroke(ink, 0.7));
}

void DrawQuadratic(const Cell& iCell) {
    static const double points[] = {4, 8, 15, 38, 25, 20, 35, 2, 46, 34};
    Construction(iCell, points, 5);
    iCell.AddStroked(Make<VEKPrtPolyQuadraticBezierElt>(points, 5), Stroke(ink, 0.7));
}

// A full circle, which only a rational curve can be, and a part of an open cubic by its bounds.
void DrawNurbs(const Cell& iCell) {
    const double s = std::sqrt(0.5);
    static const double circle[] = {24, 26, 24, 36, 14, 36, 4, 36, 4, 26, 4, 16, 14, 16, 24, 16, 24, 26};
    static const double circleKnots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
    const double weights[] = {1, s, 1, s, 1, s, 1, s, 1};
    Construction(iCell, circle, 9);
    iCell.AddStroked(Make<VEKPrtNURBSElt>(3, 9, circle, circleKnots, 0.0F, 1.0F, weights), Stroke(ink, 0.7));

    static const double open[] = {20, 6, 28, 20, 34, 3, 40, 3, 47, 12, 43, 30};
    static const double openKnots[] = {0, 0, 0, 0, 1.0 / 3, 2.0 / 3, 1, 1, 1, 1};
    static const double ones[] = {1, 1, 1, 1, 1, 1};
    iCell.AddStroked(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.0F, 1.0F, ones), Stroke(grey, 0.2));
    iCell.AddStroked(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.25F, 0.75F, ones), Stroke(red, 0.9));
    iCell.Right(47, 36, "bounds ¼ to ¾");
}

void DrawMarkers(const Cell& iCell) {
    for (int style = 0; style < 8; ++style) {
        const int column = style % 4, row = style / 4;
        const double x = 8 + 11.3 * column, y = 30 - 17 * row;
        const auto marker = Make<VEKPrtMarkerElt>(Point(x, y), 6.0);
        VEKPrtMarkerAttributes attributes;
        attributes.SetMarkerStyle(static_cast<VEKPrintMarkerAttribute>(style));
        marker->SetMarkerAttributes(attributes);
        iCell.AddStroked(marker, Stroke(ink, 0.5));
        iCell.Centred(x, y - 7, std::to_string(style));
    }
}

void DrawText(const Cell& iCell) {
    Retouch(iCell.Centred(25, 23, "Äg", 20), &VEKPrtTextAttributes::SetFont, iCell.fonts.serif.get());
    iCell.Line(6, 23, 44, 23, red);
    iCell.Centred(25, 9, "Zwölf Boxkämpfer", 4);
    const auto formula = iCell.Centred(25, 3.5, "σ = √(Δx² + Δy²)", 3);
    Retouch(formula, &VEKPrtTextAttributes::SetFont, iCell.fonts.mono.get());
}

void DrawBitmap(const Cell& iCell) {
    // Ripples round a point off the middle, so that a turned picture shows it.
    constexpr int size = 96;
    const auto image = Make<VEKPixelImage>(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double r = std::hypot(x - 0.3 * size, y - 0.35 * size) / size;
            const double height = std::sin(18 * r) / (1 + 2 * r);
            const auto shade = [&](double iLow, double iHigh) {
                return static_cast<unsigned char>(
                    std::clamp(iLow + (iHigh - iLow) * (height + 1) / 2, 0.0, 255.0));
            };
            image->SetPixel(x, y, shade(16, 240), shade(90, 225), shade(120, 190));
        }
    }
    iCell.Add(Make<VEKPrtBitmapImageElt>(Point(5, 6), 26.0, 30.0, 0.0, image.Get()));
    iCell.Add(Make<VEKPrtBitmapImageElt>(Point(38.5, 9), 11.0, 11.0, 30.0, image.Get()));
    iCell.Centred(40.5, 28, "turned 30°");
    iCell.Mark(38.5, 9);
}

void DrawGroup(const Cell& iCell) {
    const auto group = Make<VEKPrtGroupElt>();
    group->SetTitle("A group with a link");
    VEKPrtGroupAttributes link;
    link.SetLinkURI(VEKPrintLinkURI("https://example.org/?sheet=1&cell=group"));
    group->SetGroupAttributes(link);
    group->SetTransformAttributes(Place(25, 21, 12.0F));
    const Cell inner(iCell.fonts, *group);
    inner.AddPainted(Make<VEKPrtRectangleElt>(Point(-18, -9), Point(18, 9)), blue, faint);
    inner.AddPainted(Make<VEKPrtCircleElt>(Point(-12, 0), 4.0), ink, ochre);
    inner.Text(-5, -1, "one transform,", 2.6);
    inner.Text(-5, -4.6, "one link", 2.6);
    iCell.Add(group);
}

void DrawPattern(const Cell& iCell) {
    // The symbol is what the pattern repeats over.
    const auto panel = Make<VEKPrtSymbolElt>(Point(5, 5), 40.0, 32.0);
    const auto tile = Make<VEKPrtPatternElt>(Point(5, 5), 8.0, 8.0);
    const auto disc = Make<VEKPrtCircleElt>(Point(9, 9), 2.4);
    tile->AddChild(Painted(disc, Stroke(teal, 0.5), Fill(teal), VEKPrtDrawInterior).Get());
    for (const double x : {5.0, 13.0}) {
        const auto line = Make<VEKPrtLineElt>(Point(x, 5), Point(18 - x, 13));
        line->SetStrokeAttributes(Stroke(ochre, 0.5));
        tile->AddChild(line.Get());
    }
    panel->AddChild(tile.Get());
    iCell.Add(panel);
    iCell.AddPainted(Make<VEKPrtRectangleElt>(Point(5, 5), Point(13, 13)), red, red, VEKPrtDrawOutline, 0.4);
}

// A stamp that reaches over its box and is clipped to it; three groups share the one symbol.
void DrawSymbol(const Cell& iCell) {
    const auto symbol = Make<VEKPrtSymbolElt>(Point(0, 0), 12.0, 12.0);
    const auto petal = [&](double iX, double iY, Colour iColour) {
        const auto circle = Make<VEKPrtCircleElt>(Point(iX, iY), 6.5);
        symbol->AddChild(Painted(circle, Stroke(ink, 0.3), Fill(iColour)).Get());
    };
    petal(0, 0, red);
    petal(12, 12, red);
    petal(12, 0, ochre);
    petal(0, 12, teal);
    for (const auto& place : {Place(4, 18, 0.0F, 1.6), Place(27, 20), Place(38, 4, 30.0F)}) {
        const auto use = Make<VEKPrtGroupElt>();
        use->SetTransformAttributes(place);
        use->AddChild(symbol.Get());
        iCell.Add(use);
    }
    iCell.Text(5, 6, "one symbol,", 2.6);
    iCell.Text(5, 2.6, "placed three times", 2.6);
}

// A bracket: an outline of lines, an arc and a curve, and two holes.
void DrawClosedFigure(const Cell& iCell) {
    const auto figure = Make<VEKPrtClosedFigureElt>();
    const auto outline = Make<VEKPrtClosedFigureRegionElt>();
    static const double curve[] = {44, 16, 44, 6, 30, 12, 5, 6};
    static const Point corners[] = {{5, 6}, {5, 36}, {24, 36}, {44, 36}, {44, 16}};
    for (int i = 0; i < 4; ++i)
        outline->AddChild(Make<VEKPrtLineElt>(corners[i], corners[i + 1]).Get());
    outline->AddChild(Make<VEKPrtPolyCubicBezierElt>(curve, 4).Get());
    figure->AddChild(outline.Get());
    const auto slot = Make<VEKPrtClosedFigureRegionElt>();
    slot->AddChild(Make<VEKPrtCircularArcElt>(Point(14, 19), 4.0, 180.0F, 360.0F).Get());
    slot->AddChild(Make<VEKPrtLineElt>(Point(18, 19), Point(18, 27)).Get());
    slot->AddChild(Make<VEKPrtCircularArcElt>(Point(14, 27), 4.0, 0.0F, 180.0F).Get());
    figure->AddChild(slot.Get());
    const auto hole = Make<VEKPrtClosedFigureRegionElt>();
    hole->AddChild(Make<VEKPrtCircleElt>(Point(33, 25), 6.0).Get());
    figure->AddChild(hole.Get());
    iCell.AddPainted(figure, ink, blue, VEKPrtDrawBoth, 0.6);
    iCell.Right(47, 1.4, "three VEKPrtClosedFigureRegionElt", 1.9);
}

} // namespace

const CellContent g_elementCells[] = {
    {"line", "Line", "VEKPrtLineElt", DrawLine},
    {"rectangle", "Rectangle", "VEKPrtRectangleElt", DrawRectangle},
    {"circle", "Circle", "VEKPrtCircleElt", DrawCircle},
    {"circular-arc", "Circular arc", "VEKPrtCircularArcElt", DrawCircularArc},
    {"ellipse", "Ellipse", "VEKPrtEllipseElt", DrawEllipse},
    {"elliptical-arc", "Elliptical arc", "VEKPrtEllipticalArcElt", DrawEllipticalArc},
    {"polyline", "Polyline", "VEKPrtPolylineElt", DrawPolyline},
    {"polygon", "Polygon", "VEKPrtPolygonElt", DrawPolygon},
    {"disjoint-polyline", "Disjoint polyline", "VEKPrtDisjointPolylineElt", DrawDisjoint},
    {"poly-polygon", "Poly-polygon", "VEKPrtPolyPolygonElt", DrawPolyPolygon},
    {"cubic-bezier", "Cubic Béziers", "VEKPrtPolyCubicBezierElt", DrawCubic},
    {"quadratic-bezier", "Quadratic Béziers", "VEKPrtPolyQuadraticBezierElt", DrawQuadratic},
    {"nurbs", "NURBS", "VEKPrtNURBSElt", DrawNurbs},
    {"marker", "Markers by style", "VEKPrtMarkerElt", DrawMarkers},
    {"text", "Text", "VEKPrtTextElt", DrawText},
    {"bitmap", "Bitmap", "VEKPrtBitmapImageElt", DrawBitmap},
    {"group", "Group with link", "VEKPrtGroupElt", DrawGroup},
    {"pattern", "Pattern", "VEKPrtPatternElt", DrawPattern},
    {"symbol", "Symbol", "VEKPrtSymbolElt", DrawSymbol},
    {"closed-figure", "Closed figure of regions", "VEKPrtClosedFigureElt", DrawClosedFigure},
    {nullptr, nullptr, nullptr, nullptr},
};
