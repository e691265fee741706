// Marks what the framework library exports; everything else stays hidden.
#ifndef VEKFrameworkExport_H
#define VEKFrameworkExport_H

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
