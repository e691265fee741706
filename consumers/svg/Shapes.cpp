// The shapes that SVG has itself, and paths along outlines.
#include <algorithm>
#include <cmath>

#include "ElementWriter.h"

namespace vekprt::svg {

// The `d` attribute: differences of rounded coordinates, which add up to rounded coordinates.  Readers add in
// single precision: periodic absolute segments stop the error from accumulating.
static std::string PathText(const Path& iPath, const Grid& iGrid) {
    constexpr int maxRelativeSegments = 64;
    double extent = 0;
    for (const VEKMathPoint2D& point : iPath.Points())
        extent = std::max({extent, std::fabs(point.GetX()), std::fabs(point.GetY())});
    const bool isOnGrid = iGrid.Holds(2.0 * extent);

    std::string text;
    text.reserve(iPath.Points().size() * 16);
    std::int64_t from[2] = {0, 0}, to[2] = {0, 0};
    char last = 0;
    int differences = 0;
    const VEKMathPoint2D* point = iPath.Points().data();
    for (const char command : iPath.Commands()) {
        const bool isRelative = isOnGrid && command != 'M' && differences < maxRelativeSegments;
        differences = isRelative ? differences + 1 : 0;
        const char letter = isRelative && command != 'Z' ? static_cast<char>(command - 'A' + 'a') : command;
        text += letter != last || command == 'M' ? letter : ' ';
        last = letter;
        for (int i = 0; i < Path::PointCount(command); ++i, ++point) {
            char pair[2 * Grid::maxText + 2];
            char* end = pair;
            if (i > 0) *end++ = ' ';
            for (const int axis : {0, 1}) {
                const double value = axis == 0 ? point->GetX() : point->GetY();
                if (axis > 0) *end++ = ',';
                if (isOnGrid) {
                    to[axis] = iGrid.Units(value);
                    end = iGrid.WriteUnits(end, isRelative ? to[axis] - from[axis] : to[axis]);
                } else {
                    end = iGrid.Write(end, value);
                }
            }
            text.append(pair, end);
        }
        std::copy(to, to + 2, from);
    }
    return text;
}

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
