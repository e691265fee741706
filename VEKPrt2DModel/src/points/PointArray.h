// The array of points that five element classes own: 2 * count doubles, x and y interleaved.
#ifndef PointArray_H
#define PointArray_H

#include "ElementProtocol.h"
#include "OwnedArray.h"
#include "VEKListPtrVEKMathPoint2D.h"

namespace vekprt {

// In all of these an array that is there holds exactly the points that its count says.  A count without
// an array is possible: a negative one, and one whose allocation failed.

/// Sets \p oPoints to a copy of \p iCount points: an array of no length for 0, none for a negative count.
template <class Coordinate>
void NewPoints(double*& oPoints, int iCount, const Coordinate* iPoints) {
    oPoints = NewArray<double>(2 * std::int64_t{iCount});
    CopyArray(oPoints, iPoints, iCount < 0 ? 0 : 2 * std::int64_t{iCount});
}

/// Sets \p oPoints to \p iCount points of a list, from position \p iFirst on; none for 0 or less.
inline void NewPointsFromList(double*& oPoints, int iCount, const VEKListPtrVEKMathPoint2D& iList,
                              int iFirst) {
    if (iCount > 0) oPoints = NewArray<double>(2 * std::int64_t{iCount});
    if (!oPoints) return;
    double* coordinate = oPoints;
    for (int i = 0; i < iCount; ++i) {
        const auto* const point = static_cast<const VEKMathPoint2D*>(iList[iFirst + i]);
        *coordinate++ = point ? point->GetX() : 0.0;
        *coordinate++ = point ? point->GetY() : 0.0;
    }
}

/// SetPoints.  The old array goes first, unless \p iPoints lies in it: it is then read as far as it goes.
inline void ReplacePoints(double*& ioPoints, int& ioCount, const double* iPoints, int iCount) {
    double* old = ioPoints;
    const std::int64_t wanted = 2 * std::int64_t{iCount};
    const std::int64_t held = 2 * std::int64_t{ioCount};
    const std::int64_t readable = CountReadable(iPoints, wanted, old, held);
    if (!LiesIn<double>(iPoints, old, held)) DeleteArray(old);
    ioCount = iCount;
    ioPoints = NewArray<double>(wanted);
    CopyArray(ioPoints, iPoints, readable);
    DeleteArray(old);
}

/// Copying.  Two elements without an array are left alone, counts included; otherwise a source without
/// an array counts as one without points.
inline void CopyPoints(double*& ioPoints, int& ioCount, const double* iPoints, int iCount) {
    if (ioPoints == iPoints) return;
    DeleteArray(ioPoints);
    ioCount = iPoints ? iCount : 0;
    if (ioCount > 0) NewPoints(ioPoints, ioCount, iPoints);
}

} // namespace vekprt

// What the point-array classes have in common, for a class with the fields _points and _count.

// Destructor, SetPoints and GetPoints.
#define VEKPRT_IMPLEMENT_POINT_ARRAY(Self)                                                                   \
    Self::~Self() {                                                                                          \
        vekprt::DeleteArray(_points);                                                                        \
        _count = 0;                                                                                          \
    }                                                                                                        \
    void Self::SetPoints(const double* iPoints, int iCount) {                                                \
        vekprt::ReplacePoints(_points, _count, iPoints, iCount);                                             \
    }                                                                                                        \
    void Self::GetPoints(double*& oPoints, int& oCount) const {                                              \
        oPoints = _points;                                                                                   \
        oCount = _count;                                                                                     \
    }

// All constructors but the copy constructor.  The list constructor reads as many positions as the list has,
// from FirstPosition on: from 1 it reads the list; from 0 it begins with the null at position 0, which is
// (0, 0), and leaves the last point out.  The classes differ in it, and clients rely on each
// (PointArrayList.FirstPosition).
#define VEKPRT_IMPLEMENT_POINT_CONSTRUCTORS(Self, FirstPosition)                                             \
    Self::Self() = default;                                                                                  \
    Self::Self(const VEKListPtrVEKMathPoint2D& iPoints) : _count(iPoints.Size()) {                           \
        vekprt::NewPointsFromList(_points, _count, iPoints, FirstPosition);                                  \
    }                                                                                                        \
    Self::Self(const double* iPoints, int iCount) : _count(iCount) {                                         \
        vekprt::NewPoints(_points, _count, iPoints);                                                         \
    }                                                                                                        \
    Self::Self(const float* iPoints, int iCount) : _count(iCount) {                                          \
        vekprt::NewPoints(_points, _count, iPoints);                                                         \
    }

// Copying and the records of a class that has a stroke and a transform besides.
#define VEKPRT_IMPLEMENT_STROKED_POINTS(Self)                                                                \
    void Self::CopyOwn(const Self& iOther) {                                                                 \
        vekprt::CopyPoints(_points, _count, iOther._points, iOther._count);                                  \
        _stroke = iOther._stroke;                                                                            \
        _transform = iOther._transform;                                                                      \
    }                                                                                                        \
    VEKPRT_IMPLEMENT_RECORD(Self, StrokeAttributes, _stroke)                                                 \
    VEKPRT_IMPLEMENT_RECORD(Self, TransformAttributes, _transform)

#endif
