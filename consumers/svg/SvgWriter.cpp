#include "SvgWriter.h"

#include <algorithm>
#include <array>

#include "Handlers.h"
#include "Style.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKMetaClass.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtModel.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtPolyCubicBezierElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolyQuadraticBezierElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtSymbolElt.h"
#include "VEKPrtTextElt.h"

namespace {

// What to do with an element of one class; outline is null for a class that cannot be part of one.
struct Handler {
    VEKMetaClass* (*metaObject)();
    void (*write)(SvgPage&, VEKPrtGraphicPrimitiveElt&);
    void (*outline)(SvgPage&, PathData&, VEKPrtGraphicPrimitiveElt&, const Affine&);
};

template <class Element>
void WriteAs(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement) {
    Write(ioPage, static_cast<Element&>(ioElement));
}

template <class Element>
void OutlineAs(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement, const Affine& iMap) {
    auto& element = static_cast<Element&>(ioElement);
    PathData primitive;
    primitive.SetMap(iMap * Compose(TransformOf(element)));
    Outline(ioPage, primitive, element);
    ioPath.Join(primitive);
}

template <class Container>
void OutlineChildren(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                     const Affine& iMap) {
    auto& container = static_cast<Container&>(ioElement);
    const Affine map = iMap * Compose(TransformOf(container));
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(container))
        AppendToRegion(ioPage, ioPath, child, map);
}

template <class Element>
constexpr Handler Shape() {
    return {&Element::MetaObject, &WriteAs<Element>, &OutlineAs<Element>};
}
template <class Element>
constexpr Handler Container() {
    return {&Element::MetaObject, &WriteAs<Element>, &OutlineChildren<Element>};
}
template <class Element>
constexpr Handler Other() {
    return {&Element::MetaObject, &WriteAs<Element>, nullptr};
}

constexpr Handler g_handlers[] = {
    {&VEKPrtGraphicPrimitiveElt::MetaObject, &WriteBare, nullptr},
    Shape<VEKPrtCircleElt>(),
    Shape<VEKPrtCircularArcElt>(),
    Shape<VEKPrtDisjointPolylineElt>(),
    Shape<VEKPrtEllipseElt>(),
    Shape<VEKPrtEllipticalArcElt>(),
    Shape<VEKPrtLineElt>(),
    Shape<VEKPrtNURBSElt>(),
    Shape<VEKPrtPolyCubicBezierElt>(),
    Shape<VEKPrtPolyPolygonElt>(),
    Shape<VEKPrtPolyQuadraticBezierElt>(),
    Shape<VEKPrtPolygonElt>(),
    Shape<VEKPrtPolylineElt>(),
    Shape<VEKPrtRectangleElt>(),
    Container<VEKPrtClosedFigureRegionElt>(),
    Container<VEKPrtGroupElt>(),
    Other<VEKPrtBitmapImageElt>(),
    Other<VEKPrtClosedFigureElt>(),
    Other<VEKPrtImageElt>(),
    Other<VEKPrtMarkerElt>(),
    Other<VEKPrtPatternElt>(),
    Other<VEKPrtSymbolElt>(),
    Other<VEKPrtTextElt>(),
};

const Handler* FindHandler(const VEKMetaClass* iClass) {
    const auto* const handler = std::find_if(std::begin(g_handlers), std::end(g_handlers),
                                             [&](const Handler& h) { return h.metaObject() == iClass; });
    return handler != std::end(g_handlers) ? handler : nullptr;
}

// Calls iWrite for an element unless that would go in a circle: a container can hold one that holds it in
// turn.
template <class Write>
void Descend(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, Write iWrite) {
    constexpr std::size_t deepest = 1000;
    std::vector<const VEKPrtGraphicPrimitiveElt*>& ancestors = ioPage.ancestors;
    if (std::find(ancestors.begin(), ancestors.end(), &iElement) != ancestors.end())
        return ioPage.Warn(iElement, "held by itself");
    if (ancestors.size() >= deepest) return ioPage.Warn(iElement, "nested too deeply");
    ancestors.push_back(&iElement);
    iWrite();
    ancestors.pop_back();
}

const char* UnitOf(VEKPrtImageUnits iUnits) {
    switch (iUnits) {
    case VEKPrtImagePixel: return "px";
    case VEKPrtImagePoint: return "pt";
    case VEKPrtImagePica: return "pc";
    case VEKPrtImageInch: return "in";
    case VEKPrtImageCentimetre: return "cm";
    default: return "mm";
    }
}

void WritePage(VEKPrtImageElt& ioImage, std::ostream& ioStream, std::ostream& ioWarnings) {
    VEKMathPoint2D origin;
    double width = 0, height = 0;
    VEKPrtImageUnits units = VEKPrtImageMillimetre;
    VEKMath2x2Matrix matrix;
    VEKPrtColourTable* colours = nullptr;
    ioImage.GetOrigin(origin);
    ioImage.GetSize(width, height);
    ioImage.GetUnits(units);
    ioImage.GetMatrix(matrix);
    ioImage.GetColourTable(colours);

    XmlWriter xml(ioStream);
    const Area area{origin.GetX(), origin.GetY(), width, height, {}};
    SvgPage page{xml, ioWarnings, colours, std::max(width, height) * 1e-5, area, {}, {}, {}};
    const Affine map{
        matrix.GetCoef(1, 1), matrix.GetCoef(2, 1), matrix.GetCoef(1, 2), matrix.GetCoef(2, 2), 0, 0};

    ioStream << R"(<?xml version="1.0" encoding="UTF-8"?>)";
    SvgElement svg(page, ioImage, "svg");
    svg.Attribute("xmlns", "http://www.w3.org/2000/svg")
        .Attribute("xmlns:xlink", "http://www.w3.org/1999/xlink");
    if (width > 0.0 && height > 0.0) {
        // A metre is no unit of SVG.
        const double unit = units == VEKPrtImageMetre ? 1000.0 : 1.0;
        svg.Attribute("width", Number(width * unit) + UnitOf(units))
            .Attribute("height", Number(height * unit) + UnitOf(units))
            .Attribute("viewBox", Number(area.x) + " " + Number(-(area.y + height)) + " " + Number(width) +
                                      " " + Number(height));
    } else {
        page.Warn(ioImage, "a page without size");
    }
    svg.Content();
    xml.Start("g");
    xml.Attribute("transform",
                  "scale(1,-1)" + (matrix != VEKMath2x2Matrix() ? " " + Matrix(map) : std::string()));
    page.map = map;
    WriteChildren(page, ChildrenOf(ioImage));
    xml.End();
}

} // namespace

void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement) {
    const Handler* const handler = FindHandler(ioElement.GetMetaObject());
    if (!handler) return ioPage.Warn(ioElement, "no handler for this class");
    Descend(ioPage, ioElement, [&] { handler->write(ioPage, ioElement); });
}

void AppendToRegion(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                    const Affine& iMap) {
    const Handler* const handler = FindHandler(ioElement.GetMetaObject());
    if (!handler || !handler->outline) return ioPage.Warn(ioElement, "no part of an outline");
    Descend(ioPage, ioElement, [&] { handler->outline(ioPage, ioPath, ioElement, iMap); });
}

bool WriteSvg(const VEKPrtModel& iModel, int iPage, std::ostream& ioStream, std::ostream& ioWarnings) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    auto* const image = images ? static_cast<VEKPrtImageElt*>((*images)[iPage]) : nullptr;
    if (!image) return false;
    WritePage(*image, ioStream, ioWarnings);
    return true;
}

bool CanWriteSvg(const VEKMetaClass* iClass) { return iClass && FindHandler(iClass); }
