#include "VEKPrtPolyPolygonElt.h"

#include <cstdint>
#include <numeric>

#include "ElementProtocol.h"
#include "OwnedArray.h"

namespace {

// How many points the counts add up to: in 64 bits, and signed, as a negative count lowers the total.
// Without counts there are no points either, not even a zero-length array of them.
std::int64_t TotalOf(const int* iCounts, int iPolygonCount) {
    return iCounts ? std::accumulate(iCounts, iCounts + iPolygonCount, std::int64_t{0}) : -1;
}

} // namespace

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolyPolygonElt, 20, VEKPrtGraphicPrimitiveElt)

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt() = default;

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const double* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    Construct(iPoints, iCounts);
}

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const float* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    Construct(iPoints, iCounts);
}

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const VEKPrtPolyPolygonElt& iOther) : VEKPrtPolyPolygonElt() {
    CopyOwn(iOther);
}

VEKPrtPolyPolygonElt::~VEKPrtPolyPolygonElt() {
    vekprt::DeleteArray(_points);
    vekprt::DeleteArray(_counts);
}

VEKPrtPolyPolygonElt& VEKPrtPolyPolygonElt::operator=(const VEKPrtPolyPolygonElt& iOther) {
    vekprt::Assign(*this, iOther, &VEKPrtPolyPolygonElt::CopyOwn);
    return *this;
}

template <class Coordinate>
void VEKPrtPolyPolygonElt::Construct(const Coordinate* iPoints, const int* iCounts) {
    _counts = vekprt::NewCopy<int>(_polygonCount, iCounts, _polygonCount);
    const std::int64_t total = TotalOf(_counts, _polygonCount);
    if (total > 0) _points = vekprt::NewCopy<double>(2 * total, iPoints, 2 * total);
}

void VEKPrtPolyPolygonElt::CopyOwn(const VEKPrtPolyPolygonElt& iOther) {
    vekprt::DeleteArray(_points);
    vekprt::DeleteArray(_counts);
    _polygonCount = iOther._points && iOther._counts ? iOther._polygonCount : 0;
    if (_polygonCount > 0) Construct(iOther._points, iOther._counts);
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtPolyPolygonElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByCopying(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

// A total of 0 leaves a zero-length array here, where the constructors and copying leave none.  The old
// arrays are freed first, unless their argument lies in them: it is then read as far as they go.
void VEKPrtPolyPolygonElt::SetPoints(const double* iPoints, const int* iCounts, int iPolygonCount) {
    const vekprt::OutgoingArray<double> oldPoints(_points, 2 * TotalOf(_counts, _polygonCount), iPoints);
    const vekprt::OutgoingArray<int> oldCounts(_counts, _polygonCount, iCounts);
    _polygonCount = iPolygonCount;
    _counts = vekprt::NewCopy<int>(iPolygonCount, iCounts, oldCounts.CountReadable(iPolygonCount));
    const std::int64_t coordinates = 2 * TotalOf(_counts, iPolygonCount);
    _points = vekprt::NewCopy<double>(coordinates, iPoints, oldPoints.CountReadable(coordinates));
}

void VEKPrtPolyPolygonElt::GetPoints(double*& oPoints, int*& oCounts, int& oPolygonCount) const {
    oPoints = _points;
    oCounts = _counts;
    oPolygonCount = _polygonCount;
}

void VEKPrtPolyPolygonElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtPolyPolygonElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
void VEKPrtPolyPolygonElt::SetStrokeAttributes(const VEKPrtStrokeAttributes& iAttributes) {
    _stroke = iAttributes;
}
void VEKPrtPolyPolygonElt::GetStrokeAttributes(VEKPrtStrokeAttributes& oAttributes) const {
    oAttributes = _stroke;
}
void VEKPrtPolyPolygonElt::SetFillAttributes(const VEKPrtFillAttributes& iAttributes) { _fill = iAttributes; }
void VEKPrtPolyPolygonElt::GetFillAttributes(VEKPrtFillAttributes& oAttributes) const { oAttributes = _fill; }
void VEKPrtPolyPolygonElt::SetTransformAttributes(const VEKPrtTransformAttributes& iAttributes) {
    _transform = iAttributes;
}
void VEKPrtPolyPolygonElt::GetTransformAttributes(VEKPrtTransformAttributes& oAttributes) const {
    oAttributes = _transform;
}
