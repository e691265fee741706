#include "VEKPrtFillAttributes.h"

#include "HeldImage.h"

VEKPrtFillAttributes::VEKPrtFillAttributes() = default;

VEKPrtFillAttributes::VEKPrtFillAttributes(const VEKPrtFillAttributes& iOther) : VEKPrtFillAttributes() {
    *this = iOther;
}

VEKPrtFillAttributes::~VEKPrtFillAttributes() { vekprt::HoldImage(_image, nullptr); }

VEKPrtFillAttributes& VEKPrtFillAttributes::operator=(const VEKPrtFillAttributes& iOther) {
    if (&iOther == this) return *this;
    CopyColour(iOther);
    vekprt::HoldImage(_image, iOther._image);
    CopyPlacement(iOther);
    return *this;
}

// The image is copied between these two: its functions are virtual and may look at the records.
void VEKPrtFillAttributes::CopyColour(const VEKPrtFillAttributes& iOther) {
    _style = iOther._style;
    _rule = iOther._rule;
    _colourIndex = iOther._colourIndex;
    _colourTransparency = iOther._colourTransparency;
}

void VEKPrtFillAttributes::CopyPlacement(const VEKPrtFillAttributes& iOther) {
    _firstVector = iOther._firstVector;
    _secondVector = iOther._secondVector;
    _refPoint = iOther._refPoint;
}

// The target's image is overwritten without being released.  A shape's Duplicate assigns first, so its copy
// shares the image by then: that reference is never released, and callers who duplicate a shape with a
// pattern image keep the image for good (README, Copying).
void VEKPrtFillAttributes::Duplicate(VEKPrtFillAttributes& oTarget) {
    oTarget.CopyColour(*this);
    if (_image) oTarget._image = _image->Clone();
    oTarget.CopyPlacement(*this);
}

int VEKPrtFillAttributes::operator==(const VEKPrtFillAttributes& iOther) const {
    return _style == iOther._style && _rule == iOther._rule && _colourIndex == iOther._colourIndex &&
           _colourTransparency == iOther._colourTransparency && _image == iOther._image &&
           _firstVector == iOther._firstVector && _secondVector == iOther._secondVector &&
           _refPoint == iOther._refPoint;
}

void VEKPrtFillAttributes::SetFillStyle(const VEKPrtFillStyle& iStyle) { _style = iStyle; }
void VEKPrtFillAttributes::GetFillStyle(VEKPrtFillStyle& oStyle) const { oStyle = _style; }
void VEKPrtFillAttributes::SetFillRule(const VEKPrtFillRule& iRule) { _rule = iRule; }
void VEKPrtFillAttributes::GetFillRule(VEKPrtFillRule& oRule) const { oRule = _rule; }
void VEKPrtFillAttributes::SetFillColourIndex(unsigned int iIndex) { _colourIndex = iIndex; }
void VEKPrtFillAttributes::GetFillColourIndex(unsigned int& oIndex) const { oIndex = _colourIndex; }
void VEKPrtFillAttributes::SetFillColourTransparency(unsigned char iTransparency) {
    _colourTransparency = iTransparency;
}
void VEKPrtFillAttributes::GetFillColourTransparency(unsigned char& oTransparency) {
    oTransparency = _colourTransparency;
}

void VEKPrtFillAttributes::SetPattern(VEKPixelImage* iImage, const VEKMathVector2D& iFirst,
                                      const VEKMathVector2D& iSecond) {
    vekprt::HoldImage(_image, iImage);
    _firstVector = iFirst;
    _secondVector = iSecond;
}

void VEKPrtFillAttributes::GetPattern(VEKPixelImage*& oImage, VEKMathVector2D& oFirst,
                                      VEKMathVector2D& oSecond) {
    oImage = _image;
    oFirst = _firstVector;
    oSecond = _secondVector;
}

void VEKPrtFillAttributes::SetPatternRefPoint(const VEKMathPoint2D& iPoint) { _refPoint = iPoint; }
void VEKPrtFillAttributes::GetPatternRefPoint(VEKMathPoint2D& oPoint) const { oPoint = _refPoint; }
