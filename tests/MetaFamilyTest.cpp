#include <cstring>
#include <set>
#include <typeinfo>

#include "TestSupport.h"
#include "VEKMetaClass.h"
#include "VEKPrtGroupAttributes.h"
#include "VEKPrtMarkerAttributes.h"
#include "VEKPrtTextAttributes.h"

namespace {

// By hand: what the library passes, and the compiler's own idea of a class, must agree with it.  Sizes are
// those of 64-bit platforms; a change of one breaks binary compatibility.
struct Row {
    const char* name;
    long size;
    VEKMetaClass** cache;
};
const Row g_rows[] = {
    {"VEKPrtGraphicPrimitiveElt", 64, &meta_object__25VEKPrtGraphicPrimitiveElt},
    {"VEKPrtBitmapImageElt", 248, &meta_object__20VEKPrtBitmapImageElt},
    {"VEKPrtCircleElt", 376, &meta_object__15VEKPrtCircleElt},
    {"VEKPrtCircularArcElt", 384, &meta_object__20VEKPrtCircularArcElt},
    {"VEKPrtClosedFigureElt", 360, &meta_object__21VEKPrtClosedFigureElt},
    {"VEKPrtClosedFigureRegionElt", 208, &meta_object__27VEKPrtClosedFigureRegionElt},
    {"VEKPrtDisjointPolylineElt", 280, &meta_object__25VEKPrtDisjointPolylineElt},
    {"VEKPrtEllipseElt", 384, &meta_object__16VEKPrtEllipseElt},
    {"VEKPrtEllipticalArcElt", 392, &meta_object__22VEKPrtEllipticalArcElt},
    {"VEKPrtGroupElt", 224, &meta_object__14VEKPrtGroupElt},
    {"VEKPrtImageElt", 152, &meta_object__14VEKPrtImageElt},
    {"VEKPrtLineElt", 296, &meta_object__13VEKPrtLineElt},
    {"VEKPrtMarkerElt", 304, &meta_object__15VEKPrtMarkerElt},
    {"VEKPrtNURBSElt", 312, &meta_object__14VEKPrtNURBSElt},
    {"VEKPrtPatternElt", 240, &meta_object__16VEKPrtPatternElt},
    {"VEKPrtPolyCubicBezierElt", 280, &meta_object__24VEKPrtPolyCubicBezierElt},
    {"VEKPrtPolyPolygonElt", 376, &meta_object__20VEKPrtPolyPolygonElt},
    {"VEKPrtPolyQuadraticBezierElt", 280, &meta_object__28VEKPrtPolyQuadraticBezierElt},
    {"VEKPrtPolygonElt", 360, &meta_object__16VEKPrtPolygonElt},
    {"VEKPrtPolylineElt", 280, &meta_object__17VEKPrtPolylineElt},
    {"VEKPrtRectangleElt", 384, &meta_object__18VEKPrtRectangleElt},
    {"VEKPrtSymbolElt", 240, &meta_object__15VEKPrtSymbolElt},
    {"VEKPrtTextElt", 448, &meta_object__13VEKPrtTextElt},
};

// The compiler's own name of a class: its length, then the name.
const Row& RowOf(const std::type_info& iType) {
    const char* const name = iType.name() + std::strspn(iType.name(), "0123456789");
    for (const Row& row : g_rows)
        if (std::strcmp(row.name, name) == 0) return row;
    ADD_FAILURE() << name << " has no row";
    return g_rows[0];
}

template <class Element>
class EveryElement : public testing::Test {};
TYPED_TEST_SUITE(EveryElement, AllElements, );

} // namespace

TYPED_TEST(EveryElement, HasItsOwnMetaObject) {
    const Row& row = RowOf(typeid(TypeParam));
    const bool isBase = std::strcmp(row.name, "VEKPrtGraphicPrimitiveElt") == 0;
    EXPECT_EQ(TypeParam::CreateItself(), nullptr);
    VEKMetaClass* const meta = TypeParam::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(*row.cache, meta);
    EXPECT_STREQ(meta->GetName(), row.name);
    EXPECT_EQ(meta->GetSize(), row.size);
    EXPECT_EQ(row.size, static_cast<long>(sizeof(TypeParam)));
    EXPECT_EQ(meta->GetBase(),
              isBase ? VEKBaseUnknown::MetaObject() : VEKPrtGraphicPrimitiveElt::MetaObject());
    EXPECT_EQ(TypeParam::ClassName(), meta->GetName());
    EXPECT_EQ(TypeParam::ClassId(), meta->GetId());
    EXPECT_EQ(TypeParam::ClassId(), "PrintBase." + std::string(row.name));
    const auto element = Make<TypeParam>();
    EXPECT_EQ(element->GetMetaObject(), meta);
    EXPECT_EQ(element->IsA(), meta->GetName());
    for (const char* const kind : {row.name, "VEKPrtGraphicPrimitiveElt", "VEKBaseUnknown"})
        EXPECT_EQ(element->IsAKindOf(kind), 1) << kind;
    EXPECT_EQ(element->IsAKindOf(isBase ? "VEKPrtLineElt" : "VEKPrtModel"), 0);

    struct Derived : TypeParam {
        VEKMetaClass* GetMetaObject() const override { return nullptr; }
    };
    EXPECT_EQ(Make<Derived>()->IsA(), meta->GetName()) << "the class that the query stands in";
    EXPECT_EQ(Make<Derived>()->IsAKindOf(row.name), 1);
    VEKMetaClass* const other = VEKBaseUnknown::MetaObject();
    *row.cache = other;
    EXPECT_EQ(TypeParam::MetaObject(), other) << "what the cache holds is not looked up again";
    *row.cache = meta;
}

// In a process of its own, in which no class is registered yet.
TEST(Registration, TriesAgainButNotForItsBase) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto check = [] {
        AllocationFaults none(0, true);
        bool right = !VEKPrtLineElt::MetaObject() && !VEKPrtLineElt::ClassName() && !VEKPrtLineElt::ClassId();
        none.Stop();
        // The root alone fails; what is registered without it stays so.
        AllocationFaults root(0, false);
        const VEKMetaClass* const line = VEKPrtLineElt::MetaObject();
        right = right && root.Stop() == 1 && line &&
                line->GetBase() == meta_object__25VEKPrtGraphicPrimitiveElt && line->GetBase() &&
                !line->GetBase()->GetBase() && VEKBaseUnknown::MetaObject() &&
                VEKPrtGraphicPrimitiveElt::MetaObject() == line->GetBase() && !line->GetBase()->GetBase() &&
                line->IsAKindOf("VEKBaseUnknown") == 0 && line->IsAKindOf("VEKPrtGraphicPrimitiveElt") == 1;
        std::exit(right ? 0 : 1);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(0), "");
}

TYPED_TEST(EveryElement, CarriesIdentityOnlyWhereItShould) {
    const auto source = Make<TypeParam>();
    source->SetID("id");
    source->SetDescription("description");
    source->SetTitle("title");
    const bool isBase = std::is_same<TypeParam, VEKPrtGraphicPrimitiveElt>::value;
    const std::set<std::string> containers = {"VEKPrtImageElt",        "VEKPrtGroupElt",
                                              "VEKPrtPatternElt",      "VEKPrtSymbolElt",
                                              "VEKPrtClosedFigureElt", "VEKPrtClosedFigureRegionElt"};
    const auto expectIdentity = [](const VEKPrtGraphicPrimitiveElt& iElement, bool iCarried,
                                   const char* iWhat) {
        VEKUnicodeString description, title;
        iElement.GetDescription(description);
        iElement.GetTitle(title);
        EXPECT_EQ(Id(iElement), iCarried ? "id" : "") << iWhat;
        EXPECT_STREQ(description.ToUtf8(), iCarried ? "description" : "") << iWhat;
        EXPECT_STREQ(title.ToUtf8(), iCarried ? "title" : "") << iWhat;
    };
    expectIdentity(*Make<TypeParam>(*source), isBase, "copied");
    const auto assigned = Make<TypeParam>();
    EXPECT_EQ(&(*assigned = *source), assigned.Get());
    expectIdentity(*assigned, true, "assigned");
    *assigned = *std::as_const(assigned).Get();
    expectIdentity(*assigned, true, "assigned to itself");
    const auto copy = Duplicated(*source);
    ASSERT_TRUE(copy);
    EXPECT_EQ(typeid(*copy), typeid(TypeParam));
    EXPECT_EQ(Count(copy), 1UL);
    expectIdentity(*copy, containers.count(TypeParam::ClassName()) == 0, "duplicated");
    WithSelfCopy<TypeParam>(
        [&](const TypeParam& iCopy) { expectIdentity(iCopy, false, "copied from itself"); });
}

TYPED_TEST(EveryElement, DuplicateYieldsNullWhenMemoryIsOut) {
    const auto source = Make<TypeParam>();
    WithFault(0, [&] { EXPECT_FALSE(Duplicated(*source)); });
}

TEST(BaseElement, DuplicateLeavesTheDataWordsOut) {
    const auto source = Make<VEKPrtGraphicPrimitiveElt>();
    int host = 0;
    source->SetImpl(&host);
    EXPECT_EQ(Duplicated(*source)->GetImpl(), nullptr);
    EXPECT_EQ(Make<VEKPrtGraphicPrimitiveElt>(*source)->GetImpl(), nullptr);
}

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
