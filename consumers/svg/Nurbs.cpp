#include "Nurbs.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtNURBSElt.h"

namespace vekprt::svg {

namespace {

struct Homogeneous {
    double x, y, w;
};

// A curve whose data has been found sound.
struct Curve {
    int order = 0, count = 0;
    double *points = nullptr, *knots = nullptr, *weights = nullptr;
    /// Room for the control points that bear on one span.
    std::vector<Homogeneous> d = {};

    // By repeated interpolation within the last span of some length that begins at or before the parameter.
    VEKMathPoint2D At(double iParameter) {
        const int degree = order - 1;
        int span = static_cast<int>(std::upper_bound(knots + degree, knots + count, iParameter) - knots) - 1;
        while (span > degree && !(knots[span] < knots[span + 1]))
            --span;
        d.clear();
        for (int i = span - degree; i <= span; ++i) {
            const double* const point = points + 2 * static_cast<std::ptrdiff_t>(i);
            d.push_back({point[0] * weights[i], point[1] * weights[i], weights[i]});
        }
        for (int level = 1; level <= degree; ++level) {
            for (int j = degree; j >= level; --j) {
                const int i = span - degree + j;
                const double width = knots[i + order - level] - knots[i];
                const double t = width > 0.0 ? (iParameter - knots[i]) / width : 0.0;
                const Homogeneous& left = d[static_cast<std::size_t>(j) - 1];
                Homogeneous& right = d[static_cast<std::size_t>(j)];
                right = {left.x + t * (right.x - left.x), left.y + t * (right.y - left.y),
                         left.w + t * (right.w - left.w)};
            }
        }
        return {d.back().x / d.back().w, d.back().y / d.back().w};
    }
};

bool AllFinite(const double* iValues, int iCount) {
    return std::all_of(iValues, iValues + iCount, [](double iValue) { return std::isfinite(iValue); });
}

double Distance(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY());
}

// Halves the interval, a few times in any case, until its middle is that of the chord; appends all but the
// first point.
void Subdivide(Curve& ioCurve, double iFrom, double iTo, const VEKMathPoint2D& iFirst,
               const VEKMathPoint2D& iLast, double iTolerance, int iDepth,
               std::vector<VEKMathPoint2D>& ioPoints) {
    constexpr int least = 3, most = 10;
    const double middle = iFrom + (iTo - iFrom) / 2.0;
    const VEKMathPoint2D point = ioCurve.At(middle);
    const VEKMathPoint2D chord((iFirst.GetX() + iLast.GetX()) / 2.0, (iFirst.GetY() + iLast.GetY()) / 2.0);
    if (iDepth >= most || (iDepth >= least && Distance(point, chord) <= iTolerance)) {
        ioPoints.push_back(iLast);
        return;
    }
    Subdivide(ioCurve, iFrom, middle, iFirst, point, iTolerance, iDepth + 1, ioPoints);
    Subdivide(ioCurve, middle, iTo, point, iLast, iTolerance, iDepth + 1, ioPoints);
}

} // namespace

std::vector<VEKMathPoint2D> SampleNurbs(const VEKPrtNURBSElt& iCurve, double iTolerance,
                                        std::string& oProblem) {
    Curve curve;
    float firstBound = 0, secondBound = 0;
    iCurve.GetParameters(curve.order, curve.count, curve.points, curve.knots, firstBound, secondBound,
                         curve.weights);
    const auto& [order, count, points, knots, weights, room] = curve;

    const auto fail = [&](const char* iProblem) {
        oProblem = iProblem;
        return std::vector<VEKMathPoint2D>();
    };
    if (count <= 0 || !points || !knots || !weights) return fail("no control points, knots or weights");
    if (order < 2 || order > count) return fail("an order below 2 or above the number of control points");
    if (!AllFinite(points, 2 * count) || !AllFinite(knots, order + count) || !AllFinite(weights, count))
        return fail("values that are not finite");
    if (!std::is_sorted(knots, knots + order + count)) return fail("knots that decrease");
    if (*std::min_element(weights, weights + count) <= 0.0) return fail("weights that are not positive");

    const double first = std::max<double>(knots[order - 1], firstBound);
    const double last = std::min<double>(knots[count], secondBound);
    if (!(first < last)) return fail("bounds outside the range of the knots");

    // Never finer than a millionth of the curve: a page without size asks for no tolerance at all.
    const auto ends = std::minmax_element(points, points + 2 * static_cast<std::ptrdiff_t>(count));
    const double tolerance = std::max(iTolerance, (*ends.second - *ends.first) * 1e-6);

    // Span by span: the curve may have a corner at a knot.
    std::vector<double> stops{first};
    std::copy_if(knots, knots + order + count, std::back_inserter(stops),
                 [&](double iKnot) { return iKnot > stops.back() && iKnot < last; });
    stops.push_back(last);
    std::vector<VEKMathPoint2D> samples{curve.At(first)};
    for (std::size_t i = 1; i < stops.size(); ++i)
        Subdivide(curve, stops[i - 1], stops[i], samples.back(), curve.At(stops[i]), tolerance, 0, samples);
    return samples;
}

} // namespace vekprt::svg
