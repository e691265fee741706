/// \file
/// A closed polygon.
#ifndef VEKPrtPolygonElt_H
#define VEKPrtPolygonElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

class VEKListPtrVEKMathPoint2D;

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__16VEKPrtPolygonElt;

/// A sequence of points, joined in order and closed.
class VEKPRT2DMODEL_API VEKPrtPolygonElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPolygonElt();

    /// Copies positions 0 to the list's size less 1; a null entry gives (0, 0).  An empty list gives no
    /// array.
    ///
    /// \warning Lists start at position 1: the first point is (0, 0), and the last point of the list is left
    /// out.  Use an array of coordinates instead.
    VEKPrtPolygonElt(const VEKListPtrVEKMathPoint2D& iPoints);

    /// Like SetPoints; floats are widened.
    VEKPrtPolygonElt(const double* iPoints, int iCount);
    VEKPrtPolygonElt(const float* iPoints, int iCount);

    /// Copies the array.  From an element without an array, the count is not copied either.
    VEKPrtPolygonElt(const VEKPrtPolygonElt& iOther);
    ~VEKPrtPolygonElt() override;

    /// Copies the array as the copy constructor does; if neither element has one, the count of this one
    /// stays.
    VEKPrtPolygonElt& operator=(const VEKPrtPolygonElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtRectangleElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// \copydoc VEKPrtPolylineElt::SetPoints
    virtual void SetPoints(const double* iPoints, int iCount);
    /// \copydoc VEKPrtPolylineElt::GetPoints
    virtual void GetPoints(double*& oPoints, int& oCount) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtPolygonElt& iOther);

    double* _points = nullptr;
    int _count = 0;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
