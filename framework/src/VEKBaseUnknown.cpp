#include "VEKBaseUnknown.h"

#include "VEKMetaClass.h"

std::atomic<long> VEKBaseUnknown::s_liveObjects{0};

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

long VEKBaseUnknown::CountLiveObjects() { return s_liveObjects.load(std::memory_order_relaxed); }
