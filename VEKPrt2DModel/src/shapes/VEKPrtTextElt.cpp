#include "VEKPrtTextElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtTextElt, 13, VEKPrtGraphicPrimitiveElt)

VEKPrtTextElt::VEKPrtTextElt() { _text = ""; }

VEKPrtTextElt::VEKPrtTextElt(const VEKMathPoint2D& iPosition, const VEKUnicodeString& iText)
    : _position(iPosition) {
    _text = iText;
}

// The text record is copied before the draw style and the other records here, but between fill and transform
// in the assignment.  A host's types can observe the order.
VEKPrtTextElt::VEKPrtTextElt(const VEKPrtTextElt& iOther) : VEKPrtTextElt() {
    if (&iOther == this) return; // a host's string need not survive its own assignment
    _position = iOther._position;
    _text = iOther._text;
    _textAttributes = iOther._textAttributes;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

VEKPrtTextElt::~VEKPrtTextElt() = default;

VEKPrtTextElt& VEKPrtTextElt::operator=(const VEKPrtTextElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtTextElt::CopyOwn);
    return *this;
}

void VEKPrtTextElt::CopyOwn(const VEKPrtTextElt& iOther) {
    _position = iOther._position;
    _text = iOther._text;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _textAttributes = iOther._textAttributes;
    _transform = iOther._transform;
}

// Unlike the other filled shapes, the copy shares the fill's pattern image.
void VEKPrtTextElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByAssignment(*this, oCopy);
}

void VEKPrtTextElt::SetPosition(const VEKMathPoint2D& iPosition) { _position = iPosition; }
void VEKPrtTextElt::GetPosition(VEKMathPoint2D& oPosition) const { oPosition = _position; }
void VEKPrtTextElt::SetText(const VEKUnicodeString& iText) { _text = iText; }
void VEKPrtTextElt::GetText(VEKUnicodeString& oText) const { oText = _text; }
void VEKPrtTextElt::SetParameters(const VEKMathPoint2D& iPosition, const VEKUnicodeString& iText) {
    _position = iPosition;
    _text = iText;
}

void VEKPrtTextElt::GetParameters(VEKMathPoint2D& oPosition, VEKUnicodeString& oText) const {
    oPosition = _position;
    oText = _text;
}
void VEKPrtTextElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtTextElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtTextElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) { _stroke = iAttributes; }
void VEKPrtTextElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const { oAttributes = _stroke; }
void VEKPrtTextElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtTextElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtTextElt::SetTextAttributes(const VEKPrtTextAttributes& iAttributes) {
    _textAttributes = iAttributes;
}
void VEKPrtTextElt::GetTextAttributes(VEKPrtTextAttributes& oAttributes) const {
    oAttributes = _textAttributes;
}
void VEKPrtTextElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtTextElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
