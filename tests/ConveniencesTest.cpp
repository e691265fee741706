#include <sstream>

#include "TestSupport.h"
#include "VEKPrtDump.h"

TEST(Ref, AdoptsSharesAndConverts) {
    auto ref = Make<VEKPrtLineElt>();
    VEKPrtLineElt* const line = ref.Get();
    const auto shared = VEKRef<VEKPrtLineElt>::Share(line);
    EXPECT_EQ(Count(line), 2UL);
    ref = *&ref;
    VEKRef<VEKPrtGraphicPrimitiveElt> element = ref;
    EXPECT_EQ(Count(line), 3UL);
    element = std::move(ref);
    EXPECT_EQ(Count(line), 2UL) << "a moved reference is not counted again";
    EXPECT_TRUE(element == shared && element != ref && !(shared < shared));
    WithFault(0, [] { EXPECT_THROW(Make<VEKPrtLineElt>(), std::bad_alloc); });
}

namespace {

// A drawing with every holder in it, and one line that three of them share.
struct Drawing {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> page =
        Make<VEKPrtImageElt>(VEKMathPoint2D(1, 2), 30.0, 40.0, VEKPrtImageInch, VEKMath2x2Matrix());
    VEKRef<VEKPrtGroupElt> group = Make<VEKPrtGroupElt>();
    VEKRef<VEKPrtPatternElt> pattern = Make<VEKPrtPatternElt>();
    VEKRef<VEKPrtLineElt> line = Make<VEKPrtLineElt>(VEKMathPoint2D(0.5, 1), VEKMathPoint2D(2, 3));

    Drawing() {
        const auto symbol = Make<VEKPrtSymbolElt>(VEKMathPoint2D(1, 2), 3.0, 4.0);
        const auto figure = Make<VEKPrtClosedFigureElt>();
        const auto region = Make<VEKPrtClosedFigureRegionElt>();
        page->SetID("page");
        line->SetID("the \"line\"");
        model->AddImage(page.Get());
        page->AddChild(group.Get());
        group->AddChild(pattern.Get());
        group->AddChild(symbol.Get());
        group->AddChild(figure.Get());
        pattern->AddChild(line.Get());
        symbol->AddChild(line.Get());
        figure->AddChild(region.Get());
        region->AddChild(line.Get());
    }
};

} // namespace

TEST(Children, ArePassedOverWhereTheyAreNull) {
    const auto group = Make<VEKPrtGroupElt>();
    EXPECT_TRUE(ChildrenOf(*group).IsEmpty());
    for (const char* const id : {"a", "b", "c"}) {
        const auto line = Make<VEKPrtLineElt>();
        line->SetID(id);
        group->AddChild(line.Get());
        ListOf(*group)->Append(nullptr);
    }
    EXPECT_EQ(IdsIn(*group), "abc");
    ListOf(*group)->RemovePosition(2);
    const auto children = ChildrenOf(*group);
    EXPECT_EQ(std::distance(children.begin(), children.end()), 3);
    for (VEKPrtGraphicPrimitiveElt& child : children)
        group->RemoveChild(&child);
    EXPECT_EQ(IdsIn(*group), "b") << "a removed child moves the next one up, which is passed over";
}

TEST(Children, AreInsertedAtAPosition) {
    const auto group = Make<VEKPrtGroupElt>();
    const auto figure = Make<VEKPrtClosedFigureElt>();
    for (const auto& [id, position] :
         {std::pair("b", 1), std::pair("a", 1), std::pair("d", 9), std::pair("c", 3)}) {
        const auto child = Make<VEKPrtLineElt>();
        const auto region = Make<VEKPrtClosedFigureRegionElt>();
        child->SetID(id);
        region->SetID(id);
        InsertChild(*group, child.Get(), position);
        InsertChild(*figure, region.Get(), position);
        EXPECT_EQ(Count(child), 2UL) << id;
    }
    InsertChild(*group, group.Get(), 2);
    EXPECT_EQ(IdsIn(*group), "abcd") << "what AddChild refuses moves nothing";
    EXPECT_EQ(IdsIn(*figure), "abcd");
}

namespace {

// The name of the class that a visitor is called with.
struct NameOfClass {
    template <class Element>
    std::string operator()(const Element&) const {
        return Element::ClassName();
    }
};
// Without a general overload.
struct OnlyTransformed {
    template <class Element>
    typename std::enable_if<HasTransform<Element>::value, int>::type operator()(Element&) const {
        return 1;
    }
    int operator()(VEKPrtImageElt&) const { return 2; }
};

template <class... Elements>
void ExpectVisitedAsThemselves(ClassList<Elements...>) {
    const std::pair<std::string, std::string> visits[] = {
        {Visit(std::as_const(*Make<Elements>()), NameOfClass()), Elements::ClassName()}...};
    for (const auto& [visited, name] : visits)
        EXPECT_EQ(visited, name);
}

} // namespace

TEST(Visit, CallsWithTheElementsOwnClassOrItsBase) {
    ExpectVisitedAsThemselves(ElementClasses());
    struct Client : VEKPrtCircleElt {
        VEKMetaClass* GetMetaObject() const override { return VEKPrtGraphicPrimitiveElt::MetaObject(); }
    };
    struct Unregistered : VEKPrtCircleElt {
        VEKMetaClass* GetMetaObject() const override { return nullptr; }
        int IsAKindOf(const char*) const override { return 0; }
    };
    EXPECT_EQ(Visit(*Make<Client>(), NameOfClass()), "VEKPrtCircleElt");
    EXPECT_EQ(Visit(*Make<VEKPrtGraphicPrimitiveElt>(), NameOfClass()), "VEKPrtGraphicPrimitiveElt");
    EXPECT_EQ(Visit(*Make<Unregistered>(), NameOfClass()), "VEKPrtGraphicPrimitiveElt");
    EXPECT_EQ(Visit(*Make<VEKPrtGroupElt>(), OnlyTransformed()), 1);
    EXPECT_EQ(Visit(*Make<VEKPrtImageElt>(), OnlyTransformed()), 2);
    EXPECT_EQ(Visit(*Make<VEKPrtGraphicPrimitiveElt>(), OnlyTransformed()), 0) << "no overload: a default";
}

TEST(Walk, EndsInACycleAndWhereItIsTold) {
    Drawing drawing;
    int visits = 0;
    drawing.group->AddChild(drawing.page.Get());
    Walk(*drawing.model, [&](VEKPrtGraphicPrimitiveElt&, int) { return ++visits, true; });
    EXPECT_EQ(visits, 9) << "the line once for each that holds it";
    drawing.group->RemoveChild(drawing.page.Get());
    visits = 0;
    Walk(*drawing.page, [&](VEKPrtGraphicPrimitiveElt&, int iDepth) { return ++visits, iDepth < 1; });
    EXPECT_EQ(visits, 2) << "false: the children are passed over";
}

TEST(Walk, FindsTheFirst) {
    Drawing drawing;
    EXPECT_EQ(FindByID(*drawing.model, "page"), drawing.page.Get());
    EXPECT_EQ(FindByID(*drawing.group, "the \"line\""), drawing.line.Get());
    EXPECT_EQ(FindByID(*drawing.group, "page"), nullptr);
    EXPECT_EQ(HolderOf(*drawing.model, *drawing.line), drawing.pattern.Get());
    EXPECT_EQ(HolderOf(*drawing.page, *drawing.pattern), drawing.group.Get());
    EXPECT_EQ(HolderOf(*drawing.model, *drawing.page), nullptr) << "the model is no element";
    // Each of 60 groups is held twice by the one around it.
    VEKRef<VEKPrtGroupElt> outer = Make<VEKPrtGroupElt>();
    for (int i = 0; i < 60; ++i) {
        const auto around = Make<VEKPrtGroupElt>();
        around->AddChild(outer.Get());
        around->AddChild(outer.Get());
        outer = around;
    }
    EXPECT_EQ(FindByID(*outer, "absent"), nullptr);
    const VEKPrtLineElt& line = *drawing.line;
    const VEKRef<VEKPrtLineElt> copy = DuplicateOf(line);
    EXPECT_EQ(Id(*copy), Id(line));
    EXPECT_EQ(Count(copy), 1UL);
    WithFault(0, [&] { EXPECT_FALSE(DuplicateOf(line)); });
}

TEST(Dump, WritesALineForEachElement) {
    Drawing drawing;
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(7);
    stroke.SetStrokeColourTransparency(10);
    drawing.line->SetStrokeAttributes(stroke);
    VEKPrtTransformAttributes transform;
    transform.AddRotation(30.0F);
    transform.AddTranslation(VEKMathVector2D(1, 2));
    drawing.group->SetTransformAttributes(transform);
    const double points[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const auto polygon = Make<VEKPrtPolygonElt>(points, 5);
    polygon->SetDrawStyle(VEKPrtDrawBoth);
    drawing.page->AddChild(polygon.Get());
    std::ostringstream text;
    Dump(text, *drawing.model);
    const std::string line = "VEKPrtLineElt id=\"the \\\"line\\\"\" references=4 start=0.5,1 end=2,3 "
                             "stroke.colour=7 stroke.transparency=10\n";
    EXPECT_EQ(text.str(),
              "VEKPrtImageElt id=\"page\" references=2 origin=1,2 width=30 height=40 units=inch colours=0\n"
              "  VEKPrtGroupElt references=2 rotation=30 translation=1,2\n"
              "    VEKPrtPatternElt references=2 origin=0,0 width=0 height=0\n      " +
                  line + "    VEKPrtSymbolElt references=1 origin=1,2 width=3 height=4\n      " + line +
                  "    VEKPrtClosedFigureElt references=1\n      VEKPrtClosedFigureRegionElt references=1\n" +
                  "        " + line +
                  "  VEKPrtPolygonElt references=2 count=5 points=1,2,3,4,5,6,7,8,...(10) draw=both\n");
}
