#include "Path.h"

#include <algorithm>
#include <cmath>

namespace vekprt::drawing {

namespace {

// Ends that meet are seldom equal to the last bit.
bool Meet(const VEKMathPoint2D& iA, const VEKMathPoint2D& iB) {
    constexpr double near = 1e-6;
    return std::hypot(iA.GetX() - iB.GetX(), iA.GetY() - iB.GetY()) <= near;
}

} // namespace

void Path::Add(char iCommand, std::initializer_list<VEKMathPoint2D> iPoints) {
    _commands += iCommand;
    for (const VEKMathPoint2D& point : iPoints)
        _points.push_back(_map(point.GetX(), point.GetY()));
}

void Path::Close() {
    if (IsOpen()) _commands += 'Z';
}

void Path::Rectangle(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond) {
    MoveTo(iFirst);
    LineTo({iSecond.GetX(), iFirst.GetY()});
    LineTo(iSecond);
    LineTo({iFirst.GetX(), iSecond.GetY()});
    Close();
}

void Path::Arc(const EllipseShape& iShape) {
    if (!std::isfinite(iShape.start + iShape.end)) return MoveTo({NAN, NAN});
    // Pieces of 45 degrees at most: off the true arc by less than 5 millionths of the radius.
    const double turn = iShape.end - iShape.start;
    const int pieces = std::max(1, static_cast<int>(std::ceil(turn / 45.0 - 1e-9)));
    const double step = Radians(turn) / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
    const double cosSlope = std::cos(Radians(iShape.slope));
    const double sinSlope = std::sin(Radians(iShape.slope));
    const Affine outer = _map;
    _map = outer * Affine{iShape.radiusX * cosSlope, iShape.radiusX * sinSlope, -iShape.radiusY * sinSlope,
                          iShape.radiusY * cosSlope, iShape.centre.GetX(),      iShape.centre.GetY()};
    // On the unit circle, or so much further along its tangent.
    const auto at = [](double iAngle, double iFurther) {
        return VEKMathPoint2D(std::cos(iAngle) - iFurther * std::sin(iAngle),
                              std::sin(iAngle) + iFurther * std::cos(iAngle));
    };
    const double start = Radians(iShape.start);
    MoveTo(at(start, 0));
    for (int i = 0; i < pieces; ++i) {
        const double from = start + i * step;
        const double to = from + step;
        CubicTo(at(from, handle), at(to, -handle), at(to, 0));
    }
    _map = outer;
}

void Path::Join(Path iPrimitive) {
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

double ArcEnd(double iStart, double iEnd) {
    double sweep = std::fmod(iEnd - iStart, 360.0);
    if (sweep <= 0.0) sweep += 360.0;
    return iStart + sweep;
}

} // namespace vekprt::drawing
