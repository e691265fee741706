/// \file
/// A point in the plane.
#ifndef VEKMathPoint2D_H
#define VEKMathPoint2D_H

/// Two coordinates, without a unit of their own; (0, 0) by default.
class VEKMathPoint2D {
public:
    VEKMathPoint2D(double iX = 0.0, double iY = 0.0) : _x(iX), _y(iY) {}

    double GetX() const { return _x; }
    double GetY() const { return _y; }
    void SetX(double iX) { _x = iX; }
    void SetY(double iY) { _y = iY; }

    /// Exact: no tolerance.
    bool operator==(const VEKMathPoint2D& iOther) const { return _x == iOther._x && _y == iOther._y; }
    bool operator!=(const VEKMathPoint2D& iOther) const { return !(*this == iOther); }

private:
    double _x;
    double _y;
};

#endif
