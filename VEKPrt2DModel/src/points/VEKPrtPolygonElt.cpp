#include "VEKPrtPolygonElt.h"

#include "ElementProtocol.h"
#include "PointArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolygonElt, 16, VEKPrtGraphicPrimitiveElt)

VEKPrtPolygonElt::VEKPrtPolygonElt() = default;

VEKPrtPolygonElt::VEKPrtPolygonElt(const VEKListPtrVEKMathPoint2D& iPoints)
    : _points(vekprt::NewPointsFromList(iPoints, iPoints.Size(), 0)), _count(iPoints.Size()) {}

VEKPrtPolygonElt::VEKPrtPolygonElt(const double* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolygonElt::VEKPrtPolygonElt(const float* iPoints, int iCount)
    : _points(vekprt::NewPoints(iPoints, iCount)), _count(iCount) {}

VEKPrtPolygonElt::VEKPrtPolygonElt(const VEKPrtPolygonElt& iOther) : VEKPrtPolygonElt() { CopyOwn(iOther); }

VEKPrtPolygonElt::~VEKPrtPolygonElt() { vekprt::DeleteArray(_points); }

VEKPrtPolygonElt& VEKPrtPolygonElt::operator=(const VEKPrtPolygonElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPolygonElt::CopyOwn);
    return *this;
}

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

void VEKPrtPolygonElt::SetPoints(const double* iPoints, int iCount) {
    vekprt::ReplacePoints(_points, _count, iPoints, iCount);
}

void VEKPrtPolygonElt::GetPoints(double*& oPoints, int& oCount) const {
    oPoints = _points;
    oCount = _count;
}

void VEKPrtPolygonElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtPolygonElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtPolygonElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtPolygonElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtPolygonElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtPolygonElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtPolygonElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPolygonElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
