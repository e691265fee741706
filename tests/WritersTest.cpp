// What comparing pictures cannot see: units, names, links, limits, failures.
#include <cairo.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>

#include "CairoWriter.h"
#include "Fields.h"
#include "Nurbs.h"
#include "Path.h"
#include "SvgWriter.h"

namespace {

struct Page {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> image =
        Make<VEKPrtImageElt>(Point(-5, 10), 100.0, 50.0, VEKPrtImageCentimetre, Matrix());
    std::string warnings;

    Page() {
        auto* const table = new VEKPrtColourTable;
        unsigned index = 0;
        table->AddColour(0x12, 0xAB, 0xEF, index);
        table->AddColour(0xFF, 0x00, 0x07, index);
        image->SetColourTable(table);
        model->AddImage(image.Get());
    }
    std::string Svg() {
        std::ostringstream text, warned;
        EXPECT_TRUE(WriteSvg(*model, 1, text, warned));
        warnings = warned.str();
        return text.str();
    }
    std::string Pdf() {
        std::ostringstream text, warned;
        EXPECT_TRUE(WritePdf(*model, text, warned));
        warnings = warned.str();
        return text.str();
    }
    template <class Element, class... Arguments>
    VEKRef<Element> Add(Arguments&&... iArguments) {
        auto element = Make<Element>(std::forward<Arguments>(iArguments)...);
        image->AddChild(element.Get());
        return element;
    }
    VEKRef<VEKPrtGroupElt> Link(const char* iURI) {
        auto group = Add<VEKPrtGroupElt>();
        VEKPrtGroupAttributes attributes;
        attributes.SetLinkURI(iURI);
        group->SetGroupAttributes(attributes);
        return group;
    }
};

int CountOf(const std::string& iText, const std::string& iPart) {
    int count = 0;
    for (std::size_t at = 0; (at = iText.find(iPart, at)) != std::string::npos; at += iPart.size())
        ++count;
    return count;
}

VEKRef<VEKPrtGroupElt> Scaled(double iX, double iY) {
    auto group = Make<VEKPrtGroupElt>();
    Transform transform;
    transform.AddScaleX(iX);
    transform.AddScaleY(iY);
    group->SetTransformAttributes(transform);
    return group;
}
Stroke Fixed(double iWidth, int iType = 0) {
    Stroke stroke;
    stroke.SetStrokeStyle(Value<VEKPrintLineAttribute>(9));
    stroke.SetStrokeWidth(iWidth);
    stroke.SetStrokeType(Value<VEKPrintLineAttribute>(iType));
    return stroke;
}
template <class Container>
void AddTwice(Container& ioContainer, VEKPrtGraphicPrimitiveElt* iChild) {
    for (int i = 0; i < 2; ++i)
        ioContainer.AddChild(iChild);
}

using AnyElement = VEKRef<VEKPrtGraphicPrimitiveElt>;
template <class... Classes>
void AddEach(Page& ioPage, ClassList<Classes...>) {
    (ioPage.Add<Classes>()->SetID(Classes::ClassName()), ...);
}

const std::pair<const char*, std::function<void(Page&)>> g_pages[] = {
    {"empty", [](Page&) {}},
    {"page matrix, row by row", [](Page& ioPage) { ioPage.image->SetMatrix(Matrix(1, 2, 3, 4)); }},
    {"noise of a computed matrix",
     [](Page& ioPage) { ioPage.image->SetMatrix(Matrix(6e-17, 1, -1, 6e-17)); }},
    {"unknown units", [](Page& ioPage) { ioPage.image->SetUnits(static_cast<VEKPrtImageUnits>(7)); }},
    {"no size",
     [](Page& ioPage) {
         ioPage.image->SetSize(0, 0);
         ioPage.Add<VEKPrtLineElt>(Point(), Point(1.0 / 3, 0));
     }},
    {"each class with nothing set", [](Page& ioPage) { AddEach(ioPage, ElementClasses()); }},
    {"escapes",
     [](Page& ioPage) {
         const auto line = ioPage.Add<VEKPrtLineElt>();
         line->SetTitle("a < b & \"c\"");
         line->SetDescription("bad \x01\xFF\xC3 text");
     }},
    {"names",
     [](Page& ioPage) {
         for (const char* const id : {"gr\u00F6\u00DFe.1", "2 b", "-a:b", "\xFF", "svg-clip-1", "2 b"})
             ioPage.Add<VEKPrtGroupElt>()->SetID(id);
         ioPage.Add<VEKPrtSymbolElt>(Point(), 1.0, 1.0);
         ioPage.Link("#2 b");
         ioPage.Link("#2%20b");
     }},
    {"warnings in one line",
     [](Page& ioPage) { ioPage.Add<VEKPrtMarkerElt>(Point(NAN, 0), 1.0)->SetID("a\nb"); }},
    {"links that run programs",
     [](Page& ioPage) {
         for (const char* const uri :
              {"javascript:alert(1)", " \x01JavaScript:x", "java\nscript:x", "vbscript:x", "data:text/html,x",
               "https://example.org/?a=1&q=javascript:x", "javascript.html", "mailto:a@example.org"})
             ioPage.Link(uri);
     }},
    {"links in links, to itself, to the page, to nowhere, where nothing is seen",
     [](Page& ioPage) {
         const auto outer = ioPage.Link("https://example.org/(1)"), inner = ioPage.Link("#inner"),
                    top = ioPage.Link("#page"), nowhere = ioPage.Link("#y");
         for (const auto& group : {outer, inner, top, nowhere})
             group->AddChild(Make<VEKPrtRectangleElt>(Point(0, 20), Point(5, 30)).Get());
         outer->AddChild(inner.Get());
         outer->AddChild(Make<VEKPrtLineElt>(Point(0, 20), Point(5, 30)).Get());
         inner->SetID("inner");
         ioPage.image->SetID("page");
         const auto hidden = Make<VEKPrtGroupElt>(*top);
         ioPage.Add<VEKPrtSymbolElt>(Point(500, 500), 1.0, 1.0)->AddChild(hidden.Get());
     }},
    {"a colour out of range, unusable dashes, a negative width",
     [](Page& ioPage) {
         Stroke colourless;
         colourless.SetStrokeColourIndex(2);
         for (const Stroke& stroke : {colourless, Dashed({1, -1}), Dashed({0, 0}), Fixed(-1)})
             ioPage.Add<VEKPrtLineElt>()->SetStrokeAttributes(stroke);
     }},
    {"what is out of range",
     [](Page& ioPage) {
         const double bad[] = {0, 0, 1e39, 1};
         const int counts[] = {2};
         const Point nowhere(INFINITY, 0);
         Transform far;
         far.AddTranslation(Vector(1e39, 0));
         ioPage.Add<VEKPrtPolylineElt>(bad, 2);
         ioPage.Add<VEKPrtPolyPolygonElt>(bad, counts, 1);
         ioPage.Add<VEKPrtLineElt>(nowhere, nowhere);
         ioPage.Add<VEKPrtCircularArcElt>(Point(), 1.0, 0.0F, NAN);
         ioPage.Add<VEKPrtTextElt>(nowhere, VEKUnicodeString("x"));
         ioPage.Add<VEKPrtRectangleElt>(nowhere, nowhere);
         ioPage.Add<VEKPrtCircleElt>(Point(), 1e39);
         ioPage.Add<VEKPrtEllipseElt>(Point(0, 1e5), 1.0, 2.5e5, 0.0F); // for cairo alone
         ioPage.Add<VEKPrtBitmapImageElt>(Point(0, INFINITY), 1.0, 1.0, 0.0, Make<VEKPixelImage>(1, 1).Get());
         ioPage.Add<VEKPrtGroupElt>()->SetTransformAttributes(far);
     }},
    {"curves that cannot be drawn, and one that is drawn between its inner knots",
     [](Page& ioPage) {
         const double zigzag[] = {0, 20, 1, 22, 2, 20, 3, 22}, even[] = {0, 1, 2, 3, 4, 5, 6},
                      same[] = {1, 1, 1, 1};
         const double points[6] = {}, ones[] = {1, 1, 1}, zero[] = {1, 0, 1};
         const double knots[] = {0, 0, 0, 1, 1, 1, 1}, decreasing[] = {0, 0, 1, 0, 1, 1};
         ioPage.Add<VEKPrtNURBSElt>(4, 3, points, knots, 0.0F, 1.0F, ones);
         ioPage.Add<VEKPrtNURBSElt>(3, 3, points, decreasing, 0.0F, 1.0F, ones);
         ioPage.Add<VEKPrtNURBSElt>(3, 3, points, knots, 0.0F, 1.0F, zero);
         ioPage.Add<VEKPrtNURBSElt>(3, 3, points, knots, 1.0F, 0.0F, ones);
         ioPage.Add<VEKPrtNURBSElt>(3, 4, zigzag, even, 0.0F, 6.0F, same);
     }},
    {"deep nesting",
     [](Page& ioPage) {
         auto group = ioPage.Add<VEKPrtGroupElt>();
         for (int i = 0; i < 300; ++i) {
             const auto inner = Make<VEKPrtGroupElt>();
             group->AddChild(inner.Get());
             group = inner;
         }
     }},
    {"what is held often",
     [](Page& ioPage) {
         auto inner = Make<VEKPrtGroupElt>();
         inner->AddChild(Make<VEKPrtLineElt>().Get());
         for (int level = 0; level < 20; ++level) {
             const auto outer = Make<VEKPrtGroupElt>();
             AddTwice(*outer, inner.Get());
             inner = outer;
         }
         ioPage.image->AddChild(inner.Get());
     }},
    {"an image that is used often",
     [](Page& ioPage) {
         const auto image = Make<VEKPixelImage>(2, 2);
         Fill fill;
         fill.SetFillStyle(VEKPrtFillPattern);
         fill.SetPattern(image.Get(), Vector(4, 0), Vector(0, 4));
         fill.SetFillColourTransparency(128);
         for (int i = 0; i < 3; ++i) {
             ioPage.Add<VEKPrtBitmapImageElt>(Point(i, i + 20), 1.0, 1.0, 0.0, image.Get());
             const auto circle = ioPage.Add<VEKPrtCircleElt>(Point(i, i + 20), 1.0);
             circle->SetDrawStyle(VEKPrtDrawInterior);
             circle->SetFillAttributes(fill);
         }
     }},
    {"a transparent disc",
     [](Page& ioPage) {
         Stroke stroke;
         VEKPrtMarkerAttributes disc;
         stroke.SetStrokeColourTransparency(64);
         disc.SetMarkerStyle(VEKPrintMarkerDisc);
         const auto marker = ioPage.Add<VEKPrtMarkerElt>(Point(1, 20), 3.0);
         marker->SetStrokeAttributes(stroke);
         marker->SetMarkerAttributes(disc);
     }},
    {"white space of texts; in vertical ones an accent stays with its letter, spacing lies between letters",
     [](Page& ioPage) {
         VEKPrtTextAttributes attributes;
         attributes.SetAnchor(Value<VEKPrintTextAttribute>(33));
         attributes.SetExtraSpacing(2.0);
         for (const char* const content : {" a\n\tb ", "Ae\u0301"}) {
             const auto text = ioPage.Add<VEKPrtTextElt>(Point(1, 2), VEKUnicodeString(content));
             text->SetTitle("title");
             text->SetTextAttributes(attributes);
             attributes.SetWritingMode(VEKPrtTextVertical);
         }
     }},
    {"figures turn what runs the other way",
     [](Page& ioPage) {
         const auto region = Make<VEKPrtClosedFigureRegionElt>();
         const double curve[] = {6, 0, 5, 5, 4, 0};
         region->AddChild(Make<VEKPrtLineElt>(Point(0, 0), Point(2, 0)).Get());
         region->AddChild(Make<VEKPrtLineElt>(Point(4, 0), Point(2, 0)).Get());
         region->AddChild(Make<VEKPrtPolyQuadraticBezierElt>(curve, 3).Get());
         region->AddChild(Make<VEKPrtLineElt>(Point(8, 1), Point(9, 1)).Get());
         region->AddChild(Make<VEKPrtTextElt>().Get());
         Transform tenfold;
         tenfold.AddScaleX(10.0);
         region->SetTransformAttributes(tenfold);
         const auto box = Make<VEKPrtClosedFigureRegionElt>();
         box->AddChild(Make<VEKPrtRectangleElt>(Point(0, 20), Point(4, 22)).Get());
         for (const auto& each : {region, box})
             ioPage.Add<VEKPrtClosedFigureElt>()->AddChild(each.Get());
     }},
    {"absolute segments in long paths, at which floats that are added up find back",
     [](Page& ioPage) {
         std::vector<double> points;
         for (int i = 0; i < 131; ++i)
             points.insert(points.end(), {i * 0.25, 20.0 + i % 2});
         ioPage.Add<VEKPrtPolylineElt>(points.data(), 131);
     }},
    {"what depends on the place is written again",
     [](Page& ioPage) {
         const double third[] = {0, 0, 1.0 / 3, 0};
         const auto line = Make<VEKPrtLineElt>(), fixed = Make<VEKPrtLineElt>();
         const auto polyline = Make<VEKPrtPolylineElt>(third, 2);
         const auto pattern = Make<VEKPrtPatternElt>(Point(), 1.0, 1.0);
         const auto blue = Make<VEKPrtImageElt>();
         auto* const table = new VEKPrtColourTable;
         unsigned index = 0;
         table->AddColour(0, 0, 9, index);
         blue->SetColourTable(table);
         fixed->SetStrokeAttributes(Fixed(0.1, 2));
         const auto scaled = Scaled(0.5, 0.125), fine = Scaled(0.001, 0.001); // 0.25 in the mean
         blue->AddChild(line.Get());
         fine->AddChild(polyline.Get());
         for (const AnyElement& element :
              {AnyElement(line), AnyElement(fixed), AnyElement(polyline), AnyElement(pattern)}) {
             AddTwice(*scaled, element.Get());
             AddTwice(*ioPage.image, element.Get());
         }
         for (const AnyElement& container : {AnyElement(blue), AnyElement(scaled), AnyElement(fine)})
             ioPage.image->AddChild(container.Get());
     }},
};

// Without indentation and pixels (their compression varies); of equal lines there is one, with their number.
std::string Folded(const std::string& iText) {
    std::istringstream lines(iText);
    std::string folded, last;
    int times = 0;
    for (std::string line; std::getline(lines, line); last = line) {
        line = line.substr(0, line.find("base64,"));
        line.erase(0, line.find_first_not_of(' '));
        if (line != last && times > 1) folded += "(" + std::to_string(times) + " times)\n";
        times = line == last ? times + 1 : 1;
        if (times == 1) folded += line + '\n';
    }
    return folded;
}
// Of a document, the lines that tell what is drawn and are not compressed.
std::string Readable(const std::string& iPdf) {
    std::istringstream lines(iPdf);
    std::string readable;
    for (std::string line; std::getline(lines, line);)
        for (const char* const part : {"/CA 0.", "/Interpolate ", "/URI ", "(element-"})
            if (line.find(part) != std::string::npos) readable += line + '\n';
    return readable;
}

} // namespace

// VEKPRT_RECORD in the environment has the pages recorded anew.
TEST(Svg, IsAsRecorded) {
    std::string written;
    for (const auto& [name, make] : g_pages) {
        Page page;
        make(page);
        written += std::string("== ") + name + '\n' + Folded(page.Svg() + page.warnings);
        written += Folded(Readable(page.Pdf()));
        written += Folded(page.warnings);
    }
    if (std::getenv("VEKPRT_RECORD")) std::ofstream(PAGES) << written;
    std::ostringstream recorded;
    recorded << std::ifstream(PAGES).rdbuf();
    EXPECT_EQ(recorded.str(), written) << "scripts/record renews tests/pages.txt";
}

TEST(Svg, SurvivesACycle) {
    Page page;
    const auto outer = page.Add<VEKPrtGroupElt>(), inner = Make<VEKPrtGroupElt>();
    AddTwice(*outer, inner.Get());
    inner->AddChild(outer.Get());
    inner->AddChild(page.image.Get());
    const auto region = Make<VEKPrtClosedFigureRegionElt>(), again = Make<VEKPrtClosedFigureRegionElt>();
    region->AddChild(again.Get());
    again->AddChild(region.Get());
    page.Add<VEKPrtClosedFigureElt>()->AddChild(region.Get());
    const std::string text = page.Svg();
    EXPECT_EQ(CountOf(text, "<g"), 3) << text;
    EXPECT_EQ(CountOf(text, "<use"), 1) << text;
    EXPECT_EQ(CountOf(page.warnings, "contains itself"), 3) << page.warnings;
    page.Pdf();
    EXPECT_EQ(CountOf(page.warnings, "contains itself"), 5)
        << "the inner group is drawn twice: " << page.warnings;
    inner->RemoveChild(page.image.Get());
    inner->RemoveChild(outer.Get());
    again->RemoveChild(region.Get());
}

TEST(Writers, GivePagesTheirSizeAndTitle) {
    const std::pair<std::string, std::string> units[] = {{"100px", "75 37.5"},
                                                         {"100pt", "100 50"},
                                                         {"100pc", "1200 600"},
                                                         {"100in", "7200 3600"},
                                                         {"100mm", "283.464567 141.732283"},
                                                         {"100cm", "2834.645669 1417.322835"},
                                                         {"100000mm", "283464.566929 141732.283465"}};
    int unit = 0;
    for (const auto& [svg, pdf] : units) {
        Page page;
        page.image->SetUnits(static_cast<VEKPrtImageUnits>(unit++));
        page.image->SetTitle("the title");
        EXPECT_EQ(CountOf(page.Svg(), " width=\"" + svg + "\" height"), 1) << svg;
        EXPECT_EQ(CountOf(page.Pdf(), "/MediaBox [ 0 0 " + pdf + " ]"), 1) << svg;
        EXPECT_EQ(CountOf(page.Pdf(), "/Title (the title)"), 2) << "of the document, and in the outline";
    }
}

namespace {

// Takes so many characters, and perhaps cannot get them to where they belong.
struct Sink : std::streambuf {
    long room;
    int synced;
    explicit Sink(long iRoom = 10000000, int iSynced = 0) : room(iRoom), synced(iSynced) {}
    int overflow(int iCharacter) override { return room-- > 0 ? iCharacter : EOF; }
    int sync() override { return synced; }
};

} // namespace

TEST(Results, TellWhatFailed) {
    Page page;
    for (int i = 0; i < 20000; ++i)
        page.Add<VEKPrtLineElt>(Point(i % 97, i % 31), Point(i % 89, 20));
    const std::function<WriteResult(int, std::ostream&)> writers[] = {
        [&](int iPage, std::ostream& ioStream) { return WriteSvg(*page.model, iPage, ioStream); },
        [&](int iPage, std::ostream& ioStream) {
            return WritePdf(iPage == 1 ? *page.model : VEKPrtModel(), ioStream);
        },
        [&](int iPage, std::ostream& ioStream) { return WritePng(*page.model, iPage, 10, ioStream); }};
    const std::tuple<int, Sink, std::ios::iostate, WriteResult::Status> cases[] = {
        {1, Sink(), std::ios::goodbit, WriteResult::Written},
        {1, Sink(10000000, -1), std::ios::goodbit, WriteResult::StreamFailed}, // only the flush
        {1, Sink(3000), std::ios::goodbit, WriteResult::StreamFailed},
        {1, Sink(), std::ios::eofbit, WriteResult::StreamFailed},
        {2, Sink(0), std::ios::goodbit, WriteResult::NoSuchPage}};
    for (const auto& write : writers) {
        for (auto [number, sink, state, status] : cases) {
            std::ostream stream(&sink);
            stream.setstate(state);
            const WriteResult result = write(number, stream);
            EXPECT_EQ(result.status, status) << &write - writers << ' ' << sink.room << ' ' << state;
            EXPECT_EQ(static_cast<bool>(result), status == WriteResult::Written);
        }
    }
    for (const auto& [width, resolution] :
         {std::pair(100.0, 0.0), {100.0, -10.0}, {1e6, 10.0}, {100.0, NAN}}) {
        std::ostringstream text;
        page.image->SetSize(width, 50.0);
        EXPECT_EQ(WritePng(*page.model, 1, resolution, text).status, WriteResult::OutOfMemory) << width;
        EXPECT_EQ(text.str(), "");
    }
}

TEST(Results, TellThatMemoryRanOut) {
    Page page;
    const auto group = page.Link("https://example.org"), shared = Scaled(2, 2);
    group->SetID("the group");
    AddTwice(*group, shared.Get());
    shared->AddChild(Make<VEKPrtTextElt>(Point(0, 20), VEKUnicodeString("text of some length")).Get());
    const auto figure = page.Add<VEKPrtClosedFigureElt>();
    const auto region = Make<VEKPrtClosedFigureRegionElt>();
    region->AddChild(Make<VEKPrtCircleElt>(Point(3, 20), 2.0).Get());
    figure->AddChild(region.Get());
    page.Add<VEKPrtLineElt>()->SetStrokeAttributes(Dashed({1, 2, 3}));
    cairo_surface_t* const picture = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 300, 150);
    cairo_t* const context = cairo_create(picture);
    DrawPage(*page.model, 1, context); // fonts are loaded once

    Sink sink; // needs no memory itself
    std::ostream stream(&sink);
    for (const bool isSvg : {true, false}) {
        for (const bool sticky : {false, true}) {
            long hits = 1, told = 0, silent = 0;
            for (long nth = 0; hits > 0; ++nth) {
                AllocationFaults faults(nth, sticky);
                const auto status = isSvg ? WriteSvg(*page.model, 1, stream, stream).status
                                          : DrawPage(*page.model, 1, context, stream).status;
                hits = faults.Stop();
                told += status == WriteResult::OutOfMemory;
                silent += hits > 0 && status == WriteResult::Written;
                EXPECT_TRUE(hits > 0 || status == WriteResult::Written) << nth;
                EXPECT_NE(status, WriteResult::StreamFailed) << nth;
            }
            EXPECT_GT(told, 30) << isSvg << sticky;
            EXPECT_LT(silent, sticky ? 1 : 12) << "copies that the getters of the model lose";
        }
    }
    cairo_destroy(context);
    cairo_surface_destroy(picture);
}

TEST(Arcs, RunToTheEndAngleWithinOneTurn) {
    for (const auto& [start, end, reached] :
         {std::array{30, 30, 390}, {350, 10, 370}, {0, 450, 90}, {0, -90, 270}})
        EXPECT_EQ(drawing::ArcEnd(start, end), reached);
}

TEST(Nurbs, DrawsACircleAndHonoursTheBounds) {
    const double s = std::sqrt(0.5);
    const double points[] = {1, 0, 1, 1, 0, 1, -1, 1, -1, 0, -1, -1, 0, -1, 1, -1, 1, 0};
    const double knots[] = {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1};
    const double weights[] = {1, s, 1, s, 1, s, 1, s, 1};
    std::string problem;
    const auto sample = [&](float iFirst, float iSecond) {
        return drawing::SampleNurbs(*Make<VEKPrtNURBSElt>(3, 9, points, knots, iFirst, iSecond, weights),
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
    const auto half = sample(0.25F, 0.75F);
    EXPECT_NEAR(half.front().GetY(), 1.0, 1e-12);
    EXPECT_NEAR(half.back().GetY(), -1.0, 1e-12);

    // Knots of any multiplicity: a curve of order 4 in two pieces that are not alike.
    const double uneven[] = {0, 0, 0, 0, 2, 3, 3, 3, 3}, ones[] = {1, 1, 1, 1, 1};
    const double line[] = {0, 0, 2.0 / 3, 0, 5.0 / 3, 0, 8.0 / 3, 0, 3, 0}; // x is the parameter
    for (const Point& point :
         drawing::SampleNurbs(*Make<VEKPrtNURBSElt>(4, 5, line, uneven, 0.5F, 0.5F + 2, ones), 1e-5, problem))
        EXPECT_TRUE(point.GetX() >= 0.5 - 1e-9 && point.GetX() <= 2.5 + 1e-9) << point.GetX();
}
