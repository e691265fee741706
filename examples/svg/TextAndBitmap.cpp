// Text and bitmaps: y points up on the page but down in letters and pixels, so both are turned over.
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

struct Anchor {
    const char* horizontal;
    /// How far below the reference point the baseline lies, in heights.
    double drop;
};

// Not by `dominant-baseline`, which many renderers do not know.  Capitals are about 0.72 of the height.
Anchor AnchorOf(VEKPrintTextAttribute iAnchor) {
    constexpr double middle = 0.36, top = 0.72;
    switch (iAnchor) {
    case VEKPrintTextAnchorBaselineCentre: return {"middle", 0};
    case VEKPrintTextAnchorBaselineRight: return {"end", 0};
    case VEKPrintTextAnchorMiddleLeft: return {"start", middle};
    case VEKPrintTextAnchorMiddleCentre: return {"middle", middle};
    case VEKPrintTextAnchorMiddleRight: return {"end", middle};
    case VEKPrintTextAnchorTopLeft: return {"start", top};
    case VEKPrintTextAnchorTopCentre: return {"middle", top};
    case VEKPrintTextAnchorTopRight: return {"end", top};
    default: return {"start", 0};
    }
}

// One character above the other, upright; the first one where the text begins.
void WriteVertically(XmlWriter& ioXml, const std::string& iText, double iHeight, double iSpacing) {
    ioXml.Text({}); // from here on no white space is added, which the text would keep
    std::size_t begin = 0;
    for (int row = 0; begin < iText.size(); ++row) {
        std::size_t end = begin + 1;
        while (end < iText.size() && (static_cast<unsigned char>(iText[end]) & 0xC0U) == 0x80U)
            ++end;
        ioXml.Start("tspan");
        ioXml.Attribute("x", 0.0);
        if (row > 0) ioXml.Attribute("dy", iHeight + iSpacing);
        ioXml.Text(iText.substr(begin, end - begin));
        ioXml.End();
        begin = end;
    }
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

    std::string own = "translate(" + Point(position.GetX(), position.GetY()) + ")";
    if (direction != 0.0F) own += " rotate(" + Number(direction) + ")";
    own += " scale(" + Point(expansion, -1) + ")";
    if (slant != 0.0F) own += " skewX(" + Number(-slant) + ")";

    const Anchor anchor = AnchorOf(anchorValue);
    const VEKPrtDrawStyle style = DrawStyleOf(ioText);
    const VEKPrtFillAttributes fill = FillOf(ioText);
    const std::string paint = PreparePaint(ioPage, ioText, style, fill);
    SvgElement element(ioPage, ioText, "text");
    element.Transform(TransformOf(ioText), own);
    if (anchor.drop != 0.0) element.Attribute("y", anchor.drop * height);
    element.Attribute("font-family", font ? font->GetFamily() : "sans-serif").Attribute("font-size", height);
    if (weight != VEKPrintTextWeightRegular) element.Attribute("font-weight", WeightOf(weight));
    if (anchor.horizontal != std::string("start")) element.Attribute("text-anchor", anchor.horizontal);
    if (spacing != 0.0 && mode != VEKPrtTextVertical) element.Attribute("letter-spacing", spacing);
    element.Attribute("xml:space", "preserve").Paint(style, StrokeOf(ioText), fill, paint).Content();
    if (mode == VEKPrtTextVertical) {
        WriteVertically(ioPage.xml, text.ToUtf8(), height, spacing);
    } else {
        ioPage.xml.Text(text.ToUtf8());
    }
}

void Write(SvgPage& ioPage, VEKPrtBitmapImageElt& ioBitmap) {
    VEKMathPoint2D origin;
    double width = 0, height = 0, orientation = 0;
    VEKPixelImage* image = nullptr;
    ioBitmap.GetParameters(origin, width, height, orientation, image);
    std::string own = "translate(" + Point(origin.GetX(), origin.GetY()) + ")";
    if (orientation != 0.0) own += " rotate(" + Number(orientation) + ")";
    own += " matrix(1 0 0 -1 0 " + Number(height) + ")";

    SvgElement element(ioPage, ioBitmap, "image");
    element.Transform(TransformOf(ioBitmap), own)
        .Attribute("width", width > 0.0 ? width : 0.0)
        .Attribute("height", height > 0.0 ? height : 0.0)
        .Attribute("preserveAspectRatio", "none");
    const std::string uri = image ? PngDataUri(*image) : std::string();
    if (!uri.empty()) element.Attribute("xlink:href", uri);
}
