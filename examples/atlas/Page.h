// Builds one page of the atlas.
#ifndef Page_H
#define Page_H

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "MapView.h"
#include "Projection.h"
#include "TopoJson.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKRef.h"

struct Pen;
class VEKFont;

/// Paper, in millimetres.
struct Sheet {
    double width;
    double height;
    double textScale; // what suits A3 is too large for A4
};

struct PageLayout {
    const char* file;
    const char* title;
    Sheet sheet;
    Point centre;
    double scale;     // 1 in so many
    double graticule; // degrees
    bool isWorld;     // the map of the whole world, with another layout
};

/// How many colours there are for countries.
std::size_t CountLandColours();

/// Lays a map out when it is made and turns it into a page afterwards.
class PageBuilder {
public:
    /// All arguments are borrowed; the fonts must outlive the page.
    PageBuilder(const PageLayout& iLayout, const Topology& iTopology, VEKFont& ioTitleFont,
                VEKFont& ioLabelFont);

    /// Of the country's largest polygon, in square millimetres; 0 for a country that the map does not show.
    double ShownArea(std::size_t iCountry) const { return _shown[iCountry].area; }

    /// How far from the middle of the map that polygon lies, in widths and heights of the map.
    double ShownOffset(std::size_t iCountry) const;

    /// \p iColours and \p iLinks are by country.  A link is the name of another page, or null.  Meant to be
    /// called once.
    VEKRef<VEKPrtImageElt> Build(const std::vector<std::size_t>& iColours,
                                 const std::vector<const char*>& iLinks);

private:
    /// The part of a country that the page shows.
    struct Shown {
        std::vector<Path> rings;
        std::vector<Path> largest; // the polygon for the name
        double area = 0.0;         // of that polygon
    };

    Shown Show(const Country& iCountry) const;
    void MakeColours();
    VEKRef<VEKPrtGroupElt> AddGroup(const char* iID);
    void AddGraticule();
    void AddCountries(const std::vector<std::size_t>& iColours, const std::vector<const char*>& iLinks);
    /// Each arc once, although two countries use a border.
    void AddArcs(const char* iID, bool iBorders, const Pen& iPen);
    void AddLabels();
    void AddFrame();
    void AddTitle();
    /// The corners, left and right, that scale bar and credit stand on.
    std::pair<Point, Point> Foot() const;
    void AddScaleBar();
    void AddCredit();

    const PageLayout& _layout;
    const Topology& _topology;
    VEKFont& _titleFont;
    VEKFont& _labelFont;
    std::unique_ptr<Projection> _projection;
    MapView _view;
    VEKRef<VEKPrtImageElt> _page;
    std::vector<Shown> _shown;
    unsigned int _paper = 0;
    unsigned int _ocean = 0;
    unsigned int _graticule = 0;
    unsigned int _coast = 0;
    unsigned int _border = 0;
    unsigned int _ink = 0;
    unsigned int _softInk = 0;
    std::vector<unsigned int> _land;
};

#endif
