// Arrays that an object owns: allocation that never throws, copying that never reads what is not there.
#ifndef OwnedArray_H
#define OwnedArray_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>

namespace vekprt {

/// An array of \p iCount elements, all zero (or default-constructed).
///
/// An array of its own for 0, too.  Null when the count is negative, the size does not fit, or memory is
/// out.  The tests come first because g++ throws from `new (std::nothrow)` for lengths that it finds absurd.
template <class T>
T* NewArray(std::int64_t iCount) {
    constexpr std::int64_t limit = PTRDIFF_MAX / static_cast<std::int64_t>(sizeof(T));
    if (iCount < 0 || iCount > limit) return nullptr;
    return new (std::nothrow) T[static_cast<std::size_t>(iCount)]();
}

template <class T>
void DeleteArray(T*& ioArray) {
    delete[] ioArray;
    ioArray = nullptr;
}

/// Copies \p iCount elements from index \p iFirst of the source on, converting each; a missing source or
/// target, or a count of 0 or less, copies nothing, so that fresh entries without a source stay zero.
template <class Target, class Source>
void CopyArray(Target* oTarget, const Source* iSource, std::int64_t iCount, std::int64_t iFirst = 0) {
    if (!oTarget || !iSource || iCount <= 0) return;
    std::transform(iSource + iFirst, iSource + iFirst + iCount, oTarget,
                   [](const Source& iValue) { return Target(iValue); });
}

/// Whether \p iPlace is an element, or the start, of the array of \p iHeld elements at \p iOwn.
template <class T>
bool LiesIn(const T* iPlace, const T* iOwn, std::int64_t iHeld) {
    const std::less<const T*> before;
    return iOwn && (iPlace == iOwn || (!before(iPlace, iOwn) && before(iPlace, iOwn + iHeld)));
}

/// How many elements can be read from \p iSource on, at most \p iWanted: a source that lies in the array
/// of \p iHeld elements at \p iOwn ends where that array ends, and any other is taken at its word.
template <class T>
std::int64_t CountReadable(const T* iSource, std::int64_t iWanted, const T* iOwn, std::int64_t iHeld) {
    if (!LiesIn(iSource, iOwn, iHeld)) return iWanted;
    return std::min<std::int64_t>(iWanted, iOwn + iHeld - iSource);
}

} // namespace vekprt

#endif
