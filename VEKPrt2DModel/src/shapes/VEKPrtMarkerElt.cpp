#include "VEKPrtMarkerElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtMarkerElt, 15)

VEKPrtMarkerElt::VEKPrtMarkerElt() = default;

VEKPrtMarkerElt::VEKPrtMarkerElt(const VEKMathPoint2D& iPoint, double iSize) : _point(iPoint), _size(iSize) {}

VEKPrtMarkerElt::~VEKPrtMarkerElt() = default;

void VEKPrtMarkerElt::CopyOwn(const VEKPrtMarkerElt& iOther) {
    _point = iOther._point;
    _size = iOther._size;
    _marker = iOther._marker;
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtMarkerElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByAssignment(*this, oCopy);
}

void VEKPrtMarkerElt::SetPoint(const VEKMathPoint2D& iPoint) { _point = iPoint; }
void VEKPrtMarkerElt::GetPoint(VEKMathPoint2D& oPoint) const { oPoint = _point; }
void VEKPrtMarkerElt::SetSize(double iSize) { _size = iSize; }
void VEKPrtMarkerElt::GetSize(double& oSize) const { oSize = _size; }
void VEKPrtMarkerElt::SetParameters(const VEKMathPoint2D& iPoint, double iSize) {
    _point = iPoint;
    _size = iSize;
}

void VEKPrtMarkerElt::GetParameters(VEKMathPoint2D& oPoint, double& oSize) const {
    oPoint = _point;
    oSize = _size;
}

VEKPRT_IMPLEMENT_RECORD(VEKPrtMarkerElt, MarkerAttributes, _marker)
VEKPRT_IMPLEMENT_RECORD(VEKPrtMarkerElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtMarkerElt, TransformAttributes, _transform)
