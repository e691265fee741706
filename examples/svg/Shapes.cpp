// Shapes and point sequences.
#include <algorithm>
#include <cmath>

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

/// The points of a sequence, none for a count without an array, or with a value that is not finite.
struct Points {
    const double* xy = nullptr;
    int count = 0;
    const double* operator[](int iIndex) const { return xy + 2 * static_cast<std::ptrdiff_t>(iIndex); }
};

template <class Element>
Points PointsOf(const SvgPage& iPage, const Element& iElement) {
    double* xy = nullptr;
    int count = 0;
    iElement.GetPoints(xy, count);
    if (!xy || count <= 0) return {};
    const auto finite = [](double iValue) { return std::isfinite(iValue); };
    if (std::all_of(xy, xy + 2 * static_cast<std::ptrdiff_t>(count), finite)) return {xy, count};
    iPage.Warn(iElement, "points that are not finite");
    return {};
}

void AppendPolyline(Path& ioPath, const Points& iPoints) {
    if (iPoints.count > 0) ioPath.Join(iPoints[0][0], iPoints[0][1]);
    for (int i = 1; i < iPoints.count; ++i)
        ioPath.LineTo(iPoints[i][0], iPoints[i][1]);
}

// A start, then iStep points a piece.
template <class Element>
void AppendCurve(const SvgPage& iPage, Path& ioPath, const Element& iCurve, int iStep,
                 void (Path::*iAppend)(const double*)) {
    const Points points = PointsOf(iPage, iCurve);
    if (points.count > 0) ioPath.Join(points[0][0], points[0][1]);
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

void AppendArc(Path& ioPath, const EllipseShape& iArc, double iEnd) {
    const VEKMathPoint2D start = OnEllipse(iArc.centre, iArc.radiusX, iArc.radiusY, iArc.slope, iArc.start);
    ioPath.Join(start.GetX(), start.GetY());
    ioPath.Arc(iArc.centre, iArc.radiusX, iArc.radiusY, iArc.slope, iArc.start, iEnd);
}

template <class Element>
std::string OutlineData(SvgPage& ioPage, const Element& iElement) {
    Path path;
    Outline(ioPage, path, iElement);
    return path.Data();
}

template <class Element>
void WriteStroked(SvgPage& ioPage, const Element& iElement) {
    const std::string data = OutlineData(ioPage, iElement);
    SvgElement(ioPage, iElement, "path")
        .Attribute("d", data)
        .Transform(TransformOf(iElement))
        .NoFill()
        .Stroke(StrokeOf(iElement));
}

template <class Element>
void WritePainted(SvgPage& ioPage, const Element& iElement) {
    const VEKPrtDrawStyle style = DrawStyleOf(iElement);
    const VEKPrtFillAttributes fill = FillOf(iElement);
    const std::string data = OutlineData(ioPage, iElement);
    const std::string paint = PreparePaint(ioPage, iElement, style, fill);
    SvgElement(ioPage, iElement, "path")
        .Attribute("d", data)
        .Transform(TransformOf(iElement))
        .Paint(style, StrokeOf(iElement), fill, paint);
}

const char* MarkerData(VEKPrintMarkerAttribute iStyle) {
    switch (iStyle) {
    case VEKPrintMarkerCross: return "M-.5,-.5 L.5,.5 M-.5,.5 L.5,-.5";
    case VEKPrintMarkerAsterisk: return "M0,-.5 V.5 M-.433,-.25 L.433,.25 M-.433,.25 L.433,-.25";
    case VEKPrintMarkerCircle:
    case VEKPrintMarkerDisc: return "M-.5,0 A.5,.5 0 1 1 .5,0 A.5,.5 0 1 1 -.5,0 Z";
    case VEKPrintMarkerSquare: return "M-.5,-.5 H.5 V.5 H-.5 Z";
    case VEKPrintMarkerDiamond: return "M0,-.5 L.5,0 L0,.5 L-.5,0 Z";
    case VEKPrintMarkerTriangle: return "M-.5,-.4 L.5,-.4 L0,.5 Z";
    default: return "M-.5,0 H.5 M0,-.5 V.5";
    }
}

} // namespace

void Write(SvgPage& ioPage, VEKPrtLineElt& ioLine) {
    VEKMathPoint2D start, end;
    ioLine.GetParameters(start, end);
    SvgElement(ioPage, ioLine, "line")
        .Attribute("x1", start.GetX())
        .Attribute("y1", start.GetY())
        .Attribute("x2", end.GetX())
        .Attribute("y2", end.GetY())
        .Transform(TransformOf(ioLine))
        .Stroke(StrokeOf(ioLine));
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtLineElt& iLine) {
    VEKMathPoint2D start, end;
    iLine.GetParameters(start, end);
    ioPath.Join(start.GetX(), start.GetY());
    ioPath.LineTo(end.GetX(), end.GetY());
}

void Write(SvgPage& ioPage, VEKPrtRectangleElt& ioRectangle) {
    VEKMathPoint2D first, second;
    ioRectangle.GetPoints(first, second);
    const VEKPrtDrawStyle style = DrawStyleOf(ioRectangle);
    const VEKPrtFillAttributes fill = FillOf(ioRectangle);
    const std::string paint = PreparePaint(ioPage, ioRectangle, style, fill);
    SvgElement(ioPage, ioRectangle, "rect")
        .Attribute("x", std::min(first.GetX(), second.GetX()))
        .Attribute("y", std::min(first.GetY(), second.GetY()))
        .Attribute("width", std::fabs(second.GetX() - first.GetX()))
        .Attribute("height", std::fabs(second.GetY() - first.GetY()))
        .Transform(TransformOf(ioRectangle))
        .Paint(style, StrokeOf(ioRectangle), fill, paint);
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtRectangleElt& iRectangle) {
    VEKMathPoint2D first, second;
    iRectangle.GetPoints(first, second);
    ioPath.Join(first.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), first.GetY());
    ioPath.LineTo(second.GetX(), second.GetY());
    ioPath.LineTo(first.GetX(), second.GetY());
    ioPath.Close();
}

void Write(SvgPage& ioPage, VEKPrtCircleElt& ioCircle) {
    VEKMathPoint2D centre;
    double radius = 0;
    ioCircle.GetParameters(centre, radius);
    const VEKPrtDrawStyle style = DrawStyleOf(ioCircle);
    const VEKPrtFillAttributes fill = FillOf(ioCircle);
    const std::string paint = PreparePaint(ioPage, ioCircle, style, fill);
    SvgElement(ioPage, ioCircle, "circle")
        .Attribute("cx", centre.GetX())
        .Attribute("cy", centre.GetY())
        .Attribute("r", std::fabs(radius))
        .Transform(TransformOf(ioCircle))
        .Paint(style, StrokeOf(ioCircle), fill, paint);
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtCircleElt& iCircle) {
    EllipseShape shape;
    iCircle.GetParameters(shape.centre, shape.radiusX);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtCircularArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.start, shape.end);
    shape.radiusY = shape.radiusX;
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

void Write(SvgPage& ioPage, VEKPrtEllipseElt& ioEllipse) {
    EllipseShape shape;
    ioEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    const VEKPrtDrawStyle style = DrawStyleOf(ioEllipse);
    const VEKPrtFillAttributes fill = FillOf(ioEllipse);
    const std::string paint = PreparePaint(ioPage, ioEllipse, style, fill);
    const std::string slope = "rotate(" + Number(shape.slope) + " " + Number(shape.centre.GetX()) + " " +
                              Number(shape.centre.GetY()) + ")";
    SvgElement(ioPage, ioEllipse, "ellipse")
        .Attribute("cx", shape.centre.GetX())
        .Attribute("cy", shape.centre.GetY())
        .Attribute("rx", std::fabs(shape.radiusX))
        .Attribute("ry", std::fabs(shape.radiusY))
        .Transform(TransformOf(ioEllipse), shape.slope != 0.0F ? slope : std::string())
        .Paint(style, StrokeOf(ioEllipse), fill, paint);
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtEllipseElt& iEllipse) {
    EllipseShape shape;
    iEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.slope);
    AppendArc(ioPath, shape, 360.0);
    ioPath.Close();
}

void Outline(SvgPage&, Path& ioPath, const VEKPrtEllipticalArcElt& iArc) {
    EllipseShape shape;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.radiusY, shape.start, shape.end, shape.slope);
    AppendArc(ioPath, shape, ArcEnd(shape.start, shape.end));
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtPolylineElt& iPolyline) {
    AppendPolyline(ioPath, PointsOf(ioPage, iPolyline));
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtPolygonElt& iPolygon) {
    AppendPolyline(ioPath, PointsOf(ioPage, iPolygon));
    ioPath.Close();
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtDisjointPolylineElt& iSegments) {
    const Points points = PointsOf(ioPage, iSegments);
    for (int i = 0; i + 1 < points.count; i += 2) {
        ioPath.MoveTo(points[i][0], points[i][1]);
        ioPath.LineTo(points[i + 1][0], points[i + 1][1]);
    }
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtPolyCubicBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 3, &Path::CubicTo);
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtPolyQuadraticBezierElt& iCurve) {
    AppendCurve(ioPage, ioPath, iCurve, 2, &Path::QuadraticTo);
}

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtPolyPolygonElt& iPolygons) {
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

void Outline(SvgPage& ioPage, Path& ioPath, const VEKPrtNURBSElt& iCurve) {
    std::string problem;
    const std::vector<VEKMathPoint2D> samples = SampleNurbs(iCurve, ioPage.tolerance, problem);
    if (samples.empty()) return ioPage.Warn(iCurve, problem);
    ioPath.Join(samples.front().GetX(), samples.front().GetY());
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

// The symbol is drawn in the unit square, so its stroke is thinned by as much as it is enlarged.
void Write(SvgPage& ioPage, VEKPrtMarkerElt& ioMarker) {
    VEKMathPoint2D point;
    double size = 0;
    ioMarker.GetParameters(point, size);
    VEKPrtMarkerAttributes marker;
    ioMarker.GetMarkerAttributes(marker);
    VEKPrintMarkerAttribute style = VEKPrintMarkerPlus;
    marker.GetMarkerStyle(style);
    VEKPrtStrokeAttributes stroke = StrokeOf(ioMarker);
    double width = 0;
    stroke.GetStrokeWidth(width);
    stroke.SetStrokeWidth(size != 0.0 ? width / std::fabs(size) : width);
    unsigned colour = 0;
    stroke.GetStrokeColourIndex(colour);

    SvgElement element(ioPage, ioMarker, "path");
    element.Attribute("d", MarkerData(style))
        .Transform(TransformOf(ioMarker),
                   "translate(" + Point(point.GetX(), point.GetY()) + ") scale(" + Number(size) + ")");
    if (style == VEKPrintMarkerDisc) {
        element.Attribute("fill", ioPage.Colour(ioMarker, colour));
    } else {
        element.NoFill();
    }
    element.Stroke(stroke);
}
