#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"

VEKListPtrVEKPrtClosedFigureRegionElt::VEKListPtrVEKPrtClosedFigureRegionElt(int iInitial)
    : VEKRawCollPV(iInitial) {}
VEKListPtrVEKPrtClosedFigureRegionElt::VEKListPtrVEKPrtClosedFigureRegionElt(
    const VEKListPtrVEKPrtClosedFigureRegionElt& iOther) = default;
VEKListPtrVEKPrtClosedFigureRegionElt::~VEKListPtrVEKPrtClosedFigureRegionElt() = default;
VEKListPtrVEKPrtClosedFigureRegionElt& VEKListPtrVEKPrtClosedFigureRegionElt::operator=(
    const VEKListPtrVEKPrtClosedFigureRegionElt& iOther) = default;
