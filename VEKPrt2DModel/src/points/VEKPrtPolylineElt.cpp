#include "VEKPrtPolylineElt.h"

#include "PointArray.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtPolylineElt, 17)
VEKPRT_IMPLEMENT_POINT_CONSTRUCTORS(VEKPrtPolylineElt, 1)
VEKPRT_IMPLEMENT_POINT_ARRAY(VEKPrtPolylineElt)
VEKPRT_IMPLEMENT_STROKED_POINTS(VEKPrtPolylineElt)

void VEKPrtPolylineElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}
