#include "VEKPrtPolygonElt.h"

#include "PointArray.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtPolygonElt, 16)
VEKPRT_IMPLEMENT_POINT_CONSTRUCTORS(VEKPrtPolygonElt, 0)
VEKPRT_IMPLEMENT_POINT_ARRAY(VEKPrtPolygonElt)

void VEKPrtPolygonElt::CopyOwn(const VEKPrtPolygonElt& iOther) {
    vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);
    _stroke = iOther._stroke;
    _drawStyle = iOther._drawStyle;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtPolygonElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByCopying(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

void VEKPrtPolygonElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtPolygonElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolygonElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolygonElt, FillAttributes, _fill)
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolygonElt, TransformAttributes, _transform)
