/// \file
/// A rational B-spline curve.
#ifndef VEKPrtNURBSElt_H
#define VEKPrtNURBSElt_H

#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__14VEKPrtNURBSElt;

/// Order, control points, knots, weights and two parameter bounds, stored and never evaluated.
///
/// There are order + count knots and count weights; weights are not optional.  This project's consumers draw
/// the curve between the two bounds.
class VEKPRT2DMODEL_API VEKPrtNURBSElt : public VEKPrtGraphicPrimitiveElt {
public:
    /// No arrays; the bounds are 0 and 1.
    VEKPrtNURBSElt();

    /// Copies the three arrays, knots and weights from their first element on, if the count is positive and
    /// no array is null.  Floats are widened.
    VEKPrtNURBSElt(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                   float iFirstBound, float iSecondBound, const double* iWeights);
    VEKPrtNURBSElt(int iOrder, int iCount, const float* iControlPoints, const float* iKnots,
                   float iFirstBound, float iSecondBound, const float* iWeights);

    /// Copies order and arrays, but not the bounds: after copying, assignment and Duplicate they are 0 and 1.
    /// From a curve that lacks one of the arrays, the copy has a count of 0.
    VEKPrtNURBSElt(const VEKPrtNURBSElt& iOther);
    ~VEKPrtNURBSElt() override;
    VEKPrtNURBSElt& operator=(const VEKPrtNURBSElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// Stores order, count and bounds as given, and copies the three arrays if the count is positive and no
    /// array is null.
    ///
    /// \warning Unlike the constructors it reads knots and weights from their second element on: \p iKnots
    /// must have order + count + 1 elements, \p iWeights count + 1.
    ///
    /// An array of the element's own may be passed back in its own place, control points as control points
    /// and so on.  It is then the caller's to `delete[]`, also when a new array could not be allocated; where
    /// none is made (a count of 0 or less, or another array null) it stays the element's.  Any other pointer
    /// into an own array may be passed in that place, too; the array is then freed.  Both are read to the end
    /// of the array, zeros beyond.
    ///
    /// The order and count before the call say how long the own arrays are, so an array that stayed when they
    /// changed must not be passed again.  Nor must a pointer into one of the three arrays be passed in the
    /// place of another: that array may be freed before it is read.
    virtual void SetParameters(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                               float iFirstBound, float iSecondBound, const double* iWeights);

    /// Lends the arrays: valid until the next SetParameters, assignment or destruction.
    ///
    /// Read them only if \p oCount is positive and none of the three is null.  After a failed allocation, or
    /// with an order below minus the count, those that are there hold zeros; arrays that were passed back to
    /// a call that made no new ones keep their old length, whatever order and count say now.
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
