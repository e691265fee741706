// Reads what the SVG consumer writes with a parser, and compares it with the model.
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <sstream>

#include "Nurbs.h"
#include "Specimen.h"
#include "SvgWriter.h"
#include "TestSupport.h"
#include "Xml.h"

namespace {

// A parsed page; XPath with the prefix s for SVG.
class Document {
public:
    explicit Document(const std::string& iText)
        : _document(xmlReadMemory(iText.data(), static_cast<int>(iText.size()), "page.svg", nullptr,
                                  XML_PARSE_NONET),
                    &xmlFreeDoc),
          _context(_document ? xmlXPathNewContext(_document.get()) : nullptr, &xmlXPathFreeContext) {
        EXPECT_TRUE(_document) << "not well-formed: " << iText.substr(0, 2000);
        if (_context) Register("s", "http://www.w3.org/2000/svg");
        if (_context) Register("x", "http://www.w3.org/1999/xlink");
    }
    std::string String(const std::string& iPath) const { return Evaluate("string(" + iPath + ")"); }
    int Count(const std::string& iPath) const { return std::stoi(Evaluate("string(count(" + iPath + "))")); }
    std::set<std::string> All(const std::string& iPath) const {
        std::set<std::string> values;
        for (int i = 1; i <= Count(iPath); ++i)
            values.insert(String("(" + iPath + ")[" + std::to_string(i) + "]"));
        return values;
    }

private:
    static const xmlChar* Xml(const std::string& iText) {
        return reinterpret_cast<const xmlChar*>(iText.c_str());
    }
    void Register(const std::string& iPrefix, const std::string& iUri) {
        xmlXPathRegisterNs(_context.get(), Xml(iPrefix), Xml(iUri));
    }
    std::string Evaluate(const std::string& iExpression) const {
        if (!_context) return "0";
        const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> result(
            xmlXPathEvalExpression(Xml(iExpression), _context.get()), &xmlXPathFreeObject);
        return result ? reinterpret_cast<const char*>(result->stringval) : "invalid " + iExpression;
    }

    std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> _document;
    std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> _context;
};

struct Page {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> image =
        Make<VEKPrtImageElt>(VEKMathPoint2D(-5, 10), 100.0, 50.0, VEKPrtImageCentimetre, VEKMath2x2Matrix());
    std::string warnings;

    Page() {
        auto* const table = new VEKPrtColourTable;
        unsigned index = 0;
        table->AddColour(0x12, 0xAB, 0xEF, index);
        table->AddColour(255, 0, 7, index);
        image->SetColourTable(table);
        model->AddImage(image.Get());
    }
    std::string Text() {
        std::ostringstream text, warned;
        EXPECT_TRUE(WriteSvg(*model, 1, text, warned));
        warnings = warned.str();
        return text.str();
    }
};

// How often each class stands in a tree, closed figures counting as one.
void CountClasses(const VEKListPtrVEKPrtGraphicPrimitiveElt* iList, std::map<std::string, int>& ioCounts) {
    for (int i = 1; iList && i <= iList->Size(); ++i) {
        auto* const element = static_cast<VEKPrtGraphicPrimitiveElt*>((*iList)[i]);
        ++ioCounts[element->IsA()];
        VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
        if (auto* const group = dynamic_cast<VEKPrtGroupElt*>(element)) group->GetChildren(children);
        if (auto* const symbol = dynamic_cast<VEKPrtSymbolElt*>(element)) symbol->GetChildren(children);
        if (auto* const pattern = dynamic_cast<VEKPrtPatternElt*>(element)) pattern->GetChildren(children);
        CountClasses(children, ioCounts);
    }
}

template <class Element>
class SvgOfEvery : public testing::Test {};
TYPED_TEST_SUITE(SvgOfEvery, AllElements, );

} // namespace

TYPED_TEST(SvgOfEvery, ElementIsHandledEvenWithNothingSet) {
    EXPECT_TRUE(CanWriteSvg(TypeParam::MetaObject()));
    Page page;
    const auto element = Make<TypeParam>();
    element->SetID("the-id");
    element->SetTitle("a < b & \"c\"");
    element->SetDescription("bad \x01\xFF\xC3 text");
    page.image->AddChild(element.Get());
    const Document document(page.Text());
    EXPECT_EQ(document.Count("//*[@id='the-id']"), 1);
    EXPECT_EQ(document.String("//*[@id='the-id']/s:title"), "a < b & \"c\"");
    EXPECT_EQ(document.Count("//*[@id='the-id']/s:desc"), 1);
}

TEST(Svg, PageIsTheViewport) {
    Page page;
    const Document document(page.Text());
    EXPECT_EQ(document.String("/s:svg/@width"), "100cm");
    EXPECT_EQ(document.String("/s:svg/@viewBox"), "-5 -60 100 50");
    EXPECT_EQ(document.String("/s:svg/s:g/@transform"), "scale(1,-1)");
    page.image->SetMatrix(VEKMath2x2Matrix(1, 2, 3, 4));
    EXPECT_EQ(Document(page.Text()).String("/s:svg/s:g/@transform"), "scale(1,-1) matrix(1 3 2 4 0 0)");
    std::ostringstream text;
    EXPECT_FALSE(WriteSvg(*page.model, 2, text));
    EXPECT_FALSE(WriteSvg(*Make<VEKPrtModel>(), 1, text));
    EXPECT_EQ(text.str(), "");
}

TEST(Svg, AttributesAreTheRecords) {
    Page page;
    const auto polygons = Make<VEKPrtPolyPolygonElt>();
    const double points[] = {0, 0, 0.1, 0, 0, 1e-7, 5, 5, 6, 5, 5, 6};
    const int counts[] = {3, 3};
    polygons->SetPoints(points, counts, 2);
    polygons->SetDrawStyle(VEKPrtDrawBoth);
    VEKPrtStrokeAttributes stroke;
    const float dashes[] = {1.5F, 2};
    stroke.SetStrokeTypePattern(dashes, 2);
    stroke.SetStrokeCap(VEKPrintLineCapRound);
    stroke.SetStrokeJoin(VEKPrintLineJoinBevel);
    stroke.SetStrokeColourTransparency(51);
    polygons->SetStrokeAttributes(stroke);
    VEKPrtFillAttributes fill;
    fill.SetFillColourIndex(1);
    polygons->SetFillAttributes(fill);
    VEKPrtTransformAttributes transform;
    transform.AddRotation(30.0F);
    transform.AddTranslation(VEKMathVector2D(1, -2));
    transform.AddScaleY(3.0);
    polygons->SetTransformAttributes(transform);
    page.image->AddChild(polygons.Get());
    const auto group = Make<VEKPrtGroupElt>();
    VEKPrtGroupAttributes link;
    link.SetLinkURI("https://example.org/?a=1&b=2");
    group->SetGroupAttributes(link);
    page.image->AddChild(group.Get());

    const Document document(page.Text());
    const auto of = [&](const char* iName) { return document.String(std::string("//s:path/@") + iName); };
    EXPECT_EQ(of("d"), "M0,0 L0.1,0 L0,1e-07 Z M5,5 L6,5 L5,6 Z");
    EXPECT_EQ(of("stroke") + of("fill"), "#12abef#ff0007");
    EXPECT_EQ(of("stroke-dasharray"), "1.5 2");
    EXPECT_EQ(of("stroke-linecap") + of("stroke-linejoin"), "roundbevel");
    EXPECT_EQ(of("stroke-opacity"), "0.2");
    EXPECT_EQ(of("stroke-width"), "0.10000000149011612");
    EXPECT_EQ(of("fill-rule"), "evenodd");
    EXPECT_EQ(of("transform"), "rotate(30) translate(1,-2) scale(1,3)");
    EXPECT_EQ(document.String("//s:a/@x:href"), "https://example.org/?a=1&b=2");
    EXPECT_EQ(page.warnings, "");
    fill.SetFillColourIndex(2);
    polygons->SetFillAttributes(fill);
    page.Text();
    EXPECT_NE(page.warnings.find("colour 2"), std::string::npos);
}

TEST(Svg, SurvivesACycle) {
    Page page;
    const auto outer = Make<VEKPrtGroupElt>(), inner = Make<VEKPrtGroupElt>();
    outer->AddChild(inner.Get());
    inner->AddChild(outer.Get());
    page.image->AddChild(outer.Get());
    Document document(page.Text());
    EXPECT_NE(page.warnings, "");
    inner->RemoveChild(outer.Get());
}

TEST(Svg, NumbersRoundTrip) {
    for (const double value : {0.1, 1.0 / 3, -1e300, 5e-300, 123456789.123})
        EXPECT_EQ(std::stod(Number(value)), value);
    EXPECT_EQ(Number(std::nan("")), "0");
}

TEST(Nurbs, DrawsACircleAndHonoursTheBounds) {
    const double s = std::sqrt(0.5);
    const double points[] = {1, 0, 1, 1, 0, 1, -1, 1, -1, 0, -1, -1, 0, -1, 1, -1, 1, 0};
    const double knots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
    const double weights[] = {1, s, 1, s, 1, s, 1, s, 1};
    std::string problem;
    const auto sample = [&](float iFirst, float iSecond) {
        return SampleNurbs(*Make<VEKPrtNURBSElt>(3, 9, points, knots, iFirst, iSecond, weights), 1e-5,
                           problem);
    };
    const auto circle = sample(0.0F, 1.0F);
    ASSERT_GT(circle.size(), 30U);
    for (std::size_t i = 1; i < circle.size(); ++i) {
        EXPECT_NEAR(std::hypot(circle[i].GetX(), circle[i].GetY()), 1.0, 1e-12);
        const double mx = (circle[i].GetX() + circle[i - 1].GetX()) / 2,
                     my = (circle[i].GetY() + circle[i - 1].GetY()) / 2;
        EXPECT_NEAR(std::hypot(mx, my), 1.0, 2e-5) << "no corner is seen";
    }
    EXPECT_NEAR(circle.back().GetX(), 1.0, 1e-12);
    const auto half = sample(0.25F, 0.75F);
    EXPECT_NEAR(half.front().GetY(), 1.0, 1e-12);
    EXPECT_NEAR(half.back().GetY(), -1.0, 1e-12);
    EXPECT_TRUE(sample(2.0F, 3.0F).empty());
    EXPECT_NE(problem, "");
}

TEST(Nurbs, RefusesNonsense) {
    const double points[] = {0, 0, 1, 1, 2, 0}, knots[] = {0, 0, 0, 1, 1, 1, 1},
                 decreasing[] = {0, 0, 1, 0, 1, 1};
    const double ones[] = {1, 1, 1}, zero[] = {1, 0, 1}, infinite[] = {0, 0, INFINITY, 1, 2, 0};
    using N = VEKPrtNURBSElt;
    const float b = 1.0F;
    std::string problem;
    EXPECT_FALSE(SampleNurbs(N(3, 3, points, knots, 0, b, ones), 0.1, problem).empty());
    for (const auto& curve :
         {Make<N>(), Make<N>(4, 3, points, knots, 0.0F, b, ones),
          Make<N>(-3, 3, points, knots, 0.0F, b, ones), Make<N>(3, 3, points, decreasing, 0.0F, b, ones),
          Make<N>(3, 3, points, knots, 0.0F, b, zero), Make<N>(3, 3, infinite, knots, 0.0F, b, ones),
          Make<N>(3, 3, points, knots, b, 0.0F, ones)}) {
        problem.clear();
        EXPECT_TRUE(SampleNurbs(*curve, 0.1, problem).empty());
        EXPECT_NE(problem, "");
    }
}

TEST(SpecimenSheet, HoldsEveryElementOnceInItsOwnColours) {
    const Specimen specimen = BuildSpecimen();
    std::ostringstream text, warnings;
    ASSERT_TRUE(WriteSvg(*specimen.model, 1, text, warnings));
    EXPECT_EQ(warnings.str(), "");
    const Document document(text.str());

    VEKListPtrVEKPrtImageElt* images = nullptr;
    specimen.model->GetImages(images);
    auto* const page = static_cast<VEKPrtImageElt*>((*images)[1]);
    std::map<std::string, int> counts;
    CountClasses(ChildrenOf(*page), counts);
    EXPECT_EQ(counts.size(), 20U) << "all but the base, the page and the figure's regions";
    const auto sum = [&](std::initializer_list<const char*> iNames) {
        int total = 0;
        for (const char* const name : iNames)
            total += counts[std::string("VEKPrt") + name + "Elt"];
        return total;
    };
    EXPECT_EQ(document.Count("//s:line"), sum({"Line"}));
    EXPECT_EQ(document.Count("//s:circle"), sum({"Circle"}));
    EXPECT_EQ(document.Count("//s:ellipse"), sum({"Ellipse"}));
    EXPECT_EQ(document.Count("//s:text"), sum({"Text"}));
    EXPECT_EQ(document.Count("//s:image[not(parent::s:pattern)]"), sum({"BitmapImage"}));
    EXPECT_EQ(document.Count("//s:a"), 1);
    EXPECT_EQ(document.Count("//s:rect[not(parent::s:clipPath)]"), sum({"Rectangle"}) + sum({"Pattern"}));
    EXPECT_EQ(document.Count("//s:clipPath"), sum({"Symbol"}));
    EXPECT_EQ(document.Count("//s:pattern[not(s:image)]"), sum({"Pattern"}));
    EXPECT_EQ(document.Count("//s:path"),
              sum({"CircularArc", "EllipticalArc", "Polyline", "Polygon", "DisjointPolyline", "PolyPolygon",
                   "PolyCubicBezier", "PolyQuadraticBezier", "NURBS", "Marker", "ClosedFigure"}));

    VEKPrtColourTable* table = nullptr;
    page->GetColourTable(table);
    int colourCount = 0;
    table->GetColourCount(colourCount);
    std::set<std::string> colours = {"none", ""};
    for (int i = 0; i < colourCount; ++i) {
        unsigned char rgb[3];
        table->GetColour(static_cast<unsigned>(i), rgb[0], rgb[1], rgb[2]);
        char name[8];
        std::snprintf(name, sizeof name, "#%02x%02x%02x", rgb[0], rgb[1], rgb[2]);
        colours.insert(name);
    }
    for (const char* const attribute : {"//@stroke", "//@fill[not(starts-with(., 'url'))]"})
        for (const std::string& used : document.All(attribute))
            EXPECT_EQ(colours.count(used), 1U) << used;
    for (const std::string& id : document.All("//@fill[starts-with(., 'url')]"))
        EXPECT_EQ(document.Count("//*[@id='" + id.substr(5, id.size() - 6) + "']"), 1) << id;
}

TEST(SpecimenSheet, DuplicateDrawsTheSame) {
    // The two shapes with a pattern image leave their references on it behind.
    const DemandedLeak leak(1);
    const Specimen specimen = BuildSpecimen();
    VEKListPtrVEKPrtImageElt* images = nullptr;
    specimen.model->GetImages(images);
    const auto copy = Duplicated(*static_cast<VEKPrtImageElt*>((*images)[1]));
    const auto model = Make<VEKPrtModel>();
    model->AddImage(copy.Get());
    std::ostringstream original, duplicate;
    WriteSvg(*specimen.model, 1, original);
    WriteSvg(*model, 1, duplicate);
    const Document a(original.str()), b(duplicate.str());
    for (const char* const path : {"//*[not(self::s:title)]", "//@d", "//@stroke", "//@fill", "//@transform"})
        EXPECT_EQ(a.Count(path), b.Count(path)) << path;
    for (const char* const path : {"//@transform", "//s:text"})
        EXPECT_EQ(a.All(path), b.All(path)) << path;
    std::set<std::string> lost = a.All("//@d");
    for (const std::string& data : b.All("//@d"))
        lost.erase(data);
    EXPECT_EQ(lost.size(), 1U) << "only the curve drawn in part: duplicates have the bounds 0 and 1";
    EXPECT_EQ(b.Count("//s:g/s:title"), 0) << "containers do not carry their titles over";
}
