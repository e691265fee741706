/// \file
/// An owning pointer for clients of reference-counted objects.
#ifndef VEKRef_H
#define VEKRef_H

#include <functional>
#include <new>
#include <type_traits>
#include <utility>

namespace vekprt {

/// Holds one reference on a T and gives it back at the end.
///
/// There are two ways in, and they say which reference it is: Adopt takes over the one that the
/// caller has (`new`, Duplicate, Clone); Share adds one of its own (a pointer that somebody lent).
template <class T>
class VEKRef {
    /// Enabled when U* converts to T*.
    template <class U>
    using IfUpcast = typename std::enable_if<std::is_convertible<U*, T*>::value>::type;

public:
    VEKRef() = default;
    /// The caller's reference becomes this one's.
    static VEKRef Adopt(T* iObject) { return VEKRef(iObject); }
    /// The caller keeps the reference that it has, if any.
    static VEKRef Share(T* iObject) {
        if (iObject) iObject->AddRef();
        return VEKRef(iObject);
    }

    VEKRef(const VEKRef& iOther) : VEKRef(Share(iOther._object)) {}
    VEKRef(VEKRef&& ioOther) noexcept : _object(ioOther.Detach()) {}
    template <class U, class = IfUpcast<U>>
    VEKRef(const VEKRef<U>& iOther) : VEKRef(Share(iOther.Get())) {}
    template <class U, class = IfUpcast<U>>
    VEKRef(VEKRef<U>&& ioOther) noexcept : _object(ioOther.Detach()) {}
    /// By value: the new reference is there before the old one goes.
    VEKRef& operator=(VEKRef iOther) noexcept {
        std::swap(_object, iOther._object);
        return *this;
    }
    ~VEKRef() {
        if (_object) _object->Release();
    }

    /// Borrowed: valid as long as this or another reference is held.
    T* Get() const { return _object; }
    T* operator->() const { return _object; }
    T& operator*() const { return *_object; }
    explicit operator bool() const { return _object != nullptr; }

    /// Hands the reference to the caller; this pointer is null afterwards.
    T* Detach() {
        T* const object = _object;
        _object = nullptr;
        return object;
    }

private:
    explicit VEKRef(T* iObject) : _object(iObject) {}

    T* _object = nullptr;
};

/// By identity of the objects, null included.
template <class T, class U>
bool operator==(const VEKRef<T>& iLeft, const VEKRef<U>& iRight) {
    return iLeft.Get() == iRight.Get();
}
template <class T, class U>
bool operator!=(const VEKRef<T>& iLeft, const VEKRef<U>& iRight) {
    return iLeft.Get() != iRight.Get();
}
/// A total order, so that references can be keys.
template <class T>
bool operator<(const VEKRef<T>& iLeft, const VEKRef<T>& iRight) {
    return std::less<T*>()(iLeft.Get(), iRight.Get());
}

/// A new T, its one reference held.  Where the framework's `new` yields null, this throws std::bad_alloc.
template <class T, class... Arguments>
VEKRef<T> Make(Arguments&&... iArguments) {
    T* const object = new T(std::forward<Arguments>(iArguments)...);
    if (!object) throw std::bad_alloc();
    return VEKRef<T>::Adopt(object);
}

} // namespace vekprt

#endif
