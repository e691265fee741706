#include "VEKPrtPolyCubicBezierElt.h"

#include "ElementProtocol.h"
#include "PointArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolyCubicBezierElt, 24, VEKPrtGraphicPrimitiveElt)

VEKPrtPolyCubicBezierElt::VEKPrtPolyCubicBezierElt() = default;

VEKPrtPolyCubicBezierElt::VEKPrtPolyCubicBezierElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _points(vekprt::NewPointsFromList(iPoints, iPoints.Size(), 1)), _count(iPoints.Size()) {}

VEKPrtPolyCubicBezierElt::VEKPrtPolyCubicBezierElt(const double* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolyCubicBezierElt::VEKPrtPolyCubicBezierElt(const float* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolyCubicBezierElt::VEKPrtPolyCubicBezierElt(const VEKPrtPolyCubicBezierElt& iOther)
    : VEKPrtPolyCubicBezierElt() {
    CopyOwn(iOther);
}

VEKPrtPolyCubicBezierElt::~VEKPrtPolyCubicBezierElt() { vekprt::DeleteArray(_points); }

VEKPrtPolyCubicBezierElt& VEKPrtPolyCubicBezierElt::operator=(const VEKPrtPolyCubicBezierElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPolyCubicBezierElt::CopyOwn);
    return *this;
}

void VEKPrtPolyCubicBezierElt::CopyOwn(const VEKPrtPolyCubicBezierElt& iOther) {
    vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtPolyCubicBezierElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}

void VEKPrtPolyCubicBezierElt::SetPoints(const double* iPoints, int iCount) {
    vekprt::ReplacePoints(_points, _count, iPoints, iCount);
}

void VEKPrtPolyCubicBezierElt::GetPoints(double*& oPoints, int& oCount) const {
    oPoints = _points;
    oCount = _count;
}

void VEKPrtPolyCubicBezierElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtPolyCubicBezierElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtPolyCubicBezierElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPolyCubicBezierElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
