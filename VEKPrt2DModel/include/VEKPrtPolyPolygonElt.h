/// \file
/// One shape made of several polygons.
#ifndef VEKPrtPolyPolygonElt_H
#define VEKPrtPolyPolygonElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__20VEKPrtPolyPolygonElt;

/// The points of all polygons, one polygon after the other, and the number of points of each: for example an
/// outline and its holes.
///
/// Writing through the lent arrays changes the element.  Counts may be lowered there, never raised: how many
/// points the element copies or reads is the sum of its counts.
class VEKPRT2DMODEL_API VEKPrtPolyPolygonElt : public VEKPrtGraphicPrimitiveElt {
public:
    VEKPrtPolyPolygonElt();

    /// Like SetPoints, but a total of 0 gives no point array; floats are widened.
    VEKPrtPolyPolygonElt(const double* iPoints, const int* iCounts, int iPolygonCount);
    VEKPrtPolyPolygonElt(const float* iPoints, const int* iCounts, int iPolygonCount);

    /// Copies the arrays.  From an element that lacks one of them, the copy has no polygons.
    VEKPrtPolyPolygonElt(const VEKPrtPolyPolygonElt& iOther);
    ~VEKPrtPolyPolygonElt() override;
    VEKPrtPolyPolygonElt& operator=(const VEKPrtPolyPolygonElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// \copydoc VEKPrtRectangleElt::Duplicate
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// Replaces points and counts by copies.
    ///
    /// \p iPoints holds x0, y0, x1, y1, ... of as many points as the counts add up to.  Counts are not
    /// checked, and a negative one lowers the total.  A total of 0 gives a zero-length point array, a
    /// negative total none.  A negative \p iPolygonCount is stored and gives no arrays.  Null \p iCounts give
    /// zeros, null \p iPoints (0, 0).  When allocation fails the array concerned is null; without counts
    /// there are no points either.
    ///
    /// Arguments may lie in the element's own arrays: they are read to the end of the array, zeros beyond,
    /// and the array is then freed.
    virtual void SetPoints(const double* iPoints, const int* iCounts, int iPolygonCount);

    /// Lends the arrays: valid until the next SetPoints, assignment or destruction.
    virtual void GetPoints(double*& oPoints, int*& oCounts, int& oPolygonCount) const;
    virtual void SetDrawStyle(VEKPrtDrawStyle iStyle);
    virtual void GetDrawStyle(VEKPrtDrawStyle& oStyle) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetFillAttributes(const VEKPrtFillAttributes& iAttributes);
    virtual void GetFillAttributes(VEKPrtFillAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    template <class Coordinate>
    VEKPRT2DMODEL_LOCAL void Construct(const Coordinate* iPoints, const int* iCounts);
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtPolyPolygonElt& iOther);

    double* _points = nullptr;
    int* _counts = nullptr;
    int _polygonCount = 0;
    VEKPrtDrawStyle _drawStyle = VEKPrtDrawOutline;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtFillAttributes _fill;
    VEKPrtTransformAttributes _transform;
};

#endif
