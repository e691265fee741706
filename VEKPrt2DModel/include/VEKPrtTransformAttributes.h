// The ordered list of elementary transforms of an element.
#ifndef VEKPrtTransformAttributes_H
#define VEKPrtTransformAttributes_H

#include "VEKMath2x2Matrix.h"
#include "VEKMathVector2D.h"
#include "VEKPrintTransformType.h"
#include "VEKPrt2DModelExport.h"

/// Elementary transforms in order of addition, each read back by its position.
///
/// Nothing is composed or applied; units and the meaning of the order are the consumer's.  Copies
/// are independent.  Status operations return 1 for success and -1 for failure, and write their
/// outputs only on success.
class VEKPRT2DMODEL_API VEKPrtTransformAttributes {
public:
    VEKPrtTransformAttributes();
    VEKPrtTransformAttributes(const VEKPrtTransformAttributes& iOther);
    virtual ~VEKPrtTransformAttributes();
    VEKPrtTransformAttributes& operator=(const VEKPrtTransformAttributes& iOther);

    /// Hands out the record's own list of kinds, null when empty; valid until the record changes.
    virtual int GetTransformTab(unsigned int& oCount, VEKPrintTransformType*& oKinds) const;

    /// Appends the transforms of \p iOther one by one, by its virtual Get and this record's virtual
    /// Add operations.  A status that is not positive ends the operation and is returned; what was
    /// appended so far stays.  Not meant for the record itself: that ends with -1 after the first addition,
    /// unless it was the last.
    virtual int AddTransformAttributes(const VEKPrtTransformAttributes& iOther);

    // Each Add appends a value and its kind.  When memory is out it returns -1, and either the values of
    // that kind are lost or, after the value was appended, the list of all kinds; the record stays usable.
    //
    // Each Get takes a position, from 0, among all transforms, and yields the latest value of its kind
    // at or before that position.  The entry at the position itself may be of another kind.  It fails
    // past the end, and where no value of the kind precedes.
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

    /// Appends a kind without a value; Get then finds the latest value before it, if any.
    virtual int AddTransform(const VEKPrintTransformType& iKind);

private:
    template <class Value>
    VEKPRT2DMODEL_LOCAL int AddValue(VEKPrintTransformType iKind, Value*& ioValues, unsigned int& ioCount,
                                     const Value& iValue);
    template <class Value>
    VEKPRT2DMODEL_LOCAL int GetValue(VEKPrintTransformType iKind, const Value* iValues, unsigned int iCount,
                                     unsigned int iIndex, Value& oValue) const;
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtTransformAttributes& iOther);

    VEKPrintTransformType* _kinds = nullptr;
    unsigned int _kindCount = 0;
    VEKMath2x2Matrix* _matrices = nullptr;
    unsigned int _matrixCount = 0;
    double* _scalesX = nullptr;
    unsigned int _scaleXCount = 0;
    double* _scalesY = nullptr;
    unsigned int _scaleYCount = 0;
    float* _rotations = nullptr;
    unsigned int _rotationCount = 0;
    float* _skewsX = nullptr;
    unsigned int _skewXCount = 0;
    float* _skewsY = nullptr;
    unsigned int _skewYCount = 0;
    VEKMathVector2D* _translations = nullptr;
    unsigned int _translationCount = 0;
};

#endif
