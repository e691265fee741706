// The fields of records and elements, as tables for typed tests.
#ifndef Fields_H
#define Fields_H

#include <cfloat>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <tuple>
#include <vector>

#include "TestSupport.h"
#include "VEKFont.h"

/// A field, or several that are set together, with values of it; the first is that of a new object.
template <class Class>
struct Field {
    const char* name;
    std::size_t count;
    std::function<void(Class&, std::size_t)> set;
    std::function<bool(Class&, std::size_t)> has;
};
template <class Class>
using Fields = std::vector<Field<Class>>;

/// Enumerations are given by number.
template <class Enumeration>
struct Number {
    int value;
    operator Enumeration() const { return static_cast<Enumeration>(value); }
    Number(int iValue) : value(iValue) {}
};
template <class T>
using Given = std::conditional_t<std::is_enum_v<std::decay_t<T>>, Number<std::decay_t<T>>, std::decay_t<T>>;

/// A field that is set and read by any functions.
template <class Class, class... Arguments, class Set, class Get>
Field<Class> FieldBy(const char* iName, Set iSet, Get iGet,
                     std::initializer_list<std::tuple<Given<Arguments>...>> iValues) {
    using Values = std::tuple<std::decay_t<Arguments>...>;
    const auto values = std::make_shared<std::vector<Values>>(iValues.begin(), iValues.end());
    const auto set = [=](Class& ioObject, std::size_t iIndex) {
        std::apply([&](const auto&... iValue) { std::invoke(iSet, ioObject, iValue...); }, (*values)[iIndex]);
    };
    const auto has = [=](Class& ioObject, std::size_t iIndex) {
        Values found = (*values)[(iIndex + 1) % values->size()]; // to be overwritten
        std::apply([&](auto&... oValue) { std::invoke(iGet, ioObject, oValue...); }, found);
        return found == (*values)[iIndex];
    };
    return {iName, iValues.size(), set, has};
}
template <class Class, class... Arguments, class Get>
Field<Class> MakeField(const char* iName, void (Class::*iSet)(Arguments...), Get iGet,
                       std::initializer_list<std::tuple<Given<Arguments>...>> iValues) {
    return FieldBy<Class, Arguments...>(iName, iSet, iGet, iValues);
}
#define FIELD(Name, ...) MakeField(#Name, &C::Set##Name, &C::Get##Name, {__VA_ARGS__})

using Point = VEKMathPoint2D;
using Vector = VEKMathVector2D;
using Matrix = VEKMath2x2Matrix;
using Transform = VEKPrtTransformAttributes;
using Stroke = VEKPrtStrokeAttributes;
using Fill = VEKPrtFillAttributes;

// Transforms by number: what is made of 0 is what the record takes for blank.

template <class Value>
Value FromNumber(double iNumber) {
    return static_cast<Value>(iNumber);
}
template <>
inline Vector FromNumber(double iNumber) {
    return Vector(iNumber, 2 * iNumber);
}
template <>
inline Matrix FromNumber(double iNumber) {
    const Matrix blank;
    return Matrix(blank.GetCoef(1, 1) + iNumber, blank.GetCoef(1, 2) + 2 * iNumber,
                  blank.GetCoef(2, 1) + 3 * iNumber, blank.GetCoef(2, 2) + 4 * iNumber);
}
inline double ToNumber(double iValue) { return iValue; }
inline double ToNumber(const Vector& iValue) { return iValue.GetX(); }
inline double ToNumber(const Matrix& iValue) { return iValue.GetCoef(1, 1) - Matrix().GetCoef(1, 1); }

/// A kind of entry in a transform.
struct TransformKind {
    const char* name;
    std::function<int(Transform&, double)> add;
    /// The value at a position of the list; none where the record says that it failed.
    std::function<std::optional<double>(const Transform&, unsigned)> get;
};

template <class Argument, class Value>
TransformKind MakeKind(const char* iName, int (Transform::*iAdd)(Argument),
                       int (Transform::*iGet)(unsigned, Value&) const) {
    const auto add = [=](Transform& ioTransform, double iNumber) {
        return (ioTransform.*iAdd)(FromNumber<Value>(iNumber));
    };
    const auto get = [=](const Transform& iTransform, unsigned iIndex) {
        const auto untouched = FromNumber<Value>(-99);
        Value value = untouched;
        const int status = (iTransform.*iGet)(iIndex, value);
        EXPECT_EQ(status, value == untouched ? -1 : 1) << "outputs are written on success only";
        EXPECT_TRUE(value == FromNumber<Value>(ToNumber(value))) << iName << ", in all components";
        return status == 1 ? std::optional<double>(ToNumber(value)) : std::nullopt;
    };
    return {iName, add, get};
}

#define KIND(Name) MakeKind(#Name, &Transform::Add##Name, &Transform::Get##Name)
/// By their numbers.
inline const TransformKind g_kinds[] = {KIND(Matrix), KIND(Translation), KIND(Rotation), KIND(ScaleX),
                                        KIND(ScaleY), KIND(SkewX),       KIND(SkewY)};

inline std::vector<int> Kinds(const Transform& iTransform) {
    unsigned count = 99;
    VEKPrintTransformType* kinds = nullptr;
    EXPECT_EQ(iTransform.GetTransformTab(count, kinds), 1);
    return kinds ? std::vector<int>(kinds, kinds + count) : std::vector<int>();
}

/// One of each kind, in an order that is neither that of the kinds nor that of the fields.
inline const std::vector<int> g_anyOrder = {6, 3, 0, 1, 2, 5, 4};
inline Transform OneOfEach() {
    Transform transform;
    for (const int kind : g_anyOrder)
        g_kinds[kind].add(transform, 10.0 + kind);
    return transform;
}

// Records that cannot be compared, and what tests compare instead.

inline bool operator==(const Transform& iLeft, const Transform& iRight) {
    const std::size_t count = Kinds(iLeft).size();
    bool equal = Kinds(iRight) == Kinds(iLeft);
    for (const TransformKind& kind : g_kinds)
        for (unsigned i = 0; i < count; ++i)
            equal = equal && kind.get(iLeft, i) == kind.get(iRight, i);
    return equal;
}
inline bool operator==(const VEKPrtGroupAttributes& iLeft, const VEKPrtGroupAttributes& iRight) {
    VEKPrintLinkURI left, right;
    iLeft.GetLinkURI(left);
    iRight.GetLinkURI(right);
    return left == right;
}
inline bool operator==(VEKPrtMarkerAttributes iLeft, VEKPrtMarkerAttributes iRight) {
    VEKPrintMarkerAttribute left, right;
    iLeft.GetMarkerStyle(left);
    iRight.GetMarkerStyle(right);
    return left == right;
}

inline void SetDashes(Stroke& ioStroke, const std::vector<float>& iDashes) {
    ioStroke.SetStrokeTypePattern(iDashes.data(), static_cast<unsigned char>(iDashes.size()));
}
inline std::vector<float> DashesOf(const Stroke& iStroke) {
    float* dashes = nullptr;
    unsigned char count = 0;
    iStroke.GetStrokeTypePattern(dashes, count);
    const std::unique_ptr<float[]> owner(dashes);
    return dashes ? std::vector<float>(dashes, dashes + count) : std::vector<float>();
}
inline Stroke Dashed(const std::vector<float>& iDashes) {
    Stroke stroke;
    SetDashes(stroke, iDashes);
    return stroke;
}

inline VEKFont g_font("Sans");
inline const VEKRef<VEKPixelImage> g_image = Make<VEKPixelImage>(1, 1);

/// The fields of a record, or those of an element that are no records.  Elements are constructed with the
/// second values, if they are constructed with any.
template <class C>
Fields<C> FieldsOf() {
    const Point origin(0, 0), a(1, 2), b(-3, 1);
    const Vector none(0, 0);
    if constexpr (std::is_same_v<C, Stroke>)
        return {FIELD(StrokeColourIndex, {0}, {7}),
                FIELD(StrokeColourTransparency, {255}, {254}),
                FIELD(StrokeType, {0}, {2}),
                FIELD(StrokeWidth, {static_cast<double>(0.1F)}, {-2.0}, {0.1}),
                FIELD(StrokeStyle, {8}, {9}),
                FIELD(StrokeCap, {10}, {11}),
                FIELD(StrokeJoin, {13}, {15}),
                FieldBy<C, std::vector<float>>(
                    "dashes", SetDashes, [](const C& iStroke, auto& oDashes) { oDashes = DashesOf(iStroke); },
                    {{}, {{1, 2, 3}}, {{1}}, {{1, 2}}, {{2, 2, 3}}, {{1, 2, std::nextafter(3.0F, 4.0F)}}})};
    if constexpr (std::is_same_v<C, Fill>)
        return {FIELD(FillStyle, {0}, {1}),
                FIELD(FillRule, {1}, {0}),
                FIELD(FillColourIndex, {0}, {7}),
                FIELD(FillColourTransparency, {255}, {0}),
                FIELD(Pattern, {nullptr, none, none}, {nullptr, Vector(1, 2), Vector(3, 4)},
                      {nullptr, Vector(0, DBL_MIN), none}, {nullptr, none, Vector(1, 0)},
                      {g_image.Get(), none, none}),
                FIELD(PatternRefPoint, {origin}, {Point(0, 1)}, {a})};
    if constexpr (std::is_same_v<C, VEKPrtTextAttributes>)
        return {FIELD(Font, {nullptr}, {&g_font}),
                FIELD(Weight, {25}, {27}),
                FIELD(Height, {10.0}, {-1.0}, {std::nextafter(10.0, 11.0)}),
                FIELD(Anchor, {29}, {35}),
                FIELD(Slant, {0}, {2}),
                FIELD(Direction, {0}, {-3}),
                FIELD(ExtraSpacing, {0}, {0.5}),
                FIELD(Expansion, {1}, {0.25}),
                FIELD(WritingMode, {0}, {-7})};
    if constexpr (std::is_same_v<C, VEKPrtMarkerAttributes>) return {FIELD(MarkerStyle, {0}, {5})};
    if constexpr (std::is_same_v<C, VEKPrtGroupAttributes>)
        return {FIELD(LinkURI, {""}, {"https://example.org"})};

    if constexpr (std::is_same_v<C, VEKPrtLineElt>)
        return {FIELD(StartPoint, {origin}, {a}), FIELD(EndPoint, {origin}, {b}),
                FIELD(Parameters, {origin, origin}, {a, b})};
    if constexpr (std::is_same_v<C, VEKPrtRectangleElt>)
        return {FIELD(Points, {origin, origin}, {a, b}, {Point(8, 8), Point(7, 9)})};
    if constexpr (std::is_same_v<C, VEKPrtCircleElt>)
        return {FIELD(Center, {origin}, {a}), FIELD(Radius, {0}, {-3}),
                FIELD(Parameters, {origin, 0}, {a, -3})};
    if constexpr (std::is_same_v<C, VEKPrtCircularArcElt>)
        return {FIELD(Center, {origin}, {a}), FIELD(Radius, {0}, {3}), FIELD(StartAngle, {0}, {400}),
                FIELD(EndAngle, {0}, {-5}), FIELD(Parameters, {origin, 0, 0, 0}, {a, 3, 400, -5})};
    if constexpr (std::is_same_v<C, VEKPrtEllipseElt>)
        return {FIELD(Center, {origin}, {a}), FIELD(HorzRadius, {0}, {3}), FIELD(VertRadius, {0}, {-4}),
                FIELD(Slope, {0}, {5}), FIELD(Parameters, {origin, 0, 0, 0}, {a, 3, -4, 5})};
    if constexpr (std::is_same_v<C, VEKPrtEllipticalArcElt>)
        return {FIELD(Center, {origin}, {a}),
                FIELD(HorzRadius, {0}, {3}),
                FIELD(VertRadius, {0}, {2}),
                FIELD(StartAngle, {0}, {20}),
                FIELD(EndAngle, {0}, {10}),
                FIELD(Slope, {0}, {30}),
                FIELD(Parameters, {origin, 0, 0, 0, 0, 0}, {a, 3, 2, 20, 10, 30})};
    if constexpr (std::is_same_v<C, VEKPrtMarkerElt>)
        return {FIELD(Point, {origin}, {a}), FIELD(Size, {0}, {-3}), FIELD(Parameters, {origin, 0}, {a, -3})};
    if constexpr (std::is_same_v<C, VEKPrtTextElt>)
        return {FIELD(Position, {origin}, {a}), FIELD(Text, {""}, {"x"}),
                FIELD(Parameters, {origin, ""}, {a, "x"})};
    if constexpr (std::is_same_v<C, VEKPrtBitmapImageElt>)
        return {FIELD(Origin, {origin}, {a}), FIELD(Size, {0, 0}, {3, 4}), FIELD(Orientation, {0}, {0.1F})};
    if constexpr (std::is_same_v<C, VEKPrtImageElt>)
        return {FIELD(Origin, {origin}, {a}), FIELD(Size, {0, 0}, {3, 4}), FIELD(Units, {4}, {-123456}),
                FIELD(Matrix, {Matrix()}, {Matrix(1, 2, 3, 4)})};
    if constexpr (std::is_same_v<C, VEKPrtPatternElt> || std::is_same_v<C, VEKPrtSymbolElt>)
        return {FIELD(Origin, {origin}, {a}), FIELD(Size, {0, 0}, {3, 4})};
    return {};
}

/// A record with the second value of each field.
template <class Record>
Record Changed() {
    Record record;
    for (const auto& field : FieldsOf<Record>())
        field.set(record, 1);
    return record;
}

/// The fields of an element that are records, and its draw style.
template <class C>
Fields<C> RecordsOf() {
    Fields<C> fields;
    if constexpr (In<C, Stroked>) fields = {FIELD(StrokeAttributes, {Stroke()}, {Changed<Stroke>()})};
    if constexpr (In<C, Stroked> || In<C, PlacedOnly>)
        fields.push_back(FIELD(TransformAttributes, {Transform()}, {OneOfEach()}));
    if constexpr (In<C, Filled>) {
        fields.push_back(FIELD(FillAttributes, {Fill()}, {Changed<Fill>()}));
        fields.push_back(FIELD(DrawStyle, {1}, {-123456}));
    }
    using Text = VEKPrtTextAttributes;
    if constexpr (std::is_same_v<C, VEKPrtTextElt>)
        fields.push_back(FIELD(TextAttributes, {Text()}, {Changed<Text>()}));
    using Marker = VEKPrtMarkerAttributes;
    if constexpr (std::is_same_v<C, VEKPrtMarkerElt>)
        fields.push_back(FIELD(MarkerAttributes, {Marker()}, {Changed<Marker>()}));
    using Group = VEKPrtGroupAttributes;
    if constexpr (std::is_same_v<C, VEKPrtGroupElt>)
        fields.push_back(FIELD(GroupAttributes, {Group()}, {Changed<Group>()}));
    return fields;
}

#endif
