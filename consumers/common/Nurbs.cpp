#include "Nurbs.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtNURBSElt.h"

namespace vekprt::drawing {

namespace {

struct ControlPoint {
    double x, y, weight;
};

// One span of a curve between neighbouring knots, as a Bézier curve.
struct Span {
    double from, to;
    std::vector<ControlPoint> points;

    // In linear time: the point that the first k control points give is moved towards the next one by its
    // share of all the weight so far.
    VEKMathPoint2D At(double iParameter) const {
        const double t = (iParameter - from) / (to - from);
        const auto degree = static_cast<double>(points.size() - 1);
        VEKMathPoint2D result(points[0].x, points[0].y);
        double share = 1.0;
        for (std::size_t i = 1; i < points.size(); ++i) {
            const auto k = static_cast<double>(i);
            const double growth =
                (degree - k + 1.0) * t * points[i].weight / (k * (1.0 - t) * points[i - 1].weight);
            share = 1.0 / (1.0 + 1.0 / (growth * share));
            result = {result.GetX() + share * (points[i].x - result.GetX()),
                      result.GetY() + share * (points[i].y - result.GetY())};
        }
        return result;
    }
};

ControlPoint Between(const ControlPoint& iA, const ControlPoint& iB, double iT) {
    return {iA.x + iT * (iB.x - iA.x), iA.y + iT * (iB.y - iA.y), iA.weight + iT * (iB.weight - iA.weight)};
}

// Inserts the knots at both ends of the span that begins at knot \p iSpan until the curve's own control
// points there are those of the Bézier curve.
Span SpanOf(int iDegree, const double* iKnots, const ControlPoint* iPoints, int iSpan) {
    const auto degree = static_cast<std::size_t>(iDegree);
    const double from = iKnots[iSpan], to = iKnots[iSpan + 1];
    std::vector<ControlPoint> points(iPoints + (iSpan - iDegree), iPoints + iSpan + 1);
    const double* const before = iKnots + (iSpan - iDegree); // the knot before that of the point i, from 1
    const double* const after = iKnots + iSpan;
    for (std::size_t level = 1; level <= degree; ++level) {
        for (std::size_t i = 0; i + level <= degree; ++i) {
            const double low = before[i + level], high = after[i + 1];
            points[i] = Between(points[i], points[i + 1], (from - low) / (high - low));
        }
    }
    for (std::size_t level = 1; level <= degree; ++level) {
        for (std::size_t i = degree; i >= level; --i) {
            const double high = after[i - level + 1];
            points[i] = Between(points[i - 1], points[i], (to - from) / (high - from));
        }
    }
    for (ControlPoint& point : points)
        point = {point.x / point.weight, point.y / point.weight, point.weight};
    return {from, to, points};
}

bool AllFinite(const double* iValues, int iCount) {
    return std::all_of(iValues, iValues + iCount, [](double iValue) { return std::isfinite(iValue); });
}

double Distance(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY());
}

// Bisects, at least minDepth times, until the midpoint is within tolerance of the chord's; appends all but
// the first point.
void Subdivide(const Span& iSpan, double iFrom, double iTo, const VEKMathPoint2D& iFirst,
               const VEKMathPoint2D& iLast, double iTolerance, int iDepth,
               std::vector<VEKMathPoint2D>& ioPoints) {
    constexpr int minDepth = 3, maxDepth = 10;
    const double middle = iFrom + (iTo - iFrom) / 2.0;
    const VEKMathPoint2D point = iSpan.At(middle);
    const VEKMathPoint2D chord((iFirst.GetX() + iLast.GetX()) / 2.0, (iFirst.GetY() + iLast.GetY()) / 2.0);
    if (iDepth >= maxDepth || (iDepth >= minDepth && Distance(point, chord) <= iTolerance)) {
        ioPoints.push_back(iLast);
        return;
    }
    Subdivide(iSpan, iFrom, middle, iFirst, point, iTolerance, iDepth + 1, ioPoints);
    Subdivide(iSpan, middle, iTo, point, iLast, iTolerance, iDepth + 1, ioPoints);
}

} // namespace

std::vector<VEKMathPoint2D> SampleNurbs(const VEKPrtNURBSElt& iCurve, double iTolerance,
                                        std::string& oProblem) {
    int order = 0, count = 0;
    double *points = nullptr, *knots = nullptr, *weights = nullptr;
    float firstBound = 0, secondBound = 0;
    iCurve.GetParameters(order, count, points, knots, firstBound, secondBound, weights);

    const auto fail = [&](const char* iProblem) {
        oProblem = iProblem;
        return std::vector<VEKMathPoint2D>();
    };
    if (count <= 0 || !points || !knots || !weights)
        return fail("control points, knots or weights missing; omitted");
    if (order < 2 || order > count)
        return fail("order below 2 or above the number of control points; omitted");
    if (!AllFinite(points, 2 * count) || !AllFinite(knots, order + count) || !AllFinite(weights, count))
        return fail("values out of range; omitted");
    if (!std::is_sorted(knots, knots + order + count)) return fail("decreasing knots; omitted");
    if (*std::min_element(weights, weights + count) <= 0.0) return fail("weights not positive; omitted");

    const double first = std::max<double>(knots[order - 1], firstBound);
    const double last = std::min<double>(knots[count], secondBound);
    if (!(first < last)) return fail("bounds outside the range of the knots; omitted");

    // Never finer than a millionth of the curve: a page without size asks for no tolerance at all.
    const auto ends = std::minmax_element(points, points + 2 * static_cast<std::ptrdiff_t>(count));
    const double tolerance = std::max(iTolerance, (*ends.second - *ends.first) * 1e-6);

    std::vector<ControlPoint> controls;
    controls.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double* const point = points + 2 * static_cast<std::ptrdiff_t>(i);
        controls.push_back({point[0] * weights[i], point[1] * weights[i], weights[i]});
    }
    std::vector<VEKMathPoint2D> samples;
    for (int i = order - 1; i < count; ++i) {
        const double from = std::max(knots[i], first), to = std::min(knots[i + 1], last);
        if (!(from < to)) continue;
        const Span span = SpanOf(order - 1, knots, controls.data(), i);
        if (samples.empty()) samples.push_back(span.At(from));
        const VEKMathPoint2D start = samples.back();
        Subdivide(span, from, to, start, span.At(to), tolerance, 0, samples);
    }
    return samples;
}

} // namespace vekprt::drawing
