#include "VEKPrtMarkerAttributes.h"

#include "VEKPrtValues.h"

VEKPrtMarkerAttributes::VEKPrtMarkerAttributes() : _style(vekprt::markerPlus) {}

VEKPrtMarkerAttributes::VEKPrtMarkerAttributes(const VEKPrtMarkerAttributes& iOther)
    : VEKPrtMarkerAttributes() {
    *this = iOther;
}

VEKPrtMarkerAttributes::~VEKPrtMarkerAttributes() = default;

VEKPrtMarkerAttributes& VEKPrtMarkerAttributes::operator=(const VEKPrtMarkerAttributes& iOther) = default;

void VEKPrtMarkerAttributes::SetMarkerStyle(VEKPrintMarkerAttribute iStyle) { _style = iStyle; }
void VEKPrtMarkerAttributes::GetMarkerStyle(VEKPrintMarkerAttribute& oStyle) { oStyle = _style; }
