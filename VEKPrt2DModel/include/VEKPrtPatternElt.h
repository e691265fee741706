/// \file
/// A tile of drawing.
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
/// The model only stores the box; this project's consumers repeat it over the box of the nearest symbol
/// around the pattern, or over the page.  Holds one reference on each child, for each time that it was added.
/// Pattern and symbol differ by their class only.
class VEKPRT2DMODEL_API VEKPrtPatternElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPatternElt();
    VEKPrtPatternElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight);

    /// \copydoc VEKPrtGroupElt::VEKPrtGroupElt(const VEKPrtGroupElt&)
    VEKPrtPatternElt(const VEKPrtPatternElt& iOther);
    ~VEKPrtPatternElt() override;
    /// \copydoc VEKPrtGroupElt::operator=
    VEKPrtPatternElt& operator=(const VEKPrtPatternElt& iOther);

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
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtPatternElt& iOther);
    VEKPRT2DMODEL_LOCAL void CopyFields(const VEKPrtPatternElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKMathPoint2D _origin{0.0, 0.0};
    double _width = 0.0;
    double _height = 0.0;
    VEKPrtTransformAttributes _transform;
};

#endif
