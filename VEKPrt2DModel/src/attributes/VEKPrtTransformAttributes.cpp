#include "VEKPrtTransformAttributes.h"

#include "OwnedArray.h"
#include "VEKPrtValues.h"

namespace {

// An entry that has no value yet.
template <class Value>
Value BlankValue() {
    return Value();
}
// Not Value(): what a host's vector is by default is not defined.
template <>
VEKMathVector2D BlankValue() {
    return VEKMathVector2D(0.0, 0.0);
}

// Appends to ioTarget the transform of kind iKind at position iIndex of iSource.  A derived record's Get may
// succeed without writing its output, so what is preset here can be appended.
int Replay(VEKPrintTransformType iKind, const VEKPrtTransformAttributes& iSource, unsigned int iIndex,
           VEKPrtTransformAttributes& ioTarget) {
    int status = 1;
    double scale = 1.0;
    float rotation = 0.0F, skew = 1.0F;
    switch (iKind) {
    case vekprt::transformTranslation: {
        VEKMathVector2D translation(0.0, 0.0);
        status = iSource.GetTranslation(iIndex, translation);
        return status > 0 ? ioTarget.AddTranslation(translation) : status;
    }
    case vekprt::transformRotation:
        status = iSource.GetRotation(iIndex, rotation);
        return status > 0 ? ioTarget.AddRotation(rotation) : status;
    case vekprt::transformScaleX:
        status = iSource.GetScaleX(iIndex, scale);
        return status > 0 ? ioTarget.AddScaleX(scale) : status;
    case vekprt::transformScaleY:
        status = iSource.GetScaleY(iIndex, scale);
        return status > 0 ? ioTarget.AddScaleY(scale) : status;
    case vekprt::transformSkewX:
        status = iSource.GetSkewX(iIndex, skew);
        return status > 0 ? ioTarget.AddSkewX(skew) : status;
    case vekprt::transformSkewY:
        status = iSource.GetSkewY(iIndex, skew);
        return status > 0 ? ioTarget.AddSkewY(skew) : status;
    case vekprt::transformMatrix: {
        VEKMath2x2Matrix matrix;
        status = iSource.GetMatrix(iIndex, matrix);
        return status > 0 ? ioTarget.AddMatrix(matrix) : status;
    }
    default: return 1; // a kind without values is skipped
    }
}

} // namespace

template <class Value>
VEKPrtTransformAttributes::Values<Value>::Values(const Values& iOther) {
    *this = iOther;
}

// A source with a count but no array, as a failed addition leaves it, gives blank values.
template <class Value>
VEKPrtTransformAttributes::Values<Value>&
VEKPrtTransformAttributes::Values<Value>::operator=(const Values& iOther) {
    if (&iOther == this) return *this;
    vekprt::DeleteArray(array);
    count = iOther.count;
    if (count != 0) array = vekprt::NewCopy(count, iOther.array, count, BlankValue<Value>());
    return *this;
}

// The count is raised and the old array given up before the new one is known to exist: after a failure the
// values that a caller added before are lost, their memory is leaked, and the count stays raised.  The next
// addition starts from blank values.
template <class Value>
int VEKPrtTransformAttributes::Values<Value>::Append(const Value& iValue) {
    Value* old = array;
    ++count;
    if (count != 0) array = vekprt::NewArray<Value>(count);
    if (count == 0 || !array) return -1;
    vekprt::FillArray(array, count - 1, old, count - 1, BlankValue<Value>());
    array[count - 1] = iValue; // before the old array goes: the value may be an entry of it
    vekprt::DeleteArray(old);
    return 1;
}

VEKPrtTransformAttributes::VEKPrtTransformAttributes() = default;
VEKPrtTransformAttributes::VEKPrtTransformAttributes(const VEKPrtTransformAttributes& iOther) = default;

// Most assignments are between two empty records: one test settles them.
VEKPrtTransformAttributes& VEKPrtTransformAttributes::operator=(const VEKPrtTransformAttributes& iOther) {
    if (IsEmpty() && iOther.IsEmpty()) return *this;
    _kinds = iOther._kinds;
    _matrices = iOther._matrices;
    _scalesX = iOther._scalesX;
    _scalesY = iOther._scalesY;
    _rotations = iOther._rotations;
    _skewsX = iOther._skewsX;
    _skewsY = iOther._skewsY;
    _translations = iOther._translations;
    return *this;
}

// Where a count is 0 there is no array either.
bool VEKPrtTransformAttributes::IsEmpty() const {
    return (_kinds.count | _matrices.count | _scalesX.count | _scalesY.count | _rotations.count |
            _skewsX.count | _skewsY.count | _translations.count) == 0;
}

// Here and not by destructors of the members, which would run in reverse: a host's allocator sees the order.
VEKPrtTransformAttributes::~VEKPrtTransformAttributes() {
    vekprt::DeleteArray(_kinds.array);
    vekprt::DeleteArray(_matrices.array);
    vekprt::DeleteArray(_scalesX.array);
    vekprt::DeleteArray(_scalesY.array);
    vekprt::DeleteArray(_rotations.array);
    vekprt::DeleteArray(_skewsX.array);
    vekprt::DeleteArray(_skewsY.array);
    vekprt::DeleteArray(_translations.array);
}

int VEKPrtTransformAttributes::GetTransformTab(unsigned int& oCount, VEKPrintTransformType*& oKinds) const {
    oCount = _kinds.count;
    oKinds = _kinds.array;
    return 1;
}

int VEKPrtTransformAttributes::AddTransformAttributes(const VEKPrtTransformAttributes& iOther) {
    unsigned int count = 0;
    VEKPrintTransformType* kinds = nullptr;
    int status = iOther.GetTransformTab(count, kinds);
    if (status <= 0) return status;
    if (!kinds) return 1;
    const bool ownKinds = kinds == _kinds.array;
    for (unsigned int i = 0; i < count; ++i) {
        // An addition to this record has replaced its kinds: the list handed out is gone.
        if (ownKinds && kinds != _kinds.array) return -1;
        status = Replay(kinds[i], iOther, i, *this);
        if (status <= 0) return status;
    }
    return 1;
}

template <class Value>
int VEKPrtTransformAttributes::AddValue(VEKPrintTransformType iKind, Values<Value>& ioValues,
                                        const Value& iValue) {
    if (ioValues.Append(iValue) != 1) return -1;
    return AddTransform(iKind) == 1 ? 1 : -1;
}

template <class Value>
int VEKPrtTransformAttributes::GetValue(VEKPrintTransformType iKind, const Values<Value>& iValues,
                                        unsigned int iIndex, Value& oValue) const {
    if (!_kinds.array || !iValues.array || iIndex >= _kinds.count) return -1;
    // The entry at iIndex need not be of the kind: the latest value up to there is the one asked for.
    const auto seen = std::count(_kinds.array, _kinds.array + iIndex + 1, iKind);
    if (seen == 0 || seen - 1 >= std::int64_t{iValues.count}) return -1;
    oValue = iValues.array[seen - 1];
    return 1;
}

int VEKPrtTransformAttributes::AddMatrix(const VEKMath2x2Matrix& iMatrix) {
    return AddValue(vekprt::transformMatrix, _matrices, iMatrix);
}
int VEKPrtTransformAttributes::GetMatrix(unsigned int iIndex, VEKMath2x2Matrix& oMatrix) const {
    return GetValue(vekprt::transformMatrix, _matrices, iIndex, oMatrix);
}
int VEKPrtTransformAttributes::AddScaleX(double iScale) {
    return AddValue(vekprt::transformScaleX, _scalesX, iScale);
}
int VEKPrtTransformAttributes::GetScaleX(unsigned int iIndex, double& oScale) const {
    return GetValue(vekprt::transformScaleX, _scalesX, iIndex, oScale);
}
int VEKPrtTransformAttributes::AddScaleY(double iScale) {
    return AddValue(vekprt::transformScaleY, _scalesY, iScale);
}
int VEKPrtTransformAttributes::GetScaleY(unsigned int iIndex, double& oScale) const {
    return GetValue(vekprt::transformScaleY, _scalesY, iIndex, oScale);
}
int VEKPrtTransformAttributes::AddRotation(float iAngle) {
    return AddValue(vekprt::transformRotation, _rotations, iAngle);
}
int VEKPrtTransformAttributes::GetRotation(unsigned int iIndex, float& oAngle) const {
    return GetValue(vekprt::transformRotation, _rotations, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddSkewX(float iAngle) {
    return AddValue(vekprt::transformSkewX, _skewsX, iAngle);
}
int VEKPrtTransformAttributes::GetSkewX(unsigned int iIndex, float& oAngle) const {
    return GetValue(vekprt::transformSkewX, _skewsX, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddSkewY(float iAngle) {
    return AddValue(vekprt::transformSkewY, _skewsY, iAngle);
}
int VEKPrtTransformAttributes::GetSkewY(unsigned int iIndex, float& oAngle) const {
    return GetValue(vekprt::transformSkewY, _skewsY, iIndex, oAngle);
}
int VEKPrtTransformAttributes::AddTranslation(const VEKMathVector2D& iTranslation) {
    return AddValue(vekprt::transformTranslation, _translations, iTranslation);
}
int VEKPrtTransformAttributes::GetTranslation(unsigned int iIndex, VEKMathVector2D& oTranslation) const {
    return GetValue(vekprt::transformTranslation, _translations, iIndex, oTranslation);
}

int VEKPrtTransformAttributes::AddTransform(const VEKPrintTransformType& iKind) {
    return _kinds.Append(iKind);
}
