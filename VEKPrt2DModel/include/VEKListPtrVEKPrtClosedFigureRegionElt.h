/// \file
/// The list type for the regions of a closed figure.
#ifndef VEKListPtrVEKPrtClosedFigureRegionElt_H
#define VEKListPtrVEKPrtClosedFigureRegionElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKRawCollPV.h"

/// Pointers to VEKPrtClosedFigureRegionElt at positions 1 to Size(), made and read as a VEKRawCollPV.
///
/// The list holds no references: copying it copies pointers only.  Whoever keeps the list counts
/// the references of its members.
class VEKPRT2DMODEL_API VEKListPtrVEKPrtClosedFigureRegionElt : public VEKRawCollPV {
public:
    VEKListPtrVEKPrtClosedFigureRegionElt(int iInitial);
    VEKListPtrVEKPrtClosedFigureRegionElt(const VEKListPtrVEKPrtClosedFigureRegionElt& iOther);
    virtual ~VEKListPtrVEKPrtClosedFigureRegionElt();
    VEKListPtrVEKPrtClosedFigureRegionElt& operator=(const VEKListPtrVEKPrtClosedFigureRegionElt& iOther);
};

#endif
