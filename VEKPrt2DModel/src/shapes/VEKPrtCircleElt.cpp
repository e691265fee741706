#include "VEKPrtCircleElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtCircleElt, 15, VEKPrtGraphicPrimitiveElt)

VEKPrtCircleElt::VEKPrtCircleElt() = default;

VEKPrtCircleElt::VEKPrtCircleElt(const VEKMathPoint2D& iCenter, double iRadius)
    : _center(iCenter), _radius(iRadius) {}

VEKPrtCircleElt::VEKPrtCircleElt(const VEKPrtCircleElt& iOther) : VEKPrtCircleElt() { CopyOwn(iOther); }

VEKPrtCircleElt::~VEKPrtCircleElt() = default;

VEKPrtCircleElt& VEKPrtCircleElt::operator=(const VEKPrtCircleElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtCircleElt::CopyOwn);
    return *this;
}

void VEKPrtCircleElt::CopyOwn(const VEKPrtCircleElt& iOther) {
    _center = iOther._center;
    _radius = iOther._radius;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtCircleElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByAssignment(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtCircleElt::SetCenter(const VEKMathPoint2D& iCenter) { _center = iCenter; }
void VEKPrtCircleElt::GetCenter(VEKMathPoint2D& oCenter) const { oCenter = _center; }
void VEKPrtCircleElt::SetRadius(double iRadius) { _radius = iRadius; }
void VEKPrtCircleElt::GetRadius(double& oRadius) const { oRadius = _radius; }
void VEKPrtCircleElt::SetParameters(const VEKMathPoint2D& iCenter, double iRadius) {
    _center = iCenter;
    _radius = iRadius;
}

void VEKPrtCircleElt::GetParameters(VEKMathPoint2D& oCenter, double& oRadius) const {
    oCenter = _center;
    oRadius = _radius;
}
void VEKPrtCircleElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtCircleElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtCircleElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtCircleElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtCircleElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtCircleElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtCircleElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtCircleElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
