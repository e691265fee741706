// A growable collection of untyped pointers.
#ifndef VEKRawCollPV_H
#define VEKRawCollPV_H

#include "VEKFrameworkExport.h"

/// Pointers in order of insertion, at positions 1 to Size().  Owns nothing that they point to.
class VEKFRAMEWORK_API VEKRawCollPV {
public:
    /// \p iInitial pointers can be appended before the collection grows; 0 or less allocates nothing.
    explicit VEKRawCollPV(int iInitial);
    /// Empty when memory is out.
    VEKRawCollPV(const VEKRawCollPV& iOther);
    /// Unchanged when memory is out.
    VEKRawCollPV& operator=(const VEKRawCollPV& iOther);
    ~VEKRawCollPV();

    int Size() const { return _size; }
    /// Amortised constant.  Dropped without notice when the collection cannot grow.
    void Append(void* iPointer);
    /// First position of \p iPointer at or after \p iFrom; 0 when absent.
    int Locate(const void* iPointer, int iFrom = 1) const;
    /// Out of range: nothing.
    void RemovePosition(int iPosition);
    /// Null out of range, position 0 included.
    void* operator[](int iPosition) const;

private:
    void** _pointers = nullptr;
    int _size = 0;
    int _capacity = 0;
};

#endif
