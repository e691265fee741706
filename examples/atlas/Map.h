// Longitudes and latitudes, and what a page shows of them.
#ifndef Map_H
#define Map_H

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

constexpr double earthRadius = 6371.0; // kilometres
constexpr double degree = 3.14159265358979323846 / 180.0;

/// Longitude and latitude in degrees before projection, page millimetres after it.
struct Position {
    double x = 0.0;
    double y = 0.0;
};

/// A polyline, or a ring whose last position is joined to the first and does not repeat it.
using Path = std::vector<Position>;

/// Empty at first.
struct Box {
    double minX = std::numeric_limits<double>::infinity();
    double minY = minX;
    double maxX = -minX;
    double maxY = -minX;

    double Width() const { return maxX - minX; }
    double Height() const { return maxY - minY; }
    Position Centre() const { return {(minX + maxX) / 2.0, (minY + maxY) / 2.0}; }
    /// Counter-clockwise, and back to the first.
    Path Corners() const { return {{minX, minY}, {maxX, minY}, {maxX, maxY}, {minX, maxY}, {minX, minY}}; }
    void Add(const Path& iPath) {
        for (const Position& position : iPath)
            *this = {std::min(minX, position.x), std::min(minY, position.y), std::max(maxX, position.x),
                     std::max(maxY, position.y)};
    }
};

/// The path without jumps: each longitude follows the one before by the short way.
Path Unrolled(Path iPath);

/// Positive whatever the direction of the ring.
double AreaOf(const Path& iRing);

/// The parts of the polyline within the box.
std::vector<Path> ClipLine(const Path& iLine, const Box& iBox);

/// A limit on how many positions may be made: small files can describe very long paths.
struct Allowance {
    std::size_t positions;
    /// Throws std::runtime_error when \p iPositions is more than is left.
    void Spend(std::size_t iPositions);
};

/// From longitude and latitude to kilometres east and north of a centre on a spherical earth.
///
/// Wagner's sixth projection for the whole world, whose centre is on the equator: lengths are true along the
/// equator.  Lambert's azimuthal projection for a part of it: areas are true, and lengths at the centre.
struct Projection {
    Position centre;
    bool isWorld;

    /// For longitudes within 180 degrees of the centre.
    Position Forward(const Position& iLonLat) const;
    /// The path with more positions, projected, so that meridians and parallels become curves.
    Path Forward(const Path& iPath, bool iIsClosed, Allowance& ioAllowance) const;
    /// The longitudes and latitudes that cover at least what is within \p iDistance of the centre on the map;
    /// all of them for the world.
    Box WindowFor(double iDistance) const;
};

/// A projection at a scale, in a frame on the page.
///
/// Longitudes in the data jump at the antimeridian, and a ring around a pole does not close.  Each path is
/// unrolled, repeated to the left and right, clipped to the longitudes and latitudes that the frame needs,
/// projected, and clipped to the frame.
class MapView {
public:
    /// Borrows the allowance.  \p iFrame is in page millimetres, \p iScale the 1 in so many, and \p iMiddle
    /// is what the centre of the frame shows, in projected kilometres.
    MapView(const Projection& iProjection, const Position& iMiddle, double iScale, const Box& iFrame,
            Allowance& ioAllowance);

    /// The visible parts of a ring; none when it is too small to be seen.
    std::vector<Path> Rings(const Path& iRing) const;

    /// The visible parts of a polyline, without edges that only the data has: along the antimeridian and
    /// around a pole.
    std::vector<Path> Lines(const Path& iLine) const;

    const Projection projection;
    const Box frame;
    const double millimetres; // on the page, per projected kilometre
    Box window;
    Path outline; // closed: the rim of the globe on a world map, otherwise of the frame

private:
    Path ToPage(const Path& iPath, bool iIsClosed) const;
    /// The path three times, a turn apart, the second one at the centre.
    std::vector<Path> Copies(const Path& iPath) const;

    Allowance& _allowance;
    const Position _origin; // of the projection, on the page
};

#endif
