#include "AtlasModel.h"

#include <algorithm>
#include <memory>

#include "Colouring.h"
#include "Elements.h"
#include "Page.h"

namespace {

constexpr Sheet kA3Landscape{420.0, 297.0, 1.0};
constexpr Sheet kA3Portrait{297.0, 420.0, 1.0};
constexpr Sheet kA4Landscape{297.0, 210.0, 0.8};
constexpr Sheet kA4Portrait{210.0, 297.0, 0.8};

/// The map of the world comes first.  Its centre puts the cut through Bering Strait, where least is cut.
constexpr PageLayout kPages[] = {
    {"world", "THE WORLD", kA3Landscape, {11.0, 0.0}, 90e6, 15.0, true},
    {"europe", "EUROPE", kA3Landscape, {13.0, 54.0}, 17e6, 5.0, false},
    {"africa", "AFRICA", kA3Portrait, {17.5, 3.0}, 30e6, 10.0, false},
    {"asia", "ASIA", kA3Landscape, {97.0, 35.0}, 42e6, 10.0, false},
    {"north-america", "NORTH AMERICA", kA3Portrait, {-95.0, 45.0}, 28e6, 10.0, false},
    {"south-america", "SOUTH AMERICA", kA4Portrait, {-60.0, -22.0}, 34e6, 10.0, false},
    {"oceania", "OCEANIA", kA4Landscape, {155.0, -19.0}, 42e6, 10.0, false},
    {"antarctica", "ANTARCTICA", kA4Landscape, {0.0, -90.0}, 36e6, 10.0, false},
};

/// Where a click on a country leads: from the world to the region that shows most of it, and of those that
/// show it as a whole to the one in whose middle it lies; from a region back to the world.
class Links {
public:
    explicit Links(std::size_t iCountries) : _best(iCountries) {}

    void Note(std::size_t iCountry, const PageLayout& iRegion, double iArea, double iOffset) {
        // On the ground: areas on paper would favour the maps of larger scale.
        const double ground = iArea * iRegion.scale * iRegion.scale;
        Best& best = _best[iCountry];
        constexpr double rounding = 1.01;
        if (ground <= 0.0 || ground * rounding < best.ground) return;
        if (ground < best.ground * rounding && iOffset >= best.offset) return;
        best = {ground, iOffset, iRegion.file};
    }

    std::vector<const char*> For(const PageLayout& iLayout) const {
        std::vector<const char*> links(_best.size(), kPages[0].file);
        if (iLayout.isWorld)
            std::transform(_best.begin(), _best.end(), links.begin(),
                           [](const Best& iBest) { return iBest.file; });
        return links;
    }

private:
    struct Best {
        double ground = 0.0;
        double offset = 0.0;
        const char* file = nullptr; // of a country that only the world shows
    };
    std::vector<Best> _best;
};

} // namespace

Atlas::Atlas(const Topology& iTopology)
    : _titleFont("DejaVu Serif, serif"), _labelFont("DejaVu Sans, sans-serif"), _model(Make<VEKPrtModel>()) {
    // All pages lay out their countries before any is built: the world links to the others.
    const std::size_t count = iTopology.countries.size();
    std::vector<std::unique_ptr<PageBuilder>> builders;
    Links links(count);
    for (const PageLayout& layout : kPages) {
        builders.push_back(std::make_unique<PageBuilder>(layout, iTopology, _titleFont, _labelFont));
        for (std::size_t i = 0; i < count && !layout.isWorld; ++i)
            links.Note(i, layout, builders.back()->ShownArea(i), builders.back()->ShownOffset(i));
        _pageNames.emplace_back(layout.file);
    }
    const std::vector<std::size_t> colours = ColourCountries(iTopology, CountLandColours());
    for (std::size_t i = 0; i < builders.size(); ++i)
        _model->AddImage(builders[i]->Build(colours, links.For(kPages[i])).Get());
}
