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

// Empty for a solid line, and for a pattern that says nothing: a negative entry, or nothing but zeros.
std::string DashArray(const VEKPrtStrokeAttributes& iStroke, double iWidth) {
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
        list += (list.empty() ? "" : " ") + Number(dash);
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
std::string DefinePatternFill(SvgPage& ioPage, const VEKPixelImage& iImage, const Affine& iParallelogram) {
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
    xml.Attribute("xlink:href", PngDataUri(iImage));
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
    : _page(ioPage), _element(iElement) {
    _page.xml.Start(iName);
    VEKUnicodeString id;
    iElement.GetID(id);
    _page.xml.OptionalAttribute("id", id.ToUtf8());
}

SvgElement::~SvgElement() {
    Content();
    _page.xml.End();
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
    std::string list = TransformList(iTransforms);
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
    XmlWriter& xml = _page.xml;
    xml.Attribute("stroke", _page.Colour(_element, colour));
    xml.Attribute("stroke-width", width);
    xml.OptionalAttribute("stroke-dasharray", DashArray(iStroke, width));
    if (cap != VEKPrintLineCapButt) xml.Attribute("stroke-linecap", CapOf(cap));
    if (join != VEKPrintLineJoinMitre) xml.Attribute("stroke-linejoin", JoinOf(join));
    if (transparency != 255) xml.Attribute("stroke-opacity", Opacity(transparency));
    if (style == VEKPrintLineStyleFixed) xml.Attribute("vector-effect", "non-scaling-stroke");
    return *this;
}

SvgElement& SvgElement::NoStroke() { return Attribute("stroke", "none"); }
SvgElement& SvgElement::NoFill() { return Attribute("fill", "none"); }

SvgElement& SvgElement::Paint(VEKPrtDrawStyle iStyle, const VEKPrtStrokeAttributes& iStroke,
                              const VEKPrtFillAttributes& iFill, const std::string& iPaint) {
    _page.xml.Attribute("fill", iPaint);
    if (iPaint != "none") {
        VEKPrtFillRule rule = VEKPrtFillNonZero;
        unsigned char transparency = 255;
        iFill.GetFillRule(rule);
        VEKPrtFillAttributes(iFill).GetFillColourTransparency(transparency);
        if (rule == VEKPrtFillEvenOdd) _page.xml.Attribute("fill-rule", "evenodd");
        if (transparency != 255) _page.xml.Attribute("fill-opacity", Opacity(transparency));
    }
    return DrawsOutline(iStyle) ? Stroke(iStroke) : NoStroke();
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
        if (image && std::isfinite(area) && area != 0.0)
            return DefinePatternFill(
                ioPage, *image,
                {first.GetX(), first.GetY(), second.GetX(), second.GetY(), ref.GetX(), ref.GetY()});
        ioPage.Warn(iElement, "a fill pattern without an image, or with vectors that span nothing");
    }
    unsigned colour = 0;
    iFill.GetFillColourIndex(colour);
    return ioPage.Colour(iElement, colour);
}

std::string Matrix(const Affine& iMap) {
    std::string text = "matrix(";
    for (const double value : {iMap.a, iMap.b, iMap.c, iMap.d, iMap.e, iMap.f})
        text += (text.back() == '(' ? "" : " ") + Number(value);
    return text + ")";
}

std::string TransformList(const VEKPrtTransformAttributes& iTransforms) {
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    iTransforms.GetTransformTab(count, kinds);
    std::string list;
    for (unsigned i = 0; kinds && i < count; ++i) {
        std::string item;
        double scale = 1;
        float angle = 0;
        VEKMathVector2D vector;
        VEKMath2x2Matrix m;
        switch (kinds[i]) {
        case VEKPrintTransformMatrix:
            if (iTransforms.GetMatrix(i, m) == 1)
                item = Matrix({m.GetCoef(1, 1), m.GetCoef(2, 1), m.GetCoef(1, 2), m.GetCoef(2, 2), 0, 0});
            break;
        case VEKPrintTransformTranslation:
            if (iTransforms.GetTranslation(i, vector) == 1)
                item = "translate(" + Point(vector.GetX(), vector.GetY()) + ")";
            break;
        case VEKPrintTransformRotation:
            if (iTransforms.GetRotation(i, angle) == 1) item = "rotate(" + Number(angle) + ")";
            break;
        case VEKPrintTransformScaleX:
            if (iTransforms.GetScaleX(i, scale) == 1) item = "scale(" + Point(scale, 1) + ")";
            break;
        case VEKPrintTransformScaleY:
            if (iTransforms.GetScaleY(i, scale) == 1) item = "scale(" + Point(1, scale) + ")";
            break;
        case VEKPrintTransformSkewX:
            if (iTransforms.GetSkewX(i, angle) == 1) item = "skewX(" + Number(angle) + ")";
            break;
        case VEKPrintTransformSkewY:
            if (iTransforms.GetSkewY(i, angle) == 1) item = "skewY(" + Number(angle) + ")";
            break;
        default: break;
        }
        if (!item.empty()) list += (list.empty() ? "" : " ") + item;
    }
    return list;
}
