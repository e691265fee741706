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
        _points.push_back(point);
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
    if (IsOpen()) _commands += 'Z';
}

void Path::Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
               double iEnd) {
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
