#include "VEKPrtTransformAttributes.h"

#include "OwnedArray.h"

namespace {

// Makes room for one more value and returns the place of the last, null when memory is out.
//
// The count is raised and the old array let go of before the new one is known to be there: after a
// failure the count stays raised and the old values are lost, their memory with them.  It stays so
// (TransformFailure.LosesTheValuesOfOneKind).  The next addition starts from an array of zeros.
template <class Value>
Value* GrowByOne(Value*& ioValues, unsigned int& ioCount) {
    Value* old = ioValues;
    ++ioCount;
    if (ioCount != 0) ioValues = vekprt::NewArray<Value>(ioCount);
    if (ioCount == 0 || !ioValues) return nullptr;
    vekprt::CopyArray(ioValues, old, std::int64_t{ioCount} - 1);
    vekprt::DeleteArray(old);
    return ioValues + (ioCount - 1);
}

// A source without an array but with a count, left by a failed addition, gives default elements.
template <class Value>
void CopyValues(Value*& oValues, unsigned int& oCount, const Value* iValues, unsigned int iCount) {
    vekprt::DeleteArray(oValues);
    oCount = iCount;
    if (oCount == 0) return;
    oValues = vekprt::NewArray<Value>(oCount);
    vekprt::CopyArray(oValues, iValues, oCount);
}

// Appends to ioTarget the transform at iIndex of iSource; what GetValue leaves alone starts at iPreset.
template <class Value, class Parameter>
int Replay(const VEKPrtTransformAttributes& iSource, unsigned int iIndex, VEKPrtTransformAttributes& ioTarget,
           int (VEKPrtTransformAttributes::*iGet)(unsigned int, Value&) const,
           int (VEKPrtTransformAttributes::*iAdd)(Parameter), Value iPreset) {
    const int status = (iSource.*iGet)(iIndex, iPreset);
    return status > 0 ? (ioTarget.*iAdd)(iPreset) : status;
}

} // namespace

VEKPrtTransformAttributes::VEKPrtTransformAttributes() = default;

VEKPrtTransformAttributes::VEKPrtTransformAttributes(const VEKPrtTransformAttributes& iOther)
    : VEKPrtTransformAttributes() {
    if (&iOther != this) CopyOwn(iOther);
}

VEKPrtTransformAttributes::~VEKPrtTransformAttributes() {
    vekprt::DeleteArray(_kinds);
    vekprt::DeleteArray(_matrices);
    vekprt::DeleteArray(_scalesX);
    vekprt::DeleteArray(_scalesY);
    vekprt::DeleteArray(_rotations);
    vekprt::DeleteArray(_skewsX);
    vekprt::DeleteArray(_skewsY);
    vekprt::DeleteArray(_translations);
}

VEKPrtTransformAttributes& VEKPrtTransformAttributes::operator=(const VEKPrtTransformAttributes& iOther) {
    if (&iOther != this) CopyOwn(iOther);
    return *this;
}

void VEKPrtTransformAttributes::CopyOwn(const VEKPrtTransformAttributes& iOther) {
    CopyValues(_kinds, _kindCount, iOther._kinds, iOther._kindCount);
    CopyValues(_matrices, _matrixCount, iOther._matrices, iOther._matrixCount);
    CopyValues(_scalesX, _scaleXCount, iOther._scalesX, iOther._scaleXCount);
    CopyValues(_scalesY, _scaleYCount, iOther._scalesY, iOther._scaleYCount);
    CopyValues(_rotations, _rotationCount, iOther._rotations, iOther._rotationCount);
    CopyValues(_skewsX, _skewXCount, iOther._skewsX, iOther._skewXCount);
    CopyValues(_skewsY, _skewYCount, iOther._skewsY, iOther._skewYCount);
    CopyValues(_translations, _translationCount, iOther._translations, iOther._translationCount);
}

int VEKPrtTransformAttributes::GetTransformTab(unsigned int& oCount, VEKPrintTransformType*& oKinds) const {
    oCount = _kindCount;
    oKinds = _kinds;
    return 1;
}

int VEKPrtTransformAttributes::AddTransformAttributes(const VEKPrtTransformAttributes& iOther) {
    using Record = VEKPrtTransformAttributes;
    unsigned int count = 0;
    VEKPrintTransformType* kinds = nullptr;
    int status = iOther.GetTransformTab(count, kinds);
    if (status <= 0) return status;
    if (!kinds || count == 0) return 1;

    const bool ownKinds = kinds == _kinds;
    for (unsigned int i = 0; i < count; ++i) {
        // An addition to this record has replaced its kinds: the list handed out is gone.
        if (ownKinds && kinds != _kinds) return -1;
        switch (kinds[i]) {
        case VEKPrintTransformTranslation:
            status =
                Replay(iOther, i, *this, &Record::GetTranslation, &Record::AddTranslation, VEKMathVector2D());
            break;
        case VEKPrintTransformRotation:
            status = Replay(iOther, i, *this, &Record::GetRotation, &Record::AddRotation, 0.0F);
            break;
        case VEKPrintTransformScaleX:
            status = Replay(iOther, i, *this, &Record::GetScaleX, &Record::AddScaleX, 1.0);
            break;
        case VEKPrintTransformScaleY:
            status = Replay(iOther, i, *this, &Record::GetScaleY, &Record::AddScaleY, 1.0);
            break;
        case VEKPrintTransformSkewX:
            status = Replay(iOther, i, *this, &Record::GetSkewX, &Record::AddSkewX, 1.0F);
            break;
        case VEKPrintTransformSkewY:
            status = Replay(iOther, i, *this, &Record::GetSkewY, &Record::AddSkewY, 1.0F);
            break;
        case VEKPrintTransformMatrix:
            status = Replay(iOther, i, *this, &Record::GetMatrix, &Record::AddMatrix, VEKMath2x2Matrix());
            break;
        default: break; // a kind that has no value
        }
        if (status <= 0) return status;
    }
    return 1;
}

template <class Value>
int VEKPrtTransformAttributes::AddValue(VEKPrintTransformType iKind, Value*& ioValues, unsigned int& ioCount,
                                        const Value& iValue) {
    Value* const last = GrowByOne(ioValues, ioCount);
    if (!last) return -1;
    *last = iValue;
    return AddTransform(iKind) == 1 ? 1 : -1;
}

template <class Value>
int VEKPrtTransformAttributes::GetValue(VEKPrintTransformType iKind, const Value* iValues,
                                        unsigned int iCount, unsigned int iIndex, Value& oValue) const {
    if (!_kinds || _kindCount == 0 || !iValues || iCount == 0 || iIndex >= _kindCount) return -1;
    // The entry at iIndex need not be of the kind: the latest value up to there is the one asked for.
    const auto seen = std::count(_kinds, _kinds + iIndex + 1, iKind);
    if (seen == 0 || seen - 1 >= std::int64_t{iCount}) return -1;
    oValue = iValues[seen - 1];
    return 1;
}

int VEKPrtTransformAttributes::AddMatrix(const VEKMath2x2Matrix& iMatrix) {
    return AddValue(VEKPrintTransformMatrix, _matrices, _matrixCount, iMatrix);
}
int VEKPrtTransformAttributes::GetMatrix(unsigned int iIndex, VEKMath2x2Matrix& oMatrix) const {
    return GetValue(VEKPrintTransformMatrix, _matrices, _matrixCount, iIndex, oMatrix);
}
int VEKPrtTransformAttributes::AddScaleX(double iScale) {
    return AddValue(VEKPrintTransformScaleX, _scalesX, _scaleXCount, iScale);
}
int VEKPrtTransformAttributes::GetScaleX(unsigned int iIndex, double& oScale) const {
    return GetValue(VEKPrintTransformScaleX, _scalesX, _scaleXCount, iIndex, oScale);
}
int VEKPrtTransformAttributes::AddScaleY(double iScale) {
    return AddValue(VEKPrintTransformScaleY, _scalesY, _scaleYCount, iScale);
}
int VEKPrtTransformAttributes::GetScaleY(unsigned int iIndex, double& oScale) const {
    return GetValue(VEKPrintTransformScaleY, _scalesY, _scaleYCount, iIndex, oScale);
}
int VEKPrtTransformAttributes::AddRotation(float iAngle) {
    return AddValue(VEKPrintTransformRotation, _rotations, _rotationCount, iAngle);
}
int VEKPrtTransformAttributes::GetRotation(unsigned int iIndex, float& oAngle) const {
    return GetValue(VEKPrintTransformRotation, _rotations, _rotationCount, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddSkewX(float iAngle) {
    return AddValue(VEKPrintTransformSkewX, _skewsX, _skewXCount, iAngle);
}
int VEKPrtTransformAttributes::GetSkewX(unsigned int iIndex, float& oAngle) const {
    return GetValue(VEKPrintTransformSkewX, _skewsX, _skewXCount, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddSkewY(float iAngle) {
    return AddValue(VEKPrintTransformSkewY, _skewsY, _skewYCount, iAngle);
}
int VEKPrtTransformAttributes::GetSkewY(unsigned int iIndex, float& oAngle) const {
    return GetValue(VEKPrintTransformSkewY, _skewsY, _skewYCount, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddTranslation(const VEKMathVector2D& iTranslation) {
    return AddValue(VEKPrintTransformTranslation, _translations, _translationCount, iTranslation);
}
int VEKPrtTransformAttributes::GetTranslation(unsigned int iIndex, VEKMathVector2D& oTranslation) const {
    return GetValue(VEKPrintTransformTranslation, _translations, _translationCount, iIndex, oTranslation);
}

int VEKPrtTransformAttributes::AddTransform(const VEKPrintTransformType& iKind) {
    // By value: the reference may be to an entry of the list that goes.
    const VEKPrintTransformType kind = iKind;
    VEKPrintTransformType* const last = GrowByOne(_kinds, _kindCount);
    if (!last) return -1;
    *last = kind;
    return 1;
}
