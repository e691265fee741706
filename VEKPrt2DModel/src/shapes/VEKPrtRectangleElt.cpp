#include "VEKPrtRectangleElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtRectangleElt, 18)

VEKPrtRectangleElt::VEKPrtRectangleElt() = default;

VEKPrtRectangleElt::VEKPrtRectangleElt(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond)
    : _firstCorner(iFirst), _secondCorner(iSecond) {}

VEKPrtRectangleElt::~VEKPrtRectangleElt() = default;

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
VEKPRT_IMPLEMENT_RECORD(VEKPrtRectangleElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtRectangleElt, FillAttributes, _fill)
VEKPRT_IMPLEMENT_RECORD(VEKPrtRectangleElt, TransformAttributes, _transform)
