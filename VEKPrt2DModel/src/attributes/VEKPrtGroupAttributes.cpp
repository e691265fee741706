#include "VEKPrtGroupAttributes.h"

// Assigned, not only default-constructed: a host's link type may depend on it.
VEKPrtGroupAttributes::VEKPrtGroupAttributes() { _linkURI = VEKPrintLinkURI(); }

VEKPrtGroupAttributes::VEKPrtGroupAttributes(const VEKPrtGroupAttributes& iOther) { *this = iOther; }

VEKPrtGroupAttributes::~VEKPrtGroupAttributes() = default;

VEKPrtGroupAttributes& VEKPrtGroupAttributes::operator=(const VEKPrtGroupAttributes& iOther) {
    if (&iOther != this) _linkURI = iOther._linkURI;
    return *this;
}

// Assigned, not moved: the library asks no more of a host's link type than copying.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void VEKPrtGroupAttributes::SetLinkURI(VEKPrintLinkURI iURI) { _linkURI = iURI; }
void VEKPrtGroupAttributes::GetLinkURI(VEKPrintLinkURI& oURI) const { oURI = _linkURI; }
