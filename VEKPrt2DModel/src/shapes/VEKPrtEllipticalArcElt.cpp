#include "VEKPrtEllipticalArcElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtEllipticalArcElt, 22, VEKPrtGraphicPrimitiveElt)

VEKPrtEllipticalArcElt::VEKPrtEllipticalArcElt() = default;

VEKPrtEllipticalArcElt::VEKPrtEllipticalArcElt(const VEKMathPoint2D& iCenter, double iHorzRadius,
                                               double iVertRadius, float iStartAngle, float iEndAngle,
                                               float iSlope)
    : _center(iCenter), _horzRadius(iHorzRadius), _vertRadius(iVertRadius), _startAngle(iStartAngle),
      _endAngle(iEndAngle), _slope(iSlope) {}

VEKPrtEllipticalArcElt::VEKPrtEllipticalArcElt(const VEKPrtEllipticalArcElt& iOther)
    : VEKPrtEllipticalArcElt() {
    CopyOwn(iOther);
}

VEKPrtEllipticalArcElt::~VEKPrtEllipticalArcElt() = default;

VEKPrtEllipticalArcElt& VEKPrtEllipticalArcElt::operator=(const VEKPrtEllipticalArcElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtEllipticalArcElt::CopyOwn);
    return *this;
}

void VEKPrtEllipticalArcElt::CopyOwn(const VEKPrtEllipticalArcElt& iOther) {
    _center = iOther._center;
    _horzRadius = iOther._horzRadius;
    _vertRadius = iOther._vertRadius;
    _startAngle = iOther._startAngle;
    _endAngle = iOther._endAngle;
    _slope = iOther._slope;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtEllipticalArcElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByAssignment(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtEllipticalArcElt::SetCenter(const VEKMathPoint2D& iCenter) { _center = iCenter; }
void VEKPrtEllipticalArcElt::GetCenter(VEKMathPoint2D& oCenter) const { oCenter = _center; }
void VEKPrtEllipticalArcElt::SetHorzRadius(double iHorzRadius) { _horzRadius = iHorzRadius; }
void VEKPrtEllipticalArcElt::GetHorzRadius(double& oHorzRadius) const { oHorzRadius = _horzRadius; }
void VEKPrtEllipticalArcElt::SetVertRadius(double iVertRadius) { _vertRadius = iVertRadius; }
void VEKPrtEllipticalArcElt::GetVertRadius(double& oVertRadius) const { oVertRadius = _vertRadius; }
void VEKPrtEllipticalArcElt::SetStartAngle(float iStartAngle) { _startAngle = iStartAngle; }
void VEKPrtEllipticalArcElt::GetStartAngle(float& oStartAngle) const { oStartAngle = _startAngle; }
void VEKPrtEllipticalArcElt::SetEndAngle(float iEndAngle) { _endAngle = iEndAngle; }
void VEKPrtEllipticalArcElt::GetEndAngle(float& oEndAngle) const { oEndAngle = _endAngle; }
void VEKPrtEllipticalArcElt::SetSlope(float iSlope) { _slope = iSlope; }
void VEKPrtEllipticalArcElt::GetSlope(float& oSlope) const { oSlope = _slope; }
void VEKPrtEllipticalArcElt::SetParameters(const VEKMathPoint2D& iCenter, double iHorzRadius,
                                           double iVertRadius, float iStartAngle, float iEndAngle,
                                           float iSlope) {
    _center = iCenter;
    _horzRadius = iHorzRadius;
    _vertRadius = iVertRadius;
    _startAngle = iStartAngle;
    _endAngle = iEndAngle;
    _slope = iSlope;
}

void VEKPrtEllipticalArcElt::GetParameters(VEKMathPoint2D& oCenter, double& oHorzRadius, double& oVertRadius,
                                           float& oStartAngle, float& oEndAngle, float& oSlope) const {
    oCenter = _center;
    oHorzRadius = _horzRadius;
    oVertRadius = _vertRadius;
    oStartAngle = _startAngle;
    oEndAngle = _endAngle;
    oSlope = _slope;
}
void VEKPrtEllipticalArcElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtEllipticalArcElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtEllipticalArcElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtEllipticalArcElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtEllipticalArcElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) {
    _fill = iAttributes;
}
void VEKPrtEllipticalArcElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const {
    oAttributes = _fill;
}
void VEKPrtEllipticalArcElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtEllipticalArcElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
