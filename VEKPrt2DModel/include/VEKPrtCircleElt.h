/// \file
/// A full circle.
#ifndef VEKPrtCircleElt_H
#define VEKPrtCircleElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__15VEKPrtCircleElt;

/// Centre and radius.  Any radius is stored; this project's consumers ignore its sign.
class VEKPRT2DMODEL_API VEKPrtCircleElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtCircleElt();
    VEKPrtCircleElt(const VEKMathPoint2D& iCenter, double iRadius);
    VEKPrtCircleElt(const VEKPrtCircleElt& iOther);
    ~VEKPrtCircleElt() override;
    VEKPrtCircleElt& operator=(const VEKPrtCircleElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtRectangleElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetCenter(const VEKMathPoint2D& iCenter);
    virtual void GetCenter(VEKMathPoint2D& oCenter) const;
    virtual void SetRadius(double iRadius);
    virtual void GetRadius(double& oRadius) const;
    virtual void SetParameters(const VEKMathPoint2D& iCenter, double iRadius);
    virtual void GetParameters(VEKMathPoint2D& oCenter, double& oRadius) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtCircleElt& iOther);

    VEKMathPoint2D _center{0.0, 0.0};
    double _radius = 0.0;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
