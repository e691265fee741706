#include "Projection.h"

#include <algorithm>
#include <cmath>

Point EqualEarth::Forward(const Point& iLonLat) const {
    constexpr double a1 = 1.340264;
    constexpr double a2 = -0.081106;
    constexpr double a3 = 0.000893;
    constexpr double a4 = 0.003796;
    const double root = std::sqrt(3.0);
    const double theta = std::asin(root / 2.0 * std::sin(iLonLat.y * kDegree));
    const double square = theta * theta;
    const double sixth = square * square * square;
    const double slope = a1 + 3.0 * a2 * square + sixth * (7.0 * a3 + 9.0 * a4 * square);
    const double longitude = (iLonLat.x - Centre().x) * kDegree;
    return {kEarthRadius * 2.0 * root * longitude * std::cos(theta) / (3.0 * slope),
            kEarthRadius * theta * (a1 + a2 * square + sixth * (a3 + a4 * square))};
}

Box EqualEarth::WindowFor(const Box&) const { return {Centre().x - 180.0, -90.0, Centre().x + 180.0, 90.0}; }

double EqualEarth::ScaleAtCentre() const {
    // All along the equator it is the same.
    return Forward({Centre().x + 1.0, 0.0}).x / (kEarthRadius * kDegree);
}

LambertAzimuthal::LambertAzimuthal(const Point& iCentre)
    : Projection(iCentre), _sine(std::sin(iCentre.y * kDegree)), _cosine(std::cos(iCentre.y * kDegree)) {}

Point LambertAzimuthal::Forward(const Point& iLonLat) const {
    const double longitude = (iLonLat.x - Centre().x) * kDegree;
    const double sine = std::sin(iLonLat.y * kDegree);
    const double cosine = std::cos(iLonLat.y * kDegree);
    const double cosineDistance = _sine * sine + _cosine * cosine * std::cos(longitude);
    // The antipode is a whole circle on the map; the bound yields a finite point for it.
    const double scale = kEarthRadius * std::sqrt(2.0 / std::max(1.0 + cosineDistance, 1e-9));
    return {scale * cosine * std::sin(longitude),
            scale * (_cosine * sine - _sine * cosine * std::cos(longitude))};
}

bool LambertAzimuthal::Inverse(const Point& iPoint, Point& oLonLat) const {
    const double rho = std::hypot(iPoint.x, iPoint.y) / kEarthRadius;
    if (rho >= 2.0) return false;
    const double distance = 2.0 * std::asin(rho / 2.0);
    const double sine = std::sin(distance);
    const double cosine = std::cos(distance);
    const double x = iPoint.x / kEarthRadius;
    const double y = iPoint.y / kEarthRadius;
    const double ratio = rho > 0.0 ? sine / rho : 1.0;
    const double sineLatitude = cosine * _sine + y * ratio * _cosine;
    oLonLat.y = std::asin(std::clamp(sineLatitude, -1.0, 1.0)) / kDegree;
    oLonLat.x = Centre().x + std::atan2(x * ratio, _cosine * cosine - y * ratio * _sine) / kDegree;
    return true;
}

Box LambertAzimuthal::WholeGlobe() const { return {Centre().x - 180.0, -90.0, Centre().x + 180.0, 90.0}; }

Box LambertAzimuthal::WindowFor(const Box& iFrame) const {
    // But for the poles, longitude and latitude take their extremes on the rim of the frame.
    constexpr int steps = 400;
    constexpr double margin = 1.0;
    Path rim;
    for (int i = 0; i <= steps; ++i) {
        const double x = iFrame.minX + iFrame.Width() * i / steps;
        const double y = iFrame.minY + iFrame.Height() * i / steps;
        for (const Point& point :
             {Point{x, iFrame.minY}, Point{x, iFrame.maxY}, Point{iFrame.minX, y}, Point{iFrame.maxX, y}}) {
            Point lonLat;
            if (!Inverse(point, lonLat)) return WholeGlobe();
            rim.push_back(lonLat);
        }
    }
    Box window = BoundsOf(rim).Grown(margin);
    const bool north = iFrame.Contains(Forward({Centre().x, 90.0}));
    const bool south = iFrame.Contains(Forward({Centre().x, -90.0}));
    const Box globe = WholeGlobe();
    if (north || south) {
        window.minX = globe.minX;
        window.maxX = globe.maxX;
    }
    window.minX = std::max(window.minX, globe.minX);
    window.maxX = std::min(window.maxX, globe.maxX);
    window.minY = south ? globe.minY : std::max(window.minY, globe.minY);
    window.maxY = north ? globe.maxY : std::min(window.maxY, globe.maxY);
    return window;
}
