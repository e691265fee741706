// The maps of the atlas, by numbers read from the model, and the cells of the specimen sheet.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "AtlasModel.h"
#include "Specimen.h"
#include "VEKPrtDump.h"

namespace {

using namespace vekprt;
constexpr double earth = 6371.0, rad = 3.14159265358979323846 / 180.0;

std::string TextOf(const VEKPrtGraphicPrimitiveElt& iElement,
                   void (VEKPrtGraphicPrimitiveElt::*iGet)(VEKUnicodeString&) const) {
    VEKUnicodeString text;
    (iElement.*iGet)(text);
    return text.ToUtf8();
}
std::string IdOf(const VEKPrtGraphicPrimitiveElt& iElement) {
    return TextOf(iElement, &VEKPrtGraphicPrimitiveElt::GetID);
}

std::string WorldJson() {
    std::ifstream file(EXAMPLE_DATA "/countries-110m.json");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// What is drawn in one layer, or for one country.
struct Layer {
    std::string title, link;
    std::vector<std::vector<Path>> areas;
    std::vector<unsigned> colours; // of the areas
    std::vector<Path> lines;
    struct Text {
        Position place;
        std::string text;
        double size;
    };
    std::vector<Text> texts;

    explicit Layer(const VEKPrtGroupElt& iGroup)
        : title(TextOf(iGroup, &VEKPrtGraphicPrimitiveElt::GetTitle)) {
        VEKPrtGroupAttributes attributes;
        VEKPrintLinkURI uri;
        iGroup.GetGroupAttributes(attributes);
        attributes.GetLinkURI(uri);
        link = uri.GetURI();
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(iGroup))
            Visit(child, *this);
    }
    void operator()(const VEKPrtPolyPolygonElt& iArea) {
        double* points = nullptr;
        int *counts = nullptr, polygons = 0;
        iArea.GetPoints(points, counts, polygons);
        areas.emplace_back();
        for (int i = 0; i < polygons; ++i)
            areas.back().push_back(PathOf(points, counts[i]));
        VEKPrtFillAttributes fill;
        iArea.GetFillAttributes(fill);
        colours.emplace_back();
        fill.GetFillColourIndex(colours.back());
    }
    void operator()(const VEKPrtPolylineElt& iLine) {
        double* points = nullptr;
        int count = 0;
        iLine.GetPoints(points, count);
        lines.push_back(PathOf(points, count));
    }
    void operator()(const VEKPrtTextElt& iText) {
        VEKMathPoint2D place;
        VEKUnicodeString text;
        VEKPrtTextAttributes attributes;
        double size = 0.0;
        iText.GetPosition(place);
        iText.GetText(text);
        iText.GetTextAttributes(attributes);
        attributes.GetHeight(size);
        texts.push_back({{place.GetX(), place.GetY()}, text.ToUtf8(), size});
    }
    void operator()(const VEKPrtGraphicPrimitiveElt&) { ADD_FAILURE() << "unexpected class"; }

    static Path PathOf(double*& ioPoints, int iCount) {
        Path path;
        for (int i = 0; i < iCount; ++i, ioPoints += 2)
            path.push_back({ioPoints[0], ioPoints[1]});
        return path;
    }
    // With holes where rings lie within others.
    double Area() const {
        double twice = 0.0;
        for (const Path& ring : areas.at(0)) {
            double part = 0.0;
            for (std::size_t i = 0; i < ring.size(); ++i) {
                const Position &a = ring[i], &b = ring[(i + 1) % ring.size()];
                part += a.x * b.y - b.x * a.y;
            }
            twice =
                std::abs(&ring == &areas[0][0] || !Contains({areas[0][0]}, ring[0]) ? twice + std::abs(part)
                                                                                    : twice - std::abs(part));
        }
        return twice / 2.0;
    }
    static bool Contains(const std::vector<Path>& iRings, const Position& iPlace) {
        bool isInside = false;
        for (const Path& ring : iRings)
            for (std::size_t i = 0; i < ring.size(); ++i) {
                const Position &a = ring[i], &b = ring[(i + 1) % ring.size()];
                if ((a.y > iPlace.y) != (b.y > iPlace.y) &&
                    iPlace.x < a.x + (b.x - a.x) * (iPlace.y - a.y) / (b.y - a.y))
                    isInside = !isInside;
            }
        return isInside;
    }
};

struct Page {
    std::string file;
    std::map<std::string, Layer> layers;
    std::vector<Layer> countries; // without identifier, too
    double scale = 0.0;           // from the line above the map

    explicit Page(const VEKPrtImageElt& iPage) : file(IdOf(iPage)) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(iPage)) {
            const Layer layer(dynamic_cast<VEKPrtGroupElt&>(child));
            const std::string id = IdOf(child);
            const bool isCountry = id.empty() || id.rfind("country-", 0) == 0;
            if (isCountry) countries.push_back(layer);
            if (!id.empty() && !layers.emplace(id, layer).second) ADD_FAILURE() << id;
        }
        std::string digits;
        for (const char c : layers.at("frame").texts.at(1).text)
            if (std::isdigit(static_cast<unsigned char>(c))) digits += c;
        scale = std::stod(digits.substr(1)); // after the 1 of "1 :"
    }
    Box Frame() const {
        Box box;
        box.Add(layers.at("frame").lines.at(1));
        return box;
    }
    const Layer& Country(const std::string& iTitle) const {
        for (const Layer& country : countries)
            if (country.title == iTitle) return country;
        throw std::out_of_range(iTitle);
    }
};

std::vector<Page> PagesOf(const Topology& iTopology) {
    const Atlas atlas(iTopology, "title", "credit");
    std::vector<Page> pages;
    for (const VEKPrtImageElt& page : ChildrenOf(atlas.Model()))
        pages.emplace_back(page);
    return pages;
}

std::string Json(const std::string& iArcs, const std::string& iPolygons, const std::string& iMore = "") {
    return R"({"type":"Topology",)" + iMore + R"("arcs":[)" + iArcs +
           R"(],"objects":{"a":{"type":"MultiPolygon","properties":{"name":"A"},"arcs":[)" + iPolygons +
           "]}}}";
}

void ExpectPath(const Path& iPath, const Path& iExpected) {
    ASSERT_EQ(iPath.size(), iExpected.size());
    for (std::size_t i = 0; i < iPath.size(); ++i) {
        EXPECT_NEAR(iPath[i].x, iExpected[i].x, 1e-9) << i;
        EXPECT_NEAR(iPath[i].y, iExpected[i].y, 1e-9) << i;
    }
}

TEST(TopoJson, ChainsForwardAndReversedArcs) {
    const Topology topology =
        ReadTopology(R"({"type":"Topology","transform":{"scale":[0.5,2],"translate":[10,-4]},
        "arcs":[[[0,0],[0,4],[2,0]],[[2,4],[0,-4],[-2,0]],[[2,4],[4,0],[0,-4],[-6,0]]],
        "objects":{"p":{"type":"Point"},"land":{"type":"GeometryCollection","geometries":[
        {"type":"Polygon","id":7,"properties":{"name":"A"},"arcs":[[0,1]]},
        {"type":"MultiPolygon","id":"b","arcs":[[[-2,2]]]}]},"b":{"type":"Polygon","arcs":[[0,1]]}}})");
    ASSERT_EQ(topology.countries.size(), 2U);
    EXPECT_EQ(topology.countries[0].id + topology.countries[0].name + topology.countries[1].id, "7Ab");
    ExpectPath(topology.countries[0].polygons.at(0).at(0), {{10, -4}, {10, 4}, {11, 4}, {11, -4}});
    ExpectPath(topology.countries[1].polygons.at(0).at(0), {{10, -4}, {11, -4}, {11, 4}, {13, 4}, {13, -4}});
    EXPECT_EQ(topology.arcs[1].users, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(topology.levels, "object \"land\"; the file has \"p\" \"land\" \"b\"");
}

TEST(TopoJson, TakesTheLevelThatIsAskedFor) {
    const std::string polygon = R"({"type":"Polygon","arcs":[[0]]})";
    const std::string text =
        R"({"type":"Topology","arcs":[[[0,0],[1,0],[1,1],[0,0]]],"objects":{"states":{"type":"GeometryCollection",
        "geometries":[)" +
        polygon + "," + polygon + R"(]},"nation":)" + polygon + R"(,"countries":)";
    EXPECT_EQ(ReadTopology(text + "null}}").countries.size(), 2U);
    EXPECT_EQ(ReadTopology(text + polygon + "}}").levels,
              "object \"countries\"; the file has \"states\" \"nation\" \"countries\"");
    EXPECT_EQ(ReadTopology(text + polygon + "}}", "nation").levels.substr(0, 15), "object \"nation\"");
    EXPECT_THROW(ReadTopology(text + "null}}", "countries"), std::runtime_error);
    EXPECT_THROW(ReadTopology(text + "null}}", "x"), std::runtime_error);
}

// A path of a rectangle in degrees, as JSON.
std::string Rectangle(double iWest, double iSouth, double iEast, double iNorth) {
    std::ostringstream text;
    text << "[[" << iWest << "," << iSouth << "],[" << iEast << "," << iSouth << "],[" << iEast << ","
         << iNorth << "],[" << iWest << "," << iNorth << "],[" << iWest << "," << iSouth << "]]";
    return text.str();
}
double GroundArea(double iDegrees, double iSouth, double iNorth) {
    return earth * earth * iDegrees * rad * (std::sin(iNorth * rad) - std::sin(iSouth * rad));
}

// All land lies within the frame and fills most of it; areas on the page are those on the ground.
TEST(Atlas, FitsAPageToAllLand) {
    const std::string polar = "[[-180,75],[-90,75],[0,75],[90,75],[180,75]]";
    const struct {
        const char* name;
        std::string json;
        double area; // square kilometres
    } rows[] = {
        {"square", Json(Rectangle(0, 0, 20, 20), "[[0]]"), GroundArea(20, 0, 20)},
        {"hole", Json(Rectangle(0, 40, 20, 50) + "," + Rectangle(5, 42, 15, 48), "[[0],[1]]"),
         GroundArea(20, 40, 50) - GroundArea(10, 42, 48)},
        {"antimeridian",
         Json(Rectangle(170, -50, 180, -40) + "," + Rectangle(-180, -50, -170, -40), "[[0]],[[1]]"),
         GroundArea(20, -50, -40)},
        {"jump", Json("[[170,10],[-170,10],[-170,20],[170,20],[170,10]]", "[[0]]"), GroundArea(20, 10, 20)},
        {"around the pole", Json(polar, "[[0]]"), GroundArea(360, 75, 90)},
        {"equal islands",
         Json(Rectangle(-180, 80, -178, 82) + "," + Rectangle(60, 80, 62, 82) + "," +
                  Rectangle(-60, 80, -58, 82),
              "[[0]],[[1]],[[2]]"),
         3 * GroundArea(2, 80, 82)},
        {"far islands", Json(Rectangle(0, 0, 1, 1) + "," + Rectangle(40, 30, 41, 31), "[[0]],[[1]]"),
         GroundArea(1, 0, 1) + GroundArea(1, 30, 31)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<Page> pages = PagesOf(ReadTopology(row.json));
        ASSERT_EQ(pages.size(), 1U);
        const Layer& country = pages[0].Country("A");
        EXPECT_EQ(pages[0].file + pages[0].layers.at("frame").texts.at(0).text + country.link, "mapA");
        EXPECT_NEAR(country.Area() * std::pow(pages[0].scale / 1e6, 2), row.area, 0.004 * row.area);
        Box land;
        for (const Path& ring : country.areas[0])
            land.Add(ring);
        const Box frame = pages[0].Frame();
        EXPECT_GT(land.minX, frame.minX);
        EXPECT_GT(land.minY, frame.minY);
        EXPECT_LT(land.maxX, frame.maxX);
        EXPECT_LT(land.maxY, frame.maxY);
        EXPECT_NEAR(land.Centre().x, frame.Centre().x, 1.0);
        EXPECT_NEAR(land.Centre().y, frame.Centre().y, 1.0);
        EXPECT_GT(std::max(land.Width() / frame.Width(), land.Height() / frame.Height()), 0.8);
        // The coast without the edges along the antimeridian.
        double longest = 0.0;
        for (const Path& line : pages[0].layers.at("coast").lines)
            for (std::size_t i = 0; i + 1 < line.size(); ++i)
                longest = std::max(longest, std::hypot(line[i].x - line[i + 1].x, line[i].y - line[i + 1].y));
        EXPECT_LT(longest * pages[0].scale / 1e6, 115.0); // a degree
    }
    EXPECT_EQ(
        PagesOf(ReadTopology(Json(Rectangle(0, 0, 1, 1) + "," + Rectangle(150, 0, 151, 1), "[[0]],[[1]]")))
            .size(),
        8U);
}

class WorldAtlas : public testing::Test {
protected:
    const Topology _topology = ReadTopology(WorldJson());
    const std::vector<Page> _pages = PagesOf(_topology);
};

TEST_F(WorldAtlas, ProjectsTheWorldAndItsParts) {
    const Page& world = _pages.at(0);
    // Wagner VI: the equator is true to scale, the poles are half as long.
    Box globe;
    globe.Add(world.layers.at("background").areas.at(1).at(0));
    const double half = 180.0 * rad * earth * 1e6 / world.scale;
    EXPECT_NEAR(globe.Width(), 2.0 * half, 0.05);
    EXPECT_NEAR(globe.Height(), half, 0.05);
    double top = 0.0;
    for (const Position& position : world.layers.at("background").areas.at(1).at(0))
        if (position.y > globe.maxY - 0.01) top = std::max(top, position.x - globe.Centre().x);
    EXPECT_NEAR(top, half / 2.0, 0.05);
    const std::map<std::string, std::pair<const char*, double>> areas = {
        {"europe", {"Germany", 357e3}},         {"africa", {"Kenya", 580e3}},
        {"asia", {"Mongolia", 1564e3}},         {"north-america", {"Mexico", 1964e3}},
        {"south-america", {"Bolivia", 1099e3}}, {"oceania", {"Australia", 7690e3}},
        {"antarctica", {"Antarctica", 12.9e6}}};
    for (std::size_t i = 1; i < _pages.size(); ++i) {
        const auto& [name, area] = areas.at(_pages[i].file);
        EXPECT_NEAR(_pages[i].Country(name).Area() * std::pow(_pages[i].scale / 1e6, 2), area, 0.08 * area)
            << name;
    }
    EXPECT_EQ(_pages.size(), 8U);
}

TEST_F(WorldAtlas, ColoursNeighboursDifferently) {
    std::map<std::string, unsigned> colours;
    std::map<unsigned, int> uses;
    for (const Page& page : _pages) {
        for (const Layer& country : page.countries) {
            const unsigned colour = country.colours.at(0);
            EXPECT_EQ(colours.emplace(country.title, colour).first->second, colour) << page.file;
            if (&page == &_pages[0]) ++uses[colour];
        }
    }
    for (const Arc& arc : _topology.arcs)
        for (std::size_t i = 1; i < arc.users.size(); ++i) {
            const std::string &a = _topology.countries[arc.users[i - 1]].name,
                              &b = _topology.countries[arc.users[i]].name;
            EXPECT_NE(colours.at(a), colours.at(b)) << a << ", " << b;
        }
    ASSERT_EQ(uses.size(), 6U);
    for (const auto& [colour, count] : uses) {
        EXPECT_GE(colour, 6U);
        EXPECT_GT(count, 15);
    }
}

TEST_F(WorldAtlas, LinksCountriesToPagesAndBack) {
    const std::pair<const char*, const char*> targets[] = {
        {"Germany", "europe"},     {"Turkey", "europe"},       {"Kenya", "africa"},
        {"China", "asia"},         {"Russia", "asia"},         {"Canada", "north-america"},
        {"Peru", "south-america"}, {"New Zealand", "oceania"}, {"Antarctica", "antarctica"}};
    for (const auto& [name, page] : targets)
        EXPECT_EQ(_pages.at(0).Country(name).link, page + std::string(".svg")) << name;
    for (const Page& page : _pages)
        for (const Layer& country : page.countries)
            EXPECT_EQ(country.link == "world.svg", &page != &_pages[0]);
}

TEST_F(WorldAtlas, MeasuresKilometres) {
    for (const Page& page : _pages) {
        const Layer& bar = page.layers.at("scale-bar");
        const Path& whole = bar.lines.at(5);
        ASSERT_EQ(bar.texts.size(), 6U);
        for (std::size_t i = 0; i < 5; ++i) {
            const double x = bar.lines[i].at(0).x;
            EXPECT_NEAR((x - whole.at(0).x) * page.scale / 1e6, std::stod(bar.texts[i].text), 0.01)
                << page.file;
            EXPECT_EQ(bar.texts[i].place.x, x);
        }
        EXPECT_NEAR(bar.lines[4].at(0).x, whole.at(1).x, 1e-9);
        EXPECT_GT(whole[1].x - whole[0].x, 40.0);
        EXPECT_LT(whole[1].x - whole[0].x, 110.0);
        EXPECT_EQ(page.layers.at("frame").texts.at(2).text, "credit");
    }
}

TEST_F(WorldAtlas, NamesWhatHasRoom) {
    std::map<std::string, std::size_t> counts;
    for (const Page& page : _pages) {
        for (const Layer::Text& name : page.layers.at("names").texts) {
            const auto& rings = page.Country(name.text).areas.at(0);
            const double half = 0.25 * name.size * static_cast<double>(name.text.size());
            for (const double x : {-half, 0.0, half})
                for (const double y : {0.0, 0.7 * name.size})
                    EXPECT_TRUE(Layer::Contains(rings, {name.place.x + x, name.place.y + y}))
                        << page.file << name.text;
            EXPECT_GE(name.size, 1.8);
            EXPECT_LE(name.size, 6.0);
        }
        counts[page.file] = page.layers.at("names").texts.size();
    }
    EXPECT_GE(counts["world"], 28U);
    EXPECT_GE(counts["europe"], 35U);
    EXPECT_GE(counts["africa"], 45U);
}

// A border is drawn once and a coast once, within the frame.
TEST_F(WorldAtlas, DrawsEachArcOnce) {
    std::set<std::pair<double, double>> starts;
    for (const char* const layer : {"borders", "coast"}) {
        EXPECT_GT(_pages.at(1).layers.at(layer).lines.size(), 40U);
        for (const Path& line : _pages.at(1).layers.at(layer).lines) {
            EXPECT_TRUE(starts.insert({line[0].x + line[1].x * 1e3, line[0].y + line[1].y * 1e3}).second);
            const Box frame = _pages.at(1).Frame();
            for (const Position& position : line)
                EXPECT_TRUE(position.x > frame.minX - 1e-6 && position.x < frame.maxX + 1e-6 &&
                            position.y > frame.minY - 1e-6 && position.y < frame.maxY + 1e-6);
        }
    }
}

TEST(Specimen, BuildsEachCellAsAPage) {
    const Specimen sheet = BuildSpecimen();
    const auto drawingOf = [](const Specimen& iSpecimen, const std::string& iCell) {
        const auto* const group = dynamic_cast<VEKPrtGroupElt*>(FindByID(*iSpecimen.model, iCell.c_str()));
        std::ostringstream text;
        if (group)
            for (const VEKPrtGraphicPrimitiveElt& child : ChildrenOf(*group))
                Dump(text, child);
        return text.str();
    };
    std::set<std::string> names;
    for (const std::string& cell : SpecimenCells()) {
        EXPECT_TRUE(names.insert(cell).second) << cell;
        EXPECT_GT(drawingOf(sheet, cell).size(), 400U) << cell;
        EXPECT_EQ(drawingOf(BuildSpecimenCell(cell), cell), drawingOf(sheet, cell));
    }
    EXPECT_EQ(names.size(), 38U);
    EXPECT_THROW(BuildSpecimenCell("no-cell"), std::out_of_range);
}

} // namespace
