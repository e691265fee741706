// Arrays that an object owns: allocation never throws, and copying never reads beyond the source.
#ifndef OwnedArray_H
#define OwnedArray_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>

namespace vekprt {

/// An array of \p iCount elements, left uninitialised if their type has no constructor.
///
/// A count of 0 yields a zero-length array.  Null if the count is negative, the size does not fit, or
/// allocation fails.  The tests come first because g++ throws from `new (std::nothrow)` for lengths that it
/// considers too long.
template <class T>
T* NewArray(std::int64_t iCount) {
    constexpr std::int64_t limit = PTRDIFF_MAX / static_cast<std::int64_t>(sizeof(T));
    if (iCount < 0 || iCount > limit) return nullptr;
    return ::new (std::nothrow) T[static_cast<std::size_t>(iCount)];
}

template <class T>
void DeleteArray(T*& ioArray) {
    ::delete[] ioArray;
    ioArray = nullptr;
}

/// Fills an array of \p iCount elements: the first \p iReadable with those of the source, converted, the
/// others with \p iBlank.  Without a source all are blank; without an array nothing happens.
template <class Target, class Source>
void FillArray(Target* oTarget, std::int64_t iCount, const Source* iSource, std::int64_t iReadable,
               const Target& iBlank = Target()) {
    if (!oTarget || iCount <= 0) return;
    const std::int64_t copied = iSource ? std::clamp<std::int64_t>(iReadable, 0, iCount) : 0;
    std::copy(iSource, iSource + copied, oTarget);
    std::fill(oTarget + copied, oTarget + iCount, iBlank);
}

/// A new array, filled as by FillArray.
template <class Target, class Source>
Target* NewCopy(std::int64_t iCount, const Source* iSource, std::int64_t iReadable,
                const Target& iBlank = Target()) {
    Target* const copy = NewArray<Target>(iCount);
    FillArray(copy, iCount, iSource, iReadable, iBlank);
    return copy;
}

/// An array taken out of its owner, to be replaced by a copy of a source that may lie in it: it is then kept
/// until the scope ends, otherwise freed at once.
template <class T>
class OutgoingArray {
public:
    /// The copy reads \p iSource from its element \p iFirst on.
    OutgoingArray(T*& ioOwned, std::int64_t iCount, const T* iSource, std::int64_t iFirst = 0)
        : _array(ioOwned), _isSource(iSource == ioOwned) {
        ioOwned = nullptr;
        if (_array && iSource && (Contains(iSource, iCount) || Contains(iSource + iFirst, iCount)))
            _readable = _array + iCount - (iSource + iFirst);
        else
            DeleteArray(_array);
    }
    ~OutgoingArray() { DeleteArray(_array); }
    OutgoingArray(const OutgoingArray&) = delete;
    OutgoingArray& operator=(const OutgoingArray&) = delete;

    /// How many of \p iWanted elements can be read: a source within this array ends where the array ends; the
    /// length of any other is trusted.
    std::int64_t CountReadable(std::int64_t iWanted) const { return std::min(iWanted, _readable); }

    /// Hands the array to the caller if it is the source itself; otherwise null.
    T* DetachSource() {
        T* const array = _isSource ? _array : nullptr;
        if (array) _array = nullptr;
        return array;
    }

private:
    // A zero-length array contains its own address.
    bool Contains(const T* iEntry, std::int64_t iCount) const {
        const std::less<const T*> before;
        return iEntry == _array || (!before(iEntry, _array) && before(iEntry, _array + iCount));
    }

    T* _array;
    bool _isSource;
    std::int64_t _readable = INT64_MAX;
};

} // namespace vekprt

#endif
