#include "Outline.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "Records.h"
#include "VEKPrtChildren.h"
#include "VEKPrtValues.h"

namespace vekprt::drawing {

namespace {

void AppendLine(Path& ioPath, std::initializer_list<VEKMathPoint2D> iPoints) {
    for (const VEKMathPoint2D& point : iPoints) {
        if (&point == iPoints.begin())
            ioPath.MoveTo(point);
        else
            ioPath.LineTo(point);
    }
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
        Outliner<Path>{reporter, primitive, primitive.Map(), tolerance, nesting, allowance}(iShape);
        path.Join(std::move(primitive));
    }
    void operator()(const VEKPrtGroupElt& iGroup) { AppendChildren(iGroup); }
    void operator()(const VEKPrtClosedFigureRegionElt& iRegion) { AppendChildren(iRegion); }

    void operator()(const VEKPrtTextElt& iText) { Refuse(iText); }
    void operator()(const VEKPrtMarkerElt& iMarker) { Refuse(iMarker); }
    void operator()(const VEKPrtClosedFigureElt& iFigure) { Refuse(iFigure); }
    void operator()(const VEKPrtGraphicPrimitiveElt& iOther) { Refuse(iOther); }

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

std::vector<PointSpan> PolygonsOf(const Reporter& iReporter, const VEKPrtPolyPolygonElt& iPolygons) {
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

EllipseShape EllipseOf(const VEKPrtCircleElt& iCircle) {
    EllipseShape shape;
    iCircle.GetParameters(shape.centre, shape.radiusX);
    shape.radiusY = shape.radiusX;
    return shape;
}
EllipseShape EllipseOf(const VEKPrtCircularArcElt& iArc) {
    VEKMathPoint2D centre(0.0, 0.0);
    double radius = 0;
    float start = 0, end = 0;
    iArc.GetParameters(centre, radius, start, end);
    return {centre, radius, radius, 0, start, ArcEnd(start, end)};
}
EllipseShape EllipseOf(const VEKPrtEllipseElt& iEllipse) {
    EllipseShape shape;
    float slope = 0;
    iEllipse.GetParameters(shape.centre, shape.radiusX, shape.radiusY, slope);
    shape.slope = slope;
    return shape;
}
EllipseShape EllipseOf(const VEKPrtEllipticalArcElt& iArc) {
    VEKMathPoint2D centre(0.0, 0.0);
    double radiusX = 0, radiusY = 0;
    float start = 0, end = 0, slope = 0;
    iArc.GetParameters(centre, radiusX, radiusY, start, end, slope);
    return {centre, radiusX, radiusY, slope, start, ArcEnd(start, end)};
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
Path PathOf(const VEKPrtMarkerElt& iMarker) {
    VEKMathPoint2D point(0.0, 0.0);
    double size = 0;
    iMarker.GetParameters(point, size);
    const VEKPrintMarkerAttribute style = StyleOf(iMarker);
    Path path;
    path.SetMap({size, 0, 0, size, point.GetX(), point.GetY()});
    switch (style) {
    case markerCross:
        AppendLine(path, {{-.5, -.5}, {.5, .5}});
        AppendLine(path, {{-.5, .5}, {.5, -.5}});
        break;
    case markerAsterisk:
        AppendLine(path, {{0, -.5}, {0, .5}});
        AppendLine(path, {{-.433, -.25}, {.433, .25}});
        AppendLine(path, {{-.433, .25}, {.433, -.25}});
        break;
    case markerSquare: AppendLine(path, {{-.5, -.5}, {.5, -.5}, {.5, .5}, {-.5, .5}}); break;
    case markerDiamond: AppendLine(path, {{0, -.5}, {.5, 0}, {0, .5}, {-.5, 0}}); break;
    case markerTriangle: AppendLine(path, {{-.5, -.4}, {.5, -.4}, {0, .5}}); break;
    case markerCircle:
    case markerDisc: path.Arc({VEKMathPoint2D(0.0, 0.0), 0.5, 0.5}); break;
    default:
        AppendLine(path, {{-.5, 0}, {.5, 0}});
        AppendLine(path, {{0, -.5}, {0, .5}});
        return path;
    }
    if (style != markerCross && style != markerAsterisk) path.Close();
    return path;
}

} // namespace vekprt::drawing
