// Affine maps, and the transforms of elements as such.
#ifndef Affine_H
#define Affine_H

#include <vector>

#include "VEKMathPoint2D.h"
#include "VEKPrintTransformType.h"

class VEKMath2x2Matrix;
class VEKPrtTransformAttributes;

namespace vekprt::drawing {

/// x' = a x + c y + e, y' = b x + d y + f.
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    VEKMathPoint2D operator()(double iX, double iY) const {
        return {a * iX + c * iY + e, b * iX + d * iY + f};
    }
    /// First \p iInner, then this.
    Affine operator*(const Affine& iInner) const;
    bool operator==(const Affine& iOther) const;
    double Determinant() const { return a * d - b * c; }
    /// The mean scale factor: the square root of the determinant.
    double Scale() const;
    /// The larger of the scale factors of the two axes.
    double Stretch() const;
    /// A length where this leads to, as the one that is stretched to it; 0 where everything becomes a point.
    double Unstretched(double iLength) const;
    /// Meant for maps whose determinant is not 0.
    Affine Inverse() const;
};

double Radians(double iDegrees);

/// One transform, with the one or two numbers that it is made of; a matrix has its map alone.
struct Elementary {
    VEKPrintTransformType kind;
    Affine map;
    double x = 0, y = 0;
};
Elementary Linear(const VEKMath2x2Matrix& iMatrix);
Elementary Translation(double iX, double iY);
Elementary Rotation(double iDegrees);
Elementary Scaling(double iX, double iY);
Elementary SkewX(double iDegrees);
Elementary SkewY(double iDegrees);

/// In their order; an entry without a value is left out.
std::vector<Elementary> TransformsOf(const VEKPrtTransformAttributes& iTransforms);
/// The composition of the transforms, the first one outermost.
Affine Compose(const std::vector<Elementary>& iTransforms);

} // namespace vekprt::drawing

#endif
