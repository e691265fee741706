// The shapes that SVG has itself, markers, and paths along outlines.
#include <algorithm>
#include <cmath>

#include "ElementWriter.h"
#include "PathText.h"

namespace vekprt::svg {

using Measures = std::initializer_list<std::pair<const char*, double>>;

static void WriteShape(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
                       const Placement& iPlacement, Measures iMeasures, const Paint& iPaint) {
    for (const auto& [name, value] : iMeasures)
        if (!ioPage.reporter.AreInRange(iElement, {value})) return;
    SvgElement element(ioPage, iElement, iName, iPlacement);
    for (const auto& [name, value] : iMeasures)
        element.Attribute(name, value);
    element.Attributes(iPaint).End();
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
    const Placement placement(page, ioLine, PlacementOf(ioLine));
    if (!placement) return;
    WriteShape(page, ioLine, "line", placement,
               {{"x1", p.GetX()}, {"y1", p.GetY()}, {"x2", q.GetX()}, {"y2", q.GetY()}},
               {LookOf(page.reporter, ioLine), {}});
}

void ElementWriter::operator()(VEKPrtRectangleElt& ioRectangle) const {
    VEKMathPoint2D p(0.0, 0.0), q(0.0, 0.0);
    ioRectangle.GetPoints(p, q);
    const Placement placement(page, ioRectangle, PlacementOf(ioRectangle));
    if (!placement) return;
    WriteShape(page, ioRectangle, "rect", placement,
               {{"x", std::min(p.GetX(), q.GetX())},
                {"y", std::min(p.GetY(), q.GetY())},
                {"width", std::fabs(q.GetX() - p.GetX())},
                {"height", std::fabs(q.GetY() - p.GetY())}},
               PaintOf(page, ioRectangle, LookOf(page.reporter, ioRectangle)));
}

void ElementWriter::operator()(VEKPrtCircleElt& ioCircle) const {
    const EllipseShape shape = EllipseOf(ioCircle);
    const Placement placement(page, ioCircle, PlacementOf(ioCircle));
    if (!placement) return;
    WriteShape(page, ioCircle, "circle", placement,
               {{"cx", shape.centre.GetX()}, {"cy", shape.centre.GetY()}, {"r", std::fabs(shape.radiusX)}},
               PaintOf(page, ioCircle, LookOf(page.reporter, ioCircle)));
}

void ElementWriter::operator()(VEKPrtEllipseElt& ioEllipse) const {
    const EllipseShape shape = EllipseOf(ioEllipse);
    // Turned as a whole, the element would turn its fill pattern, too.
    if (shape.slope != 0.0) return operator()<VEKPrtEllipseElt>(ioEllipse);
    const Placement placement(page, ioEllipse, PlacementOf(ioEllipse));
    if (!placement) return;
    WriteShape(page, ioEllipse, "ellipse", placement,
               {{"cx", shape.centre.GetX()},
                {"cy", shape.centre.GetY()},
                {"rx", std::fabs(shape.radiusX)},
                {"ry", std::fabs(shape.radiusY)}},
               PaintOf(page, ioEllipse, LookOf(page.reporter, ioEllipse)));
}

} // namespace vekprt::svg
