// Shapes and point sequences.
#include <algorithm>
#include <cmath>
#include <vector>

#include "Handlers.h"
#include "Nurbs.h"
#include "Style.h"
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

// False, with a warning, for a path that has a point which is not finite.
template <class Element>
bool OutlineText(SvgPage& ioPage, const Element& iElement, std::string& oText) {
    const Affine outer = ioPage.map;
    ioPage.map = outer * Compose(TransformOf(iElement));
    PathData path;
    Outline(ioPage, path, iElement);
    ioPage.map = outer;
    oText = path.Text();
    return ioPage.IsFinite(iElement, path);
}

template <class Element>
void WriteStroked(SvgPage& ioPage, const Element& iElement) {
    std::string text;
    if (!OutlineText(ioPage, iElement, text)) return;
    SvgElement(ioPage, iElement, "path")
        .Attribute("d", text)
        .Transform(TransformOf(iElement))
        .NoFill()
        .Stroke(StrokeOf(iElement));
}

template <class Element>
void WritePainted(SvgPage& ioPage, const Element& iElement) {
    std::string text;
    if (!OutlineText(ioPage, iElement, text)) return;
    const Appearance look = AppearanceOf(ioPage, iElement);
    SvgElement(ioPage, iElement, "path").Attribute("d", text).Transform(TransformOf(iElement)).Paint(look);
}

// In the square from -0.5 to 0.5; none for the round ones.
std::vector<std::vector<double>> MarkerLines(VEKPrintMarkerAttribute iStyle) {
    switch (iStyle) {
    case VEKPrintMarkerCross: return {{-.5, -.5, .5, .5}, {-.5, .5, .5, -.5}};
    case VEKPrintMarkerAsterisk: return {{0, -.5, 0, .5}, {-.433, -.25, .433, .25}, {-.433, .25, .433, -.25}};
    case VEKPrintMarkerSquare: return {{-.5, -.5, .5, -.5, .5, .5, -.5, .5, -.5, -.5}};
    case VEKPrintMarkerDiamond: return {{0, -.5, .5, 0, 0, .5, -.5, 0, 0, -.5}};
    case VEKPrintMarkerTriangle: return {{-.5, -.4, .5, -.4, 0, .5, -.5, -.4}};
    case VEKPrintMarkerCircle:
    case VEKPrintMarkerDisc: return {};
    default: return {{-.5, 0, .5, 0}, {0, -.5, 0, .5}};
    }
}

} // namespace

void Write(SvgPage& ioPage, VEKPrtLineElt& ioLine) {
    VEKMathPoint2D start, end;
    ioLine.GetParameters(start, end);
    if (!ioPage.AreFinite(ioLine, {start.GetX(), start.GetY(), end.GetX(), end.GetY()})) return;
    SvgElement(ioPage, ioLine, "line")
        .Attribute("x1", start.GetX())
        .Attribute("y1", start.GetY())
        .Attribute("x2", end.GetX())
        .Attribute("y2", end.GetY())
        .Transform(TransformOf(ioLine))
        .Stroke(StrokeOf(ioLine));
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtLineElt& iLine) {
    VEKMathPoint2D start, end;
    iLine.GetParameters(start, end);
    ioPath.MoveTo(start.GetX(), start.GetY());
    ioPath.LineTo(end.GetX(), end.GetY());
}

void Write(SvgPage& ioPage, VEKPrtRectangleElt& ioRectangle) {
    VEKMathPoint2D first, second;
    ioRectangle.GetPoints(first, second);
    if (!ioPage.AreFinite(ioRectangle, {first.GetX(), first.GetY(), second.GetX(), second.GetY()})) return;
    const Appearance look = AppearanceOf(ioPage, ioRectangle);
    SvgElement(ioPage, ioRectangle, "rect")
        .Attribute("x", std::min(first.GetX(), second.GetX()))
        .Attribute("y", std::min(first.GetY(), second.GetY()))
        .Attribute("width", std::fabs(second.GetX() - first.GetX()))
        .Attribute("height", std::fabs(second.GetY() - first.GetY()))
        .Transform(TransformOf(ioRectangle))
        .Paint(look);
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtRectangleElt& iRectangle) {
    VEKMathPoint2D first, second;
    iRectangle.GetPoints(first, second);
    ioPath.MoveTo(first.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), second.GetY());
    ioPath.LineTo(first.GetX(), second.GetY());
    ioPath.Close();
}

void Write(SvgPage& ioPage, VEKPrtCircleElt& ioCircle) {
    VEKMathPoint2D centre;
    double radius = 0;
    ioCircle.GetParameters(centre, radius);
    if (!ioPage.AreFinite(ioCircle, {centre.GetX(), centre.GetY(), radius})) return;
    const Appearance look = AppearanceOf(ioPage, ioCircle);
    SvgElement(ioPage, ioCircle, "circle")
        .Attribute("cx", centre.GetX())
        .Attribute("cy", centre.GetY())
        .Attribute("r", std::fabs(radius))
        .Transform(TransformOf(ioCircle))
        .Paint(look);
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtCircleElt& iCircle) {
    EllipseShape shape;
    iCircle.GetParameters(shape.centre, shape.radiusX);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtCircularArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.start, shape.end);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

void Write(SvgPage& ioPage, VEKPrtEllipseElt& ioEllipse) {
    EllipseShape shape;
    ioEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    if (!ioPage.AreFinite(
            ioEllipse, {shape.centre.GetX(), shape.centre.GetY(), shape.radiusX, shape.radiusY, shape.slope}))
        return;
    const Appearance look = AppearanceOf(ioPage, ioEllipse);
    const std::string slope = "rotate(" + Number(shape.slope) + " " + Number(shape.centre.GetX()) + " " +
                              Number(shape.centre.GetY()) + ")";
    SvgElement(ioPage, ioEllipse, "ellipse")
        .Attribute("cx", shape.centre.GetX())
        .Attribute("cy", shape.centre.GetY())
        .Attribute("rx", std::fabs(shape.radiusX))
        .Attribute("ry", std::fabs(shape.radiusY))
        .Transform(TransformOf(ioEllipse), shape.slope != 0.0F ? slope : std::string())
        .Paint(look);
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtEllipseElt& iEllipse) {
    EllipseShape shape;
    iEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtEllipticalArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.start, shape.end, shape.slope);
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtPolylineElt& iPolyline) {
    AppendPolyline(ioPath, PointsOf(iPolyline));
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtPolygonElt& iPolygon) {
    AppendPolyline(ioPath, PointsOf(iPolygon));
    ioPath.Close();
}

void Outline(SvgPage&, PathData& ioPath, const VEKPrtDisjointPolylineElt& iSegments) {
    const Points points = PointsOf(iSegments);
    for (int i = 0; i + 1 < points.count; i += 2) {
        ioPath.MoveTo(points[i][0], points[i][1]);
        ioPath.LineTo(points[i + 1][0], points[i + 1][1]);
    }
}

void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyCubicBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 3, &PathData::CubicTo);
}

void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyQuadraticBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 2, &PathData::QuadraticTo);
}

void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyPolygonElt& iPolygons) {
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

void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtNURBSElt& iCurve) {
    const double scale = (ioPage.map * ioPath.Map()).Scale();
    const double tolerance = scale > 0.0 ? ioPage.tolerance / scale : 0.0;
    std::string problem;
    const std::vector<VEKMathPoint2D> samples = SampleNurbs(iCurve, tolerance, problem);
    if (samples.empty()) return ioPage.Warn(iCurve, problem);
    ioPath.MoveTo(samples.front().GetX(), samples.front().GetY());
    for (std::size_t i = 1; i < samples.size(); ++i)
        ioPath.LineTo(samples[i].GetX(), samples[i].GetY());
}

void Write(SvgPage& ioPage, VEKPrtCircularArcElt& ioArc) { WritePainted(ioPage, ioArc); }
void Write(SvgPage& ioPage, VEKPrtEllipticalArcElt& ioArc) { WritePainted(ioPage, ioArc); }
void Write(SvgPage& ioPage, VEKPrtPolygonElt& ioPolygon) { WritePainted(ioPage, ioPolygon); }
void Write(SvgPage& ioPage, VEKPrtPolyPolygonElt& ioPolygons) { WritePainted(ioPage, ioPolygons); }
void Write(SvgPage& ioPage, VEKPrtPolylineElt& ioPolyline) { WriteStroked(ioPage, ioPolyline); }
void Write(SvgPage& ioPage, VEKPrtDisjointPolylineElt& ioSegments) { WriteStroked(ioPage, ioSegments); }
void Write(SvgPage& ioPage, VEKPrtPolyCubicBezierElt& ioCurve) { WriteStroked(ioPage, ioCurve); }
void Write(SvgPage& ioPage, VEKPrtPolyQuadraticBezierElt& ioCurve) { WriteStroked(ioPage, ioCurve); }
void Write(SvgPage& ioPage, VEKPrtNURBSElt& ioCurve) { WriteStroked(ioPage, ioCurve); }

void Write(SvgPage& ioPage, VEKPrtMarkerElt& ioMarker) {
    VEKMathPoint2D point;
    double size = 0;
    ioMarker.GetParameters(point, size);
    if (!ioPage.AreFinite(ioMarker, {point.GetX(), point.GetY(), size})) return;
    VEKPrtMarkerAttributes marker;
    ioMarker.GetMarkerAttributes(marker);
    VEKPrintMarkerAttribute style = VEKPrintMarkerPlus;
    marker.GetMarkerStyle(style);

    PathData path;
    path.SetMap({size, 0, 0, size, point.GetX(), point.GetY()});
    for (const std::vector<double>& line : MarkerLines(style))
        AppendPolyline(path, {line.data(), static_cast<int>(line.size() / 2)});
    const bool disc = style == VEKPrintMarkerDisc;
    if (disc || style == VEKPrintMarkerCircle) path.Arc(VEKMathPoint2D(), 0.5, 0.5, 0.0, 0.0, 360.0);

    // The symbols have no fill of their own: the disc is filled as it is stroked.
    VEKPrtStrokeAttributes stroke = StrokeOf(ioMarker);
    Appearance look = {VEKPrtDrawBoth, stroke, {}, "none"};
    if (disc) {
        unsigned colour = 0;
        unsigned char transparency = 255;
        stroke.GetStrokeColourIndex(colour);
        stroke.GetStrokeColourTransparency(transparency);
        look.fill.SetFillColourTransparency(transparency);
        look.paint = ioPage.Colour(ioMarker, colour);
    }
    SvgElement(ioPage, ioMarker, "path")
        .Attribute("d", path.Text())
        .Transform(TransformOf(ioMarker))
        .Paint(look);
}
