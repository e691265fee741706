#include "VEKPrtTextElt.h"

#include "ElementProtocol.h"

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtTextElt, 13)

VEKPrtTextElt::VEKPrtTextElt() { _text = ""; }

VEKPrtTextElt::VEKPrtTextElt(const VEKMathPoint2D& iPosition, const VEKUnicodeString& iText)
    : _position(iPosition) {
    _text = iText;
}

VEKPrtTextElt::~VEKPrtTextElt() = default;

void VEKPrtTextElt::CopyOwn(const VEKPrtTextElt& iOther) {
    _position = iOther._position;
    _text = iOther._text;
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _textAttributes = iOther._textAttributes;
    _transform = iOther._transform;
}

// No second step for the fill: the copy shares its pattern image, and the font.
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
VEKPRT_IMPLEMENT_RECORD(VEKPrtTextElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtTextElt, FillAttributes, _fill)
VEKPRT_IMPLEMENT_RECORD(VEKPrtTextElt, TextAttributes, _textAttributes)
VEKPRT_IMPLEMENT_RECORD(VEKPrtTextElt, TransformAttributes, _transform)
