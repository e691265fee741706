#include "Geometry.h"

#include <algorithm>
#include <cmath>

Box BoundsOf(const Path& iPath) {
    if (iPath.empty()) return {};
    Box box{iPath[0].x, iPath[0].y, iPath[0].x, iPath[0].y};
    for (const Point& point : iPath) {
        box.minX = std::min(box.minX, point.x);
        box.minY = std::min(box.minY, point.y);
        box.maxX = std::max(box.maxX, point.x);
        box.maxY = std::max(box.maxY, point.y);
    }
    return box;
}

double AreaOf(const Path& iRing) {
    double twice = 0.0;
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Point& from = iRing[i];
        const Point& to = iRing[(i + 1) % iRing.size()];
        twice += from.x * to.y - to.x * from.y;
    }
    return std::abs(twice) / 2.0;
}

bool IsInside(const std::vector<Path>& iRings, const Point& iPoint) {
    bool inside = false;
    for (const Path& ring : iRings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point& a = ring[i];
            const Point& b = ring[(i + 1) % ring.size()];
            if ((a.y > iPoint.y) == (b.y > iPoint.y)) continue;
            if (iPoint.x < a.x + (b.x - a.x) * (iPoint.y - a.y) / (b.y - a.y)) inside = !inside;
        }
    }
    return inside;
}
