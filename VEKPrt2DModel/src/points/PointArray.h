// The array of points that five element classes own: 2 * count doubles, x and y interleaved.
#ifndef PointArray_H
#define PointArray_H

#include "OwnedArray.h"
#include "VEKListPtrVEKMathPoint2D.h"

namespace vekprt {

// An array, where there is one, holds exactly as many points as its count says.  There is none when the count
// is negative or the allocation failed.

/// A copy of \p iCount points: an array of no length for 0, none for a negative count.
template <class Coordinate>
double* NewPoints(const Coordinate* iPoints, int iCount) {
    const std::int64_t coordinates = 2 * std::int64_t{iCount};
    return NewCopy<double>(coordinates, iPoints, coordinates);
}

/// A copy of \p iCount points from position \p iFirst of the list on; null for a count of 0 or less.
///
/// From position 1 that is the whole list; from 0 the first point is (0, 0), for the null there, and the last
/// is left out.  The classes differ in it, and clients see which points they get, so each keeps its own
/// (EveryPointArray.ConstructsFromLists).
inline double* NewPointsFromList(const VEKListPtrVEKMathPoint2D& iList, int iCount, int iFirst) {
    double* const points = iCount > 0 ? NewArray<double>(2 * std::int64_t{iCount}) : nullptr;
    double* coordinate = points;
    for (int i = 0; points && i < iCount; ++i) {
        const auto* const point = static_cast<const VEKMathPoint2D*>(iList[iFirst + i]);
        *coordinate++ = point ? point->GetX() : 0.0;
        *coordinate++ = point ? point->GetY() : 0.0;
    }
    return points;
}

/// SetPoints.  The old array is freed first, unless \p iPoints lies in it: it is then read as far as it goes.
inline void ReplacePoints(double*& ioPoints, int& ioCount, const double* iPoints, int iCount) {
    const OutgoingArray<double> old(ioPoints, 2 * std::int64_t{ioCount}, iPoints);
    const std::int64_t coordinates = 2 * std::int64_t{iCount};
    ioCount = iCount;
    ioPoints = NewCopy<double>(coordinates, iPoints, old.CountReadable(coordinates));
}

/// Copying.  Two elements without an array are left alone, counts included; otherwise a source without
/// an array counts as one without points.
inline void CopyPoints(double*& ioPoints, int& ioCount, const double* iPoints, int iCount) {
    if (ioPoints == iPoints) return;
    DeleteArray(ioPoints);
    ioCount = iPoints ? iCount : 0;
    if (ioCount > 0) ioPoints = NewPoints(iPoints, ioCount);
}

} // namespace vekprt

#endif
