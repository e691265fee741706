#include "Projection.h"

#include <algorithm>
#include <cmath>

namespace {

Position EqualEarth(double iLongitude, double iLatitude) {
    constexpr double a1 = 1.340264, a2 = -0.081106, a3 = 0.000893, a4 = 0.003796;
    const double root = std::sqrt(3.0);
    const double theta = std::asin(root / 2.0 * std::sin(iLatitude));
    const double square = theta * theta;
    const double sixth = square * square * square;
    const double slope = a1 + 3.0 * a2 * square + sixth * (7.0 * a3 + 9.0 * a4 * square);
    return {earthRadius * 2.0 * root * iLongitude * std::cos(theta) / (3.0 * slope),
            earthRadius * theta * (a1 + a2 * square + sixth * (a3 + a4 * square))};
}

// The angle on the globe of a distance from the centre of the azimuthal map.
double AngleOf(double iDistance) { return 2.0 * std::asin(std::min(iDistance / earthRadius / 2.0, 1.0)); }

} // namespace

const char* Projection::Name() const {
    return _isWorld ? "Equal Earth projection" : "Lambert azimuthal equal-area projection";
}

Position Projection::Forward(const Position& iLonLat) const {
    const double longitude = (iLonLat.x - _centre.x) * degree;
    if (_isWorld) return EqualEarth(longitude, iLonLat.y * degree);
    const double sine = std::sin(iLonLat.y * degree), cosine = std::cos(iLonLat.y * degree);
    const double north = std::sin(_centre.y * degree), level = std::cos(_centre.y * degree);
    const double cosineDistance = north * sine + level * cosine * std::cos(longitude);
    // The antipode is a whole circle on the map; the bound yields a finite point for it.
    const double scale = earthRadius * std::sqrt(2.0 / std::max(1.0 + cosineDistance, 1e-9));
    return {scale * cosine * std::sin(longitude),
            scale * (level * sine - north * cosine * std::cos(longitude))};
}

Position Projection::Inverse(const Position& iPosition) const {
    const double distance = std::hypot(iPosition.x, iPosition.y);
    if (distance == 0.0) return _centre;
    const double sine = std::sin(AngleOf(distance)), cosine = std::cos(AngleOf(distance));
    const double east = iPosition.x / distance * sine, up = iPosition.y / distance * sine;
    const double north = std::sin(_centre.y * degree), level = std::cos(_centre.y * degree);
    return {_centre.x + std::atan2(east, level * cosine - up * north) / degree,
            std::asin(std::clamp(cosine * north + up * level, -1.0, 1.0)) / degree};
}

Box Projection::WindowFor(double iDistance) const {
    const double angle = AngleOf(iDistance) / degree;
    Box window{_centre.x - 180.0, -90.0, _centre.x + 180.0, 90.0};
    if (_isWorld) return window;
    window.minY = std::max(_centre.y - angle, -90.0);
    window.maxY = std::min(_centre.y + angle, 90.0);
    if (window.minY == -90.0 || window.maxY == 90.0) return window;
    const double half = std::asin(std::sin(angle * degree) / std::cos(_centre.y * degree)) / degree;
    window.minX = _centre.x - half;
    window.maxX = _centre.x + half;
    return window;
}

double Projection::ScaleAtCentre() const {
    // All along the equator it is the same.
    return _isWorld ? Forward({_centre.x + 1.0, 0.0}).x / (earthRadius * degree) : 1.0;
}
