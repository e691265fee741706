#include "AtlasModel.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <set>
#include <utility>

#include "Page.h"

namespace {

// Twice what the finest real data needs.
constexpr std::size_t mostPositions = 10'000'000;

constexpr Format a3Landscape{420.0, 297.0, 1.0};
constexpr Format a3Portrait{297.0, 420.0, 1.0};
constexpr Format a4Landscape{297.0, 210.0, 0.8};
constexpr Format a4Portrait{210.0, 297.0, 0.8};

// The map of the world comes first.  Its centre puts the cut through Bering Strait, where least is cut.
std::vector<PageLayout> WorldPages() {
    return {{"world", "THE WORLD", a3Landscape, {11.0, 0.0}, 90e6, true},
            {"europe", "EUROPE", a3Landscape, {13.0, 54.0}, 17e6, false},
            {"africa", "AFRICA", a3Portrait, {17.5, 3.0}, 30e6, false},
            {"asia", "ASIA", a3Landscape, {97.0, 35.0}, 42e6, false},
            {"north-america", "NORTH AMERICA", a3Portrait, {-95.0, 45.0}, 28e6, false},
            {"south-america", "SOUTH AMERICA", a4Portrait, {-60.0, -22.0}, 34e6, false},
            {"oceania", "OCEANIA", a4Landscape, {155.0, -19.0}, 42e6, false},
            {"antarctica", "ANTARCTICA", a4Landscape, {0.0, -90.0}, 36e6, false}};
}

// In kilometres of the projection.  Of a country it contains the largest polygon and what is not farther from
// it than half its size: not the islands on the other side of the globe.
Box ExtentOf(const Country& iCountry, const Projection& iProjection) {
    std::vector<Box> parts;
    Box extent;
    double largest = -1.0;
    for (const std::vector<Path>& polygon : iCountry.polygons) {
        Box part;
        for (const Position& position : polygon.front())
            part.Add(iProjection.Forward(position));
        parts.push_back(part);
        if (part.Width() * part.Height() <= largest) continue;
        largest = part.Width() * part.Height();
        extent = part;
    }
    // Each round makes it larger by half, until one finds no more.
    for (Box before; before.Width() != extent.Width() || before.Height() != extent.Height();) {
        before = extent;
        for (const Box& part : parts)
            if (extent.Grown(std::max(extent.Width(), extent.Height()) / 2.0).Overlaps(part))
                extent.Add(part);
    }
    return extent;
}

// The one page that shows the countries as large as it can; false when they are too far apart for that.
bool FittedPage(const Topology& iTopology, const std::string& iTitle, PageLayout& oLayout) {
    constexpr double farthest = 10'000.0; // kilometres
    Position centre = iTopology.countries[0].polygons[0][0][0];
    Box extent;
    // From there to the middle of the extent, as it is seen from each place.
    for (int round = 0; round < 6; ++round) {
        const Projection projection(centre, false);
        extent = {};
        for (const Country& country : iTopology.countries)
            extent.Add(ExtentOf(country, projection));
        centre = projection.Inverse(extent.Centre());
    }
    if (std::max(extent.Width(), extent.Height()) > farthest) return false;
    const bool isOne = iTopology.countries.size() == 1 && !iTopology.countries[0].name.empty();
    const Format& format = extent.Width() > extent.Height() ? a3Landscape : a3Portrait;
    oLayout = {"map", isOne ? iTopology.countries[0].name : iTitle, format, centre, 0.0, false};
    const Box frame = oLayout.Frame();
    constexpr double margin = 1.1, smallest = 10'000.0;
    const double filled = std::max(extent.Width() / frame.Width(), extent.Height() / frame.Height()) * 1e6;
    const double scale = std::max(margin * filled, smallest);
    oLayout.scale = std::ceil(scale / RoundedDown(scale) * 10.0) * RoundedDown(scale) / 10.0;
    return true;
}

// One of the colours for each country: other than the neighbours' as far as they go, and each about as often.
// Countries with many neighbours choose first.
std::vector<std::size_t> ColourCountries(const Topology& iTopology) {
    std::vector<std::set<std::size_t>> neighbours(iTopology.countries.size());
    for (const Arc& arc : iTopology.arcs) {
        // Where, in odd places, more than two meet, each is told of the next only.
        for (std::size_t i = 0; i + 1 < arc.users.size(); ++i) {
            neighbours[arc.users[i]].insert(arc.users[i + 1]);
            neighbours[arc.users[i + 1]].insert(arc.users[i]);
        }
    }
    std::vector<std::size_t> order(iTopology.countries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t iLeft, std::size_t iRight) {
        return neighbours[iLeft].size() > neighbours[iRight].size();
    });

    std::vector<std::size_t> colours(order.size(), landColours);
    std::vector<std::size_t> used(landColours);
    for (const std::size_t country : order) {
        std::vector<std::size_t> clashes(landColours + 1);
        for (const std::size_t neighbour : neighbours[country])
            ++clashes[colours[neighbour]];
        std::size_t best = 0;
        for (std::size_t colour = 1; colour < landColours; ++colour) {
            if (std::pair(clashes[colour], used[colour]) < std::pair(clashes[best], used[best]))
                best = colour;
        }
        colours[country] = best;
        ++used[best];
    }
    return colours;
}

} // namespace

Atlas::Atlas(const Topology& iTopology, const std::string& iTitle, const std::string& iCredit)
    : _titleFont("DejaVu Serif, serif"), _labelFont("DejaVu Sans, sans-serif"),
      _model(vekprt::Make<VEKPrtModel>()) {
    AtlasParts parts{iTopology, _titleFont, _labelFont, iCredit, Allowance(mostPositions)};
    std::vector<PageLayout> layouts(1);
    const bool isFitted = FittedPage(iTopology, iTitle, layouts[0]);
    if (!isFitted) layouts = WorldPages();

    // A click on a country leads from the world to the region that shows most of it, close to its middle, and
    // from a region back to the world.  So all pages lay out their countries before any is built.
    const std::size_t count = iTopology.countries.size();
    std::vector<std::unique_ptr<PageBuilder>> pages;
    std::vector<std::string> toRegions(count), toWorld(count, isFitted ? "" : "world");
    std::vector<double> best(count);
    for (const PageLayout& layout : layouts) {
        auto page = std::make_unique<PageBuilder>(layout, parts);
        bool isEmpty = true;
        for (std::size_t i = 0; i < count; ++i) {
            const double shown = page->ShownArea(i);
            if (shown > 0.0) isEmpty = false;
            // On the ground: areas on paper would favour the maps of larger scale.
            const double worth = shown * layout.scale * layout.scale * (1.0 - page->ShownOffset(i));
            if (layout.isWorld || !(worth > best[i])) continue;
            best[i] = worth;
            toRegions[i] = layout.file;
        }
        if (!isEmpty || pages.empty()) pages.push_back(std::move(page));
    }
    const std::vector<std::size_t> colours = ColourCountries(iTopology);
    for (const auto& page : pages)
        _model->AddImage(page->Build(colours, page->Layout().isWorld ? toRegions : toWorld).Get());
}
