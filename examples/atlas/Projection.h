// Map projections of a spherical earth.
#ifndef Projection_H
#define Projection_H

#include "Geometry.h"

constexpr double kEarthRadius = 6371.0; // kilometres
constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;

/// From longitude and latitude to kilometres east and north of the centre.
class Projection {
public:
    explicit Projection(const Point& iCentre) : _centre(iCentre) {}
    Projection(const Projection&) = delete;
    Projection& operator=(const Projection&) = delete;
    virtual ~Projection() = default;

    const Point& Centre() const { return _centre; }

    /// For longitudes within 180 degrees of the centre.
    virtual Point Forward(const Point& iLonLat) const = 0;

    /// The longitudes and latitudes that are enough to cover \p iFrame, given in kilometres.
    virtual Box WindowFor(const Box& iFrame) const = 0;

    /// Whether the edge of the window is the edge of the map, as on a map of the whole world.
    virtual bool WindowIsOutline() const = 0;

    /// Map kilometres to a kilometre of the ground, along the parallel through the centre.
    virtual double ScaleAtCentre() const = 0;

    virtual const char* Name() const = 0;

private:
    const Point _centre;
};

/// The whole world, true in area; the centre is on the equator.
class EqualEarth : public Projection {
public:
    explicit EqualEarth(double iMeridian) : Projection({iMeridian, 0.0}) {}
    Point Forward(const Point& iLonLat) const override;
    Box WindowFor(const Box& iFrame) const override;
    bool WindowIsOutline() const override { return true; }
    double ScaleAtCentre() const override;
    const char* Name() const override { return "Equal Earth projection"; }
};

/// A continent, true in area and, at the centre, in shape.
class LambertAzimuthal : public Projection {
public:
    explicit LambertAzimuthal(const Point& iCentre);
    Point Forward(const Point& iLonLat) const override;

    /// Keeps the antipode of the centre, where the projection is torn, out of the window if the frame does
    /// not reach round the globe.
    Box WindowFor(const Box& iFrame) const override;
    bool WindowIsOutline() const override { return false; }
    double ScaleAtCentre() const override { return 1.0; }
    const char* Name() const override { return "Lambert azimuthal equal-area projection"; }

private:
    bool Inverse(const Point& iPoint, Point& oLonLat) const;
    Box WholeGlobe() const;

    const double _sine;
    const double _cosine;
};

#endif
