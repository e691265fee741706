#include "VEKPrtEllipseElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtEllipseElt, 16, VEKPrtGraphicPrimitiveElt)

VEKPrtEllipseElt::VEKPrtEllipseElt() = default;

VEKPrtEllipseElt::VEKPrtEllipseElt(const VEKMathPoint2D& iCenter, double iHorzRadius, double iVertRadius,
                                   float iSlope)
    : _center(iCenter), _horzRadius(iHorzRadius), _vertRadius(iVertRadius), _slope(iSlope) {}

VEKPrtEllipseElt::VEKPrtEllipseElt(const VEKPrtEllipseElt& iOther) : VEKPrtEllipseElt() { CopyOwn(iOther); }

VEKPrtEllipseElt::~VEKPrtEllipseElt() = default;

VEKPrtEllipseElt& VEKPrtEllipseElt::operator=(const VEKPrtEllipseElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtEllipseElt::CopyOwn);
    return *this;
}

void VEKPrtEllipseElt::CopyOwn(const VEKPrtEllipseElt& iOther) {
    _center = iOther._center;
    _horzRadius = iOther._horzRadius;
    _vertRadius = iOther._vertRadius;
    _slope = iOther._slope;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtEllipseElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByAssignment(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtEllipseElt::SetCenter(const VEKMathPoint2D& iCenter) { _center = iCenter; }
void VEKPrtEllipseElt::GetCenter(VEKMathPoint2D& oCenter) const { oCenter = _center; }
void VEKPrtEllipseElt::SetHorzRadius(double iHorzRadius) { _horzRadius = iHorzRadius; }
void VEKPrtEllipseElt::GetHorzRadius(double& oHorzRadius) const { oHorzRadius = _horzRadius; }
void VEKPrtEllipseElt::SetVertRadius(double iVertRadius) { _vertRadius = iVertRadius; }
void VEKPrtEllipseElt::GetVertRadius(double& oVertRadius) const { oVertRadius = _vertRadius; }
void VEKPrtEllipseElt::SetSlope(float iSlope) { _slope = iSlope; }
void VEKPrtEllipseElt::GetSlope(float& oSlope) const { oSlope = _slope; }
void VEKPrtEllipseElt::SetParameters(const VEKMathPoint2D& iCenter, double iHorzRadius, double iVertRadius,
                                     float iSlope) {
    _center = iCenter;
    _horzRadius = iHorzRadius;
    _vertRadius = iVertRadius;
    _slope = iSlope;
}

void VEKPrtEllipseElt::GetParameters(VEKMathPoint2D& oCenter, double& oHorzRadius, double& oVertRadius,
                                     float& oSlope) const {
    oCenter = _center;
    oHorzRadius = _horzRadius;
    oVertRadius = _vertRadius;
    oSlope = _slope;
}
void VEKPrtEllipseElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtEllipseElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtEllipseElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtEllipseElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtEllipseElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtEllipseElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtEllipseElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtEllipseElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
