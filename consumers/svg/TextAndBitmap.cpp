// Text and bitmaps: y points up on the page but down in letters and pixels, so both are turned over.
#include <string>
#include <vector>

#include "FrameworkValues.h"
#include "Handlers.h"
#include "VEKFont.h"
#include "VEKPixelImage.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtTextElt.h"

namespace vekprt::svg {

namespace {

struct Anchor {
    /// Null for a text that begins at the reference point.
    const char* horizontal;
    /// Which share of a text lies left of the reference point.
    double left;
    /// Which share of a text, from its top, lies above the reference point; the baseline is its own case.
    double above;
    bool baseline;
};

// Not by `dominant-baseline`, which many renderers do not know.
Anchor AnchorOf(int iAnchor) {
    static const char* const horizontals[] = {nullptr, "middle", "end"};
    const bool known = iAnchor >= textAnchorFirst && iAnchor <= textAnchorLast;
    const int index = known ? iAnchor - textAnchorFirst : 0;
    return {horizontals[index % 3], index % 3 * 0.5, index / 3 == 1 ? 0.5 : 0.0, index / 3 == 0};
}

// Null for the regular one.
const char* WeightOf(int iWeight) {
    static const char* const weights[] = {"300", nullptr, "500", "700", "900"};
    return iWeight >= textWeightFirst && iWeight <= textWeightLast ? weights[iWeight - textWeightFirst]
                                                                   : nullptr;
}

// What the text record says.
struct Lettering {
    VEKFont* font = nullptr;
    const char* weight = nullptr;
    double height = 0, spacing = 0, expansion = 1;
    float slant = 0, direction = 0;
    Anchor anchor{};
    bool vertical = false;

    /// From line to line.
    double Advance() const { return height + spacing; }
    /// Most renderers put the spacing after the last letter, too, others between letters only.  An invisible
    /// mark at the end makes them agree, and the text is moved by what is too much.
    bool NeedsEndMark() const { return spacing != 0.0 && !vertical && anchor.horizontal; }
};

Lettering LetteringOf(const VEKPrtTextElt& iText) {
    VEKPrtTextAttributes attributes;
    iText.GetTextAttributes(attributes);
    Lettering l;
    VEKPrintTextAttribute weight{}, anchor{};
    VEKPrtTextWritingMode mode = VEKPrtTextHorizontal;
    attributes.GetFont(l.font);
    attributes.GetWeight(weight);
    attributes.GetHeight(l.height);
    attributes.GetAnchor(anchor);
    attributes.GetSlant(l.slant);
    attributes.GetDirection(l.direction);
    attributes.GetExtraSpacing(l.spacing);
    attributes.GetExpansion(l.expansion);
    attributes.GetWritingMode(mode);
    l.weight = WeightOf(weight);
    l.anchor = AnchorOf(anchor);
    l.vertical = mode == VEKPrtTextVertical;
    return l;
}

// Accents, marks around symbols, variants.
bool IsCombining(char32_t iCharacter) {
    return (iCharacter >= 0x300 && iCharacter <= 0x36F) || (iCharacter >= 0x20D0 && iCharacter <= 0x20FF) ||
           (iCharacter >= 0xFE00 && iCharacter <= 0xFE0F);
}

// The characters, each with the combining marks that follow it.
std::vector<std::string> LettersOf(std::string_view iText) {
    std::vector<std::string> letters;
    while (!iText.empty()) {
        const std::string_view from = iText;
        const bool combining = IsCombining(NextCharacter(iText));
        if (!combining || letters.empty()) letters.emplace_back();
        letters.back() += from.substr(0, from.size() - iText.size());
    }
    return letters;
}

void WriteLayout(SvgElement& ioElement, const Lettering& iLettering, std::size_t iLines) {
    const Anchor& anchor = iLettering.anchor;
    // Capitals are about 0.72 of the height.
    const double capitals = 0.72 * iLettering.height;
    const double column = iLines > 0 ? static_cast<double>(iLines - 1) * iLettering.Advance() : 0.0;
    const double firstLine = anchor.baseline ? 0.0 : capitals - anchor.above * (column + capitals);
    if (iLettering.NeedsEndMark()) ioElement.Attribute("x", anchor.left * iLettering.spacing);
    if (firstLine != 0.0) ioElement.Attribute("y", firstLine);
    ioElement.Attribute("font-family", iLettering.font ? iLettering.font->GetFamily() : "sans-serif")
        .Attribute("font-size", iLettering.height);
    if (iLettering.weight) ioElement.Attribute("font-weight", iLettering.weight);
    if (anchor.horizontal) ioElement.Attribute("text-anchor", anchor.horizontal);
    if (iLettering.spacing != 0.0 && !iLettering.vertical)
        ioElement.Attribute("letter-spacing", iLettering.spacing);
    ioElement.Attribute("xml:space", "preserve");
}

// A column of upright letters, one line each.
void WriteColumn(SvgPage& ioPage, const Lettering& iLettering, const std::vector<std::string>& iLetters) {
    XmlWriter& xml = ioPage.xml;
    for (const std::string& letter : iLetters) {
        xml.Start("tspan", {{"x", "0"}});
        if (&letter != &iLetters.front()) xml.Attribute("dy", ioPage.place.grid(iLettering.Advance()));
        xml.Text(letter);
        xml.End();
    }
}

} // namespace

static void Write(SvgPage& ioPage, VEKPrtTextElt& ioText) {
    VEKMathPoint2D position;
    VEKUnicodeString text;
    ioText.GetParameters(position, text);
    const Lettering l = LetteringOf(ioText);
    if (!ioPage.AreFinite(ioText, {position.GetX(), position.GetY(), l.height, l.spacing, l.expansion,
                                   l.slant, l.direction}))
        return;
    if (l.height <= 0.0) return ioPage.Warn(ioText, "a text without height");
    Placement placement(ioPage, TransformOf(ioText));
    placement.Add(Translation(position.GetX(), position.GetY()));
    placement.Add(Rotation(l.direction, Number(l.direction)));
    placement.Add(Scaling(l.expansion, -1));
    placement.Add(SkewX(-l.slant));
    const std::vector<std::string> lines =
        l.vertical ? LettersOf(text.ToUtf8()) : std::vector<std::string>{text.ToUtf8()};
    Appearance look = AppearanceOf(ioPage, ioText, placement.Added());
    SvgElement element(ioPage, ioText, "text", placement);
    WriteLayout(element, l, lines.size());
    element.Paint(look);
    ioPage.xml.Text({}); // from here on no white space is added, which the text would keep
    element.Content();
    if (l.vertical) return WriteColumn(ioPage, l, lines);
    ioPage.xml.Text(lines.front());
    if (l.NeedsEndMark()) ioPage.xml.Text("\u200E");
}

static void Write(SvgPage& ioPage, VEKPrtBitmapImageElt& ioBitmap) {
    VEKMathPoint2D origin;
    double width = 0, height = 0, orientation = 0;
    VEKPixelImage* image = nullptr;
    ioBitmap.GetParameters(origin, width, height, orientation, image);
    if (!ioPage.AreFinite(ioBitmap, {origin.GetX(), origin.GetY(), width, height, orientation})) return;
    const std::string uri = image ? PngDataUri(*image) : std::string();
    if (uri.empty() || width <= 0.0 || height <= 0.0) {
        SvgElement(ioPage, ioBitmap, "g", Placement(ioPage)).Content();
        return ioPage.Warn(ioBitmap, "a bitmap without pixels or without size");
    }
    Placement placement(ioPage, TransformOf(ioBitmap));
    placement.Add(Translation(origin.GetX(), origin.GetY()));
    placement.Add(Rotation(orientation, Number(orientation)));
    placement.Add(Translation(0, height));
    placement.Add(Scaling(1, -1));
    SvgElement(ioPage, ioBitmap, "image", placement)
        .Attribute("width", width)
        .Attribute("height", height)
        .Attribute("preserveAspectRatio", "none")
        .Attribute("xlink:href", uri);
}

void AddTextAndBitmap(SvgPage& ioPage) { AddHandlers<VEKPrtBitmapImageElt, VEKPrtTextElt>(ioPage); }

} // namespace vekprt::svg
