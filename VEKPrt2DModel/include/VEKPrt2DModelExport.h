/// \file
/// Marks what the library exports; lets clients link only with a library compiled on their framework.
#ifndef VEKPrt2DModelExport_H
#define VEKPrt2DModelExport_H

#include "VEKBaseUnknown.h"

#if !defined(_WIN32)
/// For an exported class, function or variable.
#define VEKPRT2DMODEL_API __attribute__((visibility("default")))
/// For a member of an exported class that is no part of the binary interface.
#define VEKPRT2DMODEL_LOCAL __attribute__((visibility("hidden")))
#else
#if defined(VEKPRT2DMODEL_STATIC)
#define VEKPRT2DMODEL_API
#elif defined(VEKPrt2DModel_EXPORTS)
#define VEKPRT2DMODEL_API __declspec(dllexport)
#else
#define VEKPRT2DMODEL_API __declspec(dllimport)
#endif
#define VEKPRT2DMODEL_LOCAL
#endif

#if !defined(VEK_FRAMEWORK_NAME)
/// A host's framework is named by its build; without one, for example on a command line typed by hand, it is
/// `host`.
#define VEK_FRAMEWORK_NAME host
#endif
/// \cond
#define VEKPRT_JOIN(First, Second) First##Second
#define VEKPRT_JOIN_EXPANDED(First, Second) VEKPRT_JOIN(First, Second)
#define VEKPRT_FRAMEWORK_SYMBOL VEKPRT_JOIN_EXPANDED(VEKPrt2DModel_compiled_on_framework_, VEK_FRAMEWORK_NAME)
#if defined(__ELF__) && defined(__has_attribute)
#if __has_attribute(retain)
#define VEKPRT_RETAIN __attribute__((used, retain, visibility("hidden")))
#endif
#endif
#if !defined(VEKPRT_RETAIN)
#define VEKPRT_RETAIN __attribute__((used))
#endif

// The library defines this symbol, which names the framework that it was compiled on.
extern "C" VEKPRT2DMODEL_API const char VEKPRT_FRAMEWORK_SYMBOL;

namespace vekprt {

// Never called.  It makes each client refer to the symbol of the framework that the client was compiled on:
// with a library that was compiled on another one, the client does not link, and does not start.
VEKPRT_RETAIN inline const char* VEKPRT_JOIN_EXPANDED(FrameworkIs_, VEK_FRAMEWORK_NAME)() {
    return &VEKPRT_FRAMEWORK_SYMBOL;
}

} // namespace vekprt
/// \endcond

#endif
