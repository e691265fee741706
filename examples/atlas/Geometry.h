// Positions, paths and boxes of the atlas; cutting paths to a box, and sampling them anew.
#ifndef Geometry_H
#define Geometry_H

#include <cstddef>
#include <limits>
#include <vector>

/// Longitude and latitude in degrees before projection, page millimetres after it.
struct Position {
    double x = 0.0;
    double y = 0.0;
};

inline bool operator==(const Position& iLeft, const Position& iRight) {
    return iLeft.x == iRight.x && iLeft.y == iRight.y;
}

/// A polyline, or a ring whose last position is joined to the first and does not repeat it.
using Path = std::vector<Position>;

/// Contains nothing at first.
struct Box {
    double minX = std::numeric_limits<double>::infinity();
    double minY = minX;
    double maxX = -minX;
    double maxY = -minX;

    double Width() const { return maxX - minX; }
    double Height() const { return maxY - minY; }
    Position Centre() const { return {(minX + maxX) / 2.0, (minY + maxY) / 2.0}; }
    Box Grown(double iMargin) const {
        return {minX - iMargin, minY - iMargin, maxX + iMargin, maxY + iMargin};
    }
    bool Overlaps(const Box& iOther) const;
    void Add(const Position& iPosition);
    void Add(const Box& iOther);
};

Box BoundsOf(const Path& iPath);
Box BoundsOf(const std::vector<Path>& iPaths);

/// Positive whatever the direction of the ring.
double AreaOf(const Path& iRing);

/// The part of the ring within the box; empty when there is none.
///
/// Parts that fall asunder stay joined by edges along the box, which enclose no area.
Path ClipRing(const Path& iRing, const Box& iBox);

/// The parts of the polyline within the box.
std::vector<Path> ClipLine(const Path& iLine, const Box& iBox);

/// How many positions may be made: small files can ask for paths without measure.
class Allowance {
public:
    explicit Allowance(std::size_t iPositions) : _most(iPositions), _left(iPositions) {}
    /// Throws std::runtime_error when that is more than is left.
    void Spend(std::size_t iPositions);

private:
    std::size_t _most;
    std::size_t _left;
};

/// Adds positions so that no edge is longer than \p iStep in x or in y.
Path Densified(const Path& iPath, double iStep, bool iClosed, Allowance& ioAllowance);

/// Leaves out positions nearer than \p iDistance to the one kept before; the first and the last stay.
Path Thinned(const Path& iPath, double iDistance);

#endif
