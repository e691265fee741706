#include <functional>
#include <set>
#include <sstream>
#include <vector>

#include "TestSupport.h"
#include "VEKFont.h"

namespace {

using Point = VEKMathPoint2D;
VEKFont g_font("Sans");

void Append(std::ostream& ioStream, const Point& iPoint) {
    ioStream << iPoint.GetX() << ',' << iPoint.GetY();
}
template <class Value>
void Append(std::ostream& ioStream, const Value& iValue) {
    ioStream << iValue;
}

template <class... Values>
std::string Row(const Values&... iValues) {
    std::ostringstream row;
    ((row << (row.tellp() > 0 ? " " : ""), Append(row, iValues)), ...);
    return row.str();
}

// All getters of the geometry, in one line.
std::string Geometry(const VEKPrtLineElt& e) {
    Point a, b, c, d;
    e.GetStartPoint(a);
    e.GetEndPoint(b);
    e.GetParameters(c, d);
    EXPECT_TRUE(a == c && b == d);
    return Row(a, b);
}
std::string Geometry(const VEKPrtRectangleElt& e) {
    Point a, b;
    e.GetPoints(a, b);
    return Row(a, b);
}
std::string Geometry(const VEKPrtCircleElt& e) {
    Point c, c2;
    double r = 0, r2 = 0;
    e.GetCenter(c);
    e.GetRadius(r);
    e.GetParameters(c2, r2);
    EXPECT_TRUE(c == c2 && r == r2);
    return Row(c, r);
}
std::string Geometry(const VEKPrtCircularArcElt& e) {
    Point c, c2;
    double r = 0, r2 = 0;
    float s = 0, t = 0, s2 = 0, t2 = 0;
    e.GetCenter(c);
    e.GetRadius(r);
    e.GetStartAngle(s);
    e.GetEndAngle(t);
    e.GetParameters(c2, r2, s2, t2);
    EXPECT_TRUE(c == c2 && r == r2 && s == s2 && t == t2);
    return Row(c, r, s, t);
}
std::string Geometry(const VEKPrtEllipseElt& e) {
    Point c, c2;
    double h = 0, v = 0, h2 = 0, v2 = 0;
    float s = 0, s2 = 0;
    e.GetCenter(c);
    e.GetHorzRadius(h);
    e.GetVertRadius(v);
    e.GetSlope(s);
    e.GetParameters(c2, h2, v2, s2);
    EXPECT_TRUE(c == c2 && h == h2 && v == v2 && s == s2);
    return Row(c, h, v, s);
}
std::string Geometry(const VEKPrtEllipticalArcElt& e) {
    Point c, c2;
    double h = 0, v = 0, h2 = 0, v2 = 0;
    float s = 0, a = 0, b = 0, s2 = 0, a2 = 0, b2 = 0;
    e.GetCenter(c);
    e.GetHorzRadius(h);
    e.GetVertRadius(v);
    e.GetStartAngle(a);
    e.GetEndAngle(b);
    e.GetSlope(s);
    e.GetParameters(c2, h2, v2, a2, b2, s2);
    EXPECT_TRUE(c == c2 && h == h2 && v == v2 && a == a2 && b == b2 && s == s2);
    return Row(c, h, v, a, b, s);
}
std::string Geometry(const VEKPrtMarkerElt& e) {
    Point p, p2;
    double s = 0, s2 = 0;
    VEKPrtMarkerAttributes marker;
    VEKPrintMarkerAttribute style;
    e.GetPoint(p);
    e.GetSize(s);
    e.GetParameters(p2, s2);
    e.GetMarkerAttributes(marker);
    marker.GetMarkerStyle(style);
    EXPECT_TRUE(p == p2 && s == s2);
    return Row(p, s, style);
}
std::string Geometry(const VEKPrtTextElt& e) {
    Point p, p2;
    VEKUnicodeString t, t2;
    VEKPrtTextAttributes attributes;
    VEKFont* font = nullptr;
    e.GetPosition(p);
    e.GetText(t);
    e.GetParameters(p2, t2);
    e.GetTextAttributes(attributes);
    attributes.GetFont(font);
    EXPECT_TRUE(p == p2 && t == t2);
    return Row(p, t.ToUtf8(), (font ? font->GetFamily() : "-"));
}

template <class Shape>
auto StyleOf(const Shape& iShape, int) -> decltype(iShape.GetDrawStyle(std::declval<VEKPrtDrawStyle&>()), 0) {
    auto style = static_cast<VEKPrtDrawStyle>(-1);
    iShape.GetDrawStyle(style);
    return style;
}
template <class Shape>
int StyleOf(const Shape&, long) {
    return 1; // it has none
}

// A shape, what its constructors and its setters make of it, and what its copies must carry.
template <class Shape>
void Check(const char* iDefault, const VEKRef<Shape>& iConstructed, const char* iGeometry, Shape& ioSet,
           const std::vector<std::function<void(Shape&)>>& iSetters, const char* iSet) {
    SCOPED_TRACE(Shape::ClassName());
    EXPECT_EQ(Geometry(*Make<Shape>()), iDefault);
    EXPECT_EQ(Geometry(*iConstructed), iGeometry);
    EXPECT_EQ(StyleOf(*iConstructed, 0), 1);
    iSetters.front()(ioSet);
    EXPECT_EQ(Geometry(ioSet), iGeometry) << "the first setter is given what the constructor is";
    for (const auto& set : iSetters)
        set(ioSet);
    EXPECT_EQ(Geometry(ioSet), iSet);
    const auto assigned = Make<Shape>();
    *assigned = ioSet;
    EXPECT_EQ(Geometry(*Make<Shape>(ioSet)), iSet) << "copied";
    EXPECT_EQ(Geometry(*assigned), iSet) << "assigned";
    EXPECT_EQ(Geometry(*Duplicated(ioSet)), iSet) << "duplicated";
    WithSelfCopy<Shape>([&](const Shape& iCopy) { EXPECT_EQ(Geometry(iCopy), iDefault); });
}

} // namespace

TEST(Shapes, StoreWhatTheyAreGiven) {
    {
        using S = VEKPrtLineElt;
        Check<S>("0,0 0,0", Make<S>(Point(1, 2), Point(3, 4)), "1,2 3,4", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), Point(3, 4)); },
                  [](S& s) { s.SetStartPoint(Point(9, 6)); }, [](S& s) { s.SetEndPoint(Point(-7, 8)); }},
                 "9,6 -7,8");
    }
    {
        using S = VEKPrtRectangleElt;
        Check<S>("0,0 0,0", Make<S>(Point(3, 4), Point(1, 2)), "3,4 1,2", *Make<S>(),
                 {[](S& s) { s.SetPoints(Point(3, 4), Point(1, 2)); },
                  [](S& s) { s.SetPoints(Point(8, 8), Point(7, 9)); }},
                 "8,8 7,9");
    }
    {
        using S = VEKPrtCircleElt;
        Check<S>("0,0 0", Make<S>(Point(1, 2), -3.0), "1,2 -3", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), -3.0); }, [](S& s) { s.SetRadius(8.0); },
                  [](S& s) { s.SetCenter(Point(9, 9)); }},
                 "9,9 8");
    }
    {
        using S = VEKPrtCircularArcElt;
        Check<S>("0,0 0 0 0", Make<S>(Point(1, 2), 3.0, 20.0F, 10.0F), "1,2 3 20 10", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), 3.0, 20.0F, 10.0F); },
                  [](S& s) { s.SetStartAngle(400.0F); }, [](S& s) { s.SetEndAngle(-3.0F); },
                  [](S& s) { s.SetRadius(8.0); }, [](S& s) { s.SetCenter(Point(9, 9)); }},
                 "9,9 8 400 -3");
    }
    {
        using S = VEKPrtEllipseElt;
        Check<S>("0,0 0 0 0", Make<S>(Point(1, 2), 3.0, 4.0, 5.0F), "1,2 3 4 5", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), 3.0, 4.0, 5.0F); },
                  [](S& s) { s.SetHorzRadius(8.0); }, [](S& s) { s.SetVertRadius(-3.0); },
                  [](S& s) { s.SetSlope(11.0F); }, [](S& s) { s.SetCenter(Point(9, 9)); }},
                 "9,9 8 -3 11");
    }
    {
        using S = VEKPrtEllipticalArcElt;
        Check<S>("0,0 0 0 0 0 0", Make<S>(Point(1, 2), 2.0, 1.0, 10.0F, 20.0F, 30.0F), "1,2 2 1 10 20 30",
                 *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), 2.0, 1.0, 10.0F, 20.0F, 30.0F); },
                  [](S& s) { s.SetHorzRadius(4.0); }, [](S& s) { s.SetVertRadius(5.0); },
                  [](S& s) { s.SetStartAngle(6.0F); }, [](S& s) { s.SetEndAngle(7.0F); },
                  [](S& s) { s.SetSlope(12.0F); }, [](S& s) { s.SetCenter(Point(9, 9)); }},
                 "9,9 4 5 6 7 12");
    }
    {
        using S = VEKPrtMarkerElt;
        Check<S>("0,0 0 0", Make<S>(Point(1, 2), -3.0), "1,2 -3 0", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), -3.0); }, [](S& s) { s.SetSize(8.0); },
                  [](S& s) {
                      VEKPrtMarkerAttributes marker;
                      marker.SetMarkerStyle(Value<VEKPrintMarkerAttribute>(4));
                      s.SetMarkerAttributes(marker);
                  },
                  [](S& s) { s.SetPoint(Point(9, 9)); }},
                 "9,9 8 4");
    }
    {
        using S = VEKPrtTextElt;
        Check<S>("0,0  -", Make<S>(Point(1, 2), VEKUnicodeString("x")), "1,2 x -", *Make<S>(),
                 {[](S& s) { s.SetParameters(Point(1, 2), "x"); }, [](S& s) { s.SetText("z"); },
                  [](S& s) {
                      VEKPrtTextAttributes text;
                      text.SetFont(&g_font);
                      s.SetTextAttributes(text);
                  },
                  [](S& s) { s.SetPosition(Point(9, 9)); }},
                 "9,9 z Sans");
    }
}

namespace {

template <class Shape>
class EveryFilled : public testing::Test {};
TYPED_TEST_SUITE(EveryFilled, Filled, );

template <class Shape>
VEKPrtDrawStyle StyleOf(const Shape& iShape) {
    auto style = static_cast<VEKPrtDrawStyle>(-1);
    iShape.GetDrawStyle(style);
    return style;
}

template <class Element>
class EveryStroked : public testing::Test {};
TYPED_TEST_SUITE(EveryStroked, Stroked, );
template <class Element>
class EveryPlaced : public testing::Test {};
TYPED_TEST_SUITE(EveryPlaced, PlacedOnly, );

// The copies, in the order copied, assigned, duplicated, of an element with a transform.
template <class Element>
std::vector<VEKRef<Element>> CopiesWithTransform(Element& ioSource) {
    VEKPrtTransformAttributes transform;
    transform.AddRotation(5.0F);
    ioSource.SetTransformAttributes(transform);
    const auto assigned = Make<Element>();
    *assigned = ioSource;
    std::vector<VEKRef<Element>> copies = {Make<Element>(ioSource), assigned, Duplicated(ioSource)};
    for (const auto& copy : copies) {
        VEKPrtTransformAttributes copied;
        copy->GetTransformAttributes(copied);
        float angle = 0;
        EXPECT_EQ(copied.GetRotation(0, angle), 1);
        EXPECT_EQ(angle, 5.0F);
    }
    return copies;
}

template <class Shape>
VEKPixelImage* ImageOf(const Shape& iShape) {
    VEKPrtFillAttributes fill;
    iShape.GetFillAttributes(fill);
    VEKPixelImage* image = nullptr;
    VEKMathVector2D first, second;
    fill.GetPattern(image, first, second);
    return image;
}

} // namespace

TYPED_TEST(EveryPlaced, CopiesCarryTheTransform) { CopiesWithTransform(*Make<TypeParam>()); }

TYPED_TEST(EveryStroked, CopiesCarryTheRecordsByTheirRecipe) {
    const auto source = Make<TypeParam>();
    const long before = Allocations();
    Duplicated(*source);
    const long bare = Allocations() - before;
    VEKPrtStrokeAttributes stroke;
    const float dashes[] = {1, 2};
    stroke.SetStrokeTypePattern(dashes, 2);
    source->SetStrokeAttributes(stroke);
    const std::set<std::string> copiesFirst = {"VEKPrtRectangleElt",
                                               "VEKPrtPolylineElt",
                                               "VEKPrtPolygonElt",
                                               "VEKPrtPolyCubicBezierElt",
                                               "VEKPrtPolyQuadraticBezierElt",
                                               "VEKPrtPolyPolygonElt",
                                               "VEKPrtNURBSElt"};
    const long between = Allocations();
    Duplicated(*source);
    const long cost = Allocations() - between - bare;
    EXPECT_EQ(cost, copiesFirst.count(TypeParam::ClassName()) ? 2 : 1)
        << "the dashes are copied once for each step of the recipe";
    for (const auto& copy : CopiesWithTransform(*source)) {
        VEKPrtStrokeAttributes copied;
        copy->GetStrokeAttributes(copied);
        EXPECT_EQ(copied == stroke, 1);
    }
}

TYPED_TEST(EveryFilled, KeepsAnyDrawStyle) {
    const auto shape = Make<TypeParam>();
    EXPECT_EQ(StyleOf(*shape), 1);
    shape->SetDrawStyle(static_cast<VEKPrtDrawStyle>(-123456));
    EXPECT_EQ(StyleOf(*shape), -123456);
    EXPECT_EQ(StyleOf(*Make<TypeParam>(*shape)), -123456);
    const auto assigned = Make<TypeParam>();
    *assigned = *shape;
    EXPECT_EQ(StyleOf(*assigned), -123456);
    EXPECT_EQ(StyleOf(*Duplicated(*shape)), -123456);
}

template <class Shape>
class DuplicateFill : public testing::Test {};
TYPED_TEST_SUITE(DuplicateFill, Filled, );

TYPED_TEST(DuplicateFill, ShapesLeaveAReferenceBehind) {
    constexpr bool isText = std::is_same<TypeParam, VEKPrtTextElt>::value;
    constexpr bool isFigure = std::is_same<TypeParam, VEKPrtClosedFigureElt>::value;
    const auto image = Make<VEKPixelImage>(1, 1);
    const auto shape = Make<TypeParam>();
    {
        VEKPrtFillAttributes fill;
        fill.SetPattern(image.Get(), VEKMathVector2D(0, 0), VEKMathVector2D(0, 0));
        shape->SetFillAttributes(fill);
    }
    EXPECT_EQ(Count(image), 2UL);
    {
        const auto copy = Make<TypeParam>(*shape), assigned = Make<TypeParam>();
        *assigned = *shape;
        EXPECT_EQ(Count(image), 4UL);
        const auto duplicate = Duplicated(*shape);
        EXPECT_EQ(ImageOf(*duplicate) == image.Get(), isText)
            << "the text shares its image, the others copy it";
        EXPECT_EQ(Count(image), isFigure ? 4UL : 5UL);
    }
    EXPECT_EQ(Count(image), isText || isFigure ? 2UL : 3UL);
    if (!isText && !isFigure) image->Release();
}
