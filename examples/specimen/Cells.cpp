// The drawings of the cells: first a cell for each element class, then one for each attribute.
#include <cmath>

#include "Cell.h"
#include "VEKPixelImage.h"
#include "VEKPrtValues.h"

namespace {

using vekprt::NameOf;

using S = StrokeAttributes;
using F = FillAttributes;
using T = TextAttributes;

constexpr unsigned char g_transparencies[] = {64, 128, 191, 255};

Point Polar(double iX, double iY, double iRadius, double iDegrees) {
    return {iX + iRadius * std::cos(iDegrees * pi / 180), iY + iRadius * std::sin(iDegrees * pi / 180)};
}

// An element whose points have these coordinates.
template <class Element>
VEKRef<Element> Through(const std::vector<double>& iCoordinates) {
    return Make<Element>(iCoordinates.data(), static_cast<int>(iCoordinates.size() / 2));
}

// Five corners, joined in steps of one (a pentagon) or of two (a star).
VEKRef<VEKPrtPolygonElt> FiveCorners(double iX, double iY, double iRadius, int iStep) {
    std::vector<double> coordinates;
    for (int i = 0; i < 5; ++i) {
        const Point corner = Polar(iX, iY, iRadius, 90 - 72 * iStep * i);
        coordinates.insert(coordinates.end(), {corner.GetX(), corner.GetY()});
    }
    return Through<VEKPrtPolygonElt>(coordinates);
}

// Control points and the polygon through them.
void DrawConstruction(const Cell& iCell, const std::vector<double>& iPoints) {
    static const float dashes[] = {1.0F, 0.7F};
    StrokeAttributes stroke = Stroke(grey, 0.15);
    stroke.SetStrokeTypePattern(dashes, 2);
    iCell.Add(Through<VEKPrtPolylineElt>(iPoints), stroke);
    for (std::size_t i = 0; i < iPoints.size(); i += 2)
        iCell.Marks({{iPoints[i], iPoints[i + 1]}});
}
template <class Curve>
void DrawCurve(const Cell& iCell, const std::vector<double>& iPoints) {
    DrawConstruction(iCell, iPoints);
    iCell.Add(Through<Curve>(iPoints), Stroke(ink, 0.7));
}

} // namespace

std::vector<CellContent> Cells() {
    std::vector<CellContent> cells;
    const auto add = [&](const char* iName, const char* iHeading, const char* iSubject,
                         void (*iDraw)(const Cell&)) {
        cells.push_back({iName, iHeading, iSubject, iDraw});
    };

    // The element classes.
    add("line", "Line", "VEKPrtLineElt", [](const Cell& iCell) {
        iCell.Line({6, 8}, {44, 34}, Stroke(ink, 0.7));
        iCell.Marks({{6, 8}, {44, 34}});
        iCell.Texts({{8.5, 5.6, "start"}, {41.5, 35.2, "end", right}});
    });

    add("rectangle", "Rectangle", "VEKPrtRectangleElt", [](const Cell& iCell) {
        iCell.Add(Box(8, 8, 42, 34), Stroke(ink), Fill(ochre));
        iCell.Marks({{8, 8}, {42, 34}});
        iCell.Texts({{10, 9.6, "first corner"}, {40, 31, "second corner", right}});
    });

    add("circle", "Circle", "VEKPrtCircleElt", [](const Cell& iCell) {
        iCell.Add(Circle(25, 21, 15.0), Stroke(ink), Fill(teal));
        iCell.Line({25, 21}, {37, 30}, Stroke(paper, 0.25));
        iCell.Marks({{25, 21}});
    });

    add("circular-arc", "Circular arc", "VEKPrtCircularArcElt", [](const Cell& iCell) {
        iCell.Add(Make<VEKPrtCircularArcElt>(Point(25, 19), 16.0, 20.0F, 250.0F), Stroke(ink), Fill(faint));
        for (const double angle : {20.0, 250.0})
            iCell.Line({25, 19}, Polar(25, 19, 16, angle), Stroke(red, 0.15));
        iCell.Texts({{42, 25, "20°"}, {18.5, 1.6, "250°", right}});
        iCell.Marks({{25, 19}});
    });

    add("ellipse", "Ellipse", "VEKPrtEllipseElt", [](const Cell& iCell) {
        iCell.Add(Make<VEKPrtEllipseElt>(Point(25, 21), 19.0, 9.0, 25.0F), Stroke(ink), Fill(blue));
        iCell.Line(Polar(25, 21, 19, 25), Polar(25, 21, -19, 25), Stroke(paper, 0.2));
        iCell.Text({25, 2.6, "slope 25°", centre});
    });

    add("elliptical-arc", "Elliptical arc", "VEKPrtEllipticalArcElt", [](const Cell& iCell) {
        iCell.Add(Make<VEKPrtEllipticalArcElt>(Point(25, 22), 19.0, 10.0, 45.0F, 300.0F, 25.0F), Stroke(ink),
                  Fill(faint));
        iCell.Marks({{25, 22}});
        iCell.Text({25, 2.6, "45° to 300°, slope 25°", centre});
    });

    add("polyline", "Polyline", "VEKPrtPolylineElt", [](const Cell& iCell) {
        iCell.Add(Through<VEKPrtPolylineElt>({5, 10, 12, 32, 19, 10, 26, 32, 33, 10, 40, 32, 45, 16}),
                  Stroke(ink, 0.6));
    });

    add("polygon", "Polygon", "VEKPrtPolygonElt",
        [](const Cell& iCell) { iCell.Add(FiveCorners(25, 19.5, 17, 1), Stroke(ink), Fill(red)); });

    add("disjoint-polyline", "Disjoint polyline", "VEKPrtDisjointPolylineElt", [](const Cell& iCell) {
        std::vector<double> points;
        for (int i = 0; i < 24; ++i) {
            const int angle = i / 2 * 30;
            const Point end = Polar(25, 21, i % 2 ? 17 : 8, angle);
            points.insert(points.end(), {end.GetX(), end.GetY()});
        }
        iCell.Add(Through<VEKPrtDisjointPolylineElt>(points), Stroke(teal, 0.9));
    });

    add("poly-polygon", "Poly-polygon", "VEKPrtPolyPolygonElt", [](const Cell& iCell) {
        static const double points[] = {5,  6,  45, 6,  45, 36, 5,  36, 10, 11,   22,
                                        11, 22, 31, 10, 31, 27, 11, 40, 11, 33.5, 31};
        static const int counts[] = {4, 4, 3};
        iCell.Add(Make<VEKPrtPolyPolygonElt>(points, counts, 3), Stroke(ink), Fill(ochre));
    });

    add("cubic-bezier", "Cubic Béziers", "VEKPrtPolyCubicBezierElt", [](const Cell& iCell) {
        DrawCurve<VEKPrtPolyCubicBezierElt>(iCell, {4, 19, 8, 38, 20, 38, 25, 20, 30, 2, 42, 2, 46, 21});
    });

    add("quadratic-bezier", "Quadratic Béziers", "VEKPrtPolyQuadraticBezierElt", [](const Cell& iCell) {
        DrawCurve<VEKPrtPolyQuadraticBezierElt>(iCell, {4, 8, 15, 38, 25, 20, 35, 2, 46, 34});
    });

    // A full circle, which takes a rational curve, and a part of an open cubic by its bounds.
    add("nurbs", "NURBS", "VEKPrtNURBSElt", [](const Cell& iCell) {
        const double s = std::sqrt(0.5), weights[] = {1, s, 1, s, 1, s, 1, s, 1};
        const std::vector<double> circle = {24, 26, 24, 36, 14, 36, 4,  36, 4,
                                            26, 4,  16, 14, 16, 24, 16, 24, 26};
        static const double circleKnots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
        DrawConstruction(iCell, circle);
        iCell.Add(Make<VEKPrtNURBSElt>(3, 9, circle.data(), circleKnots, 0.0F, 1.0F, weights),
                  Stroke(ink, 0.7));
        static const double open[] = {20, 6, 28, 20, 34, 3, 40, 3, 47, 12, 43, 30},
                            ones[] = {1, 1, 1, 1, 1, 1};
        static const double openKnots[] = {0, 0, 0, 0, 1.0 / 3, 2.0 / 3, 1, 1, 1, 1};
        iCell.Add(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.0F, 1.0F, ones), Stroke(grey, 0.2));
        iCell.Add(Make<VEKPrtNURBSElt>(4, 6, open, openKnots, 0.25F, 0.75F, ones), Stroke(red, 0.9));
        iCell.Text({47, 36, "bounds ¼ to ¾", right});
    });

    add("marker", "Markers by style", "VEKPrtMarkerElt", [](const Cell& iCell) {
        for (int style = 0; style < 8; ++style) {
            const double x = 8 + 11.3 * (style % 4), y = style < 4 ? 30 : 13;
            iCell.Marker({x, y}, style, 6, Stroke(ink));
            iCell.Text({x, y - 7, std::to_string(style), centre});
        }
    });

    add("text", "Text", "VEKPrtTextElt", [](const Cell& iCell) {
        iCell.Text({25, 23, "Äg", centre, 20}, &T::SetFont, iCell.fonts.serif.get());
        iCell.Line({6, 23}, {44, 23}, Stroke(red, 0.15));
        iCell.Text({25, 9, "Zwölf Boxkämpfer", centre, 4});
        iCell.Text({25, 3.5, "σ = √(Δx² + Δy²)", centre, 3}, &T::SetFont, iCell.fonts.mono.get());
    });

    add("bitmap", "Bitmap", "VEKPrtBitmapImageElt", [](const Cell& iCell) {
        // Ripples around a point off the middle, so that a wrong orientation shows.
        constexpr int size = 96;
        const auto image = Make<VEKPixelImage>(size, size);
        for (int i = 0; i < size * size; ++i) {
            const int x = i % size, y = i / size;
            const double r = std::hypot(1.0 * x / size - 0.3, 1.0 * y / size - 0.35);
            const double height = std::sin(18 * r) / (1 + 2 * r);
            const auto shade = [&](double iMiddle, double iRange) {
                return static_cast<unsigned char>(iMiddle + iRange * height);
            };
            image->SetPixel(x, y, shade(128, 112), shade(157, 67), shade(155, 35));
        }
        iCell.Add(Make<VEKPrtBitmapImageElt>(Point(5, 6), 26.0, 30.0, 0.0, image.Get()));
        iCell.Add(Make<VEKPrtBitmapImageElt>(Point(38.5, 9), 11.0, 11.0, 30.0, image.Get()));
        iCell.Text({40.5, 28, "turned 30°", centre});
        iCell.Marks({{38.5, 9}});
    });

    add("group", "Group with link", "VEKPrtGroupElt", [](const Cell& iCell) {
        const Cell inner = iCell.Group(Place(25, 21, 12.0F));
        inner.group.SetTitle("A group with a link");
        inner.group.SetGroupAttributes(With(VEKPrtGroupAttributes(), &VEKPrtGroupAttributes::SetLinkURI,
                                            VEKPrintLinkURI("https://example.org/?sheet=1&cell=group")));
        inner.Add(Box(-18, -9, 18, 9), Stroke(blue), Fill(faint));
        inner.Add(Circle(-12, 0, 4.0), Stroke(ink), Fill(ochre));
        inner.Texts({{-5, -1, "one transform,", left, 2.6}, {-5, -4.6, "one link", left, 2.6}});
    });

    add("pattern", "Pattern", "VEKPrtPatternElt", [](const Cell& iCell) {
        // The symbol's box is the area that the pattern fills.
        const auto panel = Make<VEKPrtSymbolElt>(Point(5, 5), 40.0, 32.0);
        const auto tile = Make<VEKPrtPatternElt>(Point(5, 5), 8.0, 8.0);
        AddTo(*tile, Circle(9, 9, 2.4), Fill(teal), VEKPrtDrawInterior);
        for (const double x : {5.0, 13.0})
            AddTo(*tile, Make<VEKPrtLineElt>(Point(x, 5), Point(18 - x, 13)), Stroke(ochre));
        AddTo(*panel, tile);
        iCell.Add(panel);
        iCell.Add(Box(5, 5, 13, 13), Stroke(red, 0.4), VEKPrtDrawOutline);
    });

    // A stamp that extends beyond its box and is clipped to it; three groups share the one symbol.
    add("symbol", "Symbol", "VEKPrtSymbolElt", [](const Cell& iCell) {
        const auto symbol = Make<VEKPrtSymbolElt>(Point(0, 0), 12.0, 12.0);
        static const Colour colours[] = {red, ochre, teal, red};
        for (int i = 0; i < 4; ++i) {
            const int column = i % 2, row = i / 2;
            AddTo(*symbol, Circle(12 * column, 12 * row, 6.5), Stroke(ink, 0.3), Fill(colours[i]));
        }
        for (const auto& place : {Place(4, 18, 0.0F, 1.6), Place(27, 20), Place(38, 4, 30.0F)})
            iCell.Group(place).Add(symbol);
        iCell.Texts({{5, 6, "one symbol,", left, 2.6}, {5, 2.6, "placed three times", left, 2.6}});
    });

    // A bracket: an outline of lines and curves, a slot of arcs and lines, and a round hole.
    add("closed-figure", "Closed figure of regions", "VEKPrtClosedFigureElt", [](const Cell& iCell) {
        const auto line = [](double iX, double iFromY, double iToX, double iToY) {
            return Make<VEKPrtLineElt>(Point(iX, iFromY), Point(iToX, iToY));
        };
        const std::vector<VEKRef<VEKPrtGraphicPrimitiveElt>> regions[] = {
            {line(5, 6, 5, 36), line(5, 36, 44, 36), line(44, 36, 44, 16),
             Through<VEKPrtPolyCubicBezierElt>({44, 16, 44, 6, 30, 12, 5, 6})},
            {Make<VEKPrtCircularArcElt>(Point(14, 19), 4.0, 180.0F, 360.0F), line(18, 19, 18, 27),
             Make<VEKPrtCircularArcElt>(Point(14, 27), 4.0, 0.0F, 180.0F)},
            {Circle(33, 25, 6.0)}};
        const auto figure = Make<VEKPrtClosedFigureElt>();
        for (const auto& parts : regions) {
            const auto region = Make<VEKPrtClosedFigureRegionElt>();
            for (const auto& part : parts)
                AddTo(*region, part);
            AddTo(*figure, region);
        }
        iCell.Add(figure, Stroke(ink, 0.6), Fill(blue));
        iCell.Text({47, 1.4, "three VEKPrtClosedFigureRegionElt", right, 1.9});
    });

    // The attributes.
    add("caps", "Line caps", "SetStrokeCap", [](const Cell& iCell) {
        for (int i = 0; i < 3; ++i) {
            const double y = 33 - 12 * i;
            const auto cap = static_cast<VEKPrintLineAttribute>(VEKPrintLineCapButt + i);
            iCell.Line({19, y}, {42, y}, With(Stroke(teal, 5), &S::SetStrokeCap, cap));
            iCell.Line({19, y}, {42, y}, Stroke(paper, 0.2));
            iCell.Text({4, y, NameOf(cap), middleLeft, 2.6});
        }
        for (const double x : {19.0, 42.0})
            iCell.Line({x, 4}, {x, 38}, Stroke(red, 0.15));
    });

    add("joins", "Line joins", "SetStrokeJoin", [](const Cell& iCell) {
        for (int i = 0; i < 3; ++i) {
            const double x = 9 + 16 * i;
            const auto join = static_cast<VEKPrintLineAttribute>(VEKPrintLineJoinMitre + i);
            for (const auto& stroke : {With(Stroke(blue, 4), &S::SetStrokeJoin, join), Stroke(paper, 0.2)})
                iCell.Add(Through<VEKPrtPolylineElt>({x - 5, 12, x, 30, x + 5, 12}), stroke);
            iCell.Text({x, 4.5, NameOf(join), centre, 2.6});
        }
    });

    add("line-types", "Line types", "SetStrokeType", [](const Cell& iCell) {
        static const char* const names[] = {"solid",        "dashed",    "dotted",   "dash dot",
                                            "dash dot dot", "long dash", "fine dash"};
        for (int type = 0; type < 7; ++type) {
            const double y = 36 - 5.3 * type;
            const auto value = static_cast<VEKPrintLineAttribute>(type);
            iCell.Line({21, y}, {46, y}, With(Stroke(ink), &S::SetStrokeType, value));
            iCell.Text({4, y, names[type], middleLeft});
        }
    });

    add("dash-pattern", "Dash pattern", "SetStrokeTypePattern", [](const Cell& iCell) {
        static const float patterns[][6] = {{6, 2}, {8, 2, 2, 2}, {6, 1.5F, 1.5F, 1.5F, 1.5F, 1.5F}};
        static const char* const names[] = {"6 2", "8 2 2 2", "6 1.5 1.5 1.5 1.5 1.5"};
        for (int i = 0; i < 3; ++i) {
            const double y = 29 - 12 * i;
            StrokeAttributes stroke = Stroke(red, 1.2);
            stroke.SetStrokeTypePattern(patterns[i], static_cast<unsigned char>(2 * i + 2));
            iCell.Line({5, y}, {45, y}, stroke);
            iCell.Text({5, y + 2, names[i]});
        }
    });

    add("widths", "Line widths", "SetStrokeWidth", [](const Cell& iCell) {
        static const char* const widths[] = {"0.13", "0.18", "0.25", "0.35", "0.5", "0.7", "1", "1.4"};
        for (int i = 0; i < 8; ++i) {
            const double y = 36 - 4.6 * i;
            iCell.Line({14, y}, {45, y}, Stroke(ink, std::stod(widths[i])));
            iCell.Text({11, y, widths[i], middleRight});
        }
    });

    // Lines of one width, in groups with different scales.
    add("stroke-styles", "Line styles", "SetStrokeStyle", [](const Cell& iCell) {
        static const char* const names[] = {"0.8, scale 1", "0.8, scale 2.5", "0.8, scale 4"};
        iCell.Texts({{5, 38, "scaled", left, 2.6}, {28, 38, "fixed", left, 2.6}});
        for (int row = 0; row < 3; ++row) {
            const double scale = 1 + 1.5 * row, y = 31 - 11 * row;
            for (const auto style : {VEKPrintLineStyleScaled, VEKPrintLineStyleFixed})
                iCell.Group(Place(style == VEKPrintLineStyleScaled ? 5 : 28, y, 0.0F, scale))
                    .Line({0, 0}, {17 / scale, 0}, With(Stroke(blue, 0.8), &S::SetStrokeStyle, style));
            iCell.Text({25, y - 5, names[row], centre, 1.9});
        }
    });

    add("stroke-transparency", "Stroke transparency", "SetStrokeColourTransparency", [](const Cell& iCell) {
        iCell.Add(Box(5, 18, 45, 24), Fill(ink), VEKPrtDrawInterior);
        double x = 10;
        for (const unsigned char value : g_transparencies) {
            iCell.Line({x, 9}, {x, 36}, With(Stroke(red, 5), &S::SetStrokeColourTransparency, value));
            iCell.Text({x, 4, std::to_string(value), centre});
            x += 10;
        }
    });

    add("fill-transparency", "Fill transparency", "SetFillColourTransparency", [](const Cell& iCell) {
        double angle = 90;
        for (const Colour colour : {red, ochre, teal}) {
            iCell.Add(Make<VEKPrtCircleElt>(Polar(25, 21, 7, angle), 11.0),
                      With(Fill(colour), &F::SetFillColourTransparency, 140), VEKPrtDrawInterior);
            angle += 120;
        }
        iCell.Text({46, 2.6, "140 of 255", right});
    });

    add("fill-rules", "Fill rules", "SetFillRule", [](const Cell& iCell) {
        for (const auto rule : {VEKPrtFillNonZero, VEKPrtFillEvenOdd}) {
            const double x = rule == VEKPrtFillNonZero ? 13 : 37;
            iCell.Add(FiveCorners(x, 23, 11, 2), Stroke(ink, 0.4), With(Fill(ochre), &F::SetFillRule, rule));
            iCell.Text({x, 4.5, NameOf(rule), centre, 2.6});
        }
    });

    // One tile of pixels along two pairs of vectors, upright and slanting.
    add("pattern-fill", "Pattern fill", "SetPattern", [](const Cell& iCell) {
        const auto tile = Make<VEKPixelImage>(8, 8);
        for (int i = 0; i < 64; ++i) {
            const bool isInk = (i % 8 + i / 8) % 8 < 2 || i % 8 == 0;
            tile->SetPixel(i % 8, i / 8, isInk ? 0 : 255, isInk ? 121 : 250, isInk ? 140 : 235);
        }
        const auto panel = [&](double iX, const Vector& iFirst, const Vector& iSecond, const char* iText) {
            auto fill = With(F(), &F::SetFillStyle, VEKPrtFillPattern, &F::SetPatternRefPoint, Point(iX, 10));
            fill.SetPattern(tile.Get(), iFirst, iSecond);
            iCell.Add(Box(iX, 10, iX + 19, 36), Stroke(ink, 0.4), fill);
            iCell.Text({iX + 9.5, 4.5, iText, centre});
        };
        panel(5, Vector(4, 0), Vector(0, 4), "(4, 0) (0, 4)");
        panel(27, Vector(5, 2), Vector(-1, 4), "(5, 2) (−1, 4)");
    });

    add("draw-styles", "Draw styles", "SetDrawStyle", [](const Cell& iCell) {
        for (int i = 0; i < 3; ++i) {
            const double x = 9 + 16 * i;
            const auto style = static_cast<VEKPrtDrawStyle>(i);
            iCell.Add(Circle(x, 28, 6.5), Stroke(ink, 0.8), Fill(teal), style);
            const auto letter = iCell.Text({x, 9.5, "R", centre, 11});
            Set(*letter, Stroke(ink, 0.3), Fill(teal), style);
            iCell.Text({x, 3.5, NameOf(style), centre});
        }
    });

    add("anchors", "Text anchors", "SetAnchor", [](const Cell& iCell) {
        static const char* const names[] = {"baseline", "middle", "top"};
        for (int i = 0; i < 9; ++i) {
            const int column = i % 3, row = i / 3;
            const double x = 5 + 20 * column, y = 36 - 13 * row;
            iCell.Text({x, y, "Hxg", static_cast<Anchor>(VEKPrintTextAnchorBaselineLeft + i), 4});
            iCell.Marks({{x, y}});
            if (column == 1) iCell.Text({25, y - 6, names[row], centre, 1.9});
        }
    });

    add("weights", "Text weights", "SetWeight", [](const Cell& iCell) {
        static const char* const names[] = {"Light", "Regular", "Medium", "Bold", "Black"};
        iCell.Text({25, 38.5, "each as near as the font has it", centre, 1.9});
        for (int i = 0; i < 5; ++i)
            iCell.Text({25, 31.0 - 7 * i, names[i], centre, 5}, &T::SetWeight,
                       static_cast<VEKPrintTextAttribute>(VEKPrintTextWeightLight + i));
    });

    add("slant-direction", "Slant and direction", "SetSlant, SetDirection", [](const Cell& iCell) {
        iCell.Text({4, 30, "slant 15", left, 4}, &T::SetSlant, 15.0F);
        iCell.Text({27, 30, "slant −15", left, 4}, &T::SetSlant, -15.0F);
        iCell.Marks({{25, 6}});
        for (const int angle : {0, 45, 90, 135}) {
            const Point start = Polar(25, 6, 5, angle);
            iCell.Text({start.GetX(), start.GetY(), std::to_string(angle) + "°", middleLeft, 3.4},
                       &T::SetDirection, static_cast<float>(angle));
        }
        iCell.Text({46, 1.6, "direction", right});
    });

    add("spacing-expansion", "Spacing and expansion", "SetExtraSpacing, SetExpansion", [](const Cell& iCell) {
        iCell.Text({4, 35, "spacing 0", left, 3}, &T::SetExtraSpacing, 0);
        iCell.Text({4, 28.8, "spacing 1", left, 3}, &T::SetExtraSpacing, 1);
        iCell.Text({4, 22.6, "spacing 2", left, 3}, &T::SetExtraSpacing, 2);
        iCell.Text({4, 16.4, "expansion 1", left, 3}, &T::SetExpansion, 1);
        iCell.Text({4, 10.2, "expansion 0.6", left, 3}, &T::SetExpansion, 0.6);
        iCell.Text({4, 4, "expansion 1.6", left, 3}, &T::SetExpansion, 1.6);
    });

    add("writing-mode", "Writing mode", "SetWritingMode", [](const Cell& iCell) {
        iCell.Text({8, 35, "VERTICAL", centre, 4.2}, &T::SetWritingMode, VEKPrtTextVertical);
        iCell.Text({16, 35, "ΣΦΩ", centre, 4.2}, &T::SetWritingMode, VEKPrtTextVertical);
        iCell.Texts({{22, 30, "horizontal", left, 4.4}, {22, 24, "mode 0 and mode 1"}});
    });

    // The same two transforms in both orders: the first is the outermost.
    add("transform-order", "Transform order", "AddRotation, AddTranslation", [](const Cell& iCell) {
        const Cell axes = iCell.Group(Place(5, 6));
        const auto box = [&](const Transform& iTransform, Colour iStroke, Colour iFill) {
            axes.Add(Box(0, 0, 12, 6), iTransform, Stroke(iStroke), Fill(iFill));
        };
        box(With(Transform(), &Transform::AddRotation, 30.0F, &Transform::AddTranslation, Vector(24, 0)), ink,
            red);
        box(With(Transform(), &Transform::AddTranslation, Vector(24, 0), &Transform::AddRotation, 30.0F), ink,
            teal);
        box(Transform(), grey, faint);
        axes.Line({0, 0}, {42, 0}, Stroke(grey, 0.15));
        axes.Line({0, 0}, {0, 22}, Stroke(grey, 0.15));
        axes.Marks({{0, 0}});
        iCell.Texts({{4, 39, "red: rotation 30°, translation (24, 0)", left, 2},
                     {4, 36, "green: translation (24, 0), rotation 30°", left, 2}});
    });

    add("scale-skew-matrix", "Scale, skew, matrix", "AddScaleX … AddMatrix", [](const Cell& iCell) {
        const auto box = [&](double iX, double iY, const char* iText, auto iSet, const auto& iValue) {
            iCell.Add(Box(0, 0, 8, 8), With(Place(iX, iY), iSet, iValue), Stroke(ink), Fill(blue));
            iCell.Text({iX, iY - 4, iText, left, 2});
        };
        box(4, 25, "scale x 1.5", &Transform::AddScaleX, 1.5);
        box(30, 25, "scale y 1.5", &Transform::AddScaleY, 1.5);
        box(4, 7, "skew x 30", &Transform::AddSkewX, 30.0F);
        box(20, 7, "skew y 20", &Transform::AddSkewY, 20.0F);
        box(37, 8, "matrix", &Transform::AddMatrix, VEKMath2x2Matrix(0.9, 0.4, -0.2, 1.1));
    });
    return cells;
}
