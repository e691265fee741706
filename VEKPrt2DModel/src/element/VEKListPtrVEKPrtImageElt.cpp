#include "VEKListPtrVEKPrtImageElt.h"

VEKListPtrVEKPrtImageElt::VEKListPtrVEKPrtImageElt(int iInitial) : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtImageElt::VEKListPtrVEKPrtImageElt(const VEKListPtrVEKPrtImageElt& iOther) = default;
VEKListPtrVEKPrtImageElt::~VEKListPtrVEKPrtImageElt() = default;

// Tested here: a host's collection need not survive its own assignment.
VEKListPtrVEKPrtImageElt& VEKListPtrVEKPrtImageElt::operator=(const VEKListPtrVEKPrtImageElt& iOther) {
    if (&iOther != this) VEKRawCollPV::operator=(iOther);
    return *this;
}
