// A visitor that writes elements by their class.
#ifndef ElementWriter_H
#define ElementWriter_H

#include "Element.h"
#include "Outline.h"

namespace vekprt::svg {

struct ElementWriter {
    SvgPage& page;

    /// Any shape that has no overload of its own: a path along its outline.
    template <class Shape>
    std::enable_if_t<HasStroke<Shape>::value> operator()(Shape& ioShape) const;
    void operator()(VEKPrtLineElt& ioLine) const;
    void operator()(VEKPrtRectangleElt& ioRectangle) const;
    void operator()(VEKPrtCircleElt& ioCircle) const;
    void operator()(VEKPrtEllipseElt& ioEllipse) const;
    void operator()(VEKPrtTextElt& ioText) const;
    void operator()(VEKPrtBitmapImageElt& ioBitmap) const;
    void operator()(VEKPrtGroupElt& ioGroup) const;
    void operator()(VEKPrtImageElt& ioNested) const;
    void operator()(VEKPrtSymbolElt& ioSymbol) const;
    void operator()(VEKPrtPatternElt& ioPattern) const;
    void operator()(VEKPrtClosedFigureRegionElt& ioRegion) const;
    template <class Bare>
    std::enable_if_t<std::is_same_v<Bare, VEKPrtGraphicPrimitiveElt>> operator()(Bare& ioBare) const;
};

/// Leaves out, with a warning, what is out of range.
void WritePath(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const Placement& iPlacement,
               const Path& iPath, Look iLook);

template <class Shape>
std::enable_if_t<HasStroke<Shape>::value> ElementWriter::operator()(Shape& ioShape) const {
    const Placement placement(page, ioShape, PlacementOf(ioShape));
    if (!placement) return;
    Path path;
    const double tolerance = 10.0 * page.step;
    Outliner<Path>{page.reporter, path, page.place.map, tolerance, page.nesting, page.outlineAllowance}(
        ioShape);
    WritePath(page, ioShape, placement, path, LookOf(page.reporter, ioShape));
}
template <class Bare>
std::enable_if_t<std::is_same_v<Bare, VEKPrtGraphicPrimitiveElt>>
ElementWriter::operator()(Bare& ioBare) const {
    WarnUnlessBare(page.reporter, ioBare);
    SvgElement(page, ioBare, "g", Placement(page, ioBare)).End();
}

} // namespace vekprt::svg

#endif
