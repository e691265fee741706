/// \file
/// The ordered list of elementary transforms of an element.
#ifndef VEKPrtTransformAttributes_H
#define VEKPrtTransformAttributes_H

#include "VEKMath2x2Matrix.h"
#include "VEKMathVector2D.h"
#include "VEKPrintTransformType.h"
#include "VEKPrt2DModelExport.h"

/// Elementary transforms in order of addition, each read back by its position.
///
/// Transforms are never composed or applied.  This project's consumers take the first as the outermost and
/// read angles as degrees, counter-clockwise.  Copies are independent.  Operations with a status return 1 for
/// success and -1 for failure, and write their outputs only on success.
class VEKPRT2DMODEL_API VEKPrtTransformAttributes {
public:
    /// Empty.
    VEKPrtTransformAttributes();
    VEKPrtTransformAttributes(const VEKPrtTransformAttributes& iOther);
    virtual ~VEKPrtTransformAttributes();
    VEKPrtTransformAttributes& operator=(const VEKPrtTransformAttributes& iOther);

    /// Hands out the record's own list of kinds, valid until the record changes.
    ///
    /// The list is null if it is empty, and, in spite of its count, if a failed addition has lost it: test
    /// the pointer.
    virtual int GetTransformTab(unsigned int& oCount, VEKPrintTransformType*& oKinds) const;

    /// Appends the transforms of \p iOther one by one, by its virtual Get and this record's virtual Add
    /// operations.  A status that is not positive ends the operation and is returned; what was appended so
    /// far stays.  A record is not to be appended to itself: that ends with -1 after the first addition,
    /// unless this was for the last entry.
    virtual int AddTransformAttributes(const VEKPrtTransformAttributes& iOther);

    /// \name The seven kinds
    ///
    /// Each Add appends a value and its kind.  When allocation fails it returns -1, and either the values of
    /// that kind are lost or, after the value was appended, the list of all kinds.  The count of what was
    /// lost stays raised: the next addition fills the lost places with zeros or default matrices, and lost
    /// kinds become kind 0, a matrix.
    ///
    /// Each Get takes a position, from 0, among all transforms.  If there are n entries of its kind up to and
    /// including that position, it yields the n-th value added of the kind; the entry at the position itself
    /// may be of another kind.  Get returns -1 past the end, if n is 0, and if fewer than n values were
    /// added.
    /// @{
    virtual int AddMatrix(const VEKMath2x2Matrix& iMatrix);
    virtual int GetMatrix(unsigned int iIndex, VEKMath2x2Matrix& oMatrix) const;
    virtual int AddScaleX(double iScale);
    virtual int GetScaleX(unsigned int iIndex, double& oScale) const;
    virtual int AddScaleY(double iScale);
    virtual int GetScaleY(unsigned int iIndex, double& oScale) const;
    virtual int AddRotation(float iAngle);
    virtual int GetRotation(unsigned int iIndex, float& oAngle) const;
    virtual int AddSkewX(float iAngle);
    virtual int GetSkewX(unsigned int iIndex, float& oAngle) const;
    virtual int AddSkewY(float iAngle);
    virtual int GetSkewY(unsigned int iIndex, float& oAngle) const;
    virtual int AddTranslation(const VEKMathVector2D& iTranslation);
    virtual int GetTranslation(unsigned int iIndex, VEKMathVector2D& oTranslation) const;
    /// @}

    /// Appends a kind without a value.
    ///
    /// The n-th entry of a kind goes with the n-th value added of that kind.  So a value of the kind that is
    /// added later goes with this entry, unless an earlier one has no value yet, and the entry added together
    /// with that value has none.
    virtual int AddTransform(const VEKPrintTransformType& iKind);

private:
    // The kinds, or the values of one kind: an array exactly as long as its count, or none after a failed
    // addition.
    template <class Value>
    struct VEKPRT2DMODEL_LOCAL Values {
        Values() = default;
        Values(const Values& iOther);
        Values& operator=(const Values& iOther);
        int Append(const Value& iValue);

        Value* array = nullptr;
        unsigned int count = 0;
    };
    VEKPRT2DMODEL_LOCAL bool IsEmpty() const;
    template <class Value>
    VEKPRT2DMODEL_LOCAL int AddValue(VEKPrintTransformType iKind, Values<Value>& ioValues,
                                     const Value& iValue);
    template <class Value>
    VEKPRT2DMODEL_LOCAL int GetValue(VEKPrintTransformType iKind, const Values<Value>& iValues,
                                     unsigned int iIndex, Value& oValue) const;

    Values<VEKPrintTransformType> _kinds;
    Values<VEKMath2x2Matrix> _matrices;
    Values<double> _scalesX;
    Values<double> _scalesY;
    Values<float> _rotations;
    Values<float> _skewsX;
    Values<float> _skewsY;
    Values<VEKMathVector2D> _translations;
};

#endif
