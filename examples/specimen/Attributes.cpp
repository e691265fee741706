// The cells that show an attribute each.
#include <cmath>
#include <string>

#include "Sheet.h"
#include "VEKPixelImage.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"

namespace {

using Point = VEKMathPoint2D;

void DrawCaps(const Cell& c) {
    struct Row {
        VEKPrintLineAttribute cap;
        const char* name;
    };
    double y = 33;
    for (const Row& row : {Row{VEKPrintLineCapButt, "butt"}, Row{VEKPrintLineCapRound, "round"},
                           Row{VEKPrintLineCapSquare, "square"}}) {
        const auto line = Make<VEKPrtLineElt>(Point(19, y), Point(42, y));
        VEKPrtStrokeAttributes stroke = Stroke(c.palette.teal, 5);
        stroke.SetStrokeCap(row.cap);
        line->SetStrokeAttributes(stroke);
        c.Add(line);
        c.Line(19, y, 42, y, c.palette.paper, 0.2);
        c.Text(4, y, row.name, 2.6, VEKPrintTextAnchorMiddleLeft);
        y -= 12;
    }
    for (const double x : {19.0, 42.0})
        c.Line(x, 4, x, 38, c.palette.red);
}

void DrawJoins(const Cell& c) {
    struct Column {
        VEKPrintLineAttribute join;
        const char* name;
    };
    double x = 9;
    for (const Column& column :
         {Column{VEKPrintLineJoinMitre, "mitre"}, Column{VEKPrintLineJoinRound, "round"},
          Column{VEKPrintLineJoinBevel, "bevel"}}) {
        const double points[] = {x - 5, 12, x, 30, x + 5, 12};
        const auto corner = Make<VEKPrtPolylineElt>(points, 3);
        VEKPrtStrokeAttributes stroke = Stroke(c.palette.blue, 4);
        stroke.SetStrokeJoin(column.join);
        corner->SetStrokeAttributes(stroke);
        c.Add(corner);
        c.AddStroked(Make<VEKPrtPolylineElt>(points, 3), c.palette.paper, 0.2);
        c.Text(x, 4.5, column.name, 2.6, VEKPrintTextAnchorBaselineCentre);
        x += 16;
    }
}

void DrawLineTypes(const Cell& c) {
    static const char* const names[] = {"solid",        "dashed",    "dotted",   "dash dot",
                                        "dash dot dot", "long dash", "fine dash"};
    for (int type = 0; type < 7; ++type) {
        const double y = 36 - 5.3 * type;
        const auto line = Make<VEKPrtLineElt>(Point(21, y), Point(46, y));
        VEKPrtStrokeAttributes stroke = Stroke(c.palette.ink, 0.5);
        stroke.SetStrokeType(static_cast<VEKPrintLineAttribute>(type));
        line->SetStrokeAttributes(stroke);
        c.Add(line);
        c.Text(4, y, names[type], 2.2, VEKPrintTextAnchorMiddleLeft);
    }
}

void DrawDashPattern(const Cell& c) {
    static const float patterns[][6] = {
        {6, 2, 0, 0, 0, 0}, {8, 2, 2, 2, 0, 0}, {6, 1.5F, 1.5F, 1.5F, 1.5F, 1.5F}};
    static const unsigned char lengths[] = {2, 4, 6};
    static const char* const names[] = {"6 2", "8 2 2 2", "6 1.5 1.5 1.5 1.5 1.5"};
    for (int i = 0; i < 3; ++i) {
        const double y = 29 - 12 * i;
        const auto line = Make<VEKPrtLineElt>(Point(5, y), Point(45, y));
        VEKPrtStrokeAttributes stroke = Stroke(c.palette.red, 1.2);
        stroke.SetStrokeTypePattern(patterns[i], lengths[i]);
        line->SetStrokeAttributes(stroke);
        c.Add(line);
        c.Text(5, y + 2, names[i]);
    }
}

void DrawWidths(const Cell& c) {
    static const double widths[] = {0.13, 0.18, 0.25, 0.35, 0.5, 0.7, 1.0, 1.4};
    static const char* const names[] = {"0.13", "0.18", "0.25", "0.35", "0.5", "0.7", "1", "1.4"};
    for (int i = 0; i < 8; ++i) {
        const double y = 36 - 4.6 * i;
        c.Line(14, y, 45, y, c.palette.ink, widths[i]);
        c.Text(11, y, names[i], 2.2, VEKPrintTextAnchorMiddleRight);
    }
}

// Lines of one width, as they are and in groups that are enlarged.
void DrawStrokeStyles(const Cell& c) {
    c.Text(5, 38, "scaled", 2.6);
    c.Text(28, 38, "fixed", 2.6);
    for (int row = 0; row < 3; ++row) {
        const double scale = 1 + 1.5 * row, y = 31 - 11 * row;
        for (int style = 0; style < 2; ++style) {
            const auto group = Make<VEKPrtGroupElt>();
            VEKPrtTransformAttributes transform;
            transform.AddTranslation(VEKMathVector2D(style == 0 ? 5 : 28, y));
            transform.AddScaleX(scale);
            transform.AddScaleY(scale);
            group->SetTransformAttributes(transform);
            const auto line = Make<VEKPrtLineElt>(Point(0, 0), Point(17 / scale, 0));
            VEKPrtStrokeAttributes stroke = Stroke(c.palette.blue, 0.8);
            stroke.SetStrokeStyle(style == 0 ? VEKPrintLineStyleScaled : VEKPrintLineStyleFixed);
            line->SetStrokeAttributes(stroke);
            group->AddChild(line.Get());
            c.Add(group);
        }
        static const char* const names[] = {"0.8, scale 1", "0.8, scale 2.5", "0.8, scale 4"};
        c.Text(25, y - 5, names[row], 1.9, VEKPrintTextAnchorBaselineCentre);
    }
}

void DrawStrokeTransparency(const Cell& c) {
    c.AddPainted(Make<VEKPrtRectangleElt>(Point(5, 18), Point(45, 24)), c.palette.ink, c.palette.ink,
                 VEKPrtDrawInterior);
    static const int values[] = {64, 128, 191, 255};
    for (int i = 0; i < 4; ++i) {
        const double x = 10 + 10 * i;
        const auto line = Make<VEKPrtLineElt>(Point(x, 9), Point(x, 36));
        VEKPrtStrokeAttributes stroke = Stroke(c.palette.red, 5);
        stroke.SetStrokeColourTransparency(static_cast<unsigned char>(values[i]));
        line->SetStrokeAttributes(stroke);
        c.Add(line);
        c.Text(x, 4, std::to_string(values[i]).c_str(), 2.2, VEKPrintTextAnchorBaselineCentre);
    }
}

void DrawFillTransparency(const Cell& c) {
    const unsigned colours[] = {c.palette.red, c.palette.ochre, c.palette.teal};
    for (int i = 0; i < 3; ++i) {
        const double angle = 1.5707963 + 2.0943951 * i;
        const auto disc =
            Make<VEKPrtCircleElt>(Point(25 + 7 * std::cos(angle), 21 + 7 * std::sin(angle)), 11.0);
        VEKPrtFillAttributes fill = Fill(colours[i]);
        fill.SetFillColourTransparency(140);
        disc->SetFillAttributes(fill);
        disc->SetDrawStyle(VEKPrtDrawInterior);
        c.Add(disc);
    }
    c.Text(46, 2.6, "140 of 255", 2.2, VEKPrintTextAnchorBaselineRight);
}

void DrawFillRules(const Cell& c) {
    for (int rule = 0; rule < 2; ++rule) {
        const double x = rule == 0 ? 13 : 37;
        double points[10];
        for (int i = 0; i < 5; ++i) {
            points[2 * i] = x + 11 * std::sin(2 * 3.14159265358979 * 2 * i / 5);
            points[2 * i + 1] = 23 + 11 * std::cos(2 * 3.14159265358979 * 2 * i / 5);
        }
        const auto star = Make<VEKPrtPolygonElt>(points, 5);
        VEKPrtFillAttributes fill = Fill(c.palette.ochre);
        fill.SetFillRule(rule == 0 ? VEKPrtFillNonZero : VEKPrtFillEvenOdd);
        star->SetFillAttributes(fill);
        star->SetStrokeAttributes(Stroke(c.palette.ink, 0.4));
        star->SetDrawStyle(VEKPrtDrawBoth);
        c.Add(star);
        c.Text(x, 4.5, rule == 0 ? "non-zero" : "even-odd", 2.6, VEKPrintTextAnchorBaselineCentre);
    }
}

// One tile of pixels along two vectors, upright and slanting.
void DrawPatternFill(const Cell& c) {
    const auto tile = VEKRef<VEKPixelImage>::Adopt(new VEKPixelImage(8, 8));
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool ink = (x + y) % 8 < 2 || x == 0;
            tile->SetPixel(x, y, ink ? 0 : 255, ink ? 121 : 250, ink ? 140 : 235);
        }
    }
    const auto panel = [&](double iX, const VEKMathVector2D& iFirst, const VEKMathVector2D& iSecond) {
        const auto rectangle = Make<VEKPrtRectangleElt>(Point(iX, 10), Point(iX + 19, 36));
        VEKPrtFillAttributes fill;
        fill.SetFillStyle(VEKPrtFillPattern);
        fill.SetPattern(tile.Get(), iFirst, iSecond);
        fill.SetPatternRefPoint(Point(iX, 10));
        rectangle->SetFillAttributes(fill);
        rectangle->SetStrokeAttributes(Stroke(c.palette.ink, 0.4));
        rectangle->SetDrawStyle(VEKPrtDrawBoth);
        c.Add(rectangle);
    };
    panel(5, VEKMathVector2D(4, 0), VEKMathVector2D(0, 4));
    panel(27, VEKMathVector2D(5, 2), VEKMathVector2D(-1, 4));
    c.Text(14.5, 4.5, "(4, 0) (0, 4)", 2.2, VEKPrintTextAnchorBaselineCentre);
    c.Text(36.5, 4.5, "(5, 2) (−1, 4)", 2.2, VEKPrintTextAnchorBaselineCentre);
}

void DrawDrawStyles(const Cell& c) {
    static const char* const names[] = {"interior", "outline", "both"};
    for (int style = 0; style < 3; ++style) {
        const double x = 9 + 16 * style;
        c.AddPainted(Make<VEKPrtCircleElt>(Point(x, 28), 6.5), c.palette.ink, c.palette.teal,
                     static_cast<VEKPrtDrawStyle>(style), 0.8);
        const auto letter = c.Text(x, 9.5, "R", 11, VEKPrintTextAnchorBaselineCentre);
        letter->SetDrawStyle(static_cast<VEKPrtDrawStyle>(style));
        letter->SetStrokeAttributes(Stroke(c.palette.ink, 0.3));
        letter->SetFillAttributes(Fill(c.palette.teal));
        c.Text(x, 3.5, names[style], 2.2, VEKPrintTextAnchorBaselineCentre);
    }
}

void DrawAnchors(const Cell& c) {
    static const char* const names[] = {"baseline", "middle", "top"};
    for (int row = 0; row < 3; ++row) {
        const double y = 36 - 13 * row;
        for (int column = 0; column < 3; ++column) {
            const double x = column == 0 ? 5 : column == 1 ? 25 : 45;
            const int anchor = VEKPrintTextAnchorBaselineLeft + 3 * row + column;
            c.Text(x, y, "Hxg", 4, static_cast<VEKPrintTextAttribute>(anchor));
            c.Mark(x, y);
        }
        c.Text(25, y - 6, names[row], 1.9, VEKPrintTextAnchorBaselineCentre);
    }
}

void DrawWeights(const Cell& c) {
    static const char* const names[] = {"Light", "Regular", "Medium", "Bold", "Black"};
    c.Text(25, 38.5, "each as near as the font has it", 1.9, VEKPrintTextAnchorBaselineCentre);
    for (int i = 0; i < 5; ++i)
        Cell::Retouch(c.Text(25, 31 - 7 * i, names[i], 5, VEKPrintTextAnchorBaselineCentre),
                      [&](VEKPrtTextAttributes& ioText) {
                          ioText.SetWeight(static_cast<VEKPrintTextAttribute>(VEKPrintTextWeightLight + i));
                      });
}

void DrawSlantDirection(const Cell& c) {
    Cell::Retouch(c.Text(4, 30, "slant 15", 4), [](VEKPrtTextAttributes& ioText) { ioText.SetSlant(15.0F); });
    Cell::Retouch(c.Text(27, 30, "slant −15", 4),
                  [](VEKPrtTextAttributes& ioText) { ioText.SetSlant(-15.0F); });
    c.Mark(25, 6);
    for (const int angle : {0, 45, 90, 135}) {
        const double radians = angle * 3.14159265358979 / 180;
        const auto text = c.Text(25 + 5 * std::cos(radians), 6 + 5 * std::sin(radians),
                                 (std::to_string(angle) + "°").c_str(), 3.4, VEKPrintTextAnchorMiddleLeft);
        Cell::Retouch(text,
                      [&](VEKPrtTextAttributes& ioText) { ioText.SetDirection(static_cast<float>(angle)); });
    }
    c.Text(46, 1.6, "direction", 2.2, VEKPrintTextAnchorBaselineRight);
}

void DrawSpacing(const Cell& c) {
    static const double values[] = {0, 1, 2, 1, 0.6, 1.6};
    static const char* const names[] = {"spacing 0",   "spacing 1",     "spacing 2",
                                        "expansion 1", "expansion 0.6", "expansion 1.6"};
    for (int i = 0; i < 6; ++i)
        Cell::Retouch(c.Text(4, 35 - 6.2 * i, names[i], 3), [&](VEKPrtTextAttributes& ioText) {
            if (i < 3) {
                ioText.SetExtraSpacing(values[i]);
            } else {
                ioText.SetExpansion(values[i]);
            }
        });
}

void DrawWritingMode(const Cell& c) {
    c.Text(22, 30, "horizontal", 4.4, VEKPrintTextAnchorBaselineLeft);
    for (int i = 0; i < 2; ++i)
        Cell::Retouch(
            c.Text(8 + 8 * i, 35, i == 0 ? "VERTICAL" : "ΣΦΩ", 4.2, VEKPrintTextAnchorBaselineCentre),
            [&](VEKPrtTextAttributes& ioText) { ioText.SetWritingMode(VEKPrtTextVertical); });
    c.Text(22, 24, "mode 0 and mode 1", 2.2);
}

// The same two transforms in both orders: the first is the outermost.
void DrawTransformOrder(const Cell& c) {
    const auto group = Make<VEKPrtGroupElt>();
    VEKPrtTransformAttributes place;
    place.AddTranslation(VEKMathVector2D(5, 6));
    group->SetTransformAttributes(place);
    c.Add(group);
    const Cell axes(c.fonts, c.palette, *group);
    for (int order = 0; order < 2; ++order) {
        VEKPrtTransformAttributes transform;
        if (order == 0) transform.AddRotation(30.0F);
        transform.AddTranslation(VEKMathVector2D(24, 0));
        if (order == 1) transform.AddRotation(30.0F);
        const auto box = Make<VEKPrtRectangleElt>(Point(0, 0), Point(12, 6));
        box->SetTransformAttributes(transform);
        axes.AddPainted(box, c.palette.ink, order == 0 ? c.palette.red : c.palette.teal);
    }
    axes.AddPainted(Make<VEKPrtRectangleElt>(Point(0, 0), Point(12, 6)), c.palette.grey, c.palette.faint);
    axes.Line(0, 0, 42, 0, c.palette.grey);
    axes.Line(0, 0, 0, 22, c.palette.grey);
    axes.Mark(0, 0);
    c.Text(4, 39, "red: rotation 30°, translation (24, 0)", 2);
    c.Text(4, 36, "green: translation (24, 0), rotation 30°", 2);
}

void DrawScaleSkewMatrix(const Cell& c) {
    struct Item {
        double x, y;
        const char* name;
        void (*add)(VEKPrtTransformAttributes&);
    };
    static const Item items[] = {
        {4, 25, "scale x 1.5", [](VEKPrtTransformAttributes& t) { t.AddScaleX(1.5); }},
        {30, 25, "scale y 1.5", [](VEKPrtTransformAttributes& t) { t.AddScaleY(1.5); }},
        {4, 7, "skew x 30", [](VEKPrtTransformAttributes& t) { t.AddSkewX(30.0F); }},
        {20, 7, "skew y 20", [](VEKPrtTransformAttributes& t) { t.AddSkewY(20.0F); }},
        {37, 8, "matrix",
         [](VEKPrtTransformAttributes& t) { t.AddMatrix(VEKMath2x2Matrix(0.9, 0.4, -0.2, 1.1)); }},
    };
    for (const Item& item : items) {
        const auto box = Make<VEKPrtRectangleElt>(Point(0, 0), Point(8, 8));
        VEKPrtTransformAttributes transform;
        transform.AddTranslation(VEKMathVector2D(item.x, item.y));
        item.add(transform);
        box->SetTransformAttributes(transform);
        c.AddPainted(box, c.palette.ink, c.palette.blue);
        c.Text(item.x, item.y - 4, item.name, 2);
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
