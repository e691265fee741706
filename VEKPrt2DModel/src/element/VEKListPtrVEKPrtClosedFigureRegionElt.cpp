#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"

VEKListPtrVEKPrtClosedFigureRegionElt::VEKListPtrVEKPrtClosedFigureRegionElt(int iInitial)
    : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtClosedFigureRegionElt::VEKListPtrVEKPrtClosedFigureRegionElt(
    const VEKListPtrVEKPrtClosedFigureRegionElt& iOther) = default;
VEKListPtrVEKPrtClosedFigureRegionElt::~VEKListPtrVEKPrtClosedFigureRegionElt() = default;

// Tested here: a host's collection need not survive its own assignment.
VEKListPtrVEKPrtClosedFigureRegionElt&
VEKListPtrVEKPrtClosedFigureRegionElt::operator=(const VEKListPtrVEKPrtClosedFigureRegionElt& iOther) {
    if (&iOther != this) VEKRawCollPV::operator=(iOther);
    return *this;
}
