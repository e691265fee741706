#include "VEKMetaClass.h"

#include <cstring>
#include <new>

namespace {

// All registered classes, the latest first.  They are a few dozen, each looked up once per process: a linear
// search is enough.
VEKMetaClass* g_registered = nullptr;

} // namespace

int VEKMetaClass::IsAKindOf(const char* iClassName) const {
    if (!iClassName) return 0;
    for (const VEKMetaClass* meta = this; meta; meta = meta->_base)
        if (std::strcmp(meta->_name, iClassName) == 0) return 1;
    return 0;
}

VEKMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass /*iType*/,
                                     VEKMetaClass* iBaseMeta, const char* /*iLateType*/,
                                     const char* iComponent, long iSize) {
    if (!iClassName) return nullptr;
    for (VEKMetaClass* meta = g_registered; meta; meta = meta->_next)
        if (std::strcmp(meta->_name, iClassName) == 0) return meta;

    // One block holds the meta-object and its identifier "component.name", which ends with the name.
    const char* const component = iComponent ? iComponent : "";
    const std::size_t prefix = std::strlen(component) + 1;
    const std::size_t name = std::strlen(iClassName) + 1;
    void* const block = ::operator new(sizeof(VEKMetaClass) + prefix + name, std::nothrow);
    if (!block) return nullptr;

    char* const id = static_cast<char*>(block) + sizeof(VEKMetaClass);
    std::memcpy(id, component, prefix - 1);
    id[prefix - 1] = '.';
    std::memcpy(id + prefix, iClassName, name);

    VEKMetaClass* const meta = ::new (block) VEKMetaClass(id, id + prefix, iBaseMeta, iSize);
    meta->_next = g_registered;
    g_registered = meta;
    return meta;
}
