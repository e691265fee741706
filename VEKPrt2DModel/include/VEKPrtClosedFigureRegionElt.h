// A closed outline made of primitives.
#ifndef VEKPrtClosedFigureRegionElt_H
#define VEKPrtClosedFigureRegionElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__27VEKPrtClosedFigureRegionElt;

/// One region of a closed figure: its children are the outline, in order; appearance is the figure's.
///
/// Holds one reference on each child.
class VEKPRT2DMODEL_API VEKPrtClosedFigureRegionElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtClosedFigureRegionElt();

    /// Shares the children: each gains a reference.
    VEKPrtClosedFigureRegionElt(const VEKPrtClosedFigureRegionElt& iOther);
    ~VEKPrtClosedFigureRegionElt() override;
    /// \copydoc VEKPrtGroupElt::operator=
    VEKPrtClosedFigureRegionElt& operator=(const VEKPrtClosedFigureRegionElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtGroupElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// The same, typed: a slot of its own, and the one that the figure calls.
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
