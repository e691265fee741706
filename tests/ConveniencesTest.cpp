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

// A page that holds a line in a group, and in the region of a figure in that group; the model holds the page.
TEST(Walk, FindsTheFirstAndEndsInACycle) {
    const auto model = Make<VEKPrtModel>();
    const auto page = Make<VEKPrtImageElt>();
    const auto group = Make<VEKPrtGroupElt>();
    const auto figure = Make<VEKPrtClosedFigureElt>();
    const auto region = Make<VEKPrtClosedFigureRegionElt>();
    const auto line = Make<VEKPrtLineElt>();
    page->SetID("page");
    line->SetID("the \"line\"");
    model->AddImage(page.Get());
    page->AddChild(group.Get());
    group->AddChild(figure.Get());
    group->AddChild(line.Get());
    figure->AddChild(region.Get());
    region->AddChild(line.Get());
    const double points[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    group->AddChild(Make<VEKPrtPolygonElt>(points, 5).Get());
    std::ostringstream text;
    Dump(text, *model);
    const std::string shared = "VEKPrtLineElt id=\"the \\\"line\\\"\" references=3 start=0,0 end=0,0\n";
    EXPECT_EQ(text.str(), "VEKPrtImageElt id=\"page\" references=2 origin=0,0 width=0 height=0 colours=0\n"
                          "  VEKPrtGroupElt references=2\n    VEKPrtClosedFigureElt references=2\n"
                          "      VEKPrtClosedFigureRegionElt references=2\n        " +
                              shared + "    " + shared +
                              "    VEKPrtPolygonElt references=1 count=5 points=1,2,3,4,5,6,7,8,...(10)\n");

    EXPECT_EQ(FindByID(*model, "page"), page.Get());
    EXPECT_EQ(FindByID(*group, "page"), nullptr);
    EXPECT_EQ(HolderOf(*model, *line), group.Get());
    EXPECT_EQ(HolderOf(*page, *region), figure.Get());
    EXPECT_EQ(HolderOf(*model, *page), nullptr) << "the model is no element";
    region->AddChild(page.Get());
    int visits = 0;
    Walk(*model, [&](VEKPrtGraphicPrimitiveElt&, int) { return ++visits, true; });
    EXPECT_EQ(visits, 7);
    region->RemoveChild(page.Get());
    Walk(*page, [&](VEKPrtGraphicPrimitiveElt&, int iDepth) { return ++visits, iDepth < 1; });
    EXPECT_EQ(visits, 7 + 2) << "false: the children are passed over";
    const VEKRef<VEKPrtLineElt> copy = DuplicateOf(std::as_const(*line));
    EXPECT_EQ(Id(*copy), Id(*line));
    EXPECT_EQ(Count(copy), 1UL);
    WithFault(0, [&] { EXPECT_FALSE(DuplicateOf(*line)); });
}

TEST(Walk, LooksOnceAtWhatIsHeldManyTimes) {
    // Each of 60 groups is held twice by the one around it.
    auto outer = Make<VEKPrtGroupElt>();
    for (int i = 0; i < 60; ++i) {
        const auto around = Make<VEKPrtGroupElt>();
        around->AddChild(outer.Get());
        around->AddChild(outer.Get());
        outer = around;
    }
    EXPECT_EQ(FindByID(*outer, "absent"), nullptr);
}
