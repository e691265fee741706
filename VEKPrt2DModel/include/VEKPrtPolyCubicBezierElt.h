/// \file
/// A sequence of cubic Bézier curves.
#ifndef VEKPrtPolyCubicBezierElt_H
#define VEKPrtPolyCubicBezierElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKMathPoint2D;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__24VEKPrtPolyCubicBezierElt;

/// Control points: a start, then three for each curve.  Any count is stored; this project's consumers leave
/// out an incomplete last curve.
class VEKPRT2DMODEL_API VEKPrtPolyCubicBezierElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPolyCubicBezierElt();

    /// \copydoc VEKPrtPolylineElt::VEKPrtPolylineElt(const VEKListPtrVEKMathPoint2D&)
    VEKPrtPolyCubicBezierElt(const VEKListPtrVEKMathPoint2D& iPoints);

    /// Like SetPoints; floats are widened.
    VEKPrtPolyCubicBezierElt(const double* iPoints, int iCount);
    VEKPrtPolyCubicBezierElt(const float* iPoints, int iCount);

    /// Copies the array.  From an element without an array, the count is not copied either.
    VEKPrtPolyCubicBezierElt(const VEKPrtPolyCubicBezierElt& iOther);
    ~VEKPrtPolyCubicBezierElt() override;

    /// Copies the array as the copy constructor does; if neither element has one, the count of this one
    /// stays.
    VEKPrtPolyCubicBezierElt& operator=(const VEKPrtPolyCubicBezierElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// \copydoc VEKPrtPolylineElt::SetPoints
    virtual void SetPoints(const double* iPoints, int iCount);
    /// \copydoc VEKPrtPolylineElt::GetPoints
    virtual void GetPoints(double*& oPoints, int& oCount) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtPolyCubicBezierElt& iOther);

    double* _points = nullptr;
    int _count = 0;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
