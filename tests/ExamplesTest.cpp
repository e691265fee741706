// The maps of the atlas, by numbers read from the model.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "AtlasModel.h"
#include "VEKPrtWalk.h"

namespace {

using namespace vekprt;

std::string Text(const VEKPrtGraphicPrimitiveElt& iElement,
                 void (VEKPrtGraphicPrimitiveElt::*iGet)(VEKUnicodeString&) const) {
    VEKUnicodeString text;
    (iElement.*iGet)(text);
    return text.ToUtf8();
}

// What is drawn in a layer of a page, or for a country.
struct Layer {
    std::string id, title, link;
    std::vector<std::vector<Path>> areas;
    unsigned colour = 0; // of the last area
    std::vector<Path> lines;
    std::vector<std::pair<Position, double>> places; // of the texts, with their sizes
    std::vector<std::string> texts;

    explicit Layer(const VEKPrtGroupElt& iGroup)
        : id(Text(iGroup, &VEKPrtGraphicPrimitiveElt::GetID)),
          title(Text(iGroup, &VEKPrtGraphicPrimitiveElt::GetTitle)) {
        VEKPrtGroupAttributes attributes;
        VEKPrintLinkURI uri;
        iGroup.GetGroupAttributes(attributes);
        attributes.GetLinkURI(uri);
        link = uri.GetURI();
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(iGroup))
            Visit(child, *this);
    }
    static Path PathOf(const double*& ioPoints, int iCount) {
        Path path;
        for (int i = 0; i < iCount; ++i, ioPoints += 2)
            path.push_back({ioPoints[0], ioPoints[1]});
        return path;
    }
    void operator()(const VEKPrtPolyPolygonElt& iArea) {
        double* points = nullptr;
        int *counts = nullptr, polygons = 0;
        VEKPrtFillAttributes fill;
        iArea.GetPoints(points, counts, polygons);
        const double* next = points;
        areas.emplace_back();
        for (int i = 0; i < polygons; ++i)
            areas.back().push_back(PathOf(next, counts[i]));
        iArea.GetFillAttributes(fill);
        fill.GetFillColourIndex(colour);
    }
    void operator()(const VEKPrtPolylineElt& iLine) {
        double* points = nullptr;
        int count = 0;
        iLine.GetPoints(points, count);
        const double* next = points;
        lines.push_back(PathOf(next, count));
    }
    void operator()(const VEKPrtTextElt& iText) {
        VEKMathPoint2D place;
        VEKUnicodeString text;
        VEKPrtTextAttributes attributes;
        iText.GetPosition(place);
        iText.GetText(text);
        iText.GetTextAttributes(attributes);
        places.push_back({{place.GetX(), place.GetY()}, 0.0});
        attributes.GetHeight(places.back().second);
        texts.emplace_back(text.ToUtf8());
    }
    void operator()(const VEKPrtGraphicPrimitiveElt&) { ADD_FAILURE() << "unexpected class"; }

    // Holes are added.
    double Area() const {
        double area = 0.0;
        for (const Path& ring : areas.at(0))
            area += AreaOf(ring);
        return area;
    }
    bool Contains(double iX, double iY) const {
        bool isInside = false;
        for (const Path& ring : areas.at(0))
            for (std::size_t i = 0; i < ring.size(); ++i) {
                const Position &a = ring[i], &b = ring[(i + 1) % ring.size()];
                if ((a.y > iY) != (b.y > iY) && iX < a.x + (b.x - a.x) * (iY - a.y) / (b.y - a.y))
                    isInside = !isInside;
            }
        return isInside;
    }
};

struct Page {
    std::string file;
    std::vector<Layer> layers;
    Box frame;
    double kilometre = 0.0; // millimetres, by the scale above the map

    explicit Page(const VEKPrtImageElt& iPage) : file(Text(iPage, &VEKPrtGraphicPrimitiveElt::GetID)) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(iPage))
            layers.emplace_back(dynamic_cast<VEKPrtGroupElt&>(child));
        const Layer& rim = Get("frame");
        frame.Add(rim.lines.at(1));
        double width = 0.0, height = 0.0;
        iPage.GetSize(width, height);
        EXPECT_TRUE(frame.minX > 0 && frame.minY > 0 && frame.maxX < width && frame.maxY < height - 10);
        std::string scale = rim.texts.at(1).substr(rim.texts.at(1).find(':') + 1);
        scale.erase(std::remove(scale.begin(), scale.end(), ' '), scale.end());
        kilometre = 1e6 / std::stod(scale);
        // Nothing that the map shows lies outside its frame.
        for (const Layer& layer : layers) {
            Box bounds = frame;
            if (layer.id == "borders" || layer.id == "coast")
                for (const Path& line : layer.lines)
                    bounds.Add(line);
            if (!layer.title.empty())
                for (const Path& ring : layer.areas.at(0))
                    bounds.Add(ring);
            EXPECT_NEAR(bounds.Width() + bounds.Height(), frame.Width() + frame.Height(), 1e-6)
                << file << layer.title;
        }
    }
    // By identifier or title.
    const Layer& Get(const std::string& iName) const {
        for (const Layer& layer : layers)
            if (layer.id == iName || layer.title == iName) return layer;
        throw std::out_of_range(iName);
    }
};

std::vector<Page> PagesOf(const Topology& iTopology) {
    const Atlas atlas(iTopology, "title", "credit");
    std::vector<Page> pages;
    for (const VEKPrtImageElt& page : ChildrenOf(atlas.Model()))
        pages.emplace_back(page);
    return pages;
}

std::string Numbers(const Path& iPath) {
    std::ostringstream text;
    for (const Position& position : iPath)
        text << position.x << ',' << position.y << ' ';
    return text.str();
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
    EXPECT_EQ(Numbers(topology.countries[0].polygons.at(0).at(0)), "10,-4 10,4 11,4 11,-4 ");
    EXPECT_EQ(Numbers(topology.countries[1].polygons.at(0).at(0)), "10,-4 11,-4 11,4 13,4 13,-4 ");
    EXPECT_EQ(topology.arcs[1].users, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(topology.levels, "object \"land\"; the file has \"p\" \"land\" \"b\"");
}

TEST(TopoJson, TakesTheLevelThatIsAskedFor) {
    const std::string polygon = R"({"type":"Polygon","arcs":[[0]]})";
    const std::string text = R"({"type":"Topology","arcs":[[[0,0],[1,0],[1,1],[0,0]]],"objects":{"states":)" +
                             polygon + R"(,"nation":)" + polygon + R"(,"countries":)";
    const auto levelOf = [&](const std::string& iCountries, const std::string& iLevel = {}) {
        const std::string levels = ReadTopology(text + iCountries + "}}", iLevel).levels;
        return levels.substr(0, levels.find(';'));
    };
    EXPECT_EQ(levelOf("null"), "object \"states\"");
    EXPECT_EQ(levelOf(polygon), "object \"countries\"");
    EXPECT_EQ(levelOf(polygon, "nation"), "object \"nation\"");
    EXPECT_THROW(levelOf("null", "countries"), std::runtime_error);
    EXPECT_THROW(levelOf("null", "x"), std::runtime_error);
}

constexpr double earth = 6371.0, rad = 3.14159265358979323846 / 180.0;

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
    const struct {
        const char* name;
        std::string arcs, polygons;
        double area; // square kilometres, holes added
    } rows[] = {
        {"square", Rectangle(0, 0, 20, 20), "[[0]]", GroundArea(20, 0, 20)},
        {"hole", Rectangle(0, 40, 20, 50) + "," + Rectangle(5, 42, 15, 48), "[[0],[1]]",
         GroundArea(20, 40, 50) + GroundArea(10, 42, 48)},
        {"antimeridian", Rectangle(170, -50, 180, -40) + "," + Rectangle(-180, -50, -170, -40), "[[0]],[[1]]",
         GroundArea(20, -50, -40)},
        {"jump", "[[170,10],[-170,10],[-170,20],[170,20],[170,10]]", "[[0]]", GroundArea(20, 10, 20)},
        {"around the pole", "[[-180,75],[-90,75],[0,75],[90,75],[180,75]]", "[[0]]", GroundArea(360, 75, 90)},
        {"equal islands",
         Rectangle(-180, 80, -178, 82) + "," + Rectangle(60, 80, 62, 82) + "," + Rectangle(-60, 80, -58, 82),
         "[[0]],[[1]],[[2]]", 3 * GroundArea(2, 80, 82)},
        {"far islands", Rectangle(0, 0, 1, 1) + "," + Rectangle(40, 30, 41, 31), "[[0]],[[1]]",
         GroundArea(1, 0, 1) + GroundArea(1, 30, 31)},
        {"too far", Rectangle(0, 0, 1, 1) + "," + Rectangle(150, 0, 151, 1), "[[0]],[[1]]", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<Page> pages = PagesOf(
            ReadTopology(R"({"type":"Topology","arcs":[)" + row.arcs +
                         R"(],"objects":{"a":{"type":"MultiPolygon","properties":{"name":"A"},"arcs":[)" +
                         row.polygons + "]}}}"));
        ASSERT_EQ(pages.size(), row.area > 0 ? 1U : 8U);
        if (pages.size() > 1) continue;
        const Page& page = pages[0];
        const Layer &country = page.Get("A"), &coast = page.Get("coast");
        EXPECT_EQ(page.file + page.Get("frame").texts.at(0) + country.link, "mapA");
        EXPECT_NEAR(country.Area() / std::pow(page.kilometre, 2), row.area, 0.004 * row.area);
        Box land;
        for (const Path& ring : country.areas[0])
            land.Add(ring);
        const Box& frame = page.frame;
        EXPECT_NEAR(land.Centre().x, frame.Centre().x, 1.0);
        EXPECT_NEAR(land.Centre().y, frame.Centre().y, 1.0);
        EXPECT_NEAR(std::max(land.Width() / frame.Width(), land.Height() / frame.Height()), 0.88, 0.04);
        // No edge along the antimeridian or to the pole is coast.
        for (const Path& line : coast.lines)
            for (std::size_t i = 0; i + 1 < line.size(); ++i)
                EXPECT_FALSE(std::abs(line[i].x - frame.Centre().x) < 0.1 &&
                             std::abs(line[i + 1].x - frame.Centre().x) < 0.1);
    }
}

class WorldAtlas : public testing::Test {
protected:
    static Topology Read() {
        std::ifstream file(EXAMPLE_DATA "/countries-110m.json");
        std::ostringstream text;
        text << file.rdbuf();
        return ReadTopology(text.str());
    }
    const Topology _topology = Read();
    const std::vector<Page> _pages = PagesOf(_topology);
    const Page& _world = _pages.at(0);
};

TEST_F(WorldAtlas, ProjectsTheWorldAndItsParts) {
    // Wagner VI: the equator is true to scale, the poles and the central meridian are half as long.
    const Path& outline = _world.Get("background").areas.at(1).at(0);
    Box globe, north;
    globe.Add(outline);
    for (const Position& position : outline)
        if (position.y > globe.maxY - 0.01) north.Add({position});
    const double equator = 360.0 * rad * earth * _world.kilometre;
    EXPECT_NEAR(globe.Width(), equator, 0.05);
    EXPECT_NEAR(globe.Height(), equator / 2.0, 0.05);
    EXPECT_NEAR(north.Width(), equator / 2.0, 0.05);
    const std::pair<const char*, double> areas[] = {
        {"Germany", 357e3},  {"Kenya", 580e3},      {"Mongolia", 1564e3},  {"Mexico", 1964e3},
        {"Bolivia", 1099e3}, {"Australia", 7690e3}, {"Antarctica", 12.9e6}};
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_NEAR(_pages.at(i + 1).Get(areas[i].first).Area() / std::pow(_pages[i + 1].kilometre, 2),
                    areas[i].second, 0.08 * areas[i].second);
}

TEST_F(WorldAtlas, ColoursNeighboursDifferently) {
    std::map<std::string, unsigned> colours;
    std::map<unsigned, int> uses;
    for (const Page& page : _pages) {
        for (const Layer& layer : page.layers) {
            if (layer.title.empty()) continue;
            EXPECT_EQ(colours.emplace(layer.title, layer.colour).first->second, layer.colour) << page.file;
            uses[layer.colour] += &page == &_world;
        }
    }
    for (const Arc& arc : _topology.arcs)
        for (std::size_t i = 1; i < arc.users.size(); ++i) {
            const std::string &a = _topology.countries[arc.users[i - 1]].name,
                              &b = _topology.countries[arc.users[i]].name;
            EXPECT_NE(colours.at(a), colours.at(b)) << a << ", " << b;
        }
    EXPECT_EQ(uses.size(), 6U);
    for (const auto& [colour, count] : uses)
        EXPECT_TRUE(colour >= 6 && count > 15) << colour << ": " << count;
}

TEST_F(WorldAtlas, LinksCountriesToPagesAndBack) {
    const std::pair<const char*, const char*> targets[] = {
        {"Germany", "europe.svg"},     {"Turkey", "europe.svg"},       {"Kenya", "africa.svg"},
        {"China", "asia.svg"},         {"Russia", "asia.svg"},         {"Canada", "north-america.svg"},
        {"Peru", "south-america.svg"}, {"New Zealand", "oceania.svg"}, {"Antarctica", "antarctica.svg"}};
    for (const auto& [name, file] : targets)
        EXPECT_EQ(_world.Get(name).link, file) << name;
    for (const Page& page : _pages)
        for (const Layer& layer : page.layers)
            EXPECT_EQ(layer.link == "world.svg", &page != &_world && !layer.title.empty());
}

TEST_F(WorldAtlas, MeasuresKilometres) {
    for (const Page& page : _pages) {
        const Layer& bar = page.Get("scale-bar");
        ASSERT_EQ(bar.lines.size(), bar.texts.size());
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_NEAR((bar.lines[i].at(0).x - page.frame.minX) / page.kilometre, std::stod(bar.texts[i]),
                        0.01);
            EXPECT_EQ(bar.places[i].first.x, bar.lines[i].at(0).x);
        }
        EXPECT_EQ(bar.lines[5].at(0).x, page.frame.minX);
        EXPECT_NEAR(bar.lines[5].at(1).x, bar.lines[4].at(0).x, 1e-9);
        EXPECT_NEAR(bar.lines[5].at(1).x - page.frame.minX, 75.0, 30.0);
        EXPECT_EQ(page.Get("frame").texts.at(2), "credit");
    }
}

TEST_F(WorldAtlas, NamesWhatHasRoom) {
    const std::size_t counts[] = {28, 35, 45, 55, 12, 8, 6, 2};
    for (std::size_t page = 0; page < _pages.size(); ++page) {
        const Layer& names = _pages[page].Get("names");
        EXPECT_GE(names.texts.size(), counts[page]) << _pages[page].file;
        for (std::size_t i = 0; i < names.texts.size(); ++i) {
            const auto& [place, size] = names.places[i];
            const double half = 0.25 * size * static_cast<double>(names.texts[i].size());
            for (const double x : {-half, 0.0, half})
                for (const double y : {0.0, 0.7 * size})
                    EXPECT_TRUE(_pages[page].Get(names.texts[i]).Contains(place.x + x, place.y + y))
                        << names.texts[i];
            EXPECT_TRUE(size >= 1.8 && size <= 6.0);
        }
    }
}

} // namespace
