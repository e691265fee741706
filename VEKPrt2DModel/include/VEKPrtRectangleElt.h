/// \file
/// A rectangle.
#ifndef VEKPrtRectangleElt_H
#define VEKPrtRectangleElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__18VEKPrtRectangleElt;

/// Two opposite corners, in any order, and kept in that order.  The sides are parallel to the axes;
/// transforms rotate the rectangle.
class VEKPRT2DMODEL_API VEKPrtRectangleElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtRectangleElt();
    VEKPrtRectangleElt(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond);
    VEKPrtRectangleElt(const VEKPrtRectangleElt& iOther);
    ~VEKPrtRectangleElt() override;
    VEKPrtRectangleElt& operator=(const VEKPrtRectangleElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// The copy has a pattern image of its own, or none where that cannot be copied.
    ///
    /// \warning If the fill has a pattern image, this element's image keeps a reference that is never
    /// released, so the image is never freed.  To avoid this, duplicate first and set the pattern on both
    /// elements afterwards.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetPoints(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond);
    virtual void GetPoints(VEKMathPoint2D& oFirst, VEKMathPoint2D& oSecond) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtRectangleElt& iOther);

    VEKMathPoint2D _firstCorner{0.0, 0.0};
    VEKMathPoint2D _secondCorner{0.0, 0.0};
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
