/// \file
/// The list type for the images of a model.
#ifndef VEKListPtrVEKPrtImageElt_H
#define VEKListPtrVEKPrtImageElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKRawCollPV.h"

/// Pointers to VEKPrtImageElt at positions 1 to Size(), made and read as a VEKRawCollPV.
///
/// The list holds no references: copying it copies pointers only.  Whoever keeps the list counts
/// the references of its members.
class VEKPRT2DMODEL_API VEKListPtrVEKPrtImageElt : public VEKRawCollPV {
public:
    VEKListPtrVEKPrtImageElt(int iInitial);
    VEKListPtrVEKPrtImageElt(const VEKListPtrVEKPrtImageElt& iOther);
    virtual ~VEKListPtrVEKPrtImageElt();
    VEKListPtrVEKPrtImageElt& operator=(const VEKListPtrVEKPrtImageElt& iOther);
};

#endif
