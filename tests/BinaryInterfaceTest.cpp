// What other binaries are compiled against, with the reference framework: sizes, slots, signatures.
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
static_assert(sizeof(VEKPrtNURBSElt) == 304);
static_assert(sizeof(VEKPrtPatternElt) == 240);
static_assert(sizeof(VEKPrtPolyCubicBezierElt) == 280);
static_assert(sizeof(VEKPrtPolyPolygonElt) == 368);
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

// The functions of a class, which is C, in the order of their slots.
#define EXPECT_SLOTS(Class, First, ...)                                                                      \
    do {                                                                                                     \
        using C = Class;                                                                                     \
        ExpectSlots(#Class, First, __VA_ARGS__);                                                             \
    } while (false)
// A destructor takes two slots, the first two of a record.
#define RECORD(Name, ...) EXPECT_SLOTS(VEKPrt##Name, 2, __VA_ARGS__)
// After the base's last, GetTitle.
#define ELEMENT(Name, ...) EXPECT_SLOTS(VEKPrt##Name##Elt, 25, __VA_ARGS__)
#define PAIR(P) &C::Set##P, &C::Get##P
#define KIND(P) &C::Add##P, &C::Get##P
#define STROKED PAIR(StrokeAttributes), PAIR(TransformAttributes)
#define PAINTED PAIR(DrawStyle), PAIR(StrokeAttributes), PAIR(FillAttributes), PAIR(TransformAttributes)
#define CHILDREN &C::AddChild, &C::RemoveChild, &C::GetChildren

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
template <class... Classes>
constexpr bool lend = (Is<Lends<Classes>>(&Classes::GetChildren) && ...);
static_assert(lend<VEKPrtGroupElt, VEKPrtPatternElt, VEKPrtSymbolElt, VEKPrtClosedFigureRegionElt>);
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
    using U = VEKBaseUnknown;
    EXPECT_SLOTS(VEKPrtGraphicPrimitiveElt, 0,
                 static_cast<int (U::*)(const void*, void**)>(&C::QueryInterface), &C::AddRef, &C::Release,
                 &C::GetTypeInfoCount, &C::GetTypeInfo, &C::GetIDsOfNames, &C::Invoke);
    EXPECT_SLOTS(VEKPrtGraphicPrimitiveElt, 9, &C::GetMetaObject, &C::IsA, &C::IsAKindOf, &C::GetImpl,
                 &C::SetImpl, &C::IsNull, &C::IsEqual,
                 static_cast<U* (U::*)(const char*)>(&C::QueryInterface), &C::ChangeComponentState,
                 &C::Duplicate, PAIR(ID), PAIR(Description), PAIR(Title));
    EXPECT_SLOTS(VEKPrtModel, 18, &C::AddImage, &C::RemoveImage, &C::GetImages);
}

TEST(VirtualTables, OfTheRecords) {
    RECORD(TransformAttributes, &C::GetTransformTab, &C::AddTransformAttributes, KIND(Matrix), KIND(ScaleX),
           KIND(ScaleY), KIND(Rotation), KIND(SkewX), KIND(SkewY), KIND(Translation), &C::AddTransform);
    RECORD(StrokeAttributes, PAIR(StrokeColourIndex), PAIR(StrokeColourTransparency), PAIR(StrokeType),
           PAIR(StrokeTypePattern), PAIR(StrokeWidth), PAIR(StrokeStyle), PAIR(StrokeCap), PAIR(StrokeJoin));
    RECORD(FillAttributes, &C::Duplicate, PAIR(FillStyle), PAIR(FillRule), PAIR(FillColourIndex),
           PAIR(FillColourTransparency), PAIR(Pattern), PAIR(PatternRefPoint));
    RECORD(TextAttributes, PAIR(Font), PAIR(Weight), PAIR(Height), PAIR(Anchor), PAIR(Slant), PAIR(Direction),
           PAIR(ExtraSpacing), PAIR(Expansion), PAIR(WritingMode));
    RECORD(MarkerAttributes, PAIR(MarkerStyle));
    RECORD(GroupAttributes, PAIR(LinkURI));
    RECORD(ColourTable, &C::GetColourCount, &C::AddColour, &C::ModifyColour, &C::GetColourIndex,
           &C::GetColour);
}

TEST(VirtualTables, OfTheElements) {
    ELEMENT(Line, PAIR(StartPoint), PAIR(EndPoint), PAIR(Parameters), STROKED);
    ELEMENT(Rectangle, PAIR(Points), PAINTED);
    ELEMENT(Circle, PAIR(Center), PAIR(Radius), PAIR(Parameters), PAINTED);
    ELEMENT(CircularArc, PAIR(Center), PAIR(Radius), PAIR(StartAngle), PAIR(EndAngle), PAIR(Parameters),
            PAINTED);
    ELEMENT(Ellipse, PAIR(Center), PAIR(HorzRadius), PAIR(VertRadius), PAIR(Slope), PAIR(Parameters),
            PAINTED);
    ELEMENT(EllipticalArc, PAIR(Center), PAIR(HorzRadius), PAIR(VertRadius), PAIR(StartAngle), PAIR(EndAngle),
            PAIR(Slope), PAIR(Parameters), PAINTED);
    ELEMENT(Marker, PAIR(Point), PAIR(Size), PAIR(Parameters), PAIR(MarkerAttributes), STROKED);
    ELEMENT(Text, PAIR(Position), PAIR(Text), PAIR(Parameters), PAIR(DrawStyle), PAIR(StrokeAttributes),
            PAIR(FillAttributes), PAIR(TextAttributes), PAIR(TransformAttributes));
    ELEMENT(BitmapImage, PAIR(Origin), PAIR(Size), PAIR(Orientation), PAIR(PixelImage), PAIR(Parameters),
            PAIR(TransformAttributes));
    ELEMENT(Image, PAIR(Origin), PAIR(Size), PAIR(Units), PAIR(Matrix), PAIR(ColourTable), CHILDREN);
    ELEMENT(Group, PAIR(GroupAttributes), PAIR(TransformAttributes), CHILDREN);
    ELEMENT(Pattern, PAIR(Origin), PAIR(Size), PAIR(TransformAttributes), CHILDREN);
    ELEMENT(Symbol, PAIR(Origin), PAIR(Size), PAIR(TransformAttributes), CHILDREN);
    ELEMENT(ClosedFigure, PAINTED, CHILDREN);
    ELEMENT(ClosedFigureRegion, static_cast<void (C::*)(C*&)>(&C::Duplicate), PAIR(TransformAttributes),
            CHILDREN);
    ELEMENT(Polyline, PAIR(Points), STROKED);
    ELEMENT(DisjointPolyline, PAIR(Points), STROKED);
    ELEMENT(PolyCubicBezier, PAIR(Points), STROKED);
    ELEMENT(PolyQuadraticBezier, PAIR(Points), STROKED);
    ELEMENT(Polygon, PAIR(Points), PAINTED);
    ELEMENT(PolyPolygon, PAIR(Points), PAINTED);
    ELEMENT(NURBS, PAIR(Parameters), STROKED);
}
