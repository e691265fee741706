/// \file
/// A filled and stroked figure made of regions.
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

/// Regions, and the stroke and fill that they share.  By the default fill rule, a region inside another is a
/// hole.
///
/// Holds one reference on each region, for each time that it was added.
class VEKPRT2DMODEL_API VEKPrtClosedFigureElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtClosedFigureElt();

    /// Shares the regions: each gains a reference.  If the new list cannot grow, the regions that it has no
    /// room for are left out, but keep the reference taken for them.
    VEKPrtClosedFigureElt(const VEKPrtClosedFigureElt& iOther);
    ~VEKPrtClosedFigureElt() override;

    /// Releases all old regions, and shares those of \p iOther as the copy constructor does.
    ///
    /// When \p iOther has no list and this figure has one, this figure ends with an empty list, not null.
    VEKPrtClosedFigureElt& operator=(const VEKPrtClosedFigureElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the regions in depth, as VEKPrtGroupElt::Duplicate does with children, and the fill with
    /// its pattern image, which is absent where it cannot be copied.  The identity strings are not copied.
    /// Unlike the shapes' Duplicate, it leaves no reference behind on the pattern image.
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
    /// Like VEKPrtGroupElt::AddChild; a region needs no check against this figure, as it can never be the
    /// figure itself.
    virtual void AddChild(VEKPrtClosedFigureRegionElt* iRegion);

    /// Removes the first occurrence and releases it once.  Null and an absent region are ignored.
    virtual void RemoveChild(VEKPrtClosedFigureRegionElt* iRegion);

    /// The figure's own list, null until a region is added or the figure is copied from one that has a list.
    /// Do not delete it, and do not release its members.  Valid until the next assignment to the figure or
    /// its destruction.
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
