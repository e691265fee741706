/// \file
/// A container of elements.
#ifndef VEKPrtGroupElt_H
#define VEKPrtGroupElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtGroupAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__14VEKPrtGroupElt;

/// Children that share a transform and a link.
///
/// Holds one reference on each child, for each time that it was added.
class VEKPRT2DMODEL_API VEKPrtGroupElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtGroupElt();

    /// Shares the children: each gains a reference.  If the new list cannot grow, the children that it has no
    /// room for are left out, but keep the reference taken for them.
    VEKPrtGroupElt(const VEKPrtGroupElt& iOther);
    ~VEKPrtGroupElt() override;

    /// Releases the old children except the one at the last position, and shares those of \p iOther as the
    /// copy constructor does.
    ///
    /// When \p iOther has no list and this element has one, this element ends with an empty list, not null;
    /// where neither has one, neither gets one.
    ///
    /// \warning The old child at the last position keeps the reference that this element took, and is never
    /// freed unless the caller releases it.  Assign to elements without children only.  (Where that position
    /// holds null, which only a client can have appended, all old children are released.)
    VEKPrtGroupElt& operator=(const VEKPrtGroupElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the children in depth; a child that cannot be duplicated is left out.  The identity strings
    /// are not copied.  If the copy's list cannot grow, the duplicates that it has no room for are left out
    /// and never freed.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetGroupAttributes(const VEKPrtGroupAttributes& iAttributes);
    virtual void GetGroupAttributes(VEKPrtGroupAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

    /// Appends \p iChild as the last child.
    ///
    /// Takes its own reference; the caller keeps the one it has.  Null and this element itself are ignored.
    /// A child already present is added again, with a second reference.  An element that holds this one,
    /// directly or not, is accepted: the cycle is never freed, and duplicating it never ends.
    ///
    /// If the list cannot be allocated, nothing is added and the child's count is unchanged.  If the list
    /// cannot grow, the child is not added either, but keeps the reference taken for it.
    virtual void AddChild(VEKPrtGraphicPrimitiveElt* iChild);

    /// Removes the first occurrence and releases it once.  Null, this element itself and an absent child are
    /// ignored.
    virtual void RemoveChild(VEKPrtGraphicPrimitiveElt* iChild);

    /// The element's own list, null until a child is added or the element is copied from one that has a list.
    /// Do not delete it, and do not release its members.  Valid until the next assignment to the element or
    /// its destruction.  Not const except in the image: the mangled name is part of the binary interface.
    virtual void GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren);

private:
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtGroupElt& iOther);
    VEKPRT2DMODEL_LOCAL void CopyFields(const VEKPrtGroupElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKPrtGroupAttributes _groupAttributes;
    VEKPrtTransformAttributes _transform;
};

#endif
