#include "VEKPrtTextAttributes.h"

#include "VEKPrtValues.h"

VEKPrtTextAttributes::VEKPrtTextAttributes()
    : _weight(vekprt::textWeightRegular), _anchor(vekprt::textAnchorBaselineLeft) {}

VEKPrtTextAttributes::VEKPrtTextAttributes(const VEKPrtTextAttributes& iOther) : VEKPrtTextAttributes() {
    *this = iOther;
}

// The font is borrowed: nothing is released.
VEKPrtTextAttributes::~VEKPrtTextAttributes() = default;

VEKPrtTextAttributes& VEKPrtTextAttributes::operator=(const VEKPrtTextAttributes& iOther) = default;

int VEKPrtTextAttributes::operator==(const VEKPrtTextAttributes& iOther) const {
    return _font == iOther._font && _weight == iOther._weight && _height == iOther._height &&
           _anchor == iOther._anchor && _slant == iOther._slant && _direction == iOther._direction &&
           _extraSpacing == iOther._extraSpacing && _expansion == iOther._expansion &&
           _writingMode == iOther._writingMode;
}

void VEKPrtTextAttributes::SetFont(VEKFont* iFont) { _font = iFont; }
void VEKPrtTextAttributes::GetFont(VEKFont*& oFont) const { oFont = _font; }
void VEKPrtTextAttributes::SetWeight(VEKPrintTextAttribute iWeight) { _weight = iWeight; }
void VEKPrtTextAttributes::GetWeight(VEKPrintTextAttribute& oWeight) const { oWeight = _weight; }
void VEKPrtTextAttributes::SetHeight(double iHeight) { _height = iHeight; }
void VEKPrtTextAttributes::GetHeight(double& oHeight) const { oHeight = _height; }
void VEKPrtTextAttributes::SetAnchor(VEKPrintTextAttribute iAnchor) { _anchor = iAnchor; }
void VEKPrtTextAttributes::GetAnchor(VEKPrintTextAttribute& oAnchor) const { oAnchor = _anchor; }
void VEKPrtTextAttributes::SetSlant(float iSlant) { _slant = iSlant; }
void VEKPrtTextAttributes::GetSlant(float& oSlant) const { oSlant = _slant; }
void VEKPrtTextAttributes::SetDirection(float iDirection) { _direction = iDirection; }
void VEKPrtTextAttributes::GetDirection(float& oDirection) const { oDirection = _direction; }
void VEKPrtTextAttributes::SetExtraSpacing(double iSpacing) { _extraSpacing = iSpacing; }
void VEKPrtTextAttributes::GetExtraSpacing(double& oSpacing) const { oSpacing = _extraSpacing; }
void VEKPrtTextAttributes::SetExpansion(double iExpansion) { _expansion = iExpansion; }
void VEKPrtTextAttributes::GetExpansion(double& oExpansion) const { oExpansion = _expansion; }
void VEKPrtTextAttributes::SetWritingMode(VEKPrtTextWritingMode iMode) { _writingMode = iMode; }
void VEKPrtTextAttributes::GetWritingMode(VEKPrtTextWritingMode& oMode) const { oMode = _writingMode; }
