// Marks what the model library exports; everything else stays hidden.
#ifndef VEKPrt2DModelExport_H
#define VEKPrt2DModelExport_H

#define VEKPRT2DMODEL_API __attribute__((visibility("default")))
/// For a member of an exported class that is no part of the binary interface.
#define VEKPRT2DMODEL_LOCAL __attribute__((visibility("hidden")))

#endif
