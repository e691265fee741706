// Rational B-spline curves, by de Boor's algorithm.
#ifndef Nurbs_H
#define Nurbs_H

#include <string>
#include <vector>

#include "VEKMathPoint2D.h"

class VEKPrtNURBSElt;

namespace vekprt::svg {

/// Points along the curve, so close that the polygon through them leaves it by no more than \p iTolerance.
///
/// Drawn is the part of the curve's parameter range that lies within the element's two bounds.  Empty, with
/// the reason in \p oProblem, for data that is no curve: an order below 2 or above the number of control
/// points, missing arrays, knots that decrease, weights that are not positive, values that are not finite,
/// bounds outside the range.
std::vector<VEKMathPoint2D> SampleNurbs(const VEKPrtNURBSElt& iCurve, double iTolerance,
                                        std::string& oProblem);

} // namespace vekprt::svg

#endif
