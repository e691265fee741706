/// \file
/// A reusable piece of drawing.
#ifndef VEKPrtSymbolElt_H
#define VEKPrtSymbolElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__15VEKPrtSymbolElt;

/// Children in a placement box, meant to be used again.
///
/// To place a symbol several times, add it to several groups, each with the transforms of one place.  The
/// model only stores the box; this project's consumers clip the symbol to it.  Holds one reference on each
/// child, for each time that it was added.  Pattern and symbol differ by their class only.
class VEKPRT2DMODEL_API VEKPrtSymbolElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtSymbolElt();
    VEKPrtSymbolElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight);

    /// \copydoc VEKPrtGroupElt::VEKPrtGroupElt(const VEKPrtGroupElt&)
    VEKPrtSymbolElt(const VEKPrtSymbolElt& iOther);
    ~VEKPrtSymbolElt() override;
    /// \copydoc VEKPrtGroupElt::operator=
    VEKPrtSymbolElt& operator=(const VEKPrtSymbolElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtGroupElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;
    /// \copydoc VEKPrtGroupElt::AddChild
    virtual void AddChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::RemoveChild
    virtual void RemoveChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::GetChildren
    virtual void GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren);

private:
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtSymbolElt& iOther);
    VEKPRT2DMODEL_LOCAL void CopyFields(const VEKPrtSymbolElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKMathPoint2D _origin{0.0, 0.0};
    double _width = 0.0;
    double _height = 0.0;
    VEKPrtTransformAttributes _transform;
};

#endif
