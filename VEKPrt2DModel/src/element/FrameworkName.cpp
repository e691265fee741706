#include "VEKPrt2DModelExport.h"

const char VEKPRT_FRAMEWORK_SYMBOL = 0;
