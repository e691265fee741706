#include "Style.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "FrameworkValues.h"
#include "VEKPixelImage.h"

namespace vekprt::svg {

namespace {

bool DrawsOutline(VEKPrtDrawStyle iStyle) { return iStyle != VEKPrtDrawInterior; }
bool DrawsInterior(VEKPrtDrawStyle iStyle) { return iStyle != VEKPrtDrawOutline; }

// The named line types, in multiples of the line's width.
std::vector<double> DashesOf(int iType) {
    switch (iType) {
    case lineTypeDashed: return {6, 4};
    case lineTypeDotted: return {1, 2};
    case lineTypeDashDot: return {8, 3, 1, 3};
    case lineTypeDashDotDot: return {8, 3, 1, 3, 1, 3};
    case lineTypeLongDash: return {12, 5};
    case lineTypeFineDash: return {3, 2};
    default: return {};
    }
}

// All divided by iScale; empty for a solid line, and for a pattern that says nothing: a negative entry, or
// nothing but zeros.
std::string DashArray(const VEKPrtStrokeAttributes& iStroke, double iWidth, double iScale) {
    float* values = nullptr;
    unsigned char count = 0;
    iStroke.GetStrokeTypePattern(values, count);
    const std::unique_ptr<float[]> owner(values);
    std::vector<double> dashes;
    if (values) {
        dashes.assign(values, values + count);
    } else {
        VEKPrintLineAttribute type{};
        iStroke.GetStrokeType(type);
        dashes = DashesOf(type);
        for (double& dash : dashes)
            dash *= iWidth;
    }
    const auto usable = [](double iDash) { return std::isfinite(iDash) && iDash >= 0.0; };
    const bool shows = std::any_of(dashes.begin(), dashes.end(), [](double iDash) { return iDash > 0.0; });
    if (!shows || !std::all_of(dashes.begin(), dashes.end(), usable)) return {};
    std::string list;
    // Not rounded to the grid: the error would grow from dash to dash.
    for (const double dash : dashes)
        list += (list.empty() ? "" : " ") + Number(static_cast<float>(dash / iScale));
    return list;
}

std::string Opacity(unsigned char iTransparency) { return Grid(1e-4)(iTransparency / 255.0); }

const char* CapOf(int iCap) {
    return iCap == lineCapRound ? "round" : iCap == lineCapSquare ? "square" : "butt";
}
const char* JoinOf(int iJoin) {
    return iJoin == lineJoinRound ? "round" : iJoin == lineJoinBevel ? "bevel" : "miter";
}

// A tile of the pattern image: the unit square, upside down because y points up, laid over the parallelogram.
std::string DefineImageFill(SvgPage& ioPage, const VEKPixelImage& iImage, const Affine& iParallelogram) {
    const std::string transform = Matrix(iParallelogram);
    std::string& fill = ioPage.imageFills[{&iImage, transform}];
    if (!fill.empty()) return fill;
    const std::string uri = PngDataUri(iImage);
    if (uri.empty()) return {};
    const std::string id = ioPage.NewId("fill");
    XmlWriter& xml = ioPage.xml;
    xml.Start("defs");
    xml.Start("pattern", {{"id", id},
                          {"patternUnits", "userSpaceOnUse"},
                          {"width", "1"},
                          {"height", "1"},
                          {"patternTransform", transform}});
    xml.Start("image", {{"width", "1"},
                        {"height", "1"},
                        {"preserveAspectRatio", "none"},
                        {"image-rendering", "optimizeSpeed"},
                        {"transform", "matrix(1 0 0 -1 0 1)"},
                        {"xlink:href", uri}});
    xml.End(3);
    return fill = "url(#" + id + ")";
}

} // namespace

SvgElement::SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
                       const Placement& iPlacement)
    : _page(ioPage), _element(iElement) {
    _page.xml.Start(iName);
    _page.xml.OptionalAttribute("id", _page.IdOf(iElement));
    _page.xml.OptionalAttribute("transform", iPlacement.Text());
}

SvgElement::~SvgElement() {
    Content();
    _page.xml.End();
}

SvgElement& SvgElement::Attribute(const char* iName, const std::string& iValue) {
    _page.xml.Attribute(iName, iValue);
    return *this;
}

SvgElement& SvgElement::Attribute(const char* iName, double iValue) {
    _page.xml.Attribute(iName, _page.place.grid(iValue));
    return *this;
}

void SvgElement::Content() {
    if (_inContent) return;
    _inContent = true;
    VEKUnicodeString text;
    _element.GetTitle(text);
    if (!text.IsEmpty()) _page.xml.Leaf("title", text.ToUtf8());
    _element.GetDescription(text);
    if (!text.IsEmpty()) _page.xml.Leaf("desc", text.ToUtf8());
}

void SvgElement::Stroke(VEKPrtStrokeAttributes& ioStroke) {
    unsigned colour = 0;
    unsigned char transparency = 255;
    double width = 0, scale = 1;
    VEKPrintLineAttribute style{}, cap{}, join{};
    ioStroke.GetStrokeColourIndex(colour);
    ioStroke.GetStrokeColourTransparency(transparency);
    ioStroke.GetStrokeWidth(width);
    ioStroke.GetStrokeStyle(style);
    ioStroke.GetStrokeCap(cap);
    ioStroke.GetStrokeJoin(join);
    XmlWriter& xml = _page.xml;
    const Place& place = _page.place;
    if (!(width >= 0.0)) {
        _page.Warn(_element, "a stroke width below 0");
        return xml.Attribute("stroke", "none");
    }
    // A fixed width is what it is on the page: the transforms are taken out of it, and out of the dashes.
    if (style == lineStyleFixed) {
        _page.uses |= usesScale;
        if (place.map.Scale() > 0.0) scale = place.map.Scale();
    }
    xml.Attribute("stroke", _page.Colour(_element, colour));
    xml.Attribute("stroke-width", place.grid(width / scale));
    xml.OptionalAttribute("stroke-dasharray", DashArray(ioStroke, width, scale));
    if (cap != lineCapButt) xml.Attribute("stroke-linecap", CapOf(cap));
    if (join != lineJoinMitre) xml.Attribute("stroke-linejoin", JoinOf(join));
    if (transparency != 255) xml.Attribute("stroke-opacity", Opacity(transparency));
}

void SvgElement::Paint(Appearance& ioAppearance) {
    _page.xml.OptionalAttribute("fill", ioAppearance.paint);
    if (DrawsInterior(ioAppearance.style) && ioAppearance.paint != "none") {
        VEKPrtFillRule rule = VEKPrtFillNonZero;
        unsigned char transparency = 255;
        ioAppearance.fill.GetFillRule(rule);
        ioAppearance.fill.GetFillColourTransparency(transparency);
        if (rule == VEKPrtFillEvenOdd) Attribute("fill-rule", "evenodd");
        if (transparency != 255) Attribute("fill-opacity", Opacity(transparency));
    }
    if (!DrawsOutline(ioAppearance.style)) return _page.xml.Attribute("stroke", "none");
    Stroke(ioAppearance.stroke);
}

void WriteShape(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
                const Placement& iPlacement, std::initializer_list<std::pair<const char*, double>> iMeasures,
                Appearance iAppearance) {
    for (const auto& [name, value] : iMeasures)
        if (!ioPage.AreFinite(iElement, {value})) return;
    SvgElement element(ioPage, iElement, iName, iPlacement);
    for (const auto& [name, value] : iMeasures)
        element.Attribute(name, value);
    element.Paint(iAppearance);
}

void WritePath(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const Placement& iPlacement,
               const PathData& iPath, Appearance iAppearance) {
    if (!iPath.IsFinite()) return ioPage.Warn(iElement, "points that are not finite");
    SvgElement(ioPage, iElement, "path", iPlacement)
        .Attribute("d", iPath.Text(ioPage.place.grid))
        .Paint(iAppearance);
}

std::string PreparePaint(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtDrawStyle iStyle,
                         VEKPrtFillAttributes& ioFill, const Affine& iInner) {
    VEKPrtFillStyle fillStyle = VEKPrtFillSolid;
    ioFill.GetFillStyle(fillStyle);
    if (!DrawsInterior(iStyle) || fillStyle == VEKPrtFillNone) return "none";
    if (fillStyle == VEKPrtFillPattern) {
        VEKPixelImage* image = nullptr;
        VEKMathVector2D first, second;
        VEKMathPoint2D ref;
        ioFill.GetPattern(image, first, second);
        ioFill.GetPatternRefPoint(ref);
        const Affine parallelogram = {first.GetX(),  first.GetY(), second.GetX(),
                                      second.GetY(), ref.GetX(),   ref.GetY()};
        const double area = parallelogram.Determinant();
        std::string fill;
        if (image && std::isfinite(area) && area != 0.0)
            fill = DefineImageFill(ioPage, *image, iInner.Inverse() * parallelogram);
        if (!fill.empty()) return fill;
        ioPage.Warn(iElement, "a fill pattern without an image, or with vectors that span nothing");
    }
    unsigned colour = 0;
    ioFill.GetFillColourIndex(colour);
    return ioPage.Colour(iElement, colour);
}

} // namespace vekprt::svg
