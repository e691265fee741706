// What element classes have in common beside their operations: the meta-object family, constructors from
// values, and the recipes of duplication.

#define DEFINES_ROWS
#include "Rows.h"
#include "VEKMetaClass.h"

namespace {

using Base = VEKPrtGraphicPrimitiveElt;

SUITE_OF(EveryElement, AllElements);
SUITE_OF(EveryStroked, ElementsWith<HasStroke>);
SUITE_OF(EveryFilled, ElementsWith<HasFill>);

} // namespace

TYPED_TEST(EveryElement, HasItsOwnMetaObject) {
    using Row = Row<TypeParam>;
    constexpr bool isBase = std::is_same_v<TypeParam, Base>;
    VEKMetaClass* const meta = TypeParam::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(Row::Cache(), meta);
    EXPECT_STREQ(meta->GetName(), Row::name);
    EXPECT_EQ(meta->GetSize(), static_cast<long>(sizeof(TypeParam)));
    EXPECT_EQ(meta->GetBase(), isBase ? VEKBaseUnknown::MetaObject() : Base::MetaObject());
    EXPECT_EQ(TypeParam::ClassName(), meta->GetName());
    EXPECT_EQ(TypeParam::ClassId(), "PrintBase." + std::string(Row::name));
    EXPECT_EQ(TypeParam::CreateItself(), nullptr);
    const auto element = Make<TypeParam>();
    EXPECT_EQ(element->GetMetaObject(), meta);
    EXPECT_EQ(Duplicated(*element)->GetMetaObject(), meta);
    EXPECT_EQ(element->IsA(), meta->GetName());
    for (const char* const kind : {Row::name, ::Row<Base>::name})
        EXPECT_EQ(element->IsAKindOf(kind), 1) << kind;
    EXPECT_EQ(element->IsAKindOf("VEKBaseUnknown"), VEKBaseUnknown::MetaObject() ? 1 : 0)
        << "the host's root";
    EXPECT_EQ(element->IsAKindOf("VEKPrtModel"), 0);

    struct Derived : TypeParam {
        VEKMetaClass* GetMetaObject() const override { return nullptr; }
    };
    EXPECT_EQ(Make<Derived>()->IsA(), meta->GetName()) << "the class that the query stands in";
    EXPECT_EQ(Make<Derived>()->IsAKindOf(Row::name), 1);
    VEKMetaClass* const other = isBase ? VEKPrtLineElt::MetaObject() : meta->GetBase();
    Row::Cache() = other;
    EXPECT_EQ(TypeParam::MetaObject(), other) << "what the cache holds is not looked up again";
    Row::Cache() = meta;
}

TYPED_TEST(EveryElement, TakesTheValuesOfItsConstructor) {
    const auto fields = FieldsOf<TypeParam>();
    for (const auto& field : fields) {
        if (!field.construct) continue;
        const auto constructed = VEKRef<VEKBaseUnknown>::Adopt(field.construct());
        for (const auto& other : fields)
            EXPECT_TRUE(other.has(*constructed, &other < &field ? 1 : 0)) << Row<TypeParam>::name;
    }
}

TYPED_TEST(EveryStroked, DuplicatesByItsRecipe) {
    constexpr bool copiesFirst = Row<TypeParam>::recipe == Duplication::ByCopying;
    const auto source = Make<TypeParam>();
    source->SetStrokeAttributes(Dashed({1, 2}));
    VEKRef<TypeParam> copy;
    WithFault(1, [&] { copy = Duplicated(*source); });
    Stroke copied;
    copy->GetStrokeAttributes(copied);
    EXPECT_EQ(copied == Dashed({1, 2}), copiesFirst)
        << "where copying came first, the assignment has another try";
}

TYPED_TEST(EveryFilled, DuplicatesItsPatternImage) {
    constexpr bool isText = std::is_same_v<TypeParam, VEKPrtTextElt>;
    constexpr bool leaves = !isText && Row<TypeParam>::recipe != Duplication::ByConstruction;
    const auto image = Make<VEKPixelImage>(1, 1);
    const auto shape = Make<TypeParam>();
    Fill fill;
    fill.SetPattern(image.Get(), Vector(0, 0), Vector(0, 0));
    shape->SetFillAttributes(fill);
    EXPECT_EQ(Count(image), 3UL);
    {
        const auto copy = Make<TypeParam>(*shape), assigned = Make<TypeParam>();
        *assigned = *shape;
        EXPECT_EQ(Count(image), 5UL);
        Duplicated(*shape)->GetFillAttributes(fill);
        EXPECT_EQ(ImageOf(fill) == image.Get(), isText) << "a text shares its image, the others copy it";
    }
    fill = Fill();
    EXPECT_EQ(Count(image), leaves ? 3UL : 2UL) << "shapes leave a reference behind";
    if (leaves) image->Release();
}
