#include "VEKPrtGroupAttributes.h"

// Assigned although a default link stands there already: a host's link type sees an assignment from a fresh
// one.
VEKPrtGroupAttributes::VEKPrtGroupAttributes() { _linkURI = VEKPrintLinkURI(); }

VEKPrtGroupAttributes::VEKPrtGroupAttributes(const VEKPrtGroupAttributes& iOther) { *this = iOther; }

VEKPrtGroupAttributes::~VEKPrtGroupAttributes() = default;

VEKPrtGroupAttributes& VEKPrtGroupAttributes::operator=(const VEKPrtGroupAttributes& iOther) {
    if (&iOther != this) _linkURI = iOther._linkURI;
    return *this;
}

// By value, and the argument assigned, not moved: the link is the host's type, and copying is all that is
// asked of it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void VEKPrtGroupAttributes::SetLinkURI(VEKPrintLinkURI iURI) { _linkURI = iURI; }
void VEKPrtGroupAttributes::GetLinkURI(VEKPrintLinkURI& oURI) const { oURI = _linkURI; }
