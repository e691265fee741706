#include "Page.h"

#include <cmath>

#include "PngDataUri.h"
#include "VEKPrtColourTable.h"

namespace vekprt::svg {

static bool Agree(double iA, double iB) { return std::fabs(iA - iB) <= 1e-6 * iA; }

bool Written::Suits(const Place& iPlace) const {
    return place.grid.IsAsFineAs(iPlace.grid) && (!(uses & usesColours) || place.colours == iPlace.colours) &&
           (!(uses & usesScale) || Agree(place.map.Scale(), iPlace.map.Scale())) &&
           (!(uses & usesArea) ||
            (place.map == iPlace.map && place.area == iPlace.area && place.areaMap == iPlace.areaMap));
}

Shared* SvgPage::SharedOf(const VEKPrtGraphicPrimitiveElt& iElement) {
    if (shared.empty()) return nullptr;
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
    if (!id.IsEmpty() && !isAgain) {
        name = XmlName(id.ToUtf8());
        if (name != id.ToUtf8())
            reporter.Warn(iElement, "identifier is not a valid XML name; written as " + name);
        if (!ids.insert(name).second) {
            reporter.Warn(iElement, "duplicate identifier; omitted");
            name.clear();
        }
    }
    if (several) {
        if (name.empty()) name = NewId("use");
        several->id = name;
    }
    return name;
}

std::string SvgPage::Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex) {
    uses |= usesColours;
    const Rgb colour = ColourOf(reporter, iElement, place.colours, iIndex);
    static const char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned component : {colour.red, colour.green, colour.blue}) {
        text += digits[component / 16];
        text += digits[component % 16];
    }
    return text;
}

std::string SvgPage::ImageReference(const VEKPixelImage& iImage) {
    std::string& id = images[&iImage];
    if (id.empty()) {
        const std::string uri = PngDataUri(iImage);
        std::string name = NewId("image");
        xml.Start("defs");
        xml.Start("image", {{"id", name},
                            {"width", "1"},
                            {"height", "1"},
                            {"preserveAspectRatio", "none"},
                            {"xlink:href", uri}});
        xml.End(2);
        id = std::move(name);
    }
    return "#" + id;
}

} // namespace vekprt::svg
