#include "Page.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "Elements.h"
#include "Labels.h"
#include "VEKPrtColourTable.h"

namespace {

// The colours of a page, as they stand in its table; those of the countries come last.
enum Colour : unsigned { paper, ocean, graticule, coast, border, ink, softInk, firstLand };
const unsigned char g_colours[][3] = {{250, 246, 236}, {203, 221, 226}, {170, 196, 205}, {84, 116, 128},
                                      {255, 252, 245}, {58, 56, 54},    {120, 113, 105}, {231, 214, 165},
                                      {197, 208, 164}, {229, 190, 160}, {207, 190, 205}, {174, 199, 180},
                                      {238, 210, 196}};
static_assert(std::size(g_colours) == firstLand + landColours);

// Millimetres.
constexpr double neatlineGap = 1.8; // between the two lines of the frame
constexpr double smallestText = 1.8;

// "1 : 90 000 000"
std::string ScaleText(double iScale) {
    std::string digits = std::to_string(std::llround(iScale));
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, " ");
    return "1 : " + digits;
}

// The size at which the text is as wide as there is room, at most iLargest; 0 when it is then too small.
double SizeFor(const std::string& iText, double iRoom, double iLargest) {
    const double size = std::min(iLargest, iRoom / std::max(TextWidth(iText), 1.0));
    return size < smallestText ? 0.0 : size;
}

} // namespace

// Maps of regions fill their frame and leave room above and below it for title and scale bar; that of the
// world is so much wider than high that it has the room inside.
Box PageLayout::Frame() const {
    const double side = 14.0 * format.textScale;
    const double top = isWorld ? side : 25.0 * format.textScale;
    const double bottom = isWorld ? side : 22.0 * format.textScale;
    return {side, bottom, format.width - side, format.height - top};
}

double RoundedDown(double iValue) {
    const double power = std::pow(10.0, std::floor(std::log10(iValue)));
    const double digit = iValue / power;
    return (digit < 2.0 ? 1.0 : digit < 5.0 ? 2.0 : 5.0) * power;
}

PageBuilder::PageBuilder(const PageLayout& iLayout, AtlasParts& ioParts)
    : _layout(iLayout), _parts(ioParts),
      _view({iLayout.centre, iLayout.isWorld}, iLayout.scale, iLayout.Frame(), ioParts.allowance),
      _page(Make<VEKPrtImageElt>(VEKMathPoint2D(), iLayout.format.width, iLayout.format.height,
                                 VEKPrtImageMillimetre, VEKMath2x2Matrix())) {
    for (const Country& country : _parts.topology.countries) {
        Shown shown;
        for (const std::vector<Path>& polygon : country.polygons) {
            double area = 0.0;
            for (std::size_t ring = 0; ring < polygon.size(); ++ring) {
                for (Path& piece : _view.Rings(polygon[ring])) {
                    area += ring == 0 ? AreaOf(piece) : -AreaOf(piece);
                    shown.rings.push_back(std::move(piece));
                }
            }
            // Round a pole the outline may be the smaller of the two, closed by way of the pole as both are.
            shown.area += std::abs(area);
        }
        _shown.push_back(std::move(shown));
    }
}

double PageBuilder::ShownOffset(std::size_t iCountry) const {
    const Box& frame = _view.Frame();
    const Position centre = BoundsOf(_shown[iCountry].rings).Centre();
    return std::hypot((centre.x - frame.Centre().x) / frame.Width(),
                      (centre.y - frame.Centre().y) / frame.Height());
}

VEKRef<VEKPrtImageElt> PageBuilder::Build(const std::vector<std::size_t>& iColours,
                                          const std::vector<std::string>& iLinks) {
    _page->SetID(_layout.file.c_str());
    _page->SetTitle(_layout.title.c_str());
    auto table = std::make_unique<VEKPrtColourTable>();
    for (const auto& colour : g_colours) {
        unsigned index = 0;
        if (table->AddColour(colour[0], colour[1], colour[2], index) != 1) throw std::bad_alloc();
    }
    _page->SetColourTable(table.release());
    _page->AddChild(MakeFilledBox({0.0, 0.0, _layout.format.width, _layout.format.height}, paper).Get());
    _page->AddChild(MakeArea({_view.Outline()}, ocean).Get());
    AddGraticule();
    AddCountries(iColours, iLinks);
    AddArcs("borders", true, {border, 0.2 * _layout.format.textScale});
    AddArcs("coast", false, {coast, 0.16 * _layout.format.textScale});
    AddLabels();
    AddFrame();
    AddFoot();
    return _page;
}

VEKRef<VEKPrtGroupElt> PageBuilder::AddGroup(const char* iID) {
    auto group = Make<VEKPrtGroupElt>();
    group->SetID(iID);
    _page->AddChild(group.Get());
    return group;
}

void PageBuilder::AddGraticule() {
    constexpr double distance = 40.0, widest = 15.0; // millimetres, degrees
    const double spacing = distance * _layout.scale / 1e6 / (earthRadius * degree);
    const double step = std::min(widest, RoundedDown(spacing));
    const double meridianStep = std::min(widest, RoundedDown(spacing / std::cos(_layout.centre.y * degree)));
    const Box& window = _view.Window();
    // Meridians end short of a pole that is a point, where they would run together.
    const double end = _layout.isWorld ? 90.0 : 90.0 - step;
    const double south = std::max(window.minY, -end);
    const double north = std::min(window.maxY, end);
    std::vector<Path> lines;
    for (double longitude = std::ceil(window.minX / meridianStep) * meridianStep; longitude <= window.maxX;
         longitude += meridianStep)
        _view.AddLine({{longitude, south}, {longitude, north}}, lines);
    for (double latitude = std::ceil(south / step) * step; latitude <= north; latitude += step)
        _view.AddLine({{window.minX, latitude}, {window.maxX, latitude}}, lines);
    const VEKRef<VEKPrtGroupElt> group = AddGroup("graticule");
    for (const Path& line : lines)
        group->AddChild(MakeLine(line, {graticule, 0.15 * _layout.format.textScale}).Get());
}

void PageBuilder::AddCountries(const std::vector<std::size_t>& iColours,
                               const std::vector<std::string>& iLinks) {
    std::map<std::string, int> counts;
    for (std::size_t i = 0; i < _shown.size(); ++i) {
        const Country& country = _parts.topology.countries[i];
        std::string id = country.id.empty() ? "" : "country-" + country.id;
        std::replace_if(
            id.begin(), id.end(), [](unsigned char c) { return !std::isalnum(c) && c != '-'; }, '-');
        // The underscore stands in no other identifier.
        const int count = ++counts[id];
        if (count > 1 && !id.empty()) id += '_' + std::to_string(count);
        if (_shown[i].rings.empty()) continue;
        auto group = Make<VEKPrtGroupElt>();
        group->SetID(id.c_str());
        group->SetTitle(country.name.c_str());
        if (!iLinks[i].empty()) {
            VEKPrtGroupAttributes attributes;
            attributes.SetLinkURI(VEKPrintLinkURI((iLinks[i] + ".svg").c_str()));
            group->SetGroupAttributes(attributes);
        }
        group->AddChild(MakeArea(_shown[i].rings, firstLand + static_cast<unsigned>(iColours[i])).Get());
        _page->AddChild(group.Get());
    }
}

void PageBuilder::AddArcs(const char* iID, bool iBorders, const Pen& iPen) {
    const VEKRef<VEKPrtGroupElt> group = AddGroup(iID);
    for (const Arc& arc : _parts.topology.arcs) {
        if (arc.users.empty() || (arc.users.size() > 1) != iBorders) continue;
        double area = std::numeric_limits<double>::infinity();
        for (const std::size_t user : arc.users)
            area = std::min(area, _shown[user].area);
        for (const Path& line : _view.Lines(arc.path)) {
            double size = std::sqrt(area);
            const Box extent = BoundsOf(line);
            if (line.front() == line.back()) size = std::min(size, std::max(extent.Width(), extent.Height()));
            // What is small is not to be hidden by its own outline.
            constexpr double share = 0.04, thinnest = 0.03;
            const double width = std::min(iPen.width, share * size);
            if (width >= thinnest) group->AddChild(MakeLine(line, {iPen.colour, width}).Get());
        }
    }
}

void PageBuilder::AddLabels() {
    const VEKRef<VEKPrtGroupElt> group = AddGroup("names");
    std::vector<NamedArea> areas;
    for (std::size_t i = 0; i < _shown.size(); ++i)
        if (!_shown[i].rings.empty() && !_parts.topology.countries[i].name.empty())
            areas.push_back({&_parts.topology.countries[i].name, &_shown[i].rings, _shown[i].area});
    const double largest = 6.0 * _layout.format.textScale;
    for (const Label& label : PlaceLabels(areas, _view.Outline(), smallestText, largest)) {
        if (!label.leader.empty())
            group->AddChild(MakeSegment(label.leader[0], label.leader[1], {ink, 0.12}).Get());
        const TextStyle style{&_parts.labelFont, label.size, ink, VEKPrintTextAnchorBaselineCentre};
        for (const Label::Line& line : label.lines)
            group->AddChild(MakeText(line.baseline, line.text, style).Get());
    }
}

void PageBuilder::AddFrame() {
    const double scale = _layout.format.textScale;
    const Box outer = _view.Frame().Grown(neatlineGap * scale);
    const VEKRef<VEKPrtGroupElt> group = AddGroup("frame");
    if (_layout.isWorld) {
        Path rim = _view.Outline();
        rim.push_back(rim.front());
        group->AddChild(MakeLine(rim, {coast, 0.3 * scale}).Get());
    }
    group->AddChild(MakeOutlinedBox(_view.Frame(), {ink, 0.2 * scale}).Get());
    group->AddChild(MakeOutlinedBox(outer, {ink, 0.7 * scale}).Get());

    const std::string about = std::string(_view.ProjectionName()) + ", " + ScaleText(_layout.scale);
    TextStyle title{&_parts.titleFont, 11.0 * scale, ink};
    TextStyle small{&_parts.labelFont, 3.2 * scale, softInk, VEKPrintTextAnchorBaselineRight};
    Position place{outer.minX, outer.maxY + 4.7 * scale};
    Position aboutPlace{outer.maxX, place.y};
    if (_layout.isWorld) {
        place = {outer.Centre().x, _view.Frame().maxY - 23.0};
        aboutPlace = {place.x, place.y - 8.5};
        title = {&_parts.titleFont, 15.0, ink, VEKPrintTextAnchorBaselineCentre, 4.0};
        small.anchor = VEKPrintTextAnchorBaselineCentre;
    } else {
        constexpr double spacing = 0.145, spread = 1.0 + 2.0 * spacing; // a letter is half as wide as high
        const double room = (outer.Width() - TextWidth(about) * small.size) / spread;
        title.size = SizeFor(_layout.title, room, title.size);
        title.spacing = spacing * title.size;
    }
    if (title.size > 0.0) _page->AddChild(MakeText(place, _layout.title, title).Get());
    _page->AddChild(MakeText(aboutPlace, about, small).Get());
}

void PageBuilder::AddFoot() {
    const double scale = _layout.format.textScale;
    const Box& frame = _view.Frame();
    const double margin = _layout.isWorld ? -12.0 : neatlineGap * scale;
    const Position left{frame.minX - margin, _layout.isWorld ? frame.minY + 12.0 : frame.minY - 12.3 * scale};
    const Position right{frame.maxX + margin, left.y};

    const VEKRef<VEKPrtGroupElt> group = AddGroup("scale-bar");
    // Kilometres to a field of the bar.
    const double step = RoundedDown(24.0 * scale / _view.MillimetresPerKilometre());
    const double field = step * _view.MillimetresPerKilometre();
    const double bottom = left.y + 3.8 * scale;
    const double top = bottom + 1.6 * scale;
    constexpr int fields = 4;
    const Pen pen{ink, 0.2 * scale};
    TextStyle style{&_parts.labelFont, 2.8 * scale, softInk, VEKPrintTextAnchorBaselineCentre};
    for (int i = 0; i <= fields; ++i) {
        const double x = left.x + i * field;
        if (i < fields && i % 2 == 0) group->AddChild(MakeFilledBox({x, bottom, x + field, top}, ink).Get());
        group->AddChild(MakeSegment({x, bottom - 0.8 * scale}, {x, top}, pen).Get());
        std::ostringstream number;
        number << i * step;
        group->AddChild(MakeText({x, left.y}, number.str(), style).Get());
    }
    const double end = left.x + fields * field;
    group->AddChild(MakeOutlinedBox({left.x, bottom, end, top}, pen).Get());
    style.anchor = VEKPrintTextAnchorBaselineLeft;
    const std::string where = _layout.isWorld ? "km along the equator" : "km at the centre of the map";
    const Position place{end + 5.0 * scale, left.y};
    group->AddChild(MakeText(place, where, style).Get());

    if (_parts.credit.empty()) return;
    const double room = right.x - place.x - (TextWidth(where) + 2.0) * style.size;
    style.size = SizeFor(_parts.credit, room, style.size);
    if (style.size == 0.0)
        throw std::runtime_error("the credit is too long for the foot of page " + _layout.file);
    style.anchor = VEKPrintTextAnchorBaselineRight;
    _page->AddChild(MakeText(right, _parts.credit, style).Get());
}
