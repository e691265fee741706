// Affine maps and path data.
#ifndef Path_H
#define Path_H

#include <initializer_list>
#include <string>
#include <vector>

#include "Number.h"
#include "VEKMathPoint2D.h"

class VEKMath2x2Matrix;
class VEKPrtTransformAttributes;

namespace vekprt::svg {

/// x' = a x + c y + e, y' = b x + d y + f, the order of SVG's matrix().
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    VEKMathPoint2D operator()(double iX, double iY) const {
        return {a * iX + c * iY + e, b * iX + d * iY + f};
    }
    /// First \p iInner, then this.
    Affine operator*(const Affine& iInner) const;
    bool operator==(const Affine& iOther) const;
    double Determinant() const { return a * d - b * c; }
    /// By how much lengths grow, on the average of all directions.
    double Scale() const;
    /// By how much the axis grows that grows more.
    double Stretch() const;
    /// Meant for maps whose determinant is not 0.
    Affine Inverse() const;
};

/// One transform, and how SVG writes it; empty for a translation, which is rounded like coordinates.
struct Elementary {
    Affine map;
    std::string text;
};
Elementary Linear(const VEKMath2x2Matrix& iMatrix);
Elementary Translation(double iX, double iY);
Elementary Rotation(double iDegrees, const std::string& iText);
Elementary Scaling(double iX, double iY);
Elementary SkewX(float iDegrees);

/// In their order; the identity for a kind without a value.
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
    // One segment; its points are pairs: x, y.
    void QuadraticTo(const double* iTwoPoints);
    void CubicTo(const double* iThreePoints);
    void Close();

    /// An elliptical arc from one parameter (in degrees) to a greater one, as cubic curves.
    void Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
             double iEnd);

    /// Appends the next primitive of an outline.  One that ends where the outline has got to, but does not
    /// begin there, is turned round; a line is drawn to one that does neither.
    void Join(PathData iPrimitive);

    bool IsFinite() const;
    std::string Text(const Grid& iGrid) const;

private:
    void Add(char iCommand, std::initializer_list<VEKMathPoint2D> iPoints);
    bool IsOpen() const { return !_commands.empty() && _commands.back() != 'Z'; }

    Affine _map;
    // One of M, L, Q, C and Z a segment, and the points of all segments.
    std::string _commands;
    std::vector<VEKMathPoint2D> _points;
};

/// The end of a counter-clockwise arc as an angle above its start, at most one turn.
double ArcEnd(double iStart, double iEnd);

} // namespace vekprt::svg

#endif
