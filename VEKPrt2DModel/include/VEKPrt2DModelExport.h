// Marks what the model library exports; everything else stays hidden.
#ifndef VEKPrt2DModelExport_H
#define VEKPrt2DModelExport_H

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

#endif
