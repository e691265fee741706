/// \file
/// The list type for the children of a container.
#ifndef VEKListPtrVEKPrtGraphicPrimitiveElt_H
#define VEKListPtrVEKPrtGraphicPrimitiveElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKRawCollPV.h"

/// Pointers to VEKPrtGraphicPrimitiveElt at positions 1 to Size(), made and read as a VEKRawCollPV.
///
/// The list holds no references: copying it copies pointers only.  Whoever keeps the list counts
/// the references of its members.
class VEKPRT2DMODEL_API VEKListPtrVEKPrtGraphicPrimitiveElt : public VEKRawCollPV {
public:
    VEKListPtrVEKPrtGraphicPrimitiveElt(int iInitial);
    VEKListPtrVEKPrtGraphicPrimitiveElt(const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther);
    virtual ~VEKListPtrVEKPrtGraphicPrimitiveElt();
    VEKListPtrVEKPrtGraphicPrimitiveElt& operator=(const VEKListPtrVEKPrtGraphicPrimitiveElt& iOther);
};

#endif
