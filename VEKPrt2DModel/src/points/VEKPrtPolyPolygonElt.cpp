#include "VEKPrtPolyPolygonElt.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>

#include "ElementProtocol.h"
#include "OwnedArray.h"

namespace {

constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

// In 64 bits, and signed: a negative count lowers the total.
std::int64_t Total(const int* iCounts, int iPolygonCount) {
    return std::accumulate(iCounts, iCounts + iPolygonCount, std::int64_t{0});
}

} // namespace

VEKPRT_IMPLEMENT_ELEMENT(VEKPrtPolyPolygonElt, 20)

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt() = default;

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const double* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    FillArrays(iPoints, unlimited, iCounts, iPolygonCount, false);
}

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const float* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    FillArrays(iPoints, unlimited, iCounts, iPolygonCount, false);
}

VEKPrtPolyPolygonElt::~VEKPrtPolyPolygonElt() {
    vekprt::DeleteArray(_points);
    vekprt::DeleteArray(_counts);
    _polygonCount = 0;
}

// Both arrays null, _polygonCount set: makes them, from as many counts and coordinates as can be read.
template <class Coordinate>
void VEKPrtPolyPolygonElt::FillArrays(const Coordinate* iPoints, long long iReadable, const int* iCounts,
                                      long long iReadableCounts, bool iKeepEmpty) {
    _counts = vekprt::NewArray<int>(_polygonCount);
    if (!_counts) return;
    vekprt::CopyArray(_counts, iCounts, iReadableCounts);
    const std::int64_t total = Total(_counts, _polygonCount);
    if (total <= 0 && !iKeepEmpty) return;
    _points = vekprt::NewArray<double>(2 * total);
    if (!_points) return;
    _pointsHeld = total;
    vekprt::CopyArray(_points, iPoints, std::min<std::int64_t>(2 * total, iReadable));
}

void VEKPrtPolyPolygonElt::CopyOwn(const VEKPrtPolyPolygonElt& iOther) {
    vekprt::DeleteArray(_points);
    vekprt::DeleteArray(_counts);
    _pointsHeld = 0;
    _polygonCount = iOther._points && iOther._counts ? iOther._polygonCount : 0;
    if (_polygonCount > 0)
        FillArrays(iOther._points, 2 * iOther._pointsHeld, iOther._counts, _polygonCount, false);
    _drawStyle = iOther._drawStyle;
    _stroke = iOther._stroke;
    _fill = iOther._fill;
    _transform = iOther._transform;
}

void VEKPrtPolyPolygonElt::Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) {
    auto* const copy = vekprt::DuplicateByCopying(*this, oCopy);
    if (copy) _fill.Duplicate(copy->_fill);
}

// A total of 0 leaves an array of no length here, where the constructors and copying leave none.  The old
// arrays go first, unless an argument lies in them: it is then read as far as they go.
void VEKPrtPolyPolygonElt::SetPoints(const double* iPoints, const int* iCounts, int iPolygonCount) {
    double* oldPoints = _points;
    int* oldCounts = _counts;
    const std::int64_t readable = vekprt::CountReadable(iPoints, unlimited, oldPoints, 2 * _pointsHeld);
    const std::int64_t readableCounts =
        vekprt::CountReadable(iCounts, iPolygonCount, oldCounts, _polygonCount);
    if (!vekprt::LiesIn<double>(iPoints, oldPoints, 2 * _pointsHeld)) vekprt::DeleteArray(oldPoints);
    if (!vekprt::LiesIn<int>(iCounts, oldCounts, _polygonCount)) vekprt::DeleteArray(oldCounts);
    _points = nullptr;
    _counts = nullptr;
    _pointsHeld = 0;
    _polygonCount = iPolygonCount;
    FillArrays(iPoints, readable, iCounts, readableCounts, true);
    vekprt::DeleteArray(oldPoints);
    vekprt::DeleteArray(oldCounts);
}

void VEKPrtPolyPolygonElt::GetPoints(double*& oPoints, int*& oCounts, int& oPolygonCount) const {
    oPoints = _points;
    oCounts = _counts;
    oPolygonCount = _polygonCount;
}

void VEKPrtPolyPolygonElt::SetDrawStyle(VEKPrtDrawStyle iStyle) { _drawStyle = iStyle; }
void VEKPrtPolyPolygonElt::GetDrawStyle(VEKPrtDrawStyle& oStyle) const { oStyle = _drawStyle; }
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolyPolygonElt, StrokeAttributes, _stroke)
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolyPolygonElt, FillAttributes, _fill)
VEKPRT_IMPLEMENT_RECORD(VEKPrtPolyPolygonElt, TransformAttributes, _transform)
