// Makes objects of the model.
#ifndef Make_H
#define Make_H

#include <new>
#include <utility>

#include "VEKRef.h"

/// A new object, its one reference held.  The framework's `new` yields null when memory is out; this throws.
template <class T, class... Arguments>
VEKRef<T> Make(Arguments&&... iArguments) {
    T* const object = new T(std::forward<Arguments>(iArguments)...);
    if (!object) throw std::bad_alloc();
    return VEKRef<T>::Adopt(object);
}

#endif
