// Outlines of elements: of shapes, of the regions of figures, of markers.
#ifndef Outline_H
#define Outline_H

#include <vector>

#include "Path.h"
#include "Reporter.h"
#include "VEKPrtElements.h"

namespace vekprt::drawing {

/// The points of a sequence, none for a count without an array.
struct PointSpan {
    const double* xy = nullptr;
    int count = 0;
    const double* operator[](int iIndex) const { return xy + 2 * static_cast<std::ptrdiff_t>(iIndex); }
};
template <class Element>
PointSpan PointsOf(const Element& iElement) {
    double* xy = nullptr;
    int count = 0;
    iElement.GetPoints(xy, count);
    return xy && count > 0 ? PointSpan{xy, count} : PointSpan();
}
/// The point sequences of a poly-polygon.
std::vector<PointSpan> PointsOf(const Reporter& iReporter, const VEKPrtPolyPolygonElt& iPolygons);
/// How many points of a curve make whole pieces of \p iStep after the start; warns of others.
int WholePieces(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iCurve, const PointSpan& iPoints,
                int iStep);

/// An ellipse, or an arc of one from one angle to a greater one.
struct EllipseShape {
    VEKMathPoint2D centre = VEKMathPoint2D(0.0, 0.0);
    double radiusX = 0, radiusY = 0;
    double slope = 0, start = 0, end = 360;
};
EllipseShape EllipseOf(const VEKPrtCircleElt& iCircle);
EllipseShape EllipseOf(const VEKPrtCircularArcElt& iArc);
EllipseShape EllipseOf(const VEKPrtEllipseElt& iEllipse);
EllipseShape EllipseOf(const VEKPrtEllipticalArcElt& iArc);

/// Appends the outline of an element of each class that has one.
struct Outliner {
    const Reporter& reporter;
    Path& path;
    /// How far a chord may be off a curve, in the coordinates that the path's map leads to.
    double tolerance;

    void operator()(const VEKPrtLineElt& iLine) const;
    void operator()(const VEKPrtRectangleElt& iRectangle) const;
    void operator()(const VEKPrtCircleElt& iCircle) const;
    void operator()(const VEKPrtCircularArcElt& iArc) const;
    void operator()(const VEKPrtEllipseElt& iEllipse) const;
    void operator()(const VEKPrtEllipticalArcElt& iArc) const;
    void operator()(const VEKPrtPolylineElt& iPolyline) const;
    void operator()(const VEKPrtPolygonElt& iPolygon) const;
    void operator()(const VEKPrtDisjointPolylineElt& iSegments) const;
    void operator()(const VEKPrtPolyPolygonElt& iPolygons) const;
    void operator()(const VEKPrtPolyCubicBezierElt& iCurve) const;
    void operator()(const VEKPrtPolyQuadraticBezierElt& iCurve) const;
    void operator()(const VEKPrtNURBSElt& iCurve) const;
};

/// The regions of a figure, each a chain of primitives, as one path.  \p ioAllowance is how many elements
/// may still become part of an outline.
Path PathOf(const Reporter& iReporter, const VEKPrtClosedFigureElt& iFigure, double iTolerance, int iNesting,
            long& ioAllowance);

/// A marker as it is in the coordinates of its element.
struct Marker {
    Path path;
    bool isFilled = false;
};
Marker MarkerOf(const VEKPrtMarkerElt& iMarker);

} // namespace vekprt::drawing

#endif
