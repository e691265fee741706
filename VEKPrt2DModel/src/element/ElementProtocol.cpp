#include "ElementProtocol.h"

namespace vekprt {

// By its number: hosts name it as they like.
constexpr auto typeImplementation = static_cast<ENUMTypeOfClass>(1);

VEKMetaClass* RegisterClass(VEKMetaClass*& oCache, const char* iClassName, VEKMetaClass* iBase,
                            const char* iLateType, long iSize) {
    oCache = fct_RetrieveMetaObject(iClassName, typeImplementation, iBase, iLateType, "PrintBase", iSize);
    return oCache;
}

const char* IdOf(const VEKMetaClass* iClass) { return iClass ? iClass->GetId() : nullptr; }
const char* NameOf(const VEKMetaClass* iClass) { return iClass ? iClass->GetName() : nullptr; }
int IsAKindOf(const VEKMetaClass* iClass, const char* iClassName) {
    return iClass ? iClass->IsAKindOf(iClassName) : 0;
}

} // namespace vekprt
