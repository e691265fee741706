// Outlines of elements: of shapes, of the regions of figures, of markers.
#ifndef Outline_H
#define Outline_H

#include <vector>

#include "Nurbs.h"
#include "Path.h"
#include "Reporter.h"
#include "VEKPrtElements.h"

namespace vekprt::drawing {

/// The points of a sequence, none for a count without an array.
struct PointSpan {
    const double* xy = nullptr;
    int count = 0;
    VEKMathPoint2D operator[](int iIndex) const {
        const double* const point = xy + 2 * static_cast<std::ptrdiff_t>(iIndex);
        return {point[0], point[1]};
    }
};
/// The point sequences of a poly-polygon.
std::vector<PointSpan> PolygonsOf(const Reporter& iReporter, const VEKPrtPolyPolygonElt& iPolygons);

EllipseShape EllipseOf(const VEKPrtCircleElt& iCircle);
EllipseShape EllipseOf(const VEKPrtCircularArcElt& iArc);
EllipseShape EllipseOf(const VEKPrtEllipseElt& iEllipse);
EllipseShape EllipseOf(const VEKPrtEllipticalArcElt& iArc);

/// The regions of a figure, each a chain of primitives, as one path.  \p ioAllowance is how many elements
/// may still become part of an outline.
Path PathOf(const Reporter& iReporter, const VEKPrtClosedFigureElt& iFigure, double iTolerance, int iNesting,
            long& ioAllowance);

/// A marker in the coordinates of its element.
Path PathOf(const VEKPrtMarkerElt& iMarker);

/// Draws the outline of an element of each class that has one with a pen: a Path, or what a consumer has in
/// its place.
template <class Pen>
struct Outliner {
    const Reporter& reporter;
    Pen& pen;
    /// From the coordinates of the element to those of the tolerance.
    const Affine& map;
    /// How far a chord may be off a curve.
    double tolerance;
    /// How many containers are around, and how many elements may still become part of an outline.
    int nesting;
    long& allowance;

    void operator()(const VEKPrtLineElt& iLine) const {
        VEKMathPoint2D start(0.0, 0.0), end(0.0, 0.0);
        iLine.GetParameters(start, end);
        pen.MoveTo(start);
        pen.LineTo(end);
    }
    void operator()(const VEKPrtRectangleElt& iRectangle) const {
        VEKMathPoint2D first(0.0, 0.0), second(0.0, 0.0);
        iRectangle.GetPoints(first, second);
        pen.Rectangle(first, second);
    }
    void operator()(const VEKPrtCircleElt& iCircle) const {
        pen.Arc(EllipseOf(iCircle));
        pen.Close();
    }
    void operator()(const VEKPrtCircularArcElt& iArc) const { pen.Arc(EllipseOf(iArc)); }
    void operator()(const VEKPrtEllipseElt& iEllipse) const {
        pen.Arc(EllipseOf(iEllipse));
        pen.Close();
    }
    void operator()(const VEKPrtEllipticalArcElt& iArc) const { pen.Arc(EllipseOf(iArc)); }
    void operator()(const VEKPrtPolylineElt& iPolyline) const { Lines(PointsOf(iPolyline)); }
    void operator()(const VEKPrtPolygonElt& iPolygon) const {
        Lines(PointsOf(iPolygon));
        pen.Close();
    }
    void operator()(const VEKPrtDisjointPolylineElt& iSegments) const {
        const PointSpan points = PointsOf(iSegments);
        for (int i = 0; i + 1 < points.count; i += 2) {
            pen.MoveTo(points[i]);
            pen.LineTo(points[i + 1]);
        }
    }
    void operator()(const VEKPrtPolyPolygonElt& iPolygons) const {
        for (const PointSpan& polygon : PolygonsOf(reporter, iPolygons)) {
            Lines(polygon);
            if (polygon.count > 0) pen.Close();
        }
    }
    void operator()(const VEKPrtPolyCubicBezierElt& iCurve) const {
        Curves<3>(iCurve, [&](const PointSpan& p, int i) { pen.CubicTo(p[i], p[i + 1], p[i + 2]); });
    }
    void operator()(const VEKPrtPolyQuadraticBezierElt& iCurve) const {
        Curves<2>(iCurve, [&](const PointSpan& p, int i) { pen.QuadraticTo(p[i], p[i + 1]); });
    }
    void operator()(const VEKPrtNURBSElt& iCurve) const {
        std::string problem;
        const std::vector<VEKMathPoint2D> samples = SampleNurbs(iCurve, map.Unstretched(tolerance), problem);
        if (samples.empty()) return reporter.Warn(iCurve, problem);
        pen.MoveTo(samples.front());
        for (std::size_t i = 1; i < samples.size(); ++i)
            pen.LineTo(samples[i]);
    }
    void operator()(const VEKPrtMarkerElt& iMarker) const { PathOf(iMarker).DrawWith(pen); }
    void operator()(const VEKPrtClosedFigureElt& iFigure) const {
        PathOf(reporter, iFigure, map.Unstretched(tolerance), nesting, allowance).DrawWith(pen);
    }

private:
    template <class Element>
    static PointSpan PointsOf(const Element& iElement) {
        double* xy = nullptr;
        int count = 0;
        iElement.GetPoints(xy, count);
        return xy && count > 0 ? PointSpan{xy, count} : PointSpan();
    }
    void Lines(const PointSpan& iPoints) const {
        if (iPoints.count > 0) pen.MoveTo(iPoints[0]);
        for (int i = 1; i < iPoints.count; ++i)
            pen.LineTo(iPoints[i]);
    }
    // Pieces of so many points each after the start.
    template <int Step, class Curve, class Draw>
    void Curves(const Curve& iCurve, Draw iDraw) const {
        const PointSpan points = PointsOf(iCurve);
        const int rest = points.count > 0 ? (points.count - 1) % Step : 0;
        if (rest > 0) reporter.Warn(iCurve, "points left over after the last curve");
        if (points.count > 0) pen.MoveTo(points[0]);
        for (int i = 1; i < points.count - rest; i += Step)
            iDraw(points, i);
    }
};

} // namespace vekprt::drawing

#endif
