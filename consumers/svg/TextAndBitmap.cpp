// Text and bitmaps: y points up on the page but down in letters and pixels, so both are turned over.
#include <string>
#include <vector>

#include "Handlers.h"
#include "PngDataUri.h"
#include "Style.h"
#include "VEKFont.h"
#include "VEKPixelImage.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtTextElt.h"

namespace {

const char* WeightOf(VEKPrintTextAttribute iWeight) {
    switch (iWeight) {
    case VEKPrintTextWeightLight: return "300";
    case VEKPrintTextWeightMedium: return "500";
    case VEKPrintTextWeightBold: return "700";
    case VEKPrintTextWeightBlack: return "900";
    default: return "400";
    }
}

// Capitals are about 0.72 of the height.
constexpr double capitals = 0.72;

struct Anchor {
    const char* horizontal;
    /// Which share of a text, from its top, lies above the reference point; the baseline is its own case.
    double above;
    bool baseline;
};

// Not by `dominant-baseline`, which many renderers do not know.
Anchor AnchorOf(VEKPrintTextAttribute iAnchor) {
    switch (iAnchor) {
    case VEKPrintTextAnchorBaselineCentre: return {"middle", 0, true};
    case VEKPrintTextAnchorBaselineRight: return {"end", 0, true};
    case VEKPrintTextAnchorMiddleLeft: return {"start", 0.5, false};
    case VEKPrintTextAnchorMiddleCentre: return {"middle", 0.5, false};
    case VEKPrintTextAnchorMiddleRight: return {"end", 0.5, false};
    case VEKPrintTextAnchorTopLeft: return {"start", 0, false};
    case VEKPrintTextAnchorTopCentre: return {"middle", 0, false};
    case VEKPrintTextAnchorTopRight: return {"end", 0, false};
    default: return {"start", 0, true};
    }
}

// The characters, each with the combining marks (U+0300 to U+036F) that follow it.
std::vector<std::string> Letters(const std::string& iText) {
    std::vector<std::string> letters;
    for (std::size_t i = 0; i < iText.size();) {
        std::size_t end = i + 1;
        while (end < iText.size() && (static_cast<unsigned char>(iText[end]) & 0xC0U) == 0x80U)
            ++end;
        const std::string character = iText.substr(i, end - i);
        const bool combining = character >= "\xCC\x80" && character <= "\xCD\xAF" && character.size() == 2;
        if (combining && !letters.empty()) {
            letters.back() += character;
        } else {
            letters.push_back(character);
        }
        i = end;
    }
    return letters;
}

} // namespace

void Write(SvgPage& ioPage, VEKPrtTextElt& ioText) {
    VEKMathPoint2D position;
    VEKUnicodeString text;
    ioText.GetParameters(position, text);
    VEKPrtTextAttributes attributes;
    ioText.GetTextAttributes(attributes);
    VEKFont* font = nullptr;
    VEKPrintTextAttribute weight = VEKPrintTextWeightRegular, anchorValue = VEKPrintTextAnchorBaselineLeft;
    double height = 0, spacing = 0, expansion = 1;
    float slant = 0, direction = 0;
    VEKPrtTextWritingMode mode = VEKPrtTextHorizontal;
    attributes.GetFont(font);
    attributes.GetWeight(weight);
    attributes.GetHeight(height);
    attributes.GetAnchor(anchorValue);
    attributes.GetSlant(slant);
    attributes.GetDirection(direction);
    attributes.GetExtraSpacing(spacing);
    attributes.GetExpansion(expansion);
    attributes.GetWritingMode(mode);

    if (!ioPage.AreFinite(ioText,
                          {position.GetX(), position.GetY(), height, spacing, expansion, slant, direction}))
        return;
    if (height <= 0.0) return ioPage.Warn(ioText, "a text without height");
    std::string own = "translate(" + Pair(position.GetX(), position.GetY()) + ")";
    if (direction != 0.0F) own += " rotate(" + Number(direction) + ")";
    own += " scale(" + Pair(expansion, -1) + ")";
    if (slant != 0.0F) own += " skewX(" + Number(-slant) + ")";

    // A vertical text is a column of upright letters, one line each.
    const bool vertical = mode == VEKPrtTextVertical;
    const std::vector<std::string> lines =
        vertical ? Letters(text.ToUtf8()) : std::vector<std::string>{text.ToUtf8()};
    const double advance = height + spacing;
    const double column = lines.empty() ? 0.0 : static_cast<double>(lines.size() - 1) * advance;
    const Anchor anchor = AnchorOf(anchorValue);
    const double firstLine =
        anchor.baseline ? 0.0 : capitals * height - anchor.above * (column + capitals * height);

    const Appearance look = AppearanceOf(ioPage, ioText);
    SvgElement element(ioPage, ioText, "text");
    element.Transform(TransformOf(ioText), own);
    if (firstLine != 0.0) element.Attribute("y", firstLine);
    element.Attribute("font-family", font ? font->GetFamily() : "sans-serif").Attribute("font-size", height);
    if (weight != VEKPrintTextWeightRegular) element.Attribute("font-weight", WeightOf(weight));
    if (anchor.horizontal != std::string("start")) element.Attribute("text-anchor", anchor.horizontal);
    if (spacing != 0.0 && !vertical) element.Attribute("letter-spacing", spacing);
    element.Attribute("xml:space", "preserve").Paint(look);
    ioPage.xml.Text({}); // from here on no white space is added, which the text would keep
    element.Content();
    for (std::size_t line = 0; line < lines.size(); ++line) {
        if (!vertical) {
            ioPage.xml.Text(lines[line]);
            continue;
        }
        ioPage.xml.Start("tspan");
        ioPage.xml.Attribute("x", 0.0);
        if (line > 0) ioPage.xml.Attribute("dy", advance);
        ioPage.xml.Text(lines[line]);
        ioPage.xml.End();
    }
}

void Write(SvgPage& ioPage, VEKPrtBitmapImageElt& ioBitmap) {
    VEKMathPoint2D origin;
    double width = 0, height = 0, orientation = 0;
    VEKPixelImage* image = nullptr;
    ioBitmap.GetParameters(origin, width, height, orientation, image);
    if (!ioPage.AreFinite(ioBitmap, {origin.GetX(), origin.GetY(), width, height, orientation})) return;
    const std::string uri = image ? PngDataUri(*image) : std::string();
    if (uri.empty() || width <= 0.0 || height <= 0.0) {
        SvgElement(ioPage, ioBitmap, "g").Content();
        return ioPage.Warn(ioBitmap, "a bitmap without pixels or without size");
    }
    std::string own = "translate(" + Pair(origin.GetX(), origin.GetY()) + ")";
    if (orientation != 0.0) own += " rotate(" + Number(orientation) + ")";
    own += " matrix(1 0 0 -1 0 " + Number(height) + ")";
    SvgElement(ioPage, ioBitmap, "image")
        .Transform(TransformOf(ioBitmap), own)
        .Attribute("width", width)
        .Attribute("height", height)
        .Attribute("preserveAspectRatio", "none")
        .Attribute("xlink:href", uri);
}
