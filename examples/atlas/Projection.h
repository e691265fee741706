// The map projections of the atlas, for a spherical earth.
#ifndef Projection_H
#define Projection_H

#include "Geometry.h"

constexpr double earthRadius = 6371.0; // kilometres
constexpr double degree = 3.14159265358979323846 / 180.0;

/// From longitude and latitude to kilometres east and north of a centre, true in area.
///
/// Equal Earth for the whole world, whose centre is on the equator; Lambert's azimuthal projection for a part
/// of it, where at the centre shapes are true, too.
class Projection {
public:
    Projection(const Position& iCentre, bool iIsWorld) : _centre(iCentre), _isWorld(iIsWorld) {}

    const Position& Centre() const { return _centre; }
    bool IsWorld() const { return _isWorld; }
    const char* Name() const;

    /// For longitudes within 180 degrees of the centre.
    Position Forward(const Position& iLonLat) const;

    /// For a part of the world; \p iPosition is on the map.
    Position Inverse(const Position& iPosition) const;

    /// The longitudes and latitudes that are enough to cover what is nearer than \p iDistance to the centre
    /// on the map; for the world, all of them.
    Box WindowFor(double iDistance) const;

    /// Map kilometres to a kilometre of the ground, along the parallel through the centre.
    double ScaleAtCentre() const;

private:
    Position _centre;
    bool _isWorld;
};

#endif
