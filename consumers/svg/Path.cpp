#include "Path.h"

#include <algorithm>
#include <cmath>

#include "FrameworkValues.h"
#include "VEKPrtTransformAttributes.h"

namespace vekprt::svg {

namespace {

double Radians(double iDegrees) { return iDegrees * 3.14159265358979323846 / 180.0; }

Elementary TransformAt(const VEKPrtTransformAttributes& iTransforms, unsigned iIndex, int iKind) {
    double scale = 1;
    float angle = 0;
    VEKMathVector2D vector;
    VEKMath2x2Matrix matrix;
    // What has no value leaves these as they are.
    switch (iKind) {
    case transformMatrix: iTransforms.GetMatrix(iIndex, matrix); return Linear(matrix);
    case transformTranslation:
        iTransforms.GetTranslation(iIndex, vector);
        return Translation(vector.GetX(), vector.GetY());
    case transformRotation: iTransforms.GetRotation(iIndex, angle); return Rotation(angle, Number(angle));
    case transformScaleX: iTransforms.GetScaleX(iIndex, scale); return Scaling(scale, 1);
    case transformScaleY: iTransforms.GetScaleY(iIndex, scale); return Scaling(1, scale);
    case transformSkewX: iTransforms.GetSkewX(iIndex, angle); return SkewX(angle);
    case transformSkewY:
        iTransforms.GetSkewY(iIndex, angle);
        return {{1, std::tan(Radians(angle)), 0, 1, 0, 0}, "skewY(" + Number(angle) + ")"};
    default: return {};
    }
}

// Ends that meet are seldom equal to the last bit.
bool Meet(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    constexpr double near = 1e-6;
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY()) <= near;
}

bool IsFinitePoint(const VEKMathPoint2D& iPoint) {
    return std::isfinite(iPoint.GetX()) && std::isfinite(iPoint.GetY());
}

int PointCount(char iCommand) { return iCommand == 'Z' ? 0 : iCommand == 'Q' ? 2 : iCommand == 'C' ? 3 : 1; }

} // namespace

Affine Affine::operator*(const Affine& iInner) const {
    return {a * iInner.a + c * iInner.b, b * iInner.a + d * iInner.b,     a * iInner.c + c * iInner.d,
            b * iInner.c + d * iInner.d, a * iInner.e + c * iInner.f + e, b * iInner.e + d * iInner.f + f};
}

bool Affine::operator==(const Affine& iOther) const {
    return a == iOther.a && b == iOther.b && c == iOther.c && d == iOther.d && e == iOther.e && f == iOther.f;
}

double Affine::Scale() const { return std::sqrt(std::fabs(Determinant())); }
double Affine::Stretch() const { return std::max(std::hypot(a, b), std::hypot(c, d)); }

Affine Affine::Inverse() const {
    const double det = Determinant();
    return {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
}

Elementary Linear(const VEKMath2x2Matrix& iMatrix) {
    const auto at = [&](int iRow, int iColumn) { return iMatrix.GetCoef(iRow, iColumn); };
    const Affine map = {at(1, 1), at(2, 1), at(1, 2), at(2, 2), 0, 0};
    return {map, Matrix(map)};
}
Elementary Translation(double iX, double iY) { return {{1, 0, 0, 1, iX, iY}, {}}; }
Elementary Rotation(double iDegrees, const std::string& iText) {
    const double cosine = std::cos(Radians(iDegrees)), sine = std::sin(Radians(iDegrees));
    return {{cosine, sine, -sine, cosine, 0, 0}, "rotate(" + iText + ")"};
}
Elementary Scaling(double iX, double iY) {
    return {{iX, 0, 0, iY, 0, 0}, "scale(" + Number(iX) + "," + Number(iY) + ")"};
}
Elementary SkewX(float iDegrees) {
    return {{1, 0, std::tan(Radians(iDegrees)), 1, 0, 0}, "skewX(" + Number(iDegrees) + ")"};
}

std::vector<Elementary> TransformsOf(const VEKPrtTransformAttributes& iTransforms) {
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    iTransforms.GetTransformTab(count, kinds);
    std::vector<Elementary> transforms;
    for (unsigned i = 0; kinds && i < count; ++i)
        transforms.push_back(TransformAt(iTransforms, i, kinds[i]));
    return transforms;
}

Affine Compose(const VEKPrtTransformAttributes& iTransforms) {
    Affine map;
    for (const Elementary& transform : TransformsOf(iTransforms))
        map = map * transform.map;
    return map;
}

// What is nothing beside the others of its kind is the noise of a computation.
std::string Matrix(const Affine& iMap) {
    constexpr double noise = 1e-12;
    std::string text;
    const auto append = [&](std::initializer_list<double> iValues) {
        double largest = 0;
        for (const double value : iValues)
            largest = std::max(largest, std::fabs(value));
        for (const double value : iValues)
            text +=
                (text.empty() ? "matrix(" : " ") + Number(std::fabs(value) < largest * noise ? 0.0 : value);
    };
    append({iMap.a, iMap.b, iMap.c, iMap.d});
    append({iMap.e, iMap.f});
    return text + ")";
}

void PathData::Add(char iCommand, std::initializer_list<VEKMathPoint2D> iPoints) {
    _commands += iCommand;
    for (const VEKMathPoint2D& point : iPoints)
        _points.push_back(point);
}

void PathData::QuadraticTo(const double* iTwoPoints) {
    const double* const p = iTwoPoints;
    Add('Q', {_map(p[0], p[1]), _map(p[2], p[3])});
}

void PathData::CubicTo(const double* iThreePoints) {
    const double* const p = iThreePoints;
    Add('C', {_map(p[0], p[1]), _map(p[2], p[3]), _map(p[4], p[5])});
}

void PathData::Close() {
    if (IsOpen()) _commands += 'Z';
}

void PathData::Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope,
                   double iStart, double iEnd) {
    if (!std::isfinite(iStart + iEnd)) return MoveTo(NAN, NAN);
    // Pieces of 45 degrees at most: off the true arc by less than 5 millionths of the radius.
    const int pieces = std::max(1, static_cast<int>(std::ceil((iEnd - iStart) / 45.0 - 1e-9)));
    const double step = Radians(iEnd - iStart) / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
    const double cosSlope = std::cos(Radians(iSlope));
    const double sinSlope = std::sin(Radians(iSlope));
    const Affine outer = _map;
    _map = outer * Affine{iRadiusX * cosSlope, iRadiusX * sinSlope, -iRadiusY * sinSlope,
                          iRadiusY * cosSlope, iCentre.GetX(),      iCentre.GetY()};
    MoveTo(std::cos(Radians(iStart)), std::sin(Radians(iStart)));
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

void PathData::Join(PathData iPrimitive) {
    std::string& commands = iPrimitive._commands;
    std::vector<VEKMathPoint2D>& points = iPrimitive._points;
    if (commands.empty()) return;
    const bool oneOpenLine = commands.find_first_of("MZ", 1) == std::string::npos;
    std::size_t joined = 0;
    if (IsOpen() && oneOpenLine) {
        // Back to front, each segment runs from the end of the next one to its own beginning.
        if (!Meet(_points.back(), points.front()) && Meet(_points.back(), points.back())) {
            std::reverse(commands.begin() + 1, commands.end());
            std::reverse(points.begin(), points.end());
        }
        joined = Meet(_points.back(), points.front()) ? 1 : 0;
        commands.front() = 'L';
    }
    const auto skipped = static_cast<std::ptrdiff_t>(joined);
    _commands.append(commands, joined);
    _points.insert(_points.end(), points.begin() + skipped, points.end());
}

bool PathData::IsFinite() const { return std::all_of(_points.begin(), _points.end(), IsFinitePoint); }

// Differences of rounded coordinates, which add up to rounded coordinates.  Readers add in single precision:
// segments in absolute coordinates, every now and then, keep them on course.
std::string PathData::Text(const Grid& iGrid) const {
    constexpr int longest = 64;
    double extent = 0;
    for (const VEKMathPoint2D& point : _points)
        extent = std::max({extent, std::fabs(point.GetX()), std::fabs(point.GetY())});
    const bool counted = iGrid.Holds(2.0 * extent);

    std::string text;
    text.reserve(_points.size() * 16);
    std::int64_t from[2] = {0, 0}, to[2] = {0, 0};
    char last = 0;
    int differences = 0;
    const VEKMathPoint2D* point = _points.data();
    for (const char command : _commands) {
        const bool relative = counted && command != 'M' && differences < longest;
        differences = relative ? differences + 1 : 0;
        const char letter = relative && command != 'Z' ? static_cast<char>(command - 'A' + 'a') : command;
        text += letter != last || command == 'M' ? letter : ' ';
        last = letter;
        for (int i = 0; i < PointCount(command); ++i, ++point) {
            if (i > 0) text += ' ';
            for (const int axis : {0, 1}) {
                const double value = axis == 0 ? point->GetX() : point->GetY();
                if (axis > 0) text += ',';
                if (counted) {
                    to[axis] = iGrid.Units(value);
                    iGrid.AppendUnits(text, relative ? to[axis] - from[axis] : to[axis]);
                } else {
                    text += iGrid(value);
                }
            }
        }
        std::copy(to, to + 2, from);
    }
    return text;
}

double ArcEnd(double iStart, double iEnd) {
    double sweep = std::fmod(iEnd - iStart, 360.0);
    if (sweep <= 0.0) sweep += 360.0;
    return iStart + sweep;
}

} // namespace vekprt::svg
