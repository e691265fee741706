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
    double Determinant() const { return a * d - b * c; }
    /// By how much lengths grow, on the average of all directions.
    double Scale() const;
    /// Meant for maps whose determinant is not 0.
    Affine Inverse() const;
};

/// One transform of a record, as SVG writes it and as a map.
struct Elementary {
    std::string svg;
    Affine map;
};
/// Those of the record that have a value, in their order.
std::vector<Elementary> TransformsOf(const VEKPrtTransformAttributes& iTransforms);
/// The composition of the transforms, the first one outermost.
Affine Compose(const VEKPrtTransformAttributes& iTransforms);
std::string Matrix(const Affine& iMap);

/// Path data for the `d` attribute; every point passes through the map.
class PathData {
public:
    void SetMap(const Affine& iMap) { _map = iMap; }
    const Affine& Map() const { return _map; }

    void MoveTo(double iX, double iY) { Add('M', {_map(iX, iY)}); }
    void LineTo(double iX, double iY) { Add('L', {_map(iX, iY)}); }
    void QuadraticTo(const double* iTwoPoints);
    void CubicTo(const double* iThreePoints);
    void Close() { Add('Z', {}); }

    /// An elliptical arc from one parameter (in degrees) to a greater one, as cubic curves.
    void Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
             double iEnd);

    /// Appends the next primitive of an outline.  One that ends where the outline has got to, but does not
    /// begin there, is turned round; a line is drawn to one that does neither.
    void Join(const PathData& iPrimitive);

    bool IsFinite() const { return _finite; }
    std::string Text() const;

private:
    struct Segment {
        char command;
        std::vector<VEKMathPoint2D> points;
    };
    void Add(char iCommand, std::vector<VEKMathPoint2D> iPoints);
    bool IsOneOpenLine() const;
    PathData Reversed() const;

    Affine _map;
    std::vector<Segment> _segments;
    bool _finite = true;
};

/// The end of a counter-clockwise arc as an angle above its start, at most one turn.
double ArcEnd(double iStart, double iEnd);
/// A point of an ellipse at a parameter in degrees.
VEKMathPoint2D OnEllipse(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope,
                         double iParameter);

#endif
