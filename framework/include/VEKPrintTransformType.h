// The kinds of elementary transforms.
#ifndef VEKPrintTransformType_H
#define VEKPrintTransformType_H

/// Each goes with a pair of operations of VEKPrtTransformAttributes.
enum VEKPrintTransformType : int {
    VEKPrintTransformMatrix = 0,
    VEKPrintTransformTranslation = 1,
    VEKPrintTransformRotation = 2,
    VEKPrintTransformScaleX = 3,
    VEKPrintTransformScaleY = 4,
    VEKPrintTransformSkewX = 5,
    VEKPrintTransformSkewY = 6
};

#endif
