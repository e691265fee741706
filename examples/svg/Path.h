// Affine maps and path data.
#ifndef Path_H
#define Path_H

#include <string>
#include <vector>

#include "VEKMathPoint2D.h"

class VEKPrtTransformAttributes;

/// x' = a x + c y + e, y' = b x + d y + f, the order of SVG's matrix().
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    VEKMathPoint2D operator()(double iX, double iY) const {
        return {a * iX + c * iY + e, b * iX + d * iY + f};
    }
    /// First \p iInner, then this.
    Affine operator*(const Affine& iInner) const;
};

/// The composition of the transforms, the first one outermost.
Affine Compose(const VEKPrtTransformAttributes& iTransforms);

/// Path data for the `d` attribute; every point passes through the map.
class Path {
public:
    void SetMap(const Affine& iMap) { _map = iMap; }

    void MoveTo(double iX, double iY) { Add('M', {_map(iX, iY)}); }
    void LineTo(double iX, double iY) { Add('L', {_map(iX, iY)}); }
    void QuadraticTo(const double* iTwoPoints);
    void CubicTo(const double* iThreePoints);
    void Close();

    /// Begins a primitive of an outline: moves to its first point, or draws a line to it where one is open
    /// and that is not where it ends.
    void Join(double iX, double iY);

    /// An elliptical arc from one parameter (in degrees) to a greater one, as cubic curves.
    void Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
             double iEnd);

    const std::string& Data() const { return _data; }

private:
    void Add(char iCommand, const std::vector<VEKMathPoint2D>& iPoints);

    Affine _map;
    std::string _data;
    bool _open = false;
    VEKMathPoint2D _last;
};

/// The end of a counter-clockwise arc as an angle above its start, at most one turn.
double ArcEnd(double iStart, double iEnd);
/// A point of an ellipse at a parameter in degrees.
VEKMathPoint2D OnEllipse(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope,
                         double iParameter);

#endif
