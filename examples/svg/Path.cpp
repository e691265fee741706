#include "Path.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtTransformAttributes.h"
#include "Xml.h"

namespace {

double Radians(double iDegrees) { return iDegrees * 3.14159265358979323846 / 180.0; }

// The transform at one position; identity for what has no value.
Affine Elementary(const VEKPrtTransformAttributes& iTransforms, unsigned iIndex,
                  VEKPrintTransformType iKind) {
    Affine map;
    float angle = 0;
    VEKMathVector2D vector;
    VEKMath2x2Matrix matrix;
    switch (iKind) {
    case VEKPrintTransformMatrix:
        iTransforms.GetMatrix(iIndex, matrix);
        map = {matrix.GetCoef(1, 1), matrix.GetCoef(2, 1), matrix.GetCoef(1, 2), matrix.GetCoef(2, 2), 0, 0};
        break;
    case VEKPrintTransformTranslation:
        iTransforms.GetTranslation(iIndex, vector);
        map.e = vector.GetX();
        map.f = vector.GetY();
        break;
    case VEKPrintTransformRotation:
        iTransforms.GetRotation(iIndex, angle);
        map.a = map.d = std::cos(Radians(angle));
        map.b = std::sin(Radians(angle));
        map.c = -map.b;
        break;
    case VEKPrintTransformScaleX: iTransforms.GetScaleX(iIndex, map.a); break;
    case VEKPrintTransformScaleY: iTransforms.GetScaleY(iIndex, map.d); break;
    case VEKPrintTransformSkewX:
        iTransforms.GetSkewX(iIndex, angle);
        map.c = std::tan(Radians(angle));
        break;
    case VEKPrintTransformSkewY:
        iTransforms.GetSkewY(iIndex, angle);
        map.b = std::tan(Radians(angle));
        break;
    default: break;
    }
    return map;
}

} // namespace

Affine Affine::operator*(const Affine& iInner) const {
    return {a * iInner.a + c * iInner.b, b * iInner.a + d * iInner.b,     a * iInner.c + c * iInner.d,
            b * iInner.c + d * iInner.d, a * iInner.e + c * iInner.f + e, b * iInner.e + d * iInner.f + f};
}

Affine Compose(const VEKPrtTransformAttributes& iTransforms) {
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    iTransforms.GetTransformTab(count, kinds);
    Affine map;
    for (unsigned i = 0; kinds && i < count; ++i)
        map = map * Elementary(iTransforms, i, kinds[i]);
    return map;
}

void Path::Add(char iCommand, const std::vector<VEKMathPoint2D>& iPoints) {
    if (!_data.empty()) _data += ' ';
    _data += iCommand;
    for (const VEKMathPoint2D& point : iPoints) {
        if (_data.back() != iCommand) _data += ' ';
        _data += Point(point.GetX(), point.GetY());
    }
    _last = iPoints.back();
    _open = true;
}

void Path::QuadraticTo(const double* iTwoPoints) {
    const double* const p = iTwoPoints;
    Add('Q', {_map(p[0], p[1]), _map(p[2], p[3])});
}

void Path::CubicTo(const double* iThreePoints) {
    const double* const p = iThreePoints;
    Add('C', {_map(p[0], p[1]), _map(p[2], p[3]), _map(p[4], p[5])});
}

void Path::Close() {
    if (_open) _data += " Z";
    _open = false;
}

void Path::Join(double iX, double iY) {
    // Ends that meet are seldom equal to the last bit, and a line too short to see does no harm but to joins.
    constexpr double near = 1e-6;
    const VEKMathPoint2D point = _map(iX, iY);
    if (!_open) {
        MoveTo(iX, iY);
    } else if (std::hypot(point.GetX() - _last.GetX(), point.GetY() - _last.GetY()) > near) {
        LineTo(iX, iY);
    }
}

void Path::Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
               double iEnd) {
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
