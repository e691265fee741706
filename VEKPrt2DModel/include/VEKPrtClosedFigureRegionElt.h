/// \file
/// A closed outline made of primitives.
#ifndef VEKPrtClosedFigureRegionElt_H
#define VEKPrtClosedFigureRegionElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__27VEKPrtClosedFigureRegionElt;

/// One region of a closed figure.  Its children are the outline, in order; the figure has the stroke and the
/// fill.
///
/// Holds one reference on each child, for each time that it was added.
class VEKPRT2DMODEL_API VEKPrtClosedFigureRegionElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtClosedFigureRegionElt();

    /// \copydoc VEKPrtGroupElt::VEKPrtGroupElt(const VEKPrtGroupElt&)
    VEKPrtClosedFigureRegionElt(const VEKPrtClosedFigureRegionElt& iOther);
    ~VEKPrtClosedFigureRegionElt() override;
    /// \copydoc VEKPrtGroupElt::operator=
    VEKPrtClosedFigureRegionElt& operator=(const VEKPrtClosedFigureRegionElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtGroupElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// Does the same and yields the region's own type.  The closed figure duplicates its regions by this one,
    /// so a class derived by a client overrides both.
    virtual void Duplicate(VEKPrtClosedFigureRegionElt*& oCopy);

    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;
    /// \copydoc VEKPrtGroupElt::AddChild
    virtual void AddChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::RemoveChild
    virtual void RemoveChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::GetChildren
    virtual void GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren);

private:
    template <class Out>
    VEKPRT2DMODEL_LOCAL void DuplicateInto(Out*& oCopy) const;
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtClosedFigureRegionElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKPrtTransformAttributes _transform;
};

#endif
