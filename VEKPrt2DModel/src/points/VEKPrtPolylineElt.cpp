#include "VEKPrtPolylineElt.h"

#include "ElementProtocol.h"
#include "PointArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolylineElt, 17, VEKPrtGraphicPrimitiveElt)

VEKPrtPolylineElt::VEKPrtPolylineElt() = default;

VEKPrtPolylineElt::VEKPrtPolylineElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _points(vekprt::NewPointsFromList(iPoints, iPoints.Size(), 1)), _count(iPoints.Size()) {}

VEKPrtPolylineElt::VEKPrtPolylineElt(const double* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolylineElt::VEKPrtPolylineElt(const float* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolylineElt::VEKPrtPolylineElt(const VEKPrtPolylineElt& iOther) : VEKPrtPolylineElt() {
    CopyOwn(iOther);
}

VEKPrtPolylineElt::~VEKPrtPolylineElt() { vekprt::DeleteArray(_points); }

VEKPrtPolylineElt& VEKPrtPolylineElt::operator=(const VEKPrtPolylineElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPolylineElt::CopyOwn);
    return *this;
}

void VEKPrtPolylineElt::CopyOwn(const VEKPrtPolylineElt& iOther) {
    vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtPolylineElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}

void VEKPrtPolylineElt::SetPoints(const double* iPoints, int iCount) {
    vekprt::ReplacePoints(_points, _count, iPoints, iCount);
}

void VEKPrtPolylineElt::GetPoints(double*& oPoints, int& oCount) const {
    oPoints = _points;
    oCount = _count;
}

void VEKPrtPolylineElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtPolylineElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtPolylineElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPolylineElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
