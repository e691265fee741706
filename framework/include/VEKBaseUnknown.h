// The reference-counted base of every framework object.
#ifndef VEKBaseUnknown_H
#define VEKBaseUnknown_H

#include <atomic>
#include <cstddef>
#include <new>

#include "VEKFrameworkExport.h"

class VEKMetaClass;

/// Base object: reference count, run-time class information, and the inherited slots of the host.
///
/// A new object, copied or not, has count 1, and that reference is its creator's.  Assignment copies
/// the three data words and leaves the count alone.  The order of the virtual functions is fixed:
/// derived classes append theirs after ChangeComponentState.
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

    /// Null when allocation fails; a new-expression then yields null and runs no constructor.
    static void* operator new(std::size_t iSize) noexcept;
    static void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t, void* iPlace) noexcept { return iPlace; }
    static void operator delete(void* iObject) noexcept;
    static void operator delete(void* iObject, const std::nothrow_t&) noexcept;
    static void operator delete(void*, void*) noexcept {}

    /// \name The host's interface protocol
    ///
    /// The reference implementation offers no interface: GetTypeInfoCount counts 0 and returns Done; the
    /// others return NotImplemented, set a returned pointer to null and leave other outputs alone.
    /// @{

    /// What the functions of the protocol return.
    enum Status : int { Done = 0, NotImplemented = -1 };
    virtual int QueryInterface(const void* iInterfaceId, void** oInterface);
    /// Returns the count after the call.
    virtual unsigned long AddRef();
    /// Returns the count after the call; at 0 the object is deleted.
    virtual unsigned long Release();
    virtual int GetTypeInfoCount(unsigned int* oCount);
    virtual int GetTypeInfo(unsigned int iIndex, unsigned long iLocale, void** oInfo);
    virtual int GetIDsOfNames(const void* iInterfaceId, const char* const* iNames, unsigned int iCount,
                              unsigned long iLocale, long* oIds);
    virtual int Invoke(long iId, const void* iInterfaceId, unsigned long iLocale, unsigned short iFlags,
                       void* ioParameters, void* oResult, void* oException, unsigned int* oBadArgument);
    /// @}

    virtual ~VEKBaseUnknown() { s_liveObjects.fetch_sub(1, std::memory_order_relaxed); }

    /// The one of the object's class, or of the nearest class above it that has one.
    virtual VEKMetaClass* GetMetaObject() const;
    /// The name of that class.
    virtual const char* IsA() const;
    /// 1 for the name of that class or of one above it, otherwise 0.
    virtual int IsAKindOf(const char* iClassName) const;

    /// One of the three data words, for the host's use; never dereferenced here.
    virtual void* GetImpl() const;
    virtual void SetImpl(void* iImpl);
    /// Always 0 here.
    virtual int IsNull() const;
    /// Identity, not content.
    virtual int IsEqual(const VEKBaseUnknown* iOther) const;
    /// Always null here.
    virtual VEKBaseUnknown* QueryInterface(const char* iInterfaceName);
    /// Does nothing here.
    virtual void ChangeComponentState(int iFrom, int iTo);

    static VEKMetaClass* MetaObject();
    static const char* ClassId();
    static const char* ClassName();

    /// How many framework objects exist in the process; a client's or a test's leak check.
    static long CountLiveObjects();

private:
    // Atomic although the model knows no threads: two threads with a model each share it.
    static std::atomic<long> s_liveObjects;

    // Belongs to the object's address, not to its value: assignment leaves it alone.
    unsigned long _references = 1;
    void* _impl = nullptr;
    void* _delegate = nullptr;
    void* _state = nullptr;
};

#endif
