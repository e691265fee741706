#include "VEKPrtMarkerElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtMarkerElt, 15, VEKPrtGraphicPrimitiveElt)

VEKPrtMarkerElt::VEKPrtMarkerElt() = default;

VEKPrtMarkerElt::VEKPrtMarkerElt(const VEKMathPoint2D& iPoint, double iSize) : _point(iPoint), _size(iSize) {}

VEKPrtMarkerElt::VEKPrtMarkerElt(const VEKPrtMarkerElt& iOther) : VEKPrtMarkerElt() { CopyOwn(iOther); }

VEKPrtMarkerElt::~VEKPrtMarkerElt() = default;

VEKPrtMarkerElt& VEKPrtMarkerElt::operator=(const VEKPrtMarkerElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtMarkerElt::CopyOwn);
    return *this;
}

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

void VEKPrtMarkerElt::SetMarkerAttributes(const VEKPrtMarkerAttributes& iAttributes) {
    _marker = iAttributes;
}
void VEKPrtMarkerElt::GetMarkerAttributes(VEKPrtMarkerAttributes& oAttributes) const {
    oAttributes = _marker;
}
void VEKPrtMarkerElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtMarkerElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtMarkerElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtMarkerElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
