#include "VEKPrtDisjointPolylineElt.h"

#include "PointArray.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtDisjointPolylineElt, 25)
VEKPRT_IMPLEMENT_POINT_ARRAY(VEKPrtDisjointPolylineElt)
VEKPRT_IMPLEMENT_STROKED_POINTS(VEKPrtDisjointPolylineElt)

VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt() = default;

// Whole segments only, rounded towards zero; position 0 comes first, as in the polygon.
VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _count(2 * (iPoints.Size() / 2)) {
    vekprt::NewPointsFromList(_points, _count, iPoints, 0);
}

VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt(const double* iPoints, int iCount)
    : _count(2 * (iCount / 2)) {
    if (_count > 0) vekprt::NewPoints(_points, _count, iPoints);
}

// By another recipe than the other point sequences.
void VEKPrtDisjointPolylineElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByAssignment(*this, oCopy);
}
