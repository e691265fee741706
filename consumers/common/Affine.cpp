#include "Affine.h"

#include <algorithm>
#include <cmath>

#include "VEKPrtTransformAttributes.h"
#include "VEKPrtValues.h"

namespace vekprt::drawing {

namespace {

// What one entry of the record is made of; nothing for one without a value.
template <class Value, class MakeElementary>
void Append(std::vector<Elementary>& ioList, const VEKPrtTransformAttributes& iTransforms, unsigned iIndex,
            int (VEKPrtTransformAttributes::*iGet)(unsigned, Value&) const, MakeElementary iMake) {
    Value value{};
    if ((iTransforms.*iGet)(iIndex, value) == 1) ioList.push_back(iMake(value));
}

} // namespace

Affine Affine::operator*(const Affine& iInner) const {
    return {a * iInner.a + c * iInner.b, b * iInner.a + d * iInner.b,     a * iInner.c + c * iInner.d,
            b * iInner.c + d * iInner.d, a * iInner.e + c * iInner.f + e, b * iInner.e + d * iInner.f + f};
}

bool Affine::operator==(const Affine& iOther) const {
    return a == iOther.a && b == iOther.b && c == iOther.c && d == iOther.d && e == iOther.e && f == iOther.f;
}

double Affine::Scale() const { return std::sqrt(std::fabs(Determinant())); }
double Affine::Stretch() const { return std::max(std::hypot(a, b), std::hypot(c, d)); }
double Affine::Unstretched(double iLength) const { return Stretch() > 0.0 ? iLength / Stretch() : 0.0; }

Affine Affine::Inverse() const {
    const double det = Determinant();
    return {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
}

double Radians(double iDegrees) { return iDegrees * 3.14159265358979323846 / 180.0; }

Elementary Linear(const VEKMath2x2Matrix& iMatrix) {
    const auto at = [&](int iRow, int iColumn) { return iMatrix.GetCoef(iRow, iColumn); };
    return {transformMatrix, {at(1, 1), at(2, 1), at(1, 2), at(2, 2), 0, 0}};
}
Elementary Translation(double iX, double iY) { return {transformTranslation, {1, 0, 0, 1, iX, iY}, iX, iY}; }
Elementary Rotation(double iDegrees) {
    const double cosine = std::cos(Radians(iDegrees)), sine = std::sin(Radians(iDegrees));
    return {transformRotation, {cosine, sine, -sine, cosine, 0, 0}, iDegrees};
}
Elementary Scaling(double iX, double iY) { return {transformScaleX, {iX, 0, 0, iY, 0, 0}, iX, iY}; }
Elementary SkewX(double iDegrees) {
    return {transformSkewX, {1, 0, std::tan(Radians(iDegrees)), 1, 0, 0}, iDegrees};
}
Elementary SkewY(double iDegrees) {
    return {transformSkewY, {1, std::tan(Radians(iDegrees)), 0, 1, 0, 0}, iDegrees};
}

std::vector<Elementary> TransformsOf(const VEKPrtTransformAttributes& iTransforms) {
    using T = VEKPrtTransformAttributes;
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    iTransforms.GetTransformTab(count, kinds);
    std::vector<Elementary> list;
    for (unsigned i = 0; kinds && i < count; ++i) {
        switch (kinds[i]) {
        case transformMatrix: Append(list, iTransforms, i, &T::GetMatrix, Linear); break;
        case transformTranslation:
            Append(list, iTransforms, i, &T::GetTranslation,
                   [](const VEKMathVector2D& iBy) { return Translation(iBy.GetX(), iBy.GetY()); });
            break;
        case transformRotation: Append(list, iTransforms, i, &T::GetRotation, Rotation); break;
        case transformScaleX:
            Append(list, iTransforms, i, &T::GetScaleX, [](double iScale) { return Scaling(iScale, 1); });
            break;
        case transformScaleY:
            Append(list, iTransforms, i, &T::GetScaleY, [](double iScale) { return Scaling(1, iScale); });
            break;
        case transformSkewX: Append(list, iTransforms, i, &T::GetSkewX, SkewX); break;
        case transformSkewY: Append(list, iTransforms, i, &T::GetSkewY, SkewY); break;
        default: break;
        }
    }
    return list;
}

Affine Compose(const std::vector<Elementary>& iTransforms) {
    Affine map;
    for (const Elementary& transform : iTransforms)
        map = map * transform.map;
    return map;
}

} // namespace vekprt::drawing
