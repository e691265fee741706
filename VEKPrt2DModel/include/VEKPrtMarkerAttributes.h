/// \file
/// Which symbol a marker shows.
#ifndef VEKPrtMarkerAttributes_H
#define VEKPrtMarkerAttributes_H

#include "VEKPrintMarkerAttribute.h"
#include "VEKPrt2DModelExport.h"

/// The symbol; VEKPrtMarkerElt has its size and its stroke.
class VEKPRT2DMODEL_API VEKPrtMarkerAttributes {
public:
    /// A plus.
    VEKPrtMarkerAttributes();
    VEKPrtMarkerAttributes(const VEKPrtMarkerAttributes& iOther);
    virtual ~VEKPrtMarkerAttributes();
    VEKPrtMarkerAttributes& operator=(const VEKPrtMarkerAttributes& iOther);

    /// Any value is stored and handed back.
    virtual void SetMarkerStyle(VEKPrintMarkerAttribute iStyle);
    /// Not const: the mangled name is part of the binary interface.
    virtual void GetMarkerStyle(VEKPrintMarkerAttribute& oStyle);

private:
    VEKPrintMarkerAttribute _style;
};

#endif
