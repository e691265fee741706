// Shapes and point sequences.
#include <algorithm>
#include <cmath>
#include <vector>

#include "FrameworkValues.h"
#include "Handlers.h"
#include "Nurbs.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPolyCubicBezierElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolyQuadraticBezierElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"

namespace vekprt::svg {

namespace {

/// The points of a sequence, none for a count without an array.
struct Points {
    const double* xy = nullptr;
    int count = 0;
    const double* operator[](int iIndex) const { return xy + 2 * static_cast<std::ptrdiff_t>(iIndex); }
};

template <class Element>
Points PointsOf(const Element& iElement) {
    double* xy = nullptr;
    int count = 0;
    iElement.GetPoints(xy, count);
    return xy && count > 0 ? Points{xy, count} : Points();
}

void AppendPolyline(PathData& ioPath, const Points& iPoints) {
    if (iPoints.count > 0) ioPath.MoveTo(iPoints[0][0], iPoints[0][1]);
    for (int i = 1; i < iPoints.count; ++i)
        ioPath.LineTo(iPoints[i][0], iPoints[i][1]);
}

// A start, then iStep points a piece.
template <class Element>
void AppendCurve(const SvgPage& iPage, PathData& ioPath, const Element& iCurve, int iStep,
                 void (PathData::*iAppend)(const double*)) {
    const Points points = PointsOf(iCurve);
    if (points.count > 0) ioPath.MoveTo(points[0][0], points[0][1]);
    int used = 1;
    for (; used + iStep <= points.count; used += iStep)
        (ioPath.*iAppend)(points[used]);
    if (points.count > 0 && used != points.count) iPage.Warn(iCurve, "points left over after the last curve");
}

struct EllipseShape {
    VEKMathPoint2D centre;
    double radiusX = 0, radiusY = 0;
    float slope = 0, start = 0, end = 0;
};

void AppendArc(PathData& ioPath, const EllipseShape& iArc, double iEnd) {
    ioPath.Arc(iArc.centre, iArc.radiusX, iArc.radiusY, iArc.slope, iArc.start, iEnd);
}

void AppendLine(PathData& ioPath, std::initializer_list<double> iXy) {
    AppendPolyline(ioPath, {iXy.begin(), static_cast<int>(iXy.size() / 2)});
}

// In the square from -0.5 to 0.5.
void AppendMarker(PathData& ioPath, int iStyle) {
    switch (iStyle) {
    case markerCross: AppendLine(ioPath, {-.5, -.5, .5, .5}); return AppendLine(ioPath, {-.5, .5, .5, -.5});
    case markerAsterisk:
        AppendLine(ioPath, {0, -.5, 0, .5});
        AppendLine(ioPath, {-.433, -.25, .433, .25});
        return AppendLine(ioPath, {-.433, .25, .433, -.25});
    case markerSquare: return AppendLine(ioPath, {-.5, -.5, .5, -.5, .5, .5, -.5, .5, -.5, -.5});
    case markerDiamond: return AppendLine(ioPath, {0, -.5, .5, 0, 0, .5, -.5, 0, 0, -.5});
    case markerTriangle: return AppendLine(ioPath, {-.5, -.4, .5, -.4, 0, .5, -.5, -.4});
    case markerCircle:
    case markerDisc: return ioPath.Arc(VEKMathPoint2D(), 0.5, 0.5, 0.0, 0.0, 360.0);
    default: AppendLine(ioPath, {-.5, 0, .5, 0}); AppendLine(ioPath, {0, -.5, 0, .5});
    }
}

template <class Element>
void OutlineAs(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement, const Affine& iMap) {
    auto& element = static_cast<Element&>(ioElement);
    PathData primitive;
    primitive.SetMap(iMap * Compose(TransformOf(element)));
    Outline(ioPage, primitive, element);
    ioPath.Join(std::move(primitive));
}
template <class... Elements>
void AddOutlines(SvgPage& ioPage) {
    AddHandlers<Elements...>(ioPage);
    ((ioPage.handlers[Elements::MetaObject()].outline = &OutlineAs<Elements>), ...);
}

} // namespace

// Any shape that has no function of its own: a path along its outline.
template <class Element>
static void Write(SvgPage& ioPage, Element& ioElement) {
    const Placement placement(ioPage, TransformOf(ioElement));
    PathData path;
    Outline(ioPage, path, ioElement);
    WritePath(ioPage, ioElement, placement, path, AppearanceOf(ioPage, ioElement));
}

static void Write(SvgPage& ioPage, VEKPrtLineElt& ioLine) {
    VEKMathPoint2D p, q;
    ioLine.GetParameters(p, q);
    const Placement placement(ioPage, TransformOf(ioLine));
    WriteShape(ioPage, ioLine, "line", placement,
               {{"x1", p.GetX()}, {"y1", p.GetY()}, {"x2", q.GetX()}, {"y2", q.GetY()}},
               {VEKPrtDrawOutline, StrokeOf(ioLine), {}, {}});
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtLineElt& iLine) {
    VEKMathPoint2D start, end;
    iLine.GetParameters(start, end);
    ioPath.MoveTo(start.GetX(), start.GetY());
    ioPath.LineTo(end.GetX(), end.GetY());
}

static void Write(SvgPage& ioPage, VEKPrtRectangleElt& ioRectangle) {
    VEKMathPoint2D p, q;
    ioRectangle.GetPoints(p, q);
    const Placement placement(ioPage, TransformOf(ioRectangle));
    WriteShape(ioPage, ioRectangle, "rect", placement,
               {{"x", std::min(p.GetX(), q.GetX())},
                {"y", std::min(p.GetY(), q.GetY())},
                {"width", std::fabs(q.GetX() - p.GetX())},
                {"height", std::fabs(q.GetY() - p.GetY())}},
               AppearanceOf(ioPage, ioRectangle));
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtRectangleElt& iRectangle) {
    VEKMathPoint2D first, second;
    iRectangle.GetPoints(first, second);
    ioPath.MoveTo(first.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), second.GetY());
    ioPath.LineTo(first.GetX(), second.GetY());
    ioPath.Close();
}

static void Write(SvgPage& ioPage, VEKPrtCircleElt& ioCircle) {
    VEKMathPoint2D centre;
    double radius = 0;
    ioCircle.GetParameters(centre, radius);
    const Placement placement(ioPage, TransformOf(ioCircle));
    WriteShape(ioPage, ioCircle, "circle", placement,
               {{"cx", centre.GetX()}, {"cy", centre.GetY()}, {"r", std::fabs(radius)}},
               AppearanceOf(ioPage, ioCircle));
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtCircleElt& iCircle) {
    EllipseShape shape;
    iCircle.GetParameters(shape.centre, shape.radiusX);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtCircularArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.start, shape.end);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

static void Write(SvgPage& ioPage, VEKPrtEllipseElt& ioEllipse) {
    EllipseShape shape;
    ioEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    // Turned as a whole, the element would turn its fill pattern, too.
    if (shape.slope != 0.0F) return Write<VEKPrtEllipseElt>(ioPage, ioEllipse);
    const Placement placement(ioPage, TransformOf(ioEllipse));
    WriteShape(ioPage, ioEllipse, "ellipse", placement,
               {{"cx", shape.centre.GetX()},
                {"cy", shape.centre.GetY()},
                {"rx", std::fabs(shape.radiusX)},
                {"ry", std::fabs(shape.radiusY)}},
               AppearanceOf(ioPage, ioEllipse));
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtEllipseElt& iEllipse) {
    EllipseShape shape;
    iEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtEllipticalArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.start, shape.end, shape.slope);
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtPolylineElt& iPolyline) {
    AppendPolyline(ioPath, PointsOf(iPolyline));
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtPolygonElt& iPolygon) {
    AppendPolyline(ioPath, PointsOf(iPolygon));
    ioPath.Close();
}

static void Outline(SvgPage&, PathData& ioPath, const VEKPrtDisjointPolylineElt& iSegments) {
    const Points points = PointsOf(iSegments);
    for (int i = 0; i + 1 < points.count; i += 2) {
        ioPath.MoveTo(points[i][0], points[i][1]);
        ioPath.LineTo(points[i + 1][0], points[i + 1][1]);
    }
}

static void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyCubicBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 3, &PathData::CubicTo);
}

static void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyQuadraticBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 2, &PathData::QuadraticTo);
}

static void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyPolygonElt& iPolygons) {
    double* xy = nullptr;
    int* counts = nullptr;
    int polygonCount = 0;
    iPolygons.GetPoints(xy, counts, polygonCount);
    if (!xy || !counts) return;
    if (std::any_of(counts, counts + std::max(polygonCount, 0), [](int iCount) { return iCount < 0; }))
        return ioPage.Warn(iPolygons, "a polygon with a negative number of points");
    Points points{xy, 0};
    for (int k = 0; k < polygonCount; ++k, points.xy += 2 * static_cast<std::ptrdiff_t>(points.count)) {
        points.count = counts[k];
        AppendPolyline(ioPath, points);
        ioPath.Close();
    }
}

static void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtNURBSElt& iCurve) {
    // The path's own map, from the element to the figure that it is a part of, is not in the grid.
    const double stretch = ioPath.Map().Stretch();
    const double tolerance = stretch > 0.0 ? 10.0 * ioPage.place.grid.Step() / stretch : 0.0;
    std::string problem;
    const std::vector<VEKMathPoint2D> samples = SampleNurbs(iCurve, tolerance, problem);
    if (samples.empty()) return ioPage.Warn(iCurve, problem);
    ioPath.MoveTo(samples.front().GetX(), samples.front().GetY());
    for (std::size_t i = 1; i < samples.size(); ++i)
        ioPath.LineTo(samples[i].GetX(), samples[i].GetY());
}

static void Write(SvgPage& ioPage, VEKPrtMarkerElt& ioMarker) {
    VEKMathPoint2D point;
    double size = 0;
    ioMarker.GetParameters(point, size);
    if (!ioPage.AreFinite(ioMarker, {point.GetX(), point.GetY(), size})) return;
    VEKPrtMarkerAttributes marker;
    ioMarker.GetMarkerAttributes(marker);
    VEKPrintMarkerAttribute style{};
    marker.GetMarkerStyle(style);
    const Placement placement(ioPage, TransformOf(ioMarker));
    PathData path;
    path.SetMap({size, 0, 0, size, point.GetX(), point.GetY()});
    AppendMarker(path, style);

    // The markers have no fill of their own: the disc is filled as it is stroked.
    Appearance look = {VEKPrtDrawBoth, StrokeOf(ioMarker), {}, "none"};
    if (style == markerDisc) {
        unsigned colour = 0;
        unsigned char transparency = 255;
        look.stroke.GetStrokeColourIndex(colour);
        look.stroke.GetStrokeColourTransparency(transparency);
        look.fill.SetFillColourTransparency(transparency);
        look.paint = ioPage.Colour(ioMarker, colour);
    }
    WritePath(ioPage, ioMarker, placement, path, look);
}

void AddShapes(SvgPage& ioPage) {
    AddHandlers<VEKPrtMarkerElt>(ioPage);
    AddOutlines<VEKPrtCircleElt, VEKPrtCircularArcElt, VEKPrtDisjointPolylineElt, VEKPrtEllipseElt,
                VEKPrtEllipticalArcElt, VEKPrtLineElt, VEKPrtNURBSElt, VEKPrtPolyCubicBezierElt,
                VEKPrtPolyPolygonElt, VEKPrtPolyQuadraticBezierElt, VEKPrtPolygonElt, VEKPrtPolylineElt,
                VEKPrtRectangleElt>(ioPage);
}

} // namespace vekprt::svg
