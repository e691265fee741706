#include "VEKPrtPolyPolygonElt.h"

#include <cstdint>
#include <numeric>

#include "ElementProtocol.h"
#include "OwnedArray.h"

VEKPRT_IMPLEMENT_META_FAMILY(VEKPrtPolyPolygonElt, 20, VEKPrtGraphicPrimitiveElt)

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt() = default;

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const double* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    const std::int64_t total = MakeCounts(iCounts, iPolygonCount);
    if (total > 0) MakePoints(total, iPoints, 2 * total);
}

VEKPrtPolyPolygonElt::VEKPrtPolyPolygonElt(const float* iPoints, const int* iCounts, int iPolygonCount)
    : _polygonCount(iPolygonCount) {
    const std::int64_t total = MakeCounts(iCounts, iPolygonCount);
    if (total > 0) MakePoints(total, iPoints, 2 * total);
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

// Makes the array of counts, of which iReadable can be read, and yields the number of points that they add up
// to: in 64 bits, and signed, as a negative count lowers the total.  Without an array there are no points
// either.
long long VEKPrtPolyPolygonElt::MakeCounts(const int* iCounts, long long iReadable) {
    _counts = vekprt::NewCopy<int>(_polygonCount, iCounts, iReadable);
    return _counts ? std::accumulate(_counts, _counts + _polygonCount, std::int64_t{0}) : -1;
}

// Makes the array of points from as many coordinates as can be read: of no length for 0, none below that.
template <class Coordinate>
void VEKPrtPolyPolygonElt::MakePoints(long long iTotal, const Coordinate* iPoints, long long iReadable) {
    _points = vekprt::NewCopy<double>(2 * iTotal, iPoints, iReadable);
    _pointsHeld = iTotal;
}

void VEKPrtPolyPolygonElt::CopyOwn(const VEKPrtPolyPolygonElt& iOther) {
    vekprt::DeleteArray(_points);
    vekprt::DeleteArray(_counts);
    _polygonCount = iOther._points && iOther._counts ? iOther._polygonCount : 0;
    if (_polygonCount > 0) {
        const std::int64_t total = MakeCounts(iOther._counts, _polygonCount);
        if (total > 0) MakePoints(total, iOther._points, 2 * iOther._pointsHeld);
    }
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
    vekprt::OutgoingArray<double> oldPoints(_points, 2 * _pointsHeld);
    vekprt::OutgoingArray<int> oldCounts(_counts, _polygonCount);
    if (!oldPoints.Holds(iPoints)) oldPoints.Free();
    if (!oldCounts.Holds(iCounts)) oldCounts.Free();
    _polygonCount = iPolygonCount;
    const std::int64_t total = MakeCounts(iCounts, oldCounts.CountReadable(iCounts, iPolygonCount));
    MakePoints(total, iPoints, oldPoints.CountReadable(iPoints, 2 * total));
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
