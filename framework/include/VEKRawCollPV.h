/// \file
/// A growable collection of untyped pointers.
#ifndef VEKRawCollPV_H
#define VEKRawCollPV_H

#include "VEKFrameworkExport.h"

/// Pointers in order of insertion, at positions 1 to Size().  Does not own what they point to.
class VEKFRAMEWORK_API VEKRawCollPV {
public:
    /// Makes room for \p iInitial pointers; 0 or less allocates nothing.
    explicit VEKRawCollPV(int iInitial);
    /// Empty when allocation fails.
    VEKRawCollPV(const VEKRawCollPV& iOther);
    /// Unchanged when allocation fails.
    VEKRawCollPV& operator=(const VEKRawCollPV& iOther);
    ~VEKRawCollPV();

    int Size() const { return _size; }
    /// In amortised constant time.  If the collection cannot grow, the pointer is silently dropped.
    void Append(void* iPointer) {
        if (_size < _capacity || Grow()) _pointers[_size++] = iPointer;
    }
    /// First position of \p iPointer at or after \p iFrom; 0 if there is none.
    int Locate(const void* iPointer, int iFrom = 1) const;
    /// Does nothing out of range.
    void RemovePosition(int iPosition);
    /// Null out of range, position 0 included.
    void* operator[](int iPosition) const {
        return iPosition >= 1 && iPosition <= _size ? _pointers[iPosition - 1] : nullptr;
    }

private:
    bool Grow();

    void** _pointers = nullptr;
    int _size = 0;
    int _capacity = 0;
};

#endif
