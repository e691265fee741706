/// \file
/// A straight segment.
#ifndef VEKPrtLineElt_H
#define VEKPrtLineElt_H

#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__13VEKPrtLineElt;

/// A segment from a start point to an end point, which may be equal.
class VEKPRT2DMODEL_API VEKPrtLineElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtLineElt();
    VEKPrtLineElt(const VEKMathPoint2D& iStart, const VEKMathPoint2D& iEnd);
    VEKPrtLineElt(const VEKPrtLineElt& iOther);
    ~VEKPrtLineElt() override;
    VEKPrtLineElt& operator=(const VEKPrtLineElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetStartPoint(const VEKMathPoint2D& iStart);
    virtual void GetStartPoint(VEKMathPoint2D& oStart) const;
    virtual void SetEndPoint(const VEKMathPoint2D& iEnd);
    virtual void GetEndPoint(VEKMathPoint2D& oEnd) const;
    virtual void SetParameters(const VEKMathPoint2D& iStart, const VEKMathPoint2D& iEnd);
    virtual void GetParameters(VEKMathPoint2D& oStart, VEKMathPoint2D& oEnd) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtLineElt& iOther);

    VEKMathPoint2D _startPoint{0.0, 0.0};
    VEKMathPoint2D _endPoint{0.0, 0.0};
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
