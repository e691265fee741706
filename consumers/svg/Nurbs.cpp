#include "Nurbs.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtNURBSElt.h"

namespace {

struct Homogeneous {
    double x, y, w;
};

// A curve whose data has been found sound.
class Curve {
public:
    Curve(int iOrder, int iCount, const double* iPoints, const double* iKnots, const double* iWeights)
        : _order(iOrder), _count(iCount), _points(iPoints), _knots(iKnots), _weights(iWeights) {}

    double First() const { return _knots[_order - 1]; }
    double Last() const { return _knots[_count]; }
    const double* Knots() const { return _knots; }

    // Within one knot span, by repeated interpolation of the control points that bear on it.
    VEKMathPoint2D At(double iParameter) const {
        const int span = Span(iParameter);
        const int degree = _order - 1;
        std::vector<Homogeneous> d(static_cast<std::size_t>(_order));
        for (int j = 0; j <= degree; ++j) {
            const int i = span - degree + j;
            const double w = _weights[i];
            const double* const point = _points + 2 * static_cast<std::ptrdiff_t>(i);
            d[static_cast<std::size_t>(j)] = {point[0] * w, point[1] * w, w};
        }
        for (int level = 1; level <= degree; ++level) {
            for (int j = degree; j >= level; --j) {
                const int i = span - degree + j;
                const double width = _knots[i + _order - level] - _knots[i];
                const double t = width > 0.0 ? (iParameter - _knots[i]) / width : 0.0;
                const Homogeneous& left = d[static_cast<std::size_t>(j) - 1];
                Homogeneous& right = d[static_cast<std::size_t>(j)];
                right = {left.x + t * (right.x - left.x), left.y + t * (right.y - left.y),
                         left.w + t * (right.w - left.w)};
            }
        }
        return {d.back().x / d.back().w, d.back().y / d.back().w};
    }

private:
    // The last span of some length that begins at or before the parameter.
    int Span(double iParameter) const {
        const double* const first = _knots + _order - 1;
        const double* const last = _knots + _count;
        int span = static_cast<int>(std::upper_bound(first, last, iParameter) - _knots) - 1;
        while (span > _order - 1 && !(_knots[span] < _knots[span + 1]))
            --span;
        return span;
    }

    int _order;
    int _count;
    const double* _points;
    const double* _knots;
    const double* _weights;
};

bool AllFinite(const double* iValues, int iCount) {
    return std::all_of(iValues, iValues + iCount, [](double iValue) { return std::isfinite(iValue); });
}

double Distance(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY());
}

// Halves the interval, a few times in any case, until its middle is that of the chord; appends all but the
// first point.
void Subdivide(const Curve& iCurve, double iFrom, double iTo, const VEKMathPoint2D& iFirst,
               const VEKMathPoint2D& iLast, double iTolerance, int iDepth,
               std::vector<VEKMathPoint2D>& ioPoints) {
    constexpr int least = 3, most = 10;
    const double middle = iFrom + (iTo - iFrom) / 2.0;
    const VEKMathPoint2D point = iCurve.At(middle);
    const VEKMathPoint2D chord((iFirst.GetX() + iLast.GetX()) / 2.0, (iFirst.GetY() + iLast.GetY()) / 2.0);
    if (iDepth >= most || (iDepth >= least && Distance(point, chord) <= iTolerance)) {
        ioPoints.push_back(iLast);
        return;
    }
    Subdivide(iCurve, iFrom, middle, iFirst, point, iTolerance, iDepth + 1, ioPoints);
    Subdivide(iCurve, middle, iTo, point, iLast, iTolerance, iDepth + 1, ioPoints);
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
    if (count <= 0 || !points || !knots || !weights) return fail("no control points, knots or weights");
    if (order < 2 || order > count) return fail("an order below 2 or above the number of control points");
    if (!AllFinite(points, 2 * count) || !AllFinite(knots, order + count) || !AllFinite(weights, count))
        return fail("values that are not finite");
    if (!std::is_sorted(knots, knots + order + count)) return fail("knots that decrease");
    if (*std::min_element(weights, weights + count) <= 0.0) return fail("weights that are not positive");

    const Curve curve(order, count, points, knots, weights);
    const double first = std::max(curve.First(), static_cast<double>(firstBound));
    const double last = std::min(curve.Last(), static_cast<double>(secondBound));
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
