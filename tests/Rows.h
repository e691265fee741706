// A row for each record and each element class.  A new class needs one here, and nothing else in the tests.
#ifndef Rows_H
#define Rows_H

#include <cfloat>
#include <cmath>

#include "Fields.h"
#include "VEKFont.h"

inline VEKFont g_font("Sans");
inline const VEKRef<VEKPixelImage> g_image = Make<VEKPixelImage>(1, 1);

/// What the rows take their values from.
struct Samples {
    inline static const Point origin{0, 0}, a{1, 2}, b{-3, 1};
    inline static const Vector none{0, 0};
};

// The entries of a row, where C is the class.
#define FIELD(Name, ...) MakeField(#Name, &C::Set##Name, &C::Get##Name, {__VA_ARGS__})
/// A constructor from values: the fields before it get their second values, the others their first.
#define CONSTRUCTED(...)                                                                                     \
    Field<C> {                                                                                               \
        "constructor", [] { return new C(__VA_ARGS__); }                                                     \
    }
#define PLACED FIELD(Origin, {origin}, {a}), FIELD(Size, {0, 0}, {3, 4})
#define TRANSFORM FIELD(TransformAttributes, {Transform()}, {Changed<Transform>()})
#define STROKE FIELD(StrokeAttributes, {Stroke()}, {Changed<Stroke>()})
#define FILL FIELD(FillAttributes, {Fill()}, {Changed<Fill>()})
#define STROKED STROKE, TRANSFORM
#define PAINTED FIELD(DrawStyle, {1}, {-123456}), STROKE, FILL, TRANSFORM

// The fields of all rows are compiled once, in the source that defines DEFINES_ROWS.
#if defined(DEFINES_ROWS)
#define LIST(Class, ...)                                                                                     \
    Fields<Class> Row<Class>::List() { return {__VA_ARGS__}; }
#else
#define LIST(Class, ...)
#endif
/// A row of a class without class information of its own.
#define PLAIN_ROW(Class, ...)                                                                                \
    template <>                                                                                              \
    struct Row<Class> : Samples {                                                                            \
        using C = Class;                                                                                     \
        static constexpr const char* name = #Class;                                                          \
        static Fields<C> List();                                                                             \
    };                                                                                                       \
    inline void PrintTo(const Class& iRecord, std::ostream* ioStream) { PrintChanges(iRecord, ioStream); }   \
    LIST(Class, __VA_ARGS__)
/// A row of an element class.  The length is that of the name; the recipe of Duplicate is one of
/// ElementProtocol.h.
#define ROW(Class, Length, Recipe, ...)                                                                      \
    template <>                                                                                              \
    struct Row<Class> : Samples {                                                                            \
        using C = Class;                                                                                     \
        static constexpr const char* name = #Class;                                                          \
        static constexpr Duplication recipe = Duplication::Recipe;                                           \
        static VEKMetaClass*& Cache() { return meta_object__##Length##Class; }                               \
        static Fields<C> List();                                                                             \
    };                                                                                                       \
    LIST(Class, __VA_ARGS__)
enum class Duplication { ByAssignment, ByCopying, ByConstruction };

PLAIN_ROW(VEKPrtModel, )
PLAIN_ROW(VEKPrtTransformAttributes,
          FieldBy<C, Entries>(
              "Entries", SetEntries, EntriesOf,
              {{}, {g_oneOfEach}, {{{3, 2}, {2, 30}, {3, 3}}}, {Entries{{3, 2}}}, {Entries{{3, 4}}}}))
PLAIN_ROW(VEKPrtStrokeAttributes, FIELD(StrokeColourIndex, {0}, {7}),
          FIELD(StrokeColourTransparency, {255}, {254}), FIELD(StrokeType, {0}, {2}),
          FieldBy<C, std::vector<float>>(
              "Dashes", SetDashes, DashesOf,
              {{}, {{1, 2, 3}}, {{1}}, {{1, 2}}, {{2, 2, 3}}, {{1, 2, std::nextafter(3.0F, 4.0F)}}}),
          FIELD(StrokeWidth, {static_cast<double>(0.1F)}, {-2.0}, {0.1}), FIELD(StrokeStyle, {8}, {9}),
          FIELD(StrokeCap, {10}, {11}), FIELD(StrokeJoin, {13}, {15}))
PLAIN_ROW(VEKPrtFillAttributes, FIELD(FillStyle, {0}, {1}), FIELD(FillRule, {1}, {0}),
          FIELD(FillColourIndex, {0}, {7}), FIELD(FillColourTransparency, {255}, {0}),
          FIELD(Pattern, {nullptr, none, none}, {nullptr, Vector(1, 2), Vector(3, 4)},
                {nullptr, Vector(0, DBL_MIN), none}, {nullptr, none, Vector(1, 0)},
                {g_image.Get(), none, none}),
          FIELD(PatternRefPoint, {origin}, {Point(0, 1)}, {a}))
PLAIN_ROW(VEKPrtTextAttributes, FIELD(Font, {nullptr}, {&g_font}), FIELD(Weight, {25}, {27}),
          FIELD(Height, {10.0}, {-1.0}, {std::nextafter(10.0, 11.0)}), FIELD(Anchor, {29}, {35}),
          FIELD(Slant, {0}, {2}), FIELD(Direction, {0}, {-3}), FIELD(ExtraSpacing, {0}, {0.5}),
          FIELD(Expansion, {1}, {0.25}), FIELD(WritingMode, {0}, {-7}))
PLAIN_ROW(VEKPrtMarkerAttributes, FIELD(MarkerStyle, {0}, {5}))
PLAIN_ROW(VEKPrtGroupAttributes, FIELD(LinkURI, {""}, {"https://example.org"}))

ROW(VEKPrtGraphicPrimitiveElt, 25, ByConstruction, FIELD(ID, {""}, {"id"}),
    FIELD(Description, {""}, {"description"}), FIELD(Title, {""}, {"title"}))

ROW(VEKPrtLineElt, 13, ByAssignment, FIELD(StartPoint, {origin}, {a}), FIELD(EndPoint, {origin}, {b}),
    FIELD(Parameters, {origin, origin}, {a, b}), CONSTRUCTED(a, b), STROKED)
ROW(VEKPrtRectangleElt, 18, ByCopying, FIELD(Points, {origin, origin}, {a, b}, {b, Point(7, 9)}),
    CONSTRUCTED(a, b), PAINTED)
ROW(VEKPrtCircleElt, 15, ByAssignment, FIELD(Center, {origin}, {a}), FIELD(Radius, {0}, {-3}),
    FIELD(Parameters, {origin, 0}, {a, -3}), CONSTRUCTED(a, -3.0), PAINTED)
ROW(VEKPrtCircularArcElt, 20, ByAssignment, FIELD(Center, {origin}, {a}), FIELD(Radius, {0}, {3}),
    FIELD(StartAngle, {0}, {400}), FIELD(EndAngle, {0}, {-5}),
    FIELD(Parameters, {origin, 0, 0, 0}, {a, 3, 400, -5}), CONSTRUCTED(a, 3.0, 400.0F, -5.0F), PAINTED)
ROW(VEKPrtEllipseElt, 16, ByAssignment, FIELD(Center, {origin}, {a}), FIELD(HorzRadius, {0}, {3}),
    FIELD(VertRadius, {0}, {-4}), FIELD(Slope, {0}, {5}), FIELD(Parameters, {origin, 0, 0, 0}, {a, 3, -4, 5}),
    CONSTRUCTED(a, 3.0, -4.0, 5.0F), PAINTED)
ROW(VEKPrtEllipticalArcElt, 22, ByAssignment, FIELD(Center, {origin}, {a}), FIELD(HorzRadius, {0}, {3}),
    FIELD(VertRadius, {0}, {2}), FIELD(StartAngle, {0}, {20}), FIELD(EndAngle, {0}, {10}),
    FIELD(Slope, {0}, {30}), FIELD(Parameters, {origin, 0, 0, 0, 0, 0}, {a, 3, 2, 20, 10, 30}),
    CONSTRUCTED(a, 3.0, 2.0, 20.0F, 10.0F, 30.0F), PAINTED)
ROW(VEKPrtMarkerElt, 15, ByAssignment, FIELD(Point, {origin}, {a}), FIELD(Size, {0}, {-3}),
    FIELD(Parameters, {origin, 0}, {a, -3}), CONSTRUCTED(a, -3.0),
    FIELD(MarkerAttributes, {VEKPrtMarkerAttributes()}, {Changed<VEKPrtMarkerAttributes>()}), STROKED)
ROW(VEKPrtTextElt, 13, ByAssignment, FIELD(Position, {origin}, {a}), FIELD(Text, {""}, {"x"}),
    FIELD(Parameters, {origin, ""}, {a, "x"}), CONSTRUCTED(a, "x"), FIELD(DrawStyle, {1}, {-123456}), STROKE,
    FILL, FIELD(TextAttributes, {VEKPrtTextAttributes()}, {Changed<VEKPrtTextAttributes>()}), TRANSFORM)

ROW(VEKPrtBitmapImageElt, 20, ByAssignment, PLACED, FIELD(Orientation, {0}, {0.1F}),
    CONSTRUCTED(a, 3.0, 4.0, 0.1, nullptr),
    // Whether an image is held: duplicates hold another one.
    FieldBy<C, bool>(
        "PixelImage",
        [](C& ioBitmap, bool iHeld) { ioBitmap.SetPixelImage(iHeld ? g_image.Get() : nullptr); },
        [](const C& iBitmap) { return PixelsOf(iBitmap) != nullptr; }, {{false}, {true}}),
    TRANSFORM)
ROW(VEKPrtImageElt, 14, ByConstruction, PLACED, FIELD(Units, {4}, {-123456}),
    FIELD(Matrix, {Matrix()}, {Matrix(1, 2, 3, 4)}),
    CONSTRUCTED(a, 3.0, 4.0, Value<VEKPrtImageUnits>(-123456), Matrix(1, 2, 3, 4)),
    FieldBy<C, Colours>(
        "ColourTable",
        [](C& ioPage, const Colours& iColours) {
            auto* const table = iColours.empty() ? nullptr : new (std::nothrow) VEKPrtColourTable;
            for (const int colour : iColours)
                if (table) Add(*table, colour);
            ioPage.SetColourTable(table);
        },
        [](C& ioPage) { return TableOf(ioPage) ? ColoursOf(*TableOf(ioPage)) : Colours(); },
        {{}, {{0x070605, 8}}}))
ROW(VEKPrtGroupElt, 14, ByConstruction,
    FIELD(GroupAttributes, {VEKPrtGroupAttributes()}, {Changed<VEKPrtGroupAttributes>()}), TRANSFORM)
ROW(VEKPrtPatternElt, 16, ByConstruction, PLACED, CONSTRUCTED(a, 3.0, 4.0), TRANSFORM)
ROW(VEKPrtSymbolElt, 15, ByConstruction, PLACED, CONSTRUCTED(a, 3.0, 4.0), TRANSFORM)
ROW(VEKPrtClosedFigureElt, 21, ByConstruction, PAINTED)
ROW(VEKPrtClosedFigureRegionElt, 27, ByConstruction, TRANSFORM)

/// Arrays of as many points, polygons or control points as the text begins with, which says what is held
/// then.
template <class C, class Set>
Field<C> ArraysField(Set iSet, std::initializer_list<std::tuple<std::string>> iTexts) {
    return FieldBy<C, std::string>(
        "Arrays", [=](C& ioElement, const std::string& iText) { iSet(ioElement, std::stoi(iText)); },
        [](const C& iElement) { return ShowPoints(iElement, " ()"); }, iTexts);
}
#define POINTS                                                                                               \
    ArraysField<C>([](C& ioElement, int iCount) { ioElement.SetPoints(g_five, iCount); },                    \
                   {{"0 ()"}, {"2 (1 2 3 4)"}, {"1 (1 2)"}})
ROW(VEKPrtPolylineElt, 17, ByCopying, POINTS, STROKED)
ROW(VEKPrtPolyCubicBezierElt, 24, ByCopying, POINTS, STROKED)
ROW(VEKPrtPolyQuadraticBezierElt, 28, ByCopying, POINTS, STROKED)
ROW(VEKPrtDisjointPolylineElt, 25, ByAssignment, POINTS, STROKED)
ROW(VEKPrtPolygonElt, 16, ByCopying, POINTS, PAINTED)
ROW(VEKPrtPolyPolygonElt, 20, ByCopying,
    ArraysField<C>([](C& ioElement, int iCount) { ioElement.SetPoints(g_five, g_counts, iCount); },
                   {{"0 () ()"}, {"2 (2 1) (1 2 3 4 5 6)"}}),
    PAINTED)
/// The bounds stay those of a new curve: copies reset them.
ROW(VEKPrtNURBSElt, 14, ByCopying,
    ArraysField<C>(
        [](C& ioCurve, int iCount) {
            ioCurve.SetParameters(iCount, iCount, g_five, g_knots, 0.0F, 1.0F, g_weights);
        },
        {{"0 0 0 1 () () ()"}, {"2 2 0 1 (1 2 3 4) (11 12 13 14) (21 22)"}}),
    STROKED)

#endif
