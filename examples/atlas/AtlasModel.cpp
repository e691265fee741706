#include "AtlasModel.h"

#include <cmath>
#include <set>
#include <stdexcept>

#include "VEKPrtColourTable.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtTextElt.h"

using vekprt::Make;
using vekprt::VEKRef;

namespace {

// Twice what the most detailed real data needs.
constexpr std::size_t maxPositions = 10'000'000;

// Indices into a page's colour table; the colours of countries come last.
enum Colour : unsigned { paper, ocean, coast, border, ink, softInk, firstLand };
const unsigned char g_colours[][3] = {{250, 246, 236}, {203, 221, 226}, {84, 116, 128},  {255, 252, 245},
                                      {58, 56, 54},    {120, 113, 105}, {231, 214, 165}, {197, 208, 164},
                                      {229, 190, 160}, {207, 190, 205}, {174, 199, 180}, {238, 210, 196}};
constexpr unsigned landColours = std::size(g_colours) - firstLand;

constexpr auto left = VEKPrintTextAnchorBaselineLeft, centred = VEKPrintTextAnchorBaselineCentre,
               right = VEKPrintTextAnchorBaselineRight;

struct PageLayout {
    const char* file; // without extension
    std::string title;
    double width; // millimetres
    double height;
    Projection projection;
    double scale;    // 1 in so many
    Position middle; // of the map, in projected kilometres

    // The rectangle of the map, with room for the title above it and the scale bar below.
    Box Frame() const { return {14.0, 22.0, width - 14.0, height - 25.0}; }
};

// The map of the world comes first.  Its centre cuts the map at the Bering Strait, where it splits the least
// land.
const PageLayout g_worldPages[] = {
    {"world", "THE WORLD", 420, 297, {{11, 0}, true}, 105e6, {}},
    {"europe", "EUROPE", 420, 297, {{13, 54}, false}, 17e6, {}},
    {"africa", "AFRICA", 297, 420, {{17.5, 3}, false}, 30e6, {}},
    {"asia", "ASIA", 420, 297, {{97, 35}, false}, 42e6, {}},
    {"north-america", "NORTH AMERICA", 297, 420, {{-95, 45}, false}, 28e6, {}},
    {"south-america", "SOUTH AMERICA", 297, 420, {{-60, -22}, false}, 24e6, {}},
    {"oceania", "OCEANIA", 420, 297, {{155, -19}, false}, 30e6, {}},
    {"antarctica", "ANTARCTICA", 420, 297, {{0, -90}, false}, 25e6, {}}};

// The largest of 1, 2 and 5 times a power of ten that is not above iValue.
double RoundedDown(double iValue) {
    const double power = std::pow(10.0, std::floor(std::log10(iValue))), digit = iValue / power;
    return (digit < 2.0 ? 1.0 : digit < 5.0 ? 2.0 : 5.0) * power;
}

// Fits the one page that shows all land as large as possible; false when it is too far apart for that.
bool Fit(const Topology& iTopology, Allowance& ioAllowance, PageLayout& ioLayout) {
    constexpr double maxExtent = 10'000.0, minScale = 100'000.0, margin = 1.1;
    std::vector<Path> outlines;
    for (const Country& country : iTopology.countries)
        for (const std::vector<Path>& polygon : country.polygons)
            outlines.push_back(Unrolled(polygon.front()));
    // The mean direction of all positions, as seen from the centre of the globe.
    double x = 0.0, y = 0.0, z = 0.0;
    for (const Path& outline : outlines) {
        for (const Position& position : outline) {
            x += std::cos(position.y * degree) * std::cos(position.x * degree);
            y += std::cos(position.y * degree) * std::sin(position.x * degree);
            z += std::sin(position.y * degree);
        }
    }
    ioLayout.projection.centre = {std::atan2(y, x) / degree, std::atan2(z, std::hypot(x, y)) / degree};
    Box extent;
    for (const Path& outline : outlines)
        extent.Add(ioLayout.projection.Forward(outline, true, ioAllowance));
    if (extent.Width() > extent.Height()) std::swap(ioLayout.width, ioLayout.height);
    const Box frame = ioLayout.Frame();
    const double filled = std::max(extent.Width() / frame.Width(), extent.Height() / frame.Height()) * 1e6;
    const double scale = std::max(margin * filled, minScale), unit = RoundedDown(scale) / 10.0;
    ioLayout.scale = std::ceil(scale / unit) * unit;
    ioLayout.middle = extent.Centre();
    return std::max(extent.Width(), extent.Height()) <= maxExtent;
}

// Greedy colouring: differs from the neighbours where possible, and starts with another colour for each
// country.
std::vector<unsigned> ColourCountries(const Topology& iTopology) {
    std::vector<std::set<std::size_t>> neighbours(iTopology.countries.size());
    for (const Arc& arc : iTopology.arcs) {
        // Where more than two countries share an arc, only consecutive ones count as neighbours.
        for (std::size_t i = 0; i + 1 < arc.users.size(); ++i) {
            neighbours[arc.users[i]].insert(arc.users[i + 1]);
            neighbours[arc.users[i + 1]].insert(arc.users[i]);
        }
    }
    std::vector<unsigned> colours(neighbours.size(), landColours);
    // The second and third time, with all colours known, most of the clashes that are left disappear.
    for (std::size_t i = 0; i < 3 * colours.size(); ++i) {
        const unsigned country = static_cast<unsigned>(i % colours.size());
        std::size_t clashes[landColours + 1] = {};
        for (const std::size_t neighbour : neighbours[country])
            ++clashes[colours[neighbour]];
        unsigned& colour = colours[country] = country % landColours;
        for (unsigned next = country; next < country + landColours; ++next)
            if (clashes[next % landColours] < clashes[colour]) colour = next % landColours;
    }
    return colours;
}

// An estimate for a sans-serif face at font size 1, on the wide side; characters outside the alphabets are as
// wide as high.
double TextWidth(const std::string& iText) {
    double width = 0.0;
    for (const char c : iText)
        width += (c & 0xC0) == 0x80 ? 0.0 : (c & 0xE0) == 0xE0 ? 1.0 : 0.64;
    return width;
}

// The largest font size from iMin to iMax at which text fits between the rings, and its centre; 0 if it does
// not fit.
double PlaceText(double iWidth, const std::vector<Path>& iRings, double iMin, double iMax,
                 Position& oCentre) {
    constexpr int heights = 40;
    constexpr double air = 0.15; // around the text, in font sizes
    Box bounds;
    std::vector<Path> edges;
    for (const Path& ring : iRings) {
        bounds.Add(ring);
        for (std::size_t i = 0; i < ring.size(); ++i)
            edges.push_back({ring[i], ring[(i + 1) % ring.size()]});
    }
    double best = 0.0;
    for (int i = 1; i <= heights; ++i) {
        // From the middle outwards, the middle of the widest part of the area at each height.
        const int row = i % 2 ? -(i / 2) : i / 2;
        const double y = bounds.Centre().y + bounds.Height() * row / (heights + 1.0);
        std::multiset<double> crossings;
        for (const Path& edge : edges)
            if ((edge[0].y < y) != (edge[1].y < y))
                crossings.insert(edge[0].x +
                                 (edge[1].x - edge[0].x) * (y - edge[0].y) / (edge[1].y - edge[0].y));
        double x = 0.0, widest = 0.0;
        for (auto crossing = crossings.begin(); crossing != crossings.end(); ++crossing) {
            const double from = *crossing++;
            if (*crossing - from <= widest) continue;
            widest = *crossing - from;
            x = from + widest / 2.0;
        }
        for (double size = std::min(iMax, widest / iWidth); size >= iMin && size > best; size *= 0.95) {
            const double dx = (iWidth / 2.0 + air) * size, dy = (0.5 + air) * size;
            const Box box{x - dx, y - dy, x + dx, y + dy};
            if (std::any_of(edges.begin(), edges.end(),
                            [&](const Path& iEdge) { return !ClipLine(iEdge, box).empty(); }))
                continue;
            best = size;
            oCentre = {x, y};
        }
    }
    return best;
}

void AppendCoordinates(const Path& iPath, std::vector<double>& ioCoordinates) {
    for (const Position& position : iPath)
        ioCoordinates.insert(ioCoordinates.end(), {position.x, position.y});
}

// A group of a page, and short ways to add to it.
struct Layer {
    VEKRef<VEKPrtGroupElt> group = Make<VEKPrtGroupElt>();

    Layer(VEKPrtImageElt& ioPage, const std::string& iID) {
        group->SetID(iID.c_str());
        ioPage.AddChild(group.Get());
    }
    template <class Element>
    void AddFilled(const VEKRef<Element>& iElement, unsigned iColour) const {
        VEKPrtFillAttributes fill;
        fill.SetFillRule(VEKPrtFillEvenOdd); // holes may run either way
        fill.SetFillColourIndex(iColour);
        iElement->SetFillAttributes(fill);
        iElement->SetDrawStyle(VEKPrtDrawInterior);
        group->AddChild(iElement.Get());
    }
    void AddArea(const std::vector<Path>& iRings, unsigned iColour) const {
        std::vector<double> coordinates;
        std::vector<int> counts;
        for (const Path& ring : iRings) {
            AppendCoordinates(ring, coordinates);
            counts.push_back(static_cast<int>(ring.size()));
        }
        const int count = static_cast<int>(counts.size());
        AddFilled(Make<VEKPrtPolyPolygonElt>(coordinates.data(), counts.data(), count), iColour);
    }
    // Round ends hide where arcs meet.
    void AddLine(const Path& iLine, unsigned iColour, double iWidth) const {
        std::vector<double> coordinates;
        AppendCoordinates(iLine, coordinates);
        const auto line = Make<VEKPrtPolylineElt>(coordinates.data(), static_cast<int>(iLine.size()));
        VEKPrtStrokeAttributes stroke;
        stroke.SetStrokeColourIndex(iColour);
        stroke.SetStrokeWidth(iWidth);
        stroke.SetStrokeCap(VEKPrintLineCapRound);
        stroke.SetStrokeJoin(VEKPrintLineJoinRound);
        line->SetStrokeAttributes(stroke);
        group->AddChild(line.Get());
    }
    void AddText(const Position& iPosition, const std::string& iText, VEKFont& iFont, double iSize,
                 unsigned iColour, VEKPrintTextAttribute iAnchor) const {
        const auto text =
            Make<VEKPrtTextElt>(VEKMathPoint2D(iPosition.x, iPosition.y), VEKUnicodeString(iText.c_str()));
        VEKPrtTextAttributes attributes;
        attributes.SetFont(&iFont);
        attributes.SetHeight(iSize);
        attributes.SetAnchor(iAnchor);
        text->SetTextAttributes(attributes);
        AddFilled(text, iColour);
    }
};

struct Page {
    PageLayout layout;
    MapView view;
    std::vector<std::vector<Path>> shown; // the visible rings, by country

    Page(const PageLayout& iLayout, const Topology& iTopology, Allowance& ioAllowance)
        : layout(iLayout), view(layout.projection, layout.middle, layout.scale, layout.Frame(), ioAllowance),
          shown(iTopology.countries.size()) {
        for (std::size_t i = 0; i < shown.size(); ++i)
            for (const std::vector<Path>& polygon : iTopology.countries[i].polygons)
                for (const Path& ring : polygon)
                    for (const Path& piece : view.Rings(ring))
                        shown[i].push_back(piece);
    }
    // In square kilometres.
    double AreaOfCountry(std::size_t iCountry) const {
        double area = 0.0;
        for (const Path& ring : shown[iCountry])
            area += AreaOf(ring) / view.millimetres / view.millimetres;
        return area;
    }
};

// "1 : 90 000 000"
std::string ScaleText(double iScale) {
    std::string digits = std::to_string(std::llround(iScale));
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, " ");
    return "1 : " + digits;
}

// The title, the projection, the scale bar and the credit.
void DrawFrame(const Page& iPage, const std::string& iCredit, VEKFont& iTitleFont, VEKFont& iFont,
               const Layer& iFrame, const Layer& iBar) {
    const PageLayout& layout = iPage.layout;
    constexpr double large = 3.2, small = 2.8;
    const Box frame = layout.Frame();
    iFrame.AddLine(iPage.view.outline, coast, 0.3);
    iFrame.AddLine(frame.Corners(), ink, 0.7);
    const bool isWorld = layout.projection.isWorld;
    const std::string about =
        (isWorld ? "Wagner VI projection, " : "Lambert azimuthal equal-area projection, ") +
        ScaleText(layout.scale);
    const double room = frame.Width() - TextWidth(about) * large, head = frame.maxY + 4.0;
    const double titleSize = std::min(11.0, room / std::max(TextWidth(layout.title), 1.0));
    iFrame.AddText({frame.minX, head}, layout.title, iTitleFont, titleSize, ink, left);
    iFrame.AddText({frame.maxX, head}, about, iFont, large, softInk, right);

    constexpr int segments = 4;
    const double step = RoundedDown(24.0 / iPage.view.millimetres); // kilometres
    const double length = step * iPage.view.millimetres, end = frame.minX + segments * length;
    const double foot = frame.minY - 12.3, bar = foot + 4.2;
    for (int i = 0; i <= segments; ++i) {
        const double x = frame.minX + i * length;
        iBar.AddLine({{x, bar - 1.0}, {x, bar + 1.0}}, ink, 0.2);
        iBar.AddText({x, foot}, std::to_string(std::llround(i * step)), iFont, small, softInk, centred);
    }
    iBar.AddLine({{frame.minX, bar}, {end, bar}}, ink, 0.7);
    const std::string where = isWorld ? "km along the equator" : "km at the centre";
    iBar.AddText({end + 5.0, foot}, where, iFont, small, softInk, left);
    if (TextWidth(iCredit) * large > frame.Width() / 2.0)
        throw std::runtime_error(std::string("the credit is too long for the foot of page ") + layout.file);
    iFrame.AddText({frame.maxX, foot}, iCredit, iFont, large, softInk, right);
}

// A click leads from the world to the first page that shows most of the country, and from there back.
std::string LinkOf(std::size_t iCountry, bool iIsFirst, const std::vector<Page>& iPages, bool iIsPdf) {
    std::size_t target = 0;
    double best = 0.0;
    for (std::size_t i = 1; i < iPages.size() && iIsFirst; ++i) {
        if (iPages[i].AreaOfCountry(iCountry) <= best * 1.001) continue;
        best = iPages[target = i].AreaOfCountry(iCountry);
    }
    const std::string file = iPages[target].layout.file;
    return iPages.size() == 1 ? "" : iIsPdf ? "#" + file : file + ".svg";
}

} // namespace

Atlas::Atlas(const Topology& iTopology, const std::string& iTitle, const std::string& iCredit, bool iIsPdf) {
    Allowance allowance{maxPositions};
    const std::vector<Country>& countries = iTopology.countries;
    const bool isOne = countries.size() == 1 && !countries[0].name.empty();
    PageLayout fitted{"map", isOne ? countries[0].name : iTitle, 297, 420, {{}, false}, 0.0, {}};
    std::vector<Page> pages;
    if (Fit(iTopology, allowance, fitted))
        pages.emplace_back(fitted, iTopology, allowance);
    else
        for (const PageLayout& layout : g_worldPages)
            pages.emplace_back(layout, iTopology, allowance);

    const std::vector<unsigned> colours = ColourCountries(iTopology);
    for (const Page& page : pages) {
        const auto image = Make<VEKPrtImageElt>(VEKMathPoint2D(), page.layout.width, page.layout.height,
                                                VEKPrtImageMillimetre, VEKMath2x2Matrix());
        image->SetID(page.layout.file);
        image->SetTitle(page.layout.title.c_str());
        auto* const table = new VEKPrtColourTable;
        image->SetColourTable(table);
        unsigned index = 0;
        for (const auto& colour : g_colours)
            table->AddColour(colour[0], colour[1], colour[2], index);
        const Layer background(*image, "background");
        background.AddArea({Box{0.0, 0.0, page.layout.width, page.layout.height}.Corners()}, paper);
        background.AddArea({page.view.outline}, ocean);
        for (std::size_t i = 0; i < countries.size(); ++i) {
            if (page.shown[i].empty()) continue;
            const Layer country(*image, countries[i].id.empty() ? "" : "country-" + countries[i].id);
            country.group->SetTitle(countries[i].name.c_str());
            VEKPrtGroupAttributes link;
            link.SetLinkURI(VEKPrintLinkURI(LinkOf(i, &page == &pages[0], pages, iIsPdf).c_str()));
            country.group->SetGroupAttributes(link);
            country.AddArea(page.shown[i], firstLand + colours[i]);
        }
        // Each arc once, although two countries use a border.
        const Layer borders(*image, "borders"), coasts(*image, "coast"), names(*image, "names");
        for (const Arc& arc : iTopology.arcs) {
            if (arc.users.empty()) continue;
            const bool isCoast = arc.users.size() == 1;
            for (const Path& line : page.view.Lines(arc.path))
                (isCoast ? coasts : borders).AddLine(line, isCoast ? coast : border, 0.18);
        }
        for (std::size_t i = 0; i < countries.size(); ++i) {
            const std::string& name = countries[i].name;
            if (name.empty()) continue;
            Position centre;
            const double size = PlaceText(TextWidth(name), page.shown[i], 1.8, 6.0, centre);
            // The middle of the capitals is about so far above the baseline.
            centre.y -= 0.36 * size;
            if (size > 0.0) names.AddText(centre, name, _labelFont, size, ink, centred);
        }
        DrawFrame(page, iCredit, _titleFont, _labelFont, Layer(*image, "frame"), Layer(*image, "scale-bar"));
        _model->AddImage(image.Get());
    }
}
