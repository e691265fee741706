#include "VEKPrtPolyQuadraticBezierElt.h"

#include "PointArray.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtPolyQuadraticBezierElt, 28)
VEKPRT_IMPLEMENT_POINT_CONSTRUCTORS(VEKPrtPolyQuadraticBezierElt, 1)
VEKPRT_IMPLEMENT_POINT_ARRAY(VEKPrtPolyQuadraticBezierElt)
VEKPRT_IMPLEMENT_STROKED_POINTS(VEKPrtPolyQuadraticBezierElt)

void VEKPrtPolyQuadraticBezierElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}
