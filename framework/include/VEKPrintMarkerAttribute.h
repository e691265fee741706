/// \file
/// The shape of a marker.
#ifndef VEKPrintMarkerAttribute_H
#define VEKPrintMarkerAttribute_H

/// New marker records have the plus.
enum VEKPrintMarkerAttribute : int {
    VEKPrintMarkerPlus = 0,
    VEKPrintMarkerCross = 1,
    VEKPrintMarkerAsterisk = 2,
    VEKPrintMarkerCircle = 3,
    VEKPrintMarkerDisc = 4,
    VEKPrintMarkerSquare = 5,
    VEKPrintMarkerDiamond = 6,
    VEKPrintMarkerTriangle = 7
};

#endif
