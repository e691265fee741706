#include "VEKPrtCircularArcElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtCircularArcElt, 20, VEKPrtGraphicPrimitiveElt)

VEKPrtCircularArcElt::VEKPrtCircularArcElt() = default;

VEKPrtCircularArcElt::VEKPrtCircularArcElt(const VEKMathPoint2D& iCenter, double iRadius, float iStartAngle,
                                           float iEndAngle)
    : _center(iCenter), _radius(iRadius), _startAngle(iStartAngle), _endAngle(iEndAngle) {}

VEKPrtCircularArcElt::VEKPrtCircularArcElt(const VEKPrtCircularArcElt& iOther) : VEKPrtCircularArcElt() {
    CopyOwn(iOther);
}

VEKPrtCircularArcElt::~VEKPrtCircularArcElt() = default;

VEKPrtCircularArcElt& VEKPrtCircularArcElt::operator=(const VEKPrtCircularArcElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtCircularArcElt::CopyOwn);
    return *this;
}

void VEKPrtCircularArcElt::CopyOwn(const VEKPrtCircularArcElt& iOther) {
    _center = iOther._center;
    _radius = iOther._radius;
    _startAngle = iOther._startAngle;
    _endAngle = iOther._endAngle;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtCircularArcElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByAssignment(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtCircularArcElt::SetCenter(const VEKMathPoint2D& iCenter) { _center = iCenter; }
void VEKPrtCircularArcElt::GetCenter(VEKMathPoint2D& oCenter) const { oCenter = _center; }
void VEKPrtCircularArcElt::SetRadius(double iRadius) { _radius = iRadius; }
void VEKPrtCircularArcElt::GetRadius(double& oRadius) const { oRadius = _radius; }
void VEKPrtCircularArcElt::SetStartAngle(float iStartAngle) { _startAngle = iStartAngle; }
void VEKPrtCircularArcElt::GetStartAngle(float& oStartAngle) const { oStartAngle = _startAngle; }
void VEKPrtCircularArcElt::SetEndAngle(float iEndAngle) { _endAngle = iEndAngle; }
void VEKPrtCircularArcElt::GetEndAngle(float& oEndAngle) const { oEndAngle = _endAngle; }
void VEKPrtCircularArcElt::SetParameters(const VEKMathPoint2D& iCenter, double iRadius, float iStartAngle,
                                         float iEndAngle) {
    _center = iCenter;
    _radius = iRadius;
    _startAngle = iStartAngle;
    _endAngle = iEndAngle;
}

void VEKPrtCircularArcElt::GetParameters(VEKMathPoint2D& oCenter, double& oRadius, float& oStartAngle,
                                         float& oEndAngle) const {
    oCenter = _center;
    oRadius = _radius;
    oStartAngle = _startAngle;
    oEndAngle = _endAngle;
}
void VEKPrtCircularArcElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtCircularArcElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtCircularArcElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtCircularArcElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtCircularArcElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtCircularArcElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtCircularArcElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtCircularArcElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
