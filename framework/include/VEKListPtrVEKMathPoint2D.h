/// \file
/// A list of point pointers.
#ifndef VEKListPtrVEKMathPoint2D_H
#define VEKListPtrVEKMathPoint2D_H

#include "VEKMathPoint2D.h"
#include "VEKRawCollPV.h"

/// Pointers to VEKMathPoint2D at positions 1 to Size().  The caller owns the points.
class VEKListPtrVEKMathPoint2D : public VEKRawCollPV {
public:
    explicit VEKListPtrVEKMathPoint2D(int iInitial = 0) : VEKRawCollPV(iInitial) {}
};

#endif
