/// \file
/// A set of separate segments.
#ifndef VEKPrtDisjointPolylineElt_H
#define VEKPrtDisjointPolylineElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKMathPoint2D;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__25VEKPrtDisjointPolylineElt;

/// Pairs of points, each a segment.  The constructors round an odd count, SetPoints does not.
class VEKPRT2DMODEL_API VEKPrtDisjointPolylineElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtDisjointPolylineElt();

    /// Rounds the list's size down to an even count and copies as many positions, from 0 on; a null entry
    /// gives (0, 0).  A size below 2 gives no array.
    ///
    /// \warning Lists start at position 1: the first point is (0, 0), and the end of the list is left out.
    /// Use an array of coordinates instead.
    VEKPrtDisjointPolylineElt(const VEKListPtrVEKMathPoint2D& iPoints);

    /// Like SetPoints, but an odd count is rounded towards zero, and a count below 2 gives no array.
    VEKPrtDisjointPolylineElt(const double* iPoints, int iCount);

    /// Copies the array.  From an element without an array, the count is not copied either.
    VEKPrtDisjointPolylineElt(const VEKPrtDisjointPolylineElt& iOther);
    ~VEKPrtDisjointPolylineElt() override;

    /// Copies the array as the copy constructor does; if neither element has one, the count of this one
    /// stays.
    VEKPrtDisjointPolylineElt& operator=(const VEKPrtDisjointPolylineElt& iOther);

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
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtDisjointPolylineElt& iOther);

    double* _points = nullptr;
    int _count = 0;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
