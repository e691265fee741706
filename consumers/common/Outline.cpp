#include "Outline.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "Nurbs.h"
#include "Records.h"
#include "VEKPrtChildren.h"
#include "VEKPrtValues.h"

namespace vekprt::drawing {

namespace {

void AppendPolyline(Path& ioPath, const PointSpan& iPoints) {
    if (iPoints.count > 0) ioPath.MoveTo(iPoints[0][0], iPoints[0][1]);
    for (int i = 1; i < iPoints.count; ++i)
        ioPath.LineTo(iPoints[i][0], iPoints[i][1]);
}

void AppendLine(Path& ioPath, std::initializer_list<double> iXy) {
    AppendPolyline(ioPath, {iXy.begin(), static_cast<int>(iXy.size() / 2)});
}

void AppendArc(Path& ioPath, const EllipseShape& iArc) {
    ioPath.Arc(iArc.centre, iArc.radiusX, iArc.radiusY, iArc.slope, iArc.start, iArc.end);
}

template <class Element>
void AppendCurve(const Reporter& iReporter, Path& ioPath, const Element& iCurve, int iStep,
                 void (Path::*iAppend)(const double*)) {
    const PointSpan points = PointsOf(iCurve);
    const int used = WholePieces(iReporter, iCurve, points, iStep);
    if (used > 0) ioPath.MoveTo(points[0][0], points[0][1]);
    for (int i = 1; i < used; i += iStep)
        (ioPath.*iAppend)(points[i]);
}

// The primitives of a region, one after the other.
struct Chain {
    const Reporter& reporter;
    Path& path;
    double tolerance;
    int nesting;
    long& allowance;
    Affine map = {};
    /// The containers that the chain is within.
    std::vector<const VEKPrtGraphicPrimitiveElt*> open = {};

    void Append(const VEKPrtGraphicPrimitiveElt& iElement) {
        if (--allowance < 0) return reporter.Warn(iElement, "used at too many places; omitted");
        Visit(iElement, *this);
    }

    template <class Shape>
    std::enable_if_t<HasStroke<Shape>::value> operator()(const Shape& iShape) {
        Path primitive;
        primitive.SetMap(map * Compose(PlacementOf(iShape)));
        Outliner{reporter, primitive, tolerance}(iShape);
        path.Join(std::move(primitive));
    }
    void operator()(const VEKPrtGroupElt& iGroup) { AppendChildren(iGroup); }
    void operator()(const VEKPrtClosedFigureRegionElt& iRegion) { AppendChildren(iRegion); }

    void operator()(const VEKPrtTextElt& iText) { Refuse(iText); }
    void operator()(const VEKPrtMarkerElt& iMarker) { Refuse(iMarker); }
    void operator()(const VEKPrtBitmapImageElt& iBitmap) { Refuse(iBitmap); }
    void operator()(const VEKPrtSymbolElt& iSymbol) { Refuse(iSymbol); }
    void operator()(const VEKPrtPatternElt& iPattern) { Refuse(iPattern); }
    void operator()(const VEKPrtImageElt& iImage) { Refuse(iImage); }
    void operator()(const VEKPrtClosedFigureElt& iFigure) { Refuse(iFigure); }
    template <class Bare>
    std::enable_if_t<std::is_same_v<Bare, const VEKPrtGraphicPrimitiveElt>> operator()(Bare& iBare) {
        Refuse(iBare);
    }

    template <class Container>
    void AppendChildren(const Container& iContainer) {
        if (std::find(open.begin(), open.end(), &iContainer) != open.end())
            return reporter.Warn(iContainer, "contains itself");
        if (nesting + static_cast<int>(open.size()) >= maxNesting)
            return reporter.Warn(iContainer, "nested too deeply");
        const Affine outer = map;
        map = map * Compose(PlacementOf(iContainer));
        open.push_back(&iContainer);
        for (const VEKPrtGraphicPrimitiveElt& child : ChildrenOf(iContainer))
            Append(child);
        open.pop_back();
        map = outer;
    }
    void Refuse(const VEKPrtGraphicPrimitiveElt& iElement) const {
        reporter.Warn(iElement, "cannot be part of an outline");
    }
};

} // namespace

std::vector<PointSpan> PointsOf(const Reporter& iReporter, const VEKPrtPolyPolygonElt& iPolygons) {
    double* xy = nullptr;
    int* counts = nullptr;
    int polygonCount = 0;
    iPolygons.GetPoints(xy, counts, polygonCount);
    std::vector<PointSpan> polygons;
    for (int k = 0; xy && counts && k < polygonCount; ++k) {
        if (counts[k] < 0) {
            iReporter.Warn(iPolygons, "negative number of points");
            return {};
        }
        polygons.push_back({xy, counts[k]});
        xy += 2 * static_cast<std::ptrdiff_t>(counts[k]);
    }
    return polygons;
}

int WholePieces(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iCurve, const PointSpan& iPoints,
                int iStep) {
    const int rest = iPoints.count > 0 ? (iPoints.count - 1) % iStep : 0;
    if (rest > 0) iReporter.Warn(iCurve, "points left over after the last curve");
    return iPoints.count - rest;
}

EllipseShape EllipseOf(const VEKPrtCircleElt& iCircle) {
    EllipseShape shape;
    iCircle.GetParameters(shape.centre, shape.radiusX);
    shape.radiusY = shape.radiusX;
    return shape;
}
EllipseShape EllipseOf(const VEKPrtCircularArcElt& iArc) {
    EllipseShape shape;
    float start = 0, end = 0;
    iArc.GetParameters(shape.centre, shape.radiusX, start, end);
    shape.radiusY = shape.radiusX;
    shape.start = start;
    shape.end = ArcEnd(start, end);
    return shape;
}
EllipseShape EllipseOf(const VEKPrtEllipseElt& iEllipse) {
    EllipseShape shape;
    float slope = 0;
    iEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, slope);
    shape.slope = slope;
    return shape;
}
EllipseShape EllipseOf(const VEKPrtEllipticalArcElt& iArc) {
    EllipseShape shape;
    float start = 0, end = 0, slope = 0;
    iArc.GetParameters(shape.centre, shape.radiusX, shape.radiusY, start, end, slope);
    shape.slope = slope;
    shape.start = start;
    shape.end = ArcEnd(start, end);
    return shape;
}

void Outliner::operator()(const VEKPrtLineElt& iLine) const {
    VEKMathPoint2D start(0.0, 0.0), end(0.0, 0.0);
    iLine.GetParameters(start, end);
    path.MoveTo(start.GetX(), start.GetY());
    path.LineTo(end.GetX(), end.GetY());
}
void Outliner::operator()(const VEKPrtRectangleElt& iRectangle) const {
    VEKMathPoint2D first(0.0, 0.0), second(0.0, 0.0);
    iRectangle.GetPoints(first, second);
    path.MoveTo(first.GetX(), first.GetY());
    path.LineTo(second.GetX(), first.GetY());
    path.LineTo(second.GetX(), second.GetY());
    path.LineTo(first.GetX(), second.GetY());
    path.Close();
}
void Outliner::operator()(const VEKPrtCircleElt& iCircle) const {
    AppendArc(path, EllipseOf(iCircle));
    path.Close();
}
void Outliner::operator()(const VEKPrtCircularArcElt& iArc) const { AppendArc(path, EllipseOf(iArc)); }
void Outliner::operator()(const VEKPrtEllipseElt& iEllipse) const {
    AppendArc(path, EllipseOf(iEllipse));
    path.Close();
}
void Outliner::operator()(const VEKPrtEllipticalArcElt& iArc) const { AppendArc(path, EllipseOf(iArc)); }
void Outliner::operator()(const VEKPrtPolylineElt& iPolyline) const {
    AppendPolyline(path, PointsOf(iPolyline));
}
void Outliner::operator()(const VEKPrtPolygonElt& iPolygon) const {
    AppendPolyline(path, PointsOf(iPolygon));
    path.Close();
}
void Outliner::operator()(const VEKPrtDisjointPolylineElt& iSegments) const {
    const PointSpan points = PointsOf(iSegments);
    for (int i = 0; i + 1 < points.count; i += 2)
        AppendPolyline(path, {points[i], 2});
}
void Outliner::operator()(const VEKPrtPolyPolygonElt& iPolygons) const {
    for (const PointSpan& polygon : PointsOf(reporter, iPolygons)) {
        AppendPolyline(path, polygon);
        path.Close();
    }
}
void Outliner::operator()(const VEKPrtPolyCubicBezierElt& iCurve) const {
    AppendCurve(reporter, path, iCurve, 3, &Path::CubicTo);
}
void Outliner::operator()(const VEKPrtPolyQuadraticBezierElt& iCurve) const {
    AppendCurve(reporter, path, iCurve, 2, &Path::QuadraticTo);
}
void Outliner::operator()(const VEKPrtNURBSElt& iCurve) const {
    const double stretch = path.Map().Stretch();
    std::string problem;
    const std::vector<VEKMathPoint2D> samples =
        SampleNurbs(iCurve, stretch > 0.0 ? tolerance / stretch : 0.0, problem);
    if (samples.empty()) return reporter.Warn(iCurve, problem);
    path.MoveTo(samples.front().GetX(), samples.front().GetY());
    for (std::size_t i = 1; i < samples.size(); ++i)
        path.LineTo(samples[i].GetX(), samples[i].GetY());
}

Path PathOf(const Reporter& iReporter, const VEKPrtClosedFigureElt& iFigure, double iTolerance, int iNesting,
            long& ioAllowance) {
    Path path;
    Chain chain{iReporter, path, iTolerance, iNesting, ioAllowance};
    for (const VEKPrtClosedFigureRegionElt& region : ChildrenOf(iFigure)) {
        chain.Append(region);
        path.Close();
    }
    return path;
}

// Within the square from -0.5 to 0.5, scaled by the size.
Marker MarkerOf(const VEKPrtMarkerElt& iMarker) {
    VEKMathPoint2D point(0.0, 0.0);
    double size = 0;
    VEKPrtMarkerAttributes record;
    VEKPrintMarkerAttribute style{};
    iMarker.GetParameters(point, size);
    iMarker.GetMarkerAttributes(record);
    record.GetMarkerStyle(style);
    Marker marker;
    Path& path = marker.path;
    path.SetMap({size, 0, 0, size, point.GetX(), point.GetY()});
    switch (style) {
    case markerCross:
        AppendLine(path, {-.5, -.5, .5, .5});
        AppendLine(path, {-.5, .5, .5, -.5});
        break;
    case markerAsterisk:
        AppendLine(path, {0, -.5, 0, .5});
        AppendLine(path, {-.433, -.25, .433, .25});
        AppendLine(path, {-.433, .25, .433, -.25});
        break;
    case markerSquare: AppendLine(path, {-.5, -.5, .5, -.5, .5, .5, -.5, .5}); break;
    case markerDiamond: AppendLine(path, {0, -.5, .5, 0, 0, .5, -.5, 0}); break;
    case markerTriangle: AppendLine(path, {-.5, -.4, .5, -.4, 0, .5}); break;
    case markerCircle:
    case markerDisc: path.Arc(VEKMathPoint2D(0.0, 0.0), 0.5, 0.5, 0.0, 0.0, 360.0); break;
    default:
        AppendLine(path, {-.5, 0, .5, 0});
        AppendLine(path, {0, -.5, 0, .5});
        return marker;
    }
    if (style != markerCross && style != markerAsterisk) path.Close();
    marker.isFilled = style == markerDisc;
    return marker;
}

} // namespace vekprt::drawing
