#include "VEKPrtTransformAttributes.h"

#include "HostValues.h"
#include "OwnedArray.h"

namespace {

// What an entry is before a value is stored in it.
template <class Value>
Value Blank() {
    return Value();
}
// Whatever a host's vector is by default.
template <>
VEKMathVector2D Blank() {
    return VEKMathVector2D(0.0, 0.0);
}

// Appends to ioTarget the transform at iIndex of iSource.  A derived record's Get may leave the preset
// untouched; it is then what is appended.
template <class Value, class Parameter>
int Replay(const VEKPrtTransformAttributes& iSource, unsigned int iIndex, VEKPrtTransformAttributes& ioTarget,
           int (VEKPrtTransformAttributes::*iGet)(unsigned int, Value&) const,
           int (VEKPrtTransformAttributes::*iAdd)(Parameter), Value iPreset) {
    const int status = (iSource.*iGet)(iIndex, iPreset);
    return status > 0 ? (ioTarget.*iAdd)(iPreset) : status;
}

template <class... Values>
void DeleteInOrder(Values&... ioValues) {
    (vekprt::DeleteArray(ioValues.array), ...);
}

} // namespace

template <class Value>
VEKPrtTransformAttributes::Values<Value>::Values(const Values& iOther) {
    *this = iOther;
}

// A source without an array but with a count, left by a failed addition, gives blank entries.
template <class Value>
VEKPrtTransformAttributes::Values<Value>&
VEKPrtTransformAttributes::Values<Value>::operator=(const Values& iOther) {
    if (&iOther == this) return *this;
    vekprt::DeleteArray(array);
    count = iOther.count;
    if (count != 0) array = vekprt::NewCopy(count, iOther.array, count, Blank<Value>());
    return *this;
}

// The count is raised and the old array let go of before the new one is known to be there: after a
// failure the count stays raised and the old values are lost, their memory with them.  It stays so
// (Random.AgreesWithAPlainModel).  The next addition starts from an array of blanks.
template <class Value>
int VEKPrtTransformAttributes::Values<Value>::Append(const Value& iValue) {
    Value* old = array;
    ++count;
    if (count != 0) array = vekprt::NewArray<Value>(count);
    if (count == 0 || !array) return -1;
    vekprt::FillArray(array, count - 1, old, count - 1, Blank<Value>());
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

// Tests the counts: where a count is 0 there is no array either.
bool VEKPrtTransformAttributes::IsEmpty() const {
    return (_kinds.count | _matrices.count | _scalesX.count | _scalesY.count | _rotations.count |
            _skewsX.count | _skewsY.count | _translations.count) == 0;
}

// In the order of declaration, where destructors of the members would run in reverse.
VEKPrtTransformAttributes::~VEKPrtTransformAttributes() {
    DeleteInOrder(_kinds, _matrices, _scalesX, _scalesY, _rotations, _skewsX, _skewsY, _translations);
}

int VEKPrtTransformAttributes::GetTransformTab(unsigned int& oCount, VEKPrintTransformType*& oKinds) const {
    oCount = _kinds.count;
    oKinds = _kinds.array;
    return 1;
}

int VEKPrtTransformAttributes::AddTransformAttributes(const VEKPrtTransformAttributes& iOther) {
    using Record = VEKPrtTransformAttributes;
    unsigned int count = 0;
    VEKPrintTransformType* kinds = nullptr;
    int status = iOther.GetTransformTab(count, kinds);
    if (status <= 0) return status;
    if (!kinds || count == 0) return 1;

    const bool ownKinds = kinds == _kinds.array;
    for (unsigned int i = 0; i < count; ++i) {
        // An addition to this record has replaced its kinds: the list handed out is gone.
        if (ownKinds && kinds != _kinds.array) return -1;
        switch (kinds[i]) {
        case vekprt::transformTranslation:
            status = Replay(iOther, i, *this, &Record::GetTranslation, &Record::AddTranslation,
                            VEKMathVector2D(0.0, 0.0));
            break;
        case vekprt::transformRotation:
            status = Replay(iOther, i, *this, &Record::GetRotation, &Record::AddRotation, 0.0F);
            break;
        case vekprt::transformScaleX:
            status = Replay(iOther, i, *this, &Record::GetScaleX, &Record::AddScaleX, 1.0);
            break;
        case vekprt::transformScaleY:
            status = Replay(iOther, i, *this, &Record::GetScaleY, &Record::AddScaleY, 1.0);
            break;
        case vekprt::transformSkewX:
            status = Replay(iOther, i, *this, &Record::GetSkewX, &Record::AddSkewX, 1.0F);
            break;
        case vekprt::transformSkewY:
            status = Replay(iOther, i, *this, &Record::GetSkewY, &Record::AddSkewY, 1.0F);
            break;
        case vekprt::transformMatrix:
            status = Replay(iOther, i, *this, &Record::GetMatrix, &Record::AddMatrix, VEKMath2x2Matrix());
            break;
        default: break; // a kind that has no value
        }
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
