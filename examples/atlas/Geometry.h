// Points, paths and boxes of the atlas.
#ifndef Geometry_H
#define Geometry_H

#include <vector>

/// A position: longitude and latitude in degrees before projection, page millimetres after it.
struct Point {
    double x = 0.0;
    double y = 0.0;
};

inline bool operator==(const Point& iLeft, const Point& iRight) {
    return iLeft.x == iRight.x && iLeft.y == iRight.y;
}

/// A polyline, or a ring whose last point is joined to the first and does not repeat it.
using Path = std::vector<Point>;

struct Box {
    double minX = 0.0;
    double minY = 0.0;
    double maxX = 0.0;
    double maxY = 0.0;

    double Width() const { return maxX - minX; }
    double Height() const { return maxY - minY; }
    Point Centre() const { return {(minX + maxX) / 2.0, (minY + maxY) / 2.0}; }
    Box Grown(double iMargin) const {
        return {minX - iMargin, minY - iMargin, maxX + iMargin, maxY + iMargin};
    }
    bool Contains(const Point& iPoint) const {
        return iPoint.x >= minX && iPoint.x <= maxX && iPoint.y >= minY && iPoint.y <= maxY;
    }
    bool Overlaps(const Box& iOther) const {
        return minX <= iOther.maxX && iOther.minX <= maxX && minY <= iOther.maxY && iOther.minY <= maxY;
    }
};

/// The smallest box round \p iPath; at the origin for an empty path.
Box BoundsOf(const Path& iPath);

/// Positive whatever the direction of the ring.
double AreaOf(const Path& iRing);

/// By the even-odd rule over all of \p iRings.
bool IsInside(const std::vector<Path>& iRings, const Point& iPoint);

#endif
