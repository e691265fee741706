// Builds one page of the atlas.
#ifndef Page_H
#define Page_H

#include <cstddef>
#include <string>
#include <vector>

#include "MapView.h"
#include "TopoJson.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKRef.h"

using vekprt::VEKRef;

struct Pen;
class VEKFont;

/// A format of paper, in millimetres.
struct Format {
    double width;
    double height;
    double textScale; // what suits A3 is too large for A4
};

struct PageLayout {
    std::string file;
    std::string title;
    Format format;
    Position centre;
    double scale; // 1 in so many
    bool isWorld; // the map of the whole world, with another layout

    /// What the map fills.
    Box Frame() const;
};

/// The largest of 1, 2 and 5 times a power of ten that is not above \p iValue.
double RoundedDown(double iValue);

/// How many colours there are for countries.
constexpr std::size_t landColours = 6;

/// What the pages of an atlas share; fonts and countries are borrowed.
struct AtlasParts {
    const Topology& topology;
    VEKFont& titleFont;
    VEKFont& labelFont;
    std::string credit; // empty for none
    Allowance allowance;
};

/// Lays a map out when it is made and turns it into a page afterwards.
class PageBuilder {
public:
    /// \p ioParts is borrowed; the fonts must outlive the page.
    PageBuilder(const PageLayout& iLayout, AtlasParts& ioParts);

    const PageLayout& Layout() const { return _layout; }

    /// Square millimetres; 0 for a country that the map does not show.
    double ShownArea(std::size_t iCountry) const { return _shown[iCountry].area; }

    /// How far from the middle of the map the country lies, in widths and heights of the map.
    double ShownOffset(std::size_t iCountry) const;

    /// \p iColours and \p iLinks are by country.  A link is the name of another page, or empty.  Meant to be
    /// called once.
    VEKRef<VEKPrtImageElt> Build(const std::vector<std::size_t>& iColours,
                                 const std::vector<std::string>& iLinks);

private:
    /// The part of a country that the page shows.
    struct Shown {
        std::vector<Path> rings;
        double area = 0.0;
    };

    VEKRef<VEKPrtGroupElt> AddGroup(const char* iID);
    void AddGraticule();
    void AddCountries(const std::vector<std::size_t>& iColours, const std::vector<std::string>& iLinks);
    /// Each arc once, although two countries use a border.
    void AddArcs(const char* iID, bool iBorders, const Pen& iPen);
    void AddLabels();
    /// With the title and what is said of the projection.
    void AddFrame();
    /// The scale bar and the credit.
    void AddFoot();

    const PageLayout _layout;
    AtlasParts& _parts;
    MapView _view;
    VEKRef<VEKPrtImageElt> _page;
    std::vector<Shown> _shown;
};

#endif
