#include <algorithm>
#include <cstring>
#include <typeinfo>

#include "TestSupport.h"
#include "VEKMetaClass.h"

namespace {

// By hand: what the library passes, and the compiler's own idea of a class, must agree with it.
struct Row {
    const char* name;
    VEKMetaClass** cache;
};
const Row g_rows[] = {
    {"VEKPrtGraphicPrimitiveElt", &meta_object__25VEKPrtGraphicPrimitiveElt},
    {"VEKPrtBitmapImageElt", &meta_object__20VEKPrtBitmapImageElt},
    {"VEKPrtCircleElt", &meta_object__15VEKPrtCircleElt},
    {"VEKPrtCircularArcElt", &meta_object__20VEKPrtCircularArcElt},
    {"VEKPrtClosedFigureElt", &meta_object__21VEKPrtClosedFigureElt},
    {"VEKPrtClosedFigureRegionElt", &meta_object__27VEKPrtClosedFigureRegionElt},
    {"VEKPrtDisjointPolylineElt", &meta_object__25VEKPrtDisjointPolylineElt},
    {"VEKPrtEllipseElt", &meta_object__16VEKPrtEllipseElt},
    {"VEKPrtEllipticalArcElt", &meta_object__22VEKPrtEllipticalArcElt},
    {"VEKPrtGroupElt", &meta_object__14VEKPrtGroupElt},
    {"VEKPrtImageElt", &meta_object__14VEKPrtImageElt},
    {"VEKPrtLineElt", &meta_object__13VEKPrtLineElt},
    {"VEKPrtMarkerElt", &meta_object__15VEKPrtMarkerElt},
    {"VEKPrtNURBSElt", &meta_object__14VEKPrtNURBSElt},
    {"VEKPrtPatternElt", &meta_object__16VEKPrtPatternElt},
    {"VEKPrtPolyCubicBezierElt", &meta_object__24VEKPrtPolyCubicBezierElt},
    {"VEKPrtPolyPolygonElt", &meta_object__20VEKPrtPolyPolygonElt},
    {"VEKPrtPolyQuadraticBezierElt", &meta_object__28VEKPrtPolyQuadraticBezierElt},
    {"VEKPrtPolygonElt", &meta_object__16VEKPrtPolygonElt},
    {"VEKPrtPolylineElt", &meta_object__17VEKPrtPolylineElt},
    {"VEKPrtRectangleElt", &meta_object__18VEKPrtRectangleElt},
    {"VEKPrtSymbolElt", &meta_object__15VEKPrtSymbolElt},
    {"VEKPrtTextElt", &meta_object__13VEKPrtTextElt},
};

SUITE_OF(EveryElement, AllElements);

} // namespace

TYPED_TEST(EveryElement, HasItsOwnMetaObject) {
    // The compiler's own name of a class: its length, then the name.
    const char* const name = typeid(TypeParam).name() + std::strspn(typeid(TypeParam).name(), "0123456789");
    const auto* const row = std::find_if(std::begin(g_rows), std::end(g_rows),
                                         [&](const Row& iRow) { return std::strcmp(iRow.name, name) == 0; });
    ASSERT_NE(row, std::end(g_rows)) << name << " has no row";
    constexpr bool isBase = std::is_same_v<TypeParam, VEKPrtGraphicPrimitiveElt>;
    EXPECT_EQ(TypeParam::CreateItself(), nullptr);
    VEKMetaClass* const meta = TypeParam::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(*row->cache, meta);
    EXPECT_STREQ(meta->GetName(), row->name);
    EXPECT_EQ(meta->GetSize(), static_cast<long>(sizeof(TypeParam)));
    EXPECT_EQ(meta->GetBase(),
              isBase ? VEKBaseUnknown::MetaObject() : VEKPrtGraphicPrimitiveElt::MetaObject());
    EXPECT_EQ(TypeParam::ClassName(), meta->GetName());
    EXPECT_EQ(TypeParam::ClassId(), meta->GetId());
    EXPECT_EQ(TypeParam::ClassId(), "PrintBase." + std::string(row->name));
    const auto element = Make<TypeParam>();
    EXPECT_EQ(element->GetMetaObject(), meta);
    EXPECT_EQ(element->IsA(), meta->GetName());
    for (const char* const kind : {row->name, "VEKPrtGraphicPrimitiveElt"})
        EXPECT_EQ(element->IsAKindOf(kind), 1) << kind;
    EXPECT_EQ(element->IsAKindOf("VEKBaseUnknown"), VEKBaseUnknown::MetaObject() ? 1 : 0)
        << "the host's root";
    EXPECT_EQ(element->IsAKindOf(isBase ? "VEKPrtLineElt" : "VEKPrtModel"), 0);

    struct Derived : TypeParam {
        VEKMetaClass* GetMetaObject() const override { return nullptr; }
    };
    EXPECT_EQ(Make<Derived>()->IsA(), meta->GetName()) << "the class that the query stands in";
    EXPECT_EQ(Make<Derived>()->IsAKindOf(row->name), 1);
    VEKMetaClass* const other = isBase ? VEKPrtLineElt::MetaObject() : meta->GetBase();
    *row->cache = other;
    EXPECT_EQ(TypeParam::MetaObject(), other) << "what the cache holds is not looked up again";
    *row->cache = meta;
}

TYPED_TEST(EveryElement, CarriesIdentityOnlyWhereItShould) {
    constexpr bool isBase = std::is_same_v<TypeParam, VEKPrtGraphicPrimitiveElt>;
    constexpr bool isHolder = In<TypeParam, Holders>;
    const auto source = Make<TypeParam>();
    int host = 0;
    source->SetID("id");
    source->SetDescription("description");
    source->SetTitle("title");
    source->SetImpl(&host);
    const auto expectIdentity = [&](TypeParam& ioElement, bool iCarried, bool iData, const char* iWhat) {
        VEKUnicodeString description, title;
        ioElement.GetDescription(description);
        ioElement.GetTitle(title);
        EXPECT_EQ(Id(ioElement), iCarried ? "id" : "") << iWhat;
        EXPECT_STREQ(description.ToUtf8(), iCarried ? "description" : "") << iWhat;
        EXPECT_STREQ(title.ToUtf8(), iCarried ? "title" : "") << iWhat;
        EXPECT_EQ(ioElement.GetImpl(), iData ? &host : nullptr) << iWhat;
    };
    const auto assigned = Make<TypeParam>();
    EXPECT_EQ(&(*assigned = *source), assigned.Get());
    *assigned = *std::as_const(assigned).Get();
    expectIdentity(*assigned, true, true, "assigned, also to itself");
    expectIdentity(*Make<TypeParam>(*source), isBase, false, "copied");
    const auto copy = Duplicated(*source);
    ASSERT_TRUE(copy);
    EXPECT_EQ(typeid(*copy), typeid(TypeParam));
    EXPECT_EQ(Count(copy), 1UL);
    expectIdentity(*copy, !isHolder, !isBase && !isHolder, "duplicated");
    WithSelfCopy<TypeParam>(
        [&](TypeParam& ioCopy) { expectIdentity(ioCopy, false, false, "copied from itself"); });
}
