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
#include "Fields.h"
#include "Nurbs.h"
#include "Specimen.h"
#include "SvgWriter.h"
#include "VEKPrtWalk.h"

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
        for (const auto& [prefix, uri] :
             {std::pair("s", "http://www.w3.org/2000/svg"), std::pair("x", "http://www.w3.org/1999/xlink")})
            if (_context) xmlXPathRegisterNs(_context.get(), Xml(prefix), Xml(uri));
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
    std::string Evaluate(const std::string& iExpression) const {
        if (!_context) return "0";
        const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> result(
            xmlXPathEvalExpression(Xml(iExpression), _context.get()), &xmlXPathFreeObject);
        return result ? reinterpret_cast<const char*>(result->stringval) : "invalid " + iExpression;
    }

    std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> _document;
    std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> _context;
};

// A table of these colours.
VEKPrtColourTable* Table(std::initializer_list<int> iColours) {
    auto* const table = new VEKPrtColourTable;
    unsigned index = 0;
    for (const int rgb : iColours)
        table->AddColour(static_cast<unsigned char>(rgb >> 16), static_cast<unsigned char>(rgb >> 8),
                         static_cast<unsigned char>(rgb), index);
    return table;
}

struct Page {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> image =
        Make<VEKPrtImageElt>(Point(-5, 10), 100.0, 50.0, VEKPrtImageCentimetre, Matrix());
    std::string warnings;

    Page() {
        image->SetColourTable(Table({0x12ABEF, 0xFF0007}));
        model->AddImage(image.Get());
    }
    std::string Text() {
        std::ostringstream text, warned;
        EXPECT_TRUE(WriteSvg(*model, 1, text, warned));
        warnings = warned.str();
        return text.str();
    }
    Document Read() { return Document(Text()); }
    std::string String(const std::string& iPath) { return Read().String(iPath); }
    template <class Element, class... Arguments>
    VEKRef<Element> Add(Arguments&&... iArguments) {
        auto element = Make<Element>(std::forward<Arguments>(iArguments)...);
        image->AddChild(element.Get());
        return element;
    }
    auto WarningCount() const { return std::count(warnings.begin(), warnings.end(), '\n'); }
};

template <class Container>
void AddTwice(Container& ioContainer, VEKPrtGraphicPrimitiveElt* iChild) {
    for (int i = 0; i < 2; ++i)
        ioContainer.AddChild(iChild);
}

// A group in which each of these kinds of transform stands with its value.
VEKRef<VEKPrtGroupElt> TransformedGroup(std::initializer_list<std::pair<int, double>> iTransforms) {
    auto group = Make<VEKPrtGroupElt>();
    Transform transform;
    for (const auto& [kind, value] : iTransforms)
        g_kinds[kind].add(transform, value);
    group->SetTransformAttributes(transform);
    return group;
}
VEKRef<VEKPrtGroupElt> ScaledGroup(double iX, double iY) {
    return TransformedGroup({{VEKPrintTransformScaleX, iX}, {VEKPrintTransformScaleY, iY}});
}

// The points of path data that has lines alone, absolute or relative.
std::vector<Point> PathPoints(const std::string& iData) {
    std::vector<Point> points;
    std::istringstream data(iData);
    char command = 0, comma = 0;
    double x = 0, y = 0;
    while (data >> std::ws && data.peek() != EOF) {
        if (std::isalpha(data.peek())) data >> command;
        data >> x >> comma >> y;
        const bool relative = command == 'l';
        points.emplace_back(x + (relative ? points.back().GetX() : 0.0),
                            y + (relative ? points.back().GetY() : 0.0));
    }
    return points;
}

// Every element of the page stands in the document once, and in colours of the page's table.
void ExpectWholePage(const VEKPrtModel& iModel, int iPage, std::size_t iClasses) {
    VEKPrtImageElt& page = *std::next(ChildrenOf(iModel).begin(), iPage - 1);
    std::set<std::string> ids, classes, colours = {"none", ""};
    Walk(page, [&](VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
        if (iDepth == 0) return true;
        classes.insert(ioElement.IsA());
        if (ids.count(Id(ioElement)) == 0) ioElement.SetID(("element-" + std::to_string(ids.size())).c_str());
        ids.insert(Id(ioElement));
        // Regions and what is in them are drawn as one path with their figure.
        return ioElement.IsAKindOf("VEKPrtClosedFigureElt") == 0;
    });
    EXPECT_EQ(classes.size(), iClasses);

    std::ostringstream text, warnings;
    ASSERT_TRUE(WriteSvg(iModel, iPage, text, warnings));
    EXPECT_EQ(warnings.str(), "");
    const Document document(text.str());
    for (const std::string& id : ids)
        EXPECT_EQ(document.Count("//*[@id='" + id + "']"), 1) << id;

    VEKPrtColourTable* table = nullptr;
    page.GetColourTable(table);
    unsigned char rgb[3];
    for (unsigned i = 0; table->GetColour(i, rgb[0], rgb[1], rgb[2]) == 1; ++i) {
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

SUITE_OF(SvgOfEvery, AllElements);

} // namespace

TYPED_TEST(SvgOfEvery, ElementIsHandledEvenWithNothingSet) {
    Page page;
    const auto element = page.Add<TypeParam>();
    element->SetID("the-id");
    element->SetTitle("a < b & \"c\"");
    element->SetDescription("bad \x01\xFF\xC3 text");
    const Document document = page.Read();
    EXPECT_EQ(document.Count("//*[@id='the-id']"), 1);
    EXPECT_EQ(document.String("//*[@id='the-id']/s:title"), "a < b & \"c\"");
    EXPECT_EQ(document.Count("//*[@id='the-id']/s:desc"), 1);
}

TEST(Svg, PageIsTheViewport) {
    Page page;
    EXPECT_EQ(page.String("/s:svg/@width"), "100cm");
    EXPECT_EQ(page.String("/s:svg/@viewBox"), "-5 -60 100 50");
    EXPECT_EQ(page.String("/s:svg/s:g/@transform"), "scale(1,-1)");
    page.image->SetMatrix(Matrix(1, 2, 3, 4));
    EXPECT_EQ(page.String("/s:svg/s:g/@transform"), "scale(1,-1) matrix(1 3 2 4 0 0)");
    page.image->SetMatrix(Matrix(6e-17, 1, -1, 6e-17));
    EXPECT_EQ(page.String("/s:svg/s:g/@transform"), "scale(1,-1) matrix(0 -1 1 0 0 0)");
    EXPECT_EQ(page.warnings, "");
    page.image->SetUnits(static_cast<VEKPrtImageUnits>(7));
    EXPECT_EQ(page.String("/s:svg/@width"), "100mm");
    EXPECT_EQ(page.WarningCount(), 1);
}

TEST(Svg, ResultTellsAMissingPageFromAFailedStream) {
    // Takes so many characters, and perhaps cannot get them to where they belong.
    struct Sink : std::streambuf {
        long room;
        int synced;
        Sink(long iRoom, int iSynced) : room(iRoom), synced(iSynced) {}
        int overflow(int iCharacter) override { return room-- > 0 ? iCharacter : EOF; }
        int sync() override { return synced; }
    };
    Page page;
    for (int i = 0; i < 2000; ++i)
        page.Add<VEKPrtLineElt>();
    const auto expect = [&](int iPage, long iRoom, int iSynced, SvgResult::Status iStatus) {
        Sink sink(iRoom, iSynced);
        std::ostream stream(&sink);
        const SvgResult result = WriteSvg(*page.model, iPage, stream);
        EXPECT_EQ(static_cast<bool>(result), iStatus == SvgResult::Written);
        EXPECT_EQ(result.status, iStatus) << iRoom;
        EXPECT_TRUE(iStatus != SvgResult::NoSuchPage || sink.room == iRoom) << "nothing is written";
    };
    expect(1, 1000000, 0, SvgResult::Written);
    expect(1, 1000000, -1, SvgResult::StreamFailed); // only the flush fails
    expect(1, 100000, 0, SvgResult::StreamFailed);
    expect(1, 0, 0, SvgResult::StreamFailed);
    expect(2, 0, 0, SvgResult::NoSuchPage);
}

TEST(Svg, AttributesAreTheRecords) {
    Page page;
    const auto polygons = page.Add<VEKPrtPolyPolygonElt>();
    const double points[] = {0, 0, 0.1, 0, 0, 1e-7, 5, 5, 6, 5, 5, 6};
    const int counts[] = {3, 3};
    polygons->SetPoints(points, counts, 2);
    polygons->SetDrawStyle(VEKPrtDrawBoth);
    Stroke stroke;
    SetDashes(stroke, {1.5F, 2});
    stroke.SetStrokeCap(VEKPrintLineCapRound);
    stroke.SetStrokeJoin(VEKPrintLineJoinBevel);
    stroke.SetStrokeColourTransparency(51);
    polygons->SetStrokeAttributes(stroke);
    Fill fill;
    fill.SetFillColourIndex(1);
    polygons->SetFillAttributes(fill);
    Transform transform;
    transform.AddRotation(30.0F);
    transform.AddTransform(VEKPrintTransformSkewX); // without a value
    transform.AddTranslation(Vector(1, -2));
    transform.AddScaleY(3.0);
    polygons->SetTransformAttributes(transform);

    const Document document = page.Read();
    const auto of = [&](const char* iName) { return document.String(std::string("//s:path/@") + iName); };
    EXPECT_EQ(of("d"), "M0,0l0.1,0 -0.1,0ZM5,5l1,0 -1,1Z");
    EXPECT_EQ(of("stroke") + of("fill"), "#12abef#ff0007");
    EXPECT_EQ(of("stroke-dasharray"), "1.5 2");
    EXPECT_EQ(of("stroke-linecap") + of("stroke-linejoin"), "roundbevel");
    EXPECT_EQ(of("stroke-opacity"), "0.2");
    EXPECT_EQ(of("stroke-width"), "0.1");
    EXPECT_EQ(of("fill-rule"), "evenodd");
    EXPECT_EQ(of("transform"), "rotate(30) translate(1,-2) scale(1,3)");
    EXPECT_EQ(page.warnings, "");
    fill.SetFillColourIndex(2);
    polygons->SetFillAttributes(fill);
    page.Text();
    EXPECT_NE(page.warnings.find("colour 2"), std::string::npos);
}

TEST(Svg, SurvivesACycle) {
    Page page;
    const auto outer = page.Add<VEKPrtGroupElt>(), inner = Make<VEKPrtGroupElt>();
    AddTwice(*outer, inner.Get());
    AddTwice(*inner, outer.Get());
    inner->AddChild(page.image.Get());
    const Document document = page.Read();
    EXPECT_EQ(document.Count("//s:g"), 3) << "the page, the outer group and the inner one";
    EXPECT_EQ(document.Count("//s:g/s:g/s:use"), 1) << "the inner one again";
    EXPECT_EQ(page.WarningCount(), 3);
    inner->RemoveChild(page.image.Get());
    for (int i = 0; i < 2; ++i)
        inner->RemoveChild(outer.Get());
}

TEST(Svg, IdentifiersAreNamesAndStandOnce) {
    Page page;
    const char* const names[][2] = {{"svg-clip-1", "svg-clip-1"},
                                    {"gr\u00F6\u00DFe.1", "gr\u00F6\u00DFe.1"},
                                    {"2 b", "_x32__x20_b"},
                                    {"-a:b", "_x2D_a_x3A_b"},
                                    {"\xFF", "_xFFFD_"}};
    for (const auto& [id, name] : names)
        page.Add<VEKPrtGroupElt>()->SetID(id);
    VEKPrtGroupAttributes link;
    for (const char* const target : {"#2 b", "#2%20b"}) {
        link.SetLinkURI(target);
        page.Add<VEKPrtGroupElt>()->SetGroupAttributes(link);
    }
    page.Add<VEKPrtSymbolElt>(Point(), 1.0, 1.0);
    const Document document = page.Read();
    for (const auto& [id, name] : names)
        EXPECT_EQ(document.Count("//*[@id='" + std::string(name) + "']"), 1) << id;
    EXPECT_EQ(page.WarningCount(), 3) << page.warnings;
    EXPECT_EQ(document.Count("//s:a[@x:href = '#_x32__x20_b']"), 2);
    EXPECT_EQ(document.Count("//s:clipPath[concat('url(#', @id, ')') = //s:g/@clip-path]"), 1);

    // The second to have it is named; the same element at a second place is none.
    page.Add<VEKPrtGroupElt>()->SetID("svg-clip-1");
    page.image->AddChild(page.Add<VEKPrtLineElt>().Get());
    EXPECT_EQ(page.Read().Count("//*[@id='svg-clip-1']"), 1);
    EXPECT_EQ(page.WarningCount(), 4) << page.warnings;
}

TEST(Svg, LinksRunNoPrograms) {
    Page page;
    VEKPrtGroupAttributes link;
    const auto group = page.Add<VEKPrtGroupElt>();
    const std::pair<const char*, bool> uris[] = {
        {"javascript:alert(1)", false}, {" \x01JavaScript:x", false},
        {"java\nscript:x", false},      {"vbscript:x", false},
        {"data:text/html,x", false},    {"https://example.org/?a=1&q=javascript:x", true},
        {"javascript.html", true},      {"mailto:a@example.org", true}};
    for (const auto& [uri, kept] : uris) {
        link.SetLinkURI(uri);
        group->SetGroupAttributes(link);
        EXPECT_EQ(page.String("//@x:href"), kept ? uri : "");
        EXPECT_EQ(page.WarningCount(), kept ? 0 : 1) << uri;
    }
}

TEST(Svg, WritesOnceWhatIsHeldOften) {
    Page page;
    auto inner = Make<VEKPrtGroupElt>();
    inner->AddChild(Make<VEKPrtLineElt>().Get());
    for (int level = 0; level < 20; ++level) {
        const auto outer = Make<VEKPrtGroupElt>();
        AddTwice(*outer, inner.Get());
        inner = outer;
    }
    page.image->AddChild(inner.Get());
    const Document document = page.Read();
    EXPECT_EQ(document.Count("//s:use[substring(@x:href, 2) = //s:g/@id]"), 20);
    EXPECT_EQ(document.Count("//s:line"), 1);
    EXPECT_EQ(page.warnings, "");

    // An outline has nothing to refer to, and a pattern covers the page from each of its places: there are
    // limits.
    Page outline, patterns;
    const auto region = Make<VEKPrtClosedFigureRegionElt>();
    region->AddChild(inner.Get());
    outline.Add<VEKPrtClosedFigureElt>()->AddChild(region.Get());
    VEKRef<VEKPrtGraphicPrimitiveElt> pair[2] = {Make<VEKPrtPatternElt>(Point(), 1.0, 1.0),
                                                 Make<VEKPrtLineElt>()};
    for (int level = 0; level < 20; ++level) {
        const VEKRef<VEKPrtGroupElt> groups[] = {TransformedGroup({{VEKPrintTransformSkewX, 1.0}}),
                                                 TransformedGroup({{VEKPrintTransformSkewY, 1.0}})};
        for (int i = 0; i < 4; ++i)
            groups[i / 2]->AddChild(pair[i % 2].Get());
        std::copy_n(groups, 2, pair);
    }
    patterns.image->AddChild(pair[0].Get());
    for (Page* const limited : {&outline, &patterns}) {
        EXPECT_LT(limited->Text().size(), 30000000U);
        EXPECT_NE(limited->warnings.find("held at too many"), std::string::npos);
    }
}

TEST(Svg, WritesAgainWhatDependsOnThePlace) {
    // Held twice by the other container and twice by the page; yields what differs, which stands once each.
    const auto variants = [](VEKPrtGraphicPrimitiveElt& ioElement, const auto& iOther, const char* iPath) {
        Page page;
        page.image->AddChild(iOther.Get());
        AddTwice(*iOther, &ioElement);
        AddTwice(*page.image, &ioElement);
        const Document document = page.Read();
        EXPECT_EQ(page.warnings, "");
        std::set<std::string> values = document.All(iPath);
        EXPECT_EQ(document.Count(iPath), static_cast<int>(values.size())) << iPath;
        return values;
    };
    const auto coloured = [](int iBlue) {
        auto image = Make<VEKPrtImageElt>();
        image->SetColourTable(Table({iBlue}));
        return image;
    };
    using Texts = std::set<std::string>;
    const double third[] = {0, 0, 1.0 / 3, 0};
    const auto line = Make<VEKPrtLineElt>(), fixed = Make<VEKPrtLineElt>();
    const auto polyline = Make<VEKPrtPolylineElt>(third, 2);
    const auto pattern = Make<VEKPrtPatternElt>(Point(), 1.0, 1.0);
    const auto symbol = Make<VEKPrtSymbolElt>(Point(), 7.0, 7.0);
    const auto image = coloured(9);
    symbol->AddChild(pattern.Get());
    image->AddChild(line.Get());
    Stroke stroke;
    stroke.SetStrokeStyle(VEKPrintLineStyleFixed);
    stroke.SetStrokeType(VEKPrintLineTypeDotted);
    fixed->SetStrokeAttributes(stroke);
    fixed->SetID("fixed");
    const auto scaled = [] { return ScaledGroup(0.5, 0.125); }; // 0.25 in the mean
    EXPECT_EQ(variants(*line, coloured(8), "//s:line/@stroke"), (Texts{"#12abef", "#000008"}));
    EXPECT_EQ(variants(*image, coloured(8), "//s:line/@stroke"), (Texts{"#000009"}));
    EXPECT_EQ(variants(*line, scaled(), "//s:line/@stroke-width"), (Texts{"0.1"}));
    EXPECT_EQ(variants(*fixed, scaled(), "//s:line/@stroke-width"), (Texts{"0.1", "0.4"}));
    EXPECT_EQ(variants(*fixed, scaled(), "//s:line/@stroke-dasharray"), (Texts{"0.1 0.2", "0.4 0.8"}));
    EXPECT_EQ(variants(*polyline, ScaledGroup(0.001, 0.001), "//s:path/@d"),
              (Texts{"M0,0l0.3,0", "M0,0l0.3333,0"}));
    EXPECT_EQ(variants(*pattern, scaled(), "//s:rect/@width"), (Texts{"100", "200"}));
    EXPECT_EQ(variants(*symbol, scaled(), "//s:g/s:rect/@width"), (Texts{"7"}));

    // What depends on the place passes it on: before another shared element, and by reference.
    const auto group = Make<VEKPrtGroupElt>(), outer = Make<VEKPrtGroupElt>(), other = scaled();
    group->AddChild(fixed.Get());
    AddTwice(*group, symbol.Get());
    outer->AddChild(group.Get());
    other->AddChild(group.Get());
    EXPECT_EQ(variants(*outer, other, "//s:line/@stroke-width"), (Texts{"0.1", "0.4"}));
}

TEST(Svg, ImageFillsStandOnceAndUpright) {
    Page page;
    Fill fill;
    fill.SetFillStyle(VEKPrtFillPattern);
    fill.SetPattern(Make<VEKPixelImage>(2, 2).Get(), Vector(4, 0), Vector(0, 4));
    const auto show = [&](const auto& iElement) {
        iElement->SetDrawStyle(VEKPrtDrawInterior);
        iElement->SetFillAttributes(fill);
    };
    for (int i = 0; i < 2; ++i)
        show(page.Add<VEKPrtCircleElt>());
    show(page.Add<VEKPrtTextElt>(Point(1, 2), VEKUnicodeString("x")));
    EXPECT_EQ(page.Read().All("//@patternTransform"),
              (std::set<std::string>{"matrix(4 0 0 4 0 0)", "matrix(4 0 0 -4 -1 2)"}));
    EXPECT_EQ(page.Read().Count("//s:pattern"), 2);
}

TEST(Svg, TextKeepsItsOwnWhiteSpaceOnly) {
    Page page;
    const auto text = page.Add<VEKPrtTextElt>(Point(1, 2), VEKUnicodeString(" a  b "));
    text->SetTitle("title");
    const auto read = [&](VEKPrintTextAttribute iAnchor, double iSpacing, VEKPrtTextWritingMode iMode) {
        VEKPrtTextAttributes attributes;
        attributes.SetAnchor(iAnchor);
        attributes.SetExtraSpacing(iSpacing);
        attributes.SetWritingMode(iMode);
        text->SetTextAttributes(attributes);
        return page.Read();
    };
    const Document plain = read(VEKPrintTextAnchorMiddleCentre, 0.0, VEKPrtTextHorizontal);
    EXPECT_EQ(plain.String("//s:text"), "title a  b ");
    EXPECT_NEAR(std::stod(plain.String("//s:text/@y")), 3.6, 1e-9);
    const Document spaced = read(VEKPrintTextAnchorMiddleCentre, 2.0, VEKPrtTextHorizontal);
    EXPECT_EQ(spaced.String("//s:text[@letter-spacing = '2']"), "title a  b \u200E");
    EXPECT_EQ(spaced.String("//s:text/@x"), "1") << "half of what stands after the last letter";
    const Document left = read(VEKPrintTextAnchorBaselineLeft, 2.0, VEKPrtTextHorizontal);
    EXPECT_EQ(left.String("//s:text[@letter-spacing = '2' and not(@x)]"), "title a  b ");
    text->SetText("Ae\u0301");
    const Document vertical = read(VEKPrintTextAnchorMiddleCentre, 0.0, VEKPrtTextVertical);
    EXPECT_EQ(vertical.Count("//s:tspan"), 2) << "an accent stays with its letter";
    EXPECT_EQ(vertical.String("//s:text"), "titleAe\u0301");
    EXPECT_NEAR(std::stod(vertical.String("//s:text/@y")), -1.4, 1e-9) << "the middle of the column";
}

TEST(Svg, FiguresTurnPrimitivesThatRunTheOtherWay) {
    Page page;
    const auto region = Make<VEKPrtClosedFigureRegionElt>();
    page.Add<VEKPrtClosedFigureElt>()->AddChild(region.Get());
    const double quadratic[] = {6, 0, 5, 5, 4, 0};
    // Along the x axis; the second line and the curve are given from right to left.
    region->AddChild(Make<VEKPrtLineElt>(Point(0, 0), Point(2, 0)).Get());
    region->AddChild(Make<VEKPrtLineElt>(Point(4, 0), Point(2, 0)).Get());
    region->AddChild(Make<VEKPrtPolyQuadraticBezierElt>(quadratic, 3).Get());
    region->AddChild(Make<VEKPrtLineElt>(Point(8, 1), Point(9, 1)).Get());
    Transform tenfold;
    tenfold.AddScaleX(10.0);
    region->SetTransformAttributes(tenfold);
    EXPECT_EQ(page.String("//s:path/@d"), "M0,0l20,0 20,0q10,5 20,0l20,1 10,0Z");
}

TEST(Svg, LeavesOutWhatCannotBeDrawn) {
    Page page;
    const double bad[] = {0, 0, NAN, 1}, good[] = {0, 0, 1, 1};
    const int counts[] = {2};
    const Point nowhere(INFINITY, 0);
    page.Add<VEKPrtPolylineElt>(bad, 2);
    page.Add<VEKPrtPolyPolygonElt>(bad, counts, 1);
    page.Add<VEKPrtLineElt>(nowhere, nowhere);
    page.Add<VEKPrtCircularArcElt>(nowhere, 1.0, 0.0F, NAN);
    page.Add<VEKPrtTextElt>(nowhere, VEKUnicodeString("x"));
    page.Add<VEKPrtRectangleElt>(nowhere, nowhere);
    page.Add<VEKPrtPolylineElt>(good, 2);
    EXPECT_EQ(page.Read().Count("//s:g/*"), 1);
    EXPECT_EQ(page.WarningCount(), 6) << page.warnings;
}

TEST(Svg, RoundsCoordinatesToTheGridOfThePage) {
    // Half a step off at most, however long the line; finer where it is enlarged, exact without a page size.
    double points[2000];
    for (int i = 0; i < 2000; ++i)
        points[i] = std::fmod(i * 12.34567890123, 100.0);
    const auto polyline = Make<VEKPrtPolylineElt>(points, 1000);
    const auto check = [&](double iScale, double iWidth, double iStep) {
        Page page;
        const auto group = ScaledGroup(iScale, iScale);
        group->AddChild(polyline.Get());
        page.image->AddChild(group.Get());
        page.image->SetSize(iWidth, iWidth);
        const std::string data = page.String("//s:path/@d");
        const std::vector<Point> read = PathPoints(data);
        ASSERT_EQ(read.size(), 1000U);
        for (std::size_t i = 0; i < read.size(); ++i) {
            EXPECT_NEAR(read[i].GetX(), points[2 * i], 0.501 * iStep);
            EXPECT_NEAR(read[i].GetY(), points[2 * i + 1], 0.501 * iStep);
        }
        EXPECT_LT(data.size(), iStep >= 1e-4 ? 18000U : 40000U);
        EXPECT_GT(std::count(data.begin(), data.end(), 'L'), iStep > 0.0 ? 10 : 0)
            << "floats that are added up go astray";
    };
    check(1.0, 100.0, 1e-4);
    check(1000.0, 99.0, 1e-8);
    check(1e-5, 100.0, 1.0);
    check(1.0, 0.0, 0.0);
}

TEST(Nurbs, DrawsACircleAndHonoursTheBounds) {
    const double s = std::sqrt(0.5);
    const double points[] = {1, 0, 1, 1, 0, 1, -1, 1, -1, 0, -1, -1, 0, -1, 1, -1, 1, 0};
    const double knots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
    const double weights[] = {1, s, 1, s, 1, s, 1, s, 1};
    std::string problem;
    const auto sample = [&](float iFirst, float iSecond) {
        return vekprt::svg::SampleNurbs(*Make<VEKPrtNURBSElt>(3, 9, points, knots, iFirst, iSecond, weights),
                                        1e-5, problem);
    };
    const auto circle = sample(0.0F, 1.0F);
    ASSERT_GT(circle.size(), 30U);
    for (std::size_t i = 1; i < circle.size(); ++i) {
        const Point &from = circle[i - 1], &to = circle[i];
        EXPECT_NEAR(std::hypot(to.GetX(), to.GetY()), 1.0, 1e-12);
        EXPECT_NEAR(std::hypot(from.GetX() + to.GetX(), from.GetY() + to.GetY()), 2.0, 4e-5)
            << "no corner is seen";
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
    EXPECT_FALSE(vekprt::svg::SampleNurbs(N(3, 3, points, knots, 0, b, ones), 0.1, problem).empty());
    for (const auto& curve :
         {Make<N>(), Make<N>(4, 3, points, knots, 0.0F, b, ones),
          Make<N>(-3, 3, points, knots, 0.0F, b, ones), Make<N>(3, 3, points, decreasing, 0.0F, b, ones),
          Make<N>(3, 3, points, knots, 0.0F, b, zero), Make<N>(3, 3, infinite, knots, 0.0F, b, ones),
          Make<N>(3, 3, points, knots, b, 0.0F, ones)}) {
        problem.clear();
        EXPECT_TRUE(vekprt::svg::SampleNurbs(*curve, 0.1, problem).empty());
        EXPECT_NE(problem, "");
    }
}

TEST(Svg, PlotsTheExamplesWhole) {
    // All classes but the base, the page and the figure's regions.
    ExpectWholePage(*BuildSpecimen().model, 1, 20);
    std::ifstream file(EXAMPLE_DATA "/countries-110m.json");
    std::ostringstream text;
    text << file.rdbuf();
    const Atlas atlas(ReadTopology(text.str()));
    for (const int page : {1, 6})
        ExpectWholePage(atlas.Model(), page, 6);
}
