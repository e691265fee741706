/// \file
/// A marker symbol at a point.
#ifndef VEKPrtMarkerElt_H
#define VEKPrtMarkerElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtMarkerAttributes.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__15VEKPrtMarkerElt;

/// A point and a size; the marker record says which symbol is drawn.
///
/// This project's consumers centre the symbol on the point, in a square whose side is the size.
class VEKPRT2DMODEL_API VEKPrtMarkerElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtMarkerElt();
    VEKPrtMarkerElt(const VEKMathPoint2D& iPoint, double iSize);
    VEKPrtMarkerElt(const VEKPrtMarkerElt& iOther);
    ~VEKPrtMarkerElt() override;
    VEKPrtMarkerElt& operator=(const VEKPrtMarkerElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetPoint(const VEKMathPoint2D& iPoint);
    virtual void GetPoint(VEKMathPoint2D& oPoint) const;
    virtual void SetSize(double iSize);
    virtual void GetSize(double& oSize) const;
    virtual void SetParameters(const VEKMathPoint2D& iPoint, double iSize);
    virtual void GetParameters(VEKMathPoint2D& oPoint, double& oSize) const;
    virtual void SetMarkerAttributes(const VEKPrtMarkerAttributes& iAttributes);
    virtual void GetMarkerAttributes(VEKPrtMarkerAttributes& oAttributes) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtMarkerElt& iOther);

    VEKMathPoint2D _point{0.0, 0.0};
    double _size = 0.0;
    VEKPrtMarkerAttributes _marker;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
