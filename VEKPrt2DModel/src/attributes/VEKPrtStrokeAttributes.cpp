#include "VEKPrtStrokeAttributes.h"

#include "OwnedArray.h"
#include "VEKPrtValues.h"

VEKPrtStrokeAttributes::VEKPrtStrokeAttributes()
    : _type(vekprt::lineTypeSolid), _style(vekprt::lineStyleScaled), _cap(vekprt::lineCapButt),
      _join(vekprt::lineJoinMitre) {}

VEKPrtStrokeAttributes::VEKPrtStrokeAttributes(const VEKPrtStrokeAttributes& iOther)
    : VEKPrtStrokeAttributes() {
    ReplacePattern(iOther._pattern, iOther._patternLength);
    CopyPlainFields(iOther);
}

VEKPrtStrokeAttributes::~VEKPrtStrokeAttributes() { vekprt::DeleteArray(_pattern); }

VEKPrtStrokeAttributes& VEKPrtStrokeAttributes::operator=(const VEKPrtStrokeAttributes& iOther) {
    // If neither holds a pattern, the length is not copied either: after a failed allocation the target can
    // differ from the source.  In a self-assignment the pattern is kept.
    if (_pattern != iOther._pattern) ReplacePattern(iOther._pattern, iOther._patternLength);
    CopyPlainFields(iOther);
    return *this;
}

void VEKPrtStrokeAttributes::CopyPlainFields(const VEKPrtStrokeAttributes& iOther) {
    _colourIndex = iOther._colourIndex;
    _colourTransparency = iOther._colourTransparency;
    _type = iOther._type;
    _width = iOther._width;
    _style = iOther._style;
    _cap = iOther._cap;
    _join = iOther._join;
}

void VEKPrtStrokeAttributes::ReplacePattern(const float* iValues, unsigned char iCount) {
    vekprt::DeleteArray(_pattern);
    _patternLength = iCount;
    if (iCount > 0) _pattern = vekprt::NewCopy<float>(iCount, iValues, iCount);
}

int VEKPrtStrokeAttributes::operator==(const VEKPrtStrokeAttributes& iOther) const {
    if (_colourIndex != iOther._colourIndex || _colourTransparency != iOther._colourTransparency ||
        _type != iOther._type || _patternLength != iOther._patternLength)
        return 0;
    for (int i = 0; i < _patternLength; ++i)
        if (PatternEntry(i) != iOther.PatternEntry(i)) return 0;
    return _width == iOther._width && _style == iOther._style && _cap == iOther._cap && _join == iOther._join;
}

// A pattern lost to a failed allocation keeps its length and compares as zeros.
float VEKPrtStrokeAttributes::PatternEntry(int iIndex) const { return _pattern ? _pattern[iIndex] : 0.0F; }

void VEKPrtStrokeAttributes::SetStrokeColourIndex(unsigned int iIndex) { _colourIndex = iIndex; }
void VEKPrtStrokeAttributes::GetStrokeColourIndex(unsigned int& oIndex) const { oIndex = _colourIndex; }
void VEKPrtStrokeAttributes::SetStrokeColourTransparency(unsigned char iTransparency) {
    _colourTransparency = iTransparency;
}
void VEKPrtStrokeAttributes::GetStrokeColourTransparency(unsigned char& oTransparency) {
    oTransparency = _colourTransparency;
}
void VEKPrtStrokeAttributes::SetStrokeType(VEKPrintLineAttribute iType) { _type = iType; }
void VEKPrtStrokeAttributes::GetStrokeType(VEKPrintLineAttribute& oType) const { oType = _type; }

// Compares the pointers: null with any count does nothing to a record without a pattern.
void VEKPrtStrokeAttributes::SetStrokeTypePattern(const float* iValues, unsigned char iCount) {
    if (iValues != _pattern) ReplacePattern(iValues, iCount);
}

void VEKPrtStrokeAttributes::GetStrokeTypePattern(float*& oValues, unsigned char& oCount) const {
    oCount = _patternLength;
    if (_patternLength == 0) return;
    oValues = vekprt::NewCopy<float>(_patternLength, _pattern, _patternLength);
}

void VEKPrtStrokeAttributes::SetStrokeWidth(double iWidth) { _width = iWidth; }
void VEKPrtStrokeAttributes::GetStrokeWidth(double& oWidth) const { oWidth = _width; }
void VEKPrtStrokeAttributes::SetStrokeStyle(VEKPrintLineAttribute iStyle) { _style = iStyle; }
void VEKPrtStrokeAttributes::GetStrokeStyle(VEKPrintLineAttribute& oStyle) const { oStyle = _style; }
void VEKPrtStrokeAttributes::SetStrokeCap(VEKPrintLineAttribute iCap) { _cap = iCap; }
void VEKPrtStrokeAttributes::GetStrokeCap(VEKPrintLineAttribute& oCap) const { oCap = _cap; }
void VEKPrtStrokeAttributes::SetStrokeJoin(VEKPrintLineAttribute iJoin) { _join = iJoin; }
void VEKPrtStrokeAttributes::GetStrokeJoin(VEKPrintLineAttribute& oJoin) const { oJoin = _join; }
