#include "VEKBaseUnknown.h"

#include <atomic>

#include "VEKMetaClass.h"

namespace {

// Atomic although the model knows no threads: two threads with a model each share this counter.
std::atomic<long> g_liveObjects{0};

} // namespace

VEKBaseUnknown::VEKBaseUnknown() { g_liveObjects.fetch_add(1, std::memory_order_relaxed); }

VEKBaseUnknown::VEKBaseUnknown(const VEKBaseUnknown& iOther)
    : _impl(iOther._impl), _delegate(iOther._delegate), _state(iOther._state) {
    g_liveObjects.fetch_add(1, std::memory_order_relaxed);
}

// The count is left alone: it belongs to the object's address, not to its value.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): plain words, harmless to themselves
VEKBaseUnknown& VEKBaseUnknown::operator=(const VEKBaseUnknown& iOther) {
    _impl = iOther._impl;
    _delegate = iOther._delegate;
    _state = iOther._state;
    return *this;
}

VEKBaseUnknown::~VEKBaseUnknown() { g_liveObjects.fetch_sub(1, std::memory_order_relaxed); }

void* VEKBaseUnknown::operator new(std::size_t iSize) noexcept { return ::operator new(iSize, std::nothrow); }
void* VEKBaseUnknown::operator new(std::size_t iSize, const std::nothrow_t&) noexcept {
    return ::operator new(iSize, std::nothrow);
}
void VEKBaseUnknown::operator delete(void* iObject) noexcept { ::operator delete(iObject); }
void VEKBaseUnknown::operator delete(void* iObject, const std::nothrow_t&) noexcept {
    ::operator delete(iObject);
}

int VEKBaseUnknown::QueryInterface(const void* /*iInterfaceId*/, void** oInterface) {
    if (oInterface) *oInterface = nullptr;
    return NotImplemented;
}

unsigned long VEKBaseUnknown::AddRef() { return ++_references; }

unsigned long VEKBaseUnknown::Release() {
    const unsigned long left = --_references;
    if (left == 0) delete this;
    return left;
}

int VEKBaseUnknown::GetTypeInfoCount(unsigned int* oCount) {
    if (oCount) *oCount = 0;
    return Done;
}

int VEKBaseUnknown::GetTypeInfo(unsigned int /*iIndex*/, unsigned long /*iLocale*/, void** oInfo) {
    if (oInfo) *oInfo = nullptr;
    return NotImplemented;
}

int VEKBaseUnknown::GetIDsOfNames(const void* /*iInterfaceId*/, const char* const* /*iNames*/,
                                  unsigned int /*iCount*/, unsigned long /*iLocale*/, long* /*oIds*/) {
    return NotImplemented;
}

int VEKBaseUnknown::Invoke(long /*iId*/, const void* /*iInterfaceId*/, unsigned long /*iLocale*/,
                           unsigned short /*iFlags*/, void* /*ioParameters*/, void* /*oResult*/,
                           void* /*oException*/, unsigned int* /*oBadArgument*/) {
    return NotImplemented;
}

VEKMetaClass* VEKBaseUnknown::GetMetaObject() const { return MetaObject(); }
const char* VEKBaseUnknown::IsA() const { return ClassName(); }
int VEKBaseUnknown::IsAKindOf(const char* iClassName) const {
    const VEKMetaClass* const meta = MetaObject();
    return meta ? meta->IsAKindOf(iClassName) : 0;
}

void* VEKBaseUnknown::GetImpl() const { return _impl; }
void VEKBaseUnknown::SetImpl(void* iImpl) { _impl = iImpl; }
int VEKBaseUnknown::IsNull() const { return 0; }
int VEKBaseUnknown::IsEqual(const VEKBaseUnknown* iOther) const { return this == iOther ? 1 : 0; }
VEKBaseUnknown* VEKBaseUnknown::QueryInterface(const char* /*iInterfaceName*/) { return nullptr; }
void VEKBaseUnknown::ChangeComponentState(int /*iFrom*/, int /*iTo*/) {}

VEKMetaClass* VEKBaseUnknown::MetaObject() {
    static VEKMetaClass* s_meta = nullptr;
    if (!s_meta)
        s_meta = fct_RetrieveMetaObject("VEKBaseUnknown", VEKTypeImplementation, nullptr, "VEKnull", "System",
                                        static_cast<long>(sizeof(VEKBaseUnknown)));
    return s_meta;
}

const char* VEKBaseUnknown::ClassId() {
    const VEKMetaClass* const meta = MetaObject();
    return meta ? meta->GetId() : nullptr;
}

const char* VEKBaseUnknown::ClassName() {
    const VEKMetaClass* const meta = MetaObject();
    return meta ? meta->GetName() : nullptr;
}

long VEKBaseUnknown::CountLiveObjects() { return g_liveObjects.load(std::memory_order_relaxed); }
