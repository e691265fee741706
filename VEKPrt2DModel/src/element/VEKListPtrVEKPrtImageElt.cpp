#include "VEKListPtrVEKPrtImageElt.h"

VEKListPtrVEKPrtImageElt::VEKListPtrVEKPrtImageElt(int iInitial) : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtImageElt::VEKListPtrVEKPrtImageElt(const VEKListPtrVEKPrtImageElt& iOther) = default;
VEKListPtrVEKPrtImageElt::~VEKListPtrVEKPrtImageElt() = default;
VEKListPtrVEKPrtImageElt&
VEKListPtrVEKPrtImageElt::operator=(const VEKListPtrVEKPrtImageElt& iOther) = default;
