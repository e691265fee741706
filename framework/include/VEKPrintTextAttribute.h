/// \file
/// Weight and anchor of a text share one enumeration.
#ifndef VEKPrintTextAttribute_H
#define VEKPrintTextAttribute_H

/// New text records have the regular weight, and the anchor at the left end of the baseline.
enum VEKPrintTextAttribute : int {
    VEKPrintTextWeightLight = 24,
    VEKPrintTextWeightRegular = 25,
    VEKPrintTextWeightMedium = 26,
    VEKPrintTextWeightBold = 27,
    VEKPrintTextWeightBlack = 28,

    VEKPrintTextAnchorBaselineLeft = 29,
    VEKPrintTextAnchorBaselineCentre = 30,
    VEKPrintTextAnchorBaselineRight = 31,
    VEKPrintTextAnchorMiddleLeft = 32,
    VEKPrintTextAnchorMiddleCentre = 33,
    VEKPrintTextAnchorMiddleRight = 34,
    VEKPrintTextAnchorTopLeft = 35,
    VEKPrintTextAnchorTopCentre = 36,
    VEKPrintTextAnchorTopRight = 37
};

#endif
