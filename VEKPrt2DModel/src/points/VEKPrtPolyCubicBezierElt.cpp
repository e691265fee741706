#include "VEKPrtPolyCubicBezierElt.h"

#include "PointArray.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtPolyCubicBezierElt, 24)
VEKPRT_IMPLEMENT_POINT_CONSTRUCTORS(VEKPrtPolyCubicBezierElt, 1)
VEKPRT_IMPLEMENT_POINT_ARRAY(VEKPrtPolyCubicBezierElt)
VEKPRT_IMPLEMENT_STROKED_POINTS(VEKPrtPolyCubicBezierElt)

void VEKPrtPolyCubicBezierElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}
