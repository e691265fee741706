// An owning pointer for clients of reference-counted objects.
#ifndef VEKRef_H
#define VEKRef_H

#include <utility>

/// Holds one reference on a T and gives it back at the end.
///
/// There are two ways in, and they say which reference it is: Adopt takes over the one that the
/// caller has (`new`, Duplicate, Clone); Share adds one of its own (a pointer that somebody lent).
template <class T>
class VEKRef {
public:
    VEKRef() = default;
    static VEKRef Adopt(T* iObject) { return VEKRef(iObject); }
    static VEKRef Share(T* iObject) {
        if (iObject) iObject->AddRef();
        return VEKRef(iObject);
    }

    VEKRef(const VEKRef& iOther) : VEKRef(Share(iOther._object)) {}
    VEKRef(VEKRef&& ioOther) noexcept : _object(ioOther._object) { ioOther._object = nullptr; }
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

#endif
