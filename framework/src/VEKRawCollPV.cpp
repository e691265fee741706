#include "VEKRawCollPV.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>

namespace {

// Null for a capacity of 0 or less, and when allocation fails.  A new-expression throws if asked for more
// than PTRDIFF_MAX bytes, which an int can do on 32-bit platforms.
void** NewPointers(std::int64_t iCapacity) {
    constexpr std::int64_t limit = PTRDIFF_MAX / static_cast<std::int64_t>(sizeof(void*));
    if (iCapacity <= 0 || iCapacity > limit) return nullptr;
    return new (std::nothrow) void*[static_cast<std::size_t>(iCapacity)];
}

int NextCapacity(int iCapacity) {
    constexpr int limit = std::numeric_limits<int>::max();
    return iCapacity > limit / 2 ? limit : std::max(4, 2 * iCapacity);
}

} // namespace

VEKRawCollPV::VEKRawCollPV(int iInitial)
    : _pointers(NewPointers(iInitial)), _capacity(_pointers ? iInitial : 0) {}

VEKRawCollPV::VEKRawCollPV(const VEKRawCollPV& iOther) : VEKRawCollPV(iOther._size) {
    if (!_pointers) return;
    std::copy_n(iOther._pointers, iOther._size, _pointers);
    _size = iOther._size;
}

VEKRawCollPV& VEKRawCollPV::operator=(const VEKRawCollPV& iOther) {
    if (&iOther == this) return *this;
    if (_capacity < iOther._size) {
        void** const larger = NewPointers(iOther._size);
        if (!larger) return *this;
        delete[] _pointers;
        _pointers = larger;
        _capacity = iOther._size;
    }
    std::copy_n(iOther._pointers, iOther._size, _pointers);
    _size = iOther._size;
    return *this;
}

VEKRawCollPV::~VEKRawCollPV() { delete[] _pointers; }

bool VEKRawCollPV::Grow() {
    const int capacity = NextCapacity(_capacity);
    void** const larger = capacity > _capacity ? NewPointers(capacity) : nullptr;
    if (!larger) return false;
    std::copy_n(_pointers, _size, larger);
    delete[] _pointers;
    _pointers = larger;
    _capacity = capacity;
    return true;
}

int VEKRawCollPV::Locate(const void* iPointer, int iFrom) const {
    void** const first = _pointers + (std::clamp(iFrom, 1, _size + 1) - 1);
    void** const end = _pointers + _size;
    void** const found = std::find(first, end, iPointer);
    return found == end ? 0 : static_cast<int>(found - _pointers) + 1;
}

void VEKRawCollPV::RemovePosition(int iPosition) {
    if (iPosition < 1 || iPosition > _size) return;
    std::copy(_pointers + iPosition, _pointers + _size, _pointers + iPosition - 1);
    --_size;
}
