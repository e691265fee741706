// Rational B-spline curves.
#ifndef Nurbs_H
#define Nurbs_H

#include <string>
#include <vector>

#include "VEKMathPoint2D.h"

class VEKPrtNURBSElt;

namespace vekprt::drawing {

/// Points along the curve, so close that the polygon through them leaves it by no more than \p iTolerance.
///
/// Only the part of the parameter range within the element's two bounds is drawn.  Empty, with the reason in
/// \p oProblem, for invalid data: an order below 2 or above the number of control points, missing arrays,
/// knots that decrease, weights that are not positive, values that are not finite, bounds outside the range.
std::vector<VEKMathPoint2D> SampleNurbs(const VEKPrtNURBSElt& iCurve, double iTolerance,
                                        std::string& oProblem);

} // namespace vekprt::drawing

#endif
