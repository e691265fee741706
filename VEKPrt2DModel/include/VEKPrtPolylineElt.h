/// \file
/// An open polyline.
#ifndef VEKPrtPolylineElt_H
#define VEKPrtPolylineElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKMathPoint2D;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__17VEKPrtPolylineElt;

/// A sequence of points, joined in order.
class VEKPRT2DMODEL_API VEKPrtPolylineElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPolylineElt();

    /// Copies the points at positions 1 to the list's size; a null entry gives (0, 0).  An empty list gives
    /// no array, unlike SetPoints with a count of 0.
    VEKPrtPolylineElt(const VEKListPtrVEKMathPoint2D& iPoints);

    /// Like SetPoints; floats are widened.
    VEKPrtPolylineElt(const double* iPoints, int iCount);
    VEKPrtPolylineElt(const float* iPoints, int iCount);

    /// Copies the array.  From an element without an array, the count is not copied either.
    VEKPrtPolylineElt(const VEKPrtPolylineElt& iOther);
    ~VEKPrtPolylineElt() override;

    /// Copies the array as the copy constructor does; if neither element has one, the count of this one
    /// stays.
    VEKPrtPolylineElt& operator=(const VEKPrtPolylineElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// Replaces the points by a copy of \p iCount points (x0, y0, x1, y1, ...).
    ///
    /// A count of 0 gives a zero-length array, a negative count no array.  The count is stored as given, also
    /// when allocation fails and there is no array.  A null \p iPoints gives points at (0, 0).
    ///
    /// \p iPoints may lie in the element's own array: it is read to the end of the array, (0, 0) beyond, and
    /// the array is then freed.
    virtual void SetPoints(const double* iPoints, int iCount);

    /// Lends the array: valid until the next SetPoints, assignment or destruction.
    virtual void GetPoints(double*& oPoints, int& oCount) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtPolylineElt& iOther);

    double* _points = nullptr;
    int _count = 0;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
