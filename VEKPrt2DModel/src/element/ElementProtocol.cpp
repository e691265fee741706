#include "ElementProtocol.h"

namespace vekprt {

VEKMetaClass* RetrieveMetaObject(VEKMetaClass*& ioCache, const char* iClassName, VEKMetaClass* (*iBase)(),
                                 const char* iLateType, long iSize) {
    if (ioCache) return ioCache;
    VEKMetaClass* const base = iBase();
    if (base)
        ioCache =
            fct_RetrieveMetaObject(iClassName, VEKTypeImplementation, base, iLateType, "PrintBase", iSize);
    return ioCache;
}

} // namespace vekprt
