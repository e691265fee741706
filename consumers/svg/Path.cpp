#include "Path.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtTransformAttributes.h"
#include "Xml.h"

namespace {

double Radians(double iDegrees) { return iDegrees * 3.14159265358979323846 / 180.0; }

// The transform at one position; no text for what has no value.
Elementary TransformAt(const VEKPrtTransformAttributes& iTransforms, unsigned iIndex,
                       VEKPrintTransformType iKind) {
    double scale = 1;
    float angle = 0;
    VEKMathVector2D vector;
    VEKMath2x2Matrix m;
    switch (iKind) {
    case VEKPrintTransformMatrix: {
        if (iTransforms.GetMatrix(iIndex, m) != 1) break;
        const Affine map = {m.GetCoef(1, 1), m.GetCoef(2, 1), m.GetCoef(1, 2), m.GetCoef(2, 2), 0, 0};
        return {Matrix(map), map};
    }
    case VEKPrintTransformTranslation:
        if (iTransforms.GetTranslation(iIndex, vector) != 1) break;
        return {"translate(" + Pair(vector.GetX(), vector.GetY()) + ")",
                {1, 0, 0, 1, vector.GetX(), vector.GetY()}};
    case VEKPrintTransformRotation: {
        if (iTransforms.GetRotation(iIndex, angle) != 1) break;
        const double cosine = std::cos(Radians(angle)), sine = std::sin(Radians(angle));
        return {"rotate(" + Number(angle) + ")", {cosine, sine, -sine, cosine, 0, 0}};
    }
    case VEKPrintTransformScaleX:
        if (iTransforms.GetScaleX(iIndex, scale) != 1) break;
        return {"scale(" + Pair(scale, 1) + ")", {scale, 0, 0, 1, 0, 0}};
    case VEKPrintTransformScaleY:
        if (iTransforms.GetScaleY(iIndex, scale) != 1) break;
        return {"scale(" + Pair(1, scale) + ")", {1, 0, 0, scale, 0, 0}};
    case VEKPrintTransformSkewX:
        if (iTransforms.GetSkewX(iIndex, angle) != 1) break;
        return {"skewX(" + Number(angle) + ")", {1, 0, std::tan(Radians(angle)), 1, 0, 0}};
    case VEKPrintTransformSkewY:
        if (iTransforms.GetSkewY(iIndex, angle) != 1) break;
        return {"skewY(" + Number(angle) + ")", {1, std::tan(Radians(angle)), 0, 1, 0, 0}};
    default: break;
    }
    return {};
}

// Ends that meet are seldom equal to the last bit.
bool Meet(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    constexpr double near = 1e-6;
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY()) <= near;
}

} // namespace

Affine Affine::operator*(const Affine& iInner) const {
    return {a * iInner.a + c * iInner.b, b * iInner.a + d * iInner.b,     a * iInner.c + c * iInner.d,
            b * iInner.c + d * iInner.d, a * iInner.e + c * iInner.f + e, b * iInner.e + d * iInner.f + f};
}

double Affine::Scale() const { return std::sqrt(std::fabs(Determinant())); }

Affine Affine::Inverse() const {
    const double det = Determinant();
    return {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
}

std::vector<Elementary> TransformsOf(const VEKPrtTransformAttributes& iTransforms) {
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    iTransforms.GetTransformTab(count, kinds);
    std::vector<Elementary> transforms;
    for (unsigned i = 0; kinds && i < count; ++i) {
        Elementary transform = TransformAt(iTransforms, i, kinds[i]);
        if (!transform.svg.empty()) transforms.push_back(std::move(transform));
    }
    return transforms;
}

Affine Compose(const VEKPrtTransformAttributes& iTransforms) {
    Affine map;
    for (const Elementary& transform : TransformsOf(iTransforms))
        map = map * transform.map;
    return map;
}

std::string Matrix(const Affine& iMap) {
    std::string text = "matrix(";
    for (const double value : {iMap.a, iMap.b, iMap.c, iMap.d, iMap.e, iMap.f})
        text += (text.back() == '(' ? "" : " ") + Number(value);
    return text + ")";
}

void PathData::Add(char iCommand, std::vector<VEKMathPoint2D> iPoints) {
    for (const VEKMathPoint2D& point : iPoints)
        _finite = _finite && std::isfinite(point.GetX()) && std::isfinite(point.GetY());
    const bool open = !_segments.empty() && _segments.back().command != 'Z';
    if (iCommand != 'Z' || open) _segments.push_back({iCommand, std::move(iPoints)});
}

void PathData::QuadraticTo(const double* iTwoPoints) {
    const double* const p = iTwoPoints;
    Add('Q', {_map(p[0], p[1]), _map(p[2], p[3])});
}

void PathData::CubicTo(const double* iThreePoints) {
    const double* const p = iThreePoints;
    Add('C', {_map(p[0], p[1]), _map(p[2], p[3]), _map(p[4], p[5])});
}

void PathData::Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope,
                   double iStart, double iEnd) {
    const VEKMathPoint2D start = OnEllipse(iCentre, iRadiusX, iRadiusY, iSlope, iStart);
    MoveTo(start.GetX(), start.GetY());
    if (!_finite || !std::isfinite(iEnd)) {
        _finite = false;
        return;
    }
    // Pieces of 45 degrees at most: off the true arc by less than 5 millionths of the radius.
    const int pieces = std::max(1, static_cast<int>(std::ceil((iEnd - iStart) / 45.0 - 1e-9)));
    const double step = Radians(iEnd - iStart) / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
    const double cosSlope = std::cos(Radians(iSlope));
    const double sinSlope = std::sin(Radians(iSlope));
    const Affine outer = _map;
    _map = outer * Affine{iRadiusX * cosSlope, iRadiusX * sinSlope, -iRadiusY * sinSlope,
                          iRadiusY * cosSlope, iCentre.GetX(),      iCentre.GetY()};
    for (int i = 0; i < pieces; ++i) {
        const double from = Radians(iStart) + i * step;
        const double to = from + step;
        const double unit[6] = {std::cos(from) - handle * std::sin(from),
                                std::sin(from) + handle * std::cos(from),
                                std::cos(to) + handle * std::sin(to),
                                std::sin(to) - handle * std::cos(to),
                                std::cos(to),
                                std::sin(to)};
        CubicTo(unit);
    }
    _map = outer;
}

bool PathData::IsOneOpenLine() const {
    return std::count_if(_segments.begin(), _segments.end(),
                         [](const Segment& s) { return s.command == 'M' || s.command == 'Z'; }) == 1;
}

// Of one open line: each segment runs from the end of the one before.
PathData PathData::Reversed() const {
    PathData reversed;
    reversed.Add('M', {_segments.back().points.back()});
    for (std::size_t i = _segments.size() - 1; i > 0; --i) {
        std::vector<VEKMathPoint2D> points(_segments[i].points.rbegin() + 1, _segments[i].points.rend());
        points.push_back(_segments[i - 1].points.back());
        reversed.Add(_segments[i].command, std::move(points));
    }
    return reversed;
}

void PathData::Join(const PathData& iPrimitive) {
    _finite = _finite && iPrimitive._finite;
    if (iPrimitive._segments.empty()) return;
    const bool open = !_segments.empty() && _segments.back().command != 'Z';
    const auto first = iPrimitive._segments.begin();
    if (!open || !iPrimitive.IsOneOpenLine()) {
        _segments.insert(_segments.end(), first, iPrimitive._segments.end());
        return;
    }
    const VEKMathPoint2D last = _segments.back().points.back();
    const bool begins = Meet(last, first->points.back());
    if (!begins && Meet(last, iPrimitive._segments.back().points.back())) return Join(iPrimitive.Reversed());
    if (!begins) Add('L', first->points);
    _segments.insert(_segments.end(), first + 1, iPrimitive._segments.end());
}

std::string PathData::Text() const {
    std::string text;
    for (const Segment& segment : _segments) {
        if (!text.empty()) text += ' ';
        text += segment.command;
        for (std::size_t i = 0; i < segment.points.size(); ++i)
            text += (i ? " " : "") + Pair(segment.points[i].GetX(), segment.points[i].GetY());
    }
    return text;
}

double ArcEnd(double iStart, double iEnd) {
    double sweep = std::fmod(iEnd - iStart, 360.0);
    if (sweep <= 0.0) sweep += 360.0;
    return iStart + sweep;
}

VEKMathPoint2D OnEllipse(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope,
                         double iParameter) {
    const double x = iRadiusX * std::cos(Radians(iParameter));
    const double y = iRadiusY * std::sin(Radians(iParameter));
    const double cosSlope = std::cos(Radians(iSlope));
    const double sinSlope = std::sin(Radians(iSlope));
    return {iCentre.GetX() + x * cosSlope - y * sinSlope, iCentre.GetY() + x * sinSlope + y * cosSlope};
}
