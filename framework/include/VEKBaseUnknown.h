/// \file
/// The reference-counted base of every framework object.
#ifndef VEKBaseUnknown_H
#define VEKBaseUnknown_H

#include <atomic>
#include <cstddef>
#include <new>

#include "VEKFrameworkExport.h"

class VEKMetaClass;

/// Base object: reference count, run-time class information, and the host's virtual functions.
///
/// A new object, copied or not, has count 1: its creator's reference.  Copying and assignment copy the three
/// data words and leave the count alone.  The order of the virtual functions is fixed: derived classes append
/// theirs after ChangeComponentState.
class VEKFRAMEWORK_API VEKBaseUnknown {
public:
    VEKBaseUnknown() { s_liveObjects.fetch_add(1, std::memory_order_relaxed); }
    VEKBaseUnknown(const VEKBaseUnknown& iOther) : VEKBaseUnknown() { *this = iOther; }
    VEKBaseUnknown& operator=(const VEKBaseUnknown& iOther) {
        _impl = iOther._impl;
        _delegate = iOther._delegate;
        _state = iOther._state;
        return *this;
    }

    /// Null when allocation fails: the new-expression then runs no constructor and yields null.
    static void* operator new(std::size_t iSize) noexcept;
    static void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t, void* iPlace) noexcept { return iPlace; }
    static void operator delete(void* iObject) noexcept;
    static void operator delete(void* iObject, const std::nothrow_t&) noexcept;
    static void operator delete(void*, void*) noexcept {}

    /// \name The host's interface protocol
    ///
    /// The reference implementation offers no interface: GetTypeInfoCount yields 0 and returns Done; the
    /// others return NotImplemented, set a pointer that they output to null, and leave other outputs alone.
    /// @{

    /// The results of the protocol's functions.
    enum Status : int { Done = 0, NotImplemented = -1 };
    virtual int QueryInterface(const void* iInterfaceId, void** oInterface);
    /// Returns the count after the call.
    virtual unsigned long AddRef();
    /// Returns the count after the call.  At 0 the object is deleted, so it must come from `new`.
    virtual unsigned long Release();
    virtual int GetTypeInfoCount(unsigned int* oCount);
    virtual int GetTypeInfo(unsigned int iIndex, unsigned long iLocale, void** oInfo);
    virtual int GetIDsOfNames(const void* iInterfaceId, const char* const* iNames, unsigned int iCount,
                              unsigned long iLocale, long* oIds);
    virtual int Invoke(long iId, const void* iInterfaceId, unsigned long iLocale, unsigned short iFlags,
                       void* ioParameters, void* oResult, void* oException, unsigned int* oBadArgument);
    /// @}

    virtual ~VEKBaseUnknown() { s_liveObjects.fetch_sub(1, std::memory_order_relaxed); }

    /// The meta-object of the object's class, or of its nearest base class that overrides this function.
    virtual VEKMetaClass* GetMetaObject() const;
    /// The name of that class.
    virtual const char* IsA() const;
    /// 1 for the name of that class or of one of its bases, otherwise 0.
    virtual int IsAKindOf(const char* iClassName) const;

    /// One of the three data words, for the host's use; never dereferenced.
    virtual void* GetImpl() const;
    virtual void SetImpl(void* iImpl);
    /// Always 0 in this implementation.
    virtual int IsNull() const;
    /// 1 if \p iOther is this object, otherwise 0; contents are not compared.
    virtual int IsEqual(const VEKBaseUnknown* iOther) const;
    /// Always null in this implementation.
    virtual VEKBaseUnknown* QueryInterface(const char* iInterfaceName);
    /// Does nothing in this implementation.
    virtual void ChangeComponentState(int iFrom, int iTo);

    static VEKMetaClass* MetaObject();
    static const char* ClassId();
    static const char* ClassName();

    /// How many framework objects exist in the process, for leak checks.
    static long CountLiveObjects();

private:
    // Atomic although objects are not: threads that use separate models share this counter.
    static std::atomic<long> s_liveObjects;

    // Belongs to the object's address, not to its value: assignment leaves it alone.
    unsigned long _references = 1;
    void* _impl = nullptr;
    void* _delegate = nullptr;
    void* _state = nullptr;
};

#endif
