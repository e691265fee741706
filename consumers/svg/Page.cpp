#include "Page.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

#include "VEKPrtColourTable.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt::svg {

namespace {

// With %20 and its like resolved.
std::string Decoded(std::string_view iText) {
    std::string text;
    for (std::size_t i = 0; i < iText.size(); ++i) {
        unsigned char code = 0;
        const char* const digits = iText.data() + i + 1;
        const bool coded = iText[i] == '%' && i + 2 < iText.size() &&
                           std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2;
        text += coded ? static_cast<char>(code) : iText[i];
        if (coded) i += 2;
    }
    return text;
}

bool Agree(double iA, double iB) { return std::fabs(iA - iB) <= 1e-6 * iA; }

} // namespace

bool Area::IsEmpty() const { return !(width > 0.0 && height > 0.0 && std::isfinite(x + y + width + height)); }

bool Area::operator==(const Area& iOther) const {
    return x == iOther.x && y == iOther.y && width == iOther.width && height == iOther.height &&
           map == iOther.map;
}

bool Written::Suits(const Place& iPlace) const {
    return place.grid.IsAsFineAs(iPlace.grid) && (!(uses & usesColours) || place.colours == iPlace.colours) &&
           (!(uses & usesScale) || Agree(place.map.Scale(), iPlace.map.Scale())) &&
           (!(uses & usesArea) || (place.map == iPlace.map && place.area == iPlace.area));
}

void SvgPage::Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const {
    VEKUnicodeString id;
    iElement.GetID(id);
    warnings << "svg: " << iElement.IsA() << (id.IsEmpty() ? "" : " ") << id.ToUtf8() << ": " << iProblem
             << '\n';
}

bool SvgPage::AreFinite(const VEKPrtGraphicPrimitiveElt& iElement,
                        std::initializer_list<double> iValues) const {
    const bool finite =
        std::all_of(iValues.begin(), iValues.end(), [](double iValue) { return std::isfinite(iValue); });
    if (!finite) Warn(iElement, "values that are not finite");
    return finite;
}

Shared* SvgPage::SharedOf(const VEKPrtGraphicPrimitiveElt& iElement) {
    const auto found = shared.find(&iElement);
    return found != shared.end() ? &found->second : nullptr;
}

std::string SvgPage::NewId(const char* iKind) {
    for (;;) {
        std::string id = "svg-" + std::string(iKind) + "-" + std::to_string(++definitions);
        if (ids.insert(id).second) return id;
    }
}

std::string SvgPage::IdOf(const VEKPrtGraphicPrimitiveElt& iElement) {
    Shared* const several = SharedOf(iElement);
    VEKUnicodeString id;
    iElement.GetID(id);
    std::string name;
    if (!id.IsEmpty() && !again) {
        name = XmlName(id.ToUtf8());
        if (name != id.ToUtf8()) Warn(iElement, "the identifier is no XML name, " + name + " is written");
        if (!ids.insert(name).second) {
            Warn(iElement, "the identifier stands already, it is left out");
            name.clear();
        }
    }
    if (several) {
        if (name.empty()) name = NewId("use");
        several->id = name;
    }
    return name;
}

std::string SvgPage::LinkTo(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iURI) const {
    if (!iURI.empty() && iURI.front() == '#') return "#" + XmlName(Decoded(iURI.substr(1)));
    std::string start;
    for (const char c : iURI.substr(0, iURI.find(':') + 1))
        if (static_cast<unsigned char>(c) > ' ')
            start += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    // As browsers see it: in lower case, without blanks and control characters.
    if (start != "javascript:" && start != "vbscript:" && start != "data:") return iURI;
    Warn(iElement, "a link that begins with " + start + " is not written");
    return {};
}

std::string SvgPage::Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex) {
    uses |= usesColours;
    unsigned char rgb[3] = {0, 0, 0};
    if (!place.colours || place.colours->GetColour(iIndex, rgb[0], rgb[1], rgb[2]) != 1)
        Warn(iElement, "colour " + std::to_string(iIndex) + " is not in the page's table, black is used");
    static const char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned char component : rgb) {
        text += digits[component / 16];
        text += digits[component % 16];
    }
    return text;
}

Placement::Placement(SvgPage& ioPage, const VEKPrtTransformAttributes& iTransforms)
    : _page(ioPage), _outer(ioPage.place) {
    for (const Elementary& transform : TransformsOf(iTransforms))
        Add(transform);
    _added = Affine();
}

Placement::~Placement() { _page.place = _outer; }

void Placement::Add(const Elementary& iTransform) {
    const Affine& map = iTransform.map;
    if (map == Affine()) return;
    Place& place = _page.place;
    if (!_text.empty()) _text += ' ';
    _text += !iTransform.text.empty() ? iTransform.text
                                      : "translate(" + place.grid(map.e) + "," + place.grid(map.f) + ")";
    place.map = place.map * map;
    place.grid = Grid(_page.step / place.map.Stretch());
    _added = _added * map;
}

} // namespace vekprt::svg
