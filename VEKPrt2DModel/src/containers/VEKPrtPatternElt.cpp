#include "VEKPrtPatternElt.h"

#include "BoxContainer.h"

VEKPRT_IMPLEMENT_BOX_CONTAINER(VEKPrtPatternElt, 16)
