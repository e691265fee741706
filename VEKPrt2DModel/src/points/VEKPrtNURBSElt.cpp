#include "VEKPrtNURBSElt.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
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
// An array passed back is left alone: it is the caller's once a new one takes its place, and stays held where
// none is made.  The others go, at once unless an argument lies in one of them; no argument is read beyond an
// own array that it lies in.
void VEKPrtNURBSElt::SetParameters(int iOrder, int iCount, const double* iControlPoints, const double* iKnots,
                                   float iFirstBound, float iSecondBound, const double* iWeights) {
    struct Held {
        double** array;
        std::int64_t count;
        const double* argument;
    };
    const Held held[] = {{&_controlPoints, 2 * std::int64_t{_heldCount}, iControlPoints},
                         {&_knots, KnotCount(_heldOrder, _heldCount), iKnots},
                         {&_weights, _heldCount, iWeights}};
    const auto readable = [&held](const double* iArray, std::int64_t iWanted) {
        for (const Held& own : held)
            iWanted = vekprt::CountReadable<double>(iArray, iWanted, *own.array, own.count);
        return iWanted;
    };
    const std::int64_t coordinates = readable(iControlPoints, 2 * std::int64_t{iCount});
    const std::int64_t knots = readable(iKnots, KnotCount(iOrder, iCount) + 1) - 1;
    const std::int64_t weights = readable(iWeights, std::int64_t{iCount} + 1) - 1;

    double* unused[3] = {};
    for (int i = 0; i < 3; ++i) {
        double*& array = *held[i].array;
        if (array == held[i].argument) continue;
        const bool isRead =
            std::any_of(std::begin(held), std::end(held), [array, count = held[i].count](const Held& iOther) {
                return vekprt::LiesIn<double>(iOther.argument, array, count);
            });
        if (isRead) unused[i] = std::exchange(array, nullptr);
        vekprt::DeleteArray(array);
    }

    _count = iCount;
    _firstBound = iFirstBound;
    _order = iOrder;
    _secondBound = iSecondBound;
    if (iCount > 0 && iControlPoints && iKnots && iWeights && NewArrays()) {
        vekprt::CopyArray(_controlPoints, iControlPoints, coordinates);
        vekprt::CopyArray(_knots, iKnots, knots, 1);
        vekprt::CopyArray(_weights, iWeights, weights, 1);
    }
    for (double* array : unused)
        vekprt::DeleteArray(array);
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
