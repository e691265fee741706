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

    /// Releases the old children but for the last one, and shares those of \p iOther.
    ///
    /// The last of the old children keeps the reference that this element took.  The target ends with an
    /// empty list, not null, when \p iOther has none and this element had one.
    VEKPrtClosedFigureRegionElt& operator=(const VEKPrtClosedFigureRegionElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the children in depth; a child that cannot be duplicated is left out.  The identity
    /// strings are not carried over.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// The same, typed: a slot of its own, and the one that the figure calls.
    virtual void Duplicate(VEKPrtClosedFigureRegionElt*& oCopy);

    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

    /// Appends \p iChild as the last child.
    ///
    /// Takes its own reference; the caller keeps the one it has.  Null, and this element itself, are
    /// ignored.  A child already present is added again and takes a second reference.  If the list
    /// cannot be made, nothing is added and the child's count is unchanged.
    virtual void AddChild(VEKPrtGraphicPrimitiveElt* iChild);

    /// Removes the first occurrence and releases it once; null, this element and an absent child are
    /// ignored.
    virtual void RemoveChild(VEKPrtGraphicPrimitiveElt* iChild);

    /// The element's own list, null until a child was added: do not delete it, do not release its
    /// members.  Valid until the next assignment to the element or its destruction.
    virtual void GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren);

private:
    template <class Out>
    VEKPRT2DMODEL_LOCAL void DuplicateInto(Out*& oCopy) const;
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtClosedFigureRegionElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKPrtTransformAttributes _transform;
};

#endif
