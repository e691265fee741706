#include "VEKPrtDisjointPolylineElt.h"

#include "ElementProtocol.h"
#include "PointArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtDisjointPolylineElt, 25, VEKPrtGraphicPrimitiveElt)

VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt() = default;

// Counts are rounded towards zero to whole segments.
VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _count(2 * (iPoints.Size() / 2)) {
    _points = vekprt::NewPointsFromList(iPoints, _count, 0);
}

VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt(const double* iPoints, int iCount)
    : _count(2 * (iCount / 2)) {
    if (_count > 0) _points = vekprt::NewPoints(iPoints, _count);
}

VEKPrtDisjointPolylineElt::VEKPrtDisjointPolylineElt(const VEKPrtDisjointPolylineElt& iOther)
    : VEKPrtDisjointPolylineElt() {
    CopyOwn(iOther);
}

VEKPrtDisjointPolylineElt::~VEKPrtDisjointPolylineElt() { vekprt::DeleteArray(_points); }

VEKPrtDisjointPolylineElt& VEKPrtDisjointPolylineElt::operator=(const VEKPrtDisjointPolylineElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtDisjointPolylineElt::CopyOwn);
    return *this;
}

void VEKPrtDisjointPolylineElt::CopyOwn(const VEKPrtDisjointPolylineElt& iOther) {
    vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

// Unlike the other point sequences, duplicated by default construction and assignment.
void VEKPrtDisjointPolylineElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByAssignment(*this, oCopy);
}

void VEKPrtDisjointPolylineElt::SetPoints(const double* iPoints, int iCount) {
    vekprt::ReplacePoints(_points, _count, iPoints, iCount);
}

void VEKPrtDisjointPolylineElt::GetPoints(double*& oPoints, int& oCount) const {
    oPoints = _points;
    oCount = _count;
}

void VEKPrtDisjointPolylineElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtDisjointPolylineElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtDisjointPolylineElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtDisjointPolylineElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
