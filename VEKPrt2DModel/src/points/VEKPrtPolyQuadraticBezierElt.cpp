#include "VEKPrtPolyQuadraticBezierElt.h"

#include "ElementProtocol.h"
#include "PointArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolyQuadraticBezierElt, 28, VEKPrtGraphicPrimitiveElt)

VEKPrtPolyQuadraticBezierElt::VEKPrtPolyQuadraticBezierElt() = default;

VEKPrtPolyQuadraticBezierElt::VEKPrtPolyQuadraticBezierElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _points(vekprt::NewPointsFromList(iPoints, iPoints.Size(), 1)), _count(iPoints.Size()) {}

VEKPrtPolyQuadraticBezierElt::VEKPrtPolyQuadraticBezierElt(const double* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolyQuadraticBezierElt::VEKPrtPolyQuadraticBezierElt(const float* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolyQuadraticBezierElt::VEKPrtPolyQuadraticBezierElt(const VEKPrtPolyQuadraticBezierElt& iOther)
    : VEKPrtPolyQuadraticBezierElt() {
    CopyOwn(iOther);
}

VEKPrtPolyQuadraticBezierElt::~VEKPrtPolyQuadraticBezierElt() { vekprt::DeleteArray(_points); }

VEKPrtPolyQuadraticBezierElt&
VEKPrtPolyQuadraticBezierElt::operator=(const VEKPrtPolyQuadraticBezierElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPolyQuadraticBezierElt::CopyOwn);
    return *this;
}

void VEKPrtPolyQuadraticBezierElt::CopyOwn(const VEKPrtPolyQuadraticBezierElt& iOther) {
    vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtPolyQuadraticBezierElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}

void VEKPrtPolyQuadraticBezierElt::SetPoints(const double* iPoints, int iCount) {
    vekprt::ReplacePoints(_points, _count, iPoints, iCount);
}

void VEKPrtPolyQuadraticBezierElt::GetPoints(double*& oPoints, int& oCount) const {
    oPoints = _points;
    oCount = _count;
}

void VEKPrtPolyQuadraticBezierElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtPolyQuadraticBezierElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtPolyQuadraticBezierElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPolyQuadraticBezierElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
