#include "VEKPrtRectangleElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtRectangleElt, 18, VEKPrtGraphicPrimitiveElt)

VEKPrtRectangleElt::VEKPrtRectangleElt() = default;

VEKPrtRectangleElt::VEKPrtRectangleElt(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond)
    : _firstCorner(iFirst), _secondCorner(iSecond) {}

VEKPrtRectangleElt::VEKPrtRectangleElt(const VEKPrtRectangleElt& iOther) : VEKPrtRectangleElt() {
    CopyOwn(iOther);
}

VEKPrtRectangleElt::~VEKPrtRectangleElt() = default;

VEKPrtRectangleElt& VEKPrtRectangleElt::operator=(const VEKPrtRectangleElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtRectangleElt::CopyOwn);
    return *this;
}

void VEKPrtRectangleElt::CopyOwn(const VEKPrtRectangleElt& iOther) {
    _firstCorner = iOther._firstCorner;
    _secondCorner = iOther._secondCorner;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtRectangleElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByCopying(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtRectangleElt::SetPoints(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond) {
    _firstCorner = iFirst;
    _secondCorner = iSecond;
}

void VEKPrtRectangleElt::GetPoints(VEKMathPoint2D& oFirst, VEKMathPoint2D& oSecond) const {
    oFirst = _firstCorner;
    oSecond = _secondCorner;
}
void VEKPrtRectangleElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtRectangleElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtRectangleElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtRectangleElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtRectangleElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtRectangleElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtRectangleElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtRectangleElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
