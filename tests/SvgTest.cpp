// Reads what the SVG consumer writes with a parser, and compares it with the model.
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <set>
#include <sstream>

#include "AtlasModel.h"
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

// Gives every element below a list an identifier of its own, and counts the classes.  Regions and what is in
// them are drawn as one path with their figure.
void Identify(const VEKListPtrVEKPrtGraphicPrimitiveElt* iList, std::set<std::string>& ioIds,
              std::set<std::string>& ioClasses) {
    for (int i = 1; iList && i <= iList->Size(); ++i) {
        auto* const element = static_cast<VEKPrtGraphicPrimitiveElt*>((*iList)[i]);
        ioClasses.insert(element->IsA());
        const std::string id = "element-" + std::to_string(ioIds.size());
        if (ioIds.count(Id(*element)) == 0) {
            element->SetID(id.c_str());
            ioIds.insert(id);
        }
        VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
        if (auto* const group = dynamic_cast<VEKPrtGroupElt*>(element)) group->GetChildren(children);
        if (auto* const symbol = dynamic_cast<VEKPrtSymbolElt*>(element)) symbol->GetChildren(children);
        if (auto* const pattern = dynamic_cast<VEKPrtPatternElt*>(element)) pattern->GetChildren(children);
        Identify(children, ioIds, ioClasses);
    }
}

// Every element of the page stands in the document once, and in colours of the page's table.
void ExpectWholePage(const VEKPrtModel& iModel, int iPage, std::size_t iClasses) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    auto* const page = static_cast<VEKPrtImageElt*>((*images)[iPage]);
    std::set<std::string> ids, classes, colours = {"none", ""};
    Identify(ListOf(*page), ids, classes);
    EXPECT_EQ(classes.size(), iClasses);

    std::ostringstream text, warnings;
    ASSERT_TRUE(WriteSvg(iModel, iPage, text, warnings));
    EXPECT_EQ(warnings.str(), "");
    const Document document(text.str());
    for (const std::string& id : ids)
        EXPECT_EQ(document.Count("//*[@id='" + id + "']"), 1) << id;

    VEKPrtColourTable* table = nullptr;
    page->GetColourTable(table);
    int colourCount = 0;
    table->GetColourCount(colourCount);
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
    for (const std::string& reference : document.All("//@fill[starts-with(., 'url')] | //@clip-path"))
        EXPECT_EQ(document.Count("//*[@id='" + reference.substr(5, reference.size() - 6) + "']"), 1)
            << reference;
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
    for (int i = 0; i < 2; ++i)
        outer->AddChild(inner.Get());
    for (int i = 0; i < 2; ++i)
        inner->AddChild(outer.Get());
    page.image->AddChild(outer.Get());
    const Document document(page.Text());
    EXPECT_EQ(document.Count("//s:g"), 4) << "the page, the outer group and the inner one twice";
    EXPECT_NE(page.warnings, "");
    for (int i = 0; i < 2; ++i)
        inner->RemoveChild(outer.Get());
}

TEST(Svg, IdentifiersStandOnce) {
    Page page;
    const auto group = Make<VEKPrtGroupElt>(), other = Make<VEKPrtGroupElt>();
    const auto symbol = Make<VEKPrtSymbolElt>(VEKMathPoint2D(), 1.0, 1.0);
    group->SetID("svg-clip-1");
    other->SetID("twice");
    page.image->AddChild(group.Get());
    for (int i = 0; i < 2; ++i)
        page.image->AddChild(other.Get());
    page.image->AddChild(symbol.Get());
    const Document document(page.Text());
    EXPECT_EQ(document.Count("//*[@id='twice']"), 1);
    EXPECT_EQ(document.Count("//*[@id='svg-clip-1']"), 1);
    EXPECT_EQ(document.Count("//s:clipPath[concat('url(#', @id, ')') = //s:g/@clip-path]"), 1);
}

TEST(Svg, TextKeepsItsOwnWhiteSpaceOnly) {
    Page page;
    const auto text = Make<VEKPrtTextElt>(VEKMathPoint2D(1, 2), VEKUnicodeString(" a  b "));
    text->SetTitle("title");
    VEKPrtTextAttributes attributes;
    attributes.SetAnchor(VEKPrintTextAnchorMiddleCentre);
    text->SetTextAttributes(attributes);
    page.image->AddChild(text.Get());
    EXPECT_EQ(Document(page.Text()).String("//s:text"), "title a  b ");
    EXPECT_NEAR(std::stod(Document(page.Text()).String("//s:text/@y")), 3.6, 1e-9);
    attributes.SetWritingMode(VEKPrtTextVertical);
    text->SetTextAttributes(attributes);
    text->SetText("Ae\u0301");
    const Document vertical(page.Text());
    EXPECT_EQ(vertical.Count("//s:tspan"), 2) << "an accent stays with its letter";
    EXPECT_EQ(vertical.String("//s:text"), "titleAe\u0301");
    EXPECT_NEAR(std::stod(vertical.String("//s:text/@y")), -1.4, 1e-9) << "the middle of the column";
}

TEST(Svg, FixedWidthsWithstandTransforms) {
    Page page;
    const auto group = Make<VEKPrtGroupElt>();
    VEKPrtTransformAttributes transform;
    transform.AddScaleX(8.0);
    transform.AddScaleY(2.0);
    group->SetTransformAttributes(transform);
    for (const auto style : {VEKPrintLineStyleScaled, VEKPrintLineStyleFixed}) {
        const auto line = Make<VEKPrtLineElt>();
        VEKPrtStrokeAttributes stroke;
        stroke.SetStrokeWidth(2.0);
        stroke.SetStrokeStyle(style);
        stroke.SetStrokeType(VEKPrintLineTypeDotted);
        line->SetStrokeAttributes(stroke);
        group->AddChild(line.Get());
    }
    page.image->AddChild(group.Get());
    const Document document(page.Text());
    EXPECT_EQ(document.String("//s:line[1]/@stroke-width"), "2");
    EXPECT_EQ(document.String("//s:line[2]/@stroke-width"), "0.5");
    EXPECT_EQ(document.String("//s:line[2]/@stroke-dasharray"), "0.5 1");
}

TEST(Svg, FiguresTurnPrimitivesThatRunTheOtherWay) {
    Page page;
    const auto figure = Make<VEKPrtClosedFigureElt>();
    const auto region = Make<VEKPrtClosedFigureRegionElt>();
    const double quadratic[] = {6, 0, 5, 5, 4, 0};
    // Along the x axis; the second line and the curve are given from right to left.
    region->AddChild(Make<VEKPrtLineElt>(VEKMathPoint2D(0, 0), VEKMathPoint2D(2, 0)).Get());
    region->AddChild(Make<VEKPrtLineElt>(VEKMathPoint2D(4, 0), VEKMathPoint2D(2, 0)).Get());
    region->AddChild(Make<VEKPrtPolyQuadraticBezierElt>(quadratic, 3).Get());
    region->AddChild(Make<VEKPrtLineElt>(VEKMathPoint2D(8, 1), VEKMathPoint2D(9, 1)).Get());
    VEKPrtTransformAttributes transform;
    transform.AddScaleX(10.0);
    region->SetTransformAttributes(transform);
    figure->AddChild(region.Get());
    page.image->AddChild(figure.Get());
    EXPECT_EQ(Document(page.Text()).String("//s:path/@d"), "M0,0 L20,0 L40,0 Q50,5 60,0 L80,1 L90,1 Z");
}

TEST(Svg, LeavesOutWhatCannotBeDrawn) {
    Page page;
    const double bad[] = {0, 0, NAN, 1}, good[] = {0, 0, 1, 1};
    const int counts[] = {2};
    const VEKMathPoint2D nowhere(INFINITY, 0);
    const VEKRef<VEKPrtGraphicPrimitiveElt> elements[] = {
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtPolylineElt(bad, 2)),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtPolyPolygonElt(bad, counts, 1)),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtLineElt(nowhere, nowhere)),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtCircularArcElt(nowhere, 1.0, 0.0F, NAN)),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtTextElt(nowhere, VEKUnicodeString("x"))),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtRectangleElt(nowhere, nowhere)),
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(new VEKPrtPolylineElt(good, 2)),
    };
    for (const auto& element : elements)
        page.image->AddChild(element.Get());
    const Document document(page.Text());
    EXPECT_EQ(document.Count("//s:g/*"), 1);
    EXPECT_EQ(std::count(page.warnings.begin(), page.warnings.end(), '\n'), 6) << page.warnings;
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

TEST(SpecimenSheet, IsPlottedWhole) {
    const Specimen specimen = BuildSpecimen();
    // All classes but the base, the page and the figure's regions.
    ExpectWholePage(*specimen.model, 1, 20);
}

TEST(AtlasPages, ArePlottedWhole) {
    std::ifstream file(EXAMPLE_DATA "/countries-110m.json");
    std::ostringstream text;
    text << file.rdbuf();
    const Atlas atlas(ReadTopology(text.str()));
    for (const int page : {1, 6})
        ExpectWholePage(atlas.Model(), page, 6);
}

TEST(SpecimenSheet, DuplicateDrawsTheSame) {
    // The two shapes with a pattern image leave their references on it behind.
    const DemandedLeak leak(1, 2);
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
