#include "Element.h"

#include <algorithm>
#include <cstring>

namespace vekprt::svg {

namespace {

std::string Opacity(unsigned char iOpacity) { return Grid(1e-4)(iOpacity / 255.0); }

// A tile of the pattern image: the unit square, upside down because y points up, laid over the parallelogram.
std::string ImageFill(SvgPage& ioPage, const VEKPixelImage& iImage, const Affine& iTile) {
    const std::string transform = Matrix(iTile);
    std::string& fill = ioPage.imageFills[{&iImage, transform}];
    if (!fill.empty()) return fill;
    const std::string reference = ioPage.ImageReference(iImage);
    const std::string id = ioPage.NewId("fill");
    XmlWriter& xml = ioPage.xml;
    xml.Start("defs");
    xml.Start("pattern", {{"id", id},
                          {"patternUnits", "userSpaceOnUse"},
                          {"width", "1"},
                          {"height", "1"},
                          {"patternTransform", transform}});
    xml.Start("use", {{"transform", "matrix(1 0 0 -1 0 1)"},
                      {"image-rendering", "optimizeSpeed"},
                      {"xlink:href", reference}});
    xml.End(3);
    return fill = "url(#" + id + ")";
}

} // namespace

Paint PaintOf(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, Look iLook, const Affine& iInner) {
    Paint paint{std::move(iLook), "none"};
    const Fill& fill = paint.look.fill;
    if (fill.kind == Fill::Image) paint.inside = ImageFill(ioPage, *fill.image, iInner.Inverse() * fill.tile);
    if (fill.kind == Fill::Colour) paint.inside = ioPage.Colour(iElement, fill.colour);
    return paint;
}

SvgElement::SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
                       const Placement& iPlacement)
    : _page(ioPage), _element(iElement) {
    _page.xml.Start(iName);
    _page.xml.OptionalAttribute("id", _page.IdOf(iElement));
    _page.xml.OptionalAttribute("transform", iPlacement.Text());
}

SvgElement& SvgElement::Attribute(const char* iName, const std::string& iValue) {
    _page.xml.Attribute(iName, iValue);
    return *this;
}

SvgElement& SvgElement::Attribute(const char* iName, double iValue) {
    constexpr std::size_t maxName = 20;
    char text[maxName + Grid::maxText + 4];
    char* end = text;
    *end++ = ' ';
    end = std::copy(iName, iName + std::min(std::strlen(iName), maxName), end);
    *end++ = '=';
    *end++ = '"';
    end = _page.place.grid.Write(end, iValue);
    *end++ = '"';
    _page.xml.PlainAttributes({text, static_cast<std::size_t>(end - text)});
    return *this;
}

void SvgElement::Content() {
    if (_isInContent) return;
    _isInContent = true;
    VEKUnicodeString title, description;
    _element.GetTitle(title);
    _element.GetDescription(description);
    if (!title.IsEmpty()) _page.xml.Leaf("title", title.ToUtf8());
    if (!description.IsEmpty()) _page.xml.Leaf("desc", description.ToUtf8());
}

void SvgElement::End() {
    Content();
    _page.xml.End();
}

void SvgElement::StrokeAttributes(const Stroke& iStroke) {
    static const char* const caps[] = {"butt", "round", "square"};
    static const char* const joins[] = {"miter", "round", "bevel"};
    if (!iStroke.isDrawn) {
        Attribute("stroke", "none");
        return;
    }
    if (iStroke.isFixed) _page.uses |= usesScale;
    const double divisor = iStroke.DivisorIn(_page.place.map);
    Attribute("stroke", _page.Colour(_element, iStroke.colour));
    Attribute("stroke-width", iStroke.width / divisor);
    if (!iStroke.dashes.empty()) {
        // Not rounded to the grid: the error would grow from dash to dash.
        std::string list;
        for (const double dash : iStroke.dashes)
            list += (list.empty() ? "" : " ") + Number(static_cast<float>(dash / divisor));
        Attribute("stroke-dasharray", list);
    }
    if (iStroke.cap != Cap::Butt) Attribute("stroke-linecap", caps[static_cast<int>(iStroke.cap)]);
    if (iStroke.join != Join::Mitre) Attribute("stroke-linejoin", joins[static_cast<int>(iStroke.join)]);
    if (iStroke.opacity != 255) Attribute("stroke-opacity", Opacity(iStroke.opacity));
}

SvgElement& SvgElement::Attributes(const Paint& iPaint) {
    const Fill& fill = iPaint.look.fill;
    _page.xml.OptionalAttribute("fill", iPaint.inside);
    if (fill.kind != Fill::None) {
        if (fill.isEvenOdd) Attribute("fill-rule", "evenodd");
        if (fill.opacity != 255) Attribute("fill-opacity", Opacity(fill.opacity));
    }
    StrokeAttributes(iPaint.look.stroke);
    return *this;
}

} // namespace vekprt::svg
