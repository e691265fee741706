#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"

VEKListPtrVEKPrtGraphicPrimitiveElt::VEKListPtrVEKPrtGraphicPrimitiveElt(int iInitial)
    : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtGraphicPrimitiveElt::VEKListPtrVEKPrtGraphicPrimitiveElt(
    const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther) = default;
VEKListPtrVEKPrtGraphicPrimitiveElt::~VEKListPtrVEKPrtGraphicPrimitiveElt() = default;

// Tested here: a host's collection need not survive its own assignment.
VEKListPtrVEKPrtGraphicPrimitiveElt&
VEKListPtrVEKPrtGraphicPrimitiveElt::operator=(const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther) {
    if (&iOther != this) VEKRawCollPV::operator=(iOther);
    return *this;
}
