#include "VEKPrtNURBSElt.h"

#include <cstdint>
#include <utility>

#include "ElementProtocol.h"
#include "OwnedArray.h"

namespace {

// Below 0 for an order that negative: there are no knots then.
std::int64_t KnotCount(int iOrder, int iCount) { return std::int64_t{iOrder} + iCount; }

} // namespace

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtNURBSElt, 14)

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

// From the first knot and the first weight on, where SetParameters starts at the second.
template <class Value>
void VEKPrtNURBSElt::Construct(const Value* iControlPoints, const Value* iKnots, const Value* iWeights) {
    if (_count <= 0 || !iControlPoints || !iKnots || !iWeights || !NewArrays()) return;
    vekprt::CopyArray(_controlPoints, iControlPoints, 2 * std::int64_t{_count});
    vekprt::CopyArray(_knots, iKnots, KnotCount(_order, _count));
    vekprt::CopyArray(_weights, iWeights, _count);
}

// All three are asked for in any case; those that could be had stay, zero, when another could not.
bool VEKPrtNURBSElt::NewArrays() {
    _heldOrder = _order;
    _heldCount = _count;
    _controlPoints = vekprt::NewArray<double>(2 * std::int64_t{_count});
    _knots = vekprt::NewArray<double>(KnotCount(_order, _count));
    _weights = vekprt::NewArray<double>(_count);
    return _controlPoints && _knots && _weights;
}

VEKPrtNURBSElt::~VEKPrtNURBSElt() {
    DeleteArrays();
    _count = 0;
    _order = 0;
    _firstBound = 0.0F;
    _secondBound = 1.0F;
}

void VEKPrtNURBSElt::DeleteArrays() {
    vekprt::DeleteArray(_controlPoints);
    vekprt::DeleteArray(_knots);
    vekprt::DeleteArray(_weights);
}

// The bounds are not copied but set to their defaults.  Consumers know copies by that, so it stays
// (NURBS.CopiesResetTheBounds).
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

// Reads knots and weights from their second element on, where the constructors start at the first.  Clients
// pad their arrays for it, so it stays (NURBS.SetParametersReadsFromTheSecondElement).
//
// An array passed back is left to the caller; the others go last, because an argument may lie in one of them.
// No argument is read beyond an own array that it lies in.
void VEKPrtNURBSElt::SetParameters(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                                   float iFirstBound, float iSecondBound, const double* iWeights) {
    double* const oldControlPoints = _controlPoints;
    double* const oldKnots = _knots;
    double* const oldWeights = _weights;
    const std::int64_t oldKnotCount = KnotCount(_heldOrder, _heldCount);
    const std::int64_t oldCount = _heldCount;
    const auto readable = [=](const double* iArray, std::int64_t iWanted) {
        iWanted = vekprt::CountReadable(iArray, iWanted, oldControlPoints, 2 * oldCount);
        iWanted = vekprt::CountReadable(iArray, iWanted, oldKnots, oldKnotCount);
        return vekprt::CountReadable(iArray, iWanted, oldWeights, oldCount);
    };
    double* const unusedControlPoints =
        _controlPoints != iControlPoints ? std::exchange(_controlPoints, nullptr) : nullptr;
    double* const unusedKnots = _knots != iKnots ? std::exchange(_knots, nullptr) : nullptr;
    double* const unusedWeights = _weights != iWeights ? std::exchange(_weights, nullptr) : nullptr;

    _count = iCount;
    _firstBound = iFirstBound;
    _order = iOrder;
    _secondBound = iSecondBound;
    if (iCount > 0 && iControlPoints && iKnots && iWeights && NewArrays()) {
        const std::int64_t knotCount = KnotCount(iOrder, iCount);
        vekprt::CopyArray(_controlPoints, iControlPoints, readable(iControlPoints, 2 * std::int64_t{iCount}));
        vekprt::CopyArray(_knots, iKnots, readable(iKnots, knotCount + 1) - 1, 1);
        vekprt::CopyArray(_weights, iWeights, readable(iWeights, std::int64_t{iCount} + 1) - 1, 1);
    }
    delete[] unusedControlPoints;
    delete[] unusedKnots;
    delete[] unusedWeights;
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

VEKPRT_IMPLEMENT_RECORD(VEKPrtNURBSElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtNURBSElt, TransformAttributes, _transform)
