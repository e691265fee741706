/// \file
/// Marks what the framework library exports, and names the framework.
#ifndef VEKFrameworkExport_H
#define VEKFrameworkExport_H

#if defined(VEK_FRAMEWORK_NAME)
#error "This is built on a host's framework, and finds the headers of the reference framework instead."
#endif
/// Tells libraries that were compiled on this framework from those compiled on a host's.
#define VEK_FRAMEWORK_NAME VEKFramework

#if !defined(_WIN32)
/// For an exported class or function.
#define VEKFRAMEWORK_API __attribute__((visibility("default")))
#elif defined(VEKFRAMEWORK_STATIC)
#define VEKFRAMEWORK_API
#elif defined(VEKFramework_EXPORTS)
#define VEKFRAMEWORK_API __declspec(dllexport)
#else
#define VEKFRAMEWORK_API __declspec(dllimport)
#endif

#endif
