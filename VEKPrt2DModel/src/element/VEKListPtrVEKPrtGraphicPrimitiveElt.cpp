#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"

VEKListPtrVEKPrtGraphicPrimitiveElt::VEKListPtrVEKPrtGraphicPrimitiveElt(int iInitial)
    : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtGraphicPrimitiveElt::VEKListPtrVEKPrtGraphicPrimitiveElt(
    const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther) = default;
VEKListPtrVEKPrtGraphicPrimitiveElt::~VEKListPtrVEKPrtGraphicPrimitiveElt() = default;
VEKListPtrVEKPrtGraphicPrimitiveElt&
VEKListPtrVEKPrtGraphicPrimitiveElt::operator=(const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther) = default;
