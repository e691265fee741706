#include "VEKPrtLineElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtLineElt, 13, VEKPrtGraphicPrimitiveElt)

VEKPrtLineElt::VEKPrtLineElt() = default;

VEKPrtLineElt::VEKPrtLineElt(const VEKMathPoint2D& iStart, const VEKMathPoint2D& iEnd)
    : _startPoint(iStart), _endPoint(iEnd) {}

VEKPrtLineElt::VEKPrtLineElt(const VEKPrtLineElt& iOther) : VEKPrtLineElt() { CopyOwn(iOther); }

VEKPrtLineElt::~VEKPrtLineElt() = default;

VEKPrtLineElt& VEKPrtLineElt::operator=(const VEKPrtLineElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtLineElt::CopyOwn);
    return *this;
}

void VEKPrtLineElt::CopyOwn(const VEKPrtLineElt& iOther) {
    _startPoint = iOther._startPoint;
    _endPoint = iOther._endPoint;
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtLineElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByAssignment(*this, oCopy);
}

void VEKPrtLineElt::SetStartPoint(const VEKMathPoint2D& iStart) { _startPoint = iStart; }
void VEKPrtLineElt::GetStartPoint(VEKMathPoint2D& oStart) const { oStart = _startPoint; }
void VEKPrtLineElt::SetEndPoint(const VEKMathPoint2D& iEnd) { _endPoint = iEnd; }
void VEKPrtLineElt::GetEndPoint(VEKMathPoint2D& oEnd) const { oEnd = _endPoint; }
void VEKPrtLineElt::SetParameters(const VEKMathPoint2D& iStart, const VEKMathPoint2D& iEnd) {
    _startPoint = iStart;
    _endPoint = iEnd;
}

void VEKPrtLineElt::GetParameters(VEKMathPoint2D& oStart, VEKMathPoint2D& oEnd) const {
    oStart = _startPoint;
    oEnd = _endPoint;
}

void VEKPrtLineElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) { _stroke = iAttributes; }
void VEKPrtLineElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const { oAttributes = _stroke; }
void VEKPrtLineElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtLineElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
