// The array of points that five element classes own: 2 * count doubles, x and y interleaved.
#ifndef PointArray_H
#define PointArray_H

#include "OwnedArray.h"
#include "VEKListPtrVEKMathPoint2D.h"

namespace vekprt {

// An array holds exactly as many points as its count says.  There is none if the count is negative or the
// allocation failed.

/// A copy of \p iCount points: a zero-length array for 0, none for a negative count.
template <class Coordinate>
double* NewPoints(const Coordinate* iPoints, int iCount) {
    const std::int64_t coordinates = 2 * std::int64_t{iCount};
    return NewCopy<double>(coordinates, iPoints, coordinates);
}

/// A copy of \p iCount points from position \p iFirst of the list on; null for a count of 0 or less.
///
/// From position 1 this is the whole list; from 0 the first point is (0, 0), for the null there, and the last
/// is left out.  Polygons and disjoint polylines start at 0: callers lose the last point of their list.
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

/// Copying.  If neither element has an array, the target's count stays; otherwise the count of a source
/// without an array is taken as 0.
inline void CopyPoints(double*& ioPoints, int& ioCount, const double* iPoints, int iCount) {
    if (ioPoints == iPoints) return;
    DeleteArray(ioPoints);
    ioCount = iPoints ? iCount : 0;
    if (ioCount > 0) ioPoints = NewPoints(iPoints, ioCount);
}

} // namespace vekprt

#endif
