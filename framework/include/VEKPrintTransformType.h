/// \file
/// The kinds of elementary transforms.
#ifndef VEKPrintTransformType_H
#define VEKPrintTransformType_H

/// VEKPrtTransformAttributes has an Add and a Get operation for each.
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
