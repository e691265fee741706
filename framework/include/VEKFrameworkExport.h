// Marks what the framework library exports; everything else stays hidden.
#ifndef VEKFrameworkExport_H
#define VEKFrameworkExport_H

#define VEKFRAMEWORK_API __attribute__((visibility("default")))

#endif
