#include "VEKPrtNURBSElt.h"

#include <cstdint>

#include "ElementProtocol.h"
#include "OwnedArray.h"

namespace {

// Negative if the order is below -iCount; there is then no array of knots.
std::int64_t KnotCount(int iOrder, int iCount) { return std::int64_t{iOrder} + iCount; }

} // namespace

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtNURBSElt, 14, VEKPrtGraphicPrimitiveElt)

VEKPrtNURBSElt::VEKPrtNURBSElt() = default;

VEKPrtNURBSElt::VEKPrtNURBSElt(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                               float iFirstBound, float iSecondBound, const double* iWeights)
    : _order(iOrder), _count(iCount), _firstBound(iFirstBound), _secondBound(iSecondBound) {
    Construct(iControlPoints, iKnots, iWeights);
}

VEKPrtNURBSElt::VEKPrtNURBSElt(int iOrder, int iCount, const float* iControlPoints, const float* iKnots,
                               float iFirstBound, float iSecondBound, const float* iWeights)
    : _order(iOrder), _count(iCount), _firstBound(iFirstBound), _secondBound(iSecondBound) {
    Construct(iControlPoints, iKnots, iWeights);
}

VEKPrtNURBSElt::VEKPrtNURBSElt(const VEKPrtNURBSElt& iOther) : VEKPrtNURBSElt() { CopyOwn(iOther); }

VEKPrtNURBSElt::~VEKPrtNURBSElt() { DeleteArrays(); }

VEKPrtNURBSElt& VEKPrtNURBSElt::operator=(const VEKPrtNURBSElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtNURBSElt::CopyOwn);
    return *this;
}

void VEKPrtNURBSElt::DeleteArrays() {
    vekprt::DeleteArray(_controlPoints);
    vekprt::DeleteArray(_knots);
    vekprt::DeleteArray(_weights);
}

// Makes arrays for order and count, and returns whether all three could be allocated.  All three are
// requested even if one fails; those that were allocated are then kept, filled with zeros.
bool VEKPrtNURBSElt::NewArrays() {
    const std::int64_t coordinates = 2 * std::int64_t{_count}, knots = KnotCount(_order, _count);
    _controlPoints = vekprt::NewArray<double>(coordinates);
    _knots = vekprt::NewArray<double>(knots);
    _weights = vekprt::NewArray<double>(_count);
    if (_controlPoints && _knots && _weights) return true;
    const double* const nothing = nullptr;
    vekprt::FillArray(_controlPoints, coordinates, nothing, 0);
    vekprt::FillArray(_knots, knots, nothing, 0);
    vekprt::FillArray(_weights, _count, nothing, 0);
    return false;
}

// Reads knots and weights from their first element on, unlike SetParameters.
template <class Value>
void VEKPrtNURBSElt::Construct(const Value* iControlPoints, const Value* iKnots, const Value* iWeights) {
    if (_count <= 0 || !iControlPoints || !iKnots || !iWeights || !NewArrays()) return;
    const std::int64_t coordinates = 2 * std::int64_t{_count}, knots = KnotCount(_order, _count);
    vekprt::FillArray(_controlPoints, coordinates, iControlPoints, coordinates);
    vekprt::FillArray(_knots, knots, iKnots, knots);
    vekprt::FillArray(_weights, _count, iWeights, _count);
}

// The bounds are not copied but set to their defaults: callers who copy a curve that is drawn in part set its
// bounds again.
void VEKPrtNURBSElt::CopyOwn(const VEKPrtNURBSElt& iOther) {
    DeleteArrays();
    _order = iOther._order;
    _count = 0;
    _firstBound = 0.0F;
    _secondBound = 1.0F;
    if (iOther._controlPoints && iOther._knots && iOther._weights) {
        _count = iOther._count;
        Construct(iOther._controlPoints, iOther._knots, iOther._weights);
    }
    _stroke = iOther._stroke;
    _transform = iOther._transform;
}

void VEKPrtNURBSElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    vekprt::DuplicateByCopying(*this, oCopy);
}

// Reads knots and weights from their second element on, unlike the constructors: the same arrays give another
// curve.
void VEKPrtNURBSElt::SetParameters(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                                   float iFirstBound, float iSecondBound, const double* iWeights) {
    vekprt::OutgoingArray<double> oldPoints(_controlPoints, 2 * std::int64_t{_count}, iControlPoints);
    vekprt::OutgoingArray<double> oldKnots(_knots, KnotCount(_order, _count), iKnots, 1);
    vekprt::OutgoingArray<double> oldWeights(_weights, _count, iWeights, 1);
    double* const passedBack[] = {oldPoints.DetachSource(), oldKnots.DetachSource(),
                                  oldWeights.DetachSource()};
    _count = iCount;
    _firstBound = iFirstBound;
    _order = iOrder;
    _secondBound = iSecondBound;
    // An own array that was passed back stays the element's if no new one is made, and is the caller's
    // otherwise, also when the new one cannot be allocated.
    if (iCount <= 0 || !iControlPoints || !iKnots || !iWeights) {
        _controlPoints = passedBack[0];
        _knots = passedBack[1];
        _weights = passedBack[2];
        return;
    }
    if (!NewArrays()) return;
    const std::int64_t coordinates = 2 * std::int64_t{iCount}, knots = KnotCount(iOrder, iCount);
    vekprt::FillArray(_controlPoints, coordinates, iControlPoints, oldPoints.CountReadable(coordinates));
    vekprt::FillArray(_knots, knots, iKnots + 1, oldKnots.CountReadable(knots));
    vekprt::FillArray(_weights, iCount, iWeights + 1, oldWeights.CountReadable(iCount));
}

void VEKPrtNURBSElt::GetParameters(int& oOrder, int& oCount, double*& oControlPoints, double*& oKnots,
                                   float& oFirstBound, float& oSecondBound, double*& oWeights) const {
    oOrder = _order;
    oCount = _count;
    oControlPoints = _controlPoints;
    oKnots = _knots;
    oFirstBound = _firstBound;
    oSecondBound = _secondBound;
    oWeights = _weights;
}

void VEKPrtNURBSElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) { _stroke = iAttributes; }
void VEKPrtNURBSElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const { oAttributes = _stroke; }
void VEKPrtNURBSElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtNURBSElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
