#include "Records.h"

#include <algorithm>
#include <cctype>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <memory>
#include <new>

#include "VEKPixelImage.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtValues.h"

namespace vekprt::drawing {

namespace {

// The named line types, in multiples of the line's width.
std::vector<double> DashesOf(VEKPrintLineAttribute iType) {
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

std::vector<double> DashesOf(const VEKPrtStrokeAttributes& iRecord, double iWidth) {
    float* values = nullptr;
    unsigned char count = 0;
    iRecord.GetStrokeTypePattern(values, count);
    const std::unique_ptr<float[]> owner(values);
    std::vector<double> dashes;
    if (count > 0) {
        if (!values) throw std::bad_alloc();
        dashes.assign(values, values + count);
    } else {
        VEKPrintLineAttribute type{};
        iRecord.GetStrokeType(type);
        dashes = DashesOf(type);
        for (double& dash : dashes)
            dash *= iWidth;
    }
    const auto isUsable = [](double iDash) { return iDash >= 0.0 && iDash <= FLT_MAX; };
    const bool shows = std::any_of(dashes.begin(), dashes.end(), [](double iDash) { return iDash > 0.0; });
    if (!shows || !std::all_of(dashes.begin(), dashes.end(), isUsable)) dashes.clear();
    return dashes;
}

} // namespace

Rgb ColourOf(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtColourTable* iTable,
             unsigned iIndex) {
    Rgb colour;
    if (!iTable || iTable->GetColour(iIndex, colour.red, colour.green, colour.blue) != 1) {
        iReporter.Warn(iElement,
                       "colour " + std::to_string(iIndex) + " is not in the page's table; using black");
        return {};
    }
    return colour;
}

double Stroke::DivisorIn(const Affine& iMap) const {
    return isFixed && iMap.Scale() > 0.0 ? iMap.Scale() : 1.0;
}

Stroke ReadStroke(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
                  VEKPrtStrokeAttributes& ioRecord) {
    Stroke stroke;
    VEKPrintLineAttribute style{}, cap{}, join{};
    ioRecord.GetStrokeWidth(stroke.width);
    if (stroke.width < 0.0 || !iReporter.AreInRange(iElement, {stroke.width})) {
        if (stroke.width < 0.0) iReporter.Warn(iElement, "negative stroke width; outline omitted");
        return stroke;
    }
    ioRecord.GetStrokeColourIndex(stroke.colour);
    ioRecord.GetStrokeColourTransparency(stroke.opacity);
    ioRecord.GetStrokeStyle(style);
    ioRecord.GetStrokeCap(cap);
    ioRecord.GetStrokeJoin(join);
    stroke.isDrawn = true;
    stroke.isFixed = style == lineStyleFixed;
    stroke.cap = cap == lineCapRound ? Cap::Round : cap == lineCapSquare ? Cap::Square : Cap::Butt;
    stroke.join = join == lineJoinRound ? Join::Round : join == lineJoinBevel ? Join::Bevel : Join::Mitre;
    stroke.dashes = DashesOf(ioRecord, stroke.width);
    return stroke;
}

Fill ReadFill(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
              VEKPrtFillAttributes& ioRecord) {
    Fill fill;
    VEKPrtFillStyle style = VEKPrtFillSolid;
    VEKPrtFillRule rule = VEKPrtFillNonZero;
    ioRecord.GetFillStyle(style);
    if (style == VEKPrtFillNone) return fill;
    ioRecord.GetFillRule(rule);
    ioRecord.GetFillColourIndex(fill.colour);
    ioRecord.GetFillColourTransparency(fill.opacity);
    fill.kind = Fill::Colour;
    fill.isEvenOdd = rule == VEKPrtFillEvenOdd;
    if (style != VEKPrtFillPattern) return fill;

    VEKMathVector2D first, second;
    VEKMathPoint2D reference(0.0, 0.0);
    ioRecord.GetPattern(fill.image, first, second);
    ioRecord.GetPatternRefPoint(reference);
    fill.tile = {first.GetX(),  first.GetY(),     second.GetX(),
                 second.GetY(), reference.GetX(), reference.GetY()};
    const double area = std::fabs(fill.tile.Determinant());
    const double reach = std::fabs(reference.GetX()) + std::fabs(reference.GetY());
    if (fill.image && fill.image->GetRow(0) && area > 0.0 && area <= FLT_MAX && reach <= FLT_MAX)
        fill.kind = Fill::Image;
    else
        iReporter.Warn(iElement, "fill pattern without pixels or without area; using the fill colour");
    return fill;
}

VEKPrintMarkerAttribute StyleOf(const VEKPrtMarkerElt& iMarker) {
    VEKPrtMarkerAttributes record;
    VEKPrintMarkerAttribute style{};
    iMarker.GetMarkerAttributes(record);
    record.GetMarkerStyle(style);
    return style;
}

Look LookOf(const Reporter& iReporter, const VEKPrtMarkerElt& iMarker) {
    Look look{StrokeOf(iReporter, iMarker), {}};
    if (StyleOf(iMarker) != markerDisc) return look;
    look.fill.kind = look.stroke.isDrawn ? Fill::Colour : Fill::None;
    look.fill.colour = look.stroke.colour;
    look.fill.opacity = look.stroke.opacity;
    return look;
}

std::vector<Elementary> PlacementOf(const VEKPrtImageElt& iPage) {
    VEKMath2x2Matrix matrix;
    iPage.GetMatrix(matrix);
    const Elementary linear = Linear(matrix);
    return linear.map == Affine() ? std::vector<Elementary>() : std::vector<Elementary>{linear};
}

bool Box::IsEmpty() const {
    const double reach = std::max(std::fabs(x) + width, std::fabs(y) + height);
    return !(width > 0.0 && height > 0.0 && reach <= FLT_MAX);
}

bool Box::operator==(const Box& iOther) const {
    return x == iOther.x && y == iOther.y && width == iOther.width && height == iOther.height;
}

Box Place::Covered() const {
    const Affine toElement = map.Inverse() * areaMap;
    double low[2] = {INFINITY, INFINITY}, high[2] = {-INFINITY, -INFINITY};
    for (const double x : {area.x, area.x + area.width}) {
        for (const double y : {area.y, area.y + area.height}) {
            const VEKMathPoint2D corner = toElement(x, y);
            const double xy[2] = {corner.GetX(), corner.GetY()};
            for (int i = 0; i < 2; ++i) {
                low[i] = std::min(low[i], xy[i]);
                high[i] = std::max(high[i], xy[i]);
            }
        }
    }
    return {low[0], low[1], high[0] - low[0], high[1] - low[1]};
}

Bitmap BitmapOf(const Reporter& iReporter, const VEKPrtBitmapImageElt& iBitmap) {
    VEKMathPoint2D origin(0.0, 0.0);
    double width = 0, height = 0, orientation = 0;
    Bitmap bitmap;
    iBitmap.GetParameters(origin, width, height, orientation, bitmap.image);
    if (!iReporter.AreInRange(iBitmap, {origin.GetX(), origin.GetY(), width, height, orientation})) return {};
    if (!bitmap.image || !bitmap.image->GetRow(0) || width <= 0.0 || height <= 0.0) {
        iReporter.Warn(iBitmap, "bitmap without pixels or without size");
        return {};
    }
    bitmap.placement = PlacementOf(iBitmap);
    bitmap.placement.insert(bitmap.placement.end(), {Translation(origin.GetX(), origin.GetY()),
                                                     Rotation(orientation), Scaling(width, height)});
    return bitmap;
}

std::string LinkOf(const Reporter& iReporter, const VEKPrtGroupElt& iGroup) {
    VEKPrtGroupAttributes record;
    VEKPrintLinkURI uri;
    iGroup.GetGroupAttributes(record);
    record.GetLinkURI(uri);
    std::string link = uri.GetURI();
    // As browsers see it: in lower case, without blanks and control characters.
    std::string scheme;
    for (const char c : link.substr(0, link.find(':') + 1))
        if (static_cast<unsigned char>(c) > ' ')
            scheme += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (scheme != "javascript:" && scheme != "vbscript:" && scheme != "data:") return link;
    iReporter.Warn(iGroup, "link with scheme " + scheme + " omitted");
    return {};
}

std::string DecodedUri(std::string_view iText) {
    std::string text;
    for (std::size_t i = 0; i < iText.size(); ++i) {
        unsigned char code = 0;
        const char* const digits = iText.data() + i + 1;
        const bool isCoded = iText[i] == '%' && i + 2 < iText.size() &&
                             std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2;
        text += isCoded ? static_cast<char>(code) : iText[i];
        if (isCoded) i += 2;
    }
    return text;
}

void WarnUnlessBare(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement) {
    if (iElement.GetMetaObject() != VEKPrtGraphicPrimitiveElt::MetaObject())
        iReporter.Warn(iElement, "unknown class; omitted");
}

VEKPrtImageUnits UnitsOf(const Reporter& iReporter, const VEKPrtImageElt& iPage) {
    VEKPrtImageUnits units = VEKPrtImageMillimetre;
    iPage.GetUnits(units);
    if (units >= VEKPrtImagePixel && units <= VEKPrtImageMetre) return units;
    iReporter.Warn(iPage, "unknown units; using millimetres");
    return VEKPrtImageMillimetre;
}

} // namespace vekprt::drawing
