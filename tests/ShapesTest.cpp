// The fields of all elements, the recipes of their duplication, and the images of their fills.
#include "Fields.h"

namespace {

SUITE_OF(ElementFields, AllElements);
SUITE_OF(EveryStroked, Stroked);
SUITE_OF(DuplicateFill, Filled);

template <class Element>
void ExpectValues(Element& ioElement, const Fields<Element>& iFields, std::size_t iValue, const char* iWhat) {
    for (const auto& field : iFields)
        EXPECT_TRUE(field.has(ioElement, iValue))
            << Element::ClassName() << ' ' << iWhat << ' ' << field.name;
}

// Constructed from the second values of its fields, with new records.
template <class Element, class... Arguments>
void ExpectConstructed(Arguments... iArguments) {
    const auto element = Make<Element>(iArguments...);
    ExpectValues(*element, FieldsOf<Element>(), 1, "constructed");
    ExpectValues(*element, RecordsOf<Element>(), 0, "constructed");
}

// Those that are duplicated by copying, then assignment; the others are constructed by default first.
using CopiedFirst =
    testing::Types<VEKPrtRectangleElt, VEKPrtPolylineElt, VEKPrtPolygonElt, VEKPrtPolyCubicBezierElt,
                   VEKPrtPolyQuadraticBezierElt, VEKPrtPolyPolygonElt, VEKPrtNURBSElt>;

} // namespace

TYPED_TEST(ElementFields, AreKeptAndCopied) {
    Fields<TypeParam> fields = FieldsOf<TypeParam>();
    for (const auto& record : RecordsOf<TypeParam>())
        fields.push_back(record);
    const auto changed = Make<TypeParam>(), assigned = Make<TypeParam>();
    for (const auto& field : fields) {
        for (std::size_t value = field.count - 1; value > 0; --value) {
            const auto one = Make<TypeParam>();
            EXPECT_TRUE(field.has(*one, 0)) << "new " << field.name;
            field.set(*one, value);
            EXPECT_TRUE(field.has(*one, value)) << field.name << " set";
        }
        field.set(*changed, 1);
    }
    *assigned = *changed;
    ExpectValues(*changed, fields, 1, "set one after the other");
    ExpectValues(*assigned, fields, 1, "assigned");
    ExpectValues(*Make<TypeParam>(*changed), fields, 1, "copied");
    ExpectValues(*Duplicated(*changed), fields, 1, "duplicated");
    WithSelfCopy<TypeParam>(
        [&](TypeParam& ioCopy) { ExpectValues(ioCopy, fields, 0, "copied from itself"); });
}

TEST(Elements, AreConstructedFromTheirParameters) {
    const Point a(1, 2), b(-3, 1);
    ExpectConstructed<VEKPrtLineElt>(a, b);
    ExpectConstructed<VEKPrtRectangleElt>(a, b);
    ExpectConstructed<VEKPrtCircleElt>(a, -3.0);
    ExpectConstructed<VEKPrtCircularArcElt>(a, 3.0, 400.0F, -5.0F);
    ExpectConstructed<VEKPrtEllipseElt>(a, 3.0, -4.0, 5.0F);
    ExpectConstructed<VEKPrtEllipticalArcElt>(a, 3.0, 2.0, 20.0F, 10.0F, 30.0F);
    ExpectConstructed<VEKPrtMarkerElt>(a, -3.0);
    ExpectConstructed<VEKPrtTextElt>(a, VEKUnicodeString("x"));
    ExpectConstructed<VEKPrtBitmapImageElt>(a, 3.0, 4.0, 0.1, nullptr);
    ExpectConstructed<VEKPrtImageElt>(a, 3.0, 4.0, static_cast<VEKPrtImageUnits>(-123456),
                                      Matrix(1, 2, 3, 4));
    ExpectConstructed<VEKPrtPatternElt>(a, 3.0, 4.0);
    ExpectConstructed<VEKPrtSymbolElt>(a, 3.0, 4.0);
}

TYPED_TEST(EveryStroked, DuplicatesByItsRecipe) {
    constexpr bool copiesFirst = In<TypeParam, CopiedFirst>;
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

TYPED_TEST(DuplicateFill, ShapesLeaveAReferenceBehind) {
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
        const auto duplicate = Duplicated(*shape);
        duplicate->GetFillAttributes(fill);
        EXPECT_EQ(ImageOf(fill) == image.Get(), isText) << "the text shares its image, the others copy it";
        EXPECT_EQ(Count(image), isText ? 6UL : leaves ? 5UL : 4UL);
    }
    fill = Fill();
    EXPECT_EQ(Count(image), leaves ? 3UL : 2UL);
    if (leaves) image->Release();
}
