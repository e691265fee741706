// Arrays that an object owns: allocation that never throws, copying that never reads what is not there.
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
/// A count of 0 also yields an array.  Null when the count is negative, the size does not fit, or allocation
/// fails.  The tests come first because g++ throws from `new (std::nothrow)` for lengths that it considers
/// too long.
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

/// Gives all \p iCount elements of an array a value: the first \p iReadable that of the source, converted,
/// the others \p iBlank.  Without a source all are blank; without an array nothing happens.
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

/// An array taken out of its owner to be replaced.  What replaces it may be copied from a part of it, so it
/// is kept until Free is called or the scope ends.
template <class T>
class OutgoingArray {
public:
    OutgoingArray(T*& ioOwned, std::int64_t iCount) : _array(ioOwned), _count(iCount) { ioOwned = nullptr; }
    ~OutgoingArray() { Free(); }
    OutgoingArray(const OutgoingArray&) = delete;
    OutgoingArray& operator=(const OutgoingArray&) = delete;

    T* Get() const { return _array; }
    void Free() { DeleteArray(_array); }
    /// Hands the array to the caller.
    T* Detach() {
        T* const array = _array;
        _array = nullptr;
        return array;
    }

    /// Whether a source that is read from its element \p iFirst on begins, or is first read, within this
    /// array.
    bool Holds(const T* iSource, std::int64_t iFirst = 0) const {
        return _array && iSource && (Contains(iSource) || Contains(iSource + iFirst));
    }

    /// How many elements can be read from element \p iFirst of a source on, at most \p iWanted: a source
    /// within this array ends where the array ends; the length of any other is trusted.
    std::int64_t CountReadable(const T* iSource, std::int64_t iWanted, std::int64_t iFirst = 0) const {
        return Holds(iSource, iFirst) ? std::min(iWanted, _array + _count - (iSource + iFirst)) : iWanted;
    }

private:
    // An array of no length contains its own address.
    bool Contains(const T* iEntry) const {
        const std::less<const T*> before;
        return iEntry == _array || (!before(iEntry, _array) && before(iEntry, _array + _count));
    }

    T* _array;
    std::int64_t _count;
};

} // namespace vekprt

#endif
