#include "HostFramework.h"

#include <map>

std::atomic<long> VEKBaseUnknown::s_live{0};

// Objects stand behind a mark that says whose they are.
void* VEKBaseUnknown::operator new(std::size_t iSize) noexcept {
    using Mark = std::max_align_t;
    auto* const mark = static_cast<Mark*>(::operator new(iSize + sizeof(Mark), std::nothrow));
    if (!mark) return nullptr;
    std::memset(mark, 0x5A, sizeof *mark);
    return mark + 1;
}

void VEKBaseUnknown::operator delete(void* iObject) noexcept {
    if (iObject) ::operator delete(static_cast<std::max_align_t*>(iObject) - 1);
}

VEKMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass /*iType*/, VEKMetaClass* iBase,
                                     const char* /*iLateType*/, const char* /*iComponent*/, long iSize) {
    static std::map<std::string, VEKMetaClass> classes;
    return &classes.try_emplace(iClassName, iClassName, iBase, iSize).first->second;
}
