// The shapes that SVG has itself, markers, and paths along outlines.
#include <algorithm>
#include <cmath>

#include "ElementWriter.h"
#include "PathText.h"

namespace vekprt::svg {

using Measures = std::initializer_list<std::pair<const char*, double>>;

template <class Shape>
static void WriteShape(SvgPage& ioPage, const Shape& iShape, const char* iName, Measures iMeasures) {
    const Placement placement(ioPage, iShape, PlacementOf(iShape));
    if (!placement) return;
    Look look = LookOf(ioPage.reporter, iShape);
    const Paint paint =
        HasFill<Shape>::value ? PaintOf(ioPage, iShape, std::move(look)) : Paint{std::move(look), {}};
    for (const auto& [name, value] : iMeasures)
        if (!ioPage.reporter.AreInRange(iShape, {value})) return;
    SvgElement element(ioPage, iShape, iName, placement);
    for (const auto& [name, value] : iMeasures)
        element.Attribute(name, value);
    element.Attributes(paint).End();
}

void WritePath(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const Placement& iPlacement,
               const Path& iPath, Look iLook) {
    if (!ioPage.reporter.IsInRange(iElement, iPath)) return;
    const Paint paint = PaintOf(ioPage, iElement, std::move(iLook));
    SvgElement element(ioPage, iElement, "path", iPlacement);
    element.Attribute("d", PathText(iPath, ioPage.place.grid)).Attributes(paint).End();
}

void ElementWriter::operator()(VEKPrtLineElt& ioLine) const {
    VEKMathPoint2D p(0.0, 0.0), q(0.0, 0.0);
    ioLine.GetParameters(p, q);
    WriteShape(page, ioLine, "line",
               {{"x1", p.GetX()}, {"y1", p.GetY()}, {"x2", q.GetX()}, {"y2", q.GetY()}});
}

void ElementWriter::operator()(VEKPrtRectangleElt& ioRectangle) const {
    VEKMathPoint2D p(0.0, 0.0), q(0.0, 0.0);
    ioRectangle.GetPoints(p, q);
    WriteShape(page, ioRectangle, "rect",
               {{"x", std::min(p.GetX(), q.GetX())},
                {"y", std::min(p.GetY(), q.GetY())},
                {"width", std::fabs(q.GetX() - p.GetX())},
                {"height", std::fabs(q.GetY() - p.GetY())}});
}

void ElementWriter::operator()(VEKPrtCircleElt& ioCircle) const {
    const EllipseShape shape = EllipseOf(ioCircle);
    WriteShape(page, ioCircle, "circle",
               {{"cx", shape.centre.GetX()}, {"cy", shape.centre.GetY()}, {"r", std::fabs(shape.radiusX)}});
}

void ElementWriter::operator()(VEKPrtEllipseElt& ioEllipse) const {
    const EllipseShape shape = EllipseOf(ioEllipse);
    // Turned as a whole, the element would turn its fill pattern, too.
    if (shape.slope != 0.0) return operator()<VEKPrtEllipseElt>(ioEllipse);
    WriteShape(page, ioEllipse, "ellipse",
               {{"cx", shape.centre.GetX()},
                {"cy", shape.centre.GetY()},
                {"rx", std::fabs(shape.radiusX)},
                {"ry", std::fabs(shape.radiusY)}});
}

} // namespace vekprt::svg
