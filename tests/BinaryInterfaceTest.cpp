// What other binaries rely on, with the reference framework: sizes, slots of virtual functions, signatures.
#include <cstring>

#include "TestSupport.h"
#include "VEKPrtGroupAttributes.h"
#include "VEKPrtMarkerAttributes.h"
#include "VEKPrtTextAttributes.h"

// On 64-bit platforms.
static_assert(sizeof(VEKPrtGraphicPrimitiveElt) == 64);
static_assert(sizeof(VEKPrtBitmapImageElt) == 248);
static_assert(sizeof(VEKPrtCircleElt) == 376);
static_assert(sizeof(VEKPrtCircularArcElt) == 384);
static_assert(sizeof(VEKPrtClosedFigureElt) == 360);
static_assert(sizeof(VEKPrtClosedFigureRegionElt) == 208);
static_assert(sizeof(VEKPrtDisjointPolylineElt) == 280);
static_assert(sizeof(VEKPrtEllipseElt) == 384);
static_assert(sizeof(VEKPrtEllipticalArcElt) == 392);
static_assert(sizeof(VEKPrtGroupElt) == 224);
static_assert(sizeof(VEKPrtImageElt) == 152);
static_assert(sizeof(VEKPrtLineElt) == 296);
static_assert(sizeof(VEKPrtMarkerElt) == 304);
static_assert(sizeof(VEKPrtNURBSElt) == 312);
static_assert(sizeof(VEKPrtPatternElt) == 240);
static_assert(sizeof(VEKPrtPolyCubicBezierElt) == 280);
static_assert(sizeof(VEKPrtPolyPolygonElt) == 376);
static_assert(sizeof(VEKPrtPolyQuadraticBezierElt) == 280);
static_assert(sizeof(VEKPrtPolygonElt) == 360);
static_assert(sizeof(VEKPrtPolylineElt) == 280);
static_assert(sizeof(VEKPrtRectangleElt) == 384);
static_assert(sizeof(VEKPrtSymbolElt) == 240);
static_assert(sizeof(VEKPrtTextElt) == 448);

namespace {

// The slot of a virtual function, from its member pointer as the platform's C++ ABI lays it out.
template <class Member>
std::size_t SlotOf(Member iMember) {
    std::ptrdiff_t words[2];
    static_assert(sizeof words == sizeof iMember, "two words");
    std::memcpy(words, &iMember, sizeof words);
    return static_cast<std::size_t>(words[0] - 1) / sizeof(void*);
}

template <class... Members>
void ExpectSlots(const char* iClass, std::size_t iFirst, Members... iMembers) {
    std::size_t expected = iFirst;
    for (const std::size_t slot : {SlotOf(iMembers)...}) {
        EXPECT_EQ(slot, expected) << iClass << ", own function " << expected - iFirst;
        ++expected;
    }
}

// A destructor takes two slots, the first two of a record.
#define RECORD(C, ...)                                                                                       \
    using C = VEKPrt##C;                                                                                     \
    ExpectSlots(#C, 2, __VA_ARGS__)
// After the base's last, GetTitle.
#define ELEMENT(C, ...)                                                                                      \
    using C = VEKPrt##C##Elt;                                                                                \
    ExpectSlots(#C, 25, __VA_ARGS__)
#define PAIR(C, P) &C::Set##P, &C::Get##P
#define STROKED(C) PAIR(C, StrokeAttributes), PAIR(C, TransformAttributes)
#define PAINTED(C)                                                                                           \
    PAIR(C, DrawStyle), PAIR(C, StrokeAttributes), PAIR(C, FillAttributes), PAIR(C, TransformAttributes)
#define CHILDREN(C) &C::AddChild, &C::RemoveChild, &C::GetChildren

} // namespace

// What the slots do not show: constness, result types, widths.
template <class Expected, class Member>
constexpr bool Is(Member) {
    return std::is_same<Member, Expected>::value;
}
template <class Class>
using Lends = void (Class::*)(VEKListPtrVEKPrtGraphicPrimitiveElt*&);
using LendsRegions = void (VEKPrtClosedFigureElt::*)(VEKListPtrVEKPrtClosedFigureRegionElt*&);
using ImageLends = void (VEKPrtImageElt::*)(VEKListPtrVEKPrtGraphicPrimitiveElt*&) const;
using ModelLends = void (VEKPrtModel::*)(VEKListPtrVEKPrtImageElt*&) const;
static_assert(Is<Lends<VEKPrtGroupElt>>(&VEKPrtGroupElt::GetChildren));
static_assert(Is<Lends<VEKPrtPatternElt>>(&VEKPrtPatternElt::GetChildren));
static_assert(Is<Lends<VEKPrtSymbolElt>>(&VEKPrtSymbolElt::GetChildren));
static_assert(Is<Lends<VEKPrtClosedFigureRegionElt>>(&VEKPrtClosedFigureRegionElt::GetChildren));
static_assert(Is<LendsRegions>(&VEKPrtClosedFigureElt::GetChildren));
static_assert(Is<ImageLends>(&VEKPrtImageElt::GetChildren) && Is<ModelLends>(&VEKPrtModel::GetImages));
using S = VEKPrtStrokeAttributes;
using F = VEKPrtFillAttributes;
using M = VEKPrtMarkerAttributes;
using T = VEKPrtTextAttributes;
static_assert(Is<void (VEKPrtImageElt::*)(VEKPrtColourTable*&)>(&VEKPrtImageElt::GetColourTable));
static_assert(Is<void (S::*)(unsigned char&)>(&S::GetStrokeColourTransparency));
static_assert(Is<void (F::*)(unsigned char&)>(&F::GetFillColourTransparency));
static_assert(Is<void (F::*)(VEKPixelImage*&, VEKMathVector2D&, VEKMathVector2D&)>(&F::GetPattern));
static_assert(Is<void (M::*)(VEKPrintMarkerAttribute&)>(&M::GetMarkerStyle));
static_assert(Is<int (S::*)(const S&) const>(&S::operator==));
static_assert(Is<int (F::*)(const F&) const>(&F::operator==));
static_assert(Is<int (T::*)(const T&) const>(&T::operator==));
template <class... Enumerations>
constexpr bool areInts = (std::is_same<std::underlying_type_t<Enumerations>, int>::value && ...);
static_assert(
    areInts<VEKPrtDrawStyle, VEKPrtImageUnits, VEKPrtFillStyle, VEKPrtFillRule, VEKPrtTextWritingMode,
            VEKPrintLineAttribute, VEKPrintMarkerAttribute, VEKPrintTextAttribute, VEKPrintTransformType>);

TEST(VirtualTables, OfTheBase) {
    using B = VEKPrtGraphicPrimitiveElt;
    using U = VEKBaseUnknown;
    ExpectSlots("base", 0, static_cast<int (U::*)(const void*, void**)>(&B::QueryInterface), &B::AddRef,
                &B::Release, &B::GetTypeInfoCount, &B::GetTypeInfo, &B::GetIDsOfNames, &B::Invoke);
    ExpectSlots("base", 9, &B::GetMetaObject, &B::IsA, &B::IsAKindOf, &B::GetImpl, &B::SetImpl, &B::IsNull,
                &B::IsEqual, static_cast<U* (U::*)(const char*)>(&B::QueryInterface),
                &B::ChangeComponentState, &B::Duplicate, PAIR(B, ID), PAIR(B, Description), PAIR(B, Title));
    ExpectSlots("model", 18, &VEKPrtModel::AddImage, &VEKPrtModel::RemoveImage, &VEKPrtModel::GetImages);
}

TEST(VirtualTables, OfTheRecords) {
    {
        RECORD(TransformAttributes, &TransformAttributes::GetTransformTab,
               &TransformAttributes::AddTransformAttributes, &TransformAttributes::AddMatrix,
               &TransformAttributes::GetMatrix, &TransformAttributes::AddScaleX,
               &TransformAttributes::GetScaleX, &TransformAttributes::AddScaleY,
               &TransformAttributes::GetScaleY, &TransformAttributes::AddRotation,
               &TransformAttributes::GetRotation, &TransformAttributes::AddSkewX,
               &TransformAttributes::GetSkewX, &TransformAttributes::AddSkewY, &TransformAttributes::GetSkewY,
               &TransformAttributes::AddTranslation, &TransformAttributes::GetTranslation,
               &TransformAttributes::AddTransform);
    }
    {
        RECORD(StrokeAttributes, PAIR(StrokeAttributes, StrokeColourIndex),
               PAIR(StrokeAttributes, StrokeColourTransparency), PAIR(StrokeAttributes, StrokeType),
               PAIR(StrokeAttributes, StrokeTypePattern), PAIR(StrokeAttributes, StrokeWidth),
               PAIR(StrokeAttributes, StrokeStyle), PAIR(StrokeAttributes, StrokeCap),
               PAIR(StrokeAttributes, StrokeJoin));
    }
    {
        RECORD(FillAttributes, &FillAttributes::Duplicate, PAIR(FillAttributes, FillStyle),
               PAIR(FillAttributes, FillRule), PAIR(FillAttributes, FillColourIndex),
               PAIR(FillAttributes, FillColourTransparency), PAIR(FillAttributes, Pattern),
               PAIR(FillAttributes, PatternRefPoint));
    }
    {
        RECORD(TextAttributes, PAIR(TextAttributes, Font), PAIR(TextAttributes, Weight),
               PAIR(TextAttributes, Height), PAIR(TextAttributes, Anchor), PAIR(TextAttributes, Slant),
               PAIR(TextAttributes, Direction), PAIR(TextAttributes, ExtraSpacing),
               PAIR(TextAttributes, Expansion), PAIR(TextAttributes, WritingMode));
    }
    { RECORD(MarkerAttributes, PAIR(MarkerAttributes, MarkerStyle)); }
    { RECORD(GroupAttributes, PAIR(GroupAttributes, LinkURI)); }
    {
        RECORD(ColourTable, &ColourTable::GetColourCount, &ColourTable::AddColour, &ColourTable::ModifyColour,
               &ColourTable::GetColourIndex, &ColourTable::GetColour);
    }
}

TEST(VirtualTables, OfTheElements) {
    { ELEMENT(Line, PAIR(Line, StartPoint), PAIR(Line, EndPoint), PAIR(Line, Parameters), STROKED(Line)); }
    { ELEMENT(Rectangle, PAIR(Rectangle, Points), PAINTED(Rectangle)); }
    {
        ELEMENT(Circle, PAIR(Circle, Center), PAIR(Circle, Radius), PAIR(Circle, Parameters),
                PAINTED(Circle));
    }
    {
        ELEMENT(CircularArc, PAIR(CircularArc, Center), PAIR(CircularArc, Radius),
                PAIR(CircularArc, StartAngle), PAIR(CircularArc, EndAngle), PAIR(CircularArc, Parameters),
                PAINTED(CircularArc));
    }
    {
        ELEMENT(Ellipse, PAIR(Ellipse, Center), PAIR(Ellipse, HorzRadius), PAIR(Ellipse, VertRadius),
                PAIR(Ellipse, Slope), PAIR(Ellipse, Parameters), PAINTED(Ellipse));
    }
    {
        ELEMENT(EllipticalArc, PAIR(EllipticalArc, Center), PAIR(EllipticalArc, HorzRadius),
                PAIR(EllipticalArc, VertRadius), PAIR(EllipticalArc, StartAngle),
                PAIR(EllipticalArc, EndAngle), PAIR(EllipticalArc, Slope), PAIR(EllipticalArc, Parameters),
                PAINTED(EllipticalArc));
    }
    {
        ELEMENT(Marker, PAIR(Marker, Point), PAIR(Marker, Size), PAIR(Marker, Parameters),
                PAIR(Marker, MarkerAttributes), STROKED(Marker));
    }
    {
        ELEMENT(Text, PAIR(Text, Position), PAIR(Text, Text), PAIR(Text, Parameters), PAIR(Text, DrawStyle),
                PAIR(Text, StrokeAttributes), PAIR(Text, FillAttributes), PAIR(Text, TextAttributes),
                PAIR(Text, TransformAttributes));
    }
    {
        ELEMENT(BitmapImage, PAIR(BitmapImage, Origin), PAIR(BitmapImage, Size),
                PAIR(BitmapImage, Orientation), PAIR(BitmapImage, PixelImage), PAIR(BitmapImage, Parameters),
                PAIR(BitmapImage, TransformAttributes));
    }
    {
        ELEMENT(Image, PAIR(Image, Origin), PAIR(Image, Size), PAIR(Image, Units), PAIR(Image, Matrix),
                PAIR(Image, ColourTable), CHILDREN(Image));
    }
    { ELEMENT(Group, PAIR(Group, GroupAttributes), PAIR(Group, TransformAttributes), CHILDREN(Group)); }
    {
        ELEMENT(Pattern, PAIR(Pattern, Origin), PAIR(Pattern, Size), PAIR(Pattern, TransformAttributes),
                CHILDREN(Pattern));
    }
    {
        ELEMENT(Symbol, PAIR(Symbol, Origin), PAIR(Symbol, Size), PAIR(Symbol, TransformAttributes),
                CHILDREN(Symbol));
    }
    { ELEMENT(ClosedFigure, PAINTED(ClosedFigure), CHILDREN(ClosedFigure)); }
    {
        ELEMENT(
            ClosedFigureRegion,
            static_cast<void (ClosedFigureRegion::*)(ClosedFigureRegion*&)>(&ClosedFigureRegion::Duplicate),
            PAIR(ClosedFigureRegion, TransformAttributes), CHILDREN(ClosedFigureRegion));
    }
    { ELEMENT(Polyline, PAIR(Polyline, Points), STROKED(Polyline)); }
    { ELEMENT(DisjointPolyline, PAIR(DisjointPolyline, Points), STROKED(DisjointPolyline)); }
    { ELEMENT(PolyCubicBezier, PAIR(PolyCubicBezier, Points), STROKED(PolyCubicBezier)); }
    { ELEMENT(PolyQuadraticBezier, PAIR(PolyQuadraticBezier, Points), STROKED(PolyQuadraticBezier)); }
    { ELEMENT(Polygon, PAIR(Polygon, Points), PAINTED(Polygon)); }
    { ELEMENT(PolyPolygon, PAIR(PolyPolygon, Points), PAINTED(PolyPolygon)); }
    { ELEMENT(NURBS, PAIR(NURBS, Parameters), STROKED(NURBS)); }
}
