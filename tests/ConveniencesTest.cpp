#include <map>
#include <sstream>

#include "TestSupport.h"
#include "VEKPrtDump.h"

TEST(Ref, AdoptsSharesAndConverts) {
    auto ref = Make<VEKPrtLineElt>();
    VEKPrtLineElt* const line = ref.Get();
    const auto shared = VEKRef<VEKPrtLineElt>::Share(line);
    EXPECT_EQ(Count(line), 2UL);
    EXPECT_TRUE(shared == ref && !(shared != ref) && !(shared < ref));
    ref = *&ref;
    VEKRef<VEKPrtGraphicPrimitiveElt> element = ref;
    EXPECT_EQ(Count(line), 3UL);
    EXPECT_TRUE(element == shared);
    element = std::move(ref);
    EXPECT_EQ(Count(line), 2UL) << "a moved reference is not counted again";
    EXPECT_TRUE(element != VEKRef<VEKPrtLineElt>());
    WithFault(0, [] { EXPECT_THROW(Make<VEKPrtLineElt>(), std::bad_alloc); });
}

namespace {

// A drawing with every holder in it, and one line that three of them share.
struct Drawing {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> page =
        Make<VEKPrtImageElt>(VEKMathPoint2D(1, 2), 30.0, 40.0, VEKPrtImageInch, VEKMath2x2Matrix());
    VEKRef<VEKPrtGroupElt> group = Make<VEKPrtGroupElt>();
    VEKRef<VEKPrtLineElt> line = Make<VEKPrtLineElt>(VEKMathPoint2D(0.5, 1), VEKMathPoint2D(2, 3));

    Drawing() {
        const auto pattern = Make<VEKPrtPatternElt>();
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
    Drawing drawing;
    for (const VEKPrtImageElt& page : ChildrenOf(*drawing.model))
        EXPECT_EQ(&page, drawing.page.Get());
    EXPECT_TRUE(ChildrenOf(*Make<VEKPrtModel>()).IsEmpty());
    EXPECT_TRUE(ChildrenOf(*Make<VEKPrtClosedFigureElt>()).IsEmpty());
    ListOf(*drawing.group)->Append(nullptr);
    int count = 0;
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(*drawing.group))
        count += child.IsAKindOf("VEKPrtGraphicPrimitiveElt");
    EXPECT_EQ(count, 3);
    const auto children = ChildrenOf(*drawing.group);
    EXPECT_EQ(std::distance(children.begin(), children.end()), 3);
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(*drawing.group)) {
        drawing.group->RemoveChild(&child);
        ++count;
    }
    EXPECT_EQ(count, 5) << "a removed child moves the next one up, which is passed over";
}

TEST(Walk, KnowsAllHoldersAndEndsInACycle) {
    Drawing drawing;
    std::map<std::string, int> depths;
    int visits = 0;
    const auto visit = [&](VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
        depths[ioElement.IsA()] = iDepth;
        ++visits;
        return true;
    };
    const auto count = [&] {
        visits = 0;
        Walk(*drawing.model, visit);
        return visits;
    };
    EXPECT_EQ(count(), 9) << "the line once for each that holds it";
    EXPECT_EQ(depths, (std::map<std::string, int>{{"VEKPrtImageElt", 0},
                                                  {"VEKPrtGroupElt", 1},
                                                  {"VEKPrtPatternElt", 2},
                                                  {"VEKPrtSymbolElt", 2},
                                                  {"VEKPrtClosedFigureElt", 2},
                                                  {"VEKPrtClosedFigureRegionElt", 3},
                                                  {"VEKPrtLineElt", 4}}));
    drawing.group->AddChild(drawing.page.Get());
    EXPECT_EQ(count(), 9);
    drawing.group->RemoveChild(drawing.page.Get());
    visits = 0;
    Walk(*drawing.page, [&](VEKPrtGraphicPrimitiveElt&, int iDepth) { return ++visits, iDepth < 1; });
    EXPECT_EQ(visits, 2) << "false: the children are passed over";
}

TEST(Walk, FindsTheFirstByItsIdentifier) {
    Drawing drawing;
    EXPECT_EQ(FindByID(*drawing.model, "page"), drawing.page.Get());
    EXPECT_EQ(FindByID(*drawing.group, "the \"line\""), drawing.line.Get());
    EXPECT_EQ(FindByID(*drawing.group, "page"), nullptr);
    // Each of 60 groups is held twice by the one around it.
    VEKRef<VEKPrtGroupElt> outer = Make<VEKPrtGroupElt>();
    for (int i = 0; i < 60; ++i) {
        const auto around = Make<VEKPrtGroupElt>();
        around->AddChild(outer.Get());
        around->AddChild(outer.Get());
        outer = around;
    }
    EXPECT_EQ(FindByID(*outer, "absent"), nullptr);
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
              "    VEKPrtPatternElt references=1 origin=0,0 width=0 height=0\n      " +
                  line + "    VEKPrtSymbolElt references=1 origin=1,2 width=3 height=4\n      " + line +
                  "    VEKPrtClosedFigureElt references=1\n      VEKPrtClosedFigureRegionElt references=1\n" +
                  "        " + line +
                  "  VEKPrtPolygonElt references=2 count=5 points=1,2,3,4,5,6,7,8,...(10) draw=both\n");
}
