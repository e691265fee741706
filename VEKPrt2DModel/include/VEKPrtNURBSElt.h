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
    /// and so on: it is read as far as it goes, zero beyond, and is then the caller's to `delete[]`, also
    /// when a new array could not be allocated; where none is made (a count of 0 or less, or another array
    /// null) it stays the element's.  An argument that begins elsewhere in an own array, or whose first
    /// element to be read lies in one, is also read only to the end of that array, which is then freed.
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
    // The order and count that the arrays were made for: order and count can change without them.
    int _heldOrder = 0;
    int _heldCount = 0;
};

#endif
