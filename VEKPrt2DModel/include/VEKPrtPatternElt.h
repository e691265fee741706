// A tile of drawing.
#ifndef VEKPrtPatternElt_H
#define VEKPrtPatternElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__16VEKPrtPatternElt;

/// Children in a placement box, meant to be repeated.
///
/// Holds one reference on each child.  Pattern and symbol are alike but for their class.
class VEKPRT2DMODEL_API VEKPrtPatternElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPatternElt();
    VEKPrtPatternElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight);

    /// Shares the children: each gains a reference.
    VEKPrtPatternElt(const VEKPrtPatternElt& iOther);
    ~VEKPrtPatternElt() override;

    /// Releases the old children but for the last one, and shares those of \p iOther.
    ///
    /// The last of the old children keeps the reference that this element took.  The target ends with an
    /// empty list, not null, when \p iOther has none and this element had one.
    VEKPrtPatternElt& operator=(const VEKPrtPatternElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the children in depth; a child that cannot be duplicated is left out.  The identity
    /// strings are not carried over.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
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
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtPatternElt& iOther);
    VEKPRT2DMODEL_LOCAL void CopyFields(const VEKPrtPatternElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKMathPoint2D _origin;
    double _width = 0.0;
    double _height = 0.0;
    VEKPrtTransformAttributes _transform;
};

#endif
