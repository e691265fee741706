#include "VEKPrtSymbolElt.h"

#include "BoxContainer.h"

VEKPRT_IMPLEMENT_BOX_CONTAINER(VEKPrtSymbolElt, 15)
