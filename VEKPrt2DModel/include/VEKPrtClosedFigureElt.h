// A filled and stroked figure made of regions.
#ifndef VEKPrtClosedFigureElt_H
#define VEKPrtClosedFigureElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtClosedFigureRegionElt;
class VEKPrtClosedFigureRegionElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__21VEKPrtClosedFigureElt;

/// Regions, and the appearance that they share.
///
/// Holds one reference on each region.
class VEKPRT2DMODEL_API VEKPrtClosedFigureElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtClosedFigureElt();

    /// Shares the regions: each gains a reference.
    VEKPrtClosedFigureElt(const VEKPrtClosedFigureElt& iOther);
    ~VEKPrtClosedFigureElt() override;

    /// Releases all old regions and shares those of \p iOther.
    ///
    /// The target ends with an empty list, not null, when \p iOther has none and this figure had one.
    VEKPrtClosedFigureElt& operator=(const VEKPrtClosedFigureElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the regions and their children in depth, by the regions' own overload, and the fill
    /// with its pattern image, where that can be copied.  The identity strings are not carried over.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

    /// Appends \p iRegion as the last region.
    ///
    /// As VEKPrtGroupElt::AddChild, but any region is accepted.
    virtual void AddChild(VEKPrtClosedFigureRegionElt* iRegion);

    /// Removes the first occurrence and releases it once; null and an absent region are ignored.
    virtual void RemoveChild(VEKPrtClosedFigureRegionElt* iRegion);

    /// The figure's own list, null until a region was added: do not delete it, do not release its
    /// members.  Valid until the next assignment to the figure or its destruction.
    virtual void GetChildren(VEKListPtrVEKPrtClosedFigureRegionElt*& oRegions);

private:
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtClosedFigureElt& iOther);

    VEKListPtrVEKPrtClosedFigureRegionElt* _regions = nullptr;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
