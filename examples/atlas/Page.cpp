#include "Page.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <new>
#include <set>

#include "Elements.h"
#include "Labels.h"
#include "VEKPrtColourTable.h"

namespace {

struct Rgb {
    unsigned char red;
    unsigned char green;
    unsigned char blue;
};

constexpr Rgb kPaper{250, 246, 236};
constexpr Rgb kOcean{203, 221, 226};
constexpr Rgb kGraticule{170, 196, 205};
constexpr Rgb kCoast{84, 116, 128};
constexpr Rgb kBorder{255, 252, 245};
constexpr Rgb kInk{58, 56, 54};
constexpr Rgb kSoftInk{120, 113, 105};
constexpr Rgb kLand[] = {{231, 214, 165}, {197, 208, 164}, {229, 190, 160},
                         {207, 190, 205}, {174, 199, 180}, {238, 210, 196}};

/// Between the two lines of the frame.
constexpr double kNeatlineGap = 1.8;

/// "1 : 90 000 000"
std::string ScaleText(double iScale) {
    std::string digits = std::to_string(std::llround(iScale));
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, " ");
    return "1 : " + digits;
}

/// Identifiers made of the countries' own, each once.
class Identifiers {
public:
    std::string For(const Country& iCountry) {
        if (iCountry.id.empty()) return {};
        std::string id = "country-" + iCountry.id;
        std::replace_if(
            id.begin(), id.end(), [](unsigned char c) { return !std::isalnum(c) && c != '-'; }, '-');
        std::string name = id;
        for (int count = 2; !_taken.insert(name).second; ++count)
            name = id + "-" + std::to_string(count);
        return name;
    }

private:
    std::set<std::string> _taken;
};

std::unique_ptr<Projection> ProjectionFor(const PageLayout& iLayout) {
    if (iLayout.isWorld) return std::make_unique<EqualEarth>(iLayout.centre.x);
    return std::make_unique<LambertAzimuthal>(iLayout.centre);
}

/// Maps of regions fill their frame and leave room above and below it for title and scale bar; that of the
/// world is so much wider than high that it has the room inside.
Box FrameOf(const PageLayout& iLayout) {
    const Sheet& sheet = iLayout.sheet;
    const double side = 14.0 * sheet.textScale;
    const double top = iLayout.isWorld ? side : 25.0 * sheet.textScale;
    const double bottom = iLayout.isWorld ? side : 22.0 * sheet.textScale;
    return {side, bottom, sheet.width - side, sheet.height - top};
}

} // namespace

std::size_t CountLandColours() { return std::size(kLand); }

PageBuilder::PageBuilder(const PageLayout& iLayout, const Topology& iTopology, VEKFont& ioTitleFont,
                         VEKFont& ioLabelFont)
    : _layout(iLayout), _topology(iTopology), _titleFont(ioTitleFont), _labelFont(ioLabelFont),
      _projection(ProjectionFor(iLayout)), _view(*_projection, iLayout.scale, FrameOf(iLayout)),
      _page(Make<VEKPrtImageElt>(VEKMathPoint2D(), iLayout.sheet.width, iLayout.sheet.height,
                                 VEKPrtImageMillimetre, VEKMath2x2Matrix())) {
    for (const Country& country : iTopology.countries)
        _shown.push_back(Show(country));
}

PageBuilder::Shown PageBuilder::Show(const Country& iCountry) const {
    Shown shown;
    for (const std::vector<Path>& polygon : iCountry.polygons) {
        std::vector<Path> rings;
        double area = 0.0;
        for (std::size_t ring = 0; ring < polygon.size(); ++ring) {
            for (Path& piece : _view.Rings(polygon[ring])) {
                area += ring == 0 ? AreaOf(piece) : -AreaOf(piece);
                rings.push_back(std::move(piece));
            }
        }
        // Round a pole the outline may be the smaller of the two, closed by way of the pole as both are.
        area = std::abs(area);
        shown.rings.insert(shown.rings.end(), rings.begin(), rings.end());
        if (area > shown.area) {
            shown.area = area;
            shown.largest = std::move(rings);
        }
    }
    return shown;
}

double PageBuilder::ShownOffset(std::size_t iCountry) const {
    Path points;
    for (const Path& ring : _shown[iCountry].largest)
        points.insert(points.end(), ring.begin(), ring.end());
    const Box frame = FrameOf(_layout);
    const Point centre = BoundsOf(points).Centre();
    return std::hypot((centre.x - frame.Centre().x) / frame.Width(),
                      (centre.y - frame.Centre().y) / frame.Height());
}

VEKRef<VEKPrtImageElt> PageBuilder::Build(const std::vector<std::size_t>& iColours,
                                          const std::vector<const char*>& iLinks) {
    _page->SetID(_layout.file);
    _page->SetTitle(_layout.title);
    MakeColours();
    _page->AddChild(MakeFilledBox({0.0, 0.0, _layout.sheet.width, _layout.sheet.height}, _paper).Get());
    _page->AddChild(MakeArea({_view.Outline()}, _ocean).Get());
    AddGraticule();
    AddCountries(iColours, iLinks);
    AddArcs("borders", true, {_border, 0.2 * _layout.sheet.textScale});
    AddArcs("coast", false, {_coast, 0.16 * _layout.sheet.textScale});
    AddLabels();
    AddFrame();
    AddTitle();
    AddScaleBar();
    AddCredit();
    return _page;
}

void PageBuilder::MakeColours() {
    auto table = std::make_unique<VEKPrtColourTable>();
    const auto add = [&table](const Rgb& iColour) {
        unsigned int index = 0;
        if (table->AddColour(iColour.red, iColour.green, iColour.blue, index) != 1) throw std::bad_alloc();
        return index;
    };
    _paper = add(kPaper);
    _ocean = add(kOcean);
    _graticule = add(kGraticule);
    _coast = add(kCoast);
    _border = add(kBorder);
    _ink = add(kInk);
    _softInk = add(kSoftInk);
    for (const Rgb& colour : kLand)
        _land.push_back(add(colour));
    _page->SetColourTable(table.release());
}

VEKRef<VEKPrtGroupElt> PageBuilder::AddGroup(const char* iID) {
    auto group = Make<VEKPrtGroupElt>();
    group->SetID(iID);
    _page->AddChild(group.Get());
    return group;
}

void PageBuilder::AddGraticule() {
    const VEKRef<VEKPrtGroupElt> group = AddGroup("graticule");
    const Pen pen{_graticule, 0.15 * _layout.sheet.textScale};
    const double step = _layout.graticule;
    const auto add = [&](const Point& iFrom, const Point& iTo) {
        for (const Path& piece : _view.GridLines({iFrom, iTo}))
            group->AddChild(MakeLine(piece, pen).Get());
    };
    const Box& window = _view.Window();
    // Meridians end short of a pole that is a point, where they would run together.
    const double end = _layout.isWorld ? 90.0 : 90.0 - step;
    const double south = std::max(window.minY, -end);
    const double north = std::min(window.maxY, end);
    for (double longitude = std::ceil(window.minX / step) * step; longitude <= window.maxX; longitude += step)
        add({longitude, south}, {longitude, north});
    for (double latitude = std::ceil(south / step) * step; latitude <= north; latitude += step)
        add({window.minX, latitude}, {window.maxX, latitude});
}

void PageBuilder::AddCountries(const std::vector<std::size_t>& iColours,
                               const std::vector<const char*>& iLinks) {
    Identifiers identifiers;
    for (std::size_t i = 0; i < _shown.size(); ++i) {
        const Country& country = _topology.countries[i];
        const std::string id = identifiers.For(country);
        if (_shown[i].rings.empty()) continue;
        auto group = Make<VEKPrtGroupElt>();
        group->SetID(id.c_str());
        group->SetTitle(country.name.c_str());
        if (iLinks[i]) {
            VEKPrtGroupAttributes attributes;
            attributes.SetLinkURI(VEKPrintLinkURI((std::string(iLinks[i]) + ".svg").c_str()));
            group->SetGroupAttributes(attributes);
        }
        group->AddChild(MakeArea(_shown[i].rings, _land[iColours[i]]).Get());
        _page->AddChild(group.Get());
    }
}

void PageBuilder::AddArcs(const char* iID, bool iBorders, const Pen& iPen) {
    const VEKRef<VEKPrtGroupElt> group = AddGroup(iID);
    for (const Arc& arc : _topology.arcs) {
        if (arc.users.empty() || (arc.users.size() > 1) != iBorders) continue;
        for (const Path& line : _view.Lines(arc.path))
            group->AddChild(MakeLine(line, iPen).Get());
    }
}

void PageBuilder::AddLabels() {
    const VEKRef<VEKPrtGroupElt> group = AddGroup("names");
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < _shown.size(); ++i)
        if (!_shown[i].largest.empty()) order.push_back(i);
    // Large countries get their names first.
    std::stable_sort(order.begin(), order.end(), [this](std::size_t iLeft, std::size_t iRight) {
        return _shown[iLeft].area > _shown[iRight].area;
    });
    const double scale = _layout.sheet.textScale;
    LabelPlacer placer(_view, 1.4 * scale, 6.0 * scale);
    for (const std::size_t i : order) {
        Label label;
        if (!placer.Place(_topology.countries[i].name, _shown[i].largest, label)) continue;
        const TextStyle style{&_labelFont, label.size, _ink, VEKPrintTextAnchorBaselineCentre};
        group->AddChild(MakeText(label.baseline, label.text, style).Get());
    }
}

void PageBuilder::AddFrame() {
    const double scale = _layout.sheet.textScale;
    const VEKRef<VEKPrtGroupElt> group = AddGroup("frame");
    if (_layout.isWorld) group->AddChild(MakeClosedLine(_view.Outline(), {_coast, 0.3 * scale}).Get());
    group->AddChild(MakeOutlinedBox(_view.Frame(), {_ink, 0.2 * scale}).Get());
    group->AddChild(MakeOutlinedBox(_view.Frame().Grown(kNeatlineGap * scale), {_ink, 0.7 * scale}).Get());
}

void PageBuilder::AddTitle() {
    const double scale = _layout.sheet.textScale;
    const Box& frame = _view.Frame();
    const std::string about = std::string(_projection->Name()) + ", " + ScaleText(_layout.scale);
    TextStyle title{&_titleFont, 11.0 * scale, _ink};
    title.spacing = 1.6 * scale;
    TextStyle small{&_labelFont, 3.2 * scale, _softInk};
    Point place{frame.minX - kNeatlineGap * scale, frame.maxY + 6.5 * scale};
    Point aboutPlace{frame.maxX + kNeatlineGap * scale, place.y};
    small.anchor = VEKPrintTextAnchorBaselineRight;
    if (_layout.isWorld) {
        place = {frame.Centre().x, frame.maxY - 23.0};
        aboutPlace = {place.x, place.y - 8.5};
        title.size = 15.0;
        title.spacing = 4.0;
        title.anchor = VEKPrintTextAnchorBaselineCentre;
        small.anchor = VEKPrintTextAnchorBaselineCentre;
    }
    _page->AddChild(MakeText(place, _layout.title, title).Get());
    _page->AddChild(MakeText(aboutPlace, about, small).Get());
}

std::pair<Point, Point> PageBuilder::Foot() const {
    const double scale = _layout.sheet.textScale;
    const Box& frame = _view.Frame();
    const double margin = _layout.isWorld ? -12.0 : kNeatlineGap * scale;
    const double baseline = _layout.isWorld ? frame.minY + 12.0 : frame.minY - 12.3 * scale;
    return {{frame.minX - margin, baseline}, {frame.maxX + margin, baseline}};
}

void PageBuilder::AddScaleBar() {
    const double scale = _layout.sheet.textScale;
    const VEKRef<VEKPrtGroupElt> group = AddGroup("scale-bar");
    const double unit = _view.MillimetresPerKilometre();
    int step = 1; // kilometres to a field of the bar
    for (const int candidate : {10, 20, 50, 100, 200, 500, 1000, 2000})
        if (candidate * unit <= 24.0 * scale) step = candidate;
    const double field = step * unit;
    const Point corner = Foot().first;
    const double bottom = corner.y + 3.8 * scale;
    const double top = bottom + 1.6 * scale;
    constexpr int fields = 4;
    const Pen pen{_ink, 0.2 * scale};
    TextStyle style{&_labelFont, 2.8 * scale, _softInk};
    style.anchor = VEKPrintTextAnchorBaselineCentre;
    for (int i = 0; i <= fields; ++i) {
        const double x = corner.x + i * field;
        if (i < fields && i % 2 == 0) group->AddChild(MakeFilledBox({x, bottom, x + field, top}, _ink).Get());
        group->AddChild(MakeSegment({x, bottom - 0.8 * scale}, {x, top}, pen).Get());
        group->AddChild(MakeText({x, corner.y}, std::to_string(i * step), style).Get());
    }
    const double end = corner.x + fields * field;
    group->AddChild(MakeOutlinedBox({corner.x, bottom, end, top}, pen).Get());
    style.anchor = VEKPrintTextAnchorBaselineLeft;
    const char* const where = _layout.isWorld ? "km along the equator" : "km at the centre of the map";
    group->AddChild(MakeText({end + 5.0 * scale, corner.y}, where, style).Get());
}

void PageBuilder::AddCredit() {
    TextStyle style{&_labelFont, 2.8 * _layout.sheet.textScale, _softInk};
    style.anchor = VEKPrintTextAnchorBaselineRight;
    _page->AddChild(MakeText(Foot().second, "Data: Natural Earth, public domain", style).Get());
}
