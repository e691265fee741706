// A rational B-spline curve.
#ifndef VEKPrtNURBSElt_H
#define VEKPrtNURBSElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__14VEKPrtNURBSElt;

/// Order, control points, knots, weights and two parameter bounds.  Never evaluated here.
///
/// There are order + count knots and count weights; weights are not optional.
class VEKPRT2DMODEL_API VEKPrtNURBSElt : public VEKPrtGraphicPrimitiveElt {
public:
    /// The bounds are 0 and 1.
    VEKPrtNURBSElt();

    /// Reads knots and weights from their first element on.  Arrays are made only for a positive count and
    /// three arrays given; floats are widened.
    VEKPrtNURBSElt(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                   float iFirstBound, float iSecondBound, const double* iWeights);
    VEKPrtNURBSElt(int iOrder, int iCount, const float* iControlPoints, const float* iKnots,
                   float iFirstBound, float iSecondBound, const float* iWeights);

    /// Copies order and arrays, but not the bounds: a copy, an assigned and a duplicated curve have the
    /// bounds 0 and 1.  Copied from a curve that lacks one of the arrays it has a count of 0.
    VEKPrtNURBSElt(const VEKPrtNURBSElt& iOther);
    ~VEKPrtNURBSElt() override;
    VEKPrtNURBSElt& operator=(const VEKPrtNURBSElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// Stores order, count and bounds as given, and copies of the three arrays where the count is
    /// positive and no array is null.
    ///
    /// Unlike the constructors it reads knots and weights from their second element on: \p iKnots must
    /// have order + count + 1 elements, \p iWeights count + 1.
    ///
    /// An array of the element's own may be passed back in its own place, control points as control points
    /// and so on.  It is then the caller's to `delete[]`, also when a new array could not be allocated; where
    /// none is made (a count of 0 or less, or another array null) it stays the element's.  Any other pointer
    /// into an own array may be passed in that place, too; the array is then freed.  Both are read to the end
    /// of the array, zeros beyond; how long it is, the order and count before the call say, so an array that
    /// stayed when they changed cannot be passed again.  Nor can a pointer into one array be passed in the
    /// place of another: that array may be freed before it is read.
    virtual void SetParameters(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                               float iFirstBound, float iSecondBound, const double* iWeights);

    /// Lends the arrays: valid until the next SetParameters, assignment or destruction.
    virtual void GetParameters(int& oOrder, int& oCount, double*& oControlPoints, double*& oKnots,
                               float& oFirstBound, float& oSecondBound, double*& oWeights) const;
    virtual void SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes);
    virtual void GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const;
    virtual void SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes);
    virtual void GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const;

private:
    VEKPRT2DMODEL_LOCAL bool NewArrays();
    VEKPRT2DMODEL_LOCAL void DeleteArrays();
    template <class Value>
    VEKPRT2DMODEL_LOCAL void Construct(const Value* iControlPoints, const Value* iKnots,
                                       const Value* iWeights);
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtNURBSElt& iOther);

    int _order = 0;
    int _count = 0;
    double* _controlPoints = nullptr;
    double* _knots = nullptr;
    float _firstBound = 0.0F;
    float _secondBound = 1.0F;
    double* _weights = nullptr;
    VEKPrtStrokeAttributes _stroke;
    VEKPrtTransformAttributes _transform;
};

#endif
