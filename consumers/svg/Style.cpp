#include "Style.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <vector>

#include "PngDataUri.h"
#include "VEKPixelImage.h"
#include "VEKPrtColourTable.h"

namespace {

bool DrawsOutline(VEKPrtDrawStyle iStyle) { return iStyle != VEKPrtDrawInterior; }
bool DrawsInterior(VEKPrtDrawStyle iStyle) { return iStyle != VEKPrtDrawOutline; }

// The named line types, in multiples of the line's width.
std::vector<double> DashesOf(VEKPrintLineAttribute iType) {
    switch (iType) {
    case VEKPrintLineTypeDashed: return {6, 4};
    case VEKPrintLineTypeDotted: return {1, 2};
    case VEKPrintLineTypeDashDot: return {8, 3, 1, 3};
    case VEKPrintLineTypeDashDotDot: return {8, 3, 1, 3, 1, 3};
    case VEKPrintLineTypeLongDash: return {12, 5};
    case VEKPrintLineTypeFineDash: return {3, 2};
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
        VEKPrintLineAttribute type = VEKPrintLineTypeSolid;
        iStroke.GetStrokeType(type);
        dashes = DashesOf(type);
        for (double& dash : dashes)
            dash *= iWidth;
    }
    const auto usable = [](double iDash) { return std::isfinite(iDash) && iDash >= 0.0; };
    const bool shows = std::any_of(dashes.begin(), dashes.end(), [](double iDash) { return iDash > 0.0; });
    if (!shows || !std::all_of(dashes.begin(), dashes.end(), usable)) return {};
    std::string list;
    for (const double dash : dashes)
        list += (list.empty() ? "" : " ") + Number(dash / iScale);
    return list;
}

std::string Opacity(unsigned char iTransparency) {
    return Number(std::round(iTransparency / 255.0 * 1e4) / 1e4);
}

const char* CapOf(VEKPrintLineAttribute iCap) {
    return iCap == VEKPrintLineCapRound ? "round" : iCap == VEKPrintLineCapSquare ? "square" : "butt";
}
const char* JoinOf(VEKPrintLineAttribute iJoin) {
    return iJoin == VEKPrintLineJoinRound ? "round" : iJoin == VEKPrintLineJoinBevel ? "bevel" : "miter";
}

// A tile of the pattern image: the unit square, upside down because y points up, laid over the parallelogram.
std::string DefinePatternFill(SvgPage& ioPage, const std::string& iImageUri, const Affine& iParallelogram) {
    const std::string id = ioPage.NewId("fill");
    XmlWriter& xml = ioPage.xml;
    xml.Start("defs");
    xml.Start("pattern");
    xml.Attribute("id", id);
    xml.Attribute("patternUnits", "userSpaceOnUse");
    xml.Attribute("width", 1.0);
    xml.Attribute("height", 1.0);
    xml.Attribute("patternTransform", Matrix(iParallelogram));
    xml.Start("image");
    xml.Attribute("width", 1.0);
    xml.Attribute("height", 1.0);
    xml.Attribute("preserveAspectRatio", "none");
    xml.Attribute("image-rendering", "optimizeSpeed");
    xml.Attribute("transform", "matrix(1 0 0 -1 0 1)");
    xml.Attribute("xlink:href", iImageUri);
    xml.End();
    xml.End();
    xml.End();
    return "url(#" + id + ")";
}

} // namespace

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

bool SvgPage::IsFinite(const VEKPrtGraphicPrimitiveElt& iElement, const PathData& iPath) const {
    if (!iPath.IsFinite()) Warn(iElement, "points that are not finite");
    return iPath.IsFinite();
}

std::string SvgPage::NewId(const char* iKind) {
    for (;;) {
        std::string id = "svg-" + std::string(iKind) + "-" + std::to_string(++definitions);
        if (ids.insert(id).second) return id;
    }
}

std::string SvgPage::Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex) const {
    unsigned char rgb[3] = {0, 0, 0};
    if (!colours || colours->GetColour(iIndex, rgb[0], rgb[1], rgb[2]) != 1)
        Warn(iElement, "colour " + std::to_string(iIndex) + " is not in the page's table, black is used");
    static const char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned char component : rgb) {
        text += digits[component / 16];
        text += digits[component % 16];
    }
    return text;
}

SvgElement::SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName)
    : _page(ioPage), _element(iElement), _outer(ioPage.map) {
    _page.xml.Start(iName);
    VEKUnicodeString id;
    iElement.GetID(id);
    if (!id.IsEmpty() && _page.ids.insert(id.ToUtf8()).second) _page.xml.Attribute("id", id.ToUtf8());
}

SvgElement::~SvgElement() {
    Content();
    _page.xml.End();
    _page.map = _outer;
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

SvgElement& SvgElement::Transform(const VEKPrtTransformAttributes& iTransforms, const std::string& iOwn) {
    std::string list;
    for (const Elementary& transform : TransformsOf(iTransforms)) {
        list += (list.empty() ? "" : " ") + transform.svg;
        _page.map = _page.map * transform.map;
    }
    if (!list.empty() && !iOwn.empty()) list += ' ';
    _page.xml.OptionalAttribute("transform", list + iOwn);
    return *this;
}

SvgElement& SvgElement::Stroke(const VEKPrtStrokeAttributes& iStroke) {
    unsigned colour = 0;
    unsigned char transparency = 255;
    double width = 0;
    VEKPrintLineAttribute style = VEKPrintLineStyleScaled, cap = VEKPrintLineCapButt,
                          join = VEKPrintLineJoinMitre;
    iStroke.GetStrokeColourIndex(colour);
    VEKPrtStrokeAttributes(iStroke).GetStrokeColourTransparency(transparency);
    iStroke.GetStrokeWidth(width);
    iStroke.GetStrokeStyle(style);
    iStroke.GetStrokeCap(cap);
    iStroke.GetStrokeJoin(join);
    if (!(width >= 0.0)) {
        _page.Warn(_element, "a stroke width below 0");
        return NoStroke();
    }
    // A fixed width is what it is on the page: the transforms are taken out of it, and out of the dashes.
    const double scale = style == VEKPrintLineStyleFixed && _page.map.Scale() > 0.0 ? _page.map.Scale() : 1.0;
    XmlWriter& xml = _page.xml;
    xml.Attribute("stroke", _page.Colour(_element, colour));
    xml.Attribute("stroke-width", width / scale);
    xml.OptionalAttribute("stroke-dasharray", DashArray(iStroke, width, scale));
    if (cap != VEKPrintLineCapButt) xml.Attribute("stroke-linecap", CapOf(cap));
    if (join != VEKPrintLineJoinMitre) xml.Attribute("stroke-linejoin", JoinOf(join));
    if (transparency != 255) xml.Attribute("stroke-opacity", Opacity(transparency));
    return *this;
}

SvgElement& SvgElement::NoStroke() { return Attribute("stroke", "none"); }
SvgElement& SvgElement::NoFill() { return Attribute("fill", "none"); }

SvgElement& SvgElement::Paint(const Appearance& iAppearance) {
    _page.xml.Attribute("fill", iAppearance.paint);
    if (iAppearance.paint != "none") {
        VEKPrtFillAttributes fill(iAppearance.fill);
        VEKPrtFillRule rule = VEKPrtFillNonZero;
        unsigned char transparency = 255;
        fill.GetFillRule(rule);
        fill.GetFillColourTransparency(transparency);
        if (rule == VEKPrtFillEvenOdd) _page.xml.Attribute("fill-rule", "evenodd");
        if (transparency != 255) _page.xml.Attribute("fill-opacity", Opacity(transparency));
    }
    return DrawsOutline(iAppearance.style) ? Stroke(iAppearance.stroke) : NoStroke();
}

std::string PreparePaint(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtDrawStyle iStyle,
                         const VEKPrtFillAttributes& iFill) {
    VEKPrtFillStyle fillStyle = VEKPrtFillSolid;
    iFill.GetFillStyle(fillStyle);
    if (!DrawsInterior(iStyle) || fillStyle == VEKPrtFillNone) return "none";
    if (fillStyle == VEKPrtFillPattern) {
        VEKPixelImage* image = nullptr;
        VEKMathVector2D first, second;
        VEKMathPoint2D ref;
        VEKPrtFillAttributes(iFill).GetPattern(image, first, second);
        iFill.GetPatternRefPoint(ref);
        const double area = first.GetX() * second.GetY() - first.GetY() * second.GetX();
        const std::string uri = image ? PngDataUri(*image) : std::string();
        if (!uri.empty() && std::isfinite(area) && area != 0.0)
            return DefinePatternFill(
                ioPage, uri,
                {first.GetX(), first.GetY(), second.GetX(), second.GetY(), ref.GetX(), ref.GetY()});
        ioPage.Warn(iElement, "a fill pattern without an image, or with vectors that span nothing");
    }
    unsigned colour = 0;
    iFill.GetFillColourIndex(colour);
    return ioPage.Colour(iElement, colour);
}
