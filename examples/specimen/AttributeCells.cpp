// The cells that show an attribute each.
#include <cmath>
#include <string>

#include "Cell.h"
#include "VEKPixelImage.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"

namespace {

using StrokeAttributes = VEKPrtStrokeAttributes;
using TextAttributes = VEKPrtTextAttributes;

void DrawCaps(const Cell& iCell) {
    static const char* const names[] = {"butt", "round", "square"};
    static const VEKPrintLineAttribute caps[] = {VEKPrintLineCapButt, VEKPrintLineCapRound,
                                                 VEKPrintLineCapSquare};
    for (int i = 0; i < 3; ++i) {
        const double y = 33 - 12 * i;
        iCell.Line(19, y, 42, y, With(Stroke(teal, 5), &StrokeAttributes::SetStrokeCap, caps[i]));
        iCell.Line(19, y, 42, y, paper, 0.2);
        iCell.Text(4, y, names[i], 2.6, VEKPrintTextAnchorMiddleLeft);
    }
    for (const double x : {19.0, 42.0})
        iCell.Line(x, 4, x, 38, red);
}

void DrawJoins(const Cell& iCell) {
    static const char* const names[] = {"mitre", "round", "bevel"};
    static const VEKPrintLineAttribute joins[] = {VEKPrintLineJoinMitre, VEKPrintLineJoinRound,
                                                  VEKPrintLineJoinBevel};
    for (int i = 0; i < 3; ++i) {
        const double x = 9 + 16 * i;
        const double points[] = {x - 5, 12, x, 30, x + 5, 12};
        iCell.AddStroked(Make<VEKPrtPolylineElt>(points, 3),
                         With(Stroke(blue, 4), &StrokeAttributes::SetStrokeJoin, joins[i]));
        iCell.AddStroked(Make<VEKPrtPolylineElt>(points, 3), Stroke(paper, 0.2));
        iCell.Centred(x, 4.5, names[i], 2.6);
    }
}

void DrawLineTypes(const Cell& iCell) {
    static const char* const names[] = {"solid",        "dashed",    "dotted",   "dash dot",
                                        "dash dot dot", "long dash", "fine dash"};
    for (int type = 0; type < 7; ++type) {
        const double y = 36 - 5.3 * type;
        const auto value = static_cast<VEKPrintLineAttribute>(type);
        iCell.Line(21, y, 46, y, With(Stroke(ink, 0.5), &StrokeAttributes::SetStrokeType, value));
        iCell.Text(4, y, names[type], 2.2, VEKPrintTextAnchorMiddleLeft);
    }
}

void DrawDashPattern(const Cell& iCell) {
    static const float patterns[][6] = {
        {6, 2, 0, 0, 0, 0}, {8, 2, 2, 2, 0, 0}, {6, 1.5F, 1.5F, 1.5F, 1.5F, 1.5F}};
    static const unsigned char lengths[] = {2, 4, 6};
    static const char* const names[] = {"6 2", "8 2 2 2", "6 1.5 1.5 1.5 1.5 1.5"};
    for (int i = 0; i < 3; ++i) {
        const double y = 29 - 12 * i;
        StrokeAttributes stroke = Stroke(red, 1.2);
        stroke.SetStrokeTypePattern(patterns[i], lengths[i]);
        iCell.Line(5, y, 45, y, stroke);
        iCell.Text(5, y + 2, names[i]);
    }
}

void DrawWidths(const Cell& iCell) {
    static const double widths[] = {0.13, 0.18, 0.25, 0.35, 0.5, 0.7, 1.0, 1.4};
    static const char* const names[] = {"0.13", "0.18", "0.25", "0.35", "0.5", "0.7", "1", "1.4"};
    for (int i = 0; i < 8; ++i) {
        const double y = 36 - 4.6 * i;
        iCell.Line(14, y, 45, y, ink, widths[i]);
        iCell.Text(11, y, names[i], 2.2, VEKPrintTextAnchorMiddleRight);
    }
}

// Lines of one width, as they are and in groups that are enlarged.
void DrawStrokeStyles(const Cell& iCell) {
    static const char* const names[] = {"0.8, scale 1", "0.8, scale 2.5", "0.8, scale 4"};
    iCell.Text(5, 38, "scaled", 2.6);
    iCell.Text(28, 38, "fixed", 2.6);
    for (int row = 0; row < 3; ++row) {
        const double scale = 1 + 1.5 * row, y = 31 - 11 * row;
        for (const auto style : {VEKPrintLineStyleScaled, VEKPrintLineStyleFixed}) {
            const auto group = Make<VEKPrtGroupElt>();
            group->SetTransformAttributes(Place(style == VEKPrintLineStyleScaled ? 5 : 28, y, 0.0F, scale));
            const auto stroke = With(Stroke(blue, 0.8), &StrokeAttributes::SetStrokeStyle, style);
            Cell(iCell.fonts, *group).Line(0, 0, 17 / scale, 0, stroke);
            iCell.Add(group);
        }
        iCell.Centred(25, y - 5, names[row], 1.9);
    }
}

void DrawStrokeTransparency(const Cell& iCell) {
    iCell.AddPainted(Make<VEKPrtRectangleElt>(Point(5, 18), Point(45, 24)), ink, ink, VEKPrtDrawInterior);
    double x = 10;
    for (const int value : {64, 128, 191, 255}) {
        const auto transparency = static_cast<unsigned char>(value);
        iCell.Line(x, 9, x, 36,
                   With(Stroke(red, 5), &StrokeAttributes::SetStrokeColourTransparency, transparency));
        iCell.Centred(x, 4, std::to_string(value));
        x += 10;
    }
}

void DrawFillTransparency(const Cell& iCell) {
    static const Colour colours[] = {red, ochre, teal};
    for (int i = 0; i < 3; ++i) {
        const double angle = pi / 2 + 2 * pi / 3 * i;
        VEKPrtFillAttributes fill = Fill(colours[i]);
        fill.SetFillColourTransparency(140);
        const auto disc =
            Make<VEKPrtCircleElt>(Point(25 + 7 * std::cos(angle), 21 + 7 * std::sin(angle)), 11.0);
        iCell.Add(Painted(disc, Stroke(ink, 0.5), fill, VEKPrtDrawInterior));
    }
    iCell.Right(46, 2.6, "140 of 255");
}

void DrawFillRules(const Cell& iCell) {
    for (int rule = 0; rule < 2; ++rule) {
        const double x = rule == 0 ? 13 : 37;
        double points[10];
        for (int i = 0; i < 5; ++i) {
            points[2 * i] = x + 11 * std::sin(4 * pi * i / 5);
            points[2 * i + 1] = 23 + 11 * std::cos(4 * pi * i / 5);
        }
        VEKPrtFillAttributes fill = Fill(ochre);
        fill.SetFillRule(rule == 0 ? VEKPrtFillNonZero : VEKPrtFillEvenOdd);
        iCell.Add(Painted(Make<VEKPrtPolygonElt>(points, 5), Stroke(ink, 0.4), fill));
        iCell.Centred(x, 4.5, rule == 0 ? "non-zero" : "even-odd", 2.6);
    }
}

// One tile of pixels along two vectors, upright and slanting.
void DrawPatternFill(const Cell& iCell) {
    const auto tile = Make<VEKPixelImage>(8, 8);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool isInk = (x + y) % 8 < 2 || x == 0;
            tile->SetPixel(x, y, isInk ? 0 : 255, isInk ? 121 : 250, isInk ? 140 : 235);
        }
    }
    const auto panel = [&](double iX, const VEKMathVector2D& iFirst, const VEKMathVector2D& iSecond) {
        VEKPrtFillAttributes fill;
        fill.SetFillStyle(VEKPrtFillPattern);
        fill.SetPattern(tile.Get(), iFirst, iSecond);
        fill.SetPatternRefPoint(Point(iX, 10));
        const auto box = Make<VEKPrtRectangleElt>(Point(iX, 10), Point(iX + 19, 36));
        iCell.Add(Painted(box, Stroke(ink, 0.4), fill));
    };
    panel(5, VEKMathVector2D(4, 0), VEKMathVector2D(0, 4));
    panel(27, VEKMathVector2D(5, 2), VEKMathVector2D(-1, 4));
    iCell.Centred(14.5, 4.5, "(4, 0) (0, 4)");
    iCell.Centred(36.5, 4.5, "(5, 2) (−1, 4)");
}

void DrawDrawStyles(const Cell& iCell) {
    static const char* const names[] = {"interior", "outline", "both"};
    for (int i = 0; i < 3; ++i) {
        const double x = 9 + 16 * i;
        const auto style = static_cast<VEKPrtDrawStyle>(i);
        iCell.AddPainted(Make<VEKPrtCircleElt>(Point(x, 28), 6.5), ink, teal, style, 0.8);
        const auto letter = iCell.Centred(x, 9.5, "R", 11);
        letter->SetDrawStyle(style);
        letter->SetStrokeAttributes(Stroke(ink, 0.3));
        letter->SetFillAttributes(Fill(teal));
        iCell.Centred(x, 3.5, names[i]);
    }
}

void DrawAnchors(const Cell& iCell) {
    static const char* const names[] = {"baseline", "middle", "top"};
    for (int row = 0; row < 3; ++row) {
        const double y = 36 - 13 * row;
        for (int column = 0; column < 3; ++column) {
            const double x = 5 + 20 * column;
            const int anchor = VEKPrintTextAnchorBaselineLeft + 3 * row + column;
            iCell.Text(x, y, "Hxg", 4, static_cast<VEKPrintTextAttribute>(anchor));
            iCell.Mark(x, y);
        }
        iCell.Centred(25, y - 6, names[row], 1.9);
    }
}

void DrawWeights(const Cell& iCell) {
    static const char* const names[] = {"Light", "Regular", "Medium", "Bold", "Black"};
    iCell.Centred(25, 38.5, "each as near as the font has it", 1.9);
    for (int i = 0; i < 5; ++i)
        Retouch(iCell.Centred(25, 31 - 7 * i, names[i], 5), &TextAttributes::SetWeight,
                static_cast<VEKPrintTextAttribute>(VEKPrintTextWeightLight + i));
}

void DrawSlantDirection(const Cell& iCell) {
    Retouch(iCell.Text(4, 30, "slant 15", 4), &TextAttributes::SetSlant, 15.0F);
    Retouch(iCell.Text(27, 30, "slant −15", 4), &TextAttributes::SetSlant, -15.0F);
    iCell.Mark(25, 6);
    for (const int angle : {0, 45, 90, 135}) {
        const double x = std::cos(angle * pi / 180), y = std::sin(angle * pi / 180);
        const auto text =
            iCell.Text(25 + 5 * x, 6 + 5 * y, std::to_string(angle) + "°", 3.4, VEKPrintTextAnchorMiddleLeft);
        Retouch(text, &TextAttributes::SetDirection, static_cast<float>(angle));
    }
    iCell.Right(46, 1.6, "direction");
}

void DrawSpacing(const Cell& iCell) {
    struct Row {
        void (TextAttributes::*set)(double);
        double value;
        const char* text;
    };
    static const Row rows[] = {{&TextAttributes::SetExtraSpacing, 0, "spacing 0"},
                               {&TextAttributes::SetExtraSpacing, 1, "spacing 1"},
                               {&TextAttributes::SetExtraSpacing, 2, "spacing 2"},
                               {&TextAttributes::SetExpansion, 1, "expansion 1"},
                               {&TextAttributes::SetExpansion, 0.6, "expansion 0.6"},
                               {&TextAttributes::SetExpansion, 1.6, "expansion 1.6"}};
    double y = 35;
    for (const Row& row : rows) {
        Retouch(iCell.Text(4, y, row.text, 3), row.set, row.value);
        y -= 6.2;
    }
}

void DrawWritingMode(const Cell& iCell) {
    iCell.Text(22, 30, "horizontal", 4.4);
    for (const auto& text : {iCell.Centred(8, 35, "VERTICAL", 4.2), iCell.Centred(16, 35, "ΣΦΩ", 4.2)})
        Retouch(text, &TextAttributes::SetWritingMode, VEKPrtTextVertical);
    iCell.Text(22, 24, "mode 0 and mode 1");
}

// The same two transforms in both orders: the first is the outermost.
void DrawTransformOrder(const Cell& iCell) {
    const auto group = Make<VEKPrtGroupElt>();
    group->SetTransformAttributes(Place(5, 6));
    iCell.Add(group);
    const Cell axes(iCell.fonts, *group);
    for (int order = 0; order < 2; ++order) {
        VEKPrtTransformAttributes transform;
        if (order == 0) transform.AddRotation(30.0F);
        transform.AddTranslation(VEKMathVector2D(24, 0));
        if (order == 1) transform.AddRotation(30.0F);
        const auto box = Make<VEKPrtRectangleElt>(Point(0, 0), Point(12, 6));
        box->SetTransformAttributes(transform);
        axes.AddPainted(box, ink, order == 0 ? red : teal);
    }
    axes.AddPainted(Make<VEKPrtRectangleElt>(Point(0, 0), Point(12, 6)), grey, faint);
    axes.Line(0, 0, 42, 0, grey);
    axes.Line(0, 0, 0, 22, grey);
    axes.Mark(0, 0);
    iCell.Text(4, 39, "red: rotation 30°, translation (24, 0)", 2);
    iCell.Text(4, 36, "green: translation (24, 0), rotation 30°", 2);
}

void DrawScaleSkewMatrix(const Cell& iCell) {
    struct Item {
        double x, y;
        const char* name;
        void (*add)(VEKPrtTransformAttributes&);
    };
    using Transform = VEKPrtTransformAttributes;
    static const Item items[] = {
        {4, 25, "scale x 1.5", [](Transform& ioTransform) { ioTransform.AddScaleX(1.5); }},
        {30, 25, "scale y 1.5", [](Transform& ioTransform) { ioTransform.AddScaleY(1.5); }},
        {4, 7, "skew x 30", [](Transform& ioTransform) { ioTransform.AddSkewX(30.0F); }},
        {20, 7, "skew y 20", [](Transform& ioTransform) { ioTransform.AddSkewY(20.0F); }},
        {37, 8, "matrix",
         [](Transform& ioTransform) {
             ioTransform.AddMatrix({0.9, 0.4, -0.2, 1.1});
         }},
    };
    for (const Item& item : items) {
        const auto box = Make<VEKPrtRectangleElt>(Point(0, 0), Point(8, 8));
        Transform transform = Place(item.x, item.y);
        item.add(transform);
        box->SetTransformAttributes(transform);
        iCell.AddPainted(box, ink, blue);
        iCell.Text(item.x, item.y - 4, item.name, 2);
    }
}

} // namespace

const CellContent g_attributeCells[] = {
    {"caps", "Line caps", "SetStrokeCap", DrawCaps},
    {"joins", "Line joins", "SetStrokeJoin", DrawJoins},
    {"line-types", "Line types", "SetStrokeType", DrawLineTypes},
    {"dash-pattern", "Dash pattern", "SetStrokeTypePattern", DrawDashPattern},
    {"widths", "Line widths", "SetStrokeWidth", DrawWidths},
    {"stroke-styles", "Line styles", "SetStrokeStyle", DrawStrokeStyles},
    {"stroke-transparency", "Stroke transparency", "SetStrokeColourTransparency", DrawStrokeTransparency},
    {"fill-transparency", "Fill transparency", "SetFillColourTransparency", DrawFillTransparency},
    {"fill-rules", "Fill rules", "SetFillRule", DrawFillRules},
    {"pattern-fill", "Pattern fill", "SetPattern", DrawPatternFill},
    {"draw-styles", "Draw styles", "SetDrawStyle", DrawDrawStyles},
    {"anchors", "Text anchors", "SetAnchor", DrawAnchors},
    {"weights", "Text weights", "SetWeight", DrawWeights},
    {"slant-direction", "Slant and direction", "SetSlant, SetDirection", DrawSlantDirection},
    {"spacing-expansion", "Spacing and expansion", "SetExtraSpacing, SetExpansion", DrawSpacing},
    {"writing-mode", "Writing mode", "SetWritingMode", DrawWritingMode},
    {"transform-order", "Transform order", "AddRotation, AddTranslation", DrawTransformOrder},
    {"scale-skew-matrix", "Scale, skew, matrix", "AddScaleX … AddMatrix", DrawScaleSkewMatrix},
    {nullptr, nullptr, nullptr, nullptr},
};
