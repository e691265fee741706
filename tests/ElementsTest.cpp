// What all element classes have in common: the meta-object family, identity strings, fields, and the recipes
// of duplication.
#include <algorithm>
#include <cstring>
#include <typeinfo>

#define DEFINES_ROWS
#include "Rows.h"
#include "VEKMetaClass.h"

namespace {

using Base = VEKPrtGraphicPrimitiveElt;
template <class Element>
constexpr bool isBase = std::is_same_v<Element, Base>;

SUITE_OF(EveryElement, AllElements);
SUITE_OF(EveryStroked, ElementsWith<HasStroke>);
SUITE_OF(EveryFilled, ElementsWith<HasFill>);

} // namespace

TYPED_TEST(EveryElement, HasItsOwnMetaObject) {
    using Row = Row<TypeParam>;
    VEKMetaClass* const meta = TypeParam::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(Row::Cache(), meta);
    EXPECT_STREQ(meta->GetName(), Row::name);
    EXPECT_EQ(meta->GetSize(), static_cast<long>(sizeof(TypeParam)));
    EXPECT_EQ(meta->GetBase(), isBase<TypeParam> ? VEKBaseUnknown::MetaObject() : Base::MetaObject());
    EXPECT_EQ(TypeParam::ClassName(), meta->GetName());
    EXPECT_EQ(TypeParam::ClassId(), "PrintBase." + std::string(Row::name));
    EXPECT_EQ(TypeParam::CreateItself(), nullptr);
    const auto element = Make<TypeParam>();
    EXPECT_EQ(element->GetMetaObject(), meta);
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
    VEKMetaClass* const other = isBase<TypeParam> ? VEKPrtLineElt::MetaObject() : meta->GetBase();
    Row::Cache() = other;
    EXPECT_EQ(TypeParam::MetaObject(), other) << "what the cache holds is not looked up again";
    Row::Cache() = meta;
}

TYPED_TEST(EveryElement, CarriesIdentityOnlyWhereItShould) {
    constexpr bool byConstruction = Row<TypeParam>::recipe == Duplication::ByConstruction;
    const auto source = Make<TypeParam>(), assigned = Make<TypeParam>();
    int host = 0;
    SetFields<Base>(*source);
    source->SetImpl(&host);
    const auto expectIdentity = [&](const TypeParam& iElement, bool iCarried, bool iData, const char* iWhat) {
        ExpectFields<Base>(iElement, iCarried ? 1 : 0, iWhat);
        EXPECT_EQ(iElement.GetImpl(), iData ? &host : nullptr) << iWhat;
    };
    EXPECT_EQ(&(*assigned = *source), assigned.Get());
    *assigned = *std::as_const(assigned).Get();
    expectIdentity(*assigned, true, true, "assigned, also to itself");
    expectIdentity(*Make<TypeParam>(*source), isBase<TypeParam>, false, "copied");
    const auto copy = Duplicated(*source);
    ASSERT_TRUE(copy);
    EXPECT_EQ(typeid(*copy), typeid(TypeParam));
    EXPECT_EQ(Count(copy), 1UL);
    expectIdentity(*copy, !byConstruction || isBase<TypeParam>, !byConstruction, "duplicated");
}

TYPED_TEST(EveryElement, KeepsAndCopiesItsFields) {
    const auto fields = FieldsOf<TypeParam>();
    const auto changed = Make<TypeParam>(), assigned = Make<TypeParam>();
    for (const auto& field : fields) {
        for (std::size_t value = field.count; value-- > 0;) {
            const auto one = Make<TypeParam>();
            EXPECT_TRUE(field.has(*one, 0)) << Row<TypeParam>::name << " new";
            field.set(*one, value);
            EXPECT_TRUE(field.has(*one, value)) << Row<TypeParam>::name << " set";
        }
        if (!field.construct) continue;
        const auto constructed = VEKRef<TypeParam>::Adopt(field.construct());
        for (const auto& other : fields)
            if (other.count > 0) {
                EXPECT_TRUE(other.has(*constructed, &other < &field ? 1 : 0))
                    << Row<TypeParam>::name << " constructed";
            }
    }
    SetFields(*changed);
    *assigned = *changed;
    ExpectFields(*changed, 1, "set one after the other");
    ExpectFields(*assigned, 1, "assigned");
    ExpectFields(*Make<TypeParam>(*changed), 1, "copied");
    ExpectFields(*Duplicated(*changed), 1, "duplicated");
    SetFields(*changed, 0);
    ExpectFields(*changed, 0, "set back");
    ExpectFields(*assigned, 1, "assigned, when the source has changed");
    *assigned = *Make<TypeParam>();
    ExpectFields(*assigned, 0, "assigned from a new one");
}

TYPED_TEST(EveryStroked, DuplicatesByItsRecipe) {
    constexpr bool copiesFirst = Row<TypeParam>::recipe == Duplication::ByCopying;
    const auto source = Make<TypeParam>();
    source->SetStrokeAttributes(Dashed({1, 2}));
    const long before = Allocations();
    Duplicated(*source);
    EXPECT_EQ(Allocations() - before, copiesFirst ? 3 : 2)
        << "the element, and the dashes once for each step of the recipe";
    VEKRef<TypeParam> copy;
    WithFault(1, [&] { copy = Duplicated(*source); });
    Stroke copied;
    copy->GetStrokeAttributes(copied);
    EXPECT_EQ(copied == Dashed({1, 2}), copiesFirst)
        << "where copying came first, the assignment has another try";
}

TYPED_TEST(EveryFilled, DuplicatesItsPatternImage) {
    constexpr bool isText = std::is_same_v<TypeParam, VEKPrtTextElt>;
    constexpr bool leaves = !isText && !isFigure<TypeParam>;
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
