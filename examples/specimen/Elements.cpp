// The cells that show an element class each.
#include <algorithm>
#include <cmath>
#include <string>

#include "Sheet.h"
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

using Point = VEKMathPoint2D;

void DrawLine(const Cell& c) {
    c.Line(6, 8, 44, 34, c.palette.ink, 0.7);
    c.Mark(6, 8);
    c.Mark(44, 34);
    c.Text(8.5, 5.6, "start");
    c.Text(41.5, 35.2, "end", 2.2, VEKPrintTextAnchorBaselineRight);
}

void DrawRectangle(const Cell& c) {
    c.AddPainted(Make<VEKPrtRectangleElt>(Point(8, 8), Point(42, 34)), c.palette.ink, c.palette.ochre);
    c.Mark(8, 8);
    c.Mark(42, 34);
    c.Text(10, 9.6, "first corner");
    c.Text(40, 31, "second corner", 2.2, VEKPrintTextAnchorBaselineRight);
}

void DrawCircle(const Cell& c) {
    c.AddPainted(Make<VEKPrtCircleElt>(Point(25, 21), 15.0), c.palette.ink, c.palette.teal);
    c.Line(25, 21, 25 + 15 * 0.8, 21 + 15 * 0.6, c.palette.paper, 0.25);
    c.Mark(25, 21);
}

void DrawCircularArc(const Cell& c) {
    c.AddPainted(Make<VEKPrtCircularArcElt>(Point(25, 19), 16.0, 20.0F, 250.0F), c.palette.ink,
                 c.palette.faint);
    c.Line(25, 19, 25 + 16 * std::cos(0.349066), 19 + 16 * std::sin(0.349066), c.palette.red);
    c.Line(25, 19, 25 + 16 * std::cos(4.363323), 19 + 16 * std::sin(4.363323), c.palette.red);
    c.Text(42, 25, "20°");
    c.Text(18.5, 1.6, "250°", 2.2, VEKPrintTextAnchorBaselineRight);
    c.Mark(25, 19);
}

void DrawEllipse(const Cell& c) {
    c.AddPainted(Make<VEKPrtEllipseElt>(Point(25, 21), 19.0, 9.0, 25.0F), c.palette.ink, c.palette.blue);
    c.Line(25 - 19 * 0.906308, 21 - 19 * 0.422618, 25 + 19 * 0.906308, 21 + 19 * 0.422618, c.palette.paper,
           0.2);
    c.Text(25, 2.6, "slope 25°", 2.2, VEKPrintTextAnchorBaselineCentre);
}

void DrawEllipticalArc(const Cell& c) {
    c.AddPainted(Make<VEKPrtEllipticalArcElt>(Point(25, 22), 19.0, 10.0, 45.0F, 300.0F, 25.0F), c.palette.ink,
                 c.palette.faint);
    c.Mark(25, 22);
    c.Text(25, 2.6, "45° to 300°, slope 25°", 2.2, VEKPrintTextAnchorBaselineCentre);
}

void DrawPolyline(const Cell& c) {
    static const double points[] = {5, 10, 12, 32, 19, 10, 26, 32, 33, 10, 40, 32, 45, 16};
    c.AddStroked(Make<VEKPrtPolylineElt>(points, 7), c.palette.ink, 0.6);
}

void DrawPolygon(const Cell& c) {
    double points[10];
    for (int i = 0; i < 5; ++i) {
        points[2 * i] = 25 + 17 * std::sin(2 * 3.14159265358979 * i / 5);
        points[2 * i + 1] = 19.5 + 17 * std::cos(2 * 3.14159265358979 * i / 5);
    }
    c.AddPainted(Make<VEKPrtPolygonElt>(points, 5), c.palette.ink, c.palette.red);
}

void DrawDisjoint(const Cell& c) {
    double points[48];
    for (int i = 0; i < 12; ++i) {
        const double angle = 3.14159265358979 * i / 6;
        for (int end = 0; end < 2; ++end) {
            points[4 * i + 2 * end] = 25 + (end ? 17 : 8) * std::cos(angle);
            points[4 * i + 2 * end + 1] = 21 + (end ? 17 : 8) * std::sin(angle);
        }
    }
    c.AddStroked(Make<VEKPrtDisjointPolylineElt>(points, 24), c.palette.teal, 0.9);
}

void DrawPolyPolygon(const Cell& c) {
    static const double points[] = {5,  6,  45, 6,  45, 36, 5,  36, 10, 11,   22,
                                    11, 22, 31, 10, 31, 27, 11, 40, 11, 33.5, 31};
    static const int counts[] = {4, 4, 3};
    c.AddPainted(Make<VEKPrtPolyPolygonElt>(points, counts, 3), c.palette.ink, c.palette.ochre);
}

// Control points and the polygon through them.
void Construction(const Cell& c, const double* iPoints, int iCount) {
    const auto polygon = Make<VEKPrtPolylineElt>(iPoints, iCount);
    VEKPrtStrokeAttributes stroke = Stroke(c.palette.grey, 0.15);
    stroke.SetStrokeTypePattern(std::initializer_list<float>{1.0F, 0.7F}.begin(), 2);
    polygon->SetStrokeAttributes(stroke);
    c.Add(polygon);
    for (int i = 0; i < iCount; ++i)
        c.Mark(iPoints[2 * i], iPoints[2 * i + 1]);
}

void DrawCubic(const Cell& c) {
    static const double points[] = {4, 19, 8, 38, 20, 38, 25, 20, 30, 2, 42, 2, 46, 21};
    Construction(c, points, 7);
    c.AddStroked(Make<VEKPrtPolyCubicBezierElt>(points, 7), c.palette.ink, 0.7);
}

void DrawQuadratic(const Cell& c) {
    static const double points[] = {4, 8, 15, 38, 25, 20, 35, 2, 46, 34};
    Construction(c, points, 5);
    c.AddStroked(Make<VEKPrtPolyQuadraticBezierElt>(points, 5), c.palette.ink, 0.7);
}

// A full circle, which only a rational curve can be, and a part of an open cubic by its bounds.
void DrawNurbs(const Cell& c) {
    const double s = std::sqrt(0.5);
    static const double circle[] = {24, 26, 24, 36, 14, 36, 4, 36, 4, 26, 4, 16, 14, 16, 24, 16, 24, 26};
    static const double circleKnots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
    const double weights[] = {1, s, 1, s, 1, s, 1, s, 1};
    Construction(c, circle, 9);
    c.AddStroked(Make<VEKPrtNURBSElt>(3, 9, circle, circleKnots, 0.0F, 1.0F, weights), c.palette.ink, 0.7);

    static const double open[] = {20, 6, 28, 20, 34, 3, 40, 3, 47, 12, 43, 30};
    static const double openKnots[] = {0, 0, 0, 0, 1.0 / 3, 2.0 / 3, 1, 1, 1, 1};
    static const double ones[] = {1, 1, 1, 1, 1, 1};
    c.AddStroked(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.0F, 1.0F, ones), c.palette.grey, 0.2);
    c.AddStroked(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.25F, 0.75F, ones), c.palette.red, 0.9);
    c.Text(47, 36, "bounds ¼ to ¾", 2.2, VEKPrintTextAnchorBaselineRight);
}

void DrawMarkers(const Cell& c) {
    for (int style = 0; style < 8; ++style) {
        const int column = style % 4, row = style / 4;
        const double x = 8 + 11.3 * column, y = 30 - 17 * row;
        const auto marker = Make<VEKPrtMarkerElt>(Point(x, y), 6.0);
        VEKPrtMarkerAttributes attributes;
        attributes.SetMarkerStyle(static_cast<VEKPrintMarkerAttribute>(style));
        marker->SetMarkerAttributes(attributes);
        c.AddStroked(marker, c.palette.ink, 0.5);
        c.Text(x, y - 7, std::to_string(style).c_str(), 2.2, VEKPrintTextAnchorBaselineCentre);
    }
}

void DrawText(const Cell& c) {
    Cell::Retouch(c.Text(25, 23, "Äg", 20, VEKPrintTextAnchorBaselineCentre),
                  [&](VEKPrtTextAttributes& ioText) { ioText.SetFont(c.fonts.serif.get()); });
    c.Line(6, 23, 44, 23, c.palette.red);
    c.Text(25, 9, "Zwölf Boxkämpfer", 4, VEKPrintTextAnchorBaselineCentre);
    Cell::Retouch(c.Text(25, 3.5, "σ = √(Δx² + Δy²)", 3, VEKPrintTextAnchorBaselineCentre),
                  [&](VEKPrtTextAttributes& ioText) { ioText.SetFont(c.fonts.mono.get()); });
}

void DrawBitmap(const Cell& c) {
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
    c.Add(Make<VEKPrtBitmapImageElt>(Point(5, 6), 26.0, 30.0, 0.0, image.Get()));
    c.Add(Make<VEKPrtBitmapImageElt>(Point(38.5, 9), 11.0, 11.0, 30.0, image.Get()));
    c.Text(40.5, 28, "turned 30°", 2.2, VEKPrintTextAnchorBaselineCentre);
    c.Mark(38.5, 9);
}

void DrawGroup(const Cell& c) {
    const auto group = Make<VEKPrtGroupElt>();
    group->SetTitle("A group with a link");
    VEKPrtGroupAttributes link;
    link.SetLinkURI(VEKPrintLinkURI("https://example.org/?sheet=1&cell=group"));
    group->SetGroupAttributes(link);
    VEKPrtTransformAttributes transform;
    transform.AddTranslation(VEKMathVector2D(25, 21));
    transform.AddRotation(12.0F);
    group->SetTransformAttributes(transform);
    const Cell inner(c.fonts, c.palette, *group);
    inner.AddPainted(Make<VEKPrtRectangleElt>(Point(-18, -9), Point(18, 9)), c.palette.blue, c.palette.faint);
    inner.AddPainted(Make<VEKPrtCircleElt>(Point(-12, 0), 4.0), c.palette.ink, c.palette.ochre);
    inner.Text(-5, -1, "one transform,", 2.6);
    inner.Text(-5, -4.6, "one link", 2.6);
    c.Add(group);
}

void DrawPattern(const Cell& c) {
    // The symbol is what the pattern repeats over.
    const auto panel = Make<VEKPrtSymbolElt>(Point(5, 5), 40.0, 32.0);
    const auto tile = Make<VEKPrtPatternElt>(Point(5, 5), 8.0, 8.0);
    const Palette& p = c.palette;
    const auto add = [&](const auto& iElement) { tile->AddChild(iElement.Get()); };
    const auto disc = Make<VEKPrtCircleElt>(Point(9, 9), 2.4);
    disc->SetDrawStyle(VEKPrtDrawInterior);
    disc->SetFillAttributes(Fill(p.teal));
    add(disc);
    for (const double x : {5.0, 13.0}) {
        const auto line = Make<VEKPrtLineElt>(Point(x, 5), Point(18 - x, 13));
        line->SetStrokeAttributes(Stroke(p.ochre, 0.5));
        add(line);
    }
    panel->AddChild(tile.Get());
    c.Add(panel);
    c.AddPainted(Make<VEKPrtRectangleElt>(Point(5, 5), Point(13, 13)), p.red, p.red, VEKPrtDrawOutline, 0.4);
}

// A stamp that reaches over its box and is clipped to it; three groups share the one symbol.
void DrawSymbol(const Cell& c) {
    const auto symbol = Make<VEKPrtSymbolElt>(Point(0, 0), 12.0, 12.0);
    const auto petal = [&](double iX, double iY, unsigned iColour) {
        const auto circle = Make<VEKPrtCircleElt>(Point(iX, iY), 6.5);
        circle->SetDrawStyle(VEKPrtDrawBoth);
        circle->SetStrokeAttributes(Stroke(c.palette.ink, 0.3));
        circle->SetFillAttributes(Fill(iColour));
        symbol->AddChild(circle.Get());
    };
    petal(0, 0, c.palette.red);
    petal(12, 12, c.palette.red);
    petal(12, 0, c.palette.ochre);
    petal(0, 12, c.palette.teal);
    struct Place {
        double x, y, scale;
        float angle;
    };
    for (const Place& place : {Place{4, 18, 1.6, 0.0F}, Place{27, 20, 1, 0.0F}, Place{38, 4, 1, 30.0F}}) {
        const auto use = Make<VEKPrtGroupElt>();
        VEKPrtTransformAttributes transform;
        transform.AddTranslation(VEKMathVector2D(place.x, place.y));
        transform.AddRotation(place.angle);
        transform.AddScaleX(place.scale);
        transform.AddScaleY(place.scale);
        use->SetTransformAttributes(transform);
        use->AddChild(symbol.Get());
        c.Add(use);
    }
    c.Text(5, 6, "one symbol,", 2.6);
    c.Text(5, 2.6, "placed three times", 2.6);
}

// A bracket: an outline of lines, an arc and a curve, and two holes.
void DrawClosedFigure(const Cell& c) {
    const auto figure = Make<VEKPrtClosedFigureElt>();
    const auto outline = Make<VEKPrtClosedFigureRegionElt>();
    static const double curve[] = {44, 16, 44, 6, 30, 12, 5, 6};
    outline->AddChild(Make<VEKPrtLineElt>(Point(5, 6), Point(5, 36)).Get());
    outline->AddChild(Make<VEKPrtLineElt>(Point(5, 36), Point(24, 36)).Get());
    outline->AddChild(Make<VEKPrtLineElt>(Point(24, 36), Point(44, 36)).Get());
    outline->AddChild(Make<VEKPrtLineElt>(Point(44, 36), Point(44, 16)).Get());
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
    c.AddPainted(figure, c.palette.ink, c.palette.blue, VEKPrtDrawBoth, 0.6);
    c.Text(47, 1.4, "three VEKPrtClosedFigureRegionElt", 1.9, VEKPrintTextAnchorBaselineRight);
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
